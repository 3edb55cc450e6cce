// SPDX-License-Identifier: GPL-3.0-or-later
// The engine against a plain UTF-16 string: whatever is edited, positions, lines, columns, texts,
// targets and notifications agree.
#include "tests/RandomSeed.h"
#include "tests/engine/EngineFixture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <optional>
#include <random>

namespace msg = engine::message;

namespace {

// What an editor's text is, as slowly and as plainly as it can be said.
struct Model
{
    std::u16string text;
    std::vector<std::u16string> undo;
    std::vector<std::u16string> redo;

    long Length() const { return static_cast<long>(text.size()); }

    void Change(std::size_t start, std::size_t end, const std::u16string& with)
    {
        undo.push_back(text);
        redo.clear();
        text.replace(start, end - start, with);
    }

    // CR LF, a lone CR and a lone LF end a line.
    std::vector<long> LineStarts() const
    {
        std::vector<long> starts{0};
        for (std::size_t i = 0; i < text.size(); ++i) {
            const bool crOfPair = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
            if ((text[i] == u'\n' || text[i] == u'\r') && !crOfPair)
                starts.push_back(static_cast<long>(i) + 1);
        }
        return starts;
    }

    bool InsidePair(long position) const
    {
        const auto at = static_cast<std::size_t>(position);
        return at > 0 && at < text.size() && (text[at] & 0xFC00) == 0xDC00 &&
               (text[at - 1] & 0xFC00) == 0xD800;
    }

    long Rounded(long position) const { return InsidePair(position) ? position - 1 : position; }

    // Characters since the line's start; a tab goes to the next multiple of eight.
    long Column(long position, long lineStart) const
    {
        long column = 0;
        for (long i = lineStart; i < position; ++i) {
            const char16_t unit = text[static_cast<std::size_t>(i)];
            if (unit == u'\t')
                column = (column / 8 + 1) * 8;
            else if (unit == u'\r' || unit == u'\n')
                break;
            else
                column += (unit & 0xFC00) != 0xDC00;
        }
        return column;
    }
};

class Walk
{
public:
    Walk(unsigned seed, std::u16string_view alphabet) : m_random(seed), m_alphabet(alphabet) {}

    void Step()
    {
        m_engine.Parent().heard.clear();
        const long lines = static_cast<long>(m_model.LineStarts().size());
        switch (Pick(0, 10)) {
        case 10:
            if (Pick(0, 9) == 0)
                ConvertEols();
            break;
        case 0:
            Undo();
            break;
        case 1:
            Redo();
            break;
        case 2:
        case 3:
            Replace(AnyPosition(), AnyPosition(), u"");
            break;
        default:
            Insert();
        }
        FollowNews(lines);
        CheckAround(AnyPosition());
        if (Pick(0, 63) == 0)
            CheckAll();
    }

    void CheckAll() const { ASSERT_EQ(m_engine.Text(), m_model.text); }
    void StartWith(const std::u16string& text)
    {
        m_model.text = text;
        m_heardText = text;
        m_engine.SetText(text);
        m_engine.Send(msg::EmptyUndoBuffer);
        m_engine.Parent().heard.clear();
    }
    void KeepBelow(long length) { m_limit = length; }

private:
    long Pick(long low, long high)
    {
        return std::uniform_int_distribution<long>(low, high)(m_random);
    }
    long AnyPosition() { return m_model.Rounded(Pick(0, m_model.Length())); }

    std::u16string AnyText()
    {
        std::u16string text;
        for (long i = Pick(1, 12); i > 0; --i) {
            const char16_t unit = m_alphabet[static_cast<std::size_t>(
                Pick(0, static_cast<long>(m_alphabet.size()) - 1))];
            text += unit;
            if ((unit & 0xFC00) == 0xD800)
                text += static_cast<char16_t>(0xDC00 + Pick(0, 0x3FF));
        }
        return text;
    }

    void Insert()
    {
        const long at = AnyPosition();
        if (m_model.Length() < m_limit)
            Replace(at, at, AnyText());
        else
            Replace(at,
                    std::min(m_model.Length(),
                             m_model.Rounded(std::min(at + m_limit / 4, m_model.Length()))),
                    u"");
    }

