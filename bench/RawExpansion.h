// SPDX-License-Identifier: GPL-3.0-or-later
// The edits of an expansion, made by the stock engine: what the scripts of ExpandScripts.h come to
// take in it, with the same pieces searched, styled and replaced in the same order. It does not
// fold: that triples its time at 16 MB.
#pragma once

#include "bench/RawEngine.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace bench {

class RawExpansion
{
public:
    // The engine outlives this. Included files stand in the folder.
    RawExpansion(RawEngine& raw, std::string folder);

    // Of the text that the engine holds.
    void Expand();

private:
    std::intptr_t Find(std::string_view what, std::intptr_t from, std::intptr_t to) const;
    std::string Text(std::intptr_t from, std::intptr_t to) const;
    bool IsComment(std::intptr_t position) const;
    void Insert(std::intptr_t position, const std::string& text) const;
    std::intptr_t Visit(std::intptr_t hit);
    void VisitAll(std::intptr_t from, std::intptr_t to);
    void Include(std::uintptr_t line);

    static std::uintptr_t Word(std::intptr_t number) { return static_cast<std::uintptr_t>(number); }

    RawEngine& m_raw;
    std::string m_folder;
    std::unordered_map<std::string, std::string> m_variables;
};

} // namespace bench
