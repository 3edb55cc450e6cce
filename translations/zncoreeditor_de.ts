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
    <message>
        <source>Repeating the macro</source>
        <translation>Makro wird wiederholt</translation>
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
        <translation>Alles a&amp;uswählen	Strg+A</translation>
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
        <translation>&amp;Ausrücken</translation>
    </message>
    <message>
        <source>R&amp;eplace...</source>
        <translation>E&amp;rsetzen...</translation>
    </message>
</context>
<context>
    <name>DocumentMap</name>
    <message>
        <source>Document map</source>
        <translation>Dokumentkarte</translation>
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
    <message>
        <source>No page has this word.</source>
        <translation>Keine Seite enthält dieses Wort.</translation>
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
    <message>
        <source>No file was named. Choose one first.</source>
        <translation>Es wurde keine Datei genannt. Wählen Sie zuerst eine.</translation>
    </message>
    <message>
        <source>The program used the editor outside of its GUI thread.</source>
        <translation>Das Programm hat den Editor außerhalb seines GUI-Threads benutzt.</translation>
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
        <translation>E&amp;rweitert &gt;&gt;</translation>
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
        <translation>&amp;Erweitert &lt;&lt;</translation>
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
        <translation>&amp;Kommentar umschalten</translation>
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
        <translation>Zeilen nach &amp;unten verschieben</translation>
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
        <translation>&amp;Anweisung</translation>
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
        <source>&amp;Fold</source>
        <translation>&amp;Einfalten</translation>
    </message>
    <message>
        <source>&amp;Unfold</source>
        <translation>A&amp;usfalten</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>&amp;Alles einfalten</translation>
    </message>
    <message>
        <source>U&amp;nfold All</source>
        <translation>A&amp;lles ausfalten</translation>
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
    <message>
        <source>&amp;Add Next Occurrence</source>
        <translation>Nächstes Vorkommen hinzu&amp;fügen</translation>
    </message>
    <message>
        <source>All &amp;Occurrences</source>
        <translation>Alle V&amp;orkommen</translation>
    </message>
    <message>
        <source>&amp;Matching Bracket</source>
        <translation>&amp;Zugehörige Klammer</translation>
    </message>
    <message>
        <source>Surrou&amp;nd</source>
        <translation>Ein&amp;fassen</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Folds</source>
        <translation>Fal&amp;tungen</translation>
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
    <message>
        <source>Tab takes the first row</source>
        <translation>Tab übernimmt die erste Zeile</translation>
    </message>
    <message>
        <source>Tab or Enter takes the row</source>
        <translation>Tab oder Enter übernimmt die Zeile</translation>
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
        <translation>&amp;Alle Einstellungen exportieren...</translation>
    </message>
    <message>
        <source>&amp;Import All Settings...</source>
        <translation>Alle &amp;Einstellungen importieren...</translation>
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
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
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
    <name>SyntaxFiles</name>
    <message>
        <source>Declaration</source>
        <translation>Deklaration</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
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
        <translation>Server-JavaScript</translation>
    </message>
    <message>
        <source>Server Python</source>
        <translation>Server-Python</translation>
    </message>
    <message>
        <source>Server VBScript</source>
        <translation>Server-VBScript</translation>
    </message>
    <message>
        <source>VBScript</source>
        <translation>VBScript</translation>
    </message>
    <message>
        <source>.NET message</source>
        <translation>.NET-Meldung</translation>
    </message>
    <message>
        <source>Absoft message</source>
        <translation>Absoft-Meldung</translation>
    </message>
    <message>
        <source>Added line</source>
        <translation>Hinzugefügte Zeile</translation>
    </message>
    <message>
        <source>Added line of a removed patch</source>
        <translation>Hinzugefügte Zeile eines entfernten Patches</translation>
    </message>
    <message>
        <source>Added line of an added patch</source>
        <translation>Hinzugefügte Zeile eines hinzugefügten Patches</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Assembler</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Assignment</source>
        <translation>Zuweisung</translation>
    </message>
    <message>
        <source>At-rule</source>
        <translation>At-Regel</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Attribute selector</source>
        <translation>Attributselektor</translation>
    </message>
    <message>
        <source>Backticks</source>
        <translation>Backticks</translation>
    </message>
    <message>
        <source>Binary number</source>
        <translation>Binärzahl</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Block comment</source>
        <translation>Blockkommentar</translation>
    </message>
    <message>
        <source>Body of a format</source>
        <translation>Rumpf eines Formats</translation>
    </message>
    <message>
        <source>Borland message</source>
        <translation>Borland-Meldung</translation>
    </message>
    <message>
        <source>CDATA section</source>
        <translation>CDATA-Abschnitt</translation>
    </message>
    <message>
        <source>Call tips</source>
        <translation>Aufruftipps</translation>
    </message>
    <message>
        <source>Changed line</source>
        <translation>Geänderte Zeile</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Class name</source>
        <translation>Klassenname</translation>
    </message>
    <message>
        <source>Class selector</source>
        <translation>Klassenselektor</translation>
    </message>
    <message>
        <source>Client command</source>
        <translation>Befehl des Clients</translation>
    </message>
    <message>
        <source>Client comment</source>
        <translation>Kommentar des Clients</translation>
    </message>
    <message>
        <source>Client prompt</source>
        <translation>Eingabeaufforderung des Clients</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Command with qx</source>
        <translation>Befehl mit qx</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Comment block</source>
        <translation>Kommentarblock</translation>
    </message>
    <message>
        <source>Comment in a directive</source>
        <translation>Kommentar in einer Direktive</translation>
    </message>
    <message>
        <source>Comment in a parameter</source>
        <translation>Kommentar in einem Parameter</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstante</translation>
    </message>
    <message>
        <source>Constant of the lexer</source>
        <translation>Konstante des Lexers</translation>
    </message>
    <message>
        <source>Control characters</source>
        <translation>Steuerzeichen</translation>
    </message>
    <message>
        <source>Data section</source>
        <translation>Datenabschnitt</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>Datentyp</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Default value</source>
        <translation>Vorgabewert</translation>
    </message>
    <message>
        <source>Delimiter of a here document</source>
        <translation>Begrenzer eines Here-Dokuments</translation>
    </message>
    <message>
        <source>Displayed mathematics</source>
        <translation>Abgesetzte Formel</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Documentation comment</source>
        <translation>Dokumentationskommentar</translation>
    </message>
    <message>
        <source>Documentation comment in a directive</source>
        <translation>Dokumentationskommentar in einer Direktive</translation>
    </message>
    <message>
        <source>Documentation keyword</source>
        <translation>Dokumentationsschlüsselwort</translation>
    </message>
    <message>
        <source>Documentation line comment</source>
        <translation>Dokumentationszeilenkommentar</translation>
    </message>
    <message>
        <source>Element selector</source>
        <translation>Elementselektor</translation>
    </message>
    <message>
        <source>End of a tag</source>
        <translation>Ende eines Tags</translation>
    </message>
    <message>
        <source>End of an XML fragment</source>
        <translation>Ende eines XML-Fragments</translation>
    </message>
    <message>
        <source>End of an environment</source>
        <translation>Ende einer Umgebung</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entität</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Escape sequence</source>
        <translation>Escapesequenz</translation>
    </message>
    <message>
        <source>External command</source>
        <translation>Externer Befehl</translation>
    </message>
    <message>
        <source>First parameter</source>
        <translation>Erster Parameter</translation>
    </message>
    <message>
        <source>Folded text</source>
        <translation>Eingefalteter Text</translation>
    </message>
    <message>
        <source>Fortran message</source>
        <translation>Fortran-Meldung</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Function name</source>
        <translation>Funktionsname</translation>
    </message>
    <message>
        <source>Further keyword</source>
        <translation>Weiteres Schlüsselwort</translation>
    </message>
    <message>
        <source>GCC message</source>
        <translation>GCC-Meldung</translation>
    </message>
    <message>
        <source>Global class</source>
        <translation>Globale Klasse</translation>
    </message>
    <message>
        <source>Global variable</source>
        <translation>Globale Variable</translation>
    </message>
    <message>
        <source>HTML checker message</source>
        <translation>Meldung der HTML-Prüfung</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Kopf</translation>
    </message>
    <message>
        <source>Here document in backticks</source>
        <translation>Here-Dokument in Backticks</translation>
    </message>
    <message>
        <source>Here document in double quotes</source>
        <translation>Here-Dokument in doppelten Anführungszeichen</translation>
    </message>
    <message>
        <source>Here document in single quotes</source>
        <translation>Here-Dokument in einfachen Anführungszeichen</translation>
    </message>
    <message>
        <source>Hexadecimal number</source>
        <translation>Hexadezimalzahl</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Bezeichner</translation>
    </message>
    <message>
        <source>Identifier in backticks</source>
        <translation>Bezeichner in Backticks</translation>
    </message>
    <message>
        <source>Identifier in backticks or brackets</source>
        <translation>Bezeichner in Backticks oder Klammern</translation>
    </message>
    <message>
        <source>Identifier in brackets</source>
        <translation>Bezeichner in eckigen Klammern</translation>
    </message>
    <message>
        <source>Identifier in double quotes</source>
        <translation>Bezeichner in doppelten Anführungszeichen</translation>
    </message>
    <message>
        <source>Identifier selector</source>
        <translation>Bezeichnerselektor</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>Wichtig</translation>
    </message>
    <message>
        <source>Including file</source>
        <translation>Einbindende Datei</translation>
    </message>
    <message>
        <source>Indentation guides</source>
        <translation>Einrückungslinien</translation>
    </message>
    <message>
        <source>Intel Fortran message</source>
        <translation>Intel-Fortran-Meldung</translation>
    </message>
    <message>
        <source>Java stack line</source>
        <translation>Java-Stapelzeile</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Schlüsselwort</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>Library type</source>
        <translation>Bibliothekstyp</translation>
    </message>
    <message>
        <source>Line comment</source>
        <translation>Zeilenkommentar</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Zeilennummern</translation>
    </message>
    <message>
        <source>Linker message</source>
        <translation>Linker-Meldung</translation>
    </message>
    <message>
        <source>List with qw</source>
        <translation>Liste mit qw</translation>
    </message>
    <message>
        <source>Long quote</source>
        <translation>Langes Zitat</translation>
    </message>
    <message>
        <source>Lua message</source>
        <translation>Lua-Meldung</translation>
    </message>
    <message>
        <source>Mark that hides a command</source>
        <translation>Zeichen, das einen Befehl verbirgt</translation>
    </message>
    <message>
        <source>Markup declaration</source>
        <translation>Markup-Deklaration</translation>
    </message>
    <message>
        <source>Matching brace</source>
        <translation>Zugehörige Klammer</translation>
    </message>
    <message>
        <source>Mathematics</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Microsoft message</source>
        <translation>Microsoft-Meldung</translation>
    </message>
    <message>
        <source>Name of a format</source>
        <translation>Name eines Formats</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Option of a command</source>
        <translation>Option eines Befehls</translation>
    </message>
    <message>
        <source>Other inside a tag</source>
        <translation>Sonstiges in einem Tag</translation>
    </message>
    <message>
        <source>PHP mark</source>
        <translation>PHP-Markierung</translation>
    </message>
    <message>
        <source>PHP message</source>
        <translation>PHP-Meldung</translation>
    </message>
    <message>
        <source>Patch message</source>
        <translation>Patch-Meldung</translation>
    </message>
    <message>
        <source>Perl message</source>
        <translation>Perl-Meldung</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Preprocessor</source>
        <translation>Präprozessor</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>Prozedur</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Property of CSS 2</source>
        <translation>Eigenschaft aus CSS 2</translation>
    </message>
    <message>
        <source>Property of CSS 3</source>
        <translation>Eigenschaft aus CSS 3</translation>
    </message>
    <message>
        <source>Property of one browser</source>
        <translation>Eigenschaft eines Browsers</translation>
    </message>
    <message>
        <source>Prototype</source>
        <translation>Prototyp</translation>
    </message>
    <message>
        <source>Pseudo-class</source>
        <translation>Pseudoklasse</translation>
    </message>
    <message>
        <source>Pseudo-class of one browser</source>
        <translation>Pseudoklasse eines Browsers</translation>
    </message>
    <message>
        <source>Pseudo-element</source>
        <translation>Pseudoelement</translation>
    </message>
    <message>
        <source>Pseudo-element of one browser</source>
        <translation>Pseudoelement eines Browsers</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>Satzzeichen</translation>
    </message>
    <message>
        <source>Python message</source>
        <translation>Python-Meldung</translation>
    </message>
    <message>
        <source>Quoting operator</source>
        <translation>Anführungsoperator</translation>
    </message>
    <message>
        <source>Raw string</source>
        <translation>Rohe Zeichenkette</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Regular expression with qr</source>
        <translation>Regulärer Ausdruck mit qr</translation>
    </message>
    <message>
        <source>Removed line</source>
        <translation>Entfernte Zeile</translation>
    </message>
    <message>
        <source>Removed line of a removed patch</source>
        <translation>Entfernte Zeile eines entfernten Patches</translation>
    </message>
    <message>
        <source>Removed line of an added patch</source>
        <translation>Entfernte Zeile eines hinzugefügten Patches</translation>
    </message>
    <message>
        <source>Rule of a group</source>
        <translation>Regel einer Gruppe</translation>
    </message>
    <message>
        <source>Scalar</source>
        <translation>Skalar</translation>
    </message>
    <message>
        <source>Script tag</source>
        <translation>Skript-Tag</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Server comment</source>
        <translation>Serverkommentar</translation>
    </message>
    <message>
        <source>Server script</source>
        <translation>Serverskript</translation>
    </message>
    <message>
        <source>Server script mark</source>
        <translation>Serverskript-Markierung</translation>
    </message>
    <message>
        <source>Setting or pragma</source>
        <translation>Einstellung oder Pragma</translation>
    </message>
    <message>
        <source>Short command</source>
        <translation>Kurzbefehl</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>Besonderes</translation>
    </message>
    <message>
        <source>Special character</source>
        <translation>Sonderzeichen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Start of an XML fragment</source>
        <translation>Anfang eines XML-Fragments</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Anweisung</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Zeichenkette</translation>
    </message>
    <message>
        <source>String in double quotes</source>
        <translation>Zeichenkette in doppelten Anführungszeichen</translation>
    </message>
    <message>
        <source>String in single quotes</source>
        <translation>Zeichenkette in einfachen Anführungszeichen</translation>
    </message>
    <message>
        <source>String with hash marks</source>
        <translation>Zeichenkette mit Rautezeichen</translation>
    </message>
    <message>
        <source>String with q</source>
        <translation>Zeichenkette mit q</translation>
    </message>
    <message>
        <source>String with qq</source>
        <translation>Zeichenkette mit qq</translation>
    </message>
    <message>
        <source>Substitution</source>
        <translation>Ersetzung</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Symbol table</source>
        <translation>Symboltabelle</translation>
    </message>
    <message>
        <source>System object</source>
        <translation>Systemobjekt</translation>
    </message>
    <message>
        <source>System table or view</source>
        <translation>Systemtabelle oder -sicht</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Task marker</source>
        <translation>Aufgabenmarke</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text before a data type</source>
        <translation>Text vor einem Datentyp</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>Transliteration</translation>
    </message>
    <message>
        <source>Triple double quotes</source>
        <translation>Dreifache doppelte Anführungszeichen</translation>
    </message>
    <message>
        <source>Triple single quotes</source>
        <translation>Dreifache einfache Anführungszeichen</translation>
    </message>
    <message>
        <source>Triple-quoted string</source>
        <translation>Dreifach begrenzte Zeichenkette</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>Unclosed string</source>
        <translation>Nicht geschlossene Zeichenkette</translation>
    </message>
    <message>
        <source>Unknown attribute</source>
        <translation>Unbekanntes Attribut</translation>
    </message>
    <message>
        <source>Unknown documentation keyword</source>
        <translation>Unbekanntes Dokumentationsschlüsselwort</translation>
    </message>
    <message>
        <source>Unknown property</source>
        <translation>Unbekannte Eigenschaft</translation>
    </message>
    <message>
        <source>Unknown pseudo-class</source>
        <translation>Unbekannte Pseudoklasse</translation>
    </message>
    <message>
        <source>Unknown tag</source>
        <translation>Unbekanntes Tag</translation>
    </message>
    <message>
        <source>Unmatched brace</source>
        <translation>Klammer ohne Gegenstück</translation>
    </message>
    <message>
        <source>Unquoted value</source>
        <translation>Wert ohne Anführungszeichen</translation>
    </message>
    <message>
        <source>User keyword</source>
        <translation>Eigenes Schlüsselwort</translation>
    </message>
    <message>
        <source>User literal</source>
        <translation>Eigenes Literal</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Variable in a command document</source>
        <translation>Variable in einem Befehlsdokument</translation>
    </message>
    <message>
        <source>Variable in a complex expression</source>
        <translation>Variable in einem komplexen Ausdruck</translation>
    </message>
    <message>
        <source>Variable in a here document</source>
        <translation>Variable in einem Here-Dokument</translation>
    </message>
    <message>
        <source>Variable in a regular expression</source>
        <translation>Variable in einem regulären Ausdruck</translation>
    </message>
    <message>
        <source>Variable in a string</source>
        <translation>Variable in einer Zeichenkette</translation>
    </message>
    <message>
        <source>Variable in a substitution</source>
        <translation>Variable in einer Ersetzung</translation>
    </message>
    <message>
        <source>Variable in backticks</source>
        <translation>Variable in Backticks</translation>
    </message>
    <message>
        <source>Variable in qq</source>
        <translation>Variable in qq</translation>
    </message>
    <message>
        <source>Variable in qr</source>
        <translation>Variable in qr</translation>
    </message>
    <message>
        <source>Variable in qx</source>
        <translation>Variable in qx</translation>
    </message>
    <message>
        <source>Variable indexer</source>
        <translation>Variablenindex</translation>
    </message>
    <message>
        <source>Verbatim documentation</source>
        <translation>Wörtliche Dokumentation</translation>
    </message>
    <message>
        <source>Verbatim string</source>
        <translation>Wörtliche Zeichenkette</translation>
    </message>
    <message>
        <source>Verbatim text</source>
        <translation>Wörtlicher Text</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Wort</translation>
    </message>
    <message>
        <source>Catalog and administrative views</source>
        <translation>Katalog- und Verwaltungssichten</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Commands (completion only)</source>
        <translation>Befehle (nur Vervollständigung)</translation>
    </message>
    <message>
        <source>Configuration parameters</source>
        <translation>Konfigurationsparameter</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Konstanten</translation>
    </message>
    <message>
        <source>Data types</source>
        <translation>Datentypen</translation>
    </message>
    <message>
        <source>Declaration keywords</source>
        <translation>Deklarationsschlüsselwörter</translation>
    </message>
    <message>
        <source>Diagnostics items</source>
        <translation>Diagnoseelemente</translation>
    </message>
    <message>
        <source>Dictionary and performance views</source>
        <translation>Wörterbuch- und Leistungssichten</translation>
    </message>
    <message>
        <source>Directives (completion only)</source>
        <translation>Direktiven (nur Vervollständigung)</translation>
    </message>
    <message>
        <source>Documentation keywords</source>
        <translation>Dokumentationsschlüsselwörter</translation>
    </message>
    <message>
        <source>Elements and attributes</source>
        <translation>Elemente und Attribute</translation>
    </message>
    <message>
        <source>Environments (completion only)</source>
        <translation>Umgebungen (nur Vervollständigung)</translation>
    </message>
    <message>
        <source>External commands</source>
        <translation>Externe Befehle</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>Functions (completion only)</source>
        <translation>Funktionen (nur Vervollständigung)</translation>
    </message>
    <message>
        <source>Global variables (without @@)</source>
        <translation>Globale Variablen (ohne @@)</translation>
    </message>
    <message>
        <source>Information schema</source>
        <translation>Informationsschema</translation>
    </message>
    <message>
        <source>JavaScript keywords</source>
        <translation>JavaScript-Schlüsselwörter</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Schlüsselwörter</translation>
    </message>
    <message>
        <source>Library types</source>
        <translation>Bibliothekstypen</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Operatoren</translation>
    </message>
    <message>
        <source>PHP functions (completion only)</source>
        <translation>PHP-Funktionen (nur Vervollständigung)</translation>
    </message>
    <message>
        <source>PHP keywords</source>
        <translation>PHP-Schlüsselwörter</translation>
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
        <translation>Prozedurale Schlüsselwörter</translation>
    </message>
    <message>
        <source>Procedures, table functions and modules</source>
        <translation>Prozeduren, Tabellenfunktionen und Module</translation>
    </message>
    <message>
        <source>Properties of CSS 1</source>
        <translation>Eigenschaften aus CSS 1</translation>
    </message>
    <message>
        <source>Properties of CSS 2</source>
        <translation>Eigenschaften aus CSS 2</translation>
    </message>
    <message>
        <source>Properties of CSS 3</source>
        <translation>Eigenschaften aus CSS 3</translation>
    </message>
    <message>
        <source>Properties of one browser</source>
        <translation>Eigenschaften eines Browsers</translation>
    </message>
    <message>
        <source>Pseudo-classes</source>
        <translation>Pseudoklassen</translation>
    </message>
    <message>
        <source>Pseudo-classes of one browser</source>
        <translation>Pseudoklassen eines Browsers</translation>
    </message>
    <message>
        <source>Pseudo-elements</source>
        <translation>Pseudoelemente</translation>
    </message>
    <message>
        <source>Pseudo-elements of one browser</source>
        <translation>Pseudoelemente eines Browsers</translation>
    </message>
    <message>
        <source>Python keywords</source>
        <translation>Python-Schlüsselwörter</translation>
    </message>
    <message>
        <source>Routines of the schema sys</source>
        <translation>Routinen des Schemas sys</translation>
    </message>
    <message>
        <source>Special targets (completion only)</source>
        <translation>Besondere Ziele (nur Vervollständigung)</translation>
    </message>
    <message>
        <source>Statements and clauses</source>
        <translation>Anweisungen und Klauseln</translation>
    </message>
    <message>
        <source>Supplied packages</source>
        <translation>Mitgelieferte Pakete</translation>
    </message>
    <message>
        <source>System and monitoring tables</source>
        <translation>System- und Überwachungstabellen</translation>
    </message>
    <message>
        <source>System catalogs and views</source>
        <translation>Systemkataloge und -sichten</translation>
    </message>
    <message>
        <source>System packages</source>
        <translation>Systempakete</translation>
    </message>
    <message>
        <source>System procedures</source>
        <translation>Systemprozeduren</translation>
    </message>
    <message>
        <source>System tables and modules</source>
        <translation>Systemtabellen und -module</translation>
    </message>
    <message>
        <source>System tables and views</source>
        <translation>Systemtabellen und -sichten</translation>
    </message>
    <message>
        <source>System variables (without @@)</source>
        <translation>Systemvariablen (ohne @@)</translation>
    </message>
    <message>
        <source>Task markers</source>
        <translation>Aufgabenmarken</translation>
    </message>
    <message>
        <source>VBScript keywords</source>
        <translation>VBScript-Schlüsselwörter</translation>
    </message>
    <message>
        <source>Values of pragmas</source>
        <translation>Werte von Pragmas</translation>
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
        <translation>K&amp;opieren</translation>
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
        <translation>&amp;Einrücken</translation>
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
        <translation>Kle&amp;inbuchstaben</translation>
    </message>
    <message>
        <source>Match Bra&amp;ce</source>
        <translation>Zuge&amp;hörige Klammer</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>Lesezei&amp;chen umschalten</translation>
    </message>
    <message>
        <source>&amp;Next Bookmark</source>
        <translation>&amp;Nächstes Lesezeichen</translation>
    </message>
    <message>
        <source>Previous Boo&amp;kmark</source>
        <translation>Vorheriges &amp;Lesezeichen</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>Ver&amp;kleinern</translation>
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
        <translation>A&amp;uskommentieren</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>Ko&amp;mmentar aufheben</translation>
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
        <translation>E&amp;rsetzen...</translation>
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
        <translation>Einstellungen &amp;für Editor und Sprachen...</translation>
    </message>
    <message>
        <source>Insert Template</source>
        <translation>Vorlage einfügen</translation>
    </message>
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
        <translation>Gehe zu Zeile:</translation>
    </message>
    <message>
        <source>Select &amp;Statement</source>
        <translation>&amp;Anweisung auswählen</translation>
    </message>
    <message>
        <source>Record &amp;Macro</source>
        <translation>&amp;Makro aufzeichnen</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>Makro &amp;abspielen</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>Do&amp;kumentkarte</translation>
    </message>
</context>
</TS>
