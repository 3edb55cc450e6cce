// SPDX-License-Identifier: GPL-3.0-or-later
// Replacing that takes long: the host is told how far it has come, and stops it.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "platform/services/LongWork.h"
#include "search/FindReplaceManager.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

class Host final : public ILongWork
{
public:
    Host() { SetLongWork(this); }
    ~Host() override { SetLongWork(nullptr); }

    bool GoesOn(HWND, const QString&, int hundredths) override
    {
        told.push_back(hundredths);
        return !stops;
    }
    void Ends() override { ++ends; }
    int Patience() const override { return patience; }

    int patience = 0;
    std::vector<int> told;
    int ends = 0;
    bool stops = false;
};

class LongReplacing : public testing::Test
{
protected:
    LongReplacing()
    {
        manager.SetWrap(true);
        manager.SetDown(true);
        manager.SetWholeWord(false);
        manager.SetMatchCase(false);
        manager.SetRegExp(false);
        manager.SetTransform(false);
        manager.SetFind(QStringLiteral("a"));
        manager.SetReplace(QStringLiteral("bb"));
    }

    static QString Text(int replaced, int left)
    {
        return QStringLiteral("bb\n").repeated(replaced) + QStringLiteral("a\n").repeated(left);
    }

    static constexpr int kMatches = 5000;
    static constexpr int kBetween = 1024; // replacements from one question to the next

    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    Host host;
    ZNCoreEditorWidget editor;
};

} // namespace

TEST_F(LongReplacing, IsToldHowFarItHasCome)
{
    editor.setText(Text(0, kMatches));
    EXPECT_EQ(manager.ReplaceAll(&editor.control(), false), kMatches);
    EXPECT_FALSE(manager.WasStopped());
    ASSERT_EQ(host.told.size(), static_cast<std::size_t>(kMatches / kBetween));
    EXPECT_TRUE(std::ranges::is_sorted(host.told));
    EXPECT_LT(host.told.front(), host.told.back());
    EXPECT_LE(host.told.back(), 100);
    EXPECT_EQ(host.ends, 1);
}

TEST_F(LongReplacing, StopsWithOneStepThatUndoesWhatWasReplaced)
{
    host.stops = true;
    editor.setText(Text(0, kMatches));
    EXPECT_EQ(manager.ReplaceAll(&editor.control(), false), kBetween);
    EXPECT_TRUE(manager.WasStopped());
    EXPECT_EQ(host.told.size(), 1u);
    EXPECT_TRUE(editor.text() == Text(kBetween, kMatches - kBetween));
    editor.control().Undo(1);
    EXPECT_TRUE(editor.text() == Text(0, kMatches));
}

TEST_F(LongReplacing, AsksNobodyWhereItIsShort)
{
    host.patience = 60'000;
    editor.setText(Text(0, kMatches));
    EXPECT_EQ(manager.ReplaceAll(&editor.control(), false), kMatches);
    EXPECT_TRUE(host.told.empty());
    EXPECT_EQ(host.ends, 0);
}
