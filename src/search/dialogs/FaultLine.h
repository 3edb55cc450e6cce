// SPDX-License-Identifier: GPL-3.0-or-later
// A line of a dialog that says what is wrong with the expression in a box, while it is typed.
#pragma once

#include <QLabel>

class FaultLine final : public QLabel
{
public:
    FaultLine();

    // Nothing is wrong with a text that is no expression.
    void Show(const QString& text, bool isExpression);
};
