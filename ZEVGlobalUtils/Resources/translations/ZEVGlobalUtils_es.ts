<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ZEVGlobalUtils</name>
    <message>
        <source>Wildcard</source>
        <translation>Comodín</translation>
    </message>
    <message>
        <source>Any Characters</source>
        <translation>Cualesquiera caracteres</translation>
    </message>
    <message>
        <source>Any Character</source>
        <translation>Cualquier carácter</translation>
    </message>
    <message>
        <source>Any Word</source>
        <translation>Cualquier palabra</translation>
    </message>
    <message>
        <source>White Space</source>
        <translation>Espacio en blanco</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Dígitos</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>Email Address</source>
        <translation>Dirección de correo</translation>
    </message>
    <message>
        <source>Web Address</source>
        <translation>Dirección web</translation>
    </message>
    <message>
        <source>Line Break</source>
        <translation>Salto de línea</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Cualesquiera</translation>
    </message>
    <message>
        <source>Char</source>
        <translation>Carácter</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Palabra</translation>
    </message>
    <message>
        <source>Wildcards</source>
        <translation>Comodines</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>Contiene</translation>
    </message>
    <message>
        <source>Begins With</source>
        <translation>Empieza por</translation>
    </message>
    <message>
        <source>Matches Word</source>
        <translation>Coincide la palabra</translation>
    </message>
    <message>
        <source>Ends With</source>
        <translation>Termina en</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Expresión regular</translation>
    </message>
    <message>
        <source>Matches Contents</source>
        <translation>Coincide el contenido</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (%1 error %2.)</source>
        <translation>No se ha podido completar la operación. (%1, error %2)</translation>
    </message>
    <message>
        <source>The expression “%1” is not valid: %2.</source>
        <translation>La expresión «%1» no es válida: %2.</translation>
    </message>
    <message>
        <source>(Character %1)</source>
        <translation>(carácter %1)</translation>
    </message>
    <message>
        <source>a backslash stands before a character that it does not go with</source>
        <translation>hay una barra invertida ante un carácter que no la admite</translation>
    </message>
    <message>
        <source>a parenthesis has no partner</source>
        <translation>a un paréntesis le falta su pareja</translation>
    </message>
    <message>
        <source>a bracket is not closed</source>
        <translation>hay un corchete sin cerrar</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>a repetition in braces is not well formed</source>
        <translation>una repetición entre llaves está mal formada</translation>
    </message>
    <message>
        <source>it refers to a group that it does not have</source>
        <translation>se refiere a un grupo que no tiene</translation>
    </message>
    <message>
        <source>a look-behind has no limit to its length</source>
        <translation>una comprobación hacia atrás no tiene límite de longitud</translation>
    </message>
    <message>
        <source>a range of characters runs backwards</source>
        <translation>un intervalo de caracteres va al revés</translation>
    </message>
    <message>
        <source>it is not well formed</source>
        <translation>está mal formada</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>Cero KB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 EB</translation>
    </message>
    <message>
        <source>Unknown Type (0x%x)</source>
        <translation>Tipo desconocido (0x%x)</translation>
    </message>
    <message>
        <source>The image “%1” could not be written: %2.</source>
        <translation>No se ha podido escribir la imagen «%1»: %2.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>%lu matches</source>
        <translation>%lu coincidencias</translation>
    </message>
    <message>
        <source>%d Results Found</source>
        <translation>%d resultados encontrados</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>«%1» no es un número entero.</translation>
    </message>
    <message>
        <source>The number is too small.</source>
        <translation>El número es demasiado pequeño.</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>El número es demasiado grande.</translation>
    </message>
    <message>
        <source>Insert Pattern</source>
        <translation>Insertar patrón</translation>
    </message>
    <message>
        <source>Saved Patterns</source>
        <translation>Patrones guardados</translation>
    </message>
    <message>
        <source>Remove From Saved</source>
        <translation>Quitar de los guardados</translation>
    </message>
    <message>
        <source>Save Current</source>
        <translation>Guardar el actual</translation>
    </message>
    <message>
        <source>Show Menu</source>
        <translation>Mostrar menú</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>Sin resultados</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Find Menu</source>
        <translation>Menú de búsqueda</translation>
    </message>
    <message>
        <source>Saved queries</source>
        <translation>Búsquedas guardadas</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Replace &amp;with:</source>
        <translation>Reemplazar &amp;por:</translation>
    </message>
    <message>
        <source>Replace Menu</source>
        <translation>Menú de reemplazo</translation>
    </message>
    <message>
        <source>Saved patterns</source>
        <translation>Patrones guardados</translation>
    </message>
    <message>
        <source>Replace With</source>
        <translation>Reemplazar por</translation>
    </message>
    <message>
        <source>Matching Type</source>
        <translation>Tipo de coincidencia</translation>
    </message>
    <message>
        <source>&amp;Case Sensitive</source>
        <translation>&amp;Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Replace A&amp;ll</source>
        <translation>Reemplazar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>B&amp;uscar</translation>
    </message>
    <message>
        <source>Saved patterns and options</source>
        <translation>Patrones guardados y opciones</translation>
    </message>
    <message>
        <source>Previous Match</source>
        <translation>Coincidencia anterior</translation>
    </message>
    <message>
        <source>Next Match</source>
        <translation>Coincidencia siguiente</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Listo</translation>
    </message>
    <message>
        <source>Replace and Fi&amp;nd</source>
        <translation>Reemplazar y b&amp;uscar</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>Buscar y reemplazar</translation>
    </message>
    <message>
        <source>Wrap Around</source>
        <translation>Volver al principio</translation>
    </message>
    <message>
        <source>Saved Queries</source>
        <translation>Búsquedas guardadas</translation>
    </message>
    <message>
        <source>Save Query</source>
        <translation>Guardar búsqueda</translation>
    </message>
    <message>
        <source>The search was too complex: matches are missing.</source>
        <translation>La búsqueda era demasiado compleja: faltan coincidencias.</translation>
    </message>
    <message>
        <source>Searching… Press Escape to stop.</source>
        <translation>Buscando… Pulse Escape para detener.</translation>
    </message>
    <message>
        <source>The search was stopped: matches may be missing.</source>
        <translation>La búsqueda se ha detenido: pueden faltar coincidencias.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Reemplazar todo</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>Find and &amp;Replace…</source>
        <translation>Buscar y &amp;reemplazar…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message>
        <source>Use &amp;Selection for Find</source>
        <translation>&amp;Usar la selección para buscar</translation>
    </message>
    <message>
        <source>the folder “%1” does not exist</source>
        <translation>la carpeta «%1» no existe</translation>
    </message>
    <message>
        <source>“%1” is not a folder</source>
        <translation>«%1» no es una carpeta</translation>
    </message>
    <message>
        <source>you do not have permission to change the folder “%1”</source>
        <translation>no tiene permiso para modificar la carpeta «%1»</translation>
    </message>
    <message>
        <source>you do not have permission to read “%1”</source>
        <translation>no tiene permiso para leer «%1»</translation>
    </message>
    <message>
        <source>“%1” may not be removed from where it is</source>
        <translation>«%1» no se puede quitar de donde está</translation>
    </message>
    <message>
        <source>a folder cannot be put into itself</source>
        <translation>una carpeta no se puede poner dentro de sí misma</translation>
    </message>
    <message>
        <source>it lies in the folder “%1”, whose place it would take</source>
        <translation>está en la carpeta «%1», cuyo lugar ocuparía</translation>
    </message>
    <message>
        <source>the volume does not allow the name “%1”</source>
        <translation>el volumen no admite el nombre «%1»</translation>
    </message>
    <message>
        <source>the volume takes “%1” for the name of another item in the same folder</source>
        <translation>el volumen toma «%1» por el nombre de otro elemento de la misma carpeta</translation>
    </message>
    <message>
        <source>“%1” has more attributes than the volume can keep</source>
        <translation>«%1» tiene más atributos de los que el volumen puede guardar</translation>
    </message>
    <message>
        <source>“%1” is a socket or a device</source>
        <translation>«%1» es un socket o un dispositivo</translation>
    </message>
    <message>
        <source>“%1” is a link or a pipe, which the volume does not have</source>
        <translation>«%1» es un enlace o una tubería, que el volumen no admite</translation>
    </message>
    <message>
        <source>others could read “%1” on the volume, which keeps no permissions</source>
        <translation>otros podrían leer «%1» en el volumen, que no guarda permisos</translation>
    </message>
    <message>
        <source>“%1” has changed meanwhile, and was kept</source>
        <translation>«%1» ha cambiado entretanto y se ha conservado</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>the item does not exist</source>
        <translation>el elemento no existe</translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation>no tiene permiso</translation>
    </message>
    <message>
        <source>an item with this name already exists</source>
        <translation>ya existe un elemento con este nombre</translation>
    </message>
    <message>
        <source>there is not enough room</source>
        <translation>no hay espacio suficiente</translation>
    </message>
    <message>
        <source>the volume can only be read</source>
        <translation>el volumen es de solo lectura</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>se ha cancelado</translation>
    </message>
    <message>
        <source>“%1” could not be moved: %2.</source>
        <translation>No se ha podido mover «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be copied: %2.</source>
        <translation>No se ha podido copiar «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be changed: %2.</source>
        <translation>No se ha podido modificar «%1»: %2.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Aplicar a todo</translation>
    </message>
    <message>
        <source>Allow Access</source>
        <translation>Permitir el acceso</translation>
    </message>
    <message>
        <source>-SandboxExceptionKey-</source>
        <translation>Para trabajar con los archivos de esta carpeta se necesita acceso a ella. Elija la carpeta para permitirlo.</translation>
    </message>
    <message>
        <source>-SandboxSuggestion-</source>
        <translation>Si elige en su lugar su carpeta personal, no se le volverá a preguntar por las carpetas que contiene.</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Conservar ambos</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>An item named “%@” already exists in this location.</source>
        <translation>Ya existe un elemento llamado «%@» en esta ubicación.</translation>
    </message>
    <message>
        <source>Do you want to replace it with the one you’re moving?</source>
        <translation>¿Quiere reemplazarlo por el que está moviendo?</translation>
    </message>
    <message>
        <source>Existing item:</source>
        <translation>Elemento existente:</translation>
    </message>
    <message>
        <source>New item:</source>
        <translation>Elemento nuevo:</translation>
    </message>
    <message>
        <source>Drop Image Here</source>
        <translation>Arrastre aquí una imagen</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Carátula</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Reading the image</source>
        <translation>Leyendo la imagen</translation>
    </message>
    <message>
        <source>Show more</source>
        <translation>Mostrar más</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Último usado</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Clear Recents</source>
        <translation>Vaciar recientes</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Choose an Application</source>
        <translation>Elegir una aplicación</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Otra…</translation>
    </message>
    <message>
        <source>animated</source>
        <translation>animada</translation>
    </message>
    <message>
        <source>no known image format</source>
        <translation>ningún formato de imagen conocido</translation>
    </message>
    <message>
        <source>no decoder for %1</source>
        <translation>no hay decodificador para %1</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>dañada</translation>
    </message>
    <message>
        <source>too large to be shown</source>
        <translation>demasiado grande para mostrarla</translation>
    </message>
</context>
</TS>
