// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// A few lines of each language, for the samples of colours and fonts.
#pragma once

#include "common/Export.h"

#include <QString>

/// By the name of the language's file without a folder; that of SQL for one that is not known.
ZN_API QString SampleTextOf(const QString& languageFile);
