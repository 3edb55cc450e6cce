// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes that text is typed into keep their accessible names when there is text in them: Qt tells
// the text for the name on some platforms, where a box without a label beside it has none then.
#pragma once

// Of every such box that is given its accessible name behind this call, and after it has become one
// to type into. To call it again changes nothing.
void KeepBoxNames();
