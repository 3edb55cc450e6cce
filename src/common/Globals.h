// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What the library has one of for the process.
#pragma once

#include "common/Export.h"
#include "platform/services/ResourceLoader.h"

#include <QString>

/// What the library has one of for the process.
namespace zncoreeditor {

/// The texts of the user interface: the library's own table unless a host has set another.
ZN_API const IZNBaseResourceLoader& GetResourceLoader();

/// The loader takes effect at once and stays the caller's; null brings back the library's own.
ZN_API void SetResourceLoader(const IZNBaseResourceLoader* loader);

/// The folder of this library, with a separator at its end: the one where it stands, or the folder
/// of its version, as "ZNCoreEditor-0.1", there, where an installed library has what belongs to it.
ZN_API QString GetAppPath();

} // namespace zncoreeditor
