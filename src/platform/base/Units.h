// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// QString as the UTF-16 units that the editor's operations take.
#pragma once

#include <QString>

#include <string_view>

/// Terminated; good as long as the string is left alone.
inline const char16_t* Units(const QString& text)
{
    return reinterpret_cast<const char16_t*>(text.utf16());
}

/// Text as it stands: U+FEFF or U+FFFE at its start is a character and no mark of an encoding, for
/// which QString::fromUtf16 takes it.
inline QString FromUnits(std::u16string_view units)
{
    return QStringView(units).toString();
}
