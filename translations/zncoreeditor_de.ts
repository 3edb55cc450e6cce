<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CColorButton</name>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>More Colors...</source>
        <translation>Weitere Farben...</translation>
    </message>
</context>
<context>
    <name>CDocTemplate</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>CFileException</name>
    <message>
        <source>%1 was not found.</source>
        <translation>%1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>%1 is not a valid path.</source>
        <translation>%1 ist kein gültiger Pfad.</translation>
    </message>
    <message>
        <source>%1 could not be opened: too many files are open.</source>
        <translation>%1 konnte nicht geöffnet werden: Es sind zu viele Dateien offen.</translation>
    </message>
    <message>
        <source>%1 cannot be accessed.</source>
        <translation>Auf %1 kann nicht zugegriffen werden.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 wird von einem anderen Programm verwendet.</translation>
    </message>
    <message>
        <source>The disk is full: %1.</source>
        <translation>Der Datenträger ist voll: %1.</translation>
    </message>
    <message>
        <source>An error occurred while accessing %1.</source>
        <translation>Beim Zugriff auf %1 ist ein Fehler aufgetreten.</translation>
    </message>
</context>
<context>
    <name>CWinApp</name>
    <message>
        <source>%1 could not be opened.</source>
        <translation>%1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation>%1 konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Änderungen an %1 speichern?</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorControlEx</name>
    <message>
        <source>Scripts (*.sql);;DDL Files (*.ddl);;Queries (*.qry);;Text Files (*.txt);;All Files (*)</source>
        <translation>Skripte (*.sql);;DDL-Dateien (*.ddl);;Abfragen (*.qry);;Textdateien (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Hide LineNumbers</source>
        <translation>Zeilennummern ausblenden</translation>
    </message>
    <message>
        <source>Show LineNumbers</source>
        <translation>Zeilennummern einblenden</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>Der Text „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Search has finished searching the whole document</source>
        <translation>Das gesamte Dokument wurde durchsucht</translation>
    </message>
    <message>
        <source>Could not save as PDF</source>
        <translation>Speichern als PDF ist fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorDoc</name>
    <message>
        <source>&apos;%1&apos;
File has been deleted outside of this application!
Do you want to close this Document?</source>
        <translation>„%1“
Die Datei wurde außerhalb dieser Anwendung gelöscht!
Soll das Dokument geschlossen werden?</translation>
    </message>
    <message>
        <source>&apos;%1&apos;
File has been modified outside of this application!
Do you want to reload it?</source>
        <translation>„%1“
Die Datei wurde außerhalb dieser Anwendung geändert!
Soll sie neu geladen werden?</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>Soll „%1“ neu geladen werden?</translation>
    </message>
    <message>
        <source>Do you want to set the file &apos;%1&apos; to read only too?</source>
        <translation>Soll auch die Datei „%1“ schreibgeschützt werden?</translation>
    </message>
    <message>
        <source> (Read Only)</source>
        <translation> (Schreibgeschützt)</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorView</name>
    <message>
        <source>Incremental search failed: %1|</source>
        <translation>Inkrementelle Suche erfolglos: %1|</translation>
    </message>
    <message>
        <source>Incremental search: %1|</source>
        <translation>Inkrementelle Suche: %1|</translation>
    </message>
    <message>
        <source>Incremental search reverse: %1|</source>
        <translation>Inkrementelle Suche rückwärts: %1|</translation>
    </message>
    <message>
        <source>Enter Input Param</source>
        <translation>Parameter eingeben</translation>
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
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Ln %1, Col %2</source>
        <translation>Zl. %1, Sp. %2</translation>
    </message>
    <message>
        <source>Enter no of times to repeat</source>
        <translation>Anzahl der Wiederholungen</translation>
    </message>
    <message>
        <source>Repeat Macro</source>
        <translation>Makro wiederholen</translation>
    </message>
    <message>
        <source>Stop Record	Ctrl+Shift+R</source>
        <translation>Aufzeichnung beenden	Strg+Umschalt+R</translation>
    </message>
    <message>
        <source>Record Macro	Ctrl+Shift+R</source>
        <translation>Makro aufzeichnen	Strg+Umschalt+R</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>Der Text „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Passed the end of the document</source>
        <translation>Das Ende des Dokuments wurde überschritten</translation>
    </message>
    <message>
        <source>Passed the start of the document</source>
        <translation>Der Anfang des Dokuments wurde überschritten</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>%1 ausblenden</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 einblenden</translation>
    </message>
    <message>
        <source>LineNumbers</source>
        <translation>Zeilennummern</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>Lesezeichenleiste</translation>
    </message>
    <message>
        <source>Fold Margin</source>
        <translation>Faltleiste</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>EOL</source>
        <translation>Zeilenenden</translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
</context>
<context>
    <name>ColorPref</name>
    <message>
        <source>St&amp;yles</source>
        <translation>&amp;Stile</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Foreground Color</source>
        <translation>Vordergrundfarbe</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Reset All Colors</source>
        <translation>Alle Farben zurücksetzen</translation>
    </message>
    <message>
        <source>Sample Editor Area</source>
        <translation>Beispiel für den Editor</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>Beispieltext</translation>
    </message>
    <message>
        <source>Clearing color changes</source>
        <translation>Farbänderungen verwerfen</translation>
    </message>
    <message>
        <source>All of your color settings will be lost ! Are you sure ?</source>
        <translation>Alle Ihre Farbeinstellungen gehen verloren! Sind Sie sicher?</translation>
    </message>
</context>
<context>
    <name>ContextMenu</name>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Kopieren	Strg+C</translation>
    </message>
    <message>
        <source>&amp;Select All	Ctrl+A</source>
        <translation>&amp;Alles auswählen	Strg+A</translation>
    </message>
    <message>
        <source>Match To&amp;ken	Ctrl+]</source>
        <translation>&amp;Zugehörige Klammer	Strg+]</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>Zeilennummern</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Repeat Last Find</source>
        <translation>Suche wiederholen</translation>
    </message>
    <message>
        <source>&amp;Undo	Ctrl+Z</source>
        <translation>Rü&amp;ckgängig	Strg+Z</translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation>&amp;Wiederherstellen	Strg+Y</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>Aussc&amp;hneiden	Strg+X</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>&amp;Einfügen	Strg+V</translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation>&amp;Löschen	Entf</translation>
    </message>
    <message>
        <source>Insert File...</source>
        <translation>Datei einfügen...</translation>
    </message>
    <message>
        <source>Line Endings</source>
        <translation>Zeilenenden</translation>
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
        <translation>Ausk&amp;ommentieren</translation>
    </message>
    <message>
        <source>U&amp;ndo Comment Out</source>
        <translation>Ko&amp;mmentar aufheben</translation>
    </message>
    <message>
        <source>Upper C&amp;ase</source>
        <translation>&amp;Großbuchstaben</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>Klei&amp;nbuchstaben</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>E&amp;inrücken</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>A&amp;usrücken</translation>
    </message>
    <message>
        <source>R&amp;eplace...</source>
        <translation>E&amp;rsetzen...</translation>
    </message>
