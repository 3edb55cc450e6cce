// SPDX-License-Identifier: GPL-3.0-or-later
// RecordingEngine: stands where the engine module is looked for, does nothing to any text and
// writes down every message. A test tells it what to answer.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <functional>
#include <string>
#include <vector>

namespace recording {

struct Message
{
    UINT number = 0;
    bool direct = false; // came by the direct function
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    std::u16string text; // what a text parameter pointed at, up to its length or terminator
    HWND window = nullptr;
};

using Answer = std::function<LRESULT(WPARAM wParam, LPARAM lParam)>;

ZN_API const std::vector<Message>& Messages();
// The messages as "name" or "name(text)" or "name wParam lParam" words, one for each.
ZN_API std::vector<std::string> Sentences();
ZN_API void AnswerTo(UINT number, Answer answer); // 0 to every number without one
ZN_API void Forget();                             // messages and answers

} // namespace recording
