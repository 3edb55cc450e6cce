// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/export/RtfClipboard.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>

void MoveRtfToClipboard(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        auto* data = new QMimeData; // the clipboard's
        data->setData(QStringLiteral("text/rtf"), file.readAll() + '\0');
        QGuiApplication::clipboard()->setMimeData(data);
        file.close();
    }
    QFile::remove(path);
}
