// SPDX-License-Identifier: GPL-3.0-or-later
// How a number stands in a settings file.
#pragma once

#include "platform/text/Integer.h"

#include <QStringView>

inline int TextToInt(QStringView text)
{
    return IntegerOf({text.utf16(), static_cast<std::size_t>(text.size())});
}
