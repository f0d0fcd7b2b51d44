<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Words</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sample photo</source>
        <translation>Beispielfoto</translation>
    </message>
    <message>
        <source>Setting Load Error</source>
        <translation>Einstellung kann nicht geladen werden</translation>
    </message>
    <message>
        <source>Delete the Selected Setting?</source>
        <translation>Ausgewählte Einstellung löschen?</translation>
    </message>
    <message>
        <source>Deleted Setting cannot be restored.</source>
        <translation>Eine gelöschte Einstellung lässt sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>&amp;JPEG</source>
        <translation>&amp;JPEG</translation>
    </message>
    <message>
        <source>&amp;PNG</source>
        <translation>&amp;PNG</translation>
    </message>
    <message>
        <source>&amp;TIFF</source>
        <translation>&amp;TIFF</translation>
    </message>
    <message>
        <source>&amp;GIF</source>
        <translation>&amp;GIF</translation>
    </message>
    <message>
        <source>B&amp;MP</source>
        <translation>B&amp;MP</translation>
    </message>
    <message>
        <source>&amp;HEIC</source>
        <translation>&amp;HEIC</translation>
    </message>
    <message>
        <source>A&amp;VIF</source>
        <translation>A&amp;VIF</translation>
    </message>
    <message>
        <source>&amp;WebP</source>
        <translation>&amp;WebP</translation>
    </message>
    <message>
        <source>JPEG &amp;XL</source>
        <translation>JPEG &amp;XL</translation>
    </message>
    <message>
        <source>&amp;Raw</source>
        <translation>&amp;Rohdaten</translation>
    </message>
    <message>
        <source>Input Folder cannot be empty</source>
        <translation>Kein Quellordner angegeben</translation>
    </message>
    <message>
        <source>Please select the folder from where the Images are to be added</source>
        <translation>Bitte den Ordner auswählen, aus dem Bilder hinzugefügt werden sollen.</translation>
    </message>
    <message>
        <source>File Extension list cannot be empty</source>
        <translation>Keine Dateiendung ausgewählt</translation>
    </message>
    <message>
        <source>Please select atleast one Extension to be included</source>
        <translation>Bitte mindestens eine Dateiendung auswählen.</translation>
    </message>
    <message>
        <source>Import Settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <source>Please browse and select the folder from where the settings are to be imported</source>
        <translation>Bitte den Ordner auswählen, aus dem die Einstellungen importiert werden sollen.</translation>
    </message>
    <message>
        <source>Settings have been imported into Zelto</source>
        <translation>Die Einstellungen wurden in Zelto importiert</translation>
    </message>
    <message>
        <source>Import Error</source>
        <translation>Fehler beim Importieren</translation>
    </message>
    <message>
        <source>Error in importing settings. Please try again later.</source>
        <translation>Die Einstellungen konnten nicht importiert werden. Bitte später erneut versuchen.</translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation>Einstellungen exportieren</translation>
    </message>
    <message>
        <source>Please browse and select the folder  where the settings are to be exported</source>
        <translation>Bitte den Ordner auswählen, in den die Einstellungen exportiert werden sollen.</translation>
    </message>
    <message>
        <source>Settings have been exported</source>
        <translation>Die Einstellungen wurden exportiert</translation>
    </message>
    <message>
        <source>Export Error</source>
        <translation>Fehler beim Exportieren</translation>
    </message>
    <message>
        <source>Error in exporting settings. Please try again later.</source>
        <translation>Die Einstellungen konnten nicht exportiert werden. Bitte später erneut versuchen.</translation>
    </message>
    <message>
        <source>Output Settings</source>
        <translation>Ausgabeeinstellungen</translation>
    </message>
    <message>
        <source>Settings have been saved</source>
        <translation>Die Einstellungen wurden gespeichert</translation>
    </message>
    <message>
        <source>Settings cannot be saved.</source>
        <translation>Die Einstellungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Include All</source>
        <translation>Alle übernehmen</translation>
    </message>
    <message>
        <source>Copyright Only</source>
        <translation>Nur Copyright</translation>
    </message>
    <message>
        <source>Exclude Geolocation</source>
        <translation>Ohne Aufnahmeort</translation>
    </message>
    <message>
        <source>Exclude All</source>
        <translation>Keine übernehmen</translation>
    </message>
    <message>
        <source>A Setting with the same name Exists.</source>
        <translation>Eine Einstellung mit diesem Namen existiert bereits.</translation>
    </message>
    <message>
        <source>Do You want to OverWrite it?</source>
        <translation>Soll sie überschrieben werden?</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>QR-Code</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 und %Ln weiteres</numerusform>
            <numerusform>%1 und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter %1</source>
        <translation>Filter %1</translation>
    </message>
    <message>
        <source>Border and shadow</source>
        <translation>Rand und Schatten</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Version Check</source>
        <translation>Versionsprüfung</translation>
    </message>
    <message>
        <source>The newest version cannot be found out at the moment.
%1</source>
        <translation>Die neueste Version lässt sich zurzeit nicht ermitteln.
%1</translation>
    </message>
    <message>
        <source>You are using the latest version of Zelto</source>
        <translation>Dies ist die neueste Version von Zelto</translation>
    </message>
    <message>
        <source>Zelto Update</source>
        <translation>Zelto-Aktualisierung</translation>
    </message>
    <message>
        <source>A new version of Zelto is available. Would you like to download it now?</source>
        <translation>Eine neue Version von Zelto ist verfügbar. Jetzt herunterladen?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>This is version %1. No address is set to ask for a newer one.</source>
        <translation>Dies ist Version %1. Es ist keine Adresse eingerichtet, um nach einer neueren zu fragen.</translation>
    </message>
    <message>
        <source>Asking for the newest version...</source>
        <translation>Neueste Version wird abgefragt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Watermark Error</source>
        <translation>Fehler beim Anbringen der Wasserzeichen</translation>
    </message>
    <message>
        <source>not processed</source>
        <translation>nicht bearbeitet</translation>
    </message>
    <message>
        <source>written</source>
        <translation>geschrieben</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>written with warnings</source>
        <translation>mit Warnungen geschrieben</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>checked</source>
        <translation>angehakt</translation>
    </message>
    <message>
        <source>not checked</source>
        <translation>nicht angehakt</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>und %Ln weitere</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Photo(s) Would Be Replaced</source>
        <translation>
            <numerusform>%Ln Foto würde ersetzt</numerusform>
            <numerusform>%Ln Fotos würden ersetzt</numerusform>
        </translation>
    </message>
    <message>
        <source>Their watermarked copies would take the place of the originals, which would be lost:
%1</source>
        <translation>Die Kopien mit Wasserzeichen würden an die Stelle der Originale treten, die dann verloren wären:
%1</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Anderen Ordner wählen</translation>
    </message>
    <message>
        <source>Some photos would get the same name, and each would take the place of the one before it. “Number” puts 1, 2 and so on behind the name:
%1</source>
        <translation>Einige Fotos bekämen denselben Namen, und jedes würde das vorige ersetzen. „Nummerieren“ hängt 1, 2 und so weiter an den Namen an:
%1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Photo(s) Would Become %1</source>
        <translation>
            <numerusform>Aus %Ln Foto würde %1</numerusform>
            <numerusform>Aus %Ln Fotos würde %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln File(s)</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummerieren</translation>
    </message>
    <message>
        <source>“Replace” writes over what is there, “Number” puts 1, 2 and so on behind the new names, “Skip” leaves these photos out:
%1</source>
        <translation>„Ersetzen“ überschreibt, was da ist, „Nummerieren“ hängt 1, 2 und so weiter an die neuen Namen an, „Überspringen“ lässt diese Fotos aus:
%1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln File(s) Exist Already</source>
        <translation>
            <numerusform>%Ln Datei existiert bereits</numerusform>
            <numerusform>%Ln Dateien existieren bereits</numerusform>
        </translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>YOUR LOGO</source>
        <translation>MEIN LOGO</translation>
    </message>
    <message>
        <source>Your logo</source>
        <translation>Eigenes Logo</translation>
    </message>
    <message>
        <source>SAMPLE</source>
        <translation>MUSTER</translation>
    </message>
    <message>
        <source>Caption bar</source>
        <translation>Bildzeile</translation>
    </message>
    <message>
        <source>PROOF</source>
        <translation>ENTWURF</translation>
    </message>
    <message>
        <source>Corner logo</source>
        <translation>Logo in der Ecke</translation>
    </message>
    <message>
        <source>A place for your logo in the lower right corner</source>
        <translation>Ein Platz für das eigene Logo in der unteren rechten Ecke</translation>
    </message>
    <message>
        <source>Diagonal text</source>
        <translation>Schräger Text</translation>
    </message>
    <message>
        <source>A text all over the photo</source>
        <translation>Ein Text über das ganze Foto</translation>
    </message>
    <message>
        <source>The photo&apos;s name and date on a bar along the lower edge</source>
        <translation>Name und Datum des Fotos auf einem Balken am unteren Rand</translation>
    </message>
    <message>
        <source>Proof with QR code</source>
        <translation>Entwurf mit QR-Code</translation>
    </message>
    <message>
        <source>PROOF all over the photo, and its name as a QR code</source>
        <translation>ENTWURF über das ganze Foto und sein Name als QR-Code</translation>
    </message>
    <message>
        <source>The clipboard</source>
        <translation>Die Zwischenablage</translation>
    </message>
    <message>
        <source>There are no watermarks to paste.</source>
        <translation>Es gibt keine Wasserzeichen zum Einfügen.</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Vieleck</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Shape - %1</source>
        <translation>Form – %1</translation>
    </message>
    <message>
        <source>Filter - %1</source>
        <translation>Filter – %1</translation>
    </message>
    <message>
        <source>There are neither watermarks nor photos on the clipboard.</source>
        <translation>In der Zwischenablage sind weder Wasserzeichen noch Fotos.</translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation>„%1“ ist gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Ready-Made</source>
        <translation>Vor&amp;lagen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Remove the watermarks, the filter and the copyright data; border and shadow stay</source>
        <translation>Wasserzeichen, Filter und Copyright-Angaben entfernen; Rand und Schatten bleiben</translation>
    </message>
    <message>
        <source>Watermarking failed.</source>
        <translation>Das Anbringen der Wasserzeichen ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Successive Fail</source>
        <translation>Mehrere Fehler hintereinander</translation>
    </message>
    <message>
        <source>3 Photos in a row failed to save, Would you like to  continue watermarking?
We recommend stopping the process and run as administrator.
Select No to stop watermarking.</source>
        <translation>3 Fotos hintereinander konnten nicht gespeichert werden. Trotzdem fortfahren?
Es wird empfohlen, den Vorgang abzubrechen und das Programm als Administrator auszuführen.
Mit „Nein“ wird der Vorgang beendet.</translation>
    </message>
    <message>
        <source>Watermark Output</source>
        <translation>Ausgabe der Wasserzeichen</translation>
    </message>
    <message>
        <source>Watermark process completed successfully</source>
        <translation>Alle Wasserzeichen wurden erfolgreich angebracht</translation>
    </message>
    <message>
        <source>Watermark process completed but some Photos produced Error
Double Click the Image Entry to know the problem</source>
        <translation>Der Vorgang ist beendet, aber bei einigen Fotos traten Fehler auf
