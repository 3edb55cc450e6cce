// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/PixelPlace.h"

#include "control/EngineMessages.h"
#include "control/Selections.h"
#include "engine/changes/ChangeReporter.h"

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleHints>

#include <algorithm>
#include <bitset>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kGlide = 100; // milliseconds
constexpr std::chrono::milliseconds kLeft(150);

struct Range
{
    unsigned first;
    unsigned last;
};

// Orders that leave the place and the lines as they are: what colours, marks and measures a text
// does so while it goes by.
constexpr Range kDecorate[] = {
    {message::MarkerDeleteHandle, message::MarkerDeleteHandle},
    {message::StartStyling, message::SetStyling},
    {message::MarkerDefine, message::MarkerDefinePixmap},
    {message::SetSelFore, message::SetCaretFore},
    {message::SetStylingEx, message::SetStylingEx},
    {message::IndicSetStyle, message::IndicGetFore},
    {message::SetLineState, message::SetLineState},
    {message::SetHighlightGuide, message::SetHighlightGuide},
    {message::SetTargetStart, message::SetTargetEnd},
    {message::SetSearchFlags, message::SetSearchFlags},
    {message::SetFoldLevel, message::SetFoldLevel},
    {message::SetFoldExpanded, message::SetFoldExpanded},
    {message::SetMarginTypeN, message::SetMarginSensitiveN},
    {message::ErrorDelete, message::ErrorsShow},
    {message::SetScrollWidth, message::SetScrollWidth},
    {message::BraceHighlight, message::BraceBadLight},
    {message::SetCursor, message::SetCursor},
    {message::ErrorsSetMarkNum, message::SetSyntaxSeverity},
    {message::Colorize, message::Colorize},
};

// Orders that have an answer, or no row in the table.
constexpr unsigned kOthers[] = {
    message::ReplaceTargetNoProcess,
    message::ReplaceTargetRE,
    message::SearchNext,
    message::SearchPrev,
    message::FormatRange, // with fonts of its own meanwhile
    kSetSelections,
    kSetColumns,
};

} // namespace

PixelPlace::PixelPlace(QAbstractScrollArea& window, const Raw& raw, SetMargins setMargins)
    : m_window(window), m_raw(raw), m_setMargins(std::move(setMargins))
{
    window.viewport()->lower();
    m_rest.setSingleShot(true);
    QObject::connect(&m_rest, &QTimer::timeout, &m_rest, [this] { Glide(); });
    QObject::connect(&m_glide, &QVariantAnimation::valueChanged, &m_glide,
                     [this](const QVariant& way) {
                         if (m_glide.state() == QAbstractAnimation::Running)
                             Put(m_glidesFrom + way.toInt());
                     });
    QObject::connect(&m_glide, &QVariantAnimation::finished, &m_glide, [this] { End(); });
    QScrollBar* bar = window.verticalScrollBar();
    QObject::connect(bar, &QScrollBar::valueChanged, &m_rest, [this, bar] {
        if (m_moves || !IsBetweenLines())
            return;
        if (IsAtWork())
            EndSoon();
        else
            StandAt(bar->value());
    });
}

qint64 PixelPlace::Lines() const
{
    return m_raw.Send(Sci::SCI_VISIBLEFROMDOCLINE, static_cast<std::uintptr_t>(m_raw.LineCount()));
}

int PixelPlace::LineHeight() const
{
    return std::max(1, static_cast<int>(m_raw.Send(Sci::SCI_TEXTHEIGHT)));
}

int PixelPlace::Page() const
{
    return (m_window.viewport()->height() - m_height) / LineHeight();
}

bool PixelPlace::EndsAtLastLine() const
{
    return m_raw.Send(Sci::SCI_GETENDATLASTLINE) != 0;
}

qint64 PixelPlace::Top() const
{
    return qint64{m_raw.Send(Sci::SCI_GETFIRSTVISIBLELINE)} * LineHeight() + m_part;
}

qint64 PixelPlace::Last() const
{
    return std::max<qint64>(0, Lines() - (EndsAtLastLine() ? Page() : 1)) * LineHeight();
}

bool PixelPlace::MoveTo(qint64 top)
{
    Hold();
    return Put(top);
}

void PixelPlace::Hold()
{
    m_rest.stop();
    m_glide.stop();
}

