// SPDX-License-Identifier: GPL-3.0-or-later
// The box of what takes more than a moment: how far it has come, and a button that stops it.
#pragma once

#include "platform/services/LongWork.h"

#include <QPointer>

class QProgressDialog;
class QStatusBar;

class WorkProgress final : public ILongWork
{
public:
    WorkProgress(); // takes effect
    ~WorkProgress() override;
    WorkProgress(const WorkProgress&) = delete;
    WorkProgress& operator=(const WorkProgress&) = delete;

    bool GoesOn(HWND owner, const QString& what, int hundredths) override;
    // In the status bar of the owner's window, which is drawn without an event.
    void Tells(HWND owner, const QString& what, int steps) override;
    void Ends() override;

private:
    QElapsedTimer m_shown; // since the box was brought up to date
    QPointer<QProgressDialog> m_box;
    QPointer<QStatusBar> m_bar; // which tells
};
