// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the texts of each language fit: into their windows, and beside each other's letters.
#include "common/Translations.h"
#include "platform/dialogs/MenuButton.h"
#include "tests/translations/Tour.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>

namespace {

class Fit : public testing::WithParamInterface<QString>, public Tour
{
protected:
    Fit() : Tour(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Of, Fit, testing::ValuesIn(zncoreeditor::GetUiLanguages()),
                         [](const auto& of) { return of.param.toStdString(); });

// The texts that have a letter of Alt, by the letter.
using Letters = QMap<QString, QStringList>;

void Add(Letters& letters, const QString& text)
{
    const QString key = QKeySequence::mnemonic(text).toString();
    if (!key.isEmpty() && !letters[key].contains(text))
        letters[key] << text;
}

void ExpectEachOnce(const Letters& letters, const QString& where)
{
    // In English, as these dialogs have always had them.
    const QList<QStringList> fixed = {
        {QStringLiteral("&Wrap around search"), QStringLiteral("Find &what")},
        {QStringLiteral("&Auto Completion"), QStringLiteral("&Apply")},
        {QStringLiteral("C&ode Completion"), QStringLiteral("&Ok")},
        {QStringLiteral("Syntax &Highlighting"), QStringLiteral("&Help")},
    };
    for (auto letter = letters.begin(); letter != letters.end(); ++letter) {
        if (fixed.contains(letter.value()))
            continue;
        EXPECT_EQ(letter.value().size(), 1)
            << where.toStdString() << ", " << letter.key().toStdString() << ": "
            << letter.value().join(QStringLiteral(" / ")).toStdString();
    }
}

Letters LettersOf(const QWidget& window)
{
    Letters letters;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible())
            Add(letters, button->text());
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy())
            Add(letters, label->text());
    }
    for (const auto* group : window.findChildren<QGroupBox*>()) {
        if (group->isVisible())
            Add(letters, group->title());
    }
    return letters;
}

// Of a label or a button, what its words need and do not have.
int Lacking(const QWidget& widget)
{
    constexpr int kRounding = 2; // pixels that a hint may lack on a scaled screen
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const bool isShown = (label && !label->wordWrap() && !label->text().isEmpty()) ||
                         (button && !button->text().isEmpty()) ||
                         qobject_cast<const QGroupBox*>(&widget);
    const bool mayBeCut = widget.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ||
                          qobject_cast<const CMenuButton*>(&widget); // an arrow alone
    if (!widget.isVisible() || !isShown || mayBeCut)
        return 0;
    const int lacking = widget.sizeHint().width() - widget.width();
    return lacking > kRounding ? lacking : 0;
}

} // namespace

TEST_P(Fit, GivesNoLetterTwiceInAMenu)
{
    ForEachMenu([](QMenu& menu) {
        Letters letters;
        for (const QAction* action : menu.actions()) {
            if (action->isVisible())
                Add(letters, action->text());
        }
        ExpectEachOnce(letters, QStringLiteral("menu ") + menu.title());
    });
}

TEST_P(Fit, GivesNoLetterTwiceInADialog)
{
    ForEachWindow([this](QWidget& window) {
        Letters letters = LettersOf(window);
        if (&window == &m_window) {
            for (const QAction* menu : m_window.menuBar()->actions())
                Add(letters, menu->text());
        }
        ExpectEachOnce(letters, window.windowTitle());
    });
}

TEST_P(Fit, CutsNoWords)
{
    ForEachWindow([](QWidget& window) {
        for (const auto* widget : window.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            EXPECT_EQ(Lacking(*widget), 0) << window.windowTitle().toStdString() << ": "
                                           << (label    ? label->text()
                                               : button ? button->text()
                                                        : widget->objectName())
                                                  .toStdString();
        }
    });
}
