// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The colours that a language file was delivered with, to be told from those that a person chose.
#pragma once

#include "common/Export.h"
#include "looks/ColourScheme.h"

#include <QHash>

/// By the number of the style. Empty if the file cannot be read.
ZN_API QHash<int, ColourScheme::Pair> ReadDeliveredColours(const QString& languageFile);