    void Replace(long from, long to, const std::u16string& with)
    {
        if (from > to)
            std::swap(from, to);
        if (from == to && with.empty())
            return;
        const std::u16string gone = m_model.text.substr(static_cast<std::size_t>(from),
                                                        static_cast<std::size_t>(to - from));
        const auto linesBefore = static_cast<long>(m_model.LineStarts().size());
        m_engine.Send(msg::SetTargetStart, static_cast<WPARAM>(from));
        m_engine.Send(msg::SetTargetEnd, static_cast<WPARAM>(to));
        ASSERT_EQ(m_engine.Send(msg::GetTargetStart), from);
        ASSERT_EQ(m_engine.Send(msg::GetTargetEnd), to);
        m_engine.Send(msg::BeginUndoAction);
        const LRESULT replaced =
            m_engine.Send(msg::ReplaceTargetNoProcess, with.size(), with.data());
        m_engine.Send(msg::EndUndoAction);
        m_model.Change(static_cast<std::size_t>(from), static_cast<std::size_t>(to), with);
        ASSERT_EQ(replaced, static_cast<LRESULT>(with.size()));
        ASSERT_EQ(m_engine.Send(msg::GetTargetEnd), from + static_cast<long>(with.size()));
        CheckNews(from, gone, with, linesBefore);
    }

    void CheckNews(long at, const std::u16string& gone, const std::u16string& come,
                   long linesBefore)
    {
        long added = 0;
        std::size_t next = 0;
        const auto news = m_engine.Parent().Of(notify::Modified);
        if (!gone.empty()) {
            ASSERT_LT(next, news.size());
            const Heard& heard = news[next++];
            ASSERT_EQ(heard.record.modificationType, modification::DeleteText | modification::User);
            ASSERT_EQ(heard.record.position, at);
            ASSERT_EQ(heard.text, gone);
            added += heard.record.linesAdded;
        }
        if (!come.empty()) {
            ASSERT_LT(next, news.size());
            const Heard& heard = news[next++];
            ASSERT_EQ(heard.record.modificationType, modification::InsertText | modification::User);
            ASSERT_EQ(heard.record.position, at);
            ASSERT_EQ(heard.text, come);
            added += heard.record.linesAdded;
        }
        ASSERT_EQ(next, news.size());
        ASSERT_EQ(added, static_cast<long>(m_model.LineStarts().size()) - linesBefore);
    }

    // One undo step, like the engine's.
    void ConvertEols()
    {
        const int mode = static_cast<int>(Pick(1, 3));
        const std::u16string eol = mode == 1 ? u"\r\n" : mode == 2 ? u"\r" : u"\n";
        std::u16string converted;
        for (std::size_t i = 0; i < m_model.text.size(); ++i) {
            const char16_t unit = m_model.text[i];
            if (unit == u'\r' && i + 1 < m_model.text.size() && m_model.text[i + 1] == u'\n')
                ++i;
            if (unit == u'\r' || unit == u'\n')
                converted += eol;
            else
                converted += unit;
        }
        m_engine.Send(msg::ConvertEOLs, static_cast<WPARAM>(mode));
        if (converted != m_model.text)
            m_model.Change(0, m_model.text.size(), converted);
    }

    // A parent that knows the text from the notifications alone has the same text.
    void FollowNews(long linesBefore)
    {
        long linesAdded = 0;
        for (const Heard& heard : m_engine.Parent().Of(notify::Modified)) {
            const auto at = static_cast<std::size_t>(heard.record.position);
            const auto length = static_cast<std::size_t>(heard.record.length);
            linesAdded += heard.record.linesAdded;
            ASSERT_LE(at, m_heardText.size());
            if (heard.record.modificationType & modification::InsertText) {
                m_heardText.insert(at, heard.text);
            } else {
                ASSERT_EQ(m_heardText.substr(at, length), heard.text);
                m_heardText.erase(at, length);
            }
        }
        ASSERT_EQ(m_heardText, m_model.text);
        ASSERT_EQ(linesAdded, static_cast<long>(m_model.LineStarts().size()) - linesBefore);
    }

    void Undo()
    {
        ASSERT_EQ(m_engine.Send(msg::CanUndo), m_model.undo.empty() ? 0 : 1);
        m_engine.Send(msg::Undo);
        if (m_model.undo.empty())
            return;
        m_model.redo.push_back(m_model.text);
        m_model.text = m_model.undo.back();
        m_model.undo.pop_back();
    }