</context>
<context>
    <name>EditListBox</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
</context>
<context>
    <name>EditorPrefsDialog</name>
    <message>
        <source>Find a language or a page</source>
        <translation>Sprache oder Seite suchen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Schlüsselwörter</translation>
    </message>
    <message>
        <source>Colors and Fonts</source>
        <translation>Farben und Schriften</translation>
    </message>
    <message>
        <source>The changes are in force. Cancel does not take them back.</source>
        <translation>Die Änderungen sind in Kraft. Abbrechen nimmt sie nicht zurück.</translation>
    </message>
    <message>
        <source>Editor and Language Preferences</source>
        <translation>Einstellungen für Editor und Sprachen</translation>
    </message>
</context>
<context>
    <name>EngineWindow</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>Texteditor</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Wird rückgängig gemacht</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Wird wiederholt</translation>
    </message>
</context>
<context>
    <name>ExpressionFault</name>
    <message>
        <source>The expression is not complete.</source>
        <translation>Der Ausdruck ist unvollständig.</translation>
    </message>
    <message>
        <source>The expression cannot be read from character %1 on.</source>
        <translation>Der Ausdruck ist ab Zeichen %1 nicht lesbar.</translation>
    </message>
    <message>
        <source>The expression cannot be used.</source>
        <translation>Der Ausdruck kann nicht verwendet werden.</translation>
    </message>
</context>
<context>
    <name>FileEditCtrl</name>
    <message>
        <source>Browse for File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Browse for a folder</source>
        <translation>Einen Ordner wählen</translation>
    </message>
    <message>
        <source>Browse for a file</source>
        <translation>Eine Datei wählen</translation>
    </message>
    <message>
        <source>Enter an existing file.</source>
        <translation>Geben Sie eine vorhandene Datei an.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>Ordner wählen</translation>
    </message>
