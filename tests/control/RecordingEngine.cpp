// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/control/RecordingEngine.h"

#include "control/EngineMessages.h"
#include "platform/windows/Window.h"

#include <QWidget>

#include <map>

namespace recording {

namespace {

using engine::Kind;

std::vector<Message>& Log()
{
    static std::vector<Message> log;
    return log;
}

std::map<UINT, Answer>& Answers()
{
    static std::map<UINT, Answer> answers;
    return answers;
}

const engine::MessageRow* RowOf(UINT number)
{
    for (const engine::MessageRow& row : engine::kMessageRows) {
        if (row.number == number)
            return &row;
    }
    return nullptr;
}

std::u16string TextOf(const engine::MessageRow* row, WPARAM wParam, LPARAM lParam)
{
    const auto* text = reinterpret_cast<const char16_t*>(lParam);
    if (!row || row->lParam != Kind::TextIn || !text)
        return std::u16string();
    if (row->wParam == Kind::Count)
        return std::u16string(text, wParam);
    return std::u16string(text);
}

LRESULT Take(HWND window, UINT number, WPARAM wParam, LPARAM lParam, bool direct)
{
    Log().push_back(
        {number, direct, wParam, lParam, TextOf(RowOf(number), wParam, lParam), window});
    const auto answer = Answers().find(number);
    return answer != Answers().end() ? answer->second(wParam, lParam) : 0;
}

LRESULT Direct(LRESULT instance, UINT number, WPARAM wParam, LPARAM lParam)
{
    return Take(reinterpret_cast<HWND>(instance), number, wParam, lParam, true);
}

LRESULT Procedure(HWND window, UINT number, WPARAM wParam, LPARAM lParam)
{
    if (number == engine::message::GetDirectFunction)
        return reinterpret_cast<LRESULT>(&Direct);
    if (number == engine::message::GetDirectPointer)
        return reinterpret_cast<LRESULT>(window);
    return Take(window, number, wParam, lParam, false);
}

[[maybe_unused]] const bool registered = RegisterWindowClass(
    {engine::kWindowClass, [](QWidget* parent) { return new QWidget(parent); }, &Procedure});

} // namespace

const std::vector<Message>& Messages()
{
    return Log();
}

std::vector<std::string> Sentences()
{
    std::vector<std::string> sentences;
    for (const Message& message : Log()) {
        const engine::MessageRow* row = RowOf(message.number);
        std::string sentence = row ? row->name : std::to_string(message.number);
        if (row && row->lParam == Kind::TextIn) {
            sentence += '(' + std::string(message.text.begin(), message.text.end()) + ')';
        } else {
            if (row && row->wParam != Kind::None)
                sentence += ' ' + std::to_string(static_cast<LPARAM>(message.wParam));
            if (row && row->lParam != Kind::None && row->lParam != Kind::TextOut)
                sentence += ' ' + std::to_string(message.lParam);
        }
        sentences.push_back(sentence);
    }
    return sentences;
}

void AnswerTo(UINT number, Answer answer)
{
    Answers()[number] = std::move(answer);
}

void Forget()
{
    Log().clear();
    Answers().clear();
}

} // namespace recording
