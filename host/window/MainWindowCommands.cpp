// SPDX-License-Identifier: GPL-3.0-or-later
// The menus of the workbench: what each command is called, its keys, and when it is possible.
//
// Keys: a menu's shortcut comes first, then the key table of the view with the focus, then the
// editor. Where the table has a key of a menu, both stand for the same command.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/commands/CommandKeys.h"
#include "host/commands/WorkbenchCommands.h"
#include "host/expanded/ExpandedScript.h"
#include "host/finding/FindBar.h"
#include "host/finding/ResultsPane.h"
#include "host/folder/FolderPane.h"
#include "host/help/About.h"
#include "host/help/KeysDialog.h"
#include "host/outline/OutlinePane.h"
#include "host/problems/ProblemPane.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptTabs.h"
#include "host/script/ScriptView.h"
#include "host/window/CommandPalette.h"
#include "host/window/EditingMenu.h"
#include "host/window/FieldMenus.h"
#include "host/window/LanguageMenu.h"
#include "host/window/MainFrame.h"
#include "host/window/MainWindow.h"
#include "host/window/MenuKeys.h"
#include "host/window/Reasons.h"
#include "host/window/RecentMenu.h"
#include "host/window/SchemeMenu.h"
#include "host/window/ToolBar.h"
#include "host/window/Workbench.h"
#include "platform/docview/CommandIds.h"
#include "platform/windows/ActionUI.h"

#include <QAction>
#include <QCursor>
#include <QDockWidget>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <type_traits>

enum class MainWindow::When
{
    Always,
    Script, // a script is shown
    SeveralScripts,
    SomethingClosed,
    SomethingForward,
};

// A row has the number of a command, which is routed from the script in front to the application
// and says itself when it is possible; or, with 0, an operation of the window.
struct MainWindow::Command
{
    const char* menu;
    const char* name; // the action's object name; null: a separator
    const char* text = nullptr;
    QKeySequence::StandardKey keys = QKeySequence::UnknownKey;
    const char* moreKeys = nullptr; // where the platform has none, or not all that people try
    UINT id = 0;
    When when = When::Always;
    void (*run)(MainWindow& window, bool checked) = nullptr;
    bool checkable = false;
};

namespace {

// The menus, told apart by their addresses.
constexpr const char* kFile = QT_TRANSLATE_NOOP("MainWindow", "&File");
constexpr const char* kEdit = QT_TRANSLATE_NOOP("MainWindow", "&Edit");
constexpr const char* kSearch = QT_TRANSLATE_NOOP("MainWindow", "&Search");
constexpr const char* kView = QT_TRANSLATE_NOOP("MainWindow", "&View");
constexpr const char* kTools = QT_TRANSLATE_NOOP("MainWindow", "&Tools");
constexpr const char* kHelp = QT_TRANSLATE_NOOP("MainWindow", "&Help");

template <auto Member>
void Run(MainWindow& window, bool checked)
{
    if constexpr (std::is_invocable_v<decltype(Member), MainWindow&, bool>)
        (window.*Member)(checked);
    else
        (window.*Member)();
}

} // namespace

