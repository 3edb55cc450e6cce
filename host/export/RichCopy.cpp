// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/export/RichCopy.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "host/export/HtmlText.h"
#include "host/export/RtfText.h"
#include "host/files/Prompts.h"

#include <QBuffer>
#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QSaveFile>

#include <memory>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RichCopy)
};

} // namespace

void CopyWithColours(CZNCoreEditorControlEx& editor)
{
    const CharacterRange range = editor.GetSelection();
    const long length = range.cpMax - range.cpMin;
    const bool isOnePiece =
        !editor.SelectionIsRectangle(1) && editor.GetSelText(nullptr, 1) - 1 == length;
    if (!isOnePiece || length <= 0) {
        editor.Copy(1);
        return;
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(editor.GetSelText());
    QBuffer html;
    html.open(QIODevice::WriteOnly);
    WriteHtml(editor, range.cpMin, range.cpMax, QString(), html);
    data->setHtml(QString::fromUtf8(html.data()));
    const QByteArray rtf = RtfOf(editor, range.cpMin, range.cpMax);
    data->setData(QStringLiteral("text/rtf"), rtf);
    data->setData(QStringLiteral("application/rtf"), rtf);
    QGuiApplication::clipboard()->setMimeData(data.release());
}

bool SaveAsHtml(CZNCoreEditorControlEx& editor, const QString& title, const QString& path,
                QWidget* window)
{
    QSaveFile file(path);
    // A commit forgets what went wrong when it wrote the last bytes.
    const bool isSaved = file.open(QIODevice::WriteOnly) &&
                         WriteHtml(editor, 0, editor.GetLength(1), title, file) && file.flush() &&
                         file.commit();
    if (!isSaved)
        GetPrompts().Tell(window, Texts::tr("%1 could not be written: %2")
                                      .arg(QDir::toNativeSeparators(path), file.errorString()));
    return isSaved;
}
