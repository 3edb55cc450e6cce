// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Questions.h"

#include "platform/windows/Disposal.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

IUserQuestions::~IUserQuestions() = default;

namespace {

QWidget* DialogParent(HWND owner)
{
    return owner ? owner->window() : QApplication::activeWindow();
}

class MessageBoxes final : public IUserQuestions
{
public:
    Answer Ask(HWND owner, const QString& text, Buttons buttons) override
    {
        const bool isQuestion = buttons != Buttons::Ok;
        switch (Show(owner, text, isQuestion ? QMessageBox::Question : QMessageBox::Warning,
                     StandardButtons(buttons))) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Cancel:
            return buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
        default:
            return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
        }
    }

    void Tell(HWND owner, const QString& text, MessageKind kind) override
    {
        Show(owner, text, IconOf(kind), QMessageBox::Ok);
    }

private:
    static int Show(HWND owner, const QString& text, QMessageBox::Icon icon,
                    QMessageBox::StandardButtons buttons)
    {
        QMessageBox box(DialogParent(owner));
        box.setIcon(icon);
        box.setWindowTitle(QGuiApplication::applicationDisplayName());
        box.setTextFormat(Qt::PlainText); // a path may look like markup
        box.setText(text);
        box.setStandardButtons(buttons);
        return box.exec();
    }

    static QMessageBox::Icon IconOf(MessageKind kind)
    {
        switch (kind) {
        case MessageKind::Plain:
            return QMessageBox::NoIcon;
        case MessageKind::Information:
            return QMessageBox::Information;
        case MessageKind::Stop:
            return QMessageBox::Critical;
        default:
            return QMessageBox::Warning;
        }
    }

    static QMessageBox::StandardButtons StandardButtons(Buttons buttons)
    {
        switch (buttons) {
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
        }
    }
};

IUserQuestions*& Current()
{
    static IUserQuestions* current = nullptr;
    return current;
}

IUserQuestions& Questions()
{
    static MessageBoxes boxes;
    return Current() ? *Current() : boxes;
}

} // namespace

void IUserQuestions::Tell(HWND owner, const QString& text, MessageKind /*kind*/)
{
    Ask(owner, text, Buttons::Ok);
}

QString IUserQuestions::AskOpenFile(HWND owner, const QString& filters)
{
    return QFileDialog::getOpenFileName(owner ? owner->window() : QApplication::activeWindow(),
                                        QString(), QString(), filters);
}

QString IUserQuestions::AskSaveFile(HWND owner, const QString& path, const QString& filters)
{
    return QFileDialog::getSaveFileName(DialogParent(owner), QString(), path, filters);
}

QString IUserQuestions::BrowseForFile(HWND owner, const QString& title, const QString& start,
                                      const QString& filters)
{
    return QFileDialog::getOpenFileName(DialogParent(owner), title, start, filters);
}

QString IUserQuestions::BrowseForFolder(HWND owner, const QString& title, const QString& start)
{
    return QFileDialog::getExistingDirectory(DialogParent(owner), title, start);
}

void SetUserQuestions(IUserQuestions* questions)
{
    Current() = questions;
}

// What the user closes while a question stands is kept until it is answered: whoever asked goes on
// with it then.

void ShowMessage(HWND owner, const QString& text, MessageKind kind)
{
    const FrameworkCall asking;
    Questions().Tell(owner, text, kind);
}

bool AskYesNo(HWND owner, const QString& text)
{
    const FrameworkCall asking;
    return Questions().Ask(owner, text, Buttons::YesNo) == Answer::Yes;
}

Answer AskYesNoCancel(HWND owner, const QString& text)
{
    const FrameworkCall asking;
    return Questions().Ask(owner, text, Buttons::YesNoCancel);
}

QString AskOpenFile(HWND owner, const QString& filters)
{
    const FrameworkCall asking;
    return Questions().AskOpenFile(owner, filters);
}

QString AskSaveFile(HWND owner, const QString& path, const QString& filters)
{
    const FrameworkCall asking;
    return Questions().AskSaveFile(owner, path, filters);
}

QString BrowseForFile(HWND owner, const QString& title, const QString& start,
                      const QString& filters)
{
    const FrameworkCall asking;
    return Questions().BrowseForFile(owner, title, start, filters);
}

QString BrowseForFolder(HWND owner, const QString& title, const QString& start)
{
    const FrameworkCall asking;
    return Questions().BrowseForFolder(owner, title, start);
}
