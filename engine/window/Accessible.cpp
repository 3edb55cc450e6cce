// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/Accessible.h"

#include "engine/text/Characters.h"

#include <QAccessible>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kReach = 2000;  // units on each side in which the ends of a word are sought
constexpr long kLongRun = 500; // bytes on each side in which the ends of a style are sought
constexpr int kTheEnd = -1;
constexpr int kTheCaret = -2;

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object)
{
    auto* window = className == QLatin1String("engine::EngineWindow")
                       ? qobject_cast<EngineWindow*>(object)
                       : nullptr;
    return window ? new Accessible(*window) : nullptr;
}

QTextBoundaryFinder::BoundaryType FinderType(QAccessible::TextBoundaryType boundary)
{
    switch (boundary) {
    case QAccessible::WordBoundary:
        return QTextBoundaryFinder::Word;
    case QAccessible::SentenceBoundary:
        return QTextBoundaryFinder::Sentence;
    default:
        return QTextBoundaryFinder::Grapheme;
    }
}

QString CssColour(long colour)
{
    return QStringLiteral("rgb(%1,%2,%3)")
        .arg(colour & 0xFF)
        .arg((colour >> 8) & 0xFF)
        .arg((colour >> 16) & 0xFF);
}

} // namespace

Accessible::Accessible(EngineWindow& window)
    : QAccessibleWidget(&window, QAccessible::EditableText), m_window(window),
      m_engine(window.GetEngine())
{}

void Accessible::InstallFactory()
{
    QAccessible::installFactory(MakeAccessible);
}

QAccessible::State Accessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiLine = true;
    state.selectableText = true;
    state.focusable = true;
    state.readOnly = Ask(Sci::SCI_GETREADONLY) != 0;
    state.editable = !state.readOnly;
    return state;
}

void* Accessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

long Accessible::Ask(UINT number, long wParam, LPARAM lParam) const
{
    return static_cast<long>(m_engine.raw.Send(number, static_cast<WPARAM>(wParam), lParam));
}

long Accessible::StyleAt(long position) const
{
    return m_engine.colouring->Alike().Plain(static_cast<int>(Ask(Sci::SCI_GETSTYLEAT, position)));
}

long Accessible::Offset(int offset) const
{
    const long length = m_engine.text.Length();
    if (offset == kTheEnd)
        return length;
    return offset == kTheCaret ? cursorPosition() : std::clamp<long>(offset, 0, length);
}

int Accessible::characterCount() const
{
    return static_cast<int>(m_engine.text.Length());
}

int Accessible::cursorPosition() const
{
    return static_cast<int>(m_engine.Units(Ask(Sci::SCI_GETCURRENTPOS)));
}

void Accessible::setCursorPosition(int position)
{
    m_engine.Perform(message::GotoPos, static_cast<WPARAM>(Offset(position)), 0);
}

QString Accessible::Read(Piece piece) const
{
    const long start = m_engine.Bytes(piece.start);
    const long end = m_engine.Bytes(piece.end);
    if (end <= start)
        return {};
    m_bytesRead += end - start;
    return QStringView(ToUtf16(m_engine.raw.Bytes(start, end))).toString();
}

QString Accessible::text(int startOffset, int endOffset) const
{
    return Read({Offset(startOffset), Offset(endOffset)});
}

// With its line end.
Accessible::Piece Accessible::LineAt(long offset) const
{
    const long line = m_engine.text.LineOf({offset});
    return {m_engine.text.StartOfLine(line).value, m_engine.text.StartOfLine(line + 1).value};
}

// The line, or of a long one what stands around the offset.
Accessible::Piece Accessible::Near(long offset) const
{
    const Piece line = LineAt(offset);
    const auto whole = [this](long position) { return m_engine.Units(m_engine.Bytes(position)); };
    return {std::max(line.start, whole(std::max(0L, offset - kReach))),
            std::min(line.end, whole(offset + kReach))};
}

Accessible::Piece Accessible::PieceAt(long offset, QAccessible::TextBoundaryType boundary) const
{
    if (boundary == QAccessible::NoBoundary)
        return {0, m_engine.text.Length()};
    if (boundary == QAccessible::LineBoundary || boundary == QAccessible::ParagraphBoundary)
        return LineAt(offset);
    const Piece around = Near(offset);
    const QString string = Read(around);
    QTextBoundaryFinder finder(FinderType(boundary), string);
    const auto inString = static_cast<qsizetype>(offset - around.start);
    finder.setPosition(inString);
    const qsizetype start = finder.isAtBoundary() ? inString : finder.toPreviousBoundary();
    finder.setPosition(inString);
    const qsizetype end = finder.toNextBoundary();
    return {around.start + std::max<qsizetype>(start, 0),
            around.start + (end < 0 ? string.size() : end)};
}

QString Accessible::Give(Piece piece, int* startOffset, int* endOffset) const
{
    *startOffset = static_cast<int>(piece.start);
    *endOffset = static_cast<int>(piece.end);
    return Read(piece);
}

QString Accessible::textAtOffset(int offset, QAccessible::TextBoundaryType boundary,
                                 int* startOffset, int* endOffset) const
{
    return Give(PieceAt(Offset(offset), boundary), startOffset, endOffset);
}

