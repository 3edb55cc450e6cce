// SPDX-License-Identifier: GPL-3.0-or-later
// What the rows of a query are made of: the columns that a view or a common table has when it
// names none itself. Text alone.
#pragma once

#include "engine/analysis/SqlDialects.h"

#include <QString>

#include <string_view>
#include <vector>

namespace completion {

struct SelectItem
{
    QString name; // of the column; or empty
    QString star; // a table whose columns stand here
    bool isQuoted = false;
};

// Of the query behind the first AS in UTF-8: the items that have a name, and each star as one item
// for each table that it stands for, without the aliases; of a query in parentheses what it gives.
// Of UNION and the like the first query.
std::vector<SelectItem> SelectListBehindAs(const engine::analysis::SqlDialect& dialect,
                                           std::string_view utf8);

// The same of the query that the text begins with, up to the parenthesis that ends it.
std::vector<SelectItem> SelectListOf(const engine::analysis::SqlDialect& dialect,
                                     std::string_view utf8);

} // namespace completion
