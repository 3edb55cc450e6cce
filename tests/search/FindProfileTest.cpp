// SPDX-License-Identifier: GPL-3.0-or-later
// What the find manager holds, and what it keeps from one run to the next.
#include "tests/search/FindFixture.h"

#include <QComboBox>

namespace {

class FindProfile : public testing::Test
{
protected:
    QStringList FindItems(const CFindReplaceManager& manager)
    {
        manager.FillFindCombo(box);
        return Items();
    }
    QStringList Items() const
    {
        QStringList items;
        for (int i = 0; i < box.count(); ++i)
            items << box.itemText(i);
        return items;
    }

    MemoryRegistry registry;
    QComboBox box;
};

} // namespace

TEST_F(FindProfile, BeginsDownwardsWrappingAndInSubfolders)
{
    const CFindReplaceManager manager;
    EXPECT_TRUE(manager.GetWrap());
    EXPECT_TRUE(manager.GetDown());
    EXPECT_TRUE(manager.GetSubFolders());
    EXPECT_FALSE(manager.GetWholeWord() || manager.GetMatchCase() || manager.GetRegExp() ||
                 manager.GetTransform() || manager.GetOutputPane2() || manager.GetCountOnly());
    EXPECT_EQ(manager.GetFindIn(), 0);
    EXPECT_TRUE(manager.GetFind().isEmpty() && manager.GetReplace().isEmpty() &&
                manager.GetLocation().isEmpty() && manager.GetFileType().isEmpty());
    EXPECT_TRUE(FindItems(manager).isEmpty());
}

TEST_F(FindProfile, KeepsTwentyItems)
{
    CFindReplaceManager manager;
    for (int i = 1; i <= 20; ++i)
        manager.AddFindHistory(QString::number(i));
    EXPECT_EQ(FindItems(manager).size(), 20);
    EXPECT_EQ(FindItems(manager).last(), u"1");
}

TEST_F(FindProfile, LosesTheItemBeforeTheLastToTheTwentyFirst)
{
    CFindReplaceManager manager;
    for (int i = 1; i <= 21; ++i)
        manager.AddFindHistory(QString::number(i));
    const QStringList items = FindItems(manager);
    EXPECT_EQ(items.size(), 20);
    EXPECT_EQ(items.first(), u"21");
    EXPECT_EQ(items.at(18), u"3");
    EXPECT_EQ(items.last(), u"1");
}

TEST_F(FindProfile, MovesAKnownTextToTheTop)
{
    CFindReplaceManager manager;
    for (const char* text : {"a", "b", "c", "a"})
        manager.AddFindHistory(QLatin1String(text));
    EXPECT_EQ(FindItems(manager), QStringList({"a", "c", "b"}));
    manager.AddFindHistory(QStringLiteral("B"));
    EXPECT_EQ(FindItems(manager), QStringList({"B", "a", "c", "b"}));
}

TEST_F(FindProfile, MakesWhatIsAddedTheCurrentText)
{
    CFindReplaceManager manager;
    manager.AddFindHistory(QStringLiteral("find"));
    manager.AddReplaceHistory(QStringLiteral("replace"));
    manager.AddLocationHistory(QStringLiteral("folder"));
    manager.AddTypeHistory(QStringLiteral("*.sql"));
    EXPECT_EQ(manager.GetFind(), u"find");
    EXPECT_EQ(manager.GetReplace(), u"replace");
    EXPECT_EQ(manager.GetLocation(), u"folder");
    EXPECT_EQ(manager.GetFileType(), u"*.sql");
}

TEST_F(FindProfile, FillsEachBoxWithItsOwnHistory)
{
    CFindReplaceManager manager;
    manager.AddFindHistory(QStringLiteral("find"));
    manager.AddReplaceHistory(QStringLiteral("replace"));
    manager.AddLocationHistory(QStringLiteral("folder"));
    manager.AddTypeHistory(QStringLiteral("*.sql"));
    box.addItem(QStringLiteral("stale"));
    manager.FillReplaceCombo(box);
    EXPECT_EQ(Items(), QStringList("replace"));
    manager.FillLocationCombo(box);
    EXPECT_EQ(Items(), QStringList("folder"));
    manager.FillTypeCombo(box);
    EXPECT_EQ(Items(), QStringList("*.sql"));
}

