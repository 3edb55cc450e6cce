// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/RegProfile.h"

#include "platform/system/Registry.h"
#include "platform/system/SpecialFolders.h"

#include <algorithm>

namespace {

QString BaseKey()
{
    return SettingsFolderName() + QStringLiteral("\\ZNCoreEditor");
}

QString FromUnits(const char16_t* text)
{
    return text ? QString::fromUtf16(text) : QString();
}

template <class Kind>
std::optional<Kind> ValueOf(const QString& key, const char16_t* entry)
{
    const std::optional<RegistryValue> value = Registry().Read(key, FromUnits(entry));
    const Kind* kind = value ? std::get_if<Kind>(&*value) : nullptr;
    return kind ? std::optional(*kind) : std::nullopt;
}

} // namespace

CRegProfile::CRegProfile() : m_open(Registry().OpenKey(BaseKey())) {}

bool CRegProfile::OpenSection(const char16_t* section, QString& key)
{
    if (!m_open)
        m_open = Registry().OpenKey(BaseKey());
    key = BaseKey();
    if (const QString below = FromUnits(section); !below.isEmpty())
        key += u'\\' + below;
    return m_open && Registry().OpenKey(key);
}

int CRegProfile::GetProfileInt(const char16_t* section, const char16_t* entry, int fallback)
{
    QString key;
    if (!OpenSection(section, key))
        return fallback;
    const auto number = ValueOf<std::uint32_t>(key, entry);
    return number ? static_cast<int>(*number) : fallback;
}

const char16_t* CRegProfile::GetProfileString(const char16_t* section, const char16_t* entry,
                                              char16_t* buffer, const char16_t* fallback)
{
    QString key;
    if (!OpenSection(section, key))
        return fallback;
    const auto text = ValueOf<QString>(key, entry);
    if (!text)
        return fallback;
    const QString kept = text->left(kBufferUnits - 1);
    *std::copy(kept.utf16(), kept.utf16() + kept.size(), buffer) = u'\0';
    return buffer;
}

bool CRegProfile::GetProfileBinary(const char16_t* section, const char16_t* entry,
                                   unsigned char** data, unsigned int* size)
{
    *data = nullptr;
    *size = 0;
    QString key;
    if (!OpenSection(section, key))
        return false;
    const auto bytes = ValueOf<QByteArray>(key, entry);
    if (!bytes)
        return false;
    *data = new unsigned char[static_cast<std::size_t>(bytes->size())];
    *size = static_cast<unsigned int>(bytes->size());
    std::copy(bytes->begin(), bytes->end(), *data);
    return true;
}

bool CRegProfile::WriteProfileInt(const char16_t* section, const char16_t* entry, int value)
{
    QString key;
    return OpenSection(section, key) &&
           Registry().Write(key, FromUnits(entry), static_cast<std::uint32_t>(value));
}

bool CRegProfile::WriteProfileString(const char16_t* section, const char16_t* entry,
                                     const char16_t* value)
{
    QString key;
    return OpenSection(section, key) && Registry().Write(key, FromUnits(entry), FromUnits(value));
}

bool CRegProfile::WriteProfileBinary(const char16_t* section, const char16_t* entry,
                                     const unsigned char* data, unsigned int size)
{
    QString key;
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    return !OpenSection(section, key) || !Registry().Write(key, FromUnits(entry), bytes);
}

bool CRegProfile::DeleteProfileKey(const char16_t* section, const char16_t* entry)
{
    QString key;
    return OpenSection(section, key) && Registry().DeleteKey(key + u'\\' + FromUnits(entry));
}

bool CRegProfile::DeleteProfileValue(const char16_t* section, const char16_t* entry)
{
    QString key;
    return OpenSection(section, key) && Registry().DeleteValue(key, FromUnits(entry));
}
