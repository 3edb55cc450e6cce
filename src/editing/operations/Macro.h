// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The macro: messages that the engine has reported while somebody edited, to be sent again. There
/// is one for the process, recorded in any control and played in any other. GUI thread only.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

/// One message, or a gesture (hands/Hands.h). A list owns what stands behind its head.
struct ZN_API MacroHolder
{
    MacroHolder() = default; ///< a message that does nothing
    MacroHolder(const MacroHolder&) = delete;
    MacroHolder& operator=(const MacroHolder&) = delete;
    ~MacroHolder(); ///< and all behind it

    int m_message = 0;   ///< its number
    WPARAM m_wParam = 0; ///< as it was reported
    LPARAM m_lParam = 0; ///< as it was reported; where it was a pointer, nobody may follow it
    MacroHolder* m_next = nullptr; ///< null: the last one
    char16_t m_text[2] =
        {}; ///< one typed character and its terminator; empty for every other message
};

ZN_API MacroHolder* GetMacroHead(); ///< null: no macro
ZN_API void
SetMacroHead(MacroHolder* head); ///< takes the list over; the one before it stays the caller's
ZN_API int IsMacroRecording();   ///< in whichever control
/// Whether messages are to be appended; the macro stays.
ZN_API void SetMacroRecording(int recording);

/// Deletes the macro.
ZN_API void FreeMacro();

/// Puts a message behind the last one. The text is read for ReplaceSel alone, and kept if it is one
/// character: so a macro repeats what was typed and commanded, and no text of any length. What is
/// played is not appended.
ZN_API void AppendToMacro(int message, WPARAM wParam, LPARAM lParam);
