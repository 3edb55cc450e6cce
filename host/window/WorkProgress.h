// SPDX-License-Identifier: GPL-3.0-or-later
// The box of what takes more than a moment: how far it has come, and a button that stops it.
#pragma once

#include "platform/services/LongWork.h"

#include <QPointer>

class QProgressDialog;

class WorkProgress final : public ILongWork
{
public:
    WorkProgress(); // takes effect
    ~WorkProgress() override;
    WorkProgress(const WorkProgress&) = delete;
    WorkProgress& operator=(const WorkProgress&) = delete;

    bool GoesOn(HWND owner, const QString& what, int hundredths) override;
    void Ends() override;

private:
    QElapsedTimer m_shown; // since the box was brought up to date
    QPointer<QProgressDialog> m_box;
};
