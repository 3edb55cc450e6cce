// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/FindBar.h"

#include "control/EngineLooks.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "search/FindReplaceManager.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include <span>
#include <string_view>

using Editor = CZNCoreEditorControlEx;

struct FindBar::Row
{
    const char* name; // the action's object name, and the button's with Button behind it
    const char* text;
    const char* keys;
    void (FindBar::*run)();
    bool hasButton = true;
    bool changesText = false;
    bool needsSought = false;
};

namespace {

// As the engine searches.
constexpr int kWholeWord = 2;
constexpr int kMatchCase = 4;
constexpr int kExpression = 0x200000;

std::span<const FindBar::Row> Rows()
{
    // clang-format off
    static const FindBar::Row rows[] = {
        {"find",             "&Find...",                "Ctrl+F",        &FindBar::Open, false},
        {"findNext",         "Find &Next",              "F3",            &FindBar::FindNext},
        {"findPrevious",     "Find &Previous",          "Shift+F3",      &FindBar::FindPrevious},
        {"findNextWord",     "Find the &Word Next",     "Ctrl+F3",       &FindBar::FindNextWord, false},
        {"findPreviousWord", "Find the W&ord Previous", "Ctrl+Shift+F3", &FindBar::FindPreviousWord, false},
        {"replace",          "&Replace",                "Ctrl+H",        &FindBar::Replace, true, true},
        {"replaceAll",       "Replace &All",            nullptr,         &FindBar::ReplaceAll, true, true, true},
        {"markAll",          "&Mark All",               nullptr,         &FindBar::MarkAll, true, false, true},
        {"countMatches",     "&Count",                  nullptr,         &FindBar::Count, true, false, true},
    };
    // clang-format on
    return rows;
}

// A text as an expression that matches it alone.
QString Escaped(const QString& text)
{
    QString escaped;
    for (const QChar c : text) {
        if (std::u16string_view(u".[*+?^$\\|").find(c.unicode()) != std::u16string_view::npos)
            escaped += u'\\';
        escaped += c;
    }
    return escaped;
}

bool IsSelected(Editor& editor, long start, long end)
{
    return editor.GetSelectionStart(1) == start && editor.GetSelectionEnd(1) == end;
}

} // namespace

