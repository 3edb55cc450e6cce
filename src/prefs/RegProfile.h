// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CRegProfile: what dialogs remember, as values under the library's key of the user's registry.
/// Knows no window.
#pragma once

#include "common/Export.h"

#include <QString>

/// Each operation takes a section, a path of key names with '\' between them, and the name of an
/// entry in it. A value of another kind than asked counts as absent. Failures show in the results
/// alone. A key that could not be opened is tried again by the next operation.
class ZN_API CRegProfile
{
public:
    static constexpr int kBufferUnits = 1024; ///< of GetProfileString, its terminator included

    CRegProfile(); ///< opens the library's key
    CRegProfile(const CRegProfile&) = delete;
    CRegProfile& operator=(const CRegProfile&) = delete;
    virtual ~CRegProfile() = default; ///< what was written stays

    /// The fallback if there is no number of that name.
    int GetProfileInt(const char16_t* section, const char16_t* entry, int fallback);
    /// The buffer, which takes the first 1,023 units and a terminator, or else the fallback.
    const char16_t* GetProfileString(const char16_t* section, const char16_t* entry,
                                     char16_t* buffer, const char16_t* fallback);
    /// The bytes become the caller's, who deletes them as an array. False, null and 0 if absent.
    bool GetProfileBinary(const char16_t* section, const char16_t* entry, unsigned char** data,
                          unsigned int* size);

    /// False if it could not be written.
    bool WriteProfileInt(const char16_t* section, const char16_t* entry, int value);
    /// Null stands for an empty text.
    bool WriteProfileString(const char16_t* section, const char16_t* entry, const char16_t* value);
    /// The reverse of the others: true for a failure.
    bool WriteProfileBinary(const char16_t* section, const char16_t* entry,
                            const unsigned char* data, unsigned int size);

    bool DeleteProfileKey(const char16_t* section, const char16_t* entry); ///< a key in the section
    /// False also if there was none.
    bool DeleteProfileValue(const char16_t* section, const char16_t* entry);

private:
    bool OpenSection(const char16_t* section, QString& key);

    bool m_open = false; // the library's own key
};
