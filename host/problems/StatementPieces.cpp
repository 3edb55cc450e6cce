// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/problems/StatementPieces.h"

#include <QStringView>

#include <algorithm>

namespace {

// Of the tag that opens a text between dollars, with both of them; 0: none begins here.
qsizetype TagLength(QStringView text)
{
    const auto end = std::find_if(text.begin() + 1, text.end(), [](QChar unit) {
        return !unit.isLetterOrNumber() && unit != u'_';
    });
    const bool isTag = end != text.end() && *end == u'$' && !text[1].isDigit();
    return isTag ? end + 1 - text.begin() : 0;
}

// What is passed over: strings, names in quotes, comments, texts between dollars. One that is not
// closed reaches to the end.
qsizetype BehindQuoted(QStringView text, qsizetype at)
{
    const auto behind = [&](QStringView end, qsizetype from) {
        const qsizetype found = text.indexOf(end, from);
        return found < 0 ? text.size() : found + end.size();
    };
    const QStringView rest = text.sliced(at);
    if (rest.front() == u'\'' || rest.front() == u'"')
        return behind(rest.first(1), at + 1);
    if (rest.startsWith(u"--"))
        return behind(u"\n", at) - 1; // the line's end counts
    if (rest.startsWith(u"/*"))
        return behind(u"*/", at + 2);
    if (const qsizetype tag = rest.front() == u'$' ? TagLength(rest) : 0; tag > 0)
        return behind(rest.first(tag), at + tag);
    return at + 1;
}

// Where the next statement begins behind a semicolon; 0: none does. No expression: one looks at the
// whole text each time whether it is well formed.
qsizetype NextStatement(QStringView text, qsizetype semicolon)
{
    const auto skip = [&](qsizetype at, QStringView units) {
        while (at < text.size() && units.contains(text[at]))
            ++at;
        return at;
    };
    const auto isLineEnd = [&](qsizetype at) { return at < text.size() && text[at] == u'\n'; };
    constexpr QStringView kBlank = u" \t\r";
    qsizetype at = skip(semicolon + 1, kBlank);
    if (text.sliced(at).startsWith(u"--"))
        at = BehindQuoted(text, at);
    if (!isLineEnd(at))
        return 0;
    at = skip(at + 1, kBlank);
    if (!isLineEnd(at))
        return 0;
    at = skip(at, u" \t\r\n");
    const QStringView rest = text.sliced(at);
    const bool begins = rest.startsWith(u"--") ||
                        (!rest.empty() && (rest.front().isLetter() || rest.front() == u'_'));
    return begins && isLineEnd(at - 1) ? at : 0;
}

} // namespace

std::vector<ScriptStatement> PiecesOf(const ScriptStatement& statement)
{
    const QString& text = statement.text;
    std::vector<ScriptStatement> pieces;
    qsizetype start = 0;
    int open = 0;
    for (qsizetype at = 0; at < text.size();) {
        open = std::max(0, open + (text[at] == u'(' ? 1 : text[at] == u')' ? -1 : 0));
        const qsizetype next = open > 0 && text[at] == u';' ? NextStatement(text, at) : 0;
        if (next > 0) {
            pieces.push_back(
                {statement.start + static_cast<long>(start), text.mid(start, at + 1 - start)});
            start = next;
            open = 0;
        }
        at = next > 0 ? next : BehindQuoted(text, at);
    }
    pieces.push_back({statement.start + static_cast<long>(start), text.mid(start)});
    return pieces;
}

std::vector<ScriptProblem> ProblemsOfPieces(const ScriptStatement& statement,
                                            const StatementCheck& check)
{
    const std::optional<ScriptProblem> whole = check(statement);
    if (!whole)
        return {};
    const std::vector<ScriptStatement> pieces = PiecesOf(statement);
    if (pieces.size() == 1)
        return {*whole};
    std::vector<ScriptProblem> problems;
    for (const ScriptStatement& piece : pieces) {
        if (std::optional<ScriptProblem> problem = check(piece))
            problems.push_back(*std::move(problem));
    }
    return problems;
}
