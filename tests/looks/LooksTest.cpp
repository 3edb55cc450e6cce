// SPDX-License-Identifier: GPL-3.0-or-later
// What an editor with a scheme draws beside and over its text.
#include "control/EngineLooks.h"
#include "control/EngineRecords.h"
#include "control/ErrorInfo.h"
#include "control/Selections.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/hands/Hands.h"
#include "editing/looks/HoverTips.h"
#include "looks/Schemes.h"
#include "platform/base/Colours.h"
#include "platform/services/OptionsServer.h"
#include "tests/RandomSeed.h"
#include "tests/control/ControlFixture.h"
#include "tests/looks/TouchScreen.h"

#include <QApplication>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QImage>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QScrollBar>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <Qsci/qsciscintillabase.h>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <random>

namespace {

using Sci = QsciScintillaBase;

constexpr int kTransactSql = 3;
constexpr int kChanged = 1 << engine::lookmarker::kLineChanged;
constexpr int kSaved = 1 << engine::lookmarker::kLineSaved;
constexpr int kStatement = 27;
constexpr int kOccurrences = 28;
constexpr int kMatches = 29;

template <class Condition>
bool Becomes(Condition condition)
{
    return QTest::qWaitFor(condition, 5000);
}

class LooksTest : public testing::Test
{
protected:
    LooksTest()
    {
        face.setScheme(QStringLiteral("Light"));
        face.setLanguage(kTransactSql);
        face.resize(500, 300);
        face.show();
        QApplication::processEvents();
    }

    // Nothing of what was there before can be undone.
    void Put(const QString& text)
    {
        control.SetUndoCollection(0, 1);
        face.setText(text);
        control.SetUndoCollection(1, 1);
        control.EmptyUndoBuffer(1);
        control.SetSavePoint(1);
        QApplication::processEvents();
    }

    Sci& Window() { return *static_cast<Sci*>(control.GetSafeHwnd()); }

    int CountOf(Drawn what, QRect area = {})
    {
        const COLORREF colour = zncoreeditor::FindScheme(QStringLiteral("Light"))->Of(what);
        const QRgb wanted = ToQColor(colour).rgb();
        const QImage image = Window().grab().toImage().convertToFormat(QImage::Format_RGB32);
        area = area.isNull() ? image.rect() : area & image.rect();
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x)
                count += image.pixel(x, y) == wanted;
        }
        return count;
    }

    bool IsMarked(int indicator, long position)
    {
        return Window().SendScintilla(Sci::SCI_INDICATORVALUEAT,
                                      static_cast<unsigned long>(indicator), position) != 0;
    }

    ZNCoreEditorWidget face;
    CZNCoreEditorControlEx& control = face.control();
};

TEST_F(LooksTest, DrawIconsForBookmarksAndProblems)
{
    Put(QStringLiteral("a\nb\nc\n"));
    EXPECT_EQ(CountOf(Drawn::Bookmark), 0);
    control.MarkerAdd(0, 0, 1);
    control.MarkerAdd(1, engine::lookmarker::kError, 1);
    control.MarkerAdd(2, engine::lookmarker::kWarning, 1);
    EXPECT_GT(CountOf(Drawn::Bookmark), 20);
    EXPECT_GT(CountOf(Drawn::Error), 20);
    EXPECT_GT(CountOf(Drawn::Warning), 20);
}

TEST_F(LooksTest, AreThoseOfTheSettingsWithoutAScheme)
{
    Put(QStringLiteral("a\nb\n"));
    control.MarkerAdd(0, 0, 1);
    face.setScheme(QString());
    EXPECT_EQ(CountOf(Drawn::Bookmark), 0);
    const QImage image = Window().grab().toImage().convertToFormat(QImage::Format_RGB32);
    int cyan = 0;
    for (int x = 0; x < 100; ++x)
        cyan += image.pixel(x, 8) == qRgb(0x0E, 0xFA, 0xF3);
    EXPECT_GT(cyan, 5);
}

TEST_F(LooksTest, ShowLinesThatChangedUntilTheyAreAsTheyWere)
{
    Put(QStringLiteral("one\ntwo\nthree\n"));
    EXPECT_EQ(CountOf(Drawn::LineChanged), 0);
    control.GotoPos(5, 1);
    control.ReplaceSel(u"x\ny", 1);
    EXPECT_FALSE(control.MarkerGet(0, 1) & kChanged);
    EXPECT_TRUE(control.MarkerGet(1, 1) & kChanged);
    EXPECT_TRUE(control.MarkerGet(2, 1) & kChanged);
    EXPECT_FALSE(control.MarkerGet(3, 1) & kChanged);
    EXPECT_GT(CountOf(Drawn::LineChanged), 20);
    control.Undo(1);
    EXPECT_EQ(control.MarkerNext(0, kChanged, 1), -1);
}

TEST_F(LooksTest, ShowTheBarsThatWereThereWhenChangesAreUndoneAndRedone)
{
    Put(QStringLiteral("a\na b\nc\nd a\n"));
    const auto bars = [&] {
        QString text; // a letter for each line
        for (int line = 0; line < control.GetLineCount(1); ++line) {
            const int marks = control.MarkerGet(line, 1) & (kChanged | kSaved);
            text += QLatin1Char(marks & kChanged ? 'c' : marks ? 's' : '-');
        }
        return text.toStdString();
    };
    control.GotoPos(6, 1);
    control.ReplaceSel(u"x", 1);
    EXPECT_EQ(bars(), "--c--");
    control.BeginUndoAction(1);
    control.SetSel(9, 12, 1); // "d a"
    control.ReplaceSel(u"d\ne", 1);
    control.SetSel(0, 4, 1); // "a\na "
    control.ReplaceSel(u"", 1);
    control.EndUndoAction(1);
    EXPECT_EQ(bars(), "cccc-");
    control.Undo(1);
    EXPECT_EQ(bars(), "--c--");
    control.Redo(1);
    EXPECT_EQ(bars(), "cccc-");

    QTemporaryDir folder;
    ASSERT_TRUE(face.saveFile(folder.filePath(QStringLiteral("a.sql"))));
    EXPECT_EQ(bars(), "ssss-");
    control.Undo(1);
    EXPECT_EQ(bars(), "ccsc-"); // but for one the file has these lines otherwise
    control.Redo(1);
    EXPECT_EQ(bars(), "ssss-");
}

