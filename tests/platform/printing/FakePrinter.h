// SPDX-License-Identifier: GPL-3.0-or-later
// A printer without paper: it answers as a test tells it and writes down what it was asked.
#pragma once

#include "platform/printing/PrintJob.h"
#include "platform/printing/PrintService.h"

#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QStringList>

#include <functional>
#include <utility>

class FakePrinter : public IPrintService
{
public:
    FakePrinter() { SetPrintService(this); }
    ~FakePrinter() override { SetPrintService(nullptr); }

    std::unique_ptr<QPrinter> ChoosePrinter(HWND /*owner*/, PRINTDLG& record) override
    {
        flags = record.Flags;
        if (chosen)
            chosen(record);
        return isCancelled ? nullptr : std::make_unique<QPrinter>();
    }
    std::unique_ptr<QPrinter> DefaultPrinter() override
    {
        return hasDefault ? std::make_unique<QPrinter>() : nullptr;
    }
    std::unique_ptr<PrintJob> MakeJob(std::unique_ptr<QPrinter> printer) override
    {
        return printer ? std::make_unique<Job>(*this) : nullptr;
    }
    void Preview(HWND /*owner*/, const QString& title,
                 const std::function<bool(QPrinter& printer)>& print) override
    {
        previewed << title;
        if (shown)
            shown(print);
    }
    bool OnPage(HWND /*owner*/, UINT page, UINT lastPage) override
    {
        told << QStringLiteral("%1 of %2").arg(page).arg(lastPage);
        return told.size() != stopAt;
    }
    void OnDone(HWND /*owner*/, bool succeeded, const QString& /*file*/) override
    {
        told << (succeeded ? QStringLiteral("done") : QStringLiteral("failed"));
    }

    QSize paper{600, 400};
    bool isCancelled = false;
    bool hasDefault = true;
    int startDoc = 1;
    int startPage = 1;
    int failAtPage = 0; // 0: never
    int stopAt = -1;    // after so many things told
    std::function<void(PRINTDLG&)> chosen;
    std::function<void(const std::function<bool(QPrinter&)>&)> shown;

    UINT flags = 0; // as the dialog began with
    QStringList asked;
    QStringList told;
    QStringList previewed;
    QList<QImage> pages;

private:
    class Job final : public PrintJob
    {
    public:
        explicit Job(FakePrinter& printer) : m_printer(printer), m_paper(Blank())
        {
            m_painter.begin(&m_paper);
        }
        ~Job() override { m_printer.asked << QStringLiteral("gone"); }

        int StartDoc(const QString& name) override
        {
            m_printer.asked << QStringLiteral("StartDoc ") + name;
            return m_printer.startDoc;
        }
        int StartPage() override
        {
            m_printer.asked << QStringLiteral("StartPage");
            m_painter.end();
            m_paper = Blank();
            m_painter.begin(&m_paper);
            return m_printer.startPage;
        }
        int EndPage() override
        {
            m_printer.asked << QStringLiteral("EndPage");
            m_printer.pages << m_paper.copy();
            return m_printer.pages.size() == m_printer.failAtPage ? 0 : 1;
        }
        int EndDoc() override
        {
            m_printer.asked << QStringLiteral("EndDoc");
            return 1;
        }
        void AbortDoc() override { m_printer.asked << QStringLiteral("AbortDoc"); }
        QPainter* Painter() override { return &m_painter; }

    private:
        QImage Blank() const
        {
            QImage image(m_printer.paper, QImage::Format_RGB32);
            image.fill(Qt::white);
            return image;
        }

        FakePrinter& m_printer;
        QImage m_paper;
        QPainter m_painter;
    };
};
