// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/InputMethod.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kReach = 4000; // bytes on each side of the caret that a method is shown

} // namespace

bool InputMethod::IsReadOnly() const
{
    return m_engine.raw.Send(Sci::SCI_GETREADONLY) != 0;
}

long InputMethod::Get(UINT number) const
{
    return static_cast<long>(m_engine.raw.Send(number));
}

long InputMethod::CharacterStart(long position) const
{
    while (position > 0 &&
           (m_engine.raw.Send(Sci::SCI_GETCHARAT, static_cast<WPARAM>(position)) & 0xC0) == 0x80)
        --position;
    return position;
}

// All in bytes, so that nothing has to be counted from afar.
InputMethod::Surroundings InputMethod::Around() const
{
    const long caret = Caret();
    const auto line = static_cast<WPARAM>(
        m_engine.raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<WPARAM>(caret)));
    const auto start = static_cast<long>(m_engine.raw.Send(Sci::SCI_POSITIONFROMLINE, line));
    const auto end = static_cast<long>(m_engine.raw.Send(Sci::SCI_GETLINEENDPOSITION, line));
    return {std::max(start, CharacterStart(std::max(0L, caret - kReach))),
            std::max(caret, std::min(end, CharacterStart(caret + kReach))), caret};
}

QString InputMethod::Text(long start, long end) const
{
    return QStringView(ToUtf16(m_engine.raw.Bytes(start, end))).toString();
}

int InputMethod::Units(long start, long end) const
{
    return static_cast<int>(ToUtf16(m_engine.raw.Bytes(start, end)).size());
}

// At most as much as is told of the line.
QString InputMethod::Selection() const
{
    const long start = Get(Sci::SCI_GETSELECTIONSTART);
    const long end = Get(Sci::SCI_GETSELECTIONEND);
    return Text(start, end - start > 2 * kReach ? CharacterStart(start + 2 * kReach) : end);
}

QFont InputMethod::Font() const
{
    const auto caret = static_cast<WPARAM>(m_engine.raw.Send(Sci::SCI_GETCURRENTPOS));
    const auto style = static_cast<WPARAM>(m_engine.colouring->Alike().Plain(
        static_cast<int>(m_engine.raw.Send(Sci::SCI_GETSTYLEAT, caret))));
    std::string name(static_cast<std::size_t>(m_engine.raw.Send(Sci::SCI_STYLEGETFONT, style)) + 1,
                     '\0');
    m_engine.raw.Send(Sci::SCI_STYLEGETFONT, style, name.data());
    const auto points =
        m_engine.raw.Send(Sci::SCI_STYLEGETSIZE, style) + m_engine.raw.Send(Sci::SCI_GETZOOM);
    QFont font(QString::fromUtf8(name.c_str()), std::max(1, static_cast<int>(points)));
    font.setBold(m_engine.raw.Send(Sci::SCI_STYLEGETBOLD, style) != 0);
    font.setItalic(m_engine.raw.Send(Sci::SCI_STYLEGETITALIC, style) != 0);
    return font;
}

// Where the caret stands; in a composition, where its own cursor stands.
QRect InputMethod::CaretRectangle() const
{
    const auto caret = m_engine.raw.Send(Sci::SCI_GETCURRENTPOS);
    const auto line = m_engine.raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<WPARAM>(caret));
    const auto x = static_cast<int>(m_engine.raw.Send(Sci::SCI_POINTXFROMPOSITION, 0, caret));
    const auto y = static_cast<int>(m_engine.raw.Send(Sci::SCI_POINTYFROMPOSITION, 0, caret));
    const auto height =
        static_cast<int>(m_engine.raw.Send(Sci::SCI_TEXTHEIGHT, static_cast<WPARAM>(line)));
    const auto width = static_cast<int>(m_engine.raw.Send(Sci::SCI_GETCARETWIDTH));
    const int composed =
        IsComposing() ? QFontMetrics(Font()).horizontalAdvance(m_preedit.left(m_cursor)) : 0;
    return {x + composed, y, std::max(width, 1), height};
}

QVariant InputMethod::Answer(Qt::InputMethodQuery query) const
{
    const auto inLine = [this](const Surroundings& around, long position) {
        return Units(around.start, std::clamp(position, around.start, around.end));
    };
    switch (query) {
    case Qt::ImEnabled:
        return !IsReadOnly();
    case Qt::ImReadOnly:
        return IsReadOnly();
    case Qt::ImFont:
        return Font();
    case Qt::ImCursorRectangle:
        return CaretRectangle();
    case Qt::ImCurrentSelection:
        return Selection();
    case Qt::ImSurroundingText: {
        const Surroundings around = Around();
        return Text(around.start, around.end);
    }
    case Qt::ImTextBeforeCursor: {
        const Surroundings around = Around();
        return Text(around.start, around.caret);
    }
    case Qt::ImTextAfterCursor: {
        const Surroundings around = Around();
        return Text(around.caret, around.end);
    }
    case Qt::ImCursorPosition: {
        const Surroundings around = Around();
        return inLine(around, around.caret);
    }
    case Qt::ImAnchorPosition:
        return inLine(Around(), Get(Sci::SCI_GETANCHOR));
    case Qt::ImAbsolutePosition:
        return static_cast<int>(m_engine.Units(Caret()));
    default:
        return {};
    }
}

// The range is counted from the caret, or from the start of a selection, which goes with it.
void InputMethod::RemoveReplaced(const QInputMethodEvent& event) const
{
    if (event.replacementLength() <= 0)
        return;
    m_engine.raw.Send(Sci::SCI_REPLACESEL, 0, "");
    const long start = std::max(0L, m_engine.Units(Caret()) + event.replacementStart());
    m_engine.raw.Send(Sci::SCI_SETSEL, static_cast<WPARAM>(m_engine.Bytes(start)),
                      static_cast<LPARAM>(m_engine.Bytes(start + event.replacementLength())));
    m_engine.raw.Send(Sci::SCI_REPLACESEL, 0, "");
}

void InputMethod::Begin(const QInputMethodEvent& event)
{
    Discard();
    if (IsReadOnly())
        return;
    RemoveReplaced(event);
    m_preedit = event.preeditString();
    m_cursor = static_cast<int>(m_preedit.size());
    for (const QInputMethodEvent::Attribute& attribute : event.attributes()) {
        if (attribute.type == QInputMethodEvent::Cursor) {
            m_cursor = std::clamp(attribute.start, 0, static_cast<int>(m_preedit.size()));
            m_showsCursor = attribute.length != 0;
        }
    }
}

void InputMethod::Discard()
{
    m_preedit.clear();
    m_cursor = 0;
    m_showsCursor = true;
}

void InputMethod::Draw(QPainter& painter) const
{
    if (!IsComposing() || IsReadOnly())
        return;
    const QRect cursor = CaretRectangle();
    QFont font = Font();
    const QFontMetrics metrics(font);
    const int left = cursor.left() - metrics.horizontalAdvance(m_preedit.left(m_cursor));
    const QRect box(left, cursor.top(), metrics.horizontalAdvance(m_preedit), cursor.height());
    const QPalette& palette = m_engine.window.palette();
    font.setUnderline(true);
    painter.setFont(font);
    painter.fillRect(box, palette.base());
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, m_preedit);
    if (m_showsCursor)
        painter.fillRect(cursor, palette.text());
}

} // namespace engine
