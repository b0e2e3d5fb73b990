<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AllTagsDialog</name>
    <message>
        <source>All Tags</source>
        <translation>Alle Tags</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>‹Mixed›</source>
        <translation>‹Unterschiedlich›</translation>
    </message>
    <message>
        <source>Add Tag</source>
        <translation>Tag hinzufügen</translation>
    </message>
    <message>
        <source>Name, such as MOOD:</source>
        <translation>Name, etwa MOOD:</translation>
    </message>
</context>
<context>
    <name>ArtworkDock</name>
    <message>
        <source>Artwork</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>Aus&amp;wählen …</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>G&amp;röße:</translation>
    </message>
    <message>
        <source>No tracks selected</source>
        <translation>Keine Stücke ausgewählt</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>No artwork</source>
        <translation>Kein Cover</translation>
    </message>
    <message>
        <source>Mixed artwork</source>
        <translation>Unterschiedliche Cover</translation>
    </message>
    <message>
        <source>Remove Artwork</source>
        <translation>Cover entfernen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>En&amp;tfernen</translation>
    </message>
    <message>
        <source>Lon&amp;ger edge:</source>
        <translation>&amp;Längere Kante:</translation>
    </message>
    <message>
        <source>Limit new art&amp;work</source>
        <translation>&amp;Neue Cover begrenzen</translation>
    </message>
    <message>
        <source>Not taken: %1</source>
        <translation>Nicht übernommen: %1</translation>
    </message>
    <message>
        <source>Limit new artwork</source>
        <translation>Neue Cover begrenzen</translation>
    </message>
</context>
<context>
    <name>AutomatedRun</name>
    <message>
        <source>The screenshot could not be saved.</source>
        <translation>Das Bildschirmfoto konnte nicht gespeichert werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CapturePreviewModel</name>
    <message>
        <source>%1: %2</source>
        <comment>a tag and its text</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>does not fit the pattern</source>
        <translation>passt nicht zum Muster</translation>
    </message>
</context>
<context>
    <name>CellClipboard</name>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Nothing can be pasted here</source>
        <translation>Hier kann nichts eingefügt werden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows the tags of the audio files in a folder.</source>
        <translation>Zeigt die Tags der Audiodateien in einem Ordner.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>ORDNER</translation>
    </message>
    <message>
        <source>Find PATTERN.</source>
        <translation>MUSTER suchen.</translation>
    </message>
    <message>
        <source>PATTERN</source>
        <translation>MUSTER</translation>
    </message>
    <message>
        <source>How to match, from 0 (contains) to 5.</source>
        <translation>Art der Übereinstimmung, von 0 (enthält) bis 5.</translation>
    </message>
    <message>
        <source>Tell upper case from lower case.</source>
        <translation>Groß- und Kleinschreibung beachten.</translation>
    </message>
    <message>
        <source>Write the matches to the standard output.</source>
        <translation>Die Treffer auf die Standardausgabe schreiben.</translation>
    </message>
    <message>
        <source>Save a picture of the window as PNG in FILE.</source>
        <translation>Ein Bild des Fensters als PNG in DATEI speichern.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Leave once all that is done.</source>
        <translation>Danach beenden.</translation>
    </message>
    <message>
        <source>Draw light on dark.</source>
        <translation>Hell auf dunklem Grund darstellen.</translation>
    </message>
    <message>
        <source>--matching-type takes a number from 0 to 5.</source>
        <translation>--matching-type verlangt eine Zahl von 0 bis 5.</translation>
    </message>
    <message>
        <source>The folder to open, or files to select in theirs; else the last one, or the sample.</source>
        <translation>Der Ordner, der geöffnet wird, oder Dateien, die in ihrem ausgewählt werden; sonst der letzte oder das Beispiel.</translation>
    </message>
