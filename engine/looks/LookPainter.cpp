// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/LookPainter.h"

#include "engine/looks/Icons.h"
#include "engine/looks/IndicatorScope.h"
#include "engine/looks/LineEnds.h"
#include "engine/looks/RangeFrame.h"
#include "engine/looks/TabArrows.h"
#include "platform/base/Colours.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <chrono>

namespace engine {
namespace {

using Sci = QsciScintillaBase;
using WPARAM = std::uintptr_t;

constexpr int kNumberMargin = 1;
constexpr int kSymbolMargin = 2;
constexpr int kFoldMargin = 3;
constexpr int kLastMargin = 4;
constexpr std::chrono::milliseconds kRest(350);
constexpr long kLongestWord = 200; // bytes
// Bytes of a text whose statements are asked for without a command: all in front of the caret is
// read for the first answer.
constexpr long kLongestScript = 4L << 20;
constexpr unsigned Bit(int marker)
{
    return 1U << marker;
}

} // namespace

LookPainter::LookPainter(QsciScintillaBase& window, const Raw& raw, const StoredText& text)
    : m_window(window), m_raw(raw), m_occurrences(
                                        raw, text, kOccurrenceIndicator, [this] { LinesChanged(); },
                                        [this] { return !IsOthers(); }),
      m_matches(raw, text, kMatchIndicator, [this] { LinesChanged(); })
{
    m_rest.setSingleShot(true);
    QObject::connect(&m_rest, &QTimer::timeout, &window, [this] { Rested(); });
}

void LookPainter::LinesChanged()
{
    if (m_marks)
        m_marks->Soon();
}

// What replaces is two changes at one place, and an undo makes hundreds of thousands of them.
void LookPainter::Set(const Looks* looks)
{
    // Hidden lines have a button to show them, and without looks a line.
    if (m_looks.has_value() != (looks != nullptr))
        m_raw.Send(Sci::SCI_SETFOLDFLAGS, looks ? 0 : Sci::SC_FOLDFLAG_LINEAFTER_CONTRACTED);
    // Capitals with accents rise above what a font calls its ascent; the line above covers that.
    // Underscores lie on its descent's last row, where frames have their lower edge.
    constexpr long kAbove = 2;
    constexpr long kBelow = 1;
    m_raw.Send(Sci::SCI_SETEXTRAASCENT, static_cast<WPARAM>(looks ? kAbove : 0));
    m_raw.Send(Sci::SCI_SETEXTRADESCENT, static_cast<WPARAM>(looks ? kBelow : 0));
    m_raw.Send(Sci::SCI_SETTABDRAWMODE, looks ? Sci::SCTD_STRIKEOUT : Sci::SCTD_LONGARROW);
    m_looks = looks ? std::optional<Looks>(*looks) : std::nullopt;
    ShowLineEnds(m_showsLineEnds);
    m_window.viewport()->setMouseTracking(true);
    if (!m_looks) {
        m_occurrences.Clear();
        m_matches.Clear();
        LightStatement();
        delete m_marks;
        m_marks = nullptr;
        m_window.viewport()->update();
        return;
    }
    const auto indicator = [this](int number, COLORREF colour, int alpha, int outline) {
        const auto n = static_cast<WPARAM>(number);
        m_raw.Send(Sci::SCI_INDICSETSTYLE, n,
                   long{outline > 0 ? Sci::INDIC_STRAIGHTBOX : Sci::INDIC_FULLBOX});
        m_raw.Send(Sci::SCI_INDICSETFORE, n, static_cast<std::intptr_t>(colour));
        m_raw.Send(Sci::SCI_INDICSETALPHA, n, alpha);
        m_raw.Send(Sci::SCI_INDICSETOUTLINEALPHA, n, outline);
        m_raw.Send(Sci::SCI_INDICSETUNDER, n, 1);
    };
    // They lie over each other, over the current line and the selection: faint, so that every style
    // can be read on all of them at once, and told by their outlines.
    indicator(kStatementIndicator, m_looks->statement, 30, 0);
    indicator(kOccurrenceIndicator, m_looks->occurrence, 12, 130);
    indicator(kMatchIndicator, m_looks->match, 30, 230);
    if (!m_marks)
        m_marks = new ScrollMarks(*m_window.verticalScrollBar(), m_raw);
    m_marks->SetLayers({
        {ToQColor(m_looks->lineSaved), lookmarker::kLineSaved, nullptr, true},
        {ToQColor(m_looks->lineChanged), lookmarker::kLineChanged, nullptr, true},
        {ToQColor(m_looks->occurrence), -1, &m_occurrences.Lines()},
        {ToQColor(m_looks->match), -1, &m_matches.Lines()},
        {ToQColor(m_looks->bookmark), lookmarker::kBookmark},
        {ToQColor(m_looks->warning), lookmarker::kWarning},
        {ToQColor(m_looks->error), lookmarker::kError},
    });
    FocusChanged(m_window.hasFocus());
    m_window.viewport()->update();
}

void LookPainter::ShowLineEnds(bool show)
{
    m_showsLineEnds = show;
    m_raw.Send(Sci::SCI_SETVIEWEOL, static_cast<WPARAM>(show && !m_looks));
    m_window.viewport()->update();
}

void LookPainter::ShowMatches(const std::string& sought, int flags)
{
    m_matches.Show(IsOn() ? sought : std::string(), flags);
}

void LookPainter::ShowMatchesWithin(std::optional<search::Range> range)
{
    if (range == MatchesWithin())
        return;
    m_matches.SetWithin(range);
    m_window.viewport()->update();
    if (m_looks)
        m_rest.start(kRest);
}

void LookPainter::EditBegins(const TextEdit& edit)
{
    m_textHasChanged = true;
    m_matches.EditBegins(edit);
}

LookPainter::Margins LookPainter::Places() const
{
    const auto width = [this](int margin) {
        return static_cast<int>(m_raw.Send(Sci::SCI_GETMARGINWIDTHN, static_cast<WPARAM>(margin)));
    };
    Margins places{};
    places.symbols = width(0) + width(kNumberMargin);
    places.folds = places.symbols + width(kSymbolMargin);
    places.text = places.folds;
    for (int margin = kFoldMargin; margin <= kLastMargin; ++margin)
        places.text += width(margin);
    return places;
}

// A line that is wrapped has its icons in its first row.
void LookPainter::Paint(QPainter& painter, const QPaintEvent& event)
{
    if (!m_looks)
        return;
    if (m_awaitsColour && IsColoured(m_raw.Send(Sci::SCI_GETCURRENTPOS))) {
        m_awaitsColour = false;
        m_rest.start(kRest);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const Margins places = Places();
    const auto height = static_cast<int>(m_raw.Send(Sci::SCI_TEXTHEIGHT));
    const long top = static_cast<long>(m_raw.Send(Sci::SCI_GETFIRSTVISIBLELINE));
    const long first = top + std::max(0, event.rect().top()) / height;
    const long last = top + event.rect().bottom() / height;
    const bool isHidden = // with the fill beside it
        m_raw.Send(Sci::SCI_INDICGETSTYLE, kStatementIndicator) == Sci::INDIC_HIDDEN;
    const Range statement = isHidden ? Range() : LitStatement();
    // It may have been lit from another window, where the text alone is painted anew here.
    if (statement != m_barred) {
        m_barred = statement;
        UpdateBar();
    }
    const TabArrows arrows(m_raw, ToQColor(m_looks->whitespace), m_window.viewport()->width());
    long before = -1;
    for (long row = first; row <= last; ++row) {
        const auto line =
            static_cast<long>(m_raw.Send(Sci::SCI_DOCLINEFROMVISIBLE, static_cast<WPARAM>(row)));
        PaintStatementBar(painter, places, statement, line, static_cast<int>(row - top) * height,
                          height);
        const bool isFirstRow =
            m_raw.Send(Sci::SCI_VISIBLEFROMDOCLINE, static_cast<WPARAM>(line)) == row;
        if (line == before || !isFirstRow)
            continue;
        before = line;
        PaintLine(painter, places, line, static_cast<int>(row - top) * height, height);
        painter.save();
        // The text may be scrolled below the margins.
        painter.setClipRect(m_window.viewport()->rect().adjusted(places.text, 0, 0, 0));
        PaintHiddenMark(painter, line, height);
        if (arrows.AreShown())
            arrows.Paint(painter, line, height);
        if (m_showsLineEnds)
            LineEnds(m_raw).Paint(painter, ToQColor(m_looks->whitespace), line, height);
        painter.restore();
    }
    PaintCurrentNumber(painter, height);
    painter.setClipRect(m_window.viewport()->rect().adjusted(places.text, 0, 0, 0));
    if (MatchesWithin())
        PaintFrame(painter, m_raw, *MatchesWithin(),
                   m_window.viewport()->rect().adjusted(places.text, 0, 0, 0), height,
                   ToQColor(m_looks->match));
    PaintCurrentMatch(painter, height);
}

// The match that is selected, told at a glance from the others, whose frames are thin.
void LookPainter::PaintCurrentMatch(QPainter& painter, int height) const
{
    constexpr int kFrame = 2; // pixels
    const auto start = static_cast<WPARAM>(m_raw.Send(Sci::SCI_GETSELECTIONSTART));
    const auto end = m_raw.Send(Sci::SCI_GETSELECTIONEND);
    const auto isLit = [this](std::intptr_t place) {
        return m_raw.Send(Sci::SCI_INDICATORVALUEAT, kMatchIndicator, place) != 0;
    };
    const auto from = static_cast<std::intptr_t>(start);
    if (!m_matches.IsShown() || end <= from || !isLit(from) || !isLit(end - 1))
        return;
    const auto place = [this](std::intptr_t at) {
        return QPoint(static_cast<int>(m_raw.Send(Sci::SCI_POINTXFROMPOSITION, 0, at)),
                      static_cast<int>(m_raw.Send(Sci::SCI_POINTYFROMPOSITION, 0, at)));
    };
    const QPoint first = place(from);
    const QPoint last = place(end);
    if (first.y() != last.y() || first.x() >= last.x()) // over several rows
        return;
    const QColor colour = ToQColor(m_looks->match);
    const QRect match(first, QSize(last.x() - first.x(), height));
    const QRect outside = match.adjusted(-1, 0, 1, 0);
    painter.fillRect(outside.x(), outside.y(), outside.width(), kFrame, colour);
    painter.fillRect(outside.x(), outside.y(), kFrame, height, colour);
    painter.fillRect(outside.right() + 1 - kFrame, outside.y(), kFrame, height, colour);
    painter.fillRect(outside.x(), match.bottom(), outside.width(), 1, colour); // below underscores
}

long LookPainter::CaretLine() const
{
    const auto caret = static_cast<WPARAM>(m_raw.Send(Sci::SCI_GETCURRENTPOS));
    return static_cast<long>(m_raw.Send(Sci::SCI_LINEFROMPOSITION, caret));
}

QFont LookPainter::NumberFont() const
{
    constexpr int kLongestName = 256; // bytes
    char name[kLongestName] = {};
    constexpr WPARAM kStyle = Sci::STYLE_LINENUMBER;
    m_raw.Send(Sci::SCI_STYLEGETFONT, kStyle, reinterpret_cast<std::intptr_t>(name));
    QFont font(QString::fromUtf8(name));
    const auto size = m_raw.Send(Sci::SCI_STYLEGETSIZE, kStyle) + m_raw.Send(Sci::SCI_GETZOOM);
    font.setPointSize(std::max(2, static_cast<int>(size)));
    font.setBold(true);
    return font;
}

// Over the number that the stock engine has drawn there.
void LookPainter::PaintCurrentNumber(QPainter& painter, int height)
{
    constexpr int kPadding = 3; // as the stock engine has it
    const auto width = [this](int margin) {
        return static_cast<int>(m_raw.Send(Sci::SCI_GETMARGINWIDTHN, static_cast<WPARAM>(margin)));
    };
    const bool isNumbers =
        m_raw.Send(Sci::SCI_GETMARGINTYPEN, kNumberMargin) == Sci::SC_MARGIN_NUMBER;
    const auto line = static_cast<WPARAM>(m_numberedLine = CaretLine());
    if (!isNumbers || width(kNumberMargin) == 0 || !m_raw.Send(Sci::SCI_GETLINEVISIBLE, line))
        return;
    const auto row =
        m_raw.Send(Sci::SCI_VISIBLEFROMDOCLINE, line) - m_raw.Send(Sci::SCI_GETFIRSTVISIBLELINE);
    if (row < 0 || row > m_window.viewport()->height() / height) // as far off as the text is long
        return;
    const QRect place(width(0), static_cast<int>(row) * height, width(kNumberMargin), height);
    painter.fillRect(place, ToQColor(m_looks->margin));
    painter.setFont(NumberFont());
    painter.setPen(ToQColor(m_looks->currentNumber));
    painter.drawText(place.adjusted(0, 0, -kPadding, 0), Qt::AlignRight | Qt::AlignVCenter,
                     QString::number(line + 1));
}

void LookPainter::PaintLine(QPainter& painter, const Margins& places, long line, int top,
                            int height)
{
    const auto marks =
        static_cast<unsigned>(m_raw.Send(Sci::SCI_MARKERGET, static_cast<WPARAM>(line)));
    const int symbolWidth = places.folds - places.symbols;
    const qreal side = std::min(height * 0.72, symbolWidth * 0.72);
    const QPointF middle(places.symbols + symbolWidth / 2.0, top + height / 2.0);
    if (symbolWidth > 0 && marks & Bit(lookmarker::kError))
        icons::Error(painter, middle, side, ToQColor(m_looks->error));
    else if (symbolWidth > 0 && marks & Bit(lookmarker::kWarning))
        icons::Warning(painter, middle, side, ToQColor(m_looks->warning));
    else if (symbolWidth > 0 && marks & Bit(lookmarker::kBookmark))
        icons::Bookmark(painter, middle, side, ToQColor(m_looks->bookmark));
    constexpr int kBar = 3;
    const bool isChanged = marks & Bit(lookmarker::kLineChanged);
    if ((isChanged || marks & Bit(lookmarker::kLineSaved)) && places.text > kBar)
        painter.fillRect(places.text - kBar, top, kBar, height,
                         ToQColor(isChanged ? m_looks->lineChanged : m_looks->lineSaved));
    PaintFold(painter, places, line, top, height);
}

// Beside the text of each line that the statement has a part in: the fill behind letters alone
// would look as if they were selected.
void LookPainter::PaintStatementBar(QPainter& painter, const Margins& places,
                                    const Range& statement, long line, int top, int height) const
{
    const auto number = static_cast<WPARAM>(line);
    constexpr int kGap = 1;
    constexpr int kBar = 2;
    const bool isLine = line < m_raw.Send(Sci::SCI_GETLINECOUNT); // none below the text
    if (isLine && statement.start < m_raw.Send(Sci::SCI_GETLINEENDPOSITION, number) &&
        statement.end > m_raw.Send(Sci::SCI_POSITIONFROMLINE, number))
        painter.fillRect(places.text + kGap, top, kBar, height, ToQColor(m_looks->statement));
}

void LookPainter::PaintFold(QPainter& painter, const Margins& places, long line, int top,
                            int height)
{
    const auto level = m_raw.Send(Sci::SCI_GETFOLDLEVEL, static_cast<WPARAM>(line));
    if (!(level & Sci::SC_FOLDLEVELHEADERFLAG) || line + 1 == m_raw.LineCount())
        return; // of the last line nothing can be hidden
    const bool isOpen = m_raw.Send(Sci::SCI_GETFOLDEXPANDED, static_cast<WPARAM>(line)) != 0;
    const QColor colour = ToQColor(!isOpen || m_isFoldMarginHot ? m_looks->foldHot : m_looks->fold);
    constexpr int kForBar = 3;
    const int width = places.text - places.folds - kForBar;
    if (width > 0)
        icons::Chevron(painter, QPointF(places.folds + width / 2.0, top + height / 2.0),
                       std::min(height * 0.85, width + 2.0), colour, isOpen);
}

void LookPainter::PaintHiddenMark(QPainter& painter, long line, int height) const
{
    const QRect mark = HiddenMark(line);
    if (mark.isEmpty())
        return;
    painter.setPen(QPen(ToQColor(m_looks->fold), 1));
    painter.setBrush(ToQColor(m_looks->foldedLine));
    painter.drawRoundedRect(QRectF(mark).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToQColor(m_looks->foldHot));
    for (const int dot : {-1, 0, 1})
        painter.drawEllipse(QRectF(mark).center() + QPointF(dot * mark.width() / 4.0, 0),
                            height / 14.0, height / 14.0);
}

// Behind the text of a line that is folded, as a button that opens it.
QRect LookPainter::HiddenMark(long line) const
{
    const auto number = static_cast<WPARAM>(line);
    if (!(m_raw.Send(Sci::SCI_GETFOLDLEVEL, number) & Sci::SC_FOLDLEVELHEADERFLAG) ||
        m_raw.Send(Sci::SCI_GETFOLDEXPANDED, number))
        return {};
    const auto end = m_raw.Send(Sci::SCI_GETLINEENDPOSITION, number);
    const auto x = static_cast<int>(m_raw.Send(Sci::SCI_POINTXFROMPOSITION, 0, end));
    const auto y = static_cast<int>(m_raw.Send(Sci::SCI_POINTYFROMPOSITION, 0, end));
    const auto height = static_cast<int>(m_raw.Send(Sci::SCI_TEXTHEIGHT));
    const int lineEnd = m_showsLineEnds ? LineEnds(m_raw).WidthOf(line, height) : 0;
    return {x + lineEnd + height / 3, y + height / 5, height * 5 / 4, height * 3 / 5 + 1};
}

void LookPainter::MouseMoved(const QPoint& place)
{
    if (!m_looks)
        return;
    const Margins places = Places();
    const bool isHot = place.x() >= places.folds && place.x() < places.text;
    if (std::exchange(m_isFoldMarginHot, isHot) != isHot)
        m_window.viewport()->update(places.folds, 0, places.text - places.folds,
                                    m_window.viewport()->height());
}

void LookPainter::MouseLeft()
{
    MouseMoved({-1, -1});
}

bool LookPainter::MousePressed(const QMouseEvent& event)
{
    if (!m_looks || event.button() != Qt::LeftButton)
        return false;
    const QPoint place = event.position().toPoint();
    const auto height = static_cast<int>(m_raw.Send(Sci::SCI_TEXTHEIGHT));
    const auto row = m_raw.Send(Sci::SCI_GETFIRSTVISIBLELINE) + place.y() / height;
    const auto line =
        static_cast<long>(m_raw.Send(Sci::SCI_DOCLINEFROMVISIBLE, static_cast<WPARAM>(row)));
    if (place.x() < Places().text || !HiddenMark(line).contains(place))
        return false;
    m_raw.Send(Sci::SCI_TOGGLEFOLD, static_cast<WPARAM>(line));
    return true;
}

void LookPainter::FocusChanged(bool hasFocus)
{
    if (m_looks)
        m_raw.Send(Sci::SCI_SETSELBACK, 1,
                   static_cast<std::intptr_t>(hasFocus ? m_looks->selection
                                                       : m_looks->selectionWithoutFocus));
    // Another window of the text may have lit what belongs to its own caret.
    if (m_looks && hasFocus) {
        m_textHasChanged = true;
        m_rest.start(kRest);
    }
}

void LookPainter::Updated(int updated)
{
    if (!m_looks)
        return;
    if (updated & Sci::SC_UPDATE_V_SCROLL) {
        m_occurrences.Refresh();
        m_matches.Refresh();
    }
    // What is lit counts as content too: only a change of the text itself has it looked for again.
    const bool hasChanged = updated & Sci::SC_UPDATE_CONTENT && m_textHasChanged;
    if (updated & Sci::SC_UPDATE_SELECTION || hasChanged)
        m_rest.start(kRest);
    if (updated & Sci::SC_UPDATE_SELECTION && m_numberedLine != CaretLine())
        m_window.viewport()->update(0, 0, Places().symbols, m_window.viewport()->height());
    if (updated & Sci::SC_UPDATE_CONTENT)
        m_marks->Soon();
}

// Windows of one text have what is lit in common: it is that of the one with the focus.
bool LookPainter::IsOthers() const
{
    const auto* other = qobject_cast<QsciScintillaBase*>(QApplication::focusWidget());
    return other && other != &m_window &&
           other->SendScintilla(Sci::SCI_GETDOCPOINTER) == m_raw.Send(Sci::SCI_GETDOCPOINTER);
}

void LookPainter::Rested()
{
    if (!m_looks)
        return;
    const bool hasChanged = std::exchange(m_textHasChanged, false);
    if (hasChanged)
        m_matches.SearchAnewSoon();
    LookForOccurrences(hasChanged);
    if (!IsOthers())
        LightStatement();
}

bool LookPainter::IsColoured(std::intptr_t position) const
{
    return position < m_raw.Send(Sci::SCI_GETENDSTYLED) || position >= m_raw.Length();
}

// The word at the caret if it may be a name, or the one that is selected, if there is another of it
// in sight or below. Where a part of the text is searched, all else counts for nothing.
void LookPainter::LookForOccurrences(bool hasChanged)
{
    const long caret = static_cast<long>(m_raw.Send(Sci::SCI_GETCURRENTPOS));
    const long start =
        static_cast<long>(m_raw.Send(Sci::SCI_WORDSTARTPOSITION, static_cast<WPARAM>(caret), 1));
    const long end =
        static_cast<long>(m_raw.Send(Sci::SCI_WORDENDPOSITION, static_cast<WPARAM>(caret), 1));
    const long from = static_cast<long>(m_raw.Send(Sci::SCI_GETSELECTIONSTART));
    const long to = static_cast<long>(m_raw.Send(Sci::SCI_GETSELECTIONEND));
    const bool isOfTheWord = from == to || (from >= start && to <= end);
    const auto style = static_cast<std::size_t>(
        m_raw.Send(Sci::SCI_GETSTYLEAT, static_cast<WPARAM>(start)) & 0xFF);
    // What is to be coloured yet has the style of whatever stood there.
    m_awaitsColour = from == to && m_looks->quiet.any() && !IsColoured(start);
    const bool isQuiet =
        m_awaitsColour || (from == to && style < m_looks->quiet.size() && m_looks->quiet[style]);
    const bool isWord = end - start > 1 && end - start <= kLongestWord && isOfTheWord && !isQuiet &&
                        !MatchesWithin();
    std::string word;
    if (isWord)
        word = m_raw.Bytes(start, end);
    const int flags = search::flag::WholeWord | (m_anyCase ? 0 : search::flag::MatchCase);
    if (hasChanged && word == m_occurrences.Sought())
        m_occurrences.SearchAnewSoon();
    m_occurrences.Show(std::move(word), flags);
}

LookPainter::Range LookPainter::LitStatement() const
{
    if (!IsDrawnAnywhere(m_raw, kStatementIndicator))
        return {};
    const auto endFrom = [this](long place) {
        return static_cast<long>(m_raw.Send(Sci::SCI_INDICATOREND, kStatementIndicator, place));
    };
    const bool fromStart = m_raw.Send(Sci::SCI_INDICATORVALUEAT, kStatementIndicator, 0L) != 0;
    const long start = fromStart ? 0 : endFrom(0);
    return {start, endFrom(start)};
}

void LookPainter::UpdateBar()
{
    m_window.viewport()->update(Places().text, 0,
                                static_cast<int>(m_raw.Send(Sci::SCI_GETMARGINLEFT)),
                                m_window.viewport()->height());
}

// What the command that selects it would take.
void LookPainter::LightStatement()
{
    const bool isAsked = m_looks && m_statementAtCaret && m_raw.Length() <= kLongestScript;
    const Range statement = (isAsked ? m_statementAtCaret() : std::nullopt).value_or(Range());
    if (LitStatement() == statement)
        return;
    UpdateBar();
    const IndicatorScope scope(m_raw, kStatementIndicator);
    m_raw.Send(Sci::SCI_INDICATORCLEARRANGE, 0, m_raw.Length());
    m_raw.Send(Sci::SCI_INDICATORFILLRANGE, static_cast<WPARAM>(statement.start),
               statement.end - statement.start);
}

} // namespace engine
