// Messages and questions to the user. All of them go through one service, which a host replaces to
// show boxes of its own, and a test to answer.
#pragma once

#include "common/Export.h"
#include "platform/Types.h"

#include <QString>

enum class Buttons
{
    Ok,
    YesNo
};
enum class Answer
{
    Ok,
    Yes,
    No
};

class ZN_API IUserQuestions
{
public:
    virtual ~IUserQuestions();

    // Shows the text until it is answered. The owner may be null.
    virtual Answer Ask(HWND owner, const QString& text, Buttons buttons) = 0;
};

// The service takes effect at once and stays the caller's; null brings back the message boxes.
ZN_API void SetUserQuestions(IUserQuestions* questions);

ZN_API void ShowMessage(HWND owner, const QString& text);
ZN_API bool AskYesNo(HWND owner, const QString& text); // true for Yes
