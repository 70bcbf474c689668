<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BatteryForm</name>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>The voltage of the fresh battery.</source>
        <translation>Die Spannung der frischen Batterie.</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>How many cells the battery is made of.</source>
        <translation>Aus wie vielen Zellen die Batterie besteht.</translation>
    </message>
    <message>
        <source>The resistance of the battery itself.</source>
        <translation>Der Widerstand der Batterie selbst.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>How wires are joined to the battery.</source>
        <translation>Wie Drähte mit der Batterie verbunden werden.</translation>
    </message>
    <message>
        <source>Draws the signs of the poles at the pins.</source>
        <translation>Zeichnet die Zeichen der Pole an die Anschlüsse.</translation>
    </message>
    <message>
        <source>Show &amp;plus and minus</source>
        <translation>&amp;Plus und Minus zeigen</translation>
    </message>
    <message>
        <source>The battery can be charged again.</source>
        <translation>Die Batterie kann wieder aufgeladen werden.</translation>
    </message>
    <message>
        <source>Re&amp;chargeable</source>
        <translation>&amp;Wiederaufladbar</translation>
    </message>
    <message>
        <source>Case and pins</source>
        <translation>Gehäuse und Anschlüsse</translation>
    </message>
    <message>
        <source>Shows the cells inside the case.</source>
        <translation>Zeigt die Zellen im Inneren des Gehäuses.</translation>
    </message>
    <message>
        <source>See-&amp;through case</source>
        <translation>&amp;Durchsichtiges Gehäuse</translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation>Schreibt den Namen jedes Anschlusses daneben.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>&amp;Namen an den Anschlüssen</translation>
    </message>
</context>
<context>
    <name>BeltForm</name>
    <message>
        <source>Belt</source>
        <translation>Riemen</translation>
    </message>
    <message>
        <source>The wheels turn against each other.</source>
        <translation>Die Räder drehen sich gegeneinander.</translation>
    </message>
    <message>
        <source>&amp;Crossed</source>
        <translation>&amp;Gekreuzt</translation>
    </message>
    <message>
        <source>The belt cannot slip.</source>
        <translation>Der Riemen kann nicht rutschen.</translation>
    </message>
    <message>
        <source>&amp;Toothed</source>
        <translation>Ge&amp;zahnt</translation>
    </message>
    <message>
        <source>A cord does not stretch; otherwise the belt is made of rubber.</source>
        <translation>Eine Schnur dehnt sich nicht; sonst ist der Riemen aus Gummi.</translation>
    </message>
    <message>
        <source>C&amp;ord</source>
        <translation>&amp;Schnur</translation>
    </message>
</context>
<context>
    <name>BlockForm</name>
    <message>
        <source>Logic block</source>
        <translation>Logikblock</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>Logik</translation>
    </message>
    <message>
        <source>How the block works out its output from its inputs.</source>
        <translation>Wie der Block seinen Ausgang aus seinen Eingängen bestimmt.</translation>
    </message>
    <message>
        <source>How long the output takes to follow the inputs.</source>
        <translation>Wie lange der Ausgang braucht, um den Eingängen zu folgen.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>Turns the output round.</source>
        <translation>Kehrt den Ausgang um.</translation>
    </message>
    <message>
        <source>&amp;Inverted output</source>
        <translation>Ausgang &amp;umgekehrt</translation>
    </message>
    <message>
        <source>Draws the truth table below the block.</source>
        <translation>Zeichnet die Wahrheitstabelle unter den Block.</translation>
    </message>
    <message>
        <source>Show the &amp;truth table</source>
        <translation>&amp;Wahrheitstabelle zeigen</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Draws the curved shape instead of the box.</source>
        <translation>Zeichnet die geschwungene Form statt des Kastens.</translation>
    </message>
    <message>
        <source>&amp;American symbol</source>
        <translation>&amp;Amerikanisches Zeichen</translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation>Schreibt den Namen jedes Anschlusses daneben.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>&amp;Namen an den Anschlüssen</translation>
    </message>
    <message>
        <source>Truth table</source>
        <translation>Wahrheitstabelle</translation>
    </message>
    <message>
        <source>The output for every combination of the inputs.</source>
        <translation>Der Ausgang für jede Kombination der Eingänge.</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Anschlüsse</translation>
    </message>
    <message>
        <source>The pins of the block. The fields below belong to the selected ones.</source>
        <translation>Die Anschlüsse des Blocks. Die Felder darunter gehören zu den ausgewählten.</translation>
    </message>
    <message>
        <source>Which pole of the supply belongs to the pin.</source>
        <translation>Welcher Pol der Versorgung zu dem Anschluss gehört.</translation>
    </message>
    <message>
        <source>Writes the name of the pin beside it.</source>
        <translation>Schreibt den Namen des Anschlusses daneben.</translation>
    </message>
    <message>
        <source>Name beside the pin</source>
        <translation>Name am Anschluss</translation>
    </message>
    <message>
        <source>Flowchart block</source>
        <translation>Ablaufblock</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>A remark for the readers of the chart.</source>
        <translation>Eine Bemerkung für die Leser des Plans.</translation>
    </message>
    <message>
        <source>The colour inside the block.</source>
        <translation>Die Farbe im Inneren des Blocks.</translation>
    </message>
    <message>
        <source>Shows where the chart is.</source>
        <translation>Zeigt, wo der Plan gerade ist.</translation>
    </message>
    <message>
        <source>Lights &amp;up while it runs</source>
        <translation>&amp;Leuchtet, während er läuft</translation>
    </message>
    <message>
        <source>Writes the remark beside the block.</source>
        <translation>Schreibt die Bemerkung neben den Block.</translation>
    </message>
    <message>
        <source>Show the co&amp;mment</source>
        <translation>&amp;Bemerkung zeigen</translation>
    </message>
    <message>
        <source>The chart halts before this block until it is stepped on.</source>
        <translation>Der Plan hält vor diesem Block, bis er weitergeführt wird.</translation>
    </message>
    <message>
        <source>Stops &amp;here</source>
        <translation>&amp;Hält hier</translation>
    </message>
    <message>
        <source>The chart will halt before this block each time. Stop here?</source>
        <translation>Der Plan wird jedes Mal vor diesem Block halten. Hier halten?</translation>
    </message>
</context>
<context>
    <name>BuzzerForm</name>
    <message>
        <source>Buzzer</source>
        <translation>Summer</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>The buzzer sounds as soon as the model starts.</source>
        <translation>Der Summer ertönt, sobald das Modell startet.</translation>
    </message>
    <message>
        <source>&amp;Sounds at the start</source>
        <translation>&amp;Ertönt beim Start</translation>
    </message>
    <message>
        <source>The sound goes on and off.</source>
        <translation>Der Ton geht an und aus.</translation>
    </message>
    <message>
        <source>&amp;Pulsed</source>
        <translation>&amp;Unterbrochen</translation>
    </message>
    <message>
        <source>&amp;Loudness:</source>
        <translation>Lau&amp;tstärke:</translation>
    </message>
    <message>
        <source>Sounds loudly while pressed in, softly otherwise.</source>
        <translation>Ertönt eingedrückt laut, sonst leise.</translation>
    </message>
    <message>
        <source>Loud</source>
        <translation>Laut</translation>
    </message>
    <message>
        <source>How high the tone is.</source>
        <translation>Wie hoch der Ton ist.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>The picture that stands for the sound.</source>
        <translation>Das Bild, das für den Klang steht.</translation>
    </message>
    <message>
        <source>Pictures shown in turn while the buzzer sounds.</source>
        <translation>Bilder, die nacheinander gezeigt werden, während der Summer ertönt.</translation>
    </message>
</context>
<context>
    <name>CamForm</name>
    <message>
        <source>Cam</source>
        <translation>Nocken</translation>
    </message>
    <message>
        <source>Follower</source>
        <translation>Stößel</translation>
    </message>
    <message>
        <source>How far the cam moves its follower.</source>
        <translation>Wie weit der Nocken seinen Stößel bewegt.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>The follower ends in a roller; otherwise in a flat foot.</source>
        <translation>Der Stößel endet in einer Rolle; sonst in einem flachen Fuß.</translation>
    </message>
    <message>
        <source>&amp;Roller</source>
        <translation>&amp;Rolle</translation>
    </message>
    <message>
        <source>A spring presses the follower on the cam.</source>
        <translation>Eine Feder drückt den Stößel auf den Nocken.</translation>
    </message>
    <message>
        <source>Return &amp;spring</source>
        <translation>Rückstell&amp;feder</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>The outline of the cam.</source>
        <translation>Der Umriss des Nockens.</translation>
    </message>
</context>
<context>
    <name>CollectionsForm</name>
    <message>
        <source>Collections</source>
        <translation>Sammlungen</translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation>Unterteile</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Anschlüsse</translation>
    </message>
    <message>
        <source>The pins of the part.</source>
        <translation>Die Anschlüsse des Teils.</translation>
    </message>
    <message>
        <source>The text shown with the selected pin.</source>
        <translation>Der Text, der mit dem ausgewählten Anschluss gezeigt wird.</translation>
    </message>
    <message>
        <source>Whether the selected pin is seen.</source>
        <translation>Ob der ausgewählte Anschluss zu sehen ist.</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Bedienelemente</translation>
    </message>
    <message>
        <source>The control whose place stands below.</source>
        <translation>Das Bedienelement, dessen Ort darunter steht.</translation>
    </message>
    <message>
        <source>Where the chosen control is.</source>
        <translation>Wo das gewählte Bedienelement ist.</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>One picture.</source>
        <translation>Ein Bild.</translation>
    </message>
    <message>
        <source>One of a few resources.</source>
        <translation>Eine von wenigen Ressourcen.</translation>
    </message>
    <message>
        <source>Any number of pictures.</source>
        <translation>Beliebig viele Bilder.</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Keys and values.</source>
        <translation>Schlüssel und Werte.</translation>
    </message>
    <message>
        <source>The font of a text.</source>
        <translation>Die Schrift eines Texts.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Verknüpfungen</translation>
    </message>
    <message>
        <source>A number that can follow another.</source>
        <translation>Eine Zahl, die einer anderen folgen kann.</translation>
    </message>
    <message>
        <source>What the level can follow.</source>
        <translation>Wem der Pegel folgen kann.</translation>
    </message>
</context>
<context>
    <name>ComponentForm</name>
    <message>
        <source>Component</source>
        <translation>Bauteil</translation>
    </message>
    <message>
        <source>Label and state</source>
        <translation>Beschriftung und Zustand</translation>
    </message>
    <message>
        <source>Letters and a number, for example R1.</source>
        <translation>Buchstaben und eine Zahl, zum Beispiel R1.</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the part; empty when none does.</source>
        <translation>Der Name, unter dem Ablaufpläne das Teil schalten; leer, wenn keiner es tut.</translation>
    </message>
    <message>
        <source>Written beside the part</source>
        <translation>Neben das Teil geschrieben</translation>
    </message>
    <message>
        <source>Writes the reference, such as R1, beside the part.</source>
        <translation>Schreibt das Kurzzeichen, etwa R1, neben das Teil.</translation>
    </message>
    <message>
        <source>&amp;Reference</source>
        <translation>&amp;Kurzzeichen</translation>
    </message>
    <message>
        <source>Writes the main value, such as 330 Ω, beside the part.</source>
        <translation>Schreibt den Hauptwert, etwa 330 Ω, neben das Teil.</translation>
    </message>
    <message>
        <source>Val&amp;ue</source>
        <translation>&amp;Wert</translation>
    </message>
    <message>
        <source>Where the label stands, seen from the part.</source>
        <translation>Wo die Beschriftung steht, vom Teil aus gesehen.</translation>
    </message>
    <message>
        <source>Place of the label</source>
        <translation>Ort der Beschriftung</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Darüber</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Darunter</translation>
    </message>
    <message>
        <source>On the left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>On the right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>A broken part lets no current through. Learners can look for the fault.</source>
        <translation>Ein defektes Teil lässt keinen Strom durch. Lernende können den Fehler suchen.</translation>
    </message>
    <message>
        <source>Brok&amp;en</source>
        <translation>&amp;Defekt</translation>
    </message>
    <message>
        <source>A broken part lets no current through. Break it?</source>
        <translation>Ein defektes Teil lässt keinen Strom durch. Soll es defekt sein?</translation>
    </message>
</context>
<context>
    <name>ConnectionForm</name>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>How thick the line is drawn.</source>
        <translation>Wie dick die Linie gezeichnet wird.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation>Die Farbe der Linie.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Ein kurzer Name ohne Leerzeichen, mit dem andere Dinge auf das Teil verweisen.</translation>
    </message>
    <message>
        <source>The text shown with it.</source>
        <translation>Der Text, der dazu gezeigt wird.</translation>
    </message>
    <message>
        <source>Parts that are not visible still work, but the reader does not see them.</source>
        <translation>Teile, die nicht sichtbar sind, wirken weiter, aber der Leser sieht sie nicht.</translation>
    </message>
    <message>
        <source>&amp;Visible while the model runs</source>
        <translation>&amp;Sichtbar, während das Modell läuft</translation>
    </message>
</context>
<context>
    <name>DecisionForm</name>
    <message>
        <source>Decision</source>
        <translation>Entscheidung</translation>
    </message>
    <message>
        <source>The output name of the switch or sensor that is asked.</source>
        <translation>Der Ausgangsname des Schalters oder Fühlers, der gefragt wird.</translation>
    </message>
    <message>
        <source>What is asked about the input.</source>
        <translation>Was über den Eingang gefragt wird.</translation>
    </message>
    <message>
        <source>The number that the input is compared with.</source>
        <translation>Die Zahl, mit der der Eingang verglichen wird.</translation>
    </message>
    <message>
        <source>Goes on at the right when the answer is yes; otherwise downwards.</source>
        <translation>Geht rechts weiter, wenn die Antwort ja ist; sonst nach unten.</translation>
    </message>
    <message>
        <source>&amp;Yes branch to the right</source>
        <translation>&amp;Ja-Zweig nach rechts</translation>
    </message>
    <message>
        <source>The chart waits here.</source>
        <translation>Der Plan wartet hier.</translation>
    </message>
    <message>
        <source>&amp;Asks until the answer is yes</source>
        <translation>&amp;Fragt, bis die Antwort ja ist</translation>
    </message>
    <message>
        <source>Writes Yes and No at the branches.</source>
        <translation>Schreibt Ja und Nein an die Zweige.</translation>
    </message>
    <message>
        <source>&amp;Write the answers</source>
        <translation>&amp;Antworten schreiben</translation>
    </message>
