// SPDX-License-Identifier: GPL-3.0-or-later
// Scripts to expand, with the files that they include.
#pragma once

#include <QTemporaryDir>

#include <cstddef>
#include <string>

class ZNCoreEditorWidget;

namespace bench {

// For 64 MB: 10,000 definitions in front, 100,000 uses, 1,000 includes, all spread evenly; for
// fewer as many fewer. The files stand in the folder.
std::string MakeExpandable(const QTemporaryDir& folder, std::size_t megabytes);

// One line of so many uses of &&NAME, 48 bytes for each, and as many blank lines below it as there
// are uses, or none.
std::string MakeLongLine(std::size_t uses, bool hasBlankLines);

void Bind(ZNCoreEditorWidget& editor, const char* language);

} // namespace bench
