<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About znworkbench</source>
        <translation>À propos de znworkbench</translation>
    </message>
    <message>
        <source>Edits SQL scripts. It is the example host of the editor component ZNCoreEditor.

Over Qt %1. Licensed under the GNU General Public License, version 3 or later.</source>
        <translation>Édite des scripts SQL. C’est le programme d’exemple du composant d’édition ZNCoreEditor.

Avec Qt %1. Sous licence publique générale GNU, version 3 ou ultérieure.</translation>
    </message>
</context>
<context>
    <name>Arguments</name>
    <message>
        <source>Opens SQL scripts, one tab for each.</source>
        <translation>Ouvre des scripts SQL, chacun dans un onglet.</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>Affiche ce texte.</translation>
    </message>
    <message>
        <source>Writes a picture of the window and exits.</source>
        <translation>Écrit une image de la fenêtre et se termine.</translation>
    </message>
    <message>
        <source>Tells which version this is.</source>
        <translation>Indique la version.</translation>
    </message>
    <message>
        <source>Scripts to open, each at a line and a column: a.sql:120:7.</source>
        <translation>Scripts à ouvrir, chacun à une ligne et une colonne&#xa0;: a.sql:120:7.</translation>
    </message>
    <message>
        <source>--screenshot needs the name of a file.</source>
        <translation>--screenshot a besoin d’un nom de fichier.</translation>
    </message>
    <message>
        <source>Opens a window of its own, not a tab in the workbench that runs.</source>
        <translation>Ouvre une fenêtre à part, pas un onglet dans le programme déjà lancé.</translation>
    </message>
</context>
<context>
    <name>AutosaveDialog</name>
    <message>
        <source>&amp;Keep copies of unsaved changes</source>
        <translation>&amp;Garder des copies des modifications non enregistrées</translation>
    </message>
    <message>
        <source>Autosave</source>
        <translation>Enregistrement automatique</translation>
    </message>
    <message>
        <source>&amp;Minutes between copies</source>
        <translation>&amp;Minutes entre les copies</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Type what a command is called</source>
        <translation>Tapez le nom d’une commande</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>No command has these words in its name</source>
        <translation>Aucune commande n’a ces mots dans son nom</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>%1 is not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>%1 n’est pas comparé&#xa0;: ce qui n’est pas du texte, dépasse 8 Mo ou ne peut être lu n’est pas montré.</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the script alone.</source>
        <translation>%1&#xa0;: les lignes avec - ne sont que dans le fichier, celles avec + que dans le script.</translation>
    </message>
    <message>
        <source>%1: script and file have the same text.</source>
        <translation>%1&#xa0;: le script et le fichier ont le même texte.</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Comparison</source>
        <translation>Comparaison</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>C&amp;omments</source>
        <translation>Comme&amp;ntaires</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>R&amp;etrait</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Lignes</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Mots</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Sélect&amp;ionner</translation>
    </message>
    <message>
        <source>&amp;Bookmarks</source>
        <translation>&amp;Signets</translation>
    </message>
    <message>
        <source>&amp;Comment Out</source>
        <translation>C&amp;ommenter</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>&amp;Décommenter</translation>
    </message>
    <message>
        <source>Comment &amp;Lines Out</source>
        <translation>Commenter &amp;les lignes</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>&amp;Augmenter le retrait</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>&amp;Diminuer le retrait</translation>
    </message>
    <message>
        <source>&amp;Tabs to Spaces</source>
        <translation>&amp;Tabulations en espaces</translation>
    </message>
    <message>
        <source>&amp;Spaces to Tabs</source>
        <translation>&amp;Espaces en tabulations</translation>
    </message>
    <message>
        <source>Trim T&amp;railing Spaces</source>
        <translation>&amp;Supprimer les espaces en fin de ligne</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>Trier par &amp;ordre croissant</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>Trier &amp;par ordre décroissant</translation>
    </message>
    <message>
        <source>&amp;End the Last Line</source>
        <translation>&amp;Terminer la dernière ligne</translation>
    </message>
    <message>
        <source>Convert Line Ends to C&amp;R+LF (Windows)</source>
        <translation>&amp;Convertir les fins de ligne en CR+LF (Windows)</translation>
    </message>
    <message>
        <source>Convert Line Ends to L&amp;F (Unix)</source>
        <translation>Convertir les fins de ligne &amp;en LF (Unix)</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (&amp;Mac)</source>
        <translation>Convertir les &amp;fins de ligne en CR (Mac)</translation>
    </message>
    <message>
        <source>&amp;Upper Case</source>
        <translation>M&amp;ajuscules</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>&amp;Minuscules</translation>
    </message>
    <message>
        <source>Ca&amp;pitalize</source>
        <translation>&amp;Initiales en majuscules</translation>
    </message>
    <message>
        <source>Upper Case of a W&amp;ord</source>
        <translation>M&amp;ot en majuscules</translation>
    </message>
    <message>
        <source>Lower Case of a Wo&amp;rd</source>
        <translation>Mot &amp;en minuscules</translation>
    </message>
    <message>
        <source>Capi&amp;talize a Word</source>
        <translation>Mot avec &amp;une majuscule</translation>
    </message>
    <message>
        <source>D&amp;elete a Word</source>
        <translation>&amp;Supprimer un mot</translation>
    </message>
    <message>
        <source>Swap &amp;Characters</source>
        <translation>Permuter &amp;les caractères</translation>
    </message>
    <message>
        <source>Swap &amp;Words</source>
        <translation>&amp;Permuter les mots</translation>
    </message>
    <message>
        <source>&amp;Increase Number</source>
        <translation>Augmenter le &amp;nombre</translation>
    </message>
    <message>
        <source>&amp;Decrease Number</source>
        <translation>&amp;Diminuer le nombre</translation>
    </message>
    <message>
        <source>&amp;Word</source>
        <translation>&amp;Mot</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Ligne</translation>
    </message>
    <message>
        <source>&amp;Paragraph</source>
        <translation>&amp;Paragraphe</translation>
    </message>
    <message>
        <source>To Matching &amp;Bracket</source>
        <translation>&amp;Jusqu’à la parenthèse correspondante</translation>
    </message>
    <message>
        <source>&amp;Caret to the Other End</source>
        <translation>&amp;Curseur à l’autre bout</translation>
    </message>
    <message>
        <source>&amp;Toggle</source>
        <translation>Poser &amp;ou ôter</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>P&amp;récédent</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>&amp;Premier</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>&amp;Dernier</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>&amp;Tout effacer</translation>
    </message>
    <message>
        <source>Ins&amp;ert File...</source>
        <translation>Insérer un &amp;fichier...</translation>
    </message>
</context>
<context>
    <name>Encodings</name>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 avec BOM</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE avec BOM</translation>
    </message>
    <message>
        <source>UTF-16 BE with mark</source>
        <translation>UTF-16 BE avec BOM</translation>
    </message>
    <message>
        <source>UTF-32 LE with mark</source>
        <translation>UTF-32 LE avec BOM</translation>
    </message>
    <message>
        <source>UTF-32 BE with mark</source>
        <translation>UTF-32 BE avec BOM</translation>
    </message>
    <message>
        <source>Unknown encoding</source>
        <translation>Encodage inconnu</translation>
    </message>
    <message>
        <source>Western European</source>
        <translation>Europe occidentale</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europe centrale</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cyrillique</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Grec</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turc</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Balte</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hébreu</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabe</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamien</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thaï</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>Chinois simplifié</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>Chinois traditionnel</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coréen</translation>
    </message>
