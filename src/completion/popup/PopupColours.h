// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of what is shown beside the caret.
#pragma once

#include <QPalette>
#include <QString>

class ColourScheme;

namespace completion {

// Of the scheme, with the ground of a style role of its own; the application's without one.
QPalette PopupPalette(const ColourScheme* scheme, const QString& role);

} // namespace completion
