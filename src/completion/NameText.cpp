// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/NameText.h"

namespace completion {

using engine::analysis::TextSpans;
using engine::analysis::Token;
using engine::analysis::TokenKind;

long DollarTag(const TextSpans& text, const Token& token)
{
    if (token.kind != TokenKind::String || text.At(token.start) != '$' || token.resumed)
        return 0;
    for (long at = token.start + 1; at < token.end; ++at) {
        if (text.At(at) == '$')
            return at + 1 - token.start;
    }
    return 0;
}

bool IsQuotedName(const TextSpans& text, long start)
{
    const unsigned char first = text.At(start);
    return first == '"' || first == '[' || first == '`';
}

std::string PlainName(const TextSpans& text, long start, long end)
{
    std::string name = text.Copy(start, end);
    if (name.empty() || !IsQuotedName(text, start))
        return name;
    const char first = name.front();
    const char last = first == '[' ? ']' : first;
    name.erase(0, 1);
    if (!name.empty() && name.back() == last)
        name.pop_back();
    for (std::size_t at = name.find(last); at != std::string::npos; at = name.find(last, at + 1)) {
        if (at + 1 < name.size() && name[at + 1] == last)
            name.erase(at + 1, 1);
    }
    return name;
}

} // namespace completion