// What a window shows without being drawn afresh.
TEST_F(LooksTest, TakeTheBarOffTheWindowWhenItGoes)
{
    Put(QString());
    control.SetFocus();
    struct Region : QObject
    {
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::Paint)
                painted += static_cast<QPaintEvent*>(event)->region();
            return QObject::eventFilter(watched, event);
        }
        QRegion painted;
    } region;
    Window().viewport()->installEventFilter(&region);
    const int bar = static_cast<int>(control.PointXFromPosition(0, 1)) - 4;
    const QRect place(bar, 2, 1, static_cast<int>(control.TextHeight(0, 1)) - 4);
    QTest::keyClicks(&Window(), QStringLiteral("one two"));
    ASSERT_TRUE(Becomes([&] { return region.painted.contains(place); }));
    QTest::qWait(0);
    region.painted = {};
    control.Undo(1); // the stock engine forgets the marks of a text that goes whole
    EXPECT_TRUE(Becomes([&] { return region.painted.contains(place); }));
}

TEST_F(LooksTest, ShowBarsAtRandomEditsAsTheirStatesHadThem)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto below = [&](int limit) { return static_cast<int>(random() % unsigned(limit)); };
    for (int round = 0; round < 20; ++round) {
        Put(QStringLiteral("one\ntwo\n\nfour\nfive\n"));
        const auto state = [&] {
            std::string bars;
            for (int line = 0; line < control.GetLineCount(1); ++line)
                bars += control.MarkerGet(line, 1) & kChanged ? 'c' : '-';
            return std::pair(control.GetText(), bars);
        };
        std::vector states(1, state());
        std::size_t at = 0; // of them
        for (int step = 0; step < 60 && !HasFailure(); ++step) {
            const int what = below(5);
            if (what == 0 && at > 0) {
                control.Undo(1);
                --at;
            } else if (what == 1 && at + 1 < states.size()) {
                control.Redo(1);
                ++at;
            } else {
                // An action of one edit or more is one step, and none joins the one before it.
                control.BeginUndoAction(1);
                for (int edits = below(3); edits >= 0; --edits) {
                    const long length = control.GetLength(1);
                    const long from = below(int(length) + 1);
                    control.SetSel(from, std::min<long>(length, from + below(7)), 1);
                    control.ReplaceSel(std::array{u"", u"x", u"\n", u"a\nb", u"a\n"}[below(5)], 1);
                }
                control.ReplaceSel(u".", 1); // no action is empty
                control.EndUndoAction(1);
                states.resize(++at);
                states.push_back(state());
            }
            // Where the text is the file's there are none.
            EXPECT_TRUE(at > 0 || control.MarkerNext(0, kChanged, 1) < 0);
            EXPECT_EQ(state(), states[at]) << "step " << step;
        }
    }
}

TEST_F(LooksTest, LeaveTheLineThatWholeLinesArePutInFrontOf)
{
    Put(QStringLiteral("one\ntwo\nthree\n"));
    control.GotoPos(4, 1);
    control.ReplaceSel(u"a\nb\n", 1);
    for (const auto& [line, isChanged] : {std::pair(0, false), {1, true}, {2, true}, {3, false}})
        EXPECT_EQ((control.MarkerGet(line, 1) & kChanged) != 0, isChanged) << line;
    control.GotoPos(1, 1);
    control.ReplaceSel(u"x\n", 1); // within a line it is two that change
    EXPECT_TRUE(control.MarkerGet(0, 1) & kChanged);
    EXPECT_TRUE(control.MarkerGet(1, 1) & kChanged);
}

TEST_F(LooksTest, ShowLinesThatWereSavedSinceTheyChanged)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.sql"));
    Put(QStringLiteral("one\ntwo\n"));
    control.ReplaceSel(u"x", 1);
    ASSERT_TRUE(face.saveFile(path));
    EXPECT_EQ(control.MarkerGet(0, 1) & (kSaved | kChanged), kSaved);
    EXPECT_GT(CountOf(Drawn::LineSaved), 20);
    control.ReplaceSel(u"y", 1);
    EXPECT_TRUE(control.MarkerGet(0, 1) & kChanged);
    ASSERT_TRUE(face.openFile(path));
    EXPECT_EQ(control.MarkerNext(0, kSaved | kChanged, 1), -1);
}

TEST_F(LooksTest, ShowALineThatChangesWhereItDidBeforeItWasSaved)
{
    Put(QStringLiteral("one\ntwo\n"));
    control.GotoPos(4, 1);
    control.Clear(1);
    control.SetSavePoint(1);
    ASSERT_FALSE(control.MarkerGet(1, 1) & kChanged);
    control.Clear(1);
    EXPECT_EQ(face.text(), QStringLiteral("one\no\n"));
    EXPECT_TRUE(control.MarkerGet(1, 1) & kChanged);
}

TEST_F(LooksTest, ShowTheLinesOfAReplacementInAllOfAText)
{
    Put(QStringLiteral("one\ntwo\n"));
    control.SetText(u"three\nfour\nfive", 1);
    for (int line = 0; line < 3; ++line)
        EXPECT_TRUE(control.MarkerGet(line, 1) & kChanged) << line;
}

TEST_F(LooksTest, ShowEachLineThatOneStepTakesFrom)
{
    Put(QStringLiteral("one\ntwo\nthree\n"));
    control.BeginUndoAction(1);
    for (const long start : {8, 0}) {
        control.SetSel(start, start + 1, 1);
        control.Clear(1);
    }
    control.EndUndoAction(1);
    EXPECT_TRUE(control.MarkerGet(0, 1) & kChanged);
    EXPECT_FALSE(control.MarkerGet(1, 1) & kChanged);
    EXPECT_TRUE(control.MarkerGet(2, 1) & kChanged);
}

TEST_F(LooksTest, ShowNoLineOfATextThatNobodyCanUndo)
{
    Put(QStringLiteral("one\ntwo\n"));
    control.SetUndoCollection(0, 1);
    control.AppendText(1, u"x", 1);
    control.SetUndoCollection(1, 1);
    EXPECT_EQ(control.MarkerNext(0, kChanged, 1), -1);
    control.AppendText(1, u"x", 1);
    EXPECT_TRUE(control.MarkerGet(2, 1) & kChanged);
}

