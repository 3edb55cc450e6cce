// SPDX-License-Identifier: GPL-3.0-or-later
// The menus of the workbench: what each command is called, its keys, and when it is possible.
//
// Keys: a menu's shortcut comes first, then the key table of the view with the focus, then the
// editor. Where the table has a key of a menu, both stand for the same command.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/commands/WorkbenchCommands.h"
#include "host/finding/FindBar.h"
#include "host/folder/FolderPane.h"
#include "host/help/About.h"
#include "host/help/KeysDialog.h"
#include "host/outline/OutlinePane.h"
#include "host/problems/ProblemPane.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptTabs.h"
#include "host/window/CommandPalette.h"
#include "host/window/EditingMenu.h"
#include "host/window/FieldMenus.h"
#include "host/window/LanguageMenu.h"
#include "host/window/MainFrame.h"
#include "host/window/MainWindow.h"
#include "host/window/Reasons.h"
#include "host/window/RecentMenu.h"
#include "host/window/SchemeMenu.h"
#include "host/window/ToolBar.h"
#include "host/window/Workbench.h"
#include "platform/docview/CommandIds.h"
#include "platform/windows/ActionUI.h"

#include <QAction>
#include <QCursor>
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
        {"&File", "new",       "&New",          Key::New,          nullptr,        ID_FILE_NEW},
        {"&File", "open",      "&Open...",      Key::Open,         nullptr,        ID_FILE_OPEN},
        {"&File", "openAs",    "Open with &Encoding...", Key::UnknownKey, "Ctrl+Shift+O", command::OpenAs},
        {"&File", nullptr},
        {"&File", "openAtCaret", "Open a&t Caret", Key::UnknownKey, "F12",         54026},
        {"&File", "save",      "&Save",         Key::Save,         nullptr,        ID_FILE_SAVE},
        {"&File", "saveAs",    "Save &As...",   Key::SaveAs,       "Ctrl+Shift+S", ID_FILE_SAVE_AS},
        {"&File", "saveAll",   "Save A&ll",     Key::UnknownKey,   "Ctrl+Alt+S",   command::SaveAll},
        {"&File", "reload",    "Reloa&d",       Key::UnknownKey,   nullptr,        54008},
        {"&File", "readOnlySwitch", "Read Onl&y", Key::UnknownKey, nullptr,        54010},
        {"&File", nullptr},
        {"&File", "print",     "&Print...",     Key::Print,        nullptr,        ID_FILE_PRINT},
        {"&File", "printPreview", "Print Pre&view...", Key::UnknownKey, nullptr,   ID_FILE_PRINT_PREVIEW},
        {"&File", "savePdf",   "Save as PD&F...", Key::UnknownKey, nullptr,        command::SavePdf},
        {"&File", "saveHtml",  "Save as &HTML...", Key::UnknownKey, nullptr,       command::SaveHtml},
        {"&File", nullptr},
        {"&File", "close",     "&Close",        Key::Close,        "Ctrl+W",       ID_FILE_CLOSE},
        {"&File", "reopenClosed", "Reopen Closed Ta&b", Key::UnknownKey, "Ctrl+Shift+T", 0, When::SomethingClosed, Run<&W::ReopenClosed>},
        {"&File", "quit",      "&Quit",         Key::Quit,         "Ctrl+Q",       ID_APP_EXIT},

        {"&Edit", "undo",      "&Undo",         Key::Undo,         nullptr,  57643},
        {"&Edit", "redo",      "&Redo",         Key::Redo,         "Ctrl+Y", 57644},
        {"&Edit", nullptr},
        {"&Edit", "cut",       "Cu&t",          Key::Cut,          nullptr,  57635},
        {"&Edit", "copy",      "&Copy",         Key::Copy,         nullptr,  57634},
        {"&Edit", "copyWithColours", "Copy wit&h Colours", Key::UnknownKey, "Ctrl+Shift+C", command::CopyWithColours},
        {"&Edit", "paste",     "&Paste",        Key::Paste,        nullptr,  57637},
        {"&Edit", "delete",    "&Delete",       Key::Delete,       nullptr,  53899},
        {"&Edit", nullptr},
        {"&Edit", "selectAll", "Select &All",   Key::SelectAll,    nullptr,  57642},
        {"&Edit", nullptr},
        {"&Edit", "completeWord", "Complete Word", Key::UnknownKey, "Ctrl+Space",     53952},
        {"&Edit", "showCall",  "Function Arguments", Key::UnknownKey, "Ctrl+Alt+Space", command::ShowCall},
        {"&Edit", "insertTemplate", "Insert Template...", Key::UnknownKey, "Ctrl+Shift+J", command::InsertTemplate},

        {"Searc&h", "findDialog",     "Find with a &Dialog...",    Key::UnknownKey, "Ctrl+Alt+F", 53895},
        {"Searc&h", "replaceDialog",  "&Replace with a Dialog...", Key::UnknownKey, "Ctrl+Alt+R", 53896},
        {"Searc&h", "goToLine",       "&Go to Line...",            Key::UnknownKey, "Ctrl+G",     54049},
        {"Searc&h", "goToSymbol",     "Go to S&ymbol...",          Key::UnknownKey, "Ctrl+Shift+G", 0, When::Script, Run<&W::GoToSymbol>},
        {"Searc&h", nullptr},
        {"Searc&h", "findInFiles",    "Find in &Files...", Key::UnknownKey, "Ctrl+Shift+F", 0, When::Always, Run<&W::FindInFiles>},
        {"Searc&h", "nextResult",     "&Next Result",      Key::UnknownKey, "F4",           0, When::Always, Run<&W::NextResult>},
        {"Searc&h", "previousResult", "&Previous Result",  Key::UnknownKey, "Shift+F4",     0, When::Always, Run<&W::PreviousResult>},
        {"Searc&h", "stopSearch",     "&Stop Search",      Key::UnknownKey, nullptr,        0, When::Always, Run<&W::StopSearch>},

        {"&View", "zoomIn",    "Zoom &In",      Key::ZoomIn,       "Ctrl+=", 53962},
        {"&View", "zoomOut",   "Zoom &Out",     Key::ZoomOut,      nullptr,  53963},
        {"&View", "zoomReset", "&Reset Zoom",   Key::UnknownKey,   "Ctrl+0", 53964},
        {"&View", nullptr},
        {"&View", "whitespace", "&Whitespace",  Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::ShowWhitespace>, true},
        {"&View", "lineEnds",   "Line &Ends",   Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::ShowLineEnds>,   true},
        {"&View", "wrap",       "Wrap &Lines",  Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::WrapLines>,      true},
        {"&View", nullptr},
        {"&View", "splitBelow",  "Split &Above and Below", Key::UnknownKey, "Ctrl+\\",       command::SplitBelow},
        {"&View", "splitBeside", "Split Side &by Side",    Key::UnknownKey, "Ctrl+Shift+\\", command::SplitBeside},
        {"&View", "otherPane",   "Ot&her Pane",            Key::UnknownKey, "F6",            command::OtherPane},
        {"&View", "previousPane", "Previo&us Pane",        Key::UnknownKey, "Alt+F6", command::PreviousPane},
        {"&View", "nextArea",    "&Next Area",             Key::UnknownKey, "Shift+F6",      0, When::Script, Run<&W::NextArea>},
        {"&View", "newView",     "New &View",              Key::UnknownKey, nullptr,         ID_WINDOW_NEW},
        {"&View", nullptr},
        {"&View", "nextProblem", "Next Proble&m", Key::UnknownKey, "F8",   0, When::Script, Run<&W::NextProblem>},
        {"&View", nullptr},
        {"&View", "next",      "Ne&xt Script",     Key::NextChild,     "Ctrl+PgDown", 0, When::SeveralScripts, Run<&W::NextScript>},
        {"&View", "previous",  "&Previous Script", Key::PreviousChild, "Ctrl+PgUp", 0, When::SeveralScripts, Run<&W::PreviousScript>},

        {"&Tools", "expand",   "&Expanded Script", Key::UnknownKey, "F9",    0, When::Script, Run<&W::ExpandScript>},
        {"&Tools", nullptr},
        {"&Tools", "recordMacro", "&Record Macro",    Key::UnknownKey, "Ctrl+Shift+R", 53938},
        {"&Tools", "playMacro", "Pla&y Macro",        Key::UnknownKey, "Ctrl+Shift+P", 53989},
        {"&Tools", "repeatMacro", "Repea&t Macro...", Key::UnknownKey, nullptr,        53939},
        {"&Tools", "saveMacro", "&Save Macro...",     Key::UnknownKey, nullptr,        53990},
        {"&Tools", "loadMacro", "&Load Macro...",     Key::UnknownKey, nullptr,        53991},
        {"&Tools", nullptr},
        {"&Tools", "editTemplates", "Edit Te&mplates", Key::UnknownKey, nullptr,       53950},
        {"&Tools", nullptr},
        {"&Tools", "commands", "&Commands...",  Key::UnknownKey,   "Ctrl+Shift+A", 0, When::Always, Run<&W::ShowCommands>},
        {"&Tools", "options",  "&Options...",   Key::Preferences,  "Ctrl+,", 0, When::Always, Run<&W::ChangeOptions>},
        {"&Tools", "preferences", "Editor and Language &Preferences...", Key::UnknownKey, nullptr, command::Preferences},
        {"&Tools", "autosave", "&Autosave...",  Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::ChangeAutosave>},

        {"Help", "keys",      "&Keys",         Key::HelpContents, nullptr,  0, When::Always, Run<&W::ShowKeys>},
        {"Help", "about",     "&About",     Key::UnknownKey,   nullptr,  0, When::Always, Run<&W::ShowAboutBox>},
    };
    // clang-format on
    return commands;
}

