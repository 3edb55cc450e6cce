#include "search/FindReplaceManager.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "platform/Units.h"

#include <cstdlib>

CFindReplaceManager::~CFindReplaceManager() = default;

int CFindReplaceManager::FindInRange(CZNCoreEditorControlEx* control, int start, int end,
                                     bool /*noWrap*/)
{
    control->SetTargetStart(start, 1);
    control->SetTargetEnd(end, 1);
    const int flags = control->GetSearchFlags(1);
    control->SetSearchFlags((m_bWholeWord ? 2 : 0) | (m_bMatchCase ? 4 : 0), 1);
    const long found =
        control->SearchInTarget(static_cast<int>(m_strFind.size()), Units(m_strFind), 1);
    control->SetSearchFlags(flags, 1);
    return static_cast<int>(found);
}

int CFindReplaceManager::ReplaceAll(CZNCoreEditorControlEx* control, bool /*inSelection*/)
{
    const int start = static_cast<int>(control->GetSelectionStart(1));
    int end = static_cast<int>(control->GetSelectionEnd(1));
    control->SetDoingReplaceAll(true, 1);
    control->BeginUndoAction(1);
    int count = 0;
    for (int pos = FindInRange(control, start, end, true); pos != -1;) {
        ++count;
        const int from = static_cast<int>(control->GetTargetStart(1));
        const int to = static_cast<int>(control->GetTargetEnd(1));
        const int put =
            control->ReplaceTarget(static_cast<int>(m_strReplace.size()), Units(m_strReplace), 1);
        end += std::abs(put - (to - from));
        pos = FindInRange(control, from + put, end, true);
    }
    control->EndUndoAction(1);
    control->SetDoingReplaceAll(false, 1);
    control->SetSel(start, end, 1);
    control->SetCurrentPos(end, 1);
    return count;
}

namespace zncoreeditor {

CFindReplaceManager* GetFindReplaceManager()
{
    static CFindReplaceManager manager;
    return &manager;
}

} // namespace zncoreeditor