TEST_F(FindProfile, ComesBackAsItWasLeft)
{
    {
        CFindReplaceManager manager;
        manager.AddFindHistory(QStringLiteral("old"));
        manager.AddFindHistory(QStringLiteral("young"));
        manager.AddReplaceHistory(QString());
        manager.SetWholeWord(true);
        manager.SetMatchCase(true);
        manager.SetRegExp(true);
        manager.SetTransform(true);
        manager.SetSubFolders(false);
        manager.SetOutputPane2(true);
        manager.SetCountOnly(true);
        manager.SetFindIn(1);
        manager.SetWrap(false);
        manager.SetDown(false);
    }
    EXPECT_EQ(std::get<QString>(registry.Search("FindCombo")), u"young|old|");
    const CFindReplaceManager manager;
    EXPECT_EQ(FindItems(manager), QStringList({"young", "old"}));
    manager.FillReplaceCombo(box);
    EXPECT_EQ(Items(), QStringList(QString()));
    EXPECT_TRUE(manager.GetWholeWord() && manager.GetMatchCase() && manager.GetRegExp() &&
                manager.GetTransform() && manager.GetOutputPane2() && manager.GetCountOnly());
    EXPECT_FALSE(manager.GetSubFolders());
    EXPECT_EQ(manager.GetFindIn(), 1);
    // These are not remembered, nor what was searched for last.
    EXPECT_TRUE(manager.GetWrap() && manager.GetDown());
    EXPECT_TRUE(manager.GetFind().isEmpty());
}

TEST_F(FindProfile, TakesOnlyOneForTrue)
{
    registry.Search("MatchCase") = 2U;
    registry.Search("SubFolders") = 2U;
    registry.Search("RegExp") = QStringLiteral("1");
    const CFindReplaceManager manager;
    EXPECT_FALSE(manager.GetMatchCase());
    EXPECT_FALSE(manager.GetSubFolders());
    EXPECT_FALSE(manager.GetRegExp());
}

TEST_F(FindProfile, ForgetsThatAllOpenFilesWereSearched)
{
    CFindReplaceManager manager;
    manager.SetFindIn(2);
    manager.Save();
    EXPECT_EQ(std::get<std::uint32_t>(registry.Search("FindIn")), 2U);
    EXPECT_EQ(CFindReplaceManager().GetFindIn(), 0);
}

TEST_F(FindProfile, SplitsAnItemAtItsSeparator)
{
    {
        CFindReplaceManager manager;
        manager.AddFindHistory(QStringLiteral("a|b"));
        EXPECT_EQ(FindItems(manager), QStringList("a|b"));
    }
    EXPECT_EQ(FindItems(CFindReplaceManager()), QStringList({"a", "b"}));
}

TEST_F(FindProfile, CutsALongHistoryAtItsOldEnd)
{
    {
        CFindReplaceManager manager;
        for (int i = 0; i < 3; ++i)
            manager.AddFindHistory(QString(500, QChar(u'a' + i)));
    }
    const QStringList items = FindItems(CFindReplaceManager());
    EXPECT_EQ(items, QStringList({QString(500, u'c'), QString(500, u'b'), QString(21, u'a')}));
}

TEST_F(FindProfile, StandsOnItsDefaultsWhereTheStoreRefuses)
{
    registry.opens = false;
    {
        CFindReplaceManager manager;
        EXPECT_TRUE(manager.GetSubFolders());
        manager.AddFindHistory(QStringLiteral("a"));
        manager.SetMatchCase(true);
    }
    EXPECT_TRUE(registry.values.empty());
}

TEST_F(FindProfile, IsOneForTheProcess)
{
    EXPECT_EQ(zncoreeditor::GetFindReplaceManager(), zncoreeditor::GetFindReplaceManager());
}