</context>
<context>
    <name>FileResult</name>
    <message>
        <source>The editing engine could not be loaded.</source>
        <translation>Das Editormodul konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>This is a folder or a device, not a file with a text.</source>
        <translation>Dies ist ein Ordner oder ein Gerät, keine Textdatei.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check that you may read it.</source>
        <translation>Die Datei kann nicht gelesen werden. Prüfen Sie, ob Sie sie lesen dürfen.</translation>
    </message>
    <message>
        <source>The file has more than 2 GB, which is more than can be edited.</source>
        <translation>Die Datei ist größer als 2 GB; mehr kann nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>Only the first part of the file could be read.</source>
        <translation>Nur der erste Teil der Datei konnte gelesen werden.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Den Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>Sie dürfen dort nicht schreiben.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The encoding cannot hold all of the text.</source>
        <translation>Die Kodierung kann nicht den ganzen Text darstellen.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Die Datei konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>FindDialogs</name>
    <message>
        <source>Insert into &quot;%1&quot;</source>
        <translation>In „%1“ einfügen</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>Teil eines Ausdrucks einfügen</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>Suchen &amp;nach</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>Der gesuchte Text</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>Nur &amp;ganze Wörter</translation>
    </message>
    <message>
        <source>Matc&amp;h case</source>
        <translation>Groß-/&amp;Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>&amp;Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>&amp;Wrap around search</source>
        <translation>Am Ende &amp;von vorn suchen</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>A&amp;ufwärts</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>&amp;Abwärts</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>Der Text „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Bookmark &amp;All</source>
        <translation>Alle &amp;mit Lesezeichen versehen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>Re&amp;place with</source>
        <translation>Ersetzen &amp;durch</translation>
    </message>
    <message>
        <source>Text to put in the place of a match</source>
        <translation>Text, der an die Stelle eines Treffers tritt</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>A&amp;lle ersetzen</translation>
    </message>
    <message>
        <source>In &amp;Selection</source>
        <translation>&amp;In der Auswahl</translation>
    </message>
    <message>
        <source>Enter find string</source>
        <translation>Geben Sie einen Suchtext ein</translation>
    </message>
    <message>
        <source>Replaced %1 occurrences of &apos;%2&apos;</source>
        <translation>%1 Vorkommen von „%2“ ersetzt</translation>
    </message>
</context>
<context>
    <name>FindInFiles</name>
    <message>
        <source>Find In Files</source>
        <translation>In Dateien suchen</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>Suchen &amp;nach</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>Der gesuchte Text</translation>
    </message>
    <message>
        <source>Insert into &quot;Find what&quot;</source>
        <translation>In „Suchen nach“ einfügen</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>Teil eines Ausdrucks einfügen</translation>
    </message>
    <message>
        <source>In files/file t&amp;ypes</source>
        <translation>In &amp;Dateien/Dateitypen</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Dateitypen</translation>
    </message>
    <message>
        <source>Patterns of names, as *.sql;*.txt</source>
        <translation>Namensmuster wie *.sql;*.txt</translation>
    </message>
    <message>
        <source>In f&amp;older</source>
        <translation>&amp;Im Ordner</translation>
    </message>
    <message>
        <source>Folder whose files are searched</source>
        <translation>Ordner, dessen Dateien durchsucht werden</translation>
    </message>
    <message>
        <source>In all open f&amp;iles</source>
        <translation>In allen &amp;offenen Dateien</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>Nur &amp;ganze Wörter</translation>
    </message>
    <message>
        <source>M&amp;atch case</source>
        <translation>Groß-/&amp;Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>Regu&amp;lärer Ausdruck</translation>
    </message>
    <message>
        <source>&amp;Look in subfolders</source>
        <translation>&amp;Unterordner durchsuchen</translation>
    </message>
    <message>
        <source>Output to pane &amp;2</source>
        <translation>Ausgabe in Bereich &amp;2</translation>
    </message>
    <message>
        <source>&amp;Just output matching count</source>
        <translation>Nur Anzahl der &amp;Treffer ausgeben</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &gt;&gt;</source>
        <translation>&amp;Erweitert &gt;&gt;</translation>
    </message>
    <message>
        <source>Look in additional folders:</source>
        <translation>In weiteren Ordnern suchen:</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>A&amp;dd Folder</source>
        <translation>Ordner &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &lt;&lt;</source>
        <translation>E&amp;rweitert &lt;&lt;</translation>
    </message>
    <message>
        <source>Enter Type!</source>
        <translation>Geben Sie einen Dateityp ein!</translation>
    </message>
    <message>
        <source>Enter Path!</source>
        <translation>Geben Sie einen Pfad ein!</translation>
    </message>
    <message>
        <source>Path &apos;%1&apos; does not exists</source>
        <translation>Den Pfad „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>Enter Find String!</source>
        <translation>Geben Sie einen Suchtext ein!</translation>
    </message>