QString Accessible::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary,
                                     int* startOffset, int* endOffset) const
{
    const Piece at = PieceAt(Offset(offset), boundary);
    const Piece before = at.start > 0
                             ? PieceAt(m_engine.Units(m_engine.Bytes(at.start - 1)), boundary)
                             : Piece{0, 0};
    return Give(before, startOffset, endOffset);
}

QString Accessible::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary,
                                    int* startOffset, int* endOffset) const
{
    const Piece at = PieceAt(Offset(offset), boundary);
    const long length = m_engine.text.Length();
    return Give(at.end < length ? PieceAt(at.end, boundary) : Piece{length, length}, startOffset,
                endOffset);
}

int Accessible::selectionCount() const
{
    return Ask(Sci::SCI_GETSELECTIONEMPTY) ? 0 : static_cast<int>(Ask(Sci::SCI_GETSELECTIONS));
}

void Accessible::selection(int selectionIndex, int* startOffset, int* endOffset) const
{
    *startOffset = *endOffset = 0;
    if (selectionIndex < 0 || selectionIndex >= selectionCount())
        return;
    *startOffset =
        static_cast<int>(m_engine.Units(Ask(Sci::SCI_GETSELECTIONNSTART, selectionIndex)));
    *endOffset = static_cast<int>(m_engine.Units(Ask(Sci::SCI_GETSELECTIONNEND, selectionIndex)));
}

void Accessible::addSelection(int startOffset, int endOffset)
{
    m_engine.Perform(message::SetSel, static_cast<WPARAM>(Offset(startOffset)), Offset(endOffset));
}

void Accessible::removeSelection(int)
{
    setCursorPosition(cursorPosition());
}

void Accessible::setSelection(int, int startOffset, int endOffset)
{
    addSelection(startOffset, endOffset);
}

QRect Accessible::characterRect(int offset) const
{
    const long at = m_engine.Bytes(Offset(offset));
    const long next = CharacterEnd(m_engine.raw, Ask(Sci::SCI_POSITIONAFTER, at));
    const long line = Ask(Sci::SCI_LINEFROMPOSITION, at);
    const auto x = [this](long position) {
        return static_cast<int>(Ask(Sci::SCI_POINTXFROMPOSITION, 0, position));
    };
    const bool sameLine = Ask(Sci::SCI_LINEFROMPOSITION, next) == line;
    const QPoint corner(x(at), static_cast<int>(Ask(Sci::SCI_POINTYFROMPOSITION, 0, at)));
    return {m_window.viewport()->mapToGlobal(corner),
            QSize(sameLine ? std::max(1, x(next) - corner.x()) : 1,
                  static_cast<int>(Ask(Sci::SCI_TEXTHEIGHT, line)))};
}

int Accessible::offsetAtPoint(const QPoint& point) const
{
    const QPoint inside = m_window.viewport()->mapFromGlobal(point);
    return static_cast<int>(
        m_engine.Units(Ask(Sci::SCI_POSITIONFROMPOINTCLOSE, inside.x(), inside.y())));
}

void Accessible::scrollToSubstring(int startIndex, int endIndex)
{
    m_engine.raw.Send(Sci::SCI_SCROLLRANGE, static_cast<WPARAM>(m_engine.Bytes(Offset(startIndex))),
                      static_cast<LPARAM>(m_engine.Bytes(Offset(endIndex))));
}

QString Accessible::attributes(int offset, int* startOffset, int* endOffset) const
{
    const long at = m_engine.Bytes(Offset(offset));
    const long style = StyleAt(at);
    long start = at;
    while (start > std::max(0L, at - kLongRun) && StyleAt(start - 1) == style)
        --start;
    long end = at;
    while (end < std::min(m_engine.raw.Length(), at + kLongRun) && StyleAt(end) == style)
        ++end;
    *startOffset = static_cast<int>(m_engine.Units(start));
    *endOffset = static_cast<int>(m_engine.Units(end));
    return QStringLiteral(
               "font-size:%1pt;font-weight:%2;font-style:%3;color:%4;background-color:%5")
        .arg(Ask(Sci::SCI_STYLEGETSIZE, style))
        .arg(Ask(Sci::SCI_STYLEGETBOLD, style) ? "bold" : "normal")
        .arg(Ask(Sci::SCI_STYLEGETITALIC, style) ? "italic" : "normal")
        .arg(CssColour(Ask(Sci::SCI_STYLEGETFORE, style)))
        .arg(CssColour(Ask(Sci::SCI_STYLEGETBACK, style)));
}

void Accessible::deleteText(int startOffset, int endOffset)
{
    const long start = m_engine.Bytes(Offset(startOffset));
    const long end = m_engine.Bytes(Offset(endOffset));
    if (end > start)
        m_engine.raw.Send(Sci::SCI_DELETERANGE, static_cast<WPARAM>(start), end - start);
}

void Accessible::insertText(int offset, const QString& text)
{
    m_engine.Perform(message::InsertText, static_cast<WPARAM>(Offset(offset)),
                     reinterpret_cast<LPARAM>(text.utf16()));
}

void Accessible::replaceText(int startOffset, int endOffset, const QString& text)
{
    const auto start = static_cast<int>(Offset(startOffset));
    m_engine.Perform(message::BeginUndoAction, 0, 0);
    deleteText(start, endOffset);
    insertText(start, text);
    m_engine.Perform(message::EndUndoAction, 0, 0);
}

} // namespace engine
