// SPDX-License-Identifier: GPL-3.0-or-later
// The few points in which a load and a save differ when files are handled with care.
#pragma once

#include "encoding/FileEncodeConverter.h"

// How a load goes from one block of the file to the next.
struct SeamRule
{
    bool convertsTail; // the bytes that the last block left count for the next conversion
    bool skipsMark;    // the tail of the first block is looked for behind its mark
    bool keepsPairs;   // no two halves of a pair, nor U+E000 at the end, are lost
};

struct FilePolicy
{
    SeamRule load;
    SeamRule replace;
    FileEncodeConverter::encodingType cookieEncoding; // recorded for a file that a cookie names
    bool replacesTarget;  // a save takes the target's place when it is complete
    bool reportsUnopened; // a target that cannot be opened is a failure
    bool demandsAllText;  // so is a line that does not convert
    bool opensFirst;      // a file that cannot be opened costs the text no autosave
    bool writesFirst;     // the state of the control changes only after the write
    bool passesUnwritten; // an empty autosave copy was begun and never written
    bool sparesClaimed;   // the copy of a control that is alive is nobody else's
    bool keepsUtf8;       // a copy that could be in UTF-8 is, if its file is
    bool needsWindow;     // without a window of the engine there is no text to load or to save
    bool opensReadOnly;   // a load reaches a text that is read-only, and leaves it so
    bool sparesEqual;     // no copy is written, or offered, of a text that is the file's
    bool keepsCopies;     // a copy goes once its text is saved or given up, and not before
    bool notesOrigin;     // beside a copy's note stands what its file was when it was read
    bool forgetsHistory;  // what was undone before a load cannot be undone behind it
};

// A character over the end of a block may lose bytes: later blocks are converted without the tail
// in front of them being counted, and ReplaceTextWithFile alone counts it. A file that is known by
// its cookie is recorded as UTF-32, so that the next save writes it as that.
inline constexpr FilePolicy kPlainFiles = {
    .load = {.convertsTail = false, .skipsMark = false, .keepsPairs = false},
    .replace = {.convertsTail = true, .skipsMark = false, .keepsPairs = false},
    .cookieEncoding = FileEncodeConverter::encUTF32BE,
    .replacesTarget = false,
    .reportsUnopened = false,
    .demandsAllText = false,
    .opensFirst = false,
    .writesFirst = false,
    .passesUnwritten = false,
    .sparesClaimed = false,
    .keepsUtf8 = false,
    .needsWindow = false,
    .opensReadOnly = false,
    .sparesEqual = false,
    .keepsCopies = false,
    .notesOrigin = false,
    .forgetsHistory = false,
};

inline constexpr FilePolicy kCarefulFiles = {
    .load = {.convertsTail = true, .skipsMark = true, .keepsPairs = true},
    .replace = {.convertsTail = true, .skipsMark = true, .keepsPairs = true},
    .cookieEncoding = FileEncodeConverter::encUTF8,
    .replacesTarget = true,
    .reportsUnopened = true,
    .demandsAllText = true,
    .opensFirst = true,
    .writesFirst = true,
    .passesUnwritten = true,
    .sparesClaimed = true,
    .keepsUtf8 = true,
    .needsWindow = true,
    .opensReadOnly = true,
    .sparesEqual = true,
    .keepsCopies = true,
    .notesOrigin = true,
    .forgetsHistory = true,
};
