// The workbench's window: tabs of scripts, the menus that act on them, the status bar.
#pragma once

#include <QMainWindow>

#include <span>
#include <vector>

class EditingMenu;
class EditorTab;
class ExpandedScript;
class LanguageMenu;
class ProblemPane;
class Prompts;
struct SaveTarget;
class QTabWidget;
class StatusIndicators;

class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    // The prompts outlive the window.
    explicit MainWindow(Prompts& prompts);
    ~MainWindow() override;

    // Opens a script in a tab, or shows the tab that has it. Empty if it did, else a sentence that
    // tells why it did not.
    QString OpenScript(const QString& path);

    EditorTab* CurrentTab() const;
    EditorTab* TabAt(int index) const;
    int TabCount() const;
    void ShowTab(int index);

    void SetLanguage(int language); // of the current script
    void FollowOptions();           // in every script, at once

    // The commands of the menus. Those with a result answer false when the person, or a failure,
    // kept things as they were.
    void NewScript();
    void Open();
    bool Save();
    bool SaveAs();
    void CloseScript();
    void Quit();
    void Undo();
    void Redo();
    void Cut();
    void Copy();
    void Paste();
    void Delete();
    void SelectAll();
    void ZoomIn();
    void ZoomOut();
    void ResetZoom();
    void ShowWhitespace(bool show);
    void ShowLineEnds(bool show);
    void WrapLines(bool wrap);
    void NextProblem();
    void ExpandScript();
    void ChangeOptions();
    void ChangeAutosave();
    void NextScript();
    void PreviousScript();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Command;
    enum class When;
    static std::span<const Command> Commands();

    void BuildMenus();
    QAction* AddCommand(const Command& command);
    bool IsPossible(When when) const;
    void UpdateCommands();

    EditorTab* AddTab();
    void CloseTab(int index);
    bool SaveTab(EditorTab& tab);
    bool SaveTabAs(EditorTab& tab);
    bool WriteTab(EditorTab& tab, const SaveTarget& target);
    bool MayLose(EditorTab& tab);
    void ApplyView(const EditorTab& tab);
    void ApplyViewToAll();
    int IndexOfFile(const QString& path) const;
    QString FolderToStartIn() const;
    void OnTabChanged(EditorTab* tab);
    void ListProblems();
    void ShowSource(const QString& path, long line);
    void UpdateCaptions(EditorTab* tab);
    void UpdateAll();

    Prompts& m_prompts;
    QTabWidget* m_tabs;
    StatusIndicators* m_status;
    LanguageMenu* m_languages = nullptr;
    ProblemPane* m_problems;
    ExpandedScript* m_expanded;
    EditingMenu* m_editing = nullptr;
    std::vector<QAction*> m_actions; // of the named commands, in their order
    int m_untitledCount = 0;
    bool m_clipboardHasText = false;
    bool m_showWhitespace = false;
    bool m_showLineEnds = false;
    bool m_wrapLines = false;
};
