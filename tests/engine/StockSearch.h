// SPDX-License-Identifier: GPL-3.0-or-later
// The stock engine's own search, as it comes: over bytes of UTF-8.
#pragma once

#include <Qsci/qsciscintillabase.h>

#include <ostream>
#include <string>

class StockSearch
{
public:
    struct Match
    {
        long start = -1;
        long end = -1;
        bool operator==(const Match&) const = default;
        friend std::ostream& operator<<(std::ostream& out, const Match& match)
        {
            return out << match.start << " to " << match.end;
        }
    };

    StockSearch();

    void SetText(const std::string& text);
    void SetWordChars(const std::string& characters);
    Match Find(const std::string& sought, int flags, long from, long to);

private:
    QsciScintillaBase m_widget;
};