std::span<const MainWindow::Command> MainWindow::Commands()
{
    using Key = QKeySequence;
    using W = MainWindow;
    // clang-format off
    static const Command commands[] = {
        {kFile, "new",       QT_TR_NOOP("&New"),          Key::New,          nullptr,        ID_FILE_NEW},
        {kFile, "open",      QT_TR_NOOP("&Open..."),      Key::Open,         nullptr,        ID_FILE_OPEN},
        {kFile, "openAs",    QT_TR_NOOP("Open &with Encoding..."), Key::UnknownKey, "Ctrl+Shift+O", command::OpenAs},
        {kFile, "openFolder", QT_TR_NOOP("Open Fold&er..."), Key::UnknownKey, nullptr,       0, When::Always, Run<&W::OpenFolder>},
        {kFile, nullptr},
        {kFile, "openAtCaret", QT_TR_NOOP("Open a&t Caret"), Key::UnknownKey, "F12",         54026},
        {kFile, "save",      QT_TR_NOOP("&Save"),         Key::Save,         nullptr,        ID_FILE_SAVE},
        {kFile, "saveAs",    QT_TR_NOOP("Save &As..."),   Key::SaveAs,       "Ctrl+Shift+S", ID_FILE_SAVE_AS},
        {kFile, "saveAll",   QT_TR_NOOP("Save A&ll"),     Key::UnknownKey,   "Ctrl+Alt+S",   command::SaveAll},
        {kFile, "reload",    QT_TR_NOOP("Reloa&d"),       Key::UnknownKey,   nullptr,        54008},
        {kFile, "readOnlySwitch", QT_TR_NOOP("Read Onl&y"), Key::UnknownKey, nullptr,        54010},
        {kFile, nullptr},
        {kFile, "print",     QT_TR_NOOP("&Print..."),     Key::Print,        nullptr,        ID_FILE_PRINT},
        {kFile, "printPreview", QT_TR_NOOP("Print Pre&view..."), Key::UnknownKey, nullptr,   ID_FILE_PRINT_PREVIEW},
        {kFile, "savePdf",   QT_TR_NOOP("Save as PD&F..."), Key::UnknownKey, nullptr,        command::SavePdf},
        {kFile, "saveHtml",  QT_TR_NOOP("Save as &HTML..."), Key::UnknownKey, nullptr,       command::SaveHtml},
        {kFile, nullptr},
        {kFile, "close",     QT_TR_NOOP("&Close"),        Key::Close,        "Ctrl+W",       ID_FILE_CLOSE},
        {kFile, "reopenClosed", QT_TR_NOOP("Reopen Closed Ta&b"), Key::UnknownKey, "Ctrl+Shift+T", 0, When::SomethingClosed, Run<&W::ReopenClosed>},
        {kFile, "quit",      QT_TR_NOOP("&Quit"),         Key::Quit,         "Ctrl+Q",       ID_APP_EXIT},

        {kEdit, "undo",      QT_TR_NOOP("&Undo"),         Key::Undo,         nullptr,  57643},
        {kEdit, "redo",      QT_TR_NOOP("&Redo"),         Key::Redo,         "Ctrl+Y", 57644},
        {kEdit, nullptr},
        {kEdit, "cut",       QT_TR_NOOP("Cu&t"),          Key::Cut,          nullptr,  57635},
        {kEdit, "copy",      QT_TR_NOOP("&Copy"),         Key::Copy,         nullptr,  57634},
        {kEdit, "copyWithColours", QT_TR_NOOP("Copy wit&h Colours"), Key::UnknownKey, "Ctrl+Shift+C", command::CopyWithColours},
        {kEdit, "paste",     QT_TR_NOOP("&Paste"),        Key::Paste,        nullptr,  57637},
        {kEdit, "delete",    QT_TR_NOOP("&Delete"),       Key::Delete,       nullptr,  53899},
        {kEdit, nullptr},
        {kEdit, "selectAll", QT_TR_NOOP("Select &All"),   Key::SelectAll,    nullptr,  57642},
        {kEdit, nullptr},
        {kEdit, "completeWord", QT_TR_NOOP("Complete Word"), Key::UnknownKey, "Ctrl+Space",     53952},
        {kEdit, "showCall",  QT_TR_NOOP("Function Arguments"), Key::UnknownKey, "Ctrl+Alt+Space", command::ShowCall},
        {kEdit, "insertTemplate", QT_TR_NOOP("Insert Template..."), Key::UnknownKey, "Ctrl+Shift+J", command::InsertTemplate},

        {kSearch, "findDialog",     QT_TR_NOOP("Find with a &Dialog..."),    Key::UnknownKey, "Ctrl+Alt+F", 53895},
        {kSearch, "replaceDialog",  QT_TR_NOOP("R&eplace with a Dialog..."), Key::UnknownKey, "Ctrl+Alt+R", 53896},
        {kSearch, "goToLine",       QT_TR_NOOP("&Go to Line..."),            Key::UnknownKey, "Ctrl+G",     54049},
        {kSearch, "goToSymbol",     QT_TR_NOOP("Go to S&ymbol..."),          Key::UnknownKey, "Ctrl+Shift+G", 0, When::Script, Run<&W::GoToSymbol>},
        {kSearch, "back",           QT_TR_NOOP("Back"),                     Key::UnknownKey, "Alt+Left",   0, When::Script, Run<&W::GoBack>},
        {kSearch, "forward",        QT_TR_NOOP("Forward"),                  Key::UnknownKey, "Alt+Right",  0, When::SomethingForward, Run<&W::GoForward>},
        {kSearch, nullptr},
        {kSearch, "findInFiles",    QT_TR_NOOP("Find in F&iles..."), Key::UnknownKey, "Ctrl+Shift+F", 0, When::Always, Run<&W::FindInFiles>},
        {kSearch, "nextResult",     QT_TR_NOOP("Ne&xt Result"),      Key::UnknownKey, "F4",           0, When::Always, Run<&W::NextResult>},
        {kSearch, "previousResult", QT_TR_NOOP("Previous Resul&t"),  Key::UnknownKey, "Shift+F4",     0, When::Always, Run<&W::PreviousResult>},
        {kSearch, "stopSearch",     QT_TR_NOOP("&Stop Search"),      Key::UnknownKey, nullptr,        0, When::Always, Run<&W::StopSearch>},

        {kView, "zoomIn",    QT_TR_NOOP("Zoom &In"),      Key::ZoomIn,       "Ctrl+=", 53962},
        {kView, "zoomOut",   QT_TR_NOOP("Zoom &Out"),     Key::ZoomOut,      nullptr,  53963},
        {kView, "zoomReset", QT_TR_NOOP("&Reset Zoom"),   Key::UnknownKey,   "Ctrl+0", 53964},
        {kView, nullptr},
        {kView, "whitespace", QT_TR_NOOP("&Whitespace"),  Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::ShowWhitespace>, true},
        {kView, "lineEnds",   QT_TR_NOOP("Line &Ends"),   Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::ShowLineEnds>,   true},
        {kView, "wrap",       QT_TR_NOOP("Wrap &Lines"),  Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::WrapLines>,      true},
        {kView, "documentMap", QT_TR_NOOP("&Document Map"), Key::UnknownKey, nullptr,  0, When::Always, Run<&W::ShowDocumentMap>, true},
        {kView, nullptr},
        {kView, "splitBelow",  QT_TR_NOOP("Split &Above and Below"), Key::UnknownKey, "Ctrl+\\",       command::SplitBelow},
        {kView, "splitBeside", QT_TR_NOOP("Split Side b&y Side"),    Key::UnknownKey, "Ctrl+Shift+\\", command::SplitBeside},
        {kView, "otherPane",   QT_TR_NOOP("Ot&her Pane"),            Key::UnknownKey, "F6",            command::OtherPane},
        {kView, "previousPane", QT_TR_NOOP("Previous Pane"),        Key::UnknownKey, "Alt+F6", command::PreviousPane},
        {kView, "nextArea",    QT_TR_NOOP("&Next Area"),             Key::UnknownKey, "Shift+F6",      0, When::Script, Run<&W::NextArea>},
        {kView, "newView",     QT_TR_NOOP("New &View"),              Key::UnknownKey, nullptr,         ID_WINDOW_NEW},
        {kView, nullptr},
        {kView, "nextProblem", QT_TR_NOOP("Next Problem"), Key::UnknownKey, "F8",   0, When::Script, Run<&W::NextProblem>},
        {kView, "previousProblem", QT_TR_NOOP("Previous Problem"), Key::UnknownKey, "Shift+F8", 0, When::Script, Run<&W::PreviousProblem>},
        {kView, nullptr},
        {kView, "goToScript", QT_TR_NOOP("&Go to Script..."), Key::UnknownKey,   "Ctrl+E", 0, When::Script, Run<&W::ShowScripts>},
        {kView, "lastUsed",  QT_TR_NOOP("Las&t Used Script"), Key::NextChild,    "Ctrl+Tab", 0, When::SeveralScripts, Run<&W::LastUsedScript>},
        {kView, "longestUnused", QT_TR_NOOP("Longest Unused Script"), Key::PreviousChild, "Ctrl+Shift+Tab", 0, When::SeveralScripts, Run<&W::LongestUnusedScript>},
        {kView, "next",      QT_TR_NOOP("Next Script"),     Key::UnknownKey,    "Ctrl+PgDown", 0, When::SeveralScripts, Run<&W::NextScript>},
        {kView, "previous",  QT_TR_NOOP("Previous Script"), Key::UnknownKey,    "Ctrl+PgUp", 0, When::SeveralScripts, Run<&W::PreviousScript>},

        {kTools, "expand",   QT_TR_NOOP("&Expanded Script"), Key::UnknownKey, "F9",    0, When::Script, Run<&W::ExpandScript>},
        {kTools, nullptr},
        {kTools, "recordMacro", QT_TR_NOOP("&Record Macro"),    Key::UnknownKey, "Ctrl+Shift+R", 53938},
        {kTools, "playMacro", QT_TR_NOOP("Pla&y Macro"),        Key::UnknownKey, "Ctrl+Shift+P", 53989},
        {kTools, "repeatMacro", QT_TR_NOOP("Repea&t Macro..."), Key::UnknownKey, nullptr,        53939},
        {kTools, "saveMacro", QT_TR_NOOP("&Save Macro..."),     Key::UnknownKey, nullptr,        53990},
        {kTools, "loadMacro", QT_TR_NOOP("&Load Macro..."),     Key::UnknownKey, nullptr,        53991},
        {kTools, nullptr},
        {kTools, "editTemplates", QT_TR_NOOP("Edit Te&mplates"), Key::UnknownKey, nullptr,       53950},
        {kTools, nullptr},
        {kTools, "commands", QT_TR_NOOP("&Commands..."),  Key::UnknownKey,   "Ctrl+Shift+A", 0, When::Always, Run<&W::ShowCommands>},
        {kTools, "options",  QT_TR_NOOP("&Options..."),   Key::Preferences,  "Ctrl+,", 0, When::Always, Run<&W::ChangeOptions>},
        {kTools, "preferences", QT_TR_NOOP("Editor and Language &Preferences..."), Key::UnknownKey, nullptr, command::Preferences},
        {kTools, "autosave", QT_TR_NOOP("&Autosave..."),  Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::ChangeAutosave>},

        {kHelp, "keys",      QT_TR_NOOP("&Keys"),         Key::HelpContents, nullptr,  0, When::Always, Run<&W::ShowKeys>},
        {kHelp, "about",     QT_TR_NOOP("&About"),     Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::ShowAboutBox>},
    };
    // clang-format on
    return commands;
}

