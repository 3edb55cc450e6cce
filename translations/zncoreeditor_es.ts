<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CColorButton</name>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>More Colors...</source>
        <translation>Más colores...</translation>
    </message>
</context>
<context>
    <name>CDocTemplate</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
</context>
<context>
    <name>CFileException</name>
    <message>
        <source>%1 was not found.</source>
        <translation>No se encontró %1.</translation>
    </message>
    <message>
        <source>%1 is not a valid path.</source>
        <translation>%1 no es una ruta válida.</translation>
    </message>
    <message>
        <source>%1 could not be opened: too many files are open.</source>
        <translation>No se pudo abrir %1: hay demasiados archivos abiertos.</translation>
    </message>
    <message>
        <source>%1 cannot be accessed.</source>
        <translation>No se puede acceder a %1.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>Otro programa está usando %1.</translation>
    </message>
    <message>
        <source>The disk is full: %1.</source>
        <translation>El disco está lleno: %1.</translation>
    </message>
    <message>
        <source>An error occurred while accessing %1.</source>
        <translation>Se produjo un error al acceder a %1.</translation>
    </message>
</context>
<context>
    <name>CWinApp</name>
    <message>
        <source>%1 could not be opened.</source>
        <translation>No se pudo abrir %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation>No se pudo guardar %1.</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>¿Guardar los cambios de %1?</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorControlEx</name>
    <message>
        <source>Scripts (*.sql);;DDL Files (*.ddl);;Queries (*.qry);;Text Files (*.txt);;All Files (*)</source>
        <translation>Scripts (*.sql);;Archivos DDL (*.ddl);;Consultas (*.qry);;Archivos de texto (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Hide LineNumbers</source>
        <translation>Ocultar números de línea</translation>
    </message>
    <message>
        <source>Show LineNumbers</source>
        <translation>Mostrar números de línea</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>No se encontró el texto «%1».</translation>
    </message>
    <message>
        <source>Search has finished searching the whole document</source>
        <translation>Se ha recorrido todo el documento</translation>
    </message>
    <message>
        <source>Could not save as PDF</source>
        <translation>No se pudo guardar como PDF</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorDoc</name>
    <message>
        <source>&apos;%1&apos;
File has been deleted outside of this application!
Do you want to close this Document?</source>
        <translation>«%1»
¡El archivo se ha eliminado fuera de esta aplicación!
¿Desea cerrar este documento?</translation>
    </message>
    <message>
        <source>&apos;%1&apos;
File has been modified outside of this application!
Do you want to reload it?</source>
        <translation>«%1»
¡El archivo se ha modificado fuera de esta aplicación!
¿Desea recargarlo?</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>¿Desea recargar «%1»?</translation>
    </message>
    <message>
        <source>Do you want to set the file &apos;%1&apos; to read only too?</source>
        <translation>¿Desea poner también el archivo «%1» en solo lectura?</translation>
    </message>
    <message>
        <source> (Read Only)</source>
        <translation> (Solo lectura)</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorView</name>
    <message>
        <source>Incremental search failed: %1|</source>
        <translation>Búsqueda incremental sin resultado: %1|</translation>
    </message>
    <message>
        <source>Incremental search: %1|</source>
        <translation>Búsqueda incremental: %1|</translation>
    </message>
    <message>
        <source>Incremental search reverse: %1|</source>
        <translation>Búsqueda incremental hacia atrás: %1|</translation>
    </message>
    <message>
        <source>Enter Input Param</source>
        <translation>Introduzca un parámetro</translation>
    </message>
    <message>
        <source>CR + LF (Windows)</source>
        <translation>CR + LF (Windows)</translation>
    </message>
    <message>
        <source>CR (Macintosh)</source>
        <translation>CR (Macintosh)</translation>
    </message>
    <message>
        <source>LF (Unix)</source>
        <translation>LF (Unix)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Ln %1, Col %2</source>
        <translation>Lín %1, Col %2</translation>
    </message>
    <message>
        <source>Enter no of times to repeat</source>
        <translation>Número de repeticiones</translation>
    </message>
    <message>
        <source>Repeat Macro</source>
        <translation>Repetir macro</translation>
    </message>
    <message>
        <source>Stop Record	Ctrl+Shift+R</source>
        <translation>Detener grabación	Control+Mayúsculas+R</translation>
    </message>
    <message>
        <source>Record Macro	Ctrl+Shift+R</source>
        <translation>Grabar macro	Control+Mayúsculas+R</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>No se encontró el texto «%1».</translation>
    </message>
    <message>
        <source>Passed the end of the document</source>
        <translation>Se ha pasado el final del documento</translation>
    </message>
    <message>
        <source>Passed the start of the document</source>
        <translation>Se ha pasado el principio del documento</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>Ocultar %1</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Mostrar %1</translation>
    </message>
    <message>
        <source>LineNumbers</source>
        <translation>Números de línea</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>Margen de marcadores</translation>
    </message>
    <message>
        <source>Fold Margin</source>
        <translation>Margen de plegado</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>Espacios en blanco</translation>
    </message>
    <message>
        <source>EOL</source>
        <translation>Fines de línea</translation>
    </message>
    <message>
        <source>Repeating the macro</source>
        <translation>Repitiendo la macro</translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
</context>
<context>
    <name>ColorPref</name>
    <message>
        <source>St&amp;yles</source>
        <translation>&amp;Estilos</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Estilos</translation>
    </message>
    <message>
        <source>Foreground Color</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Color de fondo</translation>
    </message>
    <message>
        <source>Reset All Colors</source>
        <translation>Restablecer todos los colores</translation>
    </message>
    <message>
        <source>Sample Editor Area</source>
        <translation>Ejemplo del editor</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>Texto de ejemplo</translation>
    </message>
    <message>
        <source>Clearing color changes</source>
        <translation>Borrar los cambios de color</translation>
    </message>
    <message>
        <source>All of your color settings will be lost ! Are you sure ?</source>
        <translation>¡Se perderán todos sus ajustes de color! ¿Está seguro?</translation>
    </message>
</context>
<context>
    <name>ContextMenu</name>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>C&amp;opiar	Control+C</translation>
    </message>
    <message>
        <source>&amp;Select All	Ctrl+A</source>
        <translation>Seleccionar &amp;todo	Control+A</translation>
    </message>
    <message>
        <source>Match To&amp;ken	Ctrl+]</source>
        <translation>&amp;Paréntesis correspondiente	Control+]</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>Números de línea</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>Repeat Last Find</source>
        <translation>Repetir la búsqueda</translation>
    </message>
    <message>
        <source>&amp;Undo	Ctrl+Z</source>
        <translation>&amp;Deshacer	Control+Z</translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation>&amp;Rehacer	Control+Y</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>&amp;Cortar	Control+X</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>Pe&amp;gar	Control+V</translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation>&amp;Eliminar	Suprimir</translation>
    </message>
    <message>
        <source>Insert File...</source>
        <translation>Insertar archivo...</translation>
    </message>
    <message>
        <source>Line Endings</source>
        <translation>Fines de línea</translation>
    </message>
    <message>
        <source>Windows (CR+LF)</source>
        <translation>Windows (CR+LF)</translation>
    </message>
    <message>
        <source>Unix (LF)</source>
        <translation>Unix (LF)</translation>
    </message>
    <message>
        <source>Mac (CR)</source>
        <translation>Mac (CR)</translation>
    </message>
    <message>
        <source>Co&amp;mment Out</source>
        <translation>Come&amp;ntar</translation>
    </message>
    <message>
        <source>U&amp;ndo Comment Out</source>
        <translation>&amp;Quitar comentario</translation>
    </message>
    <message>
        <source>Upper C&amp;ase</source>
        <translation>&amp;Mayúsculas</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>M&amp;inúsculas</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>&amp;Aumentar sangría</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>Reducir &amp;sangría</translation>
    </message>
    <message>
        <source>R&amp;eplace...</source>
        <translation>Reemp&amp;lazar...</translation>
    </message>
