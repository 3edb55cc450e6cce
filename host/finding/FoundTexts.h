// SPDX-License-Identifier: GPL-3.0-or-later
// The texts that are being edited, as the panes of what was found ask for them.
#pragma once

#include "search/files/FileSearch.h"

#include <QString>

#include <vector>

class CZNCoreEditorControlEx;

class IFoundTexts
{
public:
    virtual ~IFoundTexts() = default;

    // Of the script with the path or, if it has none, with the title; null if none is open.
    virtual CZNCoreEditorControlEx* EditorOf(const QString& path) const = 0;
    // Brings it to the front, opened if it is not; null if it cannot be.
    virtual CZNCoreEditorControlEx* Open(const QString& path) = 0;
    virtual std::vector<OpenText> All() const = 0;
};