</context>
<context>
    <name>FontPref</name>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>%1, list</source>
        <translation>%1, Liste</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Apply to all Styles</source>
        <translation>Auf alle Stile anwenden</translation>
    </message>
    <message>
        <source>Sample Text Area</source>
        <translation>Beispielbereich</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>Beispieltext</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>All styles have been set to the currrent font selection.</source>
        <translation>Alle Stile haben jetzt die gewählte Schrift.</translation>
    </message>
</context>
<context>
    <name>Goto</name>
    <message>
        <source>Goto</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Goto Line :</source>
        <translation>Gehe zu Zeile:</translation>
    </message>
    <message>
        <source>Goto Line</source>
        <translation>Gehe zu Zeile</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Los</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>Hands</name>
    <message>
        <source>C&amp;omments</source>
        <translation>&amp;Kommentare</translation>
    </message>
    <message>
        <source>&amp;Toggle Comment</source>
        <translation>Kommentar &amp;umschalten</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Zeilen</translation>
    </message>
    <message>
        <source>Move Lines &amp;Up</source>
        <translation>Zeilen &amp;nach oben verschieben</translation>
    </message>
    <message>
        <source>Move Lines Do&amp;wn</source>
        <translation>Z&amp;eilen nach unten verschieben</translation>
    </message>
    <message>
        <source>Duplicate Line or Selection</source>
        <translation>Zeile oder Auswahl duplizieren</translation>
    </message>
    <message>
        <source>&amp;Join Lines</source>
        <translation>Zeilen &amp;verbinden</translation>
    </message>
    <message>
        <source>Delete Li&amp;nes</source>
        <translation>&amp;Zeilen löschen</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Auswahl</translation>
    </message>
    <message>
        <source>Li&amp;nes, One More Each Time</source>
        <translation>Zeilen, &amp;jedes Mal eine mehr</translation>
    </message>
    <message>
        <source>&amp;Grow</source>
        <translation>&amp;Erweitern</translation>
    </message>
    <message>
        <source>S&amp;hrink</source>
        <translation>&amp;Verkleinern</translation>
    </message>
    <message>
        <source>&amp;Statement</source>
        <translation>A&amp;nweisung</translation>
    </message>
    <message>
        <source>Surround</source>
        <translation>Einfassen</translation>
    </message>
    <message>
        <source>By &amp;Parentheses</source>
        <translation>In &amp;runde Klammern</translation>
    </message>
    <message>
        <source>By &amp;Quotes</source>
        <translation>In &amp;einfache Anführungszeichen</translation>
    </message>
    <message>
        <source>By &amp;Double Quotes</source>
        <translation>In &amp;doppelte Anführungszeichen</translation>
    </message>
    <message>
        <source>By &amp;Brackets</source>
        <translation>&amp;In eckige Klammern</translation>
    </message>
    <message>
        <source>By B&amp;races</source>
        <translation>In &amp;geschweifte Klammern</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>&amp;Einrückung</translation>
    </message>
    <message>
        <source>&amp;Paste as Indented Here</source>
        <translation>&amp;Passend eingerückt einfügen</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Next Statement</source>
        <translation>Nächste &amp;Anweisung</translation>
    </message>
    <message>
        <source>&amp;Previous Statement</source>
        <translation>V&amp;orherige Anweisung</translation>
    </message>
    <message>
        <source>Next &amp;Batch</source>
        <translation>&amp;Nächster Batch</translation>
    </message>
    <message>
        <source>Previous B&amp;atch</source>
        <translation>&amp;Vorheriger Batch</translation>
    </message>
    <message>
        <source>Folds</source>
        <translation>Faltungen</translation>
    </message>
    <message>
        <source>&amp;Fold</source>
        <translation>&amp;Einfalten</translation>
    </message>
    <message>
        <source>&amp;Unfold</source>
        <translation>A&amp;usfalten</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>A&amp;lles einfalten</translation>
    </message>
    <message>
        <source>U&amp;nfold All</source>
        <translation>&amp;Alles ausfalten</translation>
    </message>
    <message>
        <source>To Level &amp;1</source>
        <translation>Bis Ebene &amp;1</translation>
    </message>
    <message>
        <source>To Level &amp;2</source>
        <translation>Bis Ebene &amp;2</translation>
    </message>
    <message>
        <source>To Level &amp;3</source>
        <translation>Bis Ebene &amp;3</translation>
    </message>
