// SPDX-License-Identifier: GPL-3.0-or-later
// Two windows on one text, and parents that act from inside a notification.
#include "tests/engine/EngineFixture.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>

namespace msg = engine::message;

namespace {

const std::u16string kText = u"\u00e9ins\r\nzw\U0001F600i\r\ndrei\r\nvier\r\n";

class TwoWindows : public testing::Test
{
protected:
    TwoWindows() { ShowSame(); }

    void ShowSame()
    {
        m_first.SetText(kText);
        m_first.Send(msg::EmptyUndoBuffer);
        m_second->Send(msg::SetDocPointer, 0, m_first.Send(msg::GetDocPointer));
        m_first.Parent().heard.clear();
        m_second->Parent().heard.clear();
    }

    EngineUnderTest m_first;
    std::unique_ptr<EngineUnderTest> m_second = std::make_unique<EngineUnderTest>();
};

long Caret(const EngineUnderTest& engine)
{
    return engine.Send(msg::GetCurrentPos);
}

void Type(const EngineUnderTest& engine, const std::u16string& text)
{
    engine.Send(msg::ReplaceSel, 0, text.c_str());
}

// A deferred deletion happens where the event loop is; there is none in a test.
void RunDeferredDeletions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

TEST_F(TwoWindows, BothHearOfAChangeInOne)
{
    m_first.Send(msg::GotoPos, 8);
    Type(m_first, u"\u00fc\r\n");
    for (EngineUnderTest* engine : {&m_first, m_second.get()}) {
        const auto news = engine->Parent().Of(notify::Modified);
        ASSERT_EQ(news.size(), 1u);
        EXPECT_EQ(news[0].text, u"\u00fc\r\n");
        EXPECT_EQ(news[0].record.position, 8);
        EXPECT_EQ(news[0].record.linesAdded, 1);
        EXPECT_EQ(news[0].record.nmhdr.hwndFrom, engine->Window());
    }
}

TEST_F(TwoWindows, AHandlerBeforeAChangeDoesNotSeeItAsDone)
{
    const auto ask = [](Listener& listener, const SCNotification&) {
        SendMessage(listener.editor, msg::GetLength, 0, 0);
    };
    m_second->Send(msg::HideLines, 1, 2);
    for (EngineUnderTest* engine : {&m_first, m_second.get()}) {
        engine->Parent().editor = engine->Window();
        engine->Parent().onNotify = ask;
    }
    m_first.Send(msg::SetSel, 2, 3);
    Type(m_first, u"long\r\nlines");
    for (EngineUnderTest* engine : {&m_first, m_second.get()}) {
        const auto news = engine->Parent().Of(notify::Modified);
        ASSERT_EQ(news.size(), 2u);
        EXPECT_EQ(news[0].text, u"n");
        EXPECT_EQ(news[1].text, u"long\r\nlines");
    }
}

TEST_F(TwoWindows, PositionsAgreeInBoth)
{
    m_second->Send(msg::GotoPos, 12);
    m_first.Send(msg::GotoPos, 0);
    Type(m_first, u"\U0001F600\u00df");
    EXPECT_EQ(Caret(*m_second), 15);
    EXPECT_EQ(m_second->Send(msg::GetLength), static_cast<LRESULT>(kText.size()) + 3);
    EXPECT_EQ(m_second->Send(msg::LineFromPosition, 15), 1);
    EXPECT_EQ(m_second->Text(), m_first.Text());
}

TEST_F(TwoWindows, UndoInOneLeavesCaretAndScrollOfTheOther)
{
    std::u16string lines;
    for (int i = 0; i < 300; ++i)
        lines += u"\u00e4 line\n";
    m_first.SetText(lines);
    m_first.Send(msg::GotoPos, 3);
    Type(m_first, u"abc");
    m_second->Send(msg::GotoLine, 200);
    const long caret = Caret(*m_second);
    const LRESULT top = m_second->Send(msg::GetFirstVisibleLine);
    ASSERT_GT(top, 100);
    m_first.Send(msg::Undo);
    EXPECT_EQ(Caret(m_first), 3);
    EXPECT_EQ(Caret(*m_second), caret - 3);
    EXPECT_EQ(m_second->Send(msg::GetFirstVisibleLine), top);
}

TEST_F(TwoWindows, UndoKeepsTheSelectionOfTheOther)
{
    m_first.Send(msg::GotoPos, 0);
    Type(m_first, u"xy");
    m_second->Send(msg::SetSel, 10, 14);
    m_first.Send(msg::Undo);
    EXPECT_EQ(m_second->Send(msg::GetAnchor), 8);
    EXPECT_EQ(Caret(*m_second), 12);
    m_first.Send(msg::Redo);
    EXPECT_EQ(m_second->Send(msg::GetAnchor), 10);
    EXPECT_EQ(Caret(*m_second), 14);
}

TEST_F(TwoWindows, ClosingOneLeavesTheOther)
{
    m_second->Send(msg::GotoPos, 5);
    m_second.reset();
    Type(m_first, u"a");
    EXPECT_EQ(m_first.Text(), u"a" + kText);
    EXPECT_EQ(m_first.Parent().Of(notify::Modified).size(), 1u);
}

TEST_F(TwoWindows, TheTextOutlivesTheWindowThatMadeIt)
{
    EngineUnderTest third;
    {
        EngineUnderTest maker;
        maker.SetText(kText);
        third.Send(msg::SetDocPointer, 0, maker.Send(msg::GetDocPointer));
    }
    Type(third, u"!");
    EXPECT_EQ(third.Text(), u"!" + kText);
}

TEST_F(TwoWindows, ADocumentOfTheHostsOutlivesEveryWindow)
{
    const LRESULT document = m_first.Send(msg::CreateDocument);
    {
        EngineUnderTest writer;
        writer.Send(msg::SetDocPointer, 0, document);
        writer.SetText(u"kept \u00e9");
    }
    m_first.Send(msg::SetDocPointer, 0, document);
    m_first.Send(msg::ReleaseDocument, 0, document);
    EXPECT_EQ(m_first.Text(), u"kept \u00e9");
}

TEST_F(TwoWindows, AnotherDocumentHasAnUndoHistoryOfItsOwn)
{
    Type(m_first, u"typed");
    const LRESULT document = m_first.Send(msg::GetDocPointer);
    m_first.Send(msg::SetDocPointer, 0, LRESULT{0});
    EXPECT_EQ(m_first.Text(), u"");
    EXPECT_EQ(m_first.Send(msg::CanUndo), 0);
    m_first.Send(msg::SetDocPointer, 0, document);
    m_first.Send(msg::Undo);
    EXPECT_EQ(m_first.Text(), kText);
}

TEST_F(TwoWindows, AWindowMayTakeTheDocumentThatItShows)
{
    EngineUnderTest only;
    only.SetText(kText);
    Type(only, u"typed");
    only.Send(msg::SetDocPointer, 0, only.Send(msg::GetDocPointer));
    EXPECT_EQ(only.Text(), u"typed" + kText);
    only.Send(msg::Undo);
    EXPECT_EQ(only.Text(), kText);
}

TEST_F(TwoWindows, ReleasingMoreThanIsHeldIsIgnored)
{
    const LRESULT document = m_first.Send(msg::GetDocPointer);
    m_first.Send(msg::AddRefDocument, 0, document);
    for (int i = 0; i < 5; ++i)
        m_first.Send(msg::ReleaseDocument, 0, document);
    EXPECT_EQ(m_second->Text(), kText);
}

TEST_F(TwoWindows, APointerThatIsNoDocumentIsIgnored)
{
    int stranger = 0;
    m_first.Send(msg::SetDocPointer, 0, &stranger);
    m_first.Send(msg::AddRefDocument, 0, &stranger);
    m_first.Send(msg::ReleaseDocument, 0, &stranger);
    EXPECT_EQ(m_first.Text(), kText);
}

TEST_F(TwoWindows, AnUndoActionEndsOnceForEachBegin)
{
    m_first.Send(msg::BeginUndoAction);
    Type(m_first, u"a");
    m_second->Send(msg::GotoPos, 5);
    Type(*m_second, u"b");
    m_second->Send(msg::EndUndoAction);
    m_second->Send(msg::EndUndoAction);
    m_first.Send(msg::EndUndoAction);
    m_first.Send(msg::Undo);
    EXPECT_EQ(m_first.Text(), kText);
}

TEST_F(TwoWindows, StoppingToCollectUndoDropsTheOpenAction)
{
    m_first.Send(msg::BeginUndoAction);
    m_second->Send(msg::SetUndoCollection, 0);
    m_second->Send(msg::SetUndoCollection, 1);
    m_first.Send(msg::EndUndoAction);
    Type(m_first, u"a");
    m_first.Send(msg::Undo);
    EXPECT_EQ(m_first.Text(), kText);
}

namespace {

// A handler that acts the first time that it hears the code.
struct Act
{
    UINT code = 0;
    void (*what)(Listener& listener) = nullptr;
    int left = 1;
};

Act s_act;

void ActOnce(Listener& listener, const SCNotification& record)
{
    if (record.nmhdr.code == s_act.code && s_act.left-- > 0)
        s_act.what(listener);
}

class FromInside : public testing::TestWithParam<UINT>
{
protected:
    void Do(void (*what)(Listener&))
    {
        s_act = {GetParam(), what};
        m_engine->Parent().onNotify = ActOnce;
        m_engine->Send(msg::SetSel, 1, 3); // two changes: the first is told inside of the second
        Type(*m_engine, u"new");
        m_engine->Window()->grab(); // an update of the window is told when it is painted
        EXPECT_LE(s_act.left, 0);
    }