QAction* MainWindow::AddCommand(const Command& command)
{
    auto* action = new QAction(QLatin1String(command.text), this);
    action->setObjectName(QLatin1String(command.name));
    QList<QKeySequence> keys = QKeySequence::keyBindings(command.keys);
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
    QToolBar* bar = AddToolBar(*this);
    for (const Command& command : Commands()) {
        const QString title = QLatin1String(command.menu);
        if (!menu || menu->title() != title) {
            if (title == QLatin1String("&Tools")) {
                menu->addAction(m_problems->toggleViewAction());
                menu->addAction(m_outline->toggleViewAction());
                menu->addAction(m_folder->toggleViewAction());
                menu->addAction(bar->toggleViewAction());
                menuBar()->addMenu(m_languages);
            }
            menu = menuBar()->addMenu(title);
            if (title == QLatin1String("&Edit"))
                edit = menu;
        }
        if (command.name)
            menu->addAction(m_actions.emplace_back(AddCommand(command)));
        else
            menu->addSeparator();
        if (command.id == command::OpenAs)
            menu->addMenu(recent);
        if (command.name && QLatin1String(command.name) == QLatin1String("wrap"))
            menu->addMenu(schemes);
    }
    m_find->AddActions(*edit->addMenu(QStringLiteral("Fi&nd")));
    m_editing = new EditingMenu(*edit, [this] {
        const ScriptFrame* frame = CurrentFrame();
        return frame ? frame->View() : nullptr;
    });
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
        return TabCount() > 1;
    case When::SomethingClosed:
        return m_tabs->HasClosed();
    default:
        return true;
    }
}

