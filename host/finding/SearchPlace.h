// SPDX-License-Identifier: GPL-3.0-or-later
// Where a first search through files looks.
#pragma once

class CFindReplaceManager;
class QString;

// Who has never searched through files gets scripts, in the folder of the one in front; the path is
// empty where there is none.
void ProposePlace(CFindReplaceManager& manager, const QString& path);
