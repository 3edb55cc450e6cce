// The menus of the workbench: what each command is called, its keys, and when it is possible.
#include "editing/ZNCoreEditorControlEx.h"
#include "host/EditingMenu.h"
#include "host/EditorTab.h"
#include "host/LanguageMenu.h"
#include "host/MainWindow.h"
#include "host/ProblemPane.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>

#include <type_traits>

enum class MainWindow::When
{
    Always,
    Script,  // a script is shown
    Unsaved, // it has changes, or no file yet
    Undoable,
    Redoable,
    Selected,
    EditSelected, // something is selected and may be changed
    Pasteable,
    SeveralScripts,
};

struct MainWindow::Command
{
    const char* menu;
    const char* name; // the action's object name; null: a separator
    const char* text = nullptr;
    QKeySequence::StandardKey keys = QKeySequence::UnknownKey;
    const char* moreKeys = nullptr; // where the platform has none, or not all that people try
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
        {"&File", "new",       "&New",          Key::New,          nullptr,        When::Always,  Run<&W::NewScript>},
        {"&File", "open",      "&Open...",      Key::Open,         nullptr,        When::Always,  Run<&W::Open>},
        {"&File", nullptr},
        {"&File", "save",      "&Save",         Key::Save,         nullptr,        When::Unsaved, Run<&W::Save>},
        {"&File", "saveAs",    "Save &As...",   Key::SaveAs,       "Ctrl+Shift+S", When::Script,  Run<&W::SaveAs>},
        {"&File", nullptr},
        {"&File", "close",     "&Close",        Key::Close,        "Ctrl+W",       When::Script,  Run<&W::CloseScript>},
        {"&File", "quit",      "&Quit",         Key::Quit,         "Ctrl+Q",       When::Always,  Run<&W::Quit>},

        {"&Edit", "undo",      "&Undo",         Key::Undo,         nullptr,  When::Undoable,     Run<&W::Undo>},
        {"&Edit", "redo",      "&Redo",         Key::Redo,         "Ctrl+Y", When::Redoable,     Run<&W::Redo>},
        {"&Edit", nullptr},
        {"&Edit", "cut",       "Cu&t",          Key::Cut,          nullptr,  When::EditSelected, Run<&W::Cut>},
        {"&Edit", "copy",      "&Copy",         Key::Copy,         nullptr,  When::Selected,     Run<&W::Copy>},
        {"&Edit", "paste",     "&Paste",        Key::Paste,        nullptr,  When::Pasteable,    Run<&W::Paste>},
        {"&Edit", "delete",    "&Delete",       Key::Delete,       nullptr,  When::EditSelected, Run<&W::Delete>},
        {"&Edit", nullptr},
        {"&Edit", "selectAll", "Select &All",   Key::SelectAll,    nullptr,  When::Script,       Run<&W::SelectAll>},

        {"&View", "zoomIn",    "Zoom &In",      Key::ZoomIn,       "Ctrl+=", When::Script, Run<&W::ZoomIn>},
        {"&View", "zoomOut",   "Zoom &Out",     Key::ZoomOut,      nullptr,  When::Script, Run<&W::ZoomOut>},
        {"&View", "zoomReset", "&Reset Zoom",   Key::UnknownKey,   "Ctrl+0", When::Script, Run<&W::ResetZoom>},
        {"&View", nullptr},
        {"&View", "whitespace", "&Whitespace",  Key::UnknownKey,   nullptr,  When::Always, Run<&W::ShowWhitespace>, true},
        {"&View", "lineEnds",   "Line &Ends",   Key::UnknownKey,   nullptr,  When::Always, Run<&W::ShowLineEnds>,   true},
        {"&View", "wrap",       "W&rap Lines",  Key::UnknownKey,   nullptr,  When::Always, Run<&W::WrapLines>,      true},
        {"&View", nullptr},
        {"&View", "nextProblem", "Next Pro&blem", Key::UnknownKey, "F8",   When::Script, Run<&W::NextProblem>},
        {"&View", nullptr},
        {"&View", "next",      "Ne&xt Script",     Key::NextChild,     nullptr, When::SeveralScripts, Run<&W::NextScript>},
        {"&View", "previous",  "&Previous Script", Key::PreviousChild, nullptr, When::SeveralScripts, Run<&W::PreviousScript>},

