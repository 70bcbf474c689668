<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BatteryForm</name>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The voltage of the fresh battery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many cells the battery is made of.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance of the battery itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How wires are joined to the battery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws the signs of the poles at the pins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;plus and minus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The battery can be charged again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;chargeable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Case and pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the cells inside the case.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See-&amp;through case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BeltForm</name>
    <message>
        <source>Belt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The wheels turn against each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Crossed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The belt cannot slip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Toothed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A cord does not stretch; otherwise the belt is made of rubber.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ord</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BlockForm</name>
    <message>
        <source>Logic block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the block works out its output from its inputs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the output takes to follow the inputs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turns the output round.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Inverted output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws the truth table below the block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the &amp;truth table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws the curved shape instead of the box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;American symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Truth table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output for every combination of the inputs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pins of the block. The fields below belong to the selected ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which pole of the supply belongs to the pin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the name of the pin beside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name beside the pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flowchart block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A remark for the readers of the chart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour inside the block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows where the chart is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lights &amp;up while it runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the remark beside the block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the co&amp;mment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart halts before this block until it is stepped on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops &amp;here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart will halt before this block each time. Stop here?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BuzzerForm</name>
    <message>
        <source>Buzzer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The buzzer sounds as soon as the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sounds at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound goes on and off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pulsed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Loudness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds loudly while pressed in, softly otherwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How high the tone is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture that stands for the sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures shown in turn while the buzzer sounds.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CamForm</name>
    <message>
        <source>Cam</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the cam moves its follower.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The follower ends in a roller; otherwise in a flat foot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Roller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A spring presses the follower on the cam.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return &amp;spring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The outline of the cam.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CollectionsForm</name>
    <message>
        <source>Collections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pins of the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text shown with the selected pin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the selected pin is seen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The control whose place stands below.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the chosen control is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of a few resources.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any number of pictures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys and values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The font of a text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number that can follow another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the level can follow.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComponentForm</name>
    <message>
        <source>Component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label and state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters and a number, for example R1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the part; empty when none does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written beside the part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the reference, such as R1, beside the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the main value, such as 330 Ω, beside the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Val&amp;ue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the label stands, seen from the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place of the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A broken part lets no current through. Learners can look for the fault.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brok&amp;en</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A broken part lets no current through. Break it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConnectionForm</name>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How thick the line is drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text shown with it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts that are not visible still work, but the reader does not see them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Visible while the model runs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DecisionForm</name>
    <message>
        <source>Decision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output name of the switch or sensor that is asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is asked about the input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number that the input is compared with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes on at the right when the answer is yes; otherwise downwards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes branch to the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart waits here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Asks until the answer is yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes Yes and No at the branches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write the answers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ElementForm</name>
    <message>
        <source>Element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text shown with it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the centre is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width and height.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far it is turned clockwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts that are not visible still work, but the reader does not see them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Visible while the model runs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlowchartsSpaceForm</name>
    <message>
        <source>Flowcharts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast the flowcharts of the space run.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GalleryForm</name>
    <message>
        <source>Gallery of controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check boxes and buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checked while the property is true.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Switched on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks before it writes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trusted, as&amp;ked first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you really trust this part?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you no longer trust this part?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches between two words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Loud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The property is true for as long as the button is held down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold &amp;down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The property is true while the button is pressed in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Press in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same word as the check box above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;oud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A yes or no in words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures and texts in the place of words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled while the weather is windy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A capital letter and a digit; red while it is none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number or a sum such as 1900+87.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks like a link until it is edited.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled, because nobody can edit the property.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number; the longer a button is held, the faster it runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number in the unit beside it; other units can be typed as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The step follows from the range and the unit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x above y, in the unit beside them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number, written while you drag.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The range follows the unit beside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any colour: chosen, typed by name or dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A button alone, without the system&apos;s dialog.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of several</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each button stands for one word.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;mall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Med&amp;ium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lar&amp;ge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What belongs to this choice is enabled while it is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;wn width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The width of your own format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is in the box is enabled while it is checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guarded &amp;by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who keeps watch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number as the spin box above shows it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both coordinates.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour as documents write it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GearForm</name>
    <message>
        <source>Gear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of teeth.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The angle at which the teeth press on each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pitch diameter divided by the number of teeth; gears that mesh have the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0.5 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.5 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Otherwise only the pitch circle is drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Draw the teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slanting teeth run more quietly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Slanting teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slanting teeth lean to the left; otherwise to the right.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left-handed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How wide the teeth are along the axle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the hub is from the middle of the wheel.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InfoForm</name>
    <message>
        <source>Explanation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the pop-up without a click.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens when the &amp;mouse rests on it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hides the button once its pop-up has been closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes away &amp;after reading</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LedForm</name>
    <message>
        <source>LED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the light.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How brightly the LED shines, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The LED shines as soon as the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lit at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The LED goes on and off by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Blinking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The time from one flash to the next.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shines all round; a clear lens throws a narrow beam.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Milky lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Electrical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The voltage at which the LED begins to shine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A greater current destroys the LED.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How wide the lens is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diameter of the lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legs and pads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes anode and cathode beside the pins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines the holes of the solder pads with metal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Plated through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what lies behind the lens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See-&amp;through lens</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LightSensorForm</name>
    <message>
        <source>Light sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How bright it is at the start, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The brightness at which the sensor counts as dark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance when no light falls on the sensor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance in full light.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives its signal when it is dark; otherwise when it is bright.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal in the &amp;dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reader sets the brightness with the slider below the sensor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Follows its slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Otherwise only the model itself moves the slider.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can be &amp;worked by the reader</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinkForm</name>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws an arrow head at the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Arrow head</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws a dashed line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dashed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs along right angles; otherwise straight from block to block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right angles only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MachinePartForm</name>
    <message>
        <source>Machine part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A part that is not free is fixed to the base.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Free to turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An arrow shows the way the part turns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the direct&amp;ion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the turning speed on the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the sp&amp;eed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the part is made of.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mass of the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the part.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeterForm</name>
    <message>
        <source>Meter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the meter measures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the needle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Display:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows figures while pressed in, a needle over a scale otherwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reading stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hold the reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the greatest reading so far as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the &amp;peak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Otherwise only the model itself turns the range knob.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range can be &amp;worked by the reader</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MotorForm</name>
    <message>
        <source>Motor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The motor turns as soon as the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast the motor turns without load.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The voltage for which the motor is made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the motor; empty when none does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Otherwise the motor turns clockwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turns &amp;counterclockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A gear box makes the shaft turn more slowly and more strongly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With &amp;gear box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many turns of the motor make one turn of the shaft.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Basics</source>
        <extracomment>Name of a package of parts</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Electronics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flowcharts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mechanics</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PartsTree</name>
    <message>
        <source>Explanations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Components</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureForm</name>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the ratio of width and height when the picture is resized.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep &amp;proportions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exchanges left and right.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mirrored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws a thin frame round the picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw a &amp;frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the picture comes from and who made it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures shown in turn after the first one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PopupForm</name>
    <message>
        <source>Pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The heading shown above the pop-up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pop-up is open from the start; otherwise its part opens it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open when the model starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws a grid of 5 mm behind the parts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a &amp;grid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProcedureForm</name>
    <message>
        <source>Procedure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How often the chart in the pop-up is run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the pop-up with its chart while the procedure runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Opens while it runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Otherwise a stop block inside ends the whole chart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop ends only the &amp;procedure</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PulleyForm</name>
    <message>
        <source>Pulley</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The diameter at which the belt runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For belts with a V section; otherwise the groove is round.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V-&amp;shaped groove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rims keep the belt in the groove.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With &amp;rims</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The belt slips when the load is too great.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Belt may slip</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PushButtonForm</name>
    <message>
        <source>Push button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the cap.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A lamp shines in the cap while the button is held down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cap &amp;lights up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Try it:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closes the contact for as long as this button is held down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResistorForm</name>
    <message>
        <source>Resistor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance as it is printed on the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the true resistance may be from the printed one, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The power that the part stands without burning.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws the coloured bands that tell the resistance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour &amp;bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws the American zigzag line instead of the box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zigzag symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solder pads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Square pads mark a place on the board; otherwise they are round.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;quare pads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines the holes with metal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Plated through</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneForm</name>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The heading shown above the scene.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws a grid of 5 mm behind the parts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a &amp;grid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShaftForm</name>
    <message>
        <source>Shaft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The diameter of the shaft.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the shaft twists under full load.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shaft is a tube.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hollow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A key makes the wheels turn with the shaft.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With &amp;key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Otherwise the ends are plain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rounded ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The wheels turn on the shaft rather than with it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wheels run freely</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StartForm</name>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart runs as soon as the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts by itsel&amp;f</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One input that is on starts the chart; otherwise all must be on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Any input is enough</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the chart waits before its first block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StepForm</name>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the block does with its output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output name of the components that the block switches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the step lasts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How strongly the output is switched on, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches the output on; otherwise it is switched off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches &amp;on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart goes on only when the time is over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Waits for the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leaves just this output on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches all o&amp;ther outputs off</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StopForm</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart begins again from its start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Starts again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A chart that starts again never ends by itself. Start again?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart will end here. End it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Otherwise they stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches all &amp;outputs off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is shown to the reader at the end.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SwitchForm</name>
    <message>
        <source>Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contact:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets current through as soon as the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the contact stays as it is set, or opens again when it is let go.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Springs back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays where it is put</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance of the closed contact.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the contact chatters when it closes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws the lever with its hinge on the right; otherwise on the left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hinge on the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key that works the switch while the model runs; one capital letter or digit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Otherwise only the model itself works the switch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can be &amp;worked by the reader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextForm</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is written; it is wrapped at the width of the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of a line of the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the lines stand within the width.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Weight:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the text in bold letters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Slant:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the text in sloping letters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws a thin frame round the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw a &amp;frame</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WireForm</name>
    <message>
        <source>Wire</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cross-section of the copper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The wire has a coloured cover.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insulated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Many thin wires make it easy to bend.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stranded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs along right angles; otherwise straight from pin to pin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right angles only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/body</name>
    <message>
        <source>Body</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/collections</name>
    <message>
        <source>Gallery of collections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of a few pictures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Album</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any number of pictures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys and values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lettering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The font of a text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number that can follow another.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/connection</name>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pin at which the connection begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pin at which the connection ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How thick the line is drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/control</name>
    <message>
        <source>Control</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/domain</name>
    <message>
        <source>Domain</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/element</name>
    <message>
        <source>Element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to the element.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text shown with the element.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the centre of the element is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width and height of the element.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the element is turned clockwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the element may be turned: freely, by right angles, or not at all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quarter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the element is seen while the model runs.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/gallery</name>
    <message>
        <source>Gallery of controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A yes or no.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trusted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A yes or no that is asked about before it changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of two words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quiet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Held down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>True for as long as a button is held down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Latched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>True while a button is pressed in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A yes or no with words of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of several words, shown as pictures and texts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How strongly the wind blows, from 0 to 12.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of a few colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of a few whole numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of a few numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of a few points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A capital letter and a digit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A length in the unit that you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text that nobody can change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A weight in the unit that you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An angle; the step follows from what is allowed, in the unit shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A point in the unit that you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole number from 0 to 100.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any colour.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of several words, or a width of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The width of a format of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guarded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether what belongs to a guard is in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the guard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who keeps watch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fog, &lt;i&gt;fine&lt;/i&gt; H&lt;sub&gt;2&lt;/sub&gt;O</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/info</name>
    <message>
        <source>Explanation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the reader does to open the explanation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the button goes away when the explanation has been read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/model</name>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the model, as people read it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Author</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who made the model.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a teacher should know before using the model.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the running model stands still for a moment.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/pad</name>
    <message>
        <source>Pad</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/part</name>
    <message>
        <source>Part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a click on the part does while the model runs, besides what the part itself does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address that a click opens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene that a click shows.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/picture</name>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures shown in turn after the first one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the picture keeps the ratio of width and height.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether left and right are exchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Framed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a thin frame is drawn round the picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the picture comes from and who made it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/pin</name>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/popup</name>
    <message>
        <source>Pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the pop-up is shown now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the pop-up is open when the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/scene</name>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/space</name>
    <message>
        <source>Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to the space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The heading shown above the space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a grid of 5 mm is drawn behind the parts.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/subpart</name>
    <message>
        <source>Subpart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the subpart is to its part, where that differs from its class.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core/text</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is written; it is wrapped at the width of the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of a line of the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the letters are bold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the letters slope.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Framed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a thin frame is drawn round the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the lines stand within the width.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/*</name>
    <message>
        <source>Electronics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether moving dots show the current in the wires.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which family of circuit symbols is drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>European</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>American</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/battery</name>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The voltage of the fresh battery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many cells the battery is made of.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance of the battery itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How wires are joined to the battery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wire</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polarity shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether plus and minus are drawn at the pins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rechargeable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the battery can be charged again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/block</name>
    <message>
        <source>Logic block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the block works out its output from its inputs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XOR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverted output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the output is turned round.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Truth table shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the truth table is drawn below the block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A box with a sign, or the curved shapes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>European</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>American</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the output takes to follow the inputs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is written beside the inputs, from top to bottom.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Truth table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output for every combination of the inputs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOT AND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOT OR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EITHER OR</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/buzzer</name>
    <message>
        <source>Buzzer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the buzzer sounds when the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pulsed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the sound goes on and off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the buzzer sounds softly or loudly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>soft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How high the tone is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Melody</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The notes that are played in turn, as numbers of half tones; 60 is the middle C.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture that stands for the sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Siren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures while sounding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures shown in turn while the buzzer sounds.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/case</name>
    <message>
        <source>Case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether what lies behind the case is seen.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/component</name>
    <message>
        <source>Component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters and number by which the component is called in the circuit, for example R1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the reference is written beside the component.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the main value is written beside the component.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the label stands, seen from the centre.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the component; empty when none does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How strongly a running flowchart has switched the component on, in percent; -1 while none has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A broken component lets no current through.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/control</name>
    <message>
        <source>Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the control stands, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can be worked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the reader may move the control while the model runs.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/led</name>
    <message>
        <source>LED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the light.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lit at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the LED shines when the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blinking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the LED goes on and off by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear lenses throw a narrow beam, milky ones shine all round.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Milky</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How brightly the LED shines, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blink period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The time from one flash to the next.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blink pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Times in seconds for which the LED is on and off in turn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The voltage at which the LED begins to shine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greatest current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A greater current destroys the LED.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The diameter of the lens.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/light-sensor</name>
    <message>
        <source>Light sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How bright it is at the start, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The brightness at which the sensor counts as dark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal when</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the sensor gives its signal in the dark or in the light.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follows its slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the reader sets the brightness with the slider.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resistance in the dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance when no light falls on the sensor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resistance in the light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance in full light.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Characteristic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairs of brightness in lux and resistance in ohms between which the sensor interpolates.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/meter</name>
    <message>
        <source>Meter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the meter measures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figures, or a needle over a scale.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>digital</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the reading stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peak shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the greatest reading so far is shown as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needle colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the needle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measures at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pin at which the meter measures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the scale has long marks, in the quantity&apos;s basic unit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltage (V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resistance (Ω)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/pad</name>
    <message>
        <source>Solder pad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The outline of the copper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>round</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>oval</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How wide the copper is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plated through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the hole is lined with metal.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/pin</name>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which pole of the supply belongs here, if it matters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>positive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>negative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the pin&apos;s name is written beside it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/push-button</name>
    <message>
        <source>Push button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cap colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the cap.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lights up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a lamp in the cap shines while the button is held.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/resistor</name>
    <message>
        <source>Resistor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance as it is printed on the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerance in %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the true resistance may be from the printed one, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power rating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The power that the part stands without burning.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the colour bands are drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The box, or the zigzag line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>European</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>American</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/switch</name>
    <message>
        <source>Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the switch lets current through at the start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Springs back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the switch stays closed only while it is held.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lever side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On which side the lever has its hinge.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resistance of the closed contact.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounce time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the contact chatters when it closes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key that works the switch while the model runs; one capital letter or digit.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>electronics/wire</name>
    <message>
        <source>Wire</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insulated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the wire has a coloured cover.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stranded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the wire is made of many thin ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Route</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Along right angles, or straight from pin to pin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>straight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cross-section in mm²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copper&apos;s cross-section in square millimetres.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The points over which the wire runs, from its beginning to its end.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flowcharts/*</name>
    <message>
        <source>Flowcharts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast the flowcharts of the space run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Held down to run the next block at the speed Manual step.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flowcharts/block</name>
    <message>
        <source>Flowchart block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A remark for the readers of the chart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the remark is written beside the block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lights up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the block lights up while it runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the chart halts before the block, until it is stepped on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a running chart is at the block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour inside the block.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flowcharts/decision</name>
    <message>
        <source>Decision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output name of the switch or sensor that is asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is asked about the input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is less than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number that the input is compared with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes branch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the chart goes on when the answer is yes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks until yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the block waits until the answer is yes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answers shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether Yes and No are written at the branches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watched part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part whose state is asked when no input is named.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is on?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is off?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flowcharts/link</name>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the end has an arrow head.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the line is dashed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Route</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Straight from block to block, or along right angles.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>straight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The points over which the line runs, from its beginning to its end.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flowcharts/procedure</name>
    <message>
        <source>Procedure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How often the chart in the pop-up is run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens while it runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the pop-up with the chart opens while the procedure runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a stop block inside ends only the procedure rather than the whole chart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The names of the numbers handed to the procedure.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flowcharts/start</name>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the chart runs as soon as the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts when</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether one or all of the named inputs must be on for the chart to start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>any input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The names of the switches and sensors that start the chart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the chart waits before its first block.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flowcharts/step</name>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the block does with its output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output name of the components that the block switches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the block switches the output on rather than off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the chart goes on only when the time is over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether all other outputs are switched off at the same time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the step lasts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How strongly the output is switched on, in percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further outputs, each with the state that it takes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flowcharts/stop</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the chart begins again from its start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the outputs stay as they are at the end, or are switched off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switch off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is shown to the reader at the end.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>flowcharts/terminal</name>
    <message>
        <source>Terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the chart comes in or goes out here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether an arrow head is drawn at the terminal.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mechanics/axle</name>
    <message>
        <source>Axle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The diameter of the axle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs freely</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the wheel turns on the axle rather than with it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mechanics/belt</name>
    <message>
        <source>Belt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crossed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the belt is crossed, so that the wheels turn against each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toothed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the belt has teeth and cannot slip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rubber that stretches, or cord that does not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rubber</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cord</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mechanics/cam</name>
    <message>
        <source>Cam</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The outline of the cam.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eccentric circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the cam moves its follower.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return spring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a spring presses the follower on the cam.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A flat foot, or a roller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>flat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>roller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lift table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lift in millimetres at some angles in degrees.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mechanics/gear</name>
    <message>
        <source>Gear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of teeth.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pitch diameter divided by the number of teeth; gears that mesh have the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The angle at which the teeth press on each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Face width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How wide the teeth are along the axle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth drawn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the teeth are drawn, or only the pitch circle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slanting teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the teeth stand aslant to the axle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which way slanting teeth lean.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meshes with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gear whose teeth these ones drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hub offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the hub is from the middle of the wheel.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mechanics/machine-part</name>
    <message>
        <source>Machine part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the part is made of.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acetal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nylon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mass of the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Held fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the part is fixed to the base and cannot turn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether an arrow shows the way the part turns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the turning speed is written on the part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the part.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mechanics/motor</name>
    <message>
        <source>Motor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the motor runs when the model starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which way the motor turns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>counterclockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With gear box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a gear box is built in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gear box ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many turns of the motor make one turn of the shaft.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supply voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The voltage for which the motor is made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast the motor turns without load.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the motor; empty when none does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How strongly a running flowchart has switched the motor on, in percent; -1 while none has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Powered by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The battery that drives the motor.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mechanics/pulley</name>
    <message>
        <source>Pulley</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groove diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The diameter at which the belt runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shape of the groove.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>round</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With rims</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether rims keep the belt in the groove.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Belt slips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the belt may slip when the load is too great.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The groove diameters of a stepped pulley in metres, the greatest first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mechanics/shaft</name>
    <message>
        <source>Shaft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The diameter of the shaft.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the shaft is a tube.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a key makes the wheels turn with the shaft.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain ends, or rounded ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rounded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bearings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the shaft is held, seen from its centre.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the shaft twists under full load.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
