<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About znworkbench</source>
        <translation>Acerca de znworkbench</translation>
    </message>
    <message>
        <source>Edits SQL scripts. It is the example host of the editor component ZNCoreEditor.

Over Qt %1. Licensed under the GNU General Public License, version 3 or later.</source>
        <translation>Edita scripts SQL. Es el programa de ejemplo del componente de edición ZNCoreEditor.

Con Qt %1. Con licencia pública general de GNU, versión 3 o posterior.</translation>
    </message>
</context>
<context>
    <name>Arguments</name>
    <message>
        <source>Opens SQL scripts, one tab for each.</source>
        <translation>Abre scripts SQL, cada uno en una pestaña.</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>Muestra este texto.</translation>
    </message>
    <message>
        <source>Writes a picture of the window and exits.</source>
        <translation>Escribe una imagen de la ventana y termina.</translation>
    </message>
    <message>
        <source>Tells which version this is.</source>
        <translation>Indica la versión.</translation>
    </message>
    <message>
        <source>Scripts to open, each at a line and a column: a.sql:120:7.</source>
        <translation>Scripts que se abren, cada uno en una línea y una columna: a.sql:120:7.</translation>
    </message>
    <message>
        <source>--screenshot needs the name of a file.</source>
        <translation>--screenshot necesita el nombre de un archivo.</translation>
    </message>
    <message>
        <source>Opens a window of its own, not a tab in the workbench that runs.</source>
        <translation>Abre una ventana propia, no una pestaña en el programa que ya está en marcha.</translation>
    </message>
</context>
<context>
    <name>AutosaveDialog</name>
    <message>
        <source>&amp;Keep copies of unsaved changes</source>
        <translation>&amp;Guardar copias de los cambios no guardados</translation>
    </message>
    <message>
        <source>Autosave</source>
        <translation>Guardado automático</translation>
    </message>
    <message>
        <source>&amp;Minutes between copies</source>
        <translation>&amp;Minutos entre copias</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <source>Type what a command is called</source>
        <translation>Escriba el nombre de una orden</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>No command has these words in its name</source>
        <translation>Ninguna orden tiene estas palabras en su nombre</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>%1 is not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>%1 no se compara: lo que no es texto, pasa de 8 MB o no se puede leer no se muestra.</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the script alone.</source>
        <translation>%1: las líneas con - solo están en el archivo; las líneas con +, solo en el script.</translation>
    </message>
    <message>
        <source>%1: script and file have the same text.</source>
        <translation>%1: el script y el archivo tienen el mismo texto.</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Comparison</source>
        <translation>Comparación</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>C&amp;omments</source>
        <translation>Comen&amp;tarios</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>San&amp;gría</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Líneas</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>Pala&amp;bras</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Selecc&amp;ionar</translation>
    </message>
    <message>
        <source>&amp;Bookmarks</source>
        <translation>&amp;Marcadores</translation>
    </message>
    <message>
        <source>&amp;Comment Out</source>
        <translation>C&amp;omentar</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>&amp;Quitar comentario</translation>
    </message>
    <message>
        <source>Comment &amp;Lines Out</source>
        <translation>Comentar &amp;líneas</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>&amp;Aumentar sangría</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>&amp;Reducir sangría</translation>
    </message>
    <message>
        <source>&amp;Tabs to Spaces</source>
        <translation>&amp;Tabuladores a espacios</translation>
    </message>
    <message>
        <source>&amp;Spaces to Tabs</source>
        <translation>&amp;Espacios a tabuladores</translation>
    </message>
    <message>
        <source>Trim T&amp;railing Spaces</source>
        <translation>&amp;Quitar espacios al final de línea</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>Ordenar &amp;de forma ascendente</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>&amp;Ordenar de forma descendente</translation>
    </message>
    <message>
        <source>&amp;End the Last Line</source>
        <translation>&amp;Terminar la última línea</translation>
    </message>
    <message>
        <source>Convert Line Ends to C&amp;R+LF (Windows)</source>
        <translation>&amp;Convertir fines de línea a CR+LF (Windows)</translation>
    </message>
    <message>
        <source>Convert Line Ends to L&amp;F (Unix)</source>
        <translation>Convertir fines de línea &amp;a LF (Unix)</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (&amp;Mac)</source>
        <translation>Convertir &amp;fines de línea a CR (Mac)</translation>
    </message>
    <message>
        <source>&amp;Upper Case</source>
        <translation>&amp;Mayúsculas</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>M&amp;inúsculas</translation>
    </message>
    <message>
        <source>Ca&amp;pitalize</source>
        <translation>Iniciales &amp;en mayúscula</translation>
    </message>
    <message>
        <source>Upper Case of a W&amp;ord</source>
        <translation>Pa&amp;labra en mayúsculas</translation>
    </message>
    <message>
        <source>Lower Case of a Wo&amp;rd</source>
        <translation>&amp;Palabra en minúsculas</translation>
    </message>
    <message>
        <source>Capi&amp;talize a Word</source>
        <translation>Pala&amp;bra con mayúscula inicial</translation>
    </message>
    <message>
        <source>D&amp;elete a Word</source>
        <translation>Eliminar &amp;una palabra</translation>
    </message>
    <message>
        <source>Swap &amp;Characters</source>
        <translation>Intercambiar &amp;caracteres</translation>
    </message>
    <message>
        <source>Swap &amp;Words</source>
        <translation>I&amp;ntercambiar palabras</translation>
    </message>
    <message>
        <source>&amp;Increase Number</source>
        <translation>&amp;Aumentar número</translation>
    </message>
    <message>
        <source>&amp;Decrease Number</source>
        <translation>&amp;Disminuir número</translation>
    </message>
    <message>
        <source>&amp;Word</source>
        <translation>P&amp;alabra</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Línea</translation>
    </message>
    <message>
        <source>&amp;Paragraph</source>
        <translation>&amp;Párrafo</translation>
    </message>
    <message>
        <source>To Matching &amp;Bracket</source>
        <translation>&amp;Hasta el paréntesis correspondiente</translation>
    </message>
    <message>
        <source>&amp;Caret to the Other End</source>
        <translation>&amp;Cursor al otro extremo</translation>
    </message>
    <message>
        <source>&amp;Toggle</source>
        <translation>Poner &amp;o quitar</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>&amp;Primero</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>Ú&amp;ltimo</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>&amp;Borrar todos</translation>
    </message>
    <message>
        <source>Ins&amp;ert File...</source>
        <translation>Insertar arc&amp;hivo...</translation>
    </message>
</context>
<context>
    <name>Encodings</name>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 con BOM</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE con BOM</translation>
    </message>
    <message>
        <source>UTF-16 BE with mark</source>
        <translation>UTF-16 BE con BOM</translation>
    </message>
    <message>
        <source>UTF-32 LE with mark</source>
        <translation>UTF-32 LE con BOM</translation>
    </message>
    <message>
        <source>UTF-32 BE with mark</source>
        <translation>UTF-32 BE con BOM</translation>
    </message>
    <message>
        <source>Unknown encoding</source>
        <translation>Codificación desconocida</translation>
    </message>
    <message>
        <source>Western European</source>
        <translation>Europeo occidental</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europeo central</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cirílico</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griego</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Báltico</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebreo</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Árabe</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamita</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Tailandés</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>Chino simplificado</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>Chino tradicional</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
