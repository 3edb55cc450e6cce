// SPDX-License-Identifier: GPL-3.0-or-later
// The "?" beside the find bar's expressions: which of two grammars they are written in, which is
// kept for the next time, and what may stand in one.
#pragma once

#include "host/icons/MenuButton.h"

class ExpressionHelp final : public MenuButton
{
    Q_OBJECT

public:
    explicit ExpressionHelp(QWidget* parent);

    bool IsPerl() const { return m_isPerl; } // groups by ( and ), as in most tools
    void SetPerl(bool isPerl);

Q_SIGNALS:
    void GrammarChanged();
    void Picked(const QString& piece); // of an expression

private:
    void FillMenu();

    bool m_isPerl;
};