</context>
<context>
    <name>FieldScope</name>
    <message>
        <source>All Fields</source>
        <translation>Alle Felder</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Progress of files</source>
        <translation>Fortschritt der Dateien</translation>
    </message>
    <message>
        <source>&amp;Move to Folder…</source>
        <translation>In Ordner &amp;verschieben …</translation>
    </message>
    <message>
        <source>&amp;Copy to Folder…</source>
        <translation>In Ordner &amp;kopieren …</translation>
    </message>
    <message>
        <source>Put Files &amp;Back</source>
        <translation>Dateien &amp;zurücklegen</translation>
    </message>
    <message>
        <source>Rename Files</source>
        <translation>Dateien umbenennen</translation>
    </message>
    <message>
        <source>Copy to Folder</source>
        <translation>In Ordner kopieren</translation>
    </message>
    <message>
        <source>Move to Folder</source>
        <translation>In Ordner verschieben</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files done</source>
        <translation>
            <numerusform>%Ln Datei bearbeitet</numerusform>
            <numerusform>%Ln Dateien bearbeitet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %Ln skipped</source>
        <translation>
            <numerusform>, %Ln übersprungen</numerusform>
            <numerusform>, %Ln übersprungen</numerusform>
        </translation>
    </message>
    <message>
        <source>, stopped</source>
        <translation>, angehalten</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed: %2</source>
        <translation>
            <numerusform>%1, %Ln fehlgeschlagen: %2</numerusform>
            <numerusform>%1, %Ln fehlgeschlagen: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;name Files…</source>
        <translation>Dateien &amp;umbenennen …</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Move to Tras&amp;h</source>
        <translation>In den &amp;Papierkorb verschieben</translation>
    </message>
</context>
<context>
    <name>FillTagsDialog</name>
    <message>
        <source>&amp;Fill</source>
        <translation>&amp;Füllen</translation>
    </message>
    <message>
        <source>Fill Tags</source>
        <translation>Tags füllen</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>File Name and Folders</source>
        <translation>Dateiname und Ordner</translation>
    </message>
    <message>
        <source>Fr&amp;om:</source>
        <translation>&amp;Aus:</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Muster:</translation>
    </message>
    <message>
        <source>Text and the tags it stands between; “/” stands between folders</source>
        <translation>Text und die Tags, zwischen denen er steht; „/“ steht zwischen Ordnern</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts fit the pattern</source>
        <translation>
            <numerusform>%L1 von %Ln Text passt zum Muster</numerusform>
            <numerusform>%L1 von %Ln Texten passen zum Muster</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterField</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Shows only the tracks that have these words</source>
        <translation>Zeigt nur die Stücke, die diese Wörter haben</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <source>Which tags to search</source>
        <translation>Welche Tags durchsucht werden</translation>
    </message>
</context>
<context>
    <name>FindPanelDialog</name>
    <message>
        <source>Find and Replace in Tracks</source>
        <translation>In Stücken suchen und ersetzen</translation>
    </message>
    <message>
        <source>Preview Replace&amp;ments…</source>
        <translation>V&amp;orschau der Ersetzungen …</translation>
    </message>
