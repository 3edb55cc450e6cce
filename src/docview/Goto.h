// SPDX-License-Identifier: GPL-3.0-or-later
// CGoto: the dialog that asks for a line and goes there.
#pragma once

#include "platform/dialogs/Dialog.h"

class CGoto final : public CDialog
{
public:
    static constexpr UINT kLine = 28124;
    static constexpr UINT kRange = 28126;

    // The line counts from 0. The view may be any window: only that of an editor goes anywhere.
    CGoto(CWnd* view, int currentLine, int lineCount)
        : CDialog(view), m_currentLine(currentLine), m_lineCount(lineCount), m_view(view)
    {}

protected:
    void OnBuild(QWidget* window) override;
    bool OnInitDialog() override;
    void OnOK() override;

private:
    int m_currentLine;
    int m_lineCount;
    CWnd* m_view;
};
