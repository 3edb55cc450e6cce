// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/session/Session.h"
#include "tests/RandomSeed.h"

#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>
#include <random>

namespace {

Session Example()
{
    Session session;
    session.files = {{.path = "/x/a.sql",
                      .encoding = 1251,
                      .caretLine = 120,
                      .caretColumn = 7,
                      .firstVisible = 100},
                     {.path = "/x/\u00E9 \"b\".sql",
                      .caretLine = INT_MAX,
                      .readOnly = true,
                      .panes = SessionPanes::Beside,
                      .language = "PostgreSQL",
                      .zoom = 4,
                      .folds = {3, 70},
                      .bookmarks = {0, 2, 9}}};
    session.front = 1;
    session.geometry = QByteArray("\0\1geometry", 10);
    session.maximised = true;
    session.state = "state";
    session.documentMap = true;
    session.folder = "/x/y";
    return session;
}

Session Read(const QByteArray& bytes)
{
    return Session::FromBytes(bytes);
}

QByteArray WithFile(const QByteArray& members)
{
    return R"({"files":[{"path":"/x/a.sql",)" + members + "}]}";
}

} // namespace

TEST(SessionData, ComesBackAsItWas)
{
    EXPECT_EQ(Read(Example().ToBytes()), Example());
    EXPECT_EQ(Read(Session().ToBytes()), Session());
}

TEST(SessionData, StandsInAFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("session.json");
    EXPECT_TRUE(Example().Store(path));
    EXPECT_EQ(Session::Load(path), Example());
    EXPECT_TRUE(Session().Store(path));
    EXPECT_EQ(Session::Load(path), Session());
    EXPECT_FALSE(Example().Store(folder.filePath("missing/session.json")));
}

TEST(SessionData, IsEmptyWithoutAFileThatCanBeRead)
{
    const QTemporaryDir folder;
    EXPECT_EQ(Session::Load(folder.filePath("missing.json")), Session());
    EXPECT_EQ(Session::Load(folder.path()), std::nullopt);
    EXPECT_EQ(Session::Load("/dev/zero"), std::nullopt);
    EXPECT_EQ(Session::Load(QString()), Session());
}

TEST(SessionData, HasAPlaceOfTheUsers)
{
    EXPECT_TRUE(Session().Store(Session::DefaultPath()));
    EXPECT_TRUE(QFile::remove(Session::DefaultPath()));
}

TEST(SessionData, OfAnyOtherFormIsEmpty)
{
    for (const char* bytes : {"", "nonsense", "[]", "{}", "3", R"({"files":3})", R"({"files":[3]})",
                              R"({"files":[{"path":7}]})", R"({"files":{"path":"/x"}})"})
        EXPECT_EQ(Read(bytes), Session()) << bytes;
}

TEST(SessionData, SurvivesDamage)
{
    const unsigned int seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const QByteArray whole = Example().ToBytes();
    for (int i = 0; i < 3000; ++i) {
        QByteArray bytes = whole.left(qsizetype(random() % size_t(whole.size() + 1)));
        for (auto count = random() % 4; count > 0 && !bytes.isEmpty(); --count)
            bytes[qsizetype(random() % size_t(bytes.size()))] = char(random());
        const Session session = Read(bytes);
        EXPECT_LE(session.files.size(), 2);
        EXPECT_GE(session.front, 0);
        EXPECT_LE(session.front, 1);
        for (const SessionFile& file : session.files) {
            EXPECT_TRUE(QDir::isAbsolutePath(file.path));
            EXPECT_GE(file.caretLine, 0);
            EXPECT_GE(file.firstVisible, 0);
        }
    }
}

TEST(SessionData, LeavesOutWhatNoFileIsCalled)
{
    const Session session = Read(
        R"({"front":5,"files":[{"path":"a.sql"},{"path":""},{"path":"/x/\u0000"},{"path":"/x/\ud800"},{"path":"/)" +
        QByteArray(10000, 'x') +
        R"("},{"path":"/x/a.sql"},{"path":"/x/a.sql"},{"path":"/x/b.sql"}]})");
    ASSERT_EQ(session.files.size(), 3);
    EXPECT_EQ(session.files[0].path, "/x/a.sql");
    EXPECT_EQ(session.files[1].path, "/x/a.sql"); // in a second tab
    EXPECT_EQ(session.files[2].path, "/x/b.sql");
    EXPECT_EQ(session.front, 0); // that of /x/a.sql, which has moved up
}

TEST(SessionData, BringsNumbersIntoTheirRange)
{
    const SessionFile plain = {.path = "/x/a.sql"};
    for (const char* members :
         {R"("caretLine":-1,"firstVisible":-5,"encoding":-2)", R"("caretLine":1e30)",
          R"("caretLine":"7","encoding":"6")", R"("encoding":3)", R"("encoding":12)",
          R"("encoding":1200)", R"("firstVisible":2147483648)", R"("caretLine":1.5)",
          R"("readOnly":"yes")", R"("panes":4)", R"("panes":-1)", R"("panes":"1")", R"("zoom":-11)",
          R"("zoom":61)", R"("folds":[-1,"2",1e30,[3]])", R"("folds":7)",
          R"("bookmarks":{"0":1})"}) {
        const Session session = Read(WithFile(members));
        ASSERT_EQ(session.files.size(), 1) << members;
        EXPECT_EQ(session.files[0], plain) << members;
    }
    EXPECT_EQ(Read(R"({"front":7,"files":[{"path":"/x/a.sql"}]})").front, 0);
    EXPECT_EQ(Read(R"({"front":-1,"files":[{"path":"/x/a.sql"}]})").front, 0);
}

TEST(SessionData, HasBounds)
{
    Session session;
    for (int i = 0; i < Session::kMostFiles + 5; ++i)
        session.files.append({.path = QStringLiteral("/x/%1.sql").arg(i)});
    EXPECT_EQ(Read(session.ToBytes()).files.size(), Session::kMostFiles);
    session.files = {{.path = "/x/a.sql"}};
    for (int line = 0; line < SessionFile::kMostLines + 5; ++line)
        session.files[0].bookmarks << line;
    EXPECT_EQ(Read(session.ToBytes()).files[0].bookmarks.size(), SessionFile::kMostLines);
    session.files.clear();
    session.geometry = QByteArray(100000, 'g');
    EXPECT_TRUE(Read(session.ToBytes()).geometry.isEmpty());
    EXPECT_EQ(Read(WithFile(R"("encoding":6)") + QByteArray(5000000, ' ')), Session());
}

TEST(SessionData, BringsBackAWindow)
{
    Session session;
    {
        QMainWindow window;
        window.setGeometry(30, 40, 500, 300);
        session.geometry = window.saveGeometry();
        session.state = window.saveState();
    }
    const Session read = Read(session.ToBytes());
    QMainWindow window;
    EXPECT_TRUE(window.restoreGeometry(read.geometry));
    EXPECT_TRUE(window.restoreState(read.state));
    EXPECT_EQ(window.size(), QSize(500, 300));
    EXPECT_FALSE(window.restoreGeometry("nonsense"));
}
