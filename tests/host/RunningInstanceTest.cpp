// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/instance/RunningInstance.h"
#include "tests/host/WorkbenchTest.h"

#include <QDialog>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTest>

#include <future>

namespace {

using Request = RunningInstance::Request;
using Role = RunningInstance::Role;
using namespace std::chrono_literals;

class RunningInstances : public testing::Test
{
protected:
    QString Address() const { return m_folder.filePath(QStringLiteral("socket")); }

    // As another program does: while the first one's events are worked off.
    Role MeetBeside(const Request& request)
    {
        auto later = std::async(std::launch::async, [&] {
            RunningInstance instance(Address());
            return instance.Meet(request);
        });
        while (later.wait_for(1ms) != std::future_status::ready)
            QCoreApplication::processEvents();
        return later.get();
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(RunningInstances, ALaterStartGivesItsFilesToTheFirst)
{
    RunningInstance first(Address());
    ASSERT_EQ(first.Meet({}), Role::First);
    first.Serve();
    QList<Request> asked;
    QObject::connect(&first, &RunningInstance::Requested,
                     [&](const Request& request) { asked << request; });
    const Request request{{QStringLiteral("/a b/ü.sql:12"), QStringLiteral("/c.sql")}, "token"};
    EXPECT_EQ(MeetBeside(request), Role::Later);
    EXPECT_EQ(MeetBeside({}), Role::Later);
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, QList<Request>({request, {}}));
}

TEST_F(RunningInstances, WhatComesWhileTheFirstOneStartsIsToldWhenItServes)
{
    RunningInstance first(Address());
    ASSERT_EQ(first.Meet({}), Role::First);
    QList<Request> asked;
    QObject::connect(&first, &RunningInstance::Requested,
                     [&](const Request& request) { asked << request; });
    const Request request{{QStringLiteral("/a.sql")}, {}};
    EXPECT_EQ(MeetBeside(request), Role::Later);
    EXPECT_EQ(asked.size(), 0);
    first.Serve();
    EXPECT_EQ(asked, QList<Request>({request}));
}

// As a question does, while the other side goes.
TEST_F(RunningInstances, WhatIsDoneForARequestMayTakeItsTime)
{
    RunningInstance first(Address());
    ASSERT_EQ(first.Meet({}), Role::First);
    first.Serve();
    int asked = 0;
    QObject::connect(&first, &RunningInstance::Requested, [&] {
        ++asked;
        EXPECT_TRUE(first.findChildren<QLocalSocket*>().isEmpty() ||
                    QTest::qWaitFor([&] { return first.findChildren<QLocalSocket*>().isEmpty(); }));
    });
    EXPECT_EQ(MeetBeside({{QStringLiteral("/a.sql")}, {}}), Role::Later);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 1; }));
    EXPECT_EQ(MeetBeside({{QStringLiteral("/b.sql")}, {}}), Role::Later);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 2; }));
}

TEST_F(RunningInstances, AFirstOneThatWasKilledIsReplaced)
{
    {
        // A socket that nobody listens at stays behind.
        const QByteArray path = QFile::encodeName(Address());
        QLocalServer server;
        ASSERT_TRUE(server.listen(Address()));
        ASSERT_EQ(link(path.constData(), (path + ".kept").constData()), 0);
        server.close();
        ASSERT_EQ(rename((path + ".kept").constData(), path.constData()), 0);
    }
    ASSERT_TRUE(QFileInfo::exists(Address()));
    RunningInstance next(Address());
    EXPECT_EQ(next.Meet({}), Role::First);
    next.Serve();
    EXPECT_EQ(MeetBeside({}), Role::Later);
}

TEST_F(RunningInstances, OneThatDoesNotAnswerIsNotWaitedForLong)
{
    QLocalServer hangs; // no event of its is worked off
    ASSERT_TRUE(hangs.listen(Address()));
    RunningInstance later(Address());
    EXPECT_EQ(later.Meet({}, 50ms), Role::Unheard);
}

