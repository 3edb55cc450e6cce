// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/ErrorList.h"

#include "engine/core/Engine.h"
#include "engine/text/Characters.h"

#include <algorithm>
#include <climits>
#include <tuple>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

struct Bounds
{
    long start;
    long end;
};

long LineOf(const Raw& raw, long position)
{
    return static_cast<long>(
        raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<std::uintptr_t>(position)));
}

// Without the line's end.
Bounds TextOfLine(const Raw& raw, long line)
{
    const auto at = static_cast<std::uintptr_t>(line);
    return {static_cast<long>(raw.Send(Sci::SCI_POSITIONFROMLINE, at)),
            static_cast<long>(raw.Send(Sci::SCI_GETLINEENDPOSITION, at))};
}

Bounds WithoutBlanks(const Raw& raw, Bounds bounds)
{
    constexpr std::string_view kBlanks = " \t";
    const std::string_view text = raw.Bytes(bounds.start, bounds.end);
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return bounds;
    const std::size_t behind = text.find_last_not_of(kBlanks) + 1;
    return {bounds.start + static_cast<long>(first), bounds.start + static_cast<long>(behind)};
}

// What is empty takes in a character of its line, so that there is something to mark.
Bounds WithACharacter(const Raw& raw, Bounds bounds)
{
    const Bounds line = TextOfLine(raw, LineOf(raw, bounds.start));
    if (bounds.start < line.end)
        return {bounds.start, BehindCharacter(raw, bounds.start)};
    if (line.start < line.end)
        return {BeforeCharacter(raw, line.end), line.end};
    return bounds;
}

Bounds BoundsOf(const Engine& engine, const ErrorInfo& record)
{
    Bounds bounds{};
    if (record.nStart < 0) {
        const long line =
            std::clamp(static_cast<long>(record.nLine), 0L, engine.raw.LineCount() - 1);
        bounds = WithoutBlanks(engine.raw, TextOfLine(engine.raw, line));
    } else {
        bounds.start = engine.Bytes(record.nStart);
        bounds.end = std::max(bounds.start, record.nEnd < 0 ? 0 : engine.Bytes(record.nEnd));
    }
    return bounds.start < bounds.end ? bounds : WithACharacter(engine.raw, bounds);
}

} // namespace

bool ErrorList::Problem::Is(int owner, int kind) const
{
    return (owner == problem::kAny || owner == record->nOwner) &&
           (kind == problem::kAny || kind == record->nKind);
}

template <class Visit>
void ErrorList::ForEach(Visit visit) const
{
    m_problems.ForEachTouching(LONG_MIN, LONG_MAX,
                               [&](RangeList::Range& range) { visit(*AsProblem(&range)); });
}

// The problem's record with the place that it has in the text.
ErrorInfo* ErrorList::Placed(const Engine& engine, const Problem& problem) const
{
    ErrorInfo& record = *problem.record;
    record.nStart = engine.Units(problem.Start());
    record.nEnd = engine.Units(problem.End());
    record.nLine = static_cast<int>(LineOf(engine.raw, problem.Start()));
    return &record;
}

int ErrorList::MarkClassOf(const Problem& problem) const
{
    const ErrorInfo& record = *problem.record;
    return problem.shown && IsLetThrough(m_look, record.nKind, record.nSeverity)
               ? engine::MarkClassOf(record.nSeverity)
               : kNoMark;
}

int ErrorList::Add(Engine& engine, int owner, const ErrorInfo& record)
{
    Settle(engine);
    if (m_lastId == INT_MAX)
        return 0;
    auto problem = std::make_unique<Problem>();
    problem->record = std::make_shared<ErrorInfo>(record);
    problem->record->nOwner = owner;
    problem->record->nId = ++m_lastId;
    const Bounds bounds = BoundsOf(engine, record);
    m_byId[m_lastId] = AsProblem(&m_problems.Insert(std::move(problem), bounds.start, bounds.end));
    return m_lastId;
}

