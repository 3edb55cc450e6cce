// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The names that stand in a piece of SQL: what it creates, with columns and parameters, and what
/// it uses. Text alone: knows no window.
#pragma once

#include "common/Export.h"
#include "completion/NameKind.h"

#include <QString>

#include <string_view>
#include <vector>

namespace engine::analysis {
struct SqlDialect;
}

namespace completion {

/// A name and its place.
struct ScriptName
{
    NameKind kind = NameKind::Table; ///< what it stands for
    QString name;                    ///< without its quotes
    QString parent; ///< the table of a column or an alias, the routine of a parameter; or empty
    long start = 0; ///< of the name with its quotes, in units of the text
    long end = 0;   ///< behind its last unit
    bool isQuoted = false; ///< there
};

/// In their order, in a dialect of control/Analysis.h (partitioner::Dialect); nothing for a number
/// that is none. A text that begins in the midst of a comment or a string is read as code.
ZN_API std::vector<ScriptName> NamesIn(std::u16string_view text, int dialect);

/// The first one and what belongs to it, its columns and parameters; up to the terminator, or the
/// first name that is something else.
ZN_API std::vector<ScriptName> MembersIn(std::u16string_view text,
                                         const engine::analysis::SqlDialect& dialect);

} // namespace completion
