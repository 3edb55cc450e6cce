// SPDX-License-Identifier: GPL-3.0-or-later
// MainFrame: the frame around all tabs, attached to the main window.
#pragma once

#include "platform/docview/FrameWnd.h"

class FindBar;
class MainWindow;

class MainFrame final : public CFrameWnd
{
public:
    // Becomes the application's main window. The frame and its window go by closing.
    explicit MainFrame(MainWindow& window);

    void OnUpdateFrameTitle() override {} // the window follows its scripts by itself

protected:
    void OnClose(); // asks about every script

    const MessageMap& GetMessageMap() const override;
    const CommandMap& GetCommandMap() const override;

private:
    template <void (FindBar::*Operation)()>
    static void RunFind(CCmdTarget& target);

    MainWindow& m_window;
};