void ErrorList::Forget(Problem& problem)
{
    if (m_walked == &problem)
        m_walked = AsProblem(m_problems.Previous(problem));
    m_byId.erase(problem.record->nId);
    m_problems.Erase(problem);
}

void ErrorList::Delete(Engine& engine, int owner, int id)
{
    Settle(engine);
    const auto found = m_byId.find(id);
    if (found == m_byId.end() || !found->second->Is(owner, problem::kAny))
        return;
    Problem& problem = *found->second;
    const bool marked = MarkClassOf(problem) != kNoMark;
    const Bounds bounds{problem.Start(), problem.End()};
    Forget(problem);
    if (!marked)
        return;
    const ErrorPainter painter(engine.raw, m_look);
    DrawText(painter, bounds.start, bounds.end);
    DrawMargin(painter, engine, LineOf(engine.raw, bounds.start));
}

void ErrorList::DeleteAll(Engine& engine, int owner, int kind)
{
    Settle(engine);
    std::vector<Problem*> doomed;
    ForEach([&](Problem& problem) {
        if (problem.Is(owner, kind))
            doomed.push_back(&problem);
    });
    // From the last on: chunks shrink at their ends.
    for (auto each = doomed.rbegin(); each != doomed.rend(); ++each)
        Forget(**each);
    if (!doomed.empty())
        DrawAll(engine);
}

ErrorInfo* ErrorList::GetFirst(Engine& engine, int owner)
{
    m_walked = nullptr;
    return GetNext(engine, owner);
}

ErrorInfo* ErrorList::GetNext(Engine& engine, int owner)
{
    Settle(engine);
    Problem* problem = AsProblem(m_walked ? m_problems.Next(*m_walked) : m_problems.First());
    while (problem && !problem->Is(owner, problem::kAny))
        problem = AsProblem(m_problems.Next(*problem));
    if (!problem)
        return nullptr;
    m_walked = problem;
    return Placed(engine, *problem);
}

ErrorInfo* ErrorList::GetOver(Engine& engine, long position)
{
    Settle(engine);
    if (position < 0 || position > engine.text.Length())
        return nullptr;
    const long at = engine.Bytes(position);
    Problem* best = nullptr;
    const auto rank = [](const Problem& problem) {
        return std::tuple(-problem.record->nSeverity, problem.End() - problem.Start(),
                          problem.record->nId);
    };
    m_problems.ForEachTouching(at, at, [&](RangeList::Range& range) {
        Problem& problem = *AsProblem(&range);
        const bool isOver = problem.End() > at || problem.Start() == at;
        if (isOver && IsLetThrough(m_look, problem.record->nKind, problem.record->nSeverity) &&
            (!best || rank(problem) < rank(*best)))
            best = &problem;
    });
    return best ? Placed(engine, *best) : nullptr;
}

ErrorMap* ErrorList::GetAll(Engine& engine, int owner, int kind)
{
    Settle(engine);
    m_map.clear();
    ForEach([&](Problem& problem) {
        if (problem.Is(owner, kind))
            m_map[Placed(engine, problem)->nLine].push_back(problem.record);
    });
    return &m_map;
}

void ErrorList::Show(Engine& engine)
{
    Settle(engine);
    m_isDrawn = true;
    ForEach([](Problem& problem) { problem.shown = true; });
    DrawAll(engine);
}

void ErrorList::Unmark(Engine& engine, int owner, int kind)
{
    Settle(engine);
    ForEach([&](Problem& problem) {
        if (problem.Is(owner, kind))
            problem.shown = false;
    });
    DrawAll(engine);
}

void ErrorList::SetLook(Engine& engine, const ErrorLook& look)
{
    Settle(engine);
    if (m_isDrawn)
        ErrorPainter(engine.raw, m_look).EraseAll();
    m_look = look;
    DrawAll(engine);
}

