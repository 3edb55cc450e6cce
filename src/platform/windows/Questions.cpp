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
        QMessageBox box(DialogParent(owner));
        box.setIcon(buttons == Buttons::Ok ? QMessageBox::Warning : QMessageBox::Question);
        box.setWindowTitle(QGuiApplication::applicationDisplayName());
        box.setTextFormat(Qt::PlainText); // a path may look like markup
        box.setText(text);
        box.setStandardButtons(StandardButtons(buttons));
        switch (box.exec()) {
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

private:
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

QString IUserQuestions::AskOpenFile(HWND owner, const QString& filters)
{
    return QFileDialog::getOpenFileName(owner ? owner->window() : QApplication::activeWindow(),
                                        QString(), QString(), filters);
}

QString IUserQuestions::AskSaveFile(HWND owner, const QString& path, const QString& filters)
{
    return QFileDialog::getSaveFileName(DialogParent(owner), QString(), path, filters);
}

void SetUserQuestions(IUserQuestions* questions)
{
    Current() = questions;
}

// What the user closes while a question stands is kept until it is answered: whoever asked goes on
// with it then.

void ShowMessage(HWND owner, const QString& text)
{
    const FrameworkCall asking;
    Questions().Ask(owner, text, Buttons::Ok);
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
