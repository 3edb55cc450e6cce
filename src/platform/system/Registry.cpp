// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Registry.h"

#include "platform/system/SettingsFile.h"

#include <QStringList>

IRegistry::~IRegistry() = default;

namespace {

// Every value of a file is a text, so the kind stands in front of it.
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
    bool OpenKey(const QString& key) override { return settingsfile::CanRead(Place(key).path); }

    std::optional<RegistryValue> Read(const QString& key, const QString& name) override
    {
        const Place place(key);
        const std::optional<QString> stored =
            settingsfile::ReadValue(place.path, place.group + settingsfile::Segment(name));
        return stored ? FromText(*stored) : std::nullopt;
    }

    bool Write(const QString& key, const QString& name, const RegistryValue& value) override
    {
        const Place place(key);
        return settingsfile::WriteValue(place.path, place.group + settingsfile::Segment(name),
                                        std::visit(AsText{}, value)) == settingsfile::Outcome::Done;
    }

    bool DeleteKey(const QString& key) override
    {
        const Place place(key);
        return !place.group.isEmpty() && // a product's own key stays
               settingsfile::RemoveGroup(place.path, place.group.chopped(1)) ==
                   settingsfile::Outcome::Done;
    }

    bool DeleteValue(const QString& key, const QString& name) override
    {
        const Place place(key);
        return settingsfile::RemoveValue(place.path, place.group + settingsfile::Segment(name)) ==
               settingsfile::Outcome::Done;
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
