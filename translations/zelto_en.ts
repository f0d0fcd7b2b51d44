<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 and %Ln more</numerusform>
            <numerusform>%1 and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Photo(s) Would Be Replaced</source>
        <translation>
            <numerusform>A Photo Would Be Replaced</numerusform>
            <numerusform>%Ln Photos Would Be Replaced</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Photo(s) Would Become %1</source>
        <translation>
            <numerusform>%Ln Photo Would Become %1</numerusform>
            <numerusform>%Ln Photos Would Become %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln File(s)</source>
        <translation>
            <numerusform>%Ln File</numerusform>
            <numerusform>%Ln Files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln File(s) Exist Already</source>
        <translation>
            <numerusform>A File Exists Already</numerusform>
            <numerusform>%Ln Files Exist Already</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of the photos would be replaced by their outputs, the first being “%1”; choose another --output or a --rename, or allow it with --overwrite-originals</source>
        <translation>
            <numerusform>%Ln of the photos would be replaced by its output, “%1”; choose another --output or a --rename, or allow it with --overwrite-originals</numerusform>
            <numerusform>%Ln of the photos would be replaced by their outputs, the first being “%1”; choose another --output or a --rename, or allow it with --overwrite-originals</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln written</numerusform>
            <numerusform>%Ln written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not run</source>
        <translation>
            <numerusform>%Ln not run</numerusform>
            <numerusform>%Ln not run</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln with a warning</source>
        <translation>
            <numerusform>%Ln with a warning</numerusform>
            <numerusform>%Ln with a warning</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln families</source>
        <translation>
            <numerusform>%Ln family</numerusform>
            <numerusform>%Ln families</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln saved</source>
        <translation>
            <numerusform>%Ln saved</numerusform>
            <numerusform>%Ln saved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln photos at a time</source>
        <translation>
            <numerusform>%Ln photo at a time</numerusform>
            <numerusform>%Ln photos at a time</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::FolderImport</name>
    <message numerus="yes">
        <source>%Ln photo(s) found</source>
        <translation>
            <numerusform>%Ln photo found</numerusform>
            <numerusform>%Ln photos found</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::ImageListController</name>
    <message numerus="yes">
        <source>Add %Ln Photo(s)</source>
        <translation>
            <numerusform>Add Photo</numerusform>
            <numerusform>Add %Ln Photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) are in the list already</source>
        <translation>
            <numerusform>%Ln photo is in the list already</numerusform>
            <numerusform>%Ln photos are in the list already</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %Ln Photo(s)</source>
        <translation>
            <numerusform>Remove Photo</numerusform>
            <numerusform>Remove %Ln Photos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::ImportExportWindowController</name>
    <message numerus="yes">
        <source>%Ln setting(s) will be copied.</source>
        <translation>
            <numerusform>%Ln setting will be copied.</numerusform>
            <numerusform>%Ln settings will be copied.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::MainWindow</name>
    <message numerus="yes">
        <source>%Ln photo(s)</source>
        <translation>
            <numerusform>%Ln photo</numerusform>
            <numerusform>%Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln checked</source>
        <translation>
            <numerusform>%Ln checked</numerusform>
            <numerusform>%Ln checked</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::OutputPanel</name>
    <message numerus="yes">
        <source>%Ln photo(s) will have none: PNG, BMP and GIF files carry no metadata.</source>
        <translation>
            <numerusform>%Ln photo will have none: PNG, BMP and GIF files carry no metadata.</numerusform>
            <numerusform>%Ln photos will have none: PNG, BMP and GIF files carry no metadata.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::ProcessingBar</name>
    <message numerus="yes">
        <source>The run has begun: %Ln photo(s)</source>
        <translation>
            <numerusform>The run has begun: %Ln photo</numerusform>
            <numerusform>The run has begun: %Ln photos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::RunController</name>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln written</numerusform>
            <numerusform>%Ln written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln warned</source>
        <translation>
            <numerusform>%Ln warned</numerusform>
            <numerusform>%Ln warned</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::SpecialCharacterWindowController</name>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>%Ln found</numerusform>
            <numerusform>%Ln found</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkController</name>
    <message numerus="yes">
        <source>Remove %Ln Row(s)</source>
        <translation>
            <numerusform>Remove Row</numerusform>
            <numerusform>Remove %Ln Rows</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::ZeltoController</name>
    <message numerus="yes">
        <source>%Ln photo(s) read</source>
        <translation>
            <numerusform>%Ln photo read</numerusform>
            <numerusform>%Ln photos read</numerusform>
        </translation>
    </message>
</context>
</TS>
