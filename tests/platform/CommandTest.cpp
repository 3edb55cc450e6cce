// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Accelerators.h"
#include "platform/windows/CmdTarget.h"
#include "platform/windows/Wnd.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

class Recorder : public CWnd
{
public:
    std::vector<int> ran;

protected:
    const CommandMap& GetCommandMap() const override
    {
        static constexpr CommandEntry kCommands[] = {
            {7, [](CCmdTarget& target) { static_cast<Recorder&>(target).ran.push_back(7); }},
            {7, [](CCmdTarget& target) { static_cast<Recorder&>(target).ran.push_back(-7); }},
            {8, [](CCmdTarget& target) { static_cast<Recorder&>(target).ran.push_back(8); }},
        };
        static constexpr UpdateEntry kUpdates[] = {
            {7, [](CCmdTarget&, CCmdUI& ui) { ui.Enable(false); }},
        };
        static const CommandMap kMap{&CWnd::GetCommandMap(), kCommands, kUpdates};
        return kMap;
    }
};

class DerivedRecorder : public Recorder
{
protected:
    const CommandMap& GetCommandMap() const override
    {
        static constexpr CommandEntry kCommands[] = {
            {8, [](CCmdTarget& target) { static_cast<Recorder&>(target).ran.push_back(80); }},
        };
        static const CommandMap kMap{&Recorder::GetCommandMap(), kCommands, {}};
        return kMap;
    }
};

class Item final : public CCmdUI
{
public:
    using CCmdUI::CCmdUI;
    void Enable(bool on) override { enabled = on; }
    void SetCheck(int state) override { checked = state; }
    void SetRadio(bool on) override { checked = on ? 1 : 0; }
    void SetText(const QString& given) override { text = given; }

    bool enabled = true;
    int checked = 0;
    QString text;
};

TEST(Commands, GoToTheFirstEntryOfTheirNumber)
{
    Recorder target;
    EXPECT_TRUE(target.OnCmdMsg(7, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(9, nullptr));
    EXPECT_EQ(target.ran, std::vector<int>({7}));
}

TEST(Commands, GoToTheDerivedClassFirst)
{
    DerivedRecorder target;
    EXPECT_TRUE(target.OnCmdMsg(8, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(7, nullptr));
    EXPECT_EQ(target.ran, std::vector<int>({80, 7}));
}

TEST(Commands, AreBroughtUpToDateByTheirOwnTable)
{
    Recorder target;
    Item item(7);
    EXPECT_TRUE(target.OnCmdMsg(7, &item));
    EXPECT_FALSE(item.enabled);
    EXPECT_FALSE(target.OnCmdMsg(8, &item));
    EXPECT_TRUE(target.ran.empty());
}

TEST(Commands, ComeToAWindowByMessage)
{
    QWidget widget;
    Recorder window;
    window.Attach(&widget);
    SendMessage(&widget, WM_COMMAND, 0x10000 | 7, 0);
    EXPECT_EQ(window.ran, std::vector<int>({7}));
    window.Detach();
}

constexpr Accelerator kKeys[] = {
    {Qt::Key_A, static_cast<int>(Qt::ControlModifier), 7},
    {Qt::Key_A, static_cast<int>(Qt::ControlModifier), 8},
    {Qt::Key_B, 0, 99},
};
constexpr AcceleratorTable kTable(kKeys);

TEST(KeyTables, TurnKeysIntoCommands)
{
    QWidget widget;
    Recorder window;
    window.Attach(&widget);
    MSG key{&widget, WM_KEYDOWN, Qt::Key_A, static_cast<LPARAM>(Qt::ControlModifier)};
    EXPECT_EQ(TranslateAccelerator(&widget, &kTable, key), 1);
    EXPECT_EQ(window.ran, std::vector<int>({7}));
    key.lParam = static_cast<LPARAM>(Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(TranslateAccelerator(&widget, &kTable, key), 0);
    key.lParam = static_cast<LPARAM>(Qt::ControlModifier);
    key.message = WM_KEYLAST;
    EXPECT_EQ(TranslateAccelerator(&widget, &kTable, key), 0);
    EXPECT_EQ(TranslateAccelerator(&widget, nullptr, key), 0);
    window.Detach();
}

TEST(KeyTables, UseUpTheKeyOfACommandThatNobodyKnows)
{
    QWidget widget;
    const MSG key{&widget, WM_KEYDOWN, Qt::Key_B, 0};
    EXPECT_EQ(TranslateAccelerator(&widget, &kTable, key), 1);
}

} // namespace
