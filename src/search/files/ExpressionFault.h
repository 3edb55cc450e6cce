// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What is wrong with an expression that an editor would find nothing by.
#pragma once

#include "common/Export.h"

#include <QString>

/// A sentence for a person; empty for an expression that is well.
ZN_API QString ExpressionFault(const QString& expression, bool perlSyntax = false);
