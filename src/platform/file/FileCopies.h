// SPDX-License-Identifier: GPL-3.0-or-later
// What of a file has to come along when another takes its place, and how one is written over when
// none can. File descriptors stay the caller's; false leaves the reason in errno.
#pragma once

#include <QByteArray>

// Mode, group, owner as far as the user may give it, access list and the user's own attributes.
bool CopyPermissions(int from, int to);

// A file without a name, in the folder if that can be or among the temporary files. -1 if it cannot
// be made.
int OpenUnnamed(const QByteArray& folder);

// Puts all of one file into the other, which is read again if something fails on the way: then it
// is as it was. A process that dies meanwhile leaves a mixture.
bool Overwrite(int target, int source, const QByteArray& folder);
