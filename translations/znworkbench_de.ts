<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About znworkbench</source>
        <translation>Über znworkbench</translation>
    </message>
    <message>
        <source>Edits SQL scripts. It is the example host of the editor component ZNCoreEditor.

Over Qt %1. Licensed under the GNU General Public License, version 3 or later.</source>
        <translation>Bearbeitet SQL-Skripte. Es ist das Beispielprogramm der Editorkomponente ZNCoreEditor.

Mit Qt %1. Lizenziert unter der GNU General Public License, Version 3 oder später.</translation>
    </message>
</context>
<context>
    <name>Arguments</name>
    <message>
        <source>Opens SQL scripts, one tab for each.</source>
        <translation>Öffnet SQL-Skripte, jedes in einem Tab.</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>Zeigt diesen Text.</translation>
    </message>
    <message>
        <source>Writes a picture of the window and exits.</source>
        <translation>Schreibt ein Bild des Fensters und beendet sich.</translation>
    </message>
    <message>
        <source>Tells which version this is.</source>
        <translation>Nennt die Version.</translation>
    </message>
    <message>
        <source>Scripts to open, each at a line and a column: a.sql:120:7.</source>
        <translation>Skripte, die geöffnet werden, auf Wunsch mit Zeile und Spalte: a.sql:120:7.</translation>
    </message>
    <message>
        <source>--screenshot needs the name of a file.</source>
        <translation>--screenshot braucht den Namen einer Datei.</translation>
    </message>
    <message>
        <source>Opens a window of its own, not a tab in the workbench that runs.</source>
        <translation>Öffnet ein eigenes Fenster, keinen Tab im Programm, das schon läuft.</translation>
    </message>
</context>
<context>
    <name>AutosaveDialog</name>
    <message>
        <source>&amp;Keep copies of unsaved changes</source>
        <translation>&amp;Kopien ungespeicherter Änderungen anlegen</translation>
    </message>
    <message>
        <source>Autosave</source>
        <translation>Automatisch sichern</translation>
    </message>
    <message>
        <source>&amp;Minutes between copies</source>
        <translation>&amp;Minuten zwischen den Kopien</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Type what a command is called</source>
        <translation>Namen eines Befehls eingeben</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>No command has these words in its name</source>
        <translation>Kein Befehl hat diese Wörter in seinem Namen</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>%1 is not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>%1 wird nicht verglichen: Was kein Text ist, länger als 8 MB ist oder nicht gelesen werden kann, wird nicht gezeigt.</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the script alone.</source>
        <translation>%1: Zeilen mit - stehen nur in der Datei, Zeilen mit + nur im Skript.</translation>
    </message>
    <message>
        <source>%1: script and file have the same text.</source>
        <translation>%1: Skript und Datei haben denselben Text.</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>C&amp;omments</source>
        <translation>K&amp;ommentare</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>Ei&amp;nrückung</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Zeilen</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Wörter</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Auswahl</translation>
    </message>
    <message>
        <source>&amp;Bookmarks</source>
        <translation>Leseze&amp;ichen</translation>
    </message>
    <message>
        <source>&amp;Comment Out</source>
        <translation>&amp;Auskommentieren</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>K&amp;ommentar aufheben</translation>
    </message>
    <message>
        <source>Comment &amp;Lines Out</source>
        <translation>&amp;Zeilen auskommentieren</translation>
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
        <source>&amp;Tabs to Spaces</source>
        <translation>&amp;Tabulatoren in Leerzeichen</translation>
    </message>
    <message>
        <source>&amp;Spaces to Tabs</source>
        <translation>Leerzeichen &amp;in Tabulatoren</translation>
    </message>
    <message>
        <source>Trim T&amp;railing Spaces</source>
        <translation>&amp;Leerzeichen am Zeilenende entfernen</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>Aufsteigend &amp;sortieren</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>&amp;Absteigend sortieren</translation>
    </message>
    <message>
        <source>&amp;End the Last Line</source>
        <translation>&amp;Letzte Zeile abschließen</translation>
    </message>
    <message>
        <source>Convert Line Ends to C&amp;R+LF (Windows)</source>
        <translation>Zeilenenden in CR+LF (&amp;Windows) umwandeln</translation>
    </message>
    <message>
        <source>Convert Line Ends to L&amp;F (Unix)</source>
        <translation>Zeilenenden &amp;in LF (Unix) umwandeln</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (&amp;Mac)</source>
        <translation>Zeilenenden in &amp;CR (Mac) umwandeln</translation>
    </message>
    <message>
        <source>&amp;Upper Case</source>
        <translation>&amp;Großbuchstaben</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>&amp;Kleinbuchstaben</translation>
    </message>
    <message>
        <source>Ca&amp;pitalize</source>
        <translation>&amp;Anfangsbuchstaben groß</translation>
    </message>
    <message>
        <source>Upper Case of a W&amp;ord</source>
        <translation>Wort &amp;in Großbuchstaben</translation>
    </message>
    <message>
        <source>Lower Case of a Wo&amp;rd</source>
        <translation>W&amp;ort in Kleinbuchstaben</translation>
    </message>
    <message>
        <source>Capi&amp;talize a Word</source>
        <translation>Wort &amp;mit großem Anfangsbuchstaben</translation>
    </message>
    <message>
        <source>D&amp;elete a Word</source>
        <translation>&amp;Wort löschen</translation>
    </message>
    <message>
        <source>Swap &amp;Characters</source>
        <translation>Z&amp;eichen vertauschen</translation>
    </message>
    <message>
        <source>Swap &amp;Words</source>
        <translation>Wö&amp;rter vertauschen</translation>
    </message>
    <message>
        <source>&amp;Increase Number</source>
        <translation>&amp;Zahl erhöhen</translation>
    </message>
    <message>
        <source>&amp;Decrease Number</source>
        <translation>Zahl &amp;verringern</translation>
    </message>
    <message>
        <source>&amp;Word</source>
        <translation>&amp;Wort</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Zeile</translation>
    </message>
    <message>
        <source>&amp;Paragraph</source>
        <translation>A&amp;bsatz</translation>
    </message>
    <message>
        <source>To Matching &amp;Bracket</source>
        <translation>Bis zur zugehörigen &amp;Klammer</translation>
    </message>
    <message>
        <source>&amp;Caret to the Other End</source>
        <translation>E&amp;infügemarke ans andere Ende</translation>
    </message>
    <message>
        <source>&amp;Toggle</source>
        <translation>&amp;Umschalten</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächstes</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorheriges</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>&amp;Erstes</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>&amp;Letztes</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>&amp;Alle entfernen</translation>
    </message>
    <message>
        <source>Ins&amp;ert File...</source>
        <translation>&amp;Datei einfügen...</translation>
    </message>
</context>
<context>
    <name>Encodings</name>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 mit BOM</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE mit BOM</translation>
    </message>
    <message>
        <source>UTF-16 BE with mark</source>
        <translation>UTF-16 BE mit BOM</translation>
    </message>
    <message>
        <source>UTF-32 LE with mark</source>
        <translation>UTF-32 LE mit BOM</translation>
    </message>
    <message>
        <source>UTF-32 BE with mark</source>
        <translation>UTF-32 BE mit BOM</translation>
    </message>
    <message>
        <source>Unknown encoding</source>
        <translation>Unbekannte Kodierung</translation>
    </message>
    <message>
        <source>Western European</source>
        <translation>Westeuropäisch</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Mitteleuropäisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Baltisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamesisch</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>Chinesisch, vereinfacht</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>Chinesisch, traditionell</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
