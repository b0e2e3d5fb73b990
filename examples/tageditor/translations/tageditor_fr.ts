<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AllTagsDialog</name>
    <message>
        <source>All Tags</source>
        <translation>Toutes les étiquettes</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>A&amp;jouter…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>‹Mixed›</source>
        <translation>‹Différents›</translation>
    </message>
    <message>
        <source>Add Tag</source>
        <translation>Ajouter une étiquette</translation>
    </message>
    <message>
        <source>Name, such as MOOD:</source>
        <translation>Nom, par exemple MOOD :</translation>
    </message>
</context>
<context>
    <name>ArtworkDock</name>
    <message>
        <source>Artwork</source>
        <translation>Pochette</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source> px</source>
        <translation>&#xa0;px</translation>
    </message>
    <message>
        <source> kB</source>
        <translation>&#xa0;ko</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Ta&amp;ille&#xa0;:</translation>
    </message>
    <message>
        <source>No tracks selected</source>
        <translation>Aucune piste sélectionnée</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture en cours…</translation>
    </message>
    <message>
        <source>No artwork</source>
        <translation>Aucune pochette</translation>
    </message>
    <message>
        <source>Mixed artwork</source>
        <translation>Pochettes différentes</translation>
    </message>
    <message>
        <source>Remove Artwork</source>
        <translation>Supprimer la pochette</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Lon&amp;ger edge:</source>
        <translation>Grand cô&amp;té&#xa0;:</translation>
    </message>
    <message>
        <source>Limit new art&amp;work</source>
        <translation>&amp;Limiter les nouvelles pochettes</translation>
    </message>
    <message>
        <source>Not taken: %1</source>
        <translation>Refusé : %1</translation>
    </message>
    <message>
        <source>Limit new artwork</source>
        <translation>Limiter les nouvelles pochettes</translation>
    </message>
</context>
<context>
    <name>AutomatedRun</name>
    <message>
        <source>The screenshot could not be saved.</source>
        <translation>La capture d’écran n’a pas pu être enregistrée.</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n correspondance</numerusform>
            <numerusform>%n correspondances</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CapturePreviewModel</name>
    <message>
        <source>%1: %2</source>
        <comment>a tag and its text</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>does not fit the pattern</source>
        <translation>ne correspond pas au motif</translation>
    </message>
</context>
<context>
    <name>CellClipboard</name>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Nothing can be pasted here</source>
        <translation>Rien ne peut être collé ici</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows the tags of the audio files in a folder.</source>
        <translation>Affiche les étiquettes des fichiers audio d’un dossier.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>DOSSIER</translation>
    </message>
    <message>
        <source>Find PATTERN.</source>
        <translation>Rechercher MOTIF.</translation>
    </message>
    <message>
        <source>PATTERN</source>
        <translation>MOTIF</translation>
    </message>
    <message>
        <source>How to match, from 0 (contains) to 5.</source>
        <translation>Type de correspondance, de 0 (contient) à 5.</translation>
    </message>
    <message>
        <source>Tell upper case from lower case.</source>
        <translation>Respecter la casse.</translation>
    </message>
    <message>
        <source>Write the matches to the standard output.</source>
        <translation>Écrire les correspondances sur la sortie standard.</translation>
    </message>
    <message>
        <source>Save a picture of the window as PNG in FILE.</source>
        <translation>Enregistrer une image de la fenêtre au format PNG dans FICHIER.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Leave once all that is done.</source>
        <translation>Quitter une fois tout cela terminé.</translation>
    </message>
    <message>
        <source>Draw light on dark.</source>
        <translation>Afficher en clair sur fond sombre.</translation>
    </message>
    <message>
        <source>--matching-type takes a number from 0 to 5.</source>
        <translation>--matching-type attend un nombre de 0 à 5.</translation>
    </message>
    <message>
        <source>The folder to open, or files to select in theirs; else the last one, or the sample.</source>
        <translation>Le dossier à ouvrir, ou des fichiers à sélectionner dans le leur ; sinon le dernier, ou l’exemple.</translation>
    </message>
