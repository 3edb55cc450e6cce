#include "platform/system/Registry.h"

#include "platform/system/SettingsFile.h"

#include <QStringList>

IRegistry::~IRegistry() = default;

namespace {

// QSettings gives every value of a file back as text, so the kind stands in front of it.
const QString kNumber = QStringLiteral("dword:");
const QString kText = QStringLiteral("sz:");
const QString kBytes = QStringLiteral("hex:");

struct AsText
{
    QString operator()(std::uint32_t number) const { return kNumber + QString::number(number, 16); }
    QString operator()(const QString& text) const { return kText + text; }
    QString operator()(const QByteArray& bytes) const
    {
        return kBytes + QString::fromLatin1(bytes.toHex());
    }
};

std::optional<RegistryValue> FromText(const QString& stored)
{
    if (stored.startsWith(kText))
        return stored.mid(kText.size());
    if (stored.startsWith(kBytes)) {
        const QByteArray digits = stored.mid(kBytes.size()).toLatin1();
        const QByteArray bytes = QByteArray::fromHex(digits);
        if (bytes.toHex() == digits)
            return bytes;
    }
    bool good = false;
    const uint number =
        stored.startsWith(kNumber) ? stored.mid(kNumber.size()).toUInt(&good, 16) : 0;
    if (good)
        return std::uint32_t(number);
    return std::nullopt;
}

// Where a key is found: the product's file, and the group in it with a slash at its end, empty for
// the product's own key.
struct Place
{
    explicit Place(const QString& key)
    {
        QStringList names = key.split(u'\\', Qt::SkipEmptyParts);
        while (names.size() < 2)
            names << QString();
        const QString company = settingsfile::Segment(names.takeFirst());
        const QString product = settingsfile::Segment(names.takeFirst());
        path = settingsfile::PathOf(company + u'/' + product + QLatin1String(".ini"));
        for (const QString& name : names)
            group += settingsfile::Segment(name) + u'/';
    }

    QString path;
    QString group;
};

class RegistryFiles final : public IRegistry
{
public:
    // A key without values needs nothing on disk.
    bool OpenKey(const QString& key) override
    {
        const QSettings file(Place(key).path, QSettings::IniFormat);
        return file.status() != QSettings::AccessError;
    }

    std::optional<RegistryValue> Read(const QString& key, const QString& name) override
    {
        const Place place(key);
        const QSettings file(place.path, QSettings::IniFormat);
        const QVariant value = file.value(place.group + settingsfile::Segment(name));
        return value.typeId() == QMetaType::QString ? FromText(value.toString()) : std::nullopt;
    }

    bool Write(const QString& key, const QString& name, const RegistryValue& value) override
    {
        const Place place(key);
        const settingsfile::WriteGuard guard(place.path);
        QSettings file(place.path, QSettings::IniFormat);
        file.setValue(place.group + settingsfile::Segment(name), std::visit(AsText{}, value));
        return settingsfile::Flush(file);
    }

    bool DeleteKey(const QString& key) override
    {
        const Place place(key);
        if (place.group.isEmpty())
            return false; // a product's own key stays
        const settingsfile::WriteGuard guard(place.path);
        QSettings file(place.path, QSettings::IniFormat);
        return settingsfile::RemoveGroup(file, place.group.chopped(1)) && settingsfile::Flush(file);
    }

    bool DeleteValue(const QString& key, const QString& name) override
    {
        const Place place(key);
        const settingsfile::WriteGuard guard(place.path);
        QSettings file(place.path, QSettings::IniFormat);
        return settingsfile::RemoveValue(file, place.group + settingsfile::Segment(name)) &&
               settingsfile::Flush(file);
    }
};

IRegistry*& Current()
{
    static IRegistry* current = nullptr;
    return current;
}

} // namespace

void SetRegistry(IRegistry* registry)
{
    Current() = registry;
}

IRegistry& Registry()
{
    static RegistryFiles files;
    return Current() ? *Current() : files;
}