</context>
<context>
    <name>DocumentMap</name>
    <message>
        <source>Document map</source>
        <translation>Mapa del documento</translation>
    </message>
</context>
<context>
    <name>EditListBox</name>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
</context>
<context>
    <name>EditorPrefsDialog</name>
    <message>
        <source>Find a language or a page</source>
        <translation>Buscar un lenguaje o una página</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>A&amp;justes</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>Ace&amp;ptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ap&amp;licar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ayuda</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Colors and Fonts</source>
        <translation>Colores y fuentes</translation>
    </message>
    <message>
        <source>The changes are in force. Cancel does not take them back.</source>
        <translation>Los cambios ya tienen efecto. Cancelar no los deshace.</translation>
    </message>
    <message>
        <source>Editor and Language Preferences</source>
        <translation>Preferencias del editor y de los lenguajes</translation>
    </message>
    <message>
        <source>No page has this word.</source>
        <translation>Ninguna página contiene esta palabra.</translation>
    </message>
</context>
<context>
    <name>EngineWindow</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
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
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>Editor de texto</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Deshaciendo</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Rehaciendo</translation>
    </message>
</context>
<context>
    <name>ExpressionFault</name>
    <message>
        <source>The expression is not complete.</source>
        <translation>La expresión está incompleta.</translation>
    </message>
    <message>
        <source>The expression cannot be read from character %1 on.</source>
        <translation>La expresión no se entiende a partir del carácter %1.</translation>
    </message>
    <message>
        <source>The expression cannot be used.</source>
        <translation>La expresión no se puede usar.</translation>
    </message>
</context>
<context>
    <name>FileEditCtrl</name>
    <message>
        <source>Browse for File</source>
        <translation>Elegir archivo</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Browse for a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Browse for a file</source>
        <translation>Elegir un archivo</translation>
    </message>
    <message>
        <source>Enter an existing file.</source>
        <translation>Indique un archivo existente.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 no existe.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 no es una carpeta.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 no es un archivo.</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>Elegir carpeta</translation>
    </message>
</context>
<context>
    <name>FileResult</name>
    <message>
        <source>The editing engine could not be loaded.</source>
        <translation>No se pudo cargar el motor de edición.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>This is a folder or a device, not a file with a text.</source>
        <translation>Es una carpeta o un dispositivo, no un archivo de texto.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check that you may read it.</source>
        <translation>No se puede leer el archivo. Compruebe que tiene permiso para leerlo.</translation>
    </message>
    <message>
        <source>The file has more than 2 GB, which is more than can be edited.</source>
        <translation>El archivo tiene más de 2 GB, que es más de lo que se puede editar.</translation>
    </message>
    <message>
        <source>Only the first part of the file could be read.</source>
        <translation>Solo se pudo leer la primera parte del archivo.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>No tiene permiso para escribir ahí.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>The encoding cannot hold all of the text.</source>
        <translation>La codificación no puede representar todo el texto.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>No se pudo escribir el archivo.</translation>
    </message>
    <message>
        <source>No file was named. Choose one first.</source>
        <translation>No se indicó ningún archivo. Elija uno primero.</translation>
    </message>
    <message>
        <source>The program used the editor outside of its GUI thread.</source>
        <translation>El programa usó el editor fuera de su hilo de la interfaz gráfica.</translation>
    </message>
</context>
<context>
    <name>FindDialogs</name>
    <message>
        <source>Insert into &quot;%1&quot;</source>
        <translation>Insertar en «%1»</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>Insertar parte de una expresión</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>B&amp;uscar</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>Texto que se busca</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>S&amp;olo palabras completas</translation>
    </message>
    <message>
        <source>Matc&amp;h case</source>
        <translation>&amp;Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>E&amp;xpresión regular</translation>
    </message>
    <message>
        <source>&amp;Wrap around search</source>
        <translation>&amp;Volver al principio al terminar</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Arriba</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>A&amp;bajo</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>No se encontró el texto «%1».</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Bookmark &amp;All</source>
        <translation>Poner &amp;marcador a todo</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>Buscar y reemplazar</translation>
    </message>
    <message>
        <source>Re&amp;place with</source>
        <translation>Reemplazar &amp;por</translation>
    </message>
    <message>
        <source>Text to put in the place of a match</source>
        <translation>Texto que ocupa el lugar de una coincidencia</translation>
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
        <source>In &amp;Selection</source>
        <translation>&amp;En la selección</translation>
    </message>
    <message>
        <source>Enter find string</source>
        <translation>Introduzca el texto que se busca</translation>
    </message>
    <message>
        <source>Replaced %1 occurrences of &apos;%2&apos;</source>
        <translation>%1 apariciones de «%2» reemplazadas</translation>
    </message>
</context>
<context>
    <name>FindInFiles</name>
    <message>
        <source>Find In Files</source>
        <translation>Buscar en archivos</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>Texto que se busca</translation>
    </message>
    <message>
        <source>Insert into &quot;Find what&quot;</source>
        <translation>Insertar en «Buscar»</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>Insertar parte de una expresión</translation>
    </message>
    <message>
        <source>In files/file t&amp;ypes</source>
        <translation>E&amp;n archivos/tipos de archivo</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Tipos de archivo</translation>
    </message>
    <message>
        <source>Patterns of names, as *.sql;*.txt</source>
        <translation>Patrones de nombres, como *.sql;*.txt</translation>
    </message>
    <message>
        <source>In f&amp;older</source>
        <translation>&amp;En la carpeta</translation>
    </message>
    <message>
        <source>Folder whose files are searched</source>
        <translation>Carpeta en cuyos archivos se busca</translation>
    </message>
    <message>
        <source>In all open f&amp;iles</source>
        <translation>En todos &amp;los archivos abiertos</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>&amp;Solo palabras completas</translation>
    </message>
    <message>
        <source>M&amp;atch case</source>
        <translation>Dis&amp;tinguir mayúsculas</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>Expresión &amp;regular</translation>
    </message>
    <message>
        <source>&amp;Look in subfolders</source>
        <translation>&amp;Incluir subcarpetas</translation>
    </message>
    <message>
        <source>Output to pane &amp;2</source>
        <translation>Resultados en el panel &amp;2</translation>
    </message>
    <message>
        <source>&amp;Just output matching count</source>
        <translation>&amp;Mostrar solo el número de coincidencias</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>B&amp;uscar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &gt;&gt;</source>
        <translation>A&amp;vanzado &gt;&gt;</translation>
    </message>
    <message>
        <source>Look in additional folders:</source>
        <translation>Buscar en otras carpetas:</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>Elegir carpeta</translation>
    </message>
    <message>
        <source>A&amp;dd Folder</source>
        <translation>Aña&amp;dir carpeta</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &lt;&lt;</source>
        <translation>&amp;Avanzado &lt;&lt;</translation>
    </message>
    <message>
        <source>Enter Type!</source>
        <translation>¡Indique un tipo!</translation>
    </message>
    <message>
        <source>Enter Path!</source>
        <translation>¡Indique una ruta!</translation>
    </message>
    <message>
        <source>Path &apos;%1&apos; does not exists</source>
        <translation>La ruta «%1» no existe</translation>
    </message>
    <message>
        <source>Enter Find String!</source>
        <translation>¡Indique el texto que se busca!</translation>
    </message>
