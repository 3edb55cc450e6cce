<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CColorButton</name>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>More Colors...</source>
        <translation>Autres couleurs...</translation>
    </message>
</context>
<context>
    <name>CDocTemplate</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
</context>
<context>
    <name>CFileException</name>
    <message>
        <source>%1 was not found.</source>
        <translation>%1 est introuvable.</translation>
    </message>
    <message>
        <source>%1 is not a valid path.</source>
        <translation>%1 n’est pas un chemin valide.</translation>
    </message>
    <message>
        <source>%1 could not be opened: too many files are open.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: trop de fichiers sont ouverts.</translation>
    </message>
    <message>
        <source>%1 cannot be accessed.</source>
        <translation>Impossible d’accéder à %1.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 est utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>The disk is full: %1.</source>
        <translation>Le disque est plein&#xa0;: %1.</translation>
    </message>
    <message>
        <source>An error occurred while accessing %1.</source>
        <translation>Une erreur s’est produite lors de l’accès à %1.</translation>
    </message>
</context>
<context>
    <name>CWinApp</name>
    <message>
        <source>%1 could not be opened.</source>
        <translation>Impossible d’ouvrir %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation>Impossible d’enregistrer %1.</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Enregistrer les modifications de %1&#xa0;?</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorControlEx</name>
    <message>
        <source>Scripts (*.sql);;DDL Files (*.ddl);;Queries (*.qry);;Text Files (*.txt);;All Files (*)</source>
        <translation>Scripts (*.sql);;Fichiers DDL (*.ddl);;Requêtes (*.qry);;Fichiers texte (*.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Hide LineNumbers</source>
        <translation>Masquer les numéros de ligne</translation>
    </message>
    <message>
        <source>Show LineNumbers</source>
        <translation>Afficher les numéros de ligne</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>Le texte «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>Search has finished searching the whole document</source>
        <translation>Tout le document a été parcouru</translation>
    </message>
    <message>
        <source>Could not save as PDF</source>
        <translation>Impossible d’enregistrer en PDF</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorDoc</name>
    <message>
        <source>&apos;%1&apos;
File has been deleted outside of this application!
Do you want to close this Document?</source>
        <translation>«&#xa0;%1&#xa0;»
Le fichier a été supprimé en dehors de cette application&#xa0;!
Voulez-vous fermer ce document&#xa0;?</translation>
    </message>
    <message>
        <source>&apos;%1&apos;
File has been modified outside of this application!
Do you want to reload it?</source>
        <translation>«&#xa0;%1&#xa0;»
Le fichier a été modifié en dehors de cette application&#xa0;!
Voulez-vous le recharger&#xa0;?</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>Voulez-vous recharger «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Do you want to set the file &apos;%1&apos; to read only too?</source>
        <translation>Voulez-vous aussi mettre le fichier «&#xa0;%1&#xa0;» en lecture seule&#xa0;?</translation>
    </message>
    <message>
        <source> (Read Only)</source>
        <translation> (Lecture seule)</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorView</name>
    <message>
        <source>Incremental search failed: %1|</source>
        <translation>Échec de la recherche incrémentale&#xa0;: %1|</translation>
    </message>
    <message>
        <source>Incremental search: %1|</source>
        <translation>Recherche incrémentale&#xa0;: %1|</translation>
    </message>
    <message>
        <source>Incremental search reverse: %1|</source>
        <translation>Recherche incrémentale vers le haut&#xa0;: %1|</translation>
    </message>
    <message>
        <source>Enter Input Param</source>
        <translation>Saisie d’un paramètre</translation>
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
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Ln %1, Col %2</source>
        <translation>Li %1, Col %2</translation>
    </message>
    <message>
        <source>Enter no of times to repeat</source>
        <translation>Nombre de répétitions</translation>
    </message>
    <message>
        <source>Repeat Macro</source>
        <translation>Répéter la macro</translation>
    </message>
    <message>
        <source>Stop Record	Ctrl+Shift+R</source>
        <translation>Arrêter l’enregistrement	Ctrl+Maj+R</translation>
    </message>
    <message>
        <source>Record Macro	Ctrl+Shift+R</source>
        <translation>Enregistrer une macro	Ctrl+Maj+R</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>Le texte «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>Passed the end of the document</source>
        <translation>La fin du document a été dépassée</translation>
    </message>
    <message>
        <source>Passed the start of the document</source>
        <translation>Le début du document a été dépassé</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>Masquer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Afficher&#xa0;: %1</translation>
    </message>
    <message>
        <source>LineNumbers</source>
        <translation>Numéros de ligne</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>Marge des signets</translation>
    </message>
    <message>
        <source>Fold Margin</source>
        <translation>Marge de pliage</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>Espaces</translation>
    </message>
    <message>
        <source>EOL</source>
        <translation>Fins de ligne</translation>
    </message>
    <message>
        <source>Repeating the macro</source>
        <translation>Répétition de la macro</translation>
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
        <translation>&amp;Styles</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Styles</translation>
    </message>
    <message>
        <source>Foreground Color</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Couleur du fond</translation>
    </message>
    <message>
        <source>Reset All Colors</source>
        <translation>Réinitialiser toutes les couleurs</translation>
    </message>
    <message>
        <source>Sample Editor Area</source>
        <translation>Exemple de l’éditeur</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>Exemple de texte</translation>
    </message>
    <message>
        <source>Clearing color changes</source>
        <translation>Effacement des couleurs modifiées</translation>
    </message>
    <message>
        <source>All of your color settings will be lost ! Are you sure ?</source>
        <translation>Tous vos réglages de couleurs seront perdus&#xa0;! Voulez-vous continuer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>ContextMenu</name>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>C&amp;opier	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Select All	Ctrl+A</source>
        <translation>Tout sélectio&amp;nner	Ctrl+A</translation>
    </message>
    <message>
        <source>Match To&amp;ken	Ctrl+]</source>
        <translation>&amp;Parenthèse correspondante	Ctrl+]</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>Numéros de ligne</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Rechercher...</translation>
    </message>
    <message>
        <source>Repeat Last Find</source>
        <translation>Répéter la recherche</translation>
    </message>
    <message>
        <source>&amp;Undo	Ctrl+Z</source>
        <translation>&amp;Annuler	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation>Réta&amp;blir	Ctrl+Y</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>Co&amp;uper	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>&amp;Coller	Ctrl+V</translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation>&amp;Supprimer	Suppr</translation>
    </message>
    <message>
        <source>Insert File...</source>
        <translation>Insérer un fichier...</translation>
    </message>
    <message>
        <source>Line Endings</source>
        <translation>Fins de ligne</translation>
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
        <translation>Co&amp;mmenter</translation>
    </message>
    <message>
        <source>U&amp;ndo Comment Out</source>
        <translation>&amp;Décommenter</translation>
    </message>
    <message>
        <source>Upper C&amp;ase</source>
        <translation>Ma&amp;juscules</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>M&amp;inuscules</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>Augmenter &amp;le retrait</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>Diminuer le re&amp;trait</translation>
    </message>
    <message>
        <source>R&amp;eplace...</source>
        <translation>R&amp;emplacer...</translation>
    </message>
</context>
<context>
    <name>DocumentMap</name>
    <message>
        <source>Document map</source>
        <translation>Aperçu global du document</translation>
    </message>
