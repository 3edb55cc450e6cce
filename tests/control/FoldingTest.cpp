// SPDX-License-Identifier: GPL-3.0-or-later
// What the folding operations send to the engine, in which order.
#include "tests/RandomSeed.h"
#include "tests/control/ControlFixture.h"
#include "tests/control/RecordingEngine.h"

#include <random>

namespace {

namespace msg = engine::message;
using recording::AnswerTo;
using recording::Messages;
using recording::Sentences;
using Strings = std::vector<std::string>;

constexpr int kHeader = 0x2000;
constexpr int kBase = 0x400;

// An engine with fold levels and nothing else.
struct Folds
{
    std::vector<int> levels;
    std::vector<bool> expanded;
    std::vector<int> lastChild; // empty: as the levels are nested

    int Level(WPARAM line) const { return line < levels.size() ? levels[line] : kBase; }
    bool IsExpanded(WPARAM line) const { return line >= expanded.size() || expanded[line]; }
    int LastChild(WPARAM line, LPARAM level) const
    {
        if (!lastChild.empty())
            return line < lastChild.size() ? lastChild[line] : 0;
        const LPARAM parent = level < 0 ? Level(line) & 0xFFF : level;
        std::size_t last = line;
        while (last + 1 < levels.size() && (levels[last + 1] & 0xFFF) > parent)
            ++last;
        return static_cast<int>(last);
    }
};

class Folding : public ControlTest
{
protected:
    Folding() { recording::Forget(); }
    ~Folding() override { recording::Forget(); }

    void Show(Folds given)
    {
        folds = std::move(given);
        recording::Forget();
        AnswerTo(msg::GetLineCount,
                 [this](WPARAM, LPARAM) { return static_cast<LRESULT>(folds.levels.size()); });
        AnswerTo(msg::GetFoldLevel, [this](WPARAM line, LPARAM) { return folds.Level(line); });
        AnswerTo(msg::GetFoldExpanded,
                 [this](WPARAM line, LPARAM) { return folds.IsExpanded(line); });
        AnswerTo(msg::GetLastChild,
                 [this](WPARAM line, LPARAM level) { return folds.LastChild(line, level); });
        AnswerTo(msg::LineFromPosition,
                 [](WPARAM position, LPARAM) { return static_cast<LRESULT>(position / 10); });
    }

    // A header of two lines, one of which is a header itself, and a line behind them.
    void ShowNested() { Show({{kHeader | 0x400, kHeader | 0x401, 0x402, 0x400}, {}, {}}); }

    Folds folds;
};

// The walk as one would write it down, on the call stack.
void ExpandByRecursion(CZNCoreEditorControl& control, int& line, bool doExpand, bool force,
                       int visibleLevels, int level)
{
    const int lastChild = control.GetLastChild(line, level & 0xFFF, 1);
    ++line;
    while (line <= lastChild) {
        if (force) {
            if (visibleLevels > 0)
                control.ShowLines(line, line, 1);
            else
                control.HideLines(line, line, 1);
        } else if (doExpand) {
            control.ShowLines(line, line, 1);
        }
        const int lineLevel = level == -1 ? control.GetFoldLevel(line, 1) : level;
        if (!(lineLevel & kHeader)) {
            ++line;
        } else if (force) {
            control.SetFoldExpanded(line, visibleLevels >= 2 ? 1 : 0, 1);
            ExpandByRecursion(control, line, doExpand, force, visibleLevels - 1, -1);
        } else if (doExpand) {
            if (!control.GetFoldExpanded(line, 1))
                control.SetFoldExpanded(line, 1, 1);
            ExpandByRecursion(control, line, true, false, visibleLevels - 1, -1);
        } else {
            ExpandByRecursion(control, line, false, false, visibleLevels - 1, -1);
        }
    }
}

} // namespace