</context>
<context>
    <name>InputBox</name>
    <message>
        <source>Input</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source> Cannot be empty</source>
        <translation> darf nicht leer sein</translation>
    </message>
</context>
<context>
    <name>KeywordPref</name>
    <message>
        <source>Keyword Type</source>
        <translation>Art der Schlüsselwörter</translation>
    </message>
    <message>
        <source>Keyword List</source>
        <translation>Schlüsselwörter</translation>
    </message>
    <message>
        <source>A last word of one letter is not kept, unless a blank follows it.</source>
        <translation>Ein letztes Wort aus einem Buchstaben wird nur behalten, wenn ein Leerzeichen folgt.</translation>
    </message>
    <message>
        <source>Words with blanks or new lines between them.</source>
        <translation>Wörter, durch Leerzeichen oder Zeilenumbrüche getrennt.</translation>
    </message>
</context>
<context>
    <name>Leftovers</name>
    <message>
        <source>This defines nothing: the name of a variable begins with &amp;&amp;.</source>
        <translation>Hier wird nichts definiert: Der Name einer Variablen beginnt mit &amp;&amp;.</translation>
    </message>
    <message>
        <source>This is not of the form %1 &amp;&amp;NAME VALUE, and nothing below is replaced.</source>
        <translation>Dies hat nicht die Form %1 &amp;&amp;NAME WERT; darunter wird nichts mehr ersetzt.</translation>
    </message>
    <message>
        <source>%1 is not defined: its value needs %2, which has none.</source>
        <translation>%1 ist nicht definiert: Der Wert braucht %2, und das hat keinen Wert.</translation>
    </message>
    <message>
        <source>%1 is not defined: in its value nothing may follow a variable.</source>
        <translation>%1 ist nicht definiert: Hinter einer Variablen darf im Wert nichts folgen.</translation>
    </message>
    <message>
        <source>%1 is used above its definition, which then does not count.</source>
        <translation>%1 wird vor seiner Definition verwendet; die Definition zählt darum nicht.</translation>
    </message>
    <message>
        <source>Nothing defines %1.</source>
        <translation>%1 ist nirgends definiert.</translation>
    </message>
</context>
<context>
    <name>LossCheck</name>
    <message>
        <source>“%1” has characters that %2 does not have. The first is %3 in line %4, column %5. In the file they would become question marks. UTF-8 keeps every character.</source>
        <translation>„%1“ enthält Zeichen, die es in %2 nicht gibt. Das erste ist %3 in Zeile %4, Spalte %5. In der Datei würden daraus Fragezeichen. UTF-8 behält jedes Zeichen.</translation>
    </message>
</context>
<context>
    <name>MainColorFontPref</name>
    <message>
        <source>Caret Color</source>
        <translation>Farbe der Einfügemarke</translation>
    </message>
    <message>
        <source>Use Selected Text Foreground Color</source>
        <translation>Eigene Vordergrundfarbe für ausgewählten Text</translation>
    </message>
    <message>
        <source>Use Selected Text Background Color</source>
        <translation>Eigene Hintergrundfarbe für ausgewählten Text</translation>
    </message>
    <message>
        <source>Enable Highlight Current &amp;Line</source>
        <translation>Aktuelle &amp;Zeile hervorheben</translation>
    </message>
    <message>
        <source>Enable Right Edge Warning</source>
        <translation>Linie am rechten Rand anzeigen</translation>
    </message>
    <message>
        <source>In All Languages</source>
        <translation>In allen Sprachen</translation>
    </message>
    <message>
        <source>Right Edge Position</source>
        <translation>Position des rechten Rands</translation>
    </message>
</context>
<context>
    <name>NamedColors</name>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <translation>Dunkles Olivgrün</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <translation>Dunkelgrün</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <translation>Dunkles Blaugrün</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Dunkelblau</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>Indigo</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Dunkelrot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Dunkelgelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <translation>Blaugrau</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <translation>Grau - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>Hellorange</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Limone</translation>
    </message>
    <message>
        <source>Sea green</source>
        <translation>Seegrün</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Aquamarin</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <translation>Grau - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>Leuchtend grün</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Pflaume</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Zartrosa</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>Gelbbraun</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>Hellgelb</translation>
    </message>
    <message>
        <source>Pale green </source>
        <translation>Blassgrün</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <translation>Blasstürkis</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Blassblau</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavendel</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