    void Redo()
    {
        ASSERT_EQ(m_engine.Send(msg::CanRedo), m_model.redo.empty() ? 0 : 1);
        m_engine.Send(msg::Redo);
        if (m_model.redo.empty())
            return;
        m_model.undo.push_back(m_model.text);
        m_model.text = m_model.redo.back();
        m_model.redo.pop_back();
    }

    void CheckAround(long position)
    {
        const std::vector<long> starts = m_model.LineStarts();
        ASSERT_EQ(m_engine.Send(msg::GetLength), m_model.Length());
        ASSERT_EQ(m_engine.Send(msg::GetLineCount), static_cast<LRESULT>(starts.size()));
        const auto line = static_cast<std::size_t>(
            std::upper_bound(starts.begin(), starts.end(), position) - starts.begin() - 1);
        const long lineStart = starts[line];
        const long lineEnd = line + 1 < starts.size() ? starts[line + 1] : m_model.Length();
        ASSERT_EQ(m_engine.Send(msg::LineFromPosition, static_cast<WPARAM>(position)),
                  static_cast<LRESULT>(line));
        ASSERT_EQ(m_engine.Send(msg::PositionFromLine, line), lineStart);
        ASSERT_EQ(m_engine.Send(msg::LineLength, line), lineEnd - lineStart);
        ASSERT_EQ(m_engine.Send(msg::GetColumn, static_cast<WPARAM>(position)),
                  m_model.Column(position, lineStart));
        const std::u16string lineText = m_model.text.substr(
            static_cast<std::size_t>(lineStart), static_cast<std::size_t>(lineEnd - lineStart));
        std::u16string buffer(lineText.size() + 1, u'#');
        ASSERT_EQ(m_engine.Send(msg::GetLine, line, buffer.data()), lineEnd - lineStart);
        ASSERT_EQ(buffer, lineText + u'\0');
        const LRESULT unit =
            position < m_model.Length() ? m_model.text[static_cast<std::size_t>(position)] : 0;
        ASSERT_EQ(m_engine.Send(msg::GetCharAt, static_cast<WPARAM>(position)), unit);
        const long other = AnyPosition();
        m_engine.Send(msg::SetSel, static_cast<WPARAM>(position), other);
        ASSERT_EQ(m_engine.Send(msg::GetCurrentPos), other);
        ASSERT_EQ(m_engine.Send(msg::GetAnchor), position);
        const long from = std::min(position, other);
        const long to = std::max(position, other);
        ASSERT_EQ(m_engine.Range(from, to),
                  m_model.text.substr(static_cast<std::size_t>(from),
                                      static_cast<std::size_t>(to - from)));
    }

    std::mt19937 m_random;
    std::u16string m_alphabet;
    EngineUnderTest m_engine;
    Model m_model;
    std::u16string m_heardText;
    long m_limit = 400;
};

void WalkSteps(int steps, int restartEvery, std::u16string_view alphabet)
{
    const unsigned seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    SCOPED_TRACE("ZN_TEST_SEED=" + std::to_string(seed));
    std::mt19937 seeds(seed);
    std::optional<Walk> walk;
    for (int i = 0; i < steps; ++i) {
        if (i % restartEvery == 0)
            walk.emplace(seeds(), alphabet);
        walk->Step();
        if (testing::Test::HasFatalFailure()) {
            std::cout << "at step " << i << '\n';
            return;
        }
    }
    walk->CheckAll();
}

} // namespace

TEST(PositionModel, AsciiAgreesAtEveryStep)
{
    WalkSteps(100000, 5000, u"abc d\t;\n");
}

TEST(PositionModel, MixedTextAgreesAtEveryStep)
{
    WalkSteps(200000, 5000,
              std::u16string_view(u"ab \u00e9\u0416\u4e2d\uffe5\xD83D\xD83C\t\r\n\r\n\0z", 17));
}

TEST(PositionModel, LongMixedLinesAgreeAtEveryStep)
{
    const unsigned seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    SCOPED_TRACE("ZN_TEST_SEED=" + std::to_string(seed));
    Walk walk(seed, u"ab\u00e9\u4e2d\xD83D ");
    std::u16string text;
    for (int i = 0; i < 20000; ++i)
        text += i % 5 == 0 ? u"\xD83D\xDE00\u4e2d" : i % 3 == 0 ? u"\u00e9x" : u"select ";
    walk.StartWith(text);
    walk.KeepBelow(400000);
    for (int i = 0; i < 2000 && !testing::Test::HasFatalFailure(); ++i)
        walk.Step();
    walk.CheckAll();
}
