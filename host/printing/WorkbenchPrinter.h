// SPDX-License-Identifier: GPL-3.0-or-later
// How the workbench prints: Qt's dialogs, a PDF by a command, and a box that shows the page of a
// job that takes more than a moment and stops it.
#pragma once

#include "platform/printing/PrintService.h"

#include <QElapsedTimer>
#include <QPointer>

class CView;
class QProgressDialog;
class QWidget;

class WorkbenchPrinter final : public IPrintService
{
public:
    WorkbenchPrinter(); // takes effect
    ~WorkbenchPrinter() override;

    // Prints all of the view's text into a PDF. The file is there once it is whole. Gives the
    // number of its pages, 0 if it was not written, of which the person knows.
    static UINT SavePdf(CView& view, const QString& path);

    // Whether the job goes on after a step of it, the box brought up to date where it is shown.
    static bool GoesOn(QWidget* owner, const QString& step, int done, int all);

    std::unique_ptr<QPrinter> ChoosePrinter(HWND owner, PRINTDLG& record) override;
    void Preview(HWND owner, const QString& title,
                 const std::function<bool(QPrinter& printer)>& print) override;
    bool OnPage(HWND owner, UINT page, UINT lastPage) override;
    void OnDone(HWND owner, bool succeeded, const QString& file) override;

private:
    bool Step(QWidget* owner, const QString& step, int done, int all);
    void EndSteps();

    QString m_pdf;    // where the job goes that is under way
    UINT m_pages = 0; // of that job, once it is done
    QElapsedTimer m_begun;
    QElapsedTimer m_shown;
    QPointer<QProgressDialog> m_progress;
    bool m_isStopped = false;
};
