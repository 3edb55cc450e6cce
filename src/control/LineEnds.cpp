// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/LineEnds.h"

#include <array>

namespace lineends {

namespace {

constexpr char16_t kCarriageReturn = u'\r';
constexpr char16_t kLineFeed = u'\n';

void Append(std::vector<char16_t>& target, std::u16string_view text)
{
    target.insert(target.end(), text.begin(), text.end());
}

bool IsLineEnd(char16_t unit)
{
    return unit == kLineFeed || unit == kCarriageReturn;
}

void Redirect(const std::vector<char16_t>& target, const char16_t*& text, long& length)
{
    text = target.data();
    length = static_cast<long>(target.size());
}

} // namespace

int SelectorOf(int mode)
{
    constexpr std::array<int, 4> kSelectors = {kAsItIs, kCrLf, kCr, kLf};
    return mode >= 0 && mode < 4 ? kSelectors[static_cast<std::size_t>(mode)] : kAsItIs;
}

std::u16string_view Sequence(int selector)
{
    constexpr std::array<std::u16string_view, 3> kSequences = {u"\r\n", u"\n", u"\r"};
    return selector >= 0 && selector < 3 ? kSequences[static_cast<std::size_t>(selector)]
                                         : std::u16string_view();
}

void Normalise(std::vector<char16_t>& target, const char16_t*& text, long& length, int selector)
{
    char16_t held = 0;
    NormaliseBlock(target, text, length, held, selector);
    if (held) {
        Append(target, Sequence(selector));
        Redirect(target, text, length);
    }
}

void NormaliseBlock(std::vector<char16_t>& target, const char16_t*& text, long& length,
                    char16_t& held, int selector)
{
    if (selector == kAsItIs || !text || length <= 0)
        return;
    const std::u16string_view lineEnd = Sequence(selector);
    const char16_t* const end = text + length;
    target.clear();
    target.reserve(static_cast<std::size_t>(length) + 2);
    const char16_t* at = text;
    // The LF of a CR LF that a seam divides finds the CR still held, and both are one line end.
    if (held) {
        held = 0;
        Append(target, lineEnd);
        if (*at == kLineFeed)
            ++at;
    }
    while (at != end) {
        const char16_t* runEnd = at;
        while (runEnd != end && !IsLineEnd(*runEnd))
            ++runEnd;
        target.insert(target.end(), at, runEnd);
        if (runEnd == end)
            break;
        at = runEnd + 1;
        if (*runEnd == kCarriageReturn) {
            if (at == end) {
                held = kCarriageReturn;
                break;
            }
            if (*at == kLineFeed)
                ++at;
        }
        Append(target, lineEnd);
    }
    Redirect(target, text, length);
}

int MajorityMode(int cr, int lf, int crlf)
{
    if (lf >= cr && (lf > crlf || (lf > cr && lf >= crlf)))
        return 3;
    if (cr > crlf || (cr > lf && cr >= crlf))
        return 2;
    if (crlf >= lf && (crlf > cr || (crlf > lf && crlf >= cr)))
        return 1;
    return 0;
}

} // namespace lineends
