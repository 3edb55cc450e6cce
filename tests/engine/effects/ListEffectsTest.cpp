// SPDX-License-Identifier: GPL-3.0-or-later
// What the settings of a list change about what it shows, when it goes and what it puts in; and the
// colours of call tips. The rows are read from the list's own widget.
#include "tests/engine/effects/EffectsFixture.h"

#include "control/Completion.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QListView>
#include <QPointer>

namespace msg = engine::message;

namespace {

class Lists : public Effects
{
protected:
    Lists() { m_engine.Parent().GetSafeHwnd()->show(); }

    // Of what a list replaces: so many units before the caret.
    void Offer(const std::vector<std::u16string>& texts, int typed, int image = -1)
    {
        std::vector<std::shared_ptr<znsqlassist::SQLCompletionProposal>> proposals;
        for (const std::u16string& text : texts)
            proposals.push_back(std::make_shared<znsqlassist::SQLCompletionProposal>(text, image));
        const AutoCompleteConfig config{nullptr, 1, typed, 1};
        m_engine.Send(msg::AutoCShow, reinterpret_cast<WPARAM>(&config), &proposals);
    }

    // The widget of a list that is over waits for the event loop.
    void TakeDown()
    {
        m_engine.Send(msg::AutoCCancel);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    bool IsShown() const { return m_engine.Send(msg::AutoCActive) != 0; }

    QListView* View() const
    {
        for (auto* view : m_engine.Window()->findChildren<QListView*>()) {
            if (view->isVisible())
                return view;
        }
        return nullptr;
    }

    QStringList Rows() const
    {
        QStringList rows;
        if (const QListView* view = View()) {
            for (int row = 0; row < view->model()->rowCount(); ++row)
                rows << view->model()->index(row, 0).data().toString();
        }
        return rows;
    }

    bool HasImage() const
    {
        return !View()->model()->index(0, 0).data(Qt::DecorationRole).isNull();
    }
};

class CallTips : public Effects
{
protected:
    CallTips()
    {
        m_engine.Parent().GetSafeHwnd()->show();
        Place(u"f(|");
    }

    void Show() { m_engine.Send(msg::CallTipShow, 2, u"MMMM(first, second)"); }

    QImage TipPicture() const
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget != m_engine.Window()->window())
                return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
        }
        return {};
    }
};

const char* const kImage[] = {"4 4 1 1", "x c #FF0000", "xxxx", "xxxx", "xxxx", "xxxx"};

} // namespace

TEST_F(Lists, GoWhenACharacterIsTypedThatStopsThem)
{
    m_engine.Send(msg::AutoCStops, 0, u".;");
    Place(u"al|");
    Offer({u"al", u"al;x", u"al.x"}, 2);
    ASSERT_TRUE(IsShown());
    Type(";");
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(Placed(), u"al;|");
}

TEST_F(Lists, GoAndLeaveTheTextWhenACommandIsCancelled)
{
    Place(u"al|");
    Offer({u"alpha", u"alpine"}, 2);
    ASSERT_TRUE(IsShown());
    m_engine.Send(msg::Cancel);
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(Placed(), u"al|");
}

TEST_F(Lists, AreFilledInByACharacterThatEndsThem)
{
    m_engine.Send(msg::AutoCSetFillUps, 0, u"(");
    Place(u"al|");
    Offer({u"alpha", u"alpine"}, 2);
    Type("p");
    ASSERT_TRUE(IsShown());
    Type("(");
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(Placed(), u"alpha(|");
}

TEST_F(Lists, AreCutIntoRowsAtTheSeparator)
{
    m_engine.Send(msg::UserListShow, 1, u"a b;c");
    EXPECT_EQ(Rows(), (QStringList{"a", "b;c"}));
    TakeDown();
    m_engine.Send(msg::AutoCSetSeparator, ';');
    EXPECT_EQ(m_engine.Send(msg::AutoCGetSeparator), ';');
    m_engine.Send(msg::UserListShow, 1, u"a b;c");
    EXPECT_EQ(Rows(), (QStringList{"a b", "c"}));
}

