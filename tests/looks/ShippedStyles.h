// SPDX-License-Identifier: GPL-3.0-or-later
// The styles of the shipped languages, read by other means than the library's own.
#pragma once

#include "platform/base/Types.h"
#include "tests/SourceTree.h"
#include "tests/looks/Contrast.h"

#include <QDir>

#include <pugixml.hpp>

#include <cstdlib>
#include <vector>

struct Style
{
    QString language; // its file
    int number;
    QString name;
    COLORREF fore;
    COLORREF back;
};

inline COLORREF ColourOf(const char* rrggbb)
{
    const unsigned long rgb = std::strtoul(rrggbb, nullptr, 16);
    return static_cast<COLORREF>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16);
}

inline std::vector<Style> StylesOfAllLanguages()
{
    std::vector<Style> styles;
    const QDir folder(QString::fromStdString(InSourceTree("data/Syntax")));
    for (const QString& file : folder.entryList({QStringLiteral("*.xml")})) {
        pugi::xml_document document;
        document.load_file(folder.filePath(file).toUtf8().constData());
        for (const pugi::xml_node style :
             document.child("Syntax").child("StyleInformation").children("Style")) {
            const pugi::xml_node colour = style.child("Color");
            styles.push_back({file, style.attribute("number").as_int(),
                              QString::fromUtf8(style.child_value("Name")),
                              ColourOf(colour.child_value("Foreground")),
                              ColourOf(colour.child_value("Background"))});
        }
    }
    return styles;
}