bool PixelPlace::Put(qint64 top)
{
    const int height = LineHeight();
    if (IsBetweenLines() && m_height != height)
        End();
    top = std::clamp<qint64>(top, 0, Last());
    if (top == Top())
        return false;
    const QScopedValueRollback moving(m_moves, true);
    // The last lines of a taller viewport begin a line earlier.
    const qint64 lastLine =
        EndsAtLastLine() ? std::max<qint64>(0, Lines() - Page() - 1) : Lines() - 1;
    const qint64 line = top / height;
    m_height = height;
    SetPart(static_cast<int>(top - std::min(line, lastLine) * height));
    m_window.verticalScrollBar()->setValue(static_cast<int>(line));
    return true;
}

// The bar shows what it shows at a line, and says so if that has changed meanwhile.
void PixelPlace::SetPart(int part)
{
    QScrollBar& bar = *m_window.verticalScrollBar();
    const int maximum = bar.maximum();
    const int page = bar.pageStep();
    m_part = part;
    {
        const QSignalBlocker quiet(bar);
        m_setMargins(-part, part - m_height);
        bar.setMaximum(maximum);
        bar.setPageStep(page);
    }
    bar.setMaximum(static_cast<int>(Last() / LineHeight()));
    bar.setPageStep(Page());
}

void PixelPlace::StandAt(qint64 line)
{
    Hold();
    const QScopedValueRollback moving(m_moves, true);
    m_height = 0;
    SetPart(0);
    m_window.verticalScrollBar()->setValue(static_cast<int>(line));
    m_raw.Send(Sci::SCI_SETFIRSTVISIBLELINE, static_cast<std::uintptr_t>(line));
}

void PixelPlace::Rest(std::chrono::milliseconds time)
{
    if (IsBetweenLines())
        m_rest.start(time);
}

void PixelPlace::Glide()
{
    if (m_isHeld)
        return;
    const int animation =
        m_window.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &m_window);
    const int part = m_part % m_height;
    if (animation == 0 || part == 0)
        return End();
    m_glidesFrom = Top();
    m_glide.setDuration(std::min(animation, kGlide));
    m_glide.setEasingCurve(QEasingCurve::OutCubic);
    m_glide.setStartValue(0);
    m_glide.setEndValue(2 * part < m_height ? -part : m_height - part);
    m_glide.start();
}

void PixelPlace::End()
{
    if (!IsBetweenLines())
        return;
    const int height = LineHeight(); // it may be another one
    if (IsAtWork())
        EndSoon();
    else
        StandAt((Top() + height / 2) / height);
}

bool PixelPlace::IsAtWork() const
{
    return m_window.viewport()->testAttribute(Qt::WA_WState_InPaintEvent) ||
           ChangeReporter::IsInsideChange();
}

void PixelPlace::EndSoon()
{
    if (IsBetweenLines())
        QMetaObject::invokeMethod(
            &m_rest, [this] { End(); }, Qt::QueuedConnection);
}

bool PixelPlace::IsEndedBy(unsigned message)
{
    constexpr unsigned kFirst = 2000;
    constexpr unsigned kNumbers = 2048;
    using Numbers = std::bitset<kNumbers>;
    static const Numbers ends = [] {
        Numbers numbers;
        for (const MessageRow& row : kMessageRows)
            numbers.set(row.number - kFirst, row.result == Kind::None);
        for (const Range& range : kDecorate) {
            for (unsigned number = range.first; number <= range.last; ++number)
                numbers.reset(number - kFirst);
        }
        for (const unsigned number : kOthers)
            numbers.set(number - kFirst);
        return numbers;
    }();
    return message - kFirst < kNumbers && ends[message - kFirst];
}

void PixelPlace::See(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::Resize:
    case QEvent::StyleChange:
    case QEvent::FontChange:
        return End();
    default:
        return;
    }
}

// A second click finds the text where the first one did. A pointer that moves is no longer a
// finger's that scrolls.
void PixelPlace::SeeInside(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        m_isHeld = static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
        m_glide.stop();
        return Rest(
            std::chrono::milliseconds(QGuiApplication::styleHints()->mouseDoubleClickInterval()));
    case QEvent::MouseMove:
        m_isHeld = static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
        [[fallthrough]];
    case QEvent::Leave:
        if (!m_rest.isActive() && m_glide.state() == QAbstractAnimation::Stopped)
            Rest(kLeft);
        return;
    default:
        return;
    }
}

} // namespace engine
