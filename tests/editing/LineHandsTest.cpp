// SPDX-License-Identifier: GPL-3.0-or-later
// The gestures over lines at several carets, beside the same done to a plain list of lines.
#include "EditingFixture.h"

#include "control/EngineLooks.h"
#include "control/Selections.h"
#include "editing/hands/Hands.h"
#include "tests/RandomSeed.h"

#include <numeric>
#include <set>

namespace {

using engine::SelectionEnds;
using Line = std::u16string;
using Lines = std::vector<Line>;
using Ends = std::vector<SelectionEnds>; // of the main caret last

using Pairs = std::set<std::pair<int, int>>; // of an anchor and a caret each

// A caret at the edge of a selection may be taken for a part of it.
Pairs WithoutCaretsAtEdges(const Pairs& all)
{
    Pairs left;
    for (const auto& [anchor, caret] : all) {
        const bool isAtEdge = anchor == caret && std::ranges::any_of(all, [at = caret](auto& each) {
                                  const auto [start, end] = std::minmax(each.first, each.second);
                                  return start < end && start <= at && at <= end;
                              });
        if (!isAtEdge)
            left.insert({anchor, caret});
    }
    return left;
}

struct Place
{
    std::size_t line;
    std::size_t column;
};

struct Group // lines beside each other
{
    std::size_t first;
    std::size_t last;
};

// What an editor is to hold.
struct Model
{
    Lines lines;
    std::vector<std::pair<Place, Place>> selections;

    static Model Of(const std::u16string& text, const Ends& ends)
    {
        Model model{{u""}, {}};
        for (const char16_t c : text) {
            if (c == u'\n')
                model.lines.emplace_back();
            else
                model.lines.back() += c;
        }
        for (const SelectionEnds& each : ends)
            model.selections.emplace_back(model.PlaceOf(each.anchor), model.PlaceOf(each.caret));
        return model;
    }

    Place PlaceOf(int position) const
    {
        auto left = static_cast<std::size_t>(position);
        std::size_t line = 0;
        while (left > lines[line].size())
            left -= lines[line++].size() + 1;
        return {line, left};
    }

    int PositionOf(const Place& place) const
    {
        std::size_t position = place.column;
        for (std::size_t line = 0; line < std::min(place.line, lines.size()); ++line)
            position += lines[line].size() + 1;
        return static_cast<int>(std::min(position, Text().size()));
    }

    std::u16string Text() const
    {
        std::u16string text = lines.front();
        for (std::size_t i = 1; i < lines.size(); ++i)
            text += u'\n' + lines[i];
        return text;
    }

    Pairs Selected() const
    {
        Pairs all;
        for (const auto& [anchor, caret] : selections)
            all.insert({PositionOf(anchor), PositionOf(caret)});
        return WithoutCaretsAtEdges(all);
    }

