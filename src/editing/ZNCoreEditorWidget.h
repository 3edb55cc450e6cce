// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// ZNCoreEditorWidget: the editor for hosts that are written in plain Qt. Needs Qt alone.
#pragma once

#include "common/Export.h"
#include "control/FileResult.h"
#include "control/LostCharacter.h"

#include <QFont>
#include <QList>
#include <QPalette>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace completion {
class Completer;
}
class CZNCoreEditorControlEx;
class QAction;
class QMenu;
class QPagedPaintDevice;
struct SCNotification;

/// An editor that sits in a layout.
///
/// Positions, columns and lengths count UTF-16 units, lines and columns count from 0; a place
/// outside of the text is taken for the nearest inside. A value that is not one of a property's
/// (a language that there is not) changes nothing, and the setter gives false where it gives
/// anything. Files are handled with care: see control/ZNCoreEditorControl.h, SetCarefulFiles.
/// Without an engine the widget shows why there is none, and every answer is empty. It belongs to
/// the GUI thread: elsewhere it is made without an engine, and what might change anything does
/// nothing and says so on stderr. What only tells something is not checked, nor are control() and
/// completer().
///
/// Each signal of a change comes once for an operation, a message of the control or an event, when
/// that is over: the text is whole, and a slot may delete the widget. What tells of the caret and
/// of the selection comes from the event loop, when it has been painted.
class ZN_API ZNCoreEditorWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setPlainText NOTIFY textChanged USER true)
    Q_PROPERTY(bool modified READ isModified WRITE setModified NOTIFY modificationChanged)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(QString languageName READ languageName WRITE setLanguageName NOTIFY languageChanged)
    Q_PROPERTY(
        bool overwriteMode READ overwriteMode WRITE setOverwriteMode NOTIFY overwriteModeChanged)
    Q_PROPERTY(bool completesWhileTyping READ completesWhileTyping WRITE setCompletesWhileTyping
                   NOTIFY completesWhileTypingChanged)
    Q_PROPERTY(QString scheme READ scheme WRITE setScheme NOTIFY schemeChanged)
    Q_PROPERTY(Encoding encoding READ encoding WRITE setEncoding NOTIFY encodingChanged)
    Q_PROPERTY(
        bool byteOrderMark READ hasByteOrderMark WRITE setByteOrderMark NOTIFY encodingChanged)
    Q_PROPERTY(LineEnd lineEnd READ lineEnd WRITE setLineEnd NOTIFY lineEndChanged)
    Q_PROPERTY(QFont editorFont READ editorFont WRITE setEditorFont NOTIFY editorFontChanged)
    Q_PROPERTY(int tabWidth READ tabWidth WRITE setTabWidth NOTIFY tabWidthChanged)
    Q_PROPERTY(int zoom READ zoom WRITE setZoom NOTIFY zoomChanged)
    Q_PROPERTY(LineWrapMode lineWrapMode READ lineWrapMode WRITE setLineWrapMode NOTIFY
                   lineWrapModeChanged)
    Q_PROPERTY(bool lineNumbersVisible READ areLineNumbersVisible WRITE setLineNumbersVisible NOTIFY
                   lineNumbersVisibleChanged)
    Q_PROPERTY(bool documentMapVisible READ isDocumentMapVisible WRITE setDocumentMapVisible NOTIFY
                   documentMapVisibleChanged)
    Q_PROPERTY(bool undoAvailable READ isUndoAvailable NOTIFY undoAvailable STORED false)
    Q_PROPERTY(bool redoAvailable READ isRedoAvailable NOTIFY redoAvailable STORED false)
    Q_PROPERTY(bool recording READ isRecording NOTIFY recordingChanged STORED false)
    Q_PROPERTY(int lineCount READ lineCount NOTIFY lineCountChanged STORED false)

