// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The modes, flags and numbers that messages of the engine take and give, by name. A message's
/// page says which of these groups is its own: `control.SetWrapMode(engine::wrap::Word, 1)`.
#pragma once

namespace engine {

/// What ends a line: SetEOLMode, GetEOLMode, ConvertEOLs, Copy.
namespace lineend {
/// A line end, or none that holds for all lines.
enum Mode : int
{
    NoSingle = 0, ///< as it stands; what Enter puts in stays as it was
    CrLf = 1,     ///< carriage return and line feed
    Cr = 2,       ///< carriage return
    Lf = 3        ///< line feed; a window begins with it
};
} // namespace lineend

/// Where blanks and tabs are drawn: SetViewWS, GetViewWS.
namespace whitespace {
/// Which blanks and tabs are drawn.
enum Mode : int
{
    Hidden = 0,       ///< none
    Always = 1,       ///< all of them
    BehindIndent = 2, ///< those behind the indentation
    OnlyInIndent = 3  ///< those of the indentation
};
} // namespace whitespace

/// How far the lines that show indentation reach: SetIndentationGuides, GetIndentationGuides.
namespace guides {
/// Which guides are drawn.
enum Mode : int
{
    None = 0,        ///< none
    Real = 1,        ///< inside of the indentation that a line has
    LookForward = 2, ///< through empty lines, as the next line that is not empty has them
    LookBoth = 3     ///< the same, as the line before or the next one has them, whichever has more
};
} // namespace guides

/// How a column that lines should not pass is shown: SetEdgeMode, GetEdgeMode.
namespace edge {
/// What is drawn.
enum Mode : int
{
    None = 0,      ///< nothing
    Line = 1,      ///< a line at the column
    Background = 2 ///< a ground behind the text that passes it
};
} // namespace edge

/// The mouse's shape over the text: SetCursor, GetCursor.
namespace cursor {
/// A shape.
enum Shape : int
{
    Normal = -1,     ///< as what lies below has it
    Arrow = 2,       ///< an arrow
    Wait = 4,        ///< the desktop's for work that is not done
    ReverseArrow = 7 ///< an arrow to the right, as margins have it
};
} // namespace cursor

/// The case in which a style shows letters, whatever stands in the text: StyleSetCase.
namespace letters {
/// A case.
enum Case : int
{
    AsTheyAre = 0,  ///< as the text has them
    Upper = 1,      ///< all in upper case
    Lower = 2,      ///< all in lower case
    Capitalised = 3 ///< the first of a word in upper case
};
} // namespace letters

/// Whether the caret keeps its column while text is typed: SetCaretSticky, GetCaretSticky.
namespace caretcolumn {
/// When the column that Up and Down aim at stays.
enum Mode : int
{
    Moves = 0,            ///< it is that of what was typed last
    Stays = 1,            ///< it stays as it was chosen by moving
    StaysBehindBlanks = 2 ///< it stays over blanks and tabs that are typed, and moves with the rest
};
} // namespace caretcolumn

/// Where long lines go on below themselves: SetWrapMode, SetPrintWrapMode and their getters.
namespace wrap {
/// Where a line may be divided.
enum Mode : int
{
    None = 0,      ///< nowhere
    Word = 1,      ///< between words, and where the style changes
    Character = 2, ///< between any two characters
    Blank = 3      ///< at blanks alone
};
} // namespace wrap

/// Which signs tell that a line goes on: SetWrapVisualFlags, GetWrapVisualFlags.
namespace wrapsign {
/// Bits; several may be set.
enum Flag : int
{
    None = 0,  ///< none
    End = 1,   ///< at the end of each row but the last
    Start = 2, ///< at the start of each row but the first
    Margin = 4 ///< in the margin of line numbers
};
} // namespace wrapsign

/// Where these signs stand: SetWrapVisualFlagsLocation, GetWrapVisualFlagsLocation.
namespace wrapsignplace {
/// Bits; several may be set.
enum Flag : int
{
    Border = 0,     ///< at the window's edge
    EndByText = 1,  ///< those at the end close to the text
    StartByText = 2 ///< those at the start close to the text
};
} // namespace wrapsignplace

/// How much of the layout of lines is kept: SetLayoutCache, GetLayoutCache.
namespace layout {
/// What is kept between two paintings. More costs memory and saves time.
enum Kept : int
{
    Nothing = 0,      ///< nothing
    CaretLine = 1,    ///< the caret's line
    Page = 2,         ///< the lines in view
    WholeDocument = 3 ///< all lines
};
} // namespace layout

/// How the caret is kept in view: SetXCaretPolicy, SetYCaretPolicy.
namespace caretpolicy {
/// Bits; several may be set.
enum Flag : int
{
    Slop = 0x01,   ///< a zone of so many pixels or lines at the edge is one that the caret avoids
    Strict = 0x04, ///< the zone is kept free always; else it counts when the caret has left it
    Even = 0x08,   ///< both edges have one zone; else those left and below reach further
    Jumps = 0x10   ///< a scroll goes three times as far, so that there are fewer of them
};
} // namespace caretpolicy

/// How a line is brought into view by EnsureVisibleEnforcePolicy: SetVisiblePolicy.
namespace visiblepolicy {
/// Bits; several may be set.
enum Flag : int
{
    Slop = 0x01,  ///< so many lines at the edge are to stay between it and the line
    Strict = 0x04 ///< the view is scrolled although the line is in it, if it lies in that zone
};
} // namespace visiblepolicy

/// What moving the caret selects: SetSelectionMode, GetSelectionMode.
namespace selection {
/// The form of a selection.
enum Mode : int
{
    Stream = 0,    ///< from one character to another
    Rectangle = 1, ///< columns over lines
    Lines = 2,     ///< whole lines
    Thin = 3       ///< a rectangle without width, which is a caret in each line
};
} // namespace selection

/// The colours of paper: SetPrintColorMode, GetPrintColorMode.
namespace printcolours {
/// What becomes of the colours of the screen.
enum Mode : int
{
    AsOnScreen = 0,           ///< text and grounds as they are, line numbers on white
    InvertLight = 1,          ///< light becomes dark, for a screen that is dark
    BlackOnWhite = 2,         ///< no colour at all
    ColoursOnWhite = 3,       ///< the text's colours, no ground
    ColoursOnTheirGround = 4, ///< the text's colours, and grounds but that of plain text
    AllAsOnScreen = 5         ///< the same, line numbers on their ground
};
} // namespace printcolours

/// How a text is looked for: SetSearchFlags, FindTextW, SearchNext, SearchPrev.
namespace find {
/// Bits; several may be set. Without one: anywhere, in whatever case.
enum Flag : int
{
    WholeWord = 0x2,       ///< words as SetWordChars makes them
    MatchCase = 0x4,       ///< letters as they are written
    WordStart = 0x100000,  ///< where a word begins
    Expression = 0x200000, ///< a regular expression in the engine's own way: \( \) are groups
    Posix = 0x400000,      ///< with Expression: ( ) are groups
    Perl = 0x800000        ///< with Expression: the expression is one of PCRE2
};
} // namespace find

/// What a marker looks like: MarkerDefine.
namespace marker {
/// The number of a symbol. A character of Unicode is Character plus its number.
enum Symbol : int
{
    Circle = 0,                ///< a disc
    RoundRectangle = 1,        ///< a rectangle with round corners
    Arrow = 2,                 ///< a triangle to the right
    SmallRectangle = 3,        ///< half as high
    ShortArrow = 4,            ///< an arrow to the right
    Empty = 5,                 ///< nothing: the line is marked all the same
    ArrowDown = 6,             ///< a triangle downwards, for an open fold
    Minus = 7,                 ///< for an open fold
    Plus = 8,                  ///< for a closed fold
    VerticalLine = 9,          ///< for the lines of a fold
    Corner = 10,               ///< for a fold's last line
    Tee = 11,                  ///< for the last line of a fold inside another one
    BoxPlus = 12,              ///< a plus in a box
    BoxPlusConnected = 13,     ///< the same on a fold's line
    BoxMinus = 14,             ///< a minus in a box
    BoxMinusConnected = 15,    ///< the same on a fold's line
    RoundCorner = 16,          ///< as Corner, round
    RoundTee = 17,             ///< as Tee, round
    CirclePlus = 18,           ///< a plus in a circle
    CirclePlusConnected = 19,  ///< the same on a fold's line
    CircleMinus = 20,          ///< a minus in a circle
    CircleMinusConnected = 21, ///< the same on a fold's line
    Background = 22,           ///< a ground behind the line's text, nothing in the margin
    Dots = 23,                 ///< three dots
    Arrows = 24,               ///< three arrow heads
    Pixmap = 25,               ///< an image: MarkerDefinePixmap sets it
    FullRectangle = 26,        ///< as wide and high as the margin's line
    LeftRectangle = 27,        ///< a bar at the left
    Available = 28,            ///< nothing, for a plugin that asks which numbers are free
    Underline = 29,            ///< a line below the text, nothing in the margin
    Bookmark = 31,             ///< a flag
    Character = 10000          ///< plus the number of a character
};
} // namespace marker

/// The markers that stand for folds in a margin whose mask has them: MarkerDefine.
namespace foldmarker {
/// The number of a marker.
enum Number : int
{
    HeaderClosedInside = 25, ///< a header inside another fold, closed
    HeaderOpenInside = 26,   ///< a header inside another fold, open
    EndInside = 27,          ///< the last line of a fold inside another one
    End = 28,                ///< the last line of a fold
    Inside = 29,             ///< a line of a fold
    HeaderClosed = 30,       ///< a header, closed
    HeaderOpen = 31          ///< a header, open
};
} // namespace foldmarker

/// What a margin shows: SetMarginTypeN, GetMarginTypeN.
namespace margin {
/// A kind of margin.
enum Type : int
{
    Symbols = 0,         ///< markers
    Numbers = 1,         ///< line numbers, and markers
    SymbolsOnGround = 2, ///< markers on the ground of plain text
    SymbolsOnText = 3,   ///< markers on the colour of plain text
    Text = 4,            ///< a text for each line, from the left
    RightText = 5        ///< the same, from the right
};
} // namespace margin

/// Styles with a meaning of their own beside those of a lexer: the operations StyleSet...
namespace style {
/// The number of a style.
enum Number : int
{
    Default = 32,     ///< what StyleClearAll gives to all others
    LineNumber = 33,  ///< the margin of line numbers
    BraceLight = 34,  ///< a brace that has its partner
    BraceBad = 35,    ///< a brace that lacks it
    ControlChar = 36, ///< the names of control characters
    IndentGuide = 37, ///< the lines that show indentation
    CallTip = 38      ///< call tips, once CallTipSetBack or CallTipSetFore has been sent
};
} // namespace style

/// How an indicator is drawn: IndicSetStyle, IndicGetStyle.
namespace indicator {
/// A form.
enum Style : int
{
    Plain = 0,           ///< a line below
    Squiggle = 1,        ///< a wave below
    Teeth = 2,           ///< small Ts below
    Diagonal = 3,        ///< slanted strokes below
    Strike = 4,          ///< a line through
    Hidden = 5,          ///< nothing
    Box = 6,             ///< a frame
    RoundBox = 7,        ///< a frame with a light ground and round corners
    StraightBox = 8,     ///< the same with straight corners
    Dash = 9,            ///< dashes below
    Dots = 10,           ///< dots below
    LowSquiggle = 11,    ///< a flatter wave
    DottedBox = 12,      ///< a frame of dots
    SquiggleImage = 13,  ///< a wave that is faster to draw
    ThickLine = 14,      ///< as input methods have it
    ThinLine = 15,       ///< as input methods have it
    FullBox = 16,        ///< as StraightBox, as high as the line
    TextColour = 17,     ///< the text's own colour
    Point = 18,          ///< a triangle at the start
    PointCharacter = 19, ///< a triangle at the middle of the first character
    Gradient = 20,       ///< a ground that fades downwards
    GradientCentre = 21  ///< a ground that fades from its middle
};
} // namespace indicator

/// Which lines are drawn where text is folded: SetFoldFlags.
namespace foldline {
/// Bits; several may be set.
enum Flag : int
{
    None = 0,               ///< none
    AboveExpanded = 0x2,    ///< above a header that is open
    AboveContracted = 0x4,  ///< above a header that is closed
    BelowExpanded = 0x8,    ///< below a header that is open
    BelowContracted = 0x10, ///< below a header that is closed
    LevelNumbers = 0x40,    ///< the levels in the margin of line numbers, to look for faults
    LineStates = 0x80       ///< the lines' states there, to look for faults
};
} // namespace foldline

/// What has failed: SetStatus, GetStatus.
namespace status {
/// A failure; any other number is the host's own.
enum Code : int
{
    Ok = 0,         ///< nothing
    Failure = 1,    ///< something that has no number of its own
    OutOfMemory = 2 ///< an allocation; what enters text throws instead
};
} // namespace status

/// How long a mouse has to rest until that is told: SetMouseDwellTime, GetMouseDwellTime.
namespace dwell {
/// It is never told; a window begins with it.
inline constexpr int kNever = 10000000;
} // namespace dwell

/// Keys: AssignCmdKey, ClearCmdKey. A letter or a digit is its character, in upper case.
namespace key {
/// A key without a character, or a modifier.
enum Code : int
{
    Escape = 7,     ///< Escape
    Backspace = 8,  ///< Backspace
    Tab = 9,        ///< Tab
    Return = 13,    ///< Enter
    Down = 300,     ///< the arrow
    Up = 301,       ///< the arrow
    Left = 302,     ///< the arrow
    Right = 303,    ///< the arrow
    Home = 304,     ///< Home
    End = 305,      ///< End
    PageUp = 306,   ///< Page Up
    PageDown = 307, ///< Page Down
    Delete = 308,   ///< Delete
    Insert = 309,   ///< Insert
    Add = 310,      ///< + of the number pad
    Subtract = 311, ///< - of the number pad
    Divide = 312    ///< / of the number pad
};
/// Bits; several may be held.
enum Modifier : int
{
    Shift = 1, ///< Shift
    Ctrl = 2,  ///< Control
    Alt = 4,   ///< Alt
    Meta = 16  ///< the key of the desktop
};
/// The one parameter that both messages take for a key with its modifiers.
constexpr int With(int code, int modifiers)
{
    return code | modifiers << 16;
}
} // namespace key

/// Lexers: SetLexer, GetLexer. Any other number is plain text.
namespace lexer {
/// The number of a lexer.
enum Number : int
{
    Container = 0,    ///< generic SQL to the script analysis; its styles are the host's to set
    PlainText = 1,    ///< no style but 0
    Ase = 2,          ///< SQL of Adaptive Server
    TransactSql = 3,  ///< SQL of SQL Server
    Db2 = 4,          ///< SQL of DB2
    Oracle = 5,       ///< PL/SQL
    Cpp = 6,          ///< C++, C, Java and their like
    Html = 7,         ///< HTML with what stands in it
    Xml = 8,          ///< XML
    GenericSql = 9,   ///< SQL of the dialect that the property sql.dialect names
    Db2ForZOs = 10,   ///< SQL of DB2 for z/OS
    VisualBasic = 11, ///< Visual Basic
    VbScript = 12,    ///< VBScript
    Batch = 13,       ///< command files
    MySql = 14,       ///< SQL of MySQL
    InterBase = 15,   ///< SQL of InterBase and Firebird
    AzureSql = 17,    ///< SQL of Azure SQL
    Iq = 18,          ///< SQL of IQ
    Diff = 19,        ///< differences between files
    Properties = 20,  ///< names and values
    Makefile = 21,    ///< make
    ErrorList = 22,   ///< messages of compilers
    Latex = 23,       ///< LaTeX
    Asp = 24,         ///< HTML with scripts of the server
    Php = 25,         ///< HTML with PHP
    Perl = 26,        ///< Perl
    Css = 27,         ///< style sheets
    CppAnyCase = 28,  ///< as Cpp, with keywords in any case
    PhpScript = 30    ///< PHP without HTML around it
};
} // namespace lexer

/// What SCNotification::updated tells with UpdateUi.
namespace update {
/// Bits; several may be set.
enum Bit : int
{
    Content = 0x1,   ///< the text, its styles or its marks
    Selection = 0x2, ///< the caret or the selection
    Vertical = 0x4,  ///< the view was scrolled up or down
    Horizontal = 0x8 ///< the view was scrolled sideways
};
} // namespace update

} // namespace engine
