// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The text of a file as an editor would open it, without one.
#pragma once

#include "common/Export.h"

#include <QString>

#include <optional>

/// Nothing for what is no text, cannot be read or has more bytes than these. The code page is that
/// of a file that is no Unicode; 0: the system's.
ZN_API std::optional<QString> ReadFileText(const QString& path, qint64 mostBytes, int codePage = 0);
