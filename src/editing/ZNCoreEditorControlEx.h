// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CZNCoreEditorControlEx: the editor that a view, a dialog or a host holds. It binds itself to a
/// language of the registry and to the host's options, reacts to what is typed, and carries the
/// editing operations of a programmer's editor. Positions count UTF-16 units, lines count from 0.
/// Created, used and destroyed on the GUI thread.
#pragma once

#include "control/ZNCoreEditorControl.h"
#include "platform/windows/Accelerators.h"

#include <QPointer>
#include <QString>

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class CDC;
class ColourScheme;
class CSyntaxFile;
class CFont;
class CPrinterDC;
class CPrintInfo;
class CWnd;
class CZNCoreEditorControlEx;
class QMenu;
class QPoint;
struct CDataExchange;
struct LanguageOptions;
struct LOGFONT;
struct MacroHolder;

/// What a control asks its surroundings.
class ZN_API CZNCoreEditorControlExCallback
{
public:
    virtual ~CZNCoreEditorControlExCallback(); ///< it outlives the control that has it

    /// Before a context menu is built. Not 0 if the menu is dealt with and nothing else is to
    /// happen.
    virtual int OnBeforeContextMenu(CWnd* window, CPoint point);
};

/// Without a language the control shows the engine's own looks in the font of the options.
class ZN_API CZNCoreEditorControlEx : public CZNCoreEditorControl
{
public:
    /// The callback may be null and stays the caller's.
    explicit CZNCoreEditorControlEx(CZNCoreEditorControlExCallback* callback = nullptr);
    ~CZNCoreEditorControlEx() override;

    /// \name Window and messages
    /// @{

