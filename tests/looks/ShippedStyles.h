// SPDX-License-Identifier: GPL-3.0-or-later
// The styles of the shipped languages, read by other means than the library's own, and the contrast
// of two colours as the Web Content Accessibility Guidelines reckon it.
#pragma once

#include "platform/base/Types.h"
#include "tests/SourceTree.h"

#include <QDir>

#include <pugixml.hpp>

#include <algorithm>
#include <cmath>
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

inline double Luminance(COLORREF colour)
{
    const auto part = [colour](int shift) {
        const double value = (colour >> shift & 0xFF) / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

inline double Contrast(COLORREF one, COLORREF other)
{
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return std::max(a / b, b / a);
}