</context>
<context>
    <name>ExpandedScript</name>
    <message>
        <source>Expanded Script</source>
        <translation>Script développé</translation>
    </message>
    <message>
        <source>Expanded script</source>
        <translation>Script développé</translation>
    </message>
    <message>
        <source>Files are looked for beside the script, and in the folders that Tools &gt; Options names.</source>
        <translation>Les fichiers sont cherchés à côté du script et dans les dossiers indiqués par Outils &gt; Options.</translation>
    </message>
    <message>
        <source>Problems of the expanded script</source>
        <translation>Problèmes du script développé</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Go to Source</source>
        <translation>Aller à la source</translation>
    </message>
    <message>
        <source>Put Original Back</source>
        <translation>Remettre l’original</translation>
    </message>
    <message>
        <source>Original Script</source>
        <translation>Script d’origine</translation>
    </message>
    <message>
        <source>Nothing was expanded. #include, #define and &amp;&amp;NAME are; the lines by which client programs read files (\i, @, :r) stay as they are.</source>
        <translation>Rien n’a été développé. #include, #define et &amp;&amp;NAME le sont&#xa0;; les lignes par lesquelles des programmes clients lisent des fichiers (\i, @, :r) restent telles quelles.</translation>
    </message>
    <message>
        <source>%1 (out of date)</source>
        <translation>%1 (périmé)</translation>
    </message>
    <message>
        <source>The script was changed since. Tools &gt; Expanded Script shows it as it is.</source>
        <translation>Le script a été modifié depuis. Outils &gt; Script développé le montre tel qu’il est.</translation>
    </message>
</context>
<context>
    <name>ExpressionHelp</name>
    <message>
        <source>any character of the line</source>
        <translation>n’importe quel caractère de la ligne</translation>
    </message>
    <message>
        <source>one of a set; [^a-z] any other</source>
        <translation>un parmi un ensemble&#xa0;; [^a-z] tout autre</translation>
    </message>
    <message>
        <source>a digit; \D any other</source>
        <translation>un chiffre&#xa0;; \D tout autre</translation>
    </message>
    <message>
        <source>a character of a word; \W any other</source>
        <translation>un caractère de mot&#xa0;; \W tout autre</translation>
    </message>
    <message>
        <source>a blank; \S any other</source>
        <translation>une espace&#xa0;; \S tout autre</translation>
    </message>
    <message>
        <source>what stands before, any number of times</source>
        <translation>ce qui précède, autant de fois qu’on veut</translation>
    </message>
    <message>
        <source>what stands before, once at least</source>
        <translation>ce qui précède, au moins une fois</translation>
    </message>
    <message>
        <source>what stands before, or nothing</source>
        <translation>ce qui précède, ou rien</translation>
    </message>
    <message>
        <source>what stands before, two to four times</source>
        <translation>ce qui précède, de deux à quatre fois</translation>
    </message>
    <message>
        <source>what stands before, or what follows</source>
        <translation>ce qui précède, ou ce qui suit</translation>
    </message>
    <message>
        <source>a group; \1 to \9 in the replacement</source>
        <translation>un groupe&#xa0;; \1 à \9 dans le remplacement</translation>
    </message>
    <message>
        <source>the start of a line</source>
        <translation>le début d’une ligne</translation>
    </message>
    <message>
        <source>the end of a line</source>
        <translation>la fin d’une ligne</translation>
    </message>
    <message>
        <source>an edge of a word</source>
        <translation>un bord de mot</translation>
    </message>
    <message>
        <source>the start of a word</source>
        <translation>le début d’un mot</translation>
    </message>
    <message>
        <source>the end of a word</source>
        <translation>la fin d’un mot</translation>
    </message>
    <message>
        <source>the match ends here</source>
        <translation>l’occurrence finit ici</translation>
    </message>
    <message>
        <source>a line feed</source>
        <translation>un saut de ligne</translation>
    </message>
    <message>
        <source>a tab</source>
        <translation>une tabulation</translation>
    </message>
    <message>
        <source>What an expression may say</source>
        <translation>Ce que peut contenir une expression</translation>
    </message>
    <message>
        <source>&amp;Groups by ( and )</source>
        <translation>Groupes &amp;avec ( et )</translation>
    </message>
    <message>
        <source>G&amp;roups by \( and \)</source>
        <translation>&amp;Groupes avec \( et \)</translation>
    </message>
</context>
<context>
    <name>FieldMenus</name>
    <message>
        <source>Tabs: %1</source>
        <translation>Tabulations&#xa0;: %1</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>Espaces&#xa0;: %1</translation>
    </message>
    <message>
        <source>Indent with &amp;Tabs</source>
        <translation>Retrait &amp;par tabulations</translation>
    </message>
    <message>
        <source>Indent with &amp;Spaces</source>
        <translation>&amp;Retrait par espaces</translation>
    </message>
    <message>
        <source>&amp;%1 Columns</source>
        <translation>&amp;%1 colonnes</translation>
    </message>
</context>
<context>
    <name>FileReplacer</name>
    <message>
        <source>it may not be written</source>
        <translation>l’écriture n’est pas permise</translation>
    </message>
    <message>
        <source>its encoding does not have %1</source>
        <translation>son encodage n’a pas %1</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>il est en lecture seule</translation>
    </message>
    <message>
        <source>its text is another one by now</source>
        <translation>son texte a changé entre-temps</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>No expression: %1</source>
        <translation>Pas une expression&#xa0;: %1</translation>
    </message>
    <message>
        <source>No expression: %1, at character %2</source>
        <translation>Pas une expression&#xa0;: %1, au caractère %2</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>Rien n’est sélectionné</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>plus de %1</translation>
    </message>
    <message>
        <source>On from the top</source>
        <translation>Reprise depuis le début</translation>
    </message>
    <message>
        <source>On from the end</source>
        <translation>Reprise depuis la fin</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>gone round</source>
        <translation>tour complet</translation>
    </message>
    <message>
        <source>%1, gone round</source>
        <translation>%1, tour complet</translation>
    </message>
    <message numerus="yes">
        <source>%n found and marked</source>
        <translation>
            <numerusform>%n occurrence trouvée et marquée</numerusform>
            <numerusform>%n occurrences trouvées et marquées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n occurrence trouvée</numerusform>
            <numerusform>%n occurrences trouvées</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>Rec&amp;hercher...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Rechercher le sui&amp;vant</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Rechercher &amp;le précédent</translation>
    </message>
    <message>
        <source>Find the &amp;Word Next</source>
        <translation>Occurrence &amp;suivante du mot</translation>
    </message>
    <message>
        <source>Find the W&amp;ord Previous</source>
        <translation>Occurrence &amp;précédente du mot</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>To&amp;ut remplacer</translation>
    </message>
    <message>
        <source>&amp;Mark All</source>
        <translation>&amp;Tout marquer</translation>
    </message>
    <message>
        <source>Co&amp;unt</source>
        <translation>C&amp;ompter</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>&amp;Whole word</source>
        <translation>&amp;Mots entiers</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>E&amp;xpression</translation>
    </message>
    <message>
        <source>&amp;In selection</source>
        <translation>Dans la sél&amp;ection</translation>
    </message>
    <message>
        <source>&amp;Keep case</source>
        <translation>&amp;Garder la casse</translation>
    </message>
    <message>
        <source>Replacing</source>
        <translation>Remplacement</translation>
    </message>
    <message>
        <source>A replacement is in capitals where what it replaces is</source>
        <translation>Un remplacement est en majuscules là où l’est ce qu’il remplace</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message numerus="yes">
        <source>Stopped, %n replaced</source>
        <translation>
            <numerusform>Arrêté, %n remplacement</numerusform>
            <numerusform>Arrêté, %n remplacements</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>%n remplacement</numerusform>
            <numerusform>%n remplacements</numerusform>
        </translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>&amp;Casse</translation>
    </message>
