// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of an outline, and what of them outlives a change of the script.
#include "host/outline/SymbolModel.h"
#include "tests/RandomSeed.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr const char* kTable = "Table";
constexpr const char* kColumn = "Column";

// "t" is a table, " c" a column; each stands ten units behind the one before.
std::vector<Symbol> SymbolsNamed(const QStringList& names)
{
    std::vector<Symbol> symbols;
    for (const QString& name : names) {
        const long start = 10 * static_cast<long>(symbols.size());
        const bool isInside = name.startsWith(' ');
        symbols.push_back({name.trimmed(), isInside ? kColumn : kTable, start, start, isInside});
    }
    return symbols;
}

QStringList RowsOf(const SymbolModel& model)
{
    QStringList names;
    for (int i = 0; i < model.rowCount(); ++i) {
        const QModelIndex outer = model.index(i, 0);
        names << outer.data().toString();
        for (int j = 0; j < model.rowCount(outer); ++j)
            names << ' ' + model.index(j, 0, outer).data().toString();
    }
    return names;
}

TEST(SymbolModels, HaveWhatIsInsideBelowWhatItStandsIn)
{
    SymbolModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.Show(SymbolsNamed({"a", " b", " c", "d"}));
    EXPECT_EQ(RowsOf(model), QStringList({"a", " b", " c", "d"}));
    EXPECT_EQ(model.index(1, SymbolModel::kKind).data(), QStringLiteral("Table"));
    EXPECT_EQ(model.index(0, SymbolModel::kKind, model.index(0, 0)).data(),
              QStringLiteral("Column"));
}

TEST(SymbolModels, FindTheRowOfAPlace)
{
    SymbolModel model;
    EXPECT_FALSE(model.IndexAt(5).isValid());
    model.Show(SymbolsNamed({"a", " b", " c", "d"}));
    EXPECT_EQ(model.IndexAt(0).data(), QStringLiteral("a"));
    EXPECT_EQ(model.IndexAt(19).data(), QStringLiteral("b"));
    EXPECT_EQ(model.IndexAt(20).data(), QStringLiteral("c"));
    EXPECT_EQ(model.IndexAt(1000).data(), QStringLiteral("d"));
}

TEST(SymbolModels, LeaveByWordsWhatHasThemAndWhatThatStandsIn)
{
    SymbolModel model;
    model.Show(SymbolsNamed({"one", " Two", " three", "four", "twofold", " five"}));
    model.Filter("TWO");
    EXPECT_EQ(RowsOf(model), QStringList({"one", " Two", "twofold"}));
    EXPECT_EQ(model.At(model.IndexAt(30))->name, QStringLiteral("Two"));
    model.Show(SymbolsNamed({"one", "two"}));
    EXPECT_EQ(RowsOf(model), QStringList({"two"}));
    model.Filter({});
    EXPECT_EQ(RowsOf(model), QStringList({"one", "two"}));
}

TEST(SymbolModels, TellNothingOfPlacesThatMoved)
{
    SymbolModel model;
    model.Show(SymbolsNamed({"a", " b"}));
    int told = 0;
    QObject::connect(&model, &SymbolModel::layoutChanged, [&told] { ++told; });
    std::vector<Symbol> moved = SymbolsNamed({"a", " b"});
    moved[1].start = 500;
    model.Show(moved);
    EXPECT_EQ(told, 0);
    EXPECT_EQ(model.At(model.index(0, 0, model.index(0, 0)))->start, 500);
}

// A kept index goes with its symbol through changes of one place of the script.
TEST(SymbolModels, KeepWhatIsChosenThroughAnyChangeElsewhere)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    for (int round = 0; round < 300; ++round) {
        QStringList names = {"first"};
        for (std::size_t i = below(12); i > 0; --i)
            names << (below(2) ? " n" : "n") + QString::number(i);
        SymbolModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.Show(SymbolsNamed(names));
        const auto chosen = static_cast<qsizetype>(below(static_cast<std::size_t>(names.size())));
        const QPersistentModelIndex kept = model.IndexAt(10 * chosen);
        const QString name = kept.data().toString();
        const auto at = static_cast<qsizetype>(below(static_cast<std::size_t>(names.size()) + 1));
        qsizetype now = chosen;
        if (at != chosen && at > 0 && at < names.size() && below(2)) {
            names.removeAt(at);
            now -= at < chosen;
        } else if (at > 0) {
            names.insert(at, "x"); // a table, which takes the columns behind it
            now += at <= chosen;
        }
        model.Show(SymbolsNamed(names));
        ASSERT_EQ(RowsOf(model), names);
        ASSERT_TRUE(kept.isValid());
        EXPECT_EQ(kept.data(), name);
        EXPECT_EQ(model.At(kept)->start, 10 * now);
    }
}

} // namespace