</context>
<context>
    <name>FolderMenus</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Open Recen&amp;t</source>
        <translation>Zuletzt &amp;geöffnet</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Gallery</source>
        <translation>Galerie</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>GenreMenu</name>
    <message>
        <source>Gen&amp;re</source>
        <translation>&amp;Genre</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>&amp;Comment:</source>
        <translation>&amp;Kommentar:</translation>
    </message>
    <message>
        <source>Mixed</source>
        <translation>Unterschiedlich</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>%1 bearbeiten</translation>
    </message>
    <message>
        <source>%1, changed %2</source>
        <translation>%1, geändert %2</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>T&amp;itel:</translation>
    </message>
    <message>
        <source>Com&amp;poser:</source>
        <translation>Komp&amp;onist:</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>&amp;Jahr:</translation>
    </message>
    <message>
        <source>&amp;Disc:</source>
        <translation>Dis&amp;c:</translation>
    </message>
    <message>
        <source>of</source>
        <comment>between a track&apos;s number and the number of tracks</comment>
        <translation>von</translation>
    </message>
    <message>
        <source>The tracks differ. The Delete key empties this tag of all.</source>
        <translation>Die Stücke unterscheiden sich. Die Entf-Taste leert dieses Tag bei allen.</translation>
    </message>
    <message>
        <source>A&amp;lbum:</source>
        <translation>Alb&amp;um:</translation>
    </message>
    <message>
        <source>Album ar&amp;tist:</source>
        <translation>Album-Inter&amp;pret:</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Interpret:</translation>
    </message>
    <message>
        <source>Genre:</source>
        <translation>Genre:</translation>
    </message>
    <message>
        <source>Track:</source>
        <translation>Stück:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Ordner öffnen …</translation>
    </message>
    <message>
        <source>&amp;Reload Folder</source>
        <translation>Ordner neu &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>Preview Replace&amp;ments…</source>
        <translation>V&amp;orschau der Ersetzungen …</translation>
    </message>
    <message>
        <source>&amp;Quick Open…</source>
        <translation>S&amp;chnell öffnen …</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Select Ro&amp;w</source>
        <translation>&amp;Zeile auswählen</translation>
    </message>
    <message>
        <source>Select &amp;Column</source>
        <translation>S&amp;palte auswählen</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Stücke</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Reading progress</source>
        <translation>Fortschritt des Lesens</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>Save the changes?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>Texts were changed. They will be lost if they are not saved.</source>
        <translation>Texte wurden geändert. Die Änderungen gehen verloren, wenn sie nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Not read: %1 (%2)</source>
        <translation>Nicht gelesen: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 and other folders (%2 in all)</source>
        <translation>%1 und andere Ordner (insgesamt %2)</translation>
    </message>
    <message>
        <source>The folder “%1” could not be read: %2</source>
        <translation>Der Ordner „%1“ konnte nicht gelesen werden: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files were changed by another program and read again</source>
        <translation>
            <numerusform>%Ln Datei wurde von einem anderen Programm geändert und neu gelesen</numerusform>
            <numerusform>%Ln Dateien wurden von einem anderen Programm geändert und neu gelesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln files are not there any more</source>
        <translation>
            <numerusform>%Ln Datei ist nicht mehr vorhanden</numerusform>
            <numerusform>%Ln Dateien sind nicht mehr vorhanden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tracks</source>
        <translation>
            <numerusform>%Ln Stück</numerusform>
            <numerusform>%Ln Stücke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unreadable</source>
        <translation>
            <numerusform>%1, %Ln nicht lesbar</numerusform>
            <numerusform>%1, %Ln nicht lesbar</numerusform>
        </translation>
    </message>
    <message>
        <source>Find in Fi&amp;elds…</source>
        <translation>In &amp;Feldern suchen …</translation>
    </message>
    <message>
        <source>Reading was stopped: tracks are missing</source>
        <translation>Das Lesen wurde angehalten: Es fehlen Stücke</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new files</source>
        <translation>
            <numerusform>%Ln neue Datei</numerusform>
            <numerusform>%Ln neue Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%L1 of %2</source>
        <comment>tracks that are shown, of so many tracks</comment>
        <translation>%L1 von %2</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtern</translation>
    </message>
    <message>
        <source>Only Tracks with &amp;Matches</source>
        <translation>Nur Stücke mit &amp;Treffern</translation>
    </message>
    <message>
        <source>&amp;Next Track</source>
        <translation>&amp;Nächstes Stück</translation>
    </message>
    <message>
        <source>&amp;Previous Track</source>
        <translation>&amp;Voriges Stück</translation>
    </message>
</context>
<context>
    <name>NumberingDialog</name>
    <message>
        <source>Set the &amp;total, too</source>
        <translation>Auch die &amp;Gesamtzahl setzen</translation>
    </message>
    <message>
        <source>Begin anew in each &amp;folder</source>
        <translation>In jedem &amp;Ordner neu beginnen</translation>
    </message>
    <message>
        <source>Number Tracks</source>
        <translation>Stücke nummerieren</translation>
    </message>
    <message>
        <source>Tracks in their order in the table</source>
        <translation>Stücke in der Reihenfolge der Tabelle</translation>
    </message>
    <message>
        <source>Discs, one for each folder</source>
        <translation>Discs, eine für jeden Ordner</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Nummerieren:</translation>
    </message>
    <message>
        <source>&amp;Begin with:</source>
        <translation>&amp;Beginnen mit:</translation>
    </message>
