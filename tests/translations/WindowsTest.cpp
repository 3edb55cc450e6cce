// SPDX-License-Identifier: GPL-3.0-or-later
// What people see of the workbench in their language.
#include "common/Translations.h"
#include "tests/translations/Tour.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenuBar>

namespace {

class GermanWindows : public Tour
{
protected:
    GermanWindows() : Tour(QStringLiteral("de")) {}
};

QStringList Words(const QList<QAction*>& actions)
{
    QStringList words;
    for (const QAction* action : actions)
        words << zncoreeditor::WithoutMnemonic(action->text());
    return words;
}

} // namespace

TEST_F(GermanWindows, HaveGermanMenus)
{
    EXPECT_EQ(
        Words(m_window.menuBar()->actions()),
        QStringList({"Datei", "Bearbeiten", "Suchen", "Ansicht", "Sprache", "Extras", "Hilfe"}));
    QStringList seen;
    ForEachMenu([&seen](QMenu& menu) { seen << Words(menu.actions()); });
    for (const char* words : {"Speichern unter...", "Zeilen verbinden", "Zuletzt geöffnet",
                              "Weitersuchen", "Kopieren\tStrg+C", "Mit Leerzeichen einrücken"})
        EXPECT_TRUE(seen.contains(QString::fromUtf8(words))) << words;
}

TEST_F(GermanWindows, HaveGermanDialogs)
{
    QStringList titles;
    QStringList buttons;
    ForEachWindow([&](QWidget& window) {
        titles << window.windowTitle();
        for (const auto* button : window.findChildren<QAbstractButton*>())
            buttons << zncoreeditor::WithoutMnemonic(button->text());
    });
    for (const char* title : {"Optionen", "Suchen", "Suchen und Ersetzen", "In Dateien suchen",
                              "Einstellungen für Editor und Sprachen", "Gehe zu"})
        EXPECT_TRUE(titles.contains(QString::fromUtf8(title))) << title;
    for (const char* button : {"Abbrechen", "Alle ersetzen", "Regulärer Ausdruck", "Verwerfen"})
        EXPECT_TRUE(buttons.contains(QString::fromUtf8(button))) << button;
}
