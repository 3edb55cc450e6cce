// SPDX-License-Identifier: GPL-3.0-or-later
// CaretSteps: undo where several carets are or something is selected, in a document of windows with
// looks. Characters
// that are typed one after the other are one step, as they are at a single caret: an undo action
// stays open between their keys, and ends before anything else. So are those that are typed over a
// selection. What was selected before and behind
// a step comes back with it, which the stock engine keeps for none. A step is known again by what
// it does to the text, so that whatever becomes of the stock engine's history does no harm.
// A line that is begun and the indentation that it gets are one with what is typed behind them.
// A command's change is such a step, too: what was selected comes back rather than the first place
// that has changed, with the view of it unless it is in sight.
#pragma once

#include "engine/core/CaretPlaces.h"
#include "engine/text/TextEdit.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace engine {

class Engine;

class CaretSteps
{
public:
    enum class Key
    {
        Types,
        Erases,
        BeginsLine, // with all that a host does about it, and what is typed behind it
        Other
    };

    // While one of these lives, what happens to a text is done to it in this window.
    class Acting
    {
    public:
        explicit Acting(const Engine& engine) : m_outer(s_acting) { s_acting = &engine; }
        ~Acting() { s_acting = m_outer; }
        Acting(const Acting&) = delete;
        Acting& operator=(const Acting&) = delete;

    private:
        const Engine* m_outer;
    };

    CaretSteps() = default;
    CaretSteps(const CaretSteps&) = delete;
    CaretSteps& operator=(const CaretSteps&) = delete;
    ~CaretSteps();

    // Around a key that does not only move the caret.
    void KeyBegins(Engine& engine, Key key);
    void KeyEnds() { m_inKey = false; }
    bool IsBeginningLine() const { return m_inKey && m_isOpen && m_key == Key::BeginsLine; }

    // The caret moves: what is typed from here on is no part of the line that was begun.
    void LineEnds(const Raw& raw);

    // Before an edit. Each window that shows the document may tell of it.
    void EditBegins(Engine& engine, const TextEdit& edit);

    // Around an action of the host's that none is around.
    void ActionBegins(Engine& engine);
    void ActionEnds() { m_action.reset(); }

    // A message or an event is over, and none is around it.
    void Settle(const Engine& engine);

    // Ends what the keys have begun.
    void Close(const Raw& raw);

    // Around an undo or a redo of one step.
    void StepBegins(const Engine& engine);
    void StepEnds(const Engine& engine, bool isUndo);

    // Of any document: whether an action is open, and whether a step is being written down.
    static bool AnyIsOpen() { return s_open > 0; }
    static bool AnyIsNoted() { return s_noted > 0; }

private:
    // What tells one step from another, whichever way it is done.
    struct Mark
    {
        long before = 0; // bytes of the text
        long after = 0;
        long edits = 0;
        std::uint64_t sum = 0; // of where and how long the edits are

        void Add(const TextEdit& edit);
        bool operator==(const Mark&) const = default;
    };

    struct Step
    {
        Mark mark;
        CaretPlaces before;
        CaretPlaces after;
        std::intptr_t top = -1; // display line, of an action; -1: of keys
    };

    struct View
    {
        CaretPlaces carets;
        std::intptr_t top; // display line
    };

    bool IsInView(const Raw& raw) const;
    static std::size_t SizeOf(const Step& step) { return step.before.Size() + step.after.Size(); }
    void Note();
    void Forget(std::deque<Step>& steps);

    static inline const Engine* s_acting = nullptr;
    static inline int s_open = 0;
    static inline int s_noted = 0;

    bool m_isOpen = false;
    bool m_inKey = false;
    bool m_isNoted = false; // m_step is being written
    bool m_isFresh = false; // edited since it settled
    Key m_key = Key::Other; // of the action that is open
    Step m_step;
    std::optional<View> m_action; // before the one that changes many places
    Mark m_seen;                  // of the undo or redo at hand
    std::intptr_t m_top = 0;      // before it, display line
    std::deque<Step> m_done;
    std::deque<Step> m_undone;
    std::size_t m_kept = 0; // selections in both
};

} // namespace engine