</context>
<context>
    <name>EditListBox</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
</context>
<context>
    <name>EditorPrefsDialog</name>
    <message>
        <source>Find a language or a page</source>
        <translation>Langage ou page</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Réglages</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;ppliquer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Colors and Fonts</source>
        <translation>Couleurs et polices</translation>
    </message>
    <message>
        <source>The changes are in force. Cancel does not take them back.</source>
        <translation>Les modifications sont en vigueur. «&#xa0;Annuler&#xa0;» ne revient pas dessus.</translation>
    </message>
    <message>
        <source>Editor and Language Preferences</source>
        <translation>Préférences de l’éditeur et des langages</translation>
    </message>
    <message>
        <source>No page has this word.</source>
        <translation>Aucune page ne contient ce mot.</translation>
    </message>
</context>
<context>
    <name>EngineWindow</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>Éditeur de texte</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Annulation</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Rétablissement</translation>
    </message>
</context>
<context>
    <name>ExpressionFault</name>
    <message>
        <source>The expression is not complete.</source>
        <translation>L’expression est incomplète.</translation>
    </message>
    <message>
        <source>The expression cannot be read from character %1 on.</source>
        <translation>L’expression n’est pas lisible à partir du caractère %1.</translation>
    </message>
    <message>
        <source>The expression cannot be used.</source>
        <translation>L’expression n’est pas utilisable.</translation>
    </message>
</context>
<context>
    <name>FileEditCtrl</name>
    <message>
        <source>Browse for File</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Browse for a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Browse for a file</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>Enter an existing file.</source>
        <translation>Indiquez un fichier existant.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 n’existe pas.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n’est pas un dossier.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 n’est pas un fichier.</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>FileResult</name>
    <message>
        <source>The editing engine could not be loaded.</source>
        <translation>Impossible de charger le moteur d’édition.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>This is a folder or a device, not a file with a text.</source>
        <translation>C’est un dossier ou un périphérique, pas un fichier texte.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check that you may read it.</source>
        <translation>Impossible de lire le fichier. Vérifiez que vous avez le droit de le lire.</translation>
    </message>
    <message>
        <source>The file has more than 2 GB, which is more than can be edited.</source>
        <translation>Le fichier dépasse 2 Go, ce qui est plus que l’éditeur ne peut traiter.</translation>
    </message>
    <message>
        <source>Only the first part of the file could be read.</source>
        <translation>Seule la première partie du fichier a pu être lue.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>Vous n’avez pas le droit d’écrire à cet endroit.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>The encoding cannot hold all of the text.</source>
        <translation>L’encodage ne peut pas représenter tout le texte.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Impossible d’écrire le fichier.</translation>
    </message>
    <message>
        <source>No file was named. Choose one first.</source>
        <translation>Aucun fichier n’a été indiqué. Choisissez-en un d’abord.</translation>
    </message>
    <message>
        <source>The program used the editor outside of its GUI thread.</source>
        <translation>Le programme a utilisé l’éditeur en dehors de son thread graphique.</translation>
    </message>
</context>
<context>
    <name>FindDialogs</name>
    <message>
        <source>Insert into &quot;%1&quot;</source>
        <translation>Insérer dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>Insérer un élément d’expression</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>Texte à rechercher</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>&amp;Mots entiers uniquement</translation>
    </message>
    <message>
        <source>Matc&amp;h case</source>
        <translation>Respecter &amp;la casse</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>E&amp;xpression rationnelle</translation>
    </message>
    <message>
        <source>&amp;Wrap around search</source>
        <translation>Reprendre au début à la &amp;fin</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Vers le &amp;haut</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>&amp;Vers le bas</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>Le texte «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Bookmark &amp;All</source>
        <translation>Tout marquer d’&amp;un signet</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>Re&amp;place with</source>
        <translation>Remplacer &amp;par</translation>
    </message>
    <message>
        <source>Text to put in the place of a match</source>
        <translation>Texte qui prend la place d’une occurrence</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>R&amp;emplacer</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>&amp;Tout remplacer</translation>
    </message>
    <message>
        <source>In &amp;Selection</source>
        <translation>&amp;Dans la sélection</translation>
    </message>
    <message>
        <source>Enter find string</source>
        <translation>Saisissez le texte à rechercher</translation>
    </message>
    <message>
        <source>Replaced %1 occurrences of &apos;%2&apos;</source>
        <translation>%1 occurrences de «&#xa0;%2&#xa0;» remplacées</translation>
    </message>
</context>
<context>
    <name>FindInFiles</name>
    <message>
        <source>Find In Files</source>
        <translation>Rechercher dans les fichiers</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>R&amp;echercher</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>Texte à rechercher</translation>
    </message>
    <message>
        <source>Insert into &quot;Find what&quot;</source>
        <translation>Insérer dans «&#xa0;Rechercher&#xa0;»</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>Insérer un élément d’expression</translation>
    </message>
    <message>
        <source>In files/file t&amp;ypes</source>
        <translation>Dans les &amp;fichiers/types de fichiers</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Types de fichiers</translation>
    </message>
    <message>
        <source>Patterns of names, as *.sql;*.txt</source>
        <translation>Modèles de noms, comme *.sql;*.txt</translation>
    </message>
    <message>
        <source>In f&amp;older</source>
        <translation>&amp;Dans le dossier</translation>
    </message>
    <message>
        <source>Folder whose files are searched</source>
        <translation>Dossier dont les fichiers sont parcourus</translation>
    </message>
    <message>
        <source>In all open f&amp;iles</source>
        <translation>Dans &amp;tous les fichiers ouverts</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>&amp;Mots entiers uniquement</translation>
    </message>
    <message>
        <source>M&amp;atch case</source>
        <translation>Respecter &amp;la casse</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>E&amp;xpression rationnelle</translation>
    </message>
    <message>
        <source>&amp;Look in subfolders</source>
        <translation>&amp;Inclure les sous-dossiers</translation>
    </message>
    <message>
        <source>Output to pane &amp;2</source>
        <translation>Résultats dans le volet &amp;2</translation>
    </message>
    <message>
        <source>&amp;Just output matching count</source>
        <translation>Afficher &amp;seulement le nombre d’occurrences</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &gt;&gt;</source>
        <translation>&amp;Options avancées &gt;&gt;</translation>
    </message>
    <message>
        <source>Look in additional folders:</source>
        <translation>Chercher aussi dans les dossiers&#xa0;:</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>A&amp;dd Folder</source>
        <translation>Ajouter &amp;un dossier</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &lt;&lt;</source>
        <translation>O&amp;ptions avancées &lt;&lt;</translation>
    </message>
    <message>
        <source>Enter Type!</source>
        <translation>Indiquez un type&#xa0;!</translation>
    </message>
    <message>
        <source>Enter Path!</source>
        <translation>Indiquez un chemin&#xa0;!</translation>
    </message>
    <message>
        <source>Path &apos;%1&apos; does not exists</source>
        <translation>Le chemin «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>Enter Find String!</source>
        <translation>Indiquez le texte à rechercher&#xa0;!</translation>
    </message>