</context>
<context>
    <name>FolderModel</name>
    <message>
        <source>%1, in front</source>
        <translation>%1, au premier plan</translation>
    </message>
</context>
<context>
    <name>FolderPane</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Files of the folder</source>
        <translation>Fichiers du dossier</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Dossier</translation>
    </message>
    <message>
        <source>Part of a name, or *.sql</source>
        <translation>Partie d’un nom, ou *.sql</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>Open another folder</source>
        <translation>Ouvrir un autre dossier</translation>
    </message>
    <message>
        <source>Show the folder around this one</source>
        <translation>Afficher le dossier qui contient celui-ci</translation>
    </message>
    <message>
        <source>Show Script</source>
        <translation>Montrer le script</translation>
    </message>
    <message>
        <source>Show the script in front among its files</source>
        <translation>Montrer le script au premier plan parmi ses fichiers</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open &amp;Behind the Script in Front</source>
        <translation>Ouvrir &amp;derrière le script au premier plan</translation>
    </message>
    <message>
        <source>Show &amp;Only This Folder</source>
        <translation>Afficher &amp;seulement ce dossier</translation>
    </message>
    <message>
        <source>&amp;New Script Here</source>
        <translation>Nouveau script &amp;ici</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Copier le chemin</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>Ouvrir le dossier co&amp;ntenant</translation>
    </message>
</context>
<context>
    <name>GoToDialog</name>
    <message>
        <source>Go to Line</source>
        <translation>Aller à la ligne</translation>
    </message>
    <message>
        <source>From 1 to %1, or line:column</source>
        <translation>De 1 à %1, ou ligne:colonne</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Ligne</translation>
    </message>
    <message>
        <source>“%1” is no place here: a number from 1 to %2 is expected, or line:column.</source>
        <translation>« %1 » n’est pas un endroit de ce texte : un nombre de 1 à %2 est attendu, ou ligne:colonne.</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Part of a command or of a key</source>
        <translation>Partie d’une commande ou d’un raccourci</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Commands and keys</source>
        <translation>Commandes et raccourcis</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>Nouvelle touche</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>Appuyez sur une touche</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>R&amp;eset</source>
        <translation>Réta&amp;blir</translation>
    </message>
    <message>
        <source>Reset &amp;All...</source>
        <translation>&amp;Tout rétablir...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Changed. It comes without a key.</source>
        <translation>Modifié. Sans touche à l’origine.</translation>
    </message>
    <message>
        <source>Changed. It comes with %1.</source>
        <translation>Modifié. %1 à l’origine.</translation>
    </message>
    <message>
        <source>No command has these words in its name or its keys.</source>
        <translation>Aucune commande n’a ces mots dans son nom ou ses touches.</translation>
    </message>
    <message>
        <source>%1 is the key of no command.</source>
        <translation>%1 n’est la touche d’aucune commande.</translation>
    </message>
    <message>
        <source>Press the key for “%1”. Escape leaves it as it is.</source>
        <translation>Appuyez sur la touche pour «&#xa0;%1&#xa0;». Échap laisse tout tel quel.</translation>
    </message>
    <message>
        <source>%1 alone is for writing and for moving about. Take it with Ctrl or Alt, or take a function key.</source>
        <translation>%1 seule sert à écrire et à se déplacer. Prenez-la avec Ctrl ou Alt, ou prenez une touche de fonction.</translation>
    </message>
    <message>
        <source>%1 opens the menu “%2”.</source>
        <translation>%1 ouvre le menu «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>%1 presses the button “%2” of the window.</source>
        <translation>%1 actionne le bouton «&#xa0;%2&#xa0;» de la fenêtre.</translation>
    </message>
    <message>
        <source>%1 is the key of “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 est la touche de «&#xa0;%2&#xa0;». Voulez-vous la donner à «&#xa0;%3&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Déplacer</translation>
    </message>
    <message>
        <source>Do you want to give all commands their first keys again?</source>
        <translation>Voulez-vous redonner à toutes les commandes leurs touches d’origine&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>The keys could not be written to the settings. They are as shown until the workbench ends.</source>
        <translation>Les touches n’ont pas pu être écrites dans les réglages. Elles valent jusqu’à la fin de l’application.</translation>
    </message>
    <message>
        <source>%1 is a key of the text, for “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 est une touche du texte, pour «&#xa0;%2&#xa0;». Voulez-vous la déplacer vers «&#xa0;%3&#xa0;»&#xa0;?</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>La&amp;ngage</translation>
    </message>
    <message>
        <source>Use for Ne&amp;w Scripts</source>
        <translation>&amp;Utiliser pour les nouveaux scripts</translation>
    </message>
