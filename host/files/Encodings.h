// SPDX-License-Identifier: GPL-3.0-or-later
// The encodings that a script can be saved in, as a person chooses them and as the status bar names
// them. Numbers are those of the control's GetEncoding.
#pragma once

#include <QString>

#include <span>

struct EncodingChoice
{
    int encoding = 0;
    bool mark = false; // a byte-order mark at the file's start
    const char* name = nullptr;
};

// The likeliest first.
std::span<const EncodingChoice> EncodingChoices();

// The name of the pair; "Unknown encoding" if it is none of the choices.
QString EncodingName(int encoding, bool mark);

// The place of the pair among the choices, that of UTF-8 if it is none of them.
int IndexOfEncoding(int encoding, bool mark);

// The line-end mode of the control in words; empty for a mode that is none.
QString LineEndName(int mode);