</context>
<context>
    <name>FontPref</name>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>%1, list</source>
        <translation>%1, liste</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Souligné</translation>
    </message>
    <message>
        <source>Apply to all Styles</source>
        <translation>Appliquer à tous les styles</translation>
    </message>
    <message>
        <source>Sample Text Area</source>
        <translation>Zone d’exemple</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>Exemple de texte</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>All styles have been set to the currrent font selection.</source>
        <translation>Tous les styles ont reçu la police choisie.</translation>
    </message>
</context>
<context>
    <name>Goto</name>
    <message>
        <source>Goto</source>
        <translation>Aller à</translation>
    </message>
    <message>
        <source>Goto Line :</source>
        <translation>Aller à la ligne&#xa0;:</translation>
    </message>
    <message>
        <source>Goto Line</source>
        <translation>Aller à la ligne</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Aller</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
</context>
<context>
    <name>Hands</name>
    <message>
        <source>C&amp;omments</source>
        <translation>&amp;Commentaires</translation>
    </message>
    <message>
        <source>&amp;Toggle Comment</source>
        <translation>&amp;Commenter/décommenter</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Lignes</translation>
    </message>
    <message>
        <source>Move Lines &amp;Up</source>
        <translation>Déplacer &amp;les lignes vers le haut</translation>
    </message>
    <message>
        <source>Move Lines Do&amp;wn</source>
        <translation>&amp;Déplacer les lignes vers le bas</translation>
    </message>
    <message>
        <source>Duplicate Line or Selection</source>
        <translation>Dupliquer la ligne ou la sélection</translation>
    </message>
    <message>
        <source>&amp;Join Lines</source>
        <translation>&amp;Joindre les lignes</translation>
    </message>
    <message>
        <source>Delete Li&amp;nes</source>
        <translation>&amp;Supprimer les lignes</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Sélectionner</translation>
    </message>
    <message>
        <source>Li&amp;nes, One More Each Time</source>
        <translation>Lignes, &amp;une de plus à chaque fois</translation>
    </message>
    <message>
        <source>&amp;Grow</source>
        <translation>É&amp;tendre</translation>
    </message>
    <message>
        <source>S&amp;hrink</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>&amp;Statement</source>
        <translation>&amp;Instruction</translation>
    </message>
    <message>
        <source>By &amp;Parentheses</source>
        <translation>De &amp;parenthèses</translation>
    </message>
    <message>
        <source>By &amp;Quotes</source>
        <translation>D’&amp;apostrophes</translation>
    </message>
    <message>
        <source>By &amp;Double Quotes</source>
        <translation>De &amp;guillemets</translation>
    </message>
    <message>
        <source>By &amp;Brackets</source>
        <translation>De &amp;crochets</translation>
    </message>
    <message>
        <source>By B&amp;races</source>
        <translation>&amp;D’accolades</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>&amp;Retrait</translation>
    </message>
    <message>
        <source>&amp;Paste as Indented Here</source>
        <translation>&amp;Coller avec le retrait d’ici</translation>
    </message>
    <message>
        <source>&amp;Next Statement</source>
        <translation>&amp;Instruction suivante</translation>
    </message>
    <message>
        <source>&amp;Previous Statement</source>
        <translation>I&amp;nstruction précédente</translation>
    </message>
    <message>
        <source>Next &amp;Batch</source>
        <translation>&amp;Lot suivant</translation>
    </message>
    <message>
        <source>Previous B&amp;atch</source>
        <translation>Lot &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Fold</source>
        <translation>&amp;Plier</translation>
    </message>
    <message>
        <source>&amp;Unfold</source>
        <translation>&amp;Déplier</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>&amp;Tout plier</translation>
    </message>
    <message>
        <source>U&amp;nfold All</source>
        <translation>T&amp;out déplier</translation>
    </message>
    <message>
        <source>To Level &amp;1</source>
        <translation>Jusqu’au niveau &amp;1</translation>
    </message>
    <message>
        <source>To Level &amp;2</source>
        <translation>Jusqu’au niveau &amp;2</translation>
    </message>
    <message>
        <source>To Level &amp;3</source>
        <translation>Jusqu’au niveau &amp;3</translation>
    </message>
    <message>
        <source>&amp;Add Next Occurrence</source>
        <translation>&amp;Ajouter l’occurrence suivante</translation>
    </message>
    <message>
        <source>All &amp;Occurrences</source>
        <translation>T&amp;outes les occurrences</translation>
    </message>
    <message>
        <source>&amp;Matching Bracket</source>
        <translation>Parenthèse &amp;correspondante</translation>
    </message>
    <message>
        <source>Surrou&amp;nd</source>
        <translation>Entou&amp;rer</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>Navi&amp;guer</translation>
    </message>
    <message>
        <source>&amp;Folds</source>
        <translation>Plis &amp;du texte</translation>
    </message>
</context>
<context>
    <name>InputBox</name>
    <message>
        <source>Input</source>
        <translation>Saisie</translation>
    </message>
    <message>
        <source> Cannot be empty</source>
        <translation> ne peut pas être vide</translation>
    </message>
</context>
<context>
    <name>KeywordPref</name>
    <message>
        <source>Keyword Type</source>
        <translation>Type de mots-clés</translation>
    </message>
    <message>
        <source>Keyword List</source>
        <translation>Liste de mots-clés</translation>
    </message>
    <message>
        <source>A last word of one letter is not kept, unless a blank follows it.</source>
        <translation>Un dernier mot d’une seule lettre n’est conservé que si une espace le suit.</translation>
    </message>
    <message>
        <source>Words with blanks or new lines between them.</source>
        <translation>Mots séparés par des espaces ou des retours à la ligne.</translation>
    </message>
</context>
<context>
    <name>Leftovers</name>
    <message>
        <source>This defines nothing: the name of a variable begins with &amp;&amp;.</source>
        <translation>Ceci ne définit rien&#xa0;: le nom d’une variable commence par &amp;&amp;.</translation>
    </message>
    <message>
        <source>This is not of the form %1 &amp;&amp;NAME VALUE, and nothing below is replaced.</source>
        <translation>Ceci n’a pas la forme %1 &amp;&amp;NOM VALEUR, et plus rien n’est remplacé au-dessous.</translation>
    </message>
    <message>
        <source>%1 is not defined: its value needs %2, which has none.</source>
        <translation>%1 n’est pas définie&#xa0;: sa valeur a besoin de %2, qui n’en a pas.</translation>
    </message>
    <message>
        <source>%1 is not defined: in its value nothing may follow a variable.</source>
        <translation>%1 n’est pas définie&#xa0;: dans sa valeur, rien ne peut suivre une variable.</translation>
    </message>
    <message>
        <source>%1 is used above its definition, which then does not count.</source>
        <translation>%1 est utilisée avant sa définition, qui ne compte donc pas.</translation>
    </message>
    <message>
        <source>Nothing defines %1.</source>
        <translation>Rien ne définit %1.</translation>
    </message>
</context>
<context>
    <name>LossCheck</name>
    <message>
        <source>“%1” has characters that %2 does not have. The first is %3 in line %4, column %5. In the file they would become question marks. UTF-8 keeps every character.</source>
        <translation>«&#xa0;%1&#xa0;» contient des caractères qui n’existent pas en %2. Le premier est %3, ligne %4, colonne %5. Dans le fichier, ils deviendraient des points d’interrogation. UTF-8 conserve tous les caractères.</translation>
    </message>
