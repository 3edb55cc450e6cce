// QString as the UTF-16 units that the editor's operations take.
#pragma once

#include <QString>

// Terminated; good as long as the string is left alone.
inline const char16_t* Units(const QString& text)
{
    return reinterpret_cast<const char16_t*>(text.utf16());
}
