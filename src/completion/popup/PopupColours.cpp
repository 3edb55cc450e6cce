// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/popup/PopupColours.h"

#include "looks/ColourScheme.h"
#include "platform/base/Colours.h"

#include <QGuiApplication>

namespace completion {

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
        colours.setColor(ground, ToQColor(tip->back));
    for (const QPalette::ColorRole fore :
         {QPalette::Text, QPalette::WindowText, QPalette::HighlightedText})
        colours.setColor(fore, ToQColor(tip->fore));
    colours.setColor(QPalette::Highlight, ToQColor(scheme->Of(Drawn::Selection)));
    colours.setColor(QPalette::PlaceholderText, ToQColor(weak->fore));
    return colours;
}

} // namespace completion
