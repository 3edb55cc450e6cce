// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/EngineFixture.h"

#include "engine/window/EngineWindow.h"

#include <QWidget>

namespace msg = engine::message;

Listener::Listener()
{
    Attach(new QWidget);
}

LRESULT Listener::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_MOUSEWHEEL) {
        turns.emplace_back(WheelFlagsOf(wParam), WheelDeltaOf(wParam));
        return takesTurns;
    }
    if (message != WM_NOTIFY)
        return CWnd::WindowProc(message, wParam, lParam);
    const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
    std::u16string text;
    if (record.text)
        text.assign(record.text, record.nmhdr.code == notify::Modified
                                     ? static_cast<std::size_t>(record.length)
                                     : std::u16string_view(record.text).size());
    heard.push_back({record, text, wParam});
    if (onNotify)
        onNotify(*this, record);
    return 0;
}

std::vector<Heard> Listener::Of(UINT code) const
{
    std::vector<Heard> result;
    for (const Heard& each : heard) {
        if (each.record.nmhdr.code == code)
            result.push_back(each);
    }
    return result;
}

EngineUnderTest::EngineUnderTest()
{
    engine::RegisterEngineWindow();
    m_window = CreateWindowOfClass(engine::kWindowClass, WS_CHILD, {0, 0, 400, 300},
                                   m_parent.GetSafeHwnd(), kId);
    m_parent.editor = m_window;
    m_function = reinterpret_cast<engine::DirectFunction>(
        SendMessage(m_window, msg::GetDirectFunction, 0, 0));
    m_instance = SendMessage(m_window, msg::GetDirectPointer, 0, 0);
}

EngineUnderTest::~EngineUnderTest() = default;

void EngineUnderTest::SetText(const std::u16string& text) const
{
    Send(msg::SetText, 0, text.c_str());
}

void EngineUnderTest::Insert(long position, const std::u16string& text) const
{
    Send(msg::SetTargetStart, static_cast<WPARAM>(position));
    Send(msg::SetTargetEnd, static_cast<WPARAM>(position));
    Send(msg::ReplaceTargetNoProcess, text.size(), text.data());
}

void EngineUnderTest::Erase(long start, long end) const
{
    Send(msg::SetTargetStart, static_cast<WPARAM>(start));
    Send(msg::SetTargetEnd, static_cast<WPARAM>(end));
    Send(msg::ReplaceTargetNoProcess, 0, u"");
}

std::u16string EngineUnderTest::Text() const
{
    return Range(0, -1);
}

std::u16string EngineUnderTest::Range(long start, long end) const
{
    const auto length = static_cast<std::size_t>(Send(msg::GetLength));
    std::u16string buffer(length + 1, u'#');
    TextRange range{{static_cast<int>(start), static_cast<int>(end)}, buffer.data()};
    buffer.resize(static_cast<std::size_t>(Send(msg::GetTextRange, 0, &range)));
    return buffer;
}
