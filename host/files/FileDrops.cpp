// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/FileDrops.h"

#include "platform/docview/WinApp.h"

#include <QAbstractScrollArea>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QPointer>
#include <QTimer>
#include <QUrl>

namespace {

QStringList FilesOf(const QDropEvent& drop)
{
    QStringList files;
    for (const QUrl& url : drop.mimeData()->urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    return files;
}

} // namespace

void FileDrops::Take(QWidget& onto)
{
    auto* drops = new FileDrops(&onto);
    onto.setAcceptDrops(true);
    onto.installEventFilter(drops);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(&onto))
        area->viewport()->installEventFilter(drops);
}

bool FileDrops::eventFilter(QObject* /*watched*/, QEvent* event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return false;
    auto& drop = *static_cast<QDropEvent*>(event);
    if (FilesOf(drop).isEmpty())
        return false; // text that is moved about is the editor's
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (isDrop)
        Open(drop);
    return true;
}

// Behind the drop: a question about a file would hold up the program that it came from.
void FileDrops::Open(const QDropEvent& drop)
{
    QTimer::singleShot(0, this, [this, files = FilesOf(drop)] {
        const QPointer<QWidget> window = static_cast<QWidget*>(parent())->window();
        auto* shower = dynamic_cast<FolderShower*>(window.data());
        QString folder;
        for (const QString& file : files) {
            if (shower && QFileInfo(file).isDir())
                folder = folder.isEmpty() ? file : folder;
            else if (GetApp())
                GetApp()->OpenDocumentFile(file);
        }
        if (window && !folder.isEmpty())
            shower->ShowFolder(folder);
    });
}