</context>
<context>
    <name>LineEndWatch</name>
    <message>
        <source>Mixed</source>
        <translation>Mixtes</translation>
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
        <translation>La macro n’a pas été enregistrée dans %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Impossible de lire %1. %2</translation>
    </message>
    <message>
        <source>%1 is not a macro.</source>
        <translation>%1 n’est pas une macro.</translation>
    </message>
    <message>
        <source>%1 is not a macro that can be played: line %2 is no command that is recorded.</source>
        <translation>%1 n’est pas une macro jouable&#xa0;: la ligne %2 n’est pas une commande qui s’enregistre.</translation>
    </message>
    <message>
        <source>Macro loaded: %1</source>
        <translation>Macro chargée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Macro loaded: %1. %2 plays it.</source>
        <translation>Macro chargée&#xa0;: %1. %2 la joue.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>%1 could not be written to the settings; the disk may be full. It holds until the workbench ends.</source>
        <translation>%1 n’a pas pu être écrit dans les réglages&#xa0;; le disque est peut-être plein. Cela vaut jusqu’à la fin du programme.</translation>
    </message>
    <message>
        <source>There is no “%1”.</source>
        <translation>«&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>“%1” cannot be created: %2</source>
        <translation>Impossible de créer «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>What you chose</source>
        <translation>Votre choix</translation>
    </message>
    <message>
        <source>The choice about autosave</source>
        <translation>Le choix de l’enregistrement automatique</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Éd&amp;ition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>Outil&amp;s</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Open &amp;with Encoding...</source>
        <translation>Ouvrir &amp;avec un encodage...</translation>
    </message>
    <message>
        <source>Open a&amp;t Caret</source>
        <translation>O&amp;uvrir le fichier sous le curseur</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Save A&amp;ll</source>
        <translation>&amp;Tout enregistrer</translation>
    </message>
    <message>
        <source>Reloa&amp;d</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>Read Onl&amp;y</source>
        <translation>&amp;Lecture seule</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>Print Pre&amp;view...</source>
        <translation>Aperçu avant i&amp;mpression...</translation>
    </message>
    <message>
        <source>Save as PD&amp;F...</source>
        <translation>Enregistrer en &amp;PDF...</translation>
    </message>
    <message>
        <source>Save as &amp;HTML...</source>
        <translation>Enregistrer en &amp;HTML...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Reopen Closed Ta&amp;b</source>
        <translation>Rou&amp;vrir l’onglet fermé</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Réta&amp;blir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy wit&amp;h Colours</source>
        <translation>Copier a&amp;vec les couleurs</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Su&amp;pprimer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Function Arguments</source>
        <translation>Arguments de la fonction</translation>
    </message>
    <message>
        <source>Insert Template...</source>
        <translation>Insérer un modèle...</translation>
    </message>
    <message>
        <source>Find with a &amp;Dialog...</source>
        <translation>&amp;Boîte de recherche...</translation>
    </message>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>&amp;Aller à la ligne...</translation>
    </message>
    <message>
        <source>Go to S&amp;ymbol...</source>
        <translation>Aller au s&amp;ymbole...</translation>
    </message>
    <message>
        <source>&amp;Stop Search</source>
        <translation>&amp;Interrompre la recherche</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;avant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Zoom arrière</translation>
    </message>
    <message>
        <source>Line &amp;Ends</source>
        <translation>&amp;Fins de ligne</translation>
    </message>
    <message>
        <source>Wrap &amp;Lines</source>
        <translation>Re&amp;tour à la ligne automatique</translation>
    </message>
    <message>
        <source>Split &amp;Above and Below</source>
        <translation>Partager en &amp;haut et en bas</translation>
    </message>
    <message>
        <source>Ot&amp;her Pane</source>
        <translation>Autre &amp;volet</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>Zone s&amp;uivante</translation>
    </message>
    <message>
        <source>&amp;Expanded Script</source>
        <translation>&amp;Script développé</translation>
    </message>
    <message>
        <source>&amp;Record Macro</source>
        <translation>E&amp;nregistrer une macro</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>&amp;Jouer la macro</translation>
    </message>
    <message>
        <source>Repea&amp;t Macro...</source>
        <translation>&amp;Répéter la macro...</translation>
    </message>
    <message>
        <source>&amp;Save Macro...</source>
        <translation>Sauvegarder &amp;la macro...</translation>
    </message>
    <message>
        <source>&amp;Load Macro...</source>
        <translation>Charger &amp;une macro...</translation>
    </message>
    <message>
        <source>Edit Te&amp;mplates</source>
        <translation>&amp;Modifier les modèles</translation>
    </message>
    <message>
        <source>&amp;Commands...</source>
        <translation>&amp;Commandes...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Options...</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>&amp;Préférences de l’éditeur et des langages...</translation>
    </message>
    <message>
        <source>&amp;Autosave...</source>
        <translation>&amp;Enregistrement automatique...</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>What was open last cannot be read. </source>
        <translation>Impossible de lire ce qui était ouvert la dernière fois. </translation>
    </message>
    <message>
        <source>It is not kept this time, so that “%1” stays as it is.</source>
        <translation>La session n’est pas retenue cette fois, pour que «&#xa0;%1&#xa0;» reste tel quel.</translation>
    </message>
    <message>
        <source>It is in “%1” now.</source>
        <translation>Elle est maintenant dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed: no tables, views, procedures, and so on.</source>
        <translation>Le script ne crée rien qui puisse être listé&#xa0;: ni tables, ni vues, ni procédures, etc.</translation>
    </message>
    <message>
        <source>There is no outline for %1. The field with the language in the status bar changes it.</source>
        <translation>Il n’y a pas de plan pour %1. Le champ du langage dans la barre d’état permet d’en changer.</translation>
    </message>
    <message numerus="yes">
        <source>   %n matches</source>
        <translation>
            <numerusform>   %n occurrence</numerusform>
            <numerusform>   %n occurrences</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>   %n matches and more</source>
        <translation>
            <numerusform>   %n occurrence et plus</numerusform>
            <numerusform>   %n occurrences et plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Find Results</source>
        <translation>Résultats de la recherche</translation>
    </message>
    <message>
        <source>Find Results 2</source>
        <translation>Résultats de la recherche 2</translation>
    </message>
    <message>
        <source>R&amp;eplace with a Dialog...</source>
        <translation>Boîte de rempla&amp;cement...</translation>
    </message>
    <message>
        <source>Find in F&amp;iles...</source>
        <translation>Rechercher &amp;dans les fichiers...</translation>
    </message>
    <message>
        <source>Ne&amp;xt Result</source>
        <translation>Résultat suiva&amp;nt</translation>
    </message>
    <message>
        <source>Previous Resul&amp;t</source>
        <translation>Résultat précéd&amp;ent</translation>
    </message>
    <message>
        <source>&amp;Go to Script...</source>
        <translation>Aller au scr&amp;ipt...</translation>
    </message>
    <message>
        <source>Las&amp;t Used Script</source>
        <translation>Script &amp;quitté en dernier</translation>
    </message>
    <message>
        <source>Longest Unused Script</source>
        <translation>Script inutilisé depuis le plus longtemps</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>Rec&amp;herche</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>Arrêter l’e&amp;nregistrement</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avancer</translation>
    </message>
    <message>
        <source>The caret was nowhere else before.</source>
        <translation>Le curseur n’était nulle part ailleurs auparavant.</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>Aperçu &amp;global</translation>
    </message>
    <message>
        <source>Open Fold&amp;er...</source>
        <translation>Ouvrir un &amp;dossier...</translation>
    </message>
    <message>
        <source>Split Side b&amp;y Side</source>
        <translation>&amp;Partager côte à côte</translation>
    </message>
    <message>
        <source>O&amp;utline</source>
        <translation>P&amp;lan</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Dossier</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>Barre d’&amp;outils</translation>
    </message>
    <message>
        <source>Complete Word</source>
        <translation>Compléter le mot</translation>
    </message>
    <message>
        <source>&amp;Reset Zoom</source>
        <translation>&amp;Réinitialiser le zoom</translation>
    </message>
    <message>
        <source>&amp;Whitespace</source>
        <translation>&amp;Espaces</translation>
    </message>
    <message>
        <source>Previous Pane</source>
        <translation>Volet précédent</translation>
    </message>
    <message>
        <source>New &amp;View</source>
        <translation>&amp;Nouvelle vue</translation>
    </message>
    <message>
        <source>Next Problem</source>
        <translation>Problème suivant</translation>
    </message>
    <message>
        <source>Previous Problem</source>
        <translation>Problème précédent</translation>
    </message>
    <message>
        <source>Next Script</source>
        <translation>Script suivant</translation>
    </message>
    <message>
        <source>Previous Script</source>
        <translation>Script précédent</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>Pro&amp;blèmes</translation>
    </message>
    <message>
        <source>E&amp;xpanded Script</source>
        <translation>Script développé (&amp;X)</translation>
    </message>
    <message>
        <source>Find Re&amp;sults</source>
        <translation>Ré&amp;sultats de la recherche</translation>
    </message>
    <message>
        <source>Find Results &amp;2</source>
        <translation>Résultats de la recherche &amp;2</translation>
    </message>