    void PreSubclassWindow() override;
    int PreTranslateMessage(MSG* message) override;
    int OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    int HandleNotify(LPARAM lParam) override;
    using CZNCoreEditorControl::SetFocus;
    CWnd* SetFocus() override;
    using CZNCoreEditorControl::OnCmdMsg;
    /// The commands of the tables, and those of hands/Hands.h.
    int OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info) override;
    /// Fills the window with the background colour, the system's unless one was set.
    void OnFillBackground(CDC* dc);

    /// @}

    /// \name Files
    /// @{

    bool OpenFile(const char16_t* path, FileEncodeConverter::encodingType encoding) override;
    using CZNCoreEditorControl::SaveFile;
    /// Cleans up as the language asks, then writes. The selection keeps its lines and columns as
    /// far as they still exist.
    bool SaveFile(const char16_t* path, bool setSavePoint) override;
    /// Reads the file again and goes back to the line, or to the end of a text that lacks it.
    virtual bool ReloadFile(const char16_t* path);
    /// The selected text in the system's code page, without a mark. False if the file cannot be
    /// opened; an empty selection makes an empty file.
    bool SaveSelection(const char16_t* path);

    /// Export. The first two do nothing and make no file. The third writes the head of a PDF
    /// without the text, and tells the user if it cannot; the last finds nothing to put onto the
    /// clipboard.
    void SaveToRTF(const char16_t* path, int start, int end);
    void SaveToHTML(const char16_t* path); ///< does nothing
    /// Writes the head of a PDF without the text, and tells the user if it cannot.
    void SaveToPDF(const char16_t* path);
    void CopyAsRTF(); ///< finds nothing to put onto the clipboard

    /// Printing: the text alone, on all that the device can print on, without margins of its own.
    void Print(); ///< asks for a printer, prints on it and returns
    /// Asks for a printer and begins a document on it, which ends at once. 0 if the user thought
    /// better of it, else what StartDoc gave.
    virtual int OnPreparePrinting(CPrintInfo* info);
    virtual void OnBeginPrinting(CDC* dc, CPrintInfo* info); ///< finds where the pages begin
    /// Draws the info's page. Raises CInvalidArgException for a page that is not there.
    virtual void OnPrint(CDC* dc, CPrintInfo* info);
    virtual void OnEndPrinting(CDC* dc, CPrintInfo* info); ///< the job is over

    /// @}

    /// \name Language and appearance
    /// @{

    virtual void Reset();                             ///< forgets the comment markers
    int InitializeLanguage(int language, int unused); ///< binds it; always 1
    void SetCurrentLanguage(int language) { m_currentLanguage = language; } ///< binds nothing
    /// 1 for a control that was bound to none.
    int GetCurrentLanguage() const { return m_currentLanguage; }
    virtual void SetEditorOptions(); ///< takes font, colours and behaviour from the options
    /// What a user has saved in the preferences of a language comes before the options, which then
    /// fill in what that leaves open; every other language takes them whole, and counts as changed
    /// by no user. Before there is a window. Off at first: the options come before everything.
    void SetUserSettingsFirst(bool first) { m_userSettingsFirst = first; }
    bool GetUserSettingsFirst() const { return m_userSettingsFirst; } ///< off at first
    void SetLogFont(LOGFONT* font); ///< for all styles of all languages; null does nothing
    /// The options go into every language's settings in memory, and the language is bound again.
    void UpdateXmlSettingsFromOptionServerData(QString fontName, int fontSize, bool bold,
                                               bool italic, bool underline);
    virtual void SetFont(CFont* font);   ///< sends WM_SETFONT to the window
    virtual void SetFont(LOGFONT& font); ///< the same with a font that is made for it
    /// Of the options, 0x00BBGGRR.
    COLORREF GetBackgroundColor() const { return m_backgroundColor; }
    /// What holds where the options have none.
    void SetDefaultBackgroundColor(COLORREF color) { m_defaultBackgroundColor = color; }
    /// A size below 1 and a null face stay as they are.
    void SetAStyle(int style, COLORREF fore, COLORREF back, int size, const char16_t* face);
    /// The colours of a scheme (looks/Schemes.h) over those of the settings, and its margins. A
    /// colour that a person has chosen stays. Empty, as from the start: the settings alone.
    void SetScheme(const QString& name);
    const QString& SchemeName() const { return m_scheme; } ///< empty: the settings' colours
    const ColourScheme* Scheme() const; ///< the one in force; null for the settings alone
    void ApplyScheme();                 ///< once more, behind what has written over it
    /// Paints in a scheme that is not the editor's own, over the colours of that file.
    void ApplyScheme(const ColourScheme& scheme, CSyntaxFile& syntax);
    void ApplySchemeToStyles(const ColourScheme& scheme); ///< and to nothing around the text
    virtual bool GetUseWordWrap(); ///< whether the options want long lines wrapped
    /// The margin with line numbers, as wide as it needs to be.
    virtual void SetVisibleLineNumber(bool visible);
    /// As SetVisibleLineNumber has set it.
    bool IsVisibleLineNumber() const { return m_visibleLineNumber; }
    /// The text in small beside the scroll bar, with a box around what the window shows. Of this
    /// window alone, whatever the language; off at first, and in a window that is very narrow.
    void SetDocumentMap(bool visible);
    bool IsDocumentMapVisible(); ///< as SetDocumentMap has set it
    /// Shows the texts of SetExtendedText in margin 0, or the line numbers again.
    void SetExtendedMargin(bool on);
    /// Texts with a line for each line, of so many units.
    void SetExtendedText(const char16_t* text, int length);
    /// Texts by line, from 0; they are copied.
    void SetExtendedText(std::map<int, std::u16string>& texts);

    /// @}

    /// \name Text
    /// @{

    /// As the message, which counts the terminator.
    int GetText(int length, char16_t* buffer, int direct);
    QString GetText(); ///< all of it
    using CZNCoreEditorControl::GetSelText;
    QString GetSelText() override;
    void SetWindowTextW(const QString& text); ///< replaces all of it, undoably
    QString GetWindowTextW();                 ///< the selected text, or all if nothing is selected

    /// Comment markers of the language: false for an empty marker, which is not stored.
    bool AddSingleLineComment(const QString& marker);
    /// False if either marker is empty, and then nothing is stored.
    bool AddBlockComment(const QString& start, const QString& end);
    /// The first marker for every index from 0 up; empty if there is none.
    QString GetSingleLineComment(int index) const;
    QString GetBlockCommentStart(int index) const; ///< the same of the marker in front of a block
    QString GetBlockCommentEnd(int index) const;   ///< the same of the marker behind a block

    /// Puts markers around the selection, or in front of its lines. False if the language lacks the
    /// markers that this takes, or for an index of -1; true also where nothing had to be changed.
    bool CommentSelection(int index, bool useBlock);
    /// Takes the markers away again, where there are any; results as those of CommentSelection.
    bool UnCommentSelection(int index, bool useBlock);

    /// @}

    /// \name Indentation and braces of the language
    /// @{

    int GetAutoIndent() const { return m_autoIndent; } ///< 0 none, 1 keep, 2 or more by "{" and "}"
    void SetAutoIndent(int mode)
    {
        m_autoIndent = mode;
    } ///< 0 none, 1 keep, 2 or more by "{" and "}"
    /// The characters that count as braces, in pairs.
    void SetBraces(const QString& braces) { m_braces = braces; }
    bool IsIndentChar(char16_t c) const; ///< a blank or a tab
    bool IsBrace(char16_t c) const;      ///< one of SetBraces
    /// Lights the brace there and its partner, or shows that it has none.
    void HighlightBraces(long position);
    bool HasMatchingBrace(); ///< false also for a match at position 0
    /// To the partner of the brace at the caret, selecting up to it if so wished.
    void JumpToMatchingBrace(bool extendSelection);
    void MatchToken(); ///< the jump, without selecting

    /// @}

    /// \name What a save cleans up
    /// @{

    /// Off until a language says other.
    bool IsSaveConvertTabToSpaces() const { return m_saveConvertTabToSpaces; }
    /// Tabs become blanks at a save.
    void SetSaveConvertTabToSpaces(bool convert) { m_saveConvertTabToSpaces = convert; }
    /// Off until a language says other.
    bool IsSaveTrimTrailingSpaces() const { return m_saveTrimTrailingSpaces; }
    /// Blanks at line ends go at a save.
    void SetSaveTrimTrailingSpaces(bool trim) { m_saveTrimTrailingSpaces = trim; }
    /// Off until a language says other.
    bool IsEnsureFinalNewLine() const { return m_ensureFinalNewLine; }
    /// The last line gets an end at a save.
    void SetEnsureFinalNewLine(bool ensure) { m_ensureFinalNewLine = ensure; }
    /// In the selected lines, or in all. A last line that is selected up to its column 0 only
    /// stays.
    void ConvertTabToSpaces();
    void ConvertSpacesToTab();   ///< the same the other way round
    void RemoveTrailingSpaces(); ///< blanks and tabs before line ends go, in the same lines
    void EnsureFinalNewLine();   ///< a text of one line always gets one

    /// @}

    /// \name Line ends: of the text, and of what Enter puts in
    /// @{

    void SetEOLCRLF(); ///< carriage return and line feed
    void SetEOLCR();   ///< carriage return
    void SetEOLLF();   ///< line feed
    /// In mode 2 a CR, in mode 3 an LF; in every other an LF and behind it a CR.
    void InsertEOL(long position);

    /// @}

    /// \name Words and lines
    /// @{

    CharacterRange GetSelection(); ///< from its smaller end to its greater one
    bool IsSelection();            ///< whether the selection has a length
    int GetRange(long start, long end, char16_t* buffer); ///< buffer: end - start + 1 units
    int GetCurLineNumber();                               ///< of the caret, from 0
    long GetCaretInLine();                                ///< units from the line's start
    int GotoLineCol(int line, int column);                ///< past the line's end too; always 0
    virtual QString
    GetLineText(int line); ///< with its line end; empty for a line that is not there
    /// The word at the place, empty if there is none; always 1.
    int GetWordFromPos(long position, QString& word, int onlyWordChars);
    /// The same under a pixel of the window.
    int GetWordFromPos(const CPoint& point, QString& word, int onlyWordChars);
    using CZNCoreEditorControl::SetWordChars;
    /// Tells the engine, and keeps them for IsWordChar.
    void SetWordChars(const char16_t* characters);
    bool IsWordChar(char16_t c) const;          ///< by SetWordChars; none before that
    void InsertChar(long position, char16_t c); ///< one unit; the caret stays where it is

    /// @}

    /// \name Selecting
    /// @{

    void SelectWord(); ///< the one at the caret
    void SelectLine(); ///< with its line end
    void SelectPara(); ///< the one that the caret is in
    void SwapAnchor(); ///< the caret goes to the selection's other end
    /// Those that grew into the one that stands: anchor and caret, the last one behind.
    std::vector<CharacterRange>& GrownSelections() { return m_grownSelections; }
    void SelectionFromTarget(); ///< selects the engine's target
    /// The selected name of a file, or the one around the caret, as far as 999 units.
    QString SelectionFilename();
    /// No blank, quote or bracket, nor a sign that shells read.
    static bool IsFilenameChar(char16_t c);

    /// @}

    /// \name Words and characters at the caret
    /// @{

    void WordDelete();     ///< the one at the caret
    void WordUpperCase();  ///< the one at the caret, which stays
    void WordLowerCase();  ///< the same
    void WordCapitalize(); ///< the same
    void Capitalize();     ///< the selected text; letters above 7F do not survive it
    void CharTranspose();  ///< the two characters around the caret, which stays where it is
    void WordTranspose();  ///< the halves of a word, or the words around the caret
    void NumPlus();        ///< the selected number; 0 if there is none
    void NumMinus();       ///< the same, one less

    /// Sorts the selected lines by a part of each (LineOrder.h) and trims them on the right. The
    /// last line of the selection is not among them: its text is gone, even where the selection
    /// only reaches its column 0, and an empty line is left behind the others.
    void SortLines(bool ascending, bool ignoreCase, bool keepDuplicates, int mode, int columnStart,
                   int columnEnd);
    /// Into each selected line: at its end for -1, else at the column, where the line is that long.
    void InsertTextIntoLines(int column, const QString& text);
    /// In front of each selected line: its number, padded with zeros, the text, and a blank.
    void InsertTextIntoLines(int firstNumber, const QString& text, int step, int width);

    /// @}

    /// \name Files and search
    /// @{

    /// At the caret, in the line ends of the mode. False if not all of it is in the text.
    bool InsertFile(const char16_t* path, FileEncodeConverter::encodingType encoding);
    /// Of a file that is open, which is closed here. False if not all of it is in the text.
    bool InsertFile(std::FILE* file, FileEncodeConverter::encodingType encoding);
    /// The place of the text in the range, which may run backwards; -1 if it is not there. By the
    /// search flags in force; the target is left at the match.
    int FindInTarget(const char16_t* text, int length, int start, int end);
    int FindOneOf(const QString& text, int start, const QString& set) const; ///< -1: none of them
    /// What a search would begin with: the selected text if it is short and on one line, else the
    /// word at the caret if it has two characters.
    QString GetFindString();
    bool HasFindString(); ///< true for every selection

    /// Bookmarks: those that ToggleBookmark set. Only with one of them do the others go anywhere.
    bool HasBookmarks() const { return !m_bookmarkHandles.empty(); }
    void ToggleBookmark(long line); ///< sets one on the line, or takes it away
    void NextBookmark();            ///< the next one, behind the last one the first
    void PreviousBookmark();        ///< the one before, before the first one the last
    void FirstBookmark();           ///< shows its line
    void LastBookmark();            ///< shows its line
    void ClearBookmarks();          ///< all of them
    /// Bookmarks on the lines of all matches of an expression, outside what the walks above know.
    /// How many matches; -1 for none. The search keeps these settings.
    int MarkAll(const QString& text, int matchCase);

    /// Sends the messages from the node on, each with the node's text (Macro.h); null does nothing.
    void PerformMacro(MacroHolder* node);

    /// @}

    /// \name Commands, and when they are possible
    /// @{

    bool CanCut();  ///< something is selected, and the text may be changed
    bool CanCopy(); ///< something is selected
    // A pair for each row of the table: the command, and what brings its item up to date.
