// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/completion/TemplateStore.h"

#include "common/Globals.h"
#include "editing/language/Library.h"
#include "host/files/Places.h"
#include "settings/ConfigFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

QString NameOf(int language)
{
    return language < 0 ? QString()
                        : zncoreeditor::GetConfigFile()->GetLanguageAutoCompFileName(language);
}

// One that was given with its folders stands where it says.
QString InstalledPath(const QString& name)
{
    return QDir(zncoreeditor::GetAppPath()).filePath(name);
}

// Of the folder of one's own no more than the name, so that it is found whatever the configuration
// calls its folders.
QString OwnPath(const QString& name)
{
    const QString folder = places::DataPath(QStringLiteral("Templates"));
    return folder.isEmpty() ? QString() : QDir(folder).filePath(QFileInfo(name).fileName());
}

} // namespace

TemplateStore& TemplateStore::Global()
{
    static TemplateStore store;
    return store;
}

const std::vector<completion::CodeTemplate>& TemplateStore::Of(int language)
{
    Read& read = m_files[language];
    const QString name = NameOf(language);
    const QString own = name.isEmpty() ? QString() : OwnPath(name);
    const QString installed = name.isEmpty() ? QString() : InstalledPath(name);
    const QString path = !own.isEmpty() && QFileInfo(own).isFile() ? own : installed;
    const QDateTime time = path.isEmpty() ? QDateTime() : QFileInfo(path).lastModified();
    if (read.path != path || read.time != time) {
        read = {path, time, {}};
        if (!path.isEmpty())
            read.file = completion::ReadTemplates(path, QFileInfo(installed).path());
    }
    return read.file.templates;
}

const completion::CodeTemplate* TemplateStore::Find(int language, const QString& shortName)
{
    const auto& templates = Of(language);
    const auto found = std::find_if(templates.begin(), templates.end(),
                                    [&](const auto& each) { return each.shortName == shortName; });
    return found != templates.end() ? &*found : nullptr;
}

QString TemplateStore::OwnFile(int language)
{
    const QString name = NameOf(language);
    const QString own = name.isEmpty() ? QString() : OwnPath(name);
    if (own.isEmpty() || QFileInfo(own).isFile())
        return own;
    QDir().mkpath(QFileInfo(own).path());
    if (QFile::copy(InstalledPath(name), own)) {
        QFile::setPermissions(own, QFile::permissions(own) | QFile::WriteOwner);
        return own;
    }
    QFile file(own);
    constexpr const char* kEmpty = "templates 1\n\n== name: What it is\nText, ^#Value#^, ^!\n";
    return file.open(QIODevice::WriteOnly) && file.write(kEmpty) > 0 ? own : QString();
}
