// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/preferences/Appearance.h"

#include "looks/Schemes.h"
#include "platform/base/Colours.h"
#include "platform/system/SettingsFile.h"

#include <QApplication>

#include <optional>

namespace appearance {
namespace {

const QString kKey = QStringLiteral("scheme");

QColor Between(const QColor& one, const QColor& other, double share)
{
    const auto part = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return QColor(part(one.red(), other.red()), part(one.green(), other.green()),
                  part(one.blue(), other.blue()));
}

// The windows around the text stand back from it a little.
QPalette PaletteOf(const ColourScheme& scheme)
{
    constexpr double kWindow = 0.08;
    constexpr double kButton = 0.12;
    constexpr double kFaint = 0.45;
    const auto text = scheme.OfRole(QStringLiteral("text")).value_or(ColourScheme::Pair{});
    const QColor ground = ToQColor(scheme.Of(Drawn::Ground));
    const QColor ink = ToQColor(text.fore);
    const QColor faint = Between(ink, ground, kFaint);
    QPalette palette(Between(ground, ink, kButton), Between(ground, ink, kWindow));
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::AlternateBase, ToQColor(scheme.Of(Drawn::CurrentLine)));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::HighlightedText}) {
        palette.setColor(role, ink);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::ToolTipBase, Between(ground, ink, kButton));
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, ToQColor(scheme.Of(Drawn::Selection)));
    palette.setColor(QPalette::Link, ToQColor(scheme.Of(Drawn::FoldHot)));
    return palette;
}

struct State
{
    QString name{zncoreeditor::kDesktopScheme};
    std::optional<QPalette> desktop; // while another palette is in force
};

State& TheState()
{
    static State state;
    return state;
}

} // namespace

QStringList Names()
{
    QStringList names = {zncoreeditor::kDesktopScheme};
    for (const char* first : {"Light", "Dark", "High Contrast"})
        names << QLatin1String(first);
    for (const QString& name : zncoreeditor::SchemeNames()) {
        if (!names.contains(name))
            names << name;
    }
    return names;
}

QString Current()
{
    return TheState().name;
}

void SetCurrent(const QString& name)
{
    State& state = TheState();
    const bool byDesktop = name == zncoreeditor::kDesktopScheme;
    const ColourScheme* scheme = byDesktop ? nullptr : zncoreeditor::FindScheme(name);
    state.name = scheme ? name : QString(zncoreeditor::kDesktopScheme);
    if (scheme) {
        if (!state.desktop)
            state.desktop = QApplication::palette();
        QApplication::setPalette(PaletteOf(*scheme));
    } else if (state.desktop) {
        QApplication::setPalette(*state.desktop);
        state.desktop.reset();
    }
}

QString Load(const QString& settings)
{
    return settingsfile::ReadValue(settings, kKey).value_or(QString(zncoreeditor::kDesktopScheme));
}

bool Store(const QString& settings, const QString& name)
{
    return settingsfile::WriteValue(settings, kKey, name) != settingsfile::Outcome::Failed;
}

} // namespace appearance
