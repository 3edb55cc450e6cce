// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/Prompts.h"

#include <QApplication>
#include <QMessageBox>
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

} // namespace

TEST(Questions, AreNotAnsweredByLettersThatSomebodyGoesOnTyping)
{
    EXPECT_FALSE(IsDoneBy({{Qt::Key_R, Qt::NoModifier}, {Qt::Key_R, Qt::ShiftModifier}}));
    EXPECT_FALSE(IsDoneBy({{Qt::Key_Return, Qt::NoModifier}})) << "Cancel is the default";
}
