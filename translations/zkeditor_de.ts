<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About zkauthor</source>
        <translation>Über zkauthor</translation>
    </message>
    <message>
        <source>zkauthor %1</source>
        <translation>zkauthor %1</translation>
    </message>
    <message>
        <source>Shows and edits interactive teaching models: scenes with parts, their connections and properties.</source>
        <translation>Zeigt und bearbeitet interaktive Lehrmodelle: Szenen mit Teilen, ihre Verbindungen und Eigenschaften.</translation>
    </message>
    <message>
        <source>Folder of your own parts</source>
        <translation>Ordner Ihrer eigenen Teile</translation>
    </message>
    <message>
        <source>How things are done</source>
        <translation>So wird es gemacht</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Start an empty document</source>
        <translation>Ein leeres Dokument beginnen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>Ein Dokument öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the document</source>
        <translation>Das Dokument speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save the document under another name</source>
        <translation>Das Dokument unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Zu&amp;rücksetzen</translation>
    </message>
    <message>
        <source>Go back to what was last saved</source>
        <translation>Zu dem zurückkehren, was zuletzt gespeichert wurde</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the document</source>
        <translation>Das Dokument schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Das Programm schließen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>Die letzte Änderung zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Do again what was taken back</source>
        <translation>Wieder tun, was zurückgenommen wurde</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>A&amp;usschneiden</translation>
    </message>
    <message>
        <source>Move the selected parts to the clipboard</source>
        <translation>Die ausgewählten Teile in die Zwischenablage verschieben</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected parts to the clipboard</source>
        <translation>Die ausgewählten Teile in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Add the parts on the clipboard</source>
        <translation>Die Teile aus der Zwischenablage hinzufügen</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Add copies of the selected parts</source>
        <translation>Kopien der ausgewählten Teile hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the selected parts</source>
        <translation>Die ausgewählten Teile löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Select every part of the scene</source>
        <translation>Alle Teile der Szene auswählen</translation>
    </message>
    <message>
        <source>Select Ne&amp;xt</source>
        <translation>&amp;Nächstes auswählen</translation>
    </message>
    <message>
        <source>Select the next part</source>
        <translation>Das nächste Teil auswählen</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious</source>
        <translation>&amp;Vorheriges auswählen</translation>
    </message>
    <message>
        <source>Select the part before</source>
        <translation>Das vorhergehende Teil auswählen</translation>
    </message>
    <message>
        <source>Rotate Le&amp;ft</source>
        <translation>Nach link&amp;s drehen</translation>
    </message>
    <message>
        <source>Turn the selected parts a quarter to the left</source>
        <translation>Die ausgewählten Teile eine Vierteldrehung nach links drehen</translation>
    </message>
    <message>
        <source>R&amp;otate Right</source>
        <translation>Nach re&amp;chts drehen</translation>
    </message>
    <message>
        <source>Turn the selected parts a quarter to the right</source>
        <translation>Die ausgewählten Teile eine Vierteldrehung nach rechts drehen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Show things larger</source>
        <translation>Alles größer zeigen</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show things smaller</source>
        <translation>Alles kleiner zeigen</translation>
    </message>
    <message>
        <source>&amp;Real Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Show things in their real size</source>
        <translation>Alles in seiner wirklichen Größe zeigen</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>Einpa&amp;ssen</translation>
    </message>
    <message>
        <source>Show the whole scene</source>
        <translation>Die ganze Szene zeigen</translation>
    </message>
    <message>
        <source>Open Pop-&amp;up</source>
        <translation>&amp;Pop-up öffnen</translation>
    </message>
    <message>
        <source>Show the pop-up of the selected part</source>
        <translation>Das Pop-up des ausgewählten Teils zeigen</translation>
    </message>
    <message>
        <source>New &amp;Scene</source>
        <translation>Neue &amp;Szene</translation>
    </message>
    <message>
        <source>Add an empty scene</source>
        <translation>Eine leere Szene hinzufügen</translation>
    </message>
    <message>
        <source>Delete S&amp;cene</source>
        <translation>S&amp;zene löschen</translation>
    </message>
    <message>
        <source>Delete the scene on view</source>
        <translation>Die gezeigte Szene löschen</translation>
    </message>
    <message>
        <source>Pa&amp;ge Setup...</source>
        <translation>Sei&amp;te einrichten...</translation>
    </message>
    <message>
        <source>Paper, margins and scale</source>
        <translation>Papier, Ränder und Maßstab</translation>
    </message>
    <message>
        <source>Print Previe&amp;w...</source>
        <translation>Druck&amp;vorschau...</translation>
    </message>
    <message>
        <source>Show the pages as they are printed</source>
        <translation>Die Seiten zeigen, wie sie gedruckt werden</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Print the document</source>
        <translation>Das Dokument drucken</translation>
    </message>
    <message>
        <source>Export to P&amp;DF...</source>
        <translation>Als &amp;PDF ausgeben...</translation>
    </message>
    <message>
        <source>Write the pages into a PDF file</source>
        <translation>Die Seiten in eine PDF-Datei schreiben</translation>
    </message>
    <message>
        <source>E&amp;xport to SVG...</source>
        <translation>Als SV&amp;G ausgeben...</translation>
    </message>
    <message>
        <source>Write the scene on view as a drawing</source>
        <translation>Die gezeigte Szene als Zeichnung schreiben</translation>
    </message>
    <message>
        <source>&amp;Save as Custom Part...</source>
        <translation>Als eigenes &amp;Teil speichern...</translation>
    </message>
    <message>
        <source>Offer the selected part among the parts from now on</source>
        <translation>Das ausgewählte Teil von nun an unter den Teilen anbieten</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>E&amp;instellungen...</translation>
    </message>
    <message>
        <source>How the program works for you</source>
        <translation>Wie das Programm für Sie arbeitet</translation>
    </message>
    <message>
        <source>&amp;Licence...</source>
        <translation>&amp;Lizenz...</translation>
    </message>
    <message>
        <source>Show or enter the licence</source>
        <translation>Die Lizenz zeigen oder eingeben</translation>
    </message>
    <message>
        <source>&amp;About zkauthor</source>
        <translation>Übe&amp;r zkauthor</translation>
    </message>
    <message>
        <source>What this program is</source>
        <translation>Was dieses Programm ist</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>Ab&amp;lauf</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Badge</source>
        <translation>Plakette</translation>
    </message>
    <message>
        <source>C&amp;lose Pop-up</source>
        <translation>Pop-up schl&amp;ießen</translation>
    </message>
    <message>
        <source>Close the pop-up on view</source>
        <translation>Das gezeigte Pop-up schließen</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Read how things are done</source>
        <translation>Nachlesen, wie es gemacht wird</translation>
    </message>
</context>
<context>
    <name>AddCustomPartDialog</name>
    <message>
        <source>Add custom part</source>
        <translation>Eigenes Teil hinzufügen</translation>
    </message>
    <message>
        <source>Part &amp;name:</source>
        <translation>&amp;Name des Teils:</translation>
    </message>
    <message>
        <source>The part name must be unique and can contain no spaces.</source>
        <translation>Der Name des Teils muss eindeutig sein und darf keine Leerzeichen enthalten.</translation>
    </message>
    <message>
        <source>Part &amp;label:</source>
        <translation>&amp;Beschriftung des Teils:</translation>
    </message>
    <message>
        <source>The part label appears in the part tree.</source>
        <translation>Die Beschriftung des Teils erscheint im Baum der Teile.</translation>
    </message>
    <message>
        <source>Part &amp;group:</source>
        <translation>&amp;Gruppe des Teils:</translation>
    </message>
    <message>
        <source>The part group defines part tree folder the part appears in.</source>
        <translation>Die Gruppe des Teils bestimmt den Ordner im Baum der Teile, in dem das Teil erscheint.</translation>
    </message>
    <message>
        <source>Part &amp;level:</source>
        <translation>&amp;Stufe des Teils:</translation>
    </message>
    <message>
        <source>This define&apos;s the part&apos;s educational level, e.g. keystate.</source>
        <translation>Bestimmt die Lernstufe des Teils, zum Beispiel die Klassenstufe.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>The part id %1 is already in use.
Please enter another id</source>
        <translation>Die Kennung %1 ist schon vergeben.
Bitte geben Sie eine andere Kennung ein</translation>
    </message>
</context>
<context>
    <name>AddNodesCommand</name>
    <message numerus="yes">
        <source>Adding of %n object(s)</source>
        <translation>
            <numerusform>Hinzufügen von %n Objekt</numerusform>
            <numerusform>Hinzufügen von %n Objekten</numerusform>
        </translation>
    </message>
    <message>
        <source>The place to add to is not there any more.</source>
        <translation>Der Ort, an dem hinzugefügt werden soll, ist nicht mehr da.</translation>
    </message>
    <message>
        <source>An object of the class &quot;%1&quot; cannot stand there.</source>
        <translation>Ein Objekt der Klasse &quot;%1&quot; kann dort nicht stehen.</translation>
    </message>
    <message>
        <source>An instance id is in use already.</source>
        <translation>Eine Instanznummer ist schon vergeben.</translation>
    </message>
    <message>
        <source>Adding of a part</source>
        <translation>Hinzufügen eines Teils</translation>
    </message>
    <message>
        <source>There is no such kind of part.</source>
        <translation>Eine solche Art von Teil gibt es nicht.</translation>
    </message>
    <message>
        <source>Adding of a subpart</source>
        <translation>Hinzufügen eines Unterteils</translation>
    </message>
    <message>
        <source>The part is not there any more.</source>
        <translation>Das Teil ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The part cannot have a subpart of the class &quot;%1&quot;.</source>
        <translation>Das Teil kann kein Unterteil der Klasse &quot;%1&quot; haben.</translation>
    </message>
    <message>
        <source>The part has all the subparts of that role that it can have.</source>
        <translation>Das Teil hat schon alle Unterteile dieser Rolle, die es haben kann.</translation>
    </message>
    <message>
        <source>Adding of a scene</source>
        <translation>Hinzufügen einer Szene</translation>
    </message>
    <message>
        <source>The document has no more instance ids for new objects.</source>
        <translation>Das Dokument hat keine freien Instanznummern für neue Objekte mehr.</translation>
    </message>
</context>
<context>
    <name>AddResourceCommand</name>
    <message>
        <source>Import of %1</source>
        <translation>Import von %1</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Es gibt nichts zu importieren.</translation>
    </message>
</context>
<context>
    <name>AdvancedPalette</name>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Click Action</source>
        <translation>Aktion beim Klicken</translation>
    </message>
    <message>
        <source>Duplication</source>
        <translation>Vervielfältigung</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>Pop-up</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Show the pop-up</source>
        <translation>Das Pop-up zeigen</translation>
    </message>
    <message>
        <source>Open a link</source>
        <translation>Einen Link öffnen</translation>
    </message>
    <message>
        <source>Show a scene</source>
        <translation>Eine Szene zeigen</translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation>&amp;Link</translation>
    </message>
    <message>
        <source>&amp;Scene</source>
        <translation>&amp;Szene</translation>
    </message>
    <message>
        <source>Clic&amp;k</source>
        <translation>&amp;Klick</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>K&amp;opien</translation>
    </message>
    <message>
        <source>Offset ri&amp;ght</source>
        <translation>Versatz nach &amp;rechts</translation>
    </message>
    <message>
        <source>Offset &amp;down</source>
        <translation>Versatz nach &amp;unten</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>Dupl&amp;izieren</translation>
    </message>
    <message>
        <source>Adds the copies, each beside the one before it</source>
        <translation>Fügt die Kopien hinzu, jede neben der vorhergehenden</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Kein</translation>
    </message>
    <message>
        <source>What is selected has no pop-up</source>
        <translation>Was ausgewählt ist, hat kein Pop-up</translation>
    </message>
    <message>
        <source>Select a part to see its pop-up</source>
        <translation>Wählen Sie ein Teil aus, um sein Pop-up zu sehen</translation>
    </message>
    <message>
        <source>Show &amp;Pop-up</source>
        <translation>Pop-up &amp;zeigen</translation>
    </message>
    <message>
        <source>Opens when the &amp;mouse rests on it</source>
        <translation>Öffnet sich, wenn die &amp;Maus darauf ruht</translation>
    </message>
    <message>
        <source>Opens the pop-up without a click.</source>
        <translation>Öffnet das Pop-up ohne Klick.</translation>
    </message>
    <message>
        <source>Goes away &amp;after reading</source>
        <translation>Verschwindet &amp;nach dem Lesen</translation>
    </message>
    <message>
        <source>Hides the button once its pop-up has been closed.</source>
        <translation>Verbirgt den Knopf, sobald sein Pop-up geschlossen wurde.</translation>
    </message>
</context>
<context>
    <name>AssocPalette</name>
    <message>
        <source>Associations</source>
        <translation>Beziehungen</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Verknüpfungen</translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation>Unterteile</translation>
    </message>
    <message>
        <source>Reflections</source>
        <translation>Spiegelbilder</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>Pop-up</translation>
    </message>
    <message>
        <source>Select a part to see what it has to do with.</source>
        <translation>Wählen Sie ein Teil aus, um zu sehen, womit es zu tun hat.</translation>
    </message>
    <message>
        <source>Multiple parts selected</source>
        <translation>Mehrere Teile ausgewählt</translation>
    </message>
    <message>
        <source>New Link</source>
        <translation>Neue Verknüpfung</translation>
    </message>
