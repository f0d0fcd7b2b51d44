<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Words</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting Load Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the Selected Setting?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleted Setting cannot be restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;JPEG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;PNG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;TIFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;GIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B&amp;MP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;HEIC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;VIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;WebP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG &amp;XL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input Folder cannot be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select the folder from where the Images are to be added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Extension list cannot be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select atleast one Extension to be included</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please browse and select the folder from where the settings are to be imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings have been imported into Zelto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error in importing settings. Please try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please browse and select the folder  where the settings are to be exported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings have been exported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error in exporting settings. Please try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings have been saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings cannot be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exclude Geolocation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exclude All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A Setting with the same name Exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You want to OverWrite it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QR code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Filter %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border and shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The newest version cannot be found out at the moment.
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are using the latest version of Zelto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelto Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new version of Zelto is available. Would you like to download it now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is version %1. No address is set to ask for a newer one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking for the newest version...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not processed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>written with warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Photo(s) Would Be Replaced</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Their watermarked copies would take the place of the originals, which would be lost:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some photos would get the same name, and each would take the place of the one before it. “Number” puts 1, 2 and so on behind the name:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln Photo(s) Would Become %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln File(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“Replace” writes over what is there, “Number” puts 1, 2 and so on behind the new names, “Skip” leaves these photos out:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln File(s) Exist Already</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YOUR LOGO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SAMPLE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caption bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROOF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A place for your logo in the lower right corner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diagonal text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text all over the photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The photo&apos;s name and date on a bar along the lower edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proof with QR code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROOF all over the photo, and its name as a QR code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no watermarks to paste.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are neither watermarks nor photos on the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ready-Made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the watermarks, the filter and the copyright data; border and shadow stay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermarking failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successive Fail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 Photos in a row failed to save, Would you like to  continue watermarking?
We recommend stopping the process and run as administrator.
Select No to stop watermarking.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark process completed successfully</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark process completed but some Photos produced Error
Double Click the Image Entry to know the problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name is not UTF-8 text, so the photo cannot be opened; rename it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A filter changes the whole photo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A border or a shadow is put around it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is resized.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an earlier photo of the run has the output “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” exists already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not written: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output takes the place of an earlier photo&apos;s of the same name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of the kind “%1” are not written here: the output is a JPEG.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The photo was written without its metadata: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has no extension of a format that can be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A size of %1 × %2 pixels cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number, two digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number, three digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number, four digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date: month, day, year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date: day, month, year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>City</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today&apos;s Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Name (Without Extension)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Name (With Extension)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Image Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creation Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modification Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo DPI Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo DPI Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was given up after it had not answered twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was not given the time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” ended while it was needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” did not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exiftool cannot be told “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be started: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exiftool did not write the metadata: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exiftool did not remove the photo&apos;s position.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exiftool did not remove a picture from the photo&apos;s metadata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exiftool left a file that is not the one it was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exiftool left a file that is not the picture it was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output path cannot be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select the folder for the output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output path not accessible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected path is not accessible. Please select another path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Longer side cannot be empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the size of the longer side of the photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a watermark&apos;s type is missing or no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was not written: the logos are too large for a setting file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings are already in “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A setting cannot be named “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no setting “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The setting “%1” cannot be deleted: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file holds too many elements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the elements are nested too deeply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is not UTF-8 text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a document type declaration is not accepted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a tag is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file&apos;s root is “%1” instead of “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The GIF encoder failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no palette could be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Zelto was built without an AVIF encoder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Zelto was built without a HEIC encoder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 encoder failed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The JPEG encoder failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The photo&apos;s data cannot be taken over as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be turned without loss: its stored width, %1 pixels, is no multiple of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be turned without loss: its stored height, %1 pixels, is no multiple of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The photo is no JPEG.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its colours are stored in another way than as YCbCr or grey.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its colours are sampled in broken steps.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its colour profile does not say how to come to its colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Zelto was built without a JPEG XL encoder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The JPEG XL encoder failed with error %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture without pixels cannot be a page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDF document needs at least one page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The PDF document cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for this picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This picture would take %1 MB of memory. No more than %2 MB are used for one from a file of this size on this machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a drawing (SVG, PDF or PostScript). Zelto reads photos and other pictures made of pixels: save it as PNG.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Zelto was built without a reader of %1 files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image may be damaged or use a file format not supported by Zelto.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture without pixels cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels is too large for the %3 format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The PNG encoder failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The TIFF encoder failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Zelto was built without a WebP encoder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The WebP encoder failed with error %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory to start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder can be made in “%1”: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no thread can be started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The font has the size 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logo has the size 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shapes and QR codes are not tiled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QR codes are not turned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its paddings and spacings leave no room for a tile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its kind is unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logo cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logo “%1” cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text is empty once its macros are filled in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No installed font has these letters: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text is too long for a QR code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The QR code is too small to be read: its squares are finer than a pixel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It lies outside the photo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Less than a tenth of it lies on the photo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shape has no area.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bubblegum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delhi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Evening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lumina</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old TV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paris</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vintage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyhole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Haze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for this photo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its border and shadow would make this photo too large.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Watermarks for batches of photos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start with a saved setting or a setting file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos, or folders of photos, to begin with.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::AutoNumberWindowController</name>
    <message>
        <source>Auto Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Continue after the last number used, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Continue after the last number used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of &amp;digits:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Starting number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;ncrement:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First photos:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ColorPanel</name>
    <message>
        <source>Shade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity of the colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour in hexadecimal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red, green and blue in hexadecimal, and opacity if you like: #rrggbb or #rrggbbaa</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity in per cent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a colour from the photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a colour from the photo: click on it, Escape gives up</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ColorWell</name>
    <message>
        <source>No colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2% opaque</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ContactView</name>
    <message>
        <source>Contact view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::CopyrightEditor</name>
    <message>
        <source>Notice:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>© Jane Doe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rights page:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>https://www.example.com/rights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terms of use:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jane Doe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photographer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>City:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State or province:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postal code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Country:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>jane@example.com</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>https://www.example.com</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyrighted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write these data into the photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copyright data could not be kept for the next time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::DateFormatWindowControlller</name>
    <message>
        <source>Date Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters of a format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::EffectsEditor</name>
    <message>
        <source>Border and Shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put a border and a shadow around the photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same width on all sides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermarks may cover the border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of the border</source>
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
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cast a shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of the shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blur:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preview leaves the shadow out while watermarks may cover the border; the written photos have it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::EmptyState</name>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop photos here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the photos to be watermarked, compose your watermarks at the right, then press Start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>or begin with the watermarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sample photo shows them until you add your own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a sample photo. Drop your own anywhere.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ExampleView</name>
    <message>
        <source>This photo cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no picture can have this size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example of an output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No photo is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ExistingSettingsWindowController</name>
    <message>
        <source>&amp;Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (autoload)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded when Zelto starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Autoload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Autoload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no saved settings. File &gt; Save Setting saves the watermarks you see.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting Delete Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::FilterWindow</name>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filters</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::FoldGroup</name>
    <message>
        <source>Folded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unfolded</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::FolderField</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::FolderImport</name>
    <message>
        <source>Add Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for photos...</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) found</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::FolderWindowController</name>
    <message>
        <source>Folder of Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include &amp;sub-folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder&apos;s GIF photos are passed over; add them one by one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More formats:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Photos</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::FontFamilyList</name>
    <message>
        <source>Search fonts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not installed here; a standard font takes its place.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::FullScreenView</name>
    <message>
        <source>Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ImageListController</name>
    <message numerus="yes">
        <source>Add %Ln Photo(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) are in the list already</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Check All Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncheck All Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggle Check Marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncheck Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Remove %Ln Photo(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Remove Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove All Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark Warning</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ImportExportWindowController</name>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no settings to copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln setting(s) will be copied.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::Inspector</name>
    <message>
        <source>Revert: take back everything that was changed since this was selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a watermark in the list above or on the photo, and what it looks like and where it stands can be changed here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::LengthBox</name>
    <message>
        <source>On the selected photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>= %L1 px</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::LengthUnit</name>
    <message>
        <source>in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in % of the shorter side</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::LogoEditor</name>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::LogoFileGroup</name>
    <message>
        <source>No image chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::LogoGroup</name>
    <message>
        <source>Choose Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This image cannot be used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make transparent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proportional</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size in per cent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side of the photo the size follows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep aspect ratio</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::LogoSample</name>
    <message>
        <source>Logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click the colour that is to become transparent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::MacroController</name>
    <message>
        <source>Insert Macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On this photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search macros and values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search macros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special Character…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::MainWindow</name>
    <message>
        <source>There is no saved setting and no setting file “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Zelto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Zelto %1&lt;/h3&gt;&lt;p&gt;Watermarks for batches of photos.&lt;/p&gt;&lt;p&gt;Free software under the GNU General Public License, version 3 or later.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Watermarking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1[*] – Zelto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln checked</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::NumberField</name>
    <message>
        <source>A number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::OutputOptionsController</name>
    <message>
        <source>Output Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;as Default</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::OutputPanel</name>
    <message>
        <source>Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Maintain the directory structure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Combine to a single PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep &amp;untouched areas as they are (JPEG to JPEG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Only the blocks that a watermark touches are encoded again, with the quality the photo has already. All else stays as it is, so that a copy of a copy is as good as the first.&lt;/p&gt;&lt;p&gt;This is done for JPEG photos that are neither resized nor filtered nor framed. Others are encoded as usual, and their rows say why.&lt;/p&gt;&lt;p&gt;Many cameras store colors at half the size. There, colored edges of marks are softer, and on a grey photo marks are grey.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meta&amp;data:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same as source image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 is the smallest file, 100 the best picture: with WebP, JPEG XL and AVIF, without any loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exclude Geolocation removes every position and keeps the names of places.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of this format have no metadata.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have set no copyright data (Add &gt; Copyright).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PhotoDelegate</name>
    <message>
        <source>preview of a raw file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PhotoFilterBox</name>
    <message>
        <source>All Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed or with Warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With Warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The photos that the list shows</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PhotoListView</name>
    <message>
        <source>Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No photo has “%1” in its name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PhotoPanel</name>
    <message>
        <source>Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort the photos: the run and its numbers follow this order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find photos by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows only photos with this in their names (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PhotoPreview</name>
    <message>
        <source>This photo cannot be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn Watermark</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PhotoStrip</name>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the filter on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the filter off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add border and shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit border and shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove border and shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch border and shadow on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch border and shadow off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the copyright data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the copyright data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the copyright data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the copyright data on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the copyright data off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The photo as a whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PlaceGuides</name>
    <message>
        <source>%L1 px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 = %2 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PositionGrid</name>
    <message>
        <source>Top left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PositionGroup</name>
    <message>
        <source>Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From left:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From top:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Padding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of the padding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat across</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of the gaps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::PreviewView</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ProcessingBar</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 photos/s, %2 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::QrCodeEditor</name>
    <message>
        <source>QR Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content of the code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>https://www.example.com</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% of photo width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background of the code</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::QrJudgement</name>
    <message>
        <source>Type what the code is to say, such as a web address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too long for a QR code: the text has %1 bytes, %2 fit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too small to be read: this text needs at least %1 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (%1% of this photo&apos;s width)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger than the photo: a part of the code would be cut off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The background is too dark: choose a brighter one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a background it can be read on bright parts of photos only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %1 squares of %2 pixels each.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::RenamePanel</name>
    <message>
        <source>Re&amp;name photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name patte&amp;rn:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert a macro</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ResizeField</name>
    <message>
        <source> %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> px</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ResizePanel</name>
    <message>
        <source>Resi&amp;ze photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width, per cent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height, per cent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width, pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height, pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Longer side, pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep the proportions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not &amp;enlarge small photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Percentage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pi&amp;xels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Longer side</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ResultBar</name>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retr&amp;y Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only the photos that failed or were written with warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run once more for the photos that failed, with the same options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close (Escape)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result of the run</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::RotationControl</name>
    <message>
        <source>Straight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slightly rising</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rising diagonally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slightly falling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Falling diagonally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usual rotations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::RunController</name>
    <message>
        <source>Looking at the names of the outputs...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos Are Being Watermarked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 are done. The photo in hand will be finished.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoded as usual: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 photos/s, %2 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln warned</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Open P&amp;DF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Fol&amp;der</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::SaveSettingsDialog</name>
    <message>
        <source>Save Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name of the setting:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved settings hold the watermarks, the filter and the border.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a setting of this name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::SavedStacksPopup</name>
    <message>
        <source>Saved stacks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (at start)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
Loaded when Zelto starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no saved stacks yet.
Save keeps the one you see.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ShapeEditor</name>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top to bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower right to upper left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper right to lower left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From the centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% of photo width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% of photo height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sides:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thickness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First colour of the gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second colour of the gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction of the gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A circle looks the same however it is turned</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::SizeField</name>
    <message>
        <source>Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::SpecialCharacterWindowController</name>
    <message>
        <source>Characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special Characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search by name or code: “arrow”, “U+2192”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No character has such a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first %L1 of %L2 found</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::StackHead</name>
    <message>
        <source>More for this stack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawn from top to bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last one lies on top of the others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unnamed stack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This stack has not been saved under a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has been changed since it was saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is loaded when Zelto starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
Click for the saved stacks (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::StackKeeper</name>
    <message>
        <source>Setting Save Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” Has Been Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the changes in the setting, or keep these watermarks for the next start without changing the setting?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep for Next Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder for settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Watermarks Cannot Be Kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The watermarks of the last time cannot be brought back: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is loaded again, as when Zelto was closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The watermarks of the last time are back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::TextEditor</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::TextStyleGroup</name>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Struck through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effect:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind of size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proportional</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side of the photo the size follows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usual sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Embossed letters cast no shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the light and dark edges of embossed letters are drawn</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::TipsDialog</name>
    <message>
        <source>Tips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did you know?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show tips at start-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::TransparencySlider</name>
    <message>
        <source>Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency in per cent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkController</name>
    <message>
        <source>Save Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to save yet. Add a watermark or a border first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting Save Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add QR Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit QR Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop Watermarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Filter On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Filter Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Border and Shadow On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Border and Shadow Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Border and Shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Copyright On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Copyright Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Watermark On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Watermark Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Remove %Ln Row(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Remove All Watermarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermarks, filter and copyright data removed; border and shadow stay. Undo brings everything back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermarks, filter and copyright data removed. Undo brings everything back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Setting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkListView</name>
    <message>
        <source>Watermarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No watermarks yet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkPanel</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a watermark, a filter, a border or copyright data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Watermark</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkWindowController</name>
    <message>
        <source>Look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiling</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::WindowActions</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Watermarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Setting &amp;As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load at Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved Stac&amp;ks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved Se&amp;ttings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start &amp;Watermarking...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause or Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel Watermarking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Photos...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove A&amp;ll Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Toggle Check Marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ind Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sort by Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by &amp;Date Taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Image...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shape...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;QR Code...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Border and Shadow...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copyright...</source>
        <translation type="unfinished"></translation>
    </message>
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
        <source>&amp;Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show or Hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove A&amp;ll Watermarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fit to Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contact View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Without &amp;Marks (Hold F8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check for a New Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Zelto</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelto::ZeltoController</name>
    <message>
        <source>Sort by Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by Date Taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading dates...</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) read</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
</TS>
