<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About znworkbench</source>
        <translation>znworkbench について</translation>
    </message>
    <message>
        <source>Edits SQL scripts. It is the example host of the editor component ZNCoreEditor.

Over Qt %1. Licensed under the GNU General Public License, version 3 or later.</source>
        <translation>SQL スクリプトを編集します。エディターコンポーネント ZNCoreEditor のサンプルプログラムです。

Qt %1 を使用。GNU General Public License バージョン 3 以降の下で提供されています。</translation>
    </message>
</context>
<context>
    <name>Arguments</name>
    <message>
        <source>Opens SQL scripts, one tab for each.</source>
        <translation>SQL スクリプトをそれぞれタブで開きます。</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>このテキストを表示します。</translation>
    </message>
    <message>
        <source>Writes a picture of the window and exits.</source>
        <translation>ウィンドウの画像を書き出して終了します。</translation>
    </message>
    <message>
        <source>Tells which version this is.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>Scripts to open, each at a line and a column: a.sql:120:7.</source>
        <translation>開くスクリプト。行と桁も指定できます: a.sql:120:7</translation>
    </message>
    <message>
        <source>--screenshot needs the name of a file.</source>
        <translation>--screenshot にはファイル名が必要です。</translation>
    </message>
    <message>
        <source>Opens a window of its own, not a tab in the workbench that runs.</source>
        <translation>実行中のウィンドウのタブではなく、独立したウィンドウを開きます。</translation>
    </message>
