// SPDX-License-Identifier: GPL-3.0-or-later
// Composition with an input method, by the events that one sends.
#include "tests/host/WorkbenchTest.h"

#include <QInputMethodEvent>

namespace {

class Composition : public WorkbenchTest
{
protected:
    // The widget that takes the keys while the script is in front.
    QWidget* Keyboard() const { return Editor().GetHwnd(); }

    void Compose(const QString& preedit, const QString& commit)
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QApplication::sendEvent(Keyboard(), &event);
        QApplication::processEvents();
    }
};

} // namespace

TEST_F(Composition, ShowsWhatIsBeingComposedWithoutPuttingItIntoTheText)
{
    Open("a.sql", "ab\n");
    Editor().GotoPos(1, 1);
    const QImage before = Keyboard()->grab().toImage();
    Compose(QStringLiteral("にほ"), {});
    const QImage composing = Keyboard()->grab().toImage();
    EXPECT_NE(composing, before);
    EXPECT_EQ(Text(), QStringLiteral("ab\n"));
    Compose(QStringLiteral("日本"), {});
    EXPECT_NE(Keyboard()->grab().toImage(), composing);
    EXPECT_EQ(Text(), QStringLiteral("ab\n"));
    EXPECT_FALSE(Script().IsModified());
}

TEST_F(Composition, LeavesNothingBehindWhenItIsGivenUp)
{
    Open("a.sql", "ab\n");
    Editor().GotoPos(1, 1);
    Compose(QStringLiteral("にほ"), {});
    Compose({}, {});
    EXPECT_EQ(Text(), QStringLiteral("ab\n"));
    EXPECT_FALSE(Script().IsModified());
}

TEST_F(Composition, PutsInWhatIsCommittedAndUndoTakesItBack)
{
    Open("a.sql", "ab\n");
    Editor().GotoPos(1, 1);
    Compose(QStringLiteral("にほん"), {});
    Compose({}, QStringLiteral("日本"));
    EXPECT_EQ(Text(), QStringLiteral("a日本b\n"));
    EXPECT_EQ(Editor().GetCurrentPos(1), 3);
    EXPECT_TRUE(Script().IsModified());
    while (Editor().CanUndo(1))
        Editor().Undo(1);
    EXPECT_EQ(Text(), QStringLiteral("ab\n"));
}

TEST_F(Composition, WhatIsCommittedStandsInTheSavedFile)
{
    Open("a.sql", "ab \xC3\xA9\n");
    Editor().GotoPos(1, 1);
    Compose(QStringLiteral("にほん"), {});
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), QByteArray("ab \xC3\xA9\n"));
    Compose({}, QStringLiteral("日本"));
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), QStringLiteral("a日本b é\n").toUtf8());
}

TEST_F(Composition, TellsTheInputMethodAboutTheLineOfTheCaret)
{
    Open("a.sql", "first\nz\xC3\xA9 line\nlast\n");
    Editor().GotoPos(9, 1);
    QInputMethodQueryEvent query(Qt::ImEnabled | Qt::ImCursorPosition | Qt::ImSurroundingText);
    QApplication::sendEvent(Keyboard(), &query);
    EXPECT_TRUE(query.value(Qt::ImEnabled).toBool());
    const QString line = query.value(Qt::ImSurroundingText).toString();
    EXPECT_TRUE(line.startsWith(QStringLiteral("zé line")));
    EXPECT_FALSE(line.contains(QStringLiteral("first")));
    EXPECT_EQ(query.value(Qt::ImCursorPosition).toInt(), 3);
}