</context>
<context>
    <name>FieldScope</name>
    <message>
        <source>All Fields</source>
        <translation>Tous les champs</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Progress of files</source>
        <translation>Progression des fichiers</translation>
    </message>
    <message>
        <source>&amp;Move to Folder…</source>
        <translation>&amp;Déplacer vers un dossier…</translation>
    </message>
    <message>
        <source>&amp;Copy to Folder…</source>
        <translation>&amp;Copier vers un dossier…</translation>
    </message>
    <message>
        <source>Put Files &amp;Back</source>
        <translation>Remettre les fichiers en &amp;place</translation>
    </message>
    <message>
        <source>Rename Files</source>
        <translation>Renommer les fichiers</translation>
    </message>
    <message>
        <source>Copy to Folder</source>
        <translation>Copier vers un dossier</translation>
    </message>
    <message>
        <source>Move to Folder</source>
        <translation>Déplacer vers un dossier</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files done</source>
        <translation>
            <numerusform>%Ln&#xa0;fichier traité</numerusform>
            <numerusform>%Ln&#xa0;fichiers traités</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %Ln skipped</source>
        <translation>
            <numerusform>, %Ln&#xa0;ignoré</numerusform>
            <numerusform>, %Ln&#xa0;ignorés</numerusform>
        </translation>
    </message>
    <message>
        <source>, stopped</source>
        <translation>, arrêté</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed: %2</source>
        <translation>
            <numerusform>%1, %Ln&#xa0;échec&#xa0;: %2</numerusform>
            <numerusform>%1, %Ln&#xa0;échecs&#xa0;: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;name Files…</source>
        <translation>Reno&amp;mmer les fichiers…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Move to Tras&amp;h</source>
        <translation>Mettre à la corbei&amp;lle</translation>
    </message>
</context>
<context>
    <name>FillTagsDialog</name>
    <message>
        <source>&amp;Fill</source>
        <translation>&amp;Remplir</translation>
    </message>
    <message>
        <source>Fill Tags</source>
        <translation>Remplir les étiquettes</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>File Name and Folders</source>
        <translation>Nom de fichier et dossiers</translation>
    </message>
    <message>
        <source>Fr&amp;om:</source>
        <translation>&amp;Depuis :</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Motif :</translation>
    </message>
    <message>
        <source>Text and the tags it stands between; “/” stands between folders</source>
        <translation>Du texte et les étiquettes qu’il sépare ; « / » sépare les dossiers</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts fit the pattern</source>
        <translation>
            <numerusform>%L1 de %Ln texte correspond au motif</numerusform>
            <numerusform>%L1 de %Ln textes correspondent au motif</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterField</name>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Shows only the tracks that have these words</source>
        <translation>N’affiche que les pistes qui ont ces mots</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <source>Which tags to search</source>
        <translation>Étiquettes dans lesquelles rechercher</translation>
    </message>
</context>
<context>
    <name>FindPanelDialog</name>
    <message>
        <source>Find and Replace in Tracks</source>
        <translation>Rechercher et remplacer dans les pistes</translation>
    </message>
    <message>
        <source>Preview Replace&amp;ments…</source>
        <translation>Aperçu des remp&amp;lacements…</translation>
    </message>