</context>
<context>
    <name>ElementForm</name>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Ein kurzer Name ohne Leerzeichen, mit dem andere Dinge auf das Teil verweisen.</translation>
    </message>
    <message>
        <source>The text shown with it.</source>
        <translation>Der Text, der dazu gezeigt wird.</translation>
    </message>
    <message>
        <source>Where the centre is.</source>
        <translation>Wo die Mitte ist.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>Width and height.</source>
        <translation>Breite und Höhe.</translation>
    </message>
    <message>
        <source>How far it is turned clockwise.</source>
        <translation>Wie weit es im Uhrzeigersinn gedreht ist.</translation>
    </message>
    <message>
        <source>Parts that are not visible still work, but the reader does not see them.</source>
        <translation>Teile, die nicht sichtbar sind, wirken weiter, aber der Leser sieht sie nicht.</translation>
    </message>
    <message>
        <source>&amp;Visible while the model runs</source>
        <translation>&amp;Sichtbar, während das Modell läuft</translation>
    </message>
</context>
<context>
    <name>FlowchartsSpaceForm</name>
    <message>
        <source>Flowcharts</source>
        <translation>Ablaufpläne</translation>
    </message>
    <message>
        <source>How fast the flowcharts of the space run.</source>
        <translation>Wie schnell die Ablaufpläne des Raums laufen.</translation>
    </message>
</context>
<context>
    <name>GalleryForm</name>
    <message>
        <source>Gallery of controls</source>
        <translation>Galerie der Bedienelemente</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Bedienelemente</translation>
    </message>
    <message>
        <source>Check boxes and buttons</source>
        <translation>Kästchen und Knöpfe</translation>
    </message>
    <message>
        <source>Checked while the property is true.</source>
        <translation>Angekreuzt, während die Eigenschaft wahr ist.</translation>
    </message>
    <message>
        <source>&amp;Switched on</source>
        <translation>&amp;Eingeschaltet</translation>
    </message>
    <message>
        <source>Asks before it writes.</source>
        <translation>Fragt, bevor geschrieben wird.</translation>
    </message>
    <message>
        <source>Trusted, as&amp;ked first</source>
        <translation>Vertraut, mit &amp;Rückfrage</translation>
    </message>
    <message>
        <source>Do you really trust this part?</source>
        <translation>Vertrauen Sie diesem Teil wirklich?</translation>
    </message>
    <message>
        <source>Do you no longer trust this part?</source>
        <translation>Vertrauen Sie diesem Teil nicht mehr?</translation>
    </message>
    <message>
        <source>Switches between two words.</source>
        <translation>Wechselt zwischen zwei Wörtern.</translation>
    </message>
    <message>
        <source>&amp;Loud</source>
        <translation>&amp;Laut</translation>
    </message>
    <message>
        <source>The property is true for as long as the button is held down.</source>
        <translation>Die Eigenschaft ist wahr, solange der Knopf gehalten wird.</translation>
    </message>
    <message>
        <source>Hold &amp;down</source>
        <translation>Ge&amp;drückt halten</translation>
    </message>
    <message>
        <source>The property is true while the button is pressed in.</source>
        <translation>Die Eigenschaft ist wahr, während der Knopf eingedrückt ist.</translation>
    </message>
    <message>
        <source>Press i&amp;n</source>
        <translation>E&amp;indrücken</translation>
    </message>
    <message>
        <source>The same word as the check box above.</source>
        <translation>Dasselbe Wort wie das Kästchen oben.</translation>
    </message>
    <message>
        <source>L&amp;oud</source>
        <translation>La&amp;ut</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Auswahlen</translation>
    </message>
    <message>
        <source>A yes or no in words.</source>
        <translation>Ein Ja oder Nein in Worten.</translation>
    </message>
    <message>
        <source>Forwards</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Pictures and texts in the place of words.</source>
        <translation>Bilder und Texte anstelle von Wörtern.</translation>
    </message>
    <message>
        <source>Three colours.</source>
        <translation>Drei Farben.</translation>
    </message>
    <message>
        <source>Whole numbers.</source>
        <translation>Ganze Zahlen.</translation>
    </message>
    <message>
        <source>Numbers.</source>
        <translation>Zahlen.</translation>
    </message>
    <message>
        <source>Points.</source>
        <translation>Punkte.</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Windy</source>
        <translation>Windig</translation>
    </message>
    <message>
        <source>Enabled while the weather is windy.</source>
        <translation>Verfügbar, während das Wetter windig ist.</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Any text.</source>
        <translation>Beliebiger Text.</translation>
    </message>
    <message>
        <source>A capital letter and a digit; red while it is none.</source>
        <translation>Ein Großbuchstabe und eine Ziffer; rot, solange es das nicht ist.</translation>
    </message>
    <message>
        <source>A whole number or a sum such as 1900+87.</source>
        <translation>Eine ganze Zahl oder eine Summe wie 1900+87.</translation>
    </message>
    <message>
        <source>Looks like a link until it is edited.</source>
        <translation>Sieht aus wie ein Link, bis es bearbeitet wird.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>Disabled, because nobody can edit the property.</source>
        <translation>Nicht verfügbar, weil niemand die Eigenschaft ändern kann.</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>A whole number; the longer a button is held, the faster it runs.</source>
        <translation>Eine ganze Zahl; je länger ein Knopf gehalten wird, desto schneller läuft sie.</translation>
    </message>
    <message>
        <source>A number in the unit beside it; other units can be typed as well.</source>
        <translation>Eine Zahl in der Einheit daneben; andere Einheiten können auch getippt werden.</translation>
    </message>
    <message>
        <source>The step follows from the range and the unit.</source>
        <translation>Die Schrittweite folgt aus dem Bereich und der Einheit.</translation>
    </message>
    <message>
        <source>x above y, in the unit beside them.</source>
        <translation>x über y, in der Einheit daneben.</translation>
    </message>
    <message>
        <source>A whole number, written while you drag.</source>
        <translation>Eine ganze Zahl, geschrieben, während Sie ziehen.</translation>
    </message>
    <message>
        <source>The range follows the unit beside it.</source>
        <translation>Der Bereich folgt der Einheit daneben.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Any colour: chosen, typed by name or dropped.</source>
        <translation>Jede Farbe: gewählt, als Name getippt oder hergezogen.</translation>
    </message>
    <message>
        <source>A button alone, without the system&apos;s dialog.</source>
        <translation>Ein Knopf allein, ohne den Dialog des Systems.</translation>
    </message>
    <message>
        <source>One of several</source>
        <translation>Eines von mehreren</translation>
    </message>
    <message>
        <source>Each button stands for one word.</source>
        <translation>Jeder Knopf steht für ein Wort.</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>S&amp;mall</source>
        <translation>&amp;Klein</translation>
    </message>
    <message>
        <source>Medi&amp;um</source>
        <translation>&amp;Mittel</translation>
    </message>
    <message>
        <source>Lar&amp;ge</source>
        <translation>&amp;Groß</translation>
    </message>
    <message>
        <source>What belongs to this choice is enabled while it is chosen.</source>
        <translation>Was zu dieser Wahl gehört, ist verfügbar, während sie gewählt ist.</translation>
    </message>
    <message>
        <source>O&amp;wn width</source>
        <translation>Ei&amp;gene Breite</translation>
    </message>
    <message>
        <source>The width of your own format.</source>
        <translation>Die Breite Ihres eigenen Formats.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>What is in the box is enabled while it is checked.</source>
        <translation>Was in dem Kasten ist, ist verfügbar, während er angekreuzt ist.</translation>
    </message>
    <message>
        <source>Guarded &amp;by</source>
        <translation>&amp;Bewacht von</translation>
    </message>
    <message>
        <source>Who keeps watch.</source>
        <translation>Wer Wache hält.</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Beschriftungen</translation>
    </message>
    <message>
        <source>The text itself.</source>
        <translation>Der Text selbst.</translation>
    </message>
    <message>
        <source>The number as the spin box above shows it.</source>
        <translation>Die Zahl, wie sie das Drehfeld oben zeigt.</translation>
    </message>
    <message>
        <source>Both coordinates.</source>
        <translation>Beide Koordinaten.</translation>
    </message>
    <message>
        <source>The colour as documents write it.</source>
        <translation>Die Farbe, wie Dokumente sie schreiben.</translation>
    </message>
    <message>
        <source>Loud, as a button</source>
        <translation>Laut, als Knopf</translation>
    </message>
</context>
<context>
    <name>GearForm</name>
    <message>
        <source>Gear</source>
        <translation>Zahnrad</translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation>Zähne</translation>
    </message>
    <message>
        <source>The number of teeth.</source>
        <translation>Die Zahl der Zähne.</translation>
    </message>
    <message>
        <source>The angle at which the teeth press on each other.</source>
        <translation>Der Winkel, in dem die Zähne aufeinander drücken.</translation>
    </message>
    <message>
        <source>The pitch diameter divided by the number of teeth; gears that mesh have the same.</source>
        <translation>Der Teilkreisdurchmesser geteilt durch die Zahl der Zähne; Räder, die ineinandergreifen, haben denselben.</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>0.5 mm</source>
        <translation>0,5 mm</translation>
    </message>
    <message>
        <source>1 mm</source>
        <translation>1 mm</translation>
    </message>
    <message>
        <source>1.5 mm</source>
        <translation>1,5 mm</translation>
    </message>
    <message>
        <source>2 mm</source>
        <translation>2 mm</translation>
    </message>
    <message>
        <source>Otherwise only the pitch circle is drawn.</source>
        <translation>Sonst wird nur der Teilkreis gezeichnet.</translation>
    </message>
    <message>
        <source>&amp;Draw the teeth</source>
        <translation>&amp;Zähne zeichnen</translation>
    </message>
    <message>
        <source>Slanting teeth run more quietly.</source>
        <translation>Schräge Zähne laufen leiser.</translation>
    </message>
    <message>
        <source>&amp;Slanting teeth</source>
        <translation>&amp;Schräge Zähne</translation>
    </message>
    <message>
        <source>Slanting teeth lean to the left; otherwise to the right.</source>
        <translation>Schräge Zähne neigen sich nach links; sonst nach rechts.</translation>
    </message>
    <message>
        <source>&amp;Left-handed</source>
        <translation>&amp;Linkssteigend</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>How wide the teeth are along the axle.</source>
        <translation>Wie breit die Zähne entlang der Achse sind.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>How far the hub is from the middle of the wheel.</source>
        <translation>Wie weit die Nabe von der Mitte des Rads entfernt ist.</translation>
    </message>
</context>
<context>
    <name>InfoForm</name>
    <message>
        <source>Explanation</source>
        <translation>Erklärung</translation>
    </message>
    <message>
        <source>Opens the pop-up without a click.</source>
        <translation>Öffnet das Pop-up ohne Klick.</translation>
    </message>
    <message>
        <source>Opens when the &amp;mouse rests on it</source>
        <translation>Öffnet sich, wenn die &amp;Maus darauf ruht</translation>
    </message>
    <message>
        <source>Hides the button once its pop-up has been closed.</source>
        <translation>Verbirgt den Knopf, sobald sein Pop-up geschlossen wurde.</translation>
    </message>
    <message>
        <source>Goes away &amp;after reading</source>
        <translation>Verschwindet &amp;nach dem Lesen</translation>
    </message>
</context>
<context>
    <name>LedForm</name>
    <message>
        <source>LED</source>
        <translation>LED</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>The colour of the light.</source>
        <translation>Die Farbe des Lichts.</translation>
    </message>
    <message>
        <source>How brightly the LED shines, in percent.</source>
        <translation>Wie hell die LED leuchtet, in Prozent.</translation>
    </message>
    <message>
        <source>The LED shines as soon as the model starts.</source>
        <translation>Die LED leuchtet, sobald das Modell startet.</translation>
    </message>
    <message>
        <source>&amp;Lit at the start</source>
        <translation>&amp;Leuchtet beim Start</translation>
    </message>
    <message>
        <source>The LED goes on and off by itself.</source>
        <translation>Die LED geht von selbst an und aus.</translation>
    </message>
    <message>
        <source>&amp;Blinking</source>
        <translation>&amp;Blinkt</translation>
    </message>
    <message>
        <source>The time from one flash to the next.</source>
        <translation>Die Zeit von einem Blinken zum nächsten.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>Shines all round; a clear lens throws a narrow beam.</source>
        <translation>Leuchtet nach allen Seiten; eine klare Linse wirft einen schmalen Strahl.</translation>
    </message>
    <message>
        <source>&amp;Milky lens</source>
        <translation>&amp;Milchige Linse</translation>
    </message>
    <message>
        <source>Electrical</source>
        <translation>Elektrisch</translation>
    </message>
    <message>
        <source>The voltage at which the LED begins to shine.</source>
        <translation>Die Spannung, bei der die LED zu leuchten beginnt.</translation>
    </message>
    <message>
        <source>A greater current destroys the LED.</source>
        <translation>Ein größerer Strom zerstört die LED.</translation>
    </message>
    <message>
        <source>How wide the lens is.</source>
        <translation>Wie breit die Linse ist.</translation>
    </message>
    <message>
        <source>Diameter of the lens</source>
        <translation>Durchmesser der Linse</translation>
    </message>
    <message>
        <source>3 mm</source>
        <translation>3 mm</translation>
    </message>
    <message>
        <source>5 mm</source>
        <translation>5 mm</translation>
    </message>
    <message>
        <source>10 mm</source>
        <translation>10 mm</translation>
    </message>
    <message>
        <source>Legs and pads</source>
        <translation>Beine und Lötpunkte</translation>
    </message>
    <message>
        <source>Writes anode and cathode beside the pins.</source>
        <translation>Schreibt Anode und Kathode neben die Anschlüsse.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>&amp;Namen an den Anschlüssen</translation>
    </message>
    <message>
        <source>Lines the holes of the solder pads with metal.</source>
        <translation>Kleidet die Löcher der Lötpunkte mit Metall aus.</translation>
    </message>
    <message>
        <source>&amp;Plated through</source>
        <translation>Durch&amp;kontaktiert</translation>
    </message>
    <message>
        <source>Shows what lies behind the lens.</source>
        <translation>Zeigt, was hinter der Linse liegt.</translation>
    </message>
    <message>
        <source>See-&amp;through lens</source>
        <translation>&amp;Durchsichtige Linse</translation>
    </message>
