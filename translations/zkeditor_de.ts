<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About zkauthor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zkauthor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows and edits interactive teaching models: scenes with parts, their connections and properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of your own parts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start an empty document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the document under another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go back to what was last saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do again what was taken back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected parts to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected parts to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the parts on the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add copies of the selected parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select every part of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Ne&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the next part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Pre&amp;vious</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the part before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate Le&amp;ft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn the selected parts a quarter to the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;otate Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn the selected parts a quarter to the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show things larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show things smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Real Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show things in their real size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Pop-&amp;up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the pop-up of the selected part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New &amp;Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add an empty scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete S&amp;cene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the scene on view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;ge Setup...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper, margins and scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Previe&amp;w...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the pages as they are printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to P&amp;DF...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the pages into a PDF file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport to SVG...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the scene on view as a drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save as Custom Part...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offer the selected part among the parts from now on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the program works for you</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Licence...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or enter the licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About zkauthor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What this program is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Badge</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddCustomPartDialog</name>
    <message>
        <source>Add custom part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part &amp;name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part name must be unique and can contain no spaces.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part &amp;label:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part label appears in the part tree.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part &amp;group:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part group defines part tree folder the part appears in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part &amp;level:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This define&apos;s the part&apos;s educational level, e.g. keystate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part id %1 is already in use.
