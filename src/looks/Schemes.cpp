// SPDX-License-Identifier: GPL-3.0-or-later
#include "looks/Schemes.h"

#include "common/Globals.h"

#include <QDir>
#include <QGuiApplication>
#include <QPalette>

#include <deque>

namespace zncoreeditor {
namespace {

QDir Folder()
{
    return QDir(GetAppPath() + QStringLiteral("Schemes"));
}

const std::deque<ColourScheme>& AllSchemes()
{
    static const std::deque<ColourScheme> schemes = [] {
        std::deque<ColourScheme> read;
        const QDir folder = Folder();
        for (const QString& name : folder.entryList({QStringLiteral("*.xml")}, QDir::Files)) {
            if (std::optional<ColourScheme> scheme = ColourScheme::Read(folder.filePath(name)))
                read.push_back(*std::move(scheme));
        }
        return read;
    }();
    return schemes;
}

} // namespace

QStringList SchemeNames()
{
    QStringList names;
    for (const ColourScheme& scheme : AllSchemes())
        names << scheme.Name();
    return names;
}

const ColourScheme* FindScheme(const QString& name)
{
    const bool byDesktop = name == kDesktopScheme;
    const QString dark = IsDesktopDark() ? QStringLiteral("Dark") : QStringLiteral("Light");
    for (const ColourScheme& scheme : AllSchemes()) {
        if (scheme.Name() == (byDesktop ? dark : name))
            return &scheme;
    }
    return nullptr;
}

const StyleRoles& GetStyleRoles()
{
    static const StyleRoles roles(Folder().filePath(QStringLiteral("Roles.xml")));
    return roles;
}

bool IsDesktopDark()
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

} // namespace zncoreeditor