</context>
<context>
    <name>LightSensorForm</name>
    <message>
        <source>Light sensor</source>
        <translation>Lichtsensor</translation>
    </message>
    <message>
        <source>How bright it is at the start, in percent.</source>
        <translation>Wie hell es am Anfang ist, in Prozent.</translation>
    </message>
    <message>
        <source>The brightness at which the sensor counts as dark.</source>
        <translation>Die Helligkeit, von der an es für den Sensor dunkel ist.</translation>
    </message>
    <message>
        <source>The resistance when no light falls on the sensor.</source>
        <translation>Der Widerstand, wenn kein Licht auf den Sensor fällt.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>The resistance in full light.</source>
        <translation>Der Widerstand bei vollem Licht.</translation>
    </message>
    <message>
        <source>Gives its signal when it is dark; otherwise when it is bright.</source>
        <translation>Gibt sein Signal, wenn es dunkel ist; sonst, wenn es hell ist.</translation>
    </message>
    <message>
        <source>Signal in the &amp;dark</source>
        <translation>Signal im &amp;Dunkeln</translation>
    </message>
    <message>
        <source>The reader sets the brightness with the slider below the sensor.</source>
        <translation>Der Leser stellt die Helligkeit mit dem Schieber unter dem Sensor ein.</translation>
    </message>
    <message>
        <source>&amp;Follows its slider</source>
        <translation>&amp;Folgt seinem Schieber</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Schieber</translation>
    </message>
    <message>
        <source>Otherwise only the model itself moves the slider.</source>
        <translation>Sonst bewegt nur das Modell selbst den Schieber.</translation>
    </message>
    <message>
        <source>Can be &amp;worked by the reader</source>
        <translation>Kann vom Leser bedien&amp;t werden</translation>
    </message>
</context>
<context>
    <name>LinkForm</name>
    <message>
        <source>Link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Arrow and route</source>
        <translation>Pfeil und Verlauf</translation>
    </message>
    <message>
        <source>Draws an arrow head at the end.</source>
        <translation>Zeichnet eine Pfeilspitze an das Ende.</translation>
    </message>
    <message>
        <source>&amp;Arrow head</source>
        <translation>&amp;Pfeilspitze</translation>
    </message>
    <message>
        <source>Draws a dashed line.</source>
        <translation>Zeichnet eine gestrichelte Linie.</translation>
    </message>
    <message>
        <source>&amp;Dashed</source>
        <translation>&amp;Gestrichelt</translation>
    </message>
    <message>
        <source>Runs along right angles; otherwise straight from block to block.</source>
        <translation>Läuft in rechten Winkeln; sonst gerade von Block zu Block.</translation>
    </message>
    <message>
        <source>&amp;Right angles only</source>
        <translation>Nur &amp;rechte Winkel</translation>
    </message>
</context>
<context>
    <name>MachinePartForm</name>
    <message>
        <source>Machine part</source>
        <translation>Maschinenteil</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>A part that is not free is fixed to the base.</source>
        <translation>Ein Teil, das nicht frei ist, sitzt auf der Grundplatte fest.</translation>
    </message>
    <message>
        <source>&amp;Free to turn</source>
        <translation>&amp;Frei drehbar</translation>
    </message>
    <message>
        <source>An arrow shows the way the part turns.</source>
        <translation>Ein Pfeil zeigt, wie herum sich das Teil dreht.</translation>
    </message>
    <message>
        <source>Show the direct&amp;ion</source>
        <translation>&amp;Richtung zeigen</translation>
    </message>
    <message>
        <source>Writes the turning speed on the part.</source>
        <translation>Schreibt die Drehzahl auf das Teil.</translation>
    </message>
    <message>
        <source>Show the sp&amp;eed</source>
        <translation>D&amp;rehzahl zeigen</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Werkstoff</translation>
    </message>
    <message>
        <source>What the part is made of.</source>
        <translation>Woraus das Teil gemacht ist.</translation>
    </message>
    <message>
        <source>The mass of the part.</source>
        <translation>Die Masse des Teils.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>The colour of the part.</source>
        <translation>Die Farbe des Teils.</translation>
    </message>
</context>
<context>
    <name>MeterForm</name>
    <message>
        <source>Meter</source>
        <translation>Messgerät</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>What the meter measures.</source>
        <translation>Was das Messgerät misst.</translation>
    </message>
    <message>
        <source>The colour of the needle.</source>
        <translation>Die Farbe des Zeigers.</translation>
    </message>
    <message>
        <source>&amp;Display:</source>
        <translation>&amp;Anzeige:</translation>
    </message>
    <message>
        <source>Shows figures while pressed in, a needle over a scale otherwise.</source>
        <translation>Zeigt eingedrückt Ziffern, sonst einen Zeiger über einer Skala.</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Ziffern</translation>
    </message>
    <message>
        <source>The reading stays as it is.</source>
        <translation>Der Messwert bleibt stehen.</translation>
    </message>
    <message>
        <source>&amp;Hold the reading</source>
        <translation>Messwert &amp;halten</translation>
    </message>
    <message>
        <source>Shows the greatest reading so far as well.</source>
        <translation>Zeigt auch den bisher größten Messwert.</translation>
    </message>
    <message>
        <source>Show the &amp;peak</source>
        <translation>&amp;Spitzenwert zeigen</translation>
    </message>
    <message>
        <source>Handling</source>
        <translation>Bedienung</translation>
    </message>
    <message>
        <source>Otherwise only the model itself turns the range knob.</source>
        <translation>Sonst dreht nur das Modell selbst den Bereichsknopf.</translation>
    </message>
    <message>
        <source>Range can be &amp;worked by the reader</source>
        <translation>Bereich kann vom Leser bedien&amp;t werden</translation>
    </message>
</context>
<context>
    <name>MotorForm</name>
    <message>
        <source>Motor</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation>&amp;Antrieb:</translation>
    </message>
    <message>
        <source>The motor turns as soon as the model starts.</source>
        <translation>Der Motor dreht sich, sobald das Modell startet.</translation>
    </message>
    <message>
        <source>Runs at the start</source>
        <translation>Läuft beim Start</translation>
    </message>
    <message>
        <source>How fast the motor turns without load.</source>
        <translation>Wie schnell sich der Motor ohne Last dreht.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>The voltage for which the motor is made.</source>
        <translation>Die Spannung, für die der Motor gebaut ist.</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the motor; empty when none does.</source>
        <translation>Der Name, unter dem Ablaufpläne den Motor schalten; leer, wenn keiner es tut.</translation>
    </message>
    <message>
        <source>Otherwise the motor turns clockwise.</source>
        <translation>Sonst dreht sich der Motor im Uhrzeigersinn.</translation>
    </message>
    <message>
        <source>Turns &amp;counterclockwise</source>
        <translation>Dreht sich &amp;gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>A gear box makes the shaft turn more slowly and more strongly.</source>
        <translation>Ein Getriebe lässt die Welle langsamer und kräftiger drehen.</translation>
    </message>
    <message>
        <source>With &amp;gear box</source>
        <translation>Mit Ge&amp;triebe</translation>
    </message>
    <message>
        <source>How many turns of the motor make one turn of the shaft.</source>
        <translation>Wie viele Umdrehungen des Motors eine Umdrehung der Welle ergeben.</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Basics</source>
        <extracomment>Name of a package of parts</extracomment>
        <translation>Grundlagen</translation>
    </message>
    <message>
        <source>Electronics</source>
        <translation>Elektronik</translation>
    </message>
    <message>
        <source>Flowcharts</source>
        <translation>Ablaufpläne</translation>
    </message>
    <message>
        <source>Mechanics</source>
        <translation>Mechanik</translation>
    </message>
</context>
<context>
    <name>PartsTree</name>
    <message>
        <source>Explanations</source>
        <translation>Erklärungen</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Vorführung</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Versorgung</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingänge</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Bauteile</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgänge</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>Verdrahtung</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Ablauf</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Antriebe</translation>
    </message>
    <message>
        <source>Wheels</source>
        <translation>Räder</translation>
    </message>
</context>
<context>
    <name>PictureForm</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>The picture shown.</source>
        <translation>Das gezeigte Bild.</translation>
    </message>
    <message>
        <source>Keeps the ratio of width and height when the picture is resized.</source>
        <translation>Behält das Verhältnis von Breite und Höhe, wenn die Größe des Bilds geändert wird.</translation>
    </message>
    <message>
        <source>Keep &amp;proportions</source>
        <translation>&amp;Seitenverhältnis behalten</translation>
    </message>
    <message>
        <source>Exchanges left and right.</source>
        <translation>Vertauscht links und rechts.</translation>
    </message>
    <message>
        <source>&amp;Mirrored</source>
        <translation>&amp;Gespiegelt</translation>
    </message>
    <message>
        <source>Draws a thin frame round the picture.</source>
        <translation>Zeichnet einen dünnen Rahmen um das Bild.</translation>
    </message>
    <message>
        <source>Draw a &amp;frame</source>
        <translation>&amp;Rahmen zeichnen</translation>
    </message>
    <message>
        <source>Where the picture comes from and who made it.</source>
        <translation>Woher das Bild kommt und wer es gemacht hat.</translation>
    </message>
    <message>
        <source>More pictures</source>
        <translation>Weitere Bilder</translation>
    </message>
    <message>
        <source>Pictures shown in turn after the first one.</source>
        <translation>Bilder, die nacheinander nach dem ersten gezeigt werden.</translation>
    </message>
</context>
<context>
    <name>PopupForm</name>
    <message>
        <source>Pop-up</source>
        <translation>Pop-up</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Ein kurzer Name ohne Leerzeichen, mit dem andere Dinge auf das Teil verweisen.</translation>
    </message>
    <message>
        <source>The heading shown above the pop-up.</source>
        <translation>Die Überschrift über dem Pop-up.</translation>
    </message>
    <message>
        <source>The pop-up is open from the start; otherwise its part opens it.</source>
        <translation>Das Pop-up ist von Anfang an offen; sonst öffnet es sein Teil.</translation>
    </message>
    <message>
        <source>&amp;Open when the model starts</source>
        <translation>Beim &amp;Start des Modells offen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinung</translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation>Breite und Höhe des Raums.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation>Die Farbe hinter den Teilen.</translation>
    </message>
    <message>
        <source>Draws a grid of 5 mm behind the parts.</source>
        <translation>Zeichnet ein Raster von 5 mm hinter die Teile.</translation>
    </message>
    <message>
        <source>Show a &amp;grid</source>
        <translation>&amp;Raster zeigen</translation>
    </message>
    <message>
        <source>Name of the pop-up</source>
        <translation>Name des Pop-ups</translation>
    </message>
</context>
<context>
    <name>ProcedureForm</name>
    <message>
        <source>Procedure</source>
        <translation>Unterprogramm</translation>
    </message>
    <message>
        <source>How often the chart in the pop-up is run.</source>
        <translation>Wie oft der Plan im Pop-up ausgeführt wird.</translation>
    </message>
    <message>
        <source>Opens the pop-up with its chart while the procedure runs.</source>
        <translation>Öffnet das Pop-up mit seinem Plan, während das Unterprogramm läuft.</translation>
    </message>
    <message>
        <source>&amp;Opens while it runs</source>
        <translation>&amp;Öffnet sich, während es läuft</translation>
    </message>
    <message>
        <source>Otherwise a stop block inside ends the whole chart.</source>
        <translation>Sonst beendet ein Stoppblock darin den ganzen Plan.</translation>
    </message>
    <message>
        <source>Stop ends only the &amp;procedure</source>
        <translation>Stopp beendet nur das &amp;Unterprogramm</translation>
    </message>
</context>
<context>
    <name>PulleyForm</name>
    <message>
        <source>Pulley</source>
        <translation>Riemenscheibe</translation>
    </message>
    <message>
        <source>Groove</source>
        <translation>Rille</translation>
    </message>
    <message>
        <source>The diameter at which the belt runs.</source>
        <translation>Der Durchmesser, auf dem der Riemen läuft.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>For belts with a V section; otherwise the groove is round.</source>
        <translation>Für Riemen mit V-Querschnitt; sonst ist die Rille rund.</translation>
    </message>
    <message>
        <source>V-&amp;shaped groove</source>
        <translation>&amp;V-förmige Rille</translation>
    </message>
    <message>
        <source>Rims keep the belt in the groove.</source>
        <translation>Ränder halten den Riemen in der Rille.</translation>
    </message>
    <message>
        <source>With &amp;rims</source>
        <translation>Mit &amp;Rändern</translation>
    </message>
    <message>
        <source>The belt slips when the load is too great.</source>
        <translation>Der Riemen rutscht, wenn die Last zu groß ist.</translation>
    </message>
    <message>
        <source>&amp;Belt may slip</source>
        <translation>Riemen kann r&amp;utschen</translation>
    </message>