Please enter another id</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddNodesCommand</name>
    <message numerus="yes">
        <source>Adding of %n object(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The place to add to is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object of the class &quot;%1&quot; cannot stand there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An instance id is in use already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding of a part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such kind of part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding of a subpart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part cannot have a subpart of the class &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part has all the subparts of that role that it can have.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding of a scene</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddResourceCommand</name>
    <message>
        <source>Import of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AdvancedPalette</name>
    <message>
        <source>Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cl&amp;ick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset &amp;right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset &amp;down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds the copies, each beside the one before it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is selected has no pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a part to see its pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Pop-up</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AssocPalette</name>
    <message>
        <source>Associations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reflections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a part to see what it has to do with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiple parts selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AssociationList</name>
    <message>
        <source>Remove the reflection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detach</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Associations</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Followed by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 follows %3 of %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refers to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reflection of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BrandWidget</name>
    <message>
        <source>About the product</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dim grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Violet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Olive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours in this document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>document type declarations are not allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no recorded session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the format version is missing or not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no command &lt;%1&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the content of &lt;%1&gt; is faulty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; failed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLogPane</name>
    <message>
        <source>Re&amp;cord</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Recording...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No command was given yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record what is done to the document from now on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recorded sessions (*.xml)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfirmingObserverCheckBox</name>
    <message>
        <source>Change property value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DebugPalette</name>
    <message>
        <source>Debugging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (the first of %2 selected)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeleteNodeCommand</name>
    <message>
        <source>Deletion of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Deletion of %n object(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The object is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document itself and pop-ups cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The subpart belongs to its part and cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last scene cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>this is no document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no document: it begins with &lt;%1&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document has no model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the format version is missing or no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the format version is %1; this program reads versions up to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no instance id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a document has one model only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document has no scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot stand here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a document&apos;s resource</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of resource</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>resource &quot;%1&quot; is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only text can stand here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>resource &quot;%1&quot; is larger than 64 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the data of resource &quot;%1&quot; are damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the next instance id was %1, which is too low; it is %2 now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nodes are nested deeper than %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no fragment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the format version is missing or not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 %n more warning(s) left out</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>attribute &quot;%1&quot; of &lt;%2&gt; is not known and was dropped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the class is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no domain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 classes are not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is not known; kept as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is of another kind than &lt;%2&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>instance id %1 is used twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of reflection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no instance id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a reflection needs both what it reflects and which kind it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>there are more than %n nodes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>&lt;%1&gt; is no node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text cannot stand here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this cannot stand here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing can stand after the end of the document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not known; kept as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a part has one pop-up only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;value&gt; has no key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a proxy needs both a node and a key to follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text of a value is longer than 64 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no %2 (property &quot;%3&quot;)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>class &quot;%1&quot; has no property &quot;%2&quot;; kept as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>property &quot;%1&quot; is not kept in files; dropped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>property &quot;%1&quot; is given twice; the first value counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value of property &quot;%1&quot; is not allowed; kept: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is used twice; kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>property &quot;%1&quot; of node %2 follows itself, directly or through others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>property &quot;%1&quot; follows one that is not there (&quot;%2&quot; of node %3); kept as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>property &quot;%1&quot; (%2) cannot follow &quot;%3&quot; (%4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>node %1, which is reflected here, is not there; kept as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>elements are nested too deep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unknown element is longer than 64 MB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentFiles</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lose all changes made since %1 was last saved?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentImpl</name>
    <message>
        <source>There is no such part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id names no class of a domain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id is already in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be changed while an undo or redo is under way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExpressionParser</name>
    <message>
        <source>The expression is not complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A closing bracket is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The function before position %1 takes another number of arguments.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The expression is not correct at position %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The result is not a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The result is too large, or something is divided by zero.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The expression is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not a unit that can be converted to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many brackets are open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not expected there.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlowchartBar</name>
    <message>
        <source>Flowcharts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run Flowcharts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the flowcharts, or stop them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run flowcharts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the flowcharts, or stop them (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All flowcharts have come to their end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no flowchart in this document: add a start block first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flowchart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link &quot;%1&quot; cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlowchartRunner</name>
    <message>
        <source>The block &quot;%1&quot; waits for &quot;%2&quot;, but nothing has that output name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart leads to &quot;%1&quot;, which is no block.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; switches &quot;%2&quot;, but nothing has that output name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing follows the block &quot;%1&quot;: the chart ends there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing follows one of the answers of &quot;%1&quot;: the chart ends there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The procedure &quot;%1&quot; has no start block in its pop-up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The procedure &quot;%1&quot; calls itself again and again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The decision &quot;%1&quot; does not say what it asks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The decision &quot;%1&quot; asks &quot;%2&quot;, but nothing has that output name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlowchartSpeedWidget</name>
    <message>
        <source>Speed of the flowcharts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast the flowcharts run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flowcharts:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run the next block</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FontChooser</name>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AaBbYyZz 123</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All fonts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, size in points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size in points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size is a number from 1 to 1000.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GetCustomPartLabel</name>
    <message>
        <source>Choose custom part label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part &amp;label:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part label appears in the part tree.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IdProvider</name>
    <message>
        <source>The id must not be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id is longer than 100 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id must not contain blanks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another subpart has this id.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another part has this id.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InsertMenu</name>
    <message>
        <source>Connect the two selected parts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Inspector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>InstanceId</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Licence</name>
    <message>
        <source>Please enter the licence code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Typing error in group %1: &quot;%2&quot; does not occur in licence codes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Typing error in group %1: it has %2 characters instead of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code is too long: no licence code has so many groups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Typing error in group %1: please compare it letter by letter. Groups may also be missing, doubled or exchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The secret key cannot be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A licence needs a holder and a product.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The dates of a licence lie between 2000 and 2179, and it does not expire before it is issued.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A licence has from 1 to 65535 seats.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holder, product and edition have at most 80 letters each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holder, product and edition are too long together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This code was not made for this program: its signature is not right. Please ask whoever gave it to you.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code has %1 groups, but %2 were entered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This code is for the product %1; this program is %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This code was issued on %1, but the clock of this computer says that today is %2. Please set the clock.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This licence expired on %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LicenceDialog</name>
    <message>
        <source>Licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licence &amp;code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licence code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste the code here, or type it group by group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget the licence code on this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A licence code is made of groups of %1 letters and digits. Small letters are as good as capitals.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code is right. It is for %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Right so far: %n groups.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LicenceManager</name>
    <message>
        <source>The program was used on %1 before, but the clock of this computer says that today is %2. Please set the clock.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlicensed evaluation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlicensed evaluation. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licensed to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licensed to %1, edition %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>For %n seats.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The licence expires today.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The licence expires in %n days.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>unlicensed evaluation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>licence expires today</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>licence expires in %n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Printed with an unlicensed evaluation copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListEditor</name>
    <message>
        <source>Move up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockPalette</name>
    <message>
        <source>Property Value Editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locking</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place of the mouse pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no part with the id &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessagesPane</name>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was no message yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Console Window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModelsBrowser</name>
    <message>
        <source>document type declarations are not allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the documents of one more folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the folder no longer; nothing on the disk is touched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder yet. Add one to see its documents here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModelsModel</name>
    <message>
        <source>The folder is not there or cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (no documents)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MoveGesture</name>
    <message>
        <source>Move part</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Move %n parts</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NoSelectionPane</name>
    <message>
        <source>Select a part to see and change its properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the properties of the scene on view</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ObserverColorPicker</name>
    <message>
        <source>%1, name of the colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This names no colour.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ObserverComboBox</name>
    <message>
        <source>true</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>false</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ObserverLineEdit</name>
    <message>
        <source>This text does not stand for a value of the kind that is needed here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ObserverPoint</name>
    <message>
        <source>%1, x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, y</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>it differs from &quot;%1&quot; only by its extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no attribute &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot stand in &lt;%2&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot have text here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is larger than 16 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the elements are nested too deep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>document types and entities are not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; needs a key without blanks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is made by the program itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of a property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is inherited with the type %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a property has only one &lt;%1&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is no whole number from %2 on: &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is none of %2: &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no resource &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the resource &quot;%1&quot; is of the type %2, not %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>values of the type %1 have no unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the flag &quot;%1&quot; is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value of the type %1 is a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the content is no value of the type %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the property has a default already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a default of the type %1 stands in an element &lt;default&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>values of the type %1 have no format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; does not measure the same as &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a validator needs a kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>values of the type %1 have no range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the minimum %1 is greater than the maximum %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>values of the type %1 cannot be chosen from a set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the set is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only texts have a pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the expression &quot;%1&quot; is faulty: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only resources are chosen from resources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; does not allow the value &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no package but &lt;%1&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the attribute &quot;format&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the package has the format %1, this program understands %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a package needs a name of letters, digits, &apos;-&apos; and &apos;_&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the package &quot;%1&quot; must stand in a folder of that name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no package can have the name &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no class id such as &quot;electronics/led&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; is defined twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another package defines the class &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no class %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the class %1 needs itself as a base or subpart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the classes are nested too deep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a class without a base needs a kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the base %1 is of another kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>domains have ids such as &quot;electronics/*&quot;, other classes have not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the class %1 is no pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only parts have a pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a class without a pop-up cannot show its pane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is given twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no base of the class has the property &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name of the form is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a substitution needs a string and either a resource or a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is substituted twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only parts and subparts have subparts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are two rules for the same role</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the class of the subpart is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no subpart can be of the class %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the class %1 has no property &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a rule for subparts needs one role</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no class &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is a package &quot;%1&quot; already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the class belongs to no domain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is a class &quot;%1&quot; already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the packages &quot;%1&quot; and &quot;%2&quot; would need each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the package &quot;%1&quot; is not the user&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageSetupDialog</name>
    <message>
        <source>Page Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Margins (mm):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page &amp;Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale to Page &amp;Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale &amp;Factor:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first page with its margins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 margin in millimetres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A0 (841 x 1189 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A1 (594 x 841 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A2 (420 x 594 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A3 (297 x 420 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A4 (210 x 297 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A5 (148 x 210 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A6 (105 x 148 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A7 (74 x 105 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A8 (52 x 74 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A9 (37 x 52 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B0 (1000 x 1414 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B1 (707 x 1000 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B2 (500 x 707 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B3 (353 x 500 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B4 (250 x 353 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B5 (176 x 250 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B6 (125 x 176 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B7 (88 x 125 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B8 (62 x 88 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B9 (44 x 62 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B10 (31 x 44 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C5E (163 x 229 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DLE (110 x 220 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Executive (191 x 254 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folio (210 x 330 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ledger (432 x 279 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legal (216 x 356 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter (216 x 279 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabloid (279 x 432 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope #10 (105 x 241 mm)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteBoxSection</name>
    <message>
        <source>Section</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaletteButtonBar</name>
    <message>
        <source>expanded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>Side Pane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;nspector...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the tree of everything in the document</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PanelTopArea</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <extracomment>A number of parts of one kind: &quot;3 × LED&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln parts</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PartEditor</name>
    <message>
        <source>Select the two parts that it shall connect first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was dropped is not a part.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PartHelp</name>
    <message>
        <source>Group: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PartIdLineEdit</name>
    <message numerus="yes">
        <source>Rename %n parts</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>There is one number in an id: write # once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PartsModel</name>
    <message>
        <source>Package: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key stage: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PartsTree</name>
    <message>
        <source>Search parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no parts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No part matches the search.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PerfMeter</name>
    <message>
        <source>Performance</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlusMinusButton</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>As each property says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The crash report only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file (velmor.log)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nowhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes effect when the program starts again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For documents that are opened from now on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show lengths &amp;in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps kept for &amp;undo:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The &amp;wheel zooms scenes (with Ctrl it scrolls them)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Messages go to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preferences hold until the program ends: they cannot be kept.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message>
        <source>There is nothing to print, or the margins leave no room on the paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>At this scale the document needs %n pages; no more than %1 are exported.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer did not take the pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to SVG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SVG drawings (*.svg)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProductPackage</name>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropPalette</name>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiple parts selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This part has no properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyChoiceModel</name>
    <message>
        <source>The property is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can be linked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Possible</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyFilter</name>
    <message>
        <source>One of the properties is gone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A property cannot follow itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The properties belong to different documents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This property cannot be followed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The property is of another type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The property follows this one already.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyListBox</name>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search for a property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part whose properties are listed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detach</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follows %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyTable</name>
    <message>
        <source>Filter properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyTableModel</name>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follows</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProxyCommands</name>
    <message>
        <source>Link of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of the properties is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A property that the program works out cannot follow another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detaching of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The property is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QXmlStream</name>
    <message>
        <source>Encountered incorrectly encoded content.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtColorPicker</name>
    <message>
        <source>Different colours</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No recent files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReflectCommand</name>
    <message>
        <source>Reflection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removal of a reflection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such part, or no place for the reflection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A reflection stands in a scene or a pop-up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such reflection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part has nothing of the kind to reflect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An instance id is in use already.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReflectMenu</name>
    <message>
        <source>&amp;Controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Body</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RemoveResourceCommand</name>
    <message>
        <source>Removal of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Resource</name>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResourceChooser</name>
    <message>
        <source>Import a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export to a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No resource</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Different</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one file can be taken here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResourceImport</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than 64 MB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be used here: it does not hold data of the kind &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResourceListBox</name>
    <message>
        <source>Add files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected parts have different lists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResourceModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResourceRename</name>
    <message>
        <source>The name must not be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name must not contain a slash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another resource has this name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneView</name>
    <message>
        <source>Scene %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow keys move the selected parts by one millimetre, with Shift by ten.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectAllCommand</name>
    <message>
        <source>Selection of everything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetNodeIndexCommand</name>
    <message>
        <source>Change of order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such object to move.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetUILockedCommand</name>
    <message numerus="yes">
        <source>Locking of %n object(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocking of %n object(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetValueCommand</name>
    <message>
        <source>Change of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Change of %1 (%n objects)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The object is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no property &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; is worked out by the program and cannot be set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; follows another one and cannot be set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; cannot hold a value of the type %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShortcutButton</name>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deletes what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a copy of what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps what is selected from being changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reflect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the part in another place as well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the pop-up of the part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells more about what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShowPopupCommand</name>
    <message>
        <source>Showing of a pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hiding of a pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part has no pop-up.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SidePane</name>
    <message>
        <source>Side Pane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpacePropertyPane</name>
    <message>
        <source>This scene has no properties</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpaceTabs</name>
    <message>
        <source>Scenes and pop-ups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Po&amp;p-ups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the pop-up of a part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No part here has a pop-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click a part to open others</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StartOptions</name>
    <message>
        <source>Shows and edits interactive teaching models.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where messages go: stdout, stderr, file (velmor.log in the current folder), console (a window) or none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a picture of the main window into a PNG file and quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the part with this id for the picture. May be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the picture show the forms of what is selected from top to bottom, alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the picture in dark colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document to open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--log takes stdout, stderr, file, console or none, not &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one document can be opened, but %1 were given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--screenshot needs the name of a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 only works together with --screenshot.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatisticsPane</name>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Least</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greatest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve of the selected statistic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget all samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SubpartComboBox</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subpart</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SubpartListView</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every part of this kind has this subpart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>metres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>centimetres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kilometres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>micrometres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>feet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>radians</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ohms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>milliohms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kilohms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>megohms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>volts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>millivolts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kilovolts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>amperes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>milliamperes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>microamperes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>watts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>milliwatts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>farads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>microfarads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nanofarads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>picofarads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>microseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hertz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>megahertz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kilograms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grams</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>newtons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>joules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kelvins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>metres per second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>revolutions per minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Validator</name>
    <message>
        <source>A value of type %1 is needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only values from %1 to %2 are allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only these values are allowed: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only finite numbers are allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only values from %1 upwards are allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only values up to %1 are allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text does not have the form that is needed here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the resources offered here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Value</name>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>false</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueMapListBox</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected parts have different entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key must not be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This text does not stand for a value of the kind &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueMapModel</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueXml</name>
    <message>
        <source>The value is nested too deeply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of type &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Element &quot;%1&quot; is not expected; a list holds &quot;item&quot;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text is not expected between &quot;item&quot;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An item cannot have the type &quot;%1&quot; here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Messages - zkauthor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zkauthor crashed last time. A report is in the file %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>screenshot</name>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
