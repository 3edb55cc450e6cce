// SPDX-License-Identifier: GPL-3.0-or-later
// Autosave in the workbench: what a killed one leaves is offered by the next, and the settings
// reach every script.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "host/session/AutosaveDialog.h"
#include "platform/windows/Timer.h"
#include "tests/host/WorkbenchTest.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTimer>

namespace {

constexpr UINT kAutosave = 100;
constexpr int kPatienceInMs = 30000;

// Stands for the program that is killed, whose copies are found by its name.
class AutosaveInWorkbench : public WorkbenchTest
{
protected:
    AutosaveInWorkbench() { QApplication::setApplicationName(QStringLiteral("znworkbench")); }
    ~AutosaveInWorkbench() override
    {
        AutosaveSettings().Store();
        QApplication::setApplicationName(m_before);
    }

    // Somebody types a line at the top of the script, and the program is killed; its exit code.
    int KillAWorkbenchAtWork(const QString& script)
    {
        QProcess workbench;
        workbench.setProcessChannelMode(QProcess::ForwardedChannels);
        workbench.start(QStringLiteral(ZN_CRASHING_WORKBENCH), {script});
        EXPECT_TRUE(workbench.waitForFinished(kPatienceInMs));
        return workbench.exitStatus() == QProcess::CrashExit ? -1 : workbench.exitCode();
    }

    UINT Interval() const { return TimerInterval(Editor().GetSafeHwnd(), kAutosave); }

    // Chooses in the dialog and presses a button of it.
    void Choose(bool on, int minutes, QDialogButtonBox::StandardButton button)
    {
        QTimer::singleShot(0, &m_window, [on, minutes, button] {
            auto* dialog = qobject_cast<AutosaveDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            auto* minutesBox = dialog->findChild<QSpinBox*>(QStringLiteral("autosaveMinutes"));
            minutesBox->setValue(minutes);
            dialog->findChild<QCheckBox*>(QStringLiteral("autosaveOn"))->setChecked(on);
            EXPECT_EQ(minutesBox->isEnabled(), on);
            dialog->findChild<QDialogButtonBox*>()->button(button)->click();
        });
        Trigger("autosave");
    }

    QString m_before = QApplication::applicationName();
};

} // namespace

TEST_F(AutosaveInWorkbench, OffersWhatAKilledOneLeftAndLoadsItOnYes)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    ASSERT_EQ(KillAWorkbenchAtWork(script), -1);
    EXPECT_EQ(Read(QStringLiteral("a.sql")), QByteArray("select 1;\n"));

    m_prompts.recovery = RecoveryChoice::Recover;
    ASSERT_TRUE(m_app.OpenDocumentFile(script));
    ASSERT_EQ(m_prompts.recoverable.size(), 1);
    EXPECT_EQ(m_prompts.recoverable[0].document, script);
    EXPECT_TRUE(m_prompts.told.isEmpty());
    EXPECT_EQ(Text(), QStringLiteral("-- typed\nselect 1;\n"));
    EXPECT_TRUE(Script().IsModified());
    EXPECT_TRUE(m_window.isWindowModified());
    Trigger("undo");
    EXPECT_EQ(Text(), QStringLiteral("select 1;\n"));
    EXPECT_FALSE(Script().IsModified());
    Trigger("redo");
    Trigger("save");
    EXPECT_EQ(Read(QStringLiteral("a.sql")), QByteArray("-- typed\nselect 1;\n"));

    // The copy is gone with the save.
    Trigger("close");
    ASSERT_TRUE(m_app.OpenDocumentFile(script));
    EXPECT_EQ(m_prompts.recoverable.size(), 1);
}

TEST_F(AutosaveInWorkbench, KeepsTheFilesTextAndTheCopyUntilThePersonDecides)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    ASSERT_EQ(KillAWorkbenchAtWork(script), -1);
    for (int times = 1; times <= 2; ++times) {
        ASSERT_TRUE(m_app.OpenDocumentFile(script));
        EXPECT_EQ(m_prompts.recoverable.size(), times);
        EXPECT_EQ(Text(), QStringLiteral("select 1;\n"));
        EXPECT_FALSE(Script().IsModified());
        Trigger("close");
    }
    m_prompts.recovery = RecoveryChoice::Discard;
    ASSERT_TRUE(m_app.OpenDocumentFile(script));
    Trigger("close");
    ASSERT_TRUE(m_app.OpenDocumentFile(script));
    EXPECT_EQ(m_prompts.recoverable.size(), 3);
}

TEST_F(AutosaveInWorkbench, LeavesACopyAloneThatNobodyWasAskedAbout)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    ASSERT_EQ(KillAWorkbenchAtWork(script), -1);
    ASSERT_EQ(QProcess::execute(
                  QStringLiteral(ZN_WORKBENCH),
                  {QStringLiteral("--screenshot"), PathOf(QStringLiteral("picture.png")), script}),
              0);
    m_prompts.recovery = RecoveryChoice::Discard;
    ASSERT_TRUE(m_app.OpenDocumentFile(script));
    EXPECT_EQ(m_prompts.recoverable.size(), 1);
}

TEST_F(AutosaveInWorkbench, DoesNotDisturbOneThatIsStillThere)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    ASSERT_TRUE(m_app.OpenDocumentFile(script));
    Type(u"-- mine\n");
    SendMessage(Editor().GetSafeHwnd(), WM_TIMER, kAutosave, 0);
    ZNCoreEditorWidget second;
    second.control().SetCarefulFiles(true);
    ASSERT_TRUE(second.openFile(script));
    EXPECT_TRUE(m_prompts.told.isEmpty());
}

TEST_F(AutosaveInWorkbench, IsOnEveryMinuteUntilSomebodyChangesIt)
{
    Open(QStringLiteral("a.sql"), "select 1;\n");
    EXPECT_EQ(Interval(), 60000u);
    Choose(true, 5, QDialogButtonBox::Ok);
    EXPECT_EQ(Interval(), 5 * 60000u);
    Open(QStringLiteral("b.sql"), "select 2;\n");
    EXPECT_EQ(Interval(), 5 * 60000u);
    Choose(false, 5, QDialogButtonBox::Ok);
    EXPECT_EQ(Interval(), 0u);
    m_window.ShowTab(0);
    EXPECT_EQ(Interval(), 0u);
}

TEST_F(AutosaveInWorkbench, StaysAsItIsWhenTheDialogIsCancelled)
{
    Open(QStringLiteral("a.sql"), "select 1;\n");
    Choose(false, 9, QDialogButtonBox::Cancel);
    EXPECT_EQ(Interval(), 60000u);
    EXPECT_TRUE(AutosaveSettings::Load().on);
    EXPECT_EQ(AutosaveSettings::Load().minutes, 1);
}

TEST_F(AutosaveInWorkbench, TakesNothingFromASettingsFileThatMakesNoSense)
{
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("znworkbench"),
                       QStringLiteral("settings"));
    for (const char* minutes : {"0", "-3", "61", "soon", "99999999999", ""}) {
        settings.setValue(QStringLiteral("Autosave/minutes"), QLatin1String(minutes));
        settings.sync();
        EXPECT_EQ(AutosaveSettings::Load().minutes, 1) << minutes;
    }
}
