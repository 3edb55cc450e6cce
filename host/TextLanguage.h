// SPDX-License-Identifier: GPL-3.0-or-later
// The dialect of a script by what stands in it, for files whose name says SQL and no more.
#pragma once

#include <QString>

// The language's name in the registry; empty if nothing tells, or two dialects tell the same. The
// first 65,536 units are looked at.
QString DialectOfText(const QString& text);
