// SPDX-License-Identifier: GPL-3.0-or-later
// The box of what takes long, and its button.
#include "host/window/WorkProgress.h"
#include "host/finding/FindBar.h"
#include "tests/host/WorkbenchTest.h"

#include <QComboBox>
#include <QDeadlineTimer>
#include <QDialog>
#include <QEventLoop>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

namespace {

class WorkProgressTest : public WorkbenchTest
{
protected:
    bool GoesOn(int hundredths)
    {
        return m_progress.GoesOn(m_window.centralWidget(), QStringLiteral("Replacing"), hundredths);
    }
    QProgressDialog* Box() const
    {
        return m_window.findChild<QProgressDialog*>(QStringLiteral("workProgress"));
    }

    WorkProgress m_progress;
};

} // namespace

TEST_F(WorkProgressTest, ShowsHowFarItHasComeAndLetsNobodyAtTheWindow)
{
    EXPECT_TRUE(GoesOn(37));
    ASSERT_TRUE(Box());
    EXPECT_TRUE(Box()->isVisible());
    EXPECT_EQ(Box()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(Box()->value(), 37);
    EXPECT_EQ(Box()->labelText(), QStringLiteral("Replacing"));
    m_progress.Ends();
    EXPECT_FALSE(Box());
}

TEST_F(WorkProgressTest, StopsByItsButton)
{
    EXPECT_TRUE(GoesOn(1));
    Box()->findChild<QPushButton*>()->click();
    bool goesOn = true;
    for (const QDeadlineTimer patience(20'000); goesOn && !patience.hasExpired();)
        goesOn = GoesOn(2);
    EXPECT_FALSE(goesOn);
}

TEST_F(WorkProgressTest, CountsInTheStatusBarWhatNothingCanStopWithoutHandlingAnEvent)
{
    bool hasHandled = false;
    QTimer::singleShot(0, &m_window, [&hasHandled] { hasHandled = true; });
    m_progress.Tells(m_window.centralWidget(), QStringLiteral("Undoing"), 12345);
    EXPECT_EQ(m_window.statusBar()->currentMessage(), QStringLiteral("Undoing: 12,345 changes"));
    EXPECT_FALSE(Box());
    EXPECT_FALSE(hasHandled);
    m_progress.Ends();
    EXPECT_EQ(m_window.statusBar()->currentMessage(), QString());
}

TEST_F(WorkProgressTest, CountsNothingWhereNoStatusBarIs)
{
    QDialog dialog(&m_window);
    QWidget inside(&dialog);
    m_progress.Tells(&inside, QStringLiteral("Undoing"), 1);
    m_progress.Ends();
    EXPECT_EQ(m_window.statusBar()->currentMessage(), QString());
}

TEST_F(WorkProgressTest, KeepsTheWindowOfATextThatIsClosedMeanwhile)
{
    Open("a.sql", "one\n");
    const QPointer<QWidget> editor = Editor().GetSafeHwnd();
    bool isThere = false;
    QEventLoop loop; // in which people close things
    QTimer::singleShot(0, &m_window, [&] {
        QTimer::singleShot(0, &m_window, [this] { Script().OnCloseDocument(); });
        for (int looks = 0; looks < 3; ++looks) { // what is closed in one may go in the next
            m_progress.Ends();
            GoesOn(1);
        }
        isThere = m_window.TabCount() == 0 && editor;
        m_progress.Ends();
        loop.quit();
    });
    loop.exec();
    EXPECT_TRUE(isThere) << "the work goes on in it";
    Disposal::Run();
    EXPECT_FALSE(editor);
}

TEST_F(WorkProgressTest, LetsTheWindowFollowTheTextOnlyOnceItIsOver)
{
    Open("a.sql", "one two\n");
    Type(u"y");
    EXPECT_TRUE(GoesOn(1));
    Editor().GotoPos(5, 1);
    Editor().ReplaceSel(u"x", 1);
    bool isLater = false; // than the window follows otherwise
    QTimer::singleShot(400, [&] { isLater = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isLater; }));
    EXPECT_EQ(Status("caret"), QStringLiteral("Line 1, column 2"));
    m_progress.Ends();
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return Status("caret") == QStringLiteral("Line 1, column 7"); }));
}

TEST_F(WorkProgressTest, TellsInTheFindBarThatReplacingWasStopped)
{
    class Stopper final : public ILongWork
    {
    public:
        Stopper() { SetLongWork(this); }
        ~Stopper() override { SetLongWork(nullptr); }
        bool GoesOn(HWND, const QString&, int) override { return false; }
        void Ends() override {}
        int Patience() const override { return 0; }
    };
    const Stopper stopper;
    Open("a.sql", QByteArray("a\n").repeated(3000));
    FindBar& bar = m_window.Find();
    bar.Open();
    bar.findChild<QComboBox*>(QStringLiteral("findText"))->setEditText(QStringLiteral("a"));
    bar.findChild<QComboBox*>(QStringLiteral("replaceText"))->setEditText(QStringLiteral("b"));
    bar.ReplaceAll();
    EXPECT_TRUE(Text().startsWith(QStringLiteral("b\n")));
    EXPECT_TRUE(Text().endsWith(QStringLiteral("a\n")));
    EXPECT_EQ(bar.findChild<QLabel*>(QStringLiteral("findResult"))->text(),
              QStringLiteral("Stopped, 1024 replaced"));
}
