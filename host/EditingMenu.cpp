#include "host/EditingMenu.h"

#include "editing/ZNCoreEditorControlEx.h"

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
    UINT command = 0; // of the editor; 0: the operation below
    void (*run)(Editor& editor) = nullptr;
    bool needsSelection = false;
    bool changesText = true; // an operation; a command says itself what it needs
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

void SelectToBrace(Editor& editor)
{
    editor.JumpToMatchingBrace(true);
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
        {"C&omments",   "comment",        "&Comment Out",           "Ctrl+/",        54037},
        {"C&omments",   "uncomment",      "&Undo Comment Out",      "Ctrl+Shift+/",  54041},
        {"C&omments",   "commentLines",   "Comment &Lines Out",     nullptr, 0, Do<&Editor::OnEditSingleLineComment>},
        {"&Indentation", "indent",        "&Indent",                nullptr,         54034},
        {"&Indentation", "outdent",       "&Outdent",               nullptr,         54035},
        {"&Indentation", "tabsToSpaces",  "&Tabs to Spaces",        nullptr, 0, Do<&Editor::ConvertTabToSpaces>},
        {"&Indentation", "spacesToTabs",  "&Spaces to Tabs",        nullptr, 0, Do<&Editor::ConvertSpacesToTab>},
        {"&Indentation", "trim",          "Trim T&railing Spaces",  nullptr, 0, Do<&Editor::RemoveTrailingSpaces>},
        {"&Lines",      "sortUp",         "Sort &Ascending",        nullptr, 0, SortLines<true>,  true},
        {"&Lines",      "sortDown",       "Sort &Descending",       nullptr, 0, SortLines<false>, true},
        {"&Lines",      "endLastLine",    "&End the Last Line",     nullptr, 0, Do<&Editor::EnsureFinalNewLine>},
        {"&Lines",      "endsWindows",    "Ends of &Windows (CR+LF)", nullptr,       54071},
        {"&Lines",      "endsUnix",       "Ends of &Unix (LF)",     nullptr,         54072},
        {"&Lines",      "endsMac",        "Ends of &Mac (CR)",      nullptr,         54073},
        {"&Words",      "upperCase",      "&Upper Case",            "Ctrl+Shift+U",  54042},
        {"&Words",      "lowerCase",      "&Lower Case",            "Ctrl+U",        54039},
        {"&Words",      "capitalize",     "Ca&pitalize",            nullptr, 0, Do<&Editor::Capitalize>, true},
        {"&Words",      "upperCaseWord",  "Upper Case of a W&ord",  nullptr, 0, Do<&Editor::WordUpperCase>},
        {"&Words",      "lowerCaseWord",  "Lower Case of a Wo&rd",  nullptr, 0, Do<&Editor::WordLowerCase>},
        {"&Words",      "capitalizeWord", "Capi&talize a Word",     nullptr, 0, Do<&Editor::WordCapitalize>},
        {"&Words",      "deleteWord",     "D&elete a Word",         nullptr, 0, Do<&Editor::WordDelete>},
        {"&Words",      "swapCharacters", "Swap &Characters",       nullptr, 0, Do<&Editor::CharTranspose>},
        {"&Words",      "swapWords",      "Swap &Words",            nullptr, 0, Do<&Editor::WordTranspose>},
        {"&Words",      "increase",       "&Increase Number",       "Ctrl+Alt+Right", 54001},
        {"&Words",      "decrease",       "&Decrease Number",       "Ctrl+Alt+Left", 54002},
        {"&Select",     "selectWord",     "&Word",                  nullptr, 0, Do<&Editor::SelectWord>, false, false},
        {"&Select",     "selectLine",     "&Line",                  nullptr, 0, Do<&Editor::SelectLine>, false, false},
        {"&Select",     "selectParagraph", "&Paragraph",            nullptr, 0, Do<&Editor::SelectPara>, false, false},
        {"&Select",     "selectToBrace",  "To Matching &Brace",     "Ctrl+Shift+]", 0, SelectToBrace, false, false},
        {"&Select",     "swapEnds",       "&Caret to the Other End", nullptr, 0, Do<&Editor::SwapAnchor>, true, false},
        {"&Bookmarks",  "bookmark",       "&Toggle",                "Ctrl+F2",       54057},
        {"&Bookmarks",  "nextBookmark",   "&Next",                  "F2",            54056},
        {"&Bookmarks",  "previousBookmark", "&Previous",            "Shift+F2",      54058},
        {"&Bookmarks",  "firstBookmark",  "&First",                 nullptr, 0, Do<&Editor::FirstBookmark>, false, false},
        {"&Bookmarks",  "lastBookmark",   "&Last",                  nullptr, 0, Do<&Editor::LastBookmark>, false, false},
        {"&Bookmarks",  "clearBookmarks", "&Clear All",             "Ctrl+Shift+F2", 54059},
        {nullptr,       "matchBrace",     "&Matching Brace",        "Ctrl+]",        54040},
        {nullptr,       "insertFile",     "Insert &File...",        nullptr,         54038},
    };
    // clang-format on
    return rows;
}

} // namespace

EditingMenu::EditingMenu(QMenu& menu, std::function<CZNCoreEditorControlEx*()> editor)
    : QObject(&menu), m_editor(std::move(editor))
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
}

void EditingMenu::Update()
{
    auto action = m_actions.begin();
    for (const Row& row : Rows())
        (*action++)->setEnabled(IsPossible(row));
}

bool EditingMenu::IsPossible(const Row& row) const
{
    Editor* editor = m_editor();
    if (!editor)
        return false;
    if (row.command == 0)
        return (!row.changesText || !editor->GetReadOnly(1)) &&
               (!row.needsSelection || editor->IsSelection());
    Rule rule(row.command);
    editor->OnCmdMsg(row.command, &rule);
    return rule.isPossible;
}

void EditingMenu::Run(const Row& row)
{
    Editor* editor = m_editor();
    if (!editor)
        return;
    if (row.command != 0)
        editor->OnCmdMsg(row.command, nullptr);
    else
        row.run(*editor);
    Update(); // a bookmark is no change of the text, of which the window would hear
}
