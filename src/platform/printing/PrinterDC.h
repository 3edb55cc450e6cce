// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CPrinterDC: the device context of a print job.
#pragma once

#include "platform/printing/PrintJob.h"
#include "platform/windows/DeviceContext.h"

/// Every operation gives -1 without a job.
class ZN_API CPrinterDC final : public CDC
{
public:
    CPrinterDC(); ///< without a job
    ~CPrinterDC() override;

    void Attach(std::unique_ptr<PrintJob> job);   ///< takes the job over
    PrintJob* Job() const { return m_job.get(); } ///< null: none

    QPainter* GetSafeHdc() const override;

    int StartDocW(const QString& name); ///< as PrintJob::StartDoc
    int StartPage();                    ///< as PrintJob::StartPage
    int EndPage();                      ///< as PrintJob::EndPage
    int EndDoc();                       ///< as PrintJob::EndDoc
    int AbortDoc();                     ///< as PrintJob::AbortDoc; 1 if there was a job
    void DeleteDC();                    ///< the job goes

private:
    std::unique_ptr<PrintJob> m_job;
};
