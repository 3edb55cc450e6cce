#include "platform/system/Module.h"

#include <QFile>
#include <QFileInfo>
#include <QString>

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

HINSTANCE LoadModule(const char16_t* name)
{
    constexpr int kMode = RTLD_NOW | RTLD_LOCAL;
    const QByteArray file = "lib" + QString::fromUtf16(name).toUtf8() + ".so";
    // What a program has linked under this name comes first. The folder is written out, since a
    // sanitizer's dlopen does not know the search path of its caller.
    void* module = dlopen(file.constData(), kMode | RTLD_NOLOAD);
    if (!module)
        module = dlopen((OwnFolder() + file).constData(), kMode);
    if (!module)
        module = dlopen(file.constData(), kMode);
    return static_cast<HINSTANCE>(module);
}
