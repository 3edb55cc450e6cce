// SPDX-License-Identifier: GPL-3.0-or-later
// The macro of the process, and CZNCoreEditorControlEx: playing one.
#include "editing/operations/Macro.h"

#include "control/Recording.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/hands/Hands.h"

#include <QScopedValueRollback>

#include <memory>

namespace {

constexpr int kReplaceSel = 2170; // how the engine reports a typed character

MacroHolder* s_macroHead = nullptr;
MacroHolder* s_macroTail = nullptr; // null: to be looked for
int s_macroRecording = 0;
bool s_isPlaying = false;

// A recording of hours is not walked at each message.
MacroHolder* Tail()
{
    if (!s_macroTail)
        s_macroTail = s_macroHead;
    while (s_macroTail && s_macroTail->m_next)
        s_macroTail = s_macroTail->m_next;
    return s_macroTail;
}

} // namespace

// From the front, so that a long macro does not fill the stack.
MacroHolder::~MacroHolder()
{
    while (m_next) {
        const std::unique_ptr<MacroHolder> first(m_next);
        m_next = std::exchange(first->m_next, nullptr);
    }
}

MacroHolder* GetMacroHead()
{
    return s_macroHead;
}

void SetMacroHead(MacroHolder* head)
{
    s_macroHead = head;
    s_macroTail = nullptr;
}

int IsMacroRecording()
{
    return s_macroRecording;
}

void SetMacroRecording(int recording)
{
    s_macroRecording = recording;
}

void FreeMacro()
{
    delete s_macroHead;
    SetMacroHead(nullptr);
}

void AppendToMacro(int message, WPARAM wParam, LPARAM lParam)
{
    if (s_isPlaying)
        return;
    auto* node = new MacroHolder;
    node->m_message = message;
    node->m_wParam = wParam;
    node->m_lParam = lParam;
    if (message == kReplaceSel && lParam) {
        const auto* text = reinterpret_cast<const char16_t*>(lParam);
        if (text[0] && !text[1])
            node->m_text[0] = text[0];
    }
    if (MacroHolder* tail = Tail())
        tail->m_next = node;
    else
        s_macroHead = node;
    s_macroTail = node;
}

// Whatever the message, the node's own text goes along: what needs another gets an empty one. A
// recording that was ended in another view goes on in this one's engine; a macro to which its own
// messages were appended would never end. Of several carets and of columns the engine's message for
// a typed character would leave one.
void CZNCoreEditorControlEx::PerformMacro(MacroHolder* node)
{
    const QScopedValueRollback playing(s_isPlaying, true);
    for (; node; node = node->m_next) {
        const auto number = static_cast<UINT>(node->m_message);
        const auto text = reinterpret_cast<LPARAM>(node->m_text);
        if (FindHand(number))
            OnCmdMsg(number, CN_COMMAND, nullptr, nullptr);
        else if (!node->m_text[0] || Call(engine::kTypeAtEach, 0, text, 1) == 0)
            Call(number, node->m_wParam, text, 1);
    }
}
