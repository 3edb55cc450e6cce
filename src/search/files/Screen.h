// SPDX-License-Identifier: GPL-3.0-or-later
// Screen: what every match of a search has, looked for in the bytes of a file as they are. Most
// files are done with that: they need no conversion, and nobody asks whether they are well-formed.
#pragma once

#include "engine/search/LiteralScan.h"

#include <cstddef>
#include <optional>
#include <string_view>

struct FileSearchRequest;

class Screen
{
public:
    explicit Screen(const FileSearchRequest& request);

    // False if no match can be in the bytes, which are UTF-8 or of the request's code page, well-
    // formed or not. They hold whole matches of what is looked for: of pieces that follow each
    // other, Overlap bytes come twice.
    bool Admits(std::string_view bytes, bool isUtf8) const;
    std::size_t Overlap() const;

private:
    std::optional<engine::search::LiteralScan> m_scan;
    bool m_isForPage = false; // what is looked for has the same bytes in the code page
};