TEST_F(LooksTest, OpenAFoldAtTheMarkBehindIt)
{
    Put(QStringLiteral("begin\n  select 1;\n  select 2;\nend\n"));
    control.Colorize(0, -1, 1);
    ASSERT_TRUE(control.GetFoldLevel(0, 1) & 0x2000);
    control.ToggleFold(0, 1);
    ASSERT_FALSE(control.GetLineVisible(1, 1));
    EXPECT_GT(CountOf(Drawn::FoldedLine), 50);
    const long end = control.GetLineEndPosition(0, 1);
    const int height = control.TextHeight(0, 1);
    const QPoint place(control.PointXFromPosition(end, 1) + height, height / 2);
    QTest::mouseClick(Window().viewport(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(control.GetLineVisible(1, 1));
    EXPECT_EQ(CountOf(Drawn::FoldedLine), 0);
}

TEST_F(LooksTest, MakeFoldMarksStrongUnderTheMouse)
{
    Put(QStringLiteral("begin\n  select 1;\nend\n"));
    control.Colorize(0, -1, 1);
    EXPECT_EQ(CountOf(Drawn::FoldHot, QRect(0, 0, 90, 200)), 0);
    const int x = control.PointXFromPosition(0, 1) - 12;
    QMouseEvent move(QEvent::MouseMove, QPointF(x, 5), QPointF(x, 5), Qt::NoButton, {}, {});
    QApplication::sendEvent(Window().viewport(), &move);
    EXPECT_GT(CountOf(Drawn::FoldHot, QRect(0, 0, 90, 200)), 0);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(Window().viewport(), &leave);
    EXPECT_EQ(CountOf(Drawn::FoldHot, QRect(0, 0, 90, 200)), 0);
}

TEST_F(LooksTest, LightUpTheWordAtTheCaretOnceItRests)
{
    Put(QStringLiteral("stock from Stock where stocks\n"));
    control.GotoPos(2, 1);
    EXPECT_TRUE(Becomes([&] { return IsMarked(kOccurrences, 0); }));
    EXPECT_TRUE(IsMarked(kOccurrences, 12)); // any case in SQL
    EXPECT_FALSE(IsMarked(kOccurrences, 7));
    EXPECT_FALSE(IsMarked(kOccurrences, 24)); // whole words alone
    control.GotoPos(25, 1);
    EXPECT_TRUE(Becomes([&] { return IsMarked(kOccurrences, 25); }));
    EXPECT_FALSE(IsMarked(kOccurrences, 0));
}

TEST_F(LooksTest, LightUpNoWordThatIsNobodysNameUnlessItIsSelected)
{
    Put(QStringLiteral("select the from stock /* the the */ where 12 = 12 select stock\n"));
    control.Colorize(0, -1, 1);
    for (const int quiet : {2, 12, 26, 44}) { // select, from, the in the comment, 12
        control.GotoPos(18, 1);
        ASSERT_TRUE(Becomes([&] { return IsMarked(kOccurrences, 18); }));
        control.GotoPos(quiet, 1);
        EXPECT_TRUE(Becomes([&] { return !IsMarked(kOccurrences, 18); })) << quiet;
        EXPECT_FALSE(IsMarked(kOccurrences, quiet)) << quiet;
    }
    control.SetSel(0, 6, 1);
    EXPECT_TRUE(Becomes([&] { return IsMarked(kOccurrences, 50); }));
}

// What is far below the window is not coloured.
TEST_F(LooksTest, LightUpNoWordBeforeItIsKnownWhetherItIsAName)
{
    constexpr int kFar = 19000;
    const QString line = QStringLiteral("select stock;\n");
    Put(line.repeated(20000));
    const auto select = kFar * line.size();
    const auto isLit = [&] { return IsMarked(kOccurrences, 0) || IsMarked(kOccurrences, 7); };
    for (const auto place : {select, select + 8}) {
        Window().SendScintilla(Sci::SCI_SETEMPTYSELECTION, static_cast<unsigned long>(place));
        EXPECT_FALSE(QTest::qWaitFor(isLit, 600)) << place;
    }
    control.ScrollCaret(1);
    EXPECT_TRUE(Becomes([&] { return IsMarked(kOccurrences, select + 8); }));
    EXPECT_FALSE(IsMarked(kOccurrences, select));
}

TEST_F(LooksTest, DrawLineEndsAsFaintAsBlanks)
{
    Put(QStringLiteral("a\nb\r\nc\n"));
    const int without = CountOf(Drawn::Whitespace);
    control.SetViewEOL(1, 1);
    EXPECT_EQ(control.GetViewEOL(1), 1);
    EXPECT_EQ(Window().SendScintilla(Sci::SCI_GETVIEWEOL), 0); // whose boxes are as strong as text
    EXPECT_GT(CountOf(Drawn::Whitespace), without + 60);
    control.Call(engine::kSetLooks, 0, 0, 1);
    EXPECT_EQ(Window().SendScintilla(Sci::SCI_GETVIEWEOL), 1);
    control.SetViewEOL(0, 1);
    EXPECT_EQ(Window().SendScintilla(Sci::SCI_GETVIEWEOL), 0);
    face.setScheme(QStringLiteral("Light"));
    EXPECT_EQ(CountOf(Drawn::Whitespace), without);
}

TEST_F(LooksTest, DrawTheKindOfEachLineEnd)
{
    Put(QStringLiteral("a"));
    const int none = CountOf(Drawn::Whitespace);
    control.SetViewEOL(1, 1);
    const auto drawn = [this](const char* text) {
        Put(QString::fromLatin1(text));
        return CountOf(Drawn::Whitespace);
    };
    EXPECT_EQ(drawn("a"), none) << "the last line has no end";
    const int cr = drawn("a\r");
    const int lf = drawn("a\n");
    const int both = drawn("a\r\n");
    EXPECT_GT(std::min(cr, lf), none + 10);
    EXPECT_GT(both, std::max(cr, lf)) << "four letters";
    control.SetViewEOL(0, 1);
}

// The range of the horizontal scroll bar.
class ScrollRangeTest : public LooksTest
{
protected:
    QScrollBar& Bar() { return *Window().horizontalScrollBar(); }
    int WidthOf(int letters)
    {
        return control.TextWidth(0, std::u16string(letters, u'x').data(), 1);
    }
    void DeleteLine(int line)
    {
        control.SetSel(control.PositionFromLine(line, 1), control.PositionFromLine(line + 1, 1), 1);
        control.Clear(1);
    }
};

TEST_F(ScrollRangeTest, GoesBackOnceALongLineIsGone)
{
    Put(QString(170, u'x') + QStringLiteral("\nb\n"));
    ASSERT_TRUE(Becomes([&] { return Bar().maximum() > 0; }));
    DeleteLine(0);
    EXPECT_TRUE(Becomes([&] { return Bar().maximum() == 0; }));
    EXPECT_LT(control.GetScrollWidth(1), 100);
}

TEST_F(ScrollRangeTest, GoesBackToTheLongestLineThatIsLeftSeenOrNot)
{
    Put(QString(400, u'x') + QStringLiteral("\nb\n") + QStringLiteral("\n").repeated(500) +
        QString(200, u'x') + QStringLiteral("\n") + QString(100, u'x'));
    ASSERT_TRUE(Becomes([&] { return control.GetScrollWidth(1) > WidthOf(400); }));
    DeleteLine(0);
    EXPECT_TRUE(Becomes([&] { return control.GetScrollWidth(1) < WidthOf(300); }));
    EXPECT_GT(control.GetScrollWidth(1), WidthOf(200));
}

TEST_F(ScrollRangeTest, ShowsHowFarTheCaretHasGone)
{
    Put(QString());
    QTest::keyClicks(&Window(), QString(170, u'x'));
    ASSERT_TRUE(Becomes([&] { return Bar().maximum() > 0; }));
    EXPECT_GT(control.GetXOffset(1), 0);
    EXPECT_EQ(Bar().value(), control.GetXOffset(1));
}

TEST_F(ScrollRangeTest, StaysWhileTheLongestLineIsThere)
{
    Put(QStringLiteral("a\n") + QString(170, u'x') + QStringLiteral("\nb\n"));
    ASSERT_TRUE(Becomes([&] { return Bar().maximum() > 0; }));
    const int range = control.GetScrollWidth(1);
    DeleteLine(2);
    DeleteLine(0);
    EXPECT_FALSE(QTest::qWaitFor([&] { return control.GetScrollWidth(1) != range; }, 800));
}

TEST_F(LooksTest, FrameTheMatchThatIsSelected)
{
    Put("aa b aa\n");
    control.Call(engine::kShowMatches, 0, reinterpret_cast<LPARAM>(u"aa"), 1);
    const QRect text = Window().viewport()->rect().adjusted(0, 0, -20, 0);
    const auto framed = [&](long start, long end) {
        control.SetSel(start, end, 1);
        QApplication::processEvents();
        return CountOf(Drawn::Match, text);
    };
    EXPECT_EQ(framed(0, 0), 0) << "the others are paler";
    EXPECT_GT(framed(5, 7), 30);
    EXPECT_EQ(framed(3, 4), 0);
}

TEST_F(LooksTest, ShowTheMatchesThatAreAskedForAndFollowTheText)
{
    Put(QStringLiteral("aa b aa\n"));
    control.Call(engine::kShowMatches, 0, reinterpret_cast<LPARAM>(u"aa"), 1);
    EXPECT_TRUE(IsMarked(kMatches, 0));
    EXPECT_TRUE(IsMarked(kMatches, 5));
    EXPECT_FALSE(IsMarked(kMatches, 3));
    control.GotoPos(3, 1);
    control.ReplaceSel(u"aa", 1);
    EXPECT_TRUE(Becomes([&] { return IsMarked(kMatches, 3); }));
    control.Call(engine::kShowMatches, 0, 0, 1);
    EXPECT_FALSE(IsMarked(kMatches, 0));
}

TEST_F(LooksTest, ShowTheMatchesOfARangeThatFollowsTheText)
{
    Put("aa\naa\naa\naa\n");
    control.Call(engine::kShowMatches, 0, reinterpret_cast<LPARAM>(u"aa"), 1);
    control.Call(engine::kShowMatchesWithin, 3, 8, 1); // the two in the middle
    const auto lit = [this] {
        std::vector<long> starts;
        for (long at = 0; at < control.GetLength(1); ++at) {
            if (IsMarked(kMatches, at) && (at == 0 || !IsMarked(kMatches, at - 1)))
                starts.push_back(at);
        }
        return starts;
    };
    const auto range = [this] {
        return std::pair(control.Call(engine::kMatchesFrom, 0, 0, 1),
                         control.Call(engine::kMatchesTo, 0, 0, 1));
    };
    EXPECT_EQ(lit(), (std::vector<long>{3, 6}));
    control.InsertText(0, u"aa\n", 1); // in front of it
    control.InsertText(8, u"\naa", 1); // in it
    EXPECT_EQ(range(), std::pair(6L, 14L));
    EXPECT_TRUE(Becomes([&] { return lit() == std::vector<long>{6, 9, 12}; }));
    control.SetTarget(12, 14); // a match at its end
    control.ReplaceTarget(3, u"bbb", 1);
    EXPECT_EQ(range(), std::pair(6L, 15L));
    control.Call(engine::kShowMatchesWithin, static_cast<WPARAM>(-1), 0, 1);
    EXPECT_EQ(lit(), (std::vector<long>{0, 3, 6, 9, 16}));
    EXPECT_EQ(range(), std::pair(-1L, -1L));
}

TEST_F(LooksTest, LightUpNoOccurrencesWhileARangeIsSearched)
{
    Put("stock stock stock\n");
    control.SetSel(0, 5, 1);
    ASSERT_TRUE(Becomes([&] { return IsMarked(kOccurrences, 12); }));
    control.Call(engine::kShowMatchesWithin, 0, 11, 1);
    EXPECT_TRUE(Becomes([&] { return !IsMarked(kOccurrences, 12); }));
    control.Call(engine::kShowMatchesWithin, static_cast<WPARAM>(-1), 0, 1);
    EXPECT_TRUE(Becomes([&] { return IsMarked(kOccurrences, 12); }));
}

TEST_F(LooksTest, FrameTheRangeThatIsSearched)
{
    Put("one\ntwo\nthree\nfour\n");
    const int row = static_cast<int>(control.TextHeight(0, 1));
    const auto drawn = [&](int line) {
        return CountOf(Drawn::Match, QRect(0, line * row, Window().viewport()->width(), row));
    };
    EXPECT_EQ(drawn(1), 0);
    control.Call(engine::kShowMatchesWithin, 4, 13, 1);
    QApplication::processEvents();
    EXPECT_EQ(drawn(0), 0);
    EXPECT_GT(drawn(1), 100) << "its upper edge";
    EXPECT_GT(drawn(2), 50) << "its lower edge";
    EXPECT_EQ(drawn(3), 0);
    control.InsertText(0, u"x\n", 1);
    QApplication::processEvents();
    EXPECT_EQ(drawn(1), 0);
    EXPECT_GT(drawn(3), 50);
    control.Call(engine::kShowMatchesWithin, static_cast<WPARAM>(-1), 0, 1);
    EXPECT_EQ(drawn(2) + drawn(3), 0);
}

TEST_F(LooksTest, MarkTheScrollBarBesideAllOfALongText)
{
    constexpr int kLines = 100'000;
    Put(QStringLiteral("aa\n").repeated(kLines));
    const QScrollBar& bar = *Window().verticalScrollBar();
    const auto marks = [&](int part) { // of ten
        const QRect area(bar.mapTo(&Window(), QPoint(0, 0)), bar.size());
        const int height = area.height() / 10;
        return CountOf(Drawn::Match,
                       QRect(area.left(), area.top() + part * height, area.width(), height - 1));
    };
    control.Call(engine::kShowMatches, 0, reinterpret_cast<LPARAM>(u"aa"), 1);
    EXPECT_TRUE(Becomes([&] { return marks(1) > 20; }));
    EXPECT_EQ(marks(8), marks(1));
    control.Call(engine::kShowMatchesWithin, 3 * kLines / 2, 3 * kLines * 3 / 4, 1);
    EXPECT_TRUE(Becomes([&] { return marks(6) > 20 && marks(1) == 0; }));
    EXPECT_EQ(marks(8), 0);
}

TEST_F(LooksTest, MarkTheScrollBarWhereSomethingIs)
{
    Put(QStringLiteral("line\n").repeated(400));
    const auto marks = [this](Drawn what) {
        const QScrollBar& bar = *Window().verticalScrollBar();
        const QRect area(bar.mapTo(&Window(), QPoint(0, 0)), bar.size());
        return CountOf(what, area);
    };
    EXPECT_EQ(marks(Drawn::Bookmark), 0);
    control.MarkerAdd(200, 0, 1);
    control.GotoPos(20, 1);
    control.ReplaceSel(u"needle", 1);
    EXPECT_TRUE(Becomes([&] { return marks(Drawn::Bookmark) > 0; }));
    EXPECT_GT(marks(Drawn::LineChanged), 0);
    control.Call(engine::kShowMatches, 0, reinterpret_cast<LPARAM>(u"needle"), 1);
    EXPECT_TRUE(Becomes([&] { return marks(Drawn::Match) > 0; }));
}

TEST_F(LooksTest, KeepWhatAHostIsFillingWithAnIndicator)
{
    Put(QStringLiteral("aa aa\n"));
    Window().SendScintilla(Sci::SCI_SETINDICATORCURRENT, 8UL);
    control.Call(engine::kShowMatches, 0, reinterpret_cast<LPARAM>(u"aa"), 1);
    EXPECT_EQ(Window().SendScintilla(Sci::SCI_GETINDICATORCURRENT), 8);
}

// The darkest of what is drawn in the margin of numbers beside a line.
int DarkestNumberIn(const QImage& picture, CZNCoreEditorControlEx& control, int line)
{
    const auto height = static_cast<int>(control.TextHeight(0, 1));
    const auto left = static_cast<int>(control.GetMarginWidthN(0, 1));
    const auto width = static_cast<int>(control.GetMarginWidthN(1, 1));
    int darkest = 255;
    for (int y = line * height; y < (line + 1) * height; ++y) {
        for (int x = left; x < left + width; ++x)
            darkest = std::min(darkest, qGray(picture.pixel(x, y)));
    }
    return darkest;
}

TEST_F(LooksTest, MakesTheNumberOfTheCurrentLineStandOut)
{
    Put(QStringLiteral("a\nb\nc\n"));
    for (const int line : {0, 2}) {
        control.GotoPos(2 * line, 1);
        QApplication::processEvents();
        const QImage picture = control.GetSafeHwnd()->grab().toImage();
        for (const int other : {0, 1, 2}) {
            if (other == line)
                continue;
            EXPECT_LT(DarkestNumberIn(picture, control, line) + 20,
                      DarkestNumberIn(picture, control, other))
                << line << ' ' << other;
        }
    }
}

TEST_F(LooksTest, TellsTheProblemUnderTheMouse)
{
    Put(QStringLiteral("select 1\nselect <b> 2\n"));
    ErrorInfo record;
    record.nStart = 16;
    record.nEnd = 19;
    record.SetText(u"no <b> here");
    control.ErrorAdd(1, &record, 1);
    control.ErrorsShow(1);
    QApplication::processEvents();
    const auto at = [this](long position) {
        return QPoint(static_cast<int>(control.PointXFromPosition(position, 1)) + 2,
                      static_cast<int>(control.PointYFromPosition(position, 1)) + 4);
    };
    EXPECT_EQ(HoverTips::TextAt(control, at(17)), "<p>no &lt;b&gt; here</p>");
    EXPECT_EQ(HoverTips::TextAt(control, at(2)), "");
    EXPECT_EQ(HoverTips::TextAt(control, QPoint(1, at(17).y())), "<p>no &lt;b&gt; here</p>");
    EXPECT_EQ(HoverTips::TextAt(control, QPoint(1, at(2).y())), "");
    const QPoint place = at(17);
    QHelpEvent event(QEvent::ToolTip, place, control.GetSafeHwnd()->mapToGlobal(place));
    QApplication::sendEvent(qobject_cast<QAbstractScrollArea*>(control.GetSafeHwnd())->viewport(),
                            &event);
    EXPECT_EQ(QToolTip::text(), "<p>no &lt;b&gt; here</p>");
    QToolTip::hideText();
}

TEST_F(LooksTest, SurroundsWhatIsSelectedByAQuoteThatIsTyped)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    Put(QStringLiteral("one two"));
    control.SetSel(0, 3, 1);
    options.SetInt(option::SurroundSelection, 1);
    QTest::keyClick(control.GetSafeHwnd(), '(');
    QTest::keyClick(control.GetSafeHwnd(), '\'');
    EXPECT_EQ(face.text(), "('one') two");
    EXPECT_EQ(control.GetSelectionStart(1), 2);
    EXPECT_EQ(control.GetSelectionEnd(1), 5);
    control.Undo(1);
    control.Undo(1);
    EXPECT_EQ(face.text(), "one two");
    options.SetInt(option::SurroundSelection, 0);
    control.SetSel(0, 3, 1);
    QTest::keyClick(control.GetSafeHwnd(), '(');
    EXPECT_EQ(face.text(), "( two");
}

TEST_F(LooksTest, SurroundsEachLineOfColumnsAndEachOfSeveralSelections)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    options.SetInt(option::SurroundSelection, 1);
    const auto select = [&](int from, int to) {
        const engine::ColumnCorners corners{.ends = {from, to}};
        control.Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
    };
    Put(QStringLiteral("abc\ndef\nghi\n"));
    select(1, 11);
    QTest::keyClick(control.GetSafeHwnd(), '\'');
    EXPECT_EQ(face.text(), "a'bc'\nd'ef'\ng'hi'\n");
    QTest::keyClick(control.GetSafeHwnd(), '(');
    EXPECT_EQ(face.text(), "a'(bc)'\nd'(ef)'\ng'(hi)'\n");
    control.Undo(1);
    control.Undo(1);
    EXPECT_EQ(face.text(), "abc\ndef\nghi\n");
    select(1, 9); // carets
    QTest::keyClick(control.GetSafeHwnd(), '(');
    QTest::keyClick(control.GetSafeHwnd(), 'x');
    EXPECT_EQ(face.text(), "a(xbc\nd(xef\ng(xhi\n");
    options.SetInt(option::SurroundSelection, 0);
}

