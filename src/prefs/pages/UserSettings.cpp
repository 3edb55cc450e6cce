// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/UserSettings.h"

#include "editing/language/UserFolder.h"
#include "platform/file/DiskFile.h"
#include "settings/Pug.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

namespace usersettings {
namespace {

const QString kConfig = QStringLiteral("ZNCoreEditor.xml");
const QString kFolders[] = {QStringLiteral("Syntax/"), QStringLiteral("Base/")};
const QString kFormat = QStringLiteral("format");
const QString kFormatName = QStringLiteral("ZNCoreEditor settings 1");
const QString kFiles = QStringLiteral("files");

using Files = QMap<QString, QByteArray>; // by their path below the user's folder

// A plain name of an XML file in one of the folders, or the configuration.
bool IsOurs(const QString& path)
{
    if (path == kConfig)
        return true;
    for (const QString& folder : kFolders) {
        const QString name = path.startsWith(folder) ? path.mid(folder.size()) : QString();
        if (name.endsWith(QLatin1String(".xml")) && name.size() > 4 && !name.contains(u'/') &&
            !name.contains(u'\\') && !name.contains(QChar(0)))
            return true;
    }
    return false;
}

Files Present()
{
    Files files;
    QStringList paths = {kConfig};
    for (const QString& folder : kFolders) {
        const QDir dir(UserSettingsPath(folder));
        for (const QString& name : dir.entryList({QStringLiteral("*.xml")}, QDir::Files))
            paths << folder + name;
    }
    for (const QString& path : paths) {
        if (const auto bytes = ReadWholeFile(UserSettingsPath(path)))
            files[path] = *bytes;
    }
    return files;
}

bool IsXml(const QByteArray& bytes)
{
    pug::xml_parser parsed;
    return parsed.parse(QString::fromLatin1(bytes)) && parsed.document().has_children();
}

// False with everything as far as it can be as it was.
bool Put(const Files& wanted, const Files& before)
{
    for (const QString& folder : kFolders)
        QDir().mkpath(UserSettingsPath(folder));
    bool done = true;
    for (auto file = wanted.cbegin(); done && file != wanted.cend(); ++file)
        done = WriteWholeFile(UserSettingsPath(file.key()), file.value());
    for (auto file = before.cbegin(); done && file != before.cend(); ++file) {
        if (!wanted.contains(file.key()))
            done = QFile::remove(UserSettingsPath(file.key()));
    }
    return done;
}

} // namespace

// Bytes stand there as the characters of the same numbers, so that people can read them.
Result Export(const QString& path)
{
    QJsonObject files;
    const Files present = Present();
    for (auto file = present.cbegin(); file != present.cend(); ++file)
        files.insert(file.key(), QString::fromLatin1(file.value()));
    const QJsonObject all = {{kFormat, kFormatName}, {kFiles, files}};
    return WriteWholeFile(path, QJsonDocument(all).toJson()) ? Result::Done : Result::NotWritten;
}

Result Import(const QString& path)
{
    const auto bytes = ReadWholeFile(path);
    if (!bytes)
        return Result::NotRead;
    const QJsonObject all = QJsonDocument::fromJson(*bytes).object();
    if (all.value(kFormat).toString() != kFormatName || !all.value(kFiles).isObject())
        return Result::NoSettings;
    Files wanted;
    const QJsonObject files = all.value(kFiles).toObject();
    for (auto file = files.constBegin(); file != files.constEnd(); ++file) {
        const QByteArray contents = file->toString().toLatin1();
        if (!IsOurs(file.key()) || !file->isString() || !IsXml(contents))
            return Result::NoSettings;
        wanted[file.key()] = contents;
    }
    const Files before = Present();
    if (Put(wanted, before))
        return Result::Done;
    Put(before, wanted);
    return Result::NotWritten;
}

bool ResetLanguage(const QString& languageFile)
{
    bool done = true;
    for (const QString& folder : kFolders) {
        const QString path = UserSettingsPath(folder + languageFile);
        done = (!QFileInfo::exists(path) || QFile::remove(path)) && done;
    }
    return done;
}

bool ResetAll()
{
    bool done = true;
    const Files present = Present();
    for (auto file = present.cbegin(); file != present.cend(); ++file)
        done = QFile::remove(UserSettingsPath(file.key())) && done;
    return done;
}

} // namespace usersettings
