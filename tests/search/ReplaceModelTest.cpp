// SPDX-License-Identifier: GPL-3.0-or-later
// Replacements of all against a plain model that walks a string. The texts put in hold nothing of
// what is sought, and are as long as it or longer, so that each match is replaced once.
#include "tests/search/FindFixture.h"

namespace {

struct Replaced
{
    std::u16string text;
    int count = 0;
};

// Every match of a part of the text, from its start on and none over another.
Replaced PlainReplace(const std::u16string& text, std::size_t start, std::size_t end,
                      const std::u16string& what, const std::u16string& with)
{
    Replaced result{text.substr(0, start)};
    std::size_t at = start;
    while (at < end) {
        if (at + what.size() <= end && text.compare(at, what.size(), what) == 0) {
            result.text += with;
            ++result.count;
            at += what.size();
        } else {
            result.text += text[at++];
        }
    }
    result.text += text.substr(end);
    return result;
}

// Upwards from the end; the next match ends a unit before the last one at the latest.
Replaced PlainReplaceUpwards(const std::u16string& text, long start, long end,
                             const std::u16string& what, const std::u16string& with)
{
    Replaced result{text};
    const long length = static_cast<long>(what.size());
    for (long at = end - length; at >= start; --at) {
        if (text.compare(static_cast<std::size_t>(at), what.size(), what) != 0)
            continue;
        result.text.replace(static_cast<std::size_t>(at), what.size(), with);
        ++result.count;
        at -= length;
    }
    return result;
}

class ReplaceModel : public FindTest
{
protected:
    ReplaceModel() { manager.SetMatchCase(true); }

    void Choose(RandomTexts& random)
    {
        text = random.Text(40, u"ab\u00E9\n");
        what = random.Text(1, u"ab\u00E9") + u'a';
        with = u"--" + random.Text(3, u"xy\u4E2D");
        SetText(QString::fromStdU16String(text));
        control.EmptyUndoBuffer(1);
        caret = random.Number(Length() + 1);
        anchor = random.Number(Length() + 1);
        control.SetSel(anchor, caret, 1);
    }

    void Compare(const Replaced& expected, bool inSelection, unsigned seed)
    {
        ASSERT_EQ(ReplaceAll(what.c_str(), with.c_str(), inSelection), expected.count)
            << "seed " << seed;
        ASSERT_EQ(Text().toStdU16String(), expected.text) << "seed " << seed;
        if (!inSelection) {
            ASSERT_EQ(control.GetCurrentPos(1), std::min(caret, Length())) << "seed " << seed;
        }
        if (expected.count > 0)
            control.Undo(1);
        ASSERT_EQ(Text().toStdU16String(), text) << "seed " << seed;
        ASSERT_FALSE(control.CanUndo(1));
    }

    static std::size_t At(int place) { return static_cast<std::size_t>(place); }

    std::u16string text;
    std::u16string what;
    std::u16string with;
    int caret = 0;
    int anchor = 0;
};

} // namespace

TEST_F(ReplaceModel, AgreesOnWholeTexts)
{
    const unsigned seed = SeedOfTest();
    RandomTexts random(seed);
    for (int i = 0; i < 1500 && !HasFatalFailure(); ++i) {
        Choose(random);
        Compare(PlainReplace(text, 0, text.size(), what, with), false, seed);
    }
}

TEST_F(ReplaceModel, AgreesBehindTheCaret)
{
    const unsigned seed = SeedOfTest();
    RandomTexts random(seed);
    manager.SetWrap(false);
    for (int i = 0; i < 1500 && !HasFatalFailure(); ++i) {
        Choose(random);
        Compare(PlainReplace(text, At(caret), text.size(), what, with), false, seed);
    }
}

TEST_F(ReplaceModel, AgreesUpwardsBeforeTheCaret)
{
    const unsigned seed = SeedOfTest();
    RandomTexts random(seed);
    manager.SetWrap(false);
    manager.SetDown(false);
    for (int i = 0; i < 1500 && !HasFatalFailure(); ++i) {
        Choose(random);
        Compare(PlainReplaceUpwards(text, 0, caret, what, with), false, seed);
    }
}

TEST_F(ReplaceModel, AgreesInSelections)
{
    const unsigned seed = SeedOfTest();
    RandomTexts random(seed);
    for (int i = 0; i < 1500 && !HasFatalFailure(); ++i) {
        Choose(random);
        const auto [start, end] = std::minmax(anchor, caret);
        manager.SetDown(true);
        manager.SetWrap(random.Number(2) == 0);
        Compare(PlainReplace(text, At(start), At(end), what, with), true, seed);
        manager.SetDown(false);
        manager.SetWrap(false);
        control.SetSel(anchor, caret, 1);
        Compare(PlainReplaceUpwards(text, start, end, what, with), true, seed);
    }
}