TEST_F(Lists, TakeTheNumberOfAnImageBehindItsSeparator)
{
    m_engine.Send(msg::RegisterImage, 3, static_cast<const void*>(kImage));
    m_engine.Send(msg::UserListShow, 1, u"a#3 b?3");
    EXPECT_EQ(Rows(), (QStringList{"a#3", "b"}));
    TakeDown();
    m_engine.Send(msg::AutoCSetTypeSeparator, '#');
    EXPECT_EQ(m_engine.Send(msg::AutoCGetTypeSeparator), '#');
    m_engine.Send(msg::UserListShow, 1, u"a#3 b?3");
    EXPECT_EQ(Rows(), (QStringList{"a", "b?3"}));
    EXPECT_TRUE(HasImage());
}

TEST_F(Lists, ShowImagesUntilTheseAreCleared)
{
    Place(u"|");
    m_engine.Send(msg::RegisterImage, 3, static_cast<const void*>(kImage));
    Offer({u"alpha"}, 0, 3);
    EXPECT_TRUE(HasImage());
    TakeDown();
    m_engine.Send(msg::ClearRegisteredImages);
    Offer({u"alpha"}, 0, 3);
    EXPECT_FALSE(HasImage());
}

TEST_F(Lists, AreKnownByTheirWindow)
{
    const auto isList = [this](const QWidget* widget) {
        return m_engine.Send(msg::IsAutoCHwnd, reinterpret_cast<WPARAM>(widget)) != 0;
    };
    Place(u"|");
    Offer({u"alpha"}, 0);
    const QPointer<QListView> view = View();
    ASSERT_TRUE(view);
    EXPECT_TRUE(isList(view));
    EXPECT_TRUE(isList(view->viewport()));
    EXPECT_FALSE(isList(m_engine.Window()));
    EXPECT_FALSE(isList(nullptr));
    m_engine.Send(msg::AutoCCancel);
    EXPECT_FALSE(isList(view));
}

TEST_F(Lists, GoWithTheFirstCharacterErasedUnlessTheyMayStay)
{
    for (const LRESULT cancels : {1, 0}) {
        m_engine.Send(msg::AutoCSetCancelAtStart, static_cast<WPARAM>(cancels));
        EXPECT_EQ(m_engine.Send(msg::AutoCGetCancelAtStart), cancels);
        Place(u"|");
        Offer({u"alpha"}, 0);
        Type("a");
        ASSERT_TRUE(IsShown());
        m_engine.Send(msg::DeleteBack);
        EXPECT_EQ(IsShown(), !cancels);
        TakeDown();
    }
}

TEST_F(Lists, OfOneRowArePutInAtOnceWhereTheyMay)
{
    Place(u"al|");
    Offer({u"alpha"}, 2);
    EXPECT_EQ(Placed(), u"al|");
    EXPECT_TRUE(IsShown());
    TakeDown();
    m_engine.Send(msg::AutoCSetChooseSingle, 1);
    EXPECT_EQ(m_engine.Send(msg::AutoCGetChooseSingle), 1);
    Offer({u"alpha"}, 2);
    EXPECT_EQ(Placed(), u"alpha|");
    EXPECT_FALSE(IsShown());
}

TEST_F(Lists, FindWhatIsTypedInEitherCaseWhereTheyMay)
{
    for (const LRESULT ignores : {0, 1}) {
        m_engine.Send(msg::AutoCSetIgnoreCase, static_cast<WPARAM>(ignores));
        EXPECT_EQ(m_engine.Send(msg::AutoCGetIgnoreCase), ignores);
        Place(u"|");
        Offer({u"alpha", u"beta"}, 0);
        Type("B");
        ASSERT_EQ(IsShown(), ignores != 0); // what fits nothing takes the list away
        m_engine.Send(msg::AutoCComplete);
        EXPECT_EQ(Placed(), ignores ? u"beta|" : u"B|");
    }
}

