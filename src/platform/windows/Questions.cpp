// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Questions.h"

#include "platform/base/Colours.h"
#include "platform/windows/Disposal.h"

#include <QApplication>
#include <QColorDialog>
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
        return Answered(Show(owner, QGuiApplication::applicationDisplayName(), text,
                             isQuestion ? QMessageBox::Question : QMessageBox::Warning,
                             StandardButtons(buttons)),
                        buttons);
    }

    void Tell(HWND owner, const QString& text, MessageKind kind) override
    {
        Show(owner, QGuiApplication::applicationDisplayName(), text, IconOf(kind), QMessageBox::Ok);
    }

    Answer AskUnder(HWND owner, const QString& title, const QString& text, Buttons buttons,
                    MessageKind kind) override
    {
        const bool isQuestion = buttons != Buttons::Ok;
        return Answered(Show(owner, title, text, isQuestion ? QMessageBox::Question : IconOf(kind),
                             StandardButtons(buttons)),
                        buttons);
    }

private:
    static Answer Answered(int button, Buttons buttons)
    {
        switch (button) {
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

    static int Show(HWND owner, const QString& title, const QString& text, QMessageBox::Icon icon,
                    QMessageBox::StandardButtons buttons)
    {
        QWidget* parent = DialogParent(owner);
        if (parent && parent->isVisible())
            parent->repaint(); // what the question is about may have come to the front just now
        QMessageBox box(parent);
        box.setIcon(icon);
        box.setWindowTitle(title);
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

Answer IUserQuestions::AskUnder(HWND owner, const QString& /*title*/, const QString& text,
                                Buttons buttons, MessageKind kind)
{
    if (buttons != Buttons::Ok)
        return Ask(owner, text, buttons);
    Tell(owner, text, kind);
    return Answer::Ok;
}

std::optional<COLORREF> IUserQuestions::AskColor(HWND owner, COLORREF color)
{
    const QColor chosen = QColorDialog::getColor(ToQColor(color), DialogParent(owner));
    if (!chosen.isValid())
        return std::nullopt;
    return FromQColor(chosen);
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

void ShowMessageUnder(HWND owner, const QString& title, const QString& text, MessageKind kind)
{
    const FrameworkCall asking;
    Questions().AskUnder(owner, title, text, Buttons::Ok, kind);
}

bool AskYesNo(HWND owner, const QString& text)
{
    const FrameworkCall asking;
    return Questions().Ask(owner, text, Buttons::YesNo) == Answer::Yes;
}

bool AskYesNoUnder(HWND owner, const QString& title, const QString& text)
{
    const FrameworkCall asking;
    return Questions().AskUnder(owner, title, text, Buttons::YesNo, MessageKind::Plain) ==
           Answer::Yes;
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

std::optional<COLORREF> AskColor(HWND owner, COLORREF color)
{
    const FrameworkCall asking;
    return Questions().AskColor(owner, color);
}
