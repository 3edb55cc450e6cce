// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/dialogs/FaultLine.h"

#include "search/files/ExpressionFault.h"

#include <QAccessible>

FaultLine::FaultLine()
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setObjectName(QStringLiteral("fault"));
    // Its place is kept, so that the dialog does not move under the hand.
    setMinimumHeight(fontMetrics().lineSpacing());
}

void FaultLine::Show(const QString& text, bool isExpression)
{
    const QString fault = isExpression ? ExpressionFault(text) : QString();
    if (fault == this->text())
        return;
    setText(fault);
    setAccessibleName(fault);
    QAccessibleEvent told(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&told);
}
