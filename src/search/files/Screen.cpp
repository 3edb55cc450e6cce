// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/Screen.h"

#include "engine/search/ExpressionTranslator.h"
#include "search/files/FileSearch.h"
#include "search/files/SinglePage.h"

#include <algorithm>

namespace {

using engine::search::LiteralScan;

std::string RequiredBy(const FileSearchRequest& request)
{
    const std::string sought = request.text.toUtf8().toStdString();
    if (!request.regExp)
        return sought;
    if (request.perlSyntax)
        return {};
    const auto translation =
        engine::search::ExpressionTranslator({.matchCase = request.matchCase}).Translate(sought);
    return translation ? translation->required : std::string();
}

} // namespace

// A byte that is no text becomes U+FFFD, which so has no bytes of its own.
Screen::Screen(const FileSearchRequest& request)
{
    const std::string required = RequiredBy(request);
    if (required.empty() || required.find("\xEF\xBF\xBD") != required.npos ||
        !LiteralScan::Suits(required, request.matchCase))
        return;
    m_scan.emplace(required, request.matchCase);
    const bool isAscii =
        std::all_of(required.begin(), required.end(), [](char c) { return c >= 0; });
    if (!isAscii)
        return;
    // Without case the signs for kelvin and the long s match letters. A page that has them has
    // other bytes for them.
    const bool hasOtherForms =
        !request.matchCase && required.find_first_of("kKsS") != required.npos;
    const SinglePage page(request.codePage);
    m_isForPage = !hasOtherForms || (page.IsOne() && !page.Has(0x212A) && !page.Has(0x17F));
}

bool Screen::Admits(std::string_view bytes, bool isUtf8) const
{
    return !m_scan || !(isUtf8 || m_isForPage) || m_scan->First(bytes, 0);
}

std::size_t Screen::Overlap() const
{
    return m_scan ? m_scan->LongestMatch() - 1 : 0;
}
