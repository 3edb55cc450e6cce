// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: the search that owns the keyboard and goes on with every character.
#include "control/EngineRecords.h"
#include "docview/SearchStatus.h"
#include "docview/ZNCoreEditorView.h"
#include "platform/base/Units.h"

#include <QApplication>
#include <QCoreApplication>

#include <utility>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorView)
};

constexpr UINT kBackspace = 8;
constexpr UINT kEnter = 13;
constexpr UINT kEscape = 27;
constexpr int kMatchCase = 4;

// A character that a text can be searched for.
bool IsSearchable(char16_t unit)
{
    const QChar c(unit);
    return c == u' ' || c == u'\t' || c.isSurrogate() || (c.isPrint() && !c.isSpace());
}

ISearchStatus* g_listener = nullptr;
bool s_incrementalStatusShown = false; // by any view of the process

void Tell(CZNCoreEditorView& view, const SearchStatus& status)
{
    if (g_listener)
        g_listener->Show(view, status);
}

} // namespace

ISearchStatus::~ISearchStatus() = default;

void SetSearchStatus(ISearchStatus* listener)
{
    g_listener = listener;
}

ISearchStatus* GetSearchStatus()
{
    return g_listener;
}

void CZNCoreEditorView::FindIncrementalForward()
{
    StartIncremental(true);
}

void CZNCoreEditorView::FindIncrementalReverse()
{
    StartIncremental(false);
}

// A search that runs the same way goes to the next match, or takes back the text of the one before
// if it has none yet. One that runs the other way turns round, with its text and place.
void CZNCoreEditorView::StartIncremental(bool forward)
{
    const bool isRunning = forward ? m_incrementalForward : m_incrementalReverse;
    if (isRunning) {
        if (m_searchText.isEmpty()) {
            m_searchText = std::exchange(m_lastSearchText, QString());
            FindIncremental(false);
        } else {
            FindIncremental(true);
        }
        return;
    }
    if (!IsSearching()) {
        m_savedReadOnly = m_coreEditor.GetReadOnly(1);
        if (!m_searchText.isEmpty())
            m_lastSearchText = std::exchange(m_searchText, QString());
        m_searchOrigin = m_searchPos = static_cast<int>(m_coreEditor.GetCurrentPos(1));
        m_savedSelStart = static_cast<int>(m_coreEditor.GetSelectionStart(1));
        m_savedSelEnd = static_cast<int>(m_coreEditor.GetSelectionEnd(1));
    }
    m_incrementalForward = forward;
    m_incrementalReverse = !forward;
    m_incrementalFound = true;
    m_coreEditor.SetReadOnly(1, 1); // no key can change the text meanwhile
    FindIncremental(false);
}

// The place from where it searches stays while characters come: a match can only grow or move on.
void CZNCoreEditorView::FindIncremental(bool next)
{
    if (m_searchText.isEmpty()) {
        m_coreEditor.SetSel(m_searchPos, m_searchPos, 1);
        m_coreEditor.SetCurrentPos(m_searchPos, 1);
        m_coreEditor.EnsureVisible(m_coreEditor.LineFromPosition(m_searchPos, 1), 1);
        UpdateStatusMessage();
        return;
    }
    if (next)
        m_searchPos = static_cast<int>(m_incrementalForward ? m_coreEditor.GetSelectionEnd(1)
                                                            : m_coreEditor.GetSelectionStart(1));
    m_coreEditor.SetTargetStart(m_incrementalForward ? m_searchPos : m_searchPos - 1, 1);
    m_coreEditor.SetTargetEnd(m_incrementalForward ? m_coreEditor.GetLength(1) : 0, 1);
    m_coreEditor.SetSearchFlags(m_incrementalMatchCase ? kMatchCase : 0, 1);
    const int length = static_cast<int>(m_searchText.size());
    const long found = m_coreEditor.SearchInTarget(length, Units(m_searchText), 1);
    m_incrementalFound = found != -1;
    if (!m_incrementalFound) {
        QApplication::beep();
        UpdateStatusMessage();
        return;
    }
    const long start = m_coreEditor.GetTargetStart(1);
    const long end = m_coreEditor.GetTargetEnd(1);
    m_coreEditor.EnsureRangeVisible(static_cast<int>(start), static_cast<int>(end));
    m_coreEditor.SetSel(start, end, 1);
    m_coreEditor.SetSel(found, found + length, 1);
    m_coreEditor.SetCurrentPos(found + length, 1);
    m_coreEditor.EnsureVisible(m_coreEditor.LineFromPosition(found + length, 1), 1);
    UpdateStatusMessage();
}

bool CZNCoreEditorView::HandleInputCharacter(UINT character, UINT /*repeat*/, UINT /*flags*/)
{
    if (!IsSearching())
        return false;
    if (character == kBackspace)
        return HandleDeleteBack();
    const auto unit = static_cast<char16_t>(character);
    if (character == kEscape || character == kEnter || !IsSearchable(unit)) {
        StopIncrementalSearch();
        return true;
    }
    if (!m_incrementalFound) {
        QApplication::beep();
        return true;
    }
    m_searchText += QChar(unit);
    if (!QChar::isHighSurrogate(unit)) // the other half of the character follows
        FindIncremental(false);
    return true;
}

bool CZNCoreEditorView::HandleDeleteBack()
{
    if (!IsSearching() || m_searchText.isEmpty())
        return false;
    const bool isPair = m_searchText.size() > 1 && m_searchText.back().isLowSurrogate() &&
                        m_searchText[m_searchText.size() - 2].isHighSurrogate();
    m_searchText.chop(isPair ? 2 : 1);
    FindIncremental(false);
    return true;
}

void CZNCoreEditorView::StopIncrementalSearch()
{
    const bool wasSearching = IsSearching();
    m_incrementalForward = false;
    m_incrementalReverse = false;
    m_coreEditor.SetReadOnly(m_savedReadOnly, 1);
    if (wasSearching)
        Tell(*this, {});
}

// The two halves of the message are its forms for the two case modes; the second one says nothing.
void CZNCoreEditorView::UpdateStatusMessage()
{
    if (!IsSearching()) {
        s_incrementalStatusShown = false;
        return;
    }
    const QString format = !m_incrementalFound    ? Texts::tr("Incremental search failed: %1|")
                           : m_incrementalForward ? Texts::tr("Incremental search: %1|")
                                                  : Texts::tr("Incremental search reverse: %1|");
    const QString message = format.arg(m_searchText);
    const qsizetype bar = message.indexOf(u'|');
    s_incrementalStatusShown = true;
    Tell(*this, {m_incrementalMatchCase ? message.sliced(bar + 1) : message.first(bar),
                 m_incrementalFound});
}

int CZNCoreEditorView::CountIncrementalMatches(int most)
{
    if (m_searchText.isEmpty())
        return 0;
    TextToFind record{};
    record.lpstrText = const_cast<char16_t*>(Units(m_searchText));
    const int length = static_cast<int>(m_coreEditor.GetLength(1));
    record.chrg = {0, length};
    int count = 0;
    while (count < most &&
           m_coreEditor.FindTextW(m_incrementalMatchCase ? kMatchCase : 0, &record, 1) != -1) {
        ++count;
        record.chrg.cpMin = record.chrgText.cpMax;
    }
    return count;
}