</context>
<context>
    <name>PatternMenus</name>
    <message>
        <source>Beginning of line	^</source>
        <translation>Zeilenanfang	^</translation>
    </message>
    <message>
        <source>End of line	$</source>
        <translation>Zeilenende	$</translation>
    </message>
    <message>
        <source>Any character	.</source>
        <translation>Beliebiges Zeichen	.</translation>
    </message>
    <message>
        <source>Character class	[]</source>
        <translation>Zeichenklasse	[]</translation>
    </message>
    <message>
        <source>Negated character class	[^]</source>
        <translation>Negierte Zeichenklasse	[^]</translation>
    </message>
    <message>
        <source>Define a group	\(\)</source>
        <translation>Gruppe bilden	\(\)</translation>
    </message>
    <message>
        <source>Match left OR right expr.	|</source>
        <translation>Linker ODER rechter Ausdruck	|</translation>
    </message>
    <message>
        <source>Position after match	\c</source>
        <translation>Position hinter dem Treffer	\c</translation>
    </message>
    <message>
        <source>Preceding expr. zero or more	*</source>
        <translation>Vorheriger Ausdruck, beliebig oft	*</translation>
    </message>
    <message>
        <source>Preceding expr. 1 or more	+</source>
        <translation>Vorheriger Ausdruck, mindestens 1-mal	+</translation>
    </message>
    <message>
        <source>Preceding expr. 0 or 1	?</source>
        <translation>Vorheriger Ausdruck, 0- oder 1-mal	?</translation>
    </message>
    <message>
        <source>Newline character	\n</source>
        <translation>Zeilenvorschub	\n</translation>
    </message>
    <message>
        <source>Carriage return	\r</source>
        <translation>Wagenrücklauf	\r</translation>
    </message>
    <message>
        <source>Tab	\t</source>
        <translation>Tabulator	\t</translation>
    </message>
    <message>
        <source>Backspace	\b</source>
        <translation>Rückschritt	\b</translation>
    </message>
    <message>
        <source>Form feed	\f</source>
        <translation>Seitenvorschub	\f</translation>
    </message>
    <message>
        <source>Hexadecimal digit	\x</source>
        <translation>Hexadezimalziffer	\x</translation>
    </message>
    <message>
        <source>Escape	\</source>
        <translation>Escape	\</translation>
    </message>
    <message>
        <source>Alphanumeric	[a-zA-Z0-9]</source>
        <translation>Alphanumerisches Zeichen	[a-zA-Z0-9]</translation>
    </message>
    <message>
        <source>Subexpression 1	\1</source>
        <translation>Teilausdruck 1	\1</translation>
    </message>
    <message>
        <source>Subexpression 2	\2</source>
        <translation>Teilausdruck 2	\2</translation>
    </message>
    <message>
        <source>Subexpression 3	\3</source>
        <translation>Teilausdruck 3	\3</translation>
    </message>
    <message>
        <source>Subexpression 4	\4</source>
        <translation>Teilausdruck 4	\4</translation>
    </message>
    <message>
        <source>Subexpression 5	\5</source>
        <translation>Teilausdruck 5	\5</translation>
    </message>
    <message>
        <source>Subexpression 6	\6</source>
        <translation>Teilausdruck 6	\6</translation>
    </message>
    <message>
        <source>Subexpression 7	\7</source>
        <translation>Teilausdruck 7	\7</translation>
    </message>
    <message>
        <source>Subexpression 8	\8</source>
        <translation>Teilausdruck 8	\8</translation>
    </message>
    <message>
        <source>Subexpression 9	\9</source>
        <translation>Teilausdruck 9	\9</translation>
    </message>
    <message>
        <source>New Line	\n</source>
        <translation>Zeilenumbruch	\n</translation>
    </message>
</context>
<context>
    <name>PrintService</name>
    <message>
        <source>No printer is set up. Do you want to save the pages as a PDF instead?</source>
        <translation>Es ist kein Drucker eingerichtet. Sollen die Seiten stattdessen als PDF gespeichert werden?</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>Das Dokument konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 – print preview</source>
        <translation>%1 – Druckvorschau</translation>
    </message>
    <message>
        <source>%1 – print preview, the first %2 pages</source>
        <translation>%1 – Druckvorschau, die ersten %2 Seiten</translation>
    </message>
</context>
<context>
    <name>ProposalList</name>
    <message>
        <source>Completion</source>
        <translation>Vervollständigung</translation>
    </message>
    <message>
        <source>Proposals</source>
        <translation>Vorschläge</translation>
    </message>
