// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// PrintJob: one document on its way to a printer or into a PDF. QPrinter stands behind it, and
/// QPdfWriter where it goes into a file.
#pragma once

#include "common/Export.h"

#include <QPainter>
#include <QString>

#include <memory>

class QIODevice;
class QPagedPaintDevice;
class QPrinter;
class QSaveFile;

/// A job is begun with StartDoc and ended by EndDoc or AbortDoc. Nothing reaches a printer or a
/// file before the first page is begun. A job that is dropped counts as aborted.
class ZN_API PrintJob
{
public:
    virtual ~PrintJob(); ///< aborts a job that is not ended

    virtual int StartDoc(const QString& name) = 0; ///< above 0 if the document is begun
    virtual int StartPage() = 0;                   ///< above 0 if there is a page
    virtual int EndPage() = 0;                     ///< above 0 if the page is done
    virtual int EndDoc() = 0;                      ///< above 0 if all of it has gone out
    virtual void AbortDoc() = 0;                   ///< leaves nothing behind, where that can be had

    /// What a page is drawn with. Outside of pages it measures as one would, and draws nothing.
    virtual QPainter* Painter() = 0;

    /// Where it goes: the file's path, empty for a printer.
    virtual QString File() const { return {}; }
};

/// Prints as the printer is set up. If that is a file, the file is there once all of it is written;
/// one that was there before is replaced then.
ZN_API std::unique_ptr<PrintJob> MakePrintJob(std::unique_ptr<QPrinter> printer);

/// The job writes its PDF into the device, which stays the caller's, on paper as that of the
/// layout.
ZN_API std::unique_ptr<PrintJob> MakePdfJob(QIODevice& device, const QPrinter& layout);
