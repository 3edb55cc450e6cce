// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/dialogs/PatternMenus.h"

#include "platform/dialogs/MyComboBox.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr const char* kExpression[] = {
    "Beginning of line\t^",
    "End of line\t$",
    "Any character\t.",
    "Character class\t[]",
    "Negated character class\t[^]",
    "Define a group\t\\(\\)",
    "Match left OR right expr.\t|",
    "Position after match\t\\c",
    "Preceding expr. zero or more\t*",
    "Preceding expr. 1 or more\t+",
    "Preceding expr. 0 or 1\t?",
    "Newline character\t\\n",
    "Carriage return\t\\r",
    "Tab\t\\t",
    "Backspace\t\\b",
    "Form feed\t\\f",
    "Hexadecimal digit\t\\x",
    "Escape\t\\",
    "Alphanumeric\t[a-zA-Z0-9]",
};

constexpr const char* kReplacement[] = {
    "Subexpression 1\t\\1", "Subexpression 2\t\\2",
    "Subexpression 3\t\\3", "Subexpression 4\t\\4",
    "Subexpression 5\t\\5", "Subexpression 6\t\\6",
    "Subexpression 7\t\\7", "Subexpression 8\t\\8",
    "Subexpression 9\t\\9", "Tab\t\\t",
    "New Line\t\\n",
};

constexpr QChar kCaretMark(1);

} // namespace

MenuTexts ExpressionItems()
{
    return kExpression;
}

MenuTexts ReplacementItems()
{
    return kReplacement;
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
