// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/recovery/LineEdits.h"

#include "host/recovery/LineDiff.h"

#include <algorithm>
#include <limits>

namespace {

// Behind the line's end.
qsizetype BehindLine(QStringView text, qsizetype at)
{
    while (at < text.size() && text[at] != u'\n' && text[at] != u'\r')
        ++at;
    if (at + 1 < text.size() && text[at] == u'\r' && text[at + 1] == u'\n')
        return at + 2;
    return std::min(at + 1, text.size());
}

qsizetype EndLength(QStringView text)
{
    if (text.endsWith(u"\r\n"))
        return 2;
    return text.endsWith(u'\n') || text.endsWith(u'\r') ? 1 : 0;
}

// An end that both have stays: the line behind it is not touched then.
void LeaveLastEnd(QStringView from, LineEdit& edit)
{
    const QStringView gone = from.sliced(edit.start, edit.length);
    const qsizetype end = EndLength(gone);
    if (end == 0 || gone.last(end) != QStringView(edit.text).last(EndLength(edit.text)))
        return;
    edit.length -= static_cast<long>(end);
    edit.text.chop(end);
}

} // namespace

std::vector<LineEdit> LineEdits(QStringView from, QStringView to)
{
    constexpr int kAllLines = std::numeric_limits<int>::max() / 2;
    std::vector<LineEdit> edits;
    qsizetype source = 0;
    qsizetype target = 0;
    bool isSame = true;
    for (const DiffLine& line : UnifiedDiff(from, to, kAllLines)) {
        if (line.kind == DiffLine::Kind::Same) {
            source = BehindLine(from, source);
            target = BehindLine(to, target);
            isSame = true;
            continue;
        }
        if (isSame)
            edits.push_back({static_cast<long>(source), 0, QString()});
        isSame = false;
        if (line.kind == DiffLine::Kind::Removed) {
            const qsizetype next = BehindLine(from, source);
            edits.back().length += static_cast<long>(next - source);
            source = next;
        } else {
            const qsizetype next = BehindLine(to, target);
            edits.back().text += to.sliced(target, next - target);
            target = next;
        }
    }
    for (LineEdit& edit : edits)
        LeaveLastEnd(from, edit);
    std::ranges::reverse(edits);
    return edits;
}