void ErrorList::DrawAll(const Engine& engine) const
{
    if (!m_isDrawn)
        return;
    const ErrorPainter painter(engine.raw, m_look);
    painter.EraseAll();
    long line = -1;
    unsigned bits = 0;
    const auto endLine = [&] {
        if (bits)
            painter.SetMarkers(line, bits);
        bits = 0;
    };
    ForEach([&](Problem& problem) {
        const int markClass = MarkClassOf(problem);
        if (markClass == kNoMark)
            return;
        painter.FillText(markClass, problem.Start(), problem.End());
        const long own = LineOf(engine.raw, problem.Start());
        if (own != line)
            endLine();
        line = own;
        bits |= painter.MarkerBit(markClass);
    });
    endLine();
}

void ErrorList::DrawText(const ErrorPainter& painter, long start, long end) const
{
    painter.EraseText(start, end);
    m_problems.ForEachTouching(start, end, [&](RangeList::Range& range) {
        const int markClass = MarkClassOf(*AsProblem(&range));
        if (markClass != kNoMark)
            painter.FillText(markClass, std::max(start, range.Start()), std::min(end, range.End()));
    });
}

void ErrorList::DrawMargin(const ErrorPainter& painter, const Engine& engine, long line) const
{
    const long behind = line + 1 < engine.raw.LineCount() ? engine.text.StartInBytes(line + 1).value
                                                          : engine.raw.Length() + 1;
    unsigned bits = 0;
    auto* problem = AsProblem(m_problems.FirstFrom(engine.text.StartInBytes(line).value));
    for (; problem && problem->Start() < behind; problem = AsProblem(m_problems.Next(*problem))) {
        const int markClass = MarkClassOf(*problem);
        if (markClass != kNoMark)
            bits |= painter.MarkerBit(markClass);
    }
    painter.SetMarkers(line, bits);
}

void ErrorList::NoteChange(const Engine& engine, bool inserts, long position, long bytes)
{
    Settle(engine);
    if (m_problems.IsEmpty())
        return;
    m_change = {true, inserts, position, bytes, engine.raw.Length(), engine.raw.LineCount()};
}

void ErrorList::Settle(const Engine& engine)
{
    if (!m_change.noted || engine.raw.Length() == m_change.lengthBefore)
        return;
    const Change change = std::exchange(m_change, Change());
    if (change.inserts)
        m_problems.TextInserted(change.position, change.bytes);
    else
        m_problems.TextDeleted(change.position, change.bytes);
    if (m_isDrawn && !m_problems.IsEmpty())
        RedrawAfter(change, engine);
}

// The stock engine moves the marks along. It lets text that is put in between two marks that touch
// take part in them, and leaves markers on the line that was divided.
void ErrorList::RedrawAfter(const Change& change, const Engine& engine) const
{
    const long end = change.position + (change.inserts ? change.bytes : 0);
    // A change behind a CR can take its LF, or give it one, and leave the count of lines as it was.
    // Markers go when the text gets empty, a single line too.
    const long front = std::max(0L, change.position - 1);
    const bool linesMoved =
        engine.raw.LineCount() != change.linesBefore || engine.raw.Length() == 0 ||
        engine.raw.Send(Sci::SCI_GETCHARAT, static_cast<std::uintptr_t>(front)) == '\r';
    const ErrorPainter painter(engine.raw, m_look);
    if (change.inserts && painter.IsTextMarked(change.position))
        DrawText(painter, change.position, end);
    if (!linesMoved)
        return;
    long drawn = -1;
    for (const long place : {front, change.position, end}) {
        const long line = LineOf(engine.raw, place);
        if (line != drawn)
            DrawMargin(painter, engine, line);
        drawn = line;
    }
}

void SettleErrorsWhenShown(Engine& engine)
{
    QsciScintillaBase& window = engine.window;
    QObject::connect(&window, &Sci::SCN_UPDATEUI, &window,
                     [&engine](int) { engine.errors->Settle(engine); });
}

} // namespace engine
