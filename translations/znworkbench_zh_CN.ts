<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About znworkbench</source>
        <translation>关于 znworkbench</translation>
    </message>
    <message>
        <source>Edits SQL scripts. It is the example host of the editor component ZNCoreEditor.

Over Qt %1. Licensed under the GNU General Public License, version 3 or later.</source>
        <translation>编辑 SQL 脚本。它是编辑器组件 ZNCoreEditor 的示例程序。

使用 Qt %1。依据 GNU 通用公共许可证第 3 版或更高版本授权。</translation>
    </message>
</context>
<context>
    <name>Arguments</name>
    <message>
        <source>Opens SQL scripts, one tab for each.</source>
        <translation>打开 SQL 脚本，每个脚本一个标签页。</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>显示此文本。</translation>
    </message>
    <message>
        <source>Writes a picture of the window and exits.</source>
        <translation>写出窗口的图片后退出。</translation>
    </message>
    <message>
        <source>Tells which version this is.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Scripts to open, each at a line and a column: a.sql:120:7.</source>
        <translation>要打开的脚本，可各带行号和列号：a.sql:120:7。</translation>
    </message>
    <message>
        <source>--screenshot needs the name of a file.</source>
        <translation>--screenshot 需要一个文件名。</translation>
    </message>
    <message>
        <source>Opens a window of its own, not a tab in the workbench that runs.</source>
        <translation>打开单独的窗口，而不是在已运行的程序中打开标签页。</translation>
    </message>
