// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The engine's message table: what each parameter and each result is, and the C++ type it has in
/// the operations of the control. The rows stand in EngineMessages.def.
///
/// What the engine promises beside the rows:
/// - Positions count UTF-16 units. One outside the text is taken as its nearest end; one between
/// the
///   halves of a pair as the pair's start. A negative one keeps its meaning in the message.
/// - Text that comes in is UTF-16. A lone surrogate becomes U+FFFD, one unit for one unit, so that
///   positions stay right.
/// - A number outside the table answers 0.
/// - Line-end modes are 1 CR LF, 2 CR, 3 LF, and 0 where no single one applies; a window begins
///   with 3. Mode 0 leaves what Enter puts in as it was.
/// - A window tells its parent of changes of the text and of fold levels, and of more if its mask
///   says so (SetModEventMask, kDefaultModEventMask). A change is told once it is in the text,
///   before a save point that it left, and what it is told with is good until the handler returns.
/// - An allocation that fails throws std::bad_alloc out of the messages that enter text.
/// - SQL is coloured and folded by the engine itself: control/SqlStyles.h says how.
/// - Every message belongs to the GUI thread.
#pragma once

#include "control/EngineRecords.h"
#include "control/ErrorInfo.h"
#include "control/PartitionInfo.h"

#include <array>
#include <memory>
#include <vector>

struct AutoCompleteConfig;
namespace znsqlassist {
class SQLCompletionProposal;
}