QAction* MainWindow::AddCommand(const Command& command)
{
    auto* action = new QAction(tr(command.text), this);
    action->setObjectName(QLatin1String(command.name));
    QList<QKeySequence> keys = KnownKeys(QKeySequence::keyBindings(command.keys));
    const QKeySequence more(QLatin1String(command.moreKeys));
    if (!more.isEmpty() && !keys.contains(more))
        keys << more;
    action->setShortcuts(keys);
    action->setCheckable(command.checkable);
    if (command.id != 0)
        SetCommand(*action, command.id, this);
    else
        connect(action, &QAction::triggered, this,
                [this, run = command.run](bool checked) { run(*this, checked); });
    return action;
}

void MainWindow::BuildMenus()
{
    m_languages = new LanguageMenu(this);
    connect(m_languages, &LanguageMenu::Chosen, this, &MainWindow::SetLanguage);
    connect(m_languages, &LanguageMenu::DefaultWanted, this, &MainWindow::MakeLanguageDefault);
    auto* recent = new RecentMenu(m_app.Recent(), this);
    connect(recent, &RecentMenu::Chosen, this, &MainWindow::OpenRecent);
    auto* schemes = new SchemeMenu(this);
    connect(schemes, &SchemeMenu::Chosen, this,
            [this](const QString& name) { m_app.ChooseScheme(name); });
    QMenu* menu = nullptr;
    QMenu* edit = nullptr;
    const char* title = nullptr;
    QToolBar* bar = AddToolBar(*this);
    for (const Command& command : Commands()) {
        if (command.menu != title) {
            title = command.menu;
            if (title == kTools) {
                for (const auto& [pane, text] :
                     {std::pair(m_problems->toggleViewAction(), QT_TR_NOOP("&Problems")),
                      {m_outline->toggleViewAction(), QT_TR_NOOP("O&utline")},
                      {m_folder->toggleViewAction(), QT_TR_NOOP("&Folder")},
                      {m_expanded->toggleViewAction(), QT_TR_NOOP("E&xpanded Script")},
                      {m_results[0]->toggleViewAction(), QT_TR_NOOP("Find Re&sults")},
                      {m_results[1]->toggleViewAction(), QT_TR_NOOP("Find Results &2")},
                      {bar->toggleViewAction(), QT_TR_NOOP("Tool &Bar")}}) {
                    pane->setText(tr(text)); // that of the pane, with a letter
                    if (const auto* dock = qobject_cast<QDockWidget*>(pane->parent()))
                        connect(dock, &QWidget::windowTitleChanged, pane,
                                [pane = pane, text = text] { pane->setText(tr(text)); });
                    menu->addAction(pane);
                }
                menuBar()->addMenu(m_languages);
            }
            menu = menuBar()->addMenu(tr(title));
            if (title == kEdit)
                edit = menu;
            if (title == kSearch) {
                m_find->AddActions(*menu);
                menu->addSeparator();
            }
        }
        if (command.name)
            menu->addAction(m_actions.emplace_back(AddCommand(command)));
        else
            menu->addSeparator();
        if (command.id == command::OpenAs)
            menu->addMenu(recent);
        if (command.name && QLatin1String(command.name) == QLatin1String("documentMap"))
            menu->addMenu(schemes);
    }
    m_editing = new EditingMenu(*edit, [this] {
        const ScriptFrame* frame = CurrentFrame();
        return frame ? frame->View() : nullptr;
    });
    GiveFirstKeysWay(findChildren<QAction*>());
    m_keys = std::make_unique<CommandKeys>(CommandsOf(*menuBar()));
    FillToolBar(*bar, *this);
    for (QMenu* each : menuBar()->findChildren<QMenu*>()) {
        connect(each, &QMenu::aboutToShow, this, [this, each] {
            FollowNow();
            ExplainEntries(*each, CurrentEditor());
        });
    }
}

