// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Messages and questions to the user. All of them go through one service, which a host replaces to
/// show boxes of its own, and a test to answer.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QString>

#include <optional>

/// What may be answered.
enum class Buttons
{
    Ok,         ///< only that it was read
    YesNo,      ///< one of two
    YesNoCancel ///< or neither
};
/// What was answered. A box that is closed gives Cancel, or No where there is none.
enum class Answer
{
    Ok,    ///< it was read
    Yes,   ///< Yes
    No,    ///< No
    Cancel ///< neither
};

/// How a message looks; what it says is heard by a screen reader in any case.
enum class MessageKind
{
    Plain,       ///< without a sign
    Information, ///< something to know
    Warning,     ///< something went wrong
    Stop         ///< something failed
};

/// Who asks.
class ZN_API IUserQuestions
{
public:
    virtual ~IUserQuestions(); ///< to be taken back by SetUserQuestions before

    /// Shows the text until it is answered. The owner may be null.
    virtual Answer Ask(HWND owner, const QString& text, Buttons buttons) = 0;

    /// Shows a message until it is answered; by default a question that only Ok answers.
    virtual void Tell(HWND owner, const QString& text, MessageKind kind);

    /// The path of a file to open, empty if the user thought better of it. The filters are names
    /// with patterns, "Scripts (*.sql)", parted by ";;". A dialog, unless a host overrides it.
    virtual QString AskOpenFile(HWND owner, const QString& filters);

    /// The path to save under, empty if the user thought better of it; path is the proposal.
    virtual QString AskSaveFile(HWND owner, const QString& path, const QString& filters);

    /// The path of a file that exists, or of a folder, asked for under a title; start is the folder
    /// to begin in. Empty if the user thought better of it.
    virtual QString BrowseForFile(HWND owner, const QString& title, const QString& start,
                                  const QString& filters);
    /// A folder that exists.
    virtual QString BrowseForFolder(HWND owner, const QString& title, const QString& start);

    /// Messages and questions under a title of their own; without the title, unless it is
    /// overridden.
    virtual Answer AskUnder(HWND owner, const QString& title, const QString& text, Buttons buttons,
                            MessageKind kind);

    /// A colour, asked for by the desktop's dialog, which begins with the given one.
    virtual std::optional<COLORREF> AskColor(HWND owner, COLORREF color);
};

/// The service takes effect at once and stays the caller's; null brings back the message boxes.
ZN_API void SetUserQuestions(IUserQuestions* questions);

/// Shows it until it is answered.
ZN_API void ShowMessage(HWND owner, const QString& text, MessageKind kind = MessageKind::Warning);
/// The same under a title.
ZN_API void ShowMessageUnder(HWND owner, const QString& title, const QString& text,
                             MessageKind kind);
ZN_API bool AskYesNo(HWND owner, const QString& text);                            ///< true for Yes
ZN_API bool AskYesNoUnder(HWND owner, const QString& title, const QString& text); ///< true for Yes
ZN_API Answer AskYesNoCancel(HWND owner, const QString& text);  ///< Yes, No or Cancel
ZN_API QString AskOpenFile(HWND owner, const QString& filters); ///< as the service's
/// As the service's.
ZN_API QString AskSaveFile(HWND owner, const QString& path, const QString& filters);
/// As the service's.
ZN_API QString BrowseForFile(HWND owner, const QString& title, const QString& start,
                             const QString& filters);
/// As the service's.
ZN_API QString BrowseForFolder(HWND owner, const QString& title, const QString& start);
ZN_API std::optional<COLORREF> AskColor(HWND owner, COLORREF color); ///< nothing if cancelled