</context>
<context>
    <name>ExpandedScript</name>
    <message>
        <source>Expanded Script</source>
        <translation>Expandiertes Skript</translation>
    </message>
    <message>
        <source>Expanded script</source>
        <translation>Expandiertes Skript</translation>
    </message>
    <message>
        <source>Files are looked for beside the script, and in the folders that Tools &gt; Options names.</source>
        <translation>Dateien werden neben dem Skript gesucht und in den Ordnern, die unter Extras &gt; Optionen stehen.</translation>
    </message>
    <message>
        <source>Problems of the expanded script</source>
        <translation>Probleme des expandierten Skripts</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Go to Source</source>
        <translation>Zur Quelle</translation>
    </message>
    <message>
        <source>Put Original Back</source>
        <translation>Original zurückholen</translation>
    </message>
    <message>
        <source>Original Script</source>
        <translation>Originalskript</translation>
    </message>
    <message>
        <source>Nothing was expanded. #include, #define and &amp;&amp;NAME are; the lines by which client programs read files (\i, @, :r) stay as they are.</source>
        <translation>Nichts wurde expandiert. Expandiert werden #include, #define und &amp;&amp;NAME; Zeilen, mit denen Client-Programme Dateien lesen (\i, @, :r), bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>%1 (out of date)</source>
        <translation>%1 (veraltet)</translation>
    </message>
    <message>
        <source>The script was changed since. Tools &gt; Expanded Script shows it as it is.</source>
        <translation>Das Skript wurde seitdem geändert. Extras &gt; Expandiertes Skript zeigt es, wie es ist.</translation>
    </message>
</context>
<context>
    <name>ExpressionHelp</name>
    <message>
        <source>any character of the line</source>
        <translation>ein beliebiges Zeichen der Zeile</translation>
    </message>
    <message>
        <source>one of a set; [^a-z] any other</source>
        <translation>eines aus einer Menge; [^a-z] jedes andere</translation>
    </message>
    <message>
        <source>a digit; \D any other</source>
        <translation>eine Ziffer; \D jedes andere</translation>
    </message>
    <message>
        <source>a character of a word; \W any other</source>
        <translation>ein Wortzeichen; \W jedes andere</translation>
    </message>
    <message>
        <source>a blank; \S any other</source>
        <translation>ein Leerzeichen; \S jedes andere</translation>
    </message>
    <message>
        <source>what stands before, any number of times</source>
        <translation>was davor steht, beliebig oft</translation>
    </message>
    <message>
        <source>what stands before, once at least</source>
        <translation>was davor steht, mindestens einmal</translation>
    </message>
    <message>
        <source>what stands before, or nothing</source>
        <translation>was davor steht, oder nichts</translation>
    </message>
    <message>
        <source>what stands before, two to four times</source>
        <translation>was davor steht, zwei- bis viermal</translation>
    </message>
    <message>
        <source>what stands before, or what follows</source>
        <translation>was davor steht, oder was folgt</translation>
    </message>
    <message>
        <source>a group; \1 to \9 in the replacement</source>
        <translation>eine Gruppe; \1 bis \9 in der Ersetzung</translation>
    </message>
    <message>
        <source>the start of a line</source>
        <translation>der Anfang einer Zeile</translation>
    </message>
    <message>
        <source>the end of a line</source>
        <translation>das Ende einer Zeile</translation>
    </message>
    <message>
        <source>an edge of a word</source>
        <translation>eine Wortgrenze</translation>
    </message>
    <message>
        <source>the start of a word</source>
        <translation>der Anfang eines Worts</translation>
    </message>
    <message>
        <source>the end of a word</source>
        <translation>das Ende eines Worts</translation>
    </message>
    <message>
        <source>the match ends here</source>
        <translation>der Treffer endet hier</translation>
    </message>
    <message>
        <source>a line feed</source>
        <translation>ein Zeilenvorschub</translation>
    </message>
    <message>
        <source>a tab</source>
        <translation>ein Tabulator</translation>
    </message>
    <message>
        <source>What an expression may say</source>
        <translation>Was ein Ausdruck enthalten kann</translation>
    </message>
    <message>
        <source>&amp;Groups by ( and )</source>
        <translation>&amp;Gruppen mit ( und )</translation>
    </message>
    <message>
        <source>G&amp;roups by \( and \)</source>
        <translation>Gruppen &amp;mit \( und \)</translation>
    </message>
</context>
<context>
    <name>FieldMenus</name>
    <message>
        <source>Tabs: %1</source>
        <translation>Tabulatoren: %1</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>Leerzeichen: %1</translation>
    </message>
    <message>
        <source>Indent with &amp;Tabs</source>
        <translation>Mit &amp;Tabulatoren einrücken</translation>
    </message>
    <message>
        <source>Indent with &amp;Spaces</source>
        <translation>&amp;Mit Leerzeichen einrücken</translation>
    </message>
    <message>
        <source>&amp;%1 Columns</source>
        <translation>&amp;%1 Spalten</translation>
    </message>
</context>
<context>
    <name>FileReplacer</name>
    <message>
        <source>it may not be written</source>
        <translation>sie darf nicht geschrieben werden</translation>
    </message>
    <message>
        <source>its encoding does not have %1</source>
        <translation>in ihrer Kodierung gibt es %1 nicht</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message>
        <source>its text is another one by now</source>
        <translation>ihr Text ist inzwischen ein anderer</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>No expression: %1</source>
        <translation>Kein Ausdruck: %1</translation>
    </message>
    <message>
        <source>No expression: %1, at character %2</source>
        <translation>Kein Ausdruck: %1, bei Zeichen %2</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>Nichts ist ausgewählt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>mehr als %1</translation>
    </message>
    <message>
        <source>On from the top</source>
        <translation>Weiter von vorn</translation>
    </message>
    <message>
        <source>On from the end</source>
        <translation>Weiter vom Ende</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>gone round</source>
        <translation>von vorn begonnen</translation>
    </message>
    <message>
        <source>%1, gone round</source>
        <translation>%1, von vorn begonnen</translation>
    </message>
    <message numerus="yes">
        <source>%n found and marked</source>
        <translation>
            <numerusform>%n gefunden und markiert</numerusform>
            <numerusform>%n gefunden und markiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n gefunden</numerusform>
            <numerusform>%n gefunden</numerusform>
        </translation>
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
        <source>Find &amp;Previous</source>
        <translation>&amp;Rückwärts weitersuchen</translation>
    </message>
    <message>
        <source>Find the &amp;Word Next</source>
        <translation>W&amp;ort am Cursor weitersuchen</translation>
    </message>
    <message>
        <source>Find the W&amp;ord Previous</source>
        <translation>Wor&amp;t am Cursor rückwärts suchen</translation>
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
        <source>&amp;Mark All</source>
        <translation>Alle &amp;markieren</translation>
    </message>
    <message>
        <source>Co&amp;unt</source>
        <translation>&amp;Zählen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>&amp;Whole word</source>
        <translation>&amp;Ganze Wörter</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>&amp;Ausdruck</translation>
    </message>
    <message>
        <source>&amp;In selection</source>
        <translation>&amp;In Auswahl</translation>
    </message>
    <message>
        <source>&amp;Keep case</source>
        <translation>S&amp;chreibung behalten</translation>
    </message>
    <message>
        <source>Replacing</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>A replacement is in capitals where what it replaces is</source>
        <translation>Eine Ersetzung steht in Großbuchstaben, wo der ersetzte Text es tut</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message numerus="yes">
        <source>Stopped, %n replaced</source>
        <translation>
            <numerusform>Abgebrochen, %n ersetzt</numerusform>
            <numerusform>Abgebrochen, %n ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>%n ersetzt</numerusform>
            <numerusform>%n ersetzt</numerusform>
        </translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>Groß/&amp;klein</translation>
    </message>
