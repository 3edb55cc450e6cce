// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The records that cross the channel to the engine by pointer, and its notification codes.
/// Positions and lengths count UTF-16 units, lines count from 0. The layouts follow those of
/// Scintilla, with text in char16_t.
#pragma once

#include "platform/base/Types.h"

class QPainter;

/// A part of the text.
struct CharacterRange
{
    int cpMin = 0; ///< its first unit
    int cpMax = 0; ///< -1: the text's end
};

/// PartitionerReset, and DoFindBatch, whose second pair takes the batch. The engine keeps no
/// pointer to either.
struct NumberPair
{
    int first = 0;  ///< of PartitionerReset: the start
    int second = 0; ///< of PartitionerReset: the end
};
/// The two places of DoFindBatch.
struct PositionPair
{
    long first = 0;  ///< the start
    long second = 0; ///< the end
};

/// GetTextRange and GetStyledText. The buffer is the caller's: cpMax - cpMin + 1 units for text,
/// twice that plus two for styled text (unit, style, unit, style, ...).
struct TextRange
{
    CharacterRange chrg;           ///< what is read
    char16_t* lpstrText = nullptr; ///< the caller's, filled here
};

/// FindTextW. A cpMax below cpMin searches backwards; chrgText takes the match.
struct TextToFind
{
    CharacterRange chrg;                 ///< where is looked
    const char16_t* lpstrText = nullptr; ///< what is looked for, terminated
    CharacterRange chrgText;             ///< takes the match
};

/// FormatRange. Rectangles are in device pixels of the painter.
struct RangeToFormat
{
    QPainter* hdc = nullptr;       ///< drawn on
    QPainter* hdcTarget = nullptr; ///< measured with; null: hdc
    RECT rc;                       ///< where the text goes
    RECT rcPage;                   ///< all of the page
    CharacterRange chrg;           ///< what is drawn; the answer is where it ended
};

/// How a style looks on the screen. Sent to the engine's window by SendMessage: wParam is the
/// style, lParam the record, the answer 1 if there is such a style. It stands outside the numbered
/// messages, since those only set.
struct StyleLook
{
    COLORREF fore = 0;        ///< the text's colour, 0x00BBGGRR
    COLORREF back = 0xFFFFFF; ///< the ground's colour
    bool bold = false;        ///< whether it is bold
    bool italic = false;      ///< whether it is slanted
    bool underline = false;   ///< whether it is underlined
    double points = 0;        ///< the font's size, zoom included
    char16_t face[64] = {};   ///< terminated, cut if it is longer
};
inline constexpr UINT kGetStyleLook = 0x8500; ///< the message that asks for a StyleLook

/// Who tells something, and what.
struct NotifyHeader
{
    HWND hwndFrom = nullptr;   ///< the engine window
    std::uintptr_t idFrom = 0; ///< its child identifier
    UINT code = 0;             ///< a notify::Code
};

/// What the engine tells its parent, as lParam of WM_NOTIFY. Valid during the call only, its text
/// included. A field that a code does not use is 0.
struct SCNotification
{
    NotifyHeader nmhdr;       ///< who tells what
    long position = 0;        ///< in units; of a change where it began
    int ch = 0;               ///< UTF-32
    int modifiers = 0;        ///< bits of engine::key: Shift, Ctrl, Alt
    int modificationType = 0; ///< bits of modification::Bit
    /// What was put in or deleted, without a terminator; or what was chosen.
    const char16_t* text = nullptr;
    long length = 0;               ///< of the change
    long linesAdded = 0;           ///< below 0 for lines that went
    int message = 0;               ///< of MacroRecord
    WPARAM wParam = 0;             ///< of MacroRecord
    LPARAM lParam = 0;             ///< of MacroRecord
    long line = 0;                 ///< of a change of folds or markers
    int foldLevelNow = 0;          ///< with ChangeFold: the level and its flags
    int foldLevelPrev = 0;         ///< with ChangeFold: those before
    int margin = 0;                ///< of a click in one, from 0
    int listType = 0;              ///< of UserListShow
    int x = 0;                     ///< of the mouse, in pixels of the window
    int y = 0;                     ///< of the mouse
    int token = 0;                 ///< not used here
    long annotationLinesAdded = 0; ///< not used here
    int updated = 0;               ///< bits of engine::update::Bit
    /// How a row was chosen: 1 a fill-up, 2 a double click, 3 Tab, 4 Enter, 5 the message.
    int listCompletionMethod = 0;
};

