// SPDX-License-Identifier: GPL-3.0-or-later
// Scripts to measure with: generated, the same every time.
#pragma once

#include <string>

namespace bench {

enum class Script
{
    Ascii,
    Mixed
};

inline constexpr std::size_t kMegabyte = 1024 * 1024;

// SQL of about this many UTF-8 bytes, in whole lines. Mixed: 15 of 100 characters are not ASCII
// (Latin letters that windows-1252 has).
std::string MakeSql(Script script, std::size_t bytes);

// One line of text from many alphabets, pairs included.
std::u16string MakeMixedLine(std::size_t units);

// Kept from call to call: a script takes longer to make than to load.
const std::string& Sql64(Script script);

// The script in another encoding of FileEncodeConverter, without a mark.
std::string Encode(const std::string& utf8, int encoding);

// A file with these bytes, removed when the process ends.
std::string WriteFile(const std::string& name, const std::string& bytes);

const char* NameOf(Script script);

} // namespace bench