</context>
<context>
    <name>FolderModel</name>
    <message>
        <source>%1, in front</source>
        <translation>%1, vorn</translation>
    </message>
</context>
<context>
    <name>FolderPane</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Files of the folder</source>
        <translation>Dateien des Ordners</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>Part of a name, or *.sql</source>
        <translation>Teil eines Namens oder *.sql</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Open another folder</source>
        <translation>Einen anderen Ordner öffnen</translation>
    </message>
    <message>
        <source>Show the folder around this one</source>
        <translation>Den übergeordneten Ordner zeigen</translation>
    </message>
    <message>
        <source>Show Script</source>
        <translation>Skript zeigen</translation>
    </message>
    <message>
        <source>Show the script in front among its files</source>
        <translation>Das Skript vorn unter seinen Dateien zeigen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open &amp;Behind the Script in Front</source>
        <translation>&amp;Hinter dem Skript vorn öffnen</translation>
    </message>
    <message>
        <source>Show &amp;Only This Folder</source>
        <translation>&amp;Nur diesen Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;New Script Here</source>
        <translation>Neues S&amp;kript hier</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>&amp;Enthaltenden Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>GoToDialog</name>
    <message>
        <source>Go to Line</source>
        <translation>Gehe zu Zeile</translation>
    </message>
    <message>
        <source>From 1 to %1, or line:column</source>
        <translation>Von 1 bis %1, oder Zeile:Spalte</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Zeile</translation>
    </message>
    <message>
        <source>“%1” is no place here: a number from 1 to %2 is expected, or line:column.</source>
        <translation>„%1“ ist hier keine Stelle: erwartet wird eine Zahl von 1 bis %2, oder Zeile:Spalte.</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Part of a command or of a key</source>
        <translation>Teil eines Befehls oder einer Taste</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Commands and keys</source>
        <translation>Befehle und Tasten</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>Neue Taste</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>Eine Taste drücken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>Än&amp;dern...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>R&amp;eset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset &amp;All...</source>
        <translation>&amp;Alle zurücksetzen...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Changed. It comes without a key.</source>
        <translation>Geändert. Ursprünglich ohne Taste.</translation>
    </message>
    <message>
        <source>Changed. It comes with %1.</source>
        <translation>Geändert. Ursprünglich %1.</translation>
    </message>
    <message>
        <source>No command has these words in its name or its keys.</source>
        <translation>Kein Befehl hat diese Wörter im Namen oder in den Tasten.</translation>
    </message>
    <message>
        <source>%1 is the key of no command.</source>
        <translation>%1 ist die Taste keines Befehls.</translation>
    </message>
    <message>
        <source>Press the key for “%1”. Escape leaves it as it is.</source>
        <translation>Drücken Sie die Taste für „%1“. Escape lässt alles, wie es ist.</translation>
    </message>
    <message>
        <source>%1 alone is for writing and for moving about. Take it with Ctrl or Alt, or take a function key.</source>
        <translation>%1 allein dient dem Schreiben und Bewegen. Nehmen Sie die Taste mit Strg oder Alt, oder eine Funktionstaste.</translation>
    </message>
    <message>
        <source>%1 opens the menu “%2”.</source>
        <translation>%1 öffnet das Menü „%2“.</translation>
    </message>
    <message>
        <source>%1 presses the button “%2” of the window.</source>
        <translation>%1 drückt die Schaltfläche „%2“ des Fensters.</translation>
    </message>
    <message>
        <source>%1 is the key of “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 ist die Taste von „%2“. Möchten Sie sie „%3“ geben?</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>Do you want to give all commands their first keys again?</source>
        <translation>Möchten Sie allen Befehlen wieder ihre ursprünglichen Tasten geben?</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>The keys could not be written to the settings. They are as shown until the workbench ends.</source>
        <translation>Die Tasten konnten nicht in die Einstellungen geschrieben werden. Sie gelten, bis die Anwendung endet.</translation>
    </message>
    <message>
        <source>%1 is a key of the text, for “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 ist eine Taste des Textes, für „%2“. Soll sie zu „%3“ verschoben werden?</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>Use for Ne&amp;w Scripts</source>
        <translation>&amp;Für neue Skripte verwenden</translation>
    </message>
</context>
<context>
    <name>LineEndWatch</name>
    <message>
        <source>Mixed</source>
        <translation>Gemischt</translation>
    </message>