</context>
<context>
    <name>AssociationList</name>
    <message>
        <source>Remove the reflection</source>
        <translation>Das Spiegelbild entfernen</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Kein</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>Associations</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Follows</source>
        <translation>Folgt</translation>
    </message>
    <message>
        <source>Followed by</source>
        <translation>Gefolgt von</translation>
    </message>
    <message>
        <source>%1 of %2 follows %3 of %4</source>
        <translation>%1 von %2 folgt %3 von %4</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Bedienelemente</translation>
    </message>
    <message>
        <source>Pads</source>
        <translation>Lötpunkte</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Körper</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>Pop-up</translation>
    </message>
    <message>
        <source>Parts in it</source>
        <translation>Teile darin</translation>
    </message>
    <message>
        <source>Refers to</source>
        <translation>Verweist auf</translation>
    </message>
    <message>
        <source>Reflection of</source>
        <translation>Spiegelbild von</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
</context>
<context>
    <name>BrandWidget</name>
    <message>
        <source>About the product</source>
        <translation>Über das Produkt</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Dim grey</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Silver</source>
        <translation>Silber</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>Kastanienbraun</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Limone</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Oliv</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Petrol</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Marineblau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Purpur</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>Indigo</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Dunkelrot</translation>
    </message>
    <message>
        <source>Light red</source>
        <translation>Hellrot</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>Hellorange</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Dunkelgelb</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>Hellgelb</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Dunkelgrün</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Hellgrün</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>Dunkles Cyan</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Helles Cyan</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Dunkelblau</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>Dark violet</source>
        <translation>Dunkelviolett</translation>
    </message>
    <message>
        <source>Light violet</source>
        <translation>Hellviolett</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>Dunkles Magenta</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Durchsichtig</translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Standard colours</source>
        <translation>Standardfarben</translation>
    </message>
    <message>
        <source>Colours in this document</source>
        <translation>Farben in diesem Dokument</translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation>&amp;Weitere...</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>Dokumenttyp-Deklarationen sind nicht erlaubt</translation>
    </message>
    <message>
        <source>this is no recorded session</source>
        <translation>das ist keine aufgezeichnete Sitzung</translation>
    </message>
    <message>
        <source>the format version is missing or not known</source>
        <translation>die Formatversion fehlt oder ist nicht bekannt</translation>
    </message>
    <message>
        <source>there is no command &lt;%1&gt;</source>
        <translation>es gibt keinen Befehl &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the content of &lt;%1&gt; is faulty</source>
        <translation>der Inhalt von &lt;%1&gt; ist fehlerhaft</translation>
    </message>
    <message>
        <source>&lt;%1&gt; failed: %2</source>
        <translation>&lt;%1&gt; ist gescheitert: %2</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>es gibt nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>es gibt nichts wiederherzustellen</translation>
    </message>
</context>
<context>
    <name>CommandLogPane</name>
    <message>
        <source>Re&amp;cord</source>
        <translation>&amp;Aufzeichnen</translation>
    </message>
    <message>
        <source>&amp;Save Recording...</source>
        <translation>Aufzeichnung &amp;speichern...</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>No command was given yet.</source>
        <translation>Es wurde noch kein Befehl gegeben.</translation>
    </message>
    <message>
        <source>Record what is done to the document from now on</source>
        <translation>Von nun an aufzeichnen, was mit dem Dokument geschieht</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Save Recording</source>
        <translation>Aufzeichnung speichern</translation>
    </message>
    <message>
        <source>Recorded sessions (*.xml)</source>
        <translation>Aufgezeichnete Sitzungen (*.xml)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>ConfirmingObserverCheckBox</name>
    <message>
        <source>Change property value</source>
        <translation>Wert der Eigenschaft ändern</translation>
    </message>
</context>
<context>
    <name>DebugConsole</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>DebugPalette</name>
    <message>
        <source>Debugging</source>
        <translation>Fehlersuche</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Nichts ist ausgewählt.</translation>
    </message>
    <message>
        <source>%1 (the first of %2 selected)</source>
        <translation>%1 (das erste von %2 ausgewählten)</translation>
    </message>
</context>
<context>
    <name>DeleteNodeCommand</name>
    <message>
        <source>Deletion of %1</source>
        <translation>Löschen von %1</translation>
    </message>
    <message numerus="yes">
        <source>Deletion of %n object(s)</source>
        <translation>
            <numerusform>Löschen von %n Objekt</numerusform>
            <numerusform>Löschen von %n Objekten</numerusform>
        </translation>
    </message>
    <message>
        <source>The object is not there any more.</source>
        <translation>Das Objekt ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The document itself and pop-ups cannot be deleted.</source>
        <translation>Das Dokument selbst und Pop-ups können nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The subpart belongs to its part and cannot be deleted.</source>
        <translation>Das Unterteil gehört zu seinem Teil und kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The last scene cannot be deleted.</source>
        <translation>Die letzte Szene kann nicht gelöscht werden.</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>this is no document</source>
        <translation>das ist kein Dokument</translation>
    </message>
    <message>
        <source>this is no document: it begins with &lt;%1&gt;</source>
        <translation>das ist kein Dokument: es beginnt mit &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the document has no model</source>
        <translation>das Dokument hat kein Modell</translation>
    </message>
    <message>
        <source>the format version is missing or no number</source>
        <translation>die Formatversion fehlt oder ist keine Zahl</translation>
    </message>
    <message>
        <source>the format version is %1; this program reads versions up to %2</source>
        <translation>die Formatversion ist %1; dieses Programm liest Versionen bis %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no instance id</source>
        <translation>&quot;%1&quot; ist keine Instanznummer</translation>
    </message>
    <message>
        <source>a document has one model only</source>
        <translation>ein Dokument hat nur ein Modell</translation>
    </message>
    <message>
        <source>the document has no scene</source>
        <translation>das Dokument hat keine Szene</translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot stand here</source>
        <translation>&lt;%1&gt; kann hier nicht stehen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a document&apos;s resource</source>
        <translation>&quot;%1&quot; ist kein Name einer Ressource des Dokuments</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of resource</source>
        <translation>&quot;%1&quot; ist kein Ressourcentyp</translation>
    </message>
    <message>
        <source>resource &quot;%1&quot; is there twice</source>
        <translation>die Ressource &quot;%1&quot; ist zweimal da</translation>
    </message>
    <message>
        <source>only text can stand here</source>
        <translation>hier kann nur Text stehen</translation>
    </message>
    <message>
        <source>resource &quot;%1&quot; is larger than 64 MB</source>
        <translation>die Ressource &quot;%1&quot; ist größer als 64 MB</translation>
    </message>
    <message>
        <source>the data of resource &quot;%1&quot; are damaged</source>
        <translation>die Daten der Ressource &quot;%1&quot; sind beschädigt</translation>
    </message>
    <message>
        <source>the next instance id was %1, which is too low; it is %2 now</source>
        <translation>die nächste Instanznummer war %1, das ist zu klein; jetzt ist sie %2</translation>
    </message>
    <message>
        <source>nodes are nested deeper than %1</source>
        <translation>Knoten sind tiefer als %1 geschachtelt</translation>
    </message>
    <message>
        <source>this is no fragment</source>
        <translation>das ist kein Ausschnitt</translation>
    </message>
    <message>
        <source>the format version is missing or not known</source>
        <translation>die Formatversion fehlt oder ist nicht bekannt</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n more warning(s) left out</source>
        <translation>
            <numerusform>%1 %n weitere Warnung weggelassen</numerusform>
            <numerusform>%1 %n weitere Warnungen weggelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>attribute &quot;%1&quot; of &lt;%2&gt; is not known and was dropped</source>
        <translation>das Attribut &quot;%1&quot; von &lt;%2&gt; ist nicht bekannt und wurde weggelassen</translation>
    </message>
    <message>
        <source>the class is missing</source>
        <translation>die Klasse fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no domain</source>
        <translation>&quot;%1&quot; nennt keine Domäne</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is not known</source>
        <translation>die Klasse &quot;%1&quot; ist nicht bekannt</translation>
    </message>
    <message>
        <source>more than %1 classes are not known</source>
        <translation>mehr als %1 Klassen sind nicht bekannt</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is not known; kept as it is</source>
        <translation>die Klasse &quot;%1&quot; ist nicht bekannt; bleibt erhalten, wie sie ist</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is of another kind than &lt;%2&gt;</source>
        <translation>die Klasse &quot;%1&quot; ist von anderer Art als &lt;%2&gt;</translation>
    </message>
    <message>
        <source>instance id %1 is used twice</source>
        <translation>die Instanznummer %1 wird zweimal benutzt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no lock</source>
        <translation>&quot;%1&quot; ist keine Sperre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>&quot;%1&quot; ist weder true noch false</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of reflection</source>
        <translation>&quot;%1&quot; ist keine Art von Spiegelbild</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no class</source>
        <translation>&lt;%1&gt; hat keine Klasse</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no instance id</source>
        <translation>&lt;%1&gt; hat keine Instanznummer</translation>
    </message>
    <message>
        <source>a reflection needs both what it reflects and which kind it is</source>
        <translation>ein Spiegelbild braucht sowohl das, was es spiegelt, als auch seine Art</translation>
    </message>
    <message numerus="yes">
        <source>there are more than %n nodes</source>
        <translation>
            <numerusform>es gibt mehr als %n Knoten</numerusform>
            <numerusform>es gibt mehr als %n Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>&lt;%1&gt; is no node</source>
        <translation>&lt;%1&gt; ist kein Knoten</translation>
    </message>
    <message>
        <source>text cannot stand here</source>
        <translation>Text kann hier nicht stehen</translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>Dokumenttyp-Deklarationen sind nicht erlaubt</translation>
    </message>
    <message>
        <source>this cannot stand here</source>
        <translation>das kann hier nicht stehen</translation>
    </message>
    <message>
        <source>nothing can stand after the end of the document</source>
        <translation>nach dem Ende des Dokuments kann nichts stehen</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not known; kept as it is</source>
        <translation>&lt;%1&gt; ist nicht bekannt; bleibt erhalten, wie es ist</translation>
    </message>
    <message>
        <source>a part has one pop-up only</source>
        <translation>ein Teil hat nur ein Pop-up</translation>
    </message>
    <message>
        <source>&lt;value&gt; has no key</source>
        <translation>&lt;value&gt; hat keinen Schlüssel</translation>
    </message>
    <message>
        <source>a proxy needs both a node and a key to follow</source>
        <translation>eine Verknüpfung braucht sowohl einen Knoten als auch einen Schlüssel, dem sie folgt</translation>
    </message>
    <message>
        <source>the text of a value is longer than 64 MB</source>
        <translation>der Text eines Werts ist länger als 64 MB</translation>
    </message>
    <message>
        <source>this is no %1</source>
        <translation>das ist nicht vom Typ %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no %2 (property &quot;%3&quot;)</source>
        <translation>&quot;%1&quot; ist nicht vom Typ %2 (Eigenschaft &quot;%3&quot;)</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; has no property &quot;%2&quot;; kept as it is</source>
        <translation>die Klasse &quot;%1&quot; hat keine Eigenschaft &quot;%2&quot;; bleibt erhalten, wie sie ist</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; is not kept in files; dropped</source>
        <translation>die Eigenschaft &quot;%1&quot; wird nicht in Dateien gehalten; weggelassen</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; is given twice; the first value counts</source>
        <translation>die Eigenschaft &quot;%1&quot; ist zweimal angegeben; der erste Wert gilt</translation>
    </message>
    <message>
        <source>the value of property &quot;%1&quot; is not allowed; kept: %2</source>
        <translation>der Wert der Eigenschaft &quot;%1&quot; ist nicht erlaubt; behalten: %2</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is used twice; kept</source>
        <translation>die Kennung &quot;%1&quot; wird zweimal benutzt; behalten</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; of node %2 follows itself, directly or through others</source>
        <translation>die Eigenschaft &quot;%1&quot; des Knotens %2 folgt sich selbst, unmittelbar oder über andere</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; follows one that is not there (&quot;%2&quot; of node %3); kept as it is</source>
        <translation>die Eigenschaft &quot;%1&quot; folgt einer, die nicht da ist (&quot;%2&quot; des Knotens %3); bleibt erhalten, wie sie ist</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; (%2) cannot follow &quot;%3&quot; (%4)</source>
        <translation>die Eigenschaft &quot;%1&quot; (%2) kann &quot;%3&quot; (%4) nicht folgen</translation>
    </message>
    <message>
        <source>node %1, which is reflected here, is not there; kept as it is</source>
        <translation>der Knoten %1, der hier gespiegelt wird, ist nicht da; bleibt erhalten, wie er ist</translation>
    </message>
    <message>
        <source>elements are nested too deep</source>
        <translation>die Elemente sind zu tief geschachtelt</translation>
    </message>
    <message>
        <source>an unknown element is longer than 64 MB</source>
        <translation>ein unbekanntes Element ist länger als 64 MB</translation>
    </message>