</context>
<context>
    <name>AutosaveDialog</name>
    <message>
        <source>&amp;Keep copies of unsaved changes</source>
        <translation>保存していない変更のコピーを残す(&amp;K)</translation>
    </message>
    <message>
        <source>Autosave</source>
        <translation>自動保存</translation>
    </message>
    <message>
        <source>&amp;Minutes between copies</source>
        <translation>コピーの間隔 (分)(&amp;M)</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Type what a command is called</source>
        <translation>コマンドの名前を入力</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>No command has these words in its name</source>
        <translation>この語句を名前に含むコマンドはありません</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>%1 is not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>%1 は比較されません。テキストでないもの、8 MB を超えるもの、読み込めないものは表示されません。</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the script alone.</source>
        <translation>%1: - の行はファイルだけに、+ の行はスクリプトだけにあります。</translation>
    </message>
    <message>
        <source>%1: script and file have the same text.</source>
        <translation>%1: スクリプトとファイルのテキストは同じです。</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Comparison</source>
        <translation>比較</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>C&amp;omments</source>
        <translation>コメント(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>インデント(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>行(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>単語(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>選択(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Bookmarks</source>
        <translation>ブックマーク(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Comment Out</source>
        <translation>コメントにする(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>コメントを解除(&amp;U)</translation>
    </message>
    <message>
        <source>Comment &amp;Lines Out</source>
        <translation>行をコメントにする(&amp;L)</translation>
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
        <source>&amp;Tabs to Spaces</source>
        <translation>タブを空白に変換(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Spaces to Tabs</source>
        <translation>空白をタブに変換(&amp;S)</translation>
    </message>
    <message>
        <source>Trim T&amp;railing Spaces</source>
        <translation>行末の空白を削除(&amp;R)</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>昇順に並べ替え(&amp;A)</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>降順に並べ替え(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;End the Last Line</source>
        <translation>最終行に改行を付ける(&amp;E)</translation>
    </message>
    <message>
        <source>Convert Line Ends to C&amp;R+LF (Windows)</source>
        <translation>改行コードを CR+LF (Windows) に変換(&amp;R)</translation>
    </message>
    <message>
        <source>Convert Line Ends to L&amp;F (Unix)</source>
        <translation>改行コードを LF (Unix) に変換(&amp;F)</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (&amp;Mac)</source>
        <translation>改行コードを CR (Mac) に変換(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Upper Case</source>
        <translation>大文字にする(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>小文字にする(&amp;L)</translation>
    </message>
    <message>
        <source>Ca&amp;pitalize</source>
        <translation>先頭を大文字にする(&amp;P)</translation>
    </message>
    <message>
        <source>Upper Case of a W&amp;ord</source>
        <translation>単語を大文字にする(&amp;O)</translation>
    </message>
    <message>
        <source>Lower Case of a Wo&amp;rd</source>
        <translation>単語を小文字にする(&amp;R)</translation>
    </message>
    <message>
        <source>Capi&amp;talize a Word</source>
        <translation>単語の先頭を大文字にする(&amp;T)</translation>
    </message>
    <message>
        <source>D&amp;elete a Word</source>
        <translation>単語を削除(&amp;E)</translation>
    </message>
    <message>
        <source>Swap &amp;Characters</source>
        <translation>文字を入れ替え(&amp;C)</translation>
    </message>
    <message>
        <source>Swap &amp;Words</source>
        <translation>単語を入れ替え(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Increase Number</source>
        <translation>数値を増やす(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Decrease Number</source>
        <translation>数値を減らす(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Word</source>
        <translation>単語(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>行(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Paragraph</source>
        <translation>段落(&amp;P)</translation>
    </message>
    <message>
        <source>To Matching &amp;Bracket</source>
        <translation>対応する括弧まで(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Caret to the Other End</source>
        <translation>カーソルを反対の端へ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Toggle</source>
        <translation>切り替え(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>前へ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>最初(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>最後(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>すべて消去(&amp;C)</translation>
    </message>
    <message>
        <source>Ins&amp;ert File...</source>
        <translation>ファイルを挿入(&amp;E)...</translation>
    </message>
</context>
<context>
    <name>Encodings</name>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 (BOM 付き)</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE (BOM 付き)</translation>
    </message>
    <message>
        <source>UTF-16 BE with mark</source>
        <translation>UTF-16 BE (BOM 付き)</translation>
    </message>
    <message>
        <source>UTF-32 LE with mark</source>
        <translation>UTF-32 LE (BOM 付き)</translation>
    </message>
    <message>
        <source>UTF-32 BE with mark</source>
        <translation>UTF-32 BE (BOM 付き)</translation>
    </message>
    <message>
        <source>Unknown encoding</source>
        <translation>不明な文字コード</translation>
    </message>
    <message>
        <source>Western European</source>
        <translation>西ヨーロッパ</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中央ヨーロッパ</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>キリル文字</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>ギリシャ語</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>トルコ語</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>バルト語</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>ヘブライ語</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>アラビア語</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>ベトナム語</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>タイ語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>中国語（簡体字）</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>中国語（繁体字）</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
</context>
<context>
    <name>ExpandedScript</name>
    <message>
        <source>Expanded Script</source>
        <translation>展開後のスクリプト</translation>
    </message>
    <message>
        <source>Expanded script</source>
        <translation>展開後のスクリプト</translation>
    </message>
    <message>
        <source>Files are looked for beside the script, and in the folders that Tools &gt; Options names.</source>
        <translation>ファイルはスクリプトと同じフォルダーと、「ツール &gt; オプション」で指定したフォルダーから探されます。</translation>
    </message>
    <message>
        <source>Problems of the expanded script</source>
        <translation>展開後のスクリプトの問題</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Go to Source</source>
        <translation>元の箇所へ移動</translation>
    </message>
    <message>
        <source>Put Original Back</source>
        <translation>元のスクリプトに戻す</translation>
    </message>
    <message>
        <source>Original Script</source>
        <translation>元のスクリプト</translation>
    </message>
    <message>
        <source>Nothing was expanded. #include, #define and &amp;&amp;NAME are; the lines by which client programs read files (\i, @, :r) stay as they are.</source>
        <translation>展開されたものはありません。展開されるのは #include、#define、&amp;&amp;NAME です。クライアントプログラムがファイルを読み込む行 (\i、@、:r) はそのまま残ります。</translation>
    </message>
    <message>
        <source>%1 (out of date)</source>
        <translation>%1(最新ではありません)</translation>
    </message>
    <message>
        <source>The script was changed since. Tools &gt; Expanded Script shows it as it is.</source>
        <translation>スクリプトはその後変更されています。「ツール &gt; スクリプトを展開」で現在の内容を表示します。</translation>
    </message>
</context>
<context>
    <name>ExpressionHelp</name>
    <message>
        <source>any character of the line</source>
        <translation>行内の任意の 1 文字</translation>
    </message>
    <message>
        <source>one of a set; [^a-z] any other</source>
        <translation>集合のうちの 1 文字、[^a-z] はそれ以外</translation>
    </message>
    <message>
        <source>a digit; \D any other</source>
        <translation>数字、\D はそれ以外</translation>
    </message>
    <message>
        <source>a character of a word; \W any other</source>
        <translation>単語の文字、\W はそれ以外</translation>
    </message>
    <message>
        <source>a blank; \S any other</source>
        <translation>空白、\S はそれ以外</translation>
    </message>
    <message>
        <source>what stands before, any number of times</source>
        <translation>直前の要素を任意の回数</translation>
    </message>
    <message>
        <source>what stands before, once at least</source>
        <translation>直前の要素を 1 回以上</translation>
    </message>
    <message>
        <source>what stands before, or nothing</source>
        <translation>直前の要素またはなし</translation>
    </message>
    <message>
        <source>what stands before, two to four times</source>
        <translation>直前の要素を 2 回から 4 回</translation>
    </message>
    <message>
        <source>what stands before, or what follows</source>
        <translation>前の要素または後の要素</translation>
    </message>
    <message>
        <source>a group; \1 to \9 in the replacement</source>
        <translation>グループ、置換後は \1 から \9</translation>
    </message>
    <message>
        <source>the start of a line</source>
        <translation>行頭</translation>
    </message>
    <message>
        <source>the end of a line</source>
        <translation>行末</translation>
    </message>
    <message>
        <source>an edge of a word</source>
        <translation>単語の境界</translation>
    </message>
    <message>
        <source>the start of a word</source>
        <translation>単語の先頭</translation>
    </message>
    <message>
        <source>the end of a word</source>
        <translation>単語の末尾</translation>
    </message>
    <message>
        <source>the match ends here</source>
        <translation>一致はここで終わる</translation>
    </message>
    <message>
        <source>a line feed</source>
        <translation>改行</translation>
    </message>
    <message>
        <source>a tab</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>What an expression may say</source>
        <translation>正規表現の書き方</translation>
    </message>
    <message>
        <source>&amp;Groups by ( and )</source>
        <translation>( と ) でグループ化(&amp;G)</translation>
    </message>
    <message>
        <source>G&amp;roups by \( and \)</source>
        <translation>\( と \) でグループ化(&amp;R)</translation>
    </message>
</context>
<context>
    <name>FieldMenus</name>
    <message>
        <source>Tabs: %1</source>
        <translation>タブ: %1</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>空白: %1</translation>
    </message>
    <message>
        <source>Indent with &amp;Tabs</source>
        <translation>タブでインデント(&amp;T)</translation>
    </message>
    <message>
        <source>Indent with &amp;Spaces</source>
        <translation>空白でインデント(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;%1 Columns</source>
        <translation>&amp;%1 桁</translation>
    </message>
</context>
<context>
    <name>FileReplacer</name>
    <message>
        <source>it may not be written</source>
        <translation>書き込みが許可されていません</translation>
    </message>
    <message>
        <source>its encoding does not have %1</source>
        <translation>文字コードに %1 がありません</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>読み取り専用です</translation>
    </message>
    <message>
        <source>its text is another one by now</source>
        <translation>テキストが変わっています</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>No expression: %1</source>
        <translation>正規表現の誤り: %1</translation>
    </message>
    <message>
        <source>No expression: %1, at character %2</source>
        <translation>正規表現の誤り: %1 (%2 文字目)</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>何も選択されていません</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 件中 %1 件目</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>%1 件以上</translation>
    </message>
    <message>
        <source>On from the top</source>
        <translation>先頭から続行</translation>
    </message>
    <message>
        <source>On from the end</source>
        <translation>末尾から続行</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>gone round</source>
        <translation>一周しました</translation>
    </message>
    <message>
        <source>%1, gone round</source>
        <translation>%1、一周しました</translation>
    </message>
    <message numerus="yes">
        <source>%n found and marked</source>
        <translation>
            <numerusform>%n 件見つけて印を付けました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n 件見つかりました</numerusform>
        </translation>
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
        <source>Find &amp;Previous</source>
        <translation>前を検索(&amp;P)</translation>
    </message>
    <message>
        <source>Find the &amp;Word Next</source>
        <translation>次の同じ単語(&amp;W)</translation>
    </message>
    <message>
        <source>Find the W&amp;ord Previous</source>
        <translation>前の同じ単語(&amp;O)</translation>
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
        <source>&amp;Mark All</source>
        <translation>すべてに印を付ける(&amp;M)</translation>
    </message>
    <message>
        <source>Co&amp;unt</source>
        <translation>件数を数える(&amp;U)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>置換後</translation>
    </message>
    <message>
        <source>&amp;Whole word</source>
        <translation>単語単位(&amp;W)</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>正規表現(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;In selection</source>
        <translation>選択範囲(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Keep case</source>
        <translation>大小を維持(&amp;K)</translation>
    </message>
    <message>
        <source>Replacing</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>A replacement is in capitals where what it replaces is</source>
        <translation>置き換えられるテキストが大文字の箇所では置換後も大文字にします</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message numerus="yes">
        <source>Stopped, %n replaced</source>
        <translation>
            <numerusform>中止しました (%n 件置換)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>%n 件置換しました</numerusform>
        </translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>大/小文字(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FolderModel</name>
    <message>
        <source>%1, in front</source>
        <translation>%1、前面</translation>
    </message>
</context>
<context>
    <name>FolderPane</name>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Files of the folder</source>
        <translation>フォルダー内のファイル</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>フォルダー(&amp;F)</translation>
    </message>
    <message>
        <source>Part of a name, or *.sql</source>
        <translation>名前の一部、または *.sql</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Open another folder</source>
        <translation>ほかのフォルダーを開く</translation>
    </message>
    <message>
        <source>Show the folder around this one</source>
        <translation>このフォルダーを含むフォルダーを表示</translation>
    </message>
    <message>
        <source>Show Script</source>
        <translation>スクリプトを表示</translation>
    </message>
    <message>
        <source>Show the script in front among its files</source>
        <translation>前面のスクリプトをファイルの中に表示</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;Behind the Script in Front</source>
        <translation>前面のスクリプトの後ろに開く(&amp;B)</translation>
    </message>
    <message>
        <source>Show &amp;Only This Folder</source>
        <translation>このフォルダーだけを表示(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;New Script Here</source>
        <translation>ここに新しいスクリプト(&amp;N)</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>パスをコピー(&amp;P)</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>ファイルのあるフォルダーを開く(&amp;F)</translation>
    </message>
</context>
<context>
    <name>GoToDialog</name>
    <message>
        <source>Go to Line</source>
        <translation>移動先の行</translation>
    </message>
    <message>
        <source>From 1 to %1, or line:column</source>
        <translation>1 から %1 まで、または 行:桁</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>行(&amp;L)</translation>
    </message>
    <message>
        <source>“%1” is no place here: a number from 1 to %2 is expected, or line:column.</source>
        <translation>「%1」はこのテキストの位置ではありません。1 から %2 までの数、または 行:桁 を入力してください。</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Part of a command or of a key</source>
        <translation>コマンドまたはキーの一部</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Commands and keys</source>
        <translation>コマンドとキー</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>新しいキー</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>キーを押してください</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>変更(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;eset</source>
        <translation>元に戻す(&amp;E)</translation>
    </message>
    <message>
        <source>Reset &amp;All...</source>
        <translation>すべて元に戻す(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Changed. It comes without a key.</source>
        <translation>変更されています。最初のキーはありません。</translation>
    </message>
    <message>
        <source>Changed. It comes with %1.</source>
        <translation>変更されています。最初のキーは %1 です。</translation>
    </message>
    <message>
        <source>No command has these words in its name or its keys.</source>
        <translation>名前またはキーにこの語を含むコマンドはありません。</translation>
    </message>
    <message>
        <source>%1 is the key of no command.</source>
        <translation>%1 はどのコマンドのキーでもありません。</translation>
    </message>
    <message>
        <source>Press the key for “%1”. Escape leaves it as it is.</source>
        <translation>「%1」のキーを押してください。Escape キーで変更せずに戻ります。</translation>
    </message>
    <message>
        <source>%1 alone is for writing and for moving about. Take it with Ctrl or Alt, or take a function key.</source>
        <translation>%1 だけでは入力や移動に使われます。Ctrl か Alt と組み合わせるか、ファンクションキーを使ってください。</translation>
    </message>
    <message>
        <source>%1 opens the menu “%2”.</source>
        <translation>%1 はメニュー「%2」を開きます。</translation>
    </message>
    <message>
        <source>%1 presses the button “%2” of the window.</source>
        <translation>%1 はウィンドウのボタン「%2」を押します。</translation>
    </message>
    <message>
        <source>%1 is the key of “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 は「%2」のキーです。「%3」に移しますか?</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>移動(&amp;M)</translation>
    </message>
    <message>
        <source>Do you want to give all commands their first keys again?</source>
        <translation>すべてのコマンドのキーを最初の状態に戻しますか?</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>元に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>The keys could not be written to the settings. They are as shown until the workbench ends.</source>
        <translation>キーを設定に書き込めませんでした。終了するまでは表示のとおりです。</translation>
    </message>
    <message>
        <source>%1 is a key of the text, for “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 はテキストのキーで、「%2」に使われます。「%3」に移しますか?</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>Use for Ne&amp;w Scripts</source>
        <translation>新しいスクリプトに使う(&amp;W)</translation>
    </message>
</context>
<context>
    <name>LineEndWatch</name>
    <message>
        <source>Mixed</source>
        <translation>混在</translation>
    </message>
</context>
<context>
    <name>MacroCommands</name>
    <message>
        <source>Macros (*.znmacro)</source>
        <translation>マクロ (*.znmacro)</translation>
    </message>
    <message>
        <source>The macro was not saved to %1. %2</source>
        <translation>マクロを %1 に保存できませんでした。%2</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 を読み込めません。%2</translation>
    </message>
    <message>
        <source>%1 is not a macro.</source>
        <translation>%1 はマクロではありません。</translation>
    </message>
    <message>
        <source>%1 is not a macro that can be played: line %2 is no command that is recorded.</source>
        <translation>%1 は実行できるマクロではありません: %2 行目は記録されるコマンドではありません。</translation>
    </message>
    <message>
        <source>Macro loaded: %1</source>
        <translation>マクロを読み込みました: %1</translation>
    </message>
    <message>
        <source>Macro loaded: %1. %2 plays it.</source>
        <translation>マクロを読み込みました: %1。%2 で再生します。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>%1 could not be written to the settings; the disk may be full. It holds until the workbench ends.</source>
        <translation>%1を設定に書き込めませんでした。ディスクがいっぱいかもしれません。このプログラムが終わるまでは有効です。</translation>
    </message>
    <message>
        <source>There is no “%1”.</source>
        <translation>「%1」は存在しません。</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>作成(&amp;C)</translation>
    </message>
    <message>
        <source>“%1” cannot be created: %2</source>
        <translation>「%1」を作成できません: %2</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>What you chose</source>
        <translation>選択した内容</translation>
    </message>
    <message>
        <source>The choice about autosave</source>
        <translation>自動保存の選択</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Open &amp;with Encoding...</source>
        <translation>文字コードを指定して開く(&amp;E)...</translation>
    </message>
    <message>
        <source>Open a&amp;t Caret</source>
        <translation>カーソル位置のファイルを開く(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>Save A&amp;ll</source>
        <translation>すべて保存(&amp;L)</translation>
    </message>
    <message>
        <source>Reloa&amp;d</source>
        <translation>再読み込み(&amp;D)</translation>
    </message>
    <message>
        <source>Read Onl&amp;y</source>
        <translation>読み取り専用(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>Print Pre&amp;view...</source>
        <translation>印刷プレビュー(&amp;V)...</translation>
    </message>
    <message>
        <source>Save as PD&amp;F...</source>
        <translation>PDF として保存(&amp;F)...</translation>
    </message>
    <message>
        <source>Save as &amp;HTML...</source>
        <translation>HTML として保存(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Reopen Closed Ta&amp;b</source>
        <translation>閉じたタブを開く(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
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
        <source>Copy wit&amp;h Colours</source>
        <translation>色付きでコピー(&amp;H)</translation>
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
        <source>Function Arguments</source>
        <translation>関数の引数</translation>
    </message>
    <message>
        <source>Insert Template...</source>
        <translation>テンプレートを挿入...</translation>
    </message>
    <message>
        <source>Find with a &amp;Dialog...</source>
        <translation>検索ダイアログ(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>行へ移動(&amp;G)...</translation>
    </message>
    <message>
        <source>Go to S&amp;ymbol...</source>
        <translation>シンボルへ移動(&amp;Y)...</translation>
    </message>
    <message>
        <source>&amp;Stop Search</source>
        <translation>検索を停止(&amp;S)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Line &amp;Ends</source>
        <translation>改行文字(&amp;E)</translation>
    </message>
    <message>
        <source>Wrap &amp;Lines</source>
        <translation>行の折り返し(&amp;L)</translation>
    </message>
    <message>
        <source>Split &amp;Above and Below</source>
        <translation>上下に分割(&amp;A)</translation>
    </message>
    <message>
        <source>Ot&amp;her Pane</source>
        <translation>別のペイン(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>次の領域(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Expanded Script</source>
        <translation>スクリプトを展開(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Record Macro</source>
        <translation>マクロを記録(&amp;R)</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>マクロを実行(&amp;Y)</translation>
    </message>
    <message>
        <source>Repea&amp;t Macro...</source>
        <translation>マクロの繰り返し(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Save Macro...</source>
        <translation>マクロを保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Load Macro...</source>
        <translation>マクロを読み込み(&amp;L)...</translation>
    </message>
    <message>
        <source>Edit Te&amp;mplates</source>
        <translation>テンプレートを編集(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Commands...</source>
        <translation>コマンド(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>オプション(&amp;O)...</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>エディターと言語の設定(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Autosave...</source>
        <translation>自動保存(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>キー(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>znworkbench について(&amp;A)</translation>
    </message>
    <message>
        <source>What was open last cannot be read. </source>
        <translation>前回開いていたものを読み込めません。</translation>
    </message>
    <message>
        <source>It is not kept this time, so that “%1” stays as it is.</source>
        <translation>「%1」をそのまま残すため、今回は記憶しません。</translation>
    </message>
    <message>
        <source>It is in “%1” now.</source>
        <translation>現在は「%1」にあります。</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed: no tables, views, procedures, and so on.</source>
        <translation>一覧にできるもの (テーブル、ビュー、プロシージャなど) をスクリプトは作成していません。</translation>
    </message>
    <message>
        <source>There is no outline for %1. The field with the language in the status bar changes it.</source>
        <translation>%1 のアウトラインはありません。言語はステータスバーの言語欄で変更できます。</translation>
    </message>
    <message numerus="yes">
        <source>   %n matches</source>
        <translation>
            <numerusform>   %n 件一致</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>   %n matches and more</source>
        <translation>
            <numerusform>   %n 件以上一致</numerusform>
        </translation>
    </message>
    <message>
        <source>Find Results</source>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>Find Results 2</source>
        <translation>検索結果 2</translation>
    </message>
    <message>
        <source>R&amp;eplace with a Dialog...</source>
        <translation>置換ダイアログ(&amp;E)...</translation>
    </message>
    <message>
        <source>Find in F&amp;iles...</source>
        <translation>ファイル内を検索(&amp;I)...</translation>
    </message>
    <message>
        <source>Ne&amp;xt Result</source>
        <translation>次の結果(&amp;X)</translation>
    </message>
    <message>
        <source>Previous Resul&amp;t</source>
        <translation>前の結果(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Go to Script...</source>
        <translation>スクリプトへ移動(&amp;G)...</translation>
    </message>
    <message>
        <source>Las&amp;t Used Script</source>
        <translation>最後に使ったスクリプト(&amp;T)</translation>
    </message>
    <message>
        <source>Longest Unused Script</source>
        <translation>最も長く使っていないスクリプト</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>検索(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>記録を停止(&amp;R)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>The caret was nowhere else before.</source>
        <translation>カーソルは以前に他の場所にありませんでした。</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>ドキュメント マップ(&amp;D)</translation>
    </message>
    <message>
        <source>Open Fold&amp;er...</source>
        <translation>フォルダーを開く(&amp;W)...</translation>
    </message>
    <message>
        <source>Split Side b&amp;y Side</source>
        <translation>左右に分割(&amp;Y)</translation>
    </message>
    <message>
        <source>O&amp;utline</source>
        <translation>アウトライン(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>フォルダー(&amp;F)</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>ツールバー(&amp;B)</translation>
    </message>
    <message>
        <source>Complete Word</source>
        <translation>単語を補完</translation>
    </message>
    <message>
        <source>&amp;Reset Zoom</source>
        <translation>ズームをリセット(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Whitespace</source>
        <translation>空白文字(&amp;W)</translation>
    </message>
    <message>
        <source>Previous Pane</source>
        <translation>前のペイン</translation>
    </message>
    <message>
        <source>New &amp;View</source>
        <translation>新しいビュー(&amp;V)</translation>
    </message>
    <message>
        <source>Next Problem</source>
        <translation>次の問題</translation>
    </message>
    <message>
        <source>Previous Problem</source>
        <translation>前の問題</translation>
    </message>
    <message>
        <source>Next Script</source>
        <translation>次のスクリプト</translation>
    </message>
    <message>
        <source>Previous Script</source>
        <translation>前のスクリプト</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>問題(&amp;P)</translation>
    </message>
    <message>
        <source>E&amp;xpanded Script</source>
        <translation>展開後のスクリプト(&amp;X)</translation>
    </message>
    <message>
        <source>Find Re&amp;sults</source>
        <translation>検索結果(&amp;S)</translation>
    </message>
    <message>
        <source>Find Results &amp;2</source>
        <translation>検索結果 &amp;2</translation>
    </message>
</context>
<context>
    <name>OpenAsDialog</name>
    <message>
        <source>Open with Encoding</source>
        <translation>文字コードを指定して開く</translation>
    </message>
    <message>
        <source>SQL scripts (%1)</source>
        <translation>SQL スクリプト (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>自動判別</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>文字コード(&amp;E):</translation>
    </message>
</context>
<context>
    <name>OpenGuard</name>
    <message>
        <source>The workbench ended unexpectedly while it was opening “%1”. Open the file again?</source>
        <translation>「%1」を開いている間にプログラムが予期せず終了しました。ファイルをもう一度開きますか？</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Insert &amp;blanks for Tab</source>
        <translation>タブの代わりに空白を挿入(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation>行番号(&amp;L)</translation>
    </message>
    <message>
        <source>F&amp;old margin</source>
        <translation>折りたたみ余白(&amp;O)</translation>
    </message>
    <message>
        <source>Enter &amp;continues a comment</source>
        <translation>Enter でコメントを続ける(&amp;C)</translation>
    </message>
    <message>
        <source>T&amp;yped quotes and brackets surround the selection</source>
        <translation>引用符や括弧の入力で選択範囲を囲む(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Print in colours</source>
        <translation>カラーで印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Print the &amp;grounds of colours</source>
        <translation>背景色を印刷(&amp;G)</translation>
    </message>
    <message>
        <source>Print in a font of its o&amp;wn</source>
        <translation>専用のフォントで印刷(&amp;W)</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>As the line above</source>
        <translation>前の行に合わせる</translation>
    </message>
    <message>
        <source>By the language</source>
        <translation>言語に合わせる</translation>
    </message>
    <message>
        <source>Folders, with ; between them</source>
        <translation>フォルダー (; で区切る)</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>フォント(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>サイズ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tab width, in columns</source>
        <translation>タブの幅 (桁)(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>新しい行のインデント(&amp;I)</translation>
    </message>
    <message>
        <source>Folders of i&amp;ncluded files</source>
        <translation>インクルードファイルのフォルダー(&amp;N)</translation>
    </message>
    <message>
        <source>P&amp;rint font</source>
        <translation>印刷フォント(&amp;R)</translation>
    </message>
    <message>
        <source>Print si&amp;ze</source>
        <translation>印刷サイズ(&amp;Z)</translation>
    </message>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 (BOM 付き)</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE (BOM 付き)</translation>
    </message>
    <message>
        <source>Of new scripts, and of files that do not tell theirs by a mark or by what stands in them</source>
        <translation>新しいスクリプトと、マークや内容からエンコーディングが分からないファイルに使います</translation>
    </message>
    <message>
        <source>&amp;Encoding without a mark</source>
        <translation>マークのないファイルのエンコーディング(&amp;E)</translation>
    </message>
    <message>
        <source>Close brackets and &amp;quotes</source>
        <translation>かっこと引用符を閉じる(&amp;Q)</translation>
    </message>
    <message>
        <source>Print na&amp;me, page numbers and date</source>
        <translation>名前、ページ番号、日付を印刷(&amp;M)</translation>
    </message>
    <message>
        <source>None of Unicode: as below</source>
        <translation>Unicode以外：下のとおり</translation>
    </message>
    <message>
        <source>What a file is read as that has no mark and is not UTF-8. One that looks wrong can be opened with another: click its encoding in the status bar.</source>
        <translation>マークがなくUTF-8でもないファイルの読み方です。正しく表示されないファイルは別のもので開けます：ステータスバーのエンコーディングをクリックします。</translation>
    </message>
    <message>
        <source>Files that are no &amp;Unicode</source>
        <translation>Unicodeでないファイル(&amp;U)</translation>
    </message>
    <message>
        <source>By the language: as the line above, and a step further in behind {, ) and : alone, which is for languages with braces. With &quot;Close brackets and quotes&quot; what brackets hold is a step further in either way.</source>
        <translation>「言語に合わせる」: 上の行と同じにし、{、)、: の後だけ 1 段深く字下げします。波かっこを使う言語向けです。「かっこと引用符を閉じる」が有効なら、どちらの場合もかっこの中は 1 段深く字下げされます。</translation>
    </message>
    <message>
        <source>There is no font “%1”.</source>
        <translation>フォント「%1」はありません。</translation>
    </message>
</context>
<context>
    <name>OutlinePane</name>
    <message>
        <source>Outline</source>
        <translation>アウトライン</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>名前の一部</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Outline of the script</source>
        <translation>スクリプトのアウトライン</translation>
    </message>
</context>
<context>
    <name>PaneTabs</name>
    <message>
        <source>Panes</source>
        <translation>ペイン</translation>
    </message>
</context>
<context>
    <name>PathField</name>
    <message>
        <source>Path of the script</source>
        <translation>スクリプトのパス</translation>
    </message>
</context>
<context>
    <name>ProblemPane</name>
    <message>
        <source>Problems</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Problems of the script</source>
        <translation>スクリプトの問題</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>桁</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
</context>
<context>
    <name>Prompts</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql *.pks *.pkb *.ddl);;All files (*)</source>
        <translation>SQL スクリプト (*.sql *.pks *.pkb *.ddl);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>保存していない変更</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation>「%1」に保存していない変更があります。</translation>
    </message>
    <message>
        <source>They are lost if you discard them.</source>
        <translation>破棄すると変更は失われます。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>破棄(&amp;D)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as &amp;UTF-8</source>
        <translation>UTF-8 で保存(&amp;U)</translation>
    </message>
    <message>
        <source>Save with &amp;Question Marks</source>
        <translation>疑問符にして保存(&amp;Q)</translation>
    </message>
    <message>
        <source>“%1” is there already.</source>
        <translation>「%1」は既にあります。</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>上書き(&amp;O)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Co&amp;mpare...</source>
        <translation>比較(&amp;M)...</translation>
    </message>
</context>
<context>
    <name>ReadLoss</name>
    <message>
        <source>The file itself is as it was, and stays so until it is saved.</source>
        <translation>ファイル自体は元のままで、保存するまで変わりません。</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: byte %L2 of the file is a NUL, which no text has.</source>
        <translation>「%1」の最初の部分だけを表示しています。ファイルの %L2 バイト目が、テキストにはない NUL です。</translation>
    </message>
    <message>
        <source>File &gt; Open with Encoding reads it in another encoding.</source>
        <translation>［ファイル］&gt;［文字コードを指定して開く］で、別の文字コードで読み込めます。</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: what follows is no text in %2, or cannot be read.</source>
        <translation>「%1」の最初の部分だけを表示しています。続きは %2 のテキストではないか、読み込めません。</translation>
    </message>
    <message>
        <source>“%1” has bytes that are no %2: %L3, the first in line %L4. They are shown as “%5”.</source>
        <translation>「%1」には %2 ではないバイトが %L3 個あります。最初のものは %L4 行目です。これらは「%5」と表示されます。</translation>
    </message>
    <message>
        <source>Only the first part of “%1” could be read. Saving it under its own name loses the rest of the file.</source>
        <translation>「%1」は先頭部分しか読み込めませんでした。同じ名前で保存すると、ファイルの残りは失われます。</translation>
    </message>
    <message>
        <source>“%1” was read as %2 and has bytes that are none: %L3. Saving it under its own name puts “%4” in their place for good.</source>
        <translation>「%1」は %2 として読み込まれましたが、そうでないバイトが %L3 個あります。同じ名前で保存すると、それらは「%4」に置き換わり、元に戻せません。</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>There is nothing to undo.</source>
        <translation>元に戻す操作がありません。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>やり直す操作がありません。</translation>
    </message>
    <message>
        <source>The clipboard holds no text.</source>
        <translation>クリップボードにテキストがありません。</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>保存するものがありません。</translation>
    </message>
    <message>
        <source>The script has no file yet.</source>
        <translation>スクリプトにまだファイルがありません。</translation>
    </message>
    <message>
        <source>There is nothing to find: the find bar is empty.</source>
        <translation>検索する文字列がありません: 検索バーが空です。</translation>
    </message>
    <message>
        <source>No other script is open.</source>
        <translation>ほかに開いているスクリプトがありません。</translation>
    </message>
    <message>
        <source>No tab was closed.</source>
        <translation>閉じたタブがありません。</translation>
    </message>
    <message>
        <source>The script is not split.</source>
        <translation>スクリプトは分割されていません。</translation>
    </message>
    <message>
        <source>No script is open.</source>
        <translation>開いているスクリプトがありません。</translation>
    </message>
    <message>
        <source>The script is read-only.</source>
        <translation>スクリプトは読み取り専用です。</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>何も選択されていません。</translation>
    </message>
    <message>
        <source>The script has nothing here to do this with.</source>
        <translation>この操作の対象がスクリプトのここにはありません。</translation>
    </message>
    <message>
        <source>Convert Line Ends to</source>
        <translation>改行コードを変換</translation>
    </message>
    <message>
        <source>There was no step back.</source>
        <translation>まだ戻っていません。</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>“%1” is not there any more. It may have been moved, renamed or deleted, or its drive may be away. Remove it from the list of recent files?</source>
        <translation>「%1」がありません。移動、名前の変更、または削除されたか、ドライブが接続されていない可能性があります。最近使ったファイルの一覧から削除しますか？</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Recent Files</source>
        <translation>最近使ったファイル(&amp;R)</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>まだファイルがありません</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>一覧を消去(&amp;C)</translation>
    </message>
    <message>
        <source>The list could not be cleared: the settings cannot be written.</source>
        <translation>一覧を消去できませんでした: 設定を書き込めません。</translation>
    </message>
</context>
<context>
    <name>RecoverableCopy</name>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>1 分前</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>%n 分前</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation>1 時間前</translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n 時間前</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day ago</source>
        <translation>1 日前</translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>%n 日前</numerusform>
        </translation>
    </message>
    <message>
        <source>Not changed since</source>
        <translation>その後の変更なし</translation>
    </message>
    <message>
        <source>Changed since</source>
        <translation>その後変更あり</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>読み込めません</translation>
    </message>
    <message>
        <source>Never saved</source>
        <translation>未保存</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>破棄(&amp;D)</translation>
    </message>
    <message>
        <source>Decide Later</source>
        <translation>後で決める</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>後で決める(&amp;L)</translation>
    </message>
    <message>
        <source>Recover Scripts</source>
        <translation>スクリプトの復元</translation>
    </message>
    <message>
        <source>The workbench ended unexpectedly. These scripts had changes that were not saved:</source>
        <translation>プログラムが予期せず終了しました。次のスクリプトに保存していない変更がありました:</translation>
    </message>
    <message>
        <source>Scripts that can be recovered</source>
        <translation>復元できるスクリプト</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>File Is</source>
        <translation>ファイルの状態</translation>
    </message>
    <message>
        <source>What to Do</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>All scripts:</source>
        <translation>すべてのスクリプト:</translation>
    </message>
    <message>
        <source>%1 all scripts</source>
        <translation>すべてのスクリプト: %1</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>続行(&amp;C)</translation>
    </message>
    <message>
        <source>What to do with %1</source>
        <translation>%1 の操作</translation>
    </message>
    <message>
        <source>%1 and its copy are not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>%1 とコピーは比較されません。テキストでないもの、8 MB を超えるもの、読み込めないものは表示されません。</translation>
    </message>
    <message>
        <source>The copy of %1:</source>
        <translation>%1 のコピー:</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the copy alone.</source>
        <translation>%1: - の行はファイルだけに、+ の行はコピーだけにあります。</translation>
    </message>
    <message>
        <source>%1 and its copy differ in their encoding alone.</source>
        <translation>%1 とコピーは文字コードだけが異なります。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>ResultsModel</name>
    <message>
        <source>Not searched or not replaced  (%1)</source>
        <translation>検索または置換しなかったもの  (%1)</translation>
    </message>
    <message>
        <source>%1%2: &quot;%3&quot; becomes &quot;%4&quot;</source>
        <translation>%1%2: 「%3」を「%4」に</translation>
    </message>
    <message>
        <source>not open: is saved at once, no undo</source>
        <translation>開いていません: すぐに保存され、元に戻せません</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>open, not saved</source>
        <translation>開いています、未保存</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>閉じました</translation>
    </message>
</context>
<context>
    <name>ResultsPane</name>
    <message>
        <source>no text</source>
        <translation>テキストではありません</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>読み込めませんでした</translation>
    </message>
    <message>
        <source>a device or a pipe</source>
        <translation>デバイスまたはパイプ</translation>
    </message>
    <message>
        <source>a folder that has been searched already</source>
        <translation>すでに検索したフォルダー</translation>
    </message>
    <message>
        <source>the expression went on for too long</source>
        <translation>正規表現の処理が長すぎました</translation>
    </message>
    <message>
        <source>Re&amp;place...</source>
        <translation>置換(&amp;P)...</translation>
    </message>
    <message>
        <source>Replace &amp;with</source>
        <translation>置換後(&amp;W)</translation>
    </message>
    <message>
        <source>What the matches are to become. Enter shows it for each of them</source>
        <translation>一致箇所の置換後の文字列。Enter で箇所ごとに表示します</translation>
    </message>
    <message>
        <source>Prev&amp;iew</source>
        <translation>プレビュー(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Replace Checked</source>
        <translation>選んだものを置換(&amp;R)</translation>
    </message>
    <message>
        <source>No search</source>
        <translation>検索なし</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: %2</source>
        <translation>「%1」: %2</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos;: %Ln matches in %2 of %3 files</source>
        <translation>
            <numerusform>「%1」: %3 ファイル中 %2 ファイルで %Ln 件一致</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 not read</source>
        <translation>、未読 %1 件</translation>
    </message>
    <message>
        <source>, %1 skipped</source>
        <translation>、スキップ %1 件</translation>
    </message>
    <message>
        <source>. The expression went on for too long in some of them</source>
        <translation>。一部で正規表現の処理が長すぎました</translation>
    </message>
    <message>
        <source>. Stopped</source>
        <translation>。停止しました</translation>
    </message>
    <message>
        <source>Searching: %1</source>
        <translation>検索中: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Replacing: %1 of %2 files</source>
        <translation>置換中: %2 ファイル中 %1 ファイル</translation>
    </message>
    <message numerus="yes">
        <source>. %Ln files were left as they are, see the end of the list</source>
        <translation>
            <numerusform>。%Ln ファイルは元のままです (一覧の末尾を参照)</numerusform>
        </translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>停止(&amp;O)</translation>
    </message>
    <message>
        <source>1 file saved</source>
        <translation>1 ファイルを保存</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files saved</source>
        <translation>
            <numerusform>%Ln ファイルを保存</numerusform>
        </translation>
    </message>
    <message>
        <source>1 open script changed, not saved</source>
        <translation>開いている 1 スクリプトを変更 (未保存)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln open scripts changed, not saved</source>
        <translation>
            <numerusform>開いている %Ln スクリプトを変更 (未保存)</numerusform>
        </translation>
    </message>
    <message>
        <source>1 match replaced</source>
        <translation>1 件置換しました</translation>
    </message>
    <message numerus="yes">
        <source>%Ln matches replaced</source>
        <translation>
            <numerusform>%Ln 件置換しました</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RichCopy</name>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 に書き込めませんでした: %2</translation>
    </message>
</context>
<context>
    <name>SaveAsDialog</name>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql)</source>
        <translation>SQL スクリプト (*.sql)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>文字コード(&amp;E):</translation>
    </message>
</context>
<context>
    <name>SchemeMenu</name>
    <message>
        <source>&amp;Colours</source>
        <translation>配色(&amp;C)</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>デスクトップに合わせる(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>ダーク(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;High Contrast</source>
        <translation>ハイコントラスト(&amp;H)</translation>
    </message>
    <message>
        <source>As on &amp;Paper</source>
        <translation>印刷の配色(&amp;P)</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>the picture “%1” cannot be written.</source>
        <translation>画像「%1」を書き出せません。</translation>
    </message>
</context>
<context>
    <name>ScriptChecker</name>
    <message>
        <source>Scripts in %1 are not checked: there is no parser for it here.</source>
        <translation>%1 のスクリプトは検査されません: 対応するパーサーがありません。</translation>
    </message>
    <message>
        <source>The script is too long to be checked.</source>
        <translation>スクリプトが長すぎて検査できません。</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>問題は見つかりませんでした。</translation>
    </message>
    <message>
        <source>Scripts in SQL are not checked. Choose PostgreSQL or SQLite in the Language menu to have this one checked.</source>
        <translation>SQL のスクリプトは検査されません。検査するには「言語」メニューで PostgreSQL または SQLite を選んでください。</translation>
    </message>
</context>
<context>
    <name>ScriptCommands</name>
    <message>
        <source>This language has no file of templates.</source>
        <translation>この言語にはテンプレートのファイルがありません。</translation>
    </message>
    <message>
        <source>No file name and no address stands at the caret.</source>
        <translation>カーソル位置にファイル名もアドレスもありません。</translation>
    </message>
    <message>
        <source>Nothing opens %1.</source>
        <translation>%1 を開くプログラムがありません。</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>ファイル %1 はありません。</translation>
    </message>
    <message>
        <source>Open &amp;Document</source>
        <translation>文書を開く(&amp;D)</translation>
    </message>
    <message>
        <source>“%1” was written: 1 page</source>
        <translation>「%1」に書き込みました: 1 ページ</translation>
    </message>
    <message>
        <source>“%1” was written: %L2 pages</source>
        <translation>「%1」に書き込みました: %L2 ページ</translation>
    </message>
    <message>
        <source>“%1” was written</source>
        <translation>「%1」に書き込みました</translation>
    </message>
</context>
<context>
    <name>ScriptDoc</name>
    <message>
        <source>“%1” has a name that is not UTF-8, which cannot be opened. Rename the file.</source>
        <translation>「%1」の名前は UTF-8 ではないため開けません。ファイルの名前を変更してください。</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>「%1」は存在しません。</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a script.</source>
        <translation>「%1」はフォルダーで、スクリプトではありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be read. Check that you may read it.</source>
        <translation>「%1」を読み込めません。読み取り権限を確認してください。</translation>
    </message>
    <message>
        <source>The disk may be full.</source>
        <translation>ディスクがいっぱいかもしれません。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダーが存在しません。</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <translation>その名前のフォルダーがあります。</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>そこへの書き込み権限がありません。</translation>
    </message>
    <message>
        <source>“%1” could not be saved. %2 The text is still here: use Save As to put it in another place.</source>
        <translation>「%1」を保存できませんでした。%2テキストはまだここにあります。「名前を付けて保存」で別の場所に保存してください。</translation>
    </message>
    <message>
        <source>The copy of “%1” cannot be read, or another window of the workbench has it by now. It is still there: “%2”.</source>
        <translation>「%1」のコピーを読み込めないか、このプログラムの別のウィンドウがすでに使っています。コピーはまだあります: 「%2」</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>「%1」を再読み込みしますか？</translation>
    </message>
    <message>
        <source>“%1” is open in another tab. Close it first, or choose another name.</source>
        <translation>「%1」は別のタブで開かれています。先にそれを閉じるか、別の名前を選んでください。</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>上書き(&amp;O)</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench since it was read. Saving it replaces those changes.</source>
        <translation>「%1」は読み込み後にプログラムの外で変更されています。保存するとその変更は置き換えられます。</translation>
    </message>
    <message>
        <source>Your changes that are not saved are lost.</source>
        <translation>保存していない変更は失われます。</translation>
    </message>
    <message>
        <source>%1: %2, as other files of this folder</source>
        <translation>%1: このフォルダーの他のファイルと同じ %2</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench. If it is read again, your changes that are not saved are lost.</source>
        <translation>「%1」は外部で変更されました。読み直すと、保存されていない変更は失われます。</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>読み直す(&amp;R)</translation>
    </message>
    <message>
        <source>No copy of “%1” could be written in case of a crash: the disk may be full. Save it.</source>
        <translation>異常終了に備えた「%1」のコピーを書き込めませんでした。ディスクに空きがない可能性があります。保存してください。</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. Save As makes a copy that you can change.</source>
        <translation>「%1」は読み取り専用のため、何も変更されていません。［名前を付けて保存］で変更できるコピーを作成します。</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. File &gt; Read Only ends that.</source>
        <translation>「%1」は読み取り専用のため、何も変更されていません。［ファイル］&gt;［読み取り専用］で解除します。</translation>
    </message>
</context>
<context>
    <name>ScriptFrame</name>
    <message>
        <source> (Read Only)</source>
        <translation> (読み取り専用)</translation>
    </message>
</context>
<context>
    <name>ScriptPrinting</name>
    <message>
        <source>Finding page %1</source>
        <translation>%1 ページを探しています</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%2 ページ中 %1 ページ</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>%1 ページ</translation>
    </message>
</context>
<context>
    <name>ScriptTabs</name>
    <message>
        <source>List of tabs</source>
        <translation>タブの一覧</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1、変更あり</translation>
    </message>
</context>
<context>
    <name>ScriptView</name>
    <message>
        <source>Script</source>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>Line %L1 is very long: behind column %L2 its text is drawn coarsely</source>
        <translation>%L1 行は非常に長いため、%L2 桁より後ろのテキストは簡略に描かれます</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>%1 行、%2 桁</translation>
    </message>
    <message>
        <source> (%1 selected)</source>
        <translation> (%1 文字選択)</translation>
    </message>
</context>
<context>
    <name>StatusIndicators</name>
    <message>
        <source>A macro is recorded; stop it</source>
        <translation>マクロを記録中です。クリックで停止</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Whether the script can be changed</source>
        <translation>スクリプトを変更できるかどうか</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>変更あり</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Go to a line</source>
        <translation>行へ移動</translation>
    </message>
    <message>
        <source>The database in force at the caret</source>
        <translation>カーソル位置で有効なデータベース</translation>
    </message>
    <message>
        <source>The language of the script</source>
        <translation>スクリプトの言語</translation>
    </message>
    <message>
        <source>Open with another encoding</source>
        <translation>別の文字コードで開く</translation>
    </message>
    <message>
        <source>Convert line ends</source>
        <translation>改行コードを変換</translation>
    </message>
    <message>
        <source>Indentation</source>
        <translation>インデント</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Whether typing replaces</source>
        <translation>入力が上書きになるかどうか</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>%1 行、%2 桁</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>空白: %1</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>上書</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>挿入</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>問題: %1</translation>
    </message>
    <message>
        <source>What is wrong with the script</source>
        <translation>スクリプトの問題点</translation>
    </message>
</context>
<context>
    <name>SymbolModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
</context>
<context>
    <name>SymbolPicker</name>
    <message>
        <source>Go to Symbol</source>
        <translation>シンボルへ移動</translation>
    </message>
    <message>
        <source>Type part of a name</source>
        <translation>名前の一部を入力</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>シンボル</translation>
    </message>
    <message>
        <source>Symbols of the script</source>
        <translation>スクリプトのシンボル</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed</source>
        <translation>一覧に表示できるものをスクリプトは作成していません</translation>
    </message>
    <message>
        <source>Nothing that the script creates has this name</source>
        <translation>スクリプトが作成するものにこの名前はありません</translation>
    </message>
</context>
<context>
    <name>Symbols</name>
    <message>
        <source>Table</source>
        <translation>テーブル</translation>
    </message>
    <message>
        <source>View</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>プロシージャ</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>関数</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>インデックス</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>シーケンス</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>スキーマ</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>ステップ</translation>
    </message>
</context>
<context>
    <name>TabList</name>
    <message>
        <source>Scripts</source>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>Type part of a name</source>
        <translation>名前の一部を入力</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>%1, in front</source>
        <translation>%1、前面</translation>
    </message>
    <message>
        <source>No script has this in its name</source>
        <translation>これを名前に含むスクリプトはありません</translation>
    </message>
</context>
<context>
    <name>TabMenu</name>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close &amp;Others</source>
        <translation>ほかを閉じる(&amp;O)</translation>
    </message>
    <message>
        <source>Close to the &amp;Right</source>
        <translation>右側を閉じる(&amp;R)</translation>
    </message>
    <message>
        <source>Close &amp;All</source>
        <translation>すべて閉じる(&amp;A)</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>パスをコピー(&amp;P)</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>ファイルのあるフォルダーを開く(&amp;F)</translation>
    </message>
</context>
<context>
    <name>TabWalk</name>
    <message>
        <source>Scripts by last use</source>
        <translation>最近使った順のスクリプト</translation>
    </message>
</context>
<context>
    <name>TemplateForm</name>
    <message>
        <source>Insert Template</source>
        <translation>テンプレートを挿入</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>挿入(&amp;I)</translation>
    </message>
</context>
<context>
    <name>TemplateList</name>
    <message>
        <source>Templates</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Type the name of a template, or first letters of it</source>
        <translation>テンプレートの名前または先頭の数文字を入力</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Text of the template</source>
        <translation>テンプレートの内容</translation>
    </message>
</context>
<context>
    <name>TextKeys</name>
    <message>
        <source>Word Left</source>
        <translation>左の単語へ</translation>
    </message>
    <message>
        <source>Word Right</source>
        <translation>右の単語へ</translation>
    </message>
    <message>
        <source>Select Word Left</source>
        <translation>左の単語を選択</translation>
    </message>
    <message>
        <source>Select Word Right</source>
        <translation>右の単語を選択</translation>
    </message>
    <message>
        <source>Start of the Text</source>
        <translation>テキストの先頭</translation>
    </message>
    <message>
        <source>End of the Text</source>
        <translation>テキストの末尾</translation>
    </message>
    <message>
        <source>Select to the Start of the Text</source>
        <translation>テキストの先頭まで選択</translation>
    </message>
    <message>
        <source>Select to the End of the Text</source>
        <translation>テキストの末尾まで選択</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>下へスクロール</translation>
    </message>
    <message>
        <source>Delete Word Left</source>
        <translation>左の単語を削除</translation>
    </message>
    <message>
        <source>Delete Word Right</source>
        <translation>右の単語を削除</translation>
    </message>
    <message>
        <source>Delete to the Start of the Line</source>
        <translation>行頭まで削除</translation>
    </message>
    <message>
        <source>Delete to the End of the Line</source>
        <translation>行末まで削除</translation>
    </message>
    <message>
        <source>Select Columns</source>
        <translation>列を選択</translation>
    </message>
    <message>
        <source>Delete Line</source>
        <translation>行を削除</translation>
    </message>
    <message>
        <source>Swap with the Line Above</source>
        <translation>上の行と入れ替え</translation>
    </message>
    <message>
        <source>Paragraph Up</source>
        <translation>前の段落へ</translation>
    </message>
    <message>
        <source>Select Paragraph Up</source>
        <translation>前の段落まで選択</translation>
    </message>
    <message>
        <source>Start of the Row</source>
        <translation>表示行の先頭</translation>
    </message>
    <message>
        <source>End of the Row</source>
        <translation>表示行の末尾</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Tool Bar</source>
        <translation>ツールバー</translation>
    </message>
</context>
<context>
    <name>UnsavedDialog</name>
    <message>
        <source>Unsaved changes</source>
        <translation>保存していない変更</translation>
    </message>
    <message>
        <source>These scripts have changes that are not saved. Those without a tick lose them.</source>
        <translation>これらのスクリプトには保存されていない変更があります。チェックを外したスクリプトの変更は失われます。</translation>
    </message>
    <message>
        <source>Scripts to save</source>
        <translation>保存するスクリプト</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard All</source>
        <translation>すべて破棄(&amp;D)</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>%1: %2 changes</source>
        <translation>%1: %2 件の変更</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Script</source>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql)</source>
        <translation>SQL スクリプト (*.sql)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>%1 was read anew: it is %2</source>
        <translation>%1 を読み直しました: %2</translation>
    </message>
</context>
<context>
    <name>WorkbenchPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The changes are in force for now, but these files could not be written:

%1

Apply again once they can be, or Cancel to give the changes up.</source>
        <translation>変更は今のところ有効ですが、次のファイルに書き込めませんでした:

%1

書き込めるようになったらもう一度適用するか、キャンセルして変更を破棄してください。</translation>
    </message>
    <message>
        <source>The tree has a page for what all languages share, and pages for each language. Type over the tree to find one.

Apply writes the changes and shows them in the open scripts; Cancel does not take back what was applied.

A colour that is &quot;Default&quot; follows the scheme of the View menu. What is set here for a language comes before the Options of all editors.</source>
        <translation>ツリーには、すべての言語に共通するもののページと、言語ごとのページがあります。ツリーの上の欄に入力するとページを探せます。

「適用」は変更を書き込み、開いているスクリプトに反映します。適用したものは「キャンセル」では元に戻りません。

「既定」の色は「表示」メニューの配色に従います。言語ごとの設定は、エディター全体のオプションより優先されます。</translation>
    </message>
</context>
<context>
    <name>WorkbenchPrinter</name>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%2 ページ中 %1 ページ</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The editing engine cannot be loaded: libZNBaseEditor.so has to stand beside libZNCoreEditor.so, or in the folder ZNCoreEditor there.</source>
        <translation>編集エンジンを読み込めません: libZNBaseEditor.so は libZNCoreEditor.so と同じフォルダーか、その中の ZNCoreEditor フォルダーに置く必要があります。</translation>
    </message>
    <message>
        <source>The workbench that runs does not answer. This is a window beside it.</source>
        <translation>実行中のプログラムが応答しません。これは別のウィンドウです。</translation>
    </message>
</context>
</TS>