</context>
<context>
    <name>OpenAsDialog</name>
    <message>
        <source>Open with Encoding</source>
        <translation>Ouvrir avec un encodage</translation>
    </message>
    <message>
        <source>SQL scripts (%1)</source>
        <translation>Scripts SQL (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>Détecter</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>En&amp;codage&#xa0;:</translation>
    </message>
</context>
<context>
    <name>OpenGuard</name>
    <message>
        <source>The workbench ended unexpectedly while it was opening “%1”. Open the file again?</source>
        <translation>Le programme s’est arrêté de façon inattendue en ouvrant «&#xa0;%1&#xa0;». Ouvrir à nouveau ce fichier&#xa0;?</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Insert &amp;blanks for Tab</source>
        <translation>In&amp;sérer des espaces pour Tab</translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation>&amp;Numéros de ligne</translation>
    </message>
    <message>
        <source>F&amp;old margin</source>
        <translation>&amp;Marge de pliage</translation>
    </message>
    <message>
        <source>Enter &amp;continues a comment</source>
        <translation>&amp;Entrée continue un commentaire</translation>
    </message>
    <message>
        <source>T&amp;yped quotes and brackets surround the selection</source>
        <translation>&amp;Guillemets et parenthèses saisis entourent la sélection</translation>
    </message>
    <message>
        <source>&amp;Print in colours</source>
        <translation>&amp;Imprimer en couleurs</translation>
    </message>
    <message>
        <source>Print the &amp;grounds of colours</source>
        <translation>Imprimer &amp;les couleurs de fond</translation>
    </message>
    <message>
        <source>Print in a font of its o&amp;wn</source>
        <translation>Imprimer avec &amp;une police propre</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>As the line above</source>
        <translation>Comme la ligne au-dessus</translation>
    </message>
    <message>
        <source>By the language</source>
        <translation>Selon le langage</translation>
    </message>
    <message>
        <source>Folders, with ; between them</source>
        <translation>Dossiers, séparés par&#xa0;;</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>&amp;Police</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Taille</translation>
    </message>
    <message>
        <source>&amp;Tab width, in columns</source>
        <translation>Largeur des tabulations, en &amp;colonnes</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>&amp;Retrait des nouvelles lignes</translation>
    </message>
    <message>
        <source>Folders of i&amp;ncluded files</source>
        <translation>Dossiers des &amp;fichiers inclus</translation>
    </message>
    <message>
        <source>P&amp;rint font</source>
        <translation>Police &amp;d’impression</translation>
    </message>
    <message>
        <source>Print si&amp;ze</source>
        <translation>T&amp;aille d’impression</translation>
    </message>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 avec BOM</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE avec BOM</translation>
    </message>
    <message>
        <source>Of new scripts, and of files that do not tell theirs by a mark or by what stands in them</source>
        <translation>Des nouveaux scripts, et des fichiers dont ni une marque ni le contenu ne la révèle</translation>
    </message>
    <message>
        <source>&amp;Encoding without a mark</source>
        <translation>Enc&amp;odage sans marque</translation>
    </message>
    <message>
        <source>Close brackets and &amp;quotes</source>
        <translation>Fermer les parent&amp;hèses et les guillemets</translation>
    </message>
    <message>
        <source>Print na&amp;me, page numbers and date</source>
        <translation>Imprimer a&amp;vec nom, numéros de page et date</translation>
    </message>
    <message>
        <source>None of Unicode: as below</source>
        <translation>Aucun d’Unicode : comme ci-dessous</translation>
    </message>
    <message>
        <source>What a file is read as that has no mark and is not UTF-8. One that looks wrong can be opened with another: click its encoding in the status bar.</source>
        <translation>Comment est lu un fichier qui n’a pas de marque et n’est pas en UTF-8. Celui qui s’affiche mal peut être ouvert avec un autre : cliquez sur son encodage dans la barre d’état.</translation>
    </message>
    <message>
        <source>Files that are no &amp;Unicode</source>
        <translation>Fichiers &amp;qui ne sont pas en Unicode</translation>
    </message>
    <message>
        <source>By the language: as the line above, and a step further in behind {, ) and : alone, which is for languages with braces. With &quot;Close brackets and quotes&quot; what brackets hold is a step further in either way.</source>
        <translation>Selon le langage&#xa0;: comme la ligne au-dessus, et un cran plus loin seulement après {, ) et :, ce qui convient aux langages à accolades. Avec «&#xa0;Fermer les parenthèses et les guillemets&#xa0;», ce que contiennent les crochets est un cran plus loin dans les deux cas.</translation>
    </message>
    <message>
        <source>There is no font “%1”.</source>
        <translation>Il n’y a pas de police «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>OutlinePane</name>
    <message>
        <source>Outline</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Partie d’un nom</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Outline of the script</source>
        <translation>Plan du script</translation>
    </message>
</context>
<context>
    <name>PaneTabs</name>
    <message>
        <source>Panes</source>
        <translation>Volets</translation>
    </message>
</context>
<context>
    <name>PathField</name>
    <message>
        <source>Path of the script</source>
        <translation>Chemin du script</translation>
    </message>
</context>
<context>
    <name>ProblemPane</name>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Problems of the script</source>
        <translation>Problèmes du script</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
</context>
<context>
    <name>Prompts</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql *.pks *.pkb *.ddl);;All files (*)</source>
        <translation>Scripts SQL (*.sql *.pks *.pkb *.ddl);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation>«&#xa0;%1&#xa0;» a des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>They are lost if you discard them.</source>
        <translation>Elles seront perdues si vous les abandonnez.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as &amp;UTF-8</source>
        <translation>Enregistrer en &amp;UTF-8</translation>
    </message>
    <message>
        <source>Save with &amp;Question Marks</source>
        <translation>Enregistrer avec &amp;des points d’interrogation</translation>
    </message>
    <message>
        <source>“%1” is there already.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>É&amp;craser</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>Co&amp;mpare...</source>
        <translation>Co&amp;mparer...</translation>
    </message>
</context>
<context>
    <name>ReadLoss</name>
    <message>
        <source>The file itself is as it was, and stays so until it is saved.</source>
        <translation>Le fichier lui-même est tel qu’il était et le reste jusqu’à son enregistrement.</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: byte %L2 of the file is a NUL, which no text has.</source>
        <translation>Seule la première partie de «&#xa0;%1&#xa0;» est affichée&#xa0;: l’octet %L2 du fichier est un NUL, qu’aucun texte ne contient.</translation>
    </message>
    <message>
        <source>File &gt; Open with Encoding reads it in another encoding.</source>
        <translation>Fichier &gt; Ouvrir avec un encodage le lit dans un autre encodage.</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: what follows is no text in %2, or cannot be read.</source>
        <translation>Seule la première partie de «&#xa0;%1&#xa0;» est affichée&#xa0;: la suite n’est pas du texte en %2 ou ne peut pas être lue.</translation>
    </message>
    <message>
        <source>“%1” has bytes that are no %2: %L3, the first in line %L4. They are shown as “%5”.</source>
        <translation>«&#xa0;%1&#xa0;» contient des octets qui ne sont pas du %2&#xa0;: %L3, le premier à la ligne %L4. Ils sont affichés comme «&#xa0;%5&#xa0;».</translation>
    </message>
    <message>
        <source>Only the first part of “%1” could be read. Saving it under its own name loses the rest of the file.</source>
        <translation>Seule la première partie de «&#xa0;%1&#xa0;» a pu être lue. L’enregistrer sous son propre nom perd le reste du fichier.</translation>
    </message>
    <message>
        <source>“%1” was read as %2 and has bytes that are none: %L3. Saving it under its own name puts “%4” in their place for good.</source>
        <translation>«&#xa0;%1&#xa0;» a été lu comme %2 et contient des octets qui n’en sont pas&#xa0;: %L3. L’enregistrer sous son propre nom met définitivement «&#xa0;%4&#xa0;» à leur place.</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Il n’y a rien à rétablir.</translation>
    </message>
    <message>
        <source>The clipboard holds no text.</source>
        <translation>Le presse-papiers ne contient pas de texte.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>Il n’y a rien à enregistrer.</translation>
    </message>
    <message>
        <source>The script has no file yet.</source>
        <translation>Le script n’a pas encore de fichier.</translation>
    </message>
    <message>
        <source>There is nothing to find: the find bar is empty.</source>
        <translation>Il n’y a rien à rechercher&#xa0;: la barre de recherche est vide.</translation>
    </message>
    <message>
        <source>No other script is open.</source>
        <translation>Aucun autre script n’est ouvert.</translation>
    </message>
    <message>
        <source>No tab was closed.</source>
        <translation>Aucun onglet n’a été fermé.</translation>
    </message>
    <message>
        <source>The script is not split.</source>
        <translation>Le script n’est pas partagé.</translation>
    </message>
    <message>
        <source>No script is open.</source>
        <translation>Aucun script n’est ouvert.</translation>
    </message>
    <message>
        <source>The script is read-only.</source>
        <translation>Le script est en lecture seule.</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Rien n’est sélectionné.</translation>
    </message>
    <message>
        <source>The script has nothing here to do this with.</source>
        <translation>Le script n’a rien ici qui s’y prête.</translation>
    </message>
    <message>
        <source>Convert Line Ends to</source>
        <translation>Convertir les fins de ligne en</translation>
    </message>
    <message>
        <source>There was no step back.</source>
        <translation>Il n’y a pas eu de retour en arrière.</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>“%1” is not there any more. It may have been moved, renamed or deleted, or its drive may be away. Remove it from the list of recent files?</source>
        <translation>«&#xa0;%1&#xa0;» n’est plus là. Le fichier a peut-être été déplacé, renommé ou supprimé, ou son lecteur est absent. Le retirer de la liste des fichiers récents&#xa0;?</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Recent Files</source>
        <translation>Fi&amp;chiers récents</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Pas encore de fichiers</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>The list could not be cleared: the settings cannot be written.</source>
        <translation>Impossible de vider la liste&#xa0;: les réglages ne peuvent pas être écrits.</translation>
    </message>
