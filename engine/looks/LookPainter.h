// SPDX-License-Identifier: GPL-3.0-or-later
// LookPainter: what the engine draws by itself beside and over its text (control/EngineLooks.h),
// and what the mouse finds there. It works in the engine's window; positions count bytes.
#pragma once

#include "control/EngineLooks.h"
#include "engine/looks/Highlights.h"
#include "engine/looks/ScrollMarks.h"
#include "engine/text/Raw.h"
#include "engine/text/StoredText.h"

#include <QTimer>

#include <functional>
#include <optional>

class QMouseEvent;
class QPaintEvent;
class QPainter;

namespace engine {

inline constexpr int kStatementIndicator = 27;
inline constexpr int kOccurrenceIndicator = 28;
inline constexpr int kMatchIndicator = 29;

class LookPainter
{
public:
    struct Range // bytes
    {
        long start = 0;
        long end = 0;

        bool operator==(const Range&) const = default;
    };
    using StatementAtCaret = std::function<std::optional<Range>()>;

    LookPainter(QsciScintillaBase& window, const Raw& raw, const StoredText& text);

    void SetStatementAtCaret(StatementAtCaret ask) { m_statementAtCaret = std::move(ask); }

    void Set(const Looks* looks); // null: nothing more
    bool IsOn() const { return m_looks.has_value(); }
    void ShowMatches(const std::string& sought, int flags); // UTF-8; empty: none
    // Of the searcher's bytes, those in there alone, inside a frame; it follows the text.
    void ShowMatchesWithin(std::optional<search::Range> range);
    const std::optional<search::Range>& MatchesWithin() const { return m_matches.Within(); }
    void ShowLineEnds(bool show); // in the way of the stock engine while there are no looks
    bool ShowsLineEnds() const { return m_showsLineEnds; }
    // Words that differ in their letters' case are the same.
    void SetAnyCase(bool anyCase) { m_anyCase = anyCase; }

    // The window's events, behind the stock engine's part of them but for the press.
    void Paint(QPainter& painter, const QPaintEvent& event);
    void MouseMoved(const QPoint& place);
    void MouseLeft();
    bool MousePressed(const QMouseEvent& event); // true: that was all
    void FocusChanged(bool hasFocus);
    void Updated(int updated); // SCN_UPDATEUI
    void EditBegins(const TextEdit& edit);

private:
    struct Margins
    {
        int symbols; // left edges
        int folds;
        int text;
    };
    Margins Places() const;
    void PaintLine(QPainter& painter, const Margins& places, long line, int top, int height);
    void PaintStatementBar(QPainter& painter, const Margins& places, const Range& statement,
                           long line, int top, int height) const;
    void PaintCurrentNumber(QPainter& painter, int height);
    void PaintCurrentMatch(QPainter& painter, int height) const;
    QFont NumberFont() const;
    long CaretLine() const;
    void PaintFold(QPainter& painter, const Margins& places, long line, int top, int height);
    void PaintHiddenMark(QPainter& painter, long line, int height) const;
    QRect HiddenMark(long line) const; // of a folded line; empty for another
    void LinesChanged();               // that have something lit
    void Rested();
    bool IsOthers() const;
    void LookForOccurrences(bool hasChanged);
    bool IsColoured(std::intptr_t position) const; // bytes
    void LightStatement();
    void UpdateBar(); // beside it
    Range LitStatement() const;

    QsciScintillaBase& m_window;
    const Raw& m_raw;
    std::optional<Looks> m_looks;
    Highlights m_occurrences;
    Highlights m_matches;
    ScrollMarks* m_marks = nullptr; // goes with the scroll bar
    QTimer m_rest;
    long m_numberedLine = -1; // whose number stands out
    StatementAtCaret m_statementAtCaret;
    Range m_barred;                // the statement that the bar was painted for
    bool m_textHasChanged = false; // since the last rest
    bool m_isFoldMarginHot = false;
    bool m_showsLineEnds = false;
    bool m_awaitsColour = false; // to know whether the word at the caret is a name
    bool m_anyCase = false;
};

} // namespace engine
