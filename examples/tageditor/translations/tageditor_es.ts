<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AllTagsDialog</name>
    <message>
        <source>All Tags</source>
        <translation>Todas las etiquetas</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>‹Mixed›</source>
        <translation>‹Varios›</translation>
    </message>
    <message>
        <source>Add Tag</source>
        <translation>Añadir etiqueta</translation>
    </message>
    <message>
        <source>Name, such as MOOD:</source>
        <translation>Nombre, por ejemplo MOOD:</translation>
    </message>
</context>
<context>
    <name>ArtworkDock</name>
    <message>
        <source>Artwork</source>
        <translation>Carátula</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>Exa&amp;minar…</translation>
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
        <translation>&amp;Tamaño:</translation>
    </message>
    <message>
        <source>No tracks selected</source>
        <translation>Ninguna pista seleccionada</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>No artwork</source>
        <translation>Sin carátula</translation>
    </message>
    <message>
        <source>Mixed artwork</source>
        <translation>Carátulas distintas</translation>
    </message>
    <message>
        <source>Remove Artwork</source>
        <translation>Quitar carátula</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Lon&amp;ger edge:</source>
        <translation>Lado más la&amp;rgo:</translation>
    </message>
    <message>
        <source>Limit new art&amp;work</source>
        <translation>Limitar las carátulas &amp;nuevas</translation>
    </message>
    <message>
        <source>Not taken: %1</source>
        <translation>No aceptada: %1</translation>
    </message>
    <message>
        <source>Limit new artwork</source>
        <translation>Limitar las carátulas nuevas</translation>
    </message>
</context>
<context>
    <name>AutomatedRun</name>
    <message>
        <source>The screenshot could not be saved.</source>
        <translation>No se ha podido guardar la captura de pantalla.</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n coincidencia</numerusform>
            <numerusform>%n coincidencias</numerusform>
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
        <translation>Texto</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>does not fit the pattern</source>
        <translation>no se ajusta al patrón</translation>
    </message>
</context>
<context>
    <name>CellClipboard</name>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Nothing can be pasted here</source>
        <translation>Aquí no se puede pegar nada</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows the tags of the audio files in a folder.</source>
        <translation>Muestra las etiquetas de los archivos de audio de una carpeta.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>CARPETA</translation>
    </message>
    <message>
        <source>Find PATTERN.</source>
        <translation>Buscar PATRÓN.</translation>
    </message>
    <message>
        <source>PATTERN</source>
        <translation>PATRÓN</translation>
    </message>
    <message>
        <source>How to match, from 0 (contains) to 5.</source>
        <translation>Tipo de coincidencia, de 0 (contiene) a 5.</translation>
    </message>
    <message>
        <source>Tell upper case from lower case.</source>
        <translation>Distinguir mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>Write the matches to the standard output.</source>
        <translation>Escribir las coincidencias en la salida estándar.</translation>
    </message>
    <message>
        <source>Save a picture of the window as PNG in FILE.</source>
        <translation>Guardar una imagen de la ventana como PNG en ARCHIVO.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>Leave once all that is done.</source>
        <translation>Salir una vez hecho todo.</translation>
    </message>
    <message>
        <source>Draw light on dark.</source>
        <translation>Dibujar claro sobre oscuro.</translation>
    </message>
    <message>
        <source>--matching-type takes a number from 0 to 5.</source>
        <translation>--matching-type requiere un número de 0 a 5.</translation>
    </message>
    <message>
        <source>The folder to open, or files to select in theirs; else the last one, or the sample.</source>
        <translation>La carpeta que abrir, o los archivos que seleccionar en la suya; si no, la última o el ejemplo.</translation>
    </message>