</context>
<context>
    <name>RecoverableCopy</name>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>il y a 1 minute</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>il y a %n minute</numerusform>
            <numerusform>il y a %n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation>il y a 1 heure</translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>il y a %n heure</numerusform>
            <numerusform>il y a %n heures</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day ago</source>
        <translation>il y a 1 jour</translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>il y a %n jour</numerusform>
            <numerusform>il y a %n jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Not changed since</source>
        <translation>Inchangé depuis</translation>
    </message>
    <message>
        <source>Changed since</source>
        <translation>Modifié depuis</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Illisible</translation>
    </message>
    <message>
        <source>Never saved</source>
        <translation>Jamais enregistré</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Récupérer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>Decide Later</source>
        <translation>Décider plus tard</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>&amp;Décider plus tard</translation>
    </message>
    <message>
        <source>Recover Scripts</source>
        <translation>Récupérer des scripts</translation>
    </message>
    <message>
        <source>The workbench ended unexpectedly. These scripts had changes that were not saved:</source>
        <translation>Le programme s’est arrêté de façon inattendue. Ces scripts avaient des modifications non enregistrées&#xa0;:</translation>
    </message>
    <message>
        <source>Scripts that can be recovered</source>
        <translation>Scripts récupérables</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>File Is</source>
        <translation>État du fichier</translation>
    </message>
    <message>
        <source>What to Do</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>All scripts:</source>
        <translation>Tous les scripts&#xa0;:</translation>
    </message>
    <message>
        <source>%1 all scripts</source>
        <translation>Tous les scripts&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>What to do with %1</source>
        <translation>Action pour %1</translation>
    </message>
    <message>
        <source>%1 and its copy are not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>%1 et sa copie ne sont pas comparés&#xa0;: ce qui n’est pas du texte, dépasse 8 Mo ou ne peut être lu n’est pas montré.</translation>
    </message>
    <message>
        <source>The copy of %1:</source>
        <translation>La copie de %1&#xa0;:</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the copy alone.</source>
        <translation>%1&#xa0;: les lignes avec - ne sont que dans le fichier, celles avec + que dans la copie.</translation>
    </message>
    <message>
        <source>%1 and its copy differ in their encoding alone.</source>
        <translation>%1 et sa copie ne diffèrent que par leur encodage.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
</context>
<context>
    <name>ResultsModel</name>
    <message>
        <source>Not searched or not replaced  (%1)</source>
        <translation>Non parcourus ou non remplacés  (%1)</translation>
    </message>
    <message>
        <source>%1%2: &quot;%3&quot; becomes &quot;%4&quot;</source>
        <translation>%1%2&#xa0;: «&#xa0;%3&#xa0;» devient «&#xa0;%4&#xa0;»</translation>
    </message>
    <message>
        <source>not open: is saved at once, no undo</source>
        <translation>non ouvert&#xa0;: enregistré aussitôt, sans annulation</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>enregistré</translation>
    </message>
    <message>
        <source>open, not saved</source>
        <translation>ouvert, non enregistré</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>fermé</translation>
    </message>
</context>
<context>
    <name>ResultsPane</name>
    <message>
        <source>no text</source>
        <translation>pas du texte</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>lecture impossible</translation>
    </message>
    <message>
        <source>a device or a pipe</source>
        <translation>un périphérique ou un tube</translation>
    </message>
    <message>
        <source>a folder that has been searched already</source>
        <translation>un dossier déjà parcouru</translation>
    </message>
    <message>
        <source>the expression went on for too long</source>
        <translation>l’expression a duré trop longtemps</translation>
    </message>
    <message>
        <source>Re&amp;place...</source>
        <translation>R&amp;emplacer...</translation>
    </message>
    <message>
        <source>Replace &amp;with</source>
        <translation>&amp;Remplacer par</translation>
    </message>
    <message>
        <source>What the matches are to become. Enter shows it for each of them</source>
        <translation>Ce que deviennent les occurrences. Entrée le montre pour chacune</translation>
    </message>
    <message>
        <source>Prev&amp;iew</source>
        <translation>A&amp;perçu</translation>
    </message>
    <message>
        <source>&amp;Replace Checked</source>
        <translation>Remplacer &amp;les cochées</translation>
    </message>
    <message>
        <source>No search</source>
        <translation>Aucune recherche</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: %2</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos;: %Ln matches in %2 of %3 files</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;»&#xa0;: %Ln occurrence dans %2 fichiers sur %3</numerusform>
            <numerusform>«&#xa0;%1&#xa0;»&#xa0;: %Ln occurrences dans %2 fichiers sur %3</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 not read</source>
        <translation>, non lus&#xa0;: %1</translation>
    </message>
    <message>
        <source>, %1 skipped</source>
        <translation>, ignorés&#xa0;: %1</translation>
    </message>
    <message>
        <source>. The expression went on for too long in some of them</source>
        <translation>. L’expression a duré trop longtemps dans certains</translation>
    </message>
    <message>
        <source>. Stopped</source>
        <translation>. Arrêté</translation>
    </message>
    <message>
        <source>Searching: %1</source>
        <translation>Recherche en cours&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Replacing: %1 of %2 files</source>
        <translation>Remplacement&#xa0;: %1 fichiers sur %2</translation>
    </message>
    <message numerus="yes">
        <source>. %Ln files were left as they are, see the end of the list</source>
        <translation>
            <numerusform>. %Ln fichier est resté tel quel, voir la fin de la liste</numerusform>
            <numerusform>. %Ln fichiers sont restés tels quels, voir la fin de la liste</numerusform>
        </translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Arrê&amp;ter</translation>
    </message>
    <message>
        <source>1 file saved</source>
        <translation>1 fichier enregistré</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files saved</source>
        <translation>
            <numerusform>%Ln fichier enregistré</numerusform>
            <numerusform>%Ln fichiers enregistrés</numerusform>
        </translation>
    </message>
    <message>
        <source>1 open script changed, not saved</source>
        <translation>1 script ouvert modifié, non enregistré</translation>
    </message>
    <message numerus="yes">
        <source>%Ln open scripts changed, not saved</source>
        <translation>
            <numerusform>%Ln script ouvert modifié, non enregistré</numerusform>
            <numerusform>%Ln scripts ouverts modifiés, non enregistrés</numerusform>
        </translation>
    </message>
    <message>
        <source>1 match replaced</source>
        <translation>1 occurrence remplacée</translation>
    </message>
    <message numerus="yes">
        <source>%Ln matches replaced</source>
        <translation>
            <numerusform>%Ln occurrence remplacée</numerusform>
            <numerusform>%Ln occurrences remplacées</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RichCopy</name>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>Impossible d’écrire %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>SaveAsDialog</name>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql)</source>
        <translation>Scripts SQL (*.sql)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>En&amp;codage&#xa0;:</translation>
    </message>
