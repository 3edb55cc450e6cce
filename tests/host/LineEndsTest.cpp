// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/LineEnds.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "tests/RandomSeed.h"

#include <QStringList>
#include <QTest>

#include <gtest/gtest.h>

#include <random>

namespace {

LineEndKind KindOf(std::u16string_view text)
{
    LineEndCount count;
    count.Add(text);
    return count.Kind();
}

class LineEndsInAnEditor : public testing::Test
{
protected:
    LineEndsInAnEditor()
    {
        QObject::connect(&watch, &LineEndWatch::KindChanged, [this] { ++changes; });
    }

    void Put(const std::u16string& text) { editor.control().SetText(text.c_str(), 1); }
    void Finish()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !watch.IsLooking(); }, 10000));
    }

    ZNCoreEditorWidget editor;
    LineEndWatch watch{editor.control(), nullptr};
    int changes = 0;
};

} // namespace

TEST(LineEnds, AreOfOneKindOrMixed)
{
    EXPECT_EQ(KindOf(u""), LineEndKind::None);
    EXPECT_EQ(KindOf(u"one line"), LineEndKind::None);
    EXPECT_EQ(KindOf(u"a\r\nb\r\n"), LineEndKind::CrLf);
    EXPECT_EQ(KindOf(u"a\nb"), LineEndKind::Lf);
    EXPECT_EQ(KindOf(u"a\r\rb"), LineEndKind::Cr);
    EXPECT_EQ(KindOf(u"a\r"), LineEndKind::Cr);
    EXPECT_EQ(KindOf(u"a\n\rb"), LineEndKind::Mixed);
    EXPECT_EQ(KindOf(u"a\r\nb\n"), LineEndKind::Mixed);
    EXPECT_EQ(KindOf(u"a\r\nb\r"), LineEndKind::Mixed);
    EXPECT_EQ(KindOf(u"a\u2028b\u0085c"), LineEndKind::None);
}

TEST(LineEnds, AreTheSameWhereverTheTextIsDivided)
{
    const unsigned int seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    for (int i = 0; i < 2000; ++i) {
        std::u16string text;
        for (auto count = random() % 8; count > 0; --count)
            text += random() % 3 == 0 ? u"\r" : random() % 2 ? u"\n" : u"\r\n";
        LineEndCount divided;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t size = random() % 3;
            divided.Add(std::u16string_view(text).substr(at, size));
            at += size;
        }
        EXPECT_EQ(divided.Kind(), KindOf(text));
    }
}

TEST(LineEnds, HaveNames)
{
    EXPECT_EQ(LineEndText(LineEndKind::CrLf, 3), "CR LF");
    EXPECT_EQ(LineEndText(LineEndKind::Cr, 3), "CR");
    EXPECT_EQ(LineEndText(LineEndKind::Lf, 1), "LF");
    EXPECT_EQ(LineEndText(LineEndKind::Mixed, 1), "Mixed");
    EXPECT_EQ(LineEndText(LineEndKind::None, 1), "CR LF"); // what Enter puts in
}

TEST_F(LineEndsInAnEditor, AreKnownAtOnceForAShortText)
{
    Put(u"a\nb\n");
    watch.Look();
    EXPECT_EQ(watch.Kind(), LineEndKind::Lf);
    EXPECT_EQ(changes, 1);
    watch.Look();
    EXPECT_EQ(changes, 1);
}

TEST_F(LineEndsInAnEditor, AreLookedAtOnceMoreWhenTheTextRests)
{
    watch.Look();
    Put(u"a\nb\r\n");
    watch.TextChanged();
    watch.TextChanged();
    EXPECT_TRUE(watch.IsLooking());
    EXPECT_EQ(watch.Kind(), LineEndKind::None);
    Finish();
    EXPECT_EQ(watch.Kind(), LineEndKind::Mixed);
    EXPECT_EQ(changes, 1);
}

TEST_F(LineEndsInAnEditor, OfALongTextAreSeenSliceBySlice)
{
    std::u16string text(4 * 1024 * 1024, u'x');
    text.front() = u'\n';
    Put(text + u"\r\n");
    watch.Look();
    EXPECT_TRUE(watch.IsLooking());
    EXPECT_EQ(watch.Kind(), LineEndKind::None);
    Finish();
    EXPECT_EQ(watch.Kind(), LineEndKind::Mixed);
}

TEST_F(LineEndsInAnEditor, StopBeingLookedAtWhenTheTextChanges)
{
    Put(std::u16string(4 * 1024 * 1024, u'x') + u"\r\n");
    watch.Look();
    Put(u"");
    watch.TextChanged();
    Finish();
    EXPECT_EQ(watch.Kind(), LineEndKind::None);
    EXPECT_EQ(changes, 0);
}
