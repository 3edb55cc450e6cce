// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// LabelUI: a CCmdUI over a QLabel, so that the panes of a status bar follow the update handlers.
#pragma once

#include "platform/windows/CmdTarget.h"

class QLabel;

/// A CCmdUI over a QLabel, so that the panes of a status bar follow the update handlers.
class ZN_API LabelUI final : public CCmdUI
{
public:
    LabelUI(UINT id, QLabel& label) : CCmdUI(id), m_label(label) {} ///< the label outlives this

    void Enable(bool on = true) override;
    void SetCheck(int /*state*/ = 1) override {} ///< a label shows none
    void SetRadio(bool /*on*/ = true) override {}
    void SetText(const QString& text) override;

    /// Asks the target. A label that nobody answers for is emptied.
    void DoUpdate(CCmdTarget& target);

private:
    QLabel& m_label;
};
