// SPDX-License-Identifier: GPL-3.0-or-later
// Any message with any parameters after any other, keys and the mouse in between: several windows
// on shared texts, every kind of character, folded, hidden and wrapped lines, targets of texts that
// are gone, and buffers of exactly the room that a caller is told. What is drawn, random numbers or
// the bytes of a fuzzer, decides everything.
#pragma once

#include "tests/engine/EngineFixture.h"

#include "control/Completion.h"
#include "control/EngineMessages.h"

#include <QImage>
#include <QPainter>

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class ChannelWalk
{
public:
    using Draw = std::function<long(long low, long high)>; // both may be drawn

    // ZN_TRACE in the environment tells on the standard error what is sent.
    explicit ChannelWalk(Draw draw);
    ~ChannelWalk();

    // False: what the engine answered cannot be, as Fault() says.
    bool Step();
    const std::string& Fault() const { return m_fault; }

private:
    long Pick(long low, long high) { return m_draw(low, high); }
    template <typename T, std::size_t N>
    const T& AnyOf(const T (&values)[N])
    {
        return values[Pick(0, static_cast<long>(N) - 1)];
    }
    template <typename... Parameters>
    LRESULT Send(UINT number, Parameters... parameters) const
    {
        return m_window->Send(number, parameters...);
    }

    std::u16string AnyText();
    long AnyPlace();
    long AnyLine();
    long AnyNumber();

    void Renew();
    void Hide();
    void PressKey();
    void UseMouse();
    void SendAny();
    LPARAM Value(engine::Kind kind, std::u16string& text);
    template <typename T = char16_t>
    void SendWithRoom(const engine::MessageRow& row, LPARAM w, long room);
    void ReadRange(const engine::MessageRow& row, long times, long terminator);
    void CheckText();
    void CheckSelections();

    Draw m_draw;
    std::string m_fault;
    const bool m_isTold = std::getenv("ZN_TRACE");
    EngineUnderTest m_windows[3];
    EngineUnderTest* m_window = m_windows;
    std::vector<LRESULT> m_documents;
    std::vector<LRESULT> m_held; // once for each reference that was asked for
    std::vector<std::shared_ptr<znsqlassist::SQLCompletionProposal>> m_proposals;
    QImage m_paper{100, 70, QImage::Format_RGB32};
    QPainter m_painter{&m_paper};
    std::u16string m_units;
    std::u16string m_key;
    TextToFind m_find;
    RangeToFormat m_format;
    AutoCompleteConfig m_config{nullptr, 1, 0, 1};
    ErrorInfo m_error;
    NumberPair m_pair;
    PositionPair m_positions;
};
