// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench's window: the tabs, the menus that act on the script in front, the status bar. The
// scripts are the application's documents.
#pragma once

#include "host/files/FileDrops.h"
#include "host/session/Session.h"
#include "host/window/PlaceHistory.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>

#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <vector>

class CZNCoreEditorControlEx;
class CommandKeys;
class EditingMenu;
class ExpandedScript;
class FindBar;
class FolderPane;
class LanguageMenu;
class MainFrame;
class OutlinePane;
class ProblemPane;
class QTimer;
class ResultsPane;
class ScriptDoc;
class ScriptFrame;
class ScriptTabs;
class StatusIndicators;
class Workbench;
struct Symbol;

// Made with new: it goes when it is closed, or with the application.
class MainWindow final : public QMainWindow, public FolderShower
{
    Q_OBJECT

public:
    explicit MainWindow(Workbench& app);
    ~MainWindow() override;

    // Opens files as a command line names them, path or path:line, and shows the first of them.
    // False if one was not opened, of which the person knows.
    bool OpenPlaces(const QStringList& words);
    // The same for another start of the program: the window comes to the front, and opens them
    // when no question stands.
    void OpenForLaterStart(const QStringList& words, const QByteArray& token);

    ScriptFrame* CurrentFrame() const; // null if there is none
    ScriptFrame* FrameAt(int index) const;
    CZNCoreEditorControlEx* CurrentEditor() const; // of its active pane
    int TabCount() const;
    void ShowTab(int index);

    // What was open when the last window closed, and where that stood: the script in front at
    // once, the others one by one as long as nothing else is to be done. From here on it is kept
    // up to date.
    void ResumeSession();
    void FinishResuming(); // reads at once what is left of it
    bool IsResuming() const;
    void EndSession(); // the last state is that of this moment

    FindBar& Find() const { return *m_find; } // in the script in front
    void SetLanguage(int language);           // of the current script
    void FollowOptions();                     // in every script, at once
    void UpdateAll();                         // what is shown of the script in front
    // Likewise, with the marks in its margin, at once: a menu that opens and a key that may be one
    // of a menu's cannot wait until the keys rest.
    void FollowNow();
    void ShowFolder(const QString& path) override; // in its pane, which takes the keyboard

    // The commands of the menus that are the window's own.
    void OpenFolder();
    void GoToSymbol();
    void ReopenClosed();
    void ShowKeys();
    void ShowAboutBox();
    void ShowWhitespace(bool show);
    void ShowLineEnds(bool show);
    void WrapLines(bool wrap);
    void ShowDocumentMap(bool show);
    void NextProblem() { GoToProblem(true); }
    void PreviousProblem() { GoToProblem(false); }
    void GoToProblem(bool forward);
    void GoBack();
    void GoForward();
    void FindInFiles();
    void NextResult(); // of the pane that a search was shown in last
    void PreviousResult();
    void StopSearch();
    void ExpandScript();
    void ShowCommands();
    void OpenField(const QString& field);
    void PopUpActions(std::initializer_list<const char*> names); // at the mouse
    void ChangeOptions();
    void ChangeAutosave();
    void ShowScripts();
    void LastUsedScript();
    void LongestUnusedScript();
    void NextScript();
    void PreviousScript();
    void NextArea();
    void GoToScript();

protected:
    bool event(QEvent* event) override;

private:
    struct Command;
    enum class When;
    class SearchLine;
    class FoundTexts;
    static std::span<const Command> Commands();

    void BuildMenus();
    QAction* AddCommand(const Command& command);
    bool IsPossible(When when) const;
    void UpdateCommands();
    void ShowViewOf(CZNCoreEditorControlEx* editor);
    void OpenRecent(const QString& path);
    void OpenBehind(const QString& path);
    void OpenAsked();