</context>
<context>
    <name>MainColorFontPref</name>
    <message>
        <source>Caret Color</source>
        <translation>Couleur du curseur</translation>
    </message>
    <message>
        <source>Use Selected Text Foreground Color</source>
        <translation>Couleur propre pour le texte sélectionné</translation>
    </message>
    <message>
        <source>Use Selected Text Background Color</source>
        <translation>Couleur propre pour le fond de la sélection</translation>
    </message>
    <message>
        <source>Enable Highlight Current &amp;Line</source>
        <translation>Mettre en é&amp;vidence la ligne courante</translation>
    </message>
    <message>
        <source>Enable Right Edge Warning</source>
        <translation>Signaler le bord droit</translation>
    </message>
    <message>
        <source>In All Languages</source>
        <translation>Dans tous les langages</translation>
    </message>
    <message>
        <source>Right Edge Position</source>
        <translation>Position du bord droit</translation>
    </message>
</context>
<context>
    <name>NamedColors</name>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Brun</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <translation>Vert olive foncé</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <translation>Vert foncé</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <translation>Bleu-vert foncé</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Bleu foncé</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>Indigo</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rouge foncé</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Jaune foncé</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Bleu-vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <translation>Bleu-gris</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <translation>Gris - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>Orange clair</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Citron vert</translation>
    </message>
    <message>
        <source>Sea green</source>
        <translation>Vert océan</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Aigue-marine</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Bleu clair</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <translation>Gris - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Or</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>Vert vif</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Turquoise</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <translation>Bleu ciel</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Prune</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>Gris clair</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rose pâle</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>Fauve</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>Jaune clair</translation>
    </message>
    <message>
        <source>Pale green </source>
        <translation>Vert pâle</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <translation>Turquoise pâle</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Bleu pâle</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavande</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
</context>
<context>
    <name>PatternMenus</name>
    <message>
        <source>Beginning of line	^</source>
        <translation>Début de ligne	^</translation>
    </message>
    <message>
        <source>End of line	$</source>
        <translation>Fin de ligne	$</translation>
    </message>
    <message>
        <source>Any character	.</source>
        <translation>N’importe quel caractère	.</translation>
    </message>
    <message>
        <source>Character class	[]</source>
        <translation>Classe de caractères	[]</translation>
    </message>
    <message>
        <source>Negated character class	[^]</source>
        <translation>Classe de caractères négative	[^]</translation>
    </message>
    <message>
        <source>Define a group	\(\)</source>
        <translation>Définir un groupe	\(\)</translation>
    </message>
    <message>
        <source>Match left OR right expr.	|</source>
        <translation>Expression de gauche OU de droite	|</translation>
    </message>
    <message>
        <source>Position after match	\c</source>
        <translation>Position après l’occurrence	\c</translation>
    </message>
    <message>
        <source>Preceding expr. zero or more	*</source>
        <translation>Expression précédente, 0 fois ou plus	*</translation>
    </message>
    <message>
        <source>Preceding expr. 1 or more	+</source>
        <translation>Expression précédente, 1 fois ou plus	+</translation>
    </message>
    <message>
        <source>Preceding expr. 0 or 1	?</source>
        <translation>Expression précédente, 0 ou 1 fois	?</translation>
    </message>
    <message>
        <source>Newline character	\n</source>
        <translation>Saut de ligne	\n</translation>
    </message>
    <message>
        <source>Carriage return	\r</source>
        <translation>Retour chariot	\r</translation>
    </message>
    <message>
        <source>Tab	\t</source>
        <translation>Tabulation	\t</translation>
    </message>
    <message>
        <source>Backspace	\b</source>
        <translation>Retour arrière	\b</translation>
    </message>
    <message>
        <source>Form feed	\f</source>
        <translation>Saut de page	\f</translation>
    </message>
    <message>
        <source>Hexadecimal digit	\x</source>
        <translation>Chiffre hexadécimal	\x</translation>
    </message>
    <message>
        <source>Escape	\</source>
        <translation>Échappement	\</translation>
    </message>
    <message>
        <source>Alphanumeric	[a-zA-Z0-9]</source>
        <translation>Caractère alphanumérique	[a-zA-Z0-9]</translation>
    </message>
    <message>
        <source>Subexpression 1	\1</source>
        <translation>Sous-expression 1	\1</translation>
    </message>
    <message>
        <source>Subexpression 2	\2</source>
        <translation>Sous-expression 2	\2</translation>
    </message>
    <message>
        <source>Subexpression 3	\3</source>
        <translation>Sous-expression 3	\3</translation>
    </message>
    <message>
        <source>Subexpression 4	\4</source>
        <translation>Sous-expression 4	\4</translation>
    </message>
    <message>
        <source>Subexpression 5	\5</source>
        <translation>Sous-expression 5	\5</translation>
    </message>
    <message>
        <source>Subexpression 6	\6</source>
        <translation>Sous-expression 6	\6</translation>
    </message>
    <message>
        <source>Subexpression 7	\7</source>
        <translation>Sous-expression 7	\7</translation>
    </message>
    <message>
        <source>Subexpression 8	\8</source>
        <translation>Sous-expression 8	\8</translation>
    </message>
    <message>
        <source>Subexpression 9	\9</source>
        <translation>Sous-expression 9	\9</translation>
    </message>
    <message>
        <source>New Line	\n</source>
        <translation>Nouvelle ligne	\n</translation>
    </message>
</context>
<context>
    <name>PrintService</name>
    <message>
        <source>No printer is set up. Do you want to save the pages as a PDF instead?</source>
        <translation>Aucune imprimante n’est installée. Voulez-vous plutôt enregistrer les pages en PDF&#xa0;?</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>Impossible d’imprimer le document.</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>Impossible d’écrire %1.</translation>
    </message>
    <message>
        <source>%1 – print preview</source>
        <translation>%1 – aperçu avant impression</translation>
    </message>
    <message>
        <source>%1 – print preview, the first %2 pages</source>
        <translation>%1 – aperçu avant impression, les %2 premières pages</translation>
    </message>
</context>
<context>
    <name>ProposalList</name>
    <message>
        <source>Completion</source>
        <translation>Complétion</translation>
    </message>
    <message>
        <source>Proposals</source>
        <translation>Propositions</translation>
    </message>
    <message>
        <source>Tab takes the first row</source>
        <translation>Tab prend la première ligne</translation>
    </message>
    <message>
        <source>Tab or Enter takes the row</source>
        <translation>Tab ou Entrée prend la ligne</translation>
    </message>
</context>
<context>
    <name>ReplaceAll</name>
    <message>
        <source>Replacing</source>
        <translation>Remplacement en cours</translation>
    </message>
