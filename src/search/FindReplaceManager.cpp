// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/FindReplaceManager.h"

#include "control/ZNCoreEditorControl.h"
#include "platform/base/Units.h"
#include "prefs/RegProfile.h"

#include <QComboBox>

#include <algorithm>
#include <set>

namespace {

constexpr const char16_t* kSection = u"Preferences\\Search";
constexpr QChar kItemEnd = u'|';

enum SearchFlag : int
{
    kWholeWord = 2,
    kMatchCase = 4,
    kRegExp = 0x200000,
    kPerlSyntax = 0x800000,
};

bool ReadFlag(CRegProfile& profile, const char16_t* entry, int fallback = 0)
{
    return profile.GetProfileInt(kSection, entry, fallback) == 1;
}

// The profile hands out 1,023 units: of a longer history the oldest items are cut off.
QStringList ReadHistory(CRegProfile& profile, const char16_t* entry)
{
    char16_t buffer[CRegProfile::kBufferUnits];
    QStringList items =
        FromUnits(profile.GetProfileString(kSection, entry, buffer, u"")).split(kItemEnd);
    if (items.last().isEmpty()) // behind the last separator
        items.removeLast();
    return items;
}

void WriteHistory(CRegProfile& profile, const char16_t* entry, const QStringList& items)
{
    QString text;
    for (const QString& item : items)
        text += item + kItemEnd;
    profile.WriteProfileString(kSection, entry, Units(text));
}

void Fill(QComboBox& combo, const QStringList& items)
{
    combo.clear();
    combo.addItems(items);
}

} // namespace

CFindReplaceManager::CFindReplaceManager()
{
    Load();
}

CFindReplaceManager::~CFindReplaceManager()
{
    Save();
}

void CFindReplaceManager::Load()
{
    CRegProfile profile;
    m_aFindHistory = ReadHistory(profile, u"FindCombo");
    m_aReplaceHistory = ReadHistory(profile, u"ReplaceCombo");
    m_aLocationHistory = ReadHistory(profile, u"LocCombo");
    m_aTypeHistory = ReadHistory(profile, u"TypeCombo");
    m_bWholeWord = ReadFlag(profile, u"WholeWord");
    m_bMatchCase = ReadFlag(profile, u"MatchCase");
    m_bRegExp = ReadFlag(profile, u"RegExp");
    m_bTransform = ReadFlag(profile, u"Transform");
    m_bSubFolders = ReadFlag(profile, u"SubFolders", 1);
    m_bOutputPane2 = ReadFlag(profile, u"OutputPane2");
    m_bCountOnly = ReadFlag(profile, u"CountOnly");
    m_nFindIn = ReadFlag(profile, u"FindIn") ? 1 : 0; // the open files are not remembered
}

void CFindReplaceManager::Save() const
{
    CRegProfile profile;
    WriteHistory(profile, u"FindCombo", m_aFindHistory);
    WriteHistory(profile, u"ReplaceCombo", m_aReplaceHistory);
    WriteHistory(profile, u"LocCombo", m_aLocationHistory);
    WriteHistory(profile, u"TypeCombo", m_aTypeHistory);
    profile.WriteProfileInt(kSection, u"WholeWord", m_bWholeWord);
    profile.WriteProfileInt(kSection, u"MatchCase", m_bMatchCase);
    profile.WriteProfileInt(kSection, u"RegExp", m_bRegExp);
    profile.WriteProfileInt(kSection, u"Transform", m_bTransform);
    profile.WriteProfileInt(kSection, u"SubFolders", m_bSubFolders);
    profile.WriteProfileInt(kSection, u"OutputPane2", m_bOutputPane2);
    profile.WriteProfileInt(kSection, u"CountOnly", m_bCountOnly);
    profile.WriteProfileInt(kSection, u"FindIn", m_nFindIn);
}

void CFindReplaceManager::Remember(QStringList& history, const QString& text) const
{
    history.removeOne(text);
    history.prepend(text);
    if (history.size() > m_nMaxHistory)
        history.removeAt(m_nMaxHistory - 1);
}