    void OnTabAdded(QWidget* page);
    void OnCurrentChanged();
    void CloseTab(int index);
    void Follow(ScriptDoc& script);
    void OnScriptChanged(ScriptDoc& script);
    void ApplyView(const ScriptDoc& script);
    void ApplyViewToAll();
    void ListProblems();
    void ShowSource(const QString& path, long line);
    void UpdateTitle();
    void BuildResults();
    void TellResults(const ScriptDoc& script); // that its text has changed
    void TellOfScripts();                      // that one has been opened, closed or saved
    void BuildSidebars();
    void ShareSide();
    void UpdateOutlineSoon();
    void UpdateOutline();
    void OutlineByIndex(ScriptDoc& script, const QString& language);
    void OnNamesRead(const ScriptDoc& script);
    void ShowOutline(std::vector<Symbol> symbols, const QString& language);
    void SelectInScript(long start, long end);
    static QString LanguageOf(const ScriptDoc& script); // its name
    bool OfferNewFile(const QString& path); // where there is none; false: it is not wanted
    void MakeLanguageDefault();
    std::shared_ptr<void> MakeSearchLine();
    void ShowResults(); // of the last search
    void ShowMatch(long line, long column, long length);

    void BuildPlaces();
    void FollowPlaces(ScriptDoc& script);
    void NotePlace();
    void NotePlaceSoon();
    void NotePlaceIn(const ScriptFrame& frame);
    bool CanGoForward() const;
    bool ShowPlace(const PlaceHistory::Place& place);

    void KeepSessionSoon();
    void KeepSession();
    bool PutSessionAside();
    void ResumeInFront(std::size_t index);
    void ResumeBehind(std::size_t index);
    bool ResumeNext(); // false if there is none
    void ResumeAtLeisure();
    void ResumeOpened(const QString& path); // the one that is being opened
    void AddUnread(Session& session, QList<const QWidget*> pages) const;
    ScriptFrame* OpenAgain(const SessionFile& file);
    QWidget* Resume(const SessionFile& file); // its page; null if it is not opened
    void NoteLeft(const QWidget* page);       // how the script is shown whose tab goes
    void ReopenAsLeft(const QString& path);

    struct ResumedTab
    {
        SessionFile file;
        QPointer<QWidget> page; // null until it is read, and once it is closed
        bool isRead = false;    // or refused
    };

    Workbench& m_app;
    MainFrame* m_frame; // goes with this window
    ScriptTabs* m_tabs;
    StatusIndicators* m_status;
    LanguageMenu* m_languages = nullptr;
    ProblemPane* m_problems;
    ExpandedScript* m_expanded;
    std::shared_ptr<FoundTexts> m_foundTexts;
    OutlinePane* m_outline = nullptr;
    FolderPane* m_folder = nullptr;
    QTimer* m_outlineTimer = nullptr;
    std::shared_ptr<PlaceHistory> m_places;
    QTimer* m_placeTimer = nullptr;
    QPointer<QWidget> m_placePage;       // of the script that was in front when it was started
    std::size_t m_outlined = 0;          // of which text the outline is
    std::vector<ResultsPane*> m_results; // two of them
    ResultsPane* m_shownResults = nullptr;
    std::shared_ptr<void> m_searchLine; // what a search as one types says
    EditingMenu* m_editing = nullptr;
    FindBar* m_find = nullptr;
    QTimer* m_sessionTimer;
    QList<QAction*> m_actions; // of the named commands, in their order
    std::unique_ptr<CommandKeys> m_keys;
    std::vector<ResumedTab> m_resumed; // in the order of the tabs
    QTimer* m_resumeTimer;
    QElapsedTimer m_sinceResume;
    bool m_keepsSession = false;
    QList<SessionFile> m_left; // scripts whose tabs went, the last one last
    // Once a person has chosen; until then as each language has it.
    std::optional<bool> m_showWhitespace;
    std::optional<bool> m_showLineEnds;
    std::optional<bool> m_wrapLines;
    bool m_showsMap = false;
};