void MainWindow::UpdateCommands()
{
    UpdateActions(m_actions, *m_frame);
    auto action = m_actions.begin();
    for (const Command& command : Commands()) {
        if (command.name && command.id == 0)
            (*action)->setEnabled(IsPossible(command.when));
        if (command.name)
            ++action;
    }
    ShowViewOf(CurrentEditor());
    m_editing->Update();
    m_find->Update();
}

// What is shown follows the language until a person chooses.
void MainWindow::ShowViewOf(CZNCoreEditorControlEx* editor)
{
    if (!editor)
        return;
    const auto mark = [this](const char* name, bool on) {
        findChild<QAction*>(QLatin1String(name))->setChecked(on);
    };
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

void MainWindow::ReopenClosed()
{
    if (const QString path = m_tabs->TakeClosed(); !path.isEmpty())
        m_app.OpenDocumentFile(path);
    UpdateCommands();
}

void MainWindow::ShowKeys()
{
    (new KeysDialog(*menuBar(), this))->show();
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

// Of a field of the status bar that was clicked: what changes the thing it shows.
void MainWindow::OpenField(const QString& field)
{
    struct Way
    {
        const char* field;
        const char* action;
    };
    static constexpr Way kWays[] = {
        {"caret", "goToLine"}, {"encoding", "openAs"},       {"readOnly", "readOnlySwitch"},
        {"modified", "save"},  {"recording", "recordMacro"},
    };
    if (field == QLatin1String("language")) {
        m_languages->popup(QCursor::pos());
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
    if (field == QLatin1String("lineEnds")) {
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (const char* name : {"endsWindows", "endsUnix", "endsMac"}) {
            if (auto* action = findChild<QAction*>(QLatin1String(name)))
                menu->addAction(action);
        }
        menu->popup(QCursor::pos());
        return;
    }
    for (const Way& way : kWays) {
        auto* action = findChild<QAction*>(QLatin1String(way.action));
        if (field == QLatin1String(way.field) && action)
            action->trigger();
    }
}

void MainWindow::NextScript()
{
    ShowTab((m_tabs->currentIndex() + 1) % TabCount());
}

void MainWindow::PreviousScript()
{
    ShowTab((m_tabs->currentIndex() + TabCount() - 1) % TabCount());
}