</context>
<context>
    <name>MacroCommands</name>
    <message>
        <source>Macros (*.znmacro)</source>
        <translation>Makros (*.znmacro)</translation>
    </message>
    <message>
        <source>The macro was not saved to %1. %2</source>
        <translation>Das Makro wurde nicht in %1 gespeichert. %2</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 kann nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>%1 is not a macro.</source>
        <translation>%1 ist kein Makro.</translation>
    </message>
    <message>
        <source>%1 is not a macro that can be played: line %2 is no command that is recorded.</source>
        <translation>%1 ist kein Makro, das abgespielt werden kann: Zeile %2 ist kein Befehl, der aufgezeichnet wird.</translation>
    </message>
    <message>
        <source>Macro loaded: %1</source>
        <translation>Makro geladen: %1</translation>
    </message>
    <message>
        <source>Macro loaded: %1. %2 plays it.</source>
        <translation>Makro geladen: %1. %2 spielt es ab.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>%1 could not be written to the settings; the disk may be full. It holds until the workbench ends.</source>
        <translation>%1 konnte nicht in die Einstellungen geschrieben werden; vielleicht ist der Datenträger voll. Es gilt, bis das Programm endet.</translation>
    </message>
    <message>
        <source>There is no “%1”.</source>
        <translation>„%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Anlegen</translation>
    </message>
    <message>
        <source>“%1” cannot be created: %2</source>
        <translation>„%1“ kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>What you chose</source>
        <translation>Ihre Auswahl</translation>
    </message>
    <message>
        <source>The choice about autosave</source>
        <translation>Die Wahl zum automatischen Sichern</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;with Encoding...</source>
        <translation>&amp;Mit Kodierung öffnen...</translation>
    </message>
    <message>
        <source>Open a&amp;t Caret</source>
        <translation>Da&amp;tei am Cursor öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save A&amp;ll</source>
        <translation>&amp;Alle speichern</translation>
    </message>
    <message>
        <source>Reloa&amp;d</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>Read Onl&amp;y</source>
        <translation>Schrei&amp;bgeschützt</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Print Pre&amp;view...</source>
        <translation>D&amp;ruckvorschau...</translation>
    </message>
    <message>
        <source>Save as PD&amp;F...</source>
        <translation>Als &amp;PDF speichern...</translation>
    </message>
    <message>
        <source>Save as &amp;HTML...</source>
        <translation>Als &amp;HTML speichern...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Reopen Closed Ta&amp;b</source>
        <translation>&amp;Geschlossenen Tab wieder öffnen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Auss&amp;chneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy wit&amp;h Colours</source>
        <translation>&amp;Mit Farben kopieren</translation>
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
        <translation>Alles a&amp;uswählen</translation>
    </message>
    <message>
        <source>Function Arguments</source>
        <translation>Funktionsargumente</translation>
    </message>
    <message>
        <source>Insert Template...</source>
        <translation>Vorlage einfügen...</translation>
    </message>
    <message>
        <source>Find with a &amp;Dialog...</source>
        <translation>S&amp;uchdialog...</translation>
    </message>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>&amp;Gehe zu Zeile...</translation>
    </message>
    <message>
        <source>Go to S&amp;ymbol...</source>
        <translation>Gehe zu S&amp;ymbol...</translation>
    </message>
    <message>
        <source>&amp;Stop Search</source>
        <translation>Suche a&amp;bbrechen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>V&amp;erkleinern</translation>
    </message>
    <message>
        <source>Line &amp;Ends</source>
        <translation>&amp;Zeilenenden</translation>
    </message>
    <message>
        <source>Wrap &amp;Lines</source>
        <translation>Lange Zeilen &amp;umbrechen</translation>
    </message>
    <message>
        <source>Split &amp;Above and Below</source>
        <translation>Übereinander &amp;teilen</translation>
    </message>
    <message>
        <source>Ot&amp;her Pane</source>
        <translation>An&amp;derer Bereich</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>Nä&amp;chster Fensterteil</translation>
    </message>
    <message>
        <source>&amp;Expanded Script</source>
        <translation>&amp;Expandiertes Skript</translation>
    </message>
    <message>
        <source>&amp;Record Macro</source>
        <translation>Ma&amp;kro aufzeichnen</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>Makro &amp;abspielen</translation>
    </message>
    <message>
        <source>Repea&amp;t Macro...</source>
        <translation>Makro &amp;wiederholen...</translation>
    </message>
    <message>
        <source>&amp;Save Macro...</source>
        <translation>Makro &amp;speichern...</translation>
    </message>
    <message>
        <source>&amp;Load Macro...</source>
        <translation>&amp;Makro laden...</translation>
    </message>
    <message>
        <source>Edit Te&amp;mplates</source>
        <translation>&amp;Vorlagen bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Commands...</source>
        <translation>&amp;Befehle...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Optionen...</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>Einstellungen &amp;für Editor und Sprachen...</translation>
    </message>
    <message>
        <source>&amp;Autosave...</source>
        <translation>A&amp;utomatisch sichern...</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Über &amp;znworkbench</translation>
    </message>
    <message>
        <source>What was open last cannot be read. </source>
        <translation>Was zuletzt offen war, kann nicht gelesen werden. </translation>
    </message>
    <message>
        <source>It is not kept this time, so that “%1” stays as it is.</source>
        <translation>Diesmal wird es nicht gemerkt, damit „%1“ bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>It is in “%1” now.</source>
        <translation>Es ist jetzt in „%1“.</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed: no tables, views, procedures, and so on.</source>
        <translation>Das Skript legt nichts an, was aufgelistet werden könnte: keine Tabellen, Sichten, Prozeduren und so weiter.</translation>
    </message>
    <message>
        <source>There is no outline for %1. The field with the language in the status bar changes it.</source>
        <translation>Für %1 gibt es keine Gliederung. Das Feld mit der Sprache in der Statusleiste ändert sie.</translation>
    </message>
    <message numerus="yes">
        <source>   %n matches</source>
        <translation>
            <numerusform>   %n Treffer</numerusform>
            <numerusform>   %n Treffer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>   %n matches and more</source>
        <translation>
            <numerusform>   %n Treffer und mehr</numerusform>
            <numerusform>   %n Treffer und mehr</numerusform>
        </translation>
    </message>
    <message>
        <source>Find Results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>Find Results 2</source>
        <translation>Suchergebnisse 2</translation>
    </message>
    <message>
        <source>R&amp;eplace with a Dialog...</source>
        <translation>Ersetze&amp;n-Dialog...</translation>
    </message>
    <message>
        <source>Find in F&amp;iles...</source>
        <translation>&amp;In Dateien suchen...</translation>
    </message>
    <message>
        <source>Ne&amp;xt Result</source>
        <translation>Nä&amp;chster Treffer</translation>
    </message>
    <message>
        <source>Previous Resul&amp;t</source>
        <translation>&amp;Vorheriger Treffer</translation>
    </message>
    <message>
        <source>&amp;Go to Script...</source>
        <translation>&amp;Gehe zu Skript...</translation>
    </message>
    <message>
        <source>Las&amp;t Used Script</source>
        <translation>Zuletzt benutztes Skr&amp;ipt</translation>
    </message>
    <message>
        <source>Longest Unused Script</source>
        <translation>Am längsten unbenutztes Skript</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>S&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>Aufzeichnung been&amp;den</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>The caret was nowhere else before.</source>
        <translation>Die Einfügemarke war vorher nirgends sonst.</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>Do&amp;kumentkarte</translation>
    </message>
    <message>
        <source>Open Fold&amp;er...</source>
        <translation>&amp;Ordner öffnen...</translation>
    </message>
    <message>
        <source>Split Side b&amp;y Side</source>
        <translation>&amp;Nebeneinander teilen</translation>
    </message>
    <message>
        <source>O&amp;utline</source>
        <translation>Gliede&amp;rung</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>&amp;Werkzeugleiste</translation>
    </message>
    <message>
        <source>Complete Word</source>
        <translation>Wort vervollständigen</translation>
    </message>
    <message>
        <source>&amp;Reset Zoom</source>
        <translation>Zoo&amp;m zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Whitespace</source>
        <translation>&amp;Leerzeichen</translation>
    </message>
    <message>
        <source>Previous Pane</source>
        <translation>Vorheriger Bereich</translation>
    </message>
    <message>
        <source>New &amp;View</source>
        <translation>Neue &amp;Ansicht</translation>
    </message>
    <message>
        <source>Next Problem</source>
        <translation>Nächstes Problem</translation>
    </message>
    <message>
        <source>Previous Problem</source>
        <translation>Vorheriges Problem</translation>
    </message>
    <message>
        <source>Next Script</source>
        <translation>Nächstes Skript</translation>
    </message>
    <message>
        <source>Previous Script</source>
        <translation>Vorheriges Skript</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>&amp;Probleme</translation>
    </message>
    <message>
        <source>E&amp;xpanded Script</source>
        <translation>E&amp;xpandiertes Skript</translation>
    </message>
    <message>
        <source>Find Re&amp;sults</source>
        <translation>&amp;Suchergebnisse</translation>
    </message>
    <message>
        <source>Find Results &amp;2</source>
        <translation>Suchergebnisse &amp;2</translation>
    </message>
