// SPDX-License-Identifier: GPL-3.0-or-later
// What people see of the workbench in their language.
#include "common/Translations.h"
#include "tests/translations/Tour.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTreeWidget>

#include <algorithm>

namespace {

class GermanWindows : public Tour
{
protected:
    GermanWindows() : Tour(QStringLiteral("de")) {}
};

class JapaneseWindows : public Tour
{
protected:
    JapaneseWindows() : Tour(QStringLiteral("ja")) {}
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
                              "Einstellungen für Editor und Sprachen", "Gehe zu Zeile"})
        EXPECT_TRUE(titles.contains(QString::fromUtf8(title))) << title;
    for (const char* button : {"Abbrechen", "Alle ersetzen", "Regulärer Ausdruck", "Verwerfen"})
        EXPECT_TRUE(buttons.contains(QString::fromUtf8(button))) << button;
}

// Their keys have longer names than in English.
TEST_F(GermanWindows, LeaveRoomForCommandsBesideTheirKeys)
{
    Trigger("keys");
    auto* dialog = m_window.findChild<QDialog*>(QStringLiteral("keysDialog"));
    ASSERT_TRUE(dialog);
    QApplication::processEvents();
    const auto* list = dialog->findChild<QTreeWidget*>();
    int widest = 0;
    for (int row = 0; row < list->topLevelItemCount(); ++row)
        widest = std::max(widest,
                          list->fontMetrics().horizontalAdvance(list->topLevelItem(row)->text(0)));
    EXPECT_GT(widest, 0);
    EXPECT_GE(list->columnWidth(0), widest);
}

// The letter to press stands in brackets behind a word, or not at all.
TEST_F(JapaneseWindows, HaveNoLetterInAMenuThatCannotBePressed)
{
    static const QRegularExpression dead(QStringLiteral("\\([A-Z0-9]\\)"));
    int entries = 0;
    ForEachMenu([&entries](QMenu& menu) {
        for (const QAction* action : menu.actions()) {
            ++entries;
            EXPECT_FALSE(action->text().contains(dead)) << action->text().toStdString();
        }
    });
    EXPECT_GT(entries, 200);
}