</context>
<context>
    <name>SettingsMenu</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Settings (*.znsettings)</source>
        <translation>Réglages (*.znsettings)</translation>
    </message>
    <message>
        <source>What has not been applied yet is lost.</source>
        <translation>Ce qui n’a pas encore été appliqué est perdu.</translation>
    </message>
    <message>
        <source>&amp;Export All Settings...</source>
        <translation>&amp;Exporter tous les réglages...</translation>
    </message>
    <message>
        <source>&amp;Import All Settings...</source>
        <translation>&amp;Importer tous les réglages...</translation>
    </message>
    <message>
        <source>&amp;Write the Colours of a Scheme</source>
        <translation>Écrire &amp;les couleurs d’un thème</translation>
    </message>
    <message>
        <source>This &amp;Language as Shipped...</source>
        <translation>&amp;Ce langage comme à l’origine...</translation>
    </message>
    <message>
        <source>E&amp;verything as Shipped...</source>
        <translation>&amp;Tout comme à l’origine...</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>Impossible d’écrire %1.</translation>
    </message>
    <message>
        <source>All settings become those of %1, and the present ones are given up. %2

Import them?</source>
        <translation>Tous les réglages deviennent ceux de %1, et les réglages actuels sont abandonnés. %2

Les importer&#xa0;?</translation>
    </message>
    <message>
        <source>The settings could not be written; they are as they were.</source>
        <translation>Impossible d’écrire les réglages&#xa0;; ils restent tels qu’ils étaient.</translation>
    </message>
    <message>
        <source>%1 holds no settings of this editor.</source>
        <translation>%1 ne contient pas de réglages de cet éditeur.</translation>
    </message>
    <message>
        <source>All settings of %1 become those that it was shipped with. %2

Reset them?</source>
        <translation>Tous les réglages de %1 redeviennent ceux d’origine. %2

Les réinitialiser&#xa0;?</translation>
    </message>
    <message>
        <source>The settings of all languages become those that they were shipped with. %1

Reset them?</source>
        <translation>Les réglages de tous les langages redeviennent ceux d’origine. %1

Les réinitialiser&#xa0;?</translation>
    </message>
    <message>
        <source>The colours of all languages become those of &quot;%1&quot;, and stay so whatever the desktop looks like. %2

Write them?</source>
        <translation>Les couleurs de tous les langages deviennent celles de «&#xa0;%1&#xa0;» et le restent, quel que soit l’aspect du bureau. %2

Les écrire&#xa0;?</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impression</translation>
    </message>
</context>
<context>
    <name>SettingsPref</name>
    <message>
        <source>Shown Beside and In the Text</source>
        <translation>À côté du texte et dans le texte</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>Numéros de ligne</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>Marge des signets</translation>
    </message>
    <message>
        <source>Outlining</source>
        <translation>Plan (pliage)</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>Retour à la ligne automatique</translation>
    </message>
    <message>
        <source>End Of Line</source>
        <translation>Fins de ligne</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>Espaces</translation>
    </message>
    <message>
        <source>Indentation Guides</source>
        <translation>Guides de retrait</translation>
    </message>
    <message>
        <source>Tabs and Indentation</source>
        <translation>Tabulations et retraits</translation>
    </message>
    <message>
        <source>Tab Size</source>
        <translation>Largeur des tabulations</translation>
    </message>
    <message>
        <source>Indent Size</source>
        <translation>Largeur des retraits</translation>
    </message>
    <message>
        <source>Pressing Tab inserts Spaces</source>
        <translation>La touche Tab insère des espaces</translation>
    </message>
    <message>
        <source>Tab and Backspace (Un)Indent</source>
        <translation>Tab et Retour arrière changent le retrait</translation>
    </message>
    <message>
        <source>Auto Indentation Style</source>
        <translation>Retrait automatique</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Follow Previous Line</source>
        <translation>Comme la ligne précédente</translation>
    </message>
    <message>
        <source>Follow Language Scoping</source>
        <translation>Selon la structure du langage</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Syntax &amp;Highlighting</source>
        <translation>Co&amp;loration syntaxique</translation>
    </message>
    <message>
        <source>&amp;Brace Matching</source>
        <translation>Par&amp;enthèses correspondantes</translation>
    </message>
    <message>
        <source>Completion</source>
        <translation>Complétion</translation>
    </message>
    <message>
        <source>&amp;Auto Completion</source>
        <translation>Co&amp;mplétion automatique</translation>
    </message>
    <message>
        <source>C&amp;ode Completion</source>
        <translation>&amp;Complétion de code</translation>
    </message>
    <message>
        <source>&amp;Tab Key</source>
        <translation>&amp;Touche Tab</translation>
    </message>
    <message>
        <source>Space Bar &amp;Key</source>
        <translation>&amp;Barre d’espace</translation>
    </message>
    <message>
        <source>When a File is Saved</source>
        <translation>À l’enregistrement d’un fichier</translation>
    </message>
    <message>
        <source>Ensure Final New Line</source>
        <translation>Terminer la dernière ligne</translation>
    </message>
    <message>
        <source>Convert Tabs To Spaces</source>
        <translation>Convertir les tabulations en espaces</translation>
    </message>
    <message>
        <source>Trim Trailing Spaces</source>
        <translation>Supprimer les espaces en fin de ligne</translation>
    </message>
</context>
<context>
    <name>SplitBox</name>
    <message>
        <source>Drag down to divide the text into two panes</source>
        <translation>Tirez vers le bas pour partager le texte en deux volets</translation>
    </message>
    <message>
        <source>Drag to the right to divide the text into two panes</source>
        <translation>Tirez vers la droite pour partager le texte en deux volets</translation>
    </message>
    <message>
        <source>Divide above and below</source>
        <translation>Partager en haut et en bas</translation>
    </message>
    <message>
        <source>Divide side by side</source>
        <translation>Partager côte à côte</translation>
    </message>
</context>
<context>
    <name>StyleSample</name>
    <message>
        <source>Sample of the language</source>
        <translation>Exemple du langage</translation>
    </message>
