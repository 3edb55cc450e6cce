// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/Globals.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace zncoreeditor {

namespace {

const IZNBaseResourceLoader*& HostLoader()
{
    static const IZNBaseResourceLoader* loader = nullptr;
    return loader;
}

} // namespace

const IZNBaseResourceLoader& GetResourceLoader()
{
    static const CZNBaseResourceLoader own(QStringLiteral(":/zncoreeditor/Strings.xml"));
    return HostLoader() ? *HostLoader() : own;
}

void SetResourceLoader(const IZNBaseResourceLoader* loader)
{
    HostLoader() = loader;
}

QString GetAppPath()
{
    Dl_info info{};
    if (!dladdr(reinterpret_cast<const void*>(&GetAppPath), &info) || !info.dli_fname)
        return QString();
    const QString own = QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath() + u'/';
    const QString beside = own + QStringLiteral("ZNCoreEditor/");
    return QFileInfo(beside).isDir() ? beside : own;
}

} // namespace zncoreeditor