TEST_F(Lists, GoWhenNothingFitsUnlessTheyMayStay)
{
    for (const LRESULT hides : {1, 0}) {
        m_engine.Send(msg::AutoCSetAutoHide, static_cast<WPARAM>(hides));
        EXPECT_EQ(m_engine.Send(msg::AutoCGetAutoHide), hides);
        Place(u"|");
        Offer({u"alpha", u"beta"}, 0);
        Type("z");
        EXPECT_EQ(IsShown(), !hides);
        TakeDown();
    }
}

TEST_F(Lists, AreNoWiderThanSoManyCharacters)
{
    Place(u"|");
    Offer({std::u16string(100, u'x')}, 0);
    EXPECT_GT(View()->width(), ColumnAt(90));
    TakeDown();
    m_engine.Send(msg::AutoCSetMaxWidth, 20);
    EXPECT_EQ(m_engine.Send(msg::AutoCGetMaxWidth), 20);
    Offer({std::u16string(100, u'x')}, 0);
    EXPECT_NEAR(View()->width(), ColumnAt(20), 20);
}

TEST_F(Lists, AreNoHigherThanSoManyRows)
{
    const std::vector<std::u16string> texts(30, u"alpha");
    for (const int rows : {3, 12}) {
        m_engine.Send(msg::AutoCSetMaxHeight, static_cast<WPARAM>(rows));
        EXPECT_EQ(m_engine.Send(msg::AutoCGetMaxHeight), rows);
        Place(u"|");
        Offer(texts, 0);
        EXPECT_EQ(View()->viewport()->height() / View()->sizeHintForRow(0), rows);
        TakeDown();
    }
}

TEST_F(Lists, ReplaceTheRestOfAWordWhereTheyMay)
{
    for (const LRESULT drops : {0, 1}) {
        m_engine.Send(msg::AutoCSetDropRestOfWord, static_cast<WPARAM>(drops));
        EXPECT_EQ(m_engine.Send(msg::AutoCGetDropRestOfWord), drops);
        Place(u"al|pine x");
        Offer({u"alpha"}, 2);
        m_engine.Send(msg::AutoCComplete);
        EXPECT_EQ(Placed(), drops ? u"alpha| x" : u"alpha|pine x");
    }
}

TEST_F(CallTips, HaveTheirColours)
{
    m_engine.Send(msg::CallTipSetBack, 0x00FF00);
    m_engine.Send(msg::CallTipSetFore, 0x0000FF);
    m_engine.Send(msg::CallTipSetForeHlt, 0xFF0000);
    Show();
    const QImage plain = TipPicture();
    ASSERT_FALSE(plain.isNull());
    EXPECT_GT(CountOf(plain, 0x00FF00), plain.width() * plain.height() / 3);
    EXPECT_GT(CountOf(plain, 0xFF0000), 0);
    EXPECT_EQ(CountOf(plain, 0x0000FF), 0);
    m_engine.Send(msg::CallTipSetHlt, 0, LPARAM{4});
    const QImage highlighted = TipPicture();
    const QRect name(0, 0, plain.width() / 5, plain.height()); // 4 of 19 characters
    EXPECT_GT(CountOf(plain, 0xFF0000, name), 0);
    EXPECT_GT(CountOf(highlighted, 0x0000FF, name), 0);
    EXPECT_EQ(CountOf(highlighted, 0xFF0000, name), 0);
    EXPECT_GT(CountOf(highlighted, 0xFF0000), 0);
}

TEST_F(CallTips, GoWhenACommandIsCancelled)
{
    Show();
    ASSERT_EQ(m_engine.Send(msg::CallTipActive), 1);
    m_engine.Send(msg::Cancel);
    EXPECT_EQ(m_engine.Send(msg::CallTipActive), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(TipPicture().isNull());
}