#define ZN_COMMAND(id, handler, action, update, rule, menu)                                        \
    void handler();                                                                                \
    void update(CCmdUI& ui);
#define ZN_PLAIN(id, handler, action, menu) void handler();
#define ZN_OWN(id, handler, update, rule, menu)                                                    \
    void handler();                                                                                \
    void update(CCmdUI& ui);
#define ZN_OWN_PLAIN(id, handler, menu) void handler();
#define ZN_AGAIN(id, handler, update, menu)
#define ZN_AGAIN_PLAIN(id, handler, menu)
#define ZN_RULE(id, update, rule) void update(CCmdUI& ui);
#include "editing/ControlCommands.def"
    /// For a host's own numbers; no table has them.
    void OnEditSingleLineComment();
    void OnUpdateLineNumbers(CCmdUI& ui); ///< marked while they are shown
    /// Enables the items that stand for commands of the control, in submenus too, and leaves
    /// others.
    void SetDefaultMenuState(QMenu& menu);

    /// Pre-processing of scripts: the text with its directives expanded, in place and handed over.
    void GetWindowTextW(QString& text);
    /// Puts back what the last run, of whichever control, began with. Nothing happens if that run
    /// found no directive.
    void SetOriginalScript();
    bool GetIncludeOrDefineDirectivesFound() const; ///< by the last run, of whichever control
    /// Of this control's last run.
    bool HasPreprocessorErrors() const
    {
        return m_hasPreprocessorErrors;
    }
    /// Told by the run.
    void SetPreprocessorErrors(bool errors)
    {
        m_hasPreprocessorErrors = errors;
    }
    /// By the line of the expanded text.
    std::map<int, QString> GetIncludeDirectiveErrorMessageAndLine() const
    {
        return m_includeErrors;
    }
    /// The first message of a line stays.
    void SetIncludeDirectiveErrorMessageAndLine(const QString& message, int line);
    /// Folders for included files, separated by ";".
    void SetDatasourceSearchPath(const QString& path)
    {
        m_datasourceSearchPath = path;
    }
    /// @}

