// SPDX-License-Identifier: GPL-3.0-or-later
// Each system call on the files of a piece of work fails once, at each place, and the process is
// killed there once. What has to come of it: the work is done, or it tells that it is not and the
// files are as they were. After a kill they are as before or as they should be.
#include "host/files/Places.h"
#include "host/files/RecentFiles.h"
#include "host/session/AutosaveSettings.h"
#include "host/session/Session.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/Registry.h"
#include "settings/ConfigFile.h"
#include "tests/control/AutosaveFixture.h"
#include "tests/faults/FaultInjector.h"

#include <cstdio>
#include <iostream>

#include <fcntl.h>
#include <unistd.h>

namespace {

using faults::Fault;
using faults::Trial;

// What the work ends with.
enum Outcome
{
    Done = 0,
    Told = 1,
    Wrong = 2,
};

class Faults : public testing::Test
{
protected:
    // In memory: a disk would take its time for each flush.
    Faults() : folder(QStringLiteral("/dev/shm/faults-XXXXXX")), folders(folder.path())
    {
        const Editor first; // the engine is loaded once, and not in each process
        for (int i = 0; i < 700; ++i)
            oldText += "select " + QByteArray::number(i) + ", '\xC3\xA9' from t;\n";
        newText = "-- x\n" + oldText;
    }