</context>
<context>
    <name>OpenAsDialog</name>
    <message>
        <source>Open with Encoding</source>
        <translation>Mit Kodierung öffnen</translation>
    </message>
    <message>
        <source>SQL scripts (%1)</source>
        <translation>SQL-Skripte (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>Erkennen</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
</context>
<context>
    <name>OpenGuard</name>
    <message>
        <source>The workbench ended unexpectedly while it was opening “%1”. Open the file again?</source>
        <translation>Das Programm endete unerwartet, als es „%1“ öffnete. Die Datei noch einmal öffnen?</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Insert &amp;blanks for Tab</source>
        <translation>&amp;Leerzeichen statt Tabulator einfügen</translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation>&amp;Zeilennummern</translation>
    </message>
    <message>
        <source>F&amp;old margin</source>
        <translation>&amp;Faltleiste</translation>
    </message>
    <message>
        <source>Enter &amp;continues a comment</source>
        <translation>Eingabetaste setzt &amp;Kommentare fort</translation>
    </message>
    <message>
        <source>T&amp;yped quotes and brackets surround the selection</source>
        <translation>Getippte Anführungszeichen &amp;und Klammern fassen die Auswahl ein</translation>
    </message>
    <message>
        <source>&amp;Print in colours</source>
        <translation>In F&amp;arbe drucken</translation>
    </message>
    <message>
        <source>Print the &amp;grounds of colours</source>
        <translation>&amp;Hintergrundfarben drucken</translation>
    </message>
    <message>
        <source>Print in a font of its o&amp;wn</source>
        <translation>In &amp;eigener Schrift drucken</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>Gar nicht</translation>
    </message>
    <message>
        <source>As the line above</source>
        <translation>Wie die Zeile darüber</translation>
    </message>
    <message>
        <source>By the language</source>
        <translation>Nach der Sprache</translation>
    </message>
    <message>
        <source>Folders, with ; between them</source>
        <translation>Ordner, durch ; getrennt</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>&amp;Schriftart</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>&amp;Tab width, in columns</source>
        <translation>&amp;Tabulatorbreite, in Spalten</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>&amp;Neue Zeilen einrücken</translation>
    </message>
    <message>
        <source>Folders of i&amp;ncluded files</source>
        <translation>&amp;Ordner für Include-Dateien</translation>
    </message>
    <message>
        <source>P&amp;rint font</source>
        <translation>&amp;Druckschrift</translation>
    </message>
    <message>
        <source>Print si&amp;ze</source>
        <translation>Größe &amp;im Druck</translation>
    </message>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 mit BOM</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE mit BOM</translation>
    </message>
    <message>
        <source>Of new scripts, and of files that do not tell theirs by a mark or by what stands in them</source>
        <translation>Von neuen Skripten und von Dateien, die sie weder durch eine BOM noch durch ihren Inhalt zeigen</translation>
    </message>
    <message>
        <source>&amp;Encoding without a mark</source>
        <translation>Kodie&amp;rung ohne BOM</translation>
    </message>
    <message>
        <source>Close brackets and &amp;quotes</source>
        <translation>Kla&amp;mmern und Anführungszeichen schließen</translation>
    </message>
    <message>
        <source>Print na&amp;me, page numbers and date</source>
        <translation>Name, Seitenzahl und Datum dru&amp;cken</translation>
    </message>
    <message>
        <source>None of Unicode: as below</source>
        <translation>Kein Unicode: wie unten</translation>
    </message>
    <message>
        <source>What a file is read as that has no mark and is not UTF-8. One that looks wrong can be opened with another: click its encoding in the status bar.</source>
        <translation>Wie eine Datei gelesen wird, die keine Marke hat und nicht UTF-8 ist. Eine, die falsch aussieht, lässt sich mit einer anderen öffnen: auf die Kodierung in der Statusleiste klicken.</translation>
    </message>
    <message>
        <source>Files that are no &amp;Unicode</source>
        <translation>&amp;Was kein Unicode ist</translation>
    </message>
    <message>
        <source>By the language: as the line above, and a step further in behind {, ) and : alone, which is for languages with braces. With &quot;Close brackets and quotes&quot; what brackets hold is a step further in either way.</source>
        <translation>Nach der Sprache: wie die Zeile darüber, und einen Schritt weiter eingerückt nur hinter {, ) und :, was für Sprachen mit geschweiften Klammern gedacht ist. Mit „Klammern und Anführungszeichen schließen“ ist in beiden Fällen einen Schritt weiter eingerückt, was in Klammern steht.</translation>
    </message>
    <message>
        <source>There is no font “%1”.</source>
        <translation>Es gibt keine Schriftart „%1“.</translation>
    </message>
</context>
<context>
    <name>OutlinePane</name>
    <message>
        <source>Outline</source>
        <translation>Gliederung</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Teil eines Namens</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Outline of the script</source>
        <translation>Gliederung des Skripts</translation>
    </message>
</context>
<context>
    <name>PaneTabs</name>
    <message>
        <source>Panes</source>
        <translation>Bereiche</translation>
    </message>
</context>
<context>
    <name>PathField</name>
    <message>
        <source>Path of the script</source>
        <translation>Pfad des Skripts</translation>
    </message>
</context>
<context>
    <name>ProblemPane</name>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Problems of the script</source>
        <translation>Probleme des Skripts</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
</context>
<context>
    <name>Prompts</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql *.pks *.pkb *.ddl);;All files (*)</source>
        <translation>SQL-Skripte (*.sql *.pks *.pkb *.ddl);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation>„%1“ hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>They are lost if you discard them.</source>
        <translation>Wenn Sie sie verwerfen, gehen sie verloren.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as &amp;UTF-8</source>
        <translation>&amp;Als UTF-8 speichern</translation>
    </message>
    <message>
        <source>Save with &amp;Question Marks</source>
        <translation>&amp;Mit Fragezeichen speichern</translation>
    </message>
    <message>
        <source>“%1” is there already.</source>
        <translation>„%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Co&amp;mpare...</source>
        <translation>&amp;Vergleichen...</translation>
    </message>
</context>
<context>
    <name>ReadLoss</name>
    <message>
        <source>The file itself is as it was, and stays so until it is saved.</source>
        <translation>Die Datei selbst ist, wie sie war, und bleibt so, bis sie gespeichert wird.</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: byte %L2 of the file is a NUL, which no text has.</source>
        <translation>Nur der erste Teil von „%1“ wird gezeigt: Byte %L2 der Datei ist ein NUL, das kein Text hat.</translation>
    </message>
    <message>
        <source>File &gt; Open with Encoding reads it in another encoding.</source>
        <translation>„Datei &gt; Mit Kodierung öffnen“ liest sie in einer anderen Kodierung.</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: what follows is no text in %2, or cannot be read.</source>
        <translation>Nur der erste Teil von „%1“ wird gezeigt: Was folgt, ist kein Text in %2 oder kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%1” has bytes that are no %2: %L3, the first in line %L4. They are shown as “%5”.</source>
        <translation>„%1“ hat Bytes, die kein %2 sind: %L3, das erste in Zeile %L4. Sie werden als „%5“ gezeigt.</translation>
    </message>
    <message>
        <source>Only the first part of “%1” could be read. Saving it under its own name loses the rest of the file.</source>
        <translation>Nur der erste Teil von „%1“ konnte gelesen werden. Beim Speichern unter demselben Namen geht der Rest der Datei verloren.</translation>
    </message>
    <message>
        <source>“%1” was read as %2 and has bytes that are none: %L3. Saving it under its own name puts “%4” in their place for good.</source>
        <translation>„%1“ wurde als %2 gelesen und hat Bytes, die keines sind: %L3. Beim Speichern unter demselben Namen tritt „%4“ endgültig an ihre Stelle.</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>The clipboard holds no text.</source>
        <translation>In der Zwischenablage ist kein Text.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>Es gibt nichts zu speichern.</translation>
    </message>
    <message>
        <source>The script has no file yet.</source>
        <translation>Das Skript hat noch keine Datei.</translation>
    </message>
    <message>
        <source>There is nothing to find: the find bar is empty.</source>
        <translation>Es gibt nichts zu suchen: Die Suchleiste ist leer.</translation>
    </message>
    <message>
        <source>No other script is open.</source>
        <translation>Kein anderes Skript ist offen.</translation>
    </message>
    <message>
        <source>No tab was closed.</source>
        <translation>Es wurde kein Tab geschlossen.</translation>
    </message>
    <message>
        <source>The script is not split.</source>
        <translation>Das Skript ist nicht geteilt.</translation>
    </message>
    <message>
        <source>No script is open.</source>
        <translation>Kein Skript ist offen.</translation>
    </message>
    <message>
        <source>The script is read-only.</source>
        <translation>Das Skript ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Nichts ist ausgewählt.</translation>
    </message>
    <message>
        <source>The script has nothing here to do this with.</source>
        <translation>Im Skript gibt es hier nichts, womit das ginge.</translation>
    </message>
    <message>
        <source>Convert Line Ends to</source>
        <translation>Zeilenenden umwandeln in</translation>
    </message>
    <message>
        <source>There was no step back.</source>
        <translation>Es gab keinen Schritt zurück.</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>“%1” is not there any more. It may have been moved, renamed or deleted, or its drive may be away. Remove it from the list of recent files?</source>
        <translation>„%1“ ist nicht mehr da. Die Datei wurde vielleicht verschoben, umbenannt oder gelöscht, oder das Laufwerk fehlt. Aus der Liste der zuletzt geöffneten Dateien entfernen?</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Recent Files</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Noch keine Dateien</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>The list could not be cleared: the settings cannot be written.</source>
        <translation>Die Liste konnte nicht geleert werden: Die Einstellungen lassen sich nicht schreiben.</translation>
    </message>