</context>
<context>
    <name>SyntaxFiles</name>
    <message>
        <source>Declaration</source>
        <translation>Déclaration</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactif</translation>
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
        <translation>JavaScript serveur</translation>
    </message>
    <message>
        <source>Server Python</source>
        <translation>Python serveur</translation>
    </message>
    <message>
        <source>Server VBScript</source>
        <translation>VBScript serveur</translation>
    </message>
    <message>
        <source>VBScript</source>
        <translation>VBScript</translation>
    </message>
    <message>
        <source>.NET message</source>
        <translation>Message .NET</translation>
    </message>
    <message>
        <source>Absoft message</source>
        <translation>Message Absoft</translation>
    </message>
    <message>
        <source>Added line</source>
        <translation>Ligne ajoutée</translation>
    </message>
    <message>
        <source>Added line of a removed patch</source>
        <translation>Ligne ajoutée d’un correctif retiré</translation>
    </message>
    <message>
        <source>Added line of an added patch</source>
        <translation>Ligne ajoutée d’un correctif ajouté</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>Assembler</source>
        <translation>Assembleur</translation>
    </message>
    <message>
        <source>Assignment</source>
        <translation>Affectation</translation>
    </message>
    <message>
        <source>At-rule</source>
        <translation>Règle @</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Attribute selector</source>
        <translation>Sélecteur d’attribut</translation>
    </message>
    <message>
        <source>Backticks</source>
        <translation>Accents graves</translation>
    </message>
    <message>
        <source>Binary number</source>
        <translation>Nombre binaire</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>Block comment</source>
        <translation>Commentaire de bloc</translation>
    </message>
    <message>
        <source>Body of a format</source>
        <translation>Corps d’un format</translation>
    </message>
    <message>
        <source>Borland message</source>
        <translation>Message Borland</translation>
    </message>
    <message>
        <source>CDATA section</source>
        <translation>Section CDATA</translation>
    </message>
    <message>
        <source>Call tips</source>
        <translation>Aide à l’appel</translation>
    </message>
    <message>
        <source>Changed line</source>
        <translation>Ligne modifiée</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Caractère</translation>
    </message>
    <message>
        <source>Class name</source>
        <translation>Nom de classe</translation>
    </message>
    <message>
        <source>Class selector</source>
        <translation>Sélecteur de classe</translation>
    </message>
    <message>
        <source>Client command</source>
        <translation>Commande du client</translation>
    </message>
    <message>
        <source>Client comment</source>
        <translation>Commentaire du client</translation>
    </message>
    <message>
        <source>Client prompt</source>
        <translation>Invite du client</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Command with qx</source>
        <translation>Commande avec qx</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Comment block</source>
        <translation>Bloc de commentaire</translation>
    </message>
    <message>
        <source>Comment in a directive</source>
        <translation>Commentaire dans une directive</translation>
    </message>
    <message>
        <source>Comment in a parameter</source>
        <translation>Commentaire dans un paramètre</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Constante</translation>
    </message>
    <message>
        <source>Constant of the lexer</source>
        <translation>Constante de l’analyseur</translation>
    </message>
    <message>
        <source>Control characters</source>
        <translation>Caractères de contrôle</translation>
    </message>
    <message>
        <source>Data section</source>
        <translation>Section de données</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>Type de données</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Default value</source>
        <translation>Valeur par défaut</translation>
    </message>
    <message>
        <source>Delimiter of a here document</source>
        <translation>Délimiteur d’un document en ligne</translation>
    </message>
    <message>
        <source>Displayed mathematics</source>
        <translation>Formule hors texte</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Documentation comment</source>
        <translation>Commentaire de documentation</translation>
    </message>
    <message>
        <source>Documentation comment in a directive</source>
        <translation>Commentaire de documentation dans une directive</translation>
    </message>
    <message>
        <source>Documentation keyword</source>
        <translation>Mot-clé de documentation</translation>
    </message>
    <message>
        <source>Documentation line comment</source>
        <translation>Commentaire de documentation de ligne</translation>
    </message>
    <message>
        <source>Element selector</source>
        <translation>Sélecteur d’élément</translation>
    </message>
    <message>
        <source>End of a tag</source>
        <translation>Fin d’une balise</translation>
    </message>
    <message>
        <source>End of an XML fragment</source>
        <translation>Fin d’un fragment XML</translation>
    </message>
    <message>
        <source>End of an environment</source>
        <translation>Fin d’un environnement</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Environnement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Escape sequence</source>
        <translation>Séquence d’échappement</translation>
    </message>
    <message>
        <source>External command</source>
        <translation>Commande externe</translation>
    </message>
    <message>
        <source>First parameter</source>
        <translation>Premier paramètre</translation>
    </message>
    <message>
        <source>Folded text</source>
        <translation>Texte plié</translation>
    </message>
    <message>
        <source>Fortran message</source>
        <translation>Message Fortran</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>Function name</source>
        <translation>Nom de fonction</translation>
    </message>
    <message>
        <source>Further keyword</source>
        <translation>Autre mot-clé</translation>
    </message>
    <message>
        <source>GCC message</source>
        <translation>Message GCC</translation>
    </message>
    <message>
        <source>Global class</source>
        <translation>Classe globale</translation>
    </message>
    <message>
        <source>Global variable</source>
        <translation>Variable globale</translation>
    </message>
    <message>
        <source>HTML checker message</source>
        <translation>Message du vérificateur HTML</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Table de hachage</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>En-tête</translation>
    </message>
    <message>
        <source>Here document in backticks</source>
        <translation>Document en ligne entre accents graves</translation>
    </message>
    <message>
        <source>Here document in double quotes</source>
        <translation>Document en ligne entre guillemets</translation>
    </message>
    <message>
        <source>Here document in single quotes</source>
        <translation>Document en ligne entre apostrophes</translation>
    </message>
    <message>
        <source>Hexadecimal number</source>
        <translation>Nombre hexadécimal</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificateur</translation>
    </message>
    <message>
        <source>Identifier in backticks</source>
        <translation>Identificateur entre accents graves</translation>
    </message>
    <message>
        <source>Identifier in backticks or brackets</source>
        <translation>Identificateur entre accents graves ou crochets</translation>
    </message>
    <message>
        <source>Identifier in brackets</source>
        <translation>Identificateur entre crochets</translation>
    </message>
    <message>
        <source>Identifier in double quotes</source>
        <translation>Identificateur entre guillemets</translation>
    </message>
    <message>
        <source>Identifier selector</source>
        <translation>Sélecteur d’identifiant</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>Important</translation>
    </message>
    <message>
        <source>Including file</source>
        <translation>Fichier incluant</translation>
    </message>
    <message>
        <source>Indentation guides</source>
        <translation>Guides de retrait</translation>
    </message>
    <message>
        <source>Intel Fortran message</source>
        <translation>Message Intel Fortran</translation>
    </message>
    <message>
        <source>Java stack line</source>
        <translation>Ligne de pile Java</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Library type</source>
        <translation>Type de bibliothèque</translation>
    </message>
    <message>
        <source>Line comment</source>
        <translation>Commentaire de ligne</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Numéros de ligne</translation>
    </message>
    <message>
        <source>Linker message</source>
        <translation>Message de l’éditeur de liens</translation>
    </message>
    <message>
        <source>List with qw</source>
        <translation>Liste avec qw</translation>
    </message>
    <message>
        <source>Long quote</source>
        <translation>Longue citation</translation>
    </message>
    <message>
        <source>Lua message</source>
        <translation>Message Lua</translation>
    </message>
    <message>
        <source>Mark that hides a command</source>
        <translation>Marque qui cache une commande</translation>
    </message>
    <message>
        <source>Markup declaration</source>
        <translation>Déclaration de balisage</translation>
    </message>
    <message>
        <source>Matching brace</source>
        <translation>Parenthèse correspondante</translation>
    </message>
    <message>
        <source>Mathematics</source>
        <translation>Mathématiques</translation>
    </message>
    <message>
        <source>Microsoft message</source>
        <translation>Message Microsoft</translation>
    </message>
    <message>
        <source>Name of a format</source>
        <translation>Nom d’un format</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Option of a command</source>
        <translation>Option d’une commande</translation>
    </message>
    <message>
        <source>Other inside a tag</source>
        <translation>Autre dans une balise</translation>
    </message>
    <message>
        <source>PHP mark</source>
        <translation>Marque PHP</translation>
    </message>
    <message>
        <source>PHP message</source>
        <translation>Message PHP</translation>
    </message>
    <message>
        <source>Patch message</source>
        <translation>Message de correctif</translation>
    </message>
    <message>
        <source>Perl message</source>
        <translation>Message Perl</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Preprocessor</source>
        <translation>Préprocesseur</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>Procédure</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Property of CSS 2</source>
        <translation>Propriété de CSS 2</translation>
    </message>
    <message>
        <source>Property of CSS 3</source>
        <translation>Propriété de CSS 3</translation>
    </message>
    <message>
        <source>Property of one browser</source>
        <translation>Propriété d’un navigateur</translation>
    </message>
    <message>
        <source>Prototype</source>
        <translation>Prototype</translation>
    </message>
    <message>
        <source>Pseudo-class</source>
        <translation>Pseudo-classe</translation>
    </message>
    <message>
        <source>Pseudo-class of one browser</source>
        <translation>Pseudo-classe d’un navigateur</translation>
    </message>
    <message>
        <source>Pseudo-element</source>
        <translation>Pseudo-élément</translation>
    </message>
    <message>
        <source>Pseudo-element of one browser</source>
        <translation>Pseudo-élément d’un navigateur</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>Ponctuation</translation>
    </message>
    <message>
        <source>Python message</source>
        <translation>Message Python</translation>
    </message>
    <message>
        <source>Quoting operator</source>
        <translation>Opérateur de citation</translation>
    </message>
    <message>
        <source>Raw string</source>
        <translation>Chaîne brute</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Expression rationnelle</translation>
    </message>
    <message>
        <source>Regular expression with qr</source>
        <translation>Expression rationnelle avec qr</translation>
    </message>
    <message>
        <source>Removed line</source>
        <translation>Ligne retirée</translation>
    </message>
    <message>
        <source>Removed line of a removed patch</source>
        <translation>Ligne retirée d’un correctif retiré</translation>
    </message>
    <message>
        <source>Removed line of an added patch</source>
        <translation>Ligne retirée d’un correctif ajouté</translation>
    </message>
    <message>
        <source>Rule of a group</source>
        <translation>Règle de groupe</translation>
    </message>
    <message>
        <source>Scalar</source>
        <translation>Scalaire</translation>
    </message>
    <message>
        <source>Script tag</source>
        <translation>Balise de script</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Section</translation>
    </message>
    <message>
        <source>Server comment</source>
        <translation>Commentaire serveur</translation>
    </message>
    <message>
        <source>Server script</source>
        <translation>Script serveur</translation>
    </message>
    <message>
        <source>Server script mark</source>
        <translation>Marque de script serveur</translation>
    </message>
    <message>
        <source>Setting or pragma</source>
        <translation>Réglage ou pragma</translation>
    </message>
    <message>
        <source>Short command</source>
        <translation>Commande courte</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>Spécial</translation>
    </message>
    <message>
        <source>Special character</source>
        <translation>Caractère spécial</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Start of an XML fragment</source>
        <translation>Début d’un fragment XML</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Instruction</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Chaîne</translation>
    </message>
    <message>
        <source>String in double quotes</source>
        <translation>Chaîne entre guillemets</translation>
    </message>
    <message>
        <source>String in single quotes</source>
        <translation>Chaîne entre apostrophes</translation>
    </message>
    <message>
        <source>String with hash marks</source>
        <translation>Chaîne avec croisillons</translation>
    </message>
    <message>
        <source>String with q</source>
        <translation>Chaîne avec q</translation>
    </message>
    <message>
        <source>String with qq</source>
        <translation>Chaîne avec qq</translation>
    </message>
    <message>
        <source>Substitution</source>
        <translation>Substitution</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Symbol table</source>
        <translation>Table des symboles</translation>
    </message>
    <message>
        <source>System object</source>
        <translation>Objet système</translation>
    </message>
    <message>
        <source>System table or view</source>
        <translation>Table ou vue système</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Balise</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Cible</translation>
    </message>
    <message>
        <source>Task marker</source>
        <translation>Marque de tâche</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Text before a data type</source>
        <translation>Texte avant un type de données</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>Translittération</translation>
    </message>
    <message>
        <source>Triple double quotes</source>
        <translation>Triples guillemets</translation>
    </message>
    <message>
        <source>Triple single quotes</source>
        <translation>Triples apostrophes</translation>
    </message>
    <message>
        <source>Triple-quoted string</source>
        <translation>Chaîne entre triples guillemets</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>Unclosed string</source>
        <translation>Chaîne non fermée</translation>
    </message>
    <message>
        <source>Unknown attribute</source>
        <translation>Attribut inconnu</translation>
    </message>
    <message>
        <source>Unknown documentation keyword</source>
        <translation>Mot-clé de documentation inconnu</translation>
    </message>
    <message>
        <source>Unknown property</source>
        <translation>Propriété inconnue</translation>
    </message>
    <message>
        <source>Unknown pseudo-class</source>
        <translation>Pseudo-classe inconnue</translation>
    </message>
    <message>
        <source>Unknown tag</source>
        <translation>Balise inconnue</translation>
    </message>
    <message>
        <source>Unmatched brace</source>
        <translation>Parenthèse sans correspondance</translation>
    </message>
    <message>
        <source>Unquoted value</source>
        <translation>Valeur sans guillemets</translation>
    </message>
    <message>
        <source>User keyword</source>
        <translation>Mot-clé personnel</translation>
    </message>
    <message>
        <source>User literal</source>
        <translation>Littéral personnel</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Variable in a command document</source>
        <translation>Variable dans un document de commandes</translation>
    </message>
    <message>
        <source>Variable in a complex expression</source>
        <translation>Variable dans une expression complexe</translation>
    </message>
    <message>
        <source>Variable in a here document</source>
        <translation>Variable dans un document en ligne</translation>
    </message>
    <message>
        <source>Variable in a regular expression</source>
        <translation>Variable dans une expression rationnelle</translation>
    </message>
    <message>
        <source>Variable in a string</source>
        <translation>Variable dans une chaîne</translation>
    </message>
    <message>
        <source>Variable in a substitution</source>
        <translation>Variable dans une substitution</translation>
    </message>
    <message>
        <source>Variable in backticks</source>
        <translation>Variable entre accents graves</translation>
    </message>
    <message>
        <source>Variable in qq</source>
        <translation>Variable dans qq</translation>
    </message>
    <message>
        <source>Variable in qr</source>
        <translation>Variable dans qr</translation>
    </message>
    <message>
        <source>Variable in qx</source>
        <translation>Variable dans qx</translation>
    </message>
    <message>
        <source>Variable indexer</source>
        <translation>Indice de variable</translation>
    </message>
    <message>
        <source>Verbatim documentation</source>
        <translation>Documentation littérale</translation>
    </message>
    <message>
        <source>Verbatim string</source>
        <translation>Chaîne littérale</translation>
    </message>
    <message>
        <source>Verbatim text</source>
        <translation>Texte littéral</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Mot</translation>
    </message>
    <message>
        <source>Catalog and administrative views</source>
        <translation>Vues de catalogue et d’administration</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Commands (completion only)</source>
        <translation>Commandes (complétion seule)</translation>
    </message>
    <message>
        <source>Configuration parameters</source>
        <translation>Paramètres de configuration</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Constantes</translation>
    </message>
    <message>
        <source>Data types</source>
        <translation>Types de données</translation>
    </message>
    <message>
        <source>Declaration keywords</source>
        <translation>Mots-clés de déclaration</translation>
    </message>
    <message>
        <source>Diagnostics items</source>
        <translation>Éléments de diagnostic</translation>
    </message>
    <message>
        <source>Dictionary and performance views</source>
        <translation>Vues de dictionnaire et de performances</translation>
    </message>
    <message>
        <source>Directives (completion only)</source>
        <translation>Directives (complétion seule)</translation>
    </message>
    <message>
        <source>Documentation keywords</source>
        <translation>Mots-clés de documentation</translation>
    </message>
    <message>
        <source>Elements and attributes</source>
        <translation>Éléments et attributs</translation>
    </message>
    <message>
        <source>Environments (completion only)</source>
        <translation>Environnements (complétion seule)</translation>
    </message>
    <message>
        <source>External commands</source>
        <translation>Commandes externes</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>Functions (completion only)</source>
        <translation>Fonctions (complétion seule)</translation>
    </message>
    <message>
        <source>Global variables (without @@)</source>
        <translation>Variables globales (sans @@)</translation>
    </message>
    <message>
        <source>Information schema</source>
        <translation>Schéma d’information</translation>
    </message>
    <message>
        <source>JavaScript keywords</source>
        <translation>Mots-clés JavaScript</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Library types</source>
        <translation>Types de bibliothèque</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Opérateurs</translation>
    </message>
    <message>
        <source>PHP functions (completion only)</source>
        <translation>Fonctions PHP (complétion seule)</translation>
    </message>
    <message>
        <source>PHP keywords</source>
        <translation>Mots-clés PHP</translation>
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
        <translation>Mots-clés procéduraux</translation>
    </message>
    <message>
        <source>Procedures, table functions and modules</source>
        <translation>Procédures, fonctions de table et modules</translation>
    </message>
    <message>
        <source>Properties of CSS 1</source>
        <translation>Propriétés de CSS 1</translation>
    </message>
    <message>
        <source>Properties of CSS 2</source>
        <translation>Propriétés de CSS 2</translation>
    </message>
    <message>
        <source>Properties of CSS 3</source>
        <translation>Propriétés de CSS 3</translation>
    </message>
    <message>
        <source>Properties of one browser</source>
        <translation>Propriétés d’un navigateur</translation>
    </message>
    <message>
        <source>Pseudo-classes</source>
        <translation>Pseudo-classes</translation>
    </message>
    <message>
        <source>Pseudo-classes of one browser</source>
        <translation>Pseudo-classes d’un navigateur</translation>
    </message>
    <message>
        <source>Pseudo-elements</source>
        <translation>Pseudo-éléments</translation>
    </message>
    <message>
        <source>Pseudo-elements of one browser</source>
        <translation>Pseudo-éléments d’un navigateur</translation>
    </message>
    <message>
        <source>Python keywords</source>
        <translation>Mots-clés Python</translation>
    </message>
    <message>
        <source>Routines of the schema sys</source>
        <translation>Routines du schéma sys</translation>
    </message>
    <message>
        <source>Special targets (completion only)</source>
        <translation>Cibles spéciales (complétion seule)</translation>
    </message>
    <message>
        <source>Statements and clauses</source>
        <translation>Instructions et clauses</translation>
    </message>
    <message>
        <source>Supplied packages</source>
        <translation>Paquets fournis</translation>
    </message>
    <message>
        <source>System and monitoring tables</source>
        <translation>Tables système et de surveillance</translation>
    </message>
    <message>
        <source>System catalogs and views</source>
        <translation>Catalogues et vues système</translation>
    </message>
    <message>
        <source>System packages</source>
        <translation>Paquets système</translation>
    </message>
    <message>
        <source>System procedures</source>
        <translation>Procédures système</translation>
    </message>
    <message>
        <source>System tables and modules</source>
        <translation>Tables et modules système</translation>
    </message>
    <message>
        <source>System tables and views</source>
        <translation>Tables et vues système</translation>
    </message>
    <message>
        <source>System variables (without @@)</source>
        <translation>Variables système (sans @@)</translation>
    </message>
    <message>
        <source>Task markers</source>
        <translation>Marques de tâche</translation>
    </message>
    <message>
        <source>VBScript keywords</source>
        <translation>Mots-clés VBScript</translation>
    </message>
    <message>
        <source>Values of pragmas</source>
        <translation>Valeurs de pragmas</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorPlugin</name>
    <message>
        <source>Source Text Editor</source>
        <translation>Éditeur de code source</translation>
    </message>
    <message>
        <source>An editor for SQL scripts and other source texts.</source>
        <translation>Un éditeur de scripts SQL et d’autres textes source.</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorWidget</name>
    <message>
        <source>The editor cannot be shown, since its engine could not be loaded.