</context>
<context>
    <name>FolderMenus</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Open Recen&amp;t</source>
        <translation>Dossiers réce&amp;nts</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
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
        <translation>Pages</translation>
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
        <translation>&amp;Commentaire&#xa0;:</translation>
    </message>
    <message>
        <source>Mixed</source>
        <translation>Valeurs multiples</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>Modifier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1, changed %2</source>
        <translation>%1, modifié %2</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>Tit&amp;re :</translation>
    </message>
    <message>
        <source>Com&amp;poser:</source>
        <translation>C&amp;ompositeur :</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>Ann&amp;ée :</translation>
    </message>
    <message>
        <source>&amp;Disc:</source>
        <translation>Dis&amp;que :</translation>
    </message>
    <message>
        <source>of</source>
        <comment>between a track&apos;s number and the number of tracks</comment>
        <translation>sur</translation>
    </message>
    <message>
        <source>The tracks differ. The Delete key empties this tag of all.</source>
        <translation>Les pistes diffèrent. La touche Suppr vide cette étiquette pour toutes.</translation>
    </message>
    <message>
        <source>A&amp;lbum:</source>
        <translation>Al&amp;bum :</translation>
    </message>
    <message>
        <source>Album ar&amp;tist:</source>
        <translation>Artiste de l’alb&amp;um :</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Artiste :</translation>
    </message>
    <message>
        <source>Genre:</source>
        <translation>Genre :</translation>
    </message>
    <message>
        <source>Track:</source>
        <translation>Piste :</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Ouvrir un dossier…</translation>
    </message>
    <message>
        <source>&amp;Reload Folder</source>
        <translation>&amp;Recharger le dossier</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xte</translation>
    </message>
    <message>
        <source>Preview Replace&amp;ments…</source>
        <translation>Aperçu d&amp;es remplacements…</translation>
    </message>
    <message>
        <source>&amp;Quick Open…</source>
        <translation>&amp;Ouverture rapide…</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select Ro&amp;w</source>
        <translation>Sélectionner la &amp;ligne</translation>
    </message>
    <message>
        <source>Select &amp;Column</source>
        <translation>Sélectionner la &amp;colonne</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistes</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Reading progress</source>
        <translation>Progression de la lecture</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Enregistrer les modifications</translation>
    </message>
    <message>
        <source>Save the changes?</source>
        <translation>Enregistrer les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>Texts were changed. They will be lost if they are not saved.</source>
        <translation>Des textes ont été modifiés. Les modifications seront perdues si elles ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>Not read: %1 (%2)</source>
        <translation>Non lu&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 and other folders (%2 in all)</source>
        <translation>%1 et d’autres dossiers (%2 en tout)</translation>
    </message>
    <message>
        <source>The folder “%1” could not be read: %2</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’a pas pu être lu&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files were changed by another program and read again</source>
        <translation>
            <numerusform>%Ln&#xa0;fichier a été modifié par un autre programme et relu</numerusform>
            <numerusform>%Ln&#xa0;fichiers ont été modifiés par un autre programme et relus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln files are not there any more</source>
        <translation>
            <numerusform>%Ln&#xa0;fichier n’existe plus</numerusform>
            <numerusform>%Ln&#xa0;fichiers n’existent plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tracks</source>
        <translation>
            <numerusform>%Ln&#xa0;piste</numerusform>
            <numerusform>%Ln&#xa0;pistes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unreadable</source>
        <translation>
            <numerusform>%1, %Ln&#xa0;illisible</numerusform>
            <numerusform>%1, %Ln&#xa0;illisibles</numerusform>
        </translation>
    </message>
    <message>
        <source>Find in Fi&amp;elds…</source>
        <translation>Rechercher &amp;dans les champs…</translation>
    </message>
    <message>
        <source>Reading was stopped: tracks are missing</source>
        <translation>Lecture arrêtée&#xa0;: il manque des pistes</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new files</source>
        <translation>
            <numerusform>%Ln nouveau fichier</numerusform>
            <numerusform>%Ln nouveaux fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>%L1 of %2</source>
        <comment>tracks that are shown, of so many tracks</comment>
        <translation>%L1 sur %2</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtrer</translation>
    </message>
    <message>
        <source>Only Tracks with &amp;Matches</source>
        <translation>Seulement les pistes &amp;trouvées</translation>
    </message>
    <message>
        <source>&amp;Next Track</source>
        <translation>Piste &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Previous Track</source>
        <translation>Piste &amp;précédente</translation>
    </message>
</context>
<context>
    <name>NumberingDialog</name>
    <message>
        <source>Set the &amp;total, too</source>
        <translation>Indiquer aussi le &amp;total</translation>
    </message>
    <message>
        <source>Begin anew in each &amp;folder</source>
        <translation>Recommencer dans chaque &amp;dossier</translation>
    </message>
    <message>
        <source>Number Tracks</source>
        <translation>Numéroter les pistes</translation>
    </message>
    <message>
        <source>Tracks in their order in the table</source>
        <translation>Les pistes dans l’ordre du tableau</translation>
    </message>
    <message>
        <source>Discs, one for each folder</source>
        <translation>Les disques, un par dossier</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Numéroter :</translation>
    </message>
    <message>
        <source>&amp;Begin with:</source>
        <translation>&amp;Commencer par :</translation>
    </message>
