// SPDX-License-Identifier: GPL-3.0-or-later
// EngineWindow: text that comes from and goes to the clipboard and other windows.
#include "engine/core/RectanglePaste.h"
#include "engine/core/SelectionPieces.h"
#include "engine/text/Characters.h"
#include "engine/window/EngineWindow.h"

#include <QDropEvent>

#include <cmath>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

QByteArray WithLineEnds(const QByteArray& text, int mode)
{
    const char* eol = mode == 1 ? "\r\n" : mode == 2 ? "\r" : "\n";
    QByteArray result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char byte = text[i];
        if (byte != '\r' && byte != '\n') {
            result.append(byte);
            continue;
        }
        if (byte == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
        result.append(eol);
    }
    return result;
}

} // namespace

QMimeData* EngineWindow::toMimeData(const QByteArray& text, bool rectangular) const
{
    const auto ended = [this](const QByteArray& all) {
        return m_engine.copyEol > 0 ? WithLineEnds(all, m_engine.copyEol) : all;
    };
    const auto pieces = m_engine.looks.IsOn() && !rectangular
                            ? SelectionPieces::Of(m_engine.raw, text)
                            : std::nullopt;
    if (!pieces)
        return QsciScintillaBase::toMimeData(ended(text), rectangular);
    QMimeData* const told = QsciScintillaBase::toMimeData(ended(pieces->Text()), false);
    pieces->TellIn(*told);
    return told;
}

// What is put in here leaves nothing for the stock engine. A macro has the command alone, not what
// it is made of.
QByteArray EngineWindow::fromMimeData(const QMimeData* source, bool& rectangular) const
{
    QByteArray text = QsciScintillaBase::fromMimeData(source, rectangular);
    const Raw& raw = m_engine.raw;
    if (m_engine.looks.IsOn() && !m_isDropping && !raw.Send(Sci::SCI_GETREADONLY) &&
        !m_engine.text.MayHaveNoncharacters()) {
        const auto pieces = SelectionPieces::From(*source, text);
        if (pieces && pieces->Paste(raw))
            return {};
    }
    if (!rectangular || raw.Send(Sci::SCI_GETREADONLY) ||
        !NeedsOwnRectanglePaste(raw, m_engine.text.MayHaveNoncharacters()))
        return text;
    rectangular = false;
    if (m_isDropping)
        return text;
    raw.Send(Sci::SCI_STOPRECORD);
    PasteRectangle(raw, {text.constData(), static_cast<std::size_t>(text.size())});
    if (m_engine.wholeCharacters.Listens())
        raw.Send(Sci::SCI_STARTRECORD);
    return {};
}

// The stock engine drops within a character that it takes byte by byte.
QPointF EngineWindow::BesideCharacter(QPointF point) const
{
    const Raw& raw = m_engine.raw;
    const auto ask = [&raw](UINT message, long first, long second = 0) {
        return static_cast<long>(
            raw.Send(message, static_cast<std::uintptr_t>(first), std::intptr_t{second}));
    };
    const long place =
        ask(Sci::SCI_POSITIONFROMPOINT, std::lround(point.x()), std::lround(point.y()));
    const long whole = CharacterStart(raw, place);
    if (whole != place)
        point.setX(double(ask(Sci::SCI_POINTXFROMPOSITION, 0, whole)));
    return point;
}

// Text goes to where it was dragged last. A rectangle beside such characters goes in as text.
void EngineWindow::dropEvent(QDropEvent* event)
{
    if (m_engine.text.MayHaveNoncharacters()) {
        QDragMoveEvent beside(BesideCharacter(event->position()).toPoint(),
                              event->possibleActions(), event->mimeData(), event->buttons(),
                              event->modifiers());
        dragMoveEvent(&beside);
    }
    m_isDropping = true;
    QsciScintillaBase::dropEvent(event);
    m_isDropping = false;
    // The stock engine would go on to draw the caret where the drag was.
    QDragLeaveEvent leave;
    dragLeaveEvent(&leave);
}

} // namespace engine