/// What a host and the engine's module share: numbers, records and modes.
namespace engine {

/// What a parameter or a result of a message is.
enum class Kind : unsigned char
{
    None,     ///< there is none
    Num,      ///< a plain number, passed as it is
    Flag,     ///< 0 or 1
    Colour,   ///< 0x00BBGGRR
    Line,     ///< from 0
    Pos,      ///< a place in the text; negative ones have a meaning of their own and pass unchanged
    Span,     ///< a difference of places
    Count,    ///< how many units of the text beside it
    TextIn,   ///< UTF-16, terminated unless a Count stands beside it
    TextOut,  ///< the caller's buffer, filled with UTF-16 and a terminator
    BytesIn,  ///< image text or UTF-8, as it is
    BytesOut, ///< the caller's buffer, filled with UTF-8
    CellsIn,  ///< pairs of unit and style; the Count beside it counts both
    StylesIn, ///< one byte for each unit
    RangeIo,  ///< TextRange
    FindIo,   ///< TextToFind
    FormatIo, ///< RangeToFormat
    Window,   ///< HWND
    Document, ///< the engine's reference-counted text
    Config,   ///< AutoCompleteConfig
    Proposals,  ///< what AutoCShow lists
    ErrorIn,    ///< ErrorInfo, copied
    Error,      ///< ErrorInfo of the engine's list, or null
    Errors,     ///< ErrorMap of the engine's
    Partitions, ///< list of PartitionInfo, which the caller releases (delete); null: none
    TextGiven,  ///< UTF-16, which the caller releases (delete[]); null: none
    PairIn,     ///< NumberPair
    PairIo,     ///< PositionPair
    Pointer,    ///< carried as it is
};

/// Which of the two parameters a message has.
enum class Shape : unsigned char
{
    A, ///< none
    B, ///< wParam
    C, ///< both
    D  ///< lParam
};

/// The C++ type of a kind: a number, unless it is one of those below.
template <Kind K>
struct TypeOf
{
    using Type = int; ///< the type
};
/// \cond
// clang-format off
template <> struct TypeOf<Kind::None>      { using Type = void; };
template <> struct TypeOf<Kind::Colour>    { using Type = unsigned long; };
template <> struct TypeOf<Kind::Pos>       { using Type = long; };
template <> struct TypeOf<Kind::Span>      { using Type = long; };
template <> struct TypeOf<Kind::TextIn>    { using Type = const char16_t*; };
template <> struct TypeOf<Kind::TextOut>   { using Type = char16_t*; };
template <> struct TypeOf<Kind::BytesIn>   { using Type = const char*; };
template <> struct TypeOf<Kind::BytesOut>  { using Type = char*; };
template <> struct TypeOf<Kind::CellsIn>   { using Type = const char16_t*; };
template <> struct TypeOf<Kind::StylesIn>  { using Type = const char*; };
template <> struct TypeOf<Kind::RangeIo>   { using Type = TextRange*; };
template <> struct TypeOf<Kind::FindIo>    { using Type = TextToFind*; };
template <> struct TypeOf<Kind::FormatIo>  { using Type = RangeToFormat*; };
template <> struct TypeOf<Kind::Window>    { using Type = HWND; };
template <> struct TypeOf<Kind::Document>  { using Type = LRESULT; };
template <> struct TypeOf<Kind::Config>    { using Type = const AutoCompleteConfig*; };
template <> struct TypeOf<Kind::ErrorIn>   { using Type = const ErrorInfo*; };
template <> struct TypeOf<Kind::Error>     { using Type = ErrorInfo*; };
template <> struct TypeOf<Kind::Errors>    { using Type = ErrorMap*; };
template <> struct TypeOf<Kind::Partitions> { using Type = PartitionInfo*; };
template <> struct TypeOf<Kind::TextGiven> { using Type = char16_t*; };
template <> struct TypeOf<Kind::PairIn>    { using Type = const NumberPair*; };
template <> struct TypeOf<Kind::PairIo>    { using Type = PositionPair*; };
template <> struct TypeOf<Kind::Pointer>   { using Type = void*; };
template <> struct TypeOf<Kind::Proposals>
{
    using Type = std::vector<std::shared_ptr<znsqlassist::SQLCompletionProposal>>*;
};
// clang-format on
/// \endcond

/// The type that a kind has in an operation.
template <Kind K>
using CppType = typename TypeOf<K>::Type;

/// One row of the table.
struct MessageRow
{
    const char* name; ///< the operation's
    UINT number;      ///< the message's
    Shape shape;      ///< which parameters it has
    Kind result;      ///< what it answers
    Kind wParam;      ///< None where the shape has no such parameter
    Kind lParam;      ///< the same of the second parameter
};

/// All messages of the table, in its order.
inline constexpr MessageRow kMessageRows[] = {
#define ZN_A(name, number, result) {#name, number, Shape::A, Kind::result, Kind::None, Kind::None},
#define ZN_B(name, number, result, kind, arg)                                                      \
    {#name, number, Shape::B, Kind::result, Kind::kind, Kind::None},
#define ZN_C(name, number, result, kind, arg, kind2, arg2)                                         \
    {#name, number, Shape::C, Kind::result, Kind::kind, Kind::kind2},
#define ZN_D(name, number, result, kind, arg)                                                      \
    {#name, number, Shape::D, Kind::result, Kind::None, Kind::kind},
#define ZN_OWN(shape, ...) ZN_##shape(__VA_ARGS__)
#include "control/EngineMessages.def"
};

/// The numbers by name, for the few places that send a message without a wrapper.
namespace message {
/// The number of a message, under the operation's name.
enum Number : UINT
{
#define ZN_A(name, number, ...) name = number,
#define ZN_B(name, number, ...) name = number,
#define ZN_C(name, number, ...) name = number,
#define ZN_D(name, number, ...) name = number,
#define ZN_OWN(shape, name, number, ...) name = number,
#include "control/EngineMessages.def"
    GetDirectFunction = 2184, ///< the engine's function: a DirectFunction
    GetDirectPointer = 2185,  ///< what that function takes first
};
} // namespace message

/// No number stands twice.
consteval bool NumbersAreUnique()
{
    std::array<bool, 0x2000> seen{};
    for (const MessageRow& row : kMessageRows) {
        if (seen[row.number])
            return false;
        seen[row.number] = true;
    }
    return true;
}
static_assert(NumbersAreUnique());

/// The engine's function for direct calls; instance is the answer to GetDirectPointer.
using DirectFunction = LRESULT (*)(LRESULT instance, UINT message, WPARAM wParam, LPARAM lParam);

/// What a window tells of unless its host sets a mask.
inline constexpr int kDefaultModEventMask =
    modification::InsertText | modification::DeleteText | modification::ChangeFold;

/// Messages outside the table, which have no operation of the control.
inline constexpr UINT kRestyle = 2494; ///< the text's styles are stale
/// What stands beside the lines in margin 0, in place of what stood there. A text ends at its first
/// line end.
inline constexpr UINT kExtendedTexts = 4011; ///< wParam: std::map<int, std::u16string>*, by line
inline constexpr UINT kExtendedText = 4012;  ///< wParam: UTF-16, a line for each; lParam: its units

/// The class that the module registers.
inline constexpr const char16_t* kWindowClass = u"ZNBaseEditorWin";
/// The bare name of the module, as LoadModule takes it.
inline constexpr const char16_t* kModule = u"ZNBaseEditor";

} // namespace engine
