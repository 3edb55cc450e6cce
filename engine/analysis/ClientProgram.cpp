// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/ClientProgram.h"

#include "engine/analysis/ByteSearch.h"
#include "engine/analysis/SqlScanner.h"

#include <string>

namespace engine::analysis {
namespace {

constexpr long kFarthestArgument = 64;       // blanks between a client's word and what it sets
constexpr long kLongestCommand = 16;         // bytes of a client's word
constexpr long kFarthestTerminator = 1024;   // on the line of a word that needs none there
constexpr long kFarthestOption = kLongToken; // bytes of a comment that are searched for -td: as
                                             // many as are at hand wherever the scanner cuts it

// SET's own words that are the server's.
constexpr std::string_view kServerSettings[] = {"transaction", "role", "constraint", "constraints"};

bool IsBlank(unsigned char byte)
{
    return byte <= ' ';
}

bool IsLetter(unsigned char byte)
{
    return (byte | 0x20) >= 'a' && (byte | 0x20) <= 'z';
}

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

std::string LowerCopy(const TextSpans& text, long start, long end)
{
    std::string copy = text.Copy(start, end);
    std::transform(copy.begin(), copy.end(), copy.begin(), Lower);
    return copy;
}

bool Matches(const ClientCommand& command, const std::string& written, const std::string& lower)
{
    switch (command.match) {
    case ClientCommand::Match::Exact:
        return written == command.word;
    case ClientCommand::Match::Front:
        return written.starts_with(command.word);
    case ClientCommand::Match::AnyCase:
        break;
    }
    return lower.size() >= command.least && command.word.starts_with(lower);
}

const ClientCommand* CommandOf(std::span<const ClientCommand> commands, const TextSpans& text,
                               long start, long end)
{
    if (end <= start || end - start > kLongestCommand)
        return nullptr;
    const std::string written = text.Copy(start, end);
    const std::string lower = LowerCopy(text, start, end);
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const auto& command) {
        return Matches(command, written, lower);
    });
    return found != commands.end() ? &*found : nullptr;
}

bool IsAtLineEnd(const TextSpans& text, long position)
{
    return position >= text.Size() || text.At(position) == '\r' || text.At(position) == '\n';
}

bool IsServerSetting(const SqlDialect& dialect, const TextSpans& text, long behind)
{
    const long start = SkipBlanks(text, behind);
    long end = start;
    while (end < start + kLongestCommand && BytesOf(dialect).inWord[text.At(end)])
        ++end;
    const std::string word = LowerCopy(text, start, end);
    return std::find(std::begin(kServerSettings), std::end(kServerSettings), word) !=
           std::end(kServerSettings);
}

// A word's line that has a terminator on it is a statement that this ends.
bool HasTerminator(const TextSpans& text, long start, const Terminator& terminator, long& read)
{
    const long stop = std::min(start + kFarthestTerminator, text.Size());
    const long end = FindEither(text, start, stop, '\r', '\n');
    read = std::max(read, end + kLookAhead);
    for (long at = start; at < end; ++at) {
        if (text.Has(at, terminator.Written()) || text.Has(at, "\\g"))
            return true;
    }
    return false;
}

ClientLine WordLine(const SqlDialect& dialect, const TextSpans& text, const Token& token,
                    const Terminator& terminator)
{
    const ClientProgram& client = *dialect.client;
    ClientLine line;
    const ClientCommand* command = token.kind == TokenKind::Word
                                       ? CommandOf(client.words, text, token.start, token.end)
                                       : nullptr;
    if (!command)
        return line;
    line.behind = token.end;
    line.read = token.end + kLookAhead;
    line.rest.goesOnAtDash = client.goesOnAtDash;
    if (command->kind == ClientWord::Bare && !IsAtLineEnd(text, SkipBlanks(text, token.end)))
        return line;
    if (command->kind == ClientWord::Setting && IsServerSetting(dialect, text, token.end))
        return line;
    if (client.wordsLackTerminator && command->kind != ClientWord::Delimiter &&
        HasTerminator(text, token.end, terminator, line.read))
        return line;
    line.kind = command->kind;
    return line;
}

