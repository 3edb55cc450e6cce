// SPDX-License-Identifier: GPL-3.0-or-later
// What a name in a script stands for.
#pragma once

#include <cstdint>

namespace completion {

enum class NameKind : std::uint8_t
{
    // Given by CREATE
    Table,
    View,
    Procedure,
    Function,
    Trigger,
    Index,
    Type,
    Sequence,
    Package,
    Schema,
    // Inside of what was created, and in blocks
    Column,
    Parameter,
    Variable,
    Cursor,
    // In one statement
    Cte,
    Alias,
    DerivedAlias, // of a query in parentheses, or of what a function gives
                  // By ALTER
    DroppedColumn,
    RenamedColumn, // the column behind it takes its place
                   // Used, wherever they may come from
    TableUse,
    InsertUse, // the same with a list of columns behind it
    RoutineUse,
    AlterUse, // a table that ALTER may give columns
};

constexpr bool IsTable(NameKind kind)
{
    return kind == NameKind::Table || kind == NameKind::View || kind == NameKind::TableUse ||
           kind == NameKind::InsertUse || kind == NameKind::AlterUse;
}

constexpr bool IsRoutine(NameKind kind)
{
    return kind == NameKind::Procedure || kind == NameKind::Function ||
           kind == NameKind::RoutineUse;
}

} // namespace completion
