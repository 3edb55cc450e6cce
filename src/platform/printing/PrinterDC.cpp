// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/printing/PrinterDC.h"

CPrinterDC::CPrinterDC() = default;
CPrinterDC::~CPrinterDC() = default;

void CPrinterDC::Attach(std::unique_ptr<PrintJob> job)
{
    m_job = std::move(job);
}

QPainter* CPrinterDC::GetSafeHdc() const
{
    return m_job ? m_job->Painter() : nullptr;
}

int CPrinterDC::StartDocW(const QString& name)
{
    return m_job ? m_job->StartDoc(name) : -1;
}

int CPrinterDC::StartPage()
{
    return m_job ? m_job->StartPage() : -1;
}

int CPrinterDC::EndPage()
{
    return m_job ? m_job->EndPage() : -1;
}

int CPrinterDC::EndDoc()
{
    return m_job ? m_job->EndDoc() : -1;
}

int CPrinterDC::AbortDoc()
{
    if (!m_job)
        return -1;
    m_job->AbortDoc();
    return 1;
}

void CPrinterDC::DeleteDC()
{
    m_job.reset();
}
