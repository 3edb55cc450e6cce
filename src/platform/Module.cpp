#include "platform/Module.h"

#include <QString>

#include <dlfcn.h>

HINSTANCE LoadModule(const char16_t* name)
{
    const QByteArray file = "lib" + QString::fromUtf16(name).toUtf8() + ".so";
    return static_cast<HINSTANCE>(dlopen(file.constData(), RTLD_NOW | RTLD_LOCAL));
}