</context>
<context>
    <name>SchemeMenu</name>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Comme le &amp;bureau</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>C&amp;lair</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>&amp;High Contrast</source>
        <translation>C&amp;ontraste élevé</translation>
    </message>
    <message>
        <source>As on &amp;Paper</source>
        <translation>Comme sur &amp;papier</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>the picture “%1” cannot be written.</source>
        <translation>L’image «&#xa0;%1&#xa0;» ne peut pas être écrite.</translation>
    </message>
</context>
<context>
    <name>ScriptChecker</name>
    <message>
        <source>Scripts in %1 are not checked: there is no parser for it here.</source>
        <translation>Les scripts en %1 ne sont pas vérifiés&#xa0;: il n’y a pas d’analyseur pour eux.</translation>
    </message>
    <message>
        <source>The script is too long to be checked.</source>
        <translation>Le script est trop long pour être vérifié.</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>Aucun problème trouvé.</translation>
    </message>
    <message>
        <source>Scripts in SQL are not checked. Choose PostgreSQL or SQLite in the Language menu to have this one checked.</source>
        <translation>Les scripts en SQL ne sont pas vérifiés. Pour faire vérifier celui-ci, choisissez PostgreSQL ou SQLite dans le menu Langage.</translation>
    </message>
</context>
<context>
    <name>ScriptCommands</name>
    <message>
        <source>This language has no file of templates.</source>
        <translation>Ce langage n’a pas de fichier de modèles.</translation>
    </message>
    <message>
        <source>No file name and no address stands at the caret.</source>
        <translation>Ni nom de fichier ni adresse sous le curseur.</translation>
    </message>
    <message>
        <source>Nothing opens %1.</source>
        <translation>Rien n’ouvre %1.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Le fichier %1 n’existe pas.</translation>
    </message>
    <message>
        <source>Open &amp;Document</source>
        <translation>Ou&amp;vrir le document</translation>
    </message>
    <message>
        <source>“%1” was written: 1 page</source>
        <translation>«&#xa0;%1&#xa0;» a été écrit&#xa0;: 1 page</translation>
    </message>
    <message>
        <source>“%1” was written: %L2 pages</source>
        <translation>«&#xa0;%1&#xa0;» a été écrit&#xa0;: %L2 pages</translation>
    </message>
    <message>
        <source>“%1” was written</source>
        <translation>«&#xa0;%1&#xa0;» a été écrit</translation>
    </message>
</context>
<context>
    <name>ScriptDoc</name>
    <message>
        <source>“%1” has a name that is not UTF-8, which cannot be opened. Rename the file.</source>
        <translation>«&#xa0;%1&#xa0;» a un nom qui n’est pas en UTF-8 et ne peut pas être ouvert. Renommez le fichier.</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>«&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a script.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, pas un script.</translation>
    </message>
    <message>
        <source>“%1” cannot be read. Check that you may read it.</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;». Vérifiez que vous avez le droit de le lire.</translation>
    </message>
    <message>
        <source>The disk may be full.</source>
        <translation>Le disque est peut-être plein.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <translation>Un dossier porte ce nom.</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>Vous n’avez pas le droit d’écrire à cet endroit.</translation>
    </message>
    <message>
        <source>“%1” could not be saved. %2 The text is still here: use Save As to put it in another place.</source>
        <translation>Impossible d’enregistrer «&#xa0;%1&#xa0;». %2 Le texte est toujours ici&#xa0;: mettez-le ailleurs avec «&#xa0;Enregistrer sous&#xa0;».</translation>
    </message>
    <message>
        <source>The copy of “%1” cannot be read, or another window of the workbench has it by now. It is still there: “%2”.</source>
        <translation>La copie de «&#xa0;%1&#xa0;» ne peut pas être lue, ou une autre fenêtre du programme l’a prise entre-temps. Elle est toujours là&#xa0;: «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>Voulez-vous recharger «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>“%1” is open in another tab. Close it first, or choose another name.</source>
        <translation>«&#xa0;%1&#xa0;» est ouvert dans un autre onglet. Fermez-le d’abord, ou choisissez un autre nom.</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>É&amp;craser</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench since it was read. Saving it replaces those changes.</source>
        <translation>«&#xa0;%1&#xa0;» a été modifié en dehors du programme depuis sa lecture. L’enregistrer remplace ces modifications.</translation>
    </message>
    <message>
        <source>Your changes that are not saved are lost.</source>
        <translation>Vos modifications non enregistrées seront perdues.</translation>
    </message>
    <message>
        <source>%1: %2, as other files of this folder</source>
        <translation>%1&#xa0;: %2, comme d’autres fichiers de ce dossier</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench. If it is read again, your changes that are not saved are lost.</source>
        <translation>«&#xa0;%1&#xa0;» a été modifié en dehors du programme. S’il est relu, vos modifications non enregistrées seront perdues.</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>No copy of “%1” could be written in case of a crash: the disk may be full. Save it.</source>
        <translation>Aucune copie de « %1 » n’a pu être écrite en cas de plantage : le disque est peut-être plein. Enregistrez-le.</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. Save As makes a copy that you can change.</source>
        <translation>«&#xa0;%1&#xa0;» est en lecture seule, rien n’a été modifié. «&#xa0;Enregistrer sous&#xa0;» crée une copie que vous pouvez modifier.</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. File &gt; Read Only ends that.</source>
        <translation>«&#xa0;%1&#xa0;» est en lecture seule, rien n’a été modifié. Fichier &gt; Lecture seule y met fin.</translation>
    </message>
</context>
<context>
    <name>ScriptFrame</name>
    <message>
        <source> (Read Only)</source>
        <translation> (Lecture seule)</translation>
    </message>
</context>
<context>
    <name>ScriptPrinting</name>
    <message>
        <source>Finding page %1</source>
        <translation>Recherche de la page %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
</context>
<context>
    <name>ScriptTabs</name>
    <message>
        <source>List of tabs</source>
        <translation>Liste des onglets</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, modifié</translation>
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
        <translation>La ligne %L1 est très longue&#xa0;: après la colonne %L2, son texte est dessiné grossièrement</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Ligne %1, colonne %2</translation>
    </message>
    <message>
        <source> (%1 selected)</source>
        <translation> (%1 sélectionnés)</translation>
    </message>
