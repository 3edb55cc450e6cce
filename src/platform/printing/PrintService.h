// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What printing asks of its surroundings: a printer, a place to show its pages, and whether to go
/// on. A host replaces it, and a test answers.
#pragma once

#include "platform/printing/PrintDialog.h"

#include <QString>

#include <functional>
#include <memory>

class PrintJob;
class QPrinter;

/// Each of them has Qt's own way as its default.
class ZN_API IPrintService
{
public:
    virtual ~IPrintService(); ///< to be taken back by SetPrintService before

    /// The printer that the user chooses, set up by them; what of the document goes into the
    /// record. Null if they thought better of it. Qt's dialog; where no printer is known it is
    /// said, and a PDF offered.
    virtual std::unique_ptr<QPrinter> ChoosePrinter(HWND owner, PRINTDLG& record);
    /// The printer that is used unasked, null if there is none.
    virtual std::unique_ptr<QPrinter> DefaultPrinter();
    /// What prints on that printer; MakePrintJob by default.
    virtual std::unique_ptr<PrintJob> MakeJob(std::unique_ptr<QPrinter> printer);

    /// Every page of a preview is kept as a picture.
    static constexpr UINT kMostPreviewed = 300;
    /// Shows pages until the user has seen them. The function draws them, each time the preview has
    /// another paper for it, and gives false if there are more than it has drawn.
    virtual void Preview(HWND owner, const QString& title,
                         const std::function<bool(QPrinter& printer)>& print);

    /// Before each page of a job. False stops the job. Pages count from 1.
    virtual bool OnPage(HWND owner, UINT page, UINT lastPage);
    /// At the end of each job, which may have come to it early. The file is empty for a printer.
    virtual void OnDone(HWND owner, bool succeeded, const QString& file);
};

/// Takes effect at once and stays the caller's; null brings back Qt's dialogs.
ZN_API void SetPrintService(IPrintService* service);
ZN_API IPrintService& GetPrintService(); ///< the one in force
