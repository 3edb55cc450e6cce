// SPDX-License-Identifier: GPL-3.0-or-later
// The shared library itself; what it exports stands in its rooms.
#include "ZNCoreEditor/Version.h"

const char* zncoreeditor::GetVersion()
{
    return ZNCOREEDITOR_VERSION_STRING;
}