</context>
<context>
    <name>DocumentFiles</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Changes not saved</source>
        <translation>Änderungen nicht gespeichert</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Die Änderungen an %1 speichern?</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation>%1 konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Lose all changes made since %1 was last saved?</source>
        <translation>Alle Änderungen verlieren, seit %1 zuletzt gespeichert wurde?</translation>
    </message>
    <message>
        <source>Changed by another program</source>
        <translation>Von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Saving replaces what it wrote.</source>
        <translation>Speichern ersetzt, was es geschrieben hat.</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Nothing is kept for recovery: %1</source>
        <translation>Für eine Wiederherstellung wird nichts aufbewahrt: %1</translation>
    </message>
    <message>
        <source>The document cannot be recovered.</source>
        <translation>Das Dokument kann nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>%1
The file is now %2.</source>
        <translation>%1
Die Datei ist jetzt %2.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Lose what can be recovered?</source>
        <translation>Verlieren, was wiederhergestellt werden kann?</translation>
    </message>
</context>
<context>
    <name>DocumentImpl</name>
    <message>
        <source>There is no such part.</source>
        <translation>Ein solches Teil gibt es nicht.</translation>
    </message>
    <message>
        <source>The id names no class of a domain.</source>
        <translation>Die Kennung nennt keine Klasse einer Domäne.</translation>
    </message>
    <message>
        <source>The id is already in use.</source>
        <translation>Die Kennung ist schon vergeben.</translation>
    </message>
    <message>
        <source>Nothing can be changed while an undo or redo is under way.</source>
        <translation>Während rückgängig gemacht oder wiederhergestellt wird, kann nichts geändert werden.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ExpressionParser</name>
    <message>
        <source>The expression is not complete.</source>
        <translation>Der Ausdruck ist nicht vollständig.</translation>
    </message>
    <message>
        <source>A closing bracket is missing.</source>
        <translation>Es fehlt eine schließende Klammer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not known.</source>
        <translation>&quot;%1&quot; an Stelle %2 ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The function before position %1 takes another number of arguments.</source>
        <translation>Die Funktion vor Stelle %1 nimmt eine andere Zahl von Argumenten.</translation>
    </message>
    <message>
        <source>The expression is not correct at position %1.</source>
        <translation>Der Ausdruck ist an Stelle %1 nicht richtig.</translation>
    </message>
    <message>
        <source>The result is not a number.</source>
        <translation>Das Ergebnis ist keine Zahl.</translation>
    </message>
    <message>
        <source>The result is too large, or something is divided by zero.</source>
        <translation>Das Ergebnis ist zu groß, oder es wird durch null geteilt.</translation>
    </message>
    <message>
        <source>The expression is too long.</source>
        <translation>Der Ausdruck ist zu lang.</translation>
    </message>
    <message>
        <source>There is no number.</source>
        <translation>Hier ist keine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not a unit that can be converted to %3.</source>
        <translation>&quot;%1&quot; an Stelle %2 ist keine Einheit, die in %3 umgerechnet werden kann.</translation>
    </message>
    <message>
        <source>Too many brackets are open.</source>
        <translation>Zu viele Klammern sind offen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not expected there.</source>
        <translation>&quot;%1&quot; wird an Stelle %2 nicht erwartet.</translation>
    </message>
</context>
<context>
    <name>FlowchartBar</name>
    <message>
        <source>Flowcharts</source>
        <translation>Ablaufpläne</translation>
    </message>
    <message>
        <source>&amp;Run Flowcharts</source>
        <translation>Ablaufpläne &amp;ausführen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Start the flowcharts, or stop them</source>
        <translation>Die Ablaufpläne starten oder anhalten</translation>
    </message>
    <message>
        <source>Run flowcharts</source>
        <translation>Ablaufpläne ausführen</translation>
    </message>
    <message>
        <source>Start the flowcharts, or stop them (F5)</source>
        <translation>Die Ablaufpläne starten oder anhalten (F5)</translation>
    </message>
    <message>
        <source>All flowcharts have come to their end.</source>
        <translation>Alle Ablaufpläne sind an ihr Ende gekommen.</translation>
    </message>
    <message>
        <source>There is no flowchart in this document: add a start block first.</source>
        <translation>In diesem Dokument gibt es keinen Ablaufplan: fügen Sie zuerst einen Startblock hinzu.</translation>
    </message>
    <message>
        <source>Flowchart</source>
        <translation>Ablaufplan</translation>
    </message>
</context>
<context>
    <name>FlowchartRunner</name>
    <message>
        <source>The block &quot;%1&quot; waits for &quot;%2&quot;, but nothing has that output name.</source>
        <translation>Der Block &quot;%1&quot; wartet auf &quot;%2&quot;, aber nichts hat diesen Ausgangsnamen.</translation>
    </message>
    <message>
        <source>The chart leads to &quot;%1&quot;, which is no block.</source>
        <translation>Der Plan führt zu &quot;%1&quot;, das ist kein Block.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; switches &quot;%2&quot;, but nothing has that output name.</source>
        <translation>Der Block &quot;%1&quot; schaltet &quot;%2&quot;, aber nichts hat diesen Ausgangsnamen.</translation>
    </message>
    <message>
        <source>Nothing follows the block &quot;%1&quot;: the chart ends there.</source>
        <translation>Dem Block &quot;%1&quot; folgt nichts: der Plan endet dort.</translation>
    </message>
    <message>
        <source>Nothing follows one of the answers of &quot;%1&quot;: the chart ends there.</source>
        <translation>Einer der Antworten von &quot;%1&quot; folgt nichts: der Plan endet dort.</translation>
    </message>
    <message>
        <source>The procedure &quot;%1&quot; has no start block in its pop-up.</source>
        <translation>Das Unterprogramm &quot;%1&quot; hat keinen Startblock in seinem Pop-up.</translation>
    </message>
    <message>
        <source>The procedure &quot;%1&quot; calls itself again and again.</source>
        <translation>Das Unterprogramm &quot;%1&quot; ruft sich immer wieder selbst auf.</translation>
    </message>
    <message>
        <source>The decision &quot;%1&quot; does not say what it asks.</source>
        <translation>Die Entscheidung &quot;%1&quot; sagt nicht, wonach sie fragt.</translation>
    </message>
    <message>
        <source>The decision &quot;%1&quot; asks &quot;%2&quot;, but nothing has that output name.</source>
        <translation>Die Entscheidung &quot;%1&quot; fragt nach &quot;%2&quot;, aber nichts hat diesen Ausgangsnamen.</translation>
    </message>
</context>
<context>
    <name>FlowchartSpeedWidget</name>
    <message>
        <source>Speed of the flowcharts</source>
        <translation>Geschwindigkeit der Ablaufpläne</translation>
    </message>
    <message>
        <source>How fast the flowcharts run</source>
        <translation>Wie schnell die Ablaufpläne laufen</translation>
    </message>
    <message>
        <source>Flowcharts:</source>
        <translation>Ablaufpläne:</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Run the next block</source>
        <translation>Den nächsten Block ausführen</translation>
    </message>
</context>
<context>
    <name>FontChooser</name>
    <message>
        <source>Light</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Half bold</source>
        <translation>Halbfett</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Extrafett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>AaBbYyZz 123</source>
        <translation>AaBbYyZz 123</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Schriftprobe</translation>
    </message>
    <message>
        <source>All fonts...</source>
        <translation>Alle Schriften...</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>%1, family</source>
        <translation>%1, Schriftfamilie</translation>
    </message>
    <message>
        <source>%1, size in points</source>
        <translation>%1, Größe in Punkt</translation>
    </message>
    <message>
        <source>Size in points</source>
        <translation>Größe in Punkt</translation>
    </message>
    <message>
        <source>%1, weight</source>
        <translation>%1, Strichstärke</translation>
    </message>
    <message>
        <source>%1, italic</source>
        <translation>%1, kursiv</translation>
    </message>
    <message>
        <source>The size is a number from 1 to 1000.</source>
        <translation>Die Größe ist eine Zahl von 1 bis 1000.</translation>
    </message>
</context>
<context>
    <name>FormChecker</name>
    <message>
        <source>scenes and pop-ups have no subparts to choose from</source>
        <translation>Szenen und Pop-ups haben keine Unterteile zur Auswahl</translation>
    </message>
    <message>
        <source>the list stays empty: nodes of the class have no such subparts, and none can be added</source>
        <translation>die Liste bleibt leer: Knoten der Klasse haben keine solchen Unterteile, und es können keine hinzugefügt werden</translation>
    </message>
    <message>
        <source>there is no property &quot;%1&quot; to bind</source>
        <translation>es gibt keine Eigenschaft &quot;%1&quot; zu binden</translation>
    </message>
    <message>
        <source>there is no property &quot;%1&quot; to bind; did you mean &quot;%2&quot;?</source>
        <translation>es gibt keine Eigenschaft &quot;%1&quot; zu binden; meinten Sie &quot;%2&quot;?</translation>
    </message>
    <message>
        <source>the key of the property to bind is missing</source>
        <translation>der Schlüssel der zu bindenden Eigenschaft fehlt</translation>
    </message>
    <message>
        <source>there are no subparts &quot;%1&quot; to bind</source>
        <translation>es gibt keine Unterteile &quot;%1&quot; zu binden</translation>
    </message>
    <message>
        <source>not all subparts that can be chosen have the property &quot;%1&quot;</source>
        <translation>nicht alle Unterteile, die gewählt werden können, haben die Eigenschaft &quot;%1&quot;</translation>
    </message>
    <message>
        <source>new nodes have no subparts &quot;%1&quot;: the form is not shown for them</source>
        <translation>neue Knoten haben keine Unterteile &quot;%1&quot;: das Formular wird für sie nicht gezeigt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the type %2, but the control takes %3</source>
        <translation>&quot;%1&quot; ist vom Typ %2, das Bedienelement nimmt aber %3</translation>
    </message>
    <message>
        <source>the values that &quot;%1&quot; may take cannot be listed</source>
        <translation>die Werte, die &quot;%1&quot; annehmen darf, lassen sich nicht aufzählen</translation>
    </message>
    <message>
        <source>the button stands for nothing in the group &apos;%1&apos;: %2</source>
        <translation>der Knopf steht für nichts in der Gruppe &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>the name is taken by what begins in line %1: connections and buddies find only one of them</source>
        <translation>den Namen hat schon, was in Zeile %1 beginnt: Verbindungen und Partner finden nur eines von beiden</translation>
    </message>
    <message>
        <source>a widget of this class keeps what is in it to itself: the top widget of a form has to be a QWidget</source>
        <translation>ein Element dieser Klasse behält seinen Inhalt für sich: das oberste Element eines Formulars muss ein QWidget sein</translation>
    </message>
    <message>
        <source>the form has no section: directly in its top widget there must be a PaletteBoxSection</source>
        <translation>das Formular hat keinen Abschnitt: direkt in seinem obersten Element muss eine PaletteBoxSection stehen</translation>
    </message>
    <message>
        <source>it stands outside all sections and is never shown</source>
        <translation>es steht außerhalb aller Abschnitte und wird nie gezeigt</translation>
    </message>
    <message>
        <source>the class is missing</source>
        <translation>die Klasse fehlt</translation>
    </message>
    <message>
        <source>there is no such class</source>
        <translation>es gibt keine solche Klasse</translation>
    </message>
    <message>
        <source>there is no such class; did you mean %1?</source>
        <translation>es gibt keine solche Klasse; meinten Sie %1?</translation>
    </message>
    <message>
        <source>there is no such class; a %1, which it refines, is shown in its place</source>
        <translation>es gibt keine solche Klasse; an ihrer Stelle wird %1 gezeigt, das sie verfeinert</translation>
    </message>
    <message>
        <source>the class has no such property</source>
        <translation>die Klasse hat keine solche Eigenschaft</translation>
    </message>
    <message>
        <source>the class has no such property; did you mean &quot;%1&quot;?</source>
        <translation>die Klasse hat keine solche Eigenschaft; meinten Sie &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>there is no value; &lt;%1&gt; is needed</source>
        <translation>der Wert fehlt; nötig ist &lt;%1&gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is given where &lt;%2&gt; is needed</source>
        <translation>&lt;%1&gt; steht, wo &lt;%2&gt; nötig ist</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>at most %1 are possible</source>
        <translation>höchstens %1 sind möglich</translation>
    </message>
    <message>
        <source>%1 is neither &quot;true&quot; nor &quot;false&quot;</source>
        <translation>%1 ist weder &quot;true&quot; noch &quot;false&quot;</translation>
    </message>
    <message>
        <source>%1 is none of %2</source>
        <translation>%1 gehört nicht zu %2</translation>
    </message>
    <message>
        <source>the picture %1 is no resource of the program: whether it is found depends on the folder in which the program is started</source>
        <translation>das Bild %1 ist keine Ressource des Programms: ob es gefunden wird, hängt vom Ordner ab, in dem das Programm gestartet wird</translation>
    </message>
    <message>
        <source>there is no picture %1</source>
        <translation>es gibt kein Bild %1</translation>
    </message>
    <message>
        <source>there is no widget %1</source>
        <translation>es gibt kein Element %1</translation>
    </message>
    <message>
        <source>there is no widget %1; did you mean &quot;%2&quot;?</source>
        <translation>es gibt kein Element %1; meinten Sie &quot;%2&quot;?</translation>
    </message>
    <message>
        <source>the text is missing: a control over two texts needs both, not empty</source>
        <translation>der Text fehlt: ein Bedienelement für zwei Texte braucht beide, und keinen leeren</translation>
    </message>
    <message>
        <source>the signal %1 does not bring what the slot %2 takes</source>
        <translation>das Signal %1 bringt nicht, was der Slot %2 nimmt</translation>
    </message>
    <message>
        <source>the connection leads nowhere: there is no widget %1</source>
        <translation>die Verbindung führt ins Leere: es gibt kein Element %1</translation>
    </message>
    <message>
        <source>the connection leads nowhere: there is no widget %1; did you mean &quot;%2&quot;?</source>
        <translation>die Verbindung führt ins Leere: es gibt kein Element %1; meinten Sie &quot;%2&quot;?</translation>
    </message>
    <message>
        <source>the connection leads nowhere: the class has no signal %1</source>
        <translation>die Verbindung führt ins Leere: die Klasse hat kein Signal %1</translation>
    </message>
    <message>
        <source>the connection leads nowhere: the class has no slot %1</source>
        <translation>die Verbindung führt ins Leere: die Klasse hat keinen Slot %1</translation>
    </message>
    <message>
        <source>the connection closes a circle: %1 would switch itself for ever</source>
        <translation>die Verbindung schließt einen Kreis: %1 würde sich ewig selbst schalten</translation>
    </message>
    <message>
        <source>the tab order names %1, but there is no such widget</source>
        <translation>die Tabulatorfolge nennt %1, aber ein solches Element gibt es nicht</translation>
    </message>
    <message>
        <source>the list stays empty: the property needs a validator of the kind &quot;set&quot;</source>
        <translation>die Liste bleibt leer: die Eigenschaft braucht eine Prüfregel der Art &quot;set&quot;</translation>
    </message>
    <message>
        <source>the list stays empty: the property&apos;s validator allows no value</source>
        <translation>die Liste bleibt leer: die Prüfregel der Eigenschaft lässt keinen Wert zu</translation>
    </message>
    <message>
        <source>the list stays empty: the property needs a validator of the kind &quot;resources&quot;</source>
        <translation>die Liste bleibt leer: die Eigenschaft braucht eine Prüfregel der Art &quot;resources&quot;</translation>
    </message>
    <message>
        <source>no unit is shown: the property has neither a unit nor a format with units</source>
        <translation>es wird keine Einheit gezeigt: die Eigenschaft hat weder eine Einheit noch ein Format mit Einheiten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>&quot;%1&quot; ist kein Wert vom Typ %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value that the property may take</source>
        <translation>&quot;%1&quot; ist kein Wert, den die Eigenschaft annehmen darf</translation>
    </message>