// Behind the word that stands behind a lead: letters and what belongs to them, or one character.
long EndOfLeadWord(const ClientProgram& client, const TextSpans& text, long start)
{
    const bool isLetter = client.escape == 0 || client.escapesMeet;
    long end = start;
    while (isLetter && end < start + kLongestCommand &&
           (IsLetter(text.At(end)) || (end > start && text.At(end) == '+')))
        ++end;
    if (end > start || IsBlank(text.At(start)))
        return end;
    do // a whole character
        ++end;
    while ((text.At(end) & 0xC0) == 0x80);
    return end;
}

ClientLine LeadLine(const ClientProgram& client, const TextSpans& text, const Token& token)
{
    const long start = token.start + 1;
    const long end = EndOfLeadWord(client, text, start);
    const ClientCommand* command = CommandOf(client.leadWords, text, start, end);
    ClientLine line{.kind = command ? command->kind : client.lead,
                    .behind = command ? end : token.end,
                    .read = end + kLookAhead};
    line.rest.goesOnAtDash = client.goesOnAtDash;
    return line;
}

ClientLine EscapeLine(const ClientProgram& client, const TextSpans& text, const Token& token)
{
    const long start = token.start + 1;
    const long end = EndOfLeadWord(client, text, start);
    const ClientCommand* command = CommandOf(client.leadWords, text, start, end);
    ClientLine line{.kind = command ? command->kind : client.escaped,
                    .behind = end,
                    .read = end + kLookAhead,
                    .isEscape = true};
    line.rest.stopsAtEscape = client.escapesMeet && line.kind != ClientWord::Text;
    line.rest.stopsAtTerminator = !client.escapesMeet;
    return line;
}

bool IsEscape(const ClientProgram& client, const TextSpans& text, const Token& token)
{
    return client.escape != 0 && token.kind == TokenKind::Operator &&
           text.At(token.start) == static_cast<unsigned char>(client.escape);
}

bool IsLead(const ClientProgram& client, const TextSpans& text, const Token& token)
{
    return client.leads.find(static_cast<char>(text.At(token.start))) != std::string_view::npos;
}

// To the next blank, or in quotes, where a backslash takes the next byte with it.
std::string Argument(const TextSpans& text, long start, long& end)
{
    const unsigned char quote = text.At(start);
    const bool quoted = quote == '\'' || quote == '"' || quote == '`';
    std::string argument;
    end = start + quoted;
    const long stop = std::min(text.Size(), end + 2 * static_cast<long>(Terminator::kLongest));
    while (end < stop && !IsAtLineEnd(text, end)) {
        const unsigned char byte = text.At(end);
        if (quoted ? byte == quote : IsBlank(byte))
            break;
        argument += static_cast<char>(byte);
        ++end;
    }
    end += quoted && text.At(end) == quote;
    return argument;
}

// -tdx among the words of a command line, other options may stand in front: -vtdx.
std::string OptionInComment(const std::string& comment)
{
    for (std::size_t at = comment.find('-'); at != std::string::npos;
         at = comment.find('-', at + 1)) {
        const char before = at == 0 ? ' ' : comment[at - 1];
        const bool begins = IsBlank(static_cast<unsigned char>(before)) ||
                            std::string_view("-*\"'").find(before) != std::string_view::npos;
        std::size_t end = at + 1;
        while (end < comment.size() && IsLetter(static_cast<unsigned char>(comment[end])))
            ++end;
        const std::string letters = comment.substr(at + 1, end - at - 1);
        if (!begins || !letters.ends_with("td"))
            continue;
        const std::size_t stop = comment.find_first_of(" \t\r\n\"'", end);
        const std::string option =
            comment.substr(end, stop == std::string::npos ? stop : stop - end);
        if (!option.empty() && option.size() <= 2)
            return option;
    }
    return {};
}

} // namespace

