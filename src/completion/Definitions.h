// SPDX-License-Identifier: GPL-3.0-or-later
// What the script says of a table or a routine where it gives its name.
#pragma once

#include "completion/CaretContext.h"
#include "completion/Signatures.h"

#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace completion {

struct Column
{
    QString name;
    bool isQuoted = false; // where it is given
    QString description;   // its type if it is known, and its table
};

// A text beside that of the caret, and what it is called.
struct OtherText
{
    const ScriptIndex* index = nullptr;
    ScriptIndex::Read read;
    QString name;
};

struct TablePlaces
{
    std::optional<ScriptIndex::Object> created; // the first one
    std::optional<ScriptIndex::Object> filled;
    std::vector<ScriptIndex::Object> altered;
};

// The columns of the tables around a caret: of those that the script creates, alters or at least
// fills, of those that another script creates, and of queries by what they select. Goes before what
// it is made from.
class TableColumns
{
public:
    TableColumns(const ScriptIndex& index, const ScriptIndex::Read& read,
                 const CaretContext& context, std::span<const OtherText> others = {});

    // Finds the tables in one walk through each index, where Of takes one for each.
    void LookAhead(const QStringList& tables);
    void LookAhead(); // for those of the context

    // In their order; empty if nothing is known.
    std::vector<Column> Of(const ScopedTable& table) const;
    std::vector<Column> Of(const QString& table) const;

private:
    TablePlaces PlacesOf(const QString& table) const;
    void Add(const QString& table, std::vector<Column>& columns, int deep) const;
    bool AddOfOthers(const QString& table, std::vector<Column>& columns, int deep) const;
    bool AddLocals(const QString& table, std::vector<Column>& columns) const;
    void AddItems(const std::vector<SelectItem>& items, const QString& table,
                  std::vector<Column>& columns, int deep) const;
    void AddDefined(const ScriptIndex::Object& object, const QString& table,
                    std::vector<Column>& columns, int deep) const;
    void Alter(const ScriptIndex::Object& object, const QString& table,
               std::vector<Column>& columns, std::size_t first) const;

    const ScriptIndex& m_index;
    const ScriptIndex::Read& m_read;
    const CaretContext& m_context;
    std::vector<std::pair<QString, TablePlaces>> m_known;
    std::vector<TableColumns> m_others;
};

// A routine that the script creates. Empty if it creates none of the name.
Signature SignatureIn(const ScriptIndex& index, const ScriptIndex::Read& read, const QString& name);

} // namespace completion