TEST_F(LooksTest, GoesOnBehindTheIndentationOfALineThatIsBroken)
{
    control.SetAutoIndent(1);
    Put(QStringLiteral("    select a, b"));
    control.SetEOLMode(3, 1);
    control.GotoPos(13, 1); // in front of a blank
    QTest::keyClick(&Window(), Qt::Key_Return);
    QTest::keyClicks(&Window(), QStringLiteral("x"));
    EXPECT_EQ(face.text().toStdString(), "    select a,\n    xb");
    while (control.CanUndo(1))
        control.Undo(1);
    EXPECT_EQ(face.text().toStdString(), "    select a, b");
}

TEST_F(LooksTest, TellsWhatAFoldHides)
{
    Put(QStringLiteral("begin\n  one\n  two\n\nend\n"));
    control.Colorize(0, -1, 1);
    control.ToggleFold(0, 1);
    ASSERT_EQ(control.GetFoldExpanded(0, 1), 0);
    const long end = control.GetLineEndPosition(0, 1);
    const QPoint behind(static_cast<int>(control.PointXFromPosition(end, 1)) + 20, 4);
    EXPECT_TRUE(HoverTips::TextAt(control, behind).startsWith("<pre>  one\n  two\n"))
        << HoverTips::TextAt(control, behind).toStdString();
    control.ToggleFold(0, 1);
    EXPECT_EQ(HoverTips::TextAt(control, behind), "");
}

