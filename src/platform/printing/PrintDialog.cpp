// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/printing/PrintDialog.h"

#include "platform/printing/PrintJob.h"
#include "platform/printing/PrintService.h"

#include <QPrinter>

CPrintDialog::CPrintDialog(UINT flags)
{
    m_pd.Flags = flags;
}

CPrintDialog::~CPrintDialog() = default;

int CPrintDialog::DoModal(HWND owner)
{
    m_printer = GetPrintService().ChoosePrinter(owner, m_pd);
    return m_printer ? kDialogOk : kDialogCancel;
}

bool CPrintDialog::GetDefaults()
{
    m_printer = GetPrintService().DefaultPrinter();
    return m_printer != nullptr;
}

std::unique_ptr<PrintJob> CPrintDialog::CreatePrinterDC()
{
    return GetPrintService().MakeJob(std::move(m_printer));
}