</context>
<context>
    <name>FormDescription</name>
    <message>
        <source>the form has more than %1 widgets, layouts and connections</source>
        <translation>das Formular hat mehr als %1 Elemente, Anordnungen und Verbindungen</translation>
    </message>
    <message>
        <source>the elements are nested more than %1 deep</source>
        <translation>die Elemente sind tiefer als %1 verschachtelt</translation>
    </message>
    <message>
        <source>document types and entities are not understood</source>
        <translation>Dokumenttypen und Entitäten werden nicht verstanden</translation>
    </message>
    <message>
        <source>this is no form but &lt;%1&gt;</source>
        <translation>das ist kein Formular, sondern &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the form has no widget</source>
        <translation>das Formular hat kein Element</translation>
    </message>
    <message>
        <source>the form has the version %1, 4.0 is needed</source>
        <translation>das Formular hat die Version %1, nötig ist 4.0</translation>
    </message>
    <message>
        <source>a form has one top widget, this is the second</source>
        <translation>ein Formular hat ein oberstes Element, dies ist das zweite</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no %2 of a grid; at most %3 are possible</source>
        <translation>&quot;%1&quot; ist keine %2 eines Rasters; höchstens %3 sind möglich</translation>
    </message>
    <message>
        <source>%1 is larger than anything that can be shown</source>
        <translation>%1 ist größer als alles, was gezeigt werden kann</translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; refines itself</source>
        <translation>die Klasse &quot;%1&quot; verfeinert sich selbst</translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; refines too many others</source>
        <translation>die Klasse &quot;%1&quot; verfeinert zu viele andere</translation>
    </message>
    <message>
        <source>the form is larger than %1 MB</source>
        <translation>das Formular ist größer als %1 MB</translation>
    </message>
</context>
<context>
    <name>FormFaultSection</name>
    <message>
        <source>Faulty Form</source>
        <translation>Fehlerhaftes Formular</translation>
    </message>
    <message>
        <source>The form &quot;%1&quot; is faulty and is not shown. What its author has to mend:</source>
        <translation>Das Formular &quot;%1&quot; ist fehlerhaft und wird nicht gezeigt. Was sein Verfasser zu beheben hat:</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormGate</name>
    <message>
        <source>there is no form of this name</source>
        <translation>es gibt kein Formular dieses Namens</translation>
    </message>
    <message>
        <source>what is selected has no subpart &quot;%1&quot; with the property &quot;%2&quot;</source>
        <translation>was ausgewählt ist, hat kein Unterteil &quot;%1&quot; mit der Eigenschaft &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the toolkit cannot read the form, or makes no section of it directly in its top widget</source>
        <translation>die Bibliothek kann das Formular nicht lesen oder macht daraus keinen Abschnitt direkt im obersten Element</translation>
    </message>
</context>
<context>
    <name>GetCustomPartLabel</name>
    <message>
        <source>Choose custom part label</source>
        <translation>Beschriftung des eigenen Teils wählen</translation>
    </message>
    <message>
        <source>Part &amp;label:</source>
        <translation>&amp;Beschriftung des Teils:</translation>
    </message>
    <message>
        <source>The part label appears in the part tree.</source>
        <translation>Die Beschriftung des Teils erscheint im Baum der Teile.</translation>
    </message>
    <message>
        <source>&amp;Save Part</source>
        <translation>Teil &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation>&amp;Inhalt</translation>
    </message>
</context>
<context>
    <name>IdProvider</name>
    <message>
        <source>The id must not be empty.</source>
        <translation>Die Kennung darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The id is longer than 100 characters.</source>
        <translation>Die Kennung ist länger als 100 Zeichen.</translation>
    </message>
    <message>
        <source>The id must not contain blanks.</source>
        <translation>Die Kennung darf keine Leerzeichen enthalten.</translation>
    </message>
    <message>
        <source>Another subpart has this id.</source>
        <translation>Ein anderes Unterteil hat diese Kennung.</translation>
    </message>
    <message>
        <source>Another part has this id.</source>
        <translation>Ein anderes Teil hat diese Kennung.</translation>
    </message>
</context>
<context>
    <name>InsertMenu</name>
    <message>
        <source>Connect the two selected parts</source>
        <translation>Die beiden ausgewählten Teile verbinden</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>InstanceId</source>
        <translation>Instanznummer</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
</context>
<context>
    <name>Licence</name>
    <message>
        <source>Please enter the licence code.</source>
        <translation>Bitte geben Sie den Lizenzcode ein.</translation>
    </message>
    <message>
        <source>Typing error in group %1: &quot;%2&quot; does not occur in licence codes.</source>
        <translation>Tippfehler in Gruppe %1: &quot;%2&quot; kommt in Lizenzcodes nicht vor.</translation>
    </message>
    <message>
        <source>Typing error in group %1: it has %2 characters instead of %3.</source>
        <translation>Tippfehler in Gruppe %1: sie hat %2 statt %3 Zeichen.</translation>
    </message>
    <message>
        <source>The code is too long: no licence code has so many groups.</source>
        <translation>Der Code ist zu lang: kein Lizenzcode hat so viele Gruppen.</translation>
    </message>
    <message>
        <source>Typing error in group %1: please compare it letter by letter. Groups may also be missing, doubled or exchanged.</source>
        <translation>Tippfehler in Gruppe %1: bitte vergleichen Sie sie Buchstabe für Buchstabe. Es können auch Gruppen fehlen, doppelt oder vertauscht sein.</translation>
    </message>
    <message>
        <source>The secret key cannot be used.</source>
        <translation>Der geheime Schlüssel kann nicht benutzt werden.</translation>
    </message>
    <message>
        <source>A licence needs a holder and a product.</source>
        <translation>Eine Lizenz braucht einen Inhaber und ein Produkt.</translation>
    </message>
    <message>
        <source>The dates of a licence lie between 2000 and 2179, and it does not expire before it is issued.</source>
        <translation>Die Daten einer Lizenz liegen zwischen 2000 und 2179, und sie läuft nicht ab, bevor sie ausgestellt ist.</translation>
    </message>
    <message>
        <source>A licence has from 1 to 65535 seats.</source>
        <translation>Eine Lizenz hat 1 bis 65535 Plätze.</translation>
    </message>
    <message>
        <source>Holder, product and edition have at most 80 letters each.</source>
        <translation>Inhaber, Produkt und Ausgabe haben höchstens je 80 Buchstaben.</translation>
    </message>
    <message>
        <source>Holder, product and edition are too long together.</source>
        <translation>Inhaber, Produkt und Ausgabe sind zusammen zu lang.</translation>
    </message>
    <message>
        <source>This code was not made for this program: its signature is not right. Please ask whoever gave it to you.</source>
        <translation>Dieser Code wurde nicht für dieses Programm gemacht: seine Unterschrift stimmt nicht. Bitte fragen Sie den, der ihn Ihnen gegeben hat.</translation>
    </message>
    <message>
        <source>The code has %1 groups, but %2 were entered.</source>
        <translation>Der Code hat %1 Gruppen, aber es wurden %2 eingegeben.</translation>
    </message>
    <message>
        <source>This code is for the product %1; this program is %2.</source>
        <translation>Dieser Code ist für das Produkt %1; dieses Programm ist %2.</translation>
    </message>
    <message>
        <source>This code was issued on %1, but the clock of this computer says that today is %2. Please set the clock.</source>
        <translation>Dieser Code wurde am %1 ausgestellt, aber nach der Uhr dieses Computers ist heute der %2. Bitte stellen Sie die Uhr.</translation>
    </message>
    <message>
        <source>This licence expired on %1.</source>
        <translation>Diese Lizenz ist am %1 abgelaufen.</translation>
    </message>
</context>
<context>
    <name>LicenceDialog</name>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Licenc&amp;e code:</source>
        <translation>Lizenz&amp;code:</translation>
    </message>
    <message>
        <source>Licence code</source>
        <translation>Lizenzcode</translation>
    </message>
    <message>
        <source>Paste the code here, or type it group by group</source>
        <translation>Fügen Sie den Code hier ein oder tippen Sie ihn Gruppe für Gruppe</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Forget the licence code on this computer</source>
        <translation>Den Lizenzcode auf diesem Computer vergessen</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>A licence code is made of groups of %1 letters and digits. Small letters are as good as capitals.</source>
        <translation>Ein Lizenzcode besteht aus Gruppen von %1 Buchstaben und Ziffern. Kleinbuchstaben gelten so viel wie Großbuchstaben.</translation>
    </message>
    <message>
        <source>The code is right. It is for %1.</source>
        <translation>Der Code ist richtig. Er ist für %1.</translation>
    </message>
    <message numerus="yes">
        <source>Right so far: %n groups.</source>
        <translation>
            <numerusform>Bis hier richtig: %n Gruppe.</numerusform>
            <numerusform>Bis hier richtig: %n Gruppen.</numerusform>
        </translation>
    </message>
    <message>
        <source>How licence codes work</source>
        <translation>Wie Lizenzcodes funktionieren</translation>
    </message>
</context>
<context>
    <name>LicenceManager</name>
    <message>
        <source>The program was used on %1 before, but the clock of this computer says that today is %2. Please set the clock.</source>
        <translation>Das Programm wurde schon am %1 benutzt, aber nach der Uhr dieses Computers ist heute der %2. Bitte stellen Sie die Uhr.</translation>
    </message>
    <message>
        <source>Unlicensed evaluation.</source>
        <translation>Nicht lizenziert, zur Erprobung.</translation>
    </message>
    <message>
        <source>Unlicensed evaluation. %1</source>
        <translation>Nicht lizenziert, zur Erprobung. %1</translation>
    </message>
    <message>
        <source>Licensed to %1.</source>
        <translation>Lizenziert für %1.</translation>
    </message>
    <message>
        <source>Licensed to %1, edition %2.</source>
        <translation>Lizenziert für %1, Ausgabe %2.</translation>
    </message>
    <message numerus="yes">
        <source>For %n seats.</source>
        <translation>
            <numerusform>Für %n Platz.</numerusform>
            <numerusform>Für %n Plätze.</numerusform>
        </translation>
    </message>
    <message>
        <source>The licence expires today.</source>
        <translation>Die Lizenz läuft heute ab.</translation>
    </message>
    <message numerus="yes">
        <source>The licence expires in %n days.</source>
        <translation>
            <numerusform>Die Lizenz läuft in %n Tag ab.</numerusform>
            <numerusform>Die Lizenz läuft in %n Tagen ab.</numerusform>
        </translation>
    </message>
    <message>
        <source>unlicensed evaluation</source>
        <translation>nicht lizenziert, zur Erprobung</translation>
    </message>
    <message>
        <source>licence expires today</source>
        <translation>Lizenz läuft heute ab</translation>
    </message>
    <message numerus="yes">
        <source>licence expires in %n days</source>
        <translation>
            <numerusform>Lizenz läuft in %n Tag ab</numerusform>
            <numerusform>Lizenz läuft in %n Tagen ab</numerusform>
        </translation>
    </message>
    <message>
        <source>Printed with an unlicensed evaluation copy</source>
        <translation>Gedruckt mit einer nicht lizenzierten Fassung zur Erprobung</translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>A&amp;usschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>LinkPane</name>
    <message>
        <source>Pr&amp;operty that follows another</source>
        <translation>Ei&amp;genschaft, die einer anderen folgt</translation>
    </message>
    <message>
        <source>Property that follows another</source>
        <translation>Eigenschaft, die einer anderen folgt</translation>
    </message>
    <message>
        <source>What it can follow</source>
        <translation>Dem sie folgen kann</translation>
    </message>
