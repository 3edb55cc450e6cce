// SPDX-License-Identifier: GPL-3.0-or-later
// What Qt tells a widget, as the messages that a CWnd gets.
#include "platform/windows/WindowEvents.h"

#include "platform/windows/Accelerators.h"
#include "platform/windows/Wnd.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <vector>

namespace {

class Listener final : public CWnd
{
public:
    explicit Listener(HWND window) { Attach(window); }
    ~Listener() override { Detach(); }

    int PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_CHAR)
            characters += QChar(static_cast<char16_t>(message->wParam));
        else if (message->wParam != WPARAM{Qt::Key_Shift}) // with which a test's key begins
            keys.push_back({message->wParam, message->lParam});
        return takes || (takesCharacters && message->message == WM_CHAR) ? 1 : 0;
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_KILLFOCUS)
            focusWentTo.push_back(reinterpret_cast<HWND>(wParam));
        return CWnd::WindowProc(message, wParam, lParam);
    }

    std::vector<std::pair<WPARAM, LPARAM>> keys;
    std::vector<HWND> focusWentTo;
    QString characters;
    bool takes = false;
    bool takesCharacters = false;
};

class WindowEvents : public testing::Test
{
protected:
    WindowEvents()
    {
        auto* layout = new QVBoxLayout(&m_outer);
        layout->addWidget(&m_edit);
        layout->addWidget(&m_other);
        m_outer.show();
        QApplication::setActiveWindow(&m_outer);
        m_edit.setFocus();
    }

    QWidget m_outer;
    QLineEdit m_edit;
    QLineEdit m_other;
};

TEST_F(WindowEvents, TellWhoGetsTheFocus)
{
    const Listener listener(&m_edit);
    m_other.setFocus();
    EXPECT_EQ(listener.focusWentTo, std::vector<HWND>({&m_other}));
    m_edit.setFocus();
    m_edit.clearFocus();
    EXPECT_EQ(listener.focusWentTo, std::vector<HWND>({&m_other, nullptr}));
}

TEST_F(WindowEvents, OfferAKeyToEveryWindowAroundItOnce)
{
    const Listener inner(&m_edit);
    const Listener outer(&m_outer);
    QTest::keyClick(&m_edit, Qt::Key_F5, Qt::ShiftModifier);
    const std::vector<std::pair<WPARAM, LPARAM>> expected = {
        {Qt::Key_F5, static_cast<LPARAM>(Qt::ShiftModifier)}};
    EXPECT_EQ(inner.keys, expected);
    EXPECT_EQ(outer.keys, expected);
}

TEST_F(WindowEvents, TakeAwayAKeyThatSomebodyTook)
{
    Listener inner(&m_edit);
    Listener outer(&m_outer);
    outer.takes = true;
    QTest::keyClick(&m_edit, Qt::Key_A);
    EXPECT_EQ(m_edit.text(), QString());
    outer.takes = false;
    inner.takes = true;
    QTest::keyClick(&m_edit, Qt::Key_A);
    EXPECT_EQ(m_edit.text(), QString());
    EXPECT_EQ(outer.keys.size(), 1u);
    inner.takes = false;
    QTest::keyClick(&m_edit, Qt::Key_A);
    EXPECT_EQ(m_edit.text(), QStringLiteral("a"));
}

TEST_F(WindowEvents, OfferWhatAKeyTypesUnlessTheKeyWasTaken)
{
    Listener inner(&m_edit);
    Listener outer(&m_outer);
    QTest::keyClicks(&m_edit, "ab");
    EXPECT_EQ(inner.characters, "ab");
    EXPECT_EQ(outer.characters, "ab");
    EXPECT_EQ(m_edit.text(), "ab");
    outer.takesCharacters = true;
    QTest::keyClick(&m_edit, Qt::Key_C);
    EXPECT_EQ(outer.characters, "abc");
    EXPECT_EQ(m_edit.text(), "ab");
    inner.takes = true;
    QTest::keyClick(&m_edit, Qt::Key_D);
    EXPECT_EQ(outer.characters, "abc");
}

TEST_F(WindowEvents, OfferBothHalvesOfAPair)
{
    const Listener listener(&m_edit);
    const QString pair = QString::fromUtf8("\xF0\x9F\x98\x80");
    QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, pair);
    QApplication::sendEvent(&m_edit, &key);
    EXPECT_EQ(listener.characters, pair);
}

TEST_F(WindowEvents, GiveShiftAndTabAsTab)
{
    const Listener listener(&m_edit);
    QTest::keyClick(&m_edit, Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(listener.keys.size(), 1u);
    EXPECT_EQ(listener.keys[0].first, WPARAM{Qt::Key_Tab});
}

} // namespace