</context>
<context>
    <name>FieldScope</name>
    <message>
        <source>All Fields</source>
        <translation>Todos los campos</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Progress of files</source>
        <translation>Progreso de los archivos</translation>
    </message>
    <message>
        <source>&amp;Move to Folder…</source>
        <translation>&amp;Mover a una carpeta…</translation>
    </message>
    <message>
        <source>&amp;Copy to Folder…</source>
        <translation>&amp;Copiar a una carpeta…</translation>
    </message>
    <message>
        <source>Put Files &amp;Back</source>
        <translation>&amp;Devolver los archivos</translation>
    </message>
    <message>
        <source>Rename Files</source>
        <translation>Cambiar nombres de archivo</translation>
    </message>
    <message>
        <source>Copy to Folder</source>
        <translation>Copiar a una carpeta</translation>
    </message>
    <message>
        <source>Move to Folder</source>
        <translation>Mover a una carpeta</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files done</source>
        <translation>
            <numerusform>%Ln archivo procesado</numerusform>
            <numerusform>%Ln archivos procesados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %Ln skipped</source>
        <translation>
            <numerusform>, %Ln omitido</numerusform>
            <numerusform>, %Ln omitidos</numerusform>
        </translation>
    </message>
    <message>
        <source>, stopped</source>
        <translation>, detenido</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln failed: %2</source>
        <translation>
            <numerusform>%1, %Ln con error: %2</numerusform>
            <numerusform>%1, %Ln con error: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;name Files…</source>
        <translation>Cambiar &amp;nombres de archivo…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Move to Tras&amp;h</source>
        <translation>Mover a la &amp;papelera</translation>
    </message>
</context>
<context>
    <name>FillTagsDialog</name>
    <message>
        <source>&amp;Fill</source>
        <translation>&amp;Rellenar</translation>
    </message>
    <message>
        <source>Fill Tags</source>
        <translation>Rellenar etiquetas</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>File Name and Folders</source>
        <translation>Nombre de archivo y carpetas</translation>
    </message>
    <message>
        <source>Fr&amp;om:</source>
        <translation>&amp;De:</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Patrón:</translation>
    </message>
    <message>
        <source>Text and the tags it stands between; “/” stands between folders</source>
        <translation>Texto y las etiquetas entre las que está; «/» separa carpetas</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts fit the pattern</source>
        <translation>
            <numerusform>%L1 de %Ln texto se ajusta al patrón</numerusform>
            <numerusform>%L1 de %Ln textos se ajustan al patrón</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterField</name>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Shows only the tracks that have these words</source>
        <translation>Muestra solo las pistas que tienen estas palabras</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <source>Which tags to search</source>
        <translation>En qué etiquetas buscar</translation>
    </message>
</context>
<context>
    <name>FindPanelDialog</name>
    <message>
        <source>Find and Replace in Tracks</source>
        <translation>Buscar y reemplazar en las pistas</translation>
    </message>
    <message>
        <source>Preview Replace&amp;ments…</source>
        <translation>&amp;Vista previa de los reemplazos…</translation>
    </message>