</context>
<context>
    <name>ExpandedScript</name>
    <message>
        <source>Expanded Script</source>
        <translation>Script expandido</translation>
    </message>
    <message>
        <source>Expanded script</source>
        <translation>Script expandido</translation>
    </message>
    <message>
        <source>Files are looked for beside the script, and in the folders that Tools &gt; Options names.</source>
        <translation>Los archivos se buscan junto al script y en las carpetas que indica Herramientas &gt; Opciones.</translation>
    </message>
    <message>
        <source>Problems of the expanded script</source>
        <translation>Problemas del script expandido</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Go to Source</source>
        <translation>Ir al origen</translation>
    </message>
    <message>
        <source>Put Original Back</source>
        <translation>Recuperar el original</translation>
    </message>
    <message>
        <source>Original Script</source>
        <translation>Script original</translation>
    </message>
    <message>
        <source>Nothing was expanded. #include, #define and &amp;&amp;NAME are; the lines by which client programs read files (\i, @, :r) stay as they are.</source>
        <translation>No se ha expandido nada. Se expanden #include, #define y &amp;&amp;NAME; las líneas con las que los programas cliente leen archivos (\i, @, :r) quedan como están.</translation>
    </message>
    <message>
        <source>%1 (out of date)</source>
        <translation>%1 (desactualizado)</translation>
    </message>
    <message>
        <source>The script was changed since. Tools &gt; Expanded Script shows it as it is.</source>
        <translation>El script ha cambiado desde entonces. Herramientas &gt; Script expandido lo muestra como está.</translation>
    </message>
</context>
<context>
    <name>ExpressionHelp</name>
    <message>
        <source>any character of the line</source>
        <translation>cualquier carácter de la línea</translation>
    </message>
    <message>
        <source>one of a set; [^a-z] any other</source>
        <translation>uno de un conjunto; [^a-z] cualquier otro</translation>
    </message>
    <message>
        <source>a digit; \D any other</source>
        <translation>un dígito; \D cualquier otro</translation>
    </message>
    <message>
        <source>a character of a word; \W any other</source>
        <translation>un carácter de palabra; \W cualquier otro</translation>
    </message>
    <message>
        <source>a blank; \S any other</source>
        <translation>un espacio; \S cualquier otro</translation>
    </message>
    <message>
        <source>what stands before, any number of times</source>
        <translation>lo anterior, cualquier número de veces</translation>
    </message>
    <message>
        <source>what stands before, once at least</source>
        <translation>lo anterior, una vez como mínimo</translation>
    </message>
    <message>
        <source>what stands before, or nothing</source>
        <translation>lo anterior, o nada</translation>
    </message>
    <message>
        <source>what stands before, two to four times</source>
        <translation>lo anterior, de dos a cuatro veces</translation>
    </message>
    <message>
        <source>what stands before, or what follows</source>
        <translation>lo anterior, o lo que sigue</translation>
    </message>
    <message>
        <source>a group; \1 to \9 in the replacement</source>
        <translation>un grupo; de \1 a \9 en el reemplazo</translation>
    </message>
    <message>
        <source>the start of a line</source>
        <translation>el principio de una línea</translation>
    </message>
    <message>
        <source>the end of a line</source>
        <translation>el fin de una línea</translation>
    </message>
    <message>
        <source>an edge of a word</source>
        <translation>un borde de palabra</translation>
    </message>
    <message>
        <source>the start of a word</source>
        <translation>el principio de una palabra</translation>
    </message>
    <message>
        <source>the end of a word</source>
        <translation>el fin de una palabra</translation>
    </message>
    <message>
        <source>the match ends here</source>
        <translation>la coincidencia termina aquí</translation>
    </message>
    <message>
        <source>a line feed</source>
        <translation>un salto de línea</translation>
    </message>
    <message>
        <source>a tab</source>
        <translation>un tabulador</translation>
    </message>
    <message>
        <source>What an expression may say</source>
        <translation>Qué puede contener una expresión</translation>
    </message>
    <message>
        <source>&amp;Groups by ( and )</source>
        <translation>&amp;Grupos con ( y )</translation>
    </message>
    <message>
        <source>G&amp;roups by \( and \)</source>
        <translation>Grupos &amp;con \( y \)</translation>
    </message>
</context>
<context>
    <name>FieldMenus</name>
    <message>
        <source>Tabs: %1</source>
        <translation>Tabuladores: %1</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>Espacios: %1</translation>
    </message>
    <message>
        <source>Indent with &amp;Tabs</source>
        <translation>Sangrar &amp;con tabuladores</translation>
    </message>
    <message>
        <source>Indent with &amp;Spaces</source>
        <translation>&amp;Sangrar con espacios</translation>
    </message>
    <message>
        <source>&amp;%1 Columns</source>
        <translation>&amp;%1 columnas</translation>
    </message>
</context>
<context>
    <name>FileReplacer</name>
    <message>
        <source>it may not be written</source>
        <translation>no está permitido escribirlo</translation>
    </message>
    <message>
        <source>its encoding does not have %1</source>
        <translation>su codificación no tiene %1</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>es de solo lectura</translation>
    </message>
    <message>
        <source>its text is another one by now</source>
        <translation>su texto ha cambiado entretanto</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>No expression: %1</source>
        <translation>No es una expresión: %1</translation>
    </message>
    <message>
        <source>No expression: %1, at character %2</source>
        <translation>No es una expresión: %1, en el carácter %2</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>No hay nada seleccionado</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>más de %1</translation>
    </message>
    <message>
        <source>On from the top</source>
        <translation>Se sigue desde el principio</translation>
    </message>
    <message>
        <source>On from the end</source>
        <translation>Se sigue desde el final</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>gone round</source>
        <translation>vuelta completa</translation>
    </message>
    <message>
        <source>%1, gone round</source>
        <translation>%1, vuelta completa</translation>
    </message>
    <message numerus="yes">
        <source>%n found and marked</source>
        <translation>
            <numerusform>%n encontrado y marcado</numerusform>
            <numerusform>%n encontrados y marcados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n encontrado</numerusform>
            <numerusform>%n encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>B&amp;uscar...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>&amp;Buscar anterior</translation>
    </message>
    <message>
        <source>Find the &amp;Word Next</source>
        <translation>Aparición siguiente de &amp;la palabra</translation>
    </message>
    <message>
        <source>Find the W&amp;ord Previous</source>
        <translation>Aparición anterior &amp;de la palabra</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>Reemplazar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Mark All</source>
        <translation>&amp;Marcar todo</translation>
    </message>
    <message>
        <source>Co&amp;unt</source>
        <translation>&amp;Contar</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Reemplazar por</translation>
    </message>
    <message>
        <source>&amp;Whole word</source>
        <translation>&amp;Palabras completas</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>E&amp;xpresión</translation>
    </message>
    <message>
        <source>&amp;In selection</source>
        <translation>&amp;En la selección</translation>
    </message>
    <message>
        <source>&amp;Keep case</source>
        <translation>Ma&amp;ntener mayúsculas</translation>
    </message>
    <message>
        <source>Replacing</source>
        <translation>Reemplazo</translation>
    </message>
    <message>
        <source>A replacement is in capitals where what it replaces is</source>
        <translation>Un reemplazo va en mayúsculas donde lo está el texto que reemplaza</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message numerus="yes">
        <source>Stopped, %n replaced</source>
        <translation>
            <numerusform>Detenido, %n reemplazado</numerusform>
            <numerusform>Detenido, %n reemplazados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>%n reemplazado</numerusform>
            <numerusform>%n reemplazados</numerusform>
        </translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>M&amp;ayúsculas/minúsculas</translation>
    </message>
