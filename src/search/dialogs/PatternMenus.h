// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The menus beside the boxes for a search text and its replacement, and the way of an item's text
/// into the box.
#pragma once

#include "common/Export.h"

#include <QStringList>

class CMyComboBox;

/// Rows of a CMenuButton.
ZN_API QStringList ExpressionItems();
ZN_API QStringList ReplacementItems(); ///< pieces of replacements

/// Types what stands behind the row's tab where the caret of the box was, and gives it the focus. A
/// character of the code 1 is not typed: it says where the caret goes. False for a row without a
/// text, which changes nothing.
ZN_API bool InsertItem(CMyComboBox& box, const QString& row);
