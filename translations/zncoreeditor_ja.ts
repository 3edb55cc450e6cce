<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CColorButton</name>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>More Colors...</source>
        <translation>その他の色...</translation>
    </message>
</context>
<context>
    <name>CDocTemplate</name>
    <message>
        <source>Untitled</source>
        <translation>無題</translation>
    </message>
</context>
<context>
    <name>CFileException</name>
    <message>
        <source>%1 was not found.</source>
        <translation>%1 が見つかりません。</translation>
    </message>
    <message>
        <source>%1 is not a valid path.</source>
        <translation>%1 は有効なパスではありません。</translation>
    </message>
    <message>
        <source>%1 could not be opened: too many files are open.</source>
        <translation>%1 を開けません: 開いているファイルが多すぎます。</translation>
    </message>
    <message>
        <source>%1 cannot be accessed.</source>
        <translation>%1 にアクセスできません。</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 は別のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>The disk is full: %1.</source>
        <translation>ディスクがいっぱいです: %1。</translation>
    </message>
    <message>
        <source>An error occurred while accessing %1.</source>
        <translation>%1 へのアクセス中にエラーが発生しました。</translation>
    </message>
</context>
<context>
    <name>CWinApp</name>
    <message>
        <source>%1 could not be opened.</source>
        <translation>%1 を開けませんでした。</translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation>%1 を保存できませんでした。</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>%1 への変更を保存しますか？</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorControlEx</name>
    <message>
        <source>Scripts (*.sql);;DDL Files (*.ddl);;Queries (*.qry);;Text Files (*.txt);;All Files (*)</source>
        <translation>スクリプト (*.sql);;DDL ファイル (*.ddl);;クエリ (*.qry);;テキストファイル (*.txt);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Hide LineNumbers</source>
        <translation>行番号を隠す</translation>
    </message>
    <message>
        <source>Show LineNumbers</source>
        <translation>行番号を表示</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>文字列「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>Search has finished searching the whole document</source>
        <translation>文書全体の検索が終わりました</translation>
    </message>
    <message>
        <source>Could not save as PDF</source>
        <translation>PDF として保存できませんでした</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorDoc</name>
    <message>
        <source>&apos;%1&apos;
File has been deleted outside of this application!
Do you want to close this Document?</source>
        <translation>「%1」
ファイルがこのアプリケーションの外で削除されました。
この文書を閉じますか？</translation>
    </message>
    <message>
        <source>&apos;%1&apos;
File has been modified outside of this application!
Do you want to reload it?</source>
        <translation>「%1」
ファイルがこのアプリケーションの外で変更されました。
再読み込みしますか？</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>「%1」を再読み込みしますか？</translation>
    </message>
    <message>
        <source>Do you want to set the file &apos;%1&apos; to read only too?</source>
        <translation>ファイル「%1」も読み取り専用にしますか？</translation>
    </message>
    <message>
        <source> (Read Only)</source>
        <translation> (読み取り専用)</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorView</name>
    <message>
        <source>Incremental search failed: %1|</source>
        <translation>インクリメンタル検索 (見つかりません): %1|</translation>
    </message>
    <message>
        <source>Incremental search: %1|</source>
        <translation>インクリメンタル検索: %1|</translation>
    </message>
    <message>
        <source>Incremental search reverse: %1|</source>
        <translation>逆方向インクリメンタル検索: %1|</translation>
    </message>
    <message>
        <source>Enter Input Param</source>
        <translation>パラメーターの入力</translation>
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
        <translation>不明</translation>
    </message>
    <message>
        <source>Ln %1, Col %2</source>
        <translation>%1 行、%2 桁</translation>
    </message>
    <message>
        <source>Enter no of times to repeat</source>
        <translation>繰り返す回数</translation>
    </message>
    <message>
        <source>Repeat Macro</source>
        <translation>マクロの繰り返し</translation>
    </message>
    <message>
        <source>Stop Record	Ctrl+Shift+R</source>
        <translation>記録を停止	Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Record Macro	Ctrl+Shift+R</source>
        <translation>マクロを記録	Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>文字列「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>Passed the end of the document</source>
        <translation>文書の末尾を過ぎました</translation>
    </message>
    <message>
        <source>Passed the start of the document</source>
        <translation>文書の先頭を過ぎました</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>%1を隠す</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1を表示</translation>
    </message>
    <message>
        <source>LineNumbers</source>
        <translation>行番号</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>ブックマーク余白</translation>
    </message>
    <message>
        <source>Fold Margin</source>
        <translation>折りたたみ余白</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>空白文字</translation>
    </message>
    <message>
        <source>EOL</source>
        <translation>改行文字</translation>
    </message>
    <message>
        <source>Repeating the macro</source>
        <translation>マクロを繰り返しています</translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
</context>
<context>
    <name>ColorPref</name>
    <message>
        <source>St&amp;yles</source>
        <translation>スタイル(&amp;Y)</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Foreground Color</source>
        <translation>文字色</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Reset All Colors</source>
        <translation>すべての色をリセット</translation>
    </message>
    <message>
        <source>Sample Editor Area</source>
        <translation>エディターの表示例</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>サンプルテキスト</translation>
    </message>
    <message>
        <source>Clearing color changes</source>
        <translation>色の変更を消去</translation>
    </message>
    <message>
        <source>All of your color settings will be lost ! Are you sure ?</source>
        <translation>色の設定はすべて失われます。よろしいですか？</translation>
    </message>
