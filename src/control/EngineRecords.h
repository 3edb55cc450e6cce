// SPDX-License-Identifier: GPL-3.0-or-later
// The records that cross the channel to the engine by pointer, and its notification codes.
// Positions and lengths count UTF-16 units, lines count from 0. The layouts follow those of
// Scintilla, with text in char16_t.
#pragma once

#include "platform/base/Types.h"

class QPainter;

struct CharacterRange
{
    int cpMin = 0;
    int cpMax = 0; // -1: the text's end
};

// PartitionerReset, and DoFindBatch, whose second pair takes the batch. The engine keeps no pointer
// to either.
struct NumberPair
{
    int first = 0;
    int second = 0;
};
struct PositionPair
{
    long first = 0;
    long second = 0;
};

// GetTextRange and GetStyledText. The buffer is the caller's: cpMax - cpMin + 1 units for text,
// twice that plus two for styled text (unit, style, unit, style, ...).
struct TextRange
{
    CharacterRange chrg;
    char16_t* lpstrText = nullptr;
};

// FindTextW. A cpMax below cpMin searches backwards; chrgText takes the match.
struct TextToFind
{
    CharacterRange chrg;
    const char16_t* lpstrText = nullptr;
    CharacterRange chrgText;
};

// FormatRange. Rectangles are in device pixels of the painter.
struct RangeToFormat
{
    QPainter* hdc = nullptr;       // drawn on
    QPainter* hdcTarget = nullptr; // measured with; null: hdc
    RECT rc;
    RECT rcPage;
    CharacterRange chrg;
};

// How a style looks on the screen. Sent to the engine's window by SendMessage: wParam is the style,
// lParam the record, the answer 1 if there is such a style. It stands outside the numbered
// messages, since those only set.
struct StyleLook
{
    COLORREF fore = 0;
    COLORREF back = 0xFFFFFF;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    double points = 0;
    char16_t face[64] = {}; // terminated, cut if it is longer
};
inline constexpr UINT kGetStyleLook = 0x8500;

struct NotifyHeader
{
    HWND hwndFrom = nullptr;   // the engine window
    std::uintptr_t idFrom = 0; // its child identifier
    UINT code = 0;
};

// What the engine tells its parent, as lParam of WM_NOTIFY. Valid during the call only, its text
// included. A field that a code does not use is 0.
struct SCNotification
{
    NotifyHeader nmhdr;
    long position = 0;
    int ch = 0; // UTF-32
    int modifiers = 0;
    int modificationType = 0;
    const char16_t* text = nullptr;
    long length = 0; // of the change
    long linesAdded = 0;
    int message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    long line = 0;
    int foldLevelNow = 0;
    int foldLevelPrev = 0;
    int margin = 0;
    int listType = 0;
    int x = 0;
    int y = 0;
    int token = 0;
    long annotationLinesAdded = 0;
    int updated = 0;
    int listCompletionMethod = 0;
};

// Notification codes (Scintilla's numbers).
namespace notify {
enum Code : UINT
{
    StyleNeeded = 2000,
    CharAdded = 2001,
    SavePointReached = 2002,
    SavePointLeft = 2003,
    ModifyAttemptReadOnly = 2004,
    Key = 2005,
    DoubleClick = 2006,
    UpdateUi = 2007,
    Modified = 2008,
    MacroRecord = 2009,
    MarginClick = 2010,
    NeedShown = 2011,
    Painted = 2013,
    UserListSelection = 2014,
    UriDropped = 2015,
    DwellStart = 2016,
    DwellEnd = 2017,
    Zoom = 2018,
    HotSpotClick = 2019,
    HotSpotDoubleClick = 2020,
    CallTipClick = 2021,
    AutoCSelection = 2022,
    IndicatorClick = 2023,
    IndicatorRelease = 2024,
    AutoCCancelled = 2025,
    AutoCCharDeleted = 2026,
    HotSpotReleaseClick = 2027,
    FocusIn = 2028,
    FocusOut = 2029,
    AutoCCompleted = 2030,
    MarginRightClick = 2031,
    AutoCSelectionChange = 2032,
    // Beyond Scintilla's: what the parent heard is over, and the engine's window may go.
    Over = 2900,
};

// A parent's answer to a notification that it may come in the middle of: it is told Over, once, as
// soon as the message or the event is done that all this came from.
inline constexpr std::intptr_t kTellWhenOver = 0x4F766572;
} // namespace notify

// Bits of SCNotification::modificationType (Scintilla's values).
namespace modification {
enum Bit : int
{
    InsertText = 0x1,
    DeleteText = 0x2,
    ChangeStyle = 0x4,
    ChangeFold = 0x8,
    User = 0x10,
    Undo = 0x20,
    Redo = 0x40,
    MultiStepUndoRedo = 0x80,
    LastStepInUndoRedo = 0x100,
    ChangeMarker = 0x200,
    BeforeInsert = 0x400,
    BeforeDelete = 0x800,
    MultilineUndoRedo = 0x1000,
    StartAction = 0x2000,
    ChangeIndicator = 0x4000,
    ChangeLineState = 0x8000,
};
} // namespace modification
