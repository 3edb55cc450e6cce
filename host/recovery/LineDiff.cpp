// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/recovery/LineDiff.h"

#include <algorithm>

namespace {

using Kind = DiffLine::Kind;
using Lines = std::vector<QStringView>;

// With their ends.
Lines LinesOf(QStringView text)
{
    Lines lines;
    qsizetype start = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair = text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n';
        if (isPair || (text[at] != u'\n' && text[at] != u'\r'))
            continue;
        lines.push_back(text.sliced(start, at + 1 - start));
        start = at + 1;
    }
    if (start < text.size())
        lines.push_back(text.sliced(start));
    return lines;
}

QString Bare(QStringView line)
{
    while (line.endsWith(u'\n') || line.endsWith(u'\r'))
        line.chop(1);
    return line.toString();
}

// The ways through the grid of both texts, all of them one change longer at each round: of each
// diagonal (the place in the first text less that in the second) how far it reaches. The rounds are
// kept, to walk back.
class Walk
{
public:
    Walk(const Lines& first, const Lines& second) : m_first(first), m_second(second) {}

    std::vector<DiffLine> Run()
    {
        constexpr int kMostChanges = 1500; // some 10 MB of rounds
        const int most = std::min(kMostChanges, Size(m_first) + Size(m_second));
        std::vector<int> reach(2 * static_cast<std::size_t>(most) + 3, 0);
        for (int changes = 0; changes <= most; ++changes) {
            for (int diagonal = -changes; diagonal <= changes; diagonal += 2) {
                const bool isDown = IsDown(reach, most, diagonal, changes);
                int x = isDown ? reach[At(most, diagonal + 1)] : reach[At(most, diagonal - 1)] + 1;
                while (x < Size(m_first) && x - diagonal < Size(m_second) &&
                       m_first[Index(x)] == m_second[Index(x - diagonal)])
                    ++x;
                reach[At(most, diagonal)] = x;
                if (x >= Size(m_first) && x - diagonal >= Size(m_second))
                    return Back(changes);
            }
            // What this round can have reached, for the way back.
            m_rounds.emplace_back(reach.begin() + static_cast<long>(At(most, -changes)),
                                  reach.begin() + static_cast<long>(At(most, changes)) + 1);
        }
        return Replaced();
    }

private:
    static int Size(const Lines& lines) { return static_cast<int>(lines.size()); }
    static std::size_t Index(int at) { return static_cast<std::size_t>(at); }
    static std::size_t At(int most, int diagonal) { return Index(diagonal + most + 1); }

    static bool IsDown(const std::vector<int>& reach, int most, int diagonal, int changes)
    {
        return diagonal == -changes || (diagonal != changes && reach[At(most, diagonal - 1)] <
                                                                   reach[At(most, diagonal + 1)]);
    }

    std::vector<DiffLine> Back(int changes)
    {
        std::vector<DiffLine> lines;
        int x = Size(m_first);
        int y = Size(m_second);
        for (; changes > 0; --changes) {
            const std::vector<int>& before = m_rounds[Index(changes - 1)];
            const auto reach = [&](int diagonal) { return before[Index(diagonal + changes - 1)]; };
            const int diagonal = x - y;
            const bool isDown = diagonal == -changes ||
                                (diagonal != changes && reach(diagonal - 1) < reach(diagonal + 1));
            const int fromX = reach(isDown ? diagonal + 1 : diagonal - 1);
            const int fromY = fromX - (isDown ? diagonal + 1 : diagonal - 1);
            Same(lines, x, y, isDown ? fromX : fromX + 1);
            if (isDown)
                lines.push_back({Kind::Added, Bare(m_second[Index(fromY)])});
            else
                lines.push_back({Kind::Removed, Bare(m_first[Index(fromX)])});
            x = fromX;
            y = fromY;
        }
        Same(lines, x, y, 0);
        std::ranges::reverse(lines);
        return lines;
    }

    void Same(std::vector<DiffLine>& lines, int& x, int& y, int until) const
    {
        for (; x > until; --x, --y)
            lines.push_back({Kind::Same, Bare(m_first[Index(x - 1)])});
    }

    std::vector<DiffLine> Replaced() const
    {
        std::vector<DiffLine> lines;
        for (const QStringView line : m_first)
            lines.push_back({Kind::Removed, Bare(line)});
        for (const QStringView line : m_second)
            lines.push_back({Kind::Added, Bare(line)});
        return lines;
    }

    const Lines& m_first;
    const Lines& m_second;
    std::vector<std::vector<int>> m_rounds;
};

std::vector<DiffLine> WithoutTheFar(std::vector<DiffLine> lines, int around)
{
    std::vector<char> isNear(lines.size(), 0);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].kind == Kind::Same)
            continue;
        const std::size_t reach = static_cast<std::size_t>(around);
        const std::size_t from = i > reach ? i - reach : 0;
        const std::size_t to = std::min(lines.size(), i + reach + 1);
        std::fill(isNear.begin() + static_cast<long>(from), isNear.begin() + static_cast<long>(to),
                  1);
    }
    std::vector<DiffLine> left;
    if (std::ranges::count(isNear, 1) == 0)
        return left;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (isNear[i])
            left.push_back(std::move(lines[i]));
        else if (left.empty() || left.back().kind != Kind::Gap)
            left.push_back({Kind::Gap, QString()});
    }
    return left;
}

} // namespace

std::vector<DiffLine> UnifiedDiff(QStringView first, QStringView second, int around)
{
    Lines one = LinesOf(first);
    Lines other = LinesOf(second);
    const auto [endOne, endOther] = std::ranges::mismatch(one, other);
    const auto head = endOne - one.begin();
    Lines tail;
    while (static_cast<long>(one.size()) > head && static_cast<long>(other.size()) > head &&
           one.back() == other.back()) {
        tail.push_back(one.back());
        one.pop_back();
        other.pop_back();
    }
    std::vector<DiffLine> lines;
    for (long i = 0; i < head; ++i)
        lines.push_back({Kind::Same, Bare(one[static_cast<std::size_t>(i)])});
    const Lines changedOne(one.begin() + head, one.end());
    const Lines changedOther(other.begin() + head, other.end());
    for (DiffLine& line : Walk(changedOne, changedOther).Run())
        lines.push_back(std::move(line));
    for (auto line = tail.rbegin(); line != tail.rend(); ++line)
        lines.push_back({Kind::Same, Bare(*line)});
    return WithoutTheFar(std::move(lines), around);
}