public:
    /// What a file's bytes mean. The numbers are those of FileEncodeConverter.
    enum class Encoding
    {
        Ansi = 0,       ///< the code page of the system
        Utf16LE = 2,    ///< low byte first
        Utf16BE = 4,    ///< high byte first
        Utf8 = 6,       ///< with a byte-order mark or without
        Utf32LE = 8,    ///< low byte first
        Utf32BE = 10,   ///< high byte first
        Utf8Cookie = 11 ///< UTF-8, as the text's first lines say
    };
    Q_ENUM(Encoding)

    /// What ends a line. The numbers are those of the engine.
    enum class LineEnd
    {
        CrLf = 1, ///< carriage return and line feed
        Cr = 2,   ///< carriage return
        Lf = 3    ///< line feed
    };
    Q_ENUM(LineEnd)

    /// Whether long lines go on below themselves.
    enum class LineWrapMode
    {
        NoWrap,     ///< they are scrolled to
        WidgetWidth ///< they are divided between words
    };
    Q_ENUM(LineWrapMode)

    // Qt Designer writes the values of properties without the names of their enumerations.
    using enum Encoding;
    using enum LineEnd;
    using enum LineWrapMode;

    /// How a text is looked for; without a flag onwards, in whatever case, anywhere.
    enum FindFlag
    {
        FindBackward = 1,          ///< towards the start of the text
        FindCaseSensitively = 2,   ///< letters as they are written
        FindWholeWords = 4,        ///< nothing inside of a word
        FindRegularExpression = 8, ///< an expression, as PCRE reads them
        FindWrapped = 16           ///< on from the other end when one is reached
    };
    /// Several of them, or none.
    Q_DECLARE_FLAGS(FindFlags, FindFlag)
    Q_FLAG(FindFlags)

    /// How bad a problem is.
    enum class Severity
    {
        Note = 0,    ///< listed, and not marked in the text
        Warning = 1, ///< underlined in yellow
        Error = 2    ///< underlined in red
    };
    Q_ENUM(Severity)

    /// What a parser or a server has to say about the text. Its place follows the text as that is
    /// edited.
    struct Problem
    {
        int position = 0;                    ///< of its first unit
        int length = 0;                      ///< 0: the character there
        QString message;                     ///< shown while the pointer rests on the place
        Severity severity = Severity::Error; ///< how it is marked
        int code = 0;                        ///< the host's own
    };

    /// A part of the text.
    struct Range
    {
        int position = 0; ///< of its first unit
        int length = 0;   ///< in units
        /// Whether both mean the same part.
        bool operator==(const Range&) const = default;
    };

    /// An empty editor, on the settings of the library and in the colours of the desktop.
    explicit ZNCoreEditorWidget(QWidget* parent = nullptr);
    /// A slot of its own signals may be what has led here.
    ~ZNCoreEditorWidget() override;

    /// The control itself, for whatever has no place here; its header is ZNCoreEditor/Control.h.
    /// Its operations take 1 for `direct`. It lives as long as this widget.
    CZNCoreEditorControlEx& control();

    /// \name Text
    /// @{

    /// All of it.
    QString text() const;
    /// Undoable; the save point stays where it was. As setPlainText, insertPlainText,
    /// appendPlainText and clear it changes a read-only text, too: that keeps people from it.
    void setText(const QString& text);
    /// Another text, which counts as saved. Nothing of the one before can be taken back. The
    /// property does this, so that a form begins unmodified.
    void setPlainText(const QString& text);
    /// The part of the text; less of it where the text ends before.
    QString textOf(Range range) const;
    /// In units.
    int length() const;
    /// At least 1.
    int lineCount() const;
    /// Without its end; empty for a line that is not there.
    QString lineText(int line) const;
    bool isModified() const; ///< whether the text differs from the save point
    /// False makes the text, as it is, the one that counts as saved. True does nothing: only the
    /// text can differ.
    void setModified(bool modified);
    /// Whether people are kept from changing the text, and so are all operations but an open and
    /// those that say other.
    bool isReadOnly() const;
    /// Keeps the text as it is, or no longer.
    void setReadOnly(bool readOnly);
    /// Whether typed characters take the place of those behind the caret.
    bool overwriteMode() const;
    /// Asks for that, or for characters that are put in.
    void setOverwriteMode(bool overwrite);
    /// Whether there is a step to take back.
    bool isUndoAvailable() const;
    /// Whether there is a step to take again.
    bool isRedoAvailable() const;
    /// @}

    /// \name Caret and selection
    /// @{

    /// Where the caret stands.
    int cursorPosition() const;
    void setCursorPosition(int position); ///< drops the selection, and scrolls there
    /// The line of the caret.
    int cursorLine() const;
    int cursorColumn() const; ///< in units from the line's start
    /// The same by line and column.
    void setCursorPosition(int line, int column);
    /// Whether the selection has a length.
    bool hasSelectedText() const;
    /// Empty without a selection.
    QString selectedText() const;
    /// From its first unit on, wherever the caret stands in it.
    Range selection() const;
    void setSelection(Range range); ///< with the caret at its end
    /// The same by lines and columns. A caret before the other end stands in front.
    void setSelection(int line, int column, int caretLine, int caretColumn);
    /// Lines and columns of a position, and the reverse.
    int lineAt(int position) const;
    /// In units from the start of its line.
    int columnAt(int position) const;
    /// A column behind the end of the line is taken for that end.
    int positionAt(int line, int column) const;
    QString wordUnderCursor() const; ///< empty where there is none
    /// Scrolls as far as the caret needs to be seen.
    void ensureCursorVisible();
    /// Scrolls so that the caret's line stands in the middle, as far as there is text.
    void centerCursor();
    /// @}

    /// \name Several carets
    /// People set them by Ctrl and a click, and columns by Alt and a drag or by Alt, Shift and an
    /// arrow key. What is typed or pasted goes in at each. All else that tells of the caret or of
    /// the selection means the main one.
    /// @{

    /// At least 1; columns have one in each line.
    int cursorCount() const;
    /// All selections, in the order of the text; one without a length is a caret alone.
    QList<Range> selections() const;
    /// They take the place of those before, each with a caret at its end, and the last is the main
    /// one. Where two overlap, the later has the text. Nothing happens for an empty list.
    void setSelections(const QList<Range>& selections);
    /// Puts one more caret there, which is the main one then.
    void addCursor(int position);
    /// The same by line and column.
    void addCursor(int line, int column);
    /// The main caret and its selection stay.
    void dropOtherCursors();
    /// Whether columns are selected.
    bool hasColumnSelection() const;
    /// Selects columns over lines, with the carets at the second place. A column behind the end of
    /// its line is one there, up to 10,000; in lines of 100,000 blanks' width and more all text
    /// between the two places is selected instead.
    void setColumnSelection(int line, int column, int caretLine, int caretColumn);
    /// @}

    /// \name Files
    /// The name of a file decides nothing but where its bytes are: see setLanguageForFile.
    /// @{

    /// The encoding and the mark are found in the file. A result that is a problem tells it to a
    /// person by Reason; one that is cut short has brought the text before the place.
    FileResult open(const QString& path);
    /// In encoding() and with the mark of hasByteOrderMark().
    FileResult save(const QString& path);
    /// The first character that a save as it stands would turn into a question mark; ask before it.
    std::optional<LostCharacter> lostBySaving() const;
    /// The same as open and save without a reason. False if the file is missing or cannot be read,
    /// true if it was cut short; false if it could not be written.
    bool openFile(const QString& path);
    /// The same for a save.
    bool saveFile(const QString& path);
    /// The whole path of the file behind the text, whatever open and save were given; empty: none
    /// yet.
    QString fileName() const;
    /// What the file was read in, or is to be written in.
    Encoding encoding() const;
    bool setEncoding(Encoding encoding); ///< for the next save; the text stays
    /// Whether a save writes one.
    bool hasByteOrderMark() const;
    void setByteOrderMark(bool mark); ///< for the next save
    LineEnd lineEnd() const;          ///< that Enter puts in
    bool setLineEnd(LineEnd end);     ///< converts the lines that there are, undoably
    /// @}

    /// \name Languages and looks
    /// @{

    /// Their names, each at its number.
    static QStringList languages();
    /// The number of the language, -1 for a name that there is not.
    static int languageOfName(const QString& name);
    /// The number of the language that files of this name are in; that of plain text if it tells
    /// none.
    static int languageOfFile(const QString& path);
    int language() const; ///< its number
    /// False for a number that there is not.
    bool setLanguage(int language);
    /// Empty without a language.
    QString languageName() const;
    /// False for a name that there is not.
    bool setLanguageName(const QString& name);
    /// The language that files of this name are in.
    bool setLanguageForFile(const QString& path);

    /// Names that setScheme takes, beside "Desktop".
    static QStringList schemes();
    /// "Desktop", as from the start: light or dark, as the desktop is; empty: the settings'
    /// colours.
    QString scheme() const;
    /// False for a name that there is not.
    bool setScheme(const QString& name);

    /// The colours that plain text has here, for what a host shows beside it: Base, Text,
    /// Highlight and HighlightedText; the others are the widget's.
    QPalette textPalette() const;

    /// The list of proposals, which Ctrl+Space opens: words, names and keywords of the text and of
    /// its language. A host adds sources of its own. Null without an engine.
    completion::Completer* completer();
    /// Whether the list, and what a function takes, open while somebody types. Off at first.
    bool completesWhileTyping() const;
    /// Asks for that, or for the keys of the list alone.
    void setCompletesWhileTyping(bool completes);

    /// Of this editor alone. As long as none was set that of the options, which is Qt's own font
    /// if nobody has chosen one there.
    QFont editorFont() const;
    /// Family and size, for all styles; the language says which are bold.
    void setEditorFont(const QFont& font);
    int tabWidth() const; ///< in characters
    /// From 1 to 64; false otherwise.
    bool setTabWidth(int characters);
    int zoom() const; ///< in points above or below the font's size
    /// From -100 to 100; more is taken for these. Keys and the wheel go from -10 to 20.
    void setZoom(int points);
    /// NoWrap, unless the options or the host say other.
    LineWrapMode lineWrapMode() const;
    /// Of this editor, whatever its language.
    void setLineWrapMode(LineWrapMode mode);
    /// In the margin.
    bool areLineNumbersVisible() const;
    /// Shows or hides them, whatever the language.
    void setLineNumbersVisible(bool visible);
    /// Whether the text stands in small beside the scroll bar, with a box around what can be seen.
    bool isDocumentMapVisible() const;
    /// Off at first. A click goes there, a mouse that rests sees its lines; none if very narrow.
    void setDocumentMapVisible(bool visible);
    /// @}

    /// \name Finding
    /// What is looked for here stays out of the find dialogs, which all editors of a process share.
    /// @{

    /// Selects the next match from the selection on. False if there is none, or for an expression
    /// that cannot be read; the selection stays then.
    bool find(const QString& text, FindFlags flags = {});
    /// How many were replaced, in one step of undo; in an expression \1 to \9 stand for its groups.
    /// In a read-only text none.
    int replaceAll(const QString& text, const QString& replacement, FindFlags flags = {});
    /// All matches, first to last.
    QList<Range> findAll(const QString& text, FindFlags flags = {}) const;
    /// Shows all matches that can be seen, until an empty text ends it.
    void markMatches(const QString& text, FindFlags flags = {});
    /// @}

    /// \name Scripts
    /// @{

    /// Takes the place of those before. They go with the text, when a file is opened or
    /// setPlainText brings another.
    void setProblems(const QList<Problem>& problems);
    /// Where the text has taken them.
    QList<Problem> problems() const;
    bool goToNextProblem(); ///< from the caret on, and on from the first; false if there is none
    bool goToPreviousProblem(); ///< the other way
    /// The statement that the caret is in or behind; empty where there is none.
    Range statementAtCursor() const;
    /// The batches between the separator's lines, in languages that have one; else all in one.
    QList<Range> batches() const;
    /// The one of batches() that the caret is in.
    Range batchAtCursor() const;
    /// @}

    /// \name Templates
    /// @{

    /// What a person answers to the question of a template; nothing: they thought better of it.
    using Ask = std::function<std::optional<QString>(const QString& question)>;
    /// Puts a template in the selection's place, in one step of undo; completion/TemplateFile.h
    /// reads files of them. "^#" and "#^" enclose a question, which is asked once for all of its
    /// places; "^!" is where the caret goes, and the text that was selected. Lines are indented as
    /// the caret's line is. Without a function a dialog asks. False, and nothing is changed: the
    /// text is read-only, a question is not closed or not answered.
    bool insertTemplate(const QString& text, const Ask& ask = {});
    /// @}

    /// \name Macros
    /// What somebody types and commands, to be played again: one for the process, recorded in an
    /// editor and played in any. Texts of more than a character that come at once, as by
    /// insertPlainText, are not kept.
    /// @{

    /// Whether this editor records.
    bool isRecording() const;
    /// Whether there is one to play: something was recorded, and no editor records.
    bool hasMacro() const;
    /// @}

    /// \name Bookmarks
    /// @{

    QList<int> bookmarks() const; ///< their lines, first to last
    /// False for a line that there is not.
    bool hasBookmark(int line) const;
    /// Nothing happens for a line that there is not.
    void setBookmark(int line, bool set);
    bool goToNextBookmark();     ///< and on from the first; false if there is none
    bool goToPreviousBookmark(); ///< the other way
    /// All of them.
    void clearBookmarks();
    /// @}

    /// \name Commands
    /// @{

    /// Actions for menus and tool bars, in the order of menus: those of Qt's editors and those of
    /// this one. They are enabled as they are possible, and belong to the editor.
    QList<QAction*> commands() const;
    /// The one of that objectName, as "undo", "toggleComment"; null if there is none.
    /// docs/guides/embed.md lists them.
    QAction* command(const QString& name) const;
    /// What a right click shows. The caller deletes it. Null outside of the GUI thread.
    QMenu* createStandardContextMenu();
    /// On the device's pages, as a QPrinter's or a QPdfWriter's: connect it to paintRequested of a
    /// QPrintPreviewDialog to see them first. False if nothing could be printed.
    bool print(QPagedPaintDevice* device);
    /// @}

