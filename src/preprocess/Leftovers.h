// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What an expanded script shows to have gone wrong without a word: variables that stand as they
/// were written, and definitions that define nothing.
#pragma once

#include "common/Export.h"

#include <QString>

#include <vector>

class CZNCoreEditorControlEx;

/// Something that has gone wrong, and where.
struct Leftover
{
    long start = 0; ///< in the expanded text, in UTF-16 units
    long end = 0;   ///< behind the last unit
    QString text;   ///< a sentence

    bool operator==(const Leftover&) const = default; ///< whether both say the same
};

/// In their order, of the control's text, behind a run of the pre-processor. Reads alone. A "&&"
/// that no name follows is no variable, since some dialects have an operator of that form.
ZN_API std::vector<Leftover> FindLeftovers(CZNCoreEditorControlEx& control);