</context>
<context>
    <name>StatusIndicators</name>
    <message>
        <source>A macro is recorded; stop it</source>
        <translation>Une macro est enregistrée&#xa0;; l’arrêter</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Whether the script can be changed</source>
        <translation>Si le script peut être modifié</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Go to a line</source>
        <translation>Aller à une ligne</translation>
    </message>
    <message>
        <source>The database in force at the caret</source>
        <translation>La base de données en vigueur au curseur</translation>
    </message>
    <message>
        <source>The language of the script</source>
        <translation>Le langage du script</translation>
    </message>
    <message>
        <source>Open with another encoding</source>
        <translation>Ouvrir avec un autre encodage</translation>
    </message>
    <message>
        <source>Convert line ends</source>
        <translation>Convertir les fins de ligne</translation>
    </message>
    <message>
        <source>Indentation</source>
        <translation>Retrait</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Whether typing replaces</source>
        <translation>Si la saisie remplace</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>ENR</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>Espaces&#xa0;: %1</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>RFP</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>INS</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problèmes&#xa0;: %1</translation>
    </message>
    <message>
        <source>What is wrong with the script</source>
        <translation>Ce qui ne va pas dans le script</translation>
    </message>
</context>
<context>
    <name>SymbolModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
</context>
<context>
    <name>SymbolPicker</name>
    <message>
        <source>Go to Symbol</source>
        <translation>Aller au symbole</translation>
    </message>
    <message>
        <source>Type part of a name</source>
        <translation>Tapez une partie d’un nom</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Symbols of the script</source>
        <translation>Symboles du script</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed</source>
        <translation>Le script ne crée rien qui puisse être listé</translation>
    </message>
    <message>
        <source>Nothing that the script creates has this name</source>
        <translation>Rien de ce que crée le script ne porte ce nom</translation>
    </message>
</context>
<context>
    <name>Symbols</name>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vue</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>Procédure</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Déclencheur</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Séquence</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquet</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schéma</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Étape</translation>
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
        <translation>Tapez une partie d’un nom</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>%1, in front</source>
        <translation>%1, au premier plan</translation>
    </message>
    <message>
        <source>No script has this in its name</source>
        <translation>Aucun script n’a cela dans son nom</translation>
    </message>
</context>
<context>
    <name>TabMenu</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close &amp;Others</source>
        <translation>Fermer &amp;les autres</translation>
    </message>
    <message>
        <source>Close to the &amp;Right</source>
        <translation>Fermer à &amp;droite</translation>
    </message>
    <message>
        <source>Close &amp;All</source>
        <translation>&amp;Tout fermer</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Copier le chemin</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>&amp;Ouvrir le dossier contenant</translation>
    </message>
</context>
<context>
    <name>TabWalk</name>
    <message>
        <source>Scripts by last use</source>
        <translation>Scripts par dernière utilisation</translation>
    </message>
</context>
<context>
    <name>TemplateForm</name>
    <message>
        <source>Insert Template</source>
        <translation>Insérer un modèle</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insérer</translation>
    </message>
</context>
<context>
    <name>TemplateList</name>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>Type the name of a template, or first letters of it</source>
        <translation>Tapez le nom d’un modèle, ou ses premières lettres</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Text of the template</source>
        <translation>Texte du modèle</translation>
    </message>
</context>
<context>
    <name>TextKeys</name>
    <message>
        <source>Word Left</source>
        <translation>Mot à gauche</translation>
    </message>
    <message>
        <source>Word Right</source>
        <translation>Mot à droite</translation>
    </message>
    <message>
        <source>Select Word Left</source>
        <translation>Sélectionner le mot à gauche</translation>
    </message>
    <message>
        <source>Select Word Right</source>
        <translation>Sélectionner le mot à droite</translation>
    </message>
    <message>
        <source>Start of the Text</source>
        <translation>Début du texte</translation>
    </message>
    <message>
        <source>End of the Text</source>
        <translation>Fin du texte</translation>
    </message>
    <message>
        <source>Select to the Start of the Text</source>
        <translation>Sélectionner jusqu’au début du texte</translation>
    </message>
    <message>
        <source>Select to the End of the Text</source>
        <translation>Sélectionner jusqu’à la fin du texte</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>Défiler vers le bas</translation>
    </message>
    <message>
        <source>Delete Word Left</source>
        <translation>Supprimer le mot à gauche</translation>
    </message>
    <message>
        <source>Delete Word Right</source>
        <translation>Supprimer le mot à droite</translation>
    </message>
    <message>
        <source>Delete to the Start of the Line</source>
        <translation>Supprimer jusqu’au début de la ligne</translation>
    </message>
    <message>
        <source>Delete to the End of the Line</source>
        <translation>Supprimer jusqu’à la fin de la ligne</translation>
    </message>
    <message>
        <source>Select Columns</source>
        <translation>Sélectionner des colonnes</translation>
    </message>
    <message>
        <source>Delete Line</source>
        <translation>Supprimer la ligne</translation>
    </message>
    <message>
        <source>Swap with the Line Above</source>
        <translation>Échanger avec la ligne du dessus</translation>
    </message>
    <message>
        <source>Paragraph Up</source>
        <translation>Paragraphe précédent</translation>
    </message>
    <message>
        <source>Select Paragraph Up</source>
        <translation>Sélectionner le paragraphe précédent</translation>
    </message>
    <message>
        <source>Start of the Row</source>
        <translation>Début de la rangée</translation>
    </message>
    <message>
        <source>End of the Row</source>
        <translation>Fin de la rangée</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d’outils</translation>
    </message>
</context>
<context>
    <name>UnsavedDialog</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>These scripts have changes that are not saved. Those without a tick lose them.</source>
        <translation>Ces scripts contiennent des modifications non enregistrées. Celles des scripts non cochés seront perdues.</translation>
    </message>
    <message>
        <source>Scripts to save</source>
        <translation>Scripts à enregistrer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Discard All</source>
        <translation>&amp;Tout abandonner</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>%1: %2 changes</source>
        <translation>%1&#xa0;: %2 modifications</translation>
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
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>%1 was read anew: it is %2</source>
        <translation>%1 a été relu&#xa0;: c’est du %2</translation>
    </message>
</context>
<context>
    <name>WorkbenchPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>The changes are in force for now, but these files could not be written:

%1

Apply again once they can be, or Cancel to give the changes up.</source>
        <translation>Les modifications sont en vigueur pour l’instant, mais ces fichiers n’ont pas pu être écrits&#xa0;:

%1

Appliquez à nouveau dès que c’est possible, ou annulez pour abandonner les modifications.</translation>
    </message>
    <message>
        <source>The tree has a page for what all languages share, and pages for each language. Type over the tree to find one.

Apply writes the changes and shows them in the open scripts; Cancel does not take back what was applied.

A colour that is &quot;Default&quot; follows the scheme of the View menu. What is set here for a language comes before the Options of all editors.</source>
        <translation>L’arbre a une page pour ce que tous les langages partagent, et des pages pour chaque langage. Tapez au-dessus de l’arbre pour en trouver une.

«&#xa0;Appliquer&#xa0;» écrit les modifications et les montre dans les scripts ouverts&#xa0;; «&#xa0;Annuler&#xa0;» ne revient pas sur ce qui a été appliqué.

Une couleur «&#xa0;Par défaut&#xa0;» suit le thème du menu Affichage. Ce qui est réglé ici pour un langage l’emporte sur les options de tous les éditeurs.</translation>
    </message>
</context>
<context>
    <name>WorkbenchPrinter</name>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The editing engine cannot be loaded: libZNBaseEditor.so has to stand beside libZNCoreEditor.so, or in the folder ZNCoreEditor there.</source>
        <translation>Impossible de charger le moteur d’édition&#xa0;: libZNBaseEditor.so doit se trouver à côté de libZNCoreEditor.so, ou là dans le dossier ZNCoreEditor.</translation>
    </message>
    <message>
        <source>The workbench that runs does not answer. This is a window beside it.</source>
        <translation>Le programme déjà lancé ne répond pas. Ceci est une fenêtre à part.</translation>
    </message>
</context>
</TS>