public Q_SLOTS:
    /// Takes the last step back.
    void undo();
    /// Takes it again.
    void redo();
    /// The selection, onto the clipboard.
    void cut();
    /// The selection, and it stays.
    void copy();
    /// The clipboard, in the selection's place.
    void paste();
    void clear(); ///< undoably
    /// The caret goes to the end.
    void selectAll();
    void insertPlainText(const QString& text); ///< in the selection's place
    /// Puts a paragraph of its own behind the text. The caret stays.
    void appendPlainText(const QString& text);
    /// The macro before is gone. Nothing happens while any editor records.
    void startRecording();
    /// A recording also ends with its editor.
    void stopRecording();
    /// So many times, in one step of undo. Nothing happens without hasMacro().
    void playMacro(int times = 1);
    /// Larger, of this editor alone.
    void zoomIn(int points = 1);
    /// Smaller.
    void zoomOut(int points = 1);

Q_SIGNALS:
    /// The text has changed.
    void textChanged();
    /// The text differs from the save point, or no longer.
    void modificationChanged(bool modified);
    /// There is a step to take back, or none any more.
    void undoAvailable(bool available);
    /// There is a step to take again, or none any more.
    void redoAvailable(bool available);
    void copyAvailable(bool available); ///< whether something is selected
    /// It is kept as it is, or no longer.
    void readOnlyChanged(bool readOnly);
    /// Lines have come or gone.
    void lineCountChanged(int count);
    /// Another language is bound.
    void languageChanged(int language);
    /// Another scheme is in force, or other colours: "Desktop" has become light or dark.
    void schemeChanged(const QString& name);
    void encodingChanged(); ///< or the mark has
    /// Enter puts in another one.
    void lineEndChanged();
    /// The host has set another font.
    void editorFontChanged();
    /// By the host, or by the Insert key.
    void overwriteModeChanged(bool overwrite);
    /// The host has asked for other.
    void completesWhileTypingChanged(bool completes);
    /// By the host, or by another language.
    void tabWidthChanged(int characters);
    /// By the host, or by another language.
    void lineWrapModeChanged(ZNCoreEditorWidget::LineWrapMode mode);
    /// By the host, by a command, or by another language.
    void lineNumbersVisibleChanged(bool visible);
    /// By the host, or by the command.
    void documentMapVisibleChanged(bool visible);
    /// By the host, or by the wheel with Control held.
    void zoomChanged(int points);
    /// The host has set others, or their text is gone.
    void problemsChanged();
    /// One was set or taken away, here or by the command.
    void bookmarksChanged();
    /// It records, or no longer.
    void recordingChanged(bool records);
    /// Another file stands behind the text, by an open or a save of this or of control().
    void fileNameChanged(const QString& path);
    /// Somebody has typed it.
    void charAdded(char32_t character);
    /// The caret has gone there.
    void cursorPositionChanged(long position);
    /// Other parts of the text are selected, or none any more; carets have come or gone.
    void selectionChanged();
    /// When the engine has brought its window up to date.
    void updateUi();
    /// From the event loop, once for a text: a line that is shown has more characters than the
    /// given number of them, and those behind are drawn in coarse steps. Editing and saving are
    /// exact.
    void longLineShown(long line, long drawnExactly);
    /// Before the menu of a right click is shown: add to it what is yours.
    void contextMenuAboutToShow(QMenu* menu);
    /// Every notification of the engine, at once: in the middle of a change or a painting. The
    /// record is good until the slot returns, which may delete the widget by deleteLater.
    void notified(const SCNotification& record);

protected:
    /// Changes are told one by one only while somebody listens.
    void connectNotify(const QMetaMethod& signal) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZNCoreEditorWidget::FindFlags)
