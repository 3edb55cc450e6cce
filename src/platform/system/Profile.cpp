#include "platform/system/Profile.h"

#include "platform/system/SettingsFile.h"
#include "platform/system/SpecialFolders.h"

#include <QSettings>

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
        const QSettings file(Path(), QSettings::IniFormat);
        const QVariant value = file.value(Key(section, entry));
        return value.typeId() == QMetaType::QString ? value.toString() : fallback;
    }

    bool WriteString(const QString& section, const QString& entry, const char16_t* value) override
    {
        const QString path = Path();
        const settingsfile::WriteGuard guard(path);
        QSettings file(path, QSettings::IniFormat);
        if (value)
            file.setValue(Key(section, entry), QString::fromUtf16(value));
        else
            settingsfile::RemoveValue(file, Key(section, entry));
        return settingsfile::Flush(file);
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
