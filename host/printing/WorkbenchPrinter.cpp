// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/printing/WorkbenchPrinter.h"

#include "platform/docview/View.h"
#include "platform/windows/Questions.h"

#include <QCoreApplication>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QScreen>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(WorkbenchPrinter)
};

constexpr qint64 kPatience = 1000;   // milliseconds without a word
constexpr qint64 kBetweenLooks = 50; // milliseconds from one look at the Stop button to the next

WorkbenchPrinter* current = nullptr;

} // namespace

WorkbenchPrinter::WorkbenchPrinter()
{
    current = this;
    SetPrintService(this);
}

WorkbenchPrinter::~WorkbenchPrinter()
{
    SetPrintService(nullptr);
    current = nullptr;
    delete m_progress;
}

UINT WorkbenchPrinter::SavePdf(CView& view, const QString& path)
{
    if (!current)
        return 0;
    current->m_pdf = path;
    current->m_pages = 0;
    view.OnFilePrint();
    if (!current)
        return 0;
    current->m_pdf.clear();
    return current->m_pages;
}

std::unique_ptr<QPrinter> WorkbenchPrinter::ChoosePrinter(HWND owner, PRINTDLG& record)
{
    m_begun.invalidate();
    if (m_pdf.isEmpty())
        return IPrintService::ChoosePrinter(owner, record);
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(m_pdf);
    return printer;
}

// The finding of pages shows its steps, which no job ends.
void WorkbenchPrinter::Preview(HWND owner, const QString& title,
                               const std::function<bool(QPrinter& printer)>& print)
{
    IPrintService::Preview(owner, title, [&](QPrinter& paper) {
        EndSteps();
        const bool isWhole = print(paper);
        EndSteps();
        m_isStopped = false;
        return isWhole;
    });
}

bool WorkbenchPrinter::GoesOn(QWidget* owner, const QString& step, int done, int all)
{
    return !current || current->Step(owner, step, done, all);
}

bool WorkbenchPrinter::Step(QWidget* owner, const QString& step, int done, int all)
{
    if (!m_begun.isValid()) {
        m_begun.start();
        m_shown.start();
        m_isStopped = false;
    }
    if (m_begun.elapsed() < kPatience || m_shown.elapsed() < kBetweenLooks)
        return !m_isStopped;
    if (!m_progress) {
        m_progress = new QProgressDialog(owner ? owner->window() : nullptr);
        m_progress->setObjectName(QStringLiteral("printProgress"));
        m_progress->setWindowTitle(Texts::tr("Printing"));
        m_progress->setCancelButtonText(Texts::tr("&Stop"));
        m_progress->setWindowModality(Qt::WindowModal);
        m_progress->setAutoClose(false);
        m_progress->setAutoReset(false);
        m_progress->setMinimumDuration(0);
        m_progress->setMinimumWidth(m_progress->fontMetrics().averageCharWidth() * 50);
    }
    m_progress->setLabelText(step);
    m_progress->setMaximum(all);
    m_progress->setValue(std::min(done, all));
    m_progress->show();
    QCoreApplication::processEvents();
    m_shown.restart();
    m_isStopped = m_isStopped || !m_progress || m_progress->wasCanceled();
    return !m_isStopped;
}

void WorkbenchPrinter::EndSteps()
{
    delete m_progress;
    m_begun.invalidate();
}

bool WorkbenchPrinter::OnPage(HWND owner, UINT page, UINT lastPage)
{
    m_pages = page;
    return Step(owner, Texts::tr("Page %1 of %2").arg(page).arg(lastPage),
                static_cast<int>(page) - 1, static_cast<int>(lastPage));
}

// Who has stopped a job knows that it has not succeeded.
void WorkbenchPrinter::OnDone(HWND owner, bool succeeded, const QString& file)
{
    EndSteps();
    if (!succeeded || m_isStopped)
        m_pages = 0;
    if (!m_isStopped)
        IPrintService::OnDone(owner, succeeded, file);
    m_isStopped = false;
}
