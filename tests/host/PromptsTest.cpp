// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/Prompts.h"

#include "editing/ZNCoreEditorWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

// Whether the keys, one after the other, have it done.
bool IsDoneBy(const QList<std::pair<Qt::Key, Qt::KeyboardModifiers>>& keys)
{
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        for (const auto& [key, modifiers] : keys)
            QTest::keyClick(box, key, modifiers);
        constexpr int kPress = 300; // ms: a button that a key presses is seen to be pressed
        if (!QTest::qWaitFor([box] { return !box->isVisible(); }, kPress))
            box->reject();
    });
    return DialogPrompts().Confirm(nullptr, QStringLiteral("Lose it?"), QStringLiteral("&Read"));
}

void Press(const QMessageBox& box, const char* text)
{
    for (QAbstractButton* button : box.buttons()) {
        if (button->text() == QLatin1String(text))
            return button->click();
    }
    FAIL() << text;
}

} // namespace

TEST(Questions, ComeBackFromTheComparison)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.sql")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("one\ntheirs\n") > 0);
    file.close();
    QString shown;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<ComparisonDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            shown = dialog->findChild<ZNCoreEditorWidget*>()->text();
            dialog->reject();
            QTimer::singleShot(0, [] {
                auto* again = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                ASSERT_NE(again, nullptr);
                Press(*again, "&Read");
            });
        });
        Press(*box, "Co&mpare...");
    });
    const Comparison comparison{QStringLiteral("a.sql"), file.fileName(),
                                [] { return QStringLiteral("one\nmine\n"); }};
    EXPECT_TRUE(DialogPrompts().ConfirmComparing(nullptr, QStringLiteral("Lose it?"),
                                                 QStringLiteral("&Read"), comparison));
    EXPECT_EQ(shown, QStringLiteral("  one\n- theirs\n+ mine"));
}

// The window may go while somebody compares.
TEST(Questions, EndWithTheComparisonIfTheyAreLeftMeanwhile)
{
    bool stood = false;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        QTimer::singleShot(0, [&, box] {
            auto* dialog = qobject_cast<ComparisonDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            stood = box->isVisible() && dialog->parentWidget() == box;
            box->reject();
            EXPECT_FALSE(dialog->isVisible());
            dialog->reject();
            QTimer::singleShot(0, [] { // where the question stands once more
                if (auto* again = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                    ADD_FAILURE();
                    again->reject();
                }
            });
        });
        Press(*box, "Co&mpare...");
    });
    const Comparison comparison{QStringLiteral("a.sql"), QStringLiteral("none"),
                                [] { return QString(); }};
    EXPECT_FALSE(DialogPrompts().ConfirmComparing(nullptr, QStringLiteral("Lose it?"),
                                                  QStringLiteral("&Read"), comparison));
    EXPECT_TRUE(stood);
    QApplication::processEvents();
}

TEST(Questions, AreNotAnsweredByLettersThatSomebodyGoesOnTyping)
{
    EXPECT_FALSE(IsDoneBy({{Qt::Key_R, Qt::NoModifier}, {Qt::Key_R, Qt::ShiftModifier}}));
    EXPECT_FALSE(IsDoneBy({{Qt::Key_Return, Qt::NoModifier}})) << "Cancel is the default";
}
