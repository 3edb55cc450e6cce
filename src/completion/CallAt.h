// SPDX-License-Identifier: GPL-3.0-or-later
// The call that a caret stands in.
#pragma once

#include "completion/ScriptIndex.h"

#include <QString>

namespace completion {

struct Call
{
    QString name;
    int argument = 0;  // from 0
    long position = 0; // of the name, in units of the text

    bool IsOne() const { return !name.isEmpty(); }
};

// A routine with its parentheses open around the caret, or the one that EXEC or CALL names.
Call CallAt(const ScriptIndex& index, const ScriptIndex::Read& read, long caret);

} // namespace completion
