// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/printing/PrintService.h"

#include "platform/printing/PrintJob.h"
#include "platform/windows/Disposal.h"
#include "platform/windows/Questions.h"

#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWidget>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PrintService)
};

IPrintService*& HostService()
{
    static IPrintService* service = nullptr;
    return service;
}

std::unique_ptr<QPrinter> PdfPrinter(HWND owner)
{
    const QString question =
        Texts::tr("No printer is set up. Do you want to save the pages as a PDF instead?");
    if (!AskYesNo(owner, question))
        return nullptr;
    QString path = AskSaveFile(owner, QString(), QStringLiteral("PDF (*.pdf)"));
    if (path.isEmpty())
        return nullptr;
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(path);
    return printer;
}

void SetUp(QPrintDialog& dialog, const PRINTDLG& record)
{
    dialog.setOption(QPrintDialog::PrintSelection, !(record.Flags & PD_NOSELECTION));
    dialog.setOption(QPrintDialog::PrintPageRange, !(record.Flags & PD_NOPAGENUMS));
    dialog.setOption(QPrintDialog::PrintToFile, !(record.Flags & PD_HIDEPRINTTOFILE));
    if (record.Flags & PD_SELECTION)
        dialog.setPrintRange(QPrintDialog::Selection);
}

void TakeChoice(const QPrintDialog& dialog, PRINTDLG& record)
{
    record.Flags &= ~(PD_SELECTION | PD_PAGENUMS);
    if (dialog.printRange() == QPrintDialog::Selection)
        record.Flags |= PD_SELECTION;
    if (dialog.printRange() == QPrintDialog::PageRange) {
        record.Flags |= PD_PAGENUMS;
        record.nFromPage = static_cast<std::uint16_t>(dialog.fromPage());
        record.nToPage = static_cast<std::uint16_t>(dialog.toPage());
    }
}

QString PreviewTitle(const QString& title, bool isWhole)
{
    return isWhole ? Texts::tr("%1 – print preview").arg(title)
                   : Texts::tr("%1 – print preview, the first %2 pages")
                         .arg(title, QString::number(IPrintService::kMostPreviewed));
}

} // namespace

IPrintService::~IPrintService() = default;

std::unique_ptr<QPrinter> IPrintService::ChoosePrinter(HWND owner, PRINTDLG& record)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        return PdfPrinter(owner);
    const FrameworkCall asking;
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPrintDialog dialog(printer.get(), owner ? owner->window() : nullptr);
    SetUp(dialog, record);
    if (dialog.exec() != QDialog::Accepted)
        return nullptr;
    TakeChoice(dialog, record);
    return printer;
}

std::unique_ptr<QPrinter> IPrintService::DefaultPrinter()
{
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    return info.isNull() ? nullptr : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
}

std::unique_ptr<PrintJob> IPrintService::MakeJob(std::unique_ptr<QPrinter> printer)
{
    return MakePrintJob(std::move(printer));
}

void IPrintService::Preview(HWND owner, const QString& title,
                            const std::function<bool(QPrinter& printer)>& print)
{
    const FrameworkCall showing;
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dialog(&printer, owner ? owner->window() : nullptr);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* paper) {
        dialog.setWindowTitle(PreviewTitle(title, print(*paper)));
    });
    if (owner)
        dialog.resize(owner->window()->size() * 9 / 10);
    dialog.exec();
}

bool IPrintService::OnPage(HWND /*owner*/, UINT /*page*/, UINT /*lastPage*/)
{
    return true;
}

void IPrintService::OnDone(HWND owner, bool succeeded, const QString& file)
{
    if (succeeded)
        return;
    ShowMessage(owner, file.isEmpty() ? Texts::tr("The document could not be printed.")
                                      : Texts::tr("%1 could not be written.").arg(file));
}

void SetPrintService(IPrintService* service)
{
    HostService() = service;
}

IPrintService& GetPrintService()
{
    static IPrintService own;
    return HostService() ? *HostService() : own;
}
