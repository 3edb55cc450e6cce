// SPDX-License-Identifier: GPL-3.0-or-later
// EngineWindow: text that comes from and goes to the clipboard and other windows.
#include "engine/core/RectanglePaste.h"
#include "engine/core/SelectionPieces.h"
#include "engine/text/Characters.h"
#include "engine/window/EngineWindow.h"

#include <QDropEvent>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <functional>

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

// Whether the place is in what is selected, or at an end of it.
bool EngineWindow::IsInSelection(long place) const
{
    const auto ranges = SelectedRanges();
    return std::ranges::any_of(ranges, [place](const auto& range) {
        return place >= range.first && place <= range.second;
    });
}

std::vector<std::pair<long, long>> EngineWindow::SelectedRanges() const
{
    const Raw& raw = m_engine.raw;
    std::vector<std::pair<long, long>> ranges;
    const auto count = static_cast<WPARAM>(raw.Send(Sci::SCI_GETSELECTIONS));
    for (WPARAM i = 0; i < count; ++i)
        ranges.emplace_back(raw.Send(Sci::SCI_GETSELECTIONNSTART, i),
                            raw.Send(Sci::SCI_GETSELECTIONNEND, i));
    return ranges;
}

// Text that is moved between two windows of one document is one step of undo: the window that it
// comes from would take it away in a step of its own, and so is told that it was copied. As in one
// window, nothing moves onto itself.
void EngineWindow::MoveHere(QDropEvent* event, const EngineWindow& from)
{
    const Raw& raw = m_engine.raw;
    const QPoint point = event->position().toPoint();
    const auto place = static_cast<long>(
        raw.Send(Sci::SCI_POSITIONFROMPOINT, static_cast<WPARAM>(point.x()), long{point.y()}));
    const QPointer<const EngineWindow> source(&from);
    const QPointer<EngineWindow> alive(this);
    if (from.IsInSelection(place)) {
        raw.Send(Sci::SCI_SETEMPTYSELECTION, static_cast<WPARAM>(place));
        event->acceptProposedAction();
    } else {
        m_engine.Perform(message::BeginUndoAction, 0, 0);
        const long before = raw.Length();
        QsciScintillaBase::dropEvent(event);
        if (alive && source && raw.Length() > before) {
            auto ranges = source->SelectedRanges();
            std::ranges::sort(ranges, std::greater());
            for (const auto& [start, end] : ranges)
                raw.Send(Sci::SCI_DELETERANGE, static_cast<WPARAM>(start), end - start);
        }
        if (alive)
            m_engine.Perform(message::EndUndoAction, 0, 0);
    }
    if (event->isAccepted())
        event->setDropAction(Qt::CopyAction);
}

// Text goes to where it was dragged last, and the keys with it. A rectangle beside such characters
// goes in as text.
void EngineWindow::dropEvent(QDropEvent* event)
{
    if (m_engine.text.MayHaveNoncharacters()) {
        QDragMoveEvent beside(BesideCharacter(event->position()).toPoint(),
                              event->possibleActions(), event->mimeData(), event->buttons(),
                              event->modifiers());
        dragMoveEvent(&beside);
    }
    const auto* from = qobject_cast<EngineWindow*>(event->source());
    const bool isText = !event->mimeData()->hasUrls();
    const bool movesHere = isText && from && from != this &&
                           event->proposedAction() == Qt::MoveAction &&
                           from->m_engine.Document() == m_engine.Document() &&
                           !m_engine.raw.Send(Sci::SCI_GETREADONLY);
    const QPointer<EngineWindow> alive(this);
    m_isDropping = true;
    if (movesHere)
        MoveHere(event, *from);
    else
        QsciScintillaBase::dropEvent(event);
    if (!alive)
        return;
    m_isDropping = false;
    // The stock engine would go on to draw the caret where the drag was.
    QDragLeaveEvent leave;
    dragLeaveEvent(&leave);
    if (isText && event->isAccepted())
        setFocus(Qt::MouseFocusReason);
}

} // namespace engine