TEST_F(Folding, TheMarginIsDrawnInTheOrderOfItsMarkers)
{
    control.SetFoldingMargins(BoxTree);
    ASSERT_EQ(Messages().size(), 21u);
    const Strings sentences = Sentences();
    EXPECT_EQ(
        Strings(sentences.begin(), sentences.begin() + 6),
        (Strings{"MarkerDefine 31 14", "MarkerSetFore 31 16777215", "MarkerSetBack 31 8421504",
                 "MarkerDefine 30 12", "MarkerSetFore 30 16777215", "MarkerSetBack 30 8421504"}));
    std::vector<WPARAM> order;
    for (std::size_t i = 0; i < Messages().size(); i += 3)
        order.push_back(Messages()[i].wParam);
    EXPECT_EQ(order, (std::vector<WPARAM>{31, 30, 29, 28, 25, 26, 27}));
}

namespace {

struct MarginStyle
{
    int style;
    std::vector<LPARAM> symbols;
    std::vector<LPARAM> fores;
    LPARAM back;
};

class FoldMargin : public Folding, public testing::WithParamInterface<MarginStyle>
{};

} // namespace

TEST_P(FoldMargin, HasTheLookOfItsStyle)
{
    control.SetFoldingMargins(static_cast<EFoldStyle>(GetParam().style));
    ASSERT_EQ(Messages().size(), 21u);
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(Messages()[3 * i].lParam, GetParam().symbols[i]) << i;
        EXPECT_EQ(Messages()[3 * i + 1].lParam, GetParam().fores[i]) << i;
        EXPECT_EQ(Messages()[3 * i + 2].lParam, GetParam().back) << i;
    }
}

namespace {

constexpr LPARAM kWhite = 0xFFFFFF;
const std::vector<LPARAM> kAllWhite(7, kWhite);
const std::vector<LPARAM> kArrowSymbols{6, 2, 5, 5, 5, 5, 5};
const std::vector<LPARAM> kArrowFores{0, 0, 0, 0, kWhite, kWhite, kWhite};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Styles, FoldMargin,
    testing::Values(MarginStyle{0, {14, 12, 9, 10, 13, 15, 11}, kAllWhite, 0x808080},
                    MarginStyle{1, {20, 18, 9, 16, 19, 21, 17}, kAllWhite, 0x404040},
                    MarginStyle{2, {7, 8, 5, 5, 5, 5, 5}, kAllWhite, 0},
                    MarginStyle{3, kArrowSymbols, kArrowFores, 0},
                    MarginStyle{99, kArrowSymbols, kArrowFores, 0},
                    MarginStyle{-1, kArrowSymbols, kArrowFores, 0}));

TEST_F(Folding, ExpandingShowsEveryChildAndOpensItsHeaders)
{
    ShowNested();
    folds.expanded = {true, false, true, true};
    int line = 0;
    control.Expand(line, true, false, 0, -1);
    EXPECT_EQ(line, 1); // the highest level has no children
    EXPECT_EQ(Sentences(), (Strings{"GetLastChild 0 4095"}));
    recording::Forget();
    ShowNested();
    folds.expanded = {true, false, true, true};
    line = 0;
    control.Expand(line, true, false, 0, kHeader | kBase);
    EXPECT_EQ(line, 3);
    EXPECT_EQ(Sentences(), (Strings{"GetLastChild 0 1024", "ShowLines 1 1", "GetFoldExpanded 1",
                                    "SetFoldExpanded 1 1", "GetLastChild 1 4095", "ShowLines 2 2",
                                    "GetFoldExpanded 2", "GetLastChild 2 4095"}));
}

TEST_F(Folding, ForcedWalksHideBelowTheLevelsThatAreVisible)
{
    ShowNested();
    folds.lastChild = {2, 2, 2, 3};
    int line = 0;
    control.Expand(line, true, true, 1, kHeader | kBase);
    EXPECT_EQ(Sentences(), (Strings{"GetLastChild 0 1024", "ShowLines 1 1", "SetFoldExpanded 1 0",
                                    "GetLastChild 1 4095", "HideLines 2 2", "GetFoldLevel 2"}));
    recording::Forget();
    ShowNested();
    folds.lastChild = {2, 2, 2, 3};
    line = 0;
    control.Expand(line, false, false, 1, kHeader | kBase);
    EXPECT_EQ(Sentences(),
              (Strings{"GetLastChild 0 1024", "GetLastChild 1 4095", "GetFoldLevel 2"}));
}