%1</source>
        <translation>L’éditeur ne peut pas être affiché, car son moteur n’a pas pu être chargé.
%1</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>Éditeur de texte</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>Au&amp;gmenter le retrait</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>Diminuer &amp;le retrait</translation>
    </message>
    <message>
        <source>U&amp;pper Case</source>
        <translation>Ma&amp;juscules</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>&amp;Minuscules</translation>
    </message>
    <message>
        <source>Match Bra&amp;ce</source>
        <translation>Parent&amp;hèse correspondante</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>Poser ou ôter &amp;un signet</translation>
    </message>
    <message>
        <source>&amp;Next Bookmark</source>
        <translation>&amp;Signet suivant</translation>
    </message>
    <message>
        <source>Previous Boo&amp;kmark</source>
        <translation>Signet &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>Z&amp;oom arrière</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>&amp;Taille d’origine</translation>
    </message>
    <message>
        <source>&amp;Line Numbers</source>
        <translation>&amp;Numéros de ligne</translation>
    </message>
    <message>
        <source>Clear All Bookmarks</source>
        <translation>Effacer tous les signets</translation>
    </message>
    <message>
        <source>Co&amp;mment Out</source>
        <translation>&amp;Commenter</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>&amp;Décommenter</translation>
    </message>
    <message>
        <source>Increase Number</source>
        <translation>Augmenter le nombre</translation>
    </message>
    <message>
        <source>Decrease Number</source>
        <translation>Diminuer le nombre</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Rechercher...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Rechercher le sui&amp;vant</translation>
    </message>
    <message>
        <source>&amp;Replace...</source>
        <translation>R&amp;emplacer...</translation>
    </message>
    <message>
        <source>Insert &amp;File...</source>
        <translation>&amp;Insérer un fichier...</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR+LF (Windows)</source>
        <translation>Convertir les fins de ligne en CR+LF (Windows)</translation>
    </message>
    <message>
        <source>Convert Line Ends to LF (Unix)</source>
        <translation>Convertir les fins de ligne en LF (Unix)</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (Mac)</source>
        <translation>Convertir les fins de ligne en CR (Mac)</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>Pré&amp;férences de l’éditeur et des langages...</translation>
    </message>
    <message>
        <source>Insert Template</source>
        <translation>Insérer un modèle</translation>
    </message>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>&amp;Aller à la ligne...</translation>
    </message>
    <message>
        <source>Go to Line</source>
        <translation>Aller à la ligne</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>Aller à la ligne&#xa0;:</translation>
    </message>
    <message>
        <source>Select &amp;Statement</source>
        <translation>Sélectionner l’&amp;instruction</translation>
    </message>
    <message>
        <source>Record &amp;Macro</source>
        <translation>Enregistrer une &amp;macro</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>&amp;Jouer la macro</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>Aperçu &amp;global</translation>
    </message>
</context>
</TS>