TEST_F(LooksTest, KeepTheCaretsLineWhereItIsWhenEverythingIsFolded)
{
    Put(QStringLiteral("begin\n  a\n  b\nend\n").repeated(200));
    const int line = 400; // begins a block
    control.GotoLine(line, 1);
    control.LineScroll(0, line - 3 - control.GetFirstVisibleLine(1), 1);
    const auto row = [&] {
        return control.VisibleFromDocLine(line, 1) - control.GetFirstVisibleLine(1);
    };
    ASSERT_EQ(row(), 3);
    FindHand(54252)->run(control);
    EXPECT_FALSE(control.GetLineVisible(line + 1, 1));
    EXPECT_EQ(row(), 3);
    FindHand(54253)->run(control);
    EXPECT_TRUE(control.GetLineVisible(line + 1, 1));
    EXPECT_EQ(row(), 3);
    EXPECT_EQ(control.GetCurLineNumber(), line);
}

TEST_F(LooksTest, ShowNoChevronWhereNothingIsToFold)
{
    const auto chevron = [&] {
        const auto right = static_cast<int>(control.PointXFromPosition(0, 1)) - 8;
        const QImage image = Window().grab().toImage();
        std::set<QRgb> colours;
        for (int x = right - 12; x < right; ++x) {
            for (int y = 2; y < control.TextHeight(0, 1) - 2; ++y)
                colours.insert(image.pixel(x, y));
        }
        return colours.size() > 1;
    };
    Put(QStringLiteral("begin"));
    EXPECT_FALSE(chevron());
    Put(QStringLiteral("begin\nend"));
    EXPECT_TRUE(chevron());
}