long EndOfVariables(const SqlDialect& dialect, const TextSpans& text, long start)
{
    const long stop = std::min(start + kLookAhead, text.Size());
    bool found = false;
    long end = start;
    while (end < stop) {
        if (text.Has(end, "$(")) {
            const long close = FindEither(text, end, stop, ')', '\n');
            if (close >= stop || text.At(close) != ')')
                break;
            found = true;
            end = close + 1;
        } else if (BytesOf(dialect).inWord[text.At(end)]) {
            ++end;
        } else {
            break;
        }
    }
    return found ? end : -1;
}

long SkipBlanks(const TextSpans& text, long position)
{
    const long stop = std::min(position + kFarthestArgument, text.Size());
    while (position < stop && (text.At(position) == ' ' || text.At(position) == '\t'))
        ++position;
    return position;
}

ClientLine ClientLineAt(const SqlDialect& dialect, const TextSpans& text, const Token& token,
                        bool lineIsClean, const Terminator& terminator)
{
    const ClientProgram& client = *dialect.client;
    if (IsEscape(client, text, token))
        return EscapeLine(client, text, token);
    if (client.dashesBegin && text.Has(token.start, "--"))
        return {.kind = ClientWord::Comment, .behind = token.end};
    if (!lineIsClean)
        return {};
    if (IsLead(client, text, token))
        return LeadLine(client, text, token);
    return WordLine(dialect, text, token, terminator);
}

ClientLine ClientLineInStatement(const SqlDialect& dialect, const TextSpans& text,
                                 const Token& token, bool lineIsClean)
{
    const ClientProgram& client = *dialect.client;
    if (IsEscape(client, text, token))
        return EscapeLine(client, text, token);
    const unsigned char next = text.At(token.start + 1);
    if (!client.leadsAnywhere || !lineIsClean || !IsLead(client, text, token) ||
        (text.At(token.start) == '!' ? next != '!' : !IsLetter(next)))
        return {};
    return LeadLine(client, text, token);
}

TerminatorChange DelimiterAt(const TextSpans& text, long behind)
{
    const long start = SkipBlanks(text, behind);
    TerminatorChange change;
    const std::string argument = Argument(text, start, change.end);
    change.read = change.end + kLookAhead;
    change.found = start > behind && !argument.empty() && argument.find('\\') == std::string::npos;
    if (change.found)
        change.terminator = Terminator(argument);
    return change;
}

TerminatorChange SetTermAt(const TextSpans& text, long behind, const Terminator& old)
{
    const long start = SkipBlanks(text, behind);
    const long most = std::min(start + static_cast<long>(Terminator::kLongest) + 1, text.Size());
    long blank = start;
    while (blank < most && !IsBlank(text.At(blank)))
        ++blank;
    long end = std::min(start + 1, blank);
    while (end < blank && !text.Has(end, old.Written()))
        ++end;
    const long oldStart = SkipBlanks(text, end);
    const bool closed = text.Has(oldStart, old.Written());
    TerminatorChange change;
    change.end = closed ? oldStart + static_cast<long>(old.Written().size()) : end;
    change.read = change.end + kLookAhead;
    change.found = end > start && end - start <= static_cast<long>(Terminator::kLongest);
    if (change.found)
        change.terminator = Terminator(text.Copy(start, end));
    return change;
}

TerminatorChange TerminatorInComment(const TextSpans& text, const Token& comment, bool isBeforeAll)
{
    static constexpr std::string_view kStart = "--#set terminator";
    TerminatorChange change;
    const long behind = comment.start + static_cast<long>(kStart.size());
    std::string argument;
    if (behind < comment.end && LowerCopy(text, comment.start, behind) == kStart) {
        const long start = SkipBlanks(text, behind);
        if (start > behind)
            argument = Argument(text, start, change.end);
    } else if (isBeforeAll) {
        argument = OptionInComment(
            text.Copy(comment.start, std::min(comment.end, comment.start + kFarthestOption)));
    }
    change.found = !argument.empty() && argument.size() <= Terminator::kLongest;
    if (change.found)
        change.terminator = Terminator(argument);
    return change;
}

} // namespace engine::analysis
