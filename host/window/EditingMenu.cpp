// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/EditingMenu.h"

#include "editing/hands/Hands.h"
#include "host/script/ScriptView.h"

#include <QAction>
#include <QMenu>

#include <span>

using Editor = CZNCoreEditorControlEx;

struct EditingMenu::Row
{
    const char* menu;
    const char* name; // the action's object name
    const char* text;
    const char* keys = nullptr;
    UINT command = 0; // of the view or the editor; 0: the operation below
    void (*run)(Editor& editor) = nullptr;
    bool needsSelection = false; // beside what a command says itself
    bool changesText = false;
};

namespace {

// Takes the answer of an update rule.
class Rule final : public CCmdUI
{
public:
    using CCmdUI::CCmdUI;
    void Enable(bool on) override { isPossible = on; }
    void SetCheck(int) override {}
    void SetRadio(bool) override {}
    void SetText(const QString&) override {}

    bool isPossible = true;
};

template <void (Editor::*Operation)()>
void Do(Editor& editor)
{
    (editor.*Operation)();
}

const char16_t* LineEndOf(Editor& editor)
{
    const int mode = editor.GetEOLMode(1);
    return mode == 1 ? u"\r\n" : mode == 2 ? u"\r" : u"\n";
}

// Sorting gives up the last line that is selected and leaves an empty one. So an empty line is put
// in behind the lines to be lost, and the one that is left is taken out.
template <bool Ascending>
void SortLines(Editor& editor)
{
    const int first = editor.LineFromPosition(editor.GetSelectionStart(1), 1);
    int last = editor.LineFromPosition(editor.GetSelectionEnd(1), 1);
    if (last > first && editor.GetSelectionEnd(1) == editor.PositionFromLine(last, 1))
        --last;
    const std::u16string lineEnd = LineEndOf(editor);
    editor.BeginUndoAction(1);
    editor.InsertText(editor.GetLineEndPosition(last, 1), lineEnd.c_str(), 1);
    editor.SetSel(editor.PositionFromLine(first, 1), editor.PositionFromLine(last + 1, 1), 1);
    editor.SortLines(Ascending, false, true, 1, -1, -1);
    const auto caret = static_cast<int>(editor.GetCurrentPos(1));
    editor.SetTarget(caret - static_cast<int>(lineEnd.size()), caret);
    editor.ReplaceTargetNoProcess(0, u"", 1);
    editor.EndUndoAction(1);
}

std::span<const EditingMenu::Row> Rows()
{
    // clang-format off
    static const EditingMenu::Row rows[] = {
        {"C&omments",   "comment",        "&Comment Out",           nullptr,         54037},
        {"C&omments",   "uncomment",      "&Uncomment",             "Ctrl+Shift+/",  54041},
        {"C&omments",   "commentLines",   "Comment &Lines Out",     nullptr, 53967, nullptr, false, true},
        {"&Indentation", "indent",        "&Indent",                nullptr,         54034, nullptr, true, true},
        {"&Indentation", "outdent",       "&Outdent",               nullptr,         54035, nullptr, true, true},
        {"&Indentation", "tabsToSpaces",  "&Tabs to Spaces",        nullptr, 53921},
        {"&Indentation", "spacesToTabs",  "&Spaces to Tabs",        nullptr, 53922},
        {"&Indentation", "trim",          "Trim T&railing Spaces",  nullptr, 53953},
        {"&Lines",      "sortUp",         "Sort &Ascending",        nullptr, 0, SortLines<true>,  true, true},
        {"&Lines",      "sortDown",       "Sort &Descending",       nullptr, 0, SortLines<false>, true, true},
        {"&Lines",      "endLastLine",    "&End the Last Line",     nullptr, 0, Do<&Editor::EnsureFinalNewLine>, false, true},
        {"&Lines",      "endsWindows",    "Convert Line Ends to C&R+LF (Windows)", nullptr, 54071},
        {"&Lines",      "endsUnix",       "Convert Line Ends to L&F (Unix)", nullptr, 54072},
        {"&Lines",      "endsMac",        "Convert Line Ends to CR (&Mac)", nullptr, 54073},
        {"&Words",      "upperCase",      "&Upper Case",            "Ctrl+Shift+U",  54042, nullptr, true, true},
        {"&Words",      "lowerCase",      "&Lower Case",            "Ctrl+U",        54039, nullptr, true, true},
        {"&Words",      "capitalize",     "Ca&pitalize",            nullptr, 0, Do<&Editor::Capitalize>, true, true},
        {"&Words",      "upperCaseWord",  "Upper Case of a W&ord",  nullptr, 53928},
        {"&Words",      "lowerCaseWord",  "Lower Case of a Wo&rd",  nullptr, 53929},
        {"&Words",      "capitalizeWord", "Capi&talize a Word",     nullptr, 53927},
        {"&Words",      "deleteWord",     "D&elete a Word",         nullptr, 53906},
        {"&Words",      "swapCharacters", "Swap &Characters",       nullptr, 53930},
        {"&Words",      "swapWords",      "Swap &Words",            nullptr, 53931},
        {"&Words",      "increase",       "&Increase Number",       "Ctrl+Alt+Right", 54001},
        {"&Words",      "decrease",       "&Decrease Number",       "Ctrl+Alt+Left", 54002},
        {"&Select",     "selectWord",     "&Word",                  nullptr, 53908},
        {"&Select",     "selectLine",     "&Line",                  nullptr, 53909},
        {"&Select",     "selectParagraph", "&Paragraph",            nullptr, 53916},
        {"&Select",     "selectToBrace",  "To Matching &Brace",     "Ctrl+Shift+]", 53961},
        {"&Select",     "swapEnds",       "&Caret to the Other End", nullptr, 53934},
        {"&Bookmarks",  "bookmark",       "&Toggle",                "Ctrl+F2",       54057},
        {"&Bookmarks",  "nextBookmark",   "&Next",                  "F2",            54056},
        {"&Bookmarks",  "previousBookmark", "&Previous",            "Shift+F2",      54058},
        {"&Bookmarks",  "firstBookmark",  "&First",                 nullptr, 53913},
        {"&Bookmarks",  "lastBookmark",   "&Last",                  nullptr, 53914},
        {"&Bookmarks",  "clearBookmarks", "&Clear All",             "Ctrl+Shift+F2", 54059},
        {nullptr,       "matchBrace",     "&Matching Brace",        "Ctrl+]",        54040},
        {nullptr,       "insertFile",     "Insert &File...",        nullptr,         54038},
    };
    // clang-format on
    return rows;
}

} // namespace

