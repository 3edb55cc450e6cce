// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Which language a script is in, by the name of its file.
#pragma once

#include "common/Export.h"

#include <QString>

/// The number of the language in the registry; that of plain text for a name that tells nothing.
ZN_API int LanguageOfFile(const QString& path);

/// Of a script that has no file yet.
ZN_API int LanguageOfNewScripts();

/// By its name in the registry; the other one if there is none of that name.
ZN_API int LanguageNamed(const QString& name, int otherwise);