</context>
<context>
    <name>FolderModel</name>
    <message>
        <source>%1, in front</source>
        <translation>%1, en primer plano</translation>
    </message>
</context>
<context>
    <name>FolderPane</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Files of the folder</source>
        <translation>Archivos de la carpeta</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>Arc&amp;hivos de la carpeta</translation>
    </message>
    <message>
        <source>Part of a name, or *.sql</source>
        <translation>Parte de un nombre, o *.sql</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Open another folder</source>
        <translation>Abrir otra carpeta</translation>
    </message>
    <message>
        <source>Show the folder around this one</source>
        <translation>Mostrar la carpeta que contiene a esta</translation>
    </message>
    <message>
        <source>Show Script</source>
        <translation>Mostrar el script</translation>
    </message>
    <message>
        <source>Show the script in front among its files</source>
        <translation>Mostrar el script en primer plano entre sus archivos</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Open &amp;Behind the Script in Front</source>
        <translation>Abrir &amp;detrás del script en primer plano</translation>
    </message>
    <message>
        <source>Show &amp;Only This Folder</source>
        <translation>Mostrar &amp;solo esta carpeta</translation>
    </message>
    <message>
        <source>&amp;New Script Here</source>
        <translation>&amp;Nuevo script aquí</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Copiar ruta</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>Abrir la carpeta con&amp;tenedora</translation>
    </message>
</context>
<context>
    <name>GoToDialog</name>
    <message>
        <source>Go to Line</source>
        <translation>Ir a la línea</translation>
    </message>
    <message>
        <source>From 1 to %1, or line:column</source>
        <translation>De 1 a %1, o línea:columna</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Línea</translation>
    </message>
    <message>
        <source>“%1” is no place here: a number from 1 to %2 is expected, or line:column.</source>
        <translation>«%1» no es un lugar de este texto: se espera un número de 1 a %2, o línea:columna.</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Part of a command or of a key</source>
        <translation>Parte de una orden o de un atajo</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Commands and keys</source>
        <translation>Órdenes y atajos</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>Tecla nueva</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>Pulse una tecla</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>Ca&amp;mbiar...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>R&amp;eset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>Reset &amp;All...</source>
        <translation>Restablecer &amp;todo...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Changed. It comes without a key.</source>
        <translation>Cambiado. Originalmente sin tecla.</translation>
    </message>
    <message>
        <source>Changed. It comes with %1.</source>
        <translation>Cambiado. Originalmente %1.</translation>
    </message>
    <message>
        <source>No command has these words in its name or its keys.</source>
        <translation>Ningún comando tiene estas palabras en su nombre o en sus teclas.</translation>
    </message>
    <message>
        <source>%1 is the key of no command.</source>
        <translation>%1 no es la tecla de ningún comando.</translation>
    </message>
    <message>
        <source>Press the key for “%1”. Escape leaves it as it is.</source>
        <translation>Pulse la tecla para «%1». Escape lo deja como está.</translation>
    </message>
    <message>
        <source>%1 alone is for writing and for moving about. Take it with Ctrl or Alt, or take a function key.</source>
        <translation>%1 sola sirve para escribir y moverse. Úsela con Ctrl o Alt, o use una tecla de función.</translation>
    </message>
    <message>
        <source>%1 opens the menu “%2”.</source>
        <translation>%1 abre el menú «%2».</translation>
    </message>
    <message>
        <source>%1 presses the button “%2” of the window.</source>
        <translation>%1 pulsa el botón «%2» de la ventana.</translation>
    </message>
    <message>
        <source>%1 is the key of “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 es la tecla de «%2». ¿Desea pasarla a «%3»?</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Mover</translation>
    </message>
    <message>
        <source>Do you want to give all commands their first keys again?</source>
        <translation>¿Desea devolver a todos los comandos sus teclas originales?</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>The keys could not be written to the settings. They are as shown until the workbench ends.</source>
        <translation>No se pudieron escribir las teclas en la configuración. Valen hasta que termine la aplicación.</translation>
    </message>
    <message>
        <source>%1 is a key of the text, for “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 es una tecla del texto, para «%2». ¿Quiere pasarla a «%3»?</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lenguaje</translation>
    </message>
    <message>
        <source>Use for Ne&amp;w Scripts</source>
        <translation>&amp;Usar para scripts nuevos</translation>
    </message>
</context>
<context>
    <name>LineEndWatch</name>
    <message>
        <source>Mixed</source>
        <translation>Mixtos</translation>
    </message>
