// SPDX-License-Identifier: GPL-3.0-or-later
// What FindBar is made of, and its commands.
#include "common/Translations.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/finding/BoxNames.h"
#include "host/finding/ExpressionHelp.h"
#include "host/finding/FindBar.h"
#include "host/finding/WrapRow.h"
#include "host/icons/Icons.h"
#include "search/FindReplaceManager.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>
#include <span>
#include <string_view>

using Editor = CZNCoreEditorControlEx;

struct FindBar::Row
{
    const char* name; // the action's object name, and the button's with Button behind it
    const char* text;
    const char* keys;
    void (FindBar::*run)();
    bool changesText = false;
    bool needsSought = false;
    void (FindBar::*press)() = nullptr; // of the button, where that is something else
};

namespace {

std::span<const FindBar::Row> Rows()
{
    // clang-format off
    static const FindBar::Row rows[] = {
        {"find",             QT_TRANSLATE_NOOP("FindBar", "&Find..."),                "Ctrl+F",        &FindBar::OpenFinding},
        {"findNext",         QT_TRANSLATE_NOOP("FindBar", "Find &Next"),              "F3",            &FindBar::FindNext},
        {"findPrevious",     QT_TRANSLATE_NOOP("FindBar", "Find &Previous"),          "Shift+F3",      &FindBar::FindPrevious},
        {"findNextWord",     QT_TRANSLATE_NOOP("FindBar", "Find the &Word Next"),     "Ctrl+F3",       &FindBar::FindNextWord},
        {"findPreviousWord", QT_TRANSLATE_NOOP("FindBar", "Find the W&ord Previous"), "Ctrl+Shift+F3", &FindBar::FindPreviousWord},
        {"replace",          QT_TRANSLATE_NOOP("FindBar", "&Replace"),                "Ctrl+H",        &FindBar::OpenReplacing, true, false, &FindBar::Replace},
        {"replaceAll",       QT_TRANSLATE_NOOP("FindBar", "Replace &All"),            nullptr,         &FindBar::ReplaceAll, true, true},
        {"markAll",          QT_TRANSLATE_NOOP("FindBar", "&Mark All"),               nullptr,         &FindBar::MarkAll, false, true},
        {"countMatches",     QT_TRANSLATE_NOOP("FindBar", "Co&unt"),                  nullptr,         &FindBar::Count, false, true},
    };
    // clang-format on
    return rows;
}

std::string_view NameOf(const FindBar::Row& row)
{
    return row.name;
}

// By Tab, from the last on, as it is seen: a row from left to right, then the next.
void PassInOrder(const QLayout& layout, QWidget*& last)
{
    for (int i = 0; i < layout.count(); ++i) {
        QWidget* widget = layout.itemAt(i)->widget();
        const QLayout* inner = widget ? widget->layout() : layout.itemAt(i)->layout();
        if (inner) {
            PassInOrder(*inner, last);
        } else if (widget && widget != last && widget->focusPolicy() & Qt::TabFocus) {
            QWidget::setTabOrder(last, widget);
            last = widget;
        }
    }
}

} // namespace

FindBar::FindBar(std::function<CZNCoreEditorControlEx*()> editor, QWidget* parent)
    : QWidget(parent), m_editor(std::move(editor)),
      m_manager(*zncoreeditor::GetFindReplaceManager()), m_find(MakeBox("findText", tr("Find"))),
      m_replace(MakeBox("replaceText", tr("Replace with"))),
      m_matchCase(MakeOption("matchCase", tr("Match &case"), m_manager.GetMatchCase())),
      m_wholeWord(MakeOption("wholeWord", tr("&Whole word"), m_manager.GetWholeWord())),
      m_expression(MakeOption("expression", tr("E&xpression"), m_manager.GetRegExp())),
      m_inSelection(MakeOption("inSelection", tr("&In selection"), false)),
      m_preserveCase(MakeOption("preserveCase", tr("&Keep case"), false)),
      m_help(new ExpressionHelp(this)), m_result(new QLabel(this)),
      m_showReplace(new QToolButton(this)), m_replaceRow(new QWidget(this)),
      m_count(new MatchCount(this))
{
    m_showReplace->setObjectName(QStringLiteral("showReplace"));
    m_showReplace->setCheckable(true);
    m_showReplace->setAutoRaise(true);
    m_showReplace->setToolTip(tr("Replacing"));
    m_showReplace->setAccessibleName(tr("Replacing"));
    m_result->setObjectName(QStringLiteral("findResult"));
    // A long result is cut rather than widening the window; its tool tip has all of it.
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHorizontalStretch(1);
    m_result->setSizePolicy(policy);
    m_preserveCase->setToolTip(tr("A replacement is in capitals where what it replaces is"));
    m_manager.SetPerlSyntax(m_help->IsPerl());
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setColumnStretch(1, 1);
    layout->addWidget(m_showReplace, 0, 0, Qt::AlignTop);
    layout->addLayout(MakeFindRow(), 0, 1);
    layout->addWidget(MakeCloseButton(), 0, 2, Qt::AlignTop);
    layout->addWidget(m_replaceRow, 1, 1, 1, 2);
    auto* replacing = new WrapRow(m_replaceRow);
    replacing->addWidget(m_replace);
    for (const char* name : {"replace", "replaceAll"})
        replacing->addWidget(MakeButton(name));
    replacing->addWidget(m_preserveCase);
    for (const char* name : {"markAll", "countMatches"})
        replacing->addWidget(MakeButton(name));
    connect(m_showReplace, &QToolButton::toggled, this, &FindBar::ShowReplaceRow);
    ShowReplaceRow(false);
    for (QCheckBox* option : {m_matchCase, m_wholeWord, m_expression})
        connect(option, &QCheckBox::toggled, this, &FindBar::SeekSoon);
    connect(m_find, &QComboBox::editTextChanged, this, &FindBar::SeekSoon);
    for (QTimer* timer : {&m_seek, &m_recount})
        timer->setSingleShot(true);
    connect(&m_seek, &QTimer::timeout, this, &FindBar::Seek);
    connect(&m_recount, &QTimer::timeout, this, &FindBar::CountAnew);
    connect(m_count, &MatchCount::Grown, this, &FindBar::TellPlace);
    connect(m_inSelection, &QCheckBox::toggled, this, &FindBar::ScopeSelection);
    connect(m_help, &ExpressionHelp::GrammarChanged, this, [this] {
        m_manager.SetPerlSyntax(m_help->IsPerl());
        SeekSoon();
    });
    connect(m_help, &ExpressionHelp::Picked, this, [this](const QString& piece) {
        m_expression->setChecked(true);
        m_find->lineEdit()->insert(piece);
        m_find->setFocus();
    });
    QWidget* last = m_showReplace;
    PassInOrder(*layout, last);
    setTabOrder(m_find, m_replace); // what one types is typed in one go
    setFocusProxy(m_find);
    m_find->installEventFilter(this);
    m_replace->installEventFilter(this);
    hide();
}