    std::unique_ptr<EngineUnderTest> m_engine = [] {
        auto engine = std::make_unique<EngineUnderTest>();
        engine->SetText(kText);
        return engine;
    }();
};

std::string CodeName(const testing::TestParamInfo<UINT>& info)
{
    return info.param == notify::Modified ? "Modified" : "UpdateUi";
}

} // namespace

TEST_P(FromInside, AnEditSurvives)
{
    Do([](Listener& listener) { SendMessage(listener.editor, msg::ReplaceSel, 0, (LPARAM)u"!"); });
    // A text that is inside a change takes no other.
    EXPECT_EQ(m_engine->Text().find(u'!') != std::u16string::npos, GetParam() == notify::UpdateUi);
    EXPECT_EQ(m_engine->Send(msg::GetLength), static_cast<LRESULT>(m_engine->Text().size()));
}

TEST_P(FromInside, AnUndoSurvives)
{
    Do([](Listener& listener) { SendMessage(listener.editor, msg::Undo, 0, 0); });
    if (GetParam() == notify::Modified) // refused: the text is inside a change
        m_engine->Send(msg::Undo);
    EXPECT_EQ(m_engine->Text(), kText);
}

TEST_P(FromInside, AnEmptiedUndoHistorySurvivesTheUndo)
{
    m_engine->Send(msg::SetSel, 1, 3);
    Type(*m_engine, u"first");
    s_act = {GetParam(),
             [](Listener& listener) { SendMessage(listener.editor, msg::EmptyUndoBuffer, 0, 0); }};
    m_engine->Parent().onNotify = ActOnce;
    m_engine->Send(msg::Undo);
    m_engine->Window()->grab();
    EXPECT_LE(s_act.left, 0);
    EXPECT_EQ(m_engine->Text(), kText);
    EXPECT_EQ(m_engine->Send(msg::CanUndo), 0);
}

TEST_P(FromInside, AnotherDocumentSurvives)
{
    Do([](Listener& listener) { SendMessage(listener.editor, msg::SetDocPointer, 0, 0); });
    EXPECT_EQ(m_engine->Text(), u"");
}

TEST_P(FromInside, ADeferredCloseOfTheWindowSurvives)
{
    const QPointer<QWidget> window = m_engine->Window();
    Do([](Listener& listener) { listener.editor->deleteLater(); });
    RunDeferredDeletions();
    EXPECT_FALSE(window);
}

TEST_P(FromInside, AStopOfUndoCollectionSurvives)
{
    m_engine->Send(msg::BeginUndoAction);
    Do([](Listener& listener) { SendMessage(listener.editor, msg::SetUndoCollection, 0, 0); });
    m_engine->Send(msg::EndUndoAction);
    EXPECT_EQ(m_engine->Send(msg::GetUndoCollection), 0);
}

INSTANTIATE_TEST_SUITE_P(ANotification, FromInside,
                         testing::Values(notify::Modified, notify::UpdateUi), CodeName);

// Long enough that a place in the middle is found by the line index.
TEST_F(TwoWindows, AWindowThatComesLaterDoesNotTrustALineIndexFromBefore)
{
    const std::u16string line = u"sel\u00e9ct \U0001F600 from t\u00e4ble where x = 'y';\r\n";
    std::u16string text;
    for (int i = 0; i < 12000; ++i)
        text += line;
    m_first.SetText(text);
    const auto start = static_cast<long>(6000 * line.size());
    ASSERT_EQ(m_first.Send(msg::PositionFromLine, 6000), start);
    const long behindCr = start - 1;
    m_first.Insert(behindCr, u"\u00e9\u00e9"); // CR and LF part
    text.insert(static_cast<std::size_t>(behindCr), u"\u00e9\u00e9");
    m_first.Erase(behindCr, behindCr + 2); // and meet again
    text.erase(static_cast<std::size_t>(behindCr), 2);
    EngineUnderTest later;
    later.Send(msg::SetDocPointer, 0, m_first.Send(msg::GetDocPointer));
    for (const EngineUnderTest* engine : {&later, &m_first}) {
        EXPECT_EQ(engine->Send(msg::PositionFromLine, 6000), start);
        EXPECT_EQ(engine->Send(msg::PositionFromLine, 6001),
                  start + static_cast<long>(line.size()));
        EXPECT_EQ(engine->Send(msg::LineFromPosition, static_cast<WPARAM>(start + 90000)),
                  6000 + 90000 / static_cast<long>(line.size()));
    }
}

TEST_F(TwoWindows, BothKnowWhetherTheTextIsReadOnly)
{
    EXPECT_EQ(m_second->Send(msg::GetReadOnly), 0);
    m_first.Send(msg::SetReadOnly, 1);
    EXPECT_EQ(m_first.Send(msg::GetReadOnly), 1);
    EXPECT_EQ(m_second->Send(msg::GetReadOnly), 1);
    m_second->Send(msg::SetDocPointer);
    EXPECT_EQ(m_second->Send(msg::GetReadOnly), 0);
    EXPECT_EQ(m_first.Send(msg::GetReadOnly), 1);
    m_second->Send(msg::SetDocPointer, 0, m_first.Send(msg::GetDocPointer));
    EXPECT_EQ(m_second->Send(msg::GetReadOnly), 1);
    m_second->Send(msg::SetReadOnly, 0);
    EXPECT_EQ(m_first.Send(msg::GetReadOnly), 0);
}

// A change between CR and LF adds a line without having an end of one, and takes it again.
TEST_F(TwoWindows, BothCountTheLinesOfEveryChange)
{
    for (const std::u16string around : {u"", u"\r", u"\n", u"\r\n", u"ab", u"a\n", u"\rb"}) {
        for (const std::u16string text :
             {u"x", u"words of it", u"\r", u"\n", u"longer than\r\nmost", u"\u00e9", u"a\rb",
              u"a long text of no line's end"}) {
            m_first.SetText(around);
            m_first.Parent().heard.clear();
            m_second->Parent().heard.clear();
            const long lines = m_first.Send(msg::GetLineCount);
            m_first.Insert(around.empty() ? 0 : 1, text);
            const long more = m_first.Send(msg::GetLineCount) - lines;
            m_first.Send(msg::Undo);
            m_first.Send(msg::Redo);
            ASSERT_EQ(m_first.Send(msg::GetLineCount), lines + more);
            for (EngineUnderTest* engine : {&m_first, m_second.get()}) {
                const auto news = engine->Parent().Of(notify::Modified);
                ASSERT_EQ(news.size(), 3u);
                EXPECT_EQ(news[0].record.linesAdded, more);
                EXPECT_EQ(news[1].record.linesAdded, -more);
                EXPECT_EQ(news[2].record.linesAdded, more);
            }
        }
    }
}