Doppelklick auf den Bildeintrag zeigt die Ursache</translation>
    </message>
    <message>
        <source>the folder cannot be read: %1</source>
        <translation>der Ordner kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the name is not UTF-8 text, so the photo cannot be opened; rename it</source>
        <translation>der Name ist kein UTF-8-Text, daher kann das Foto nicht geöffnet werden; bitte umbenennen</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>die Verknüpfung führt ins Leere</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be read.</source>
        <translation>Der Ordner „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A filter changes the whole photo.</source>
        <translation>Ein Filter verändert das ganze Foto.</translation>
    </message>
    <message>
        <source>A border or a shadow is put around it.</source>
        <translation>Das Foto bekommt einen Rand oder Schatten.</translation>
    </message>
    <message>
        <source>It is resized.</source>
        <translation>Die Größe wird geändert.</translation>
    </message>
    <message>
        <source>an earlier photo of the run has the output “%1”</source>
        <translation>ein früheres Foto des Durchlaufs hat die Ausgabe „%1“</translation>
    </message>
    <message>
        <source>“%1” exists already</source>
        <translation>„%1“ existiert bereits</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Ausgelassen: %1.</translation>
    </message>
    <message>
        <source>Not written: %1.</source>
        <translation>Nicht geschrieben: %1.</translation>
    </message>
    <message>
        <source>The output takes the place of an earlier photo&apos;s of the same name.</source>
        <translation>Die Ausgabe ersetzt die eines früheren Fotos mit demselben Namen.</translation>
    </message>
    <message>
        <source>Files of the kind “%1” are not written here: the output is a JPEG.</source>
        <translation>Dateien der Art „%1“ werden hier nicht geschrieben: Die Ausgabe ist ein JPEG.</translation>
    </message>
    <message>
        <source>The photo was written without its metadata: %1</source>
        <translation>Das Foto wurde ohne seine Metadaten geschrieben: %1</translation>
    </message>
    <message>
        <source>“%1” has no extension of a format that can be written.</source>
        <translation>„%1“ hat keine Dateiendung eines Formats, das geschrieben werden kann.</translation>
    </message>
    <message>
        <source>A size of %1 × %2 pixels cannot be written.</source>
        <translation>Eine Größe von %1 × %2 Pixeln kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Original name</source>
        <translation>Ursprünglicher Name</translation>
    </message>
    <message>
        <source>Number, two digits</source>
        <translation>Nummer, zweistellig</translation>
    </message>
    <message>
        <source>Number, three digits</source>
        <translation>Nummer, dreistellig</translation>
    </message>
    <message>
        <source>Number, four digits</source>
        <translation>Nummer, vierstellig</translation>
    </message>
    <message>
        <source>Date: month, day, year</source>
        <translation>Datum: Monat, Tag, Jahr</translation>
    </message>
    <message>
        <source>Date: day, month, year</source>
        <translation>Datum: Tag, Monat, Jahr</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>Aufnahmezeit</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>Photo width</source>
        <translation>Fotobreite</translation>
    </message>
    <message>
        <source>Photo height</source>
        <translation>Fotohöhe</translation>
    </message>
    <message>
        <source>Auto Number</source>
        <translation>Laufende Nummer</translation>
    </message>
    <message>
        <source>Today&apos;s Date</source>
        <translation>Heutiges Datum</translation>
    </message>
    <message>
        <source>Image Name (Without Extension)</source>
        <translation>Bildname (ohne Dateiendung)</translation>
    </message>
    <message>
        <source>Image Name (With Extension)</source>
        <translation>Bildname (mit Dateiendung)</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>Full Image Path</source>
        <translation>Vollständiger Pfad des Bildes</translation>
    </message>
    <message>
        <source>Creation Date</source>
        <translation>Erstellungsdatum</translation>
    </message>
    <message>
        <source>Modification Date</source>
        <translation>Änderungsdatum</translation>
    </message>
    <message>
        <source>Photo Width</source>
        <translation>Fotobreite</translation>
    </message>
    <message>
        <source>Photo Height</source>
        <translation>Fotohöhe</translation>
    </message>
    <message>
        <source>Photo DPI Width</source>
        <translation>Auflösung waagerecht (dpi)</translation>
    </message>
    <message>
        <source>Photo DPI Height</source>
        <translation>Auflösung senkrecht (dpi)</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>„%1“ fehlt.</translation>
    </message>
    <message>
        <source>“%1” was given up after it had not answered twice.</source>
        <translation>„%1“ wurde aufgegeben, nachdem es zweimal nicht geantwortet hatte.</translation>
    </message>
    <message>
        <source>“%1” was not given the time.</source>
        <translation>Für „%1“ blieb keine Zeit.</translation>
    </message>
    <message>
        <source>“%1” ended while it was needed.</source>
        <translation>„%1“ wurde beendet, während es gebraucht wurde.</translation>
    </message>
    <message>
        <source>“%1” did not answer in time.</source>
        <translation>„%1“ hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>exiftool cannot be told “%1”.</source>
        <translation>exiftool kann „%1“ nicht übergeben werden.</translation>
    </message>
    <message>
        <source>“%1” cannot be started: %2</source>
        <translation>„%1“ kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>exiftool did not write the metadata: %1</source>
        <translation>exiftool hat die Metadaten nicht geschrieben: %1</translation>
    </message>
    <message>
        <source>exiftool did not remove the photo&apos;s position.</source>
        <translation>exiftool hat den Aufnahmeort des Fotos nicht entfernt.</translation>
    </message>
    <message>
        <source>exiftool did not remove a picture from the photo&apos;s metadata.</source>
        <translation>exiftool hat ein Bild nicht aus den Metadaten des Fotos entfernt.</translation>
    </message>
    <message>
        <source>exiftool left a file that is not the one it was given.</source>
        <translation>exiftool hat eine andere Datei hinterlassen, als ihm übergeben wurde.</translation>
    </message>
    <message>
        <source>exiftool left a file that is not the picture it was given.</source>
        <translation>exiftool hat eine Datei hinterlassen, die nicht das übergebene Bild ist.</translation>
    </message>
    <message>
        <source>Output path cannot be empty</source>
        <translation>Kein Ausgabeordner angegeben</translation>
    </message>
    <message>
        <source>Please select the folder for the output</source>
        <translation>Bitte den Ordner für die Ausgabe auswählen.</translation>
    </message>
    <message>
        <source>Output path not accessible</source>
        <translation>Kein Zugriff auf den Ausgabeordner</translation>
    </message>
    <message>
        <source>The selected path is not accessible. Please select another path.</source>
        <translation>Auf den ausgewählten Pfad kann nicht zugegriffen werden. Bitte einen anderen auswählen.</translation>
    </message>
    <message>
        <source>Longer side cannot be empty</source>
        <translation>Keine Länge für die längere Seite angegeben</translation>
    </message>
    <message>
        <source>Please enter the size of the longer side of the photo</source>
        <translation>Bitte die Länge der längeren Seite des Fotos eingeben.</translation>
    </message>
    <message>
        <source>a watermark&apos;s type is missing or no number</source>
        <translation>die Art eines Wasserzeichens fehlt oder ist keine Zahl</translation>
    </message>
    <message>
        <source>“%1” was not written: the logos are too large for a setting file.</source>
        <translation>„%1“ wurde nicht geschrieben: Die Logos sind zu groß für eine Einstellungsdatei.</translation>
    </message>
    <message>
        <source>The settings are already in “%1”.</source>
        <translation>Die Einstellungen sind bereits in „%1“.</translation>
    </message>
    <message>
        <source>A setting cannot be named “%1”.</source>
        <translation>Eine Einstellung kann nicht „%1“ heißen.</translation>
    </message>
    <message>
        <source>There is no setting “%1”.</source>
        <translation>Es gibt keine Einstellung „%1“.</translation>
    </message>
    <message>
        <source>The setting “%1” cannot be deleted: %2</source>
        <translation>Die Einstellung „%1“ kann nicht gelöscht werden: %2</translation>
    </message>
    <message>
        <source>the file holds too many elements</source>
        <translation>die Datei enthält zu viele Elemente</translation>
    </message>
    <message>
        <source>the elements are nested too deeply</source>
        <translation>die Elemente sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>the file is not UTF-8 text</source>
        <translation>die Datei ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>a document type declaration is not accepted</source>
        <translation>eine Dokumenttyp-Deklaration wird nicht angenommen</translation>
    </message>
    <message>
        <source>a tag is too long</source>
        <translation>ein Tag ist zu lang</translation>
    </message>
    <message>
        <source>the file&apos;s root is “%1” instead of “%2”</source>
        <translation>das oberste Element der Datei ist „%1“ statt „%2“</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>The GIF encoder failed: %1</source>
        <translation>Das Kodieren als GIF ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>no palette could be made</source>
        <translation>es konnte keine Palette erstellt werden</translation>
    </message>
    <message>
        <source>This Zelto was built without an AVIF encoder.</source>
        <translation>Dieses Zelto wurde ohne AVIF-Encoder gebaut.</translation>
    </message>
    <message>
        <source>This Zelto was built without a HEIC encoder.</source>
        <translation>Dieses Zelto wurde ohne HEIC-Encoder gebaut.</translation>
    </message>
    <message>
        <source>The %1 encoder failed: %2</source>
        <translation>Das Kodieren als %1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>The JPEG encoder failed: %1</source>
        <translation>Das Kodieren als JPEG ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The photo&apos;s data cannot be taken over as they are.</source>
        <translation>Die Daten des Fotos lassen sich nicht unverändert übernehmen.</translation>
    </message>
    <message>
        <source>It cannot be turned without loss: its stored width, %1 pixels, is no multiple of %2.</source>
        <translation>Verlustfreies Drehen ist nicht möglich: Die gespeicherte Breite von %1 Pixeln ist kein Vielfaches von %2.</translation>
    </message>
    <message>
        <source>It cannot be turned without loss: its stored height, %1 pixels, is no multiple of %2.</source>
        <translation>Verlustfreies Drehen ist nicht möglich: Die gespeicherte Höhe von %1 Pixeln ist kein Vielfaches von %2.</translation>
    </message>
    <message>
        <source>The photo is no JPEG.</source>
        <translation>Das Foto ist kein JPEG.</translation>
    </message>
    <message>
        <source>Its colours are stored in another way than as YCbCr or grey.</source>
        <translation>Die Farben sind weder als YCbCr noch als Graustufen gespeichert.</translation>
    </message>
    <message>
        <source>It is stored in arithmetic codes.</source>
        <translation>Es ist in arithmetischen Codes gespeichert.</translation>
    </message>
    <message>
        <source>Its colours are sampled in broken steps.</source>
        <translation>Die Farben sind in gebrochenen Schritten abgetastet.</translation>
    </message>
    <message>
        <source>Its colour profile does not say how to come to its colours.</source>
        <translation>Das Farbprofil sagt nicht, wie seine Farben zu bilden sind.</translation>
    </message>
    <message>
        <source>This Zelto was built without a JPEG XL encoder.</source>
        <translation>Dieses Zelto wurde ohne JPEG-XL-Encoder gebaut.</translation>
    </message>
    <message>
        <source>The JPEG XL encoder failed with error %1.</source>
        <translation>Das Kodieren als JPEG XL ist mit Fehler %1 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>A picture without pixels cannot be a page.</source>
        <translation>Ein Bild ohne Pixel kann keine Seite sein.</translation>
    </message>
    <message>
        <source>A PDF document needs at least one page.</source>
        <translation>Ein PDF-Dokument braucht mindestens eine Seite.</translation>
    </message>
    <message>
        <source>The PDF document cannot be written: %1</source>
        <translation>Das PDF-Dokument kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>There is not enough memory for this picture.</source>
        <translation>Für dieses Bild reicht der Arbeitsspeicher nicht.</translation>
    </message>
    <message>
        <source>This picture would take %1 MB of memory. No more than %2 MB are used for one from a file of this size on this machine.</source>
        <translation>Dieses Bild bräuchte %1 MB Arbeitsspeicher. Für eines aus einer Datei dieser Größe werden auf diesem Rechner höchstens %2 MB verwendet.</translation>
    </message>
    <message>
        <source>This is a drawing (SVG, PDF or PostScript). Zelto reads photos and other pictures made of pixels: save it as PNG.</source>
        <translation>Dies ist eine Zeichnung (SVG, PDF oder PostScript). Zelto liest Fotos und andere Pixelbilder: bitte als PNG speichern.</translation>
    </message>
    <message>
        <source>This Zelto was built without a reader of %1 files.</source>
        <translation>Dieses Zelto wurde ohne Leser für %1-Dateien gebaut.</translation>
    </message>
    <message>
        <source>Image may be damaged or use a file format not supported by Zelto.</source>
        <translation>Das Bild ist möglicherweise beschädigt oder hat ein Dateiformat, das Zelto nicht unterstützt.</translation>
    </message>
    <message>
        <source>A picture without pixels cannot be written.</source>
        <translation>Ein Bild ohne Pixel kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels is too large for the %3 format.</source>
        <translation>Ein Bild mit %1 × %2 Pixeln ist zu groß für das Format %3.</translation>
    </message>
    <message>
        <source>The PNG encoder failed: %1</source>
        <translation>Das Kodieren als PNG ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The TIFF encoder failed: %1</source>
        <translation>Das Kodieren als TIFF ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>This Zelto was built without a WebP encoder.</source>
        <translation>Dieses Zelto wurde ohne WebP-Encoder gebaut.</translation>
    </message>
    <message>
        <source>The WebP encoder failed with error %1.</source>
        <translation>Das Kodieren als WebP ist mit Fehler %1 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>„%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>there is not enough memory to start</source>
        <translation>der Arbeitsspeicher reicht nicht zum Starten</translation>
    </message>
    <message>
        <source>No folder can be made in “%1”: %2</source>
        <translation>In „%1“ kann kein Ordner angelegt werden: %2</translation>
    </message>
    <message>
        <source>no thread can be started</source>
        <translation>es kann kein Thread gestartet werden</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The font has the size 0.</source>
        <translation>Die Schrift hat die Größe 0.</translation>
    </message>
    <message>
        <source>The logo has the size 0.</source>
        <translation>Das Logo hat die Größe 0.</translation>
    </message>
    <message>
        <source>Shapes and QR codes are not tiled.</source>
        <translation>Formen und QR-Codes werden nicht gekachelt.</translation>
    </message>
    <message>
        <source>QR codes are not turned.</source>
        <translation>QR-Codes werden nicht gedreht.</translation>
    </message>
    <message>
        <source>Its paddings and spacings leave no room for a tile.</source>
        <translation>Seine Abstände lassen keinen Platz für eine Kachel.</translation>
    </message>
    <message>
        <source>Its kind is unknown.</source>
        <translation>Seine Art ist unbekannt.</translation>
    </message>
    <message>
        <source>The logo cannot be read.</source>
        <translation>Das Logo kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The logo “%1” cannot be read.</source>
        <translation>Das Logo „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The text is empty once its macros are filled in.</source>
        <translation>Der Text ist leer, sobald seine Makros ausgefüllt sind.</translation>
    </message>
    <message>
        <source>No installed font has these letters: %1</source>
        <translation>Keine installierte Schrift enthält diese Zeichen: %1</translation>
    </message>
    <message>
        <source>The text is too long for a QR code.</source>
        <translation>Der Text ist zu lang für einen QR-Code.</translation>
    </message>
    <message>
        <source>The QR code is too small to be read: its squares are finer than a pixel.</source>
        <translation>Der QR-Code ist zu klein, um gelesen zu werden: Seine Quadrate sind feiner als ein Pixel.</translation>
    </message>
    <message>
        <source>It lies outside the photo.</source>
        <translation>Es liegt außerhalb des Fotos.</translation>
    </message>
    <message>
        <source>Less than a tenth of it lies on the photo.</source>
        <translation>Weniger als ein Zehntel davon liegt auf dem Foto.</translation>
    </message>
    <message>
        <source>The shape has no area.</source>
        <translation>Die Form hat keine Fläche.</translation>
    </message>
    <message>
        <source>Bubblegum</source>
        <translation>Kaugummi</translation>
    </message>
    <message>
        <source>Delhi</source>
        <translation>Delhi</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>Erde</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Abend</translation>
    </message>
    <message>
        <source>Lumina</source>
        <translation>Lumina</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
    <message>
        <source>Old TV</source>
        <translation>Alter Fernseher</translation>
    </message>
    <message>
        <source>Paris</source>
        <translation>Paris</translation>
    </message>
    <message>
        <source>Rome</source>
        <translation>Rom</translation>
    </message>
    <message>
        <source>Vintage</source>
        <translation>Nostalgie</translation>
    </message>
    <message>
        <source>Keyhole</source>
        <translation>Schlüsselloch</translation>
    </message>
    <message>
        <source>Haze</source>
        <translation>Dunst</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Watermark %1: %2</source>
        <translation>Wasserzeichen %1: %2</translation>
    </message>
    <message>
        <source>There is not enough memory for this photo.</source>
        <translation>Für dieses Foto reicht der Arbeitsspeicher nicht.</translation>
    </message>
    <message>
        <source>Its border and shadow would make this photo too large.</source>
        <translation>Mit Rand und Schatten würde dieses Foto zu groß.</translation>
    </message>
    <message>
        <source>try &apos;zelto --help&apos;</source>
        <translation>siehe „zelto --help“</translation>
    </message>
    <message>
        <source>puts watermarks on batches of photos, in a window</source>
        <translation>versieht viele Fotos auf einmal mit Wasserzeichen, in einem Fenster</translation>
    </message>
    <message>
        <source>the window, with the stack of last time</source>
        <translation>das Fenster, mit dem Stapel vom letzten Mal</translation>
    </message>
    <message>
        <source>with the photos of a folder in the list</source>
        <translation>mit den Fotos eines Ordners in der Liste</translation>
    </message>
    <message>
        <source>with a saved setting and some photos</source>
        <translation>mit einer gespeicherten Einstellung und einigen Fotos</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>start with a saved setting, or with the setting file of this path</source>
        <translation>mit einer gespeicherten Einstellung oder der Einstellungsdatei dieses Pfades beginnen</translation>
    </message>
    <message>
        <source>print the manual page (man), the completion for bash, zsh or fish, or all options in markdown</source>
        <translation>Handbuchseite (man), Vervollständigung für bash, zsh oder fish oder alle Optionen als Markdown ausgeben</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>diese Hilfe ausgeben</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>Version ausgeben</translation>
    </message>
    <message>
        <source>Exit status</source>
        <translation>Rückgabewert</translation>
    </message>
    <message>
        <source>0: the window was closed.