</context>
<context>
    <name>FontPref</name>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>%1, list</source>
        <translation>%1, lista</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Subrayado</translation>
    </message>
    <message>
        <source>Apply to all Styles</source>
        <translation>Aplicar a todos los estilos</translation>
    </message>
    <message>
        <source>Sample Text Area</source>
        <translation>Área de ejemplo</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>Texto de ejemplo</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>All styles have been set to the currrent font selection.</source>
        <translation>Todos los estilos tienen ahora la fuente elegida.</translation>
    </message>
</context>
<context>
    <name>Goto</name>
    <message>
        <source>Goto</source>
        <translation>Ir a</translation>
    </message>
    <message>
        <source>Goto Line :</source>
        <translation>Ir a la línea:</translation>
    </message>
    <message>
        <source>Goto Line</source>
        <translation>Ir a la línea</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>Hands</name>
    <message>
        <source>C&amp;omments</source>
        <translation>&amp;Comentarios</translation>
    </message>
    <message>
        <source>&amp;Toggle Comment</source>
        <translation>&amp;Comentar o descomentar</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Líneas</translation>
    </message>
    <message>
        <source>Move Lines &amp;Up</source>
        <translation>Mover &amp;líneas arriba</translation>
    </message>
    <message>
        <source>Move Lines Do&amp;wn</source>
        <translation>&amp;Mover líneas abajo</translation>
    </message>
    <message>
        <source>Duplicate Line or Selection</source>
        <translation>Duplicar línea o selección</translation>
    </message>
    <message>
        <source>&amp;Join Lines</source>
        <translation>&amp;Unir líneas</translation>
    </message>
    <message>
        <source>Delete Li&amp;nes</source>
        <translation>&amp;Eliminar líneas</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>S&amp;eleccionar</translation>
    </message>
    <message>
        <source>Li&amp;nes, One More Each Time</source>
        <translation>Líneas, &amp;una más cada vez</translation>
    </message>
    <message>
        <source>&amp;Grow</source>
        <translation>A&amp;mpliar</translation>
    </message>
    <message>
        <source>S&amp;hrink</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Statement</source>
        <translation>&amp;Sentencia</translation>
    </message>
    <message>
        <source>By &amp;Parentheses</source>
        <translation>Con &amp;paréntesis</translation>
    </message>
    <message>
        <source>By &amp;Quotes</source>
        <translation>Con comillas &amp;simples</translation>
    </message>
    <message>
        <source>By &amp;Double Quotes</source>
        <translation>Con comillas &amp;dobles</translation>
    </message>
    <message>
        <source>By &amp;Brackets</source>
        <translation>&amp;Con corchetes</translation>
    </message>
    <message>
        <source>By B&amp;races</source>
        <translation>Con &amp;llaves</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>&amp;Sangría</translation>
    </message>
    <message>
        <source>&amp;Paste as Indented Here</source>
        <translation>&amp;Pegar con la sangría de aquí</translation>
    </message>
    <message>
        <source>&amp;Next Statement</source>
        <translation>S&amp;entencia siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous Statement</source>
        <translation>&amp;Sentencia anterior</translation>
    </message>
    <message>
        <source>Next &amp;Batch</source>
        <translation>L&amp;ote siguiente</translation>
    </message>
    <message>
        <source>Previous B&amp;atch</source>
        <translation>&amp;Lote anterior</translation>
    </message>
    <message>
        <source>&amp;Fold</source>
        <translation>&amp;Plegar</translation>
    </message>
    <message>
        <source>&amp;Unfold</source>
        <translation>&amp;Desplegar</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>Plegar &amp;todo</translation>
    </message>
    <message>
        <source>U&amp;nfold All</source>
        <translation>D&amp;esplegar todo</translation>
    </message>
    <message>
        <source>To Level &amp;1</source>
        <translation>Hasta el nivel &amp;1</translation>
    </message>
    <message>
        <source>To Level &amp;2</source>
        <translation>Hasta el nivel &amp;2</translation>
    </message>
    <message>
        <source>To Level &amp;3</source>
        <translation>Hasta el nivel &amp;3</translation>
    </message>
    <message>
        <source>&amp;Add Next Occurrence</source>
        <translation>Aña&amp;dir la siguiente aparición</translation>
    </message>
    <message>
        <source>All &amp;Occurrences</source>
        <translation>T&amp;odas las apariciones</translation>
    </message>
    <message>
        <source>&amp;Matching Bracket</source>
        <translation>Paréntesis &amp;correspondiente</translation>
    </message>
    <message>
        <source>Surrou&amp;nd</source>
        <translation>En&amp;volver</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Saltar a</translation>
    </message>
    <message>
        <source>&amp;Folds</source>
        <translation>Plieg&amp;ues</translation>
    </message>
</context>
<context>
    <name>InputBox</name>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source> Cannot be empty</source>
        <translation> no puede estar vacío</translation>
    </message>
</context>
<context>
    <name>KeywordPref</name>
    <message>
        <source>Keyword Type</source>
        <translation>Tipo de palabras clave</translation>
    </message>
    <message>
        <source>Keyword List</source>
        <translation>Lista de palabras clave</translation>
    </message>
    <message>
        <source>A last word of one letter is not kept, unless a blank follows it.</source>
        <translation>Una última palabra de una sola letra solo se conserva si la sigue un espacio.</translation>
    </message>
    <message>
        <source>Words with blanks or new lines between them.</source>
        <translation>Palabras separadas por espacios o saltos de línea.</translation>
    </message>
</context>
<context>
    <name>Leftovers</name>
    <message>
        <source>This defines nothing: the name of a variable begins with &amp;&amp;.</source>
        <translation>Esto no define nada: el nombre de una variable empieza por &amp;&amp;.</translation>
    </message>
    <message>
        <source>This is not of the form %1 &amp;&amp;NAME VALUE, and nothing below is replaced.</source>
        <translation>Esto no tiene la forma %1 &amp;&amp;NOMBRE VALOR, y debajo ya no se reemplaza nada.</translation>
    </message>
    <message>
        <source>%1 is not defined: its value needs %2, which has none.</source>
        <translation>%1 no está definida: su valor necesita %2, que no tiene ninguno.</translation>
    </message>
    <message>
        <source>%1 is not defined: in its value nothing may follow a variable.</source>
        <translation>%1 no está definida: en su valor no puede seguir nada a una variable.</translation>
    </message>
    <message>
        <source>%1 is used above its definition, which then does not count.</source>
        <translation>%1 se usa antes de su definición, que por eso no cuenta.</translation>
    </message>
    <message>
        <source>Nothing defines %1.</source>
        <translation>Nada define %1.</translation>
    </message>
</context>
<context>
    <name>LossCheck</name>
    <message>
        <source>“%1” has characters that %2 does not have. The first is %3 in line %4, column %5. In the file they would become question marks. UTF-8 keeps every character.</source>
        <translation>«%1» tiene caracteres que no existen en %2. El primero es %3, en la línea %4, columna %5. En el archivo se convertirían en signos de interrogación. UTF-8 conserva todos los caracteres.</translation>
    </message>
