// SPDX-License-Identifier: GPL-3.0-or-later
#include "looks/DeliveredColours.h"

#include "looks/Colours.h"

#include <QFile>

#include <pugixml.hpp>

QHash<int, ColourScheme::Pair> ReadDeliveredColours(const QString& languageFile)
{
    QHash<int, ColourScheme::Pair> colours;
    QFile file(languageFile);
    if (!file.open(QIODevice::ReadOnly))
        return colours;
    const QByteArray bytes = file.readAll();
    pugi::xml_document document;
    document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    for (const pugi::xml_node style :
         document.child("Syntax").child("StyleInformation").children("Style")) {
        const pugi::xml_node colour = style.child("Color");
        colours.insert(style.attribute("number").as_int(),
                       {ColourOf(colour.child_value("Foreground")).value_or(0),
                        ColourOf(colour.child_value("Background")).value_or(0)});
    }
    return colours;
}