TEST_F(RunningInstances, WithoutAPlaceToMeetEachIsAlone)
{
    EXPECT_EQ(RunningInstance(QString()).Meet({}), Role::Alone);
    EXPECT_EQ(RunningInstance(m_folder.filePath(QStringLiteral("no/folder"))).Meet({}, 50ms),
              Role::Alone);
}

TEST_F(RunningInstances, BytesThatAreNoRequestAreDropped)
{
    RunningInstance first(Address());
    ASSERT_EQ(first.Meet({}), Role::First);
    first.Serve();
    int asked = 0;
    QObject::connect(&first, &RunningInstance::Requested, [&] { ++asked; });
    for (const QByteArray& bytes : {QByteArray("hello\n"), QByteArray("[1]\n"), QByteArray("\n"),
                                    QByteArray(5 * 1024 * 1024, 'x')}) {
        QLocalSocket socket;
        socket.connectToServer(Address());
        socket.write(bytes);
        QSignalSpy gone(&socket, &QLocalSocket::disconnected);
        EXPECT_TRUE(socket.state() == QLocalSocket::UnconnectedState || gone.wait());
    }
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(MeetBeside({}), Role::Later);
}

TEST_F(RunningInstances, OneThatEndsWhileItIsAskedLeavesItsPlace)
{
    auto ending = std::make_unique<QLocalServer>();
    ASSERT_TRUE(ending->listen(Address()));
    auto later = std::async(std::launch::async, [&] {
        RunningInstance instance(Address());
        return instance.Meet({{QStringLiteral("/a.sql")}, {}});
    });
    ASSERT_TRUE(ending->waitForNewConnection(5000));
    ending.reset();
    EXPECT_EQ(later.get(), Role::First);
}

TEST_F(RunningInstances, WhatComesInAPauseIsToldBehindIt)
{
    RunningInstance first(Address());
    ASSERT_EQ(first.Meet({}), Role::First);
    QList<Request> asked;
    QObject::connect(&first, &RunningInstance::Requested,
                     [&](const Request& request) { asked << request; });
    first.Serve();
    first.Pause();
    const Request request{{QStringLiteral("/a.sql")}, {}};
    EXPECT_EQ(MeetBeside(request), Role::Later);
    QCoreApplication::processEvents();
    EXPECT_TRUE(first.HasWaiting());
    EXPECT_EQ(asked.size(), 0);
    first.Serve();
    EXPECT_EQ(asked, QList<Request>({request}));
    EXPECT_FALSE(first.HasWaiting());
}

TEST_F(RunningInstances, WordsThatCannotBeFilesAreLeftOut)
{
    const auto read = Request::FromBytes(R"({"words":["/a.sql","b.sql","/c\u0000",7]})");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->words, QStringList(QStringLiteral("/a.sql")));
}

TEST_F(RunningInstances, WordsKeepTheirFolderAndTheirPlace)
{
    const QString folder = QDir::currentPath();
    EXPECT_EQ(RunningInstance::Absolute(QStringLiteral("a.sql:3")), folder + "/a.sql:3");
    EXPECT_EQ(RunningInstance::Absolute(QStringLiteral("/b.sql:3:4")),
              QStringLiteral("/b.sql:3:4"));
}

TEST_F(WorkbenchTest, AFileOfALaterStartIsOpenedWhenTheQuestionIsAnswered)
{
    const QString path = Write(QStringLiteral("later.sql"), "select 1;\nselect 2;\n");
    const int before = m_window.TabCount();
    auto* question = new QDialog(&m_window);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setModal(true);
    question->show();
    m_window.OpenForLaterStart({path + QStringLiteral(":2")}, {});
    QApplication::processEvents();
    EXPECT_EQ(m_window.TabCount(), before);
    EXPECT_EQ(m_app.Asked().size(), 1) << "for the next window, if this one goes";
    question->close();
    QApplication::processEvents();
    EXPECT_EQ(m_app.Asked().size(), 0);
    ASSERT_EQ(m_window.TabCount(), before + 1);
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 1);
}