</context>
<context>
    <name>MainColorFontPref</name>
    <message>
        <source>Caret Color</source>
        <translation>Color del cursor</translation>
    </message>
    <message>
        <source>Use Selected Text Foreground Color</source>
        <translation>Color propio para el texto seleccionado</translation>
    </message>
    <message>
        <source>Use Selected Text Background Color</source>
        <translation>Color propio para el fondo de la selección</translation>
    </message>
    <message>
        <source>Enable Highlight Current &amp;Line</source>
        <translation>&amp;Resaltar la línea actual</translation>
    </message>
    <message>
        <source>Enable Right Edge Warning</source>
        <translation>Señalar el borde derecho</translation>
    </message>
    <message>
        <source>In All Languages</source>
        <translation>En todos los lenguajes</translation>
    </message>
    <message>
        <source>Right Edge Position</source>
        <translation>Posición del borde derecho</translation>
    </message>
</context>
<context>
    <name>NamedColors</name>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Marrón</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <translation>Verde oliva oscuro</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <translation>Verde oscuro</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <translation>Verde azulado oscuro</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Azul oscuro</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>Índigo</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Gris oscuro</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rojo oscuro</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Amarillo oscuro</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Verde azulado</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <translation>Gris azulado</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <translation>Gris - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>Naranja claro</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Lima</translation>
    </message>
    <message>
        <source>Sea green</source>
        <translation>Verde mar</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Aguamarina</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Azul claro</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violeta</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <translation>Gris - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Dorado</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>Verde vivo</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Turquesa</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <translation>Azul cielo</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Ciruela</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>Gris claro</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rosa pálido</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>Canela</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>Amarillo claro</translation>
    </message>
    <message>
        <source>Pale green </source>
        <translation>Verde pálido</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <translation>Turquesa pálido</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Azul pálido</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavanda</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
</context>
<context>
    <name>PatternMenus</name>
    <message>
        <source>Beginning of line	^</source>
        <translation>Principio de línea	^</translation>
    </message>
    <message>
        <source>End of line	$</source>
        <translation>Fin de línea	$</translation>
    </message>
    <message>
        <source>Any character	.</source>
        <translation>Cualquier carácter	.</translation>
    </message>
    <message>
        <source>Character class	[]</source>
        <translation>Clase de caracteres	[]</translation>
    </message>
    <message>
        <source>Negated character class	[^]</source>
        <translation>Clase de caracteres negada	[^]</translation>
    </message>
    <message>
        <source>Define a group	\(\)</source>
        <translation>Definir un grupo	\(\)</translation>
    </message>
    <message>
        <source>Match left OR right expr.	|</source>
        <translation>Expresión izquierda O derecha	|</translation>
    </message>
    <message>
        <source>Position after match	\c</source>
        <translation>Posición tras la coincidencia	\c</translation>
    </message>
    <message>
        <source>Preceding expr. zero or more	*</source>
        <translation>Expresión anterior, 0 o más veces	*</translation>
    </message>
    <message>
        <source>Preceding expr. 1 or more	+</source>
        <translation>Expresión anterior, 1 o más veces	+</translation>
    </message>
    <message>
        <source>Preceding expr. 0 or 1	?</source>
        <translation>Expresión anterior, 0 o 1 vez	?</translation>
    </message>
    <message>
        <source>Newline character	\n</source>
        <translation>Salto de línea	\n</translation>
    </message>
    <message>
        <source>Carriage return	\r</source>
        <translation>Retorno de carro	\r</translation>
    </message>
    <message>
        <source>Tab	\t</source>
        <translation>Tabulador	\t</translation>
    </message>
    <message>
        <source>Backspace	\b</source>
        <translation>Retroceso	\b</translation>
    </message>
    <message>
        <source>Form feed	\f</source>
        <translation>Salto de página	\f</translation>
    </message>
    <message>
        <source>Hexadecimal digit	\x</source>
        <translation>Dígito hexadecimal	\x</translation>
    </message>
    <message>
        <source>Escape	\</source>
        <translation>Escape	\</translation>
    </message>
    <message>
        <source>Alphanumeric	[a-zA-Z0-9]</source>
        <translation>Carácter alfanumérico	[a-zA-Z0-9]</translation>
    </message>
    <message>
        <source>Subexpression 1	\1</source>
        <translation>Subexpresión 1	\1</translation>
    </message>
    <message>
        <source>Subexpression 2	\2</source>
        <translation>Subexpresión 2	\2</translation>
    </message>
    <message>
        <source>Subexpression 3	\3</source>
        <translation>Subexpresión 3	\3</translation>
    </message>
    <message>
        <source>Subexpression 4	\4</source>
        <translation>Subexpresión 4	\4</translation>
    </message>
    <message>
        <source>Subexpression 5	\5</source>
        <translation>Subexpresión 5	\5</translation>
    </message>
    <message>
        <source>Subexpression 6	\6</source>
        <translation>Subexpresión 6	\6</translation>
    </message>
    <message>
        <source>Subexpression 7	\7</source>
        <translation>Subexpresión 7	\7</translation>
    </message>
    <message>
        <source>Subexpression 8	\8</source>
        <translation>Subexpresión 8	\8</translation>
    </message>
    <message>
        <source>Subexpression 9	\9</source>
        <translation>Subexpresión 9	\9</translation>
    </message>
    <message>
        <source>New Line	\n</source>
        <translation>Línea nueva	\n</translation>
    </message>
</context>
<context>
    <name>PrintService</name>
    <message>
        <source>No printer is set up. Do you want to save the pages as a PDF instead?</source>
        <translation>No hay ninguna impresora configurada. ¿Desea guardar las páginas como PDF?</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>No se pudo imprimir el documento.</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>No se pudo escribir %1.</translation>
    </message>
    <message>
        <source>%1 – print preview</source>
        <translation>%1 – vista previa de impresión</translation>
    </message>
    <message>
        <source>%1 – print preview, the first %2 pages</source>
        <translation>%1 – vista previa de impresión, las primeras %2 páginas</translation>
    </message>
</context>
<context>
    <name>ProposalList</name>
    <message>
        <source>Completion</source>
        <translation>Autocompletado</translation>
    </message>
    <message>
        <source>Proposals</source>
        <translation>Propuestas</translation>
    </message>
    <message>
        <source>Tab takes the first row</source>
        <translation>Tab toma la primera fila</translation>
    </message>
    <message>
        <source>Tab or Enter takes the row</source>
        <translation>Tab o Intro toma la fila</translation>
    </message>
</context>
<context>
    <name>ReplaceAll</name>
    <message>
        <source>Replacing</source>
        <translation>Reemplazando</translation>
    </message>
</context>
<context>
    <name>SettingsMenu</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Settings (*.znsettings)</source>
        <translation>Ajustes (*.znsettings)</translation>
    </message>
    <message>
        <source>What has not been applied yet is lost.</source>
        <translation>Se perderá lo que aún no se haya aplicado.</translation>
    </message>
    <message>
        <source>&amp;Export All Settings...</source>
        <translation>&amp;Exportar todos los ajustes...</translation>
    </message>
    <message>
        <source>&amp;Import All Settings...</source>
        <translation>&amp;Importar todos los ajustes...</translation>
    </message>
    <message>
        <source>&amp;Write the Colours of a Scheme</source>
        <translation>Escribir &amp;los colores de un esquema</translation>
    </message>
    <message>
        <source>This &amp;Language as Shipped...</source>
        <translation>Este lenguaje &amp;como de fábrica...</translation>
    </message>
    <message>
        <source>E&amp;verything as Shipped...</source>
        <translation>&amp;Todo como de fábrica...</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>No se pudo escribir %1.</translation>
    </message>
    <message>
        <source>All settings become those of %1, and the present ones are given up. %2