bool MainWindow::IsPossible(When when) const
{
    switch (when) {
    case When::Script:
        return CurrentFrame() != nullptr;
    case When::SeveralScripts:
        return TabCount() > 1 || IsResuming();
    case When::SomethingClosed:
        return m_tabs->HasClosed();
    case When::SomethingForward:
        return CanGoForward();
    default:
        return true;
    }
}

void MainWindow::UpdateCommands()
{
    UpdateActions(m_actions, *m_frame);
    const ScriptFrame* frame = CurrentFrame();
    const bool isRecording = frame && frame->View()->IsRecording();
    // The view's own words have no letter to press.
    findChild<QAction*>(QStringLiteral("recordMacro"))
        ->setText(isRecording ? tr("Stop &Recording") : tr("&Record Macro"));
    auto action = m_actions.begin();
    for (const Command& command : Commands()) {
        if (command.name && command.id == 0)
            (*action)->setEnabled(IsPossible(command.when));
        if (command.name)
            ++action;
    }
    m_expanded->toggleViewAction()->setEnabled(frame || m_expanded->isVisible());
    ShowViewOf(CurrentEditor());
    m_editing->Update();
    m_find->Update();
}

// What is shown follows the language until a person chooses.
void MainWindow::ShowViewOf(CZNCoreEditorControlEx* editor)
{
    const auto mark = [this](const char* name, bool on) {
        findChild<QAction*>(QLatin1String(name))->setChecked(on);
    };
    mark("documentMap", m_showsMap);
    if (!editor)
        return;
    mark("whitespace", editor->GetViewWS(1) != 0);
    mark("lineEnds", editor->GetViewEOL(1) != 0);
    mark("wrap", editor->GetWrapMode(1) != 0);
}

