// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/effects/EffectsFixture.h"

#include <QAbstractScrollArea>
#include <QTest>

namespace msg = engine::message;

namespace {

constexpr int kDefaultStyle = 32;

} // namespace

Effects::Effects()
{
    m_engine.Window()->resize(400, 300);
    m_engine.Send(msg::StyleSetFont, kDefaultStyle, u"DejaVu Sans Mono");
    m_engine.Send(msg::StyleSetSize, kDefaultStyle, LPARAM{10});
    m_engine.Send(msg::StyleClearAll);
    m_engine.Window()->show();
    m_engine.Window()->grab(); // a window that was never seen has not taken its size
}

void Effects::Place(const std::u16string& marked) const
{
    std::u16string text;
    long caret = 0;
    long anchor = -1;
    for (const char16_t unit : marked) {
        if (unit == u'|')
            caret = static_cast<long>(text.size());
        else if (unit == u'[')
            anchor = static_cast<long>(text.size());
        else
            text += unit;
    }
    m_engine.SetText(text);
    m_engine.Send(msg::EmptyUndoBuffer);
    m_engine.Send(msg::SetSel, static_cast<WPARAM>(anchor < 0 ? caret : anchor), LPARAM{caret});
    m_engine.Send(msg::ChooseCaretX);
}

std::u16string Effects::Placed() const
{
    std::u16string text = m_engine.Text();
    const auto caret = static_cast<std::size_t>(Caret());
    const auto anchor = static_cast<std::size_t>(m_engine.Send(msg::GetAnchor));
    text.insert(caret, u"|");
    if (anchor != caret)
        text.insert(anchor + (anchor > caret ? 1 : 0), u"[");
    return text;
}

int Effects::LineHeight() const
{
    return static_cast<int>(m_engine.Send(msg::TextHeight, 0));
}

double Effects::ColumnWidth() const
{
    constexpr int kMany = 100; // a width is told in whole pixels
    const std::u16string text(kMany, u'x');
    return static_cast<double>(m_engine.Send(msg::TextWidth, kDefaultStyle, text.c_str())) / kMany;
}

int Effects::ColumnAt(double column) const
{
    return static_cast<int>(column * ColumnWidth());
}

int Effects::WholeLines() const
{
    return Viewport()->height() / LineHeight();
}

QWidget* Effects::Viewport() const
{
    return qobject_cast<QAbstractScrollArea*>(m_engine.Window())->viewport();
}

QImage Effects::Picture() const
{
    return Viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int Effects::CountOf(const QImage& picture, QRgb colour, QRect within)
{
    const QRect area = within.isNull() ? picture.rect() : picture.rect() & within;
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += (picture.pixel(x, y) & 0xFFFFFF) == colour;
    }
    return count;
}

void Effects::Type(const QString& text) const
{
    QTest::keyClicks(m_engine.Window(), text);
}

std::u16string Effects::SelectedOfLine(long line) const
{
    const auto number = static_cast<WPARAM>(line);
    const long start = m_engine.Send(msg::GetLineSelStartPosition, number);
    const long end = m_engine.Send(msg::GetLineSelEndPosition, number);
    return start < 0 || end <= start ? u"" : m_engine.Range(start, end);
}

std::u16string LinesOf(int count)
{
    std::u16string text;
    for (int line = 0; line < count; ++line)
        text += QString("line %1\n").arg(line).toStdU16String();
    return text;
}