Import them?</source>
        <translation>Todos los ajustes pasan a ser los de %1 y se abandonan los actuales. %2

¿Importarlos?</translation>
    </message>
    <message>
        <source>The settings could not be written; they are as they were.</source>
        <translation>No se pudieron escribir los ajustes; siguen como estaban.</translation>
    </message>
    <message>
        <source>%1 holds no settings of this editor.</source>
        <translation>%1 no contiene ajustes de este editor.</translation>
    </message>
    <message>
        <source>All settings of %1 become those that it was shipped with. %2

Reset them?</source>
        <translation>Todos los ajustes de %1 vuelven a ser los de fábrica. %2

¿Restablecerlos?</translation>
    </message>
    <message>
        <source>The settings of all languages become those that they were shipped with. %1

Reset them?</source>
        <translation>Los ajustes de todos los lenguajes vuelven a ser los de fábrica. %1

¿Restablecerlos?</translation>
    </message>
    <message>
        <source>The colours of all languages become those of &quot;%1&quot;, and stay so whatever the desktop looks like. %2

Write them?</source>
        <translation>Los colores de todos los lenguajes pasan a ser los de «%1» y lo siguen siendo sea cual sea el aspecto del escritorio. %2

¿Escribirlos?</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>Alto contraste</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impresión</translation>
    </message>
</context>
<context>
    <name>SettingsPref</name>
    <message>
        <source>Shown Beside and In the Text</source>
        <translation>Junto al texto y en el texto</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>Números de línea</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>Margen de marcadores</translation>
    </message>
    <message>
        <source>Outlining</source>
        <translation>Esquema (plegado)</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>Ajuste de línea</translation>
    </message>
    <message>
        <source>End Of Line</source>
        <translation>Fines de línea</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>Espacios en blanco</translation>
    </message>
    <message>
        <source>Indentation Guides</source>
        <translation>Guías de sangría</translation>
    </message>
    <message>
        <source>Tabs and Indentation</source>
        <translation>Tabuladores y sangría</translation>
    </message>
    <message>
        <source>Tab Size</source>
        <translation>Ancho del tabulador</translation>
    </message>
    <message>
        <source>Indent Size</source>
        <translation>Ancho de la sangría</translation>
    </message>
    <message>
        <source>Pressing Tab inserts Spaces</source>
        <translation>La tecla Tab inserta espacios</translation>
    </message>
    <message>
        <source>Tab and Backspace (Un)Indent</source>
        <translation>Tab y Retroceso cambian la sangría</translation>
    </message>
    <message>
        <source>Auto Indentation Style</source>
        <translation>Sangría automática</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Follow Previous Line</source>
        <translation>Como la línea anterior</translation>
    </message>
    <message>
        <source>Follow Language Scoping</source>
        <translation>Según la estructura del lenguaje</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Syntax &amp;Highlighting</source>
        <translation>Resaltado &amp;de sintaxis</translation>
    </message>
    <message>
        <source>&amp;Brace Matching</source>
        <translation>Paré&amp;ntesis correspondientes</translation>
    </message>
    <message>
        <source>Completion</source>
        <translation>Autocompletado</translation>
    </message>
    <message>
        <source>&amp;Auto Completion</source>
        <translation>A&amp;utocompletado automático</translation>
    </message>
    <message>
        <source>C&amp;ode Completion</source>
        <translation>Aut&amp;ocompletado de código</translation>
    </message>
    <message>
        <source>&amp;Tab Key</source>
        <translation>&amp;Tecla Tab</translation>
    </message>
    <message>
        <source>Space Bar &amp;Key</source>
        <translation>&amp;Barra espaciadora</translation>
    </message>
    <message>
        <source>When a File is Saved</source>
        <translation>Al guardar un archivo</translation>
    </message>
    <message>
        <source>Ensure Final New Line</source>
        <translation>Terminar la última línea</translation>
    </message>
    <message>
        <source>Convert Tabs To Spaces</source>
        <translation>Convertir tabuladores en espacios</translation>
    </message>
    <message>
        <source>Trim Trailing Spaces</source>
        <translation>Quitar espacios al final de línea</translation>
    </message>
</context>
<context>
    <name>SplitBox</name>
    <message>
        <source>Drag down to divide the text into two panes</source>
        <translation>Arrastre hacia abajo para dividir el texto en dos paneles</translation>
    </message>
    <message>
        <source>Drag to the right to divide the text into two panes</source>
        <translation>Arrastre hacia la derecha para dividir el texto en dos paneles</translation>
    </message>
    <message>
        <source>Divide above and below</source>
        <translation>Dividir arriba y abajo</translation>
    </message>
    <message>
        <source>Divide side by side</source>
        <translation>Dividir lado a lado</translation>
    </message>
</context>
<context>
    <name>StyleSample</name>
    <message>
        <source>Sample of the language</source>
        <translation>Ejemplo del lenguaje</translation>
    </message>