</context>
<context>
    <name>PushButtonForm</name>
    <message>
        <source>Push button</source>
        <translation>Drucktaster</translation>
    </message>
    <message>
        <source>The colour of the cap.</source>
        <translation>Die Farbe der Kappe.</translation>
    </message>
    <message>
        <source>A lamp shines in the cap while the button is held down.</source>
        <translation>Eine Lampe leuchtet in der Kappe, während der Taster gehalten wird.</translation>
    </message>
    <message>
        <source>Cap &amp;lights up</source>
        <translation>Kappe &amp;leuchtet</translation>
    </message>
    <message>
        <source>&amp;Try it:</source>
        <translation>&amp;Ausprobieren:</translation>
    </message>
    <message>
        <source>Closes the contact for as long as this button is held down.</source>
        <translation>Schließt den Kontakt, solange dieser Knopf gehalten wird.</translation>
    </message>
    <message>
        <source>Hold down</source>
        <translation>Gedrückt halten</translation>
    </message>
</context>
<context>
    <name>ResistorForm</name>
    <message>
        <source>Resistor</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>The resistance as it is printed on the part.</source>
        <translation>Der Widerstand, wie er auf das Teil gedruckt ist.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>How far the true resistance may be from the printed one, in percent.</source>
        <translation>Wie weit der wirkliche Widerstand vom aufgedruckten abweichen darf, in Prozent.</translation>
    </message>
    <message>
        <source>The power that the part stands without burning.</source>
        <translation>Die Leistung, die das Teil aushält, ohne zu verbrennen.</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Draws the coloured bands that tell the resistance.</source>
        <translation>Zeichnet die farbigen Ringe, die den Widerstand angeben.</translation>
    </message>
    <message>
        <source>Colour &amp;bands</source>
        <translation>&amp;Farbringe</translation>
    </message>
    <message>
        <source>Draws the American zigzag line instead of the box.</source>
        <translation>Zeichnet die amerikanische Zickzacklinie statt des Kastens.</translation>
    </message>
    <message>
        <source>&amp;Zigzag symbol</source>
        <translation>&amp;Zickzackzeichen</translation>
    </message>
    <message>
        <source>Solder pads</source>
        <translation>Lötpunkte</translation>
    </message>
    <message>
        <source>Square pads mark a place on the board; otherwise they are round.</source>
        <translation>Eckige Lötpunkte kennzeichnen eine Stelle auf der Platine; sonst sind sie rund.</translation>
    </message>
    <message>
        <source>S&amp;quare pads</source>
        <translation>Eckige Löt&amp;punkte</translation>
    </message>
    <message>
        <source>Lines the holes with metal.</source>
        <translation>Kleidet die Löcher mit Metall aus.</translation>
    </message>
    <message>
        <source>&amp;Plated through</source>
        <translation>Durch&amp;kontaktiert</translation>
    </message>
</context>
<context>
    <name>SceneForm</name>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Ein kurzer Name ohne Leerzeichen, mit dem andere Dinge auf das Teil verweisen.</translation>
    </message>
    <message>
        <source>The heading shown above the scene.</source>
        <translation>Die Überschrift über der Szene.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinung</translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation>Breite und Höhe des Raums.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation>Die Farbe hinter den Teilen.</translation>
    </message>
    <message>
        <source>Draws a grid of 5 mm behind the parts.</source>
        <translation>Zeichnet ein Raster von 5 mm hinter die Teile.</translation>
    </message>
    <message>
        <source>Show a &amp;grid</source>
        <translation>&amp;Raster zeigen</translation>
    </message>
</context>
<context>
    <name>ShaftForm</name>
    <message>
        <source>Shaft</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>The diameter of the shaft.</source>
        <translation>Der Durchmesser der Welle.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>How far the shaft twists under full load.</source>
        <translation>Wie weit sich die Welle unter voller Last verdreht.</translation>
    </message>
    <message>
        <source>The shaft is a tube.</source>
        <translation>Die Welle ist ein Rohr.</translation>
    </message>
    <message>
        <source>&amp;Hollow</source>
        <translation>&amp;Hohl</translation>
    </message>
    <message>
        <source>A key makes the wheels turn with the shaft.</source>
        <translation>Eine Passfeder lässt die Räder mit der Welle drehen.</translation>
    </message>
    <message>
        <source>With &amp;key</source>
        <translation>Mit &amp;Passfeder</translation>
    </message>
    <message>
        <source>Otherwise the ends are plain.</source>
        <translation>Sonst sind die Enden glatt.</translation>
    </message>
    <message>
        <source>&amp;Rounded ends</source>
        <translation>&amp;Runde Enden</translation>
    </message>
    <message>
        <source>Wheels</source>
        <translation>Räder</translation>
    </message>
    <message>
        <source>The wheels turn on the shaft rather than with it.</source>
        <translation>Die Räder drehen sich auf der Welle statt mit ihr.</translation>
    </message>
    <message>
        <source>&amp;Wheels run freely</source>
        <translation>Räder &amp;laufen frei</translation>
    </message>
</context>
<context>
    <name>StartForm</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>The chart runs as soon as the model starts.</source>
        <translation>Der Plan läuft, sobald das Modell startet.</translation>
    </message>
    <message>
        <source>Starts by itsel&amp;f</source>
        <translation>Startet von sel&amp;bst</translation>
    </message>
    <message>
        <source>One input that is on starts the chart; otherwise all must be on.</source>
        <translation>Ein Eingang, der an ist, startet den Plan; sonst müssen es alle sein.</translation>
    </message>
    <message>
        <source>&amp;Any input is enough</source>
        <translation>Ein &amp;Eingang genügt</translation>
    </message>
    <message>
        <source>How long the chart waits before its first block.</source>
        <translation>Wie lange der Plan vor seinem ersten Block wartet.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
</context>
<context>
    <name>StepForm</name>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>What the block does with its output.</source>
        <translation>Was der Block mit seinem Ausgang tut.</translation>
    </message>
    <message>
        <source>The output name of the components that the block switches.</source>
        <translation>Der Ausgangsname der Bauteile, die der Block schaltet.</translation>
    </message>
    <message>
        <source>How long the step lasts.</source>
        <translation>Wie lange der Schritt dauert.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>How strongly the output is switched on, in percent.</source>
        <translation>Wie stark der Ausgang eingeschaltet wird, in Prozent.</translation>
    </message>
    <message>
        <source>Switches the output on; otherwise it is switched off.</source>
        <translation>Schaltet den Ausgang ein; sonst wird er ausgeschaltet.</translation>
    </message>
    <message>
        <source>Switches &amp;on</source>
        <translation>Schaltet &amp;ein</translation>
    </message>
    <message>
        <source>The chart goes on only when the time is over.</source>
        <translation>Der Plan geht erst weiter, wenn die Zeit um ist.</translation>
    </message>
    <message>
        <source>&amp;Waits for the end</source>
        <translation>&amp;Wartet auf das Ende</translation>
    </message>
    <message>
        <source>Leaves just this output on.</source>
        <translation>Lässt nur diesen Ausgang an.</translation>
    </message>
    <message>
        <source>Switches all o&amp;ther outputs off</source>
        <translation>Schaltet alle an&amp;deren Ausgänge aus</translation>
    </message>
</context>
<context>
    <name>StopForm</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>The chart begins again from its start.</source>
        <translation>Der Plan beginnt wieder bei seinem Start.</translation>
    </message>
    <message>
        <source>&amp;Starts again</source>
        <translation>Beginnt &amp;wieder</translation>
    </message>
    <message>
        <source>A chart that starts again never ends by itself. Start again?</source>
        <translation>Ein Plan, der wieder beginnt, endet nie von selbst. Wieder beginnen?</translation>
    </message>
    <message>
        <source>The chart will end here. End it?</source>
        <translation>Der Plan wird hier enden. Beenden?</translation>
    </message>
    <message>
        <source>Otherwise they stay as they are.</source>
        <translation>Sonst bleiben sie, wie sie sind.</translation>
    </message>
    <message>
        <source>Switches all &amp;outputs off</source>
        <translation>Schaltet alle &amp;Ausgänge aus</translation>
    </message>
    <message>
        <source>What is shown to the reader at the end.</source>
        <translation>Was dem Leser am Ende gezeigt wird.</translation>
    </message>
</context>
<context>
    <name>SwitchForm</name>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>&amp;Contact:</source>
        <translation>&amp;Kontakt:</translation>
    </message>
    <message>
        <source>Lets current through as soon as the model starts.</source>
        <translation>Lässt Strom durch, sobald das Modell startet.</translation>
    </message>
    <message>
        <source>Closed at the start</source>
        <translation>Beim Start geschlossen</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>Whether the contact stays as it is set, or opens again when it is let go.</source>
        <translation>Ob der Kontakt bleibt, wie er gestellt ist, oder sich wieder öffnet, wenn er losgelassen wird.</translation>
    </message>
    <message>
        <source>Springs back</source>
        <translation>Springt zurück</translation>
    </message>
    <message>
        <source>Stays where it is put</source>
        <translation>Bleibt, wie er gestellt ist</translation>
    </message>
    <message>
        <source>The resistance of the closed contact.</source>
        <translation>Der Widerstand des geschlossenen Kontakts.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>How long the contact chatters when it closes.</source>
        <translation>Wie lange der Kontakt beim Schließen prellt.</translation>
    </message>
    <message>
        <source>Draws the lever with its hinge on the right; otherwise on the left.</source>
        <translation>Zeichnet den Hebel mit seinem Gelenk rechts; sonst links.</translation>
    </message>
    <message>
        <source>&amp;Hinge on the right</source>
        <translation>&amp;Gelenk rechts</translation>
    </message>
    <message>
        <source>Handling</source>
        <translation>Bedienung</translation>
    </message>
    <message>
        <source>The key that works the switch while the model runs; one capital letter or digit.</source>
        <translation>Die Taste, die den Schalter bedient, während das Modell läuft; ein Großbuchstabe oder eine Ziffer.</translation>
    </message>
    <message>
        <source>Otherwise only the model itself works the switch.</source>
        <translation>Sonst bedient nur das Modell selbst den Schalter.</translation>
    </message>
    <message>
        <source>Can be &amp;worked by the reader</source>
        <translation>Kann vom Leser bedien&amp;t werden</translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation>Schreibt den Namen jedes Anschlusses daneben.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>&amp;Namen an den Anschlüssen</translation>
    </message>
</context>
<context>
    <name>TextForm</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>What is written; it is wrapped at the width of the part.</source>
        <translation>Was geschrieben ist; es wird auf die Breite des Teils umbrochen.</translation>
    </message>
    <message>
        <source>Height of a line of the text.</source>
        <translation>Höhe einer Zeile des Texts.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>Die gezeigte Einheit; ein Klick bietet andere an.</translation>
    </message>
    <message>
        <source>Where the lines stand within the width.</source>
        <translation>Wo die Zeilen innerhalb der Breite stehen.</translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation>Die Farbe der Buchstaben.</translation>
    </message>
    <message>
        <source>&amp;Weight:</source>
        <translation>&amp;Strichstärke:</translation>
    </message>
    <message>
        <source>Writes the text in bold letters.</source>
        <translation>Schreibt den Text in fetten Buchstaben.</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>&amp;Slant:</source>
        <translation>&amp;Neigung:</translation>
    </message>
    <message>
        <source>Writes the text in sloping letters.</source>
        <translation>Schreibt den Text in schrägen Buchstaben.</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Draws a thin frame round the text.</source>
        <translation>Zeichnet einen dünnen Rahmen um den Text.</translation>
    </message>
    <message>
        <source>Draw a &amp;frame</source>
        <translation>&amp;Rahmen zeichnen</translation>
    </message>
</context>
<context>
    <name>WireForm</name>
    <message>
        <source>Wire</source>
        <translation>Draht</translation>
    </message>
    <message>
        <source>The cross-section of the copper.</source>
        <translation>Der Querschnitt des Kupfers.</translation>
    </message>
    <message>
        <source>The wire has a coloured cover.</source>
        <translation>Der Draht hat eine farbige Hülle.</translation>
    </message>
    <message>
        <source>&amp;Insulated</source>
        <translation>&amp;Isoliert</translation>
    </message>
    <message>
        <source>Many thin wires make it easy to bend.</source>
        <translation>Viele dünne Drähte machen ihn biegsam.</translation>
    </message>
    <message>
        <source>&amp;Stranded</source>
        <translation>&amp;Litze</translation>
    </message>
    <message>
        <source>Runs along right angles; otherwise straight from pin to pin.</source>
        <translation>Läuft in rechten Winkeln; sonst gerade von Anschluss zu Anschluss.</translation>
    </message>
    <message>
        <source>&amp;Right angles only</source>
        <translation>Nur &amp;rechte Winkel</translation>
    </message>
</context>
<context>
    <name>core/body</name>
    <message>
        <source>Body</source>
        <translation>Körper</translation>
    </message>
</context>
<context>
    <name>core/collections</name>
    <message>
        <source>Gallery of collections</source>
        <translation>Galerie der Sammlungen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>One picture.</source>
        <translation>Ein Bild.</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>One of a few pictures.</source>
        <translation>Eines von wenigen Bildern.</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sonne</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Any number of pictures.</source>
        <translation>Beliebig viele Bilder.</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Keys and values.</source>
        <translation>Schlüssel und Werte.</translation>
    </message>
    <message>
        <source>Lettering</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>The font of a text.</source>
        <translation>Die Schrift eines Texts.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>A number that can follow another.</source>
        <translation>Eine Zahl, die einer anderen folgen kann.</translation>
    </message>
</context>
<context>
    <name>core/connection</name>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>The pin at which the connection begins.</source>
        <translation>Der Anschluss, an dem die Verbindung beginnt.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>The pin at which the connection ends.</source>
        <translation>Der Anschluss, an dem die Verbindung endet.</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>How thick the line is drawn.</source>
        <translation>Wie dick die Linie gezeichnet wird.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation>Die Farbe der Linie.</translation>
    </message>