// The stock engine gives a text from the right no width, and has it lie over what follows.
TEST_F(LooksTest, ShowLettersFromTheRightOneByOne)
{
    const QStringList texts = {
        QStringLiteral("-- \u05D4\u05E2\u05E8\u05D4: \u05E1\u05E4\u05D9\u05E8\u05D4"), // Hebrew
        QStringLiteral("'\u0645\u0644\u0627\u062D\u0638\u0629'"),                      // Arabic
        QStringLiteral("'admin\u202E'")}; // an override
    for (const QString& text : texts) {
        Put(text + QStringLiteral(" where a = 1\n"));
        const QImage image = control.GetSafeHwnd()->grab().toImage();
        const auto xOf = [&](long position) {
            return static_cast<int>(control.PointXFromPosition(position, 1));
        };
        const auto hasInk = [&](int from, int to) {
            std::set<QRgb> colours;
            for (int x = from; x < to; ++x) {
                for (int y = 0; y < control.TextHeight(0, 1); ++y)
                    colours.insert(image.pixel(x, y));
            }
            return colours.size() > 1;
        };
        for (int i = 0; i < text.size(); ++i) {
            EXPECT_GT(xOf(i + 1), xOf(i) + 2) << i;
            EXPECT_EQ(hasInk(xOf(i), xOf(i + 1)), text[i] != u' ') << i;
        }
        EXPECT_EQ(xOf(text.size() + 5) - xOf(text.size()),
                  5 * control.TextWidth(32, u"x", 1)); // what follows stands behind
    }
}

// To a database they are no blanks: what is pasted from a web page fails for no reason to be seen.
TEST_F(LooksTest, NameWhatLooksLikeABlankOrNothing)
{
    for (const char32_t c : {U'\u00A0', U'\u2009', U'\u202F', U'\u00AD', U'\u200B', U'\u200D',
                             U'\uFEFF', U'\U000E0041'}) {
        Put(QStringLiteral("a") + QStringView(QChar::fromUcs4(c)).toString() +
            QStringLiteral("b\n"));
        const QImage image = control.GetSafeHwnd()->grab().toImage();
        const auto left = static_cast<int>(control.PointXFromPosition(1, 1));
        const auto right = static_cast<int>(control.PointXFromPosition(c > 0xFFFF ? 3 : 2, 1));
        EXPECT_GT(right - left, 2 * control.TextWidth(32, u"x", 1)) << std::hex << int(c);
        const int middle = static_cast<int>(control.TextHeight(0, 1)) / 2;
        std::set<QRgb> colours;
        for (int x = left; x < right; ++x)
            colours.insert(image.pixel(x, middle));
        EXPECT_GT(colours.size(), 1U) << std::hex << int(c);
    }
}

