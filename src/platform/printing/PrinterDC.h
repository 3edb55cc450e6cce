// SPDX-License-Identifier: GPL-3.0-or-later
// CPrinterDC: the device context of a print job.
#pragma once

#include "platform/printing/PrintJob.h"
#include "platform/windows/DeviceContext.h"

// Every operation gives -1 without a job.
class ZN_API CPrinterDC final : public CDC
{
public:
    CPrinterDC();
    ~CPrinterDC() override;

    void Attach(std::unique_ptr<PrintJob> job);
    PrintJob* Job() const { return m_job.get(); }

    QPainter* GetSafeHdc() const override;

    int StartDocW(const QString& name);
    int StartPage();
    int EndPage();
    int EndDoc();
    int AbortDoc();
    void DeleteDC(); // the job goes

private:
    std::unique_ptr<PrintJob> m_job;
};
