// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/docview/LabelUI.h"

#include <QLabel>

void LabelUI::Enable(bool on)
{
    m_label.setEnabled(on);
}

// A label lays its window out anew for every text, the same one too.
void LabelUI::SetText(const QString& text)
{
    if (m_label.text() != text)
        m_label.setText(text);
}

void LabelUI::DoUpdate(CCmdTarget& target)
{
    if (!target.OnCmdMsg(m_nID, this))
        SetText(QString());
}
