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
};

// Of the query behind the first AS in UTF-8: the items that have a name, and each star as one item
// for each table that it stands for, without the aliases. Of UNION and the like the first query.
std::vector<SelectItem> SelectListBehindAs(const engine::analysis::SqlDialect& dialect,
                                           std::string_view utf8);

} // namespace completion
