// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The options of printing, put on an editor. The control and the view print for themselves and
/// have this in common.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

class CDC;
class CZNCoreEditorControlEx;
struct RangeToFormat;

/// Colours and grounds. Grounds without colours leave the mode that the engine has.
ZN_API void ApplyPrintColours(CZNCoreEditorControlEx& control);

/// Draws a page as the engine's FormatRange does, and gives the position behind it, in UTF-16
/// units. What is painted in a scheme on the screen is printed in the scheme for paper where
/// colours are printed without their grounds: those for a dark screen cannot be read on white. The
/// editor has its own scheme again behind it.
ZN_API long PrintPage(CZNCoreEditorControlEx& control, RangeToFormat& record);

/// The print font if the options want one, else nothing. A font that nobody has chosen is Tahoma,
/// and counts as chosen from then on. False if the options want none.
ZN_API bool ApplyPrintFont(CZNCoreEditorControlEx& control);

/// On the context, null for none, with both rectangles as given; no characters yet.
ZN_API RangeToFormat PrintRecord(CDC* dc, const RECT& rect);

/// All that the context can print on.
ZN_API RECT PrintableArea(const CDC& dc);
