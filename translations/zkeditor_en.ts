<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AddNodesCommand</name>
    <message numerus="yes">
        <source>Adding of %n object(s)</source>
        <translation>
            <numerusform>Adding of %n object</numerusform>
            <numerusform>Adding of %n objects</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DeleteNodeCommand</name>
    <message numerus="yes">
        <source>Deletion of %n object(s)</source>
        <translation>
            <numerusform>Deletion of %n object</numerusform>
            <numerusform>Deletion of %n objects</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message numerus="yes">
        <source>%1 %n more warning(s) left out</source>
        <translation>
            <numerusform>%1 %n more warning left out</numerusform>
            <numerusform>%1 %n more warnings left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>there are more than %n nodes</source>
        <translation>
            <numerusform>there is more than %n node</numerusform>
            <numerusform>there are more than %n nodes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormFaultSection</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LicenceDialog</name>
    <message numerus="yes">
        <source>Right so far: %n groups.</source>
        <translation>
            <numerusform>Right so far: %n group.</numerusform>
            <numerusform>Right so far: %n groups.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LicenceManager</name>
    <message numerus="yes">
        <source>For %n seats.</source>
        <translation>
            <numerusform>For %n seat.</numerusform>
            <numerusform>For %n seats.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The licence expires in %n days.</source>
        <translation>
            <numerusform>The licence expires in %n day.</numerusform>
            <numerusform>The licence expires in %n days.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>licence expires in %n days</source>
        <translation>
            <numerusform>licence expires in %n day</numerusform>
            <numerusform>licence expires in %n days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln selected</numerusform>
            <numerusform>%Ln selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MoveGesture</name>
    <message numerus="yes">
        <source>Move %n parts</source>
        <translation>
            <numerusform>Move %n part</numerusform>
            <numerusform>Move %n parts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PanelTopArea</name>
    <message numerus="yes">
        <source>%Ln parts</source>
        <translation>
            <numerusform>%Ln part</numerusform>
            <numerusform>%Ln parts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PartIdLineEdit</name>
    <message numerus="yes">
        <source>Rename %n parts</source>
        <translation>
            <numerusform>Rename %n part</numerusform>
            <numerusform>Rename %n parts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message numerus="yes">
        <source>At this scale the document needs %n pages; no more than %1 are exported.</source>
        <translation>
            <numerusform>At this scale the document needs %n page; no more than %1 are exported.</numerusform>
            <numerusform>At this scale the document needs %n pages; no more than %1 are exported.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetUILockedCommand</name>
    <message numerus="yes">
        <source>Locking of %n object(s)</source>
        <translation>
            <numerusform>Locking of %n object</numerusform>
            <numerusform>Locking of %n objects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocking of %n object(s)</source>
        <translation>
            <numerusform>Unlocking of %n object</numerusform>
            <numerusform>Unlocking of %n objects</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetValueCommand</name>
    <message numerus="yes">
        <source>Change of %1 (%n objects)</source>
        <translation>
            <numerusform>Change of %1 (%n object)</numerusform>
            <numerusform>Change of %1 (%n objects)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StartOptions</name>
    <message numerus="yes">
        <source>Only one document can be opened, but %n were given.</source>
        <translation>
            <numerusform>Only one document can be opened, but %n was given.</numerusform>
            <numerusform>Only one document can be opened, but %n were given.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>checkForms</name>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n error</numerusform>
            <numerusform>%n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n warning</numerusform>
            <numerusform>%n warnings</numerusform>
        </translation>
    </message>
</context>
</TS>