</context>
<context>
    <name>MacroCommands</name>
    <message>
        <source>Macros (*.znmacro)</source>
        <translation>Macros (*.znmacro)</translation>
    </message>
    <message>
        <source>The macro was not saved to %1. %2</source>
        <translation>La macro no se guardó en %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>No se puede leer %1. %2</translation>
    </message>
    <message>
        <source>%1 is not a macro.</source>
        <translation>%1 no es una macro.</translation>
    </message>
    <message>
        <source>%1 is not a macro that can be played: line %2 is no command that is recorded.</source>
        <translation>%1 no es una macro que se pueda reproducir: la línea %2 no es una orden que se grabe.</translation>
    </message>
    <message>
        <source>Macro loaded: %1</source>
        <translation>Macro cargada: %1</translation>
    </message>
    <message>
        <source>Macro loaded: %1. %2 plays it.</source>
        <translation>Macro cargada: %1. %2 la reproduce.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>%1 could not be written to the settings; the disk may be full. It holds until the workbench ends.</source>
        <translation>%1 no se pudo escribir en los ajustes; quizá el disco esté lleno. Vale hasta que termine el programa.</translation>
    </message>
    <message>
        <source>There is no “%1”.</source>
        <translation>No existe «%1».</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Crear</translation>
    </message>
    <message>
        <source>“%1” cannot be created: %2</source>
        <translation>No se puede crear «%1»: %2</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>What you chose</source>
        <translation>Lo que ha elegido</translation>
    </message>
    <message>
        <source>The choice about autosave</source>
        <translation>La elección sobre el guardado automático</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Arc&amp;hivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>E&amp;ditar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>Herram&amp;ientas</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Open &amp;with Encoding...</source>
        <translation>Abrir con codi&amp;ficación...</translation>
    </message>
    <message>
        <source>Open a&amp;t Caret</source>
        <translation>Abrir el archiv&amp;o del cursor</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>G&amp;uardar como...</translation>
    </message>
    <message>
        <source>Save A&amp;ll</source>
        <translation>Guardar &amp;todo</translation>
    </message>
    <message>
        <source>Reloa&amp;d</source>
        <translation>&amp;Recargar</translation>
    </message>
    <message>
        <source>Read Onl&amp;y</source>
        <translation>Solo &amp;lectura</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Print Pre&amp;view...</source>
        <translation>&amp;Vista previa de impresión...</translation>
    </message>
    <message>
        <source>Save as PD&amp;F...</source>
        <translation>Guardar como &amp;PDF...</translation>
    </message>
    <message>
        <source>Save as &amp;HTML...</source>
        <translation>Guar&amp;dar como HTML...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Reopen Closed Ta&amp;b</source>
        <translation>R&amp;eabrir pestaña cerrada</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>C&amp;ortar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy wit&amp;h Colours</source>
        <translation>Copi&amp;ar con colores</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccio&amp;nar todo</translation>
    </message>
    <message>
        <source>Function Arguments</source>
        <translation>Argumentos de la función</translation>
    </message>
    <message>
        <source>Insert Template...</source>
        <translation>Insertar plantilla...</translation>
    </message>
    <message>
        <source>Find with a &amp;Dialog...</source>
        <translation>D&amp;iálogo de búsqueda...</translation>
    </message>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>Ir a la lí&amp;nea...</translation>
    </message>
    <message>
        <source>Go to S&amp;ymbol...</source>
        <translation>Ir &amp;al símbolo...</translation>
    </message>
    <message>
        <source>&amp;Stop Search</source>
        <translation>Detener la bús&amp;queda</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Acercar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>A&amp;lejar</translation>
    </message>
    <message>
        <source>Line &amp;Ends</source>
        <translation>&amp;Fines de línea</translation>
    </message>
    <message>
        <source>Wrap &amp;Lines</source>
        <translation>A&amp;justar líneas</translation>
    </message>
    <message>
        <source>Split &amp;Above and Below</source>
        <translation>Dividir arriba &amp;y abajo</translation>
    </message>
    <message>
        <source>Ot&amp;her Pane</source>
        <translation>&amp;Otro panel</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>Área &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Expanded Script</source>
        <translation>&amp;Script expandido</translation>
    </message>
    <message>
        <source>&amp;Record Macro</source>
        <translation>&amp;Grabar macro</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>Re&amp;producir macro</translation>
    </message>
    <message>
        <source>Repea&amp;t Macro...</source>
        <translation>R&amp;epetir macro...</translation>
    </message>
    <message>
        <source>&amp;Save Macro...</source>
        <translation>Guardar &amp;macro...</translation>
    </message>
    <message>
        <source>&amp;Load Macro...</source>
        <translation>&amp;Cargar macro...</translation>
    </message>
    <message>
        <source>Edit Te&amp;mplates</source>
        <translation>E&amp;ditar plantillas</translation>
    </message>
    <message>
        <source>&amp;Commands...</source>
        <translation>Ó&amp;rdenes...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Opciones...</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>Preferencias del editor &amp;y de los lenguajes...</translation>
    </message>
    <message>
        <source>&amp;Autosave...</source>
        <translation>Guardado &amp;automático...</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>Atajos &amp;de teclado</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>What was open last cannot be read. </source>
        <translation>No se puede leer lo que estaba abierto la última vez. </translation>
    </message>
    <message>
        <source>It is not kept this time, so that “%1” stays as it is.</source>
        <translation>Esta vez no se guarda la sesión, para que «%1» quede como está.</translation>
    </message>
    <message>
        <source>It is in “%1” now.</source>
        <translation>Ahora está en «%1».</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed: no tables, views, procedures, and so on.</source>
        <translation>El script no crea nada que se pueda enumerar: ni tablas, ni vistas, ni procedimientos, etc.</translation>
    </message>
    <message>
        <source>There is no outline for %1. The field with the language in the status bar changes it.</source>
        <translation>No hay esquema para %1. El campo del lenguaje en la barra de estado permite cambiarlo.</translation>
    </message>
    <message numerus="yes">
        <source>   %n matches</source>
        <translation>
            <numerusform>   %n coincidencia</numerusform>
            <numerusform>   %n coincidencias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>   %n matches and more</source>
        <translation>
            <numerusform>   %n coincidencia y más</numerusform>
            <numerusform>   %n coincidencias y más</numerusform>
        </translation>
    </message>
    <message>
        <source>Find Results</source>
        <translation>Resultados de la búsqueda</translation>
    </message>
    <message>
        <source>Find Results 2</source>
        <translation>Resultados de la búsqueda 2</translation>
    </message>
    <message>
        <source>R&amp;eplace with a Dialog...</source>
        <translation>Diál&amp;ogo de reemplazo...</translation>
    </message>
    <message>
        <source>Find in F&amp;iles...</source>
        <translation>Buscar &amp;en archivos...</translation>
    </message>
    <message>
        <source>Ne&amp;xt Result</source>
        <translation>Resultado si&amp;guiente</translation>
    </message>
    <message>
        <source>Previous Resul&amp;t</source>
        <translation>Resultado &amp;previo</translation>
    </message>
    <message>
        <source>&amp;Go to Script...</source>
        <translation>Ir al scrip&amp;t...</translation>
    </message>
    <message>
        <source>Las&amp;t Used Script</source>
        <translation>Último script &amp;usado</translation>
    </message>
    <message>
        <source>Longest Unused Script</source>
        <translation>Script con más tiempo sin usar</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>B&amp;uscar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>Detener la &amp;grabación</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>The caret was nowhere else before.</source>
        <translation>El cursor no ha estado antes en otro sitio.</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>&amp;Mapa del documento</translation>
    </message>
    <message>
        <source>Open Fold&amp;er...</source>
        <translation>A&amp;brir carpeta...</translation>
    </message>
    <message>
        <source>Split Side b&amp;y Side</source>
        <translation>&amp;Dividir lado a lado</translation>
    </message>
    <message>
        <source>O&amp;utline</source>
        <translation>Es&amp;quema</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>Ca&amp;rpeta</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>&amp;Barra de herramientas</translation>
    </message>
    <message>
        <source>Complete Word</source>
        <translation>Completar palabra</translation>
    </message>
    <message>
        <source>&amp;Reset Zoom</source>
        <translation>Restablecer &amp;zoom</translation>
    </message>
    <message>
        <source>&amp;Whitespace</source>
        <translation>&amp;Espacios en blanco</translation>
    </message>
    <message>
        <source>Previous Pane</source>
        <translation>Panel anterior</translation>
    </message>
    <message>
        <source>New &amp;View</source>
        <translation>&amp;Vista nueva</translation>
    </message>
    <message>
        <source>Next Problem</source>
        <translation>Problema siguiente</translation>
    </message>
    <message>
        <source>Previous Problem</source>
        <translation>Problema anterior</translation>
    </message>
    <message>
        <source>Next Script</source>
        <translation>Script siguiente</translation>
    </message>
    <message>
        <source>Previous Script</source>
        <translation>Script anterior</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>&amp;Problemas</translation>
    </message>
    <message>
        <source>E&amp;xpanded Script</source>
        <translation>Script e&amp;xpandido</translation>
    </message>
    <message>
        <source>Find Re&amp;sults</source>
        <translation>Resultados de la búsqueda (&amp;K)</translation>
    </message>
    <message>
        <source>Find Results &amp;2</source>
        <translation>Resultados de la búsqueda &amp;2</translation>
    </message>