void MainWindow::ShowWhitespace(bool show)
{
    m_showWhitespace = show;
    ApplyViewToAll();
}

void MainWindow::ShowLineEnds(bool show)
{
    m_showLineEnds = show;
    ApplyViewToAll();
}

void MainWindow::WrapLines(bool wrap)
{
    m_wrapLines = wrap;
    ApplyViewToAll();
}

void MainWindow::ShowDocumentMap(bool show)
{
    m_showsMap = show;
    ApplyViewToAll();
    KeepSessionSoon();
}

void MainWindow::ReopenClosed()
{
    if (const QString path = m_tabs->TakeClosed(); !path.isEmpty())
        ReopenAsLeft(path);
    UpdateCommands();
}

void MainWindow::ShowKeys()
{
    (new KeysDialog(*menuBar(), *m_keys, this))->show();
}

void MainWindow::ShowAboutBox()
{
    ShowAbout(this);
}

void MainWindow::ShowCommands()
{
    auto* palette = new CommandPalette(*menuBar(), this);
    const QPoint top = mapToGlobal(QPoint((width() - palette->width()) / 2, menuBar()->height()));
    palette->move(top);
    palette->show();
}

void MainWindow::PopUpActions(std::initializer_list<const char*> names)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const char* name : names) {
        if (auto* action = findChild<QAction*>(QLatin1String(name)))
            menu->addAction(action);
    }
    menu->popup(QCursor::pos());
}