</context>
<context>
    <name>SyntaxFiles</name>
    <message>
        <source>Declaration</source>
        <translation>Declaración</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>JavaScript</source>
        <translation>JavaScript</translation>
    </message>
    <message>
        <source>PHP</source>
        <translation>PHP</translation>
    </message>
    <message>
        <source>Python</source>
        <translation>Python</translation>
    </message>
    <message>
        <source>Server JavaScript</source>
        <translation>JavaScript de servidor</translation>
    </message>
    <message>
        <source>Server Python</source>
        <translation>Python de servidor</translation>
    </message>
    <message>
        <source>Server VBScript</source>
        <translation>VBScript de servidor</translation>
    </message>
    <message>
        <source>VBScript</source>
        <translation>VBScript</translation>
    </message>
    <message>
        <source>.NET message</source>
        <translation>Mensaje de .NET</translation>
    </message>
    <message>
        <source>Absoft message</source>
        <translation>Mensaje de Absoft</translation>
    </message>
    <message>
        <source>Added line</source>
        <translation>Línea añadida</translation>
    </message>
    <message>
        <source>Added line of a removed patch</source>
        <translation>Línea añadida de un parche quitado</translation>
    </message>
    <message>
        <source>Added line of an added patch</source>
        <translation>Línea añadida de un parche añadido</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Matriz</translation>
    </message>
    <message>
        <source>Assembler</source>
        <translation>Ensamblador</translation>
    </message>
    <message>
        <source>Assignment</source>
        <translation>Asignación</translation>
    </message>
    <message>
        <source>At-rule</source>
        <translation>Regla @</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Atributo</translation>
    </message>
    <message>
        <source>Attribute selector</source>
        <translation>Selector de atributo</translation>
    </message>
    <message>
        <source>Backticks</source>
        <translation>Acentos graves</translation>
    </message>
    <message>
        <source>Binary number</source>
        <translation>Número binario</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloque</translation>
    </message>
    <message>
        <source>Block comment</source>
        <translation>Comentario de bloque</translation>
    </message>
    <message>
        <source>Body of a format</source>
        <translation>Cuerpo de un formato</translation>
    </message>
    <message>
        <source>Borland message</source>
        <translation>Mensaje de Borland</translation>
    </message>
    <message>
        <source>CDATA section</source>
        <translation>Sección CDATA</translation>
    </message>
    <message>
        <source>Call tips</source>
        <translation>Ayuda de llamada</translation>
    </message>
    <message>
        <source>Changed line</source>
        <translation>Línea modificada</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Carácter</translation>
    </message>
    <message>
        <source>Class name</source>
        <translation>Nombre de clase</translation>
    </message>
    <message>
        <source>Class selector</source>
        <translation>Selector de clase</translation>
    </message>
    <message>
        <source>Client command</source>
        <translation>Orden del cliente</translation>
    </message>
    <message>
        <source>Client comment</source>
        <translation>Comentario del cliente</translation>
    </message>
    <message>
        <source>Client prompt</source>
        <translation>Indicador del cliente</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Command with qx</source>
        <translation>Orden con qx</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Comment block</source>
        <translation>Bloque de comentario</translation>
    </message>
    <message>
        <source>Comment in a directive</source>
        <translation>Comentario en una directiva</translation>
    </message>
    <message>
        <source>Comment in a parameter</source>
        <translation>Comentario en un parámetro</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Constante</translation>
    </message>
    <message>
        <source>Constant of the lexer</source>
        <translation>Constante del analizador</translation>
    </message>
    <message>
        <source>Control characters</source>
        <translation>Caracteres de control</translation>
    </message>
    <message>
        <source>Data section</source>
        <translation>Sección de datos</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>Tipo de datos</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Default value</source>
        <translation>Valor predeterminado</translation>
    </message>
    <message>
        <source>Delimiter of a here document</source>
        <translation>Delimitador de un documento incrustado</translation>
    </message>
    <message>
        <source>Displayed mathematics</source>
        <translation>Fórmula destacada</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>Documentation comment</source>
        <translation>Comentario de documentación</translation>
    </message>
    <message>
        <source>Documentation comment in a directive</source>
        <translation>Comentario de documentación en una directiva</translation>
    </message>
    <message>
        <source>Documentation keyword</source>
        <translation>Palabra clave de documentación</translation>
    </message>
    <message>
        <source>Documentation line comment</source>
        <translation>Comentario de documentación de línea</translation>
    </message>
    <message>
        <source>Element selector</source>
        <translation>Selector de elemento</translation>
    </message>
    <message>
        <source>End of a tag</source>
        <translation>Fin de una etiqueta</translation>
    </message>
    <message>
        <source>End of an XML fragment</source>
        <translation>Fin de un fragmento XML</translation>
    </message>
    <message>
        <source>End of an environment</source>
        <translation>Fin de un entorno</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Entorno</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Escape sequence</source>
        <translation>Secuencia de escape</translation>
    </message>
    <message>
        <source>External command</source>
        <translation>Orden externa</translation>
    </message>
    <message>
        <source>First parameter</source>
        <translation>Primer parámetro</translation>
    </message>
    <message>
        <source>Folded text</source>
        <translation>Texto plegado</translation>
    </message>
    <message>
        <source>Fortran message</source>
        <translation>Mensaje de Fortran</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Función</translation>
    </message>
    <message>
        <source>Function name</source>
        <translation>Nombre de función</translation>
    </message>
    <message>
        <source>Further keyword</source>
        <translation>Otra palabra clave</translation>
    </message>
    <message>
        <source>GCC message</source>
        <translation>Mensaje de GCC</translation>
    </message>
    <message>
        <source>Global class</source>
        <translation>Clase global</translation>
    </message>
    <message>
        <source>Global variable</source>
        <translation>Variable global</translation>
    </message>
    <message>
        <source>HTML checker message</source>
        <translation>Mensaje del comprobador de HTML</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Cabecera</translation>
    </message>
    <message>
        <source>Here document in backticks</source>
        <translation>Documento incrustado entre acentos graves</translation>
    </message>
    <message>
        <source>Here document in double quotes</source>
        <translation>Documento incrustado entre comillas dobles</translation>
    </message>
    <message>
        <source>Here document in single quotes</source>
        <translation>Documento incrustado entre comillas simples</translation>
    </message>
    <message>
        <source>Hexadecimal number</source>
        <translation>Número hexadecimal</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Identifier in backticks</source>
        <translation>Identificador entre acentos graves</translation>
    </message>
    <message>
        <source>Identifier in backticks or brackets</source>
        <translation>Identificador entre acentos graves o corchetes</translation>
    </message>
    <message>
        <source>Identifier in brackets</source>
        <translation>Identificador entre corchetes</translation>
    </message>
    <message>
        <source>Identifier in double quotes</source>
        <translation>Identificador entre comillas dobles</translation>
    </message>
    <message>
        <source>Identifier selector</source>
        <translation>Selector de identificador</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>Importante</translation>
    </message>
    <message>
        <source>Including file</source>
        <translation>Archivo que incluye</translation>
    </message>
    <message>
        <source>Indentation guides</source>
        <translation>Guías de sangría</translation>
    </message>
    <message>
        <source>Intel Fortran message</source>
        <translation>Mensaje de Intel Fortran</translation>
    </message>
    <message>
        <source>Java stack line</source>
        <translation>Línea de pila de Java</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Library type</source>
        <translation>Tipo de biblioteca</translation>
    </message>
    <message>
        <source>Line comment</source>
        <translation>Comentario de línea</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Números de línea</translation>
    </message>
    <message>
        <source>Linker message</source>
        <translation>Mensaje del enlazador</translation>
    </message>
    <message>
        <source>List with qw</source>
        <translation>Lista con qw</translation>
    </message>
    <message>
        <source>Long quote</source>
        <translation>Cita larga</translation>
    </message>
    <message>
        <source>Lua message</source>
        <translation>Mensaje de Lua</translation>
    </message>
    <message>
        <source>Mark that hides a command</source>
        <translation>Marca que oculta una orden</translation>
    </message>
    <message>
        <source>Markup declaration</source>
        <translation>Declaración de marcado</translation>
    </message>
    <message>
        <source>Matching brace</source>
        <translation>Paréntesis correspondiente</translation>
    </message>
    <message>
        <source>Mathematics</source>
        <translation>Matemáticas</translation>
    </message>
    <message>
        <source>Microsoft message</source>
        <translation>Mensaje de Microsoft</translation>
    </message>
    <message>
        <source>Name of a format</source>
        <translation>Nombre de un formato</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Option of a command</source>
        <translation>Opción de una orden</translation>
    </message>
    <message>
        <source>Other inside a tag</source>
        <translation>Otro contenido de una etiqueta</translation>
    </message>
    <message>
        <source>PHP mark</source>
        <translation>Marca de PHP</translation>
    </message>
    <message>
        <source>PHP message</source>
        <translation>Mensaje de PHP</translation>
    </message>
    <message>
        <source>Patch message</source>
        <translation>Mensaje de parche</translation>
    </message>
    <message>
        <source>Perl message</source>
        <translation>Mensaje de Perl</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Preprocessor</source>
        <translation>Preprocesador</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>Procedimiento</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propiedad</translation>
    </message>
    <message>
        <source>Property of CSS 2</source>
        <translation>Propiedad de CSS 2</translation>
    </message>
    <message>
        <source>Property of CSS 3</source>
        <translation>Propiedad de CSS 3</translation>
    </message>
    <message>
        <source>Property of one browser</source>
        <translation>Propiedad de un navegador</translation>
    </message>
    <message>
        <source>Prototype</source>
        <translation>Prototipo</translation>
    </message>
    <message>
        <source>Pseudo-class</source>
        <translation>Pseudoclase</translation>
    </message>
    <message>
        <source>Pseudo-class of one browser</source>
        <translation>Pseudoclase de un navegador</translation>
    </message>
    <message>
        <source>Pseudo-element</source>
        <translation>Pseudoelemento</translation>
    </message>
    <message>
        <source>Pseudo-element of one browser</source>
        <translation>Pseudoelemento de un navegador</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>Python message</source>
        <translation>Mensaje de Python</translation>
    </message>
    <message>
        <source>Quoting operator</source>
        <translation>Operador de comillas</translation>
    </message>
    <message>
        <source>Raw string</source>
        <translation>Cadena literal sin formato</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Expresión regular</translation>
    </message>
    <message>
        <source>Regular expression with qr</source>
        <translation>Expresión regular con qr</translation>
    </message>
    <message>
        <source>Removed line</source>
        <translation>Línea quitada</translation>
    </message>
    <message>
        <source>Removed line of a removed patch</source>
        <translation>Línea quitada de un parche quitado</translation>
    </message>
    <message>
        <source>Removed line of an added patch</source>
        <translation>Línea quitada de un parche añadido</translation>
    </message>
    <message>
        <source>Rule of a group</source>
        <translation>Regla de un grupo</translation>
    </message>
    <message>
        <source>Scalar</source>
        <translation>Escalar</translation>
    </message>
    <message>
        <source>Script tag</source>
        <translation>Etiqueta de script</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sección</translation>
    </message>
    <message>
        <source>Server comment</source>
        <translation>Comentario de servidor</translation>
    </message>
    <message>
        <source>Server script</source>
        <translation>Script de servidor</translation>
    </message>
    <message>
        <source>Server script mark</source>
        <translation>Marca de script de servidor</translation>
    </message>
    <message>
        <source>Setting or pragma</source>
        <translation>Ajuste o pragma</translation>
    </message>
    <message>
        <source>Short command</source>
        <translation>Orden breve</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>Especial</translation>
    </message>
    <message>
        <source>Special character</source>
        <translation>Carácter especial</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Comienzo</translation>
    </message>
    <message>
        <source>Start of an XML fragment</source>
        <translation>Comienzo de un fragmento XML</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Sentencia</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Cadena</translation>
    </message>
    <message>
        <source>String in double quotes</source>
        <translation>Cadena entre comillas dobles</translation>
    </message>
    <message>
        <source>String in single quotes</source>
        <translation>Cadena entre comillas simples</translation>
    </message>
    <message>
        <source>String with hash marks</source>
        <translation>Cadena con almohadillas</translation>
    </message>
    <message>
        <source>String with q</source>
        <translation>Cadena con q</translation>
    </message>
    <message>
        <source>String with qq</source>
        <translation>Cadena con qq</translation>
    </message>
    <message>
        <source>Substitution</source>
        <translation>Sustitución</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Símbolo</translation>
    </message>
    <message>
        <source>Symbol table</source>
        <translation>Tabla de símbolos</translation>
    </message>
    <message>
        <source>System object</source>
        <translation>Objeto del sistema</translation>
    </message>
    <message>
        <source>System table or view</source>
        <translation>Tabla o vista del sistema</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>Task marker</source>
        <translation>Marca de tarea</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Text before a data type</source>
        <translation>Texto antes de un tipo de datos</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>Transliteración</translation>
    </message>
    <message>
        <source>Triple double quotes</source>
        <translation>Triples comillas dobles</translation>
    </message>
    <message>
        <source>Triple single quotes</source>
        <translation>Triples comillas simples</translation>
    </message>
    <message>
        <source>Triple-quoted string</source>
        <translation>Cadena entre triples comillas</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>Unclosed string</source>
        <translation>Cadena sin cerrar</translation>
    </message>
    <message>
        <source>Unknown attribute</source>
        <translation>Atributo desconocido</translation>
    </message>
    <message>
        <source>Unknown documentation keyword</source>
        <translation>Palabra clave de documentación desconocida</translation>
    </message>
    <message>
        <source>Unknown property</source>
        <translation>Propiedad desconocida</translation>
    </message>
    <message>
        <source>Unknown pseudo-class</source>
        <translation>Pseudoclase desconocida</translation>
    </message>
    <message>
        <source>Unknown tag</source>
        <translation>Etiqueta desconocida</translation>
    </message>
    <message>
        <source>Unmatched brace</source>
        <translation>Paréntesis sin pareja</translation>
    </message>
    <message>
        <source>Unquoted value</source>
        <translation>Valor sin comillas</translation>
    </message>
    <message>
        <source>User keyword</source>
        <translation>Palabra clave propia</translation>
    </message>
    <message>
        <source>User literal</source>
        <translation>Literal propio</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Variable in a command document</source>
        <translation>Variable en un documento de órdenes</translation>
    </message>
    <message>
        <source>Variable in a complex expression</source>
        <translation>Variable en una expresión compleja</translation>
    </message>
    <message>
        <source>Variable in a here document</source>
        <translation>Variable en un documento incrustado</translation>
    </message>
    <message>
        <source>Variable in a regular expression</source>
        <translation>Variable en una expresión regular</translation>
    </message>
    <message>
        <source>Variable in a string</source>
        <translation>Variable en una cadena</translation>
    </message>
    <message>
        <source>Variable in a substitution</source>
        <translation>Variable en una sustitución</translation>
    </message>
    <message>
        <source>Variable in backticks</source>
        <translation>Variable entre acentos graves</translation>
    </message>
    <message>
        <source>Variable in qq</source>
        <translation>Variable en qq</translation>
    </message>
    <message>
        <source>Variable in qr</source>
        <translation>Variable en qr</translation>
    </message>
    <message>
        <source>Variable in qx</source>
        <translation>Variable en qx</translation>
    </message>
    <message>
        <source>Variable indexer</source>
        <translation>Índice de variable</translation>
    </message>
    <message>
        <source>Verbatim documentation</source>
        <translation>Documentación literal</translation>
    </message>
    <message>
        <source>Verbatim string</source>
        <translation>Cadena literal</translation>
    </message>
    <message>
        <source>Verbatim text</source>
        <translation>Texto literal</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Palabra</translation>
    </message>
    <message>
        <source>Catalog and administrative views</source>
        <translation>Vistas de catálogo y administración</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <source>Commands (completion only)</source>
        <translation>Órdenes (solo autocompletado)</translation>
    </message>
    <message>
        <source>Configuration parameters</source>
        <translation>Parámetros de configuración</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Constantes</translation>
    </message>
    <message>
        <source>Data types</source>
        <translation>Tipos de datos</translation>
    </message>
    <message>
        <source>Declaration keywords</source>
        <translation>Palabras clave de declaración</translation>
    </message>
    <message>
        <source>Diagnostics items</source>
        <translation>Elementos de diagnóstico</translation>
    </message>
    <message>
        <source>Dictionary and performance views</source>
        <translation>Vistas de diccionario y rendimiento</translation>
    </message>
    <message>
        <source>Directives (completion only)</source>
        <translation>Directivas (solo autocompletado)</translation>
    </message>
    <message>
        <source>Documentation keywords</source>
        <translation>Palabras clave de documentación</translation>
    </message>
    <message>
        <source>Elements and attributes</source>
        <translation>Elementos y atributos</translation>
    </message>
    <message>
        <source>Environments (completion only)</source>
        <translation>Entornos (solo autocompletado)</translation>
    </message>
    <message>
        <source>External commands</source>
        <translation>Órdenes externas</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>Functions (completion only)</source>
        <translation>Funciones (solo autocompletado)</translation>
    </message>
    <message>
        <source>Global variables (without @@)</source>
        <translation>Variables globales (sin @@)</translation>
    </message>
    <message>
        <source>Information schema</source>
        <translation>Esquema de información</translation>
    </message>
    <message>
        <source>JavaScript keywords</source>
        <translation>Palabras clave de JavaScript</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Library types</source>
        <translation>Tipos de biblioteca</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Operadores</translation>
    </message>
    <message>
        <source>PHP functions (completion only)</source>
        <translation>Funciones de PHP (solo autocompletado)</translation>
    </message>
    <message>
        <source>PHP keywords</source>
        <translation>Palabras clave de PHP</translation>
    </message>
    <message>
        <source>PL/pgSQL</source>
        <translation>PL/pgSQL</translation>
    </message>
    <message>
        <source>Pragmas</source>
        <translation>Pragmas</translation>
    </message>
    <message>
        <source>Procedural keywords</source>
        <translation>Palabras clave procedurales</translation>
    </message>
    <message>
        <source>Procedures, table functions and modules</source>
        <translation>Procedimientos, funciones de tabla y módulos</translation>
    </message>
    <message>
        <source>Properties of CSS 1</source>
        <translation>Propiedades de CSS 1</translation>
    </message>
    <message>
        <source>Properties of CSS 2</source>
        <translation>Propiedades de CSS 2</translation>
    </message>
    <message>
        <source>Properties of CSS 3</source>
        <translation>Propiedades de CSS 3</translation>
    </message>
    <message>
        <source>Properties of one browser</source>
        <translation>Propiedades de un navegador</translation>
    </message>
    <message>
        <source>Pseudo-classes</source>
        <translation>Pseudoclases</translation>
    </message>
    <message>
        <source>Pseudo-classes of one browser</source>
        <translation>Pseudoclases de un navegador</translation>
    </message>
    <message>
        <source>Pseudo-elements</source>
        <translation>Pseudoelementos</translation>
    </message>
    <message>
        <source>Pseudo-elements of one browser</source>
        <translation>Pseudoelementos de un navegador</translation>
    </message>
    <message>
        <source>Python keywords</source>
        <translation>Palabras clave de Python</translation>
    </message>
    <message>
        <source>Routines of the schema sys</source>
        <translation>Rutinas del esquema sys</translation>
    </message>
    <message>
        <source>Special targets (completion only)</source>
        <translation>Objetivos especiales (solo autocompletado)</translation>
    </message>
    <message>
        <source>Statements and clauses</source>
        <translation>Sentencias y cláusulas</translation>
    </message>
    <message>
        <source>Supplied packages</source>
        <translation>Paquetes suministrados</translation>
    </message>
    <message>
        <source>System and monitoring tables</source>
        <translation>Tablas del sistema y de supervisión</translation>
    </message>
    <message>
        <source>System catalogs and views</source>
        <translation>Catálogos y vistas del sistema</translation>
    </message>
    <message>
        <source>System packages</source>
        <translation>Paquetes del sistema</translation>
    </message>
    <message>
        <source>System procedures</source>
        <translation>Procedimientos del sistema</translation>
    </message>
    <message>
        <source>System tables and modules</source>
        <translation>Tablas y módulos del sistema</translation>
    </message>
    <message>
        <source>System tables and views</source>
        <translation>Tablas y vistas del sistema</translation>
    </message>
    <message>
        <source>System variables (without @@)</source>
        <translation>Variables del sistema (sin @@)</translation>
    </message>
    <message>
        <source>Task markers</source>
        <translation>Marcas de tarea</translation>
    </message>
    <message>
        <source>VBScript keywords</source>
        <translation>Palabras clave de VBScript</translation>
    </message>
    <message>
        <source>Values of pragmas</source>
        <translation>Valores de pragmas</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorPlugin</name>
    <message>
        <source>Source Text Editor</source>
        <translation>Editor de código fuente</translation>
    </message>
    <message>
        <source>An editor for SQL scripts and other source texts.</source>
        <translation>Un editor de scripts SQL y otros textos fuente.</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorWidget</name>
    <message>
        <source>The editor cannot be shown, since its engine could not be loaded.
