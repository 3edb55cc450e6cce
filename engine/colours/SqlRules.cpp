// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/SqlRules.h"

#include "control/SqlStyles.h"

#include <string>

namespace engine {
namespace {

// Empty for one that is longer than anything that is known.
std::string Property(const Raw& raw, const char* name)
{
    using Sci = QsciScintillaBase;
    char value[32] = {};
    const auto key = reinterpret_cast<std::uintptr_t>(name);
    if (raw.Send(Sci::SCI_GETPROPERTY, key) < static_cast<std::intptr_t>(sizeof value))
        raw.Send(Sci::SCI_GETPROPERTY, key, static_cast<const void*>(value));
    return value;
}

} // namespace

const analysis::SqlDialect* DialectOf(const Raw& raw, int lexer)
{
    const analysis::SqlDialect* dialect = analysis::DialectOfLexer(lexer);
    if (!dialect || dialect != analysis::DialectByNumber(0))
        return dialect;
    const auto* named = analysis::DialectByName(Property(raw, sqlstyle::kDialectProperty));
    return named ? named : dialect;
}

analysis::Terminator TerminatorOf(const Raw& raw)
{
    const std::string text = Property(raw, sqlstyle::kTerminatorProperty);
    const bool isUsable = text.size() <= analysis::Terminator::kLongest &&
                          text.find_first_of(" \t\r\n") == std::string::npos;
    return isUsable ? analysis::Terminator(text) : analysis::Terminator();
}

} // namespace engine
