// SPDX-License-Identifier: GPL-3.0-or-later
// Whether and how often the workbench writes copies of what is not saved yet. Kept in the user's
// settings of the workbench.
#pragma once

class CZNCoreEditorControl;

struct AutosaveSettings
{
    static constexpr int kMostMinutes = 60;

    bool on = true;
    int minutes = 1;

    static AutosaveSettings Load(); // what is missing or out of range has its default
    bool Store() const;             // false if they could not be written
    void ApplyTo(CZNCoreEditorControl& editor) const;
};
