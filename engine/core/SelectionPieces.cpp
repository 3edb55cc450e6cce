// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/SelectionPieces.h"

#include <Qsci/qsciscintillabase.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr qsizetype kMostPieces = 10 * 1000;

// The line end between two pieces, and how many bytes each has.
const QString kFormat = QStringLiteral("application/x-zncoreeditor-pieces");

struct Span
{
    long start;
    long end;
};

long Ask(const Raw& raw, unsigned message, std::size_t value = 0)
{
    return static_cast<long>(raw.Send(message, value));
}

std::vector<Span> SpansOf(const Raw& raw)
{
    std::vector<Span> spans(static_cast<std::size_t>(Ask(raw, Sci::SCI_GETSELECTIONS)));
    for (std::size_t i = 0; i < spans.size(); ++i)
        spans[i] = {Ask(raw, Sci::SCI_GETSELECTIONNSTART, i),
                    Ask(raw, Sci::SCI_GETSELECTIONNEND, i)};
    std::ranges::sort(spans, {}, &Span::start);
    return spans;
}

QByteArray LineEndOf(const Raw& raw)
{
    constexpr const char* kEnds[] = {"\r\n", "\r", "\n"};
    return kEnds[std::clamp(Ask(raw, Sci::SCI_GETEOLMODE), 0L, 2L)];
}

} // namespace

std::optional<SelectionPieces> SelectionPieces::Of(const Raw& raw, const QByteArray& text)
{
    const long count = Ask(raw, Sci::SCI_GETSELECTIONS);
    if (count < 2 || count > kMostPieces || Ask(raw, Sci::SCI_SELECTIONISRECTANGLE))
        return std::nullopt;
    SelectionPieces all;
    all.m_lineEnd = LineEndOf(raw);
    qsizetype at = 0;
    int filled = 0;
    for (const Span& span : SpansOf(raw)) {
        const long size = span.end - span.start;
        if (at + size > text.size())
            return std::nullopt;
        all.m_pieces << text.sliced(at, size);
        at += size;
        filled += size > 0;
    }
    return at == text.size() && filled > 1 ? std::optional(all) : std::nullopt;
}

std::optional<SelectionPieces> SelectionPieces::From(const QMimeData& source,
                                                     const QByteArray& text)
{
    const QByteArray told = source.data(kFormat);
    const QList<QByteArray> sizes = told.split(' ');
    if (told.isEmpty() || sizes.size() > kMostPieces)
        return std::nullopt;
    SelectionPieces all;
    qsizetype at = 0;
    for (qsizetype i = 0; i < sizes.size(); ++i) {
        bool isNumber = false;
        const qsizetype size = sizes[i].toLongLong(&isNumber);
        if (i > 0) { // behind a line end, whichever it has become on the way
            const qsizetype end = text.mid(at, 2) == "\r\n" ? 2 : 1;
            if (at >= text.size() || (text[at] != '\r' && text[at] != '\n'))
                return std::nullopt;
            at += end;
        }
        if (!isNumber || size < 0 || size > text.size() - at)
            return std::nullopt;
        all.m_pieces << text.sliced(at, size);
        at += size;
    }
    return at == text.size() ? std::optional(all) : std::nullopt;
}

QByteArray SelectionPieces::Text() const
{
    return m_pieces.join(m_lineEnd);
}

void SelectionPieces::TellIn(QMimeData& data) const
{
    QList<QByteArray> sizes;
    std::ranges::transform(m_pieces, std::back_inserter(sizes), [](const QByteArray& piece) {
        return QByteArray::number(piece.size());
    });
    data.setData(kFormat, sizes.join(' '));
}

// From the last to the first, so that the places of the others stay.
bool SelectionPieces::Paste(const Raw& raw) const
{
    const std::vector<Span> spans = SpansOf(raw);
    if (static_cast<qsizetype>(spans.size()) != m_pieces.size() ||
        Ask(raw, Sci::SCI_SELECTIONISRECTANGLE))
        return false;
    QList<QByteArray> pieces = m_pieces;
    if (Ask(raw, Sci::SCI_GETPASTECONVERTENDINGS)) {
        for (QByteArray& piece : pieces)
            piece.replace("\r\n", "\n").replace('\r', '\n').replace("\n", LineEndOf(raw));
    }
    raw.Send(Sci::SCI_BEGINUNDOACTION);
    for (std::size_t i = spans.size(); i-- > 0;) {
        const QByteArray& piece = pieces[static_cast<qsizetype>(i)];
        raw.Send(Sci::SCI_SETTARGETRANGE, static_cast<std::uintptr_t>(spans[i].start),
                 static_cast<std::intptr_t>(spans[i].end));
        raw.Send(Sci::SCI_REPLACETARGET, static_cast<std::uintptr_t>(piece.size()),
                 piece.constData());
    }
    long moved = 0;
    for (std::size_t i = 0; i < spans.size(); ++i) {
        const auto size = static_cast<long>(pieces[static_cast<qsizetype>(i)].size());
        const long caret = spans[i].start + moved + size;
        moved += size - (spans[i].end - spans[i].start);
        raw.Send(i == 0 ? Sci::SCI_SETSELECTION : Sci::SCI_ADDSELECTION,
                 static_cast<std::uintptr_t>(caret), static_cast<std::intptr_t>(caret));
    }
    raw.Send(Sci::SCI_ENDUNDOACTION);
    return true;
}

} // namespace engine