</context>
<context>
    <name>OpenAsDialog</name>
    <message>
        <source>Open with Encoding</source>
        <translation>Abrir con codificación</translation>
    </message>
    <message>
        <source>SQL scripts (%1)</source>
        <translation>Scripts SQL (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>Detectar</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Codificación:</translation>
    </message>
</context>
<context>
    <name>OpenGuard</name>
    <message>
        <source>The workbench ended unexpectedly while it was opening “%1”. Open the file again?</source>
        <translation>El programa terminó de forma inesperada mientras abría «%1». ¿Abrir de nuevo el archivo?</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Insert &amp;blanks for Tab</source>
        <translation>Insertar &amp;espacios en vez de tabulador</translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation>&amp;Números de línea</translation>
    </message>
    <message>
        <source>F&amp;old margin</source>
        <translation>&amp;Margen de plegado</translation>
    </message>
    <message>
        <source>Enter &amp;continues a comment</source>
        <translation>Intro &amp;continúa un comentario</translation>
    </message>
    <message>
        <source>T&amp;yped quotes and brackets surround the selection</source>
        <translation>Comillas &amp;y paréntesis escritos rodean la selección</translation>
    </message>
    <message>
        <source>&amp;Print in colours</source>
        <translation>&amp;Imprimir en color</translation>
    </message>
    <message>
        <source>Print the &amp;grounds of colours</source>
        <translation>Imprimir &amp;los colores de fondo</translation>
    </message>
    <message>
        <source>Print in a font of its o&amp;wn</source>
        <translation>Imprimir con una fuente &amp;propia</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>As the line above</source>
        <translation>Como la línea anterior</translation>
    </message>
    <message>
        <source>By the language</source>
        <translation>Según el lenguaje</translation>
    </message>
    <message>
        <source>Folders, with ; between them</source>
        <translation>Carpetas, separadas por ;</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>&amp;Fuente</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Tamaño</translation>
    </message>
    <message>
        <source>&amp;Tab width, in columns</source>
        <translation>&amp;Ancho del tabulador, en columnas</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>&amp;Sangría de líneas nuevas</translation>
    </message>
    <message>
        <source>Folders of i&amp;ncluded files</source>
        <translation>Ca&amp;rpetas de archivos incluidos</translation>
    </message>
    <message>
        <source>P&amp;rint font</source>
        <translation>F&amp;uente de impresión</translation>
    </message>
    <message>
        <source>Print si&amp;ze</source>
        <translation>Tamaño &amp;de impresión</translation>
    </message>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 con BOM</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE con BOM</translation>
    </message>
    <message>
        <source>Of new scripts, and of files that do not tell theirs by a mark or by what stands in them</source>
        <translation>De los scripts nuevos y de los archivos que no la indican con una marca ni con su contenido</translation>
    </message>
    <message>
        <source>&amp;Encoding without a mark</source>
        <translation>C&amp;odificación sin marca</translation>
    </message>
    <message>
        <source>Close brackets and &amp;quotes</source>
        <translation>Cerrar corc&amp;hetes, paréntesis y comillas</translation>
    </message>
    <message>
        <source>Print na&amp;me, page numbers and date</source>
        <translation>Imprimir nom&amp;bre, números de página y fecha</translation>
    </message>
    <message>
        <source>None of Unicode: as below</source>
        <translation>Ninguna de Unicode: como abajo</translation>
    </message>
    <message>
        <source>What a file is read as that has no mark and is not UTF-8. One that looks wrong can be opened with another: click its encoding in the status bar.</source>
        <translation>Cómo se lee un archivo que no tiene marca y no es UTF-8. Uno que se ve mal puede abrirse con otra: haga clic en su codificación en la barra de estado.</translation>
    </message>
    <message>
        <source>Files that are no &amp;Unicode</source>
        <translation>Archivos &amp;que no son Unicode</translation>
    </message>
    <message>
        <source>By the language: as the line above, and a step further in behind {, ) and : alone, which is for languages with braces. With &quot;Close brackets and quotes&quot; what brackets hold is a step further in either way.</source>
        <translation>Según el lenguaje: como la línea de arriba, y un paso más adentro solo después de {, ) y :, lo que es para lenguajes con llaves. Con «Cerrar corchetes, paréntesis y comillas», lo que contienen los corchetes va un paso más adentro en ambos casos.</translation>
    </message>
    <message>
        <source>There is no font “%1”.</source>
        <translation>No hay ninguna fuente «%1».</translation>
    </message>
</context>
<context>
    <name>OutlinePane</name>
    <message>
        <source>Outline</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Parte de un nombre</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Outline of the script</source>
        <translation>Esquema del script</translation>
    </message>
</context>
<context>
    <name>PaneTabs</name>
    <message>
        <source>Panes</source>
        <translation>Paneles</translation>
    </message>
</context>
<context>
    <name>PathField</name>
    <message>
        <source>Path of the script</source>
        <translation>Ruta del script</translation>
    </message>
</context>
<context>
    <name>ProblemPane</name>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Problems of the script</source>
        <translation>Problemas del script</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
</context>
<context>
    <name>Prompts</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql *.pks *.pkb *.ddl);;All files (*)</source>
        <translation>Scripts SQL (*.sql *.pks *.pkb *.ddl);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation>«%1» tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>They are lost if you discard them.</source>
        <translation>Si los descarta, se perderán.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as &amp;UTF-8</source>
        <translation>Guardar &amp;como UTF-8</translation>
    </message>
    <message>
        <source>Save with &amp;Question Marks</source>
        <translation>Guardar con &amp;signos de interrogación</translation>
    </message>
    <message>
        <source>“%1” is there already.</source>
        <translation>«%1» ya existe.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Sobrescribir</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Co&amp;mpare...</source>
        <translation>Co&amp;mparar...</translation>
    </message>
</context>
<context>
    <name>ReadLoss</name>
    <message>
        <source>The file itself is as it was, and stays so until it is saved.</source>
        <translation>El archivo en sí está como estaba, y así sigue hasta que se guarde.</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: byte %L2 of the file is a NUL, which no text has.</source>
        <translation>Solo se muestra la primera parte de «%1»: el byte %L2 del archivo es un NUL, que ningún texto tiene.</translation>
    </message>
    <message>
        <source>File &gt; Open with Encoding reads it in another encoding.</source>
        <translation>Archivo &gt; Abrir con codificación lo lee con otra codificación.</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: what follows is no text in %2, or cannot be read.</source>
        <translation>Solo se muestra la primera parte de «%1»: lo que sigue no es texto en %2 o no se puede leer.</translation>
    </message>
    <message>
        <source>“%1” has bytes that are no %2: %L3, the first in line %L4. They are shown as “%5”.</source>
        <translation>«%1» tiene bytes que no son %2: %L3, el primero en la línea %L4. Se muestran como «%5».</translation>
    </message>
    <message>
        <source>Only the first part of “%1” could be read. Saving it under its own name loses the rest of the file.</source>
        <translation>Solo se pudo leer la primera parte de «%1». Al guardarlo con su mismo nombre se pierde el resto del archivo.</translation>
    </message>
    <message>
        <source>“%1” was read as %2 and has bytes that are none: %L3. Saving it under its own name puts “%4” in their place for good.</source>
        <translation>«%1» se leyó como %2 y tiene bytes que no lo son: %L3. Al guardarlo con su propio nombre, «%4» ocupa su lugar para siempre.</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>The clipboard holds no text.</source>
        <translation>El portapapeles no contiene texto.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>No hay nada que guardar.</translation>
    </message>
    <message>
        <source>The script has no file yet.</source>
        <translation>El script aún no tiene archivo.</translation>
    </message>
    <message>
        <source>There is nothing to find: the find bar is empty.</source>
        <translation>No hay nada que buscar: la barra de búsqueda está vacía.</translation>
    </message>
    <message>
        <source>No other script is open.</source>
        <translation>No hay otro script abierto.</translation>
    </message>
    <message>
        <source>No tab was closed.</source>
        <translation>No se ha cerrado ninguna pestaña.</translation>
    </message>
    <message>
        <source>The script is not split.</source>
        <translation>El script no está dividido.</translation>
    </message>
    <message>
        <source>No script is open.</source>
        <translation>No hay ningún script abierto.</translation>
    </message>
    <message>
        <source>The script is read-only.</source>
        <translation>El script es de solo lectura.</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>No hay nada seleccionado.</translation>
    </message>
    <message>
        <source>The script has nothing here to do this with.</source>
        <translation>El script no tiene aquí nada con qué hacerlo.</translation>
    </message>
    <message>
        <source>Convert Line Ends to</source>
        <translation>Convertir los finales de línea a</translation>
    </message>
    <message>
        <source>There was no step back.</source>
        <translation>No ha habido ningún paso atrás.</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>“%1” is not there any more. It may have been moved, renamed or deleted, or its drive may be away. Remove it from the list of recent files?</source>
        <translation>«%1» ya no está. Quizá se haya movido, renombrado o eliminado, o falte su unidad. ¿Quitarlo de la lista de archivos recientes?</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Recent Files</source>
        <translation>Arc&amp;hivos recientes</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Aún no hay archivos</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
    <message>
        <source>The list could not be cleared: the settings cannot be written.</source>
        <translation>No se pudo vaciar la lista: no se pueden escribir los ajustes.</translation>
    </message>