FindBar::FindBar(std::function<CZNCoreEditorControlEx*()> editor, QWidget* parent)
    : QWidget(parent), m_editor(std::move(editor)),
      m_manager(*zncoreeditor::GetFindReplaceManager()), m_find(MakeBox("findText", tr("Find"))),
      m_replace(MakeBox("replaceText", tr("Replace with"))),
      m_matchCase(MakeOption("matchCase", tr("Match ca&se"), m_manager.GetMatchCase())),
      m_wholeWord(MakeOption("wholeWord", tr("&Whole word"), m_manager.GetWholeWord())),
      m_expression(MakeOption("expression", tr("E&xpression"), m_manager.GetRegExp())),
      m_result(new QLabel(this))
{
    m_result->setObjectName(QStringLiteral("findResult"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setColumnStretch(0, 1);
    layout->addWidget(m_find, 0, 0);
    layout->addWidget(m_replace, 1, 0);
    int column = 1;
    for (QWidget* option : {m_matchCase, m_wholeWord, m_expression})
        layout->addWidget(option, 0, column++);
    layout->addWidget(m_result, 1, 1, 1, 3);
    int place = 0;
    for (const Row& row : Rows()) {
        if (!row.hasButton)
            continue;
        auto* button = new QPushButton(tr(row.text), this);
        button->setObjectName(QLatin1String(row.name) + QStringLiteral("Button"));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, row.run);
        layout->addWidget(button, place % 2, 4 + place / 2);
        ++place;
    }
    auto* close = new QToolButton(this);
    close->setObjectName(QStringLiteral("closeFind"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(tr("Close"));
    close->setAccessibleName(tr("Close"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &FindBar::Close);
    layout->addWidget(close, 0, layout->columnCount());
    for (QCheckBox* option : {m_matchCase, m_wholeWord, m_expression})
        connect(option, &QCheckBox::toggled, this, &FindBar::ShowMatches);
    connect(m_find, &QComboBox::editTextChanged, this, &FindBar::ShowMatches);
    setFocusProxy(m_find);
    m_find->installEventFilter(this);
    m_replace->installEventFilter(this);
    hide();
}

QComboBox* FindBar::MakeBox(const char* name, const QString& label)
{
    constexpr int kLeastLength = 14; // characters
    auto* box = new QComboBox(this);
    box->setMinimumContentsLength(kLeastLength);
    box->setObjectName(QLatin1String(name));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr); // what is typed is what is sought
    box->lineEdit()->setPlaceholderText(label);
    box->setAccessibleName(label);
    connect(box, &QComboBox::editTextChanged, this, &FindBar::Update);
    return box;
}

QCheckBox* FindBar::MakeOption(const char* name, const QString& label, bool isOn)
{
    auto* option = new QCheckBox(label, this);
    option->setObjectName(QLatin1String(name));
    option->setChecked(isOn);
    return option;
}

void FindBar::AddActions(QMenu& menu)
{
    for (const Row& row : Rows()) {
        QAction* action = menu.addAction(tr(row.text));
        action->setObjectName(QLatin1String(row.name));
        action->setShortcut(QKeySequence(QLatin1String(row.keys)));
        connect(action, &QAction::triggered, this, row.run);
        m_actions.emplace_back(action, &row);
    }
    Update();
}

void FindBar::Update()
{
    for (const auto& [action, row] : m_actions)
        action->setEnabled(IsPossible(*row));
    for (const Row& row : Rows()) {
        if (auto* button =
                findChild<QPushButton*>(QLatin1String(row.name) + QStringLiteral("Button")))
            button->setEnabled(IsPossible(row));
    }
}

bool FindBar::IsPossible(const Row& row) const
{
    Editor* editor = m_editor();
    if (!editor || (row.changesText && editor->GetReadOnly(1)))
        return false;
    return !row.needsSought || !m_find->currentText().isEmpty();
}

void FindBar::Open()
{
    Editor* editor = m_editor();
    if (!editor)
        return;
    const QString found = editor->GetFindString();
    const QString sought = found.isEmpty() ? m_find->currentText() : found;
    const QString replacement = m_replace->currentText();
    m_manager.FillFindCombo(*m_find);
    m_manager.FillReplaceCombo(*m_replace);
    m_find->setEditText(sought);
    m_replace->setEditText(replacement);
    m_result->clear();
    show();
    ShowMatches();
    m_find->setFocus();
    m_find->lineEdit()->selectAll();
}

// All that would be found, lit in the text and on the scroll bar; nothing while the bar is closed.
void FindBar::ShowMatches()
{
    Editor* editor = m_editor();
    if (!editor)
        return;
    const std::u16string sought =
        isHidden() ? std::u16string() : m_find->currentText().toStdU16String();
    const int flags = (m_wholeWord->isChecked() ? kWholeWord : 0) |
                      (m_matchCase->isChecked() ? kMatchCase : 0) |
                      (m_expression->isChecked() ? kExpression : 0);
    editor->Call(engine::kShowMatches, static_cast<WPARAM>(flags),
                 sought.empty() ? 0 : reinterpret_cast<LPARAM>(sought.c_str()), 1);
}

// Which of how many the selection is, where there are not too many to count at once.
QString FindBar::Place(Editor& editor)
{
    constexpr int kMost = 1000;
    constexpr int kLongest = 4'000'000; // units
    const auto length = static_cast<int>(editor.GetLength(1));
    const long selected = editor.GetSelectionStart(1);
    if (length > kLongest)
        return {};
    int all = 0;
    int place = 0;
    for (int from = 0; from <= length && all <= kMost; ++all) {
        const int found = m_manager.FindInRange(&editor, from, length, true);
        if (found < 0)
            break;
        if (found <= selected)
            place = all + 1;
        const auto end = static_cast<int>(editor.GetTargetEnd(1));
        from =
            end > found ? end : std::max(end + 1, static_cast<int>(editor.PositionAfter(end, 1)));
    }
    return all > kMost ? tr("more than %1").arg(kMost) : tr("%1 of %2").arg(place).arg(all);
}

void FindBar::Close()
{
    if (isHidden())
        return;
    hide();
    ShowMatches();
    m_manager.Save();
    if (Editor* editor = m_editor())
        editor->SetFocus();
}

bool FindBar::Prepare()
{
    const QString sought = m_find->currentText();
    if (sought.isEmpty())
        return false;
    m_manager.AddFindHistory(sought);
    m_manager.SetMatchCase(m_matchCase->isChecked());
    m_manager.SetWholeWord(m_wholeWord->isChecked());
    m_manager.SetRegExp(m_expression->isChecked());
    m_manager.SetWrap(true);
    m_manager.SetDown(true);
    return true;
}

void FindBar::FindNext()
{
    Find(true);
}

void FindBar::FindPrevious()
{
    Find(false);
}

void FindBar::Find(bool down)
{
    Editor* editor = m_editor();
    if (!editor)
        return;
    if (!Prepare())
        Open();
    else
        TellFound(*editor, SelectNext(*editor, down));
}

void FindBar::TellFound(Editor& editor, bool isFound)
{
    if (!isFound) {
        Tell(tr("Not found"));
        return;
    }
    Tell({});
    if (isVisible())
        m_result->setText(Place(editor));
    ShowMatches();
}

void FindBar::FindNextWord()
{
    FindWord(true);
}

void FindBar::FindPreviousWord()
{
    FindWord(false);
}

void FindBar::FindWord(bool down)
{
    Editor* editor = m_editor();
    const QString word = editor ? editor->GetFindString() : QString();
    if (word.isEmpty())
        return;
    m_find->setEditText(word);
    m_expression->setChecked(false);
    if (!editor->IsSelection()) // the word at the caret is where the search starts from
        editor->SelectWord();
    Find(down);
}

// Nothing that is found where it stands already, as an end of the line can be, is passed by.
bool FindBar::SelectNext(Editor& editor, bool down)
{
    m_manager.SetDown(down);
    const auto length = static_cast<int>(editor.GetLength(1));
    const auto from =
        static_cast<int>(down ? editor.GetSelectionEnd(1) : editor.GetSelectionStart(1));
    const int to = down ? length : 0;
    int found = m_manager.FindInRange(&editor, from, to, false);
    const bool isNothing = found >= 0 && editor.GetTargetStart(1) == editor.GetTargetEnd(1);
    if (isNothing && IsSelected(editor, found, found)) {
        const auto next =
            static_cast<int>(down ? editor.PositionAfter(from, 1) : editor.PositionBefore(from, 1));
        found = m_manager.FindInRange(&editor, next != from ? next : length - to, to, false);
    }
    m_manager.SetDown(true);
    if (found < 0)
        return false;
    const long end = editor.GetTargetEnd(1);
    editor.EnsureVisibleEnforcePolicy(editor.LineFromPosition(found, 1), 1);
    editor.SetSel(found, end, 1);
    return true;
}

void FindBar::Replace()
{
    Editor* editor = m_editor();
    if (!editor)
        return;
    if (!isVisible() || !Prepare()) {
        Open();
        return;
    }
    m_manager.AddReplaceHistory(m_replace->currentText());
    const long start = editor->GetSelectionStart(1);
    const long end = editor->GetSelectionEnd(1);
    const int found =
        m_manager.FindInRange(editor, static_cast<int>(start), static_cast<int>(end), true);
    if (found == start && editor->GetTargetEnd(1) == end && !editor->GetReadOnly(1)) {
        editor->SetSel(start, start, 1);
        m_manager.ReplaceOne(editor);
        const long caret = editor->GetCurrentPos(1);
        editor->SetSel(caret, caret, 1);
    }
    TellFound(*editor, SelectNext(*editor, true));
}

void FindBar::ReplaceAll()
{
    Editor* editor = m_editor();
    if (!editor || !Prepare())
        return;
    m_manager.AddReplaceHistory(m_replace->currentText());
    const int count = m_manager.ReplaceAll(editor, false);
    Tell(m_manager.WasStopped() ? tr("Stopped, %n replaced", nullptr, count)
                                : tr("%n replaced", nullptr, count));
}

// The editor marks what an expression finds.
void FindBar::MarkAll()
{
    Editor* editor = m_editor();
    if (!editor || !Prepare())
        return;
    const QString sought = m_find->currentText();
    const long anchor = editor->GetAnchor(1);
    const long caret = editor->GetCurrentPos(1);
    const int count = editor->MarkAll(m_expression->isChecked() ? sought : Escaped(sought),
                                      m_matchCase->isChecked());
    editor->SetSel(anchor, caret, 1);
    m_manager.SetFind(sought);
    m_manager.SetRegExp(m_expression->isChecked());
    Tell(tr("%n found and marked", nullptr, std::max(count, 0)));
}

void FindBar::Count()
{
    Editor* editor = m_editor();
    if (!editor || !Prepare())
        return;
    const auto length = static_cast<int>(editor->GetLength(1));
    int count = 0;
    for (int from = 0; from <= length;) {
        const int found = m_manager.FindInRange(editor, from, length, true);
        if (found < 0)
            break;
        ++count;
        const auto end = static_cast<int>(editor->GetTargetEnd(1));
        from =
            end > found ? end : std::max(end + 1, static_cast<int>(editor->PositionAfter(end, 1)));
    }
    Tell(tr("%n found", nullptr, count));
}

// A key finds without the bar, which is then shown for what it has to say.
void FindBar::Tell(const QString& result)
{
    m_result->setText(result);
    if (!result.isEmpty())
        show();
    Update();
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Close();
    else
        QWidget::keyPressEvent(event);
}

// Enter finds in one box and replaces in the other; with Shift it finds the previous one.
bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    if (key->modifiers() & Qt::ShiftModifier)
        FindPrevious();
    else if (watched == m_replace)
        Replace();
    else
        FindNext();
    return true;
}
