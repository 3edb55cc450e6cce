// SPDX-License-Identifier: GPL-3.0-or-later
// CaretContext: what stands around a caret: the word that is being typed, what it may be, and the
// tables and names that its statement has. Text alone.
#pragma once

#include "completion/Proposals.h"
#include "completion/ScriptIndex.h"
#include "completion/ScriptNames.h"
#include "completion/SelectList.h"

namespace completion {

struct ScopedTable
{
    QString name; // empty for what a query in parentheses gives
    QString alias;
    std::vector<SelectItem> items; // of the query in parentheses
    bool isAliasQuoted = false;
};

// A common table without a list of columns.
struct QueryTable
{
    QString name;
    std::vector<SelectItem> items;
};

struct CaretContext
{
    ProposalQuery query;
    QString rest;                      // of the word, behind the caret
    QChar quote;                       // that the word begins with, none if it is not quoted
    NameWord behind = NameWord::Other; // what stands before the word
    bool beginsStatement = false;      // the word does, or may
    // Of the queries that the caret stands in, the innermost first, before the caret and behind it.
    std::vector<ScopedTable> tables;
    // Variables, parameters, cursors, common tables and their columns, from some way before the
    // caret up to it. Their places mean nothing.
    std::vector<ScriptName> locals;
    std::vector<QueryTable> queries; // of the locals
};

// The text is that of the index, which is fresh around the caret.
CaretContext ContextAt(const ScriptIndex& index, const ScriptIndex::Read& read, long caret);

} // namespace completion