</context>
<context>
    <name>PreviewTable</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QuickOpen</name>
    <message>
        <source>Quick Open</source>
        <translation>Schnell öffnen</translation>
    </message>
    <message>
        <source>Title or artist</source>
        <translation>Titel oder Interpret</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Stücke</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>QuickOpenModel</name>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Rename Files</source>
        <translation>Dateien umbenennen</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Muster:</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Insert a placeholder for a tag</source>
        <translation>Platzhalter für ein Tag einfügen</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln files will be renamed</source>
        <translation>
            <numerusform>Umzubenennen: %L1 von %Ln Datei</numerusform>
            <numerusform>Umzubenennen: %L1 von %Ln Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>; %Ln names are taken</source>
        <translation>
            <numerusform>; %Ln Name ist vergeben</numerusform>
            <numerusform>; %Ln Namen sind vergeben</numerusform>
        </translation>
    </message>
    <message>
        <source>“/” makes folders, such as %albumartist%/%album%/%track% - %title%</source>
        <translation>„/“ legt Ordner an, etwa %albumartist%/%album%/%track% - %title%</translation>
    </message>
</context>
<context>
    <name>RenamePreviewModel</name>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>This name is taken; you will be asked what to do.</source>
        <translation>Dieser Name ist vergeben; Sie werden gefragt, was geschehen soll.</translation>
    </message>
</context>
<context>
    <name>ReplaceDialog</name>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Preview Replacements</source>
        <translation>Vorschau der Ersetzungen</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>Zu ändern: %L1 von %Ln Text</numerusform>
            <numerusform>Zu ändern: %L1 von %Ln Texten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacePreviewModel</name>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
</context>
<context>
    <name>SizeLabel</name>
    <message numerus="yes">
        <source>%Ln selected: %1</source>
        <translation>
            <numerusform>%Ln ausgewählt: %1</numerusform>
            <numerusform>%Ln ausgewählt: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagReader</name>
    <message>
        <source>Not a regular file</source>
        <translation>Keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Empty file</source>
        <translation>Leere Datei</translation>
    </message>
    <message>
        <source>No audio found: damaged or cut off</source>
        <translation>Kein Ton gefunden: beschädigt oder abgeschnitten</translation>
    </message>
</context>
<context>
    <name>TagTokens</name>
    <message>
        <source>Next Value</source>
        <translation>Nächster Wert</translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>No audio found: damaged or cut off</source>
        <translation>Kein Ton gefunden: beschädigt oder abgeschnitten</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold artwork</source>
        <translation>Die Tags dieser Datei können kein Cover aufnehmen</translation>
    </message>
    <message>
        <source>The tags could not be written</source>
        <translation>Die Tags konnten nicht geschrieben werden</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold “%1”</source>
        <translation>Die Tags dieser Datei können „%1“ nicht aufnehmen</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold the artwork</source>
        <translation>Die Tags dieser Datei können das Cover nicht aufnehmen</translation>
    </message>
</context>
<context>
    <name>TextEditing</name>
    <message>
        <source>Edit %1</source>
        <translation>%1 bearbeiten</translation>
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
        <source>Re&amp;do %1</source>
        <translation>Wieder&amp;herstellen: %1</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>%1…</source>
        <translation>%1 …</translation>
    </message>
    <message>
        <source>%1: nothing to change</source>
        <translation>%1: nichts zu ändern</translation>
    </message>
    <message>
        <source>&amp;Fill Tags…</source>
        <translation>Tags &amp;füllen …</translation>
    </message>
    <message>
        <source>Fill Tags</source>
        <translation>Tags füllen</translation>
    </message>
    <message>
        <source>All Tags</source>
        <translation>Alle Tags</translation>
    </message>
    <message>
        <source>Number Tracks</source>
        <translation>Stücke nummerieren</translation>
    </message>
    <message>
        <source>All Ta&amp;gs…</source>
        <translation>Alle Ta&amp;gs …</translation>
    </message>
    <message>
        <source>Number Tracks…</source>
        <translation>Stücke nummerieren …</translation>
    </message>