</context>
<context>
    <name>RecoverableCopy</name>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>vor 1 Minute</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>vor %n Minute</numerusform>
            <numerusform>vor %n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation>vor 1 Stunde</translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>vor %n Stunde</numerusform>
            <numerusform>vor %n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day ago</source>
        <translation>vor 1 Tag</translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>vor %n Tag</numerusform>
            <numerusform>vor %n Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Not changed since</source>
        <translation>Seitdem unverändert</translation>
    </message>
    <message>
        <source>Changed since</source>
        <translation>Seitdem geändert</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>Never saved</source>
        <translation>Nie gespeichert</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Decide Later</source>
        <translation>Später entscheiden</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>&amp;Später entscheiden</translation>
    </message>
    <message>
        <source>Recover Scripts</source>
        <translation>Skripte wiederherstellen</translation>
    </message>
    <message>
        <source>The workbench ended unexpectedly. These scripts had changes that were not saved:</source>
        <translation>Das Programm endete unerwartet. Diese Skripte hatten ungespeicherte Änderungen:</translation>
    </message>
    <message>
        <source>Scripts that can be recovered</source>
        <translation>Skripte, die wiederhergestellt werden können</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopie</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>File Is</source>
        <translation>Zustand der Datei</translation>
    </message>
    <message>
        <source>What to Do</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>All scripts:</source>
        <translation>Alle Skripte:</translation>
    </message>
    <message>
        <source>%1 all scripts</source>
        <translation>Alle Skripte: %1</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Fortfahren</translation>
    </message>
    <message>
        <source>What to do with %1</source>
        <translation>Aktion für %1</translation>
    </message>
    <message>
        <source>%1 and its copy are not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>%1 und die Kopie werden nicht verglichen: Was kein Text ist, länger als 8 MB ist oder nicht gelesen werden kann, wird nicht gezeigt.</translation>
    </message>
    <message>
        <source>The copy of %1:</source>
        <translation>Die Kopie von %1:</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the copy alone.</source>
        <translation>%1: Zeilen mit - stehen nur in der Datei, Zeilen mit + nur in der Kopie.</translation>
    </message>
    <message>
        <source>%1 and its copy differ in their encoding alone.</source>
        <translation>%1 und die Kopie unterscheiden sich nur in der Kodierung.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>ResultsModel</name>
    <message>
        <source>Not searched or not replaced  (%1)</source>
        <translation>Nicht durchsucht oder nicht ersetzt  (%1)</translation>
    </message>
    <message>
        <source>%1%2: &quot;%3&quot; becomes &quot;%4&quot;</source>
        <translation>%1%2: Aus „%3“ wird „%4“</translation>
    </message>
    <message>
        <source>not open: is saved at once, no undo</source>
        <translation>nicht geöffnet: wird sofort gespeichert, nicht rückgängig zu machen</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>open, not saved</source>
        <translation>geöffnet, nicht gespeichert</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
</context>
<context>
    <name>ResultsPane</name>
    <message>
        <source>no text</source>
        <translation>kein Text</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>a device or a pipe</source>
        <translation>ein Gerät oder eine Pipe</translation>
    </message>
    <message>
        <source>a folder that has been searched already</source>
        <translation>ein Ordner, der schon durchsucht wurde</translation>
    </message>
    <message>
        <source>the expression went on for too long</source>
        <translation>der Ausdruck lief zu lange</translation>
    </message>
    <message>
        <source>Re&amp;place...</source>
        <translation>&amp;Ersetzen...</translation>
    </message>
    <message>
        <source>Replace &amp;with</source>
        <translation>Ersetzen du&amp;rch</translation>
    </message>
    <message>
        <source>What the matches are to become. Enter shows it for each of them</source>
        <translation>Was aus den Treffern werden soll. Die Eingabetaste zeigt es für jeden</translation>
    </message>
    <message>
        <source>Prev&amp;iew</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>&amp;Replace Checked</source>
        <translation>&amp;Markierte ersetzen</translation>
    </message>
    <message>
        <source>No search</source>
        <translation>Keine Suche</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos;: %Ln matches in %2 of %3 files</source>
        <translation>
            <numerusform>„%1“: %Ln Treffer in %2 von %3 Dateien</numerusform>
            <numerusform>„%1“: %Ln Treffer in %2 von %3 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 not read</source>
        <translation>, %1 nicht gelesen</translation>
    </message>
    <message>
        <source>, %1 skipped</source>
        <translation>, %1 übersprungen</translation>
    </message>
    <message>
        <source>. The expression went on for too long in some of them</source>
        <translation>. In einigen lief der Ausdruck zu lange</translation>
    </message>
    <message>
        <source>. Stopped</source>
        <translation>. Angehalten</translation>
    </message>
    <message>
        <source>Searching: %1</source>
        <translation>Suche läuft: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Replacing: %1 of %2 files</source>
        <translation>Ersetzen: %1 von %2 Dateien</translation>
    </message>
    <message numerus="yes">
        <source>. %Ln files were left as they are, see the end of the list</source>
        <translation>
            <numerusform>. %Ln Datei blieb, wie sie war, siehe Ende der Liste</numerusform>
            <numerusform>. %Ln Dateien blieben, wie sie waren, siehe Ende der Liste</numerusform>
        </translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>1 file saved</source>
        <translation>1 Datei gespeichert</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files saved</source>
        <translation>
            <numerusform>%Ln Datei gespeichert</numerusform>
            <numerusform>%Ln Dateien gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>1 open script changed, not saved</source>
        <translation>1 offenes Skript geändert, nicht gespeichert</translation>
    </message>
    <message numerus="yes">
        <source>%Ln open scripts changed, not saved</source>
        <translation>
            <numerusform>%Ln offenes Skript geändert, nicht gespeichert</numerusform>
            <numerusform>%Ln offene Skripte geändert, nicht gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>1 match replaced</source>
        <translation>1 Treffer ersetzt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln matches replaced</source>
        <translation>
            <numerusform>%Ln Treffer ersetzt</numerusform>
            <numerusform>%Ln Treffer ersetzt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RichCopy</name>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>SaveAsDialog</name>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql)</source>
        <translation>SQL-Skripte (*.sql)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
