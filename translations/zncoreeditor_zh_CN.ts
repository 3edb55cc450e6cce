<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CColorButton</name>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>More Colors...</source>
        <translation>更多颜色...</translation>
    </message>
</context>
<context>
    <name>CDocTemplate</name>
    <message>
        <source>Untitled</source>
        <translation>无标题</translation>
    </message>
</context>
<context>
    <name>CFileException</name>
    <message>
        <source>%1 was not found.</source>
        <translation>未找到 %1。</translation>
    </message>
    <message>
        <source>%1 is not a valid path.</source>
        <translation>%1 不是有效的路径。</translation>
    </message>
    <message>
        <source>%1 could not be opened: too many files are open.</source>
        <translation>无法打开 %1：打开的文件过多。</translation>
    </message>
    <message>
        <source>%1 cannot be accessed.</source>
        <translation>无法访问 %1。</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 正被另一个程序使用。</translation>
    </message>
    <message>
        <source>The disk is full: %1.</source>
        <translation>磁盘已满：%1。</translation>
    </message>
    <message>
        <source>An error occurred while accessing %1.</source>
        <translation>访问 %1 时出错。</translation>
    </message>
</context>
<context>
    <name>CWinApp</name>
    <message>
        <source>%1 could not be opened.</source>
        <translation>无法打开 %1。</translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation>无法保存 %1。</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>是否保存对 %1 的更改？</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorControlEx</name>
    <message>
        <source>Scripts (*.sql);;DDL Files (*.ddl);;Queries (*.qry);;Text Files (*.txt);;All Files (*)</source>
        <translation>脚本 (*.sql);;DDL 文件 (*.ddl);;查询 (*.qry);;文本文件 (*.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Hide LineNumbers</source>
        <translation>隐藏行号</translation>
    </message>
    <message>
        <source>Show LineNumbers</source>
        <translation>显示行号</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>找不到字符串“%1”。</translation>
    </message>
    <message>
        <source>Search has finished searching the whole document</source>
        <translation>已搜索完整个文档</translation>
    </message>
    <message>
        <source>Could not save as PDF</source>
        <translation>无法保存为 PDF</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorDoc</name>
    <message>
        <source>&apos;%1&apos;
File has been deleted outside of this application!
Do you want to close this Document?</source>
        <translation>“%1”
该文件已在本程序之外被删除！
是否关闭此文档？</translation>
    </message>
    <message>
        <source>&apos;%1&apos;
File has been modified outside of this application!
Do you want to reload it?</source>
        <translation>“%1”
该文件已在本程序之外被修改！
是否重新加载？</translation>
    </message>
    <message>
        <source>Do you want to reload &apos;%1&apos; ?</source>
        <translation>是否重新加载“%1”？</translation>
    </message>
    <message>
        <source>Do you want to set the file &apos;%1&apos; to read only too?</source>
        <translation>是否将文件“%1”也设为只读？</translation>
    </message>
    <message>
        <source> (Read Only)</source>
        <translation> (只读)</translation>
    </message>
</context>
<context>
    <name>CZNCoreEditorView</name>
    <message>
        <source>Incremental search failed: %1|</source>
        <translation>增量搜索失败：%1|</translation>
    </message>
    <message>
        <source>Incremental search: %1|</source>
        <translation>增量搜索：%1|</translation>
    </message>
    <message>
        <source>Incremental search reverse: %1|</source>
        <translation>反向增量搜索：%1|</translation>
    </message>
    <message>
        <source>Enter Input Param</source>
        <translation>输入参数</translation>
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
        <translation>未知</translation>
    </message>
    <message>
        <source>Ln %1, Col %2</source>
        <translation>行 %1，列 %2</translation>
    </message>
    <message>
        <source>Enter no of times to repeat</source>
        <translation>输入重复次数</translation>
    </message>
    <message>
        <source>Repeat Macro</source>
        <translation>重复宏</translation>
    </message>
    <message>
        <source>Stop Record	Ctrl+Shift+R</source>
        <translation>停止录制	Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Record Macro	Ctrl+Shift+R</source>
        <translation>录制宏	Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>找不到字符串“%1”。</translation>
    </message>
    <message>
        <source>Passed the end of the document</source>
        <translation>已越过文档末尾</translation>
    </message>
    <message>
        <source>Passed the start of the document</source>
        <translation>已越过文档开头</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>隐藏%1</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>显示%1</translation>
    </message>
    <message>
        <source>LineNumbers</source>
        <translation>行号</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>书签边栏</translation>
    </message>
    <message>
        <source>Fold Margin</source>
        <translation>折叠边栏</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>空白字符</translation>
    </message>
    <message>
        <source>EOL</source>
        <translation>行尾符</translation>
    </message>
    <message>
        <source>Repeating the macro</source>
        <translation>正在重复执行宏</translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
</context>
<context>
    <name>ColorPref</name>
    <message>
        <source>St&amp;yles</source>
        <translation>样式(&amp;Y)</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Foreground Color</source>
        <translation>前景色</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Reset All Colors</source>
        <translation>重置所有颜色</translation>
    </message>
    <message>
        <source>Sample Editor Area</source>
        <translation>编辑器示例</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>示例文本</translation>
    </message>
    <message>
        <source>Clearing color changes</source>
        <translation>清除颜色更改</translation>
    </message>
    <message>
        <source>All of your color settings will be lost ! Are you sure ?</source>
        <translation>您的所有颜色设置都将丢失！确定继续吗？</translation>
    </message>
</context>
<context>
    <name>ContextMenu</name>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>复制(&amp;C)	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Select All	Ctrl+A</source>
        <translation>全选(&amp;S)	Ctrl+A</translation>
    </message>
    <message>
        <source>Match To&amp;ken	Ctrl+]</source>
        <translation>匹配的括号(&amp;K)	Ctrl+]</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>行号</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>查找(&amp;F)...</translation>
    </message>
    <message>
        <source>Repeat Last Find</source>
        <translation>重复上次查找</translation>
    </message>
    <message>
        <source>&amp;Undo	Ctrl+Z</source>
        <translation>撤销(&amp;U)	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation>重做(&amp;R)	Ctrl+Y</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>剪切(&amp;T)	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>粘贴(&amp;P)	Ctrl+V</translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation>删除(&amp;D)	Del</translation>
    </message>
    <message>
        <source>Insert File...</source>
        <translation>插入文件...</translation>
    </message>
    <message>
        <source>Line Endings</source>
        <translation>行尾</translation>
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
        <translation>注释(&amp;M)</translation>
    </message>
    <message>
        <source>U&amp;ndo Comment Out</source>
        <translation>取消注释(&amp;N)</translation>
    </message>
    <message>
        <source>Upper C&amp;ase</source>
        <translation>大写(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>小写(&amp;L)</translation>
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
        <source>R&amp;eplace...</source>
        <translation>替换(&amp;E)...</translation>
    </message>
</context>
<context>
    <name>DocumentMap</name>
    <message>
        <source>Document map</source>
        <translation>文档缩略图</translation>
    </message>
</context>
<context>
    <name>EditListBox</name>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
</context>
<context>
    <name>EditorPrefsDialog</name>
    <message>
        <source>Find a language or a page</source>
        <translation>查找语言或页面</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>设置(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Colors and Fonts</source>
        <translation>颜色和字体</translation>
    </message>
    <message>
        <source>The changes are in force. Cancel does not take them back.</source>
        <translation>更改已生效。“取消”不会撤回这些更改。</translation>
    </message>
    <message>
        <source>Editor and Language Preferences</source>
        <translation>编辑器和语言首选项</translation>
    </message>
    <message>
        <source>No page has this word.</source>
        <translation>没有包含此词的页面。</translation>
    </message>
</context>
<context>
    <name>EngineWindow</name>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>文本编辑器</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>正在撤销</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>正在重做</translation>
    </message>
</context>
<context>
    <name>ExpressionFault</name>
    <message>
        <source>The expression is not complete.</source>
        <translation>表达式不完整。</translation>
    </message>
    <message>
        <source>The expression cannot be read from character %1 on.</source>
        <translation>从第 %1 个字符起无法解析表达式。</translation>
    </message>
    <message>
        <source>The expression cannot be used.</source>
        <translation>无法使用该表达式。</translation>
    </message>
</context>
<context>
    <name>FileEditCtrl</name>
    <message>
        <source>Browse for File</source>
        <translation>浏览文件</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Browse for a folder</source>
        <translation>浏览文件夹</translation>
    </message>
    <message>
        <source>Browse for a file</source>
        <translation>浏览文件</translation>
    </message>
    <message>
        <source>Enter an existing file.</source>
        <translation>请输入一个存在的文件。</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 不存在。</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 不是文件夹。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>浏览文件夹</translation>
    </message>
</context>
<context>
    <name>FileResult</name>
    <message>
        <source>The editing engine could not be loaded.</source>
        <translation>无法加载编辑引擎。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>This is a folder or a device, not a file with a text.</source>
        <translation>这是文件夹或设备，不是文本文件。</translation>
    </message>
    <message>
        <source>The file cannot be read. Check that you may read it.</source>
        <translation>无法读取文件。请检查您是否有读取权限。</translation>
    </message>
    <message>
        <source>The file has more than 2 GB, which is more than can be edited.</source>
        <translation>文件超过 2 GB，无法编辑。</translation>
    </message>
    <message>
        <source>Only the first part of the file could be read.</source>
        <translation>只读取了文件的开头部分。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>文件夹不存在。</translation>
    </message>
    <message>
        <source>You may not write there.</source>
        <translation>您没有在该处写入的权限。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message>
        <source>The encoding cannot hold all of the text.</source>
        <translation>该编码无法表示全部文本。</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>无法写入文件。</translation>
    </message>
    <message>
        <source>No file was named. Choose one first.</source>
        <translation>未指定文件。请先选择一个文件。</translation>
    </message>
    <message>
        <source>The program used the editor outside of its GUI thread.</source>
        <translation>程序在 GUI 线程之外使用了编辑器。</translation>
    </message>
</context>
<context>
    <name>FindDialogs</name>
    <message>
        <source>Insert into &quot;%1&quot;</source>
        <translation>插入到“%1”</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>插入表达式元素</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>查找内容(&amp;W)</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>要查找的文本</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>全字匹配(&amp;M)</translation>
    </message>
    <message>
        <source>Matc&amp;h case</source>
        <translation>区分大小写(&amp;H)</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>正则表达式(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Wrap around search</source>
        <translation>循环查找(&amp;O)</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>向上(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>向下(&amp;D)</translation>
    </message>
    <message>
        <source>Could not find the string &apos;%1&apos;.</source>
        <translation>找不到字符串“%1”。</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message>
        <source>Bookmark &amp;All</source>
        <translation>全部加书签(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>查找和替换</translation>
    </message>
    <message>
        <source>Re&amp;place with</source>
        <translation>替换为(&amp;P)</translation>
    </message>
    <message>
        <source>Text to put in the place of a match</source>
        <translation>用来替换匹配项的文本</translation>
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
        <source>In &amp;Selection</source>
        <translation>在选定内容中(&amp;S)</translation>
    </message>
    <message>
        <source>Enter find string</source>
        <translation>请输入要查找的字符串</translation>
    </message>
    <message>
        <source>Replaced %1 occurrences of &apos;%2&apos;</source>
        <translation>已替换 %1 处“%2”</translation>
    </message>
</context>
<context>
    <name>FindInFiles</name>
    <message>
        <source>Find In Files</source>
        <translation>在文件中查找</translation>
    </message>
    <message>
        <source>Find &amp;what</source>
        <translation>查找内容(&amp;W)</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>要查找的文本</translation>
    </message>
    <message>
        <source>Insert into &quot;Find what&quot;</source>
        <translation>插入到“查找内容”</translation>
    </message>
    <message>
        <source>Insert part of an expression</source>
        <translation>插入表达式元素</translation>
    </message>
    <message>
        <source>In files/file t&amp;ypes</source>
        <translation>在文件/文件类型中(&amp;Y)</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Patterns of names, as *.sql;*.txt</source>
        <translation>文件名模式，如 *.sql;*.txt</translation>
    </message>
    <message>
        <source>In f&amp;older</source>
        <translation>在文件夹中(&amp;O)</translation>
    </message>
    <message>
        <source>Folder whose files are searched</source>
        <translation>要搜索其中文件的文件夹</translation>
    </message>
    <message>
        <source>In all open f&amp;iles</source>
        <translation>在所有打开的文件中(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Match whole word only</source>
        <translation>全字匹配(&amp;M)</translation>
    </message>
    <message>
        <source>M&amp;atch case</source>
        <translation>区分大小写(&amp;A)</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>正则表达式(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Look in subfolders</source>
        <translation>包括子文件夹(&amp;L)</translation>
    </message>
    <message>
        <source>Output to pane &amp;2</source>
        <translation>输出到窗格 &amp;2</translation>
    </message>
    <message>
        <source>&amp;Just output matching count</source>
        <translation>仅显示匹配数(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &gt;&gt;</source>
        <translation>高级(&amp;V) &gt;&gt;</translation>
    </message>
    <message>
        <source>Look in additional folders:</source>
        <translation>还要在这些文件夹中查找：</translation>
    </message>
    <message>
        <source>Browse for Folder</source>
        <translation>浏览文件夹</translation>
    </message>
    <message>
        <source>A&amp;dd Folder</source>
        <translation>添加文件夹(&amp;D)</translation>
    </message>
    <message>
        <source>Ad&amp;vanced &lt;&lt;</source>
        <translation>高级(&amp;V) &lt;&lt;</translation>
    </message>
    <message>
        <source>Enter Type!</source>
        <translation>请输入类型！</translation>
    </message>
    <message>
        <source>Enter Path!</source>
        <translation>请输入路径！</translation>
    </message>
    <message>
        <source>Path &apos;%1&apos; does not exists</source>
        <translation>路径“%1”不存在</translation>
    </message>
    <message>
        <source>Enter Find String!</source>
        <translation>请输入要查找的字符串！</translation>
    </message>
</context>
<context>
    <name>FontPref</name>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>%1, list</source>
        <translation>%1列表</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>下划线</translation>
    </message>
    <message>
        <source>Apply to all Styles</source>
        <translation>应用到所有样式</translation>
    </message>
    <message>
        <source>Sample Text Area</source>
        <translation>示例文本区</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>示例文本</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>All styles have been set to the currrent font selection.</source>
        <translation>所有样式均已设为当前所选字体。</translation>
    </message>
</context>
<context>
    <name>Goto</name>
    <message>
        <source>Goto</source>
        <translation>转到</translation>
    </message>
    <message>
        <source>Goto Line :</source>
        <translation>转到行：</translation>
    </message>
    <message>
        <source>Goto Line</source>
        <translation>转到行</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Hands</name>
    <message>
        <source>C&amp;omments</source>
        <translation>注释(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Toggle Comment</source>
        <translation>切换注释(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>行(&amp;L)</translation>
    </message>
    <message>
        <source>Move Lines &amp;Up</source>
        <translation>上移行(&amp;U)</translation>
    </message>
    <message>
        <source>Move Lines Do&amp;wn</source>
        <translation>下移行(&amp;W)</translation>
    </message>
    <message>
        <source>Duplicate Line or Selection</source>
        <translation>复制行或选定内容</translation>
    </message>
    <message>
        <source>&amp;Join Lines</source>
        <translation>合并行(&amp;J)</translation>
    </message>
    <message>
        <source>Delete Li&amp;nes</source>
        <translation>删除行(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>选择(&amp;S)</translation>
    </message>
    <message>
        <source>Li&amp;nes, One More Each Time</source>
        <translation>行 (每次多选一行)(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Grow</source>
        <translation>扩大(&amp;G)</translation>
    </message>
    <message>
        <source>S&amp;hrink</source>
        <translation>缩小(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Statement</source>
        <translation>语句(&amp;S)</translation>
    </message>
    <message>
        <source>By &amp;Parentheses</source>
        <translation>用圆括号(&amp;P)</translation>
    </message>
    <message>
        <source>By &amp;Quotes</source>
        <translation>用单引号(&amp;Q)</translation>
    </message>
    <message>
        <source>By &amp;Double Quotes</source>
        <translation>用双引号(&amp;D)</translation>
    </message>
    <message>
        <source>By &amp;Brackets</source>
        <translation>用方括号(&amp;B)</translation>
    </message>
    <message>
        <source>By B&amp;races</source>
        <translation>用花括号(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Indentation</source>
        <translation>缩进(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Paste as Indented Here</source>
        <translation>按此处缩进粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next Statement</source>
        <translation>下一条语句(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Statement</source>
        <translation>上一条语句(&amp;P)</translation>
    </message>
    <message>
        <source>Next &amp;Batch</source>
        <translation>下一个批(&amp;B)</translation>
    </message>
    <message>
        <source>Previous B&amp;atch</source>
        <translation>上一个批(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Fold</source>
        <translation>折叠(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Unfold</source>
        <translation>展开(&amp;U)</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>全部折叠(&amp;A)</translation>
    </message>
    <message>
        <source>U&amp;nfold All</source>
        <translation>全部展开(&amp;N)</translation>
    </message>
    <message>
        <source>To Level &amp;1</source>
        <translation>到第 &amp;1 级</translation>
    </message>
    <message>
        <source>To Level &amp;2</source>
        <translation>到第 &amp;2 级</translation>
    </message>
    <message>
        <source>To Level &amp;3</source>
        <translation>到第 &amp;3 级</translation>
    </message>
    <message>
        <source>&amp;Add Next Occurrence</source>
        <translation>添加下一处(&amp;A)</translation>
    </message>
    <message>
        <source>All &amp;Occurrences</source>
        <translation>全部出现之处(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Matching Bracket</source>
        <translation>匹配的括号(&amp;M)</translation>
    </message>
    <message>
        <source>Surrou&amp;nd</source>
        <translation>包围(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Folds</source>
        <translation>折叠(&amp;F)</translation>
    </message>
</context>
<context>
    <name>InputBox</name>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source> Cannot be empty</source>
        <translation> 不能为空</translation>
    </message>
</context>
<context>
    <name>KeywordPref</name>
    <message>
        <source>Keyword Type</source>
        <translation>关键字类型</translation>
    </message>
    <message>
        <source>Keyword List</source>
        <translation>关键字列表</translation>
    </message>
    <message>
        <source>A last word of one letter is not kept, unless a blank follows it.</source>
        <translation>末尾的单字母单词后若无空格，则不会保留。</translation>
    </message>
    <message>
        <source>Words with blanks or new lines between them.</source>
        <translation>以空格或换行分隔的单词。</translation>
    </message>
</context>
<context>
    <name>Leftovers</name>
    <message>
        <source>This defines nothing: the name of a variable begins with &amp;&amp;.</source>
        <translation>此处没有定义任何内容：变量名以 &amp;&amp; 开头。</translation>
    </message>
    <message>
        <source>This is not of the form %1 &amp;&amp;NAME VALUE, and nothing below is replaced.</source>
        <translation>此处不符合 %1 &amp;&amp;名称 值 的格式，以下内容不再替换。</translation>
    </message>
    <message>
        <source>%1 is not defined: its value needs %2, which has none.</source>
        <translation>未定义 %1：其值需要 %2，而后者没有值。</translation>
    </message>
    <message>
        <source>%1 is not defined: in its value nothing may follow a variable.</source>
        <translation>未定义 %1：其值中变量之后不能再有内容。</translation>
    </message>
    <message>
        <source>%1 is used above its definition, which then does not count.</source>
        <translation>%1 在定义之前已被使用，因此该定义无效。</translation>
    </message>
    <message>
        <source>Nothing defines %1.</source>
        <translation>没有任何地方定义 %1。</translation>
    </message>
</context>
<context>
    <name>LossCheck</name>
    <message>
        <source>“%1” has characters that %2 does not have. The first is %3 in line %4, column %5. In the file they would become question marks. UTF-8 keeps every character.</source>
        <translation>“%1”中有 %2 没有的字符。第一个是 %3，位于第 %4 行第 %5 列。这些字符在文件中会变成问号。UTF-8 可保留所有字符。</translation>
    </message>
</context>
<context>
    <name>MainColorFontPref</name>
    <message>
        <source>Caret Color</source>
        <translation>光标颜色</translation>
    </message>
    <message>
        <source>Use Selected Text Foreground Color</source>
        <translation>使用选定文本前景色</translation>
    </message>
    <message>
        <source>Use Selected Text Background Color</source>
        <translation>使用选定文本背景色</translation>
    </message>
    <message>
        <source>Enable Highlight Current &amp;Line</source>
        <translation>突出显示当前行(&amp;L)</translation>
    </message>
    <message>
        <source>Enable Right Edge Warning</source>
        <translation>显示右边界警告</translation>
    </message>
    <message>
        <source>In All Languages</source>
        <translation>适用于所有语言</translation>
    </message>
    <message>
        <source>Right Edge Position</source>
        <translation>右边界位置</translation>
    </message>
</context>
<context>
    <name>NamedColors</name>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>棕色</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <translation>深橄榄绿</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <translation>深绿</translation>
    </message>
    <message>
        <source>Dark Teal</source>
        <translation>深青</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>深蓝</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>靛蓝</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>深灰</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>深红</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>深黄</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Blue-grey</source>
        <translation>蓝灰</translation>
    </message>
    <message>
        <source>Grey - 40</source>
        <translation>灰色 - 40</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>浅橙</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>酸橙绿</translation>
    </message>
    <message>
        <source>Sea green</source>
        <translation>海绿</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>水绿</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>浅蓝</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫罗兰</translation>
    </message>
    <message>
        <source>Grey - 50</source>
        <translation>灰色 - 50</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>粉红</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>金色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>鲜绿</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>绿松石</translation>
    </message>
    <message>
        <source>Skyblue</source>
        <translation>天蓝</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>梅红</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>浅灰</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>玫瑰红</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>茶色</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>浅黄</translation>
    </message>
    <message>
        <source>Pale green </source>
        <translation>淡绿</translation>
    </message>
    <message>
        <source>Pale turquoise</source>
        <translation>淡绿松石</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>淡蓝</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>薰衣草紫</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
</context>
<context>
    <name>PatternMenus</name>
    <message>
        <source>Beginning of line	^</source>
        <translation>行首	^</translation>
    </message>
    <message>
        <source>End of line	$</source>
        <translation>行尾	$</translation>
    </message>
    <message>
        <source>Any character	.</source>
        <translation>任意字符	.</translation>
    </message>
    <message>
        <source>Character class	[]</source>
        <translation>字符类	[]</translation>
    </message>
    <message>
        <source>Negated character class	[^]</source>
        <translation>否定字符类	[^]</translation>
    </message>
    <message>
        <source>Define a group	\(\)</source>
        <translation>定义组	\(\)</translation>
    </message>
    <message>
        <source>Match left OR right expr.	|</source>
        <translation>匹配左侧或右侧表达式	|</translation>
    </message>
    <message>
        <source>Position after match	\c</source>
        <translation>匹配后的位置	\c</translation>
    </message>
    <message>
        <source>Preceding expr. zero or more	*</source>
        <translation>前一表达式零次或多次	*</translation>
    </message>
    <message>
        <source>Preceding expr. 1 or more	+</source>
        <translation>前一表达式一次或多次	+</translation>
    </message>
    <message>
        <source>Preceding expr. 0 or 1	?</source>
        <translation>前一表达式零次或一次	?</translation>
    </message>
    <message>
        <source>Newline character	\n</source>
        <translation>换行符	\n</translation>
    </message>
    <message>
        <source>Carriage return	\r</source>
        <translation>回车符	\r</translation>
    </message>
    <message>
        <source>Tab	\t</source>
        <translation>制表符	\t</translation>
    </message>
    <message>
        <source>Backspace	\b</source>
        <translation>退格符	\b</translation>
    </message>
    <message>
        <source>Form feed	\f</source>
        <translation>换页符	\f</translation>
    </message>
    <message>
        <source>Hexadecimal digit	\x</source>
        <translation>十六进制数字	\x</translation>
    </message>
    <message>
        <source>Escape	\</source>
        <translation>转义	\</translation>
    </message>
    <message>
        <source>Alphanumeric	[a-zA-Z0-9]</source>
        <translation>字母数字	[a-zA-Z0-9]</translation>
    </message>
    <message>
        <source>Subexpression 1	\1</source>
        <translation>子表达式 1	\1</translation>
    </message>
    <message>
        <source>Subexpression 2	\2</source>
        <translation>子表达式 2	\2</translation>
    </message>
    <message>
        <source>Subexpression 3	\3</source>
        <translation>子表达式 3	\3</translation>
    </message>
    <message>
        <source>Subexpression 4	\4</source>
        <translation>子表达式 4	\4</translation>
    </message>
    <message>
        <source>Subexpression 5	\5</source>
        <translation>子表达式 5	\5</translation>
    </message>
    <message>
        <source>Subexpression 6	\6</source>
        <translation>子表达式 6	\6</translation>
    </message>
    <message>
        <source>Subexpression 7	\7</source>
        <translation>子表达式 7	\7</translation>
    </message>
    <message>
        <source>Subexpression 8	\8</source>
        <translation>子表达式 8	\8</translation>
    </message>
    <message>
        <source>Subexpression 9	\9</source>
        <translation>子表达式 9	\9</translation>
    </message>
    <message>
        <source>New Line	\n</source>
        <translation>新行	\n</translation>
    </message>
</context>
<context>
    <name>PrintService</name>
    <message>
        <source>No printer is set up. Do you want to save the pages as a PDF instead?</source>
        <translation>未设置打印机。是否改为将页面保存为 PDF？</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>无法打印文档。</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>%1 – print preview</source>
        <translation>%1 – 打印预览</translation>
    </message>
    <message>
        <source>%1 – print preview, the first %2 pages</source>
        <translation>%1 – 打印预览，前 %2 页</translation>
    </message>
</context>
<context>
    <name>ProposalList</name>
    <message>
        <source>Completion</source>
        <translation>补全</translation>
    </message>
    <message>
        <source>Proposals</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Tab takes the first row</source>
        <translation>Tab 选用第一行</translation>
    </message>
    <message>
        <source>Tab or Enter takes the row</source>
        <translation>Tab 或 Enter 选用此行</translation>
    </message>
</context>
<context>
    <name>ReplaceAll</name>
    <message>
        <source>Replacing</source>
        <translation>正在替换</translation>
    </message>
</context>
<context>
    <name>SettingsMenu</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Settings (*.znsettings)</source>
        <translation>设置 (*.znsettings)</translation>
    </message>
    <message>
        <source>What has not been applied yet is lost.</source>
        <translation>尚未应用的内容将丢失。</translation>
    </message>
    <message>
        <source>&amp;Export All Settings...</source>
        <translation>导出所有设置(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Import All Settings...</source>
        <translation>导入所有设置(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Write the Colours of a Scheme</source>
        <translation>写入配色方案的颜色(&amp;W)</translation>
    </message>
    <message>
        <source>This &amp;Language as Shipped...</source>
        <translation>将此语言恢复为出厂设置(&amp;L)...</translation>
    </message>
    <message>
        <source>E&amp;verything as Shipped...</source>
        <translation>全部恢复为出厂设置(&amp;V)...</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>All settings become those of %1, and the present ones are given up. %2

Import them?</source>
        <translation>所有设置将变为 %1 中的设置，当前设置将被放弃。%2

是否导入？</translation>
    </message>
    <message>
        <source>The settings could not be written; they are as they were.</source>
        <translation>无法写入设置；设置保持不变。</translation>
    </message>
    <message>
        <source>%1 holds no settings of this editor.</source>
        <translation>%1 中没有此编辑器的设置。</translation>
    </message>
    <message>
        <source>All settings of %1 become those that it was shipped with. %2

Reset them?</source>
        <translation>%1 的所有设置将恢复为出厂设置。%2

是否重置？</translation>
    </message>
    <message>
        <source>The settings of all languages become those that they were shipped with. %1

Reset them?</source>
        <translation>所有语言的设置将恢复为出厂设置。%1

是否重置？</translation>
    </message>
    <message>
        <source>The colours of all languages become those of &quot;%1&quot;, and stay so whatever the desktop looks like. %2

Write them?</source>
        <translation>所有语言的颜色将变为“%1”的颜色，并且不随桌面外观改变。%2

是否写入？</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
</context>
<context>
    <name>SettingsPref</name>
    <message>
        <source>Shown Beside and In the Text</source>
        <translation>显示在文本旁边和文本中</translation>
    </message>
    <message>
        <source>Line Numbers</source>
        <translation>行号</translation>
    </message>
    <message>
        <source>Bookmark Margin</source>
        <translation>书签边栏</translation>
    </message>
    <message>
        <source>Outlining</source>
        <translation>大纲</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>自动换行</translation>
    </message>
    <message>
        <source>End Of Line</source>
        <translation>行尾符</translation>
    </message>
    <message>
        <source>Whitespace</source>
        <translation>空白字符</translation>
    </message>
    <message>
        <source>Indentation Guides</source>
        <translation>缩进参考线</translation>
    </message>
    <message>
        <source>Tabs and Indentation</source>
        <translation>制表符和缩进</translation>
    </message>
    <message>
        <source>Tab Size</source>
        <translation>制表符大小</translation>
    </message>
    <message>
        <source>Indent Size</source>
        <translation>缩进大小</translation>
    </message>
    <message>
        <source>Pressing Tab inserts Spaces</source>
        <translation>按 Tab 键插入空格</translation>
    </message>
    <message>
        <source>Tab and Backspace (Un)Indent</source>
        <translation>Tab 和退格键增减缩进</translation>
    </message>
    <message>
        <source>Auto Indentation Style</source>
        <translation>自动缩进方式</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Follow Previous Line</source>
        <translation>跟随上一行</translation>
    </message>
    <message>
        <source>Follow Language Scoping</source>
        <translation>跟随语言结构</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>阅读</translation>
    </message>
    <message>
        <source>Syntax &amp;Highlighting</source>
        <translation>语法高亮(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Brace Matching</source>
        <translation>括号匹配(&amp;B)</translation>
    </message>
    <message>
        <source>Completion</source>
        <translation>补全</translation>
    </message>
    <message>
        <source>&amp;Auto Completion</source>
        <translation>自动补全(&amp;U)</translation>
    </message>
    <message>
        <source>C&amp;ode Completion</source>
        <translation>代码补全(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Tab Key</source>
        <translation>Tab 键(&amp;T)</translation>
    </message>
    <message>
        <source>Space Bar &amp;Key</source>
        <translation>空格键(&amp;K)</translation>
    </message>
    <message>
        <source>When a File is Saved</source>
        <translation>保存文件时</translation>
    </message>
    <message>
        <source>Ensure Final New Line</source>
        <translation>确保末尾换行</translation>
    </message>
    <message>
        <source>Convert Tabs To Spaces</source>
        <translation>将制表符转换为空格</translation>
    </message>
    <message>
        <source>Trim Trailing Spaces</source>
        <translation>删除行尾空格</translation>
    </message>
</context>
<context>
    <name>SplitBox</name>
    <message>
        <source>Drag down to divide the text into two panes</source>
        <translation>向下拖动可将文本分为两个窗格</translation>
    </message>
    <message>
        <source>Drag to the right to divide the text into two panes</source>
        <translation>向右拖动可将文本分为两个窗格</translation>
    </message>
    <message>
        <source>Divide above and below</source>
        <translation>上下拆分</translation>
    </message>
    <message>
        <source>Divide side by side</source>
        <translation>左右拆分</translation>
    </message>
</context>
<context>
    <name>StyleSample</name>
    <message>
        <source>Sample of the language</source>
        <translation>语言示例</translation>
    </message>
</context>
<context>
    <name>SyntaxFiles</name>
    <message>
        <source>Declaration</source>
        <translation>声明</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
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
        <translation>服务器 JavaScript</translation>
    </message>
    <message>
        <source>Server Python</source>
        <translation>服务器 Python</translation>
    </message>
    <message>
        <source>Server VBScript</source>
        <translation>服务器 VBScript</translation>
    </message>
    <message>
        <source>VBScript</source>
        <translation>VBScript</translation>
    </message>
    <message>
        <source>.NET message</source>
        <translation>.NET 消息</translation>
    </message>
    <message>
        <source>Absoft message</source>
        <translation>Absoft 消息</translation>
    </message>
    <message>
        <source>Added line</source>
        <translation>添加的行</translation>
    </message>
    <message>
        <source>Added line of a removed patch</source>
        <translation>已移除补丁中添加的行</translation>
    </message>
    <message>
        <source>Added line of an added patch</source>
        <translation>已添加补丁中添加的行</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>Assembler</source>
        <translation>汇编</translation>
    </message>
    <message>
        <source>Assignment</source>
        <translation>赋值</translation>
    </message>
    <message>
        <source>At-rule</source>
        <translation>@ 规则</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Attribute selector</source>
        <translation>属性选择器</translation>
    </message>
    <message>
        <source>Backticks</source>
        <translation>反引号</translation>
    </message>
    <message>
        <source>Binary number</source>
        <translation>二进制数</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>块</translation>
    </message>
    <message>
        <source>Block comment</source>
        <translation>块注释</translation>
    </message>
    <message>
        <source>Body of a format</source>
        <translation>格式主体</translation>
    </message>
    <message>
        <source>Borland message</source>
        <translation>Borland 消息</translation>
    </message>
    <message>
        <source>CDATA section</source>
        <translation>CDATA 节</translation>
    </message>
    <message>
        <source>Call tips</source>
        <translation>调用提示</translation>
    </message>
    <message>
        <source>Changed line</source>
        <translation>更改的行</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>Class name</source>
        <translation>类名</translation>
    </message>
    <message>
        <source>Class selector</source>
        <translation>类选择器</translation>
    </message>
    <message>
        <source>Client command</source>
        <translation>客户端命令</translation>
    </message>
    <message>
        <source>Client comment</source>
        <translation>客户端注释</translation>
    </message>
    <message>
        <source>Client prompt</source>
        <translation>客户端提示符</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Command with qx</source>
        <translation>qx 命令</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>注释</translation>
    </message>
    <message>
        <source>Comment block</source>
        <translation>注释块</translation>
    </message>
    <message>
        <source>Comment in a directive</source>
        <translation>指令中的注释</translation>
    </message>
    <message>
        <source>Comment in a parameter</source>
        <translation>参数中的注释</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>常量</translation>
    </message>
    <message>
        <source>Constant of the lexer</source>
        <translation>词法分析器常量</translation>
    </message>
    <message>
        <source>Control characters</source>
        <translation>控制字符</translation>
    </message>
    <message>
        <source>Data section</source>
        <translation>数据节</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>数据类型</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Default value</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>Delimiter of a here document</source>
        <translation>嵌入文档定界符</translation>
    </message>
    <message>
        <source>Displayed mathematics</source>
        <translation>独立公式</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Documentation comment</source>
        <translation>文档注释</translation>
    </message>
    <message>
        <source>Documentation comment in a directive</source>
        <translation>指令中的文档注释</translation>
    </message>
    <message>
        <source>Documentation keyword</source>
        <translation>文档关键字</translation>
    </message>
    <message>
        <source>Documentation line comment</source>
        <translation>文档行注释</translation>
    </message>
    <message>
        <source>Element selector</source>
        <translation>元素选择器</translation>
    </message>
    <message>
        <source>End of a tag</source>
        <translation>标记结束</translation>
    </message>
    <message>
        <source>End of an XML fragment</source>
        <translation>XML 片段结束</translation>
    </message>
    <message>
        <source>End of an environment</source>
        <translation>环境结束</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>实体</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>环境</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Escape sequence</source>
        <translation>转义序列</translation>
    </message>
    <message>
        <source>External command</source>
        <translation>外部命令</translation>
    </message>
    <message>
        <source>First parameter</source>
        <translation>第一个参数</translation>
    </message>
    <message>
        <source>Folded text</source>
        <translation>折叠的文本</translation>
    </message>
    <message>
        <source>Fortran message</source>
        <translation>Fortran 消息</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>Function name</source>
        <translation>函数名</translation>
    </message>
    <message>
        <source>Further keyword</source>
        <translation>其他关键字</translation>
    </message>
    <message>
        <source>GCC message</source>
        <translation>GCC 消息</translation>
    </message>
    <message>
        <source>Global class</source>
        <translation>全局类</translation>
    </message>
    <message>
        <source>Global variable</source>
        <translation>全局变量</translation>
    </message>
    <message>
        <source>HTML checker message</source>
        <translation>HTML 检查器消息</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>哈希</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>头</translation>
    </message>
    <message>
        <source>Here document in backticks</source>
        <translation>反引号嵌入文档</translation>
    </message>
    <message>
        <source>Here document in double quotes</source>
        <translation>双引号嵌入文档</translation>
    </message>
    <message>
        <source>Here document in single quotes</source>
        <translation>单引号嵌入文档</translation>
    </message>
    <message>
        <source>Hexadecimal number</source>
        <translation>十六进制数</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>Identifier in backticks</source>
        <translation>反引号标识符</translation>
    </message>
    <message>
        <source>Identifier in backticks or brackets</source>
        <translation>反引号或方括号标识符</translation>
    </message>
    <message>
        <source>Identifier in brackets</source>
        <translation>方括号标识符</translation>
    </message>
    <message>
        <source>Identifier in double quotes</source>
        <translation>双引号标识符</translation>
    </message>
    <message>
        <source>Identifier selector</source>
        <translation>ID 选择器</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>重要</translation>
    </message>
    <message>
        <source>Including file</source>
        <translation>包含方文件</translation>
    </message>
    <message>
        <source>Indentation guides</source>
        <translation>缩进参考线</translation>
    </message>
    <message>
        <source>Intel Fortran message</source>
        <translation>Intel Fortran 消息</translation>
    </message>
    <message>
        <source>Java stack line</source>
        <translation>Java 堆栈行</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Library type</source>
        <translation>库类型</translation>
    </message>
    <message>
        <source>Line comment</source>
        <translation>行注释</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>行号</translation>
    </message>
    <message>
        <source>Linker message</source>
        <translation>链接器消息</translation>
    </message>
    <message>
        <source>List with qw</source>
        <translation>qw 列表</translation>
    </message>
    <message>
        <source>Long quote</source>
        <translation>长引用</translation>
    </message>
    <message>
        <source>Lua message</source>
        <translation>Lua 消息</translation>
    </message>
    <message>
        <source>Mark that hides a command</source>
        <translation>隐藏命令的标记</translation>
    </message>
    <message>
        <source>Markup declaration</source>
        <translation>标记声明</translation>
    </message>
    <message>
        <source>Matching brace</source>
        <translation>匹配的括号</translation>
    </message>
    <message>
        <source>Mathematics</source>
        <translation>数学公式</translation>
    </message>
    <message>
        <source>Microsoft message</source>
        <translation>Microsoft 消息</translation>
    </message>
    <message>
        <source>Name of a format</source>
        <translation>格式名称</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>运算符</translation>
    </message>
    <message>
        <source>Option of a command</source>
        <translation>命令选项</translation>
    </message>
    <message>
        <source>Other inside a tag</source>
        <translation>标记内的其他内容</translation>
    </message>
    <message>
        <source>PHP mark</source>
        <translation>PHP 标记</translation>
    </message>
    <message>
        <source>PHP message</source>
        <translation>PHP 消息</translation>
    </message>
    <message>
        <source>Patch message</source>
        <translation>补丁消息</translation>
    </message>
    <message>
        <source>Perl message</source>
        <translation>Perl 消息</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Preprocessor</source>
        <translation>预处理器</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>过程</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Property of CSS 2</source>
        <translation>CSS 2 属性</translation>
    </message>
    <message>
        <source>Property of CSS 3</source>
        <translation>CSS 3 属性</translation>
    </message>
    <message>
        <source>Property of one browser</source>
        <translation>特定浏览器的属性</translation>
    </message>
    <message>
        <source>Prototype</source>
        <translation>原型</translation>
    </message>
    <message>
        <source>Pseudo-class</source>
        <translation>伪类</translation>
    </message>
    <message>
        <source>Pseudo-class of one browser</source>
        <translation>特定浏览器的伪类</translation>
    </message>
    <message>
        <source>Pseudo-element</source>
        <translation>伪元素</translation>
    </message>
    <message>
        <source>Pseudo-element of one browser</source>
        <translation>特定浏览器的伪元素</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>标点</translation>
    </message>
    <message>
        <source>Python message</source>
        <translation>Python 消息</translation>
    </message>
    <message>
        <source>Quoting operator</source>
        <translation>引用运算符</translation>
    </message>
    <message>
        <source>Raw string</source>
        <translation>原始字符串</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>正则表达式</translation>
    </message>
    <message>
        <source>Regular expression with qr</source>
        <translation>qr 正则表达式</translation>
    </message>
    <message>
        <source>Removed line</source>
        <translation>移除的行</translation>
    </message>
    <message>
        <source>Removed line of a removed patch</source>
        <translation>已移除补丁中移除的行</translation>
    </message>
    <message>
        <source>Removed line of an added patch</source>
        <translation>已添加补丁中移除的行</translation>
    </message>
    <message>
        <source>Rule of a group</source>
        <translation>组规则</translation>
    </message>
    <message>
        <source>Scalar</source>
        <translation>标量</translation>
    </message>
    <message>
        <source>Script tag</source>
        <translation>脚本标记</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>节</translation>
    </message>
    <message>
        <source>Server comment</source>
        <translation>服务器注释</translation>
    </message>
    <message>
        <source>Server script</source>
        <translation>服务器脚本</translation>
    </message>
    <message>
        <source>Server script mark</source>
        <translation>服务器脚本标记</translation>
    </message>
    <message>
        <source>Setting or pragma</source>
        <translation>设置或编译指示</translation>
    </message>
    <message>
        <source>Short command</source>
        <translation>短命令</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>特殊</translation>
    </message>
    <message>
        <source>Special character</source>
        <translation>特殊字符</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Start of an XML fragment</source>
        <translation>XML 片段开始</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>语句</translation>
    </message>
    <message>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>String in double quotes</source>
        <translation>双引号字符串</translation>
    </message>
    <message>
        <source>String in single quotes</source>
        <translation>单引号字符串</translation>
    </message>
    <message>
        <source>String with hash marks</source>
        <translation>带井号的字符串</translation>
    </message>
    <message>
        <source>String with q</source>
        <translation>q 字符串</translation>
    </message>
    <message>
        <source>String with qq</source>
        <translation>qq 字符串</translation>
    </message>
    <message>
        <source>Substitution</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Symbol table</source>
        <translation>符号表</translation>
    </message>
    <message>
        <source>System object</source>
        <translation>系统对象</translation>
    </message>
    <message>
        <source>System table or view</source>
        <translation>系统表或视图</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>Task marker</source>
        <translation>任务标记</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Text before a data type</source>
        <translation>数据类型前的文本</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>音译</translation>
    </message>
    <message>
        <source>Triple double quotes</source>
        <translation>三重双引号</translation>
    </message>
    <message>
        <source>Triple single quotes</source>
        <translation>三重单引号</translation>
    </message>
    <message>
        <source>Triple-quoted string</source>
        <translation>三引号字符串</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>Unclosed string</source>
        <translation>未闭合的字符串</translation>
    </message>
    <message>
        <source>Unknown attribute</source>
        <translation>未知属性</translation>
    </message>
    <message>
        <source>Unknown documentation keyword</source>
        <translation>未知文档关键字</translation>
    </message>
    <message>
        <source>Unknown property</source>
        <translation>未知属性名</translation>
    </message>
    <message>
        <source>Unknown pseudo-class</source>
        <translation>未知伪类</translation>
    </message>
    <message>
        <source>Unknown tag</source>
        <translation>未知标记</translation>
    </message>
    <message>
        <source>Unmatched brace</source>
        <translation>不匹配的括号</translation>
    </message>
    <message>
        <source>Unquoted value</source>
        <translation>无引号的值</translation>
    </message>
    <message>
        <source>User keyword</source>
        <translation>用户关键字</translation>
    </message>
    <message>
        <source>User literal</source>
        <translation>用户字面量</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Variable in a command document</source>
        <translation>命令文档中的变量</translation>
    </message>
    <message>
        <source>Variable in a complex expression</source>
        <translation>复杂表达式中的变量</translation>
    </message>
    <message>
        <source>Variable in a here document</source>
        <translation>嵌入文档中的变量</translation>
    </message>
    <message>
        <source>Variable in a regular expression</source>
        <translation>正则表达式中的变量</translation>
    </message>
    <message>
        <source>Variable in a string</source>
        <translation>字符串中的变量</translation>
    </message>
    <message>
        <source>Variable in a substitution</source>
        <translation>替换中的变量</translation>
    </message>
    <message>
        <source>Variable in backticks</source>
        <translation>反引号中的变量</translation>
    </message>
    <message>
        <source>Variable in qq</source>
        <translation>qq 中的变量</translation>
    </message>
    <message>
        <source>Variable in qr</source>
        <translation>qr 中的变量</translation>
    </message>
    <message>
        <source>Variable in qx</source>
        <translation>qx 中的变量</translation>
    </message>
    <message>
        <source>Variable indexer</source>
        <translation>变量索引</translation>
    </message>
    <message>
        <source>Verbatim documentation</source>
        <translation>原样文档</translation>
    </message>
    <message>
        <source>Verbatim string</source>
        <translation>原样字符串</translation>
    </message>
    <message>
        <source>Verbatim text</source>
        <translation>原样文本</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>单词</translation>
    </message>
    <message>
        <source>Catalog and administrative views</source>
        <translation>目录和管理视图</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Commands (completion only)</source>
        <translation>命令 (仅补全)</translation>
    </message>
    <message>
        <source>Configuration parameters</source>
        <translation>配置参数</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>常量</translation>
    </message>
    <message>
        <source>Data types</source>
        <translation>数据类型</translation>
    </message>
    <message>
        <source>Declaration keywords</source>
        <translation>声明关键字</translation>
    </message>
    <message>
        <source>Diagnostics items</source>
        <translation>诊断项</translation>
    </message>
    <message>
        <source>Dictionary and performance views</source>
        <translation>字典和性能视图</translation>
    </message>
    <message>
        <source>Directives (completion only)</source>
        <translation>指令 (仅补全)</translation>
    </message>
    <message>
        <source>Documentation keywords</source>
        <translation>文档关键字</translation>
    </message>
    <message>
        <source>Elements and attributes</source>
        <translation>元素和属性</translation>
    </message>
    <message>
        <source>Environments (completion only)</source>
        <translation>环境 (仅补全)</translation>
    </message>
    <message>
        <source>External commands</source>
        <translation>外部命令</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>Functions (completion only)</source>
        <translation>函数 (仅补全)</translation>
    </message>
    <message>
        <source>Global variables (without @@)</source>
        <translation>全局变量 (不带 @@)</translation>
    </message>
    <message>
        <source>Information schema</source>
        <translation>信息架构</translation>
    </message>
    <message>
        <source>JavaScript keywords</source>
        <translation>JavaScript 关键字</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Library types</source>
        <translation>库类型</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>运算符</translation>
    </message>
    <message>
        <source>PHP functions (completion only)</source>
        <translation>PHP 函数 (仅补全)</translation>
    </message>
    <message>
        <source>PHP keywords</source>
        <translation>PHP 关键字</translation>
    </message>
    <message>
        <source>PL/pgSQL</source>
        <translation>PL/pgSQL</translation>
    </message>
    <message>
        <source>Pragmas</source>
        <translation>编译指示</translation>
    </message>
    <message>
        <source>Procedural keywords</source>
        <translation>过程关键字</translation>
    </message>
    <message>
        <source>Procedures, table functions and modules</source>
        <translation>过程、表函数和模块</translation>
    </message>
    <message>
        <source>Properties of CSS 1</source>
        <translation>CSS 1 属性</translation>
    </message>
    <message>
        <source>Properties of CSS 2</source>
        <translation>CSS 2 属性</translation>
    </message>
    <message>
        <source>Properties of CSS 3</source>
        <translation>CSS 3 属性</translation>
    </message>
    <message>
        <source>Properties of one browser</source>
        <translation>特定浏览器的属性</translation>
    </message>
    <message>
        <source>Pseudo-classes</source>
        <translation>伪类</translation>
    </message>
    <message>
        <source>Pseudo-classes of one browser</source>
        <translation>特定浏览器的伪类</translation>
    </message>
    <message>
        <source>Pseudo-elements</source>
        <translation>伪元素</translation>
    </message>
    <message>
        <source>Pseudo-elements of one browser</source>
        <translation>特定浏览器的伪元素</translation>
    </message>
    <message>
        <source>Python keywords</source>
        <translation>Python 关键字</translation>
    </message>
    <message>
        <source>Routines of the schema sys</source>
        <translation>sys 架构的例程</translation>
    </message>
    <message>
        <source>Special targets (completion only)</source>
        <translation>特殊目标 (仅补全)</translation>
    </message>
    <message>
        <source>Statements and clauses</source>
        <translation>语句和子句</translation>
    </message>
    <message>
        <source>Supplied packages</source>
        <translation>自带的包</translation>
    </message>
    <message>
        <source>System and monitoring tables</source>
        <translation>系统和监控表</translation>
    </message>
    <message>
        <source>System catalogs and views</source>
        <translation>系统目录和视图</translation>
    </message>
    <message>
        <source>System packages</source>
        <translation>系统包</translation>
    </message>
    <message>
        <source>System procedures</source>
        <translation>系统过程</translation>
    </message>
    <message>
        <source>System tables and modules</source>
        <translation>系统表和模块</translation>
    </message>
    <message>
        <source>System tables and views</source>
        <translation>系统表和视图</translation>
    </message>
    <message>
        <source>System variables (without @@)</source>
        <translation>系统变量 (不带 @@)</translation>
    </message>
    <message>
        <source>Task markers</source>
        <translation>任务标记</translation>
    </message>
    <message>
        <source>VBScript keywords</source>
        <translation>VBScript 关键字</translation>
    </message>
    <message>
        <source>Values of pragmas</source>
        <translation>编译指示的值</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorPlugin</name>
    <message>
        <source>Source Text Editor</source>
        <translation>源文本编辑器</translation>
    </message>
    <message>
        <source>An editor for SQL scripts and other source texts.</source>
        <translation>用于 SQL 脚本和其他源文本的编辑器。</translation>
    </message>
</context>
<context>
    <name>ZNCoreEditorWidget</name>
    <message>
        <source>The editor cannot be shown, since its engine could not be loaded.
%1</source>
        <translation>无法加载引擎，因此无法显示编辑器。
%1</translation>
    </message>
    <message>
        <source>Text editor</source>
        <translation>文本编辑器</translation>
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
        <source>&amp;Indent</source>
        <translation>增加缩进(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>减少缩进(&amp;O)</translation>
    </message>
    <message>
        <source>U&amp;pper Case</source>
        <translation>大写(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>小写(&amp;L)</translation>
    </message>
    <message>
        <source>Match Bra&amp;ce</source>
        <translation>匹配的括号(&amp;C)</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>切换书签(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Next Bookmark</source>
        <translation>下一个书签(&amp;N)</translation>
    </message>
    <message>
        <source>Previous Boo&amp;kmark</source>
        <translation>上一个书签(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>放大(&amp;Z)</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>缩小(&amp;U)</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>原始大小(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Line Numbers</source>
        <translation>行号(&amp;L)</translation>
    </message>
    <message>
        <source>Clear All Bookmarks</source>
        <translation>清除所有书签</translation>
    </message>
    <message>
        <source>Co&amp;mment Out</source>
        <translation>注释(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Uncomment</source>
        <translation>取消注释(&amp;U)</translation>
    </message>
    <message>
        <source>Increase Number</source>
        <translation>增大数字</translation>
    </message>
    <message>
        <source>Decrease Number</source>
        <translation>减小数字</translation>
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
        <source>&amp;Replace...</source>
        <translation>替换(&amp;R)...</translation>
    </message>
    <message>
        <source>Insert &amp;File...</source>
        <translation>插入文件(&amp;F)...</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR+LF (Windows)</source>
        <translation>行尾转换为 CR+LF (Windows)</translation>
    </message>
    <message>
        <source>Convert Line Ends to LF (Unix)</source>
        <translation>行尾转换为 LF (Unix)</translation>
    </message>
    <message>
        <source>Convert Line Ends to CR (Mac)</source>
        <translation>行尾转换为 CR (Mac)</translation>
    </message>
    <message>
        <source>Editor and Language &amp;Preferences...</source>
        <translation>编辑器和语言首选项(&amp;P)...</translation>
    </message>
    <message>
        <source>Insert Template</source>
        <translation>插入模板</translation>
    </message>
    <message>
        <source>&amp;Go to Line...</source>
        <translation>转到行(&amp;G)...</translation>
    </message>
    <message>
        <source>Go to Line</source>
        <translation>转到行</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>转到行：</translation>
    </message>
    <message>
        <source>Select &amp;Statement</source>
        <translation>选择语句(&amp;S)</translation>
    </message>
    <message>
        <source>Record &amp;Macro</source>
        <translation>录制宏(&amp;M)</translation>
    </message>
    <message>
        <source>Pla&amp;y Macro</source>
        <translation>播放宏(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Document Map</source>
        <translation>文档缩略图(&amp;D)</translation>
    </message>
</context>
</TS>