</context>
<context>
    <name>AutosaveDialog</name>
    <message>
        <source>&amp;Keep copies of unsaved changes</source>
        <translation>保留未保存更改的副本(&amp;K)</translation>
    </message>
    <message>
        <source>Autosave</source>
        <translation>自动保存</translation>
    </message>
    <message>
        <source>&amp;Minutes between copies</source>
        <translation>副本间隔 (分钟)(&amp;M)</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Type what a command is called</source>
        <translation>输入命令名称</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>No command has these words in its name</source>
        <translation>没有名称包含这些词的命令</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>%1 is not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>未比较 %1：不显示非文本、超过 8 MB 或无法读取的内容。</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the script alone.</source>
        <translation>%1：带 - 的行仅在文件中，带 + 的行仅在脚本中。</translation>
    </message>
    <message>
        <source>%1: script and file have the same text.</source>
        <translation>%1：脚本与文件的文本相同。</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Comparison</source>
        <translation>比较</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>C&amp;omments</source>
        <translation>注释(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>缩进(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>行(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>单词(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>选择(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Bookmarks</source>
        <translation>书签(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Comment Out</source>
        <translation>注释(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>取消注释(&amp;U)</translation>
    </message>
    <message>
        <source>Comment &amp;Lines Out</source>
        <translation>注释整行(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>增加缩进(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>减少缩进(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Tabs to Spaces</source>
        <translation>制表符转为空格(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Spaces to Tabs</source>
        <translation>空格转为制表符(&amp;S)</translation>
    </message>
    <message>
        <source>Trim T&amp;railing Spaces</source>
        <translation>删除行尾空格(&amp;R)</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>升序排序(&amp;A)</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>降序排序(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;End the Last Line</source>
        <translation>结束最后一行(&amp;E)</translation>
    </message>
    <message>
        <source>Convert Line Ends to C&amp;R+LF (Windows)</source>
        <translation>行尾转换为 CR+LF (Windows)(&amp;R)</translation>
    </message>
    <message>
        <source>Convert Line Ends to L&amp;F (Unix)</source>
        <translation>行尾转换为 LF (Unix)(&amp;F)</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (&amp;Mac)</source>
        <translation>行尾转换为 CR (Mac)(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Upper Case</source>
        <translation>大写(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>小写(&amp;L)</translation>
    </message>
    <message>
        <source>Ca&amp;pitalize</source>
        <translation>首字母大写(&amp;P)</translation>
    </message>
    <message>
        <source>Upper Case of a W&amp;ord</source>
        <translation>单词转为大写(&amp;O)</translation>
    </message>
    <message>
        <source>Lower Case of a Wo&amp;rd</source>
        <translation>单词转为小写(&amp;R)</translation>
    </message>
    <message>
        <source>Capi&amp;talize a Word</source>
        <translation>单词首字母大写(&amp;T)</translation>
    </message>
    <message>
        <source>D&amp;elete a Word</source>
        <translation>删除单词(&amp;E)</translation>
    </message>
    <message>
        <source>Swap &amp;Characters</source>
        <translation>交换字符(&amp;C)</translation>
    </message>
    <message>
        <source>Swap &amp;Words</source>
        <translation>交换单词(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Increase Number</source>
        <translation>增大数字(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Decrease Number</source>
        <translation>减小数字(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Word</source>
        <translation>单词(&amp;W)</translation>
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
        <translation>到匹配的括号(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Caret to the Other End</source>
        <translation>光标移到另一端(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Toggle</source>
        <translation>切换(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一个(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>上一个(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>第一个(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>最后一个(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>全部清除(&amp;C)</translation>
    </message>
    <message>
        <source>Ins&amp;ert File...</source>
        <translation>插入文件(&amp;E)...</translation>
    </message>
</context>
<context>
    <name>Encodings</name>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 (带 BOM)</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE (带 BOM)</translation>
    </message>
    <message>
        <source>UTF-16 BE with mark</source>
        <translation>UTF-16 BE (带 BOM)</translation>
    </message>
    <message>
        <source>UTF-32 LE with mark</source>
        <translation>UTF-32 LE (带 BOM)</translation>
    </message>
    <message>
        <source>UTF-32 BE with mark</source>
        <translation>UTF-32 BE (带 BOM)</translation>
    </message>
    <message>
        <source>Unknown encoding</source>
        <translation>未知编码</translation>
    </message>
    <message>
        <source>Western European</source>
        <translation>西欧</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中欧</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>西里尔文</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希腊文</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其文</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>波罗的海文</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>希伯来文</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯文</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>越南文</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日文</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>繁体中文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩文</translation>
    </message>
</context>
<context>
    <name>ExpandedScript</name>
    <message>
        <source>Expanded Script</source>
        <translation>展开的脚本</translation>
    </message>
    <message>
        <source>Expanded script</source>
        <translation>展开的脚本</translation>
    </message>
    <message>
        <source>Files are looked for beside the script, and in the folders that Tools &gt; Options names.</source>
        <translation>将在脚本所在的文件夹和“工具 &gt; 选项”指定的文件夹中查找文件。</translation>
    </message>
    <message>
        <source>Problems of the expanded script</source>
        <translation>展开的脚本中的问题</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Go to Source</source>
        <translation>转到来源</translation>
    </message>
    <message>
        <source>Put Original Back</source>
        <translation>恢复原文</translation>
    </message>
    <message>
        <source>Original Script</source>
        <translation>原始脚本</translation>
    </message>
    <message>
        <source>Nothing was expanded. #include, #define and &amp;&amp;NAME are; the lines by which client programs read files (\i, @, :r) stay as they are.</source>
        <translation>没有展开任何内容。会展开的是 #include、#define 和 &amp;&amp;NAME；客户端程序用来读取文件的行 (\i、@、:r) 保持原样。</translation>
    </message>
    <message>
        <source>%1 (out of date)</source>
        <translation>%1（已过期）</translation>
    </message>
    <message>
        <source>The script was changed since. Tools &gt; Expanded Script shows it as it is.</source>
        <translation>脚本之后已被更改。“工具 &gt; 展开脚本”可显示其当前内容。</translation>
    </message>
</context>
<context>
    <name>ExpressionHelp</name>
    <message>
        <source>any character of the line</source>
        <translation>行内的任意字符</translation>
    </message>
    <message>
        <source>one of a set; [^a-z] any other</source>
        <translation>集合中的一个；[^a-z] 为其他任一字符</translation>
    </message>
    <message>
        <source>a digit; \D any other</source>
        <translation>数字；\D 为其他任一字符</translation>
    </message>
    <message>
        <source>a character of a word; \W any other</source>
        <translation>单词字符；\W 为其他任一字符</translation>
    </message>
    <message>
        <source>a blank; \S any other</source>
        <translation>空白；\S 为其他任一字符</translation>
    </message>
    <message>
        <source>what stands before, any number of times</source>
        <translation>前面的内容，任意次数</translation>
    </message>
    <message>
        <source>what stands before, once at least</source>
        <translation>前面的内容，至少一次</translation>
    </message>
    <message>
        <source>what stands before, or nothing</source>
        <translation>前面的内容，或没有</translation>
    </message>
    <message>
        <source>what stands before, two to four times</source>
        <translation>前面的内容，两到四次</translation>
    </message>
    <message>
        <source>what stands before, or what follows</source>
        <translation>前面的内容，或后面的内容</translation>
    </message>
    <message>
        <source>a group; \1 to \9 in the replacement</source>
        <translation>组；替换中用 \1 到 \9</translation>
    </message>
    <message>
        <source>the start of a line</source>
        <translation>行首</translation>
    </message>
    <message>
        <source>the end of a line</source>
        <translation>行尾</translation>
    </message>
    <message>
        <source>an edge of a word</source>
        <translation>单词边界</translation>
    </message>
    <message>
        <source>the start of a word</source>
        <translation>单词开头</translation>
    </message>
    <message>
        <source>the end of a word</source>
        <translation>单词结尾</translation>
    </message>
    <message>
        <source>the match ends here</source>
        <translation>匹配在此结束</translation>
    </message>
    <message>
        <source>a line feed</source>
        <translation>换行符</translation>
    </message>
    <message>
        <source>a tab</source>
        <translation>制表符</translation>
    </message>
    <message>
        <source>What an expression may say</source>
        <translation>表达式中可用的内容</translation>
    </message>
    <message>
        <source>&amp;Groups by ( and )</source>
        <translation>用 ( 和 ) 分组(&amp;G)</translation>
    </message>
    <message>
        <source>G&amp;roups by \( and \)</source>
        <translation>用 \( 和 \) 分组(&amp;R)</translation>
    </message>
</context>
<context>
    <name>FieldMenus</name>
    <message>
        <source>Tabs: %1</source>
        <translation>制表符：%1</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>空格：%1</translation>
    </message>
    <message>
        <source>Indent with &amp;Tabs</source>
        <translation>用制表符缩进(&amp;T)</translation>
    </message>
    <message>
        <source>Indent with &amp;Spaces</source>
        <translation>用空格缩进(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;%1 Columns</source>
        <translation>&amp;%1 列</translation>
    </message>
</context>
<context>
    <name>FileReplacer</name>
    <message>
        <source>it may not be written</source>
        <translation>不允许写入</translation>
    </message>
    <message>
        <source>its encoding does not have %1</source>
        <translation>其编码没有 %1</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>它是只读的</translation>
    </message>
    <message>
        <source>its text is another one by now</source>
        <translation>其文本已发生变化</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>No expression: %1</source>
        <translation>表达式有误：%1</translation>
    </message>
    <message>
        <source>No expression: %1, at character %2</source>
        <translation>表达式有误：%1，在第 %2 个字符处</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>未选定任何内容</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>超过 %1 个</translation>
    </message>
    <message>
        <source>On from the top</source>
        <translation>从开头继续</translation>
    </message>
    <message>
        <source>On from the end</source>
        <translation>从末尾继续</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>gone round</source>
        <translation>已循环一周</translation>
    </message>
    <message>
        <source>%1, gone round</source>
        <translation>%1，已循环一周</translation>
    </message>
    <message numerus="yes">
        <source>%n found and marked</source>
        <translation>
            <numerusform>找到并标记 %n 处</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>找到 %n 处</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>查找(&amp;F)...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>查找下一个(&amp;N)</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>查找上一个(&amp;P)</translation>
    </message>
    <message>
        <source>Find the &amp;Word Next</source>
        <translation>下一个相同单词(&amp;W)</translation>
    </message>
    <message>
        <source>Find the W&amp;ord Previous</source>
        <translation>上一个相同单词(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>全部替换(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Mark All</source>
        <translation>全部标记(&amp;M)</translation>
    </message>
    <message>
        <source>Co&amp;unt</source>
        <translation>计数(&amp;U)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>替换为</translation>
    </message>
    <message>
        <source>&amp;Whole word</source>
        <translation>全字匹配(&amp;W)</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>表达式(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;In selection</source>
        <translation>选定内容(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Keep case</source>
        <translation>保留大小写(&amp;K)</translation>
    </message>
    <message>
        <source>Replacing</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>A replacement is in capitals where what it replaces is</source>
        <translation>被替换文本为大写处，替换后也为大写</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message numerus="yes">
        <source>Stopped, %n replaced</source>
        <translation>
            <numerusform>已停止，替换了 %n 处</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>替换了 %n 处</numerusform>
        </translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>大小写(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FolderModel</name>
    <message>
        <source>%1, in front</source>
        <translation>%1，当前</translation>
    </message>
</context>
<context>
    <name>FolderPane</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Files of the folder</source>
        <translation>文件夹中的文件</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>向上</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Part of a name, or *.sql</source>
        <translation>名称的一部分，或 *.sql</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Open another folder</source>
        <translation>打开其他文件夹</translation>
    </message>
    <message>
        <source>Show the folder around this one</source>
        <translation>显示上一级文件夹</translation>
    </message>
    <message>
        <source>Show Script</source>
        <translation>显示脚本</translation>
    </message>
    <message>
        <source>Show the script in front among its files</source>
        <translation>在文件中显示当前脚本</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;Behind the Script in Front</source>
        <translation>在当前脚本后面打开(&amp;B)</translation>
    </message>
    <message>
        <source>Show &amp;Only This Folder</source>
        <translation>只显示此文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;New Script Here</source>
        <translation>在此新建脚本(&amp;N)</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>打开所在文件夹(&amp;F)</translation>
    </message>
</context>
<context>
    <name>GoToDialog</name>
    <message>
        <source>Go to Line</source>
        <translation>转到行</translation>
    </message>
    <message>
        <source>From 1 to %1, or line:column</source>
        <translation>从 1 到 %1，或 行:列</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>行(&amp;L)</translation>
    </message>
    <message>
        <source>“%1” is no place here: a number from 1 to %2 is expected, or line:column.</source>
        <translation>“%1”不是此处的位置：应为 1 到 %2 之间的数字，或 行:列。</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Part of a command or of a key</source>
        <translation>命令或按键的一部分</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Commands and keys</source>
        <translation>命令和按键</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>新按键</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>请按键</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>更改(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;eset</source>
        <translation>重置(&amp;E)</translation>
    </message>
    <message>
        <source>Reset &amp;All...</source>
        <translation>全部重置(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Changed. It comes without a key.</source>
        <translation>已更改。原来没有按键。</translation>
    </message>
    <message>
        <source>Changed. It comes with %1.</source>
        <translation>已更改。原来是 %1。</translation>
    </message>
    <message>
        <source>No command has these words in its name or its keys.</source>
        <translation>没有命令的名称或按键包含这些词。</translation>
    </message>
    <message>
        <source>%1 is the key of no command.</source>
        <translation>%1 不是任何命令的按键。</translation>
    </message>
    <message>
        <source>Press the key for “%1”. Escape leaves it as it is.</source>
        <translation>请按“%1”的按键。按 Esc 保持不变。</translation>
    </message>
    <message>
        <source>%1 alone is for writing and for moving about. Take it with Ctrl or Alt, or take a function key.</source>
        <translation>单独的 %1 用于输入和移动。请与 Ctrl 或 Alt 一起使用，或使用功能键。</translation>
    </message>
    <message>
        <source>%1 opens the menu “%2”.</source>
        <translation>%1 用于打开菜单“%2”。</translation>
    </message>
    <message>
        <source>%1 presses the button “%2” of the window.</source>
        <translation>%1 用于按下窗口的按钮“%2”。</translation>
    </message>
    <message>
        <source>%1 is the key of “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 是“%2”的按键。要把它移给“%3”吗？</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>移动(&amp;M)</translation>
    </message>
    <message>
        <source>Do you want to give all commands their first keys again?</source>
        <translation>要让所有命令恢复原来的按键吗？</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>The keys could not be written to the settings. They are as shown until the workbench ends.</source>
        <translation>无法把按键写入设置。在程序结束之前按显示的生效。</translation>
    </message>
    <message>
        <source>%1 is a key of the text, for “%2”. Do you want to move it to “%3”?</source>
        <translation>%1 是文本的按键，用于“%2”。要把它移给“%3”吗？</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>Use for Ne&amp;w Scripts</source>
        <translation>用于新脚本(&amp;W)</translation>
    </message>
</context>
<context>
    <name>LineEndWatch</name>
    <message>
        <source>Mixed</source>
        <translation>混合</translation>
    </message>
</context>
<context>
    <name>MacroCommands</name>
    <message>
        <source>Macros (*.znmacro)</source>
        <translation>宏 (*.znmacro)</translation>
    </message>
    <message>
        <source>The macro was not saved to %1. %2</source>
        <translation>宏未能保存到 %1。%2</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>无法读取 %1。%2</translation>
    </message>
    <message>
        <source>%1 is not a macro.</source>
        <translation>%1 不是宏。</translation>
    </message>
    <message>
        <source>%1 is not a macro that can be played: line %2 is no command that is recorded.</source>
        <translation>%1 不是可以播放的宏：第 %2 行不是可录制的命令。</translation>
    </message>
    <message>
        <source>Macro loaded: %1</source>
        <translation>已加载宏:%1</translation>
    </message>
    <message>
        <source>Macro loaded: %1. %2 plays it.</source>
        <translation>已加载宏:%1。按 %2 播放。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>%1 could not be written to the settings; the disk may be full. It holds until the workbench ends.</source>
        <translation>%1未能写入设置；磁盘可能已满。在本程序结束前有效。</translation>
    </message>
    <message>
        <source>There is no “%1”.</source>
        <translation>不存在“%1”。</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>创建(&amp;C)</translation>
    </message>
    <message>
        <source>“%1” cannot be created: %2</source>
        <translation>无法创建“%1”：%2</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>What you chose</source>
        <translation>您的选择</translation>
    </message>
    <message>
        <source>The choice about autosave</source>
        <translation>自动保存的选择</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Open &amp;with Encoding...</source>
        <translation>以指定编码打开(&amp;E)...</translation>
    </message>
    <message>
        <source>Open a&amp;t Caret</source>
        <translation>打开光标处的文件(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>Save A&amp;ll</source>
        <translation>全部保存(&amp;L)</translation>
    </message>
    <message>
        <source>Reloa&amp;d</source>
        <translation>重新加载(&amp;D)</translation>
    </message>
    <message>
        <source>Read Onl&amp;y</source>
        <translation>只读(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)...</translation>
    </message>
    <message>
        <source>Print Pre&amp;view...</source>
        <translation>打印预览(&amp;V)...</translation>
    </message>
    <message>
        <source>Save as PD&amp;F...</source>
        <translation>保存为 PDF(&amp;F)...</translation>
    </message>
    <message>
        <source>Save as &amp;HTML...</source>
        <translation>保存为 HTML(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Reopen Closed Ta&amp;b</source>
        <translation>重新打开已关闭的标签页(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy wit&amp;h Colours</source>
        <translation>带颜色复制(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Function Arguments</source>
        <translation>函数参数</translation>
    </message>
    <message>
        <source>Insert Template...</source>
        <translation>插入模板...</translation>
    </message>
    <message>
        <source>Find with a &amp;Dialog...</source>
        <translation>查找对话框(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>转到行(&amp;G)...</translation>
    </message>
    <message>
        <source>Go to S&amp;ymbol...</source>
        <translation>转到符号(&amp;Y)...</translation>
    </message>
    <message>
        <source>&amp;Stop Search</source>
        <translation>停止搜索(&amp;S)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Line &amp;Ends</source>
        <translation>行尾符(&amp;E)</translation>
    </message>
    <message>
        <source>Wrap &amp;Lines</source>
        <translation>自动换行(&amp;L)</translation>
    </message>
    <message>
        <source>Split &amp;Above and Below</source>
        <translation>上下拆分(&amp;A)</translation>
    </message>
    <message>
        <source>Ot&amp;her Pane</source>
        <translation>另一窗格(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>下一区域(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Expanded Script</source>
        <translation>展开脚本(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Record Macro</source>
        <translation>录制宏(&amp;R)</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>播放宏(&amp;Y)</translation>
    </message>
    <message>
        <source>Repea&amp;t Macro...</source>
        <translation>重复宏(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Save Macro...</source>
        <translation>保存宏(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Load Macro...</source>
        <translation>加载宏(&amp;L)...</translation>
    </message>
    <message>
        <source>Edit Te&amp;mplates</source>
        <translation>编辑模板(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Commands...</source>
        <translation>命令(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>选项(&amp;O)...</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>编辑器和语言首选项(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Autosave...</source>
        <translation>自动保存(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>按键(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>What was open last cannot be read. </source>
        <translation>无法读取上次打开的内容。</translation>
    </message>
    <message>
        <source>It is not kept this time, so that “%1” stays as it is.</source>
        <translation>这次不保存会话，以便“%1”保持原样。</translation>
    </message>
    <message>
        <source>It is in “%1” now.</source>
        <translation>它现在位于“%1”。</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed: no tables, views, procedures, and so on.</source>
        <translation>脚本没有创建可列出的内容：没有表、视图、过程等。</translation>
    </message>
    <message>
        <source>There is no outline for %1. The field with the language in the status bar changes it.</source>
        <translation>%1 没有大纲。状态栏中的语言栏可更改语言。</translation>
    </message>
    <message numerus="yes">
        <source>   %n matches</source>
        <translation>
            <numerusform>   %n 处匹配</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>   %n matches and more</source>
        <translation>
            <numerusform>   %n 处以上匹配</numerusform>
        </translation>
    </message>
    <message>
        <source>Find Results</source>
        <translation>查找结果</translation>
    </message>
    <message>
        <source>Find Results 2</source>
        <translation>查找结果 2</translation>
    </message>
    <message>
        <source>R&amp;eplace with a Dialog...</source>
        <translation>替换对话框(&amp;E)...</translation>
    </message>
    <message>
        <source>Find in F&amp;iles...</source>
        <translation>在文件中查找(&amp;I)...</translation>
    </message>
    <message>
        <source>Ne&amp;xt Result</source>
        <translation>下一个结果(&amp;X)</translation>
    </message>
    <message>
        <source>Previous Resul&amp;t</source>
        <translation>上一个结果(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Go to Script...</source>
        <translation>转到脚本(&amp;G)...</translation>
    </message>
    <message>
        <source>Las&amp;t Used Script</source>
        <translation>上次使用的脚本(&amp;T)</translation>
    </message>
    <message>
        <source>Longest Unused Script</source>
        <translation>最久未使用的脚本</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>搜索(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>停止录制(&amp;R)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>The caret was nowhere else before.</source>
        <translation>光标之前没有到过其他位置。</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>文档缩略图(&amp;D)</translation>
    </message>
    <message>
        <source>Open Fold&amp;er...</source>
        <translation>打开文件夹(&amp;W)...</translation>
    </message>
    <message>
        <source>Split Side b&amp;y Side</source>
        <translation>左右拆分(&amp;Y)</translation>
    </message>
    <message>
        <source>O&amp;utline</source>
        <translation>大纲(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>工具栏(&amp;B)</translation>
    </message>
    <message>
        <source>Complete Word</source>
        <translation>补全单词</translation>
    </message>
    <message>
        <source>&amp;Reset Zoom</source>
        <translation>重置缩放(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Whitespace</source>
        <translation>空白字符(&amp;W)</translation>
    </message>
    <message>
        <source>Previous Pane</source>
        <translation>上一窗格</translation>
    </message>
    <message>
        <source>New &amp;View</source>
        <translation>新建视图(&amp;V)</translation>
    </message>
    <message>
        <source>Next Problem</source>
        <translation>下一个问题</translation>
    </message>
    <message>
        <source>Previous Problem</source>
        <translation>上一个问题</translation>
    </message>
    <message>
        <source>Next Script</source>
        <translation>下一个脚本</translation>
    </message>
    <message>
        <source>Previous Script</source>
        <translation>上一个脚本</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>问题(&amp;P)</translation>
    </message>
    <message>
        <source>E&amp;xpanded Script</source>
        <translation>展开的脚本(&amp;X)</translation>
    </message>
    <message>
        <source>Find Re&amp;sults</source>
        <translation>查找结果(&amp;S)</translation>
    </message>
    <message>
        <source>Find Results &amp;2</source>
        <translation>查找结果 &amp;2</translation>
    </message>
</context>
<context>
    <name>OpenAsDialog</name>
    <message>
        <source>Open with Encoding</source>
        <translation>以指定编码打开</translation>
    </message>
    <message>
        <source>SQL scripts (%1)</source>
        <translation>SQL 脚本 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>自动检测</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>编码(&amp;E)：</translation>
    </message>
</context>
<context>
    <name>OpenGuard</name>
    <message>
        <source>The workbench ended unexpectedly while it was opening “%1”. Open the file again?</source>
        <translation>程序在打开“%1”时意外终止。是否再次打开该文件？</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Insert &amp;blanks for Tab</source>
        <translation>插入空格代替制表符(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation>行号(&amp;L)</translation>
    </message>
    <message>
        <source>F&amp;old margin</source>
        <translation>折叠边栏(&amp;O)</translation>
    </message>
    <message>
        <source>Enter &amp;continues a comment</source>
        <translation>回车时延续注释(&amp;C)</translation>
    </message>
    <message>
        <source>T&amp;yped quotes and brackets surround the selection</source>
        <translation>键入引号和括号时包围选定内容(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Print in colours</source>
        <translation>彩色打印(&amp;P)</translation>
    </message>
    <message>
        <source>Print the &amp;grounds of colours</source>
        <translation>打印背景色(&amp;G)</translation>
    </message>
    <message>
        <source>Print in a font of its o&amp;wn</source>
        <translation>使用单独的打印字体(&amp;W)</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>不缩进</translation>
    </message>
    <message>
        <source>As the line above</source>
        <translation>与上一行相同</translation>
    </message>
    <message>
        <source>By the language</source>
        <translation>按语言</translation>
    </message>
    <message>
        <source>Folders, with ; between them</source>
        <translation>文件夹，以 ; 分隔</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>字体(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>大小(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tab width, in columns</source>
        <translation>制表符宽度 (列)(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>新行缩进(&amp;I)</translation>
    </message>
    <message>
        <source>Folders of i&amp;ncluded files</source>
        <translation>包含文件的文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>P&amp;rint font</source>
        <translation>打印字体(&amp;R)</translation>
    </message>
    <message>
        <source>Print si&amp;ze</source>
        <translation>打印大小(&amp;Z)</translation>
    </message>
    <message>
        <source>UTF-8 with mark</source>
        <translation>UTF-8 (带 BOM)</translation>
    </message>
    <message>
        <source>UTF-16 LE with mark</source>
        <translation>UTF-16 LE (带 BOM)</translation>
    </message>
    <message>
        <source>Of new scripts, and of files that do not tell theirs by a mark or by what stands in them</source>
        <translation>用于新脚本，以及无法从标记或内容得知编码的文件</translation>
    </message>
    <message>
        <source>&amp;Encoding without a mark</source>
        <translation>无标记时的编码(&amp;E)</translation>
    </message>
    <message>
        <source>Close brackets and &amp;quotes</source>
        <translation>自动补全括号和引号(&amp;Q)</translation>
    </message>
    <message>
        <source>Print na&amp;me, page numbers and date</source>
        <translation>打印名称、页码和日期(&amp;M)</translation>
    </message>
    <message>
        <source>None of Unicode: as below</source>
        <translation>非 Unicode：如下</translation>
    </message>
    <message>
        <source>What a file is read as that has no mark and is not UTF-8. One that looks wrong can be opened with another: click its encoding in the status bar.</source>
        <translation>没有标记且不是 UTF-8 的文件按此读取。显示不正常的文件可以用其他编码打开：点击状态栏中的编码。</translation>
    </message>
    <message>
        <source>Files that are no &amp;Unicode</source>
        <translation>非 &amp;Unicode 文件</translation>
    </message>
    <message>
        <source>By the language: as the line above, and a step further in behind {, ) and : alone, which is for languages with braces. With &quot;Close brackets and quotes&quot; what brackets hold is a step further in either way.</source>
        <translation>按语言：与上一行相同，且仅在 {、) 和 : 之后多缩进一级，适用于使用花括号的语言。启用“自动补全括号和引号”时，两种方式下括号内的内容都多缩进一级。</translation>
    </message>
    <message>
        <source>There is no font “%1”.</source>
        <translation>没有字体“%1”。</translation>
    </message>
</context>
<context>
    <name>OutlinePane</name>
    <message>
        <source>Outline</source>
        <translation>大纲</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>名称的一部分</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Outline of the script</source>
        <translation>脚本大纲</translation>
    </message>
</context>
<context>
    <name>PaneTabs</name>
    <message>
        <source>Panes</source>
        <translation>窗格</translation>
    </message>
</context>
<context>
    <name>PathField</name>
    <message>
        <source>Path of the script</source>
        <translation>脚本的路径</translation>
    </message>
</context>
<context>
    <name>ProblemPane</name>
    <message>
        <source>Problems</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Problems of the script</source>
        <translation>脚本中的问题</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
</context>
<context>
    <name>Prompts</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql *.pks *.pkb *.ddl);;All files (*)</source>
        <translation>SQL 脚本 (*.sql *.pks *.pkb *.ddl);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation>“%1”有未保存的更改。</translation>
    </message>
    <message>
        <source>They are lost if you discard them.</source>
        <translation>放弃后更改将丢失。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as &amp;UTF-8</source>
        <translation>保存为 UTF-8(&amp;U)</translation>
    </message>
    <message>
        <source>Save with &amp;Question Marks</source>
        <translation>保存为问号(&amp;Q)</translation>
    </message>
    <message>
        <source>“%1” is there already.</source>
        <translation>“%1”已经存在。</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>覆盖(&amp;O)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Co&amp;mpare...</source>
        <translation>比较(&amp;M)...</translation>
    </message>
</context>
<context>
    <name>ReadLoss</name>
    <message>
        <source>The file itself is as it was, and stays so until it is saved.</source>
        <translation>文件本身保持原样，保存之前不会改变。</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: byte %L2 of the file is a NUL, which no text has.</source>
        <translation>仅显示“%1”的前一部分：文件的第 %L2 个字节是文本中不会出现的 NUL。</translation>
    </message>
    <message>
        <source>File &gt; Open with Encoding reads it in another encoding.</source>
        <translation>用“文件 &gt; 以指定编码打开”可按其他编码读取。</translation>
    </message>
    <message>
        <source>Only the first part of “%1” is shown: what follows is no text in %2, or cannot be read.</source>
        <translation>仅显示“%1”的前一部分：后面的内容不是 %2 文本，或无法读取。</translation>
    </message>
    <message>
        <source>“%1” has bytes that are no %2: %L3, the first in line %L4. They are shown as “%5”.</source>
        <translation>“%1”中有不属于 %2 的字节：%L3 个，第一个在第 %L4 行。它们显示为“%5”。</translation>
    </message>
    <message>
        <source>Only the first part of “%1” could be read. Saving it under its own name loses the rest of the file.</source>
        <translation>只读取了“%1”的开头部分。以原名保存将丢失文件的其余部分。</translation>
    </message>
    <message>
        <source>“%1” was read as %2 and has bytes that are none: %L3. Saving it under its own name puts “%4” in their place for good.</source>
        <translation>“%1”按 %2 读取，但有 %L3 个字节不属于它。以原名保存会使“%4”永久取代它们。</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>There is nothing to undo.</source>
        <translation>没有可撤销的操作。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>没有可重做的操作。</translation>
    </message>
    <message>
        <source>The clipboard holds no text.</source>
        <translation>剪贴板中没有文本。</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>没有需要保存的内容。</translation>
    </message>
    <message>
        <source>The script has no file yet.</source>
        <translation>脚本还没有文件。</translation>
    </message>
    <message>
        <source>There is nothing to find: the find bar is empty.</source>
        <translation>没有要查找的内容：查找栏为空。</translation>
    </message>
    <message>
        <source>No other script is open.</source>
        <translation>没有打开其他脚本。</translation>
    </message>
    <message>
        <source>No tab was closed.</source>
        <translation>没有关闭过标签页。</translation>
    </message>
    <message>
        <source>The script is not split.</source>
        <translation>脚本未拆分。</translation>
    </message>
    <message>
        <source>No script is open.</source>
        <translation>没有打开脚本。</translation>
    </message>
    <message>
        <source>The script is read-only.</source>
        <translation>脚本是只读的。</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>未选定任何内容。</translation>
    </message>
    <message>
        <source>The script has nothing here to do this with.</source>
        <translation>脚本在此处没有可供操作的内容。</translation>
    </message>
    <message>
        <source>Convert Line Ends to</source>
        <translation>将行尾转换为</translation>
    </message>
    <message>
        <source>There was no step back.</source>
        <translation>没有后退过。</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>“%1” is not there any more. It may have been moved, renamed or deleted, or its drive may be away. Remove it from the list of recent files?</source>
        <translation>“%1”已不存在。它可能已被移动、重命名或删除，或其驱动器不可用。是否从最近文件列表中移除？</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;Recent Files</source>
        <translation>最近的文件(&amp;R)</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>还没有文件</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
    <message>
        <source>The list could not be cleared: the settings cannot be written.</source>
        <translation>无法清空列表：设置无法写入。</translation>
    </message>
</context>
<context>
    <name>RecoverableCopy</name>
    <message>
        <source>just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>1 分钟前</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>%n 分钟前</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation>1 小时前</translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n 小时前</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day ago</source>
        <translation>1 天前</translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>%n 天前</numerusform>
        </translation>
    </message>
    <message>
        <source>Not changed since</source>
        <translation>此后未更改</translation>
    </message>
    <message>
        <source>Changed since</source>
        <translation>此后已更改</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Never saved</source>
        <translation>从未保存</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>Decide Later</source>
        <translation>稍后决定</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>稍后决定(&amp;L)</translation>
    </message>
    <message>
        <source>Recover Scripts</source>
        <translation>恢复脚本</translation>
    </message>
    <message>
        <source>The workbench ended unexpectedly. These scripts had changes that were not saved:</source>
        <translation>程序意外终止。以下脚本有未保存的更改：</translation>
    </message>
    <message>
        <source>Scripts that can be recovered</source>
        <translation>可恢复的脚本</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>脚本</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>副本</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>File Is</source>
        <translation>文件状态</translation>
    </message>
    <message>
        <source>What to Do</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>All scripts:</source>
        <translation>所有脚本：</translation>
    </message>
    <message>
        <source>%1 all scripts</source>
        <translation>所有脚本：%1</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>继续(&amp;C)</translation>
    </message>
    <message>
        <source>What to do with %1</source>
        <translation>对 %1 的操作</translation>
    </message>
    <message>
        <source>%1 and its copy are not compared: what is no text, longer than 8 MB or cannot be read is not shown.</source>
        <translation>未比较 %1 与其副本：不显示非文本、超过 8 MB 或无法读取的内容。</translation>
    </message>
    <message>
        <source>The copy of %1:</source>
        <translation>%1 的副本：</translation>
    </message>
    <message>
        <source>%1: lines with - are in the file alone, those with + in the copy alone.</source>
        <translation>%1：带 - 的行仅在文件中，带 + 的行仅在副本中。</translation>
    </message>
    <message>
        <source>%1 and its copy differ in their encoding alone.</source>
        <translation>%1 与其副本仅编码不同。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>ResultsModel</name>
    <message>
        <source>Not searched or not replaced  (%1)</source>
        <translation>未搜索或未替换  (%1)</translation>
    </message>
    <message>
        <source>%1%2: &quot;%3&quot; becomes &quot;%4&quot;</source>
        <translation>%1%2：“%3”变为“%4”</translation>
    </message>
    <message>
        <source>not open: is saved at once, no undo</source>
        <translation>未打开：立即保存，无法撤销</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>open, not saved</source>
        <translation>已打开，未保存</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>已关闭</translation>
    </message>
</context>
<context>
    <name>ResultsPane</name>
    <message>
        <source>no text</source>
        <translation>不是文本</translation>
    </message>
    <message>
        <source>could not be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>a device or a pipe</source>
        <translation>设备或管道</translation>
    </message>
    <message>
        <source>a folder that has been searched already</source>
        <translation>已搜索过的文件夹</translation>
    </message>
    <message>
        <source>the expression went on for too long</source>
        <translation>表达式耗时过长</translation>
    </message>
    <message>
        <source>Re&amp;place...</source>
        <translation>替换(&amp;P)...</translation>
    </message>
    <message>
        <source>Replace &amp;with</source>
        <translation>替换为(&amp;W)</translation>
    </message>
    <message>
        <source>What the matches are to become. Enter shows it for each of them</source>
        <translation>匹配项将变成的内容。按回车逐项显示</translation>
    </message>
    <message>
        <source>Prev&amp;iew</source>
        <translation>预览(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Replace Checked</source>
        <translation>替换选中项(&amp;R)</translation>
    </message>
    <message>
        <source>No search</source>
        <translation>没有搜索</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: %2</source>
        <translation>“%1”：%2</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos;: %Ln matches in %2 of %3 files</source>
        <translation>
            <numerusform>“%1”：%3 个文件中的 %2 个有 %Ln 处匹配</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 not read</source>
        <translation>，未读取 %1 个</translation>
    </message>
    <message>
        <source>, %1 skipped</source>
        <translation>，跳过 %1 个</translation>
    </message>
    <message>
        <source>. The expression went on for too long in some of them</source>
        <translation>。表达式在部分文件中耗时过长</translation>
    </message>
    <message>
        <source>. Stopped</source>
        <translation>。已停止</translation>
    </message>
    <message>
        <source>Searching: %1</source>
        <translation>正在搜索：%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Replacing: %1 of %2 files</source>
        <translation>正在替换：第 %1 个文件，共 %2 个</translation>
    </message>
    <message numerus="yes">
        <source>. %Ln files were left as they are, see the end of the list</source>
        <translation>
            <numerusform>。%Ln 个文件保持原样，见列表末尾</numerusform>
        </translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>停止(&amp;O)</translation>
    </message>
    <message>
        <source>1 file saved</source>
        <translation>1 个文件已保存</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files saved</source>
        <translation>
            <numerusform>%Ln 个文件已保存</numerusform>
        </translation>
    </message>
    <message>
        <source>1 open script changed, not saved</source>
        <translation>1 个打开的脚本已更改，未保存</translation>
    </message>
    <message numerus="yes">
        <source>%Ln open scripts changed, not saved</source>
        <translation>
            <numerusform>%Ln 个打开的脚本已更改，未保存</numerusform>
        </translation>
    </message>
    <message>
        <source>1 match replaced</source>
        <translation>已替换 1 处</translation>
    </message>
    <message numerus="yes">
        <source>%Ln matches replaced</source>
        <translation>
            <numerusform>已替换 %Ln 处</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RichCopy</name>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>SaveAsDialog</name>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql)</source>
        <translation>SQL 脚本 (*.sql)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>编码(&amp;E)：</translation>
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
        <translation>跟随桌面(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>深色(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;High Contrast</source>
        <translation>高对比度(&amp;H)</translation>
    </message>
    <message>
        <source>As on &amp;Paper</source>
        <translation>打印配色(&amp;P)</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>the picture “%1” cannot be written.</source>
        <translation>无法写入图片“%1”。</translation>
    </message>
</context>
<context>
    <name>ScriptChecker</name>
    <message>
        <source>Scripts in %1 are not checked: there is no parser for it here.</source>
        <translation>不检查 %1 脚本：此处没有相应的解析器。</translation>
    </message>
    <message>
        <source>The script is too long to be checked.</source>
        <translation>脚本过长，无法检查。</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>未发现问题。</translation>
    </message>
    <message>
        <source>Scripts in SQL are not checked. Choose PostgreSQL or SQLite in the Language menu to have this one checked.</source>
        <translation>不检查 SQL 脚本。要检查此脚本，请在“语言”菜单中选择 PostgreSQL 或 SQLite。</translation>
    </message>
</context>
<context>
    <name>ScriptCommands</name>
    <message>
        <source>This language has no file of templates.</source>
        <translation>此语言没有模板文件。</translation>
    </message>
    <message>
        <source>No file name and no address stands at the caret.</source>
        <translation>光标处没有文件名或地址。</translation>
    </message>
    <message>
        <source>Nothing opens %1.</source>
        <translation>没有程序可以打开 %1。</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>没有文件 %1。</translation>
    </message>
    <message>
        <source>Open &amp;Document</source>
        <translation>打开文档(&amp;D)</translation>
    </message>
    <message>
        <source>“%1” was written: 1 page</source>
        <translation>已写入“%1”：1 页</translation>
    </message>
    <message>
        <source>“%1” was written: %L2 pages</source>
        <translation>已写入“%1”：%L2 页</translation>
    </message>
    <message>
        <source>“%1” was written</source>
        <translation>已写入“%1”</translation>
    </message>
</context>
<context>
    <name>ScriptDoc</name>
    <message>
        <source>“%1” has a name that is not UTF-8, which cannot be opened. Rename the file.</source>
        <translation>“%1”的名称不是 UTF-8，无法打开。请重命名该文件。</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>“%1”不存在。</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a script.</source>
        <translation>“%1”是文件夹，不是脚本。</translation>
    </message>
    <message>
        <source>“%1” cannot be read. Check that you may read it.</source>
        <translation>无法读取“%1”。请检查您是否有读取权限。</translation>
    </message>
    <message>
        <source>The disk may be full.</source>
        <translation>磁盘可能已满。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>文件夹不存在。</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <translation>有同名的文件夹。</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>您没有在该处写入的权限。</translation>
    </message>
    <message>
        <source>“%1” could not be saved. %2 The text is still here: use Save As to put it in another place.</source>
        <translation>无法保存“%1”。%2文本仍在此处：请用“另存为”保存到其他位置。</translation>
    </message>
    <message>
        <source>The copy of “%1” cannot be read, or another window of the workbench has it by now. It is still there: “%2”.</source>
        <translation>“%1”的副本无法读取，或已被本程序的另一窗口占用。它仍在：“%2”。</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>是否重新加载“%1”？</translation>
    </message>
    <message>
        <source>“%1” is open in another tab. Close it first, or choose another name.</source>
        <translation>“%1”已在另一标签页中打开。请先关闭它，或选择其他名称。</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>覆盖(&amp;O)</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench since it was read. Saving it replaces those changes.</source>
        <translation>“%1”自读取以来已在本程序之外被更改。保存将覆盖这些更改。</translation>
    </message>
    <message>
        <source>Your changes that are not saved are lost.</source>
        <translation>未保存的更改将丢失。</translation>
    </message>
    <message>
        <source>%1: %2, as other files of this folder</source>
        <translation>%1：%2，与此文件夹中的其他文件相同</translation>
    </message>
    <message>
        <source>“%1” has been changed outside of the workbench. If it is read again, your changes that are not saved are lost.</source>
        <translation>“%1”已在程序之外被更改。重新读取会丢失您未保存的更改。</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>重新读取(&amp;R)</translation>
    </message>
    <message>
        <source>No copy of “%1” could be written in case of a crash: the disk may be full. Save it.</source>
        <translation>无法写入“%1”的崩溃备份:磁盘可能已满。请保存。</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. Save As makes a copy that you can change.</source>
        <translation>“%1”是只读的，没有任何更改。“另存为”会创建一个可以更改的副本。</translation>
    </message>
    <message>
        <source>“%1” is read-only, and nothing was changed. File &gt; Read Only ends that.</source>
        <translation>“%1”是只读的，没有任何更改。“文件 &gt; 只读”可取消只读。</translation>
    </message>
</context>
<context>
    <name>ScriptFrame</name>
    <message>
        <source> (Read Only)</source>
        <translation> (只读)</translation>
    </message>
</context>
<context>
    <name>ScriptPrinting</name>
    <message>
        <source>Finding page %1</source>
        <translation>正在查找第 %1 页</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>第 %1 页</translation>
    </message>
</context>
<context>
    <name>ScriptTabs</name>
    <message>
        <source>List of tabs</source>
        <translation>标签页列表</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1，已修改</translation>
    </message>
</context>
<context>
    <name>ScriptView</name>
    <message>
        <source>Script</source>
        <translation>脚本</translation>
    </message>
    <message>
        <source>Line %L1 is very long: behind column %L2 its text is drawn coarsely</source>
        <translation>第 %L1 行很长：第 %L2 列之后的文本以简略方式绘制</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>行 %1，列 %2</translation>
    </message>
    <message>
        <source> (%1 selected)</source>
        <translation> (已选 %1)</translation>
    </message>
</context>
<context>
    <name>StatusIndicators</name>
    <message>
        <source>A macro is recorded; stop it</source>
        <translation>正在录制宏；点击停止</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Whether the script can be changed</source>
        <translation>脚本是否可以更改</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>已修改</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Go to a line</source>
        <translation>转到某行</translation>
    </message>
    <message>
        <source>The database in force at the caret</source>
        <translation>光标处生效的数据库</translation>
    </message>
    <message>
        <source>The language of the script</source>
        <translation>脚本的语言</translation>
    </message>
    <message>
        <source>Open with another encoding</source>
        <translation>以其他编码打开</translation>
    </message>
    <message>
        <source>Convert line ends</source>
        <translation>转换行尾</translation>
    </message>
    <message>
        <source>Indentation</source>
        <translation>缩进</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Whether typing replaces</source>
        <translation>键入是否覆盖</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>行 %1，列 %2</translation>
    </message>
    <message>
        <source>Spaces: %1</source>
        <translation>空格：%1</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>改写</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>问题：%1</translation>
    </message>
    <message>
        <source>What is wrong with the script</source>
        <translation>脚本中的问题</translation>
    </message>
</context>
<context>
    <name>SymbolModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
</context>
<context>
    <name>SymbolPicker</name>
    <message>
        <source>Go to Symbol</source>
        <translation>转到符号</translation>
    </message>
    <message>
        <source>Type part of a name</source>
        <translation>输入名称的一部分</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Symbols of the script</source>
        <translation>脚本的符号</translation>
    </message>
    <message>
        <source>The script creates nothing that could be listed</source>
        <translation>脚本没有创建可以列出的内容</translation>
    </message>
    <message>
        <source>Nothing that the script creates has this name</source>
        <translation>脚本创建的内容中没有此名称</translation>
    </message>
</context>
<context>
    <name>Symbols</name>
    <message>
        <source>Table</source>
        <translation>表</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>过程</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>触发器</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>索引</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>序列</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>包</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>架构</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步骤</translation>
    </message>
</context>
<context>
    <name>TabList</name>
    <message>
        <source>Scripts</source>
        <translation>脚本</translation>
    </message>
    <message>
        <source>Type part of a name</source>
        <translation>输入名称的一部分</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>脚本</translation>
    </message>
    <message>
        <source>%1, in front</source>
        <translation>%1，当前</translation>
    </message>
    <message>
        <source>No script has this in its name</source>
        <translation>没有名称包含此内容的脚本</translation>
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
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close &amp;Others</source>
        <translation>关闭其他(&amp;O)</translation>
    </message>
    <message>
        <source>Close to the &amp;Right</source>
        <translation>关闭右侧(&amp;R)</translation>
    </message>
    <message>
        <source>Close &amp;All</source>
        <translation>全部关闭(&amp;A)</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>打开所在文件夹(&amp;F)</translation>
    </message>
</context>
<context>
    <name>TabWalk</name>
    <message>
        <source>Scripts by last use</source>
        <translation>按最近使用排列的脚本</translation>
    </message>
</context>
<context>
    <name>TemplateForm</name>
    <message>
        <source>Insert Template</source>
        <translation>插入模板</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>插入(&amp;I)</translation>
    </message>
</context>
<context>
    <name>TemplateList</name>
    <message>
        <source>Templates</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Type the name of a template, or first letters of it</source>
        <translation>输入模板名称或其首字母</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Text of the template</source>
        <translation>模板内容</translation>
    </message>
</context>
<context>
    <name>TextKeys</name>
    <message>
        <source>Word Left</source>
        <translation>左移一词</translation>
    </message>
    <message>
        <source>Word Right</source>
        <translation>右移一词</translation>
    </message>
    <message>
        <source>Select Word Left</source>
        <translation>向左选择一词</translation>
    </message>
    <message>
        <source>Select Word Right</source>
        <translation>向右选择一词</translation>
    </message>
    <message>
        <source>Start of the Text</source>
        <translation>文本开头</translation>
    </message>
    <message>
        <source>End of the Text</source>
        <translation>文本末尾</translation>
    </message>
    <message>
        <source>Select to the Start of the Text</source>
        <translation>选择到文本开头</translation>
    </message>
    <message>
        <source>Select to the End of the Text</source>
        <translation>选择到文本末尾</translation>
    </message>
    <message>
        <source>Scroll Up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scroll Down</source>
        <translation>向下滚动</translation>
    </message>
    <message>
        <source>Delete Word Left</source>
        <translation>删除左侧单词</translation>
    </message>
    <message>
        <source>Delete Word Right</source>
        <translation>删除右侧单词</translation>
    </message>
    <message>
        <source>Delete to the Start of the Line</source>
        <translation>删除到行首</translation>
    </message>
    <message>
        <source>Delete to the End of the Line</source>
        <translation>删除到行尾</translation>
    </message>
    <message>
        <source>Select Columns</source>
        <translation>选择列</translation>
    </message>
    <message>
        <source>Delete Line</source>
        <translation>删除行</translation>
    </message>
    <message>
        <source>Swap with the Line Above</source>
        <translation>与上一行交换</translation>
    </message>
    <message>
        <source>Paragraph Up</source>
        <translation>上移一段</translation>
    </message>
    <message>
        <source>Select Paragraph Up</source>
        <translation>向上选择一段</translation>
    </message>
    <message>
        <source>Start of the Row</source>
        <translation>显示行开头</translation>
    </message>
    <message>
        <source>End of the Row</source>
        <translation>显示行末尾</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
</context>
<context>
    <name>UnsavedDialog</name>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>These scripts have changes that are not saved. Those without a tick lose them.</source>
        <translation>这些脚本有未保存的更改。未勾选的脚本将丢失更改。</translation>
    </message>
    <message>
        <source>Scripts to save</source>
        <translation>要保存的脚本</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard All</source>
        <translation>全部放弃(&amp;D)</translation>
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
        <translation>%1：%2 处更改</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Script</source>
        <translation>脚本</translation>
    </message>
    <message>
        <source>SQL scripts (*.sql)</source>
        <translation>SQL 脚本 (*.sql)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>%1 was read anew: it is %2</source>
        <translation>已重新读取 %1：编码为 %2</translation>
    </message>
</context>
<context>
    <name>WorkbenchPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>The changes are in force for now, but these files could not be written:

%1

Apply again once they can be, or Cancel to give the changes up.</source>
        <translation>更改目前有效，但无法写入以下文件：

%1

请在可以写入时再次应用，或取消以放弃更改。</translation>
    </message>
    <message>
        <source>The tree has a page for what all languages share, and pages for each language. Type over the tree to find one.

Apply writes the changes and shows them in the open scripts; Cancel does not take back what was applied.

A colour that is &quot;Default&quot; follows the scheme of the View menu. What is set here for a language comes before the Options of all editors.</source>
        <translation>树中有一页是所有语言共用的，每种语言各有若干页。在树上方键入即可查找。

“应用”写入更改并显示在打开的脚本中；“取消”不会撤回已应用的内容。

颜色为“默认”时跟随“视图”菜单的配色。此处为某种语言所作的设置优先于适用于所有编辑器的选项。</translation>
    </message>
</context>
<context>
    <name>WorkbenchPrinter</name>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The editing engine cannot be loaded: libZNBaseEditor.so has to stand beside libZNCoreEditor.so, or in the folder ZNCoreEditor there.</source>
        <translation>无法加载编辑引擎：libZNBaseEditor.so 必须位于 libZNCoreEditor.so 旁边，或其所在位置的 ZNCoreEditor 文件夹中。</translation>
    </message>
    <message>
        <source>The workbench that runs does not answer. This is a window beside it.</source>
        <translation>已运行的程序没有响应。这是另外的一个窗口。</translation>
    </message>
</context>
</TS>
