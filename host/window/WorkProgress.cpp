// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/WorkProgress.h"

#include "platform/windows/Disposal.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMainWindow>
#include <QProgressDialog>
#include <QStatusBar>
#include <QWidget>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(WorkProgress)
};

constexpr qint64 kBetweenLooks = 50; // milliseconds from one look at the Stop button to the next

} // namespace

WorkProgress::WorkProgress()
{
    SetLongWork(this);
}

WorkProgress::~WorkProgress()
{
    SetLongWork(nullptr);
    delete m_box;
}

// What is closed meanwhile stays until the work is over.
bool WorkProgress::GoesOn(HWND owner, const QString& what, int hundredths)
{
    if (m_box && m_shown.elapsed() < kBetweenLooks)
        return true;
    const FrameworkCall call;
    if (!m_box) {
        m_box = new QProgressDialog(owner ? owner->window() : nullptr);
        m_box->setObjectName(QStringLiteral("workProgress"));
        m_box->setWindowTitle(QStringLiteral("znworkbench"));
        m_box->setCancelButtonText(Texts::tr("&Stop"));
        m_box->setWindowModality(Qt::WindowModal);
        m_box->setAutoClose(false);
        m_box->setAutoReset(false);
        m_box->setMinimumDuration(0);
        m_box->setMinimumWidth(m_box->fontMetrics().averageCharWidth() * 50);
        m_box->setLabelText(what);
    }
    m_box->setValue(hundredths);
    m_box->show();
    QCoreApplication::processEvents();
    m_shown.restart();
    return m_box && !m_box->wasCanceled();
}

void WorkProgress::Tells(HWND owner, const QString& what, int steps)
{
    auto* window = qobject_cast<QMainWindow*>(owner->window());
    if (!window || (m_bar && m_shown.elapsed() < kBetweenLooks))
        return;
    m_bar = window->statusBar();
    m_bar->showMessage(Texts::tr("%1: %2 changes").arg(what, window->locale().toString(steps)));
    m_bar->repaint();
    m_shown.restart();
}

void WorkProgress::Ends()
{
    if (m_bar)
        m_bar->clearMessage();
    m_bar.clear();
    delete m_box;
}
