// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What a name in a script stands for.
#pragma once

#include <cstdint>

namespace completion {

/// What a name is: the first ten are given by CREATE, the next four stand inside of what is
/// created, the others in one statement.
enum class NameKind : std::uint8_t
{
    Table,         ///< CREATE TABLE
    View,          ///< CREATE VIEW
    Procedure,     ///< CREATE PROCEDURE
    Function,      ///< CREATE FUNCTION
    Trigger,       ///< CREATE TRIGGER
    Index,         ///< CREATE INDEX
    Type,          ///< CREATE TYPE
    Sequence,      ///< CREATE SEQUENCE
    Package,       ///< CREATE PACKAGE
    Schema,        ///< CREATE SCHEMA
    Column,        ///< of a table
    Parameter,     ///< of a routine
    Variable,      ///< that a block declares
    Cursor,        ///< that a block declares
    Cte,           ///< a query that WITH names
    Alias,         ///< another name of a table
    DerivedAlias,  ///< of a query in parentheses, or of what a function gives
    DroppedColumn, ///< that ALTER takes away
    RenamedColumn, ///< the column behind it takes its place
    TableUse,      ///< a table, wherever it may come from
    InsertUse,     ///< the same with a list of columns behind it
    RoutineUse,    ///< a routine, wherever it may come from
    AlterUse,      ///< a table that ALTER may give columns
};

/// Whether rows can be read from it.
constexpr bool IsTable(NameKind kind)
{
    return kind == NameKind::Table || kind == NameKind::View || kind == NameKind::TableUse ||
           kind == NameKind::InsertUse || kind == NameKind::AlterUse;
}

/// Whether it can be called.
constexpr bool IsRoutine(NameKind kind)
{
    return kind == NameKind::Procedure || kind == NameKind::Function ||
           kind == NameKind::RoutineUse;
}

} // namespace completion
