// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Module.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace {

// The folder of this library, with a separator at its end; empty if it cannot be told.
QByteArray OwnFolder()
{
    Dl_info info{};
    if (!dladdr(reinterpret_cast<const void*>(&LoadModule), &info) || !info.dli_fname)
        return {};
    return QFile::encodeName(QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath() + u'/');
}

} // namespace

HINSTANCE LoadModule(const char16_t* name, QString* problem)
{
    constexpr int kMode = RTLD_NOW | RTLD_LOCAL;
    const QByteArray file = "lib" + QString::fromUtf16(name).toUtf8() + ".so";
    // What a program has linked under this name comes first. The folder is written out, since a
    // sanitizer's dlopen does not know the search path of its caller.
    void* module = dlopen(file.constData(), kMode | RTLD_NOLOAD);
    QString said;
    const QByteArray folder = OwnFolder();
    bool isThere = false;
    for (const QByteArray& place : {folder + file, folder + ZN_FOLDER "/" + file, file}) {
        if (module)
            break;
        module = dlopen(place.constData(), kMode);
        // What is wrong with a module that is there tells more than where another is missing.
        if (!module && !isThere)
            said = QString::fromLocal8Bit(dlerror());
        isThere |= place != file && QFile::exists(QFile::decodeName(place));
    }
    if (problem)
        *problem = module ? QString() : said;
    return static_cast<HINSTANCE>(module);
}
