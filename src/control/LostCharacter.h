// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What a save in an encoding would turn into a question mark.
#pragma once

/// A character that an encoding lacks, and where it stands.
struct LostCharacter
{
    char32_t character = 0; ///< itself
    long position = 0;      ///< in units
    long line = 0;          ///< from 1
    long column = 0;        ///< from 1, with tabs as wide as they are shown
};