// Of a field of the status bar that was clicked: what changes the thing it shows.
void MainWindow::OpenField(const QString& field)
{
    struct Way
    {
        const char* field;
        const char* action;
    };
    static constexpr Way kWays[] = {
        {"caret", "goToLine"},        {"readOnly", "readOnlySwitch"}, {"modified", "save"},
        {"recording", "recordMacro"}, {"problemCount", "problems"},
    };
    if (field == QLatin1String("language")) {
        m_languages->popup(QCursor::pos());
        return;
    }
    if (field == QLatin1String("path")) {
        m_tabs->ShowMenu(m_tabs->currentIndex(), QCursor::pos());
        return;
    }
    CZNCoreEditorControlEx* editor = CurrentEditor();
    if (editor && field == QLatin1String("zoom"))
        ZoomMenu(*editor, this)->popup(QCursor::pos());
    if (editor && field == QLatin1String("indentation")) {
        QMenu* menu = IndentationMenu(*editor, this);
        connect(menu, &QMenu::triggered, this, &MainWindow::UpdateAll);
        menu->popup(QCursor::pos());
    }
    if (field == QLatin1String("lineEnds"))
        PopUpActions({"endsWindows", "endsUnix", "endsMac"});
    if (field == QLatin1String("encoding")) // read with another one, or written
        PopUpActions({"openAs", "saveAs"});
    for (const Way& way : kWays) {
        auto* action = findChild<QAction*>(QLatin1String(way.action));
        if (field == QLatin1String(way.field) && action)
            action->trigger();
    }
}

void MainWindow::ShowScripts()
{
    m_tabs->ShowList();
}

void MainWindow::LastUsedScript()
{
    m_tabs->Walk(1);
}

void MainWindow::LongestUnusedScript()
{
    m_tabs->Walk(-1);
}

void MainWindow::NextScript()
{
    FinishResuming();
    ShowTab((m_tabs->currentIndex() + 1) % TabCount());
}

void MainWindow::PreviousScript()
{
    FinishResuming();
    ShowTab((m_tabs->currentIndex() + TabCount() - 1) % TabCount());
}