</context>
<context>
    <name>ReplaceAll</name>
    <message>
        <source>Replacing</source>
        <translation>Ersetzen läuft</translation>
    </message>
</context>
<context>
    <name>SettingsMenu</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings (*.znsettings)</source>
        <translation>Einstellungen (*.znsettings)</translation>
    </message>
    <message>
        <source>What has not been applied yet is lost.</source>
        <translation>Was noch nicht angewendet wurde, geht verloren.</translation>
    </message>
    <message>
        <source>&amp;Export All Settings...</source>
        <translation>Alle &amp;Einstellungen exportieren...</translation>
    </message>
    <message>
        <source>&amp;Import All Settings...</source>
        <translation>&amp;Alle Einstellungen importieren...</translation>
    </message>
    <message>
        <source>&amp;Write the Colours of a Scheme</source>
        <translation>&amp;Farben eines Schemas eintragen</translation>
    </message>
    <message>
        <source>This &amp;Language as Shipped...</source>
        <translation>&amp;Diese Sprache auf Auslieferungszustand...</translation>
    </message>
    <message>
        <source>E&amp;verything as Shipped...</source>
        <translation>A&amp;lles auf Auslieferungszustand...</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>All settings become those of %1, and the present ones are given up. %2

Import them?</source>
        <translation>Alle Einstellungen werden die aus %1, die jetzigen werden aufgegeben. %2

Importieren?</translation>
    </message>
    <message>
        <source>The settings could not be written; they are as they were.</source>
        <translation>Die Einstellungen konnten nicht geschrieben werden; sie sind, wie sie waren.</translation>
    </message>
    <message>
        <source>%1 holds no settings of this editor.</source>
        <translation>%1 enthält keine Einstellungen dieses Editors.</translation>
    </message>
    <message>
        <source>All settings of %1 become those that it was shipped with. %2

Reset them?</source>
        <translation>Alle Einstellungen von %1 werden wieder die, mit denen es ausgeliefert wurde. %2

Zurücksetzen?</translation>
    </message>
    <message>
        <source>The settings of all languages become those that they were shipped with. %1

Reset them?</source>
        <translation>Die Einstellungen aller Sprachen werden wieder die, mit denen sie ausgeliefert wurden. %1

Zurücksetzen?</translation>
    </message>
    <message>
        <source>The colours of all languages become those of &quot;%1&quot;, and stay so whatever the desktop looks like. %2

Write them?</source>
        <translation>Die Farben aller Sprachen werden die von „%1“ und bleiben es, wie auch immer der Desktop aussieht. %2

Eintragen?</translation>
    </message>
</context>
<context>
    <name>SettingsPref</name>
    <message>
        <source>Shown Beside and In the Text</source>
        <translation>Neben dem Text und im Text</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>Zeilennummern</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>Lesezeichenleiste</translation>
    </message>
    <message>
        <source>Outlining</source>
        <translation>Gliederung (Falten)</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>Zeilenumbruch</translation>
    </message>
    <message>
        <source>End Of Line</source>
        <translation>Zeilenenden</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Indentation Guides</source>
        <translation>Einrückungslinien</translation>
    </message>
    <message>
        <source>Tabs and Indentation</source>
        <translation>Tabulatoren und Einrückung</translation>
    </message>
    <message>
        <source>Tab Size</source>
        <translation>Tabulatorbreite</translation>
    </message>
    <message>
        <source>Indent Size</source>
        <translation>Einrückungstiefe</translation>
    </message>
    <message>
        <source>Pressing Tab inserts Spaces</source>
        <translation>Tabulatortaste fügt Leerzeichen ein</translation>
    </message>
    <message>
        <source>Tab and Backspace (Un)Indent</source>
        <translation>Tab und Rücktaste rücken ein und aus</translation>
    </message>
    <message>
        <source>Auto Indentation Style</source>
        <translation>Automatische Einrückung</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Follow Previous Line</source>
        <translation>Wie die vorherige Zeile</translation>
    </message>
    <message>
        <source>Follow Language Scoping</source>
        <translation>Nach den Regeln der Sprache</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Syntax &amp;Highlighting</source>
        <translation>S&amp;yntaxhervorhebung</translation>
    </message>
    <message>
        <source>&amp;Brace Matching</source>
        <translation>&amp;Klammern hervorheben</translation>
    </message>
    <message>
        <source>Completion</source>
        <translation>Vervollständigung</translation>
    </message>
    <message>
        <source>&amp;Auto Completion</source>
        <translation>Automatische &amp;Vervollständigung</translation>
    </message>
    <message>
        <source>C&amp;ode Completion</source>
        <translation>&amp;Codevervollständigung</translation>
    </message>
    <message>
        <source>&amp;Tab Key</source>
        <translation>&amp;Tabulatortaste</translation>
    </message>
    <message>
        <source>Space Bar &amp;Key</source>
        <translation>&amp;Leertaste</translation>
    </message>
    <message>
        <source>When a File is Saved</source>
        <translation>Beim Speichern einer Datei</translation>
    </message>
    <message>
        <source>Ensure Final New Line</source>
        <translation>Letzte Zeile abschließen</translation>
    </message>
    <message>
        <source>Convert Tabs To Spaces</source>
        <translation>Tabulatoren in Leerzeichen umwandeln</translation>
    </message>
    <message>
        <source>Trim Trailing Spaces</source>
        <translation>Leerzeichen am Zeilenende entfernen</translation>
    </message>