</context>
<context>
    <name>TextTransform</name>
    <message>
        <source>&amp;Capitalize Words</source>
        <translation>&amp;Wörter mit großem Anfangsbuchstaben</translation>
    </message>
    <message>
        <source>&amp;Title Case</source>
        <translation>&amp;Titelschreibweise</translation>
    </message>
    <message>
        <source>&amp;Sentence case</source>
        <translation>&amp;Satzschreibweise</translation>
    </message>
    <message>
        <source>c&amp;amelCase</source>
        <translation>c&amp;amelCase</translation>
    </message>
    <message>
        <source>&amp;Underscores to Spaces</source>
        <translation>Unterstriche zu &amp;Leerzeichen</translation>
    </message>
    <message>
        <source>S&amp;paces to Underscores</source>
        <translation>Leerzeichen zu &amp;Unterstrichen</translation>
    </message>
    <message>
        <source>T&amp;rim Spaces</source>
        <translation>Leerzeichen am Rand &amp;entfernen</translation>
    </message>
    <message>
        <source>Strip Pu&amp;nctuation</source>
        <translation>Satzzeichen e&amp;ntfernen</translation>
    </message>
    <message>
        <source>Single Spaces</source>
        <translation>Einfache Leerzeichen</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>GROSSBUCHSTABEN</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>kleinbuchstaben</translation>
    </message>
</context>
<context>
    <name>TrackInfo</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
</context>
<context>
    <name>TrackMenus</name>
    <message>
        <source>Open &amp;With</source>
        <translation>Öffnen &amp;mit</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>A&amp;bspielen</translation>
    </message>
    <message>
        <source>&amp;Open Containing Folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>TrackSaving</name>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… und %Ln weitere</numerusform>
            <numerusform>… und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Files were changed by another program since they were read.</source>
        <translation>Dateien wurden von einem anderen Programm geändert, seit sie gelesen wurden.</translation>
    </message>
    <message>
        <source>Overwriting changes only the tags that you have changed. Reloading drops your changes to these files.</source>
        <translation>Beim Überschreiben werden nur die Tags geändert, die Sie geändert haben. Beim Neuladen gehen Ihre Änderungen an diesen Dateien verloren.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>Be&amp;lassen</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Wird gespeichert …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Some files could not be saved. They are as they were.</source>
        <translation>Einige Dateien konnten nicht gespeichert werden. Sie sind unverändert.</translation>
    </message>
</context>
<context>
    <name>TrackTableModel</name>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Stück-Nr.</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Changed, not saved</source>
        <translation>Geändert, nicht gespeichert</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>Album-Interpret</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Komponist</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Stücke</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disc</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discs</translation>
    </message>
</context>
<context>
    <name>TransformDialog</name>
    <message>
        <source>Transform Text</source>
        <translation>Text umwandeln</translation>
    </message>
    <message>
        <source>User’s Default</source>
        <translation>Voreinstellung des Benutzers</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Niederländisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Whose small and capital letters to use</source>
        <translation>Nach welcher Sprache groß- und kleingeschrieben wird</translation>
    </message>
    <message>
        <source>deadmau5, k.d. lang</source>
        <translation>deadmau5, k.d. lang</translation>
    </message>
    <message>
        <source>Spellings that stay as they are, with commas between them</source>
        <translation>Schreibweisen, die bleiben, wie sie sind, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>&amp;Transform:</source>
        <translation>&amp;Umwandlung:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>&amp;Never touch:</source>
        <translation>&amp;Nie ändern:</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>Zu ändern: %L1 von %Ln Text</numerusform>
            <numerusform>Zu ändern: %L1 von %Ln Texten</numerusform>
        </translation>
    </message>
    <message>
        <source>The text will not change</source>
        <translation>Der Text wird nicht geändert</translation>
    </message>
    <message>
        <source>The text will change</source>
        <translation>Der Text wird geändert</translation>
    </message>
    <message numerus="yes">
        <source>None of %Ln texts will change</source>
        <translation>
            <numerusform>%Ln Text wird nicht geändert</numerusform>
            <numerusform>Keiner der %Ln Texte wird geändert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransformPreviewModel</name>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Tag Editor</source>
        <translation>Tag-Editor</translation>
    </message>
    <message>
        <source>A screenshot could not be saved.</source>
        <translation>Ein Bildschirmfoto konnte nicht gespeichert werden.</translation>
    </message>
</context>
</TS>