    QString PathOf(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    std::u16string UnitsOf(const char* name) const { return PathOf(name).toStdU16String(); }
    QString Script() const { return PathOf("doc.sql"); }
    QString Backup() const { return PathOf("data/bench/Backup/"); }

    static void Put(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static QByteArray Get(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    void PutScript() { Put(Script(), oldText); }

    void PutCopy()
    {
        PutScript();
        QDir().mkpath(Backup());
        Put(Backup() + QStringLiteral("~ZN1.tmp"), newText);
        ApplicationProfile().WriteString(QStringLiteral("Backup"), QStringLiteral("~ZN1.tmp"),
                                         UnitsOf("doc.sql").c_str());
    }

    // Whether a copy with the new text would be offered for the script.
    bool HasCopy() const
    {
        for (const QString& name : QDir(Backup()).entryList(QDir::Files)) {
            if (Get(Backup() + name) == newText &&
                ApplicationProfile().GetString(QStringLiteral("Backup"), name, QString()) ==
                    Script())
                return true;
        }
        return false;
    }

    bool IsOldOrNew(const QString& path) const
    {
        const QByteArray bytes = Get(path);
        return bytes == oldText || bytes == newText;
    }

    // An editor that stays as it is when its process ends.
    static Editor& OpenEditor()
    {
        auto* editor = new Editor;
        editor->control->SetCarefulFiles(true);
        return *editor;
    }

    bool OpenIn(Editor& editor) const
    {
        return editor.control->OpenFile(UnitsOf("doc.sql").c_str(), kDetect);
    }

    static QByteArray TextOf(const Editor& editor)
    {
        return QString::fromStdU16String(editor.Text()).toUtf8();
    }

    void TryEverywhere(const std::function<void()>& prepare, const std::function<int()>& work,
                       const std::function<void(const Trial&)>& check,
                       std::initializer_list<Fault> kinds = {Fault::NoRoom, Fault::Broken,
                                                             Fault::Killed})
    {
        const QByteArray below = folder.path().toUtf8();
        const Trial whole = Once(prepare, work, below, -1, Fault::None);
        ASSERT_EQ(whole.exitCode, Done);
        ASSERT_GT(whole.places, 0);
        int done = 0;
        int told = 0;
        int killed = 0;
        for (const Fault kind : kinds) {
            for (int place = 0; place < whole.places && !HasFailure(); ++place) {
                const Trial run = Once(prepare, work, below, place, kind);
                SCOPED_TRACE("place " + std::to_string(place) + ": " + run.call + ", fault " +
                             std::to_string(static_cast<int>(kind)));
                EXPECT_EQ(run.exitCode < 0, run.struck && kind == Fault::Killed);
                EXPECT_LT(run.exitCode, Wrong);
                check(run);
                ++(run.exitCode < 0 ? killed : run.exitCode == Done ? done : told);
            }
        }
        std::cout << whole.places << " places: " << done << " done, " << told << " told and whole, "
                  << killed << " kills\n";
    }

    Trial Once(const std::function<void()>& prepare, const std::function<int()>& work,
               const QByteArray& below, int place, Fault kind)
    {
        for (const QFileInfo& entry :
             QDir(folder.path())
                 .entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
            if (entry.isDir())
                QDir(entry.filePath()).removeRecursively();
            else
                QFile::remove(entry.filePath());
        }
        prepare();
        return faults::Trace(work, below, place, kind);
    }

    QTemporaryDir folder;
    FoldersIn folders;
    AutosaveQuestions questions;
    QByteArray oldText;
    QByteArray newText;
};

} // namespace

TEST_F(Faults, OfALoadAreToldOrCostNothing)
{
    const auto work = [this]() -> int {
        Editor& editor = OpenEditor();
        const bool opened = OpenIn(editor);
        const QByteArray text = TextOf(editor);
        if (opened && text == oldText)
            return Done;
        const bool isTold = opened ? editor.control->WasCutShort() && !questions.asked.isEmpty()
                                   : !editor.control->GetFileResult();
        return isTold && oldText.startsWith(text) ? Told : Wrong;
    };
    TryEverywhere([this] { PutScript(); }, work,
                  [this](const Trial&) { EXPECT_EQ(Get(Script()), oldText); });
}

TEST_F(Faults, OfASaveLeaveTheOldTextOrTheNew)
{
    const auto work = [this]() -> int {
        Editor& editor = OpenEditor();
        if (!OpenIn(editor) || editor.control->WasCutShort())
            return Told;
        editor.Type(u"-- x\n");
        const bool saved = editor.control->SaveFile(UnitsOf("doc.sql").c_str(), true);
        const bool isModified = editor.control->GetModify(1) != 0;
        return saved == isModified || TextOf(editor) != newText ? Wrong : saved ? Done : Told;
    };
    const auto check = [this](const Trial& run) {
        if (run.exitCode == Done) {
            EXPECT_EQ(Get(Script()), newText);
        } else if (run.exitCode == Told) {
            EXPECT_EQ(Get(Script()), oldText);
        } else {
            EXPECT_TRUE(IsOldOrNew(Script()));
        }
        // What a kill left beside the script goes with the next open, as soon as the system has
        // given back the lock of the process that died.
        const QStringList alone(QStringLiteral("doc.sql"));
        QStringList files;
        for (int tries = 0; tries < 1000 && files != alone; ++tries) {
            Editor next;
            next.control->SetCarefulFiles(true);
            EXPECT_TRUE(OpenIn(next));
            files = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
        }
        EXPECT_EQ(files, alone);
    };
    TryEverywhere([this] { PutScript(); }, work, check);
}

TEST_F(Faults, OfASaveUnderTwoNamesLeaveTheTextInTheFileOrInACopy)
{
    const auto prepare = [this] {
        PutScript();
        ASSERT_EQ(link(Script().toUtf8().constData(), PathOf("other.sql").toUtf8().constData()), 0);
    };
    const auto work = [this]() -> int {
        Editor& editor = OpenEditor();
        if (!OpenIn(editor) || editor.control->WasCutShort())
            return Told;
        editor.Type(u"-- x\n");
        return editor.control->SaveFile(UnitsOf("doc.sql").c_str(), true) ? Done : Told;
    };
    const auto check = [this](const Trial& run) {
        EXPECT_EQ(Get(PathOf("other.sql")), Get(Script()));
        if (run.exitCode == Done) {
            EXPECT_EQ(Get(Script()), newText);
        } else if (run.exitCode == Told) {
            EXPECT_EQ(Get(Script()), oldText);
        } else {
            EXPECT_TRUE(IsOldOrNew(Script()) || HasCopy());
        }
    };
    TryEverywhere(prepare, work, check);
}

TEST_F(Faults, OfAnAutosaveAreMadeUpForByTheNextTick)
{
    const auto work = [this]() -> int {
        Editor& editor = OpenEditor();
        if (!OpenIn(editor) || editor.control->WasCutShort())
            return Told;
        editor.Type(u"-- x\n");
        editor.Tick();
        editor.Tick();
        return Done;
    };
    const auto check = [this](const Trial& run) {
        EXPECT_EQ(Get(Script()), oldText);
        if (run.exitCode == Done) {
            EXPECT_TRUE(HasCopy());
        }
        for (const QString& name : QDir(Backup()).entryList(QDir::Files)) {
            const QByteArray copy = Get(Backup() + name);
            EXPECT_TRUE(copy.isEmpty() || copy == newText) << name.toStdString();
        }
    };
    TryEverywhere([this] { PutScript(); }, work, check);
}

TEST_F(Faults, OfARecoveryLoseNoCopy)
{
    questions.answer = Answer::Yes;
    const auto work = [this]() -> int {
        Editor& editor = OpenEditor();
        return OpenIn(editor) && TextOf(editor) == newText ? Done : Told;
    };
    const auto check = [this](const Trial&) {
        EXPECT_EQ(Get(Script()), oldText);
        EXPECT_TRUE(HasCopy());
    };
    TryEverywhere([this] { PutCopy(); }, work, check);
}

TEST_F(Faults, OfARecoveryAndItsSaveLeaveTheTextInTheFileOrInItsCopy)
{
    questions.answer = Answer::Yes;
    const auto work = [this]() -> int {
        Editor& editor = OpenEditor();
        if (!OpenIn(editor) || TextOf(editor) != newText)
            return Told;
        return editor.control->SaveFile(UnitsOf("doc.sql").c_str(), true) ? Done : Told;
    };
    const auto check = [this](const Trial& run) {
        EXPECT_TRUE(IsOldOrNew(Script()));
        EXPECT_TRUE(Get(Script()) == newText || (run.exitCode != Done && HasCopy()));
    };
    TryEverywhere([this] { PutCopy(); }, work, check);
}

TEST_F(Faults, OfTheSettingsLeaveTheOldOrTheNew)
{
    const QByteArray before =
        "<C>\r\n\t<Editor>\r\n\t\t<RightEdgeColumn>1</RightEdgeColumn>\r\n\t</Editor>\r\n</C>\r\n";
    const QByteArray after = QByteArray(before).replace(">1<", ">77<");
    const auto work = [this]() -> int {
        CConfigFile config;
        config.SetFilename(PathOf("config.xml"));
        config.SetUserCopy(PathOf("user/config.xml"));
        return config.SetRightEdgeColumn(77) && config.Save() ? Done : Told;
    };
    const auto check = [&](const Trial& run) {
        EXPECT_EQ(Get(PathOf("config.xml")), before);
        const QByteArray copy = Get(PathOf("user/config.xml"));
        EXPECT_TRUE(copy == after || (run.exitCode != Done && copy == "(no file)"))
            << copy.constData();
    };
    TryEverywhere([&] { Put(PathOf("config.xml"), before); }, work, check);
}

TEST_F(Faults, OfTheSessionLeaveTheOldOrTheNew)
{
    Session before;
    before.files.append({QStringLiteral("/old.sql")});
    Session after;
    after.files.append({QStringLiteral("/new.sql")});
    const QString path = PathOf("session.json");
    const auto check = [&](const Trial& run) {
        const QByteArray bytes = Get(path);
        EXPECT_TRUE(bytes == after.ToBytes() || (run.exitCode != Done && bytes == before.ToBytes()))
            << bytes.constData();
    };
    TryEverywhere([&] { Put(path, before.ToBytes()); },
                  [&]() -> int { return after.Store(path) ? Done : Told; }, check);
}

// What cannot be read is put aside, or nothing is written.
TEST_F(Faults, OfTheSessionsLoadLoseNoSession)
{
    Session before;
    before.files.append({QStringLiteral("/old.sql")});
    Session after;
    after.files.append({QStringLiteral("/new.sql")});
    const QString path = PathOf("session.json");
    const auto work = [&]() -> int {
        const std::optional<Session> found = Session::Load(path);
        if (!found && Session::PutAside(path).isEmpty())
            return Told;
        return after.Store(path) && found ? Done : Told;
    };
    const auto check = [&](const Trial& run) {
        const QByteArray bytes = Get(path);
        const bool isKept = bytes == before.ToBytes() ||
                            Get(path + QStringLiteral(".unreadable")) == before.ToBytes();
        EXPECT_TRUE(isKept || bytes == after.ToBytes()) << bytes.constData();
        EXPECT_TRUE(isKept || run.exitCode != Told);
    };
    TryEverywhere([&] { Put(path, before.ToBytes()); }, work, check);
}

TEST_F(Faults, OfTheWorkbenchsSettingsLoseNone)
{
    const QString path = places::SettingsPath();
    const auto prepare = [&] {
        AutosaveSettings{false, 7}.Store();
        RecentFiles(path).Add(QStringLiteral("/old.sql"));
    };
    const auto work = [&]() -> int {
        return RecentFiles(path).Add(QStringLiteral("/new.sql")) ? Done : Told;
    };
    const auto check = [&](const Trial& run) {
        EXPECT_EQ(AutosaveSettings::Load().minutes, 7);
        EXPECT_FALSE(AutosaveSettings::Load().on);
        const QStringList paths = RecentFiles(path).Paths();
        EXPECT_TRUE(paths.contains(QStringLiteral("/old.sql")));
        EXPECT_TRUE(run.exitCode < 0 ||
                    paths.contains(QStringLiteral("/new.sql")) == (run.exitCode == Done));
    };
    TryEverywhere(prepare, work, check);
}

TEST_F(Faults, OfTheOptionsLoseNone)
{
    constexpr int kKey = 12345; // nobody's
    const auto prepare = [&] { CZNOptionsServer().SetInt(kKey, 1); };
    const auto work = [&]() -> int {
        CZNOptionsServer server;
        server.SetInt(kKey + 1, 2);
        return server.GetInt(kKey + 1) != 2 ? Wrong : server.WasStored() ? Done : Told;
    };
    const auto check = [&](const Trial& run) {
        CZNOptionsServer later;
        EXPECT_EQ(later.GetInt(kKey), 1);
        EXPECT_TRUE(run.exitCode < 0 || (later.GetInt(kKey + 1) == 2) == (run.exitCode == Done));
    };
    TryEverywhere(prepare, work, check);
}

TEST_F(Faults, OfTheProfileLoseNoEntry)
{
    const QString section = QStringLiteral("Backup");
    const auto prepare = [&] {
        for (const char16_t* entry : {u"one", u"two"})
            ApplicationProfile().WriteString(section, QString::fromUtf16(entry), entry);
    };
    const auto work = [&]() -> int {
        return ApplicationProfile().WriteString(section, QStringLiteral("three"), u"3") ? Done
                                                                                        : Told;
    };
    const auto check = [&](const Trial& run) {
        const auto get = [&](const char* entry) {
            return ApplicationProfile().GetString(section, QString::fromLatin1(entry), QString());
        };
        EXPECT_EQ(get("one"), QStringLiteral("one"));
        EXPECT_EQ(get("two"), QStringLiteral("two"));
        EXPECT_TRUE(run.exitCode < 0 ||
                    (get("three") == QLatin1String("3")) == (run.exitCode == Done));
    };
    TryEverywhere(prepare, work, check);
}

TEST_F(Faults, OfTheRegistryLoseNoValue)
{
    const QString key = QStringLiteral("Company\\Product\\Search");
    const auto prepare = [&] { Registry().Write(key, QStringLiteral("a"), QStringLiteral("1")); };
    const auto work = [&]() -> int {
        return Registry().Write(key, QStringLiteral("b"), QStringLiteral("2")) ? Done : Told;
    };
    const auto check = [&](const Trial& run) {
        EXPECT_EQ(Registry().Read(key, QStringLiteral("a")), RegistryValue(QStringLiteral("1")));
        const bool isThere = Registry().Read(key, QStringLiteral("b")).has_value();
        EXPECT_TRUE(run.exitCode < 0 || isThere == (run.exitCode == Done));
    };
    TryEverywhere(prepare, work, check);
}

TEST_F(Faults, OfAnExpandedScriptLeaveAWholeOneOrNone)
{
    const auto prepare = [this] {
        Put(PathOf("main.sql"), "select 1;\n#include part.sql\nselect 3;\n");
        Put(PathOf("part.sql"), "select 2;\n");
    };
    const auto work = [this]() -> int {
        const int silence = open("/dev/null", O_WRONLY);
        dup2(silence, STDERR_FILENO);
        execl(ZN_SCRIPT, "znscript", "expand", "--path", qPrintable(folder.path()), "--output",
              qPrintable(PathOf("out.sql")), qPrintable(PathOf("main.sql")), nullptr);
        return Wrong;
    };
    const QByteArray whole = "select 1;\n--#include part.sql\nselect 2;\n\nselect 3;\n";
    const auto check = [&](const Trial& run) {
        const QByteArray out = Get(PathOf("out.sql"));
        EXPECT_TRUE(out == whole || (run.exitCode != Done && out == "(no file)"))
            << out.constData();
        EXPECT_EQ(Get(PathOf("part.sql")), QByteArray("select 2;\n"));
    };
    TryEverywhere(prepare, work, check, {Fault::Broken});
}
