// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/popup/PopupColours.h"

#include "looks/ColourScheme.h"

#include <QGuiApplication>

namespace completion {
namespace {

QColor Colour(COLORREF colour)
{
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                  static_cast<int>(colour >> 16 & 0xFF));
}

} // namespace

QPalette PopupPalette(const ColourScheme* scheme, const QString& role)
{
    QPalette colours = QGuiApplication::palette();
    colours.setColor(QPalette::PlaceholderText, colours.color(QPalette::Disabled, QPalette::Text));
    if (!scheme)
        return colours;
    const auto tip = scheme->OfRole(role);
    const auto weak = scheme->OfRole(QStringLiteral("lineNumber"));
    if (!tip || !weak)
        return colours;
    for (const QPalette::ColorRole ground : {QPalette::Base, QPalette::Window, QPalette::Button})
        colours.setColor(ground, Colour(tip->back));
    for (const QPalette::ColorRole fore :
         {QPalette::Text, QPalette::WindowText, QPalette::HighlightedText})
        colours.setColor(fore, Colour(tip->fore));
    colours.setColor(QPalette::Highlight, Colour(scheme->Of(Drawn::Selection)));
    colours.setColor(QPalette::PlaceholderText, Colour(weak->fore));
    return colours;
}

} // namespace completion