</context>
<context>
    <name>RecoverableCopy</name>
    <message>
        <source>just now</source>
        <translation>ahora mismo</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>hace 1 minuto</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>hace %n minuto</numerusform>
            <numerusform>hace %n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation>hace 1 hora</translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>hace %n hora</numerusform>
            <numerusform>hace %n horas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day ago</source>
        <translation>hace 1 día</translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>hace %n día</numerusform>
            <numerusform>hace %n días</numerusform>
        </translation>
    </message>
    <message>
        <source>Not changed since</source>
        <translation>Sin cambios desde entonces</translation>
    </message>
    <message>
        <source>Changed since</source>
        <translation>Cambiado desde entonces</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>No se puede leer</translation>
    </message>
    <message>
        <source>Never saved</source>
        <translation>Nunca guardado</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>Decide Later</source>
        <translation>Decidir después</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>D&amp;ecidir después</translation>
    </message>
    <message>
        <source>Recover Scripts</source>
        <translation>Recuperar scripts</translation>
    </message>
    <message>
        <source>The workbench ended unexpectedly. These scripts had changes that were not saved:</source>
        <translation>El programa terminó de forma inesperada. Estos scripts tenían cambios sin guardar:</translation>
    </message>
    <message>
        <source>Scripts that can be recovered</source>
        <translation>Scripts que se pueden recuperar</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>File Is</source>
        <translation>Estado del archivo</translation>
    </message>
    <message>
        <source>What to Do</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>All scripts:</source>
        <translation>Todos los scripts:</translation>
    </message>
    <message>
        <source>%1 all scripts</source>
        <translation>Todos los scripts: %1</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>What to do with %1</source>
        <translation>Acción para %1</translation>
    </message>
    <message>
        <source>%1 and its copy are not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>%1 y su copia no se comparan: lo que no es texto, pasa de 8 MB o no se puede leer no se muestra.</translation>
    </message>
    <message>
        <source>The copy of %1:</source>
        <translation>La copia de %1:</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the copy alone.</source>
        <translation>%1: las líneas con - solo están en el archivo; las líneas con +, solo en la copia.</translation>
    </message>
    <message>
        <source>%1 and its copy differ in their encoding alone.</source>
        <translation>%1 y su copia solo difieren en la codificación.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
</context>
<context>
    <name>ResultsModel</name>
    <message>
        <source>Not searched or not replaced  (%1)</source>
        <translation>No explorados o no reemplazados  (%1)</translation>
    </message>
    <message>
        <source>%1%2: &quot;%3&quot; becomes &quot;%4&quot;</source>
        <translation>%1%2: «%3» pasa a «%4»</translation>
    </message>
    <message>
        <source>not open: is saved at once, no undo</source>
        <translation>no abierto: se guarda enseguida, no se puede deshacer</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>guardado</translation>
    </message>
    <message>
        <source>open, not saved</source>
        <translation>abierto, sin guardar</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>cerrado</translation>
    </message>
</context>
<context>
    <name>ResultsPane</name>
    <message>
        <source>no text</source>
        <translation>no es texto</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>no se pudo leer</translation>
    </message>
    <message>
        <source>a device or a pipe</source>
        <translation>un dispositivo o una tubería</translation>
    </message>
    <message>
        <source>a folder that has been searched already</source>
        <translation>una carpeta ya explorada</translation>
    </message>
    <message>
        <source>the expression went on for too long</source>
        <translation>la expresión tardó demasiado</translation>
    </message>
    <message>
        <source>Re&amp;place...</source>
        <translation>&amp;Reemplazar...</translation>
    </message>
    <message>
        <source>Replace &amp;with</source>
        <translation>Reemplazar &amp;por</translation>
    </message>
    <message>
        <source>What the matches are to become. Enter shows it for each of them</source>
        <translation>En qué se convierten las coincidencias. Intro lo muestra en cada una</translation>
    </message>
    <message>
        <source>Prev&amp;iew</source>
        <translation>Vis&amp;ta previa</translation>
    </message>
    <message>
        <source>&amp;Replace Checked</source>
        <translation>Reemplazar las &amp;marcadas</translation>
    </message>
    <message>
        <source>No search</source>
        <translation>Ninguna búsqueda</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos;: %Ln matches in %2 of %3 files</source>
        <translation>
            <numerusform>«%1»: %Ln coincidencia en %2 de %3 archivos</numerusform>
            <numerusform>«%1»: %Ln coincidencias en %2 de %3 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 not read</source>
        <translation>, %1 sin leer</translation>
    </message>
    <message>
        <source>, %1 skipped</source>
        <translation>, %1 omitidos</translation>
    </message>
    <message>
        <source>. The expression went on for too long in some of them</source>
        <translation>. La expresión tardó demasiado en algunos de ellos</translation>
    </message>
    <message>
        <source>. Stopped</source>
        <translation>. Detenido</translation>
    </message>
    <message>
        <source>Searching: %1</source>
        <translation>Buscando: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Replacing: %1 of %2 files</source>
        <translation>Reemplazando: %1 de %2 archivos</translation>
    </message>
    <message numerus="yes">
        <source>. %Ln files were left as they are, see the end of the list</source>
        <translation>
            <numerusform>. %Ln archivo quedó como estaba, vea el final de la lista</numerusform>
            <numerusform>. %Ln archivos quedaron como estaban, vea el final de la lista</numerusform>
        </translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Dete&amp;ner</translation>
    </message>
    <message>
        <source>1 file saved</source>
        <translation>1 archivo guardado</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files saved</source>
        <translation>
            <numerusform>%Ln archivo guardado</numerusform>
            <numerusform>%Ln archivos guardados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 open script changed, not saved</source>
        <translation>1 script abierto cambiado, sin guardar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln open scripts changed, not saved</source>
        <translation>
            <numerusform>%Ln script abierto cambiado, sin guardar</numerusform>
            <numerusform>%Ln scripts abiertos cambiados, sin guardar</numerusform>
        </translation>
    </message>
    <message>
        <source>1 match replaced</source>
        <translation>1 coincidencia reemplazada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln matches replaced</source>
        <translation>
            <numerusform>%Ln coincidencia reemplazada</numerusform>
            <numerusform>%Ln coincidencias reemplazadas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RichCopy</name>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>No se pudo escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>SaveAsDialog</name>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql)</source>
        <translation>Scripts SQL (*.sql)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Codificación:</translation>
    </message>
