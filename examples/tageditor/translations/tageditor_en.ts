<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AutomatedRun</name>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n match</numerusform>
            <numerusform>%n matches</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message numerus="yes">
        <source>%Ln files done</source>
        <translation>
            <numerusform>%Ln file done</numerusform>
            <numerusform>%Ln files done</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %Ln skipped</source>
        <translation>
            <numerusform>, %Ln skipped</numerusform>
            <numerusform>, %Ln skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed: %2</source>
        <translation>
            <numerusform>%1, %Ln failed: %2</numerusform>
            <numerusform>%1, %Ln failed: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillTagsDialog</name>
    <message numerus="yes">
        <source>%L1 of %Ln texts fit the pattern</source>
        <translation>
            <numerusform>%L1 of %Ln text fits the pattern</numerusform>
            <numerusform>%L1 of %Ln texts fit the pattern</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%Ln files were changed by another program and read again</source>
        <translation>
            <numerusform>%Ln file was changed by another program and read again</numerusform>
            <numerusform>%Ln files were changed by another program and read again</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln files are not there any more</source>
        <translation>
            <numerusform>%Ln file is not there any more</numerusform>
            <numerusform>%Ln files are not there any more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tracks</source>
        <translation>
            <numerusform>%Ln track</numerusform>
            <numerusform>%Ln tracks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unreadable</source>
        <translation>
            <numerusform>%1, %Ln unreadable</numerusform>
            <numerusform>%1, %Ln unreadable</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln new files</source>
        <translation>
            <numerusform>%Ln new file</numerusform>
            <numerusform>%Ln new files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message numerus="yes">
        <source>%L1 of %Ln files will be renamed</source>
        <translation>
            <numerusform>%L1 of %Ln file will be renamed</numerusform>
            <numerusform>%L1 of %Ln files will be renamed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>; %Ln names are taken</source>
        <translation>
            <numerusform>; %Ln name is taken</numerusform>
            <numerusform>; %Ln names are taken</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplaceDialog</name>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>%L1 of %Ln text will change</numerusform>
            <numerusform>%L1 of %Ln texts will change</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SizeLabel</name>
    <message numerus="yes">
        <source>%Ln selected: %1</source>
        <translation>
            <numerusform>%Ln selected: %1</numerusform>
            <numerusform>%Ln selected: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TrackSaving</name>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… and %Ln more</numerusform>
            <numerusform>… and %Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransformDialog</name>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>%L1 of %Ln text will change</numerusform>
            <numerusform>%L1 of %Ln texts will change</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>None of %Ln texts will change</source>
        <translation>
            <numerusform>None of %Ln text will change</numerusform>
            <numerusform>None of %Ln texts will change</numerusform>
        </translation>
    </message>
</context>
</TS>