</context>
<context>
    <name>SchemeMenu</name>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>W&amp;ie der Desktop</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;High Contrast</source>
        <translation>Hoher &amp;Kontrast</translation>
    </message>
    <message>
        <source>As on &amp;Paper</source>
        <translation>&amp;Wie auf Papier</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>the picture “%1” cannot be written.</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>ScriptChecker</name>
    <message>
        <source>Scripts in %1 are not checked: there is no parser for it here.</source>
        <translation>Skripte in %1 werden nicht geprüft: Dafür gibt es hier keinen Parser.</translation>
    </message>
    <message>
        <source>The script is too long to be checked.</source>
        <translation>Das Skript ist zu lang, um geprüft zu werden.</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>Keine Probleme gefunden.</translation>
    </message>
    <message>
        <source>Scripts in SQL are not checked. Choose PostgreSQL or SQLite in the Language menu to have this one checked.</source>
        <translation>Skripte in SQL werden nicht geprüft. Damit dieses geprüft wird, im Menü Sprache PostgreSQL oder SQLite wählen.</translation>
    </message>
</context>
<context>
    <name>ScriptCommands</name>
    <message>
        <source>This language has no file of templates.</source>
        <translation>Diese Sprache hat keine Vorlagendatei.</translation>
    </message>
    <message>
        <source>No file name and no address stands at the caret.</source>
        <translation>Am Cursor steht weder ein Dateiname noch eine Adresse.</translation>
    </message>
    <message>
        <source>Nothing opens %1.</source>
        <translation>Es gibt kein Programm, das %1 öffnet.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Die Datei %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Open &amp;Document</source>
        <translation>&amp;Dokument öffnen</translation>
    </message>
    <message>
        <source>“%1” was written: 1 page</source>
        <translation>„%1“ wurde geschrieben: 1 Seite</translation>
    </message>
    <message>
        <source>“%1” was written: %L2 pages</source>
        <translation>„%1“ wurde geschrieben: %L2 Seiten</translation>
    </message>
    <message>
        <source>“%1” was written</source>
        <translation>„%1“ wurde geschrieben</translation>
    </message>
</context>
<context>
    <name>ScriptDoc</name>
    <message>
        <source>“%1” has a name that is not UTF-8, which cannot be opened. Rename the file.</source>
        <translation>„%1“ hat einen Namen, der nicht UTF-8 ist; die Datei kann nicht geöffnet werden. Benennen Sie sie um.</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>„%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a script.</source>
        <translation>„%1“ ist ein Ordner, kein Skript.</translation>
    </message>
    <message>
        <source>“%1” cannot be read. Check that you may read it.</source>
        <translation>„%1“ kann nicht gelesen werden. Prüfen Sie, ob Sie die Datei lesen dürfen.</translation>
    </message>
    <message>
        <source>The disk may be full.</source>
        <translation>Vielleicht ist der Datenträger voll.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Den Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <translation>Ein Ordner hat diesen Namen.</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>Sie dürfen dort nicht schreiben.</translation>
    </message>
    <message>
        <source>“%1” could not be saved. %2 The text is still here: use Save As to put it in another place.</source>
        <translation>„%1“ konnte nicht gespeichert werden. %2 Der Text ist noch hier: Mit „Speichern unter“ bringen Sie ihn an einen anderen Ort.</translation>
    </message>
    <message>
        <source>The copy of “%1” cannot be read, or another window of the workbench has it by now. It is still there: “%2”.</source>
        <translation>Die Kopie von „%1“ kann nicht gelesen werden, oder ein anderes Fenster des Programms hat sie inzwischen. Sie ist noch da: „%2“.</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>Soll „%1“ neu geladen werden?</translation>
    </message>
    <message>
        <source>“%1” is open in another tab. Close it first, or choose another name.</source>
        <translation>„%1“ ist in einem anderen Tab offen. Schließen Sie diesen erst, oder wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench since it was read. Saving it replaces those changes.</source>
        <translation>„%1“ wurde außerhalb des Programms geändert, seit die Datei gelesen wurde. Das Speichern ersetzt diese Änderungen.</translation>
    </message>
    <message>
        <source>Your changes that are not saved are lost.</source>
        <translation>Ihre nicht gespeicherten Änderungen gehen verloren.</translation>
    </message>
    <message>
        <source>%1: %2, as other files of this folder</source>
        <translation>%1: %2, wie andere Dateien in diesem Ordner</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench. If it is read again, your changes that are not saved are lost.</source>
        <translation>„%1“ wurde außerhalb des Programms geändert. Wird die Datei neu gelesen, gehen Ihre ungespeicherten Änderungen verloren.</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>&amp;Neu lesen</translation>
    </message>
    <message>
        <source>No copy of “%1” could be written in case of a crash: the disk may be full. Save it.</source>
        <translation>Für den Fall eines Absturzes konnte keine Kopie von „%1“ geschrieben werden: Vielleicht ist der Datenträger voll. Speichern Sie es.</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. Save As makes a copy that you can change.</source>
        <translation>„%1“ ist schreibgeschützt, nichts wurde geändert. „Speichern unter“ macht eine Kopie, die Sie ändern können.</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. File &gt; Read Only ends that.</source>
        <translation>„%1“ ist schreibgeschützt, nichts wurde geändert. Datei &gt; Schreibgeschützt hebt das auf.</translation>
    </message>
</context>
<context>
    <name>ScriptFrame</name>
    <message>
        <source> (Read Only)</source>
        <translation> (Schreibgeschützt)</translation>
    </message>
</context>
<context>
    <name>ScriptPrinting</name>
    <message>
        <source>Finding page %1</source>
        <translation>Seite %1 wird gesucht</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
</context>
<context>
    <name>ScriptTabs</name>
    <message>
        <source>List of tabs</source>
        <translation>Liste der Tabs</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, geändert</translation>
    </message>
</context>
<context>
    <name>ScriptView</name>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Line %L1 is very long: behind column %L2 its text is drawn coarsely</source>
        <translation>Zeile %L1 ist sehr lang: Ab Spalte %L2 wird ihr Text grob gezeichnet</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source> (%1 selected)</source>
        <translation> (%1 ausgewählt)</translation>
    </message>
</context>
<context>
    <name>StatusIndicators</name>
    <message>
        <source>A macro is recorded; stop it</source>
        <translation>Ein Makro wird aufgezeichnet; beenden</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Whether the script can be changed</source>
        <translation>Ob das Skript geändert werden kann</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Go to a line</source>
        <translation>Gehe zu einer Zeile</translation>
    </message>
    <message>
        <source>The database in force at the caret</source>
        <translation>Die Datenbank, die am Cursor gilt</translation>
    </message>
    <message>
        <source>The language of the script</source>
        <translation>Die Sprache des Skripts</translation>
    </message>
    <message>
        <source>Open with another encoding</source>
        <translation>Mit anderer Kodierung öffnen</translation>
    </message>
    <message>
        <source>Convert line ends</source>
        <translation>Zeilenenden umwandeln</translation>
    </message>
    <message>
        <source>Indentation</source>
        <translation>Einrückung</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Whether typing replaces</source>
        <translation>Ob Tippen überschreibt</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>AUFZ</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>Leerzeichen: %1</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>ÜBR</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>EINF</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Probleme: %1</translation>
    </message>
    <message>
        <source>What is wrong with the script</source>
        <translation>Was am Skript nicht stimmt</translation>
    </message>