protected:
    int OnCreate(CCreateContext* context); ///< 0, or -1 if there is no window
    void OnDestroy();                      ///< the language and the menu go
    /// Closes the list of proposals, unless that has got the focus.
    void OnKillFocus(HWND newFocus);
    LRESULT OnContextMenu(CWnd* window, CPoint point); ///< not 0 if it was dealt with
    /// KOptionsChanged: takes the options anew.
    LRESULT OnAppRegistryChange(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetText(WPARAM wParam, LPARAM lParam); ///< WM_SETTEXT: replaces the text

    /// Writes a part of the text, in the system's code page and without a mark.
    bool DoSave(const char16_t* path, int start, int end);

    /// Cuts the first control word off a text of them; it is copied into control, of 128 bytes with
    /// its terminator, and style goes on to the next one. Empty at the text's end.
    void GetRTFNextControl(char** style, char* control);
    /// Into delta the control words of current that are others than last's, of six, and a blank
    /// behind them; then last becomes current. What does not fit is cut off.
    void GetRTFStyleChange(char* delta, unsigned int deltaSize, char* last, unsigned int lastSize,
                           char* current);

    /// Text of the range, cut to the buffer's length, its last line end taken away if so wished. An
    /// empty range first grows by the units that accept takes, up to the limit.
    void RangeExtendAndGrab(char16_t* buffer, int length, int& start, int& end, int limit,
                            bool (*accept)(char16_t), bool stripEol);
    /// The same from the selection on, which becomes the range.
    void SelectionExtend(char16_t* buffer, int length, bool (*accept)(char16_t), bool stripEol);
    /// into the settings of one language, in memory.
    void WriteOptions(CSyntaxFile& syntax, const LanguageOptions& options) const;
    void SetLineNumberWidth();                       ///< as wide as the last line's number needs it
    void AutoIndentIn(char16_t character);           ///< a line end was typed
    void AutoIndentOut(char16_t character);          ///< a brace was typed
    void SetLineIndentationEx(int line, int indent); ///< carries the selection along
    bool AutomaticCommenting();                      ///< whether a block comment was continued
    /// Converts the text, and sets what Enter puts in: 1 CR LF, 2 CR, 3 LF.
    void ChangeEOLs(int mode);

    /// "red,green,blue" in decimal; only the low byte of each counts, a missing one is 0.
    COLORREF COLORREFFromString(const QString& text);

    const MessageMap& GetMessageMap() const override;
    const CommandMap& GetCommandMap() const override;

    CZNCoreEditorControlExCallback* m_pCallback; ///< null: nobody is asked
    HACCEL m_hAccelerators = nullptr;            ///< keys of an editor that stands alone
    COLORREF m_backgroundColor; ///< kSystemWindow: the system's, whatever it is when it is drawn
    bool m_hasPreprocessorErrors = false;              ///< of this control's last run
    std::map<int, QString> m_includeErrors;            ///< by line
    bool m_saveConvertTabToSpaces = false;             ///< at a save
    bool m_saveTrimTrailingSpaces = false;             ///< at a save
    bool m_ensureFinalNewLine = false;                 ///< at a save
    bool m_visibleLineNumber = true;                   ///< whether the margin has line numbers
    QString m_wordChars;                               ///< of SetWordChars; empty before that
    int m_currentLanguage = 1;                         ///< its number
    int m_autoIndent = 0;                              ///< 0 none, 1 keep, 2 or more by "{" and "}"
    QString m_braces;                                  ///< the characters that count as braces
    std::vector<QString> m_singleLineComments;         ///< the markers, the first one in use
    std::vector<QString> m_blockComments;              ///< start and end in turn
    COLORREF m_defaultBackgroundColor = kSystemWindow; ///< where the options have none
    QString m_datasourceSearchPath;     ///< folders for included files, separated by ";"
    std::deque<int> m_bookmarkHandles;  ///< of those that ToggleBookmark set
    std::vector<unsigned> m_pageStarts; ///< by page, and the end behind the last one

    /// Stands for the system's colour of windows.
    static constexpr COLORREF kSystemWindow = 0xFFFFFFFF;

private:
    // The lines of the selection. One that it only reaches at column 0 is left out.
    struct Lines
    {
        int first;
        int last;
    };
    struct Selection // where what is left selected begins and ends
    {
        long start;
        long end;
        bool caretInFront;
    };
    Selection CurrentSelection();
    void Select(const Selection& selection);
    Lines SelectedLines();
    Lines LinesToCleanUp();
    std::u16string TextBetween(long start, long end);
    void ReplaceBetween(long start, long end, std::u16string_view text);
    template <class Rewrite>
    void RewriteLines(char16_t only, Rewrite rewrite);

    bool ChoosesLines(const Selection& selection, bool useBlock);
    bool TakeWordAtCaret(Selection& selection);
    bool CommentBlock(int index, Selection selection);
    bool CommentLines(int index, Selection selection);
    bool IsLineCommented(int index, long start, long end);
    bool UnCommentBlock(int index, const Selection& selection);
    bool UnCommentLines(int index, Selection selection);
    int CommentDepth(long position);

    void TransposeInWord(long caret);
    void TransposeAround(long caret);
    void AddToSelectedNumber(int step);
    template <class TextFor>
    void InsertIntoEachLine(TextFor textFor);
    bool HasBookmark(long line);
    void ForgetStaleHandles();
    void GotoBookmark(int line);

    QPoint MenuPlace(CPoint point);
    void ApplyDefaultEncoding();
    void MarkChangedAsSaved();
    void ForgetChangedLines();
    void ApplyColorMaxSize();
    // Chooses a printer and begins a document on it. Not 1 if the user thought better of it.
    int BeginPrintJob(CPrinterDC& dc, CPrintInfo& info, int& goesOn);

    std::vector<CharacterRange> m_grownSelections;
    bool m_isSaving = false;
    QString m_scheme;
    bool m_userSettingsFirst = false;
    QPointer<QObject> m_desktopWatch; // goes with the window
    std::size_t m_nextAsked = 0;      // of the bookmarks' handles
};

/// The text of a control in a dialog, in the direction that the exchange says. Nothing happens
/// without a window.
ZN_API void ZNDDX_Text(CDataExchange* exchange, CZNCoreEditorControlEx& control, QString& value);