TEST_F(Folding, AWalkSendsWhatARecursionWouldSend)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto upTo = [&random](int last) {
        return std::uniform_int_distribution<int>(0, last)(random);
    };
    for (int round = 0; round < 300; ++round) {
        const int lines = 1 + upTo(30);
        Folds given;
        for (int line = 0; line < lines; ++line) {
            given.levels.push_back((upTo(1) ? kHeader : 0) | (kBase + upTo(4)));
            given.expanded.push_back(upTo(1));
            given.lastChild.push_back(upTo(lines - 1));
        }
        const bool doExpand = upTo(1);
        const bool force = upTo(1);
        const int visible = upTo(4) - 1;
        const int level = upTo(1) ? -1 : given.levels.front();
        Show(given);
        int line = 0;
        control.Expand(line, doExpand, force, visible, level);
        const Strings walked = Sentences();
        const int walkedTo = line;
        Show(given);
        line = 0;
        ExpandByRecursion(control, line, doExpand, force, visible, level);
        ASSERT_EQ(walked, Sentences());
        ASSERT_EQ(walkedTo, line);
    }
}

TEST_F(Folding, AMillionNestedHeadersDoNotExhaustTheStack)
{
    constexpr int kLines = 1000000;
    // Nothing is written down: the messages of this walk would fill the memory.
    control.m_pDirectFunction = [](LRESULT, UINT number, WPARAM, LPARAM) -> LRESULT {
        return number == msg::GetLastChild ? kLines - 1 : kHeader | 0xFFE;
    };
    int line = 0;
    control.Expand(line, true, true, 100, kHeader | kBase);
    EXPECT_EQ(line, kLines);
}

TEST_F(Folding, FoldAllColoursAndDoesNothingElseWithoutHeaders)
{
    Show({{0x400, 0x400, 0x400}, {}, {}});
    control.FoldAll();
    EXPECT_EQ(Sentences(),
              (Strings{"Colorize 0 -1", "GetLineCount", "GetFoldLevel 0", "GetFoldLevel 1",
                       "GetFoldLevel 2", "GetFoldLevel 0", "GetFoldLevel 1", "GetFoldLevel 2"}));
}

TEST_F(Folding, FoldAllFoldsTheFirstLevelIfTheFirstHeaderIsOpen)
{
    ShowNested();
    folds.expanded = {true, false, true, true};
    control.FoldAll();
    EXPECT_EQ(Sentences(),
              (Strings{"Colorize 0 -1", "GetLineCount", "GetFoldLevel 0", "GetFoldExpanded 0",
                       "GetFoldLevel 0", "GetLastChild 0 -1", "SetFoldExpanded 0 0",
                       "HideLines 1 2", "GetFoldLevel 1", "GetFoldLevel 2", "GetFoldLevel 3"}));
}

TEST_F(Folding, FoldAllOpensAllIfTheFirstHeaderIsFolded)
{
    Show({{kHeader | 0x400, 0x401, kHeader | 0x400, 0x401}, {false, true, true, true}, {}});
    control.FoldAll();
    EXPECT_EQ(Sentences(),
              (Strings{"Colorize 0 -1", "GetLineCount", "GetFoldLevel 0", "GetFoldExpanded 0",
                       "GetFoldLevel 0", "SetFoldExpanded 0 1", "GetLastChild 0 1024",
                       "ShowLines 1 1", "GetFoldExpanded 1", "GetLastChild 1 4095",
                       "GetFoldLevel 2", "SetFoldExpanded 2 1", "GetLastChild 2 1024",
                       "ShowLines 3 3", "GetFoldExpanded 3", "GetLastChild 3 4095"}));
}

TEST_F(Folding, AHeaderWithoutChildrenHidesNothing)
{
    Show({{kHeader | 0x400, 0x400}, {}, {}});
    control.FoldAll();
    const Strings sentences = Sentences();
    EXPECT_EQ(Strings(sentences.begin() + 5, sentences.end()),
              (Strings{"GetLastChild 0 -1", "SetFoldExpanded 0 0", "GetFoldLevel 1"}));
}