</context>
<context>
    <name>PreviewTable</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>QuickOpen</name>
    <message>
        <source>Quick Open</source>
        <translation>Ouverture rapide</translation>
    </message>
    <message>
        <source>Title or artist</source>
        <translation>Titre ou artiste</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistes</translation>
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
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Rename Files</source>
        <translation>Renommer les fichiers</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Motif&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insérer</translation>
    </message>
    <message>
        <source>Insert a placeholder for a tag</source>
        <translation>Insérer un paramètre pour une étiquette</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln files will be renamed</source>
        <translation>
            <numerusform>À renommer&#xa0;: %L1 sur %Ln&#xa0;fichier</numerusform>
            <numerusform>À renommer&#xa0;: %L1 sur %Ln&#xa0;fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>; %Ln names are taken</source>
        <translation>
            <numerusform>&#xa0;; %Ln&#xa0;nom est déjà pris</numerusform>
            <numerusform>&#xa0;; %Ln&#xa0;noms sont déjà pris</numerusform>
        </translation>
    </message>
    <message>
        <source>“/” makes folders, such as %albumartist%/%album%/%track% - %title%</source>
        <translation>« / » crée des dossiers, par exemple %albumartist%/%album%/%track% - %title%</translation>
    </message>
</context>
<context>
    <name>RenamePreviewModel</name>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>This name is taken; you will be asked what to do.</source>
        <translation>Ce nom est déjà pris&#xa0;; vous pourrez décider que faire.</translation>
    </message>
</context>
<context>
    <name>ReplaceDialog</name>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Preview Replacements</source>
        <translation>Aperçu des remplacements</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>À modifier&#xa0;: %L1 sur %Ln&#xa0;texte</numerusform>
            <numerusform>À modifier&#xa0;: %L1 sur %Ln&#xa0;textes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacePreviewModel</name>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
</context>
<context>
    <name>SizeLabel</name>
    <message numerus="yes">
        <source>%Ln selected: %1</source>
        <translation>
            <numerusform>%Ln&#xa0;sélectionnée&#xa0;: %1</numerusform>
            <numerusform>%Ln&#xa0;sélectionnées&#xa0;: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagReader</name>
    <message>
        <source>Not a regular file</source>
        <translation>Fichier non ordinaire</translation>
    </message>
    <message>
        <source>Empty file</source>
        <translation>Fichier vide</translation>
    </message>
    <message>
        <source>No audio found: damaged or cut off</source>
        <translation>Aucun son trouvé&#xa0;: fichier endommagé ou tronqué</translation>
    </message>
</context>
<context>
    <name>TagTokens</name>
    <message>
        <source>Next Value</source>
        <translation>Valeur suivante</translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>No audio found: damaged or cut off</source>
        <translation>Aucun son trouvé&#xa0;: fichier endommagé ou tronqué</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold artwork</source>
        <translation>Les étiquettes de ce fichier ne peuvent pas contenir de pochette</translation>
    </message>
    <message>
        <source>The tags could not be written</source>
        <translation>Les étiquettes n’ont pas pu être écrites</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold “%1”</source>
        <translation>Les étiquettes de ce fichier ne peuvent pas contenir «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold the artwork</source>
        <translation>Les étiquettes de ce fichier ne peuvent pas contenir la pochette</translation>
    </message>
</context>
<context>
    <name>TextEditing</name>
    <message>
        <source>Edit %1</source>
        <translation>Modifier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Re&amp;do %1</source>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>%1…</source>
        <translation>%1…</translation>
    </message>
    <message>
        <source>%1: nothing to change</source>
        <translation>%1&#xa0;: rien à modifier</translation>
    </message>
    <message>
        <source>&amp;Fill Tags…</source>
        <translation>Remp&amp;lir les étiquettes…</translation>
    </message>
    <message>
        <source>Fill Tags</source>
        <translation>Remplir les étiquettes</translation>
    </message>
    <message>
        <source>All Tags</source>
        <translation>Toutes les étiquettes</translation>
    </message>
    <message>
        <source>Number Tracks</source>
        <translation>Numéroter les pistes</translation>
    </message>
    <message>
        <source>All Ta&amp;gs…</source>
        <translation>Toutes les éti&amp;quettes…</translation>
    </message>
    <message>
        <source>Number Tracks…</source>
        <translation>Numéroter les pistes…</translation>
    </message>
