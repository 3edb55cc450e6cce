// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/ReadLoss.h"

#include "common/Globals.h"
#include "control/UnreadBytes.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/files/Encodings.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ReadLoss)
};

constexpr UINT kTruncatedText = 28178; // of the library
constexpr qint64 kPiece = 1 << 16;     // bytes or units

// From 1; 0 if the text has none.
long LineOfFirstReplacement(CZNCoreEditorControlEx& editor)
{
    const long length = editor.GetLength(1);
    std::u16string piece(static_cast<std::size_t>(kPiece) + 1, u'\0');
    for (long start = 0; start < length; start += kPiece) {
        const long count = std::min<long>(kPiece, length - start);
        editor.GetRange(start, start + count, piece.data());
        const auto end = piece.begin() + count;
        if (const auto found = std::find(piece.begin(), end, u'\xFFFD'); found != end)
            return editor.LineFromPosition(start + (found - piece.begin()), 1) + 1;
    }
    return 0;
}

// Where in the file; -1 if it has none.
long long FirstNul(const QString& path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return -1;
    for (qint64 start = 0; !file.atEnd(); start = file.pos()) {
        if (const qsizetype at = file.read(kPiece).indexOf('\0'); at >= 0)
            return start + at;
    }
    return -1;
}

} // namespace

ReadLoss LookForLoss(CZNCoreEditorControlEx& editor, const QString& path)
{
    const int encoding = editor.GetEncoding();
    ReadLoss loss;
    loss.encoding = EncodingName(EncodingOf(editor), false);
    loss.unread = FindUnreadBytes(path, encoding, editor.GetFileCodePage()).count;
    if (loss.unread > 0)
        loss.line = LineOfFirstReplacement(editor);
    loss.isCutShort = editor.WasCutShort();
    if (loss.isCutShort && encoding == FileEncodeConverter::encANSI)
        loss.nul = FirstNul(path);
    return loss;
}

QString LossNotice(const ReadLoss& loss, const QString& name)
{
    const QString whole =
        Texts::tr("The file itself is as it was, and stays so until it is saved.");
    if (loss.isCutShort && loss.nul >= 0)
        return Texts::tr("Only the first part of “%1” is shown: byte %L2 of the file is a NUL, "
                         "which no text has.")
                   .arg(name)
                   .arg(loss.nul + 1) +
               u' ' + whole;
    const QString advice =
        u' ' + whole + u' ' + Texts::tr("File > Open with Encoding reads it in another encoding.");
    if (loss.isCutShort)
        return Texts::tr("Only the first part of “%1” is shown: what follows is no text in %2, or "
                         "cannot be read.")
                   .arg(name, loss.encoding) +
               advice;
    return Texts::tr("“%1” has bytes that are no %2: %L3, the first in line %L4. They are shown "
                     "as “%5”.")
               .arg(name, loss.encoding)
               .arg(loss.unread)
               .arg(loss.line)
               .arg(QChar(QChar::ReplacementCharacter)) +
           advice;
}

QString OverwriteQuestion(const ReadLoss& loss, const QString& name)
{
    if (loss.isCutShort)
        return Texts::tr("Only the first part of “%1” could be read. Saving it under its own name "
                         "loses the rest of the file.")
            .arg(name);
    return Texts::tr(
               "“%1” was read as %2 and has bytes that are none: %L3. Saving it under its own "
               "name puts “%4” in their place for good.")
        .arg(name, loss.encoding)
        .arg(loss.unread)
        .arg(QChar(QChar::ReplacementCharacter));
}

QuietLoad::QuietLoad() : m_before(zncoreeditor::GetResourceLoader())
{
    zncoreeditor::SetResourceLoader(this);
}

QuietLoad::~QuietLoad()
{
    zncoreeditor::SetResourceLoader(&m_before);
}

QString QuietLoad::LoadString(UINT id) const
{
    return id == kTruncatedText ? QString() : m_before.LoadString(id);
}
