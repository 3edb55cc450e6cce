// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/export/StyledText.h"

#include "control/ZNCoreEditorControl.h"
#include "platform/windows/Window.h"

#include <algorithm>

StyleLooks LooksOf(const CZNCoreEditorControl& editor)
{
    StyleLooks looks;
    for (std::size_t style = 0; style < looks.size(); ++style)
        SendMessage(editor.GetSafeHwnd(), kGetStyleLook, style,
                    reinterpret_cast<LPARAM>(&looks[style]));
    return looks;
}

bool ForEachRun(CZNCoreEditorControl& editor, long start, long end,
                const std::function<bool(std::u16string_view text, int style)>& take)
{
    constexpr long kPiece = 32 * 1024; // units
    std::vector<char16_t> cells(2 * kPiece + 2);
    std::u16string run;
    while (start < end) {
        const long stop = std::min(start + kPiece, end);
        if (editor.GetEndStyled(1) < stop)
            editor.Colorize(start, stop, 1);
        TextRange range{{static_cast<int>(start), static_cast<int>(stop)}, cells.data()};
        // A stop within a pair leaves the pair to the next piece, and at the end out.
        const auto count = static_cast<long>(editor.GetStyledText(&range, 1)) / 2;
        for (long at = 0; at < count;) {
            const char16_t style = cells[static_cast<std::size_t>(2 * at + 1)];
            run.clear();
            for (; at < count && cells[static_cast<std::size_t>(2 * at + 1)] == style; ++at)
                run += cells[static_cast<std::size_t>(2 * at)];
            if (!take(run, style & 0xFF))
                return false;
        }
        if (count == 0)
            break;
        start += count;
    }
    return true;
}