%1</source>
        <translation>No se puede mostrar el editor porque no se pudo cargar su motor.
%1</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>Editor de texto</translation>
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
        <translation>Cop&amp;iar</translation>
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
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>Aumentar &amp;sangría</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>&amp;Reducir sangría</translation>
    </message>
    <message>
        <source>U&amp;pper Case</source>
        <translation>&amp;Mayúsculas</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>Mi&amp;núsculas</translation>
    </message>
    <message>
        <source>Match Bra&amp;ce</source>
        <translation>&amp;Paréntesis correspondiente</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>Pon&amp;er o quitar marcador</translation>
    </message>
    <message>
        <source>&amp;Next Bookmark</source>
        <translation>Marcador si&amp;guiente</translation>
    </message>
    <message>
        <source>Previous Boo&amp;kmark</source>
        <translation>Marcad&amp;or anterior</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>&amp;Acercar</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>A&amp;lejar</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>&amp;Tamaño original</translation>
    </message>
    <message>
        <source>&amp;Line Numbers</source>
        <translation>Números &amp;de línea</translation>
    </message>
    <message>
        <source>Clear All Bookmarks</source>
        <translation>Borrar todos los marcadores</translation>
    </message>
    <message>
        <source>Co&amp;mment Out</source>
        <translation>&amp;Comentar</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>&amp;Quitar comentario</translation>
    </message>
    <message>
        <source>Increase Number</source>
        <translation>Aumentar número</translation>
    </message>
    <message>
        <source>Decrease Number</source>
        <translation>Disminuir número</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>B&amp;uscar siguiente</translation>
    </message>
    <message>
        <source>&amp;Replace...</source>
        <translation>Reempla&amp;zar...</translation>
    </message>
    <message>
        <source>Insert &amp;File...</source>
        <translation>Insertar arc&amp;hivo...</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR+LF (Windows)</source>
        <translation>Convertir fines de línea a CR+LF (Windows)</translation>
    </message>
    <message>
        <source>Convert Line Ends to LF (Unix)</source>
        <translation>Convertir fines de línea a LF (Unix)</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (Mac)</source>
        <translation>Convertir fines de línea a CR (Mac)</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>Preferencias del editor &amp;y de los lenguajes...</translation>
    </message>
    <message>
        <source>Insert Template</source>
        <translation>Insertar plantilla</translation>
    </message>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>&amp;Ir a la línea...</translation>
    </message>
    <message>
        <source>Go to Line</source>
        <translation>Ir a la línea</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>Ir a la línea:</translation>
    </message>
    <message>
        <source>Select &amp;Statement</source>
        <translation>&amp;Seleccionar la instrucción</translation>
    </message>
    <message>
        <source>Record &amp;Macro</source>
        <translation>Grabar &amp;macro</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>Re&amp;producir macro</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>&amp;Mapa del documento</translation>
    </message>
</context>
</TS>