        {"&Tools", "expand",   "&Expanded Script", Key::UnknownKey, "F9",    When::Script, Run<&W::ExpandScript>},
        {"&Tools", nullptr},
        {"&Tools", "options",  "&Options...",   Key::Preferences,  "Ctrl+,", When::Always, Run<&W::ChangeOptions>},
        {"&Tools", "autosave", "&Autosave...",  Key::UnknownKey,   nullptr,  When::Always, Run<&W::ChangeAutosave>},
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
    connect(action, &QAction::triggered, this,
            [this, run = command.run](bool checked) { run(*this, checked); });
    return action;
}

void MainWindow::BuildMenus()
{
    m_languages = new LanguageMenu(this);
    connect(m_languages, &LanguageMenu::Chosen, this, &MainWindow::SetLanguage);
    QMenu* menu = nullptr;
    QMenu* edit = nullptr;
    for (const Command& command : Commands()) {
        const QString title = QLatin1String(command.menu);
        if (!menu || menu->title() != title) {
            if (title == QLatin1String("&Tools")) {
                menu->addAction(m_problems->toggleViewAction());
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
    }
    m_editing = new EditingMenu(*edit, [this] {
        const EditorTab* tab = CurrentTab();
        return tab ? &tab->Editor() : nullptr;
    });
}

bool MainWindow::IsPossible(When when) const
{
    const EditorTab* tab = CurrentTab();
    if (when == When::Always || !tab)
        return when == When::Always;
    const bool editable = !tab->IsReadOnly();
    switch (when) {
    case When::Unsaved:
        return tab->IsModified() || tab->Path().isEmpty();
    case When::Undoable:
        return editable && tab->Editor().CanUndo(1);
    case When::Redoable:
        return editable && tab->Editor().CanRedo(1);
    case When::Selected:
        return tab->HasSelection();
    case When::EditSelected:
        return editable && tab->HasSelection();
    case When::Pasteable:
        return editable && m_clipboardHasText;
    case When::SeveralScripts:
        return TabCount() > 1;
    default:
        return true;
    }
}

void MainWindow::UpdateCommands()
{
    auto action = m_actions.begin();
    for (const Command& command : Commands()) {
        if (command.name)
            (*action++)->setEnabled(IsPossible(command.when));
    }
    m_editing->Update();
}

void MainWindow::Undo()
{
    CurrentTab()->Editor().Undo(1);
}

void MainWindow::Redo()
{
    CurrentTab()->Editor().Redo(1);
}

void MainWindow::Cut()
{
    CurrentTab()->Editor().Cut(1);
}

void MainWindow::Copy()
{
    CurrentTab()->Editor().Copy(1);
}

void MainWindow::Paste()
{
    CurrentTab()->Editor().Paste(1);
}

void MainWindow::Delete()
{
    CurrentTab()->Editor().Clear(1);
}

void MainWindow::SelectAll()
{
    CurrentTab()->Editor().SelectAll(1);
}

void MainWindow::ZoomIn()
{
    CurrentTab()->Editor().ZoomIn(1);
}

void MainWindow::ZoomOut()
{
    CurrentTab()->Editor().ZoomOut(1);
}

void MainWindow::ResetZoom()
{
    CurrentTab()->Editor().SetZoom(0, 1);
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

void MainWindow::NextScript()
{
    ShowTab((m_tabs->currentIndex() + 1) % TabCount());
}

void MainWindow::PreviousScript()
{
    ShowTab((m_tabs->currentIndex() + TabCount() - 1) % TabCount());
}