</context>
<context>
    <name>core/control</name>
    <message>
        <source>Control</source>
        <translation>Bedienelement</translation>
    </message>
</context>
<context>
    <name>core/domain</name>
    <message>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
</context>
<context>
    <name>core/element</name>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to the element.</source>
        <translation>Ein kurzer Name ohne Leerzeichen, mit dem andere Dinge auf das Element verweisen.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>The text shown with the element.</source>
        <translation>Der Text, der mit dem Element gezeigt wird.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Where the centre of the element is.</source>
        <translation>Wo die Mitte des Elements ist.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Width and height of the element.</source>
        <translation>Breite und Höhe des Elements.</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>How far the element is turned clockwise.</source>
        <translation>Wie weit das Element im Uhrzeigersinn gedreht ist.</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>How the element may be turned: freely, by right angles, or not at all.</source>
        <translation>Wie das Element gedreht werden darf: frei, um rechte Winkel oder gar nicht.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>rechtwinklig</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>fest</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Whether the element is seen while the model runs.</source>
        <translation>Ob das Element zu sehen ist, während das Modell läuft.</translation>
    </message>
</context>
<context>
    <name>core/gallery</name>
    <message>
        <source>Gallery of controls</source>
        <translation>Galerie der Bedienelemente</translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>A yes or no.</source>
        <translation>Ein Ja oder Nein.</translation>
    </message>
    <message>
        <source>Trusted</source>
        <translation>Vertraut</translation>
    </message>
    <message>
        <source>A yes or no that is asked about before it changes.</source>
        <translation>Ein Ja oder Nein, bei dem vor der Änderung gefragt wird.</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>One of two words.</source>
        <translation>Eines von zwei Wörtern.</translation>
    </message>
    <message>
        <source>quiet</source>
        <translation>leise</translation>
    </message>
    <message>
        <source>loud</source>
        <translation>laut</translation>
    </message>
    <message>
        <source>Held down</source>
        <translation>Gehalten</translation>
    </message>
    <message>
        <source>True for as long as a button is held down.</source>
        <translation>Wahr, solange ein Knopf gehalten wird.</translation>
    </message>
    <message>
        <source>Latched</source>
        <translation>Eingerastet</translation>
    </message>
    <message>
        <source>True while a button is pressed in.</source>
        <translation>Wahr, während ein Knopf eingedrückt ist.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>A yes or no with words of its own.</source>
        <translation>Ein Ja oder Nein mit eigenen Wörtern.</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>One of several words, shown as pictures and texts.</source>
        <translation>Eines von mehreren Wörtern, als Bilder und Texte gezeigt.</translation>
    </message>
    <message>
        <source>sun</source>
        <translation>Sonne</translation>
    </message>
    <message>
        <source>rain</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>fog</source>
        <translation>Nebel</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>How strongly the wind blows, from 0 to 12.</source>
        <translation>Wie stark der Wind weht, von 0 bis 12.</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>One of a few colours.</source>
        <translation>Eine von wenigen Farben.</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>One of a few whole numbers.</source>
        <translation>Eine von wenigen ganzen Zahlen.</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>One of a few numbers.</source>
        <translation>Eine von wenigen Zahlen.</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>One of a few points.</source>
        <translation>Einer von wenigen Punkten.</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Any text.</source>
        <translation>Beliebiger Text.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>A capital letter and a digit.</source>
        <translation>Ein Großbuchstabe und eine Ziffer.</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>A whole number.</source>
        <translation>Eine ganze Zahl.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>A length in the unit that you choose.</source>
        <translation>Eine Länge in der Einheit, die Sie wählen.</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>A text that nobody can change.</source>
        <translation>Ein Text, den niemand ändern kann.</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Stück</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>A weight in the unit that you choose.</source>
        <translation>Ein Gewicht in der Einheit, die Sie wählen.</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>An angle; the step follows from what is allowed, in the unit shown.</source>
        <translation>Ein Winkel; die Schrittweite folgt aus dem, was erlaubt ist, in der gezeigten Einheit.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>A point in the unit that you choose.</source>
        <translation>Ein Punkt in der Einheit, die Sie wählen.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>A whole number from 0 to 100.</source>
        <translation>Eine ganze Zahl von 0 bis 100.</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Anstrich</translation>
    </message>
    <message>
        <source>Any colour.</source>
        <translation>Beliebige Farbe.</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Zuschnitt</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>One of several words, or a width of its own.</source>
        <translation>Eines von mehreren Wörtern oder eine eigene Breite.</translation>
    </message>
    <message>
        <source>small</source>
        <translation>klein</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>mittel</translation>
    </message>
    <message>
        <source>large</source>
        <translation>groß</translation>
    </message>
    <message>
        <source>own</source>
        <translation>eigener</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>The width of a format of its own.</source>
        <translation>Die Breite eines eigenen Formats.</translation>
    </message>
    <message>
        <source>Guarded</source>
        <translation>Bewacht</translation>
    </message>
    <message>
        <source>Whether what belongs to a guard is in use.</source>
        <translation>Ob benutzt wird, was zu einem Wächter gehört.</translation>
    </message>
    <message>
        <source>Name of the guard</source>
        <translation>Name des Wächters</translation>
    </message>
    <message>
        <source>Who keeps watch.</source>
        <translation>Wer Wache hält.</translation>
    </message>
    <message>
        <source>Windy</source>
        <translation>Windig</translation>
    </message>
    <message>
        <source>Fog, &lt;i&gt;fine&lt;/i&gt; H&lt;sub&gt;2&lt;/sub&gt;O</source>
        <translation>Nebel, &lt;i&gt;feines&lt;/i&gt; H&lt;sub&gt;2&lt;/sub&gt;O</translation>
    </message>
</context>
<context>
    <name>core/info</name>
    <message>
        <source>Explanation</source>
        <translation>Erklärung</translation>
    </message>
    <message>
        <source>Opens on</source>
        <translation>Öffnet sich bei</translation>
    </message>
    <message>
        <source>What the reader does to open the explanation.</source>
        <translation>Was der Leser tut, um die Erklärung zu öffnen.</translation>
    </message>
    <message>
        <source>click</source>
        <translation>Klick</translation>
    </message>
    <message>
        <source>hover</source>
        <translation>Überfahren</translation>
    </message>
    <message>
        <source>Only once</source>
        <translation>Nur einmal</translation>
    </message>
    <message>
        <source>Whether the button goes away when the explanation has been read.</source>
        <translation>Ob der Knopf verschwindet, wenn die Erklärung gelesen wurde.</translation>
    </message>
    <message>
        <source>Been read</source>
        <translation>Gelesen</translation>
    </message>
    <message>
        <source>Whether the reader has closed the explanation, while the model runs.</source>
        <translation>Ob der Leser die Erklärung geschlossen hat, während das Modell läuft.</translation>
    </message>
</context>
<context>
    <name>core/model</name>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>The name of the model, as people read it.</source>
        <translation>Der Name des Modells, wie Menschen ihn lesen.</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Verfasser</translation>
    </message>
    <message>
        <source>Who made the model.</source>
        <translation>Wer das Modell gemacht hat.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>What a teacher should know before using the model.</source>
        <translation>Was eine Lehrkraft wissen sollte, bevor sie das Modell benutzt.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Whether the running model stands still for a moment.</source>
        <translation>Ob das laufende Modell einen Augenblick stillsteht.</translation>
    </message>
</context>
<context>
    <name>core/pad</name>
    <message>
        <source>Pad</source>
        <translation>Lötpunkt</translation>
    </message>
</context>
<context>
    <name>core/part</name>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klick</translation>
    </message>
    <message>
        <source>What a click on the part does while the model runs, besides what the part itself does.</source>
        <translation>Was ein Klick auf das Teil tut, während das Modell läuft, außer dem, was das Teil selbst tut.</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>show pop-up</source>
        <translation>Pop-up zeigen</translation>
    </message>
    <message>
        <source>open link</source>
        <translation>Link öffnen</translation>
    </message>
    <message>
        <source>show scene</source>
        <translation>Szene zeigen</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>The address that a click opens.</source>
        <translation>Die Adresse, die ein Klick öffnet.</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>The scene that a click shows.</source>
        <translation>Die Szene, die ein Klick zeigt.</translation>
    </message>
</context>
<context>
    <name>core/picture</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>The picture shown.</source>
        <translation>Das gezeigte Bild.</translation>
    </message>
    <message>
        <source>More pictures</source>
        <translation>Weitere Bilder</translation>
    </message>
    <message>
        <source>Pictures shown in turn after the first one.</source>
        <translation>Bilder, die nacheinander nach dem ersten gezeigt werden.</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Seitenverhältnis behalten</translation>
    </message>
    <message>
        <source>Whether the picture keeps the ratio of width and height.</source>
        <translation>Ob das Bild das Verhältnis von Breite und Höhe behält.</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Gespiegelt</translation>
    </message>
    <message>
        <source>Whether left and right are exchanged.</source>
        <translation>Ob links und rechts vertauscht sind.</translation>
    </message>
    <message>
        <source>Framed</source>
        <translation>Gerahmt</translation>
    </message>
    <message>
        <source>Whether a thin frame is drawn round the picture.</source>
        <translation>Ob ein dünner Rahmen um das Bild gezeichnet wird.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Where the picture comes from and who made it.</source>
        <translation>Woher das Bild kommt und wer es gemacht hat.</translation>
    </message>
</context>
<context>
    <name>core/pin</name>
    <message>
        <source>Pin</source>
        <translation>Anschluss</translation>
    </message>
</context>
<context>
    <name>core/popup</name>
    <message>
        <source>Pop-up</source>
        <translation>Pop-up</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Whether the pop-up is shown now.</source>
        <translation>Ob das Pop-up jetzt gezeigt wird.</translation>
    </message>
    <message>
        <source>Open at the start</source>
        <translation>Am Anfang offen</translation>
    </message>
    <message>
        <source>Whether the pop-up is open when the model starts.</source>
        <translation>Ob das Pop-up offen ist, wenn das Modell startet.</translation>
    </message>
</context>
<context>
    <name>core/scene</name>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
</context>
<context>
    <name>core/space</name>
    <message>
        <source>Space</source>
        <translation>Raum</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to the space.</source>
        <translation>Ein kurzer Name ohne Leerzeichen, mit dem andere Dinge auf den Raum verweisen.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>The heading shown above the space.</source>
        <translation>Die Überschrift über dem Raum.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation>Breite und Höhe des Raums.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation>Die Farbe hinter den Teilen.</translation>
    </message>
    <message>
        <source>Grid shown</source>
        <translation>Raster gezeigt</translation>
    </message>
    <message>
        <source>Whether a grid of 5 mm is drawn behind the parts.</source>
        <translation>Ob ein Raster von 5 mm hinter die Teile gezeichnet wird.</translation>
    </message>
</context>
<context>
    <name>core/subpart</name>
    <message>
        <source>Subpart</source>
        <translation>Unterteil</translation>
    </message>
    <message>
        <source>Roles</source>
        <translation>Rollen</translation>
    </message>
    <message>
        <source>What the subpart is to its part, where that differs from its class.</source>
        <translation>Was das Unterteil für sein Teil ist, wo das von seiner Klasse abweicht.</translation>
    </message>
</context>
<context>
    <name>core/text</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>What is written; it is wrapped at the width of the part.</source>
        <translation>Was geschrieben ist; es wird auf die Breite des Teils umbrochen.</translation>
    </message>
    <message>
        <source>Letter height</source>
        <translation>Buchstabenhöhe</translation>
    </message>
    <message>
        <source>Height of a line of the text.</source>
        <translation>Höhe einer Zeile des Texts.</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Whether the letters are bold.</source>
        <translation>Ob die Buchstaben fett sind.</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Whether the letters slope.</source>
        <translation>Ob die Buchstaben schräg sind.</translation>
    </message>
    <message>
        <source>Framed</source>
        <translation>Gerahmt</translation>
    </message>
    <message>
        <source>Whether a thin frame is drawn round the text.</source>
        <translation>Ob ein dünner Rahmen um den Text gezeichnet wird.</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung im Feld</translation>
    </message>
    <message>
        <source>Where the lines stand within the width.</source>
        <translation>Wo die Zeilen innerhalb der Breite stehen.</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>center</source>
        <translation>mittig</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation>Die Farbe der Buchstaben.</translation>
    </message>
