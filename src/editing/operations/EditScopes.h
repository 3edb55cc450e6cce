// SPDX-License-Identifier: GPL-3.0-or-later
// What an editing operation sets up for its time and puts back behind itself.
#pragma once

#include "control/ZNCoreEditorControl.h"

// One undo takes back all that is done while it lives.
class UndoStep
{
public:
    explicit UndoStep(CZNCoreEditorControl& control) : m_control(control)
    {
        m_control.BeginUndoAction(1);
    }
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;
    ~UndoStep() { m_control.EndUndoAction(1); }

private:
    CZNCoreEditorControl& m_control;
};

// An undo step over many lines, during which the engine's analysis rests.
class BulkChange
{
public:
    explicit BulkChange(CZNCoreEditorControl& control) : m_control(control), m_undo(control)
    {
        m_control.SetDoingReplaceAll(true, 1);
    }
    BulkChange(const BulkChange&) = delete;
    BulkChange& operator=(const BulkChange&) = delete;
    ~BulkChange() { m_control.SetDoingReplaceAll(false, 1); }

private:
    CZNCoreEditorControl& m_control;
    UndoStep m_undo;
};

// Markers are looked for as they stand, whatever a search before has set.
class PlainSearch
{
public:
    explicit PlainSearch(CZNCoreEditorControl& control)
        : m_control(control), m_flags(control.GetSearchFlags(1))
    {
        m_control.SetSearchFlags(0, 1);
    }
    PlainSearch(const PlainSearch&) = delete;
    PlainSearch& operator=(const PlainSearch&) = delete;
    ~PlainSearch() { m_control.SetSearchFlags(m_flags, 1); }

private:
    CZNCoreEditorControl& m_control;
    int m_flags;
};
