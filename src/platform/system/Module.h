// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Modules loaded by name at run time.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QString>

/// Loads a shared library by its bare name, without prefix, ending or folder: it is looked for
/// beside this library first, then in its folder there, "ZNCoreEditor-0.1". Null if it cannot be
/// loaded. What it registers, it registers while it loads. Problem, if it is given, becomes what
/// the loader said, empty when it succeeded.
ZN_API HINSTANCE LoadModule(const char16_t* name, QString* problem = nullptr);