</context>
<context>
    <name>SplitBox</name>
    <message>
        <source>Drag down to divide the text into two panes</source>
        <translation>Nach unten ziehen, um den Text in zwei Bereiche zu teilen</translation>
    </message>
    <message>
        <source>Drag to the right to divide the text into two panes</source>
        <translation>Nach rechts ziehen, um den Text in zwei Bereiche zu teilen</translation>
    </message>
    <message>
        <source>Divide above and below</source>
        <translation>Übereinander teilen</translation>
    </message>
    <message>
        <source>Divide side by side</source>
        <translation>Nebeneinander teilen</translation>
    </message>
</context>
<context>
    <name>StyleSample</name>
    <message>
        <source>Sample of the language</source>
        <translation>Beispiel der Sprache</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorPlugin</name>
    <message>
        <source>Source Text Editor</source>
        <translation>Quelltexteditor</translation>
    </message>
    <message>
        <source>An editor for SQL scripts and other source texts.</source>
        <translation>Ein Editor für SQL-Skripte und andere Quelltexte.</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorWidget</name>
    <message>
        <source>The editor cannot be shown, since its engine could not be loaded.
%1</source>
        <translation>Der Editor kann nicht angezeigt werden, weil sein Modul nicht geladen werden konnte.
%1</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>Texteditor</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>A&amp;usschneiden</translation>
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
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alle&amp;s auswählen</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>E&amp;inrücken</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>&amp;Ausrücken</translation>
    </message>
    <message>
        <source>U&amp;pper Case</source>
        <translation>Groß&amp;buchstaben</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>Kleinbuchs&amp;taben</translation>
    </message>
    <message>
        <source>Match Bra&amp;ce</source>
        <translation>Zu&amp;gehörige Klammer</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>Lesezeichen u&amp;mschalten</translation>
    </message>
    <message>
        <source>&amp;Next Bookmark</source>
        <translation>Nä&amp;chstes Lesezeichen</translation>
    </message>
    <message>
        <source>Previous Boo&amp;kmark</source>
        <translation>Vor&amp;heriges Lesezeichen</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>Verklei&amp;nern</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Line Numbers</source>
        <translation>&amp;Zeilennummern</translation>
    </message>
    <message>
        <source>Clear All Bookmarks</source>
        <translation>Alle Lesezeichen entfernen</translation>
    </message>
    <message>
        <source>Co&amp;mment Out</source>
        <translation>Ausk&amp;ommentieren</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>Kommentar auf&amp;heben</translation>
    </message>
    <message>
        <source>Increase Number</source>
        <translation>Zahl erhöhen</translation>
    </message>
    <message>
        <source>Decrease Number</source>
        <translation>Zahl verringern</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>&amp;Replace...</source>
        <translation>&amp;Ersetzen...</translation>
    </message>
    <message>
        <source>Insert &amp;File...</source>
        <translation>&amp;Datei einfügen...</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR+LF (Windows)</source>
        <translation>Zeilenenden in CR+LF (Windows) umwandeln</translation>
    </message>
    <message>
        <source>Convert Line Ends to LF (Unix)</source>
        <translation>Zeilenenden in LF (Unix) umwandeln</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (Mac)</source>
        <translation>Zeilenenden in CR (Mac) umwandeln</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>&amp;Einstellungen für Editor und Sprachen...</translation>
    </message>
    <message>
        <source>Insert Template</source>
        <translation>Vorlage einfügen</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorWidget::Private</name>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>&amp;Gehe zu Zeile...</translation>
    </message>
    <message>
        <source>Go to Line</source>
        <translation>Gehe zu Zeile</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>Zeile:</translation>
    </message>
</context>
</TS>