</context>
<context>
    <name>ListEditor</name>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>LockPalette</name>
    <message>
        <source>Property Value Editing</source>
        <translation>Bearbeiten der Werte</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Locking</source>
        <translation>Sperren</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Place of the mouse pointer</source>
        <translation>Ort des Mauszeigers</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation>Das ließ sich nicht ausführen.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln ausgewählt</numerusform>
            <numerusform>%Ln ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 mm</source>
        <translation>%1, %2 mm</translation>
    </message>
    <message>
        <source>There is no part with the id &quot;%1&quot;.</source>
        <translation>Es gibt kein Teil mit der Kennung &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Ausgewählt: %1</translation>
    </message>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (wiederhergestellt)</translation>
    </message>
</context>
<context>
    <name>MessagesPane</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>There was no message yet.</source>
        <translation>Es gab noch keine Meldung.</translation>
    </message>
    <message>
        <source>Open &amp;Console Window</source>
        <translation>&amp;Konsolenfenster öffnen</translation>
    </message>
</context>
<context>
    <name>ModelsBrowser</name>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>Dokumenttyp-Deklarationen sind nicht erlaubt</translation>
    </message>
    <message>
        <source>&amp;Add Folder...</source>
        <translation>Ordner &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Remove Folder</source>
        <translation>Ordner &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Show the documents of one more folder</source>
        <translation>Die Dokumente eines weiteren Ordners zeigen</translation>
    </message>
    <message>
        <source>Show the folder no longer; nothing on the disk is touched</source>
        <translation>Den Ordner nicht mehr zeigen; auf der Platte ändert sich nichts</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelle</translation>
    </message>
    <message>
        <source>No folder yet. Add one to see its documents here.</source>
        <translation>Noch kein Ordner. Fügen Sie einen hinzu, um seine Dokumente hier zu sehen.</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
</context>
<context>
    <name>ModelsModel</name>
    <message>
        <source>The folder is not there or cannot be read.</source>
        <translation>Der Ordner ist nicht da oder kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 (no documents)</source>
        <translation>%1 (keine Dokumente)</translation>
    </message>
    <message>
        <source>Cannot be read: %1</source>
        <translation>Kann nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>MoveGesture</name>
    <message>
        <source>Move part</source>
        <translation>Verschieben eines Teils</translation>
    </message>
    <message numerus="yes">
        <source>Move %n parts</source>
        <translation>
            <numerusform>Verschieben von %n Teil</numerusform>
            <numerusform>Verschieben von %n Teilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NoSelectionPane</name>
    <message>
        <source>Select a part to see and change its properties.</source>
        <translation>Wählen Sie ein Teil aus, um seine Eigenschaften zu sehen und zu ändern.</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Eigenschaften der Szene</translation>
    </message>
    <message>
        <source>Shows the properties of the scene on view</source>
        <translation>Zeigt die Eigenschaften der Szene im Blick</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Reloading shows what it wrote and loses what you have not saved.</source>
        <translation>Neu laden zeigt, was es geschrieben hat, und verliert, was Sie nicht gespeichert haben.</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Meines behalten</translation>
    </message>
    <message>
        <source>%1 was deleted, renamed or moved by another program.</source>
        <translation>%1 wurde von einem anderen Programm gelöscht, umbenannt oder verschoben.</translation>
    </message>
    <message>
        <source>What you see is in this window only until it is saved again.</source>
        <translation>Was Sie sehen, ist nur in diesem Fenster, bis es wieder gespeichert wird.</translation>
    </message>
    <message>
        <source>Save A&amp;gain</source>
        <translation>&amp;Wieder speichern</translation>
    </message>
    <message>
        <source>Not &amp;Now</source>
        <translation>&amp;Nicht jetzt</translation>
    </message>
    <message>
        <source>Re&amp;cover</source>
        <translation>Wiederher&amp;stellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>Ver&amp;werfen</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>S&amp;päter</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>ObserverColorPicker</name>
    <message>
        <source>%1, name of the colour</source>
        <translation>%1, Name der Farbe</translation>
    </message>
    <message>
        <source>This names no colour.</source>
        <translation>Das nennt keine Farbe.</translation>
    </message>
</context>
<context>
    <name>ObserverComboBox</name>
    <message>
        <source>true</source>
        <translation>wahr</translation>
    </message>
    <message>
        <source>false</source>
        <translation>falsch</translation>
    </message>
</context>
<context>
    <name>ObserverLineEdit</name>
    <message>
        <source>This text does not stand for a value of the kind that is needed here.</source>
        <translation>Dieser Text steht nicht für einen Wert der Art, die hier gebraucht wird.</translation>
    </message>
