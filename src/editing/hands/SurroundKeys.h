// SPDX-License-Identifier: GPL-3.0-or-later
// A quote or an opening bracket that is typed over a selection surrounds it, where the options say
// so; else it replaces it, as any character does.
#pragma once

#include <QObject>

class CZNCoreEditorControlEx;

class SurroundKeys final : public QObject
{
public:
    // Over the control's window, which it has. The control outlives this.
    SurroundKeys(CZNCoreEditorControlEx& control, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HasSelectedText();

    CZNCoreEditorControlEx& m_control;
};
