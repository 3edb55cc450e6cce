// SPDX-License-Identifier: GPL-3.0-or-later
// ErrorList: the problems of one text, in the order of the text, and their marks in it. What the
// messages mean is told in control/ErrorInfo.h. The operations work through any engine whose window
// shows the text.
#pragma once

#include "control/ErrorInfo.h"
#include "engine/errors/ErrorMarks.h"
#include "engine/errors/RangeList.h"

#include <unordered_map>

namespace engine {

class Engine;

class ErrorList
{
public:
    int Add(Engine& engine, int owner, const ErrorInfo& record);
    void Delete(Engine& engine, int owner, int id);
    void DeleteAll(Engine& engine, int owner, int kind);

    ErrorInfo* GetFirst(Engine& engine, int owner);
    ErrorInfo* GetNext(Engine& engine, int owner);
    ErrorInfo* GetOver(Engine& engine, long position); // in units
    ErrorMap* GetAll(Engine& engine, int owner, int kind);

    void Show(Engine& engine);
    void Unmark(Engine& engine, int owner, int kind);

    const ErrorLook& Look() const { return m_look; }
    void SetLook(Engine& engine, const ErrorLook& look);

    // A change of the text that is about to happen. Each window that shows the text may tell of it.
    void NoteChange(const Engine& engine, bool inserts, long position, long bytes);
    // Follows the change that was noted, once it is in the text.
    void Settle(const Engine& engine);

private:
    struct Problem : RangeList::Range
    {
        std::shared_ptr<ErrorInfo> record;
        bool shown = false; // ErrorsShow has come by

        bool Is(int owner, int kind) const;
    };

    struct Change
    {
        bool noted = false;
        bool inserts = false;
        long position = 0;
        long bytes = 0;
        long lengthBefore = 0;
        long linesBefore = 0;
    };

    static Problem* AsProblem(RangeList::Range* range) { return static_cast<Problem*>(range); }
    template <class Visit>
    void ForEach(Visit visit) const;
    ErrorInfo* Placed(const Engine& engine, const Problem& problem) const;
    int MarkClassOf(const Problem& problem) const; // kNoMark: nothing is to be seen of it
    void Forget(Problem& problem);

    void DrawAll(const Engine& engine) const;
    void DrawText(const ErrorPainter& painter, long start, long end) const;
    void DrawMargin(const ErrorPainter& painter, const Engine& engine, long line) const;
    void RedrawAfter(const Change& change, const Engine& engine) const;

    RangeList m_problems;
    std::unordered_map<int, Problem*> m_byId;
    int m_lastId = 0;
    Problem* m_walked = nullptr; // the one that the walk gave last; null: before the first
    ErrorMap m_map;
    ErrorLook m_look;
    bool m_isDrawn = false; // there may be marks in the text
    Change m_change;
};

// Brings the list up to date when the engine's window is shown.
void SettleErrorsWhenShown(Engine& engine);

} // namespace engine