</context>
<context>
    <name>SchemeMenu</name>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Colores</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Co&amp;mo el escritorio</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>C&amp;laro</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>&amp;High Contrast</source>
        <translation>&amp;Alto contraste</translation>
    </message>
    <message>
        <source>As on &amp;Paper</source>
        <translation>Como &amp;en papel</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>the picture “%1” cannot be written.</source>
        <translation>No se puede escribir la imagen «%1».</translation>
    </message>
</context>
<context>
    <name>ScriptChecker</name>
    <message>
        <source>Scripts in %1 are not checked: there is no parser for it here.</source>
        <translation>Los scripts en %1 no se comprueban: aquí no hay analizador para ellos.</translation>
    </message>
    <message>
        <source>The script is too long to be checked.</source>
        <translation>El script es demasiado largo para comprobarlo.</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>No se encontraron problemas.</translation>
    </message>
    <message>
        <source>Scripts in SQL are not checked. Choose PostgreSQL or SQLite in the Language menu to have this one checked.</source>
        <translation>Los scripts en SQL no se comprueban. Para comprobar este, elija PostgreSQL o SQLite en el menú Lenguaje.</translation>
    </message>
</context>
<context>
    <name>ScriptCommands</name>
    <message>
        <source>This language has no file of templates.</source>
        <translation>Este lenguaje no tiene archivo de plantillas.</translation>
    </message>
    <message>
        <source>No file name and no address stands at the caret.</source>
        <translation>En el cursor no hay ni un nombre de archivo ni una dirección.</translation>
    </message>
    <message>
        <source>Nothing opens %1.</source>
        <translation>Nada abre %1.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>No existe el archivo %1.</translation>
    </message>
    <message>
        <source>Open &amp;Document</source>
        <translation>Abrir doc&amp;umento</translation>
    </message>
    <message>
        <source>“%1” was written: 1 page</source>
        <translation>Se ha escrito «%1»: 1 página</translation>
    </message>
    <message>
        <source>“%1” was written: %L2 pages</source>
        <translation>Se ha escrito «%1»: %L2 páginas</translation>
    </message>
    <message>
        <source>“%1” was written</source>
        <translation>Se ha escrito «%1»</translation>
    </message>
</context>
<context>
    <name>ScriptDoc</name>
    <message>
        <source>“%1” has a name that is not UTF-8, which cannot be opened. Rename the file.</source>
        <translation>«%1» tiene un nombre que no es UTF-8 y no se puede abrir. Cambie el nombre del archivo.</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>«%1» no existe.</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a script.</source>
        <translation>«%1» es una carpeta, no un script.</translation>
    </message>
    <message>
        <source>“%1” cannot be read. Check that you may read it.</source>
        <translation>No se puede leer «%1». Compruebe que tiene permiso para leerlo.</translation>
    </message>
    <message>
        <source>The disk may be full.</source>
        <translation>Quizá el disco esté lleno.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <translation>Una carpeta tiene ese nombre.</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>No tiene permiso para escribir ahí.</translation>
    </message>
    <message>
        <source>“%1” could not be saved. %2 The text is still here: use Save As to put it in another place.</source>
        <translation>No se pudo guardar «%1». %2 El texto sigue aquí: llévelo a otro lugar con «Guardar como».</translation>
    </message>
    <message>
        <source>The copy of “%1” cannot be read, or another window of the workbench has it by now. It is still there: “%2”.</source>
        <translation>La copia de «%1» no se puede leer, o ya la tiene otra ventana del programa. Sigue ahí: «%2».</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>¿Desea recargar «%1»?</translation>
    </message>
    <message>
        <source>“%1” is open in another tab. Close it first, or choose another name.</source>
        <translation>«%1» está abierto en otra pestaña. Ciérrelo primero, o elija otro nombre.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Sobrescribir</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench since it was read. Saving it replaces those changes.</source>
        <translation>«%1» se ha modificado fuera del programa desde que se leyó. Al guardarlo se reemplazan esos cambios.</translation>
    </message>
    <message>
        <source>Your changes that are not saved are lost.</source>
        <translation>Se pierden los cambios que no ha guardado.</translation>
    </message>
    <message>
        <source>%1: %2, as other files of this folder</source>
        <translation>%1: %2, como otros archivos de esta carpeta</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench. If it is read again, your changes that are not saved are lost.</source>
        <translation>«%1» se ha modificado fuera del programa. Si se vuelve a leer, se pierden sus cambios sin guardar.</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>&amp;Volver a leer</translation>
    </message>
    <message>
        <source>No copy of “%1” could be written in case of a crash: the disk may be full. Save it.</source>
        <translation>No se pudo escribir una copia de «%1» por si el programa termina mal: quizá el disco esté lleno. Guárdelo.</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. Save As makes a copy that you can change.</source>
        <translation>«%1» es de solo lectura y no se ha cambiado nada. «Guardar como» crea una copia que puede cambiar.</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. File &gt; Read Only ends that.</source>
        <translation>«%1» es de solo lectura y no se ha cambiado nada. Archivo &gt; Solo lectura lo desactiva.</translation>
    </message>
</context>
<context>
    <name>ScriptFrame</name>
    <message>
        <source> (Read Only)</source>
        <translation> (Solo lectura)</translation>
    </message>
</context>
<context>
    <name>ScriptPrinting</name>
    <message>
        <source>Finding page %1</source>
        <translation>Buscando la página %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
</context>
<context>
    <name>ScriptTabs</name>
    <message>
        <source>List of tabs</source>
        <translation>Lista de pestañas</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, modificado</translation>
    </message>
</context>
<context>
    <name>ScriptView</name>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Line %L1 is very long: behind column %L2 its text is drawn coarsely</source>
        <translation>La línea %L1 es muy larga: a partir de la columna %L2 su texto se dibuja sin detalle</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Línea %1, columna %2</translation>
    </message>
    <message>
        <source> (%1 selected)</source>
        <translation> (%1 seleccionados)</translation>
    </message>
</context>
<context>
    <name>StatusIndicators</name>
    <message>
        <source>A macro is recorded; stop it</source>
        <translation>Se está grabando una macro; detenerla</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Whether the script can be changed</source>
        <translation>Si el script se puede modificar</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Go to a line</source>
        <translation>Ir a una línea</translation>
    </message>
    <message>
        <source>The database in force at the caret</source>
        <translation>La base de datos vigente en el cursor</translation>
    </message>
    <message>
        <source>The language of the script</source>
        <translation>El lenguaje del script</translation>
    </message>
    <message>
        <source>Open with another encoding</source>
        <translation>Abrir con otra codificación</translation>
    </message>
    <message>
        <source>Convert line ends</source>
        <translation>Convertir los fines de línea</translation>
    </message>
    <message>
        <source>Indentation</source>
        <translation>Sangría</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Whether typing replaces</source>
        <translation>Si lo escrito sobrescribe</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>GRB</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Línea %1, columna %2</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>Espacios: %1</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>SOB</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>INS</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemas: %1</translation>
    </message>
    <message>
        <source>What is wrong with the script</source>
        <translation>Lo que está mal en el script</translation>
    </message>