</context>
<context>
    <name>FolderMenus</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Open Recen&amp;t</source>
        <translation>Abrir recien&amp;te</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Gallery</source>
        <translation>Galería</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>GenreMenu</name>
    <message>
        <source>Gen&amp;re</source>
        <translation>&amp;Género</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>&amp;Comment:</source>
        <translation>&amp;Comentario:</translation>
    </message>
    <message>
        <source>Mixed</source>
        <translation>Varios</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>Editar %1</translation>
    </message>
    <message>
        <source>%1, changed %2</source>
        <translation>%1, modificado %2</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>Tít&amp;ulo:</translation>
    </message>
    <message>
        <source>Com&amp;poser:</source>
        <translation>Compos&amp;itor:</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>Añ&amp;o:</translation>
    </message>
    <message>
        <source>&amp;Disc:</source>
        <translation>&amp;Disco:</translation>
    </message>
    <message>
        <source>of</source>
        <comment>between a track&apos;s number and the number of tracks</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>The tracks differ. The Delete key empties this tag of all.</source>
        <translation>Las pistas difieren. La tecla Supr vacía esta etiqueta en todas.</translation>
    </message>
    <message>
        <source>A&amp;lbum:</source>
        <translation>Á&amp;lbum:</translation>
    </message>
    <message>
        <source>Album ar&amp;tist:</source>
        <translation>Artista del ál&amp;bum:</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Artista:</translation>
    </message>
    <message>
        <source>Genre:</source>
        <translation>Género:</translation>
    </message>
    <message>
        <source>Track:</source>
        <translation>Pista:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Abrir carpeta…</translation>
    </message>
    <message>
        <source>&amp;Reload Folder</source>
        <translation>&amp;Recargar carpeta</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xto</translation>
    </message>
    <message>
        <source>Preview Replace&amp;ments…</source>
        <translation>&amp;Vista previa de los reemplazos…</translation>
    </message>
    <message>
        <source>&amp;Quick Open…</source>
        <translation>A&amp;pertura rápida…</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Select Ro&amp;w</source>
        <translation>Seleccionar &amp;fila</translation>
    </message>
    <message>
        <source>Select &amp;Column</source>
        <translation>Seleccionar &amp;columna</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistas</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Reading progress</source>
        <translation>Progreso de la lectura</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Guardar cambios</translation>
    </message>
    <message>
        <source>Save the changes?</source>
        <translation>¿Guardar los cambios?</translation>
    </message>
    <message>
        <source>Texts were changed. They will be lost if they are not saved.</source>
        <translation>Se han modificado textos. Se perderán si no se guardan.</translation>
    </message>
    <message>
        <source>Not read: %1 (%2)</source>
        <translation>No leído: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 and other folders (%2 in all)</source>
        <translation>%1 y otras carpetas (%2 en total)</translation>
    </message>
    <message>
        <source>The folder “%1” could not be read: %2</source>
        <translation>No se ha podido leer la carpeta «%1»: %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files were changed by another program and read again</source>
        <translation>
            <numerusform>Otro programa ha modificado %Ln archivo, que se ha vuelto a leer</numerusform>
            <numerusform>Otro programa ha modificado %Ln archivos, que se han vuelto a leer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln files are not there any more</source>
        <translation>
            <numerusform>%Ln archivo ya no está</numerusform>
            <numerusform>%Ln archivos ya no están</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tracks</source>
        <translation>
            <numerusform>%Ln pista</numerusform>
            <numerusform>%Ln pistas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln unreadable</source>
        <translation>
            <numerusform>%1, %Ln ilegible</numerusform>
            <numerusform>%1, %Ln ilegibles</numerusform>
        </translation>
    </message>
    <message>
        <source>Find in Fi&amp;elds…</source>
        <translation>Buscar en los camp&amp;os…</translation>
    </message>
    <message>
        <source>Reading was stopped: tracks are missing</source>
        <translation>La lectura se ha detenido: faltan pistas</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Columnas</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new files</source>
        <translation>
            <numerusform>%Ln archivo nuevo</numerusform>
            <numerusform>%Ln archivos nuevos</numerusform>
        </translation>
    </message>
    <message>
        <source>%L1 of %2</source>
        <comment>tracks that are shown, of so many tracks</comment>
        <translation>%L1 de %2</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtro</translation>
    </message>
    <message>
        <source>Only Tracks with &amp;Matches</source>
        <translation>Solo pistas con coinci&amp;dencias</translation>
    </message>
    <message>
        <source>&amp;Next Track</source>
        <translation>Pista &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous Track</source>
        <translation>Pista &amp;anterior</translation>
    </message>
</context>
<context>
    <name>NumberingDialog</name>
    <message>
        <source>Set the &amp;total, too</source>
        <translation>Poner también el &amp;total</translation>
    </message>
    <message>
        <source>Begin anew in each &amp;folder</source>
        <translation>Empezar de nuevo en cada &amp;carpeta</translation>
    </message>
    <message>
        <source>Number Tracks</source>
        <translation>Numerar pistas</translation>
    </message>
    <message>
        <source>Tracks in their order in the table</source>
        <translation>Pistas en el orden de la tabla</translation>
    </message>
    <message>
        <source>Discs, one for each folder</source>
        <translation>Discos, uno por carpeta</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Número:</translation>
    </message>
    <message>
        <source>&amp;Begin with:</source>
        <translation>&amp;Empezar por:</translation>
    </message>
