// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The schemes that stand beside the library, and the one that fits the desktop.
#pragma once

#include "looks/ColourScheme.h"
#include "looks/StyleRoles.h"

#include <QStringList>

namespace zncoreeditor {

/// An editor that is given this name has the light or the dark scheme, as the desktop is.
inline constexpr QLatin1String kDesktopScheme("Desktop");
/// The one for paper, which is shipped.
inline constexpr QLatin1String kPrintScheme("Print");

ZN_API QStringList SchemeNames(); ///< those that editors may be given, beside kDesktopScheme
/// Null for a name that is unknown. The scheme lives as long as the process.
ZN_API const ColourScheme* FindScheme(const QString& name);
ZN_API const StyleRoles& GetStyleRoles(); ///< read once in the process
ZN_API bool IsDesktopDark();              ///< by the palette of the application

} // namespace zncoreeditor