EditingMenu::EditingMenu(QMenu& menu, std::function<ScriptView*()> view)
    : QObject(&menu), m_view(std::move(view))
{
    menu.addSeparator();
    QMenu* part = &menu;
    for (const Row& row : Rows()) {
        const QString title = QLatin1String(row.menu);
        if (title.isEmpty())
            part = &menu;
        else if (part->title() != title)
            part = menu.addMenu(title);
        QAction* action = part->addAction(QLatin1String(row.text));
        action->setObjectName(QLatin1String(row.name));
        action->setData(row.command);
        action->setShortcut(QKeySequence(QLatin1String(row.keys)));
        connect(action, &QAction::triggered, this, [this, &row] { Run(row); });
        m_actions.push_back(action);
    }
    AddHands(menu);
}

// Into the parts that are there already, or into one of their own.
void EditingMenu::AddHands(QMenu& menu)
{
    for (const HandRow& row : Hands()) {
        const QString title = QLatin1String(row.menu);
        QMenu* part = nullptr;
        for (QAction* each : menu.actions()) {
            if (each->menu() && each->menu()->title() == title)
                part = each->menu();
        }
        if (!part)
            part = menu.addMenu(title);
        QAction* action = part->addAction(QLatin1String(row.text));
        action->setObjectName(QLatin1String(row.name));
        action->setData(row.number);
        if (row.key)
            action->setShortcut(QKeySequence(row.key | row.modifiers));
        connect(action, &QAction::triggered, this, [this, &row] {
            if (ScriptView* view = m_view())
                view->OnCmdMsg(row.number, nullptr);
        });
        m_hands.push_back(action);
    }
}

void EditingMenu::Update()
{
    auto action = m_actions.begin();
    for (const Row& row : Rows())
        (*action++)->setEnabled(IsPossible(row));
    ScriptView* view = m_view();
    auto hand = m_hands.begin();
    for (const HandRow& row : Hands())
        (*hand++)->setEnabled(view && ::IsPossible(row, view->GetCoreEditorControlRef()));
}

// Asked of the view, so that a command takes the way of one from a key.
bool EditingMenu::IsPossible(const Row& row) const
{
    ScriptView* view = m_view();
    if (!view)
        return false;
    Editor& editor = view->GetCoreEditorControlRef();
    if ((row.changesText && editor.GetReadOnly(1)) || (row.needsSelection && !editor.IsSelection()))
        return false;
    Rule rule(row.command);
    if (row.command != 0)
        view->OnCmdMsg(row.command, &rule);
    return rule.isPossible;
}

void EditingMenu::Run(const Row& row)
{
    ScriptView* view = m_view();
    if (!view)
        return;
    if (row.command != 0)
        view->OnCmdMsg(row.command, nullptr);
    else
        row.run(view->GetCoreEditorControlRef());
    Update(); // a bookmark is no change of the text, of which the window would hear
}