</context>
<context>
    <name>SymbolModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
</context>
<context>
    <name>SymbolPicker</name>
    <message>
        <source>Go to Symbol</source>
        <translation>Gehe zu Symbol</translation>
    </message>
    <message>
        <source>Type part of a name</source>
        <translation>Teil eines Namens eingeben</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Symbols of the script</source>
        <translation>Symbole des Skripts</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed</source>
        <translation>Das Skript legt nichts an, das aufgelistet werden könnte</translation>
    </message>
    <message>
        <source>Nothing that the script creates has this name</source>
        <translation>Nichts, was das Skript anlegt, hat diesen Namen</translation>
    </message>
</context>
<context>
    <name>Symbols</name>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Sicht</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>Prozedur</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Sequenz</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paket</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
</context>
<context>
    <name>TabList</name>
    <message>
        <source>Scripts</source>
        <translation>Skripte</translation>
    </message>
    <message>
        <source>Type part of a name</source>
        <translation>Teil eines Namens eingeben</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>%1, in front</source>
        <translation>%1, vorn</translation>
    </message>
    <message>
        <source>No script has this in its name</source>
        <translation>Kein Skript hat das in seinem Namen</translation>
    </message>
</context>
<context>
    <name>TabMenu</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close &amp;Others</source>
        <translation>&amp;Andere schließen</translation>
    </message>
    <message>
        <source>Close to the &amp;Right</source>
        <translation>Tabs &amp;rechts davon schließen</translation>
    </message>
    <message>
        <source>Close &amp;All</source>
        <translation>A&amp;lle schließen</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>&amp;Enthaltenden Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>TabWalk</name>
    <message>
        <source>Scripts by last use</source>
        <translation>Skripte nach letzter Benutzung</translation>
    </message>
</context>
<context>
    <name>TemplateForm</name>
    <message>
        <source>Insert Template</source>
        <translation>Vorlage einfügen</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
</context>
<context>
    <name>TemplateList</name>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Type the name of a template, or first letters of it</source>
        <translation>Namen einer Vorlage eingeben, oder seine ersten Buchstaben</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Text of the template</source>
        <translation>Text der Vorlage</translation>
    </message>
</context>
<context>
    <name>TextKeys</name>
    <message>
        <source>Word Left</source>
        <translation>Wort nach links</translation>
    </message>
    <message>
        <source>Word Right</source>
        <translation>Wort nach rechts</translation>
    </message>
    <message>
        <source>Select Word Left</source>
        <translation>Wort nach links auswählen</translation>
    </message>
    <message>
        <source>Select Word Right</source>
        <translation>Wort nach rechts auswählen</translation>
    </message>
    <message>
        <source>Start of the Text</source>
        <translation>Anfang des Textes</translation>
    </message>
    <message>
        <source>End of the Text</source>
        <translation>Ende des Textes</translation>
    </message>
    <message>
        <source>Select to the Start of the Text</source>
        <translation>Bis zum Anfang des Textes auswählen</translation>
    </message>
    <message>
        <source>Select to the End of the Text</source>
        <translation>Bis zum Ende des Textes auswählen</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>Nach oben rollen</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>Nach unten rollen</translation>
    </message>
    <message>
        <source>Delete Word Left</source>
        <translation>Wort links löschen</translation>
    </message>
    <message>
        <source>Delete Word Right</source>
        <translation>Wort rechts löschen</translation>
    </message>
    <message>
        <source>Delete to the Start of the Line</source>
        <translation>Bis zum Zeilenanfang löschen</translation>
    </message>
    <message>
        <source>Delete to the End of the Line</source>
        <translation>Bis zum Zeilenende löschen</translation>
    </message>
    <message>
        <source>Select Columns</source>
        <translation>Spalten auswählen</translation>
    </message>
    <message>
        <source>Delete Line</source>
        <translation>Zeile löschen</translation>
    </message>
    <message>
        <source>Swap with the Line Above</source>
        <translation>Mit der Zeile darüber tauschen</translation>
    </message>
    <message>
        <source>Paragraph Up</source>
        <translation>Absatz nach oben</translation>
    </message>
    <message>
        <source>Select Paragraph Up</source>
        <translation>Absatz nach oben auswählen</translation>
    </message>
    <message>
        <source>Start of the Row</source>
        <translation>Anfang der Bildschirmzeile</translation>
    </message>
    <message>
        <source>End of the Row</source>
        <translation>Ende der Bildschirmzeile</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
</context>
<context>
    <name>UnsavedDialog</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>These scripts have changes that are not saved. Those without a tick lose them.</source>
        <translation>Diese Skripte haben ungespeicherte Änderungen. Ohne Häkchen gehen sie verloren.</translation>
    </message>
    <message>
        <source>Scripts to save</source>
        <translation>Skripte, die gespeichert werden</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Discard All</source>
        <translation>Alle &amp;verwerfen</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>%1: %2 changes</source>
        <translation>%1: %2 Änderungen</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql)</source>
        <translation>SQL-Skripte (*.sql)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>%1 was read anew: it is %2</source>
        <translation>%1 wurde neu gelesen: %2</translation>
    </message>
</context>
<context>
    <name>WorkbenchPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The changes are in force for now, but these files could not be written:

%1

Apply again once they can be, or Cancel to give the changes up.</source>
        <translation>Die Änderungen gelten vorerst, aber diese Dateien konnten nicht geschrieben werden:

%1

Wenden Sie sie noch einmal an, sobald es geht, oder geben Sie sie mit Abbrechen auf.</translation>
    </message>
    <message>
        <source>The tree has a page for what all languages share, and pages for each language. Type over the tree to find one.

Apply writes the changes and shows them in the open scripts; Cancel does not take back what was applied.

A colour that is &quot;Default&quot; follows the scheme of the View menu. What is set here for a language comes before the Options of all editors.</source>
        <translation>Im Baum steht eine Seite mit dem, was allen Sprachen gemeinsam ist, und Seiten für jede Sprache. Tippen Sie über dem Baum, um eine zu finden.

Anwenden schreibt die Änderungen und zeigt sie in den offenen Skripten; Abbrechen nimmt nicht zurück, was angewendet wurde.

Eine Farbe „Standard“ folgt dem Schema aus dem Menü Ansicht. Was hier für eine Sprache eingestellt ist, geht den Optionen aller Editoren vor.</translation>
    </message>
</context>
<context>
    <name>WorkbenchPrinter</name>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The editing engine cannot be loaded: libZNBaseEditor.so has to stand beside libZNCoreEditor.so, or in the folder ZNCoreEditor there.</source>
        <translation>Das Editormodul kann nicht geladen werden: libZNBaseEditor.so muss neben libZNCoreEditor.so stehen oder dort im Ordner ZNCoreEditor.</translation>
    </message>
    <message>
        <source>The workbench that runs does not answer. This is a window beside it.</source>
        <translation>Das laufende Programm antwortet nicht. Dies ist ein Fenster daneben.</translation>
    </message>
</context>
</TS>
