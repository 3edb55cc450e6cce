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

constexpr const char* kComments = QT_TRANSLATE_NOOP("EditingMenu", "C&omments");
constexpr const char* kIndentation = QT_TRANSLATE_NOOP("EditingMenu", "&Indentation");
constexpr const char* kLines = QT_TRANSLATE_NOOP("EditingMenu", "&Lines");
constexpr const char* kWords = QT_TRANSLATE_NOOP("EditingMenu", "&Words");
constexpr const char* kSelect = QT_TRANSLATE_NOOP("EditingMenu", "&Select");
constexpr const char* kBookmarks = QT_TRANSLATE_NOOP("EditingMenu", "&Bookmarks");

std::span<const EditingMenu::Row> Rows()
{
    // clang-format off
    static const EditingMenu::Row rows[] = {
        {kComments,   "comment",        QT_TRANSLATE_NOOP("EditingMenu", "&Comment Out"),           nullptr,         54037},
        {kComments,   "uncomment",      QT_TRANSLATE_NOOP("EditingMenu", "&Uncomment"),             "Ctrl+Shift+/",  54041},
        {kComments,   "commentLines",   QT_TRANSLATE_NOOP("EditingMenu", "Comment &Lines Out"),     nullptr, 53967, nullptr, false, true},
        {kIndentation, "indent",        QT_TRANSLATE_NOOP("EditingMenu", "&Indent"),                nullptr,         54034, nullptr, true, true},
        {kIndentation, "outdent",       QT_TRANSLATE_NOOP("EditingMenu", "&Outdent"),               nullptr,         54035, nullptr, true, true},
        {kIndentation, "tabsToSpaces",  QT_TRANSLATE_NOOP("EditingMenu", "&Tabs to Spaces"),        nullptr, 53921},
        {kIndentation, "spacesToTabs",  QT_TRANSLATE_NOOP("EditingMenu", "&Spaces to Tabs"),        nullptr, 53922},
        {kIndentation, "trim",          QT_TRANSLATE_NOOP("EditingMenu", "Trim T&railing Spaces"),  nullptr, 53953},
        {kLines,      "sortUp",         QT_TRANSLATE_NOOP("EditingMenu", "Sort &Ascending"),        nullptr, 0, SortLines<true>,  true, true},
        {kLines,      "sortDown",       QT_TRANSLATE_NOOP("EditingMenu", "Sort &Descending"),       nullptr, 0, SortLines<false>, true, true},
        {kLines,      "endLastLine",    QT_TRANSLATE_NOOP("EditingMenu", "&End the Last Line"),     nullptr, 0, Do<&Editor::EnsureFinalNewLine>, false, true},
        {kLines,      "endsWindows",    QT_TRANSLATE_NOOP("EditingMenu", "Convert Line Ends to C&R+LF (Windows)"), nullptr, 54071},
        {kLines,      "endsUnix",       QT_TRANSLATE_NOOP("EditingMenu", "Convert Line Ends to L&F (Unix)"), nullptr, 54072},
        {kLines,      "endsMac",        QT_TRANSLATE_NOOP("EditingMenu", "Convert Line Ends to CR (&Mac)"), nullptr, 54073},
        {kWords,      "upperCase",      QT_TRANSLATE_NOOP("EditingMenu", "&Upper Case"),            "Ctrl+Shift+U",  54042, nullptr, true, true},
        {kWords,      "lowerCase",      QT_TRANSLATE_NOOP("EditingMenu", "&Lower Case"),            "Ctrl+U",        54039, nullptr, true, true},
        {kWords,      "capitalize",     QT_TRANSLATE_NOOP("EditingMenu", "Ca&pitalize"),            nullptr, 0, Do<&Editor::Capitalize>, true, true},
        {kWords,      "upperCaseWord",  QT_TRANSLATE_NOOP("EditingMenu", "Upper Case of a W&ord"),  nullptr, 53928},
        {kWords,      "lowerCaseWord",  QT_TRANSLATE_NOOP("EditingMenu", "Lower Case of a Wo&rd"),  nullptr, 53929},
        {kWords,      "capitalizeWord", QT_TRANSLATE_NOOP("EditingMenu", "Capi&talize a Word"),     nullptr, 53927},
        {kWords,      "deleteWord",     QT_TRANSLATE_NOOP("EditingMenu", "D&elete a Word"),         nullptr, 53906},
        {kWords,      "swapCharacters", QT_TRANSLATE_NOOP("EditingMenu", "Swap &Characters"),       nullptr, 53930},
        {kWords,      "swapWords",      QT_TRANSLATE_NOOP("EditingMenu", "Swap &Words"),            nullptr, 53931},
        {kWords,      "increase",       QT_TRANSLATE_NOOP("EditingMenu", "&Increase Number"),       "Ctrl+Alt+Right", 54001},
        {kWords,      "decrease",       QT_TRANSLATE_NOOP("EditingMenu", "&Decrease Number"),       "Ctrl+Alt+Left", 54002},
        {kSelect,     "selectWord",     QT_TRANSLATE_NOOP("EditingMenu", "&Word"),                  nullptr, 53908},
        {kSelect,     "selectLine",     QT_TRANSLATE_NOOP("EditingMenu", "&Line"),                  nullptr, 53909},
        {kSelect,     "selectParagraph", QT_TRANSLATE_NOOP("EditingMenu", "&Paragraph"),            nullptr, 53916},
        {kSelect,     "selectToBrace",  QT_TRANSLATE_NOOP("EditingMenu", "To Matching &Bracket"),     "Ctrl+Shift+]", 53961},
        {kSelect,     "swapEnds",       QT_TRANSLATE_NOOP("EditingMenu", "&Caret to the Other End"), nullptr, 53934},
        {kBookmarks,  "bookmark",       QT_TRANSLATE_NOOP("EditingMenu", "&Toggle"),                "Ctrl+F2",       54057},
        {kBookmarks,  "nextBookmark",   QT_TRANSLATE_NOOP("EditingMenu", "&Next"),                  "F2",            54056},
        {kBookmarks,  "previousBookmark", QT_TRANSLATE_NOOP("EditingMenu", "&Previous"),            "Shift+F2",      54058},
        {kBookmarks,  "firstBookmark",  QT_TRANSLATE_NOOP("EditingMenu", "&First"),                 nullptr, 53913},
        {kBookmarks,  "lastBookmark",   QT_TRANSLATE_NOOP("EditingMenu", "&Last"),                  nullptr, 53914},
        {kBookmarks,  "clearBookmarks", QT_TRANSLATE_NOOP("EditingMenu", "&Clear All"),             "Ctrl+Shift+F2", 54059},
        {nullptr,       "insertFile",     QT_TRANSLATE_NOOP("EditingMenu", "Ins&ert File..."),        nullptr,         54038},
    };
    // clang-format on
    return rows;
}

} // namespace

EditingMenu::EditingMenu(QMenu& menu, std::function<ScriptView*()> view)
    : QObject(&menu), m_view(std::move(view))
{
    menu.addSeparator();
    Parts parts;
    for (const Row& row : Rows()) {
        QMenu*& part = row.menu ? parts[row.menu] : parts[{}];
        if (!part)
            part = row.menu ? menu.addMenu(tr(row.menu)) : &menu;
        QAction* action = part->addAction(tr(row.text));
        action->setObjectName(QLatin1String(row.name));
        action->setData(row.command);
        action->setShortcut(QKeySequence(QLatin1String(row.keys)));
        connect(action, &QAction::triggered, this, [this, &row] { Run(row); });
        m_actions.push_back(action);
    }
    AddHands(menu, parts);
}

// Into the parts that are there already, or into one of their own.
void EditingMenu::AddHands(QMenu& menu, Parts& parts)
{
    for (const HandRow& row : Hands()) {
        QMenu*& part = parts[row.menu];
        if (!part)
            part = menu.addMenu(HandText(row.menu));
        QAction* action = part->addAction(HandText(row.text));
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