</context>
<context>
    <name>ContextMenu</name>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>コピー(&amp;C)	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Select All	Ctrl+A</source>
        <translation>すべて選択(&amp;S)	Ctrl+A</translation>
    </message>
    <message>
        <source>Match To&amp;ken	Ctrl+]</source>
        <translation>対応する括弧(&amp;K)	Ctrl+]</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>行番号</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Repeat Last Find</source>
        <translation>前回の検索を繰り返す</translation>
    </message>
    <message>
        <source>&amp;Undo	Ctrl+Z</source>
        <translation>元に戻す(&amp;U)	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation>やり直し(&amp;R)	Ctrl+Y</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>切り取り(&amp;T)	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>貼り付け(&amp;P)	Ctrl+V</translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation>削除(&amp;D)	Del</translation>
    </message>
    <message>
        <source>Insert File...</source>
        <translation>ファイルを挿入...</translation>
    </message>
    <message>
        <source>Line Endings</source>
        <translation>改行コード</translation>
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
        <translation>コメントにする(&amp;M)</translation>
    </message>
    <message>
        <source>U&amp;ndo Comment Out</source>
        <translation>コメントを解除(&amp;N)</translation>
    </message>
    <message>
        <source>Upper C&amp;ase</source>
        <translation>大文字にする(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>小文字にする(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>インデントを増やす(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>インデントを減らす(&amp;O)</translation>
    </message>
    <message>
        <source>R&amp;eplace...</source>
        <translation>置換(&amp;E)...</translation>
    </message>
</context>
<context>
    <name>DocumentMap</name>
    <message>
        <source>Document map</source>
        <translation>ドキュメント マップ</translation>
    </message>
</context>
<context>
    <name>EditListBox</name>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
</context>
<context>
    <name>EditorPrefsDialog</name>
    <message>
        <source>Find a language or a page</source>
        <translation>言語またはページを検索</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Colors and Fonts</source>
        <translation>色とフォント</translation>
    </message>
    <message>
        <source>The changes are in force. Cancel does not take them back.</source>
        <translation>変更は適用されています。「キャンセル」では元に戻りません。</translation>
    </message>
    <message>
        <source>Editor and Language Preferences</source>
        <translation>エディターと言語の設定</translation>
    </message>
    <message>
        <source>No page has this word.</source>
        <translation>この語を含むページはありません。</translation>
    </message>
</context>
<context>
    <name>EngineWindow</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>テキストエディター</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>元に戻しています</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>やり直しています</translation>
    </message>
</context>
<context>
    <name>ExpressionFault</name>
    <message>
        <source>The expression is not complete.</source>
        <translation>正規表現が途中で終わっています。</translation>
    </message>
    <message>
        <source>The expression cannot be read from character %1 on.</source>
        <translation>正規表現を %1 文字目から解釈できません。</translation>
    </message>
    <message>
        <source>The expression cannot be used.</source>
        <translation>この正規表現は使用できません。</translation>
    </message>
</context>
<context>
    <name>FileEditCtrl</name>
    <message>
        <source>Browse for File</source>
        <translation>ファイルの参照</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Browse for a folder</source>
        <translation>フォルダーを参照</translation>
    </message>
    <message>
        <source>Browse for a file</source>
        <translation>ファイルを参照</translation>
    </message>
    <message>
        <source>Enter an existing file.</source>
        <translation>存在するファイルを入力してください。</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 は存在しません。</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 はフォルダーではありません。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 はファイルではありません。</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>フォルダーの参照</translation>
    </message>
</context>
<context>
    <name>FileResult</name>
    <message>
        <source>The editing engine could not be loaded.</source>
        <translation>編集エンジンを読み込めませんでした。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルが存在しません。</translation>
    </message>
    <message>
        <source>This is a folder or a device, not a file with a text.</source>
        <translation>フォルダーかデバイスであり、テキストファイルではありません。</translation>
    </message>
    <message>
        <source>The file cannot be read. Check that you may read it.</source>
        <translation>ファイルを読み込めません。読み取り権限を確認してください。</translation>
    </message>
    <message>
        <source>The file has more than 2 GB, which is more than can be edited.</source>
        <translation>ファイルが 2 GB を超えており、編集できません。</translation>
    </message>
    <message>
        <source>Only the first part of the file could be read.</source>
        <translation>ファイルの先頭部分だけを読み込みました。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダーが存在しません。</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>そこへの書き込み権限がありません。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>The encoding cannot hold all of the text.</source>
        <translation>この文字コードではテキストの一部を表せません。</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>ファイルに書き込めませんでした。</translation>
    </message>
    <message>
        <source>No file was named. Choose one first.</source>
        <translation>ファイルが指定されていません。先にファイルを選択してください。</translation>
    </message>
    <message>
        <source>The program used the editor outside of its GUI thread.</source>
        <translation>プログラムが GUI スレッド以外でエディターを使用しました。</translation>
    </message>
</context>
<context>
    <name>FindDialogs</name>
    <message>
        <source>Insert into &quot;%1&quot;</source>
        <translation>「%1」に挿入</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>正規表現の要素を挿入</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>検索する文字列(&amp;W)</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>検索するテキスト</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>単語単位で検索(&amp;M)</translation>
    </message>
    <message>
        <source>Matc&amp;h case</source>
        <translation>大文字と小文字を区別(&amp;H)</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>正規表現(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Wrap around search</source>
        <translation>末尾まで来たら先頭に戻る(&amp;O)</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>文字列「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>検索(&amp;F)</translation>
    </message>
    <message>
        <source>Bookmark &amp;All</source>
        <translation>すべてにブックマーク(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>検索と置換</translation>
    </message>
    <message>
        <source>Re&amp;place with</source>
        <translation>置換後の文字列(&amp;P)</translation>
    </message>
    <message>
        <source>Text to put in the place of a match</source>
        <translation>一致した箇所に入れるテキスト</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置換(&amp;R)</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>すべて置換(&amp;A)</translation>
    </message>
    <message>
        <source>In &amp;Selection</source>
        <translation>選択範囲内(&amp;S)</translation>
    </message>
    <message>
        <source>Enter find string</source>
        <translation>検索する文字列を入力してください</translation>
    </message>
    <message>
        <source>Replaced %1 occurrences of &apos;%2&apos;</source>
        <translation>「%2」を %1 件置換しました</translation>
    </message>
</context>
<context>
    <name>FindInFiles</name>
    <message>
        <source>Find In Files</source>
        <translation>ファイル内を検索</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>検索する文字列(&amp;W)</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>検索するテキスト</translation>
    </message>
    <message>
        <source>Insert into &quot;Find what&quot;</source>
        <translation>「検索する文字列」に挿入</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>正規表現の要素を挿入</translation>
    </message>
    <message>
        <source>In files/file t&amp;ypes</source>
        <translation>ファイル/ファイルの種類で(&amp;Y)</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Patterns of names, as *.sql;*.txt</source>
        <translation>*.sql;*.txt のような名前のパターン</translation>
    </message>
    <message>
        <source>In f&amp;older</source>
        <translation>フォルダー(&amp;O)</translation>
    </message>
    <message>
        <source>Folder whose files are searched</source>
        <translation>ファイルを検索するフォルダー</translation>
    </message>
    <message>
        <source>In all open f&amp;iles</source>
        <translation>開いているすべてのファイル(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>単語単位で検索(&amp;M)</translation>
    </message>
    <message>
        <source>M&amp;atch case</source>
        <translation>大文字と小文字を区別(&amp;A)</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>正規表現(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Look in subfolders</source>
        <translation>サブフォルダーも検索(&amp;L)</translation>
    </message>
    <message>
        <source>Output to pane &amp;2</source>
        <translation>結果をペイン &amp;2 に表示</translation>
    </message>
    <message>
        <source>&amp;Just output matching count</source>
        <translation>一致数だけを表示(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &gt;&gt;</source>
        <translation>詳細(&amp;V) &gt;&gt;</translation>
    </message>
    <message>
        <source>Look in additional folders:</source>
        <translation>追加で検索するフォルダー:</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>フォルダーの参照</translation>
    </message>
    <message>
        <source>A&amp;dd Folder</source>
        <translation>フォルダーを追加(&amp;D)</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &lt;&lt;</source>
        <translation>詳細(&amp;V) &lt;&lt;</translation>
    </message>
    <message>
        <source>Enter Type!</source>
        <translation>種類を入力してください。</translation>
    </message>
    <message>
        <source>Enter Path!</source>
        <translation>パスを入力してください。</translation>
    </message>
    <message>
        <source>Path &apos;%1&apos; does not exists</source>
        <translation>パス「%1」は存在しません</translation>
    </message>
    <message>
        <source>Enter Find String!</source>
        <translation>検索する文字列を入力してください。</translation>
    </message>
</context>
<context>
    <name>FontPref</name>
    <message>
        <source>Style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>%1, list</source>
        <translation>%1の一覧</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>太字</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>下線</translation>
    </message>
    <message>
        <source>Apply to all Styles</source>
        <translation>すべてのスタイルに適用</translation>
    </message>
    <message>
        <source>Sample Text Area</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>サンプルテキスト</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>All styles have been set to the currrent font selection.</source>
        <translation>すべてのスタイルを選択中のフォントにしました。</translation>
    </message>
</context>
<context>
    <name>Goto</name>
    <message>
        <source>Goto</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Goto Line :</source>
        <translation>移動先の行:</translation>
    </message>
    <message>
        <source>Goto Line</source>
        <translation>移動先の行</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>移動(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Hands</name>
    <message>
        <source>C&amp;omments</source>
        <translation>コメント(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Toggle Comment</source>
        <translation>コメントの切り替え(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>行(&amp;L)</translation>
    </message>
    <message>
        <source>Move Lines &amp;Up</source>
        <translation>行を上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move Lines Do&amp;wn</source>
        <translation>行を下へ移動(&amp;W)</translation>
    </message>
    <message>
        <source>Duplicate Line or Selection</source>
        <translation>行または選択範囲を複製</translation>
    </message>
    <message>
        <source>&amp;Join Lines</source>
        <translation>行を結合(&amp;J)</translation>
    </message>
    <message>
        <source>Delete Li&amp;nes</source>
        <translation>行を削除(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>選択(&amp;S)</translation>
    </message>
    <message>
        <source>Li&amp;nes, One More Each Time</source>
        <translation>行 (押すたびに 1 行追加)(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Grow</source>
        <translation>選択範囲を広げる(&amp;G)</translation>
    </message>
    <message>
        <source>S&amp;hrink</source>
        <translation>選択範囲を狭める(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Statement</source>
        <translation>文(&amp;S)</translation>
    </message>
    <message>
        <source>By &amp;Parentheses</source>
        <translation>丸括弧で囲む(&amp;P)</translation>
    </message>
    <message>
        <source>By &amp;Quotes</source>
        <translation>単一引用符で囲む(&amp;Q)</translation>
    </message>
    <message>
        <source>By &amp;Double Quotes</source>
        <translation>二重引用符で囲む(&amp;D)</translation>
    </message>
    <message>
        <source>By &amp;Brackets</source>
        <translation>角括弧で囲む(&amp;B)</translation>
    </message>
    <message>
        <source>By B&amp;races</source>
        <translation>波括弧で囲む(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>インデント(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Paste as Indented Here</source>
        <translation>ここのインデントに合わせて貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next Statement</source>
        <translation>次の文(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Statement</source>
        <translation>前の文(&amp;P)</translation>
    </message>
    <message>
        <source>Next &amp;Batch</source>
        <translation>次のバッチ(&amp;B)</translation>
    </message>
    <message>
        <source>Previous B&amp;atch</source>
        <translation>前のバッチ(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Fold</source>
        <translation>折りたたむ(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Unfold</source>
        <translation>展開(&amp;U)</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>すべて折りたたむ(&amp;A)</translation>
    </message>
    <message>
        <source>U&amp;nfold All</source>
        <translation>すべて展開(&amp;N)</translation>
    </message>
    <message>
        <source>To Level &amp;1</source>
        <translation>レベル &amp;1 まで</translation>
    </message>
    <message>
        <source>To Level &amp;2</source>
        <translation>レベル &amp;2 まで</translation>
    </message>
    <message>
        <source>To Level &amp;3</source>
        <translation>レベル &amp;3 まで</translation>
    </message>
    <message>
        <source>&amp;Add Next Occurrence</source>
        <translation>次の出現箇所を追加(&amp;A)</translation>
    </message>
    <message>
        <source>All &amp;Occurrences</source>
        <translation>すべての出現箇所(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Matching Bracket</source>
        <translation>対応する括弧(&amp;M)</translation>
    </message>
    <message>
        <source>Surrou&amp;nd</source>
        <translation>囲む(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>移動(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Folds</source>
        <translation>折りたたみ(&amp;F)</translation>
    </message>
</context>
<context>
    <name>InputBox</name>
    <message>
        <source>Input</source>
        <translation>入力</translation>
    </message>
    <message>
        <source> Cannot be empty</source>
        <translation> を空にすることはできません</translation>
    </message>
</context>
<context>
    <name>KeywordPref</name>
    <message>
        <source>Keyword Type</source>
        <translation>キーワードの種類</translation>
    </message>
    <message>
        <source>Keyword List</source>
        <translation>キーワード一覧</translation>
    </message>
    <message>
        <source>A last word of one letter is not kept, unless a blank follows it.</source>
        <translation>最後の単語が 1 文字の場合、後ろに空白がなければ保存されません。</translation>
    </message>
    <message>
        <source>Words with blanks or new lines between them.</source>
        <translation>空白または改行で区切った単語。</translation>
    </message>
</context>
<context>
    <name>Leftovers</name>
    <message>
        <source>This defines nothing: the name of a variable begins with &amp;&amp;.</source>
        <translation>何も定義していません: 変数の名前は &amp;&amp; で始まります。</translation>
    </message>
    <message>
        <source>This is not of the form %1 &amp;&amp;NAME VALUE, and nothing below is replaced.</source>
        <translation>%1 &amp;&amp;名前 値 の形ではないため、これより下では何も置換されません。</translation>
    </message>
    <message>
        <source>%1 is not defined: its value needs %2, which has none.</source>
        <translation>%1 は定義されていません: その値に必要な %2 に値がありません。</translation>
    </message>
    <message>
        <source>%1 is not defined: in its value nothing may follow a variable.</source>
        <translation>%1 は定義されていません: 値の中で変数の後ろには何も置けません。</translation>
    </message>
    <message>
        <source>%1 is used above its definition, which then does not count.</source>
        <translation>%1 は定義より前で使われているため、定義は無効です。</translation>
    </message>
    <message>
        <source>Nothing defines %1.</source>
        <translation>%1 はどこにも定義されていません。</translation>
    </message>
</context>
<context>
    <name>LossCheck</name>
    <message>
        <source>“%1” has characters that %2 does not have. The first is %3 in line %4, column %5. In the file they would become question marks. UTF-8 keeps every character.</source>
        <translation>「%1」には %2 にない文字があります。最初の文字は %4 行 %5 桁の %3 です。ファイルでは疑問符になります。UTF-8 ではすべての文字が保たれます。</translation>
    </message>
</context>
<context>
    <name>MainColorFontPref</name>
    <message>
        <source>Caret Color</source>
        <translation>カーソルの色</translation>
    </message>
    <message>
        <source>Use Selected Text Foreground Color</source>
        <translation>選択テキストの文字色を指定</translation>
    </message>
    <message>
        <source>Use Selected Text Background Color</source>
        <translation>選択テキストの背景色を指定</translation>
    </message>
    <message>
        <source>Enable Highlight Current &amp;Line</source>
        <translation>現在の行を強調表示(&amp;L)</translation>
    </message>
    <message>
        <source>Enable Right Edge Warning</source>
        <translation>右端の警告線を表示</translation>
    </message>
    <message>
        <source>In All Languages</source>
        <translation>すべての言語</translation>
    </message>
    <message>
        <source>Right Edge Position</source>
        <translation>右端の位置</translation>
    </message>
</context>
<context>
    <name>NamedColors</name>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>茶</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <translation>濃いオリーブ</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <translation>濃い緑</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <translation>濃い青緑</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>濃い青</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>藍</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>濃い灰色</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>濃い赤</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>濃い黄</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>青緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <translation>青灰色</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <translation>灰色 - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>薄いオレンジ</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>ライム</translation>
    </message>
    <message>
        <source>Sea green</source>
        <translation>シーグリーン</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>アクア</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>薄い青</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <translation>灰色 - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>ゴールド</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>明るい緑</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>ターコイズ</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <translation>空色</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>プラム</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>薄い灰色</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>ローズ</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>黄褐色</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>薄い黄</translation>
    </message>
    <message>
        <source>Pale green </source>
        <translation>淡い緑</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <translation>淡いターコイズ</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>淡い青</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>ラベンダー</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
</context>
<context>
    <name>PatternMenus</name>
    <message>
        <source>Beginning of line	^</source>
        <translation>行頭	^</translation>
    </message>
    <message>
        <source>End of line	$</source>
        <translation>行末	$</translation>
    </message>
    <message>
        <source>Any character	.</source>
        <translation>任意の 1 文字	.</translation>
    </message>
    <message>
        <source>Character class	[]</source>
        <translation>文字クラス	[]</translation>
    </message>
    <message>
        <source>Negated character class	[^]</source>
        <translation>否定の文字クラス	[^]</translation>
    </message>
    <message>
        <source>Define a group	\(\)</source>
        <translation>グループの定義	\(\)</translation>
    </message>
    <message>
        <source>Match left OR right expr.	|</source>
        <translation>左または右の式に一致	|</translation>
    </message>
    <message>
        <source>Position after match	\c</source>
        <translation>一致後のカーソル位置	\c</translation>
    </message>
    <message>
        <source>Preceding expr. zero or more	*</source>
        <translation>直前の式の 0 回以上の繰り返し	*</translation>
    </message>
    <message>
        <source>Preceding expr. 1 or more	+</source>
        <translation>直前の式の 1 回以上の繰り返し	+</translation>
    </message>
    <message>
        <source>Preceding expr. 0 or 1	?</source>
        <translation>直前の式の 0 回または 1 回	?</translation>
    </message>
    <message>
        <source>Newline character	\n</source>
        <translation>改行 (LF)	\n</translation>
    </message>
    <message>
        <source>Carriage return	\r</source>
        <translation>復帰 (CR)	\r</translation>
    </message>
    <message>
        <source>Tab	\t</source>
        <translation>タブ	\t</translation>
    </message>
    <message>
        <source>Backspace	\b</source>
        <translation>バックスペース	\b</translation>
    </message>
    <message>
        <source>Form feed	\f</source>
        <translation>改ページ	\f</translation>
    </message>
    <message>
        <source>Hexadecimal digit	\x</source>
        <translation>16 進数字	\x</translation>
    </message>
    <message>
        <source>Escape	\</source>
        <translation>エスケープ	\</translation>
    </message>
    <message>
        <source>Alphanumeric	[a-zA-Z0-9]</source>
        <translation>英数字	[a-zA-Z0-9]</translation>
    </message>
    <message>
        <source>Subexpression 1	\1</source>
        <translation>部分式 1	\1</translation>
    </message>
    <message>
        <source>Subexpression 2	\2</source>
        <translation>部分式 2	\2</translation>
    </message>
    <message>
        <source>Subexpression 3	\3</source>
        <translation>部分式 3	\3</translation>
    </message>
    <message>
        <source>Subexpression 4	\4</source>
        <translation>部分式 4	\4</translation>
    </message>
    <message>
        <source>Subexpression 5	\5</source>
        <translation>部分式 5	\5</translation>
    </message>
    <message>
        <source>Subexpression 6	\6</source>
        <translation>部分式 6	\6</translation>
    </message>
    <message>
        <source>Subexpression 7	\7</source>
        <translation>部分式 7	\7</translation>
    </message>
    <message>
        <source>Subexpression 8	\8</source>
        <translation>部分式 8	\8</translation>
    </message>
    <message>
        <source>Subexpression 9	\9</source>
        <translation>部分式 9	\9</translation>
    </message>
    <message>
        <source>New Line	\n</source>
        <translation>改行	\n</translation>
    </message>
</context>
<context>
    <name>PrintService</name>
    <message>
        <source>No printer is set up. Do you want to save the pages as a PDF instead?</source>
        <translation>プリンターが設定されていません。代わりにページを PDF として保存しますか？</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>文書を印刷できませんでした。</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 に書き込めませんでした。</translation>
    </message>
    <message>
        <source>%1 – print preview</source>
        <translation>%1 – 印刷プレビュー</translation>
    </message>
    <message>
        <source>%1 – print preview, the first %2 pages</source>
        <translation>%1 – 印刷プレビュー、最初の %2 ページ</translation>
    </message>
</context>
<context>
    <name>ProposalList</name>
    <message>
        <source>Completion</source>
        <translation>補完</translation>
    </message>
    <message>
        <source>Proposals</source>
        <translation>候補</translation>
    </message>
    <message>
        <source>Tab takes the first row</source>
        <translation>Tab で先頭の行を選びます</translation>
    </message>
    <message>
        <source>Tab or Enter takes the row</source>
        <translation>Tab または Enter でこの行を選びます</translation>
    </message>
</context>
<context>
    <name>ReplaceAll</name>
    <message>
        <source>Replacing</source>
        <translation>置換中</translation>
    </message>
</context>
<context>
    <name>SettingsMenu</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Settings (*.znsettings)</source>
        <translation>設定 (*.znsettings)</translation>
    </message>
    <message>
        <source>What has not been applied yet is lost.</source>
        <translation>まだ適用していない変更は失われます。</translation>
    </message>
    <message>
        <source>&amp;Export All Settings...</source>
        <translation>すべての設定をエクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Import All Settings...</source>
        <translation>すべての設定をインポート(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Write the Colours of a Scheme</source>
        <translation>配色の色を書き込む(&amp;W)</translation>
    </message>
    <message>
        <source>This &amp;Language as Shipped...</source>
        <translation>この言語を出荷時の状態に戻す(&amp;L)...</translation>
    </message>
    <message>
        <source>E&amp;verything as Shipped...</source>
        <translation>すべてを出荷時の状態に戻す(&amp;V)...</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 に書き込めませんでした。</translation>
    </message>
    <message>
        <source>All settings become those of %1, and the present ones are given up. %2

Import them?</source>
        <translation>すべての設定が %1 のものになり、現在の設定は破棄されます。%2

インポートしますか？</translation>
    </message>
    <message>
        <source>The settings could not be written; they are as they were.</source>
        <translation>設定を書き込めませんでした。設定は元のままです。</translation>
    </message>
    <message>
        <source>%1 holds no settings of this editor.</source>
        <translation>%1 にこのエディターの設定はありません。</translation>
    </message>
    <message>
        <source>All settings of %1 become those that it was shipped with. %2

Reset them?</source>
        <translation>%1 の設定がすべて出荷時のものに戻ります。%2

リセットしますか？</translation>
    </message>
    <message>
        <source>The settings of all languages become those that they were shipped with. %1

Reset them?</source>
        <translation>すべての言語の設定が出荷時のものに戻ります。%1

リセットしますか？</translation>
    </message>
    <message>
        <source>The colours of all languages become those of &quot;%1&quot;, and stay so whatever the desktop looks like. %2

Write them?</source>
        <translation>すべての言語の色が「%1」のものになり、デスクトップの外観にかかわらずそのままになります。%2

書き込みますか？</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>ハイコントラスト</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
</context>
<context>
    <name>SettingsPref</name>
    <message>
        <source>Shown Beside and In the Text</source>
        <translation>テキストの横と中に表示するもの</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>行番号</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>ブックマーク余白</translation>
    </message>
    <message>
        <source>Outlining</source>
        <translation>アウトライン</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>折り返し</translation>
    </message>
    <message>
        <source>End Of Line</source>
        <translation>改行文字</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>空白文字</translation>
    </message>
    <message>
        <source>Indentation Guides</source>
        <translation>インデントガイド</translation>
    </message>
    <message>
        <source>Tabs and Indentation</source>
        <translation>タブとインデント</translation>
    </message>
    <message>
        <source>Tab Size</source>
        <translation>タブの幅</translation>
    </message>
    <message>
        <source>Indent Size</source>
        <translation>インデントの幅</translation>
    </message>
    <message>
        <source>Pressing Tab inserts Spaces</source>
        <translation>Tab キーで空白を挿入</translation>
    </message>
    <message>
        <source>Tab and Backspace (Un)Indent</source>
        <translation>Tab と Backspace でインデントを増減</translation>
    </message>
    <message>
        <source>Auto Indentation Style</source>
        <translation>自動インデント</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>Follow Previous Line</source>
        <translation>前の行に合わせる</translation>
    </message>
    <message>
        <source>Follow Language Scoping</source>
        <translation>言語の構造に合わせる</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Syntax &amp;Highlighting</source>
        <translation>構文の強調表示(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Brace Matching</source>
        <translation>対応する括弧の強調(&amp;B)</translation>
    </message>
    <message>
        <source>Completion</source>
        <translation>補完</translation>
    </message>
    <message>
        <source>&amp;Auto Completion</source>
        <translation>自動補完(&amp;U)</translation>
    </message>
    <message>
        <source>C&amp;ode Completion</source>
        <translation>コード補完(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Tab Key</source>
        <translation>Tab キー(&amp;T)</translation>
    </message>
    <message>
        <source>Space Bar &amp;Key</source>
        <translation>スペースキー(&amp;K)</translation>
    </message>
    <message>
        <source>When a File is Saved</source>
        <translation>ファイルの保存時</translation>
    </message>
    <message>
        <source>Ensure Final New Line</source>
        <translation>最終行に改行を付ける</translation>
    </message>
    <message>
        <source>Convert Tabs To Spaces</source>
        <translation>タブを空白に変換</translation>
    </message>
    <message>
        <source>Trim Trailing Spaces</source>
        <translation>行末の空白を削除</translation>
    </message>
</context>
<context>
    <name>SplitBox</name>
    <message>
        <source>Drag down to divide the text into two panes</source>
        <translation>下へドラッグするとテキストが 2 つのペインに分かれます</translation>
    </message>
    <message>
        <source>Drag to the right to divide the text into two panes</source>
        <translation>右へドラッグするとテキストが 2 つのペインに分かれます</translation>
    </message>
    <message>
        <source>Divide above and below</source>
        <translation>上下に分割</translation>
    </message>
    <message>
        <source>Divide side by side</source>
        <translation>左右に分割</translation>
    </message>
</context>
<context>
    <name>StyleSample</name>
    <message>
        <source>Sample of the language</source>
        <translation>言語のサンプル</translation>
    </message>
</context>
<context>
    <name>SyntaxFiles</name>
    <message>
        <source>Declaration</source>
        <translation>宣言</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>無効</translation>
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
        <translation>サーバー JavaScript</translation>
    </message>
    <message>
        <source>Server Python</source>
        <translation>サーバー Python</translation>
    </message>
    <message>
        <source>Server VBScript</source>
        <translation>サーバー VBScript</translation>
    </message>
    <message>
        <source>VBScript</source>
        <translation>VBScript</translation>
    </message>
    <message>
        <source>.NET message</source>
        <translation>.NET のメッセージ</translation>
    </message>
    <message>
        <source>Absoft message</source>
        <translation>Absoft のメッセージ</translation>
    </message>
    <message>
        <source>Added line</source>
        <translation>追加された行</translation>
    </message>
    <message>
        <source>Added line of a removed patch</source>
        <translation>削除されたパッチの追加行</translation>
    </message>
    <message>
        <source>Added line of an added patch</source>
        <translation>追加されたパッチの追加行</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>配列</translation>
    </message>
    <message>
        <source>Assembler</source>
        <translation>アセンブラー</translation>
    </message>
    <message>
        <source>Assignment</source>
        <translation>代入</translation>
    </message>
    <message>
        <source>At-rule</source>
        <translation>@ 規則</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Attribute selector</source>
        <translation>属性セレクター</translation>
    </message>
    <message>
        <source>Backticks</source>
        <translation>バッククォート</translation>
    </message>
    <message>
        <source>Binary number</source>
        <translation>2 進数</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>ブロック</translation>
    </message>
    <message>
        <source>Block comment</source>
        <translation>ブロックコメント</translation>
    </message>
    <message>
        <source>Body of a format</source>
        <translation>フォーマットの本体</translation>
    </message>
    <message>
        <source>Borland message</source>
        <translation>Borland のメッセージ</translation>
    </message>
    <message>
        <source>CDATA section</source>
        <translation>CDATA セクション</translation>
    </message>
    <message>
        <source>Call tips</source>
        <translation>引数のヒント</translation>
    </message>
    <message>
        <source>Changed line</source>
        <translation>変更された行</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Class name</source>
        <translation>クラス名</translation>
    </message>
    <message>
        <source>Class selector</source>
        <translation>クラスセレクター</translation>
    </message>
    <message>
        <source>Client command</source>
        <translation>クライアントのコマンド</translation>
    </message>
    <message>
        <source>Client comment</source>
        <translation>クライアントのコメント</translation>
    </message>
    <message>
        <source>Client prompt</source>
        <translation>クライアントのプロンプト</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Command with qx</source>
        <translation>qx のコマンド</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>Comment block</source>
        <translation>コメントブロック</translation>
    </message>
    <message>
        <source>Comment in a directive</source>
        <translation>ディレクティブ内のコメント</translation>
    </message>
    <message>
        <source>Comment in a parameter</source>
        <translation>パラメーター内のコメント</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>定数</translation>
    </message>
    <message>
        <source>Constant of the lexer</source>
        <translation>字句解析器の定数</translation>
    </message>
    <message>
        <source>Control characters</source>
        <translation>制御文字</translation>
    </message>
    <message>
        <source>Data section</source>
        <translation>データ部</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>データ型</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>Default value</source>
        <translation>既定値</translation>
    </message>
    <message>
        <source>Delimiter of a here document</source>
        <translation>ヒアドキュメントの区切り</translation>
    </message>
    <message>
        <source>Displayed mathematics</source>
        <translation>別行立ての数式</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Documentation comment</source>
        <translation>ドキュメントコメント</translation>
    </message>
    <message>
        <source>Documentation comment in a directive</source>
        <translation>ディレクティブ内のドキュメントコメント</translation>
    </message>
    <message>
        <source>Documentation keyword</source>
        <translation>ドキュメントのキーワード</translation>
    </message>
    <message>
        <source>Documentation line comment</source>
        <translation>ドキュメントの行コメント</translation>
    </message>
    <message>
        <source>Element selector</source>
        <translation>要素セレクター</translation>
    </message>
    <message>
        <source>End of a tag</source>
        <translation>タグの終わり</translation>
    </message>
    <message>
        <source>End of an XML fragment</source>
        <translation>XML 断片の終わり</translation>
    </message>
    <message>
        <source>End of an environment</source>
        <translation>環境の終わり</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>実体</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>環境</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Escape sequence</source>
        <translation>エスケープシーケンス</translation>
    </message>
    <message>
        <source>External command</source>
        <translation>外部コマンド</translation>
    </message>
    <message>
        <source>First parameter</source>
        <translation>最初のパラメーター</translation>
    </message>
    <message>
        <source>Folded text</source>
        <translation>折りたたまれたテキスト</translation>
    </message>
    <message>
        <source>Fortran message</source>
        <translation>Fortran のメッセージ</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>関数</translation>
    </message>
    <message>
        <source>Function name</source>
        <translation>関数名</translation>
    </message>
    <message>
        <source>Further keyword</source>
        <translation>その他のキーワード</translation>
    </message>
    <message>
        <source>GCC message</source>
        <translation>GCC のメッセージ</translation>
    </message>
    <message>
        <source>Global class</source>
        <translation>グローバルクラス</translation>
    </message>
    <message>
        <source>Global variable</source>
        <translation>グローバル変数</translation>
    </message>
    <message>
        <source>HTML checker message</source>
        <translation>HTML チェッカーのメッセージ</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>ハッシュ</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>ヘッダー</translation>
    </message>
    <message>
        <source>Here document in backticks</source>
        <translation>バッククォートのヒアドキュメント</translation>
    </message>
    <message>
        <source>Here document in double quotes</source>
        <translation>二重引用符のヒアドキュメント</translation>
    </message>
    <message>
        <source>Here document in single quotes</source>
        <translation>単一引用符のヒアドキュメント</translation>
    </message>
    <message>
        <source>Hexadecimal number</source>
        <translation>16 進数</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Identifier in backticks</source>
        <translation>バッククォートの識別子</translation>
    </message>
    <message>
        <source>Identifier in backticks or brackets</source>
        <translation>バッククォートまたは角括弧の識別子</translation>
    </message>
    <message>
        <source>Identifier in brackets</source>
        <translation>角括弧の識別子</translation>
    </message>
    <message>
        <source>Identifier in double quotes</source>
        <translation>二重引用符の識別子</translation>
    </message>
    <message>
        <source>Identifier selector</source>
        <translation>ID セレクター</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>重要</translation>
    </message>
    <message>
        <source>Including file</source>
        <translation>取り込み元のファイル</translation>
    </message>
    <message>
        <source>Indentation guides</source>
        <translation>インデントガイド</translation>
    </message>
    <message>
        <source>Intel Fortran message</source>
        <translation>Intel Fortran のメッセージ</translation>
    </message>
    <message>
        <source>Java stack line</source>
        <translation>Java のスタック行</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Library type</source>
        <translation>ライブラリの型</translation>
    </message>
    <message>
        <source>Line comment</source>
        <translation>行コメント</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>行番号</translation>
    </message>
    <message>
        <source>Linker message</source>
        <translation>リンカーのメッセージ</translation>
    </message>
    <message>
        <source>List with qw</source>
        <translation>qw のリスト</translation>
    </message>
    <message>
        <source>Long quote</source>
        <translation>長い引用</translation>
    </message>
    <message>
        <source>Lua message</source>
        <translation>Lua のメッセージ</translation>
    </message>
    <message>
        <source>Mark that hides a command</source>
        <translation>コマンドを隠す記号</translation>
    </message>
    <message>
        <source>Markup declaration</source>
        <translation>マークアップ宣言</translation>
    </message>
    <message>
        <source>Matching brace</source>
        <translation>対応する括弧</translation>
    </message>
    <message>
        <source>Mathematics</source>
        <translation>数式</translation>
    </message>
    <message>
        <source>Microsoft message</source>
        <translation>Microsoft のメッセージ</translation>
    </message>
    <message>
        <source>Name of a format</source>
        <translation>フォーマットの名前</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>演算子</translation>
    </message>
    <message>
        <source>Option of a command</source>
        <translation>コマンドのオプション</translation>
    </message>
    <message>
        <source>Other inside a tag</source>
        <translation>タグ内のその他</translation>
    </message>
    <message>
        <source>PHP mark</source>
        <translation>PHP の記号</translation>
    </message>
    <message>
        <source>PHP message</source>
        <translation>PHP のメッセージ</translation>
    </message>
    <message>
        <source>Patch message</source>
        <translation>パッチのメッセージ</translation>
    </message>
    <message>
        <source>Perl message</source>
        <translation>Perl のメッセージ</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Preprocessor</source>
        <translation>プリプロセッサ</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>プロシージャ</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Property of CSS 2</source>
        <translation>CSS 2 のプロパティ</translation>
    </message>
    <message>
        <source>Property of CSS 3</source>
        <translation>CSS 3 のプロパティ</translation>
    </message>
    <message>
        <source>Property of one browser</source>
        <translation>特定ブラウザーのプロパティ</translation>
    </message>
    <message>
        <source>Prototype</source>
        <translation>プロトタイプ</translation>
    </message>
    <message>
        <source>Pseudo-class</source>
        <translation>疑似クラス</translation>
    </message>
    <message>
        <source>Pseudo-class of one browser</source>
        <translation>特定ブラウザーの疑似クラス</translation>
    </message>
    <message>
        <source>Pseudo-element</source>
        <translation>疑似要素</translation>
    </message>
    <message>
        <source>Pseudo-element of one browser</source>
        <translation>特定ブラウザーの疑似要素</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>区切り記号</translation>
    </message>
    <message>
        <source>Python message</source>
        <translation>Python のメッセージ</translation>
    </message>
    <message>
        <source>Quoting operator</source>
        <translation>引用演算子</translation>
    </message>
    <message>
        <source>Raw string</source>
        <translation>生文字列</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>正規表現</translation>
    </message>
    <message>
        <source>Regular expression with qr</source>
        <translation>qr の正規表現</translation>
    </message>
    <message>
        <source>Removed line</source>
        <translation>削除された行</translation>
    </message>
    <message>
        <source>Removed line of a removed patch</source>
        <translation>削除されたパッチの削除行</translation>
    </message>
    <message>
        <source>Removed line of an added patch</source>
        <translation>追加されたパッチの削除行</translation>
    </message>
    <message>
        <source>Rule of a group</source>
        <translation>グループの規則</translation>
    </message>
    <message>
        <source>Scalar</source>
        <translation>スカラー</translation>
    </message>
    <message>
        <source>Script tag</source>
        <translation>スクリプトのタグ</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>セクション</translation>
    </message>
    <message>
        <source>Server comment</source>
        <translation>サーバーのコメント</translation>
    </message>
    <message>
        <source>Server script</source>
        <translation>サーバースクリプト</translation>
    </message>
    <message>
        <source>Server script mark</source>
        <translation>サーバースクリプトの記号</translation>
    </message>
    <message>
        <source>Setting or pragma</source>
        <translation>設定またはプラグマ</translation>
    </message>
    <message>
        <source>Short command</source>
        <translation>短いコマンド</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>特殊</translation>
    </message>
    <message>
        <source>Special character</source>
        <translation>特殊文字</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Start of an XML fragment</source>
        <translation>XML 断片の始まり</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>文</translation>
    </message>
    <message>
        <source>String</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>String in double quotes</source>
        <translation>二重引用符の文字列</translation>
    </message>
    <message>
        <source>String in single quotes</source>
        <translation>単一引用符の文字列</translation>
    </message>
    <message>
        <source>String with hash marks</source>
        <translation># 付きの文字列</translation>
    </message>
    <message>
        <source>String with q</source>
        <translation>q の文字列</translation>
    </message>
    <message>
        <source>String with qq</source>
        <translation>qq の文字列</translation>
    </message>
    <message>
        <source>Substitution</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>記号</translation>
    </message>
    <message>
        <source>Symbol table</source>
        <translation>シンボルテーブル</translation>
    </message>
    <message>
        <source>System object</source>
        <translation>システムオブジェクト</translation>
    </message>
    <message>
        <source>System table or view</source>
        <translation>システムのテーブルまたはビュー</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>ターゲット</translation>
    </message>
    <message>
        <source>Task marker</source>
        <translation>タスクの印</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Text before a data type</source>
        <translation>データ型の前のテキスト</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>文字変換</translation>
    </message>
    <message>
        <source>Triple double quotes</source>
        <translation>三重の二重引用符</translation>
    </message>
    <message>
        <source>Triple single quotes</source>
        <translation>三重の単一引用符</translation>
    </message>
    <message>
        <source>Triple-quoted string</source>
        <translation>三重引用符の文字列</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>Unclosed string</source>
        <translation>閉じていない文字列</translation>
    </message>
    <message>
        <source>Unknown attribute</source>
        <translation>不明な属性</translation>
    </message>
    <message>
        <source>Unknown documentation keyword</source>
        <translation>不明なドキュメントのキーワード</translation>
    </message>
    <message>
        <source>Unknown property</source>
        <translation>不明なプロパティ</translation>
    </message>
    <message>
        <source>Unknown pseudo-class</source>
        <translation>不明な疑似クラス</translation>
    </message>
    <message>
        <source>Unknown tag</source>
        <translation>不明なタグ</translation>
    </message>
    <message>
        <source>Unmatched brace</source>
        <translation>対応のない括弧</translation>
    </message>
    <message>
        <source>Unquoted value</source>
        <translation>引用符のない値</translation>
    </message>
    <message>
        <source>User keyword</source>
        <translation>ユーザーキーワード</translation>
    </message>
    <message>
        <source>User literal</source>
        <translation>ユーザーリテラル</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>変数</translation>
    </message>
    <message>
        <source>Variable in a command document</source>
        <translation>コマンド文書内の変数</translation>
    </message>
    <message>
        <source>Variable in a complex expression</source>
        <translation>複雑な式の中の変数</translation>
    </message>
    <message>
        <source>Variable in a here document</source>
        <translation>ヒアドキュメント内の変数</translation>
    </message>
    <message>
        <source>Variable in a regular expression</source>
        <translation>正規表現内の変数</translation>
    </message>
    <message>
        <source>Variable in a string</source>
        <translation>文字列内の変数</translation>
    </message>
    <message>
        <source>Variable in a substitution</source>
        <translation>置換内の変数</translation>
    </message>
    <message>
        <source>Variable in backticks</source>
        <translation>バッククォート内の変数</translation>
    </message>
    <message>
        <source>Variable in qq</source>
        <translation>qq 内の変数</translation>
    </message>
    <message>
        <source>Variable in qr</source>
        <translation>qr 内の変数</translation>
    </message>
    <message>
        <source>Variable in qx</source>
        <translation>qx 内の変数</translation>
    </message>
    <message>
        <source>Variable indexer</source>
        <translation>変数の添字</translation>
    </message>
    <message>
        <source>Verbatim documentation</source>
        <translation>逐語ドキュメント</translation>
    </message>
    <message>
        <source>Verbatim string</source>
        <translation>逐語文字列</translation>
    </message>
    <message>
        <source>Verbatim text</source>
        <translation>逐語テキスト</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>単語</translation>
    </message>
    <message>
        <source>Catalog and administrative views</source>
        <translation>カタログと管理のビュー</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Commands (completion only)</source>
        <translation>コマンド (補完のみ)</translation>
    </message>
    <message>
        <source>Configuration parameters</source>
        <translation>構成パラメーター</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>定数</translation>
    </message>
    <message>
        <source>Data types</source>
        <translation>データ型</translation>
    </message>
    <message>
        <source>Declaration keywords</source>
        <translation>宣言のキーワード</translation>
    </message>
    <message>
        <source>Diagnostics items</source>
        <translation>診断項目</translation>
    </message>
    <message>
        <source>Dictionary and performance views</source>
        <translation>ディクショナリと性能のビュー</translation>
    </message>
    <message>
        <source>Directives (completion only)</source>
        <translation>ディレクティブ (補完のみ)</translation>
    </message>
    <message>
        <source>Documentation keywords</source>
        <translation>ドキュメントのキーワード</translation>
    </message>
    <message>
        <source>Elements and attributes</source>
        <translation>要素と属性</translation>
    </message>
    <message>
        <source>Environments (completion only)</source>
        <translation>環境 (補完のみ)</translation>
    </message>
    <message>
        <source>External commands</source>
        <translation>外部コマンド</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>関数</translation>
    </message>
    <message>
        <source>Functions (completion only)</source>
        <translation>関数 (補完のみ)</translation>
    </message>
    <message>
        <source>Global variables (without @@)</source>
        <translation>グローバル変数 (@@ なし)</translation>
    </message>
    <message>
        <source>Information schema</source>
        <translation>情報スキーマ</translation>
    </message>
    <message>
        <source>JavaScript keywords</source>
        <translation>JavaScript のキーワード</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Library types</source>
        <translation>ライブラリの型</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>演算子</translation>
    </message>
    <message>
        <source>PHP functions (completion only)</source>
        <translation>PHP 関数 (補完のみ)</translation>
    </message>
    <message>
        <source>PHP keywords</source>
        <translation>PHP のキーワード</translation>
    </message>
    <message>
        <source>PL/pgSQL</source>
        <translation>PL/pgSQL</translation>
    </message>
    <message>
        <source>Pragmas</source>
        <translation>プラグマ</translation>
    </message>
    <message>
        <source>Procedural keywords</source>
        <translation>手続きのキーワード</translation>
    </message>
    <message>
        <source>Procedures, table functions and modules</source>
        <translation>プロシージャ、テーブル関数、モジュール</translation>
    </message>
    <message>
        <source>Properties of CSS 1</source>
        <translation>CSS 1 のプロパティ</translation>
    </message>
    <message>
        <source>Properties of CSS 2</source>
        <translation>CSS 2 のプロパティ</translation>
    </message>
    <message>
        <source>Properties of CSS 3</source>
        <translation>CSS 3 のプロパティ</translation>
    </message>
    <message>
        <source>Properties of one browser</source>
        <translation>特定ブラウザーのプロパティ</translation>
    </message>
    <message>
        <source>Pseudo-classes</source>
        <translation>疑似クラス</translation>
    </message>
    <message>
        <source>Pseudo-classes of one browser</source>
        <translation>特定ブラウザーの疑似クラス</translation>
    </message>
    <message>
        <source>Pseudo-elements</source>
        <translation>疑似要素</translation>
    </message>
    <message>
        <source>Pseudo-elements of one browser</source>
        <translation>特定ブラウザーの疑似要素</translation>
    </message>
    <message>
        <source>Python keywords</source>
        <translation>Python のキーワード</translation>
    </message>
    <message>
        <source>Routines of the schema sys</source>
        <translation>スキーマ sys のルーチン</translation>
    </message>
    <message>
        <source>Special targets (completion only)</source>
        <translation>特殊ターゲット (補完のみ)</translation>
    </message>
    <message>
        <source>Statements and clauses</source>
        <translation>文と句</translation>
    </message>
    <message>
        <source>Supplied packages</source>
        <translation>付属パッケージ</translation>
    </message>
    <message>
        <source>System and monitoring tables</source>
        <translation>システムと監視のテーブル</translation>
    </message>
    <message>
        <source>System catalogs and views</source>
        <translation>システムカタログとビュー</translation>
    </message>
    <message>
        <source>System packages</source>
        <translation>システムパッケージ</translation>
    </message>
    <message>
        <source>System procedures</source>
        <translation>システムプロシージャ</translation>
    </message>
    <message>
        <source>System tables and modules</source>
        <translation>システムのテーブルとモジュール</translation>
    </message>
    <message>
        <source>System tables and views</source>
        <translation>システムのテーブルとビュー</translation>
    </message>
    <message>
        <source>System variables (without @@)</source>
        <translation>システム変数 (@@ なし)</translation>
    </message>
    <message>
        <source>Task markers</source>
        <translation>タスクの印</translation>
    </message>
    <message>
        <source>VBScript keywords</source>
        <translation>VBScript のキーワード</translation>
    </message>
    <message>
        <source>Values of pragmas</source>
        <translation>プラグマの値</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorPlugin</name>
    <message>
        <source>Source Text Editor</source>
        <translation>ソーステキストエディター</translation>
    </message>
    <message>
        <source>An editor for SQL scripts and other source texts.</source>
        <translation>SQL スクリプトなどのソーステキスト用のエディター。</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorWidget</name>
    <message>
        <source>The editor cannot be shown, since its engine could not be loaded.
%1</source>
        <translation>エンジンを読み込めなかったため、エディターを表示できません。
%1</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>テキストエディター</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>インデントを増やす(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>インデントを減らす(&amp;O)</translation>
    </message>
    <message>
        <source>U&amp;pper Case</source>
        <translation>大文字にする(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>小文字にする(&amp;L)</translation>
    </message>
    <message>
        <source>Match Bra&amp;ce</source>
        <translation>対応する括弧(&amp;C)</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>ブックマークの切り替え(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Next Bookmark</source>
        <translation>次のブックマーク(&amp;N)</translation>
    </message>
    <message>
        <source>Previous Boo&amp;kmark</source>
        <translation>前のブックマーク(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>拡大(&amp;Z)</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>縮小(&amp;U)</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>元のサイズ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Line Numbers</source>
        <translation>行番号(&amp;L)</translation>
    </message>
    <message>
        <source>Clear All Bookmarks</source>
        <translation>すべてのブックマークを消去</translation>
    </message>
    <message>
        <source>Co&amp;mment Out</source>
        <translation>コメントにする(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>コメントを解除(&amp;U)</translation>
    </message>
    <message>
        <source>Increase Number</source>
        <translation>数値を増やす</translation>
    </message>
    <message>
        <source>Decrease Number</source>
        <translation>数値を減らす</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Replace...</source>
        <translation>置換(&amp;R)...</translation>
    </message>
    <message>
        <source>Insert &amp;File...</source>
        <translation>ファイルを挿入(&amp;F)...</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR+LF (Windows)</source>
        <translation>改行コードを CR+LF (Windows) に変換</translation>
    </message>
    <message>
        <source>Convert Line Ends to LF (Unix)</source>
        <translation>改行コードを LF (Unix) に変換</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (Mac)</source>
        <translation>改行コードを CR (Mac) に変換</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>エディターと言語の設定(&amp;P)...</translation>
    </message>
    <message>
        <source>Insert Template</source>
        <translation>テンプレートを挿入</translation>
    </message>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>行へ移動(&amp;G)...</translation>
    </message>
    <message>
        <source>Go to Line</source>
        <translation>移動先の行</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>移動先の行:</translation>
    </message>
    <message>
        <source>Select &amp;Statement</source>
        <translation>文を選択(&amp;S)</translation>
    </message>
    <message>
        <source>Record &amp;Macro</source>
        <translation>マクロを記録(&amp;M)</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>マクロを実行(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>ドキュメント マップ(&amp;D)</translation>
    </message>
</context>
</TS>
