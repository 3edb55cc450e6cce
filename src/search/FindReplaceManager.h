// CFindReplaceManager: the one holder of what is searched for and how, and the searches themselves.
#pragma once

#include "common/Export.h"

#include <QString>

class CZNCoreEditorControlEx;

class ZN_API CFindReplaceManager
{
public:
    virtual ~CFindReplaceManager();

    void SetWholeWord(bool wholeWord) { m_bWholeWord = wholeWord; }
    void SetMatchCase(bool matchCase) { m_bMatchCase = matchCase; }
    void SetDown(bool down) { m_bDown = down; }
    void SetWrap(bool wrap) { m_bWrap = wrap; }
    QString GetFind() const { return m_strFind; }
    void AddFindHistory(QString text) { m_strFind = text; }
    void AddReplaceHistory(QString text) { m_strReplace = text; }

    // The place of the match, which the engine's target then marks, or -1.
    int FindInRange(CZNCoreEditorControlEx* control, int start, int end, bool noWrap);
    int ReplaceAll(CZNCoreEditorControlEx* control, bool inSelection);

private:
    bool m_bWrap = true;
    bool m_bWholeWord = false;
    bool m_bMatchCase = false;
    bool m_bDown = true;
    QString m_strReplace;
    QString m_strFind;
};

namespace zncoreeditor {
ZN_API CFindReplaceManager* GetFindReplaceManager();
}
