#include "platform/Questions.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

IUserQuestions::~IUserQuestions() = default;

QString IUserQuestions::AskOpenFile(HWND owner, const QString& filters)
{
    return QFileDialog::getOpenFileName(owner ? owner->window() : QApplication::activeWindow(),
                                        QString(), QString(), filters);
}

namespace {

class MessageBoxes final : public IUserQuestions
{
public:
    Answer Ask(HWND owner, const QString& text, Buttons buttons) override
    {
        QMessageBox box(owner ? owner->window() : QApplication::activeWindow());
        box.setIcon(buttons == Buttons::Ok ? QMessageBox::Warning : QMessageBox::Question);
        box.setWindowTitle(QGuiApplication::applicationDisplayName());
        box.setTextFormat(Qt::PlainText); // a path may look like markup
        box.setText(text);
        box.setStandardButtons(buttons == Buttons::Ok ? QMessageBox::Ok
                                                      : QMessageBox::Yes | QMessageBox::No);
        const int pressed = box.exec();
        if (buttons == Buttons::Ok)
            return Answer::Ok;
        return pressed == QMessageBox::Yes ? Answer::Yes : Answer::No;
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

void SetUserQuestions(IUserQuestions* questions)
{
    Current() = questions;
}

void ShowMessage(HWND owner, const QString& text)
{
    Questions().Ask(owner, text, Buttons::Ok);
}

bool AskYesNo(HWND owner, const QString& text)
{
    return Questions().Ask(owner, text, Buttons::YesNo) == Answer::Yes;
}

QString AskOpenFile(HWND owner, const QString& filters)
{
    return Questions().AskOpenFile(owner, filters);
}