</context>
<context>
    <name>SymbolModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
</context>
<context>
    <name>SymbolPicker</name>
    <message>
        <source>Go to Symbol</source>
        <translation>Ir al símbolo</translation>
    </message>
    <message>
        <source>Type part of a name</source>
        <translation>Escriba parte de un nombre</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Símbolo</translation>
    </message>
    <message>
        <source>Symbols of the script</source>
        <translation>Símbolos del script</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed</source>
        <translation>El script no crea nada que se pueda mostrar</translation>
    </message>
    <message>
        <source>Nothing that the script creates has this name</source>
        <translation>Nada de lo que crea el script tiene este nombre</translation>
    </message>
</context>
<context>
    <name>Symbols</name>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>Procedimiento</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Función</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Disparador</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Secuencia</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquete</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
</context>
<context>
    <name>TabList</name>
    <message>
        <source>Scripts</source>
        <translation>Scripts</translation>
    </message>
    <message>
        <source>Type part of a name</source>
        <translation>Escriba parte de un nombre</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>%1, in front</source>
        <translation>%1, en primer plano</translation>
    </message>
    <message>
        <source>No script has this in its name</source>
        <translation>Ningún script tiene esto en su nombre</translation>
    </message>
</context>
<context>
    <name>TabMenu</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Close &amp;Others</source>
        <translation>Cerrar &amp;las demás</translation>
    </message>
    <message>
        <source>Close to the &amp;Right</source>
        <translation>Cerrar las de la &amp;derecha</translation>
    </message>
    <message>
        <source>Close &amp;All</source>
        <translation>Cerrar &amp;todas</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>Copiar &amp;ruta</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>&amp;Abrir la carpeta contenedora</translation>
    </message>
</context>
<context>
    <name>TabWalk</name>
    <message>
        <source>Scripts by last use</source>
        <translation>Scripts por último uso</translation>
    </message>
</context>
<context>
    <name>TemplateForm</name>
    <message>
        <source>Insert Template</source>
        <translation>Insertar plantilla</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertar</translation>
    </message>
</context>
<context>
    <name>TemplateList</name>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>Type the name of a template, or first letters of it</source>
        <translation>Escriba el nombre de una plantilla, o sus primeras letras</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Text of the template</source>
        <translation>Texto de la plantilla</translation>
    </message>
</context>
<context>
    <name>TextKeys</name>
    <message>
        <source>Word Left</source>
        <translation>Palabra a la izquierda</translation>
    </message>
    <message>
        <source>Word Right</source>
        <translation>Palabra a la derecha</translation>
    </message>
    <message>
        <source>Select Word Left</source>
        <translation>Seleccionar palabra a la izquierda</translation>
    </message>
    <message>
        <source>Select Word Right</source>
        <translation>Seleccionar palabra a la derecha</translation>
    </message>
    <message>
        <source>Start of the Text</source>
        <translation>Principio del texto</translation>
    </message>
    <message>
        <source>End of the Text</source>
        <translation>Final del texto</translation>
    </message>
    <message>
        <source>Select to the Start of the Text</source>
        <translation>Seleccionar hasta el principio del texto</translation>
    </message>
    <message>
        <source>Select to the End of the Text</source>
        <translation>Seleccionar hasta el final del texto</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>Desplazar hacia abajo</translation>
    </message>
    <message>
        <source>Delete Word Left</source>
        <translation>Eliminar palabra a la izquierda</translation>
    </message>
    <message>
        <source>Delete Word Right</source>
        <translation>Eliminar palabra a la derecha</translation>
    </message>
    <message>
        <source>Delete to the Start of the Line</source>
        <translation>Eliminar hasta el principio de la línea</translation>
    </message>
    <message>
        <source>Delete to the End of the Line</source>
        <translation>Eliminar hasta el final de la línea</translation>
    </message>
    <message>
        <source>Select Columns</source>
        <translation>Seleccionar columnas</translation>
    </message>
    <message>
        <source>Delete Line</source>
        <translation>Eliminar línea</translation>
    </message>
    <message>
        <source>Swap with the Line Above</source>
        <translation>Intercambiar con la línea de arriba</translation>
    </message>
    <message>
        <source>Paragraph Up</source>
        <translation>Párrafo arriba</translation>
    </message>
    <message>
        <source>Select Paragraph Up</source>
        <translation>Seleccionar párrafo hacia arriba</translation>
    </message>
    <message>
        <source>Start of the Row</source>
        <translation>Principio de la fila</translation>
    </message>
    <message>
        <source>End of the Row</source>
        <translation>Final de la fila</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
</context>
<context>
    <name>UnsavedDialog</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>These scripts have changes that are not saved. Those without a tick lose them.</source>
        <translation>Estos scripts tienen cambios sin guardar. Los que no estén marcados los perderán.</translation>
    </message>
    <message>
        <source>Scripts to save</source>
        <translation>Scripts que se guardan</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Discard All</source>
        <translation>&amp;Descartar todo</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>%1: %2 changes</source>
        <translation>%1: %2 cambios</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql)</source>
        <translation>Scripts SQL (*.sql)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>%1 was read anew: it is %2</source>
        <translation>%1 se ha vuelto a leer: es %2</translation>
    </message>
</context>
<context>
    <name>WorkbenchPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>The changes are in force for now, but these files could not be written:

%1

Apply again once they can be, or Cancel to give the changes up.</source>
        <translation>Los cambios tienen efecto por ahora, pero no se pudieron escribir estos archivos:

%1

Aplique de nuevo cuando sea posible, o cancele para renunciar a los cambios.</translation>
    </message>
    <message>
        <source>The tree has a page for what all languages share, and pages for each language. Type over the tree to find one.

Apply writes the changes and shows them in the open scripts; Cancel does not take back what was applied.

A colour that is &quot;Default&quot; follows the scheme of the View menu. What is set here for a language comes before the Options of all editors.</source>
        <translation>El árbol tiene una página para lo que comparten todos los lenguajes y páginas para cada lenguaje. Escriba sobre el árbol para encontrar una.

Aplicar escribe los cambios y los muestra en los scripts abiertos; Cancelar no deshace lo que se aplicó.

Un color «Predeterminado» sigue el esquema del menú Ver. Lo que se ajusta aquí para un lenguaje prevalece sobre las opciones de todos los editores.</translation>
    </message>
</context>
<context>
    <name>WorkbenchPrinter</name>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The editing engine cannot be loaded: libZNBaseEditor.so has to stand beside libZNCoreEditor.so, or in the folder ZNCoreEditor there.</source>
        <translation>No se puede cargar el motor de edición: libZNBaseEditor.so debe estar junto a libZNCoreEditor.so, o allí en la carpeta ZNCoreEditor.</translation>
    </message>
    <message>
        <source>The workbench that runs does not answer. This is a window beside it.</source>
        <translation>El programa en marcha no responde. Esta es una ventana aparte.</translation>
    </message>
</context>
</TS>