TEST_F(Folding, AClickTogglesAHeader)
{
    ShowNested();
    EXPECT_TRUE(control.MarginClick(5, 0));
    EXPECT_EQ(Sentences(), (Strings{"LineFromPosition 5", "GetFoldLevel 0", "ToggleFold 0"}));
}

TEST_F(Folding, AClickBesideAHeaderDoesNothing)
{
    ShowNested();
    for (const int modifiers : {0, 1, 2, 4}) {
        recording::Forget();
        ShowNested();
        EXPECT_TRUE(control.MarginClick(35, modifiers));
        EXPECT_EQ(Sentences(), (Strings{"LineFromPosition 35", "GetFoldLevel 3"}));
    }
}

TEST_F(Folding, AClickWithShiftAndControlFoldsAllWhereverItIs)
{
    ShowNested();
    EXPECT_TRUE(control.MarginClick(35, 1 | 2));
    const Strings clicked = Sentences();
    ShowNested();
    control.FoldAll();
    Strings expected = Sentences();
    expected.insert(expected.begin(), "LineFromPosition 35");
    EXPECT_EQ(clicked, expected);
}

TEST_F(Folding, AClickWithControlFoldsAnOpenHeaderWithItsChildren)
{
    ShowNested();
    EXPECT_TRUE(control.MarginClick(5, 2));
    EXPECT_EQ(Sentences(), (Strings{"LineFromPosition 5", "GetFoldLevel 0", "GetFoldExpanded 0",
                                    "SetFoldExpanded 0 0", "GetLastChild 0 1024", "HideLines 1 1",
                                    "SetFoldExpanded 1 0", "GetLastChild 1 4095", "HideLines 2 2",
                                    "SetFoldExpanded 2 0", "GetLastChild 2 4095"}));
}

TEST_F(Folding, AClickWithControlOpensAFoldedHeader)
{
    ShowNested();
    folds.expanded = {false, false, true, true};
    EXPECT_TRUE(control.MarginClick(5, 2));
    const Strings expected{"LineFromPosition 5",  "GetFoldLevel 0",      "GetFoldExpanded 0",
                           "SetFoldExpanded 0 1", "GetLastChild 0 1024", "ShowLines 1 1",
                           "SetFoldExpanded 1 1", "GetLastChild 1 4095", "ShowLines 2 2",
                           "SetFoldExpanded 2 1", "GetLastChild 2 4095"};
    EXPECT_EQ(Sentences(), expected);
}

TEST_F(Folding, AClickWithShiftOpensTheWholeSubtree)
{
    ShowNested();
    EXPECT_TRUE(control.MarginClick(5, 1));
    const Strings sentences = Sentences();
    EXPECT_EQ(Strings(sentences.begin() + 2, sentences.begin() + 6),
              (Strings{"SetFoldExpanded 0 1", "GetLastChild 0 1024", "ShowLines 1 1",
                       "SetFoldExpanded 1 1"}));
}

TEST_F(Folding, ARangeIsMadeVisibleInEitherOrder)
{
    Show({});
    control.EnsureRangeVisible(45, 22);
    EXPECT_EQ(Sentences(), (Strings{"LineFromPosition 22", "LineFromPosition 45", "EnsureVisible 2",
                                    "EnsureVisible 3", "EnsureVisible 4"}));
    const Strings backwards = Sentences();
    Show({});
    control.EnsureRangeVisible(22, 45);
    EXPECT_EQ(Sentences(), backwards);
}

TEST_F(Folding, WithoutAWindowEveryWalkIsEmpty)
{
    delete control.GetSafeHwnd();
    int line = 0;
    control.Expand(line, true, true, 5, -1);
    EXPECT_EQ(line, 1);
    control.FoldAll();
    control.FoldChanged(3, 0x400, kHeader | 0x400);
    EXPECT_TRUE(control.MarginClick(3, 2));
    control.EnsureRangeVisible(3, 9);
    EXPECT_TRUE(Messages().empty());
}
