// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Profile.h"

#include "platform/system/SettingsFile.h"
#include "platform/system/SpecialFolders.h"

IApplicationProfile::~IApplicationProfile() = default;

namespace {

// The file is read anew for each call: what another process has noted is seen, and what is noted
// here is on disk when the call returns.
class ProfileFile final : public IApplicationProfile
{
public:
    QString GetString(const QString& section, const QString& entry,
                      const QString& fallback) override
    {
        return settingsfile::ReadValue(Path(), Key(section, entry)).value_or(fallback);
    }

    bool WriteString(const QString& section, const QString& entry, const char16_t* value) override
    {
        using settingsfile::Outcome;
        const QString key = Key(section, entry);
        const Outcome outcome =
            value ? settingsfile::WriteValue(Path(), key, QString::fromUtf16(value))
                  : settingsfile::RemoveValue(Path(), key);
        return outcome != Outcome::Failed;
    }

private:
    static QString Path()
    {
        return settingsfile::PathOf(znutils::CSpecialFolders::GetSimpleAppName() +
                                    QLatin1String("/profile.ini"));
    }

    static QString Key(const QString& section, const QString& entry)
    {
        return settingsfile::Segment(section) + u'/' + settingsfile::Segment(entry);
    }
};

IApplicationProfile*& Current()
{
    static IApplicationProfile* current = nullptr;
    return current;
}

} // namespace

void SetApplicationProfile(IApplicationProfile* profile)
{
    Current() = profile;
}

IApplicationProfile& ApplicationProfile()
{
    static ProfileFile file;
    return Current() ? *Current() : file;
}