QLayout* FindBar::MakeFindRow()
{
    constexpr int kResultWidth = 12; // characters, at least
    auto* row = new WrapRow;
    m_result->setMinimumWidth(fontMetrics().averageCharWidth() * kResultWidth);
    row->addWidget(m_find);
    row->addWidget(m_result);
    for (const char* name : {"findPrevious", "findNext"}) {
        QPushButton* button = MakeButton(name);
        // The arrow stands for the words, whose letter stays.
        const QString words = button->text();
        button->setIcon(CommandIcon(QLatin1String(name)));
        button->setText({});
        button->setFlat(true);
        button->setShortcut(QKeySequence::mnemonic(words));
        button->setAccessibleName(zncoreeditor::WithoutMnemonic(words));
        button->setToolTip(button->accessibleName());
        row->addWidget(button);
    }
    for (QWidget* option : {m_matchCase, m_wholeWord, m_inSelection})
        row->addWidget(option);
    auto* expression = new QWidget(this); // with its help, which a row does not part
    auto* parts = new QHBoxLayout(expression);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->addWidget(m_expression);
    parts->addWidget(m_help);
    row->addWidget(expression);
    return row;
}

QToolButton* FindBar::MakeCloseButton()
{
    auto* close = new QToolButton(this);
    close->setObjectName(QStringLiteral("closeFind"));
    close->setIcon(CommandIcon(QStringLiteral("close")));
    close->setToolTip(tr("Close"));
    close->setAccessibleName(tr("Close"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &FindBar::Close);
    return close;
}

QPushButton* FindBar::MakeButton(const char* name)
{
    const Row& row = *std::ranges::find(Rows(), std::string_view(name), NameOf);
    auto* button = new QPushButton(tr(row.text), this);
    button->setObjectName(QLatin1String(name) + QStringLiteral("Button"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, row.press ? row.press : row.run);
    return button;
}

void FindBar::ShowReplaceRow(bool isShown)
{
    m_showReplace->setChecked(isShown);
    m_showReplace->setArrowType(isShown ? Qt::DownArrow : Qt::RightArrow);
    m_replaceRow->setVisible(isShown);
}

QComboBox* FindBar::MakeBox(const char* name, const QString& label)
{
    constexpr int kLeastLength = 10; // characters
    auto* box = new QComboBox(this);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(kLeastLength);
    QSizePolicy policy = box->sizePolicy();
    policy.setHorizontalStretch(2);
    box->setSizePolicy(policy);
    box->setObjectName(QLatin1String(name));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr); // what is typed is what is sought
    box->lineEdit()->setPlaceholderText(label);
    KeepBoxNames();
    box->setAccessibleName(label);
    box->lineEdit()->setAccessibleName(label);
    connect(box, &QComboBox::editTextChanged, this, &FindBar::Update);
    return box;
}

QCheckBox* FindBar::MakeOption(const char* name, const QString& label, bool isOn)
{
    auto* option = new QCheckBox(label, this);
    option->setObjectName(QLatin1String(name));
    option->setChecked(isOn);
    // By its letter at once and from the box: a button's own waits a tenth of a second, in which
    // one types on, and takes the keyboard.
    auto* letter = new QShortcut(option->shortcut(), option);
    option->setShortcut({});
    connect(letter, &QShortcut::activated, option, &QCheckBox::toggle);
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
    const Editor* editor = m_editor();
    if (editor == std::exchange(m_shownIn, editor))
        return;
    if (m_scoped != editor)
        m_inSelection->setChecked(false);
    ShowMatches();
    if (isVisible()) {
        m_count->Stop();
        m_tellsPlace = true;
        m_recount.start(0);
    }
}

bool FindBar::IsPossible(const Row& row) const
{
    Editor* editor = m_editor();
    if (!editor || (row.changesText && editor->GetReadOnly(1)))
        return false;
    return !row.needsSought || !m_find->currentText().isEmpty();
}
