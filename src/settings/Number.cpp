#include "settings/Number.h"

#include <algorithm>
#include <climits>

int TextToInt(QStringView text)
{
    const auto isBlank = [](QChar unit) {
        return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
    };
    auto at = std::find_if_not(text.begin(), text.end(), isBlank);
    const bool negative = at != text.end() && *at == u'-';
    if (at != text.end() && (*at == u'-' || *at == u'+'))
        ++at;
    const long long most = negative ? -static_cast<long long>(INT_MIN) : INT_MAX;
    long long value = 0;
    for (; at != text.end() && *at >= u'0' && *at <= u'9'; ++at)
        value = std::min(most, value * 10 + (at->unicode() - u'0'));
    return static_cast<int>(negative ? -value : value);
}
