// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/pictures/PrintPictures.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "host/printing/WorkbenchPrinter.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptView.h"
#include "host/window/MainWindow.h"
#include "platform/services/OptionsServer.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QPrintPreviewWidget>
#include <QTimer>

namespace {

void Rest(int milliseconds)
{
    QElapsedTimer time;
    for (time.start(); time.elapsed() < milliseconds;)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

void Trigger(const MainWindow& window, const char* command)
{
    if (auto* action = window.findChild<QAction*>(QLatin1String(command)))
        action->trigger();
}

} // namespace

void PicturePrinting(MainWindow& window, const QDir& folder, const QString& name)
{
    const QString path = folder.filePath(name);
    CZNOptionsServer::GetObjectW()->SetInt(option::PrintColours, 1);
    QTimer::singleShot(0, qApp, [&path] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        auto* preview = dialog ? dialog->findChild<QPrintPreviewWidget*>() : nullptr;
        if (!preview)
            return;
        Rest(500);
        dialog->grab().save(path + QStringLiteral("-preview.png"));
        preview->setViewMode(QPrintPreviewWidget::FacingPagesView);
        Rest(500);
        dialog->grab().save(path + QStringLiteral("-facing.png"));
        dialog->reject();
    });
    Trigger(window, "printPreview");
    WorkbenchPrinter::SavePdf(*window.CurrentFrame()->View(), path + QStringLiteral(".pdf"));
    Trigger(window, "splitBeside");
    Trigger(window, "splitBelow");
    window.CurrentEditor()->LineScroll(0, 20, 1);
    Rest(500);
    window.grab().save(path + QStringLiteral("-split.png"));
    Trigger(window, "splitBelow");
    Trigger(window, "splitBeside");
}
