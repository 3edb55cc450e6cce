// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: the words that might complete the one at the caret.
#include "control/Completion.h"
#include "control/EngineRecords.h"
#include "docview/ZNCoreEditorView.h"
#include "docview/text/CodeWords.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/base/Units.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>

namespace {

constexpr int kLineUnits = 1000;     // what is looked at of a line
constexpr long kLongestWord = 77;    // of the text, in units
constexpr int kWordStart = 0x100000; // search flag: at the start of a word, whatever the case
constexpr const char16_t* kFillUps = u"\t";
constexpr const char16_t* kStops = u" \x1B";

// The line up to the caret, as far as it is looked at; empty if the caret stands behind that.
std::u16string LineBeforeCaret(CZNCoreEditorControlEx& control)
{
    std::array<char16_t, kLineUnits + 1> line = {};
    control.GetCurLine(kLineUnits, line.data(), 1);
    const std::u16string_view fitting(line.data());
    const long caret = control.GetCaretInLine();
    if (caret <= 0 || static_cast<std::size_t>(caret) > fitting.size())
        return {};
    return std::u16string(fitting.substr(0, static_cast<std::size_t>(caret)));
}

// Looked up by what stands in the text, which is mostly there already.
struct WordHash
{
    using is_transparent = void;
    std::size_t operator()(std::u16string_view word) const
    {
        return std::hash<std::u16string_view>{}(word);
    }
};
using Words = std::unordered_set<std::u16string, WordHash, std::equal_to<>>;

// Pieces of the text, asked for from front to back. Where they stand close together one reading
// serves many of them, and where they do not it is no longer than a piece.
class Pieces
{
public:
    explicit Pieces(CZNCoreEditorControlEx& control) : m_control(control) {}

    std::u16string_view At(long start, long end)
    {
        if (start < m_start || end > m_end)
            Read(start, end);
        return std::u16string_view(m_units).substr(static_cast<std::size_t>(start - m_start),
                                                   static_cast<std::size_t>(end - start));
    }

private:
    void Read(long start, long end)
    {
        constexpr long kMost = 8192;
        m_ahead = start - m_end < m_ahead ? std::min(2 * m_ahead, kMost) : kLongestWord;
        m_start = start;
        m_end = std::min(std::max(end, start + m_ahead), m_control.GetLength(1));
        m_units.resize(static_cast<std::size_t>(m_end - start) + 1);
        m_control.GetRange(m_start, m_end, m_units.data());
    }

    CZNCoreEditorControlEx& m_control;
    std::u16string m_units; // of the text from m_start to m_end, and a terminator
    long m_start = 0;
    long m_end = 0;
    long m_ahead = kLongestWord;
};

std::u16string WordBeforeCaret(CZNCoreEditorControlEx& control)
{
    const std::u16string line = LineBeforeCaret(control);
    return line.substr(
        static_cast<std::size_t>(codewords::WordStart(line, static_cast<long>(line.size()))));
}

} // namespace

// The list is made and handed to ShowCodeList, which a host overrides: nothing here shows it.
void CZNCoreEditorView::OnEditCodelist()
{
    m_coreEditor.AutoCSetIgnoreCase(1, 1);
    m_coreEditor.AutoCSetCancelAtStart(0, 1);
    m_coreEditor.AutoCSetChooseSingle(1, 1);
    m_coreEditor.AutoCSetFillUps(kFillUps, 1);
    m_coreEditor.AutoCStops(kStops, 1);
    m_coreEditor.AutoCSetAutoHide(0, 1);

    const std::u16string word = WordBeforeCaret(m_coreEditor);
    if (word.empty())
        return;
    const auto length = static_cast<int>(word.size());
    QStringList words;
    GetWordsNear(word.c_str(), length, words);
    words += KeywordsLike(QString(reinterpret_cast<const QChar*>(word.data()), length));
    const std::vector<QString> candidates = codewords::SortedOnce(words);
    if (candidates.empty())
        return;
    const auto text = std::make_unique<char16_t[]>(1);
    ShowCodeList({.text = text.get(), .mode = 1, .typedLength = length, .flags = 1}, candidates);
}

void CZNCoreEditorView::ShowCodeList(const AutoCompleteConfig& /*config*/,
                                     const std::vector<QString>& /*candidates*/)
{}

// In their own case, unlike the words of the text.
QStringList CZNCoreEditorView::KeywordsLike(const QString& word)
{
    constexpr char kSeparator = ' ';
    const QString all = zncoreeditor::GetFileTypeManager()->GetDelimitedKeywords(
        m_coreEditor.GetCurrentLanguage(), kSeparator);
    QStringList like;
    for (const QString& keyword : m_textUtil.Split(all, QChar(kSeparator))) {
        if (keyword.startsWith(word))
            like << keyword;
    }
    return like;
}

// From the text's start to its end, in the order of their first appearance.
void CZNCoreEditorView::GetWordsNear(const char16_t* word, int length, QStringList& list)
{
    Words known;
    for (const QString& each : list)
        known.insert(each.toStdU16String());
    const long skip = m_coreEditor.GetCurrentPos(1) - length;
    const long end = m_coreEditor.GetLength(1);
    Pieces pieces(m_coreEditor);
    for (long start = 0; start < end;) {
        TextToFind search{.chrg = {static_cast<int>(start), static_cast<int>(end)},
                          .lpstrText = word};
        const long at = m_coreEditor.FindTextW(kWordStart, &search, 1);
        if (at < 0 || at >= end)
            return;
        if (at == skip) {
            start = at + length;
            continue;
        }
        const std::u16string_view piece = pieces.At(at, std::min(at + kLongestWord, end));
        std::size_t size = std::min(static_cast<std::size_t>(length), piece.size());
        while (size < piece.size() && codewords::IsWordUnit(piece[size]))
            ++size;
        long step = static_cast<long>(size) - 1;
        const std::u16string_view found = piece.substr(0, size);
        if (step >= length && !known.contains(found)) {
            known.emplace(found);
            list << QString(reinterpret_cast<const QChar*>(found.data()),
                            static_cast<qsizetype>(size));
        }
        start = at + std::max(step, 1L);
    }
}

// Looks for the word at the caret, and leaves it as it is.
void CZNCoreEditorView::DoAutoComplete()
{
    WordBeforeCaret(m_coreEditor);
}

void CZNCoreEditorView::OnEditCodecomplete()
{
    DoAutoComplete();
}

void CZNCoreEditorView::CodeFillUp(const char16_t* /*text*/) {}
