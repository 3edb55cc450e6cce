// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Questions.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

class Recorder final : public IUserQuestions
{
public:
    Answer Ask(HWND owner, const QString& text, Buttons buttons) override
    {
        asked = {owner, text, buttons};
        return answer;
    }

    struct
    {
        HWND owner = nullptr;
        QString text;
        Buttons buttons = Buttons::Ok;
    } asked;
    Answer answer = Answer::Ok;
};

TEST(Questions, GoToTheServiceOfTheHost)
{
    Recorder recorder;
    SetUserQuestions(&recorder);
    QWidget owner;
    ShowMessage(&owner, QStringLiteral("message"));
    EXPECT_EQ(recorder.asked.owner, &owner);
    EXPECT_EQ(recorder.asked.text, QStringLiteral("message"));
    EXPECT_EQ(recorder.asked.buttons, Buttons::Ok);
    recorder.answer = Answer::No;
    EXPECT_FALSE(AskYesNo(nullptr, QStringLiteral("question")));
    EXPECT_EQ(recorder.asked.buttons, Buttons::YesNo);
    recorder.answer = Answer::Yes;
    EXPECT_TRUE(AskYesNo(nullptr, QStringLiteral("question")));
    SetUserQuestions(nullptr);
}

// Presses a button of the box as soon as it is there.
class PressInBox : public QObject
{
public:
    explicit PressInBox(QMessageBox::StandardButton button)
    {
        m_timer.callOnTimeout(this, [this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            m_timer.stop();
            text = box->text();
            title = box->windowTitle();
            format = box->textFormat();
            box->button(button)->click();
        });
        m_timer.start(1);
    }

    QString text;
    QString title;
    Qt::TextFormat format = Qt::AutoText;

private:
    QTimer m_timer;
};

TEST(Questions, AreBoxesWithoutAService)
{
    {
        const PressInBox press(QMessageBox::Yes);
        EXPECT_TRUE(AskYesNo(nullptr, QStringLiteral("Load the copy?")));
        EXPECT_EQ(press.text, QStringLiteral("Load the copy?"));
    }
    {
        const PressInBox press(QMessageBox::No);
        EXPECT_FALSE(AskYesNo(nullptr, QStringLiteral("Load the copy?")));
    }
    QWidget owner;
    const PressInBox press(QMessageBox::Ok);
    ShowMessage(&owner, QStringLiteral("Cut short."));
    EXPECT_EQ(press.text, QStringLiteral("Cut short."));
    EXPECT_EQ(press.title, QGuiApplication::applicationDisplayName());
}

TEST(Questions, ShowAPathThatLooksLikeMarkupAsItIs)
{
    const PressInBox press(QMessageBox::Ok);
    ShowMessage(nullptr, QStringLiteral("<b>a</b>.sql"));
    EXPECT_EQ(press.format, Qt::PlainText);
}

} // namespace
