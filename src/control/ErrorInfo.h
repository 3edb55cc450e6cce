// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// ErrorInfo: one problem of a script, and what the messages of the engine's error list mean.
///
/// The list belongs to the text, as the marks do: two windows that show one text show one list, and
/// it ends with the text. The numbers of the marks and the severities are the text's too, so the
/// window that set them last decides; a text that no window has set them for takes those of the
/// window that shows it.
///
/// - ErrorAdd(owner, record) lists a copy. The answer is its id, above 0; 0 for a null record.
/// - ErrorsShow marks every listed problem that the severities let through.
/// - ErrorDelete(owner, id) takes one out, with its marks. Another owner's stays.
/// - ErrorDeleteAll(owner, kind) takes out all of an owner and a kind.
/// - ErrorMarkerDeleteAll(owner, kind) takes out their marks alone; ErrorsShow marks them again.
/// - ErrorGetFirst(owner): the first in the text; null: none. Equal places: the older first.
/// - ErrorGetNext(owner): the one behind the one that was given last by either of the two, which
/// may
///   have been deleted since. A list has one such walk.
/// - ErrorGetOverPos(position): of those that the severities let through and that stand over the
///   position the worst, then the shortest, then the oldest; or null.
/// - ErrorsGetAll(owner, kind): all of them by the line that they begin in, in the order of a walk.
/// - ErrorsSetIndic, WarningsSetIndic: the indicator below the text, 0 to 31.
/// - ErrorsSetMarkNum, WarningsSetMarkNum: the marker in the margin, 0 to 31. Any other number, and
///   none set yet: no such mark. The list owns its numbers: what a host draws with them itself is
///   wiped away.
/// - SetSyntaxSeverity, SetSemanticSeverity: problems of that kind below the severity are listed
/// and
///   not shown. 0, as it is at first, lets all through.
///
/// Where an owner or a kind is asked, -1 stands for any. An owner is a number of the host's choice:
/// the check that reports, so that it can take back what it has said and nobody else's.
///
/// Places follow the text as it is edited, and the marks with them. What is put in at a problem's
/// start or end does not become part of it. A problem whose text is deleted stays listed where its
/// text stood, with its marker; undo brings the text back without the indicator. The records that
/// the engine gives hold the places of the moment of that message.
///
/// The engine owns what it gives: a record until it is deleted (a shared pointer keeps it beyond
/// that), the map until the next ErrorsGetAll on the text.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// The numbers of the error list.
namespace problem {

/// How bad a problem is.
enum Severity : int
{
    Note = 0,    ///< listed, never marked
    Warning = 1, ///< drawn as a warning
    Error = 2,   ///< and above
};

/// Any other number is a kind of the host's own, which no severity keeps from being shown.
enum Kind : int
{
    Syntax = 0,   ///< of how a statement is written
    Semantic = 1, ///< of what a statement means
};

inline constexpr int kAny = -1; ///< owner or kind

} // namespace problem

/// Positions count UTF-16 units, lines count from 0. A record owns its text, which new[] made.
struct ErrorInfo
{
    /// ErrorAdd clamps places to the text. An end before the start counts as the start, and what is
    /// empty takes in the character behind it, at a line's end the one in front. With a start below
    /// 0 the problem is known by its line alone, and takes that line's text without the blanks
    /// around it.
    long nStart = -1;
    long nEnd = -1;                 ///< behind the last unit
    int nLine = 0;                  ///< of the start
    int nSeverity = problem::Error; ///< a problem::Severity
    int nKind = problem::Syntax;    ///< a problem::Kind, or one of the host's
    int nCode = 0;                  ///< the host's: a number of its server or parser
    char16_t* pszText = nullptr;    ///< terminated; null: none
    int nOwner = 0;                 ///< set by ErrorAdd
    int nId = 0;                    ///< set by ErrorAdd

    ErrorInfo() = default; ///< an error without a text, known by line 0
    /// With a text of its own.
    ErrorInfo(const ErrorInfo& other)
        : nStart(other.nStart), nEnd(other.nEnd), nLine(other.nLine), nSeverity(other.nSeverity),
          nKind(other.nKind), nCode(other.nCode), nOwner(other.nOwner), nId(other.nId)
    {
        SetText(other.pszText);
    }
    /// Its own text goes.
    ErrorInfo& operator=(ErrorInfo other) noexcept
    {
        nStart = other.nStart;
        nEnd = other.nEnd;
        nLine = other.nLine;
        nSeverity = other.nSeverity;
        nKind = other.nKind;
        nCode = other.nCode;
        std::swap(pszText, other.pszText);
        nOwner = other.nOwner;
        nId = other.nId;
        return *this;
    }
    ~ErrorInfo() { delete[] pszText; } ///< its text goes

    /// A copy of the text takes the place of the one before; null leaves none.
    void SetText(const char16_t* text)
    {
        char16_t* copy = nullptr;
        if (text) {
            const std::size_t size = std::char_traits<char16_t>::length(text) + 1;
            copy = new char16_t[size];
            std::copy_n(text, size, copy);
        }
        delete[] std::exchange(pszText, copy);
    }
};

using ErrorMap = std::map<int, std::vector<std::shared_ptr<ErrorInfo>>>; ///< by line