</context>
<context>
    <name>electronics/*</name>
    <message>
        <source>Electronics</source>
        <translation>Elektronik</translation>
    </message>
    <message>
        <source>Current shown</source>
        <translation>Strom gezeigt</translation>
    </message>
    <message>
        <source>Whether moving dots show the current in the wires.</source>
        <translation>Ob laufende Punkte den Strom in den Drähten zeigen.</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Schaltzeichen</translation>
    </message>
    <message>
        <source>Which family of circuit symbols is drawn.</source>
        <translation>Welche Familie von Schaltzeichen gezeichnet wird.</translation>
    </message>
    <message>
        <source>European</source>
        <translation>Europäisch</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Amerikanisch</translation>
    </message>
</context>
<context>
    <name>electronics/battery</name>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>The voltage of the fresh battery.</source>
        <translation>Die Spannung der frischen Batterie.</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Zellen</translation>
    </message>
    <message>
        <source>How many cells the battery is made of.</source>
        <translation>Aus wie vielen Zellen die Batterie besteht.</translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>Innenwiderstand</translation>
    </message>
    <message>
        <source>The resistance of the battery itself.</source>
        <translation>Der Widerstand der Batterie selbst.</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>Klemmen</translation>
    </message>
    <message>
        <source>How wires are joined to the battery.</source>
        <translation>Wie Drähte mit der Batterie verbunden werden.</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Druckknopf</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klammer</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Draht</translation>
    </message>
    <message>
        <source>Polarity shown</source>
        <translation>Polung gezeigt</translation>
    </message>
    <message>
        <source>Whether plus and minus are drawn at the pins.</source>
        <translation>Ob Plus und Minus an die Anschlüsse gezeichnet werden.</translation>
    </message>
    <message>
        <source>Rechargeable</source>
        <translation>Wiederaufladbar</translation>
    </message>
    <message>
        <source>Whether the battery can be charged again.</source>
        <translation>Ob die Batterie wieder aufgeladen werden kann.</translation>
    </message>
</context>
<context>
    <name>electronics/block</name>
    <message>
        <source>Logic block</source>
        <translation>Logikblock</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Verknüpfungsart</translation>
    </message>
    <message>
        <source>How the block works out its output from its inputs.</source>
        <translation>Wie der Block seinen Ausgang aus seinen Eingängen bestimmt.</translation>
    </message>
    <message>
        <source>AND</source>
        <translation>UND</translation>
    </message>
    <message>
        <source>OR</source>
        <translation>ODER</translation>
    </message>
    <message>
        <source>NOT</source>
        <translation>NICHT</translation>
    </message>
    <message>
        <source>NAND</source>
        <translation>NAND</translation>
    </message>
    <message>
        <source>NOR</source>
        <translation>NOR</translation>
    </message>
    <message>
        <source>XOR</source>
        <translation>XOR</translation>
    </message>
    <message>
        <source>Inverted output</source>
        <translation>Ausgang umgekehrt</translation>
    </message>
    <message>
        <source>Whether the output is turned round.</source>
        <translation>Ob der Ausgang umgekehrt ist.</translation>
    </message>
    <message>
        <source>Truth table shown</source>
        <translation>Wahrheitstabelle gezeigt</translation>
    </message>
    <message>
        <source>Whether the truth table is drawn below the block.</source>
        <translation>Ob die Wahrheitstabelle unter den Block gezeichnet wird.</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Schaltzeichen</translation>
    </message>
    <message>
        <source>A box with a sign, or the curved shapes.</source>
        <translation>Ein Kasten mit Zeichen oder die geschwungenen Formen.</translation>
    </message>
    <message>
        <source>European</source>
        <translation>Europäisch</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Amerikanisch</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>How long the output takes to follow the inputs.</source>
        <translation>Wie lange der Ausgang braucht, um den Eingängen zu folgen.</translation>
    </message>
    <message>
        <source>Input names</source>
        <translation>Namen der Eingänge</translation>
    </message>
    <message>
        <source>What is written beside the inputs, from top to bottom.</source>
        <translation>Was neben den Eingängen steht, von oben nach unten.</translation>
    </message>
    <message>
        <source>Truth table</source>
        <translation>Wahrheitstabelle</translation>
    </message>
    <message>
        <source>The output for every combination of the inputs.</source>
        <translation>Der Ausgang für jede Kombination der Eingänge.</translation>
    </message>
    <message>
        <source>NOT AND</source>
        <translation>NICHT UND</translation>
    </message>
    <message>
        <source>NOT OR</source>
        <translation>NICHT ODER</translation>
    </message>
    <message>
        <source>EITHER OR</source>
        <translation>ENTWEDER ODER</translation>
    </message>
</context>
<context>
    <name>electronics/buzzer</name>
    <message>
        <source>Buzzer</source>
        <translation>Summer</translation>
    </message>
    <message>
        <source>Sounds at the start</source>
        <translation>Ertönt beim Start</translation>
    </message>
    <message>
        <source>Whether the buzzer sounds when the model starts.</source>
        <translation>Ob der Summer ertönt, wenn das Modell startet.</translation>
    </message>
    <message>
        <source>Pulsed</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>Whether the sound goes on and off.</source>
        <translation>Ob der Ton an- und ausgeht.</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Whether the buzzer sounds softly or loudly.</source>
        <translation>Ob der Summer leise oder laut ertönt.</translation>
    </message>
    <message>
        <source>soft</source>
        <translation>leise</translation>
    </message>
    <message>
        <source>loud</source>
        <translation>laut</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>How high the tone is.</source>
        <translation>Wie hoch der Ton ist.</translation>
    </message>
    <message>
        <source>Melody</source>
        <translation>Melodie</translation>
    </message>
    <message>
        <source>The notes that are played in turn, as numbers of half tones; 60 is the middle C.</source>
        <translation>Die Noten, die nacheinander gespielt werden, als Nummern der Halbtöne; 60 ist das eingestrichene C.</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>The picture that stands for the sound.</source>
        <translation>Das Bild, das für den Klang steht.</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Glocke</translation>
    </message>
    <message>
        <source>Horn</source>
        <translation>Hupe</translation>
    </message>
    <message>
        <source>Siren</source>
        <translation>Sirene</translation>
    </message>
    <message>
        <source>Pictures while sounding</source>
        <translation>Bilder während des Tons</translation>
    </message>
    <message>
        <source>Pictures shown in turn while the buzzer sounds.</source>
        <translation>Bilder, die nacheinander gezeigt werden, während der Summer ertönt.</translation>
    </message>
</context>
<context>
    <name>electronics/case</name>
    <message>
        <source>Case</source>
        <translation>Gehäuse</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Durchsichtig</translation>
    </message>
    <message>
        <source>Whether what lies behind the case is seen.</source>
        <translation>Ob zu sehen ist, was hinter dem Gehäuse liegt.</translation>
    </message>
</context>
<context>
    <name>electronics/component</name>
    <message>
        <source>Component</source>
        <translation>Bauteil</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Kurzzeichen</translation>
    </message>
    <message>
        <source>Letters and number by which the component is called in the circuit, for example R1.</source>
        <translation>Buchstaben und Zahl, mit denen das Bauteil in der Schaltung genannt wird, zum Beispiel R1.</translation>
    </message>
    <message>
        <source>Reference shown</source>
        <translation>Kurzzeichen gezeigt</translation>
    </message>
    <message>
        <source>Whether the reference is written beside the component.</source>
        <translation>Ob das Kurzzeichen neben dem Bauteil steht.</translation>
    </message>
    <message>
        <source>Value shown</source>
        <translation>Wert gezeigt</translation>
    </message>
    <message>
        <source>Whether the main value is written beside the component.</source>
        <translation>Ob der Hauptwert neben dem Bauteil steht.</translation>
    </message>
    <message>
        <source>Label place</source>
        <translation>Ort der Beschriftung</translation>
    </message>
    <message>
        <source>Where the label stands, seen from the centre.</source>
        <translation>Wo die Beschriftung steht, von der Mitte aus gesehen.</translation>
    </message>
    <message>
        <source>Output name</source>
        <translation>Ausgangsname</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the component; empty when none does.</source>
        <translation>Der Name, unter dem Ablaufpläne das Bauteil schalten; leer, wenn keiner es tut.</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Pegel jetzt</translation>
    </message>
    <message>
        <source>How strongly a running flowchart has switched the component on, in percent; -1 while none has.</source>
        <translation>Wie stark ein laufender Ablaufplan das Bauteil eingeschaltet hat, in Prozent; -1, solange keiner es tat.</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Defekt</translation>
    </message>
    <message>
        <source>A broken component lets no current through.</source>
        <translation>Ein defektes Bauteil lässt keinen Strom durch.</translation>
    </message>
</context>
<context>
    <name>electronics/control</name>
    <message>
        <source>Control</source>
        <translation>Bedienelement</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Stellung</translation>
    </message>
    <message>
        <source>Where the control stands, in percent.</source>
        <translation>Wo das Bedienelement steht, in Prozent.</translation>
    </message>
    <message>
        <source>Can be worked</source>
        <translation>Bedienbar</translation>
    </message>
    <message>
        <source>Whether the reader may move the control while the model runs.</source>
        <translation>Ob der Leser das Bedienelement bewegen darf, während das Modell läuft.</translation>
    </message>
</context>
<context>
    <name>electronics/led</name>
    <message>
        <source>LED</source>
        <translation>LED</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>The colour of the light.</source>
        <translation>Die Farbe des Lichts.</translation>
    </message>
    <message>
        <source>Lit at the start</source>
        <translation>Leuchtet beim Start</translation>
    </message>
    <message>
        <source>Whether the LED shines when the model starts.</source>
        <translation>Ob die LED leuchtet, wenn das Modell startet.</translation>
    </message>
    <message>
        <source>Blinking</source>
        <translation>Blinkt</translation>
    </message>
    <message>
        <source>Whether the LED goes on and off by itself.</source>
        <translation>Ob die LED von selbst an- und ausgeht.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Linse</translation>
    </message>
    <message>
        <source>Clear lenses throw a narrow beam, milky ones shine all round.</source>
        <translation>Klare Linsen werfen einen schmalen Strahl, milchige leuchten nach allen Seiten.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Milky</source>
        <translation>Milchig</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>How brightly the LED shines, in percent.</source>
        <translation>Wie hell die LED leuchtet, in Prozent.</translation>
    </message>
    <message>
        <source>Blink period</source>
        <translation>Blinkperiode</translation>
    </message>
    <message>
        <source>The time from one flash to the next.</source>
        <translation>Die Zeit von einem Blinken zum nächsten.</translation>
    </message>
    <message>
        <source>Blink pattern</source>
        <translation>Blinkmuster</translation>
    </message>
    <message>
        <source>Times in seconds for which the LED is on and off in turn.</source>
        <translation>Zeiten in Sekunden, für die die LED abwechselnd an und aus ist.</translation>
    </message>
    <message>
        <source>Forward voltage</source>
        <translation>Flussspannung</translation>
    </message>
    <message>
        <source>The voltage at which the LED begins to shine.</source>
        <translation>Die Spannung, bei der die LED zu leuchten beginnt.</translation>
    </message>
    <message>
        <source>Greatest current</source>
        <translation>Größter Strom</translation>
    </message>
    <message>
        <source>A greater current destroys the LED.</source>
        <translation>Ein größerer Strom zerstört die LED.</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>The diameter of the lens.</source>
        <translation>Der Durchmesser der Linse.</translation>
    </message>
</context>
<context>
    <name>electronics/light-sensor</name>
    <message>
        <source>Light sensor</source>
        <translation>Lichtsensor</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>How bright it is at the start, in percent.</source>
        <translation>Wie hell es am Anfang ist, in Prozent.</translation>
    </message>
    <message>
        <source>Switches at</source>
        <translation>Schaltet bei</translation>
    </message>
    <message>
        <source>The brightness at which the sensor counts as dark.</source>
        <translation>Die Helligkeit, von der an es für den Sensor dunkel ist.</translation>
    </message>
    <message>
        <source>Signal when</source>
        <translation>Signal wenn</translation>
    </message>
    <message>
        <source>Whether the sensor gives its signal in the dark or in the light.</source>
        <translation>Ob der Sensor sein Signal im Dunkeln oder im Hellen gibt.</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>dunkel</translation>
    </message>
    <message>
        <source>bright</source>
        <translation>hell</translation>
    </message>
    <message>
        <source>Follows its slider</source>
        <translation>Folgt seinem Schieber</translation>
    </message>
    <message>
        <source>Whether the reader sets the brightness with the slider.</source>
        <translation>Ob der Leser die Helligkeit mit dem Schieber einstellt.</translation>
    </message>
    <message>
        <source>Resistance in the dark</source>
        <translation>Widerstand im Dunkeln</translation>
    </message>
    <message>
        <source>The resistance when no light falls on the sensor.</source>
        <translation>Der Widerstand, wenn kein Licht auf den Sensor fällt.</translation>
    </message>
    <message>
        <source>Resistance in the light</source>
        <translation>Widerstand im Hellen</translation>
    </message>
    <message>
        <source>The resistance in full light.</source>
        <translation>Der Widerstand bei vollem Licht.</translation>
    </message>
    <message>
        <source>Characteristic</source>
        <translation>Kennlinie</translation>
    </message>
    <message>
        <source>Pairs of brightness in lux and resistance in ohms between which the sensor interpolates.</source>
        <translation>Paare aus Helligkeit in Lux und Widerstand in Ohm, zwischen denen der Sensor interpoliert.</translation>
    </message>
</context>
<context>
    <name>electronics/meter</name>
    <message>
        <source>Meter</source>
        <translation>Messgerät</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Misst</translation>
    </message>
    <message>
        <source>What the meter measures.</source>
        <translation>Was das Messgerät misst.</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Figures, or a needle over a scale.</source>
        <translation>Ziffern oder ein Zeiger über einer Skala.</translation>
    </message>
    <message>
        <source>digital</source>
        <translation>digital</translation>
    </message>
    <message>
        <source>needle</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Whether the reading stays as it is.</source>
        <translation>Ob der Messwert stehen bleibt.</translation>
    </message>
    <message>
        <source>Peak shown</source>
        <translation>Spitzenwert gezeigt</translation>
    </message>
    <message>
        <source>Whether the greatest reading so far is shown as well.</source>
        <translation>Ob auch der bisher größte Messwert gezeigt wird.</translation>
    </message>
    <message>
        <source>Needle colour</source>
        <translation>Zeigerfarbe</translation>
    </message>
    <message>
        <source>The colour of the needle.</source>
        <translation>Die Farbe des Zeigers.</translation>
    </message>
    <message>
        <source>Measures at</source>
        <translation>Misst an</translation>
    </message>
    <message>
        <source>The pin at which the meter measures.</source>
        <translation>Der Anschluss, an dem das Messgerät misst.</translation>
    </message>
    <message>
        <source>Scale marks</source>
        <translation>Skalenstriche</translation>
    </message>
    <message>
        <source>Where the scale has long marks, in the quantity&apos;s basic unit.</source>
        <translation>Wo die Skala lange Striche hat, in der Grundeinheit der Größe.</translation>
    </message>
    <message>
        <source>Voltage (V)</source>
        <translation>Spannung (V)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>Strom (A)</translation>
    </message>
    <message>
        <source>Resistance (Ω)</source>
        <translation>Widerstand (Ω)</translation>
    </message>
</context>
<context>
    <name>electronics/pad</name>
    <message>
        <source>Solder pad</source>
        <translation>Lötpunkt</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>The outline of the copper.</source>
        <translation>Der Umriss des Kupfers.</translation>
    </message>
    <message>
        <source>round</source>
        <translation>rund</translation>
    </message>
    <message>
        <source>square</source>
        <translation>quadratisch</translation>
    </message>
    <message>
        <source>oval</source>
        <translation>oval</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>How wide the copper is.</source>
        <translation>Wie breit das Kupfer ist.</translation>
    </message>
    <message>
        <source>Plated through</source>
        <translation>Durchkontaktiert</translation>
    </message>
    <message>
        <source>Whether the hole is lined with metal.</source>
        <translation>Ob das Loch mit Metall ausgekleidet ist.</translation>
    </message>
</context>
<context>
    <name>electronics/pin</name>
    <message>
        <source>Pin</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Polarity</source>
        <translation>Polung</translation>
    </message>
    <message>
        <source>Which pole of the supply belongs here, if it matters.</source>
        <translation>Welcher Pol der Versorgung hierher gehört, wenn es darauf ankommt.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>positive</source>
        <translation>positiv</translation>
    </message>
    <message>
        <source>negative</source>
        <translation>negativ</translation>
    </message>
    <message>
        <source>Name shown</source>
        <translation>Name gezeigt</translation>
    </message>
    <message>
        <source>Whether the pin&apos;s name is written beside it.</source>
        <translation>Ob der Name des Anschlusses daneben steht.</translation>
    </message>
</context>
<context>
    <name>electronics/push-button</name>
    <message>
        <source>Push button</source>
        <translation>Drucktaster</translation>
    </message>
    <message>
        <source>Cap colour</source>
        <translation>Kappenfarbe</translation>
    </message>
    <message>
        <source>The colour of the cap.</source>
        <translation>Die Farbe der Kappe.</translation>
    </message>
    <message>
        <source>Lights up</source>
        <translation>Leuchtet</translation>
    </message>
    <message>
        <source>Whether a lamp in the cap shines while the button is held.</source>
        <translation>Ob eine Lampe in der Kappe leuchtet, während der Taster gehalten wird.</translation>
    </message>
</context>
<context>
    <name>electronics/resistor</name>
    <message>
        <source>Resistor</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>The resistance as it is printed on the part.</source>
        <translation>Der Widerstand, wie er auf das Teil gedruckt ist.</translation>
    </message>
    <message>
        <source>Tolerance in %</source>
        <translation>Toleranz in %</translation>
    </message>
    <message>
        <source>How far the true resistance may be from the printed one, in percent.</source>
        <translation>Wie weit der wirkliche Widerstand vom aufgedruckten abweichen darf, in Prozent.</translation>
    </message>
    <message>
        <source>Power rating</source>
        <translation>Belastbarkeit</translation>
    </message>
    <message>
        <source>The power that the part stands without burning.</source>
        <translation>Die Leistung, die das Teil aushält, ohne zu verbrennen.</translation>
    </message>
    <message>
        <source>Colour bands</source>
        <translation>Farbringe</translation>
    </message>
    <message>
        <source>Whether the colour bands are drawn.</source>
        <translation>Ob die Farbringe gezeichnet werden.</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Schaltzeichen</translation>
    </message>
    <message>
        <source>The box, or the zigzag line.</source>
        <translation>Der Kasten oder die Zickzacklinie.</translation>
    </message>
    <message>
        <source>European</source>
        <translation>Europäisch</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Amerikanisch</translation>
    </message>
</context>
<context>
    <name>electronics/switch</name>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>Whether the switch lets current through at the start.</source>
        <translation>Ob der Schalter am Anfang Strom durchlässt.</translation>
    </message>
    <message>
        <source>Springs back</source>
        <translation>Springt zurück</translation>
    </message>
    <message>
        <source>Whether the switch stays closed only while it is held.</source>
        <translation>Ob der Schalter nur geschlossen bleibt, solange er gehalten wird.</translation>
    </message>
    <message>
        <source>Lever side</source>
        <translation>Hebelseite</translation>
    </message>
    <message>
        <source>On which side the lever has its hinge.</source>
        <translation>Auf welcher Seite der Hebel sein Gelenk hat.</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>Contact resistance</source>
        <translation>Kontaktwiderstand</translation>
    </message>
    <message>
        <source>The resistance of the closed contact.</source>
        <translation>Der Widerstand des geschlossenen Kontakts.</translation>
    </message>
    <message>
        <source>Bounce time</source>
        <translation>Prellzeit</translation>
    </message>
    <message>
        <source>How long the contact chatters when it closes.</source>
        <translation>Wie lange der Kontakt beim Schließen prellt.</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>The key that works the switch while the model runs; one capital letter or digit.</source>
        <translation>Die Taste, die den Schalter bedient, während das Modell läuft; ein Großbuchstabe oder eine Ziffer.</translation>
    </message>
</context>
<context>
    <name>electronics/wire</name>
    <message>
        <source>Wire</source>
        <translation>Draht</translation>
    </message>
    <message>
        <source>Insulated</source>
        <translation>Isoliert</translation>
    </message>
    <message>
        <source>Whether the wire has a coloured cover.</source>
        <translation>Ob der Draht eine farbige Hülle hat.</translation>
    </message>
    <message>
        <source>Stranded</source>
        <translation>Litze</translation>
    </message>
    <message>
        <source>Whether the wire is made of many thin ones.</source>
        <translation>Ob der Draht aus vielen dünnen besteht.</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Along right angles, or straight from pin to pin.</source>
        <translation>In rechten Winkeln oder gerade von Anschluss zu Anschluss.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>gerade</translation>
    </message>
    <message>
        <source>square</source>
        <translation>rechtwinklig</translation>
    </message>
    <message>
        <source>Cross-section in mm²</source>
        <translation>Querschnitt in mm²</translation>
    </message>
    <message>
        <source>The copper&apos;s cross-section in square millimetres.</source>
        <translation>Der Querschnitt des Kupfers in Quadratmillimetern.</translation>
    </message>
    <message>
        <source>Bends</source>
        <translation>Knicke</translation>
    </message>
    <message>
        <source>The points over which the wire runs, from its beginning to its end.</source>
        <translation>Die Punkte, über die der Draht läuft, von seinem Anfang bis zu seinem Ende.</translation>
    </message>
</context>
<context>
    <name>flowcharts/*</name>
    <message>
        <source>Flowcharts</source>
        <translation>Ablaufpläne</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>How fast the flowcharts of the space run.</source>
        <translation>Wie schnell die Ablaufpläne des Raums laufen.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Manual step</source>
        <translation>Handschritt</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Held down to run the next block at the speed Manual step.</source>
        <translation>Gehalten, um bei der Geschwindigkeit Handschritt den nächsten Block auszuführen.</translation>
    </message>
</context>
<context>
    <name>flowcharts/block</name>
    <message>
        <source>Flowchart block</source>
        <translation>Ablaufblock</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>A remark for the readers of the chart.</source>
        <translation>Eine Bemerkung für die Leser des Plans.</translation>
    </message>
    <message>
        <source>Comment shown</source>
        <translation>Bemerkung gezeigt</translation>
    </message>
    <message>
        <source>Whether the remark is written beside the block.</source>
        <translation>Ob die Bemerkung neben dem Block steht.</translation>
    </message>
    <message>
        <source>Lights up</source>
        <translation>Leuchtet</translation>
    </message>
    <message>
        <source>Whether the block lights up while it runs.</source>
        <translation>Ob der Block leuchtet, während er läuft.</translation>
    </message>
    <message>
        <source>Stops here</source>
        <translation>Hält hier</translation>
    </message>
    <message>
        <source>Whether the chart halts before the block, until it is stepped on.</source>
        <translation>Ob der Plan vor dem Block hält, bis er weitergeführt wird.</translation>
    </message>
    <message>
        <source>Runs now</source>
        <translation>Läuft jetzt</translation>
    </message>
    <message>
        <source>Whether a running chart is at the block.</source>
        <translation>Ob ein laufender Plan bei dem Block ist.</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>The colour inside the block.</source>
        <translation>Die Farbe im Inneren des Blocks.</translation>
    </message>
</context>
<context>
    <name>flowcharts/decision</name>
    <message>
        <source>Decision</source>
        <translation>Entscheidung</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>The output name of the switch or sensor that is asked.</source>
        <translation>Der Ausgangsname des Schalters oder Fühlers, der gefragt wird.</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>What is asked about the input.</source>
        <translation>Was über den Eingang gefragt wird.</translation>
    </message>
    <message>
        <source>is on</source>
        <translation>ist an</translation>
    </message>
    <message>
        <source>is off</source>
        <translation>ist aus</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>ist größer als</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>ist kleiner als</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>Verglichen mit</translation>
    </message>
    <message>
        <source>The number that the input is compared with.</source>
        <translation>Die Zahl, mit der der Eingang verglichen wird.</translation>
    </message>
    <message>
        <source>Yes branch</source>
        <translation>Ja-Zweig</translation>
    </message>
    <message>
        <source>Where the chart goes on when the answer is yes.</source>
        <translation>Wo der Plan weitergeht, wenn die Antwort ja ist.</translation>
    </message>
    <message>
        <source>down</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>Asks until yes</source>
        <translation>Fragt bis ja</translation>
    </message>
    <message>
        <source>Whether the block waits until the answer is yes.</source>
        <translation>Ob der Block wartet, bis die Antwort ja ist.</translation>
    </message>
    <message>
        <source>Answers shown</source>
        <translation>Antworten gezeigt</translation>
    </message>
    <message>
        <source>Whether Yes and No are written at the branches.</source>
        <translation>Ob Ja und Nein an den Zweigen stehen.</translation>
    </message>
    <message>
        <source>Watched part</source>
        <translation>Beobachtetes Teil</translation>
    </message>
    <message>
        <source>The part whose state is asked when no input is named.</source>
        <translation>Das Teil, nach dessen Zustand gefragt wird, wenn kein Eingang genannt ist.</translation>
    </message>
    <message>
        <source>is on?</source>
        <translation>ist an?</translation>
    </message>
    <message>
        <source>is off?</source>
        <translation>ist aus?</translation>
    </message>
</context>
<context>
    <name>flowcharts/link</name>
    <message>
        <source>Link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Whether the end has an arrow head.</source>
        <translation>Ob das Ende eine Pfeilspitze hat.</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>Whether the line is dashed.</source>
        <translation>Ob die Linie gestrichelt ist.</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Straight from block to block, or along right angles.</source>
        <translation>Gerade von Block zu Block oder in rechten Winkeln.</translation>
    </message>
    <message>
        <source>square</source>
        <translation>rechtwinklig</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>gerade</translation>
    </message>
    <message>
        <source>Bends</source>
        <translation>Knicke</translation>
    </message>
    <message>
        <source>The points over which the line runs, from its beginning to its end.</source>
        <translation>Die Punkte, über die die Linie läuft, von ihrem Anfang bis zu ihrem Ende.</translation>
    </message>
</context>
<context>
    <name>flowcharts/procedure</name>
    <message>
        <source>Procedure</source>
        <translation>Unterprogramm</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>How often the chart in the pop-up is run.</source>
        <translation>Wie oft der Plan im Pop-up ausgeführt wird.</translation>
    </message>
    <message>
        <source>Opens while it runs</source>
        <translation>Öffnet sich beim Laufen</translation>
    </message>
    <message>
        <source>Whether the pop-up with the chart opens while the procedure runs.</source>
        <translation>Ob sich das Pop-up mit dem Plan öffnet, während das Unterprogramm läuft.</translation>
    </message>
    <message>
        <source>Ends alone</source>
        <translation>Endet allein</translation>
    </message>
    <message>
        <source>Whether a stop block inside ends only the procedure rather than the whole chart.</source>
        <translation>Ob ein Stoppblock darin nur das Unterprogramm beendet statt des ganzen Plans.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>The names of the numbers handed to the procedure.</source>
        <translation>Die Namen der Zahlen, die dem Unterprogramm übergeben werden.</translation>
    </message>
</context>
<context>
    <name>flowcharts/start</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Starts by itself</source>
        <translation>Startet von selbst</translation>
    </message>
    <message>
        <source>Whether the chart runs as soon as the model starts.</source>
        <translation>Ob der Plan läuft, sobald das Modell startet.</translation>
    </message>
    <message>
        <source>Starts when</source>
        <translation>Startet wenn</translation>
    </message>
    <message>
        <source>Whether one or all of the named inputs must be on for the chart to start.</source>
        <translation>Ob einer oder alle der genannten Eingänge an sein müssen, damit der Plan startet.</translation>
    </message>
    <message>
        <source>any input</source>
        <translation>ein Eingang</translation>
    </message>
    <message>
        <source>all inputs</source>
        <translation>alle Eingänge</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingänge</translation>
    </message>
    <message>
        <source>The names of the switches and sensors that start the chart.</source>
        <translation>Die Namen der Schalter und Fühler, die den Plan starten.</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>How long the chart waits before its first block.</source>
        <translation>Wie lange der Plan vor seinem ersten Block wartet.</translation>
    </message>
</context>
<context>
    <name>flowcharts/step</name>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>What the block does with its output.</source>
        <translation>Was der Block mit seinem Ausgang tut.</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Schalten</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Blinken</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Dimmen</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>The output name of the components that the block switches.</source>
        <translation>Der Ausgangsname der Bauteile, die der Block schaltet.</translation>
    </message>
    <message>
        <source>Switches on</source>
        <translation>Schaltet ein</translation>
    </message>
    <message>
        <source>Whether the block switches the output on rather than off.</source>
        <translation>Ob der Block den Ausgang ein- statt ausschaltet.</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Whether the chart goes on only when the time is over.</source>
        <translation>Ob der Plan erst weitergeht, wenn die Zeit um ist.</translation>
    </message>
    <message>
        <source>Other outputs</source>
        <translation>Andere Ausgänge</translation>
    </message>
    <message>
        <source>Whether all other outputs are switched off at the same time.</source>
        <translation>Ob zugleich alle anderen Ausgänge ausgeschaltet werden.</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>How long the step lasts.</source>
        <translation>Wie lange der Schritt dauert.</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>How strongly the output is switched on, in percent.</source>
        <translation>Wie stark der Ausgang eingeschaltet wird, in Prozent.</translation>
    </message>
    <message>
        <source>More outputs</source>
        <translation>Weitere Ausgänge</translation>
    </message>
    <message>
        <source>Further outputs, each with the state that it takes.</source>
        <translation>Weitere Ausgänge, jeder mit dem Zustand, den er annimmt.</translation>
    </message>
    <message>
        <source>Wait only</source>
        <translation>Nur warten</translation>
    </message>
</context>
<context>
    <name>flowcharts/stop</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Starts again</source>
        <translation>Beginnt wieder</translation>
    </message>
    <message>
        <source>Whether the chart begins again from its start.</source>
        <translation>Ob der Plan wieder bei seinem Start beginnt.</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgänge</translation>
    </message>
    <message>
        <source>Whether the outputs stay as they are at the end, or are switched off.</source>
        <translation>Ob die Ausgänge am Ende bleiben, wie sie sind, oder ausgeschaltet werden.</translation>
    </message>
    <message>
        <source>keep</source>
        <translation>behalten</translation>
    </message>
    <message>
        <source>switch off</source>
        <translation>ausschalten</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>What is shown to the reader at the end.</source>
        <translation>Was dem Leser am Ende gezeigt wird.</translation>
    </message>
</context>
<context>
    <name>flowcharts/terminal</name>
    <message>
        <source>Terminal</source>
        <translation>Klemme</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Whether the chart comes in or goes out here.</source>
        <translation>Ob der Plan hier hereinkommt oder hinausgeht.</translation>
    </message>
    <message>
        <source>in</source>
        <translation>herein</translation>
    </message>
    <message>
        <source>out</source>
        <translation>hinaus</translation>
    </message>
    <message>
        <source>Arrow shown</source>
        <translation>Pfeil gezeigt</translation>
    </message>
    <message>
        <source>Whether an arrow head is drawn at the terminal.</source>
        <translation>Ob an der Klemme eine Pfeilspitze gezeichnet wird.</translation>
    </message>
</context>
<context>
    <name>mechanics/axle</name>
    <message>
        <source>Axle</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>The diameter of the axle.</source>
        <translation>Der Durchmesser der Achse.</translation>
    </message>
    <message>
        <source>Runs freely</source>
        <translation>Läuft frei</translation>
    </message>
    <message>
        <source>Whether the wheel turns on the axle rather than with it.</source>
        <translation>Ob sich das Rad auf der Achse dreht statt mit ihr.</translation>
    </message>
</context>
<context>
    <name>mechanics/belt</name>
    <message>
        <source>Belt</source>
        <translation>Riemen</translation>
    </message>
    <message>
        <source>Crossed</source>
        <translation>Gekreuzt</translation>
    </message>
    <message>
        <source>Whether the belt is crossed, so that the wheels turn against each other.</source>
        <translation>Ob der Riemen gekreuzt ist, sodass sich die Räder gegeneinander drehen.</translation>
    </message>
    <message>
        <source>Toothed</source>
        <translation>Gezahnt</translation>
    </message>
    <message>
        <source>Whether the belt has teeth and cannot slip.</source>
        <translation>Ob der Riemen Zähne hat und nicht rutschen kann.</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Werkstoff</translation>
    </message>
    <message>
        <source>Rubber that stretches, or cord that does not.</source>
        <translation>Gummi, der sich dehnt, oder Schnur, die es nicht tut.</translation>
    </message>
    <message>
        <source>rubber</source>
        <translation>Gummi</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>Schnur</translation>
    </message>
</context>
<context>
    <name>mechanics/cam</name>
    <message>
        <source>Cam</source>
        <translation>Nocken</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>The outline of the cam.</source>
        <translation>Der Umriss des Nockens.</translation>
    </message>
    <message>
        <source>Pear</source>
        <translation>Birne</translation>
    </message>
    <message>
        <source>Eccentric circle</source>
        <translation>Exzenterkreis</translation>
    </message>
    <message>
        <source>Snail</source>
        <translation>Schnecke</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Hub</translation>
    </message>
    <message>
        <source>How far the cam moves its follower.</source>
        <translation>Wie weit der Nocken seinen Stößel bewegt.</translation>
    </message>
    <message>
        <source>Return spring</source>
        <translation>Rückstellfeder</translation>
    </message>
    <message>
        <source>Whether a spring presses the follower on the cam.</source>
        <translation>Ob eine Feder den Stößel auf den Nocken drückt.</translation>
    </message>
    <message>
        <source>Follower</source>
        <translation>Stößel</translation>
    </message>
    <message>
        <source>A flat foot, or a roller.</source>
        <translation>Ein flacher Fuß oder eine Rolle.</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>flach</translation>
    </message>
    <message>
        <source>roller</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Lift table</source>
        <translation>Hubtabelle</translation>
    </message>
    <message>
        <source>The lift in millimetres at some angles in degrees.</source>
        <translation>Der Hub in Millimetern bei einigen Winkeln in Grad.</translation>
    </message>
</context>
<context>
    <name>mechanics/gear</name>
    <message>
        <source>Gear</source>
        <translation>Zahnrad</translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation>Zähne</translation>
    </message>
    <message>
        <source>The number of teeth.</source>
        <translation>Die Zahl der Zähne.</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>The pitch diameter divided by the number of teeth; gears that mesh have the same.</source>
        <translation>Der Teilkreisdurchmesser geteilt durch die Zahl der Zähne; Räder, die ineinandergreifen, haben denselben.</translation>
    </message>
    <message>
        <source>Pressure angle</source>
        <translation>Eingriffswinkel</translation>
    </message>
    <message>
        <source>The angle at which the teeth press on each other.</source>
        <translation>Der Winkel, in dem die Zähne aufeinander drücken.</translation>
    </message>
    <message>
        <source>Face width</source>
        <translation>Zahnbreite</translation>
    </message>
    <message>
        <source>How wide the teeth are along the axle.</source>
        <translation>Wie breit die Zähne entlang der Achse sind.</translation>
    </message>
    <message>
        <source>Teeth drawn</source>
        <translation>Zähne gezeichnet</translation>
    </message>
    <message>
        <source>Whether the teeth are drawn, or only the pitch circle.</source>
        <translation>Ob die Zähne gezeichnet werden oder nur der Teilkreis.</translation>
    </message>
    <message>
        <source>Slanting teeth</source>
        <translation>Schräge Zähne</translation>
    </message>
    <message>
        <source>Whether the teeth stand aslant to the axle.</source>
        <translation>Ob die Zähne schräg zur Achse stehen.</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Steigung</translation>
    </message>
    <message>
        <source>Which way slanting teeth lean.</source>
        <translation>Wohin sich schräge Zähne neigen.</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>Meshes with</source>
        <translation>Greift ein in</translation>
    </message>
    <message>
        <source>The gear whose teeth these ones drive.</source>
        <translation>Das Zahnrad, dessen Zähne von diesen angetrieben werden.</translation>
    </message>
    <message>
        <source>Hub offset</source>
        <translation>Versatz der Nabe</translation>
    </message>
    <message>
        <source>How far the hub is from the middle of the wheel.</source>
        <translation>Wie weit die Nabe von der Mitte des Rads entfernt ist.</translation>
    </message>
</context>
<context>
    <name>mechanics/machine-part</name>
    <message>
        <source>Machine part</source>
        <translation>Maschinenteil</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Werkstoff</translation>
    </message>
    <message>
        <source>What the part is made of.</source>
        <translation>Woraus das Teil gemacht ist.</translation>
    </message>
    <message>
        <source>Acetal</source>
        <translation>Acetal</translation>
    </message>
    <message>
        <source>Nylon</source>
        <translation>Nylon</translation>
    </message>
    <message>
        <source>Wood</source>
        <translation>Holz</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Messing</translation>
    </message>
    <message>
        <source>Steel</source>
        <translation>Stahl</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>The mass of the part.</source>
        <translation>Die Masse des Teils.</translation>
    </message>
    <message>
        <source>Held fast</source>
        <translation>Festgehalten</translation>
    </message>
    <message>
        <source>Whether the part is fixed to the base and cannot turn.</source>
        <translation>Ob das Teil auf der Grundplatte festsitzt und sich nicht drehen kann.</translation>
    </message>
    <message>
        <source>Direction shown</source>
        <translation>Richtung gezeigt</translation>
    </message>
    <message>
        <source>Whether an arrow shows the way the part turns.</source>
        <translation>Ob ein Pfeil zeigt, wie herum sich das Teil dreht.</translation>
    </message>
    <message>
        <source>Speed shown</source>
        <translation>Drehzahl gezeigt</translation>
    </message>
    <message>
        <source>Whether the turning speed is written on the part.</source>
        <translation>Ob die Drehzahl auf dem Teil steht.</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>The colour of the part.</source>
        <translation>Die Farbe des Teils.</translation>
    </message>
</context>
<context>
    <name>mechanics/motor</name>
    <message>
        <source>Motor</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Runs at the start</source>
        <translation>Läuft beim Start</translation>
    </message>
    <message>
        <source>Whether the motor runs when the model starts.</source>
        <translation>Ob der Motor läuft, wenn das Modell startet.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Which way the motor turns.</source>
        <translation>Wie herum sich der Motor dreht.</translation>
    </message>
    <message>
        <source>clockwise</source>
        <translation>im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>counterclockwise</source>
        <translation>gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>With gear box</source>
        <translation>Mit Getriebe</translation>
    </message>
    <message>
        <source>Whether a gear box is built in.</source>
        <translation>Ob ein Getriebe eingebaut ist.</translation>
    </message>
    <message>
        <source>Gear box ratio</source>
        <translation>Übersetzung</translation>
    </message>
    <message>
        <source>How many turns of the motor make one turn of the shaft.</source>
        <translation>Wie viele Umdrehungen des Motors eine Umdrehung der Welle ergeben.</translation>
    </message>
    <message>
        <source>Supply voltage</source>
        <translation>Versorgungsspannung</translation>
    </message>
    <message>
        <source>The voltage for which the motor is made.</source>
        <translation>Die Spannung, für die der Motor gebaut ist.</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>How fast the motor turns without load.</source>
        <translation>Wie schnell sich der Motor ohne Last dreht.</translation>
    </message>
    <message>
        <source>Output name</source>
        <translation>Ausgangsname</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the motor; empty when none does.</source>
        <translation>Der Name, unter dem Ablaufpläne den Motor schalten; leer, wenn keiner es tut.</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Pegel jetzt</translation>
    </message>
    <message>
        <source>How strongly a running flowchart has switched the motor on, in percent; -1 while none has.</source>
        <translation>Wie stark ein laufender Ablaufplan den Motor eingeschaltet hat, in Prozent; -1, solange keiner es tat.</translation>
    </message>
    <message>
        <source>Powered by</source>
        <translation>Versorgt von</translation>
    </message>
    <message>
        <source>The battery that drives the motor.</source>
        <translation>Die Batterie, die den Motor antreibt.</translation>
    </message>
</context>
<context>
    <name>mechanics/pulley</name>
    <message>
        <source>Pulley</source>
        <translation>Riemenscheibe</translation>
    </message>
    <message>
        <source>Groove diameter</source>
        <translation>Rillendurchmesser</translation>
    </message>
    <message>
        <source>The diameter at which the belt runs.</source>
        <translation>Der Durchmesser, auf dem der Riemen läuft.</translation>
    </message>
    <message>
        <source>Groove</source>
        <translation>Rille</translation>
    </message>
    <message>
        <source>The shape of the groove.</source>
        <translation>Die Form der Rille.</translation>
    </message>
    <message>
        <source>round</source>
        <translation>rund</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>With rims</source>
        <translation>Mit Rändern</translation>
    </message>
    <message>
        <source>Whether rims keep the belt in the groove.</source>
        <translation>Ob Ränder den Riemen in der Rille halten.</translation>
    </message>
    <message>
        <source>Belt slips</source>
        <translation>Riemen rutscht</translation>
    </message>
    <message>
        <source>Whether the belt may slip when the load is too great.</source>
        <translation>Ob der Riemen rutschen kann, wenn die Last zu groß ist.</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Stufen</translation>
    </message>
    <message>
        <source>The groove diameters of a stepped pulley in metres, the greatest first.</source>
        <translation>Die Rillendurchmesser einer Stufenscheibe in Metern, der größte zuerst.</translation>
    </message>
</context>
<context>
    <name>mechanics/shaft</name>
    <message>
        <source>Shaft</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>The diameter of the shaft.</source>
        <translation>Der Durchmesser der Welle.</translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation>Hohl</translation>
    </message>
    <message>
        <source>Whether the shaft is a tube.</source>
        <translation>Ob die Welle ein Rohr ist.</translation>
    </message>
    <message>
        <source>With key</source>
        <translation>Mit Passfeder</translation>
    </message>
    <message>
        <source>Whether a key makes the wheels turn with the shaft.</source>
        <translation>Ob eine Passfeder die Räder mit der Welle drehen lässt.</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Enden</translation>
    </message>
    <message>
        <source>Plain ends, or rounded ones.</source>
        <translation>Glatte oder runde Enden.</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>glatt</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>rund</translation>
    </message>
    <message>
        <source>Bearings</source>
        <translation>Lager</translation>
    </message>
    <message>
        <source>Where the shaft is held, seen from its centre.</source>
        <translation>Wo die Welle gehalten wird, von ihrer Mitte aus gesehen.</translation>
    </message>
    <message>
        <source>Twist</source>
        <translation>Verdrehung</translation>
    </message>
    <message>
        <source>How far the shaft twists under full load.</source>
        <translation>Wie weit sich die Welle unter voller Last verdreht.</translation>
    </message>
</context>
</TS>