</context>
<context>
    <name>PreviewTable</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QuickOpen</name>
    <message>
        <source>Quick Open</source>
        <translation>Apertura rápida</translation>
    </message>
    <message>
        <source>Title or artist</source>
        <translation>Título o artista</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistas</translation>
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
        <translation>Cambiar &amp;nombres</translation>
    </message>
    <message>
        <source>Rename Files</source>
        <translation>Cambiar nombres de archivo</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Patrón:</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertar</translation>
    </message>
    <message>
        <source>Insert a placeholder for a tag</source>
        <translation>Insertar un marcador de etiqueta</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln files will be renamed</source>
        <translation>
            <numerusform>Cambiará el nombre de %L1 de %Ln archivo</numerusform>
            <numerusform>Cambiará el nombre de %L1 de %Ln archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>; %Ln names are taken</source>
        <translation>
            <numerusform>; %Ln nombre está ocupado</numerusform>
            <numerusform>; %Ln nombres están ocupados</numerusform>
        </translation>
    </message>
    <message>
        <source>“/” makes folders, such as %albumartist%/%album%/%track% - %title%</source>
        <translation>«/» crea carpetas, como en %albumartist%/%album%/%track% - %title%</translation>
    </message>
</context>
<context>
    <name>RenamePreviewModel</name>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>This name is taken; you will be asked what to do.</source>
        <translation>Este nombre está ocupado; se le preguntará qué hacer.</translation>
    </message>
</context>
<context>
    <name>ReplaceDialog</name>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>Preview Replacements</source>
        <translation>Vista previa de los reemplazos</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>Cambiará %L1 de %Ln texto</numerusform>
            <numerusform>Cambiarán %L1 de %Ln textos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacePreviewModel</name>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
</context>
<context>
    <name>SizeLabel</name>
    <message numerus="yes">
        <source>%Ln selected: %1</source>
        <translation>
            <numerusform>%Ln seleccionada: %1</numerusform>
            <numerusform>%Ln seleccionadas: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagReader</name>
    <message>
        <source>Not a regular file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>Empty file</source>
        <translation>Archivo vacío</translation>
    </message>
    <message>
        <source>No audio found: damaged or cut off</source>
        <translation>No se ha encontrado audio: dañado o incompleto</translation>
    </message>
</context>
<context>
    <name>TagTokens</name>
    <message>
        <source>Next Value</source>
        <translation>Valor siguiente</translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>No audio found: damaged or cut off</source>
        <translation>No se ha encontrado audio: dañado o incompleto</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold artwork</source>
        <translation>Las etiquetas de este archivo no admiten carátulas</translation>
    </message>
    <message>
        <source>The tags could not be written</source>
        <translation>No se han podido escribir las etiquetas</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold “%1”</source>
        <translation>Las etiquetas de este archivo no admiten «%1»</translation>
    </message>
    <message>
        <source>The tags of this file cannot hold the artwork</source>
        <translation>Las etiquetas de este archivo no admiten la carátula</translation>
    </message>
</context>
<context>
    <name>TextEditing</name>
    <message>
        <source>Edit %1</source>
        <translation>Editar %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Re&amp;do %1</source>
        <translation>Re&amp;hacer %1</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Re&amp;hacer</translation>
    </message>
    <message>
        <source>%1…</source>
        <translation>%1…</translation>
    </message>
    <message>
        <source>%1: nothing to change</source>
        <translation>%1: nada que cambiar</translation>
    </message>
    <message>
        <source>&amp;Fill Tags…</source>
        <translation>R&amp;ellenar etiquetas…</translation>
    </message>
    <message>
        <source>Fill Tags</source>
        <translation>Rellenar etiquetas</translation>
    </message>
    <message>
        <source>All Tags</source>
        <translation>Todas las etiquetas</translation>
    </message>
    <message>
        <source>Number Tracks</source>
        <translation>Numerar pistas</translation>
    </message>
    <message>
        <source>All Ta&amp;gs…</source>
        <translation>Todas &amp;las etiquetas…</translation>
    </message>
    <message>
        <source>Number Tracks…</source>
        <translation>Numerar pistas…</translation>
    </message>
