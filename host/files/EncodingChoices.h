// SPDX-License-Identifier: GPL-3.0-or-later
// The encodings that a script can be read and saved in. Numbers are those of the control's
// GetEncoding for Unicode; a code page is its own number. 0 is the code page of the options, -1
// asks to detect. Knows no control.
#pragma once

#include <span>

struct EncodingChoice
{
    int encoding = 0;
    bool mark = false;            // a byte-order mark at the file's start
    const char* name = nullptr;   // as standards have it
    const char* script = nullptr; // what is written in the code page
};

// Unicode first, then the code pages, by what is written in them.
std::span<const EncodingChoice> EncodingChoices();
bool IsCodePage(const EncodingChoice& choice);

// Whether somebody can have chosen it: one of the choices, 0, -1, or UTF-8 by a word in its first
// line.
bool IsEncoding(int encoding);