/// Notification codes (Scintilla's numbers).
namespace notify {
/// What is told.
enum Code : UINT
{
    StyleNeeded = 2000, ///< text up to the position has no styles, with a lexer that is the host's
    CharAdded = 2001,   ///< somebody has typed ch
    SavePointReached = 2002,      ///< the text is as it was saved
    SavePointLeft = 2003,         ///< the text differs from what was saved
    ModifyAttemptReadOnly = 2004, ///< somebody wants to change a text that is read-only
    Key = 2005,                   ///< not sent here
    DoubleClick = 2006,           ///< at the position
    UpdateUi = 2007,              ///< before a painting: what updated says has changed
    Modified = 2008,              ///< what modificationType says has changed
    MacroRecord = 2009,           ///< a command was run while macros are recorded
    MarginClick = 2010,           ///< in a margin that is sensitive
    NeedShown = 2011,             ///< a range that is hidden should be shown
    Painted = 2013,               ///< the window was painted
    UserListSelection = 2014,     ///< a row of a host's list was chosen
    UriDropped = 2015,            ///< a file was dropped: its address is the text
    DwellStart = 2016,            ///< the mouse rests
    DwellEnd = 2017,              ///< it moves again
    Zoom = 2018,                  ///< fonts are larger or smaller
    HotSpotClick = 2019,          ///< on text of a hotspot style
    HotSpotDoubleClick = 2020,    ///< on text of a hotspot style
    CallTipClick = 2021,          ///< on the call tip
    AutoCSelection = 2022,        ///< a row is about to be put in
    IndicatorClick = 2023,        ///< the button is pressed over an indicator
    IndicatorRelease = 2024,      ///< the button is let go over an indicator
    AutoCCancelled = 2025,        ///< the list was closed without a choice
    AutoCCharDeleted = 2026,      ///< a character was deleted while the list is open
    HotSpotReleaseClick = 2027,   ///< the button is let go over a hotspot
    FocusIn = 2028,               ///< the window has got the focus
    FocusOut = 2029,              ///< the window has lost the focus
    AutoCCompleted = 2030,        ///< a row was put in
    MarginRightClick = 2031,      ///< the other button, in a margin that is sensitive
    AutoCSelectionChange = 2032,  ///< another row of the list is the current one
    /// Beyond Scintilla's: what the parent heard is over, and the engine's window may go.
    Over = 2900,
};

/// A parent's answer to a notification that it may come in the middle of: it is told Over, once, as
/// soon as the message or the event is done that all this came from.
inline constexpr std::intptr_t kTellWhenOver = 0x4F766572;
} // namespace notify

/// Bits of SCNotification::modificationType (Scintilla's values).
namespace modification {
/// What has changed, and how.
enum Bit : int
{
    InsertText = 0x1,           ///< text was put in
    DeleteText = 0x2,           ///< text was deleted
    ChangeStyle = 0x4,          ///< styles
    ChangeFold = 0x8,           ///< a fold level
    User = 0x10,                ///< by a person or a message
    Undo = 0x20,                ///< by an undo
    Redo = 0x40,                ///< by a redo
    MultiStepUndoRedo = 0x80,   ///< with further steps
    LastStepInUndoRedo = 0x100, ///< the last of the steps
    ChangeMarker = 0x200,       ///< markers
    BeforeInsert = 0x400,       ///< text is about to be put in
    BeforeDelete = 0x800,       ///< text is about to be deleted
    MultilineUndoRedo = 0x1000, ///< with lines that came or went
    StartAction = 0x2000,       ///< the first of a step of undo
    ChangeIndicator = 0x4000,   ///< indicators
    ChangeLineState = 0x8000,   ///< the state of a line
};
} // namespace modification
