// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/ExpressionHelp.h"

#include "prefs/RegProfile.h"

#include <QActionGroup>
#include <QMenu>

namespace {

constexpr const char16_t* kSection = u"Preferences\\Search";
constexpr const char16_t* kEntry = u"PerlSyntax";

struct Row
{
    const char* perl; // null: the grammar has no such thing
    const char* own;
    const char* text;
};

// clang-format off
constexpr Row kRows[] = {
    {".",         ".",         QT_TRANSLATE_NOOP("ExpressionHelp", "any character of the line")},
    {"[a-z]",     "[a-z]",     QT_TRANSLATE_NOOP("ExpressionHelp", "one of a set; [^a-z] any other")},
    {"\\d",       "\\d",       QT_TRANSLATE_NOOP("ExpressionHelp", "a digit; \\D any other")},
    {"\\w",       "\\w",       QT_TRANSLATE_NOOP("ExpressionHelp", "a character of a word; \\W any other")},
    {"\\s",       "\\s",       QT_TRANSLATE_NOOP("ExpressionHelp", "a blank; \\S any other")},
    {"*",         "*",         QT_TRANSLATE_NOOP("ExpressionHelp", "what stands before, any number of times")},
    {"+",         "+",         QT_TRANSLATE_NOOP("ExpressionHelp", "what stands before, once at least")},
    {"?",         "?",         QT_TRANSLATE_NOOP("ExpressionHelp", "what stands before, or nothing")},
    {"{2,4}",     nullptr,     QT_TRANSLATE_NOOP("ExpressionHelp", "what stands before, two to four times")},
    {"|",         "|",         QT_TRANSLATE_NOOP("ExpressionHelp", "what stands before, or what follows")},
    {"()",        "\\(\\)",    QT_TRANSLATE_NOOP("ExpressionHelp", "a group; \\1 to \\9 in the replacement")},
    {"^",         "^",         QT_TRANSLATE_NOOP("ExpressionHelp", "the start of a line")},
    {"$",         "$",         QT_TRANSLATE_NOOP("ExpressionHelp", "the end of a line")},
    {"\\b",       nullptr,     QT_TRANSLATE_NOOP("ExpressionHelp", "an edge of a word")},
    {nullptr,     "\\<",       QT_TRANSLATE_NOOP("ExpressionHelp", "the start of a word")},
    {nullptr,     "\\>",       QT_TRANSLATE_NOOP("ExpressionHelp", "the end of a word")},
    {nullptr,     "\\c",       QT_TRANSLATE_NOOP("ExpressionHelp", "the match ends here")},
    {"\\n",       "\\n",       QT_TRANSLATE_NOOP("ExpressionHelp", "a line feed")},
    {"\\t",       "\\t",       QT_TRANSLATE_NOOP("ExpressionHelp", "a tab")},
};
// clang-format on

} // namespace

ExpressionHelp::ExpressionHelp(QWidget* parent)
    : MenuButton(parent), m_isPerl(CRegProfile().GetProfileInt(kSection, kEntry, 1) == 1)
{
    setObjectName(QStringLiteral("expressionHelp"));
    setText(QStringLiteral("&?"));
    setToolTip(tr("What an expression may say"));
    setAccessibleName(toolTip());
    setMenu(new QMenu(this));
    connect(menu(), &QMenu::aboutToShow, this, &ExpressionHelp::FillMenu);
}

void ExpressionHelp::SetPerl(bool isPerl)
{
    if (isPerl == m_isPerl)
        return;
    m_isPerl = isPerl;
    CRegProfile().WriteProfileInt(kSection, kEntry, isPerl);
    Q_EMIT GrammarChanged();
}

void ExpressionHelp::FillMenu()
{
    menu()->clear();
    auto* group = new QActionGroup(menu());
    const auto add = [&](const char* name, const QString& text, bool isPerl) {
        QAction* action = menu()->addAction(text);
        action->setObjectName(QLatin1String(name));
        action->setCheckable(true);
        action->setChecked(isPerl == m_isPerl);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, isPerl] { SetPerl(isPerl); });
    };
    add("perlSyntax", tr("&Groups by ( and )"), true);
    add("ownSyntax", tr("G&roups by \\( and \\)"), false);
    menu()->addSeparator();
    for (const Row& row : kRows) {
        const char* piece = m_isPerl ? row.perl : row.own;
        if (!piece)
            continue;
        const QString text = QLatin1String(piece);
        QAction* action = menu()->addAction(text + u'\t' + tr(row.text));
        connect(action, &QAction::triggered, this, [this, text] { Q_EMIT Picked(text); });
    }
}