</context>
<context>
    <name>TextTransform</name>
    <message>
        <source>&amp;Capitalize Words</source>
        <translation>Iniciales en ma&amp;yúscula</translation>
    </message>
    <message>
        <source>&amp;Title Case</source>
        <translation>&amp;Tipo título</translation>
    </message>
    <message>
        <source>&amp;Sentence case</source>
        <translation>Tipo &amp;oración</translation>
    </message>
    <message>
        <source>c&amp;amelCase</source>
        <translation>c&amp;amelCase</translation>
    </message>
    <message>
        <source>&amp;Underscores to Spaces</source>
        <translation>Guiones &amp;bajos a espacios</translation>
    </message>
    <message>
        <source>S&amp;paces to Underscores</source>
        <translation>Es&amp;pacios a guiones bajos</translation>
    </message>
    <message>
        <source>T&amp;rim Spaces</source>
        <translation>&amp;Recortar espacios</translation>
    </message>
    <message>
        <source>Strip Pu&amp;nctuation</source>
        <translation>Quitar p&amp;untuación</translation>
    </message>
    <message>
        <source>Single Spaces</source>
        <translation>Espacios simples</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>MAYÚSCULAS</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>minúsculas</translation>
    </message>
</context>
<context>
    <name>TrackInfo</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frecuencia de muestreo</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
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
        <translation>Abrir &amp;con</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>&amp;Open Containing Folder</source>
        <translation>&amp;Abrir la carpeta que lo contiene</translation>
    </message>
</context>
<context>
    <name>TrackSaving</name>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… y %Ln más</numerusform>
            <numerusform>… y %Ln más</numerusform>
        </translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Files were changed by another program since they were read.</source>
        <translation>Otro programa ha modificado archivos desde que se leyeron.</translation>
    </message>
    <message>
        <source>Overwriting changes only the tags that you have changed. Reloading drops your changes to these files.</source>
        <translation>Sobrescribir modifica solo las etiquetas que usted ha cambiado. Recargar descarta sus cambios en estos archivos.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Sobrescribir</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recargar</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>&amp;Dejar</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Guardando…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Some files could not be saved. They are as they were.</source>
        <translation>Algunos archivos no se han podido guardar. Están como estaban.</translation>
    </message>
</context>
<context>
    <name>TrackTableModel</name>
    <message>
        <source>File Name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Changed, not saved</source>
        <translation>Modificado, sin guardar</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>Artista del álbum</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistas</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discos</translation>
    </message>
</context>
<context>
    <name>TransformDialog</name>
    <message>
        <source>Transform Text</source>
        <translation>Transformar texto</translation>
    </message>
    <message>
        <source>User’s Default</source>
        <translation>Predeterminado del usuario</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Neerlandés</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>Whose small and capital letters to use</source>
        <translation>Qué mayúsculas y minúsculas se usan</translation>
    </message>
    <message>
        <source>deadmau5, k.d. lang</source>
        <translation>deadmau5, k.d. lang</translation>
    </message>
    <message>
        <source>Spellings that stay as they are, with commas between them</source>
        <translation>Grafías que quedan como están, separadas por comas</translation>
    </message>
    <message>
        <source>&amp;Transform:</source>
        <translation>&amp;Transformación:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>&amp;Never touch:</source>
        <translation>&amp;No tocar:</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln texts will change</source>
        <translation>
            <numerusform>Cambiará %L1 de %Ln texto</numerusform>
            <numerusform>Cambiarán %L1 de %Ln textos</numerusform>
        </translation>
    </message>
    <message>
        <source>The text will not change</source>
        <translation>El texto no cambiará</translation>
    </message>
    <message>
        <source>The text will change</source>
        <translation>El texto cambiará</translation>
    </message>
    <message numerus="yes">
        <source>None of %Ln texts will change</source>
        <translation>
            <numerusform>%Ln texto no cambiará</numerusform>
            <numerusform>Ninguno de los %Ln textos cambiará</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransformPreviewModel</name>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Tag Editor</source>
        <translation>Editor de etiquetas</translation>
    </message>
    <message>
        <source>A screenshot could not be saved.</source>
        <translation>No se ha podido guardar una captura de pantalla.</translation>
    </message>
</context>
</TS>
