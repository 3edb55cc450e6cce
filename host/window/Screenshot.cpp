// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/Screenshot.h"

#include "host/files/Prompts.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"
#include "platform/system/SpecialFolders.h"
#include "platform/windows/Questions.h"

#include <QApplication>
#include <QCoreApplication>
#include <QPixmap>

#include <cstdio>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Screenshot)
};

void Report(const QString& text)
{
    std::fprintf(stderr, "znworkbench: %s\n", qPrintable(text));
}

// Nobody answers: messages are printed, questions get the answer that changes nothing.
class PrintedPrompts final : public Prompts, public IUserQuestions
{
public:
    PrintedPrompts()
    {
        SetPrompts(this);
        SetUserQuestions(this);
    }
    ~PrintedPrompts() override
    {
        SetPrompts(nullptr);
        SetUserQuestions(nullptr);
    }

    QStringList FilesToOpen(QWidget*, const QString&) override { return {}; }
    QString FolderToShow(QWidget*, const QString&) override { return {}; }
    std::optional<OpenChoice> WhatToOpen(QWidget*, const QString&) override { return {}; }
    std::optional<SaveTarget> WhereToSave(QWidget*, const SaveTarget&) override { return {}; }
    LoseChanges BeforeLosing(QWidget*, const QString&) override { return LoseChanges::Cancel; }
    std::optional<QList<bool>> WhichToSave(QWidget*, const QStringList&) override
    {
        return std::nullopt;
    }
    void Tell(QWidget*, const QString& text) override { Report(text); }

    QList<RecoveryChoice> WhatToRecover(QWidget*, const QList<RecoverableCopy>& copies) override
    {
        return QList<RecoveryChoice>(copies.size(), RecoveryChoice::Later);
    }

    LoseCharacters BeforeQuestionMarks(QWidget*, const QString& text) override
    {
        Report(text);
        return LoseCharacters::Cancel;
    }

    bool Confirm(QWidget*, const QString& text, const QString&) override
    {
        Report(text);
        return false;
    }

    bool ConfirmComparing(QWidget* parent, const QString& text, const QString& doIt,
                          const Comparison&) override
    {
        return Confirm(parent, text, doIt);
    }

    Answer Ask(HWND, const QString& text, Buttons buttons) override
    {
        Report(text);
        return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    }
};

// Without a folder for copies none is found. One that is offered and refused would go when the
// picture is done, and the person it belongs to has not been asked.
class WithoutCopies final : public ISpecialFolders
{
public:
    WithoutCopies() { SetSpecialFolders(this); }
    ~WithoutCopies() override { SetSpecialFolders(nullptr); }

    QString AppData() const override { return QString(); }
};

} // namespace

int TakeScreenshot(const QStringList& files, const QString& picture)
{
    const WithoutCopies withoutCopies;
    const PrintedPrompts prompts;
    Workbench app(Workbench::Keeps::Nothing);
    auto* window = new MainWindow(app);
    int result = window->OpenPlaces(files) ? 0 : 1;
    if (window->TabCount() == 0)
        app.NewScript();
    window->show();
    QApplication::processEvents(); // lays out and paints
    if (!window->grab().save(picture)) {
        Report(Texts::tr("the picture “%1” cannot be written.").arg(picture));
        result = 1;
    }
    return result;
}
