// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/dialogs/PatternMenus.h"

#include "platform/dialogs/MyComboBox.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <span>

namespace {

constexpr const char* kExpression[] = {
    QT_TRANSLATE_NOOP("PatternMenus", "Beginning of line\t^"),
    QT_TRANSLATE_NOOP("PatternMenus", "End of line\t$"),
    QT_TRANSLATE_NOOP("PatternMenus", "Any character\t."),
    QT_TRANSLATE_NOOP("PatternMenus", "Character class\t[]"),
    QT_TRANSLATE_NOOP("PatternMenus", "Negated character class\t[^]"),
    QT_TRANSLATE_NOOP("PatternMenus", "Define a group\t\\(\\)"),
    QT_TRANSLATE_NOOP("PatternMenus", "Match left OR right expr.\t|"),
    QT_TRANSLATE_NOOP("PatternMenus", "Position after match\t\\c"),
    QT_TRANSLATE_NOOP("PatternMenus", "Preceding expr. zero or more\t*"),
    QT_TRANSLATE_NOOP("PatternMenus", "Preceding expr. 1 or more\t+"),
    QT_TRANSLATE_NOOP("PatternMenus", "Preceding expr. 0 or 1\t?"),
    QT_TRANSLATE_NOOP("PatternMenus", "Newline character\t\\n"),
    QT_TRANSLATE_NOOP("PatternMenus", "Carriage return\t\\r"),
    QT_TRANSLATE_NOOP("PatternMenus", "Tab\t\\t"),
    QT_TRANSLATE_NOOP("PatternMenus", "Backspace\t\\b"),
    QT_TRANSLATE_NOOP("PatternMenus", "Form feed\t\\f"),
    QT_TRANSLATE_NOOP("PatternMenus", "Hexadecimal digit\t\\x"),
    QT_TRANSLATE_NOOP("PatternMenus", "Escape\t\\"),
    QT_TRANSLATE_NOOP("PatternMenus", "Alphanumeric\t[a-zA-Z0-9]"),
};

constexpr const char* kReplacement[] = {
    QT_TRANSLATE_NOOP("PatternMenus", "Subexpression 1\t\\1"),
    QT_TRANSLATE_NOOP("PatternMenus", "Subexpression 2\t\\2"),
    QT_TRANSLATE_NOOP("PatternMenus", "Subexpression 3\t\\3"),
    QT_TRANSLATE_NOOP("PatternMenus", "Subexpression 4\t\\4"),
    QT_TRANSLATE_NOOP("PatternMenus", "Subexpression 5\t\\5"),
    QT_TRANSLATE_NOOP("PatternMenus", "Subexpression 6\t\\6"),
    QT_TRANSLATE_NOOP("PatternMenus", "Subexpression 7\t\\7"),
    QT_TRANSLATE_NOOP("PatternMenus", "Subexpression 8\t\\8"),
    QT_TRANSLATE_NOOP("PatternMenus", "Subexpression 9\t\\9"),
    QT_TRANSLATE_NOOP("PatternMenus", "Tab\t\\t"),
    QT_TRANSLATE_NOOP("PatternMenus", "New Line\t\\n"),
};

constexpr QChar kCaretMark(1);

// What stands behind the tab goes into the edit, and is the same in every language.
QStringList Translated(std::span<const char* const> rows)
{
    QStringList texts;
    for (const char* row : rows)
        texts << QCoreApplication::translate("PatternMenus", row);
    return texts;
}

} // namespace

QStringList ExpressionItems()
{
    return Translated(kExpression);
}

QStringList ReplacementItems()
{
    return Translated(kReplacement);
}

// The tab itself is typed with the text, and the edit refuses it.
bool InsertItem(CMyComboBox& box, const QString& row)
{
    const qsizetype tab = row.indexOf(u'\t');
    if (tab == -1 || tab + 1 >= row.size())
        return false;
    box.RestoreEditSelection();
    qsizetype behindMark = 0;
    for (qsizetype at = tab; at < row.size(); ++at) {
        if (row[at] == kCaretMark) {
            behindMark = row.size() - at - 1;
            continue;
        }
        QKeyEvent typed(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(row[at]));
        QCoreApplication::sendEvent(box.lineEdit(), &typed);
    }
    const int caret = box.lineEdit()->cursorPosition() - static_cast<int>(behindMark);
    box.setFocus();
    box.lineEdit()->setCursorPosition(caret);
    return true;
}
