// SPDX-License-Identifier: GPL-3.0-or-later
// Replacing, of CFindReplaceManager.
#include "control/ZNCoreEditorControl.h"
#include "platform/base/Units.h"
#include "platform/services/LongWork.h"
#include "search/FindReplaceManager.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ReplaceAll)
};

// The engine's analysis rests, and one undo takes all back.
class BulkChange
{
public:
    explicit BulkChange(CZNCoreEditorControl& control) : m_control(control)
    {
        m_control.SetDoingReplaceAll(true, 1);
        m_control.BeginUndoAction(1);
    }
    BulkChange(const BulkChange&) = delete;
    BulkChange& operator=(const BulkChange&) = delete;
    ~BulkChange()
    {
        m_control.EndUndoAction(1);
        m_control.SetDoingReplaceAll(false, 1);
    }

private:
    CZNCoreEditorControl& m_control;
};

// 0 for a letter that is no escape.
char16_t Escaped(char16_t letter)
{
    constexpr std::u16string_view kLetters = u"abfnrtv";
    constexpr std::u16string_view kCharacters = u"\a\b\f\n\r\t\v";
    const auto at = kLetters.find(letter);
    return at == kLetters.npos ? u'\0' : kCharacters[at];
}

// How far a place is from one end of a range towards the other.
int Hundredths(int place, int start, int end)
{
    const double length = std::abs(end - start);
    return length > 0 ? std::min(100, static_cast<int>(std::abs(place - start) * 100 / length)) : 0;
}

bool TargetIsEmpty(CZNCoreEditorControl& control)
{
    return control.GetTargetStart(1) == control.GetTargetEnd(1);
}

} // namespace

// How often a search that wraps has gone through the text, so that it does not do so for ever.
// As long as the replacements make the text shorter, they end by themselves. The first time they
// have not, the search goes no further than the first match, and the second time it ends.
class CFindReplaceManager::Round
{
public:
    Round(CZNCoreEditorControl& control, int first)
        : m_control(control), m_first(first), m_length(control.GetLength(1))
    {}

    // Whether the match that was looked for from a place on is to be replaced.
    bool GoesOn(int from, int pos)
    {
        if (pos < from) {
            const long length = m_control.GetLength(1);
            if (length >= m_length && m_isLast)
                return false;
            m_isLast = m_isLast || length >= m_length;
            m_length = length;
            m_again = true;
        }
        if (m_isLast)
            return pos < m_first;
        return !m_again || !TargetIsEmpty(m_control);
    }

private:
    CZNCoreEditorControl& m_control;
    int m_first;
    long m_length; // when the round began
    bool m_again = false;
    bool m_isLast = false;
};

QString CFindReplaceManager::DecodeEscapes(const char16_t* text)
{
    QString decoded;
    if (!text)
        return decoded;
    for (; *text; ++text) {
        if (*text != u'\\') {
            decoded += QChar(*text);
            continue;
        }
        ++text;
        if (const char16_t character = Escaped(*text)) {
            decoded += QChar(character);
            continue;
        }
        decoded += u'\\';
        decoded += QChar(*text);
        if (!*text)
            break;
    }
    return decoded;
}

// Decoding what is decoded changes nothing, so that one pass serves for all replacements.
QString CFindReplaceManager::ReplacementText() const
{
    return m_bTransform ? DecodeEscapes(Units(m_strReplace)) : m_strReplace;
}

int CFindReplaceManager::PutIn(CZNCoreEditorControl& control, const QString& text) const
{
    const int length = static_cast<int>(text.size());
    return m_bRegExp ? static_cast<int>(control.ReplaceTargetRE(length, Units(text), 1))
                     : control.ReplaceTarget(length, Units(text), 1);
}

void CFindReplaceManager::ReplaceOne(CZNCoreEditorControl* control)
{
    if (!control)
        return;
    const int count = PutIn(*control, ReplacementText());
    control->SetCurrentPos(control->GetCurrentPos(1) + count, 1);
}

int CFindReplaceManager::ReplaceAll(CZNCoreEditorControl* control, bool inSelection)
{
    m_isStopped = false;
    if (!control || !control->GetSafeHwnd())
        return 0;
    const long caret = control->GetCurrentPos(1);
    int start = static_cast<int>(caret);
    int end = m_bDown ? static_cast<int>(control->GetLength(1)) : 0;
    if (inSelection) {
        start = static_cast<int>(control->GetSelectionStart(1));
        end = static_cast<int>(control->GetSelectionEnd(1));
        if (!m_bDown)
            std::swap(start, end);
    } else if (m_bWrap) {
        start = 0;
        end = static_cast<int>(control->GetLength(1));
    }
    const int count = ReplaceInRange(*control, start, end, inSelection);
    if (inSelection) {
        control->SetSel(start, end, 1);
        control->SetCurrentPos(end, 1);
    } else {
        control->SetCurrentPos(caret, 1);
        control->SetAnchor(caret, 1);
    }
    return count;
}

// The end moves with the text, by the difference in length whatever its sign: behind a shorter
// replacement the range reaches over text that it did not stand for.
int CFindReplaceManager::ReplaceInRange(CZNCoreEditorControl& control, int start, int& end,
                                        bool inSelection)
{
    const BulkChange bulk(control);
    LongWork work(control.GetSafeHwnd(), Texts::tr("Replacing"));
    const QString text = ReplacementText();
    const bool isForward = start < end;
    const bool isNothing = start == end;
    int pos = FindInRange(&control, start, end, inSelection);
    const int first = pos;
    Round round(control, first);
    int count = 0;
    while (pos != -1) {
        const int targetStart = static_cast<int>(control.GetTargetStart(1));
        const int targetEnd = static_cast<int>(control.GetTargetEnd(1));
        // As SetSel does, without scrolling to each match.
        control.SetAnchor(targetStart, 1);
        control.SetCurrentPos(targetEnd, 1);
        const int length = PutIn(control, text);
        if (control.GetReadOnly(1))
            break;
        ++count;
        if (!work.Step(Hundredths(targetStart, start, end)) || !control.GetSafeHwnd())
            break;
        const int growth = length - (targetEnd - targetStart);
        if (m_bRegExp && pos == end && m_strFind == u"$") {
            end += growth;
            control.SetTargetStart(end, 1);
            break;
        }
        if (m_bDown)
            end += std::abs(growth);
        if (isNothing)
            break; // nothing was all there was to search

        int from = isForward ? targetStart + length : targetStart - 1;
        if (!isForward && from < end)
            break;
        pos = FindInRange(&control, from, end, inSelection);
        // Nothing where nothing has just been replaced is the same match.
        if (isForward && targetStart == targetEnd && pos == from && TargetIsEmpty(control)) {
            from = std::max(from + 1, static_cast<int>(control.PositionAfter(from, 1)));
            pos = from <= end ? FindInRange(&control, from, end, inSelection) : -1;
        }
        if (m_bWrap &&
            ((pos >= first && pos < first + length) || (!m_bDown && pos < targetStart + length)))
            break;
        if (isForward && pos != -1 && !round.GoesOn(from, pos))
            break;
    }
    m_isStopped = work.IsStopped();
    return count;
}
