// SPDX-License-Identifier: GPL-3.0-or-later
// Positions of literal searches against a plain model: a string that is walked unit by unit.
#include "tests/search/FindFixture.h"

namespace {

// The first match that lies in the range, or the last one if the range runs backwards.
int PlainFind(const std::u16string& text, const std::u16string& what, long start, long end)
{
    const long length = static_cast<long>(what.size());
    const long low = std::min(start, end);
    const long high = std::max(start, end) - length;
    int found = -1;
    for (long at = low; at <= high; ++at) {
        if (text.compare(static_cast<std::size_t>(at), what.size(), what) != 0)
            continue;
        found = static_cast<int>(at);
        if (start <= end)
            break;
    }
    return found;
}

class FindModel : public FindTest
{};

} // namespace

TEST_F(FindModel, AgreesOnRandomTextsInBothDirections)
{
    const unsigned seed = SeedOfTest();
    RandomTexts random(seed);
    manager.SetMatchCase(true);
    int hits = 0;
    for (int i = 0; i < 4000; ++i) {
        const std::u16string text = random.Text(40, u"ab\u00E9\u4E2D\n");
        const std::u16string what = random.Text(2, u"ab\u00E9\u4E2D\n") + u'a';
        SetText(QString::fromStdU16String(text));
        manager.AddFindHistory(QString::fromStdU16String(what));
        manager.SetDown(random.Number(2) == 0);
        manager.SetWrap(random.Number(2) == 0);
        const int caret = random.Number(Length() + 1);
        const int anchor = random.Number(Length() + 1);
        control.SetSel(anchor, caret, 1);

        const int end = manager.GetDown() ? Length() : 0;
        int expected = PlainFind(text, what, caret, end);
        if (expected == -1 && manager.GetWrap())
            expected = manager.GetDown() ? PlainFind(text, what, 0, caret)
                                         : PlainFind(text, what, Length(), std::min(anchor, caret));
        ASSERT_EQ(manager.FindNext(&control), expected) << "seed " << seed << " round " << i;
        if (expected != -1) {
            ++hits;
            ASSERT_EQ(control.GetTargetStart(1), expected);
            ASSERT_EQ(control.GetTargetEnd(1), expected + static_cast<int>(what.size()));
        }
    }
    EXPECT_GT(hits, 500) << "seed " << seed;
}

TEST_F(FindModel, AgreesOnAnyRange)
{
    const unsigned seed = SeedOfTest();
    RandomTexts random(seed);
    manager.SetMatchCase(true);
    for (int i = 0; i < 4000; ++i) {
        const std::u16string text = random.Text(30, u"ab\u00E9\u4E2D");
        const std::u16string what = random.Text(2, u"ab\u00E9\u4E2D") + u'b';
        SetText(QString::fromStdU16String(text));
        manager.AddFindHistory(QString::fromStdU16String(what));
        const int start = random.Number(Length() + 1);
        const int end = random.Number(Length() + 1);
        ASSERT_EQ(manager.FindInRange(&control, start, end, true),
                  PlainFind(text, what, start, end))
            << "seed " << seed << " round " << i;
    }
}