</context>
<context>
    <name>TextTransform</name>
    <message>
        <source>&amp;Capitalize Words</source>
        <translation>&amp;Majuscule à chaque mot</translation>
    </message>
    <message>
        <source>&amp;Title Case</source>
        <translation>Casse de &amp;titre</translation>
    </message>
    <message>
        <source>&amp;Sentence case</source>
        <translation>Casse de &amp;phrase</translation>
    </message>
    <message>
        <source>c&amp;amelCase</source>
        <translation>c&amp;amelCase</translation>
    </message>
    <message>
        <source>&amp;Underscores to Spaces</source>
        <translation>Tirets bas en e&amp;spaces</translation>
    </message>
    <message>
        <source>S&amp;paces to Underscores</source>
        <translation>&amp;Espaces en tirets bas</translation>
    </message>
    <message>
        <source>T&amp;rim Spaces</source>
        <translation>Supprimer les espaces aux e&amp;xtrémités</translation>
    </message>
    <message>
        <source>Strip Pu&amp;nctuation</source>
        <translation>Supprimer la po&amp;nctuation</translation>
    </message>
    <message>
        <source>Single Spaces</source>
        <translation>Espaces simples</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>MAJUSCULES</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>minuscules</translation>
    </message>
</context>
<context>
    <name>TrackInfo</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Échantillonnage</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
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
        <translation>Ouvrir a&amp;vec</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lire</translation>
    </message>
    <message>
        <source>&amp;Open Containing Folder</source>
        <translation>&amp;Ouvrir le dossier</translation>
    </message>
</context>
<context>
    <name>TrackSaving</name>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… et %Ln&#xa0;de plus</numerusform>
            <numerusform>… et %Ln&#xa0;de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Files were changed by another program since they were read.</source>
        <translation>Des fichiers ont été modifiés par un autre programme depuis leur lecture.</translation>
    </message>
    <message>
        <source>Overwriting changes only the tags that you have changed. Reloading drops your changes to these files.</source>
        <translation>Écraser ne change que les étiquettes que vous avez modifiées. Recharger abandonne vos modifications de ces fichiers.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>É&amp;craser</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>&amp;Laisser</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Enregistrement…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Some files could not be saved. They are as they were.</source>
        <translation>Certains fichiers n’ont pas pu être enregistrés. Ils sont restés inchangés.</translation>
    </message>
</context>
<context>
    <name>TrackTableModel</name>
    <message>
        <source>File Name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Changed, not saved</source>
        <translation>Modifié, non enregistré</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>Artiste de l’album</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositeur</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistes</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Disques</translation>
    </message>
</context>
<context>
    <name>TransformDialog</name>
    <message>
        <source>Transform Text</source>
        <translation>Transformer le texte</translation>
    </message>
    <message>
        <source>User’s Default</source>
        <translation>Langue de l’utilisateur</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turc</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Néerlandais</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>Whose small and capital letters to use</source>
        <translation>Langue dont suivre les majuscules et les minuscules</translation>
    </message>
    <message>
        <source>deadmau5, k.d. lang</source>
        <translation>deadmau5, k.d. lang</translation>
    </message>
    <message>
        <source>Spellings that stay as they are, with commas between them</source>
        <translation>Graphies à conserver telles quelles, séparées par des virgules</translation>
    </message>
    <message>
        <source>&amp;Transform:</source>
        <translation>&amp;Transformation&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Never touch:</source>
        <translation>&amp;Ne jamais modifier&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>À modifier&#xa0;: %L1 sur %Ln&#xa0;texte</numerusform>
            <numerusform>À modifier&#xa0;: %L1 sur %Ln&#xa0;textes</numerusform>
        </translation>
    </message>
    <message>
        <source>The text will not change</source>
        <translation>Le texte ne sera pas modifié</translation>
    </message>
    <message>
        <source>The text will change</source>
        <translation>Le texte sera modifié</translation>
    </message>
    <message numerus="yes">
        <source>None of %Ln texts will change</source>
        <translation>
            <numerusform>%Ln&#xa0;texte ne sera pas modifié</numerusform>
            <numerusform>Aucun des %Ln&#xa0;textes ne sera modifié</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransformPreviewModel</name>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Tag Editor</source>
        <translation>Éditeur d’étiquettes</translation>
    </message>
    <message>
        <source>A screenshot could not be saved.</source>
        <translation>Une capture d’écran n’a pas pu être enregistrée.</translation>
    </message>
</context>
</TS>