TEST_F(LooksTest, HaveRoomForTheAccentsOfCapitals)
{
    Put(QStringLiteral("\u00DC\u00C5\n")); // in the first line, which none above leaves room for
    StyleLook look;
    SendMessage(control.GetSafeHwnd(), kGetStyleLook, 0, reinterpret_cast<LPARAM>(&look));
    for (const int zoom : {-2, 0, 3}) {
        control.SetZoom(zoom, 1);
        QFont font(QString::fromUtf16(look.face));
        font.setPointSizeF(look.points + zoom);
        const QFontMetrics metrics(font);
        const int above = -metrics.boundingRect(QStringLiteral("\u00DC\u00C5")).top();
        EXPECT_GE(control.TextHeight(0, 1), above + metrics.descent()) << zoom;
    }
    control.SetZoom(0, 1);
    face.setScheme(QString());
    const long plain = control.TextHeight(0, 1);
    face.setScheme(QStringLiteral("Light"));
    EXPECT_EQ(control.TextHeight(0, 1), plain + 3);
}

TEST_F(LooksTest, StandABarBesideTheLinesOfThatStatement)
{
    Put(QStringLiteral("select 1;\nselect\n2;\n"));
    control.GotoPos(12, 1);
    ASSERT_TRUE(Becomes([&] { return IsMarked(kStatement, 12); }));
    QColor bar;
    const auto barAt = [&](int line) {
        const QPoint text(static_cast<int>(control.PointXFromPosition(0, 1)),
                          line * static_cast<int>(control.TextHeight(0, 1)) + 4);
        const QImage image = control.GetSafeHwnd()->grab().toImage();
        for (int x = text.x() - 5; x < text.x(); ++x) {
            if (image.pixelColor(x, text.y()) == bar)
                return true;
        }
        return false;
    };
    const COLORREF colour = control.Scheme()->Of(Drawn::Batch);
    bar = QColor(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
    EXPECT_FALSE(barAt(0));
    EXPECT_TRUE(barAt(1));
    EXPECT_TRUE(barAt(2));
    for (const int below : {3, 4, 7})
        EXPECT_FALSE(barAt(below)) << below;
}

TEST_F(LooksTest, LightUpTheStatementThatTheCommandWouldSelect)
{
    Put(QStringLiteral("select 1;\nselect\n2;\n"));
    EXPECT_TRUE(Becomes([&] { return IsMarked(kStatement, 0); }));
    EXPECT_FALSE(IsMarked(kStatement, 12));
    control.GotoPos(12, 1);
    ASSERT_TRUE(Becomes([&] { return IsMarked(kStatement, 12); }));
    EXPECT_FALSE(IsMarked(kStatement, 0));
    FindHand(54218)->run(control);
    const long start = control.GetSelectionStart(1);
    const long end = control.GetSelectionEnd(1);
    EXPECT_GT(end, start);
    for (long at = 0; at < control.GetLength(1); ++at)
        EXPECT_EQ(IsMarked(kStatement, at), at >= start && at < end) << at;
    face.setScheme(QString());
    EXPECT_FALSE(IsMarked(kStatement, 12));
}

// Two panes of one text have their marks in common.
class LooksOfTwoPanes : public LooksTest
{
protected:
    LooksOfTwoPanes()
    {
        Put(QStringLiteral("select aa;\nselect bb, bb, aa;\n"));
        other->setScheme(QStringLiteral("Light"));
        other->control().SetDocPointer(control.GetDocPointer(1), 1);
        other->setLanguage(kTransactSql);
        other->resize(500, 300);
        other->show();
        other->control().GotoPos(19, 1);
        control.GotoPos(8, 1);
    }

    static bool Enter(ZNCoreEditorWidget& pane)
    {
        pane.activateWindow();
        pane.setFocus();
        return Becomes([&] { return pane.control().GetSafeHwnd()->hasFocus(); });
    }
    bool IsLitOf(long lit, long dark)
    {
        return Becomes([&] {
            return IsMarked(kStatement, lit) && IsMarked(kOccurrences, lit) &&
                   !IsMarked(kStatement, dark) && !IsMarked(kOccurrences, dark);
        });
    }

    std::unique_ptr<ZNCoreEditorWidget> other = std::make_unique<ZNCoreEditorWidget>();
};

TEST_F(LooksOfTwoPanes, AreThoseOfThePaneThatHasTheFocus)
{
    ASSERT_TRUE(Enter(face));
    EXPECT_TRUE(IsLitOf(8, 19));
    ASSERT_TRUE(Enter(*other));
    EXPECT_TRUE(IsLitOf(19, 8));
    ASSERT_TRUE(Enter(face));
    EXPECT_TRUE(IsLitOf(8, 19));
}

TEST_F(LooksOfTwoPanes, StayWhenTheOtherPaneIsScrolled)
{
    control.AppendText(200, QString(200, u'\n').toStdU16String().c_str(), 1);
    ASSERT_TRUE(Enter(*other));
    ASSERT_TRUE(IsLitOf(19, 8));
    ASSERT_TRUE(Enter(face));
    ASSERT_TRUE(IsLitOf(8, 19));
    QApplication::processEvents(); // it looks through the rest of the text
    int updates = 0;
    QObject::connect(static_cast<Sci*>(other->control().GetSafeHwnd()), &Sci::SCN_UPDATEUI, &face,
                     [&updates](int updated) { updates |= updated; });
    other->control().LineScroll(0, 1, 1);
    EXPECT_TRUE(Becomes([&] { return (updates & Sci::SC_UPDATE_V_SCROLL) != 0; }));
    EXPECT_TRUE(IsMarked(kOccurrences, 8));
    EXPECT_FALSE(IsMarked(kOccurrences, 19));
}

TEST_F(LooksOfTwoPanes, GoWithThePane)
{
    control.GotoPos(10, 1); // at no word
    ASSERT_TRUE(Enter(face));
    ASSERT_TRUE(Becomes([&] { return IsMarked(kStatement, 8) && !IsMarked(kOccurrences, 8); }));
    ASSERT_TRUE(Enter(*other));
    ASSERT_TRUE(IsLitOf(19, 8));
    other.reset();
    ASSERT_TRUE(Enter(face));
    EXPECT_TRUE(Becomes([&] { return IsMarked(kStatement, 8) && !IsMarked(kStatement, 19); }));
    EXPECT_TRUE(Becomes([&] { return !IsMarked(kOccurrences, 19); }));
}

TEST_F(LooksTest, LightUpAnOccurrenceThatIsTypedElsewhere)
{
    Put(QStringLiteral("stock from\n"));
    control.GotoPos(2, 1);
    ASSERT_TRUE(Becomes([&] { return IsMarked(kStatement, 0); })); // the text rests
    control.InsertText(11, u"stock", 1);
    ASSERT_EQ(control.GetCurrentPos(1), 2);
    EXPECT_TRUE(Becomes([&] { return IsMarked(kOccurrences, 12); }));
}

// What is lit is no change that has it lit again.
TEST_F(LooksTest, RestOnceTheTextDoes)
{
    Put(QStringLiteral("stock from Stock;\n"));
    control.GotoPos(2, 1);
    ASSERT_TRUE(Becomes([&] { return IsMarked(kOccurrences, 12) && IsMarked(kStatement, 0); }));
    int updates = 0;
    QObject::connect(&Window(), &Sci::SCN_UPDATEUI, &face, [&updates] { ++updates; });
    QTest::qWait(900); // two rests
    EXPECT_LE(updates, 2);
}

// The stock engine's line, with a point at its end and nothing as high as the line.
TEST_F(LooksTest, DrawTabsAsThinArrows)
{
    Put(QStringLiteral("\t\tx\n"));
    control.SetCaretLineVisible(0, 1);
    control.GotoPos(4, 1);
    const auto rowsOfTab = [this](long tab) {
        const auto left = static_cast<int>(control.PointXFromPosition(tab, 1));
        const auto right = static_cast<int>(control.PointXFromPosition(tab + 1, 1));
        const QImage picture = Window().grab().toImage();
        QSet<int> rows;
        for (int y = 0; y < control.TextHeight(0, 1); ++y) {
            for (int x = left + 1; x < right; ++x) {
                if (qGray(picture.pixel(x, y)) < 225)
                    rows.insert(y);
            }
        }
        return rows.size();
    };
    EXPECT_EQ(rowsOfTab(0), 0);
    control.SetViewWS(1, 1);
    for (const long tab : {0, 1}) {
        EXPECT_GE(rowsOfTab(tab), 3) << tab;
        EXPECT_LE(rowsOfTab(tab), control.TextHeight(0, 1) / 2) << tab;
    }
}

// Of a line that is scrolled below them.
TEST_F(LooksTest, DrawNothingOfTheTextOverTheMargins)
{
    Put(QStringLiteral("begin\t\n  select 1;\nend\n"));
    control.Colorize(0, -1, 1);
    control.ToggleFold(0, 1);
    control.SetCaretLineVisible(0, 1);
    control.SetViewWS(1, 1);
    control.SetScrollWidth(1000, 1);
    int width = 0;
    for (int margin = 0; margin < 5; ++margin)
        width += control.GetMarginWidthN(margin, 1);
    const auto margins = [&](int offset) {
        control.SetXOffset(offset, 1);
        return Window().grab().toImage().copy(0, 0, width, control.TextHeight(0, 1));
    };
    const QImage plain = margins(0);
    const int end = static_cast<int>(control.PointXFromPosition(6, 1));
    for (int offset = end - width; offset < end; offset += 3)
        EXPECT_TRUE(margins(offset) == plain) << offset;
}

TEST_F(LooksTest, ScrollAsFarAsFingersGo)
{
    Put(QStringLiteral("line\n").repeated(400));
    const int height = control.TextHeight(0, 1);
    const auto move = [this](int pixels, Qt::ScrollPhase phase) {
        const QPointF place(50, 50);
        QWheelEvent wheel(place, Window().mapToGlobal(place), QPoint(0, pixels),
                          QPoint(0, pixels / 2), Qt::NoButton, Qt::NoModifier, phase, false);
        QApplication::sendEvent(Window().viewport(), &wheel);
    };
    move(0, Qt::ScrollBegin);
    for (int pixel = 0; pixel < 10 * height; ++pixel)
        move(-1, Qt::ScrollUpdate);
    EXPECT_EQ(control.GetFirstVisibleLine(1), 10);
    move(3 * height + 1, Qt::ScrollUpdate);
    EXPECT_EQ(control.GetFirstVisibleLine(1), 6); // its last pixel
    move(0, Qt::ScrollEnd);
    EXPECT_TRUE(Becomes([&] { return control.GetFirstVisibleLine(1) == 7; }));
    move(-15, Qt::NoScrollPhase); // a wheel, whose pixels mean nothing
    EXPECT_EQ(control.GetFirstVisibleLine(1), 7);
}

// A finger that is taken away while it moves leaves the text going on for a while.
TEST_F(LooksTest, SwingBehindAFinger)
{
    Put(QStringLiteral("line\n").repeated(400));
    QPointingDevice* device = TouchScreen();
    const auto finger = [&] { return QTest::touchEvent(Window().viewport(), device); };
    constexpr int kStep = 12; // pixels
    QPoint place(200, 250);
    finger().press(0, place, &Window());
    for (int i = 0; i < 15; ++i) {
        place.ry() -= kStep;
        finger().move(0, place, &Window());
        QTest::qWait(10);
    }
    const int held = control.GetFirstVisibleLine(1);
    EXPECT_GT(held, 3);
    EXPECT_LT(held, 15 * kStep / control.TextHeight(0, 1) + 2);
    finger().release(0, place, &Window());
    EXPECT_TRUE(Becomes([&] { return control.GetFirstVisibleLine(1) > held + 2; }));
    finger().press(0, place, &Window()); // stops it, and is no click
    finger().release(0, place, &Window());
    EXPECT_TRUE(Becomes([&] { return Window().viewport()->y() == 0; }));
    EXPECT_EQ(control.GetSelectionStart(1), 0);
    EXPECT_EQ(control.GetSelectionEnd(1), 0);
}

TEST_F(LooksTest, TakeATapForAClick)
{
    Put(QStringLiteral("one two\n"));
    QPointingDevice* device = TouchScreen();
    const QPoint place(control.PointXFromPosition(5, 1) + 1, 8);
    const auto tap = [&] {
        QTest::touchEvent(Window().viewport(), device).press(0, place, Window().viewport());
        QTest::touchEvent(Window().viewport(), device).release(0, place, Window().viewport());
    };
    tap();
    EXPECT_EQ(control.GetCurrentPos(1), 5);
    EXPECT_EQ(control.GetSelectionStart(1), 5);
    tap();
    EXPECT_EQ(control.GetSelectionStart(1), 4);
    EXPECT_EQ(control.GetSelectionEnd(1), 7);
}

} // namespace