</context>
<context>
    <name>ObserverPoint</name>
    <message>
        <source>%1, x</source>
        <translation>%1, x</translation>
    </message>
    <message>
        <source>%1, y</source>
        <translation>%1, y</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>it differs from &quot;%1&quot; only by its extension</source>
        <translation>sie unterscheidet sich von &quot;%1&quot; nur durch die Endung</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no attribute &quot;%2&quot;</source>
        <translation>&lt;%1&gt; hat kein Attribut &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot stand in &lt;%2&gt;</source>
        <translation>&lt;%1&gt; kann nicht in &lt;%2&gt; stehen</translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot have text here</source>
        <translation>&lt;%1&gt; kann hier keinen Text haben</translation>
    </message>
    <message>
        <source>the file is larger than 16 MB</source>
        <translation>die Datei ist größer als 16 MB</translation>
    </message>
    <message>
        <source>the elements are nested too deep</source>
        <translation>die Elemente sind zu tief geschachtelt</translation>
    </message>
    <message>
        <source>document types and entities are not understood</source>
        <translation>Dokumenttypen und Entitäten werden nicht verstanden</translation>
    </message>
    <message>
        <source>&lt;%1&gt; needs a key without blanks</source>
        <translation>&lt;%1&gt; braucht einen Schlüssel ohne Leerzeichen</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is made by the program itself</source>
        <translation>die Eigenschaft &quot;%1&quot; macht das Programm selbst</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of a property</source>
        <translation>&quot;%1&quot; ist kein Typ einer Eigenschaft</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is inherited with the type %2</source>
        <translation>die Eigenschaft &quot;%1&quot; wird mit dem Typ %2 geerbt</translation>
    </message>
    <message>
        <source>a property has only one &lt;%1&gt;</source>
        <translation>eine Eigenschaft hat nur ein &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is no whole number from %2 on: &quot;%3&quot;</source>
        <translation>das Attribut &quot;%1&quot; ist keine ganze Zahl ab %2: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is none of %2: &quot;%3&quot;</source>
        <translation>das Attribut &quot;%1&quot; ist keines von %2: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>there is no resource &quot;%1&quot;</source>
        <translation>es gibt keine Ressource &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the resource &quot;%1&quot; is of the type %2, not %3</source>
        <translation>die Ressource &quot;%1&quot; ist vom Typ %2, nicht %3</translation>
    </message>
    <message>
        <source>values of the type %1 have no unit</source>
        <translation>Werte vom Typ %1 haben keine Einheit</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not known</source>
        <translation>die Einheit &quot;%1&quot; ist nicht bekannt</translation>
    </message>
    <message>
        <source>the flag &quot;%1&quot; is not known</source>
        <translation>der Schalter &quot;%1&quot; ist nicht bekannt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>&quot;%1&quot; ist kein Wert vom Typ %2</translation>
    </message>
    <message>
        <source>a value of the type %1 is a text</source>
        <translation>ein Wert vom Typ %1 ist ein Text</translation>
    </message>
    <message>
        <source>the content is no value of the type %1</source>
        <translation>der Inhalt ist kein Wert vom Typ %1</translation>
    </message>
    <message>
        <source>the property has a default already</source>
        <translation>die Eigenschaft hat schon einen Vorgabewert</translation>
    </message>
    <message>
        <source>a default of the type %1 stands in an element &lt;default&gt;</source>
        <translation>ein Vorgabewert vom Typ %1 steht in einem Element &lt;default&gt;</translation>
    </message>
    <message>
        <source>values of the type %1 have no format</source>
        <translation>Werte vom Typ %1 haben kein Format</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; does not measure the same as &quot;%2&quot;</source>
        <translation>die Einheit &quot;%1&quot; misst nicht dasselbe wie &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a validator needs a kind</source>
        <translation>eine Prüfregel braucht eine Art</translation>
    </message>
    <message>
        <source>values of the type %1 have no range</source>
        <translation>Werte vom Typ %1 haben keinen Bereich</translation>
    </message>
    <message>
        <source>the minimum %1 is greater than the maximum %2</source>
        <translation>das Minimum %1 ist größer als das Maximum %2</translation>
    </message>
    <message>
        <source>values of the type %1 cannot be chosen from a set</source>
        <translation>Werte vom Typ %1 können nicht aus einer Menge gewählt werden</translation>
    </message>
    <message>
        <source>the set is empty</source>
        <translation>die Menge ist leer</translation>
    </message>
    <message>
        <source>only texts have a pattern</source>
        <translation>nur Texte haben ein Muster</translation>
    </message>
    <message>
        <source>the expression &quot;%1&quot; is faulty: %2</source>
        <translation>der Ausdruck &quot;%1&quot; ist fehlerhaft: %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>er ist leer</translation>
    </message>
    <message>
        <source>only resources are chosen from resources</source>
        <translation>nur Ressourcen werden aus Ressourcen gewählt</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; does not allow the value &quot;%2&quot;</source>
        <translation>die Eigenschaft &quot;%1&quot; erlaubt den Wert &quot;%2&quot; nicht</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>this is no package but &lt;%1&gt;</source>
        <translation>das ist kein Paket, sondern &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the attribute &quot;format&quot; is missing</source>
        <translation>das Attribut &quot;format&quot; fehlt</translation>
    </message>
    <message>
        <source>the package has the format %1, this program understands %2</source>
        <translation>das Paket hat das Format %1, dieses Programm versteht %2</translation>
    </message>
    <message>
        <source>a package needs a name of letters, digits, &apos;-&apos; and &apos;_&apos;</source>
        <translation>ein Paket braucht einen Namen aus Buchstaben, Ziffern, &apos;-&apos; und &apos;_&apos;</translation>
    </message>
    <message>
        <source>the package &quot;%1&quot; must stand in a folder of that name</source>
        <translation>das Paket &quot;%1&quot; muss in einem Ordner dieses Namens stehen</translation>
    </message>
    <message>
        <source>no package can have the name &quot;%1&quot;</source>
        <translation>kein Paket kann den Namen &quot;%1&quot; haben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no class id such as &quot;electronics/led&quot;</source>
        <translation>&quot;%1&quot; ist keine Klassenkennung wie &quot;electronics/led&quot;</translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; is defined twice</source>
        <translation>die Klasse &quot;%1&quot; ist zweimal bestimmt</translation>
    </message>
    <message>
        <source>another package defines the class &quot;%1&quot;</source>
        <translation>ein anderes Paket bestimmt die Klasse &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no class %1</source>
        <translation>es gibt keine Klasse %1</translation>
    </message>
    <message>
        <source>the class %1 needs itself as a base or subpart</source>
        <translation>die Klasse %1 braucht sich selbst als Basis oder Unterteil</translation>
    </message>
    <message>
        <source>the classes are nested too deep</source>
        <translation>die Klassen sind zu tief geschachtelt</translation>
    </message>
    <message>
        <source>a class has at most %1 properties, values, forms, substitutions, subparts, rules and bases, with those of its bases</source>
        <translation>eine Klasse hat höchstens %1 Eigenschaften, Werte, Formulare, Ersetzungen, Unterteile, Regeln und Basisklassen, die ihrer Basisklassen mitgezählt</translation>
    </message>
    <message>
        <source>the classes of a package have at most %1 properties, subparts and so on together</source>
        <translation>die Klassen eines Pakets haben zusammen höchstens %1 Eigenschaften, Unterteile und so weiter</translation>
    </message>
    <message>
        <source>a part of the class would have more than %1 subparts</source>
        <translation>ein Teil der Klasse hätte mehr als %1 Unterteile</translation>
    </message>
    <message>
        <source>a part of the class would have subparts more than %1 deep in one another</source>
        <translation>ein Teil der Klasse hätte Unterteile, die mehr als %1-fach ineinander stehen</translation>
    </message>
    <message>
        <source>a class without a base needs a kind</source>
        <translation>eine Klasse ohne Basis braucht eine Art</translation>
    </message>
    <message>
        <source>the base %1 is of another kind</source>
        <translation>die Basis %1 ist von anderer Art</translation>
    </message>
    <message>
        <source>domains have ids such as &quot;electronics/*&quot;, other classes have not</source>
        <translation>Domänen haben Kennungen wie &quot;electronics/*&quot;, andere Klassen nicht</translation>
    </message>
    <message>
        <source>the class %1 is no pop-up</source>
        <translation>die Klasse %1 ist kein Pop-up</translation>
    </message>
    <message>
        <source>only parts have a pop-up</source>
        <translation>nur Teile haben ein Pop-up</translation>
    </message>
    <message>
        <source>a class without a pop-up cannot show its pane</source>
        <translation>eine Klasse ohne Pop-up kann dessen Feld nicht zeigen</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is given twice</source>
        <translation>die Eigenschaft &quot;%1&quot; ist zweimal angegeben</translation>
    </message>
    <message>
        <source>no base of the class has the property &quot;%1&quot;</source>
        <translation>keine Basis der Klasse hat die Eigenschaft &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the name of the form is missing</source>
        <translation>der Name des Formulars fehlt</translation>
    </message>
    <message>
        <source>a substitution needs a string and either a resource or a text</source>
        <translation>eine Ersetzung braucht eine Zeichenkette und entweder eine Ressource oder einen Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is substituted twice</source>
        <translation>&quot;%1&quot; wird zweimal ersetzt</translation>
    </message>
    <message>
        <source>only parts and subparts have subparts</source>
        <translation>nur Teile und Unterteile haben Unterteile</translation>
    </message>
    <message>
        <source>there are two rules for the same role</source>
        <translation>es gibt zwei Regeln für dieselbe Rolle</translation>
    </message>
    <message>
        <source>the class of the subpart is missing</source>
        <translation>die Klasse des Unterteils fehlt</translation>
    </message>
    <message>
        <source>no subpart can be of the class %1</source>
        <translation>kein Unterteil kann von der Klasse %1 sein</translation>
    </message>
    <message>
        <source>the class %1 has no property &quot;%2&quot;</source>
        <translation>die Klasse %1 hat keine Eigenschaft &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a rule for subparts needs one role</source>
        <translation>eine Regel für Unterteile braucht eine Rolle</translation>
    </message>
    <message>
        <source>there is no class &quot;%1&quot;</source>
        <translation>es gibt keine Klasse &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a package &quot;%1&quot; already</source>
        <translation>es gibt schon ein Paket &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the class belongs to no domain</source>
        <translation>die Klasse gehört zu keiner Domäne</translation>
    </message>
    <message>
        <source>there is a class &quot;%1&quot; already</source>
        <translation>es gibt schon eine Klasse &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the packages &quot;%1&quot; and &quot;%2&quot; would need each other</source>
        <translation>die Pakete &quot;%1&quot; und &quot;%2&quot; würden einander brauchen</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>the package &quot;%1&quot; is not the user&apos;s</source>
        <translation>das Paket &quot;%1&quot; ist nicht das des Benutzers</translation>
    </message>
</context>
<context>
    <name>PackageCheck</name>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the extension stands for no kind of resource: the file is never used</source>
        <translation>die Endung steht für keine Art von Ressource: die Datei wird nie verwendet</translation>
    </message>
    <message>
        <source>nothing names the file</source>
        <translation>nichts nennt die Datei</translation>
    </message>
</context>
<context>
    <name>PageSetupDialog</name>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>&amp;Margins (mm):</source>
        <translation>&amp;Ränder (mm):</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Page &amp;Size:</source>
        <translation>Seiten&amp;größe:</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>A&amp;usrichtung:</translation>
    </message>
    <message>
        <source>Scale to Page &amp;Width:</source>
        <translation>Auf Seiten&amp;breite skalieren:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Scale &amp;Factor:</source>
        <translation>Skalierungs&amp;faktor:</translation>
    </message>
    <message>
        <source>The first page with its margins</source>
        <translation>Die erste Seite mit ihren Rändern</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>%1 margin in millimetres</source>
        <translation>Rand: %1, in Millimetern</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>A0 (841 x 1189 mm)</source>
        <translation>A0 (841 x 1189 mm)</translation>
    </message>
    <message>
        <source>A1 (594 x 841 mm)</source>
        <translation>A1 (594 x 841 mm)</translation>
    </message>
    <message>
        <source>A2 (420 x 594 mm)</source>
        <translation>A2 (420 x 594 mm)</translation>
    </message>
    <message>
        <source>A3 (297 x 420 mm)</source>
        <translation>A3 (297 x 420 mm)</translation>
    </message>
    <message>
        <source>A4 (210 x 297 mm)</source>
        <translation>A4 (210 x 297 mm)</translation>
    </message>
    <message>
        <source>A5 (148 x 210 mm)</source>
        <translation>A5 (148 x 210 mm)</translation>
    </message>
    <message>
        <source>A6 (105 x 148 mm)</source>
        <translation>A6 (105 x 148 mm)</translation>
    </message>
    <message>
        <source>A7 (74 x 105 mm)</source>
        <translation>A7 (74 x 105 mm)</translation>
    </message>
    <message>
        <source>A8 (52 x 74 mm)</source>
        <translation>A8 (52 x 74 mm)</translation>
    </message>
    <message>
        <source>A9 (37 x 52 mm)</source>
        <translation>A9 (37 x 52 mm)</translation>
    </message>
    <message>
        <source>B0 (1000 x 1414 mm)</source>
        <translation>B0 (1000 x 1414 mm)</translation>
    </message>
    <message>
        <source>B1 (707 x 1000 mm)</source>
        <translation>B1 (707 x 1000 mm)</translation>
    </message>
    <message>
        <source>B2 (500 x 707 mm)</source>
        <translation>B2 (500 x 707 mm)</translation>
    </message>
    <message>
        <source>B3 (353 x 500 mm)</source>
        <translation>B3 (353 x 500 mm)</translation>
    </message>
    <message>
        <source>B4 (250 x 353 mm)</source>
        <translation>B4 (250 x 353 mm)</translation>
    </message>
    <message>
        <source>B5 (176 x 250 mm)</source>
        <translation>B5 (176 x 250 mm)</translation>
    </message>
    <message>
        <source>B6 (125 x 176 mm)</source>
        <translation>B6 (125 x 176 mm)</translation>
    </message>
    <message>
        <source>B7 (88 x 125 mm)</source>
        <translation>B7 (88 x 125 mm)</translation>
    </message>
    <message>
        <source>B8 (62 x 88 mm)</source>
        <translation>B8 (62 x 88 mm)</translation>
    </message>
    <message>
        <source>B9 (44 x 62 mm)</source>
        <translation>B9 (44 x 62 mm)</translation>
    </message>
    <message>
        <source>B10 (31 x 44 mm)</source>
        <translation>B10 (31 x 44 mm)</translation>
    </message>
    <message>
        <source>C5E (163 x 229 mm)</source>
        <translation>C5E (163 x 229 mm)</translation>
    </message>
    <message>
        <source>DLE (110 x 220 mm)</source>
        <translation>DLE (110 x 220 mm)</translation>
    </message>
    <message>
        <source>Executive (191 x 254 mm)</source>
        <translation>Executive (191 x 254 mm)</translation>
    </message>
    <message>
        <source>Folio (210 x 330 mm)</source>
        <translation>Folio (210 x 330 mm)</translation>
    </message>
    <message>
        <source>Ledger (432 x 279 mm)</source>
        <translation>Ledger (432 x 279 mm)</translation>
    </message>
    <message>
        <source>Legal (216 x 356 mm)</source>
        <translation>Legal (216 x 356 mm)</translation>
    </message>
    <message>
        <source>Letter (216 x 279 mm)</source>
        <translation>Letter (216 x 279 mm)</translation>
    </message>
    <message>
        <source>Tabloid (279 x 432 mm)</source>
        <translation>Tabloid (279 x 432 mm)</translation>
    </message>
    <message>
        <source>Envelope #10 (105 x 241 mm)</source>
        <translation>Umschlag #10 (105 x 241 mm)</translation>
    </message>
</context>
<context>
    <name>PaletteBoxSection</name>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
</context>
<context>
    <name>PaletteButtonBar</name>
    <message>
        <source>expanded</source>
        <translation>aufgeklappt</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>zugeklappt</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>Side Pane</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>I&amp;nspector...</source>
        <translation>I&amp;nspektor...</translation>
    </message>
    <message>
        <source>Show the tree of everything in the document</source>
        <translation>Den Baum von allem im Dokument zeigen</translation>
    </message>
</context>
<context>
    <name>PanelTopArea</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Ein kurzer Name ohne Leerzeichen, mit dem andere Dinge auf das Teil verweisen.</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <extracomment>A number of parts of one kind: &quot;3 × LED&quot;</extracomment>
        <translation>%1 × %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln parts</source>
        <translation>
            <numerusform>%Ln Teil</numerusform>
            <numerusform>%Ln Teile</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PartChoiceModel</name>
    <message>
        <source>All parts</source>
        <translation>Alle Teile</translation>
    </message>
</context>
<context>
    <name>PartEditor</name>
    <message>
        <source>Select the two parts that it shall connect first.</source>
        <translation>Wählen Sie zuerst die beiden Teile aus, die verbunden werden sollen.</translation>
    </message>
    <message>
        <source>What was dropped is not a part.</source>
        <translation>Was abgelegt wurde, ist kein Teil.</translation>
    </message>
</context>
<context>
    <name>PartHelp</name>
    <message>
        <source>Group: %1</source>
        <translation>Gruppe: %1</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>How properties are changed</source>
        <translation>Wie Eigenschaften geändert werden</translation>
    </message>
</context>
<context>
    <name>PartIdLineEdit</name>
    <message numerus="yes">
        <source>Rename %n parts</source>
        <translation>
            <numerusform>%n Teil umbenennen</numerusform>
            <numerusform>%n Teile umbenennen</numerusform>
        </translation>
    </message>
    <message>
        <source>There is one number in an id: write # once.</source>
        <translation>In einer Kennung steht eine Nummer: schreiben Sie # genau einmal.</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
</context>
<context>
    <name>PartsModel</name>
    <message>
        <source>Package: %1</source>
        <translation>Paket: %1</translation>
    </message>
    <message>
        <source>Key stage: %1</source>
        <translation>Stufe: %1</translation>
    </message>
</context>
<context>
    <name>PartsTree</name>
    <message>
        <source>Search parts</source>
        <translation>Teile suchen</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>There are no parts.</source>
        <translation>Es gibt keine Teile.</translation>
    </message>
    <message>
        <source>No part matches the search.</source>
        <translation>Kein Teil passt zur Suche.</translation>
    </message>
</context>
<context>
    <name>PerfMeter</name>
    <message>
        <source>Performance</source>
        <translation>Leistung</translation>
    </message>
</context>
<context>
    <name>PlusMinusButton</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>As each property says</source>
        <translation>Wie es jede Eigenschaft sagt</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>The crash report only</source>
        <translation>Nur in den Absturzbericht</translation>
    </message>
    <message>
        <source>Standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>Standard error</source>
        <translation>Standardfehlerausgabe</translation>
    </message>
    <message>
        <source>A file (velmor.log)</source>
        <translation>In eine Datei (velmor.log)</translation>
    </message>
    <message>
        <source>A window</source>
        <translation>In ein Fenster</translation>
    </message>
    <message>
        <source>Nowhere</source>
        <translation>Nirgendwohin</translation>
    </message>
    <message>
        <source>The system&apos;s</source>
        <translation>Die des Systems</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Takes effect when the program starts again.</source>
        <translation>Gilt, wenn das Programm wieder startet.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>Show lengths &amp;in:</source>
        <translation>&amp;Längen zeigen in:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Steps kept for &amp;undo:</source>
        <translation>Schritte für &amp;Rückgängig:</translation>
    </message>
    <message>
        <source>The &amp;wheel zooms scenes (with Ctrl it scrolls them)</source>
        <translation>Das Ra&amp;d vergrößert Szenen (mit Strg rollt es sie)</translation>
    </message>
    <message>
        <source>&amp;Messages go to:</source>
        <translation>&amp;Meldungen gehen:</translation>
    </message>
    <message>
        <source>The preferences hold until the program ends: they cannot be kept.</source>
        <translation>Die Einstellungen gelten, bis das Programm endet: sie können nicht bewahrt werden.</translation>
    </message>
    <message>
        <source>The language of all texts, and how numbers are written.</source>
        <translation>Die Sprache aller Texte und die Schreibweise der Zahlen.</translation>
    </message>
    <message>
        <source>What these settings do</source>
        <translation>Was diese Einstellungen bewirken</translation>
    </message>
    <message>
        <source>The unit in which fields of lengths begin; each of them offers the others as well.</source>
        <translation>Die Einheit, mit der Längenfelder beginnen; jedes bietet auch die anderen an.</translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message>
        <source>There is nothing to print, or the margins leave no room on the paper.</source>
        <translation>Es gibt nichts zu drucken, oder die Ränder lassen keinen Platz auf dem Papier.</translation>
    </message>
    <message numerus="yes">
        <source>At this scale the document needs %n pages; no more than %1 are exported.</source>
        <translation>
            <numerusform>In diesem Maßstab braucht das Dokument %n Seite; mehr als %1 werden nicht ausgegeben.</numerusform>
            <numerusform>In diesem Maßstab braucht das Dokument %n Seiten; mehr als %1 werden nicht ausgegeben.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>Das Dokument konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The printer did not take the pages.</source>
        <translation>Der Drucker hat die Seiten nicht angenommen.</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Als PDF ausgeben</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>%1 ausgegeben</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Export to SVG</source>
        <translation>Als SVG ausgeben</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg)</source>
        <translation>SVG-Zeichnungen (*.svg)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
</context>
<context>
    <name>ProductPackage</name>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation>Modelle (*.%1)</translation>
    </message>
</context>
<context>
    <name>PropPalette</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Multiple parts selected</source>
        <translation>Mehrere Teile ausgewählt</translation>
    </message>
    <message>
        <source>This part has no properties</source>
        <translation>Dieses Teil hat keine Eigenschaften</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Eigenschaften der Szene</translation>
    </message>
</context>
<context>
    <name>PropertyChoiceModel</name>
    <message>
        <source>The property is not there any more.</source>
        <translation>Die Eigenschaft ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Can be linked</source>
        <translation>Verknüpfbar</translation>
    </message>
    <message>
        <source>Linked</source>
        <translation>Verknüpft</translation>
    </message>
    <message>
        <source>Possible</source>
        <translation>Möglich</translation>
    </message>
</context>
<context>
    <name>PropertyFilter</name>
    <message>
        <source>One of the properties is gone.</source>
        <translation>Eine der Eigenschaften ist nicht mehr da.</translation>
    </message>
    <message>
        <source>A property cannot follow itself.</source>
        <translation>Eine Eigenschaft kann sich nicht selbst folgen.</translation>
    </message>
    <message>
        <source>The properties belong to different documents.</source>
        <translation>Die Eigenschaften gehören zu verschiedenen Dokumenten.</translation>
    </message>
    <message>
        <source>This property cannot be followed.</source>
        <translation>Dieser Eigenschaft kann nicht gefolgt werden.</translation>
    </message>
    <message>
        <source>The property is of another type.</source>
        <translation>Die Eigenschaft ist von anderem Typ.</translation>
    </message>
    <message>
        <source>The property follows this one already.</source>
        <translation>Die Eigenschaft folgt schon dieser.</translation>
    </message>
</context>
<context>
    <name>PropertyListBox</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search for a property</source>
        <translation>Eine Eigenschaft suchen</translation>
    </message>
    <message>
        <source>Part whose properties are listed</source>
        <translation>Teil, dessen Eigenschaften aufgeführt sind</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Follows %1: %2</source>
        <translation>Folgt %1: %2</translation>
    </message>
    <message>
        <source>Nothing is found that could be followed.</source>
        <translation>Es findet sich nichts, dem gefolgt werden könnte.</translation>
    </message>
    <message>
        <source>The selected parts do not follow the same.</source>
        <translation>Die ausgewählten Teile folgen nicht demselben.</translation>
    </message>
</context>
<context>
    <name>PropertyTable</name>
    <message>
        <source>Filter properties</source>
        <translation>Eigenschaften filtern</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation>A&amp;lles kopieren</translation>
    </message>
</context>
<context>
    <name>PropertyTableModel</name>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Follows</source>
        <translation>Folgt</translation>
    </message>
</context>
<context>
    <name>ProxyCommands</name>
    <message>
        <source>Link of %1</source>
        <translation>Verknüpfung von %1</translation>
    </message>
    <message>
        <source>One of the properties is not there any more.</source>
        <translation>Eine der Eigenschaften ist nicht mehr da.</translation>
    </message>
    <message>
        <source>A property that the program works out cannot follow another.</source>
        <translation>Eine Eigenschaft, die das Programm ausrechnet, kann keiner anderen folgen.</translation>
    </message>
    <message>
        <source>Detaching of %1</source>
        <translation>Lösen von %1</translation>
    </message>
    <message>
        <source>The property is not there any more.</source>
        <translation>Die Eigenschaft ist nicht mehr da.</translation>
    </message>
</context>
<context>
    <name>QXmlStream</name>
    <message>
        <source>Encountered incorrectly encoded content.</source>
        <translation>Es kam falsch kodierter Inhalt vor.</translation>
    </message>
</context>
<context>
    <name>QtColorPicker</name>
    <message>
        <source>Different colours</source>
        <translation>Verschiedene Farben</translation>
    </message>
</context>
<context>
    <name>ReaderActions</name>
    <message>
        <source>The link &quot;%1&quot; cannot be opened.</source>
        <translation>Der Link &quot;%1&quot; kann nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No recent files</source>
        <translation>Keine zuletzt geöffneten Dateien</translation>
    </message>
</context>
<context>
    <name>RecoveryOffers</name>
    <message>
        <source>What was kept of a document cannot be read.</source>
        <translation>Was von einem Dokument aufbewahrt wurde, kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A document that was never saved can be recovered.</source>
        <translation>Ein Dokument, das nie gespeichert wurde, kann wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Changes to %1 that were not saved can be recovered.</source>
        <translation>Nicht gespeicherte Änderungen an %1 können wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The damaged file is %1.</source>
        <translation>Die beschädigte Datei ist %1.</translation>
    </message>
    <message>
        <source>Last saved: %1.</source>
        <translation>Zuletzt gespeichert: %1.</translation>
    </message>
    <message>
        <source>Last kept: %1.</source>
        <translation>Zuletzt gesichert: %1.</translation>
    </message>
    <message>
        <source>The file itself is not there any more.</source>
        <translation>Die Datei selbst ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The file itself is newer: it was changed on %1.</source>
        <translation>Die Datei selbst ist neuer: Sie wurde am %1 geändert.</translation>
    </message>
    <message>
        <source>The file itself was changed since, on %1.</source>
        <translation>Die Datei selbst wurde seitdem geändert, am %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryPlace</name>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>ReflectCommand</name>
    <message>
        <source>Reflection</source>
        <translation>Spiegelbild</translation>
    </message>
    <message>
        <source>Removal of a reflection</source>
        <translation>Entfernen eines Spiegelbilds</translation>
    </message>
    <message>
        <source>There is no such part, or no place for the reflection.</source>
        <translation>Es gibt kein solches Teil oder keinen Platz für das Spiegelbild.</translation>
    </message>
    <message>
        <source>A reflection stands in a scene or a pop-up.</source>
        <translation>Ein Spiegelbild steht in einer Szene oder einem Pop-up.</translation>
    </message>
    <message>
        <source>There is no such reflection.</source>
        <translation>Ein solches Spiegelbild gibt es nicht.</translation>
    </message>
    <message>
        <source>The part has nothing of the kind to reflect.</source>
        <translation>Das Teil hat nichts von dieser Art, das gespiegelt werden könnte.</translation>
    </message>
    <message>
        <source>An instance id is in use already.</source>
        <translation>Eine Instanznummer ist schon vergeben.</translation>
    </message>
    <message>
        <source>The document has no more instance ids for new objects.</source>
        <translation>Das Dokument hat keine freien Instanznummern für neue Objekte mehr.</translation>
    </message>
</context>
<context>
    <name>ReflectMenu</name>
    <message>
        <source>&amp;Controls</source>
        <translation>&amp;Bedienelemente</translation>
    </message>
    <message>
        <source>&amp;Pads</source>
        <translation>&amp;Lötpunkte</translation>
    </message>
    <message>
        <source>&amp;Body</source>
        <translation>&amp;Körper</translation>
    </message>
</context>
<context>
    <name>RemoveResourceCommand</name>
    <message>
        <source>Removal of %1</source>
        <translation>Entfernen von %1</translation>
    </message>
</context>
<context>
    <name>Resource</name>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Skripte</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>Forms</source>
        <translation>Formulare</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
</context>
<context>
    <name>ResourceChooser</name>
    <message>
        <source>Import a file</source>
        <translation>Eine Datei importieren</translation>
    </message>
    <message>
        <source>Export to a file</source>
        <translation>In eine Datei ausgeben</translation>
    </message>
    <message>
        <source>No resource</source>
        <translation>Keine Ressource</translation>
    </message>
    <message>
        <source>Different</source>
        <translation>Verschieden</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Kein</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation>Vorschau: %1</translation>
    </message>
    <message>
        <source>Only one file can be taken here.</source>
        <translation>Hier kann nur eine Datei angenommen werden.</translation>
    </message>
</context>
<context>
    <name>ResourceImport</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Es gibt keine Datei &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder.</source>
        <translation>&quot;%1&quot; ist ein Ordner.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <translation>Die Datei &quot;%1&quot; kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than 64 MB.</source>
        <translation>Die Datei &quot;%1&quot; ist größer als 64 MB.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be used here: it does not hold data of the kind &quot;%2&quot;.</source>
        <translation>Die Datei &quot;%1&quot; kann hier nicht benutzt werden: sie enthält keine Daten der Art &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Reading files...</source>
        <translation>Dateien werden gelesen...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Die Datei &quot;%1&quot; kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a device or a channel to another program, not a file.</source>
        <translation>&quot;%1&quot; ist ein Gerät oder ein Kanal zu einem anderen Programm, keine Datei.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Die Datei &quot;%1&quot; ist leer.</translation>
    </message>
</context>
<context>
    <name>ResourceListBox</name>
    <message>
        <source>Add files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation>Vorschau: %1</translation>
    </message>
    <message>
        <source>The selected parts have different lists. What is added becomes the list of all.</source>
        <translation>Die ausgewählten Teile haben verschiedene Listen. Was hinzukommt, wird zur Liste aller.</translation>
    </message>
</context>
<context>
    <name>ResourceModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
</context>
<context>
    <name>ResourceRename</name>
    <message>
        <source>The name must not be empty.</source>
        <translation>Der Name darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The name must not contain a slash.</source>
        <translation>Der Name darf keinen Schrägstrich enthalten.</translation>
    </message>
    <message>
        <source>Another resource has this name.</source>
        <translation>Eine andere Ressource hat diesen Namen.</translation>
    </message>
</context>
<context>
    <name>SceneView</name>
    <message>
        <source>Scene %1</source>
        <translation>Szene %1</translation>
    </message>
    <message>
        <source>Arrow keys move the selected parts by one millimetre, with Shift by ten.</source>
        <translation>Pfeiltasten verschieben die ausgewählten Teile um einen Millimeter, mit der Umschalttaste um zehn.</translation>
    </message>
</context>
<context>
    <name>SelectAllCommand</name>
    <message>
        <source>Selection of everything</source>
        <translation>Auswahl von allem</translation>
    </message>
    <message>
        <source>The scene is not there any more.</source>
        <translation>Die Szene ist nicht mehr da.</translation>
    </message>
</context>
<context>
    <name>SetNodeIndexCommand</name>
    <message>
        <source>Change of order</source>
        <translation>Änderung der Reihenfolge</translation>
    </message>
    <message>
        <source>There is no such object to move.</source>
        <translation>Es gibt kein solches Objekt, das verschoben werden könnte.</translation>
    </message>
</context>
<context>
    <name>SetUILockedCommand</name>
    <message numerus="yes">
        <source>Locking of %n object(s)</source>
        <translation>
            <numerusform>Sperren von %n Objekt</numerusform>
            <numerusform>Sperren von %n Objekten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocking of %n object(s)</source>
        <translation>
            <numerusform>Entsperren von %n Objekt</numerusform>
            <numerusform>Entsperren von %n Objekten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetValueCommand</name>
    <message>
        <source>Change of %1</source>
        <translation>Änderung von %1</translation>
    </message>
    <message numerus="yes">
        <source>Change of %1 (%n objects)</source>
        <translation>
            <numerusform>Änderung von %1 (%n Objekt)</numerusform>
            <numerusform>Änderung von %1 (%n Objekte)</numerusform>
        </translation>
    </message>
    <message>
        <source>The object is not there any more.</source>
        <translation>Das Objekt ist nicht mehr da.</translation>
    </message>
    <message>
        <source>There is no property &quot;%1&quot;.</source>
        <translation>Es gibt keine Eigenschaft &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; is worked out by the program and cannot be set.</source>
        <translation>Die Eigenschaft &quot;%1&quot; rechnet das Programm aus; sie kann nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; follows another one and cannot be set.</source>
        <translation>Die Eigenschaft &quot;%1&quot; folgt einer anderen und kann nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; cannot hold a value of the type %2.</source>
        <translation>Die Eigenschaft &quot;%1&quot; kann keinen Wert vom Typ %2 haben.</translation>
    </message>
</context>
<context>
    <name>ShortcutButton</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Deletes what is selected</source>
        <translation>Löscht, was ausgewählt ist</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Adds a copy of what is selected</source>
        <translation>Fügt eine Kopie dessen hinzu, was ausgewählt ist</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Keeps what is selected from being changed</source>
        <translation>Bewahrt, was ausgewählt ist, vor Änderungen</translation>
    </message>
    <message>
        <source>Reflect</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Shows the part in another place as well</source>
        <translation>Zeigt das Teil auch an einem anderen Ort</translation>
    </message>
    <message>
        <source>Show Pop-up</source>
        <translation>Pop-up zeigen</translation>
    </message>
    <message>
        <source>Opens the pop-up of the part</source>
        <translation>Öffnet das Pop-up des Teils</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Tells more about what is selected</source>
        <translation>Sagt mehr über das, was ausgewählt ist</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ShowPopupCommand</name>
    <message>
        <source>Showing of a pop-up</source>
        <translation>Zeigen eines Pop-ups</translation>
    </message>
    <message>
        <source>Hiding of a pop-up</source>
        <translation>Verbergen eines Pop-ups</translation>
    </message>
    <message>
        <source>The part has no pop-up.</source>
        <translation>Das Teil hat kein Pop-up.</translation>
    </message>
</context>
<context>
    <name>SidePane</name>
    <message>
        <source>Side Pane</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelle</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
</context>
<context>
    <name>SpacePropertyPane</name>
    <message>
        <source>This scene has no properties</source>
        <translation>Diese Szene hat keine Eigenschaften</translation>
    </message>
</context>
<context>
    <name>SpaceTabs</name>
    <message>
        <source>Scenes and pop-ups</source>
        <translation>Szenen und Pop-ups</translation>
    </message>
    <message>
        <source>Po&amp;p-ups</source>
        <translation>Po&amp;p-ups</translation>
    </message>
    <message>
        <source>Open the pop-up of a part</source>
        <translation>Das Pop-up eines Teils öffnen</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>Pop-up</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No part here has a pop-up</source>
        <translation>Kein Teil hier hat ein Pop-up</translation>
    </message>
    <message>
        <source>Double-click a part to open others</source>
        <translation>Ein Doppelklick auf ein Teil öffnet andere</translation>
    </message>
</context>
<context>
    <name>StartOptions</name>
    <message>
        <source>Shows and edits interactive teaching models.</source>
        <translation>Zeigt und bearbeitet interaktive Lehrmodelle.</translation>
    </message>
    <message>
        <source>Where messages go: stdout, stderr, file (velmor.log in the current folder), console (a window) or none.</source>
        <translation>Wohin Meldungen gehen: stdout, stderr, file (velmor.log im aktuellen Ordner), console (ein Fenster) oder none.</translation>
    </message>
    <message>
        <source>Write a picture of the main window into a PNG file and quit.</source>
        <translation>Ein Bild des Hauptfensters in eine PNG-Datei schreiben und enden.</translation>
    </message>
    <message>
        <source>Select the part with this id for the picture. May be given several times.</source>
        <translation>Für das Bild das Teil mit dieser Kennung auswählen. Kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Let the picture show the forms of what is selected from top to bottom, alone.</source>
        <translation>Das Bild nur die Formulare der Auswahl zeigen lassen, von oben bis unten.</translation>
    </message>
    <message>
        <source>The document to open.</source>
        <translation>Das Dokument, das geöffnet werden soll.</translation>
    </message>
    <message>
        <source>--log takes stdout, stderr, file, console or none, not &quot;%1&quot;.</source>
        <translation>--log nimmt stdout, stderr, file, console oder none, nicht &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--screenshot needs the name of a file.</source>
        <translation>--screenshot braucht den Namen einer Datei.</translation>
    </message>
    <message>
        <source>--%1 only works together with --screenshot.</source>
        <translation>--%1 wirkt nur zusammen mit --screenshot.</translation>
    </message>
    <message>
        <source>The language of this run, such as de or fr_FR.</source>
        <translation>Die Sprache für diesen Start, etwa de oder fr_FR.</translation>
    </message>
    <message numerus="yes">
        <source>Only one document can be opened, but %n were given.</source>
        <translation>
            <numerusform>Es kann nur ein Dokument geöffnet werden, angegeben wurde %n.</numerusform>
            <numerusform>Es kann nur ein Dokument geöffnet werden, angegeben wurden %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell what is wrong with a form, and quit. The exit code is 0 when nothing is, 1 for errors, 2 when the form cannot be read.</source>
        <translation>Sagen, was an einem Formular falsch ist, und beenden. Der Rückgabewert ist 0, wenn nichts falsch ist, 1 bei Fehlern, 2, wenn das Formular nicht gelesen werden kann.</translation>
    </message>
    <message>
        <source>Check the form for this class. May be given several times. Without it, the form is checked for the classes that name it.</source>
        <translation>Das Formular für diese Klasse prüfen. Kann mehrmals angegeben werden. Ohne die Angabe wird das Formular für die Klassen geprüft, die es nennen.</translation>
    </message>
    <message>
        <source>Tell what is wrong with a package folder and its forms, and quit.</source>
        <translation>Sagen, was an einem Paketordner und seinen Formularen falsch ist, und beenden.</translation>
    </message>
    <message>
        <source>--%1 needs the name of a file or folder.</source>
        <translation>--%1 braucht den Namen einer Datei oder eines Ordners.</translation>
    </message>
    <message>
        <source>--class only works together with --check-form.</source>
        <translation>--class wirkt nur zusammen mit --check-form.</translation>
    </message>
    <message>
        <source>--check-form and --check-package cannot be given together.</source>
        <translation>--check-form und --check-package können nicht zusammen angegeben werden.</translation>
    </message>
    <message>
        <source>Dark colours, whatever those of the desktop are.</source>
        <translation>Dunkle Farben, gleich welche die der Arbeitsumgebung sind.</translation>
    </message>
    <message>
        <source>Let the picture show the dialog of a menu entry: preferences, page-setup, save-custom-part, licence or about.</source>
        <translation>Das Bild zeigt den Dialog eines Menüeintrags: preferences, page-setup, save-custom-part, licence oder about.</translation>
    </message>
    <message>
        <source>Run the flowcharts for so many seconds before the picture.</source>
        <translation>Die Ablaufpläne vor dem Bild so viele Sekunden laufen lassen.</translation>
    </message>
    <message>
        <source>--run takes seconds up to %1, not &quot;%2&quot;.</source>
        <translation>--run erwartet Sekunden bis %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>Let the picture show a palette alone: lockPalette, assocPalette, advancedPalette, debugPalette or inspector.</source>
        <translation>Zeigt im Bild allein eine Palette: lockPalette, assocPalette, advancedPalette, debugPalette oder inspector.</translation>
    </message>
</context>
<context>
    <name>StatisticsPane</name>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Letzter</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Kleinster</translation>
    </message>
    <message>
        <source>Greatest</source>
        <translation>Größter</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Curve of the selected statistic</source>
        <translation>Kurve der ausgewählten Statistik</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Auffrischen</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Forget all samples</source>
        <translation>Alle Werte vergessen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>SubpartComboBox</name>
    <message>
        <source>None</source>
        <translation>Kein</translation>
    </message>
    <message>
        <source>Subpart</source>
        <translation>Unterteil</translation>
    </message>
</context>
<context>
    <name>SubpartListView</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation>Unterteile</translation>
    </message>
    <message>
        <source>Every part of this kind has this subpart</source>
        <translation>Jedes Teil dieser Art hat dieses Unterteil</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Entfernen (Entf)</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>metres</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>kilometres</source>
        <translation>Kilometer</translation>
    </message>
    <message>
        <source>micrometres</source>
        <translation>Mikrometer</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>feet</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>radians</source>
        <translation>Radiant</translation>
    </message>
    <message>
        <source>ohms</source>
        <translation>Ohm</translation>
    </message>
    <message>
        <source>milliohms</source>
        <translation>Milliohm</translation>
    </message>
    <message>
        <source>kilohms</source>
        <translation>Kiloohm</translation>
    </message>
    <message>
        <source>megohms</source>
        <translation>Megaohm</translation>
    </message>
    <message>
        <source>volts</source>
        <translation>Volt</translation>
    </message>
    <message>
        <source>millivolts</source>
        <translation>Millivolt</translation>
    </message>
    <message>
        <source>kilovolts</source>
        <translation>Kilovolt</translation>
    </message>
    <message>
        <source>amperes</source>
        <translation>Ampere</translation>
    </message>
    <message>
        <source>milliamperes</source>
        <translation>Milliampere</translation>
    </message>
    <message>
        <source>microamperes</source>
        <translation>Mikroampere</translation>
    </message>
    <message>
        <source>watts</source>
        <translation>Watt</translation>
    </message>
    <message>
        <source>milliwatts</source>
        <translation>Milliwatt</translation>
    </message>
    <message>
        <source>farads</source>
        <translation>Farad</translation>
    </message>
    <message>
        <source>microfarads</source>
        <translation>Mikrofarad</translation>
    </message>
    <message>
        <source>nanofarads</source>
        <translation>Nanofarad</translation>
    </message>
    <message>
        <source>picofarads</source>
        <translation>Pikofarad</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>microseconds</source>
        <translation>Mikrosekunden</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>hertz</source>
        <translation>Hertz</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translation>Kilohertz</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translation>Megahertz</translation>
    </message>
    <message>
        <source>kilograms</source>
        <translation>Kilogramm</translation>
    </message>
    <message>
        <source>grams</source>
        <translation>Gramm</translation>
    </message>
    <message>
        <source>newtons</source>
        <translation>Newton</translation>
    </message>
    <message>
        <source>joules</source>
        <translation>Joule</translation>
    </message>
    <message>
        <source>kelvins</source>
        <translation>Kelvin</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <translation>Grad Celsius</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <translation>Grad Fahrenheit</translation>
    </message>
    <message>
        <source>metres per second</source>
        <translation>Meter pro Sekunde</translation>
    </message>
    <message>
        <source>revolutions per minute</source>
        <translation>Umdrehungen pro Minute</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
</context>
<context>
    <name>UnitChooser</name>
    <message>
        <source>Unit of %1</source>
        <translation>Einheit von %1</translation>
    </message>
</context>
<context>
    <name>Validator</name>
    <message>
        <source>A value of type %1 is needed.</source>
        <translation>Ein Wert vom Typ %1 wird gebraucht.</translation>
    </message>
    <message>
        <source>Only values from %1 to %2 are allowed.</source>
        <translation>Nur Werte von %1 bis %2 sind erlaubt.</translation>
    </message>
    <message>
        <source>Only these values are allowed: %1.</source>
        <translation>Nur diese Werte sind erlaubt: %1.</translation>
    </message>
    <message>
        <source>Only finite numbers are allowed.</source>
        <translation>Nur endliche Zahlen sind erlaubt.</translation>
    </message>
    <message>
        <source>Only values from %1 upwards are allowed.</source>
        <translation>Nur Werte ab %1 sind erlaubt.</translation>
    </message>
    <message>
        <source>Only values up to %1 are allowed.</source>
        <translation>Nur Werte bis %1 sind erlaubt.</translation>
    </message>
    <message>
        <source>The text does not have the form that is needed here.</source>
        <translation>Der Text hat nicht die Form, die hier gebraucht wird.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the resources offered here.</source>
        <translation>&quot;%1&quot; ist keine der Ressourcen, die hier angeboten werden.</translation>
    </message>
</context>
<context>
    <name>Value</name>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>true</source>
        <translation>wahr</translation>
    </message>
    <message>
        <source>false</source>
        <translation>falsch</translation>
    </message>
</context>
<context>
    <name>ValueMapListBox</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>The key must not be empty.</source>
        <translation>Der Schlüssel darf nicht leer sein.</translation>
    </message>
    <message>
        <source>This text does not stand for a value of the kind &quot;%1&quot;.</source>
        <translation>Dieser Text steht nicht für einen Wert der Art &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Nach dieser Spalte sortieren</translation>
    </message>
    <message>
        <source>The selected parts have different entries. What is added becomes the entries of all.</source>
        <translation>Die ausgewählten Teile haben verschiedene Einträge. Was hinzukommt, gilt dann für alle.</translation>
    </message>
</context>
<context>
    <name>ValueMapModel</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Ja oder nein</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
</context>
<context>
    <name>ValueXml</name>
    <message>
        <source>The value is nested too deeply.</source>
        <translation>Der Wert ist zu tief geschachtelt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of type &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; ist kein Wert vom Typ &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Element &quot;%1&quot; is not expected; a list holds &quot;item&quot;s.</source>
        <translation>Das Element &quot;%1&quot; wird nicht erwartet; eine Liste enthält &quot;item&quot;.</translation>
    </message>
    <message>
        <source>Text is not expected between &quot;item&quot;s.</source>
        <translation>Zwischen &quot;item&quot; wird kein Text erwartet.</translation>
    </message>
    <message>
        <source>An item cannot have the type &quot;%1&quot; here.</source>
        <translation>Ein Eintrag kann hier nicht den Typ &quot;%1&quot; haben.</translation>
    </message>
</context>
<context>
    <name>XmlGuard</name>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>ein Element hat mehr als %1 Attribute</translation>
    </message>
</context>
<context>
    <name>checkForms</name>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>There is no class &quot;%1&quot;.</source>
        <translation>Es gibt keine Klasse &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 is no package: it has no file package.xml.</source>
        <translation>%1 ist kein Paket: es fehlt die Datei package.xml.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Messages - zkauthor</source>
        <translation>Meldungen - zkauthor</translation>
    </message>
    <message>
        <source>zkauthor crashed last time. A report is in the file %1.</source>
        <translation>zkauthor ist beim letzten Mal abgestürzt. Ein Bericht steht in der Datei %1.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 kann nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>screenshot</name>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation>Das Bild %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>There is no dialog &quot;%1&quot; for what is selected.</source>
        <translation>Für die Auswahl gibt es keinen Dialog „%1“.</translation>
    </message>
    <message>
        <source>There is no palette &quot;%1&quot;.</source>
        <translation>Es gibt keine Palette „%1“.</translation>
    </message>
</context>
</TS>
