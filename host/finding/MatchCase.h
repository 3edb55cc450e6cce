// SPDX-License-Identifier: GPL-3.0-or-later
// A replacement in the case of what it stands for. Knows text alone.
#pragma once

#include <QString>

// All capitals for all capitals, all small letters for all small, a capital in front for one in
// front; as it is for anything else.
QString InCaseOf(const QString& match, const QString& replacement);
