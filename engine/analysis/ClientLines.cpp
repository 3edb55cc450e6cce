// The client program's lines in a script, and what they and some comments set: the terminator, the
// catalog. Arguments are looked for a few bytes behind the word only, see kLookAhead.
#include "engine/analysis/StatementMachine.h"

#include <algorithm>

namespace engine::analysis {
namespace {

constexpr long kFarthestArgument = 64; // blanks between a client's word and what it sets

bool IsBlank(unsigned char byte)
{
    return byte <= ' ';
}

// Behind the blanks of the line.
long SkipBlanks(const TextSpans& text, long position)
{
    const long stop = position + kFarthestArgument;
    while (position < stop && (text.At(position) == ' ' || text.At(position) == '\t'))
        ++position;
    return position;
}

long EndOfArgument(const TextSpans& text, long position)
{
    const long stop =
        std::min(position + static_cast<long>(Terminators::kLongest) + 1, text.Size());
    while (position < stop && !IsBlank(text.At(position)))
        ++position;
    return position;
}

} // namespace

std::uint16_t Terminators::NumberOf(std::string_view text)
{
    if (text == ";")
        return 0;
    const auto found = std::find(m_texts.begin(), m_texts.end(), text);
    if (found == m_texts.end()) {
        m_texts.emplace_back(text);
        return static_cast<std::uint16_t>(m_texts.size());
    }
    return static_cast<std::uint16_t>(found - m_texts.begin() + 1);
}

std::string_view Terminators::TextOf(std::uint16_t number) const
{
    return number == 0 ? std::string_view() : m_texts[number - 1U];
}

bool StatementMachine::EqualsWord(const Token& token, std::string_view word) const
{
    if (token.kind != TokenKind::Word || token.Length() != static_cast<long>(word.size()))
        return false;
    long at = token.start;
    return std::all_of(word.begin(), word.end(), [&](char letter) {
        return (m_scanner.Text().At(at++) | 0x20) == static_cast<unsigned char>(letter);
    });
}

// A line of the client's ends where the line does.
bool StatementMachine::TakeCommand(const Token& token)
{
    const TextSpans& text = m_scanner.Text();
    const bool byLead = m_dialect.commandLeads.find(static_cast<char>(text.At(token.start))) !=
                        std::string_view::npos;
    const bool isDelimiter =
        !m_dialect.delimiterWord.empty() && EqualsWord(token, m_dialect.delimiterWord);
    if (!byLead && !isDelimiter && !IsListed(token, m_dialect.commandWords))
        return false;
    if (isDelimiter)
        TakeDelimiter(token);
    else if (byLead && !m_dialect.connectCommands.empty())
        NoteConnect(token.end);
    const Token line = m_scanner.TakeLine(m_limit);
    m_lastEnd = line.end;
    m_state.Forget(Phase::Ended);
    return true;
}

// Whether the word is one of a list, each of which stands between blanks.
bool StatementMachine::IsListed(const Token& token, std::string_view list) const
{
    if (list.empty() || token.kind != TokenKind::Word || token.Length() > 16)
        return false;
    std::string word(1, ' ');
    word += m_scanner.Text().Copy(token.start, token.end);
    word += ' ';
    std::transform(word.begin(), word.end(), word.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    return list.find(word) != std::string_view::npos;
}

// \c name: the argument behind the command's word.
void StatementMachine::NoteConnect(long position)
{
    const TextSpans& text = m_scanner.Text();
    Token word{.kind = TokenKind::Word, .start = position, .end = position};
    while (word.Length() < 16 && BytesOf(m_dialect).inWord[text.At(word.end)])
        ++word.end;
    if (!IsListed(word, m_dialect.connectCommands))
        return;
    const long name = SkipBlanks(text, word.end);
    if (name > word.end && !IsBlank(text.At(name)) && text.At(name) != '-')
        Note(Event::Connect, name);
}

void StatementMachine::SetTerminator(long start, long end)
{
    const std::string text = m_scanner.Text().Copy(start, end);
    if (text.empty() || text.size() > Terminators::kLongest)
        return;
    m_state.terminator = m_terminators.NumberOf(text);
    m_scanner.SetTerminator(m_terminators.TextOf(m_state.terminator));
}

void StatementMachine::TakeDelimiter(const Token& token)
{
    const long start = SkipBlanks(m_scanner.Text(), token.end);
    if (start > token.end)
        SetTerminator(start, EndOfArgument(m_scanner.Text(), start));
}

// SET TERM new old. The old one may stand directly behind.
void StatementMachine::TakeTerm()
{
    const TextSpans& text = m_scanner.Text();
    std::string_view old = m_terminators.TextOf(m_state.terminator);
    if (old.empty())
        old = ";";
    const long start = SkipBlanks(text, m_scanner.Position());
    const long blank = EndOfArgument(text, start);
    long end = std::min(start + 1, blank);
    while (end < blank && !text.Has(end, old))
        ++end;
    const long behind = SkipBlanks(text, end);
    const bool closed = text.Has(behind, old);
    m_lastEnd = closed ? behind + static_cast<long>(old.size()) : end;
    m_read = std::max(m_read, m_lastEnd + kLookAhead);
    m_scanner.Restart(m_lastEnd);
    SetTerminator(start, end);
    m_state.Forget(Phase::Ended);
}

// --#SET TERMINATOR new
void StatementMachine::TakeTerminatorComment(const Token& token)
{
    static constexpr std::string_view kStart = "--#set terminator";
    const TextSpans& text = m_scanner.Text();
    const long behind = token.start + static_cast<long>(kStart.size());
    if (behind >= token.end)
        return;
    std::string start = text.Copy(token.start, behind);
    std::transform(start.begin(), start.end(), start.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    const long argument = SkipBlanks(text, behind);
    if (start == kStart && argument > behind)
        SetTerminator(argument, std::min(EndOfArgument(text, argument), token.end));
}

} // namespace engine::analysis