    std::vector<Group> Groups() const
    {
        std::set<std::size_t> touched;
        for (const auto& [anchor, caret] : selections) {
            const auto [start, end] =
                std::minmax(anchor, caret, [](const Place& one, const Place& other) {
                    return std::pair(one.line, one.column) < std::pair(other.line, other.column);
                });
            for (std::size_t line = start.line; line <= end.line; ++line) {
                if (line == start.line || line < end.line || end.column > 0)
                    touched.insert(line);
            }
        }
        std::vector<Group> groups;
        for (const std::size_t line : touched) {
            if (groups.empty() || line > groups.back().last + 1)
                groups.push_back({line, line});
            else
                groups.back().last = line;
        }
        return groups;
    }
};

std::size_t IndentOf(const Line& line)
{
    return std::min(line.find_first_not_of(u" \t"), line.size());
}

bool IsBlank(const Line& line)
{
    return IndentOf(line) == line.size();
}

void Comment(Model& model)
{
    bool areComments = true;
    bool haveBlanks = true;
    for (const Group& group : model.Groups()) {
        for (std::size_t i = group.first; i <= group.last; ++i) {
            const Line text = model.lines[i].substr(IndentOf(model.lines[i]));
            areComments = areComments && (text.empty() || text.starts_with(u"--"));
            haveBlanks = haveBlanks && (text.empty() || text.starts_with(u"-- "));
        }
    }
    const std::size_t marks = haveBlanks ? 3 : 2;
    for (const Group& group : model.Groups()) {
        std::size_t common = SIZE_MAX;
        for (std::size_t i = group.first; i <= group.last; ++i)
            common = IsBlank(model.lines[i]) ? common : std::min(common, IndentOf(model.lines[i]));
        for (std::size_t i = group.first; i <= group.last; ++i) {
            Line& line = model.lines[i];
            if (IsBlank(line))
                continue;
            const std::size_t at = areComments ? IndentOf(line) : common;
            line = areComments ? line.erase(at, marks) : line.insert(at, u"-- ");
            const auto moved = [&](Place& place) {
                if (place.line != i || place.column <= at)
                    return;
                place.column = areComments
                                   ? std::max(at, place.column - std::min(place.column, marks))
                                   : place.column + 3;
            };
            for (auto& [anchor, caret] : model.selections) {
                moved(anchor);
                moved(caret);
            }
        }
    }
}

void MoveLines(Model& model, bool isUp)
{
    const std::vector<Group> groups = model.Groups();
    Lines moved = model.lines;
    for (const Group& group : groups) {
        if (isUp ? group.first == 0 : group.last + 1 == model.lines.size())
            continue;
        const auto begin = moved.begin() + static_cast<std::ptrdiff_t>(group.first);
        const auto end = moved.begin() + static_cast<std::ptrdiff_t>(group.last) + 1;
        if (isUp)
            std::rotate(begin - 1, begin, end);
        else
            std::rotate(begin, end, end + 1);
        for (auto& [anchor, caret] : model.selections) {
            const std::size_t first = std::min(anchor.line, caret.line);
            if (first < group.first || first > group.last)
                continue;
            anchor.line += isUp ? -1 : 1;
            caret.line += isUp ? -1 : 1;
        }
    }
    model.lines = moved;
}

void Delete(Model& model)
{
    std::vector<std::pair<Place, Place>> carets;
    Lines left;
    std::size_t next = 0;
    for (const Group& group : model.Groups()) {
        left.insert(left.end(), model.lines.begin() + static_cast<std::ptrdiff_t>(next),
                    model.lines.begin() + static_cast<std::ptrdiff_t>(group.first));
        carets.push_back({{left.size(), 0}, {left.size(), 0}});
        next = group.last + 1;
    }
    left.insert(left.end(), model.lines.begin() + static_cast<std::ptrdiff_t>(next),
                model.lines.end());
    if (left.empty())
        left.emplace_back();
    for (auto& [anchor, caret] : carets)
        anchor.line = caret.line = std::min(caret.line, left.size() - 1);
    model = {left, carets};
}

Line Joined(const Lines& lines, std::size_t first, std::size_t last)
{
    Line line = lines[first];
    if (first == last)
        return line;
    Line rest = Joined(lines, first + 1, last);
    rest.erase(0, IndentOf(rest));
    const bool needsNone =
        rest.empty() || line.empty() || line.back() == u' ' || line.back() == u'\t';
    return line + (needsNone ? u"" : u" ") + rest;
}

void Join(Model& model)
{
    Lines joined;
    std::vector<std::pair<Place, Place>> carets;
    std::size_t next = 0;
    for (const Group& group : model.Groups()) {
        for (; next < group.first; ++next)
            joined.push_back(model.lines[next]);
        const std::size_t last =
            std::min(std::max(group.last, group.first + 1), model.lines.size() - 1);
        const Place seam{joined.size(), model.lines[group.first].size()};
        for (const auto& [anchor, caret] : model.selections) {
            if (last == group.first && caret.line == last) // nothing is behind it
                carets.push_back({{joined.size(), anchor.column}, {joined.size(), caret.column}});
        }
        if (last > group.first)
            carets.emplace_back(seam, seam);
        joined.push_back(Joined(model.lines, group.first, last));
        next = last + 1;
    }
    for (; next < model.lines.size(); ++next)
        joined.push_back(model.lines[next]);
    model = {joined, carets};
}

struct Gesture
{
    const char* name;
    void (*run)(Model& model);
};

const Gesture kGestures[] = {
    {"toggleComment", Comment},
    {"moveLinesUp", [](Model& model) { MoveLines(model, true); }},
    {"moveLinesDown", [](Model& model) { MoveLines(model, false); }},
    {"joinLines", Join},
    {"deleteLines", Delete},
};

class LineHands : public EditingTest
{
protected:
    LineHands()
    {
        const engine::Looks looks;
        control.Call(engine::kSetLooks, 0, reinterpret_cast<LPARAM>(&looks), 1);
    }
    ~LineHands() override { control.Call(engine::kSetLooks, 0, 0, 1); }

