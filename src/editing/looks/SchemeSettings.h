// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// A scheme written into the settings, for a person or a host that wants its colours as they are,
/// whatever is painted over them; the preferences go on from there.
#pragma once

#include "common/Export.h"

class CConfigFile;
class CFileTypeManager;
class ColourScheme;

/// Every named style of every language gets the colours of its role, and the configuration those of
/// caret, selection, current line and right edge. In memory; Save writes it.
ZN_API void WriteScheme(const ColourScheme& scheme, CConfigFile& config,
                        CFileTypeManager& languages);
