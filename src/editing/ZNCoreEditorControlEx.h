// CZNCoreEditorControlEx: the editor that a view, a dialog or a host holds. It binds itself to a
// language of the registry and to the host's options, reacts to what is typed, and carries the
// editing operations of a programmer's editor. Positions count UTF-16 units, lines count from 0.
// Created, used and destroyed on the GUI thread.
#pragma once

#include "control/ZNCoreEditorControl.h"
#include "platform/Accelerators.h"

#include <QString>

#include <map>
#include <vector>

class CDC;
class CFont;
class CWnd;
class CZNCoreEditorControlEx;
struct CDataExchange;
struct LOGFONT;

// What a control asks its surroundings.
class ZN_API CZNCoreEditorControlExCallback
{
public:
    virtual ~CZNCoreEditorControlExCallback();

    // Before a context menu is built. Not 0 if the menu is dealt with and nothing else is to
    // happen.
    virtual int OnBeforeContextMenu(CWnd* window, CPoint point);
};

// Without a language the control shows the engine's own looks in the font of the options.
class ZN_API CZNCoreEditorControlEx : public CZNCoreEditorControl
{
public:
    // The callback may be null and stays the caller's.
    explicit CZNCoreEditorControlEx(CZNCoreEditorControlExCallback* callback = nullptr);
    ~CZNCoreEditorControlEx() override;

    // Window and messages
    void PreSubclassWindow() override;
    int PreTranslateMessage(MSG* message) override;
    int OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    int HandleNotify(LPARAM lParam) override;
    using CZNCoreEditorControl::SetFocus;
    CWnd* SetFocus() override;
    void OnFillBackground(CDC* dc);

    // Files
    bool OpenFile(const char16_t* path, FileEncodeConverter::encodingType encoding) override;
    using CZNCoreEditorControl::SaveFile;
    // Cleans up as the language asks, then writes. The selection keeps its lines and columns as far
    // as they still exist.
    bool SaveFile(const char16_t* path, bool setSavePoint) override;
    // Reads the file again and goes back to the line, or to the end of a text that lacks it.
    virtual bool ReloadFile(const char16_t* path);
    // The selected text in the system's code page, without a mark. False if the file cannot be
    // opened; an empty selection makes an empty file.
    bool SaveSelection(const char16_t* path);

    // Language and appearance
    virtual void Reset();                             // forgets the comment markers
    int InitializeLanguage(int language, int unused); // binds it; always 1
    void SetCurrentLanguage(int language) { m_currentLanguage = language; } // binds nothing
    int GetCurrentLanguage() const { return m_currentLanguage; }
    virtual void SetEditorOptions(); // takes font, colours and behaviour from the options
    void SetLogFont(LOGFONT* font);  // for all styles of all languages; null does nothing
    // The options go into every language's settings in memory, and the language is bound again.
    void UpdateXmlSettingsFromOptionServerData(QString fontName, int fontSize, bool bold,
                                               bool italic, bool underline);
    virtual void SetFont(CFont* font);
    virtual void SetFont(LOGFONT& font);
    COLORREF GetBackgroundColor() const { return m_backgroundColor; }
    void SetDefaultBackgroundColor(COLORREF color) { m_defaultBackgroundColor = color; }
    // A size below 1 and a null face stay as they are.
    void SetAStyle(int style, COLORREF fore, COLORREF back, int size, const char16_t* face);
    virtual bool GetUseWordWrap();
    virtual void SetVisibleLineNumber(bool visible);
    bool IsVisibleLineNumber() const { return m_visibleLineNumber; }
    void SetExtendedMargin(bool on);
    void SetExtendedText(const char16_t* text, int length);
    void SetExtendedText(std::map<int, std::u16string>& texts);

    // Text
    int GetText(int length, char16_t* buffer, int direct);
    QString GetText();
    using CZNCoreEditorControl::GetSelText;
    QString GetSelText() override;
    void SetWindowTextW(const QString& text);
    QString GetWindowTextW(); // the selected text, or all if nothing is selected

    // Comment markers of the language: false for an empty marker, which is not stored.
    bool AddSingleLineComment(const QString& marker);
    bool AddBlockComment(const QString& start, const QString& end);
    QString GetSingleLineComment(int index) const;
    bool InsertFile(const char16_t* path, FileEncodeConverter::encodingType encoding);

    // Indentation and braces of the language
    int GetAutoIndent() const { return m_autoIndent; }
    void SetAutoIndent(int mode)
    {
        m_autoIndent = mode;
    } // 0 none, 1 keep, 2 or more by "{" and "}"
    void SetBraces(const QString& braces) { m_braces = braces; }