    void Do(const char* name)
    {
        const auto row = std::ranges::find(Hands(), std::string_view(name), &HandRow::name);
        ASSERT_NE(row, Hands().end());
        control.OnCmdMsg(row->number, CN_COMMAND, nullptr, nullptr);
    }

    void Select(const Ends& ends)
    {
        control.Call(engine::kSetSelections, ends.size(), reinterpret_cast<LPARAM>(ends.data()), 1);
    }

    Ends Selections()
    {
        Ends all(static_cast<std::size_t>(control.Call(engine::kGetSelections, 0, 0, 1)));
        control.Call(engine::kGetSelections, all.size(), reinterpret_cast<LPARAM>(all.data()), 1);
        return all;
    }

    Pairs Selected()
    {
        Pairs all;
        for (const SelectionEnds& each : Selections())
            all.insert({each.anchor, each.caret});
        return WithoutCaretsAtEdges(all);
    }

    // Carets at these, the last one's is the main.
    void PutCarets(const std::u16string& text, std::initializer_list<int> places)
    {
        PutPlain(text);
        Ends ends;
        for (const int place : places)
            ends.push_back({place, place});
        Select(ends);
    }

    std::u16string After(const char* name)
    {
        Do(name);
        return Text();
    }

    // Of a text with few lines, so that carets often share one.
    void PutRandom(RandomText& random)
    {
        static const std::u16string kPieces[] = {u"a",  u" ",   u"\t",         u"-- b", u"--",
                                                 u"\n", u"\n",  u"  c",        u"\n",   u"é",
                                                 u"漢", u"d e", u"\U0001F600", u"\n\n"};
        std::u16string text;
        for (int i = random.Number(25); i > 0; --i)
            text += kPieces[static_cast<std::size_t>(random.Number(std::size(kPieces)))];
        PutPlain(text);
        Ends ends;
        for (int i = random.Number(4); i >= 0; --i) {
            const int anchor = random.Number(static_cast<int>(text.size()) + 1);
            const int further = random.Number(2) * random.Number(8);
            ends.push_back({anchor, std::min(anchor + further, static_cast<int>(text.size()))});
            if (random.Number(2))
                std::swap(ends.back().anchor, ends.back().caret);
        }
        Select(ends);
    }
};

TEST_F(LineHands, CommentEachLineWithACaretAndTakeItBack)
{
    PutCarets(u"a\n\n  b\n\nd", {8, 1, 6});
    EXPECT_EQ(After("toggleComment"), u"-- a\n\n  -- b\n\n-- d");
    EXPECT_EQ(Selections(), (Ends{{14, 14}, {4, 4}, {12, 12}}));
    EXPECT_EQ(After("toggleComment"), u"a\n\n  b\n\nd");
    EXPECT_EQ(Selections(), (Ends{{8, 8}, {1, 1}, {6, 6}}));
}

TEST_F(LineHands, CommentEachLineByABlockWhereALanguageHasNothingElse)
{
    control.Reset();
    control.AddBlockComment(QStringLiteral("<!--"), QStringLiteral("-->"));
    PutCarets(u"ab\ncd\nef", {1, 7});
    EXPECT_EQ(After("toggleComment"), u"<!--ab-->\ncd\n<!--ef-->");
    EXPECT_EQ(After("toggleComment"), u"ab\ncd\nef");
}

TEST_F(LineHands, DeleteEachLineWithACaret)
{
    PutCarets(u"a\nb\nc\nd\ne", {1, 5, 8});
    EXPECT_EQ(After("deleteLines"), u"b\nd");
    EXPECT_EQ(Selections(), (Ends{{0, 0}, {2, 2}}));
    PutCarets(u"a\nb", {0, 3});
    EXPECT_EQ(After("deleteLines"), u"");
}

TEST_F(LineHands, MoveEachLineAndThoseBesideEachOtherTogether)
{
    PutCarets(u"a\nb\nc\nd\ne", {2, 5, 8});
    EXPECT_EQ(After("moveLinesUp"), u"b\nc\na\ne\nd");
    EXPECT_EQ(Selections(), (Ends{{0, 0}, {3, 3}, {6, 6}}));
    EXPECT_EQ(After("moveLinesDown"), u"a\nb\nc\nd\ne");
    EXPECT_EQ(Selections(), (Ends{{2, 2}, {5, 5}, {8, 8}}));
}

TEST_F(LineHands, JoinEachLineWithTheNext)
{
    PutCarets(u"a\nb\nc\n  d\ne", {5, 0});
    EXPECT_EQ(After("joinLines"), u"a b\nc d\ne");
    EXPECT_EQ(Selections(), (Ends{{5, 5}, {1, 1}}));
}

TEST_F(LineHands, TakeEveryLineOfAColumnWhichStaysOne)
{
    PutPlain(u"a\nbb\ncc\ndd\ne");
    const engine::ColumnCorners corners{{2, 8}};
    control.Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
    EXPECT_EQ(After("toggleComment"), u"a\n-- bb\n-- cc\n-- dd\ne");
    EXPECT_EQ(After("toggleComment"), u"a\nbb\ncc\ndd\ne");
    EXPECT_EQ(After("moveLinesUp"), u"bb\ncc\ndd\na\ne");
    EXPECT_EQ(Selections(), (Ends{{0, 0}, {3, 3}, {6, 6}}));
    EXPECT_EQ(After("moveLinesDown"), u"a\nbb\ncc\ndd\ne");
    EXPECT_EQ(Selections(), (Ends{{2, 2}, {5, 5}, {8, 8}}));
    EXPECT_TRUE(control.SelectionIsRectangle(1));
    EXPECT_EQ(After("deleteLines"), u"a\ne");
    control.Undo(1);
    EXPECT_TRUE(control.SelectionIsRectangle(1));
    EXPECT_EQ(Selections(), (Ends{{2, 2}, {5, 5}, {8, 8}}));
}

TEST_F(LineHands, DuplicateEachLineWithACaretOnce)
{
    PutCarets(u"a\nbc\nd\nef", {8, 2, 0, 3, 9});
    EXPECT_EQ(After("duplicate"), u"a\na\nbc\nbc\nd\nef\nef");
    EXPECT_EQ(Selections(), (Ends{{13, 13}, {4, 4}, {0, 0}, {5, 5}, {14, 14}}));
    control.Undo(1);
    EXPECT_EQ(Text(), u"a\nbc\nd\nef");
    EXPECT_EQ(Selections(), (Ends{{8, 8}, {2, 2}, {0, 0}, {3, 3}, {9, 9}}));
    control.SetEOLMode(kCrLf, 1);
    PutCarets(u"a\r\nb", {1, 4});
    EXPECT_EQ(After("duplicate"), u"a\r\na\r\nb\r\nb");
}

TEST_F(LineHands, DuplicateEachSelectionAndSelectItsCopy)
{
    PutPlain(u"abc\nde");
    Select({{5, 6}, {3, 3}, {2, 1}});
    EXPECT_EQ(After("duplicate"), u"abbc\ndee");
    EXPECT_EQ(Selections(), (Ends{{7, 8}, {4, 4}, {3, 2}}));
    control.Undo(1);
    EXPECT_EQ(Text(), u"abc\nde");
    EXPECT_EQ(Selected(), (Pairs{{5, 6}, {3, 3}, {2, 1}}));
    Select({{0, 1}, {1, 3}});
    EXPECT_EQ(After("duplicate"), u"aabcbc\nde");
    EXPECT_EQ(Selections(), (Ends{{1, 2}, {4, 6}}));
}

TEST_F(LineHands, DuplicateTheRowsOfAColumn)
{
    PutPlain(u"abc\nabc\nabc");
    const engine::ColumnCorners corners{{1, 10}};
    control.Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
    EXPECT_EQ(After("duplicate"), u"abbc\nabbc\nabbc");
    control.Undo(1);
    EXPECT_EQ(Text(), u"abc\nabc\nabc");
}

TEST_F(LineHands, BringTheMainCaretIntoSight)
{
    std::u16string text;
    for (int line = 0; line < 300; ++line)
        text += u"ab\n";
    PutPlain(text);
    const auto isSeen = [this] {
        const int line = control.LineFromPosition(control.GetCurrentPos(1), 1);
        const int top = control.GetFirstVisibleLine(1);
        return line >= top && line < top + control.LinesOnScreen(1);
    };
    const engine::ColumnCorners corners{{600, 606}};
    for (const bool isColumn : {false, true}) {
        if (isColumn)
            control.Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
        else
            Select({{0, 0}, {600, 600}});
        control.LineScroll(0, -300, 1);
        ASSERT_FALSE(isSeen());
        Do("moveLinesDown");
        EXPECT_TRUE(isSeen()) << isColumn;
    }
}

TEST_F(LineHands, KeepAColumnThatLiesBehindShortLines)
{
    PutPlain(u"a\nbbbb\nc\nd");
    const engine::ColumnCorners corners{{5, 8}, 0, 2};
    control.Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
    Do("moveLinesDown");
    engine::ColumnCorners moved;
    EXPECT_TRUE(control.Call(engine::kGetColumns, 0, reinterpret_cast<LPARAM>(&moved), 1));
    EXPECT_EQ(moved.ends, (SelectionEnds{7, 10}));
    EXPECT_EQ(moved.caretBlanks, 2);
}

// Which an edit alone can bring about.
TEST_F(LineHands, AreDoneAgainWhereACaretComesBesideASelection)
{
    PutPlain(u"-- a");
    Select({{3, 4}, {2, 2}});
    Do("toggleComment");
    control.Undo(1);
    EXPECT_EQ(Selected(), (Pairs{{2, 2}, {3, 4}}));
    control.Redo(1);
    EXPECT_EQ(Text(), u"a");
    EXPECT_EQ(Selected(), (Pairs{{0, 1}}));
}

TEST_F(LineHands, DoWhatIsDoneToAPlainListOfLines)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    RandomText random(seed);
    for (int round = 0; round < 400; ++round) {
        for (const Gesture& gesture : kGestures) {
            PutRandom(random);
            Model model = Model::Of(Text(), Selections());
            const std::u16string before = Text();
            const auto selected = Selected();
            SCOPED_TRACE(QString::fromStdU16String(before).toStdString());
            gesture.run(model);
            Do(gesture.name);
            ASSERT_EQ(Text(), model.Text()) << gesture.name;
            ASSERT_EQ(Selected(), model.Selected()) << gesture.name;
            if (Text() == before)
                continue;
            control.Undo(1);
            ASSERT_EQ(Text(), before) << gesture.name;
            ASSERT_EQ(Selected(), selected) << gesture.name;
            control.Redo(1);
            ASSERT_EQ(Text(), model.Text()) << gesture.name;
            ASSERT_EQ(Selected(), model.Selected()) << gesture.name;
        }
    }
}

TEST_F(LineHands, CommentTwiceToNoEffectAtSeveralCarets)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    RandomText random(seed);
    for (int round = 0; round < 400; ++round) {
        PutRandom(random);
        const std::u16string before = Text();
        Do("toggleComment");
        if (Text().size() < before.size())
            continue; // comments come back with the blank that some do not have
        Do("toggleComment");
        ASSERT_EQ(Text(), before);
    }
}

} // namespace