void CFindReplaceManager::AddFindHistory(QString text)
{
    Remember(m_aFindHistory, text);
    m_strFind = std::move(text);
}

void CFindReplaceManager::AddReplaceHistory(QString text)
{
    Remember(m_aReplaceHistory, text);
    m_strReplace = std::move(text);
}

void CFindReplaceManager::AddLocationHistory(QString text)
{
    Remember(m_aLocationHistory, text);
    m_strLocation = std::move(text);
}

void CFindReplaceManager::AddTypeHistory(QString text)
{
    Remember(m_aTypeHistory, text);
    m_strFileType = std::move(text);
}

void CFindReplaceManager::FillFindCombo(QComboBox& combo) const
{
    Fill(combo, m_aFindHistory);
}

void CFindReplaceManager::FillReplaceCombo(QComboBox& combo) const
{
    Fill(combo, m_aReplaceHistory);
}

void CFindReplaceManager::FillLocationCombo(QComboBox& combo) const
{
    Fill(combo, m_aLocationHistory);
}

void CFindReplaceManager::FillTypeCombo(QComboBox& combo) const
{
    Fill(combo, m_aTypeHistory);
}

int CFindReplaceManager::SearchTarget(CZNCoreEditorControl& control, int start, int end) const
{
    control.SetTargetStart(start, 1);
    control.SetTargetEnd(end, 1);
    return static_cast<int>(
        control.SearchInTarget(static_cast<int>(m_strFind.size()), Units(m_strFind), 1));
}

int CFindReplaceManager::FindInRange(CZNCoreEditorControl* control, int start, int end, bool noWrap)
{
    if (!control || !control->GetSafeHwnd())
        return -1;
    const int flags = control->GetSearchFlags(1);
    control->SetSearchFlags((m_bWholeWord ? kWholeWord : 0) | (m_bMatchCase ? kMatchCase : 0) |
                                (m_bRegExp ? kRegExp : 0) |
                                (m_bRegExp && m_perlSyntax ? kPerlSyntax : 0),
                            1);
    int pos = SearchTarget(*control, start, end);
    if (pos == -1 && m_bWrap && !noWrap) {
        if (m_bDown)
            pos = SearchTarget(*control, 0, static_cast<int>(control->GetCurrentPos(1)));
        else
            pos = SearchTarget(*control, static_cast<int>(control->GetLength(1)),
                               static_cast<int>(control->GetSelectionStart(1)));
    }
    control->SetSearchFlags(flags, 1);
    return pos;
}

int CFindReplaceManager::FindNext(CZNCoreEditorControl* control)
{
    if (!control)
        return -1;
    return FindInRange(control, static_cast<int>(control->GetCurrentPos(1)),
                       m_bDown ? static_cast<int>(control->GetLength(1)) : 0, false);
}

// What is left of the range may hold a match where the search has been before: a search that wraps
// or goes up can come back to it for ever. It goes on one unit further than the last one then, and
// ends where it has been.
int CFindReplaceManager::FindSkippingStyles(CZNCoreEditorControl* control, int start, int end,
                                            const std::vector<int>& styles, bool noWrap)
{
    int pos = FindInRange(control, start, end, noWrap);
    std::set<int> seen;
    while (pos != -1 &&
           std::find(styles.begin(), styles.end(), control->GetStyleAt(pos, 1)) != styles.end()) {
        const int reached = pos;
        seen.insert(reached);
        pos = FindInRange(control, start,
                          m_bDown ? reached : static_cast<int>(control->GetSelectionStart(1)),
                          noWrap);
        if (pos == -1 || !seen.contains(pos))
            continue;
        const int next = reached + (start > end ? -1 : 1);
        const bool isInside = start > end ? next >= end : next <= end;
        pos = isInside ? FindInRange(control, next, end, true) : -1;
        if (seen.contains(pos))
            return -1;
    }
    return pos;
}

namespace zncoreeditor {

CFindReplaceManager* GetFindReplaceManager()
{
    static CFindReplaceManager manager;
    return &manager;
}

} // namespace zncoreeditor