2: the command line cannot be used.</source>
        <translation>0: Das Fenster wurde geschlossen.
2: Die Befehlszeile ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>~/.local/share/Zelto/Settings/*.zcs: the saved settings, a file each.
~/.local/share/Zelto/Copyright.xml: your copyright data.</source>
        <translation>~/.local/share/Zelto/Settings/*.zcs: die gespeicherten Einstellungen, je eine Datei.
~/.local/share/Zelto/Copyright.xml: die eigenen Copyright-Angaben.</translation>
    </message>
    <message>
        <source>the watched folder is gone; waiting for it to come back</source>
        <translation>der überwachte Ordner ist verschwunden; es wird auf seine Rückkehr gewartet</translation>
    </message>
    <message>
        <source>the system tells of changes in no more folders; they are listed every 10 seconds instead (%1 says how many there may be)</source>
        <translation>das System meldet keine Änderungen in weiteren Ordnern; sie werden stattdessen alle 10 Sekunden durchgesehen (%1 sagt, wie viele es sein dürfen)</translation>
    </message>
    <message>
        <source>%1 takes one of %2, not “%3”</source>
        <translation>%1 verlangt eines von %2, nicht „%3“</translation>
    </message>
    <message>
        <source>%1 takes one of %2, not “%3”; did you mean “%4”?</source>
        <translation>%1 verlangt eines von %2, nicht „%3“; ist „%4“ gemeint?</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 on, not “%3”</source>
        <translation>%1 verlangt eine ganze Zahl ab %2, nicht „%3“</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 to %3, not “%4”</source>
        <translation>%1 verlangt eine ganze Zahl von %2 bis %3, nicht „%4“</translation>
    </message>
    <message>
        <source>%1 cannot be given together with another way to resize</source>
        <translation>%1 verträgt sich nicht mit einer anderen Art der Größenänderung</translation>
    </message>
    <message>
        <source>%1 takes WIDTHxHEIGHT in whole numbers from 0 on, such as 800x600, not “%2”</source>
        <translation>%1 verlangt BREITExHÖHE in ganzen Zahlen ab 0, etwa 800x600, nicht „%2“</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this machine has no encoder for it; zelto-batch --doctor tells which formats it can write</source>
        <translation>%1 kann nicht %2 sein: dieser Rechner hat keinen Encoder dafür; zelto-batch --doctor sagt, welche Formate er schreiben kann</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>%1 and another option that only tells or prints something cannot be given together</source>
        <translation>%1 verträgt sich nicht mit einer anderen Option, die nur etwas mitteilt oder ausgibt</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>a saved setting&apos;s name, or the path of a .zcs file (needed)</source>
        <translation>Name einer gespeicherten Einstellung oder Pfad einer .zcs-Datei (nötig)</translation>
    </message>
    <message>
        <source>output folder, made when missing (needed, unless --options names one)</source>
        <translation>Ausgabeordner, wird bei Bedarf angelegt (nötig, sofern --options keinen nennt)</translation>
    </message>
    <message>
        <source>start from an OutputSettings.xml, as --print-options makes one; the other options override it</source>
        <translation>von einer OutputSettings.xml ausgehen, wie --print-options sie erstellt; die anderen Optionen haben Vorrang</translation>
    </message>
    <message>
        <source>print what would be written, and write nothing</source>
        <translation>ausgeben, was geschrieben würde, und nichts schreiben</translation>
    </message>
    <message>
        <source>go on until interrupted: photos that arrive in the named folders are written at once</source>
        <translation>weiterlaufen bis zur Unterbrechung: Fotos, die in den genannten Ordnern eintreffen, werden sofort geschrieben</translation>
    </message>
    <message>
        <source>Format and size</source>
        <translation>Format und Größe</translation>
    </message>
    <message>
        <source>same, jpg, png, tiff, bmp, gif, pdf, webp, avif, jxl or heic (default: same)</source>
        <translation>same, jpg, png, tiff, bmp, gif, pdf, webp, avif, jxl oder heic (Vorgabe: same)</translation>
    </message>
    <message>
        <source>quality of JPEG, WebP, AVIF, JPEG XL and HEIC (default: 90); at 100 WebP, JPEG XL and, where its encoder can, AVIF are lossless</source>
        <translation>Qualität von JPEG, WebP, AVIF, JPEG XL und HEIC (Vorgabe: 90); bei 100 sind WebP, JPEG XL und, wenn der Encoder es kann, AVIF verlustfrei</translation>
    </message>
    <message>
        <source>JPEG to JPEG: only the blocks that a watermark touches are encoded again, with the photo&apos;s own quality and chroma (on halved chroma colored edges of marks are softer); photos it cannot be done for are encoded as usual, and the report says why</source>
        <translation>JPEG zu JPEG: nur die Blöcke, die ein Wasserzeichen berührt, werden neu kodiert, mit Qualität und Farbauflösung des Fotos (bei halber Farbauflösung sind farbige Kanten weicher); Fotos, bei denen das nicht geht, werden wie gewohnt kodiert, und der Bericht sagt, warum</translation>
    </message>
    <message>
        <source>resize each side by its percentage</source>
        <translation>jede Seite um ihren Prozentsatz ändern</translation>
    </message>
    <message>
        <source>resize to a width and height in pixels, 0 for one that is not given</source>
        <translation>auf eine Breite und Höhe in Pixeln bringen, 0 für nicht angegeben</translation>
    </message>
    <message>
        <source>resize the longer side to N pixels</source>
        <translation>die längere Seite auf N Pixel bringen</translation>
    </message>
    <message>
        <source>keep proportions when resizing</source>
        <translation>Seitenverhältnis bei der Größenänderung beibehalten</translation>
    </message>
    <message>
        <source>never make a photo larger</source>
        <translation>kein Foto vergrößern</translation>
    </message>
    <message>
        <source>all photos into one PDF (with --format pdf)</source>
        <translation>alle Fotos in ein PDF (mit --format pdf)</translation>
    </message>
    <message>
        <source>Names and folders</source>
        <translation>Namen und Ordner</translation>
    </message>
    <message>
        <source>output name: [O] original name, [#] to [####] number in the list, [D] today as MMDDYYYY, [DD] as DDMMYYYY, and the macros of texts, as in &apos;&lt;&lt;EXIF:DateTimeOriginal[Y-M-D]&gt;&gt;_[###]&apos;</source>
        <translation>Name der Ausgabe: [O] ursprünglicher Name, [#] bis [####] Nummer in der Liste, [D] heutiges Datum als MMTTJJJJ, [DD] als TTMMJJJJ, und die Makros der Texte, etwa &apos;&lt;&lt;EXIF:DateTimeOriginal[Y-M-D]&gt;&gt;_[###]&apos;</translation>
    </message>
    <message>
        <source>mirror the source folders in the output folder</source>
        <translation>die Quellordner im Ausgabeordner nachbilden</translation>
    </message>
    <message>
        <source>photos of the run with the same output: replace (with a warning), number, skip or fail (default: replace)</source>
        <translation>Fotos des Durchlaufs mit derselben Ausgabe: replace (mit Warnung), number, skip oder fail (Vorgabe: replace)</translation>
    </message>
    <message>
        <source>outputs that stand there before the run: replace, number, skip or fail (default: replace)</source>
        <translation>Ausgaben, die vor dem Durchlauf da sind: replace, number, skip oder fail (Vorgabe: replace)</translation>
    </message>
    <message>
        <source>allow outputs that replace photos of the list</source>
        <translation>Ausgaben erlauben, die Fotos der Liste ersetzen</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>all, copyright, no-gps (positions go, names of places stay) or none (default: all)</source>
        <translation>all, copyright, no-gps (Positionen entfallen, Ortsnamen bleiben) oder none (Vorgabe: all)</translation>
    </message>
    <message>
        <source>a Copyright.xml to write into the outputs (default: your own, if the setting asks for it)</source>
        <translation>eine Copyright.xml, die in die Ausgaben geschrieben wird (Vorgabe: die eigene, wenn die Einstellung es verlangt)</translation>
    </message>
    <message>
        <source>Which photos</source>
        <translation>Welche Fotos</translation>
    </message>
    <message>
        <source>scan sub-folders too</source>
        <translation>auch Unterordner durchsuchen</translation>
    </message>
    <message>
        <source>what a folder scan takes, of jpeg,png,tiff,gif,bmp (default: these) and heic,avif,webp,jxl,raw</source>
        <translation>was aus Ordnern genommen wird, von jpeg,png,tiff,gif,bmp (Vorgabe: diese) und heic,avif,webp,jxl,raw</translation>
    </message>
    <message>
        <source>only every Nth photo of the list, from I on (0-based); auto, auto/N: as a Slurm array or a Kubernetes Job has it</source>
        <translation>nur jedes N-te Foto der Liste, ab I (von 0 gezählt); auto, auto/N: wie ein Slurm-Array oder ein Kubernetes-Job es vorgibt</translation>
    </message>
    <message>
        <source>The run</source>
        <translation>Der Durchlauf</translation>
    </message>
    <message>
        <source>photos worked on at a time (default: the number of cores)</source>
        <translation>Fotos, an denen gleichzeitig gearbeitet wird (Vorgabe: Anzahl der Kerne)</translation>
    </message>
    <message>
        <source>stop or continue after 3 failures in a row (default: stop, with --watch: continue)</source>
        <translation>stop oder continue nach 3 Fehlern hintereinander (Vorgabe: stop, mit --watch: continue)</translation>
    </message>
    <message>
        <source>a photo with a warning fails and is not written</source>
        <translation>ein Foto mit einer Warnung gilt als fehlgeschlagen und wird nicht geschrieben</translation>
    </message>
    <message>
        <source>What is printed</source>
        <translation>Was ausgegeben wird</translation>
    </message>
    <message>
        <source>report as JSON on standard output; with --watch a line a photo</source>
        <translation>Bericht als JSON auf der Standardausgabe; mit --watch eine Zeile je Foto</translation>
    </message>
    <message>
        <source>print nothing but errors</source>
        <translation>nur Fehler ausgeben</translation>
    </message>
    <message>
        <source>no colors</source>
        <translation>keine Farben</translation>
    </message>
    <message>
        <source>plain lines instead of a progress bar</source>
        <translation>einfache Zeilen statt eines Fortschrittsbalkens</translation>
    </message>
    <message>
        <source>Instead of a run</source>
        <translation>Statt eines Durchlaufs</translation>
    </message>
    <message>
        <source>the names of the saved settings</source>
        <translation>die Namen der gespeicherten Einstellungen</translation>
    </message>
    <message>
        <source>the fonts that texts can be set in</source>
        <translation>die Schriften, die für Texte zur Verfügung stehen</translation>
    </message>
    <message>
        <source>what a setting holds, layer by layer, in words</source>
        <translation>was eine Einstellung enthält, Ebene für Ebene, in Worten</translation>
    </message>
    <message>
        <source>an options file that says what the other options on the line say, to be kept for --options</source>
        <translation>eine Optionsdatei, die sagt, was die anderen Optionen der Zeile sagen, zum Aufheben für --options</translation>
    </message>
    <message>
        <source>whether all is there that a run needs: exiftool, formats, fonts, folders, room, memory; exit status 1 when something is missing</source>
        <translation>ob alles da ist, was ein Durchlauf braucht: exiftool, Formate, Schriften, Ordner, Platz, Arbeitsspeicher; Rückgabewert 1, wenn etwas fehlt</translation>
    </message>
    <message>
        <source>the arguments are JSON reports of the shards of one list: print one report, and exit as one run would</source>
        <translation>die Argumente sind JSON-Berichte der Teile einer Liste: einen Bericht ausgeben und enden, wie ein einziger Durchlauf es täte</translation>
    </message>
    <message>
        <source>the manual page (man), the completion for bash, zsh or fish, or all options in markdown</source>
        <translation>die Handbuchseite (man), die Vervollständigung für bash, zsh oder fish oder alle Optionen als Markdown</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>diese Hilfe</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>die Version</translation>
    </message>
    <message>
        <source>there is no options file “%1”</source>
        <translation>es gibt keine Optionsdatei „%1“</translation>
    </message>
    <message>
        <source>“%1” names no output folder; name one with --output</source>
        <translation>„%1“ nennt keinen Ausgabeordner; bitte mit --output angeben</translation>
    </message>
    <message>
        <source>--combine-pdf needs --format pdf</source>
        <translation>--combine-pdf verlangt --format pdf</translation>
    </message>
    <message>
        <source>a combined PDF is one document, which --shard cannot divide; leave one of them out</source>
        <translation>ein gemeinsames PDF ist ein einziges Dokument, das --shard nicht teilen kann; bitte eines von beiden weglassen</translation>
    </message>
    <message>
        <source>there is no copyright file “%1”</source>
        <translation>es gibt keine Copyright-Datei „%1“</translation>
    </message>
    <message>
        <source>there is no photo or folder “%1”</source>
        <translation>es gibt kein Foto und keinen Ordner „%1“</translation>
    </message>
    <message>
        <source>no photo was found; see --extensions and --recursive for what a folder scan takes, and name GIF files themselves</source>
        <translation>es wurde kein Foto gefunden; --extensions und --recursive bestimmen, was aus Ordnern genommen wird; GIF-Dateien bitte einzeln nennen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of the photos would be replaced by their outputs, the first being “%1”; choose another --output or a --rename, or allow it with --overwrite-originals</source>
        <translation>
            <numerusform>%Ln der Fotos würde durch seine Ausgabe ersetzt: „%1“; bitte ein anderes --output oder ein --rename wählen oder es mit --overwrite-originals erlauben</numerusform>
            <numerusform>%Ln der Fotos würden durch ihre Ausgaben ersetzt, als erstes „%1“; bitte ein anderes --output oder ein --rename wählen oder es mit --overwrite-originals erlauben</numerusform>
        </translation>
    </message>
    <message>
        <source>the output folder “%1” cannot be made</source>
        <translation>der Ausgabeordner „%1“ kann nicht angelegt werden</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln geschrieben</numerusform>
            <numerusform>%Ln geschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln fehlgeschlagen</numerusform>
            <numerusform>%Ln fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not run</source>
        <translation>
            <numerusform>%Ln nicht bearbeitet</numerusform>
            <numerusform>%Ln nicht bearbeitet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln with a warning</source>
        <translation>
            <numerusform>%Ln mit Warnung</numerusform>
            <numerusform>%Ln mit Warnung</numerusform>
        </translation>
    </message>
    <message>
        <source>Dry run: nothing was written.</source>
        <translation>Probelauf: Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>--watch cannot be given together with --%1</source>
        <translation>--watch verträgt sich nicht mit --%1</translation>
    </message>
    <message>
        <source>name the reports to merge</source>
        <translation>bitte die Berichte nennen, die zusammengeführt werden sollen</translation>
    </message>
    <message>
        <source>“%1” has no meaning here; leave it out</source>
        <translation>„%1“ hat hier keine Bedeutung; bitte weglassen</translation>
    </message>
    <message>
        <source>name the watermark setting with --setting; --list-settings lists those that are saved</source>
        <translation>bitte die Einstellung mit --setting nennen; --list-settings zählt die gespeicherten auf</translation>
    </message>
    <message>
        <source>name the photos or folders to watermark</source>
        <translation>bitte die Fotos oder Ordner nennen, die Wasserzeichen bekommen sollen</translation>
    </message>
    <message>
        <source>name the output folder with --output</source>
        <translation>bitte den Ausgabeordner mit --output nennen</translation>
    </message>
    <message>
        <source>stamps the watermarks of a saved setting onto photos</source>
        <translation>versieht Fotos mit den Wasserzeichen einer gespeicherten Einstellung</translation>
    </message>
    <message>
        <source>the photos of a folder, with the saved setting “Holiday”</source>
        <translation>die Fotos eines Ordners, mit der gespeicherten Einstellung „Holiday“</translation>
    </message>
    <message>
        <source>smaller JPEG copies under new names, with a setting file</source>
        <translation>kleinere JPEG-Kopien unter neuen Namen, mit einer Einstellungsdatei</translation>
    </message>
    <message>
        <source>what a whole tree of folders would become, without writing anything</source>
        <translation>was aus einem ganzen Ordnerbaum würde, ohne etwas zu schreiben</translation>
    </message>
    <message>
        <source>one PDF, a page a photo</source>
        <translation>ein PDF, je Foto eine Seite</translation>
    </message>
    <message>
        <source>every photo that is put into the folder “inbox”, until Ctrl+C</source>
        <translation>jedes Foto, das in den Ordner „inbox“ gelegt wird, bis Strg+C</translation>
    </message>
    <message>
        <source>the third of eight parts of one batch, each on a machine of its own</source>
        <translation>der dritte von acht Teilen eines Durchlaufs, jeder auf einem eigenen Rechner</translation>
    </message>
    <message>
        <source>0: all photos were written; warnings do not change it.
1: some photos failed, or repeated failures stopped the run; with --doctor: something is missing.
2: the command line or a named file cannot be used, and nothing was written.
130: interrupted. The photo in hand is finished first, and a second interrupt ends the program at once. This is how --watch ends, too. No file is ever left half-written.</source>
        <translation>0: Alle Fotos wurden geschrieben; Warnungen ändern daran nichts.
1: Einige Fotos sind fehlgeschlagen, oder wiederholte Fehler haben den Durchlauf beendet; mit --doctor: etwas fehlt.
2: Die Befehlszeile oder eine genannte Datei ist nicht verwendbar, und nichts wurde geschrieben.
130: Unterbrochen. Das aktuelle Foto wird noch abgeschlossen, und eine zweite Unterbrechung beendet das Programm sofort. So endet auch --watch. Keine Datei bleibt je halb geschrieben zurück.</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Umgebungsvariablen</translation>
    </message>
    <message>
        <source>NO_COLOR, TERM: no colors where the first is set, and neither colors nor a progress bar where the second is “dumb” or missing, or where standard error is no terminal.
ZELTO_SHARD, SLURM_ARRAY_TASK_ID and its kin, JOB_COMPLETION_INDEX: what --shard auto reads.
XDG_DATA_HOME: where settings are kept, instead of ~/.local/share.
TMPDIR: where temporary files go, instead of /tmp.
ZELTO_EXIFTOOL: another exiftool program than the one that is found.</source>
        <translation>NO_COLOR, TERM: keine Farben, wenn die erste gesetzt ist, und weder Farben noch Fortschrittsbalken, wenn die zweite „dumb“ ist oder fehlt oder die Standardfehlerausgabe kein Terminal ist.
ZELTO_SHARD, SLURM_ARRAY_TASK_ID und Verwandte, JOB_COMPLETION_INDEX: was --shard auto liest.
XDG_DATA_HOME: wo Einstellungen liegen, statt in ~/.local/share.
TMPDIR: wohin temporäre Dateien kommen, statt nach /tmp.
ZELTO_EXIFTOOL: ein anderes exiftool als das gefundene.</translation>
    </message>
    <message>
        <source>~/.local/share/Zelto/Settings/*.zcs: the saved settings, a file each.
~/.local/share/Zelto/Copyright.xml: your copyright data.
A run changes none of them.</source>
        <translation>~/.local/share/Zelto/Settings/*.zcs: die gespeicherten Einstellungen, je eine Datei.
~/.local/share/Zelto/Copyright.xml: die eigenen Copyright-Angaben.
Ein Durchlauf ändert keine davon.</translation>
    </message>
    <message>
        <source>Without libraries for newer formats</source>
        <translation>Ohne Bibliotheken für neuere Formate</translation>
    </message>
    <message>
        <source>With %1</source>
        <translation>Mit %1</translation>
    </message>
    <message>
        <source>%1 photos/s, %2 left</source>
        <translation>%1 Fotos/s, noch %2</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>exiftool</source>
        <translation>exiftool</translation>
    </message>
    <message>
        <source>%1; photos would be written without their metadata. Install exiftool (Debian: libimage-exiftool-perl)</source>
        <translation>%1; Fotos würden ohne ihre Metadaten geschrieben. Bitte exiftool installieren (Debian: libimage-exiftool-perl)</translation>
    </message>
    <message>
        <source>previews in raw files</source>
        <translation>Vorschauen in Raw-Dateien</translation>
    </message>
    <message>
        <source>formats read</source>
        <translation>lesbare Formate</translation>
    </message>
    <message>
        <source>formats written</source>
        <translation>schreibbare Formate</translation>
    </message>
    <message>
        <source>%1; this machine has no encoder for %2</source>
        <translation>%1; für %2 hat dieser Rechner keinen Encoder</translation>
    </message>
    <message>
        <source>“%1” cannot be written to; choose another folder or mend its permissions</source>
        <translation>in „%1“ kann nicht geschrieben werden; bitte einen anderen Ordner wählen oder die Rechte anpassen</translation>
    </message>
    <message>
        <source>%1: only %2 are free; make room</source>
        <translation>%1: nur %2 sind frei; bitte Platz schaffen</translation>
    </message>
    <message>
        <source>%1, %2 free</source>
        <translation>%1, %2 frei</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>Schriften</translation>
    </message>
    <message numerus="yes">
        <source>%Ln families</source>
        <translation>
            <numerusform>%Ln Familie</numerusform>
            <numerusform>%Ln Familien</numerusform>
        </translation>
    </message>
    <message>
        <source>none is installed (Debian: fonts-dejavu)</source>
        <translation>keine installiert (Debian: fonts-dejavu)</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln saved</source>
        <translation>
            <numerusform>%Ln gespeichert</numerusform>
            <numerusform>%Ln gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>temporary files</source>
        <translation>temporäre Dateien</translation>
    </message>
    <message>
        <source>output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>%1, of which a run holds at most %2 in photos</source>
        <translation>%1, davon belegt ein Durchlauf höchstens %2 mit Fotos</translation>
    </message>
    <message>
        <source>jobs</source>
        <translation>gleichzeitig</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photos at a time</source>
        <translation>
            <numerusform>%Ln Foto auf einmal</numerusform>
            <numerusform>%Ln Fotos auf einmal</numerusform>
        </translation>
    </message>
    <message>
        <source>no setting is saved yet; settings are kept in “%1”</source>
        <translation>noch ist keine Einstellung gespeichert; Einstellungen liegen in „%1“</translation>
    </message>
    <message>
        <source>the result could not be printed</source>
        <translation>das Ergebnis konnte nicht ausgegeben werden</translation>
    </message>
    <message>
        <source>try &apos;zelto-batch --help&apos;</source>
        <translation>siehe „zelto-batch --help“</translation>
    </message>
    <message>
        <source>“%1” is no report of a shard</source>
        <translation>„%1“ ist kein Bericht eines Teils</translation>
    </message>
    <message>
        <source>“%1” is no report of a shard: “%2”</source>
        <translation>„%1“ ist kein Bericht eines Teils: „%2“</translation>
    </message>
    <message>
        <source>shard %1 could not be run (“%2”): %3</source>
        <translation>Teil %1 konnte nicht ausgeführt werden („%2“): %3</translation>
    </message>
    <message>
        <source>“%1” tells of the photo with the index %2, which shard %3 does not have</source>
        <translation>„%1“ berichtet von dem Foto mit dem Index %2, das Teil %3 nicht hat</translation>
    </message>
    <message>
        <source>“%1” tells of the photo with the index %2 twice</source>
        <translation>„%1“ berichtet zweimal von dem Foto mit dem Index %2</translation>
    </message>
    <message>
        <source>“%1” tells of %2 photos, but shard %3 has %4</source>
        <translation>„%1“ berichtet von %2 Fotos, aber Teil %3 hat %4</translation>
    </message>
    <message>
        <source>“%1” is shard %2 of %3 photos, and “%4” is shard %5 of %6: they are not of one list</source>
        <translation>„%1“ ist Teil %2 von %3 Fotos, und „%4“ ist Teil %5 von %6: sie gehören nicht zu einer Liste</translation>
    </message>
    <message>
        <source>shard %1 is there twice: “%2” and “%3”</source>
        <translation>Teil %1 ist zweimal da: „%2“ und „%3“</translation>
    </message>
    <message>
        <source>the reports of these shards are missing: %1</source>
        <translation>die Berichte dieser Teile fehlen: %1</translation>
    </message>
    <message>
        <source>Stopped: 3 photos in a row failed. --on-repeated-failure continue goes on.</source>
        <translation>Beendet: 3 Fotos hintereinander sind fehlgeschlagen. Mit --on-repeated-failure continue geht es weiter.</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Unterbrochen.</translation>
    </message>
    <message>
        <source>The combined PDF was not finished.</source>
        <translation>Das gemeinsame PDF wurde nicht fertiggestellt.</translation>
    </message>
    <message>
        <source>%1: encoded as usual. %2</source>
        <translation>%1: wie gewohnt kodiert. %2</translation>
    </message>
    <message>
        <source>the combined PDF could not be written: %1</source>
        <translation>das gemeinsame PDF konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>there is no setting and no file “%1” (none is saved yet)</source>
        <translation>es gibt keine Einstellung und keine Datei „%1“ (noch ist keine gespeichert)</translation>
    </message>
    <message>
        <source>there is no setting and no file “%1” (saved are: %2)</source>
        <translation>es gibt keine Einstellung und keine Datei „%1“ (gespeichert sind: %2)</translation>
    </message>
    <message>
        <source>there is no setting and no file “%1”; did you mean “%2”? (saved are: %3)</source>
        <translation>es gibt keine Einstellung und keine Datei „%1“; ist „%2“ gemeint? (gespeichert sind: %3)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>%1 % of the shorter side</source>
        <translation>%1 % der kürzeren Seite</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1, %2 opaque</source>
        <translation>%1, %2 deckend</translation>
    </message>
    <message>
        <source>of the photo&apos;s height</source>
        <translation>der Fotohöhe</translation>
    </message>
    <message>
        <source>of the photo&apos;s longer side</source>
        <translation>der längeren Fotoseite</translation>
    </message>
    <message>
        <source>of the photo&apos;s width</source>
        <translation>der Fotobreite</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>oben links</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>oben rechts</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>unten links</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <source>%1 from the left, %2 from the top</source>
        <translation>%1 von links, %2 von oben</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>left %1</source>
        <translation>links %1</translation>
    </message>
    <message>
        <source>top %1</source>
        <translation>oben %1</translation>
    </message>
    <message>
        <source>right %1</source>
        <translation>rechts %1</translation>
    </message>
    <message>
        <source>bottom %1</source>
        <translation>unten %1</translation>
    </message>
    <message>
        <source>across, gaps of %1</source>
        <translation>waagerecht, Abstände von %1</translation>
    </message>
    <message>
        <source>down, gaps of %1</source>
        <translation>senkrecht, Abstände von %1</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>fett</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>kursiv</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>unterstrichen</translation>
    </message>
    <message>
        <source>struck through</source>
        <translation>durchgestrichen</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>embossed, faces left out</source>
        <translation>geprägt, Flächen ausgelassen</translation>
    </message>
    <message>
        <source>embossed</source>
        <translation>geprägt</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>eigene</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 mal %2</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Kept in the setting</source>
        <translation>In der Einstellung enthalten</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 nach %2</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Logo “%1”</source>
        <translation>Logo „%1“</translation>
    </message>
    <message>
        <source>Text “%1”</source>
        <translation>Text „%1“</translation>
    </message>
    <message>
        <source>QR code “%1”</source>
        <translation>QR-Code „%1“</translation>
    </message>
    <message>
        <source>unknown kind %1, which draws nothing</source>
        <translation>unbekannte Art %1, die nichts zeichnet</translation>
    </message>
    <message>
        <source>Own name</source>
        <translation>Eigener Name</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Randabstände</translation>
    </message>
    <message>
        <source>Turned</source>
        <translation>Gedreht</translation>
    </message>
    <message>
        <source>%1° clockwise</source>
        <translation>%1° im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Tiled</source>
        <translation>Gekachelt</translation>
    </message>
    <message>
        <source>%1 (switched off)</source>
        <translation>%1 (ausgeschaltet)</translation>
    </message>
    <message>
        <source>%1 on all sides, %2</source>
        <translation>%1 auf allen Seiten, %2</translation>
    </message>
    <message>
        <source>top %1, left %2, right %3, bottom %4, %5</source>
        <translation>oben %1, links %2, rechts %3, unten %4, %5</translation>
    </message>
    <message>
        <source>%1; watermarks may cover it</source>
        <translation>%1; Wasserzeichen dürfen ihn überdecken</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>blur %1, distance %2, direction %3°, %4</source>
        <translation>Weichzeichnung %1, Abstand %2, Richtung %3°, %4</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>your copyright data go into the outputs</source>
        <translation>die eigenen Copyright-Angaben kommen in die Ausgaben</translation>
    </message>
    <message>
        <source>Setting “%1”</source>
        <translation>Einstellung „%1“</translation>
    </message>
    <message>
        <source>takes I/N with I from 0 to N - 1, such as 0/4, not “%1”</source>
        <translation>verlangt I/N mit I von 0 bis N - 1, etwa 0/4, nicht „%1“</translation>
    </message>
    <message>
        <source>auto found neither ZELTO_SHARD nor a Slurm array; set ZELTO_SHARD to I/N</source>
        <translation>auto fand weder ZELTO_SHARD noch ein Slurm-Array; bitte ZELTO_SHARD auf I/N setzen</translation>
    </message>
    <message>
        <source>%1 needs JOB_COMPLETION_INDEX, as an indexed Kubernetes Job sets it</source>
        <translation>%1 braucht JOB_COMPLETION_INDEX, wie ein indizierter Kubernetes-Job es setzt</translation>
    </message>
    <message>
        <source>watching %1; Ctrl+C ends it</source>
        <translation>%1 wird überwacht; Strg+C beendet es</translation>
    </message>
    <message>
        <source>its output “%1” would replace the photo itself</source>
        <translation>die Ausgabe „%1“ würde das Foto selbst ersetzen</translation>
    </message>
    <message>
        <source>was taken away before its turn; nothing was written</source>
        <translation>wurde vor der Bearbeitung weggenommen; es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>will be tried again until it can be written</source>
        <translation>wird erneut versucht, bis es geschrieben werden kann</translation>
    </message>
    <message>
        <source>a combined PDF would never be finished by --watch; leave one of them out</source>
        <translation>ein gemeinsames PDF würde mit --watch nie fertig; bitte eines von beiden weglassen</translation>
    </message>
    <message>
        <source>the numbers of --rename begin again whenever --watch is started; say with --existing what becomes of outputs that stand there: number, skip, fail or replace</source>
        <translation>die Nummern von --rename beginnen bei jedem Start von --watch neu; bitte mit --existing sagen, was mit vorhandenen Ausgaben geschieht: number, skip, fail oder replace</translation>
    </message>
    <message>
        <source>--watch takes folders, and “%1” is none</source>
        <translation>--watch verlangt Ordner, und „%1“ ist keiner</translation>
    </message>
    <message>
        <source>outputs in the watched folder “%1” would be marked again and again; choose another --output</source>
        <translation>Ausgaben im überwachten Ordner „%1“ bekämen immer wieder Wasserzeichen; bitte ein anderes --output wählen</translation>
    </message>
    <message>
        <source>with --keep-structure, outputs in “%1” could get into the watched folder “%2” and be marked again; choose another --output</source>
        <translation>mit --keep-structure könnten Ausgaben in „%1“ in den überwachten Ordner „%2“ geraten und erneut Wasserzeichen bekommen; bitte ein anderes --output wählen</translation>
    </message>
    <message>
        <source>there is no option “%1”</source>
        <translation>es gibt keine Option „%1“</translation>
    </message>
    <message>
        <source>there is no option “%1”; did you mean “%2”?</source>
        <translation>es gibt keine Option „%1“; ist „%2“ gemeint?</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>All options of %1</source>
        <translation>Alle Optionen von %1</translation>
    </message>
    <message>
        <source>option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>See also</source>
        <translation>Siehe auch</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Dienstprogramme für Benutzer</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>open a window of its own; otherwise the window that is open already takes the photos, folders and setting</source>
        <translation>ein eigenes Fenster öffnen; sonst übernimmt das schon offene Fenster Fotos, Ordner und Einstellung</translation>
    </message>
    <message>
        <source>Paste Error</source>
        <translation>Einfügen nicht möglich</translation>
    </message>
    <message>
        <source>Longer Side</source>
        <translation>Längere Seite</translation>
    </message>
    <message>
        <source>Side of the photo the size follows</source>
        <translation>Seite des Fotos, nach der sich die Größe richtet</translation>
    </message>
</context>
<context>
    <name>zelto::AutoNumberWindowController</name>
    <message>
        <source>Auto Number</source>
        <translation>Laufende Nummer</translation>
    </message>
    <message>
        <source>&amp;Continue after the last number used, %1</source>
        <translation>Nach der zuletzt verwendeten Nummer &amp;fortfahren, %1</translation>
    </message>
    <message>
        <source>&amp;Continue after the last number used</source>
        <translation>Nach der zuletzt verwendeten Nummer &amp;fortfahren</translation>
    </message>
    <message>
        <source>Number of &amp;digits:</source>
        <translation>Anzahl der &amp;Ziffern:</translation>
    </message>
    <message>
        <source>&amp;Starting number:</source>
        <translation>&amp;Startnummer:</translation>
    </message>
    <message>
        <source>I&amp;ncrement:</source>
        <translation>Sch&amp;rittweite:</translation>
    </message>
    <message>
        <source>First photos:</source>
        <translation>Erste Fotos:</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
</context>
<context>
    <name>zelto::ColorPanel</name>
    <message>
        <source>Shade</source>
        <translation>Helligkeit und Sättigung</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Opacity of the colour</source>
        <translation>Deckkraft der Farbe</translation>
    </message>
    <message>
        <source>Colour in hexadecimal</source>
        <translation>Farbe in Hexadezimal</translation>
    </message>
    <message>
        <source>Red, green and blue in hexadecimal, and opacity if you like: #rrggbb or #rrggbbaa</source>
        <translation>Rot, Grün und Blau in Hexadezimal, auf Wunsch mit Deckkraft: #rrggbb oder #rrggbbaa</translation>
    </message>
    <message>
        <source>Opacity in per cent</source>
        <translation>Deckkraft in Prozent</translation>
    </message>
    <message>
        <source>Pick a colour from the photo</source>
        <translation>Farbe aus dem Foto aufnehmen</translation>
    </message>
    <message>
        <source>Pick a colour from the photo: click on it, Escape gives up</source>
        <translation>Farbe aus dem Foto aufnehmen: ins Foto klicken, Esc bricht ab</translation>
    </message>
</context>
<context>
    <name>zelto::ColorWell</name>
    <message>
        <source>No colour</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>%1, %2% opaque</source>
        <translation>%1, %2 % deckend</translation>
    </message>
</context>
<context>
    <name>zelto::ContactView</name>
    <message>
        <source>Contact view</source>
        <translation>Kontaktbogen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
</context>
<context>
    <name>zelto::CopyrightEditor</name>
    <message>
        <source>Notice:</source>
        <translation>Hinweis:</translation>
    </message>
    <message>
        <source>© Jane Doe</source>
        <translation>© Erika Mustermann</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Rights page:</source>
        <translation>Rechteseite:</translation>
    </message>
    <message>
        <source>https://www.example.com/rights</source>
        <translation>https://www.example.com/rechte</translation>
    </message>
    <message>
        <source>Terms of use:</source>
        <translation>Nutzungsbedingungen:</translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>Alle Rechte vorbehalten</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Jane Doe</source>
        <translation>Erika Mustermann</translation>
    </message>
    <message>
        <source>Job title:</source>
        <translation>Berufsbezeichnung:</translation>
    </message>
    <message>
        <source>Photographer</source>
        <translation>Fotografin</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>State or province:</source>
        <translation>Bundesland oder Kanton:</translation>
    </message>
    <message>
        <source>Postal code:</source>
        <translation>Postleitzahl:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Land:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>jane@example.com</source>
        <translation>erika@example.com</translation>
    </message>
    <message>
        <source>Website:</source>
        <translation>Webseite:</translation>
    </message>
    <message>
        <source>https://www.example.com</source>
        <translation>https://www.example.com</translation>
    </message>
    <message>
        <source>Copyrighted</source>
        <translation>Urheberrechtlich geschützt</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>Geschützt</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Write these data into the photos</source>
        <translation>Diese Angaben in die Fotos schreiben</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Rechte</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Urheber</translation>
    </message>
    <message>
        <source>The copyright data could not be kept for the next time</source>
        <translation>Die Copyright-Angaben konnten nicht für das nächste Mal aufgehoben werden</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation>Keine Angabe</translation>
    </message>
</context>
<context>
    <name>zelto::DateFormatWindowControlller</name>
    <message>
        <source>Date Format</source>
        <translation>Datumsformat</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>Sample:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Letters of a format</source>
        <translation>Buchstaben eines Formats</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
</context>
<context>
    <name>zelto::EffectsEditor</name>
    <message>
        <source>Border and Shadow</source>
        <translation>Rand und Schatten</translation>
    </message>
    <message>
        <source>Put a border and a shadow around the photos</source>
        <translation>Fotos mit Rand und Schatten umgeben</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Same width on all sides</source>
        <translation>Auf allen Seiten gleich breit</translation>
    </message>
    <message>
        <source>Border colour</source>
        <translation>Randfarbe</translation>
    </message>
    <message>
        <source>Watermarks may cover the border</source>
        <translation>Wasserzeichen dürfen den Rand überdecken</translation>
    </message>
    <message>
        <source>Unit of the border</source>
        <translation>Einheit des Randes</translation>
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
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Cast a shadow</source>
        <translation>Schatten werfen</translation>
    </message>
    <message>
        <source>Unit of the shadow</source>
        <translation>Einheit des Schattens</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnung</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Schattenfarbe</translation>
    </message>
    <message>
        <source>Lengths:</source>
        <translation>Längen:</translation>
    </message>
    <message>
        <source>Blur:</source>
        <translation>Weichzeichnung:</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Abstand:</translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>The preview leaves the shadow out while watermarks may cover the border; the written photos have it.</source>
        <translation>Solange Wasserzeichen den Rand überdecken dürfen, zeigt die Vorschau keinen Schatten; die geschriebenen Fotos haben ihn.</translation>
    </message>
    <message>
        <source>All sides are as thick as the top</source>
        <translation>Alle Seiten sind so dick wie die obere</translation>
    </message>
</context>
<context>
    <name>zelto::EmptyState</name>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>&amp;Nächster Tipp</translation>
    </message>
    <message>
        <source>Drop photos here</source>
        <translation>Fotos hier ablegen</translation>
    </message>
    <message>
        <source>Add the photos to be watermarked, compose your watermarks at the right, then press Start.</source>
        <translation>Fotos hinzufügen, rechts die Wasserzeichen zusammenstellen und dann auf „Starten“ klicken.</translation>
    </message>
    <message>
        <source>or begin with the watermarks</source>
        <translation>oder mit den Wasserzeichen beginnen</translation>
    </message>
    <message>
        <source>A sample photo shows them until you add your own.</source>
        <translation>Ein Beispielfoto zeigt sie, bis eigene Fotos da sind.</translation>
    </message>
    <message>
        <source>This is a sample photo. Drop your own anywhere.</source>
        <translation>Dies ist ein Beispielfoto. Eigene Fotos einfach hier ablegen.</translation>
    </message>
</context>
<context>
    <name>zelto::ExampleView</name>
    <message>
        <source>This photo cannot be read.</source>
        <translation>Dieses Foto kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>%1: no picture can have this size</source>
        <translation>%1: diese Größe kann kein Bild haben</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Example of an output</source>
        <translation>Beispiel einer Ausgabe</translation>
    </message>
    <message>
        <source>No photo is selected.</source>
        <translation>Kein Foto ausgewählt.</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, in %2</translation>
    </message>
</context>
<context>
    <name>zelto::ExistingSettingsWindowController</name>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>Lö&amp;schen...</translation>
    </message>
    <message>
        <source>Saved Settings</source>
        <translation>Gespeicherte Einstellungen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Saved settings</source>
        <translation>Gespeicherte Einstellungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 (autoload)</source>
        <translation>%1 (beim Start)</translation>
    </message>
    <message>
        <source>Loaded when Zelto starts</source>
        <translation>Wird beim Start von Zelto geladen</translation>
    </message>
    <message>
        <source>Remove Autoload</source>
        <translation>Nicht mehr beim Start laden</translation>
    </message>
    <message>
        <source>Set Autoload</source>
        <translation>Beim Start laden</translation>
    </message>
    <message>
        <source>There are no saved settings. File &gt; Save Setting saves the watermarks you see.</source>
        <translation>Es gibt keine gespeicherten Einstellungen. Datei &gt; Einstellung speichern speichert die sichtbaren Wasserzeichen.</translation>
    </message>
    <message>
        <source>Setting Delete Error</source>
        <translation>Einstellung kann nicht gelöscht werden</translation>
    </message>
</context>
<context>
    <name>zelto::FilterWindow</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>zelto::FoldGroup</name>
    <message>
        <source>Folded</source>
        <translation>Eingeklappt</translation>
    </message>
    <message>
        <source>Unfolded</source>
        <translation>Ausgeklappt</translation>
    </message>
</context>
<context>
    <name>zelto::FolderField</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
</context>
<context>
    <name>zelto::FolderImport</name>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Looking for photos...</source>
        <translation>Fotos werden gesucht...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) found</source>
        <translation>
            <numerusform>%Ln Foto gefunden</numerusform>
            <numerusform>%Ln Fotos gefunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::FolderWindowController</name>
    <message>
        <source>Folder of Photos</source>
        <translation>Ordner mit Fotos</translation>
    </message>
    <message>
        <source>Include &amp;sub-folders</source>
        <translation>&amp;Unterordner einbeziehen</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>A folder&apos;s GIF photos are passed over; add them one by one.</source>
        <translation>GIF-Bilder eines Ordners werden übergangen; bitte einzeln hinzufügen.</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>Formate:</translation>
    </message>
    <message>
        <source>More formats:</source>
        <translation>Weitere Formate:</translation>
    </message>
    <message>
        <source>&amp;Add Photos</source>
        <translation>Fotos hin&amp;zufügen</translation>
    </message>
    <message>
        <source>The previews in cameras&apos; raw files.</source>
        <translation>Die Vorschaubilder in den Rohdaten von Kameras.</translation>
    </message>
</context>
<context>
    <name>zelto::FontFamilyList</name>
    <message>
        <source>Search fonts</source>
        <translation>Schriften suchen</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>“%1” is not installed here; a standard font takes its place.</source>
        <translation>„%1“ ist hier nicht installiert; eine Standardschrift tritt an ihre Stelle.</translation>
    </message>
</context>
<context>
    <name>zelto::FullScreenView</name>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Einen Moment...</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Vollbild beenden</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>%1 wird geladen...</translation>
    </message>
</context>
<context>
    <name>zelto::GuideWindow</name>
    <message>
        <source>Zelto Guide</source>
        <translation>Zelto-Anleitung</translation>
    </message>
    <message>
        <source>Page of the guide</source>
        <translation>Seite der Anleitung</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>The guide is not installed: there is no folder “%1”.</source>
        <translation>Die Anleitung ist nicht installiert: Es gibt keinen Ordner „%1“.</translation>
    </message>
</context>
<context>
    <name>zelto::ImageListController</name>
    <message numerus="yes">
        <source>Add %Ln Photo(s)</source>
        <translation>
            <numerusform>%Ln Foto hinzufügen</numerusform>
            <numerusform>%Ln Fotos hinzufügen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) are in the list already</source>
        <translation>
            <numerusform>%Ln Foto ist schon in der Liste</numerusform>
            <numerusform>%Ln Fotos sind schon in der Liste</numerusform>
        </translation>
    </message>
    <message>
        <source>Check All Photos</source>
        <translation>Alle Fotos anhaken</translation>
    </message>
    <message>
        <source>Uncheck All Photos</source>
        <translation>Alle Häkchen entfernen</translation>
    </message>
    <message>
        <source>Toggle Check Marks</source>
        <translation>Häkchen umkehren</translation>
    </message>
    <message>
        <source>Check Photos</source>
        <translation>Fotos anhaken</translation>
    </message>
    <message>
        <source>Uncheck Photos</source>
        <translation>Häkchen der Fotos entfernen</translation>
    </message>
    <message numerus="yes">
        <source>Remove %Ln Photo(s)</source>
        <translation>
            <numerusform>%Ln Foto entfernen</numerusform>
            <numerusform>%Ln Fotos entfernen</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove Photo</source>
        <translation>Foto entfernen</translation>
    </message>
    <message>
        <source>Remove All Photos</source>
        <translation>Alle Fotos entfernen</translation>
    </message>
    <message>
        <source>Watermark Warning</source>
        <translation>Warnung zum Wasserzeichen</translation>
    </message>
</context>
<context>
    <name>zelto::ImportExportWindowController</name>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>There are no settings to copy.</source>
        <translation>Es gibt keine Einstellungen zum Kopieren.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln setting(s) will be copied.</source>
        <translation>
            <numerusform>%Ln Einstellung wird kopiert.</numerusform>
            <numerusform>%Ln Einstellungen werden kopiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Diesen Ordner gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>zelto::Inspector</name>
    <message>
        <source>Revert: take back everything that was changed since this was selected</source>
        <translation>Zurücksetzen: alles zurücknehmen, was seit dem Auswählen geändert wurde</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Select a watermark in the list above or on the photo, and what it looks like and where it stands can be changed here.</source>
        <translation>Ein Wasserzeichen oben in der Liste oder auf dem Foto auswählen: Aussehen und Platz lassen sich dann hier ändern.</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
</context>
<context>
    <name>zelto::LengthBox</name>
    <message>
        <source>On the selected photo</source>
        <translation>Auf dem ausgewählten Foto</translation>
    </message>
    <message>
        <source>= %L1 px</source>
        <translation>= %L1 px</translation>
    </message>
</context>
<context>
    <name>zelto::LengthUnit</name>
    <message>
        <source>in pixels</source>
        <translation>in Pixeln</translation>
    </message>
    <message>
        <source>in % of the shorter side</source>
        <translation>in % der kürzeren Seite</translation>
    </message>
</context>
<context>
    <name>zelto::LogoEditor</name>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
</context>
<context>
    <name>zelto::LogoFileGroup</name>
    <message>
        <source>No image chosen</source>
        <translation>Kein Bild gewählt</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Auswählen…</translation>
    </message>
</context>
<context>
    <name>zelto::LogoGroup</name>
    <message>
        <source>Choose Image</source>
        <translation>Bild auswählen</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>This image cannot be used</source>
        <translation>Dieses Bild kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>Make transparent:</source>
        <translation>Transparent machen:</translation>
    </message>
    <message>
        <source>Transparent Colour</source>
        <translation>Transparente Farbe</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Proportional</source>
        <translation>Proportional</translation>
    </message>
    <message>
        <source>Size in per cent</source>
        <translation>Größe in Prozent</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>Absolut</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>W </source>
        <translation>B </translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>H </source>
        <translation>H </translation>
    </message>
    <message>
        <source>Keep aspect ratio</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
</context>
<context>
    <name>zelto::LogoSample</name>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Click the colour that is to become transparent</source>
        <translation>Auf die Farbe klicken, die transparent werden soll</translation>
    </message>
</context>
<context>
    <name>zelto::MacroController</name>
    <message>
        <source>Insert Macro</source>
        <translation>Makro einfügen</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>On this photo</source>
        <translation>Auf diesem Foto</translation>
    </message>
    <message>
        <source>Search macros and values</source>
        <translation>Makros und Werte suchen</translation>
    </message>
    <message>
        <source>Search macros</source>
        <translation>Makros suchen</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>Special Character…</source>
        <translation>Sonderzeichen…</translation>
    </message>
</context>
<context>
    <name>zelto::MainWindow</name>
    <message>
        <source>There is no saved setting and no setting file “%1”.</source>
        <translation>Es gibt weder eine gespeicherte Einstellung noch eine Einstellungsdatei „%1“.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s)</source>
        <translation>
            <numerusform>%Ln Foto</numerusform>
            <numerusform>%Ln Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig:</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen:</translation>
    </message>
    <message>
        <source>About Zelto</source>
        <translation>Über Zelto</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Zelto %1&lt;/h3&gt;&lt;p&gt;Watermarks for batches of photos.&lt;/p&gt;&lt;p&gt;Free software under the GNU General Public License, version 3 or later.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Zelto %1&lt;/h3&gt;&lt;p&gt;Wasserzeichen für viele Fotos auf einmal.&lt;/p&gt;&lt;p&gt;Freie Software unter der GNU General Public License, Version 3 oder neuer.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Start Watermarking</source>
        <translation>Wasserzeichen anbringen</translation>
    </message>
    <message>
        <source>%1[*] – Zelto</source>
        <translation>%1[*] – Zelto</translation>
    </message>
    <message>
        <source>No photos</source>
        <translation>Keine Fotos</translation>
    </message>
    <message numerus="yes">
        <source>%Ln checked</source>
        <translation>
            <numerusform>%Ln angehakt</numerusform>
            <numerusform>%Ln angehakt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>What was opened from outside comes in as soon as the window is free.</source>
        <translation>Was von außen geöffnet wurde, kommt herein, sobald das Fenster frei ist.</translation>
    </message>
    <message>
        <source>There is nothing to undo</source>
        <translation>Es gibt nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>There is nothing to redo</source>
        <translation>Es gibt nichts zu wiederholen</translation>
    </message>
</context>
<context>
    <name>zelto::NumberField</name>
    <message>
        <source>A number from %1 to %2</source>
        <translation>Eine Zahl von %1 bis %2</translation>
    </message>
</context>
<context>
    <name>zelto::OutputOptionsController</name>
    <message>
        <source>Output Options</source>
        <translation>Ausgabeoptionen</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>Set &amp;as Default</source>
        <translation>&amp;Als Standard festlegen</translation>
    </message>
    <message>
        <source>Create the Folder?</source>
        <translation>Ordner anlegen?</translation>
    </message>
    <message>
        <source>There is no folder “%1” yet.</source>
        <translation>Den Ordner „%1“ gibt es noch nicht.</translation>
    </message>
    <message>
        <source>&amp;Create Folder</source>
        <translation>Ordner &amp;anlegen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Folder Not Created</source>
        <translation>Ordner nicht angelegt</translation>
    </message>
    <message>
        <source>“%1” cannot be created.</source>
        <translation>„%1“ kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>zelto::OutputPanel</name>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>&amp;Maintain the directory structure</source>
        <translation>Ordnerstru&amp;ktur beibehalten</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>JPEG-&amp;Qualität:</translation>
    </message>
    <message>
        <source>&amp;Combine to a single PDF</source>
        <translation>Zu einem einzigen &amp;PDF zusammenfassen</translation>
    </message>
    <message>
        <source>Keep &amp;untouched areas as they are (JPEG to JPEG)</source>
        <translation>&amp;Unberührte Bereiche unverändert lassen (JPEG zu JPEG)</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Only the blocks that a watermark touches are encoded again, with the quality the photo has already. All else stays as it is, so that a copy of a copy is as good as the first.&lt;/p&gt;&lt;p&gt;This is done for JPEG photos that are neither resized nor filtered nor framed. Others are encoded as usual, and their rows say why.&lt;/p&gt;&lt;p&gt;Many cameras store colors at half the size. There, colored edges of marks are softer, and on a grey photo marks are grey.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Nur die Blöcke, die ein Wasserzeichen berührt, werden neu kodiert, mit der Qualität, die das Foto schon hat. Alles andere bleibt, wie es ist, sodass die Kopie einer Kopie so gut ist wie die erste.&lt;/p&gt;&lt;p&gt;Dies geschieht bei JPEG-Fotos, deren Größe nicht geändert wird und die weder Filter noch Rand bekommen. Andere werden wie gewohnt kodiert, und ihre Zeilen nennen den Grund.&lt;/p&gt;&lt;p&gt;Viele Kameras speichern Farben in halber Größe. Dort sind farbige Kanten von Wasserzeichen weicher, und auf einem grauen Foto sind sie grau.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Meta&amp;data:</source>
        <translation>&amp;Metadaten:</translation>
    </message>
    <message>
        <source>Same as source image</source>
        <translation>Wie das Quellbild</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>0 is the smallest file, 100 the best picture: with WebP, JPEG XL and AVIF, without any loss</source>
        <translation>0 ergibt die kleinste Datei, 100 das beste Bild: bei WebP, JPEG XL und AVIF ganz ohne Verlust</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>Exclude Geolocation removes every position and keeps the names of places.</source>
        <translation>„Ohne Aufnahmeort“ entfernt alle Positionen und behält die Ortsnamen.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG-Qualität</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualität:</translation>
    </message>
    <message>
        <source>Files of this format have no metadata.</source>
        <translation>Dateien dieses Formats haben keine Metadaten.</translation>
    </message>
    <message>
        <source>You have set no copyright data (Add &gt; Copyright).</source>
        <translation>Es sind keine Copyright-Angaben gesetzt (Hinzufügen &gt; Copyright).</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>All photos become the pages of one file</source>
        <translation>Alle Fotos werden zu Seiten einer einzigen Datei</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) will have none: PNG, BMP and GIF files carry no metadata.</source>
        <translation>
            <numerusform>%Ln Foto wird keine haben: PNG-, BMP- und GIF-Dateien tragen keine Metadaten.</numerusform>
            <numerusform>%Ln Fotos werden keine haben: PNG-, BMP- und GIF-Dateien tragen keine Metadaten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::PhotoDelegate</name>
    <message>
        <source>preview of a raw file</source>
        <translation>Vorschau einer Raw-Datei</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoFilterBox</name>
    <message>
        <source>All Photos</source>
        <translation>Alle Fotos</translation>
    </message>
    <message>
        <source>Failed or with Warnings</source>
        <translation>Fehlgeschlagen oder mit Warnungen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>With Warnings</source>
        <translation>Mit Warnungen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>The photos that the list shows</source>
        <translation>Die Fotos, die die Liste zeigt</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoListView</name>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>No photo has “%1” in its name</source>
        <translation>Kein Foto hat „%1“ im Namen</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoPanel</name>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Sort the photos: the run and its numbers follow this order</source>
        <translation>Fotos sortieren: Durchlauf und Nummern folgen dieser Reihenfolge</translation>
    </message>
    <message>
        <source>Sort Photos</source>
        <translation>Fotos sortieren</translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>Find photos by name</source>
        <translation>Fotos nach Namen suchen</translation>
    </message>
    <message>
        <source>Shows only photos with this in their names (Ctrl+F)</source>
        <translation>Zeigt nur Fotos, die dies im Namen haben (Strg+F)</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoPreview</name>
    <message>
        <source>This photo cannot be shown</source>
        <translation>Dieses Foto kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>In Arbeit...</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>%1 wird geladen...</translation>
    </message>
    <message>
        <source>Place Watermark</source>
        <translation>Wasserzeichen platzieren</translation>
    </message>
    <message>
        <source>Resize Watermark</source>
        <translation>Größe des Wasserzeichens ändern</translation>
    </message>
    <message>
        <source>Turn Watermark</source>
        <translation>Wasserzeichen drehen</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoStrip</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Add the filter</source>
        <translation>Filter hinzufügen</translation>
    </message>
    <message>
        <source>Edit the filter</source>
        <translation>Filter bearbeiten</translation>
    </message>
    <message>
        <source>Remove the filter</source>
        <translation>Filter entfernen</translation>
    </message>
    <message>
        <source>Switch the filter on</source>
        <translation>Filter einschalten</translation>
    </message>
    <message>
        <source>Switch the filter off</source>
        <translation>Filter ausschalten</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Add border and shadow</source>
        <translation>Rand und Schatten hinzufügen</translation>
    </message>
    <message>
        <source>Edit border and shadow</source>
        <translation>Rand und Schatten bearbeiten</translation>
    </message>
    <message>
        <source>Remove border and shadow</source>
        <translation>Rand und Schatten entfernen</translation>
    </message>
    <message>
        <source>Switch border and shadow on</source>
        <translation>Rand und Schatten einschalten</translation>
    </message>
    <message>
        <source>Switch border and shadow off</source>
        <translation>Rand und Schatten ausschalten</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Add the copyright data</source>
        <translation>Copyright-Angaben hinzufügen</translation>
    </message>
    <message>
        <source>Edit the copyright data</source>
        <translation>Copyright-Angaben bearbeiten</translation>
    </message>
    <message>
        <source>Remove the copyright data</source>
        <translation>Copyright-Angaben entfernen</translation>
    </message>
    <message>
        <source>Switch the copyright data on</source>
        <translation>Copyright-Angaben einschalten</translation>
    </message>
    <message>
        <source>Switch the copyright data off</source>
        <translation>Copyright-Angaben ausschalten</translation>
    </message>
    <message>
        <source>The photo as a whole</source>
        <translation>Das Foto als Ganzes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>zelto::PlaceGuides</name>
    <message>
        <source>%L1 px</source>
        <translation>%L1 px</translation>
    </message>
    <message>
        <source>%1 = %2 %</source>
        <translation>%1 = %2 %</translation>
    </message>
</context>
<context>
    <name>zelto::PositionGrid</name>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>Oben Mitte</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>Unten Mitte</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
</context>
<context>
    <name>zelto::PositionGroup</name>
    <message>
        <source>Preset</source>
        <translation>Vorgegeben</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>From left:</source>
        <translation>Von links:</translation>
    </message>
    <message>
        <source>From top:</source>
        <translation>Von oben:</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Randabstand</translation>
    </message>
    <message>
        <source>Unit of the padding</source>
        <translation>Einheit des Randabstands</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Oben:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Unten:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <source>Repeat across</source>
        <translation>Waagerecht wiederholen</translation>
    </message>
    <message>
        <source>Horizontal spacing</source>
        <translation>Waagerechter Abstand</translation>
    </message>
    <message>
        <source>Repeat down</source>
        <translation>Senkrecht wiederholen</translation>
    </message>
    <message>
        <source>Vertical spacing</source>
        <translation>Senkrechter Abstand</translation>
    </message>
    <message>
        <source>Gap </source>
        <translation>Abstand </translation>
    </message>
    <message>
        <source>Unit of the gaps</source>
        <translation>Einheit der Abstände</translation>
    </message>
    <message>
        <source>What is repeated has a row or a column, not a place</source>
        <translation>Was wiederholt wird, hat eine Zeile oder Spalte, keine einzelne Stelle</translation>
    </message>
    <message>
        <source>At this position this padding moves nothing</source>
        <translation>An dieser Position verschiebt dieser Randabstand nichts</translation>
    </message>
</context>
<context>
    <name>zelto::PreviewView</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>zelto::ProcessingBar</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v von %m</translation>
    </message>
    <message>
        <source>%1 photos/s, %2 left</source>
        <translation>%1 Fotos/s, noch %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message numerus="yes">
        <source>The run has begun: %Ln photo(s)</source>
        <translation>
            <numerusform>Der Durchlauf hat begonnen: %Ln Foto</numerusform>
            <numerusform>Der Durchlauf hat begonnen: %Ln Fotos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::QrCodeEditor</name>
    <message>
        <source>QR Code</source>
        <translation>QR-Code</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Content of the code</source>
        <translation>Inhalt des Codes</translation>
    </message>
    <message>
        <source>https://www.example.com</source>
        <translation>https://www.example.com</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>% of photo width</source>
        <translation>% der Fotobreite</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Hintergrund:</translation>
    </message>
    <message>
        <source>Background of the code</source>
        <translation>Hintergrund des Codes</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>zelto::QrJudgement</name>
    <message>
        <source>Type what the code is to say, such as a web address.</source>
        <translation>Eingeben, was der Code sagen soll, etwa eine Webadresse.</translation>
    </message>
    <message>
        <source>Too long for a QR code: the text has %1 bytes, %2 fit.</source>
        <translation>Zu lang für einen QR-Code: Der Text hat %1 Bytes, %2 passen hinein.</translation>
    </message>
    <message>
        <source>Larger than the photo: a part of the code would be cut off.</source>
        <translation>Größer als das Foto: Ein Teil des Codes würde abgeschnitten.</translation>
    </message>
    <message>
        <source>The background is too dark: choose a brighter one.</source>
        <translation>Der Hintergrund ist zu dunkel: bitte einen helleren wählen.</translation>
    </message>
    <message>
        <source>Without a background it can be read on bright parts of photos only.</source>
        <translation>Ohne Hintergrund ist er nur auf hellen Stellen von Fotos lesbar.</translation>
    </message>
    <message>
        <source>%1 × %1 squares of %2 pixels each.</source>
        <translation>%1 × %1 Quadrate zu je %2 Pixeln.</translation>
    </message>
    <message>
        <source>Too small to be read: this text needs at least %L1 pixels.</source>
        <translation>Zu klein zum Lesen: Dieser Text braucht mindestens %L1 Pixel.</translation>
    </message>
    <message>
        <source>Too small to be read: this text needs at least %L1 pixels (%L2% of this photo&apos;s width).</source>
        <translation>Zu klein zum Lesen: Dieser Text braucht mindestens %L1 Pixel (%L2 % der Breite dieses Fotos).</translation>
    </message>
</context>
<context>
    <name>zelto::RenamePanel</name>
    <message>
        <source>Re&amp;name photos</source>
        <translation>Fotos um&amp;benennen</translation>
    </message>
    <message>
        <source>Name patte&amp;rn:</source>
        <translation>&amp;Namensmuster:</translation>
    </message>
    <message>
        <source>Name pattern</source>
        <translation>Namensmuster</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Insert a macro</source>
        <translation>Makro einfügen</translation>
    </message>
</context>
<context>
    <name>zelto::ResizeField</name>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
</context>
<context>
    <name>zelto::ResizePanel</name>
    <message>
        <source>Resi&amp;ze photos</source>
        <translation>&amp;Größe der Fotos ändern</translation>
    </message>
    <message>
        <source>Width, per cent</source>
        <translation>Breite in Prozent</translation>
    </message>
    <message>
        <source>Height, per cent</source>
        <translation>Höhe in Prozent</translation>
    </message>
    <message>
        <source>Width, pixels</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Height, pixels</source>
        <translation>Höhe in Pixeln</translation>
    </message>
    <message>
        <source>Longer side, pixels</source>
        <translation>Längere Seite in Pixeln</translation>
    </message>
    <message>
        <source>&amp;Keep the proportions</source>
        <translation>Seiten&amp;verhältnis beibehalten</translation>
    </message>
    <message>
        <source>Do not &amp;enlarge small photos</source>
        <translation>Kl&amp;eine Fotos nicht vergrößern</translation>
    </message>
    <message>
        <source>&amp;Percentage</source>
        <translation>P&amp;rozent</translation>
    </message>
    <message>
        <source>Pi&amp;xels</source>
        <translation>Pi&amp;xel</translation>
    </message>
    <message>
        <source>&amp;Longer side</source>
        <translation>&amp;Längere Seite</translation>
    </message>
</context>
<context>
    <name>zelto::ResultBar</name>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Retr&amp;y Failed</source>
        <translation>Fehlge&amp;schlagene wiederholen</translation>
    </message>
    <message>
        <source>Show only the photos that failed or were written with warnings</source>
        <translation>Nur die Fotos zeigen, die fehlgeschlagen sind oder mit Warnungen geschrieben wurden</translation>
    </message>
    <message>
        <source>Run once more for the photos that failed, with the same options</source>
        <translation>Noch einmal für die fehlgeschlagenen Fotos ausführen, mit denselben Optionen</translation>
    </message>
    <message>
        <source>Close (Escape)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation>Zusammenfassung schließen</translation>
    </message>
    <message>
        <source>Result of the run: %1</source>
        <translation>Ergebnis des Durchlaufs: %1</translation>
    </message>
</context>
<context>
    <name>zelto::RotationControl</name>
    <message>
        <source>Straight</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Slightly rising</source>
        <translation>Leicht ansteigend</translation>
    </message>
    <message>
        <source>Rising diagonally</source>
        <translation>Schräg ansteigend</translation>
    </message>
    <message>
        <source>Upward</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Slightly falling</source>
        <translation>Leicht abfallend</translation>
    </message>
    <message>
        <source>Falling diagonally</source>
        <translation>Schräg abfallend</translation>
    </message>
    <message>
        <source>Downward</source>
        <translation>Abwärts</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Auf dem Kopf</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Rotation in degrees</source>
        <translation>Drehung in Grad</translation>
    </message>
    <message>
        <source>Usual rotations</source>
        <translation>Übliche Drehungen</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
</context>
<context>
    <name>zelto::RunController</name>
    <message>
        <source>Looking at the names of the outputs...</source>
        <translation>Namen der Ausgaben werden geprüft...</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Wird angehalten</translation>
    </message>
    <message>
        <source>Photos Are Being Watermarked</source>
        <translation>Fotos werden gerade bearbeitet</translation>
    </message>
    <message>
        <source>%1 of %2 are done. The photo in hand will be finished.</source>
        <translation>%1 von %2 sind fertig. Das aktuelle Foto wird noch abgeschlossen.</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>Abbrechen und beenden</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Weiterlaufen lassen</translation>
    </message>
    <message>
        <source>Encoded as usual: %1</source>
        <translation>Wie gewohnt kodiert: %1</translation>
    </message>
    <message>
        <source>%1 photos/s, %2 left</source>
        <translation>%1 Fotos/s, noch %2</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Abgebrochen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln geschrieben</numerusform>
            <numerusform>%Ln geschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln fehlgeschlagen</numerusform>
            <numerusform>%Ln fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln warned</source>
        <translation>
            <numerusform>%Ln mit Warnung</numerusform>
            <numerusform>%Ln mit Warnungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Open P&amp;DF</source>
        <translation>&amp;PDF öffnen</translation>
    </message>
    <message>
        <source>Open Fol&amp;der</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Going on</source>
        <translation>Es geht weiter</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
</context>
<context>
    <name>zelto::SaveSettingsDialog</name>
    <message>
        <source>Save Setting</source>
        <translation>Einstellung speichern</translation>
    </message>
    <message>
        <source>&amp;Name of the setting:</source>
        <translation>&amp;Name der Einstellung:</translation>
    </message>
    <message>
        <source>Name of the setting</source>
        <translation>Name der Einstellung</translation>
    </message>
    <message>
        <source>Saved settings hold the watermarks, the filter and the border.</source>
        <translation>Gespeicherte Einstellungen enthalten die Wasserzeichen, den Filter und den Rand.</translation>
    </message>
    <message>
        <source>There is a setting of this name.</source>
        <translation>Eine Einstellung mit diesem Namen gibt es schon.</translation>
    </message>
</context>
<context>
    <name>zelto::SavedStacksPopup</name>
    <message>
        <source>Saved stacks</source>
        <translation>Gespeicherte Stapel</translation>
    </message>
    <message>
        <source>%1 (at start)</source>
        <translation>%1 (beim Start)</translation>
    </message>
    <message>
        <source>%1
Loaded when Zelto starts</source>
        <translation>%1
Wird beim Start von Zelto geladen</translation>
    </message>
    <message>
        <source>There are no saved stacks yet.
Save keeps the one you see.</source>
        <translation>Es gibt noch keine gespeicherten Stapel.
„Speichern“ hebt den sichtbaren auf.</translation>
    </message>
</context>
<context>
    <name>zelto::ShapeEditor</name>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Vieleck</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Von links nach rechts</translation>
    </message>
    <message>
        <source>Top to bottom</source>
        <translation>Von oben nach unten</translation>
    </message>
    <message>
        <source>Lower right to upper left</source>
        <translation>Von unten rechts nach oben links</translation>
    </message>
    <message>
        <source>Upper right to lower left</source>
        <translation>Von oben rechts nach unten links</translation>
    </message>
    <message>
        <source>From the centre</source>
        <translation>Von der Mitte aus</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>% of photo width</source>
        <translation>% der Fotobreite</translation>
    </message>
    <message>
        <source>% of photo height</source>
        <translation>% der Fotohöhe</translation>
    </message>
    <message>
        <source>Sides:</source>
        <translation>Seiten:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Länge:</translation>
    </message>
    <message>
        <source>Thickness:</source>
        <translation>Dicke:</translation>
    </message>
    <message>
        <source>One colour</source>
        <translation>Eine Farbe</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Farbverlauf</translation>
    </message>
    <message>
        <source>First colour of the gradient</source>
        <translation>Erste Farbe des Verlaufs</translation>
    </message>
    <message>
        <source>Second colour of the gradient</source>
        <translation>Zweite Farbe des Verlaufs</translation>
    </message>
    <message>
        <source>Direction of the gradient</source>
        <translation>Richtung des Verlaufs</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>Transparenz:</translation>
    </message>
    <message>
        <source>A circle looks the same however it is turned</source>
        <translation>Ein Kreis sieht gedreht immer gleich aus</translation>
    </message>
    <message>
        <source>Only polygons have a number of sides</source>
        <translation>Nur Vielecke haben eine Anzahl von Seiten</translation>
    </message>
</context>
<context>
    <name>zelto::SizeField</name>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>zelto::SpecialCharacterWindowController</name>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Special Characters</source>
        <translation>Sonderzeichen</translation>
    </message>
    <message>
        <source>Search by name or code: “arrow”, “U+2192”</source>
        <translation>Nach (englischem) Namen oder Code suchen: „arrow“, „U+2192“</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>No character has such a name</source>
        <translation>Kein Zeichen heißt so</translation>
    </message>
    <message>
        <source>The first %L1 of %L2 found</source>
        <translation>Die ersten %L1 von %L2 gefundenen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>%Ln gefunden</numerusform>
            <numerusform>%Ln gefunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::StackHead</name>
    <message>
        <source>More for this stack</source>
        <translation>Mehr zu diesem Stapel</translation>
    </message>
    <message>
        <source>Drawn from top to bottom</source>
        <translation>Von oben nach unten gezeichnet</translation>
    </message>
    <message>
        <source>The last one lies on top of the others</source>
        <translation>Das letzte liegt über den anderen</translation>
    </message>
    <message>
        <source>Unnamed stack</source>
        <translation>Unbenannter Stapel</translation>
    </message>
    <message>
        <source>This stack has not been saved under a name</source>
        <translation>Dieser Stapel ist noch nicht unter einem Namen gespeichert</translation>
    </message>
    <message>
        <source>“%1” has been changed since it was saved</source>
        <translation>„%1“ wurde seit dem Speichern geändert</translation>
    </message>
    <message>
        <source>“%1” is loaded when Zelto starts</source>
        <translation>„%1“ wird beim Start von Zelto geladen</translation>
    </message>
    <message>
        <source>“%1” is loaded</source>
        <translation>„%1“ ist geladen</translation>
    </message>
    <message>
        <source>%1
Click for the saved stacks (%2)</source>
        <translation>%1
Klick zeigt die gespeicherten Stapel (%2)</translation>
    </message>
</context>
<context>
    <name>zelto::StackKeeper</name>
    <message>
        <source>Setting Save Error</source>
        <translation>Einstellung kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>“%1” Has Been Changed</source>
        <translation>„%1“ wurde geändert</translation>
    </message>
    <message>
        <source>Save the changes in the setting, or keep these watermarks for the next start without changing the setting?</source>
        <translation>Änderungen in der Einstellung speichern oder diese Wasserzeichen für den nächsten Start aufheben, ohne die Einstellung zu ändern?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Keep for Next Time</source>
        <translation>Für nächstes Mal aufheben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>There is no folder for settings.</source>
        <translation>Es gibt keinen Ordner für Einstellungen.</translation>
    </message>
    <message>
        <source>The Watermarks Cannot Be Kept</source>
        <translation>Wasserzeichen können nicht aufgehoben werden</translation>
    </message>
    <message>
        <source>Close Anyway</source>
        <translation>Trotzdem schließen</translation>
    </message>
    <message>
        <source>The watermarks of the last time cannot be brought back: %1</source>
        <translation>Die Wasserzeichen vom letzten Mal lassen sich nicht zurückholen: %1</translation>
    </message>
    <message>
        <source>“%1” is loaded again, as when Zelto was closed.</source>
        <translation>„%1“ ist wieder geladen, wie beim Beenden von Zelto.</translation>
    </message>
    <message>
        <source>The watermarks of the last time are back.</source>
        <translation>Die Wasserzeichen vom letzten Mal sind wieder da.</translation>
    </message>
</context>
<context>
    <name>zelto::TextEditor</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>Your text</source>
        <translation>Eigener Text</translation>
    </message>
</context>
<context>
    <name>zelto::TextStyleGroup</name>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Struck through</source>
        <translation>Durchgestrichen</translation>
    </message>
    <message>
        <source>Align left</source>
        <translation>Linksbündig</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Align right</source>
        <translation>Rechtsbündig</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Schrift:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>Stil:</translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Effect:</source>
        <translation>Effekt:</translation>
    </message>
    <message>
        <source>Kind of size</source>
        <translation>Art der Größe</translation>
    </message>
    <message>
        <source>Proportional</source>
        <translation>Proportional</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Usual sizes</source>
        <translation>Übliche Größen</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Text Colour</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Shadow Colour</source>
        <translation>Schattenfarbe</translation>
    </message>
    <message>
        <source>Embossed letters cast no shadow</source>
        <translation>Geprägte Buchstaben werfen keinen Schatten</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effekt</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Prägen</translation>
    </message>
    <message>
        <source>Transparent letters</source>
        <translation>Transparente Buchstaben</translation>
    </message>
    <message>
        <source>Only the light and dark edges of embossed letters are drawn</source>
        <translation>Nur die hellen und dunklen Kanten geprägter Buchstaben werden gezeichnet</translation>
    </message>
</context>
<context>
    <name>zelto::TipsDialog</name>
    <message>
        <source>Tips</source>
        <translation>Tipps</translation>
    </message>
    <message>
        <source>Did you know?</source>
        <translation>Schon gewusst?</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
    <message>
        <source>&amp;Show tips at start-up</source>
        <translation>Tipps beim Start &amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>&amp;Nächster Tipp</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>zelto::TransparencySlider</name>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Transparency in per cent</source>
        <translation>Transparenz in Prozent</translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkController</name>
    <message>
        <source>Save Setting</source>
        <translation>Einstellung speichern</translation>
    </message>
    <message>
        <source>There is nothing to save yet. Add a watermark or a border first.</source>
        <translation>Es gibt noch nichts zu speichern. Bitte zuerst ein Wasserzeichen oder einen Rand hinzufügen.</translation>
    </message>
    <message>
        <source>Setting Save Error</source>
        <translation>Einstellung kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation>Bild hinzufügen</translation>
    </message>
    <message>
        <source>Edit Image</source>
        <translation>Bild bearbeiten</translation>
    </message>
    <message>
        <source>Add Text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Add Shape</source>
        <translation>Form hinzufügen</translation>
    </message>
    <message>
        <source>Edit Shape</source>
        <translation>Form bearbeiten</translation>
    </message>
    <message>
        <source>Add QR Code</source>
        <translation>QR-Code hinzufügen</translation>
    </message>
    <message>
        <source>Edit QR Code</source>
        <translation>QR-Code bearbeiten</translation>
    </message>
    <message>
        <source>Drop Watermarks</source>
        <translation>Wasserzeichen ablegen</translation>
    </message>
    <message>
        <source>Remove Watermark</source>
        <translation>Wasserzeichen entfernen</translation>
    </message>
    <message>
        <source>Choose Filter</source>
        <translation>Filter wählen</translation>
    </message>
    <message>
        <source>Remove Filter</source>
        <translation>Filter entfernen</translation>
    </message>
    <message>
        <source>Switch Filter On</source>
        <translation>Filter einschalten</translation>
    </message>
    <message>
        <source>Switch Filter Off</source>
        <translation>Filter ausschalten</translation>
    </message>
    <message>
        <source>Edit Effects</source>
        <translation>Effekte bearbeiten</translation>
    </message>
    <message>
        <source>Switch Border and Shadow On</source>
        <translation>Rand und Schatten einschalten</translation>
    </message>
    <message>
        <source>Switch Border and Shadow Off</source>
        <translation>Rand und Schatten ausschalten</translation>
    </message>
    <message>
        <source>Remove Border and Shadow</source>
        <translation>Rand und Schatten entfernen</translation>
    </message>
    <message>
        <source>Edit Copyright</source>
        <translation>Copyright bearbeiten</translation>
    </message>
    <message>
        <source>Switch Copyright On</source>
        <translation>Copyright einschalten</translation>
    </message>
    <message>
        <source>Switch Copyright Off</source>
        <translation>Copyright ausschalten</translation>
    </message>
    <message>
        <source>Remove Copyright</source>
        <translation>Copyright entfernen</translation>
    </message>
    <message>
        <source>Switch Watermark On</source>
        <translation>Wasserzeichen einschalten</translation>
    </message>
    <message>
        <source>Switch Watermark Off</source>
        <translation>Wasserzeichen ausschalten</translation>
    </message>
    <message numerus="yes">
        <source>Remove %Ln Row(s)</source>
        <translation>
            <numerusform>%Ln Zeile entfernen</numerusform>
            <numerusform>%Ln Zeilen entfernen</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove All Watermarks</source>
        <translation>Alle Wasserzeichen entfernen</translation>
    </message>
    <message>
        <source>Watermarks, filter and copyright data removed; border and shadow stay. Undo brings everything back.</source>
        <translation>Wasserzeichen, Filter und Copyright-Angaben entfernt; Rand und Schatten bleiben. „Rückgängig“ holt alles zurück.</translation>
    </message>
    <message>
        <source>Watermarks, filter and copyright data removed. Undo brings everything back.</source>
        <translation>Wasserzeichen, Filter und Copyright-Angaben entfernt. „Rückgängig“ holt alles zurück.</translation>
    </message>
    <message>
        <source>Move Watermark</source>
        <translation>Wasserzeichen verschieben</translation>
    </message>
    <message>
        <source>Duplicate Watermark</source>
        <translation>Wasserzeichen duplizieren</translation>
    </message>
    <message>
        <source>Rename Watermark</source>
        <translation>Wasserzeichen umbenennen</translation>
    </message>
    <message>
        <source>Cut Watermark</source>
        <translation>Wasserzeichen ausschneiden</translation>
    </message>
    <message>
        <source>Paste Watermark</source>
        <translation>Wasserzeichen einfügen</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Load Setting</source>
        <translation>Einstellung laden</translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkListView</name>
    <message>
        <source>Watermarks</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>No watermarks yet</source>
        <translation>Noch keine Wasserzeichen</translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkPanel</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add a watermark, a filter, a border or copyright data</source>
        <translation>Wasserzeichen, Filter, Rand oder Copyright-Angaben hinzufügen</translation>
    </message>
    <message>
        <source>Add Watermark</source>
        <translation>Wasserzeichen hinzufügen</translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkWindowController</name>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>Transparenz:</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Tiling</source>
        <translation>Kachelung</translation>
    </message>
</context>
<context>
    <name>zelto::WindowActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Photos</source>
        <translation>&amp;Fotos</translation>
    </message>
    <message>
        <source>&amp;Watermarks</source>
        <translation>&amp;Wasserzeichen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Hi&amp;lfe</translation>
    </message>
    <message>
        <source>&amp;Save Setting</source>
        <translation>Einstellung &amp;speichern</translation>
    </message>
    <message>
        <source>Save Setting &amp;As...</source>
        <translation>Einstellung speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Load at Start</source>
        <translation>Beim Start &amp;laden</translation>
    </message>
    <message>
        <source>Saved Stac&amp;ks</source>
        <translation>&amp;Gespeicherte Stapel</translation>
    </message>
    <message>
        <source>Saved Se&amp;ttings...</source>
        <translation>Gespeicherte &amp;Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;Import Settings...</source>
        <translation>Einstellungen &amp;importieren...</translation>
    </message>
    <message>
        <source>&amp;Export Settings...</source>
        <translation>Einstellungen e&amp;xportieren...</translation>
    </message>
    <message>
        <source>Start &amp;Watermarking...</source>
        <translation>&amp;Wasserzeichen anbringen...</translation>
    </message>
    <message>
        <source>&amp;Pause or Resume</source>
        <translation>An&amp;halten oder fortsetzen</translation>
    </message>
    <message>
        <source>&amp;Cancel Watermarking</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Been&amp;den</translation>
    </message>
    <message>
        <source>&amp;Add Photos...</source>
        <translation>Fotos &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>Add &amp;Folder...</source>
        <translation>&amp;Ordner hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Remove Photo</source>
        <translation>Foto &amp;entfernen</translation>
    </message>
    <message>
        <source>Remove A&amp;ll Photos</source>
        <translation>&amp;Alle Fotos entfernen</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>Alle a&amp;nhaken</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>&amp;Keines anhaken</translation>
    </message>
    <message>
        <source>&amp;Toggle Check Marks</source>
        <translation>Häkchen &amp;umkehren</translation>
    </message>
    <message>
        <source>&amp;Next Photo</source>
        <translation>Nä&amp;chstes Foto</translation>
    </message>
    <message>
        <source>&amp;Previous Photo</source>
        <translation>&amp;Vorheriges Foto</translation>
    </message>
    <message>
        <source>F&amp;ind Photos</source>
        <translation>&amp;Fotos suchen</translation>
    </message>
    <message>
        <source>&amp;Sort by Name</source>
        <translation>Nach Na&amp;men sortieren</translation>
    </message>
    <message>
        <source>Sort by &amp;Date Taken</source>
        <translation>Nach Aufnahme&amp;datum sortieren</translation>
    </message>
    <message>
        <source>&amp;Text...</source>
        <translation>&amp;Text...</translation>
    </message>
    <message>
        <source>&amp;Image...</source>
        <translation>&amp;Bild...</translation>
    </message>
    <message>
        <source>&amp;Shape...</source>
        <translation>F&amp;orm...</translation>
    </message>
    <message>
        <source>&amp;QR Code...</source>
        <translation>&amp;QR-Code...</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>&amp;Filter...</translation>
    </message>
    <message>
        <source>&amp;Border and Shadow...</source>
        <translation>&amp;Rand und Schatten...</translation>
    </message>
    <message>
        <source>&amp;Copyright...</source>
        <translation>&amp;Copyright...</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
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
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Show or Hide</source>
        <translation>&amp;Ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>&amp;Remove Watermark</source>
        <translation>Wasserzeichen ent&amp;fernen</translation>
    </message>
    <message>
        <source>Remove A&amp;ll Watermarks</source>
        <translation>&amp;Alle Wasserzeichen entfernen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Fit to Screen</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Contact View</source>
        <translation>Kon&amp;taktbogen</translation>
    </message>
    <message>
        <source>Show Without &amp;Marks (Hold F8)</source>
        <translation>Ohne &amp;Wasserzeichen zeigen (F8 halten)</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>&amp;Tips</source>
        <translation>&amp;Tipps</translation>
    </message>
    <message>
        <source>&amp;Check for a New Version</source>
        <translation>Nach neuer Version &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;About Zelto</source>
        <translation>Ü&amp;ber Zelto</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <source>Not while photos are being watermarked</source>
        <translation>Nicht, solange Fotos mit Wasserzeichen versehen werden</translation>
    </message>
    <message>
        <source>No photos are being watermarked</source>
        <translation>Gerade werden keine Fotos mit Wasserzeichen versehen</translation>
    </message>
    <message>
        <source>Retr&amp;y Failed</source>
        <translation>Fehlge&amp;schlagene wiederholen</translation>
    </message>
    <message>
        <source>No photo has failed</source>
        <translation>Kein Foto ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Add photos first</source>
        <translation>Zuerst Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Add photos or a watermark first</source>
        <translation>Zuerst Fotos oder ein Wasserzeichen hinzufügen</translation>
    </message>
    <message>
        <source>There are no watermarks yet</source>
        <translation>Es gibt noch keine Wasserzeichen</translation>
    </message>
    <message>
        <source>Select a watermark first</source>
        <translation>Zuerst ein Wasserzeichen auswählen</translation>
    </message>
    <message>
        <source>There is nothing to save yet</source>
        <translation>Es gibt noch nichts zu speichern</translation>
    </message>
    <message>
        <source>Save these watermarks under a name first</source>
        <translation>Diese Wasserzeichen zuerst unter einem Namen speichern</translation>
    </message>
</context>
<context>
    <name>zelto::ZeltoController</name>
    <message>
        <source>Sort by Name</source>
        <translation>Nach Namen sortieren</translation>
    </message>
    <message>
        <source>Sort by Date Taken</source>
        <translation>Nach Aufnahmedatum sortieren</translation>
    </message>
    <message>
        <source>Reading dates...</source>
        <translation>Datumsangaben werden gelesen...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) read</source>
        <translation>
            <numerusform>%Ln Foto gelesen</numerusform>
            <numerusform>%Ln Fotos gelesen</numerusform>
        </translation>
    </message>
</context>
</TS>
