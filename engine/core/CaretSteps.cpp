// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/CaretSteps.h"

#include "engine/core/Documents.h"
#include "engine/core/Engine.h"

#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr std::size_t kMostCarets = 10 * 1000;
constexpr std::size_t kMostKept = 100 * 1000; // selections of a document's steps: 3 MB

std::size_t CaretsOf(const Raw& raw)
{
    return static_cast<std::size_t>(raw.Send(Sci::SCI_GETSELECTIONS));
}

bool IsFollowed(const Engine& engine)
{
    const std::size_t carets = CaretsOf(engine.raw);
    return carets <= kMostCarets && engine.looks.IsOn() &&
           (carets > 1 || !engine.raw.Send(Sci::SCI_GETSELECTIONEMPTY));
}

// What is typed over other text goes back character by character.
bool MayBeginLine(const Engine& engine)
{
    return engine.looks.IsOn() && CaretsOf(engine.raw) <= kMostCarets &&
           !engine.raw.Send(Sci::SCI_GETOVERTYPE);
}

} // namespace

CaretSteps::~CaretSteps()
{
    s_open -= m_isOpen;
    s_noted -= m_isNoted;
}

// The same for an edit and for its undoing.
void CaretSteps::Mark::Add(const TextEdit& edit)
{
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15; // odd, without a pattern
    ++edits;
    auto one = static_cast<std::uint64_t>(edit.position) * kSpread;
    one = (one ^ (one >> 29U)) + static_cast<std::uint64_t>(edit.bytes);
    sum += one * kSpread;
}

void CaretSteps::KeyBegins(Engine& engine, Key key)
{
    const bool isSame = key == Key::Types ? m_key == Key::Types || m_key == Key::BeginsLine
                                          : key == m_key && key != Key::BeginsLine;
    const bool goesOn = m_isOpen && isSame && m_isNoted && m_step.after == CaretPlaces(engine.raw);
    const bool isFollowed = key == Key::BeginsLine
                                ? MayBeginLine(engine)
                                : IsFollowed(engine) || (goesOn && key == Key::Types);
    const bool joins = key != Key::Other && isFollowed && engine.CollectsUndo() &&
                       !engine.raw.Send(Sci::SCI_GETREADONLY) &&
                       !documents::HasUndoActions(engine.Document());
    if (!joins || !goesOn)
        Close(engine.raw);
    if (!joins)
        return;
    m_inKey = true;
    if (m_isOpen)
        return;
    engine.raw.Send(Sci::SCI_BEGINUNDOACTION);
    m_isOpen = true;
    m_key = key;
    ++s_open;
}

void CaretSteps::EditBegins(Engine& engine, const TextEdit& edit)
{
    if (s_acting != &engine)
        return;
    if (engine.undo) {
        m_seen.Add(edit);
        return;
    }
    if (!m_inKey)
        Close(engine.raw);
    if (!m_undone.empty())
        Forget(m_undone);
    if (!m_isNoted) {
        if (!(m_action || IsFollowed(engine)) || !engine.CollectsUndo())
            return;
        m_step = {.mark = {.before = engine.raw.Length()},
                  .before = m_action ? m_action->carets : CaretPlaces(engine.raw),
                  .after = {},
                  .top = m_action ? m_action->top : -1};
        m_isNoted = true;
        ++s_noted;
    }
    m_step.mark.Add(edit);
    m_isFresh = true;
}

void CaretSteps::ActionBegins(Engine& engine)
{
    if (engine.looks.IsOn() && engine.CollectsUndo() && CaretsOf(engine.raw) <= kMostCarets)
        m_action = {CaretPlaces(engine.raw), engine.raw.Send(Sci::SCI_GETFIRSTVISIBLELINE)};
}

void CaretSteps::Settle(const Engine& engine)
{
    if (!m_isNoted || (m_action && documents::HasUndoActions(engine.Document())))
        return;
    if (std::exchange(m_isFresh, false)) { // else the carets have only moved
        m_step.mark.after = engine.raw.Length();
        m_step.after = CaretPlaces(engine.raw);
    }
    if (!m_isOpen && !documents::HasUndoActions(engine.Document()))
        Note();
}

void CaretSteps::Close(const Raw& raw)
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    --s_open;
    raw.Send(Sci::SCI_ENDUNDOACTION);
    if (m_isNoted)
        Note();
}

void CaretSteps::LineEnds(const Raw& raw)
{
    if (m_key == Key::BeginsLine)
        Close(raw);
}

void CaretSteps::Note()
{
    m_isNoted = false;
    --s_noted;
    m_kept += SizeOf(m_step);
    m_done.push_back(std::move(m_step));
    while (m_kept > kMostKept) {
        m_kept -= SizeOf(m_done.front());
        m_done.pop_front();
    }
}

void CaretSteps::Forget(std::deque<Step>& steps)
{
    for (const Step& step : steps)
        m_kept -= SizeOf(step);
    steps.clear();
}

void CaretSteps::StepBegins(const Engine& engine)
{
    m_seen = {.before = engine.raw.Length()};
    m_top = engine.raw.Send(Sci::SCI_GETFIRSTVISIBLELINE);
}

// Whether the main caret is in the view that was there before.
bool CaretSteps::IsInView(const Raw& raw) const
{
    const auto caret = static_cast<std::uintptr_t>(raw.Send(Sci::SCI_GETCURRENTPOS));
    const auto line = static_cast<std::uintptr_t>(raw.Send(Sci::SCI_LINEFROMPOSITION, caret));
    const std::intptr_t row = raw.Send(Sci::SCI_VISIBLEFROMDOCLINE, line);
    return row >= m_top && row < m_top + raw.Send(Sci::SCI_LINESONSCREEN);
}

void CaretSteps::StepEnds(const Engine& engine, bool isUndo)
{
    m_seen.after = engine.raw.Length();
    if (isUndo)
        std::swap(m_seen.before, m_seen.after);
    std::deque<Step>& from = isUndo ? m_done : m_undone;
    if (from.empty() || !(from.back().mark == m_seen))
        return;
    (isUndo ? from.back().before : from.back().after).PutBack(engine.raw);
    if (isUndo && from.back().top >= 0)
        engine.raw.Send(
            Sci::SCI_SETFIRSTVISIBLELINE,
            static_cast<std::uintptr_t>(IsInView(engine.raw) ? m_top : from.back().top));
    else
        engine.raw.Send(Sci::SCI_SCROLLCARET);
    (isUndo ? m_undone : m_done).push_back(std::move(from.back()));
    from.pop_back();
}

} // namespace engine