    // What a save cleans up
    bool IsSaveConvertTabToSpaces() const { return m_saveConvertTabToSpaces; }
    void SetSaveConvertTabToSpaces(bool convert) { m_saveConvertTabToSpaces = convert; }
    bool IsSaveTrimTrailingSpaces() const { return m_saveTrimTrailingSpaces; }
    void SetSaveTrimTrailingSpaces(bool trim) { m_saveTrimTrailingSpaces = trim; }
    bool IsEnsureFinalNewLine() const { return m_ensureFinalNewLine; }
    void SetEnsureFinalNewLine(bool ensure) { m_ensureFinalNewLine = ensure; }
    void ConvertTabToSpaces();
    void RemoveTrailingSpaces();
    void EnsureFinalNewLine();

    // Words and lines
    using CZNCoreEditorControl::SetWordChars;
    void SetWordChars(const char16_t* characters);
    bool IsSelection();

    // Commands, and when they are possible
    bool CanCut();
    bool CanCopy();
    void OnEditCut();
    void OnEditCopy();
    void OnEditPaste();
    void OnEditUndo();
    void OnEditRedo();
    void OnEditSelectall();
    void OnEditClear();
    void OnEditIndent();
    void OnEditOutdent();
    void OnEditUppercase();
    void OnEditLowercase();
    void OnLineNumbers();
    void OnViewZoomlevelZoomin();
    void OnViewZoomlevelZoomout();
    void OnViewZoomlevelZoomdefault();
    void OnUpdateEditCut(CCmdUI& ui);
    void OnUpdateEditCopy(CCmdUI& ui);
    void OnUpdateEditPaste(CCmdUI& ui);
    void OnUpdateEditUndo(CCmdUI& ui);
    void OnUpdateEditRedo(CCmdUI& ui);
    void OnUpdateEditClear(CCmdUI& ui);
    void OnUpdateEditIndent(CCmdUI& ui);
    void OnUpdateEditOutdent(CCmdUI& ui);
    void OnUpdateEditUppercase(CCmdUI& ui);
    void OnUpdateEditLowercase(CCmdUI& ui);
    void OnUpdateLineNumbers(CCmdUI& ui);

    // Pre-processing of scripts: the text with its directives expanded, in place and handed over.
    void GetWindowTextW(QString& text);
    // Puts back what the last run, of whichever control, began with. Nothing happens if that run
    // found no directive.
    void SetOriginalScript();
    bool GetIncludeOrDefineDirectivesFound() const;
    bool HasPreprocessorErrors() const { return m_hasPreprocessorErrors; }
    void SetPreprocessorErrors(bool errors) { m_hasPreprocessorErrors = errors; }
    // By the line of the expanded text.
    std::map<int, QString> GetIncludeDirectiveErrorMessageAndLine() const
    {
        return m_includeErrors;
    }
    // The first message of a line stays.
    void SetIncludeDirectiveErrorMessageAndLine(const QString& message, int line);
    // Folders for included files, separated by ";".
    void SetDatasourceSearchPath(const QString& path) { m_datasourceSearchPath = path; }

protected:
    int OnCreate(CCreateContext* context); // 0, or -1 if there is no window
    void OnDestroy();
    void OnKillFocus(HWND newFocus);
    LRESULT OnAppRegistryChange(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetText(WPARAM wParam, LPARAM lParam);

    bool DoSave(const char16_t* path, int start, int end);
    void SetLineNumberWidth();
    void AutoIndentIn(char16_t character);
    void AutoIndentOut(char16_t character);

    // "red,green,blue" in decimal; only the low byte of each counts, a missing one is 0.
    COLORREF COLORREFFromString(const QString& text);

    const MessageMap& GetMessageMap() const override;
    const CommandMap& GetCommandMap() const override;

    CZNCoreEditorControlExCallback* m_pCallback;
    HACCEL m_hAccelerators = nullptr;
    COLORREF m_backgroundColor; // kSystemWindow: the system's, whatever it is when it is drawn
    bool m_hasPreprocessorErrors = false;
    std::map<int, QString> m_includeErrors; // by line
    bool m_saveConvertTabToSpaces = false;
    bool m_saveTrimTrailingSpaces = false;
    bool m_ensureFinalNewLine = false;
    bool m_visibleLineNumber = true;
    QString m_wordChars;
    int m_currentLanguage = 1;
    int m_autoIndent = 0;
    QString m_braces;
    std::vector<QString> m_singleLineComments;
    std::vector<QString> m_blockComments; // start and end in turn
    COLORREF m_defaultBackgroundColor = kSystemWindow;
    QString m_datasourceSearchPath;

    static constexpr COLORREF kSystemWindow = 0xFFFFFFFF;

private:
    void ApplyDefaultEncoding();
    void ApplyColorMaxSize();
};

// The text of a control in a dialog, in the direction that the exchange says. Nothing happens
// without a window.
ZN_API void ZNDDX_Text(CDataExchange* exchange, CZNCoreEditorControlEx& control, QString& value);
