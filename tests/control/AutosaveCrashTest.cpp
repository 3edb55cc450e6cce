// SPDX-License-Identifier: GPL-3.0-or-later
// A process that edits a script is killed again and again around its autosave write. What it leaves
// is offered by the next open, and is one of the texts that it had.
#include "tests/RandomSeed.h"
#include "tests/control/AutosaveFixture.h"

#include <QApplication>

#include <chrono>
#include <csignal>
#include <iostream>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

constexpr int kTexts = 10;

// A process is killed, not the machine: what a disk would keep does not matter, its time does.
const QString kMemory = QStringLiteral("/dev/shm");

// The texts of a run, known to the process that has them and to the one that checks. Each begins
// with its number, so that no part of one is another; most fill the writer's buffer several times.
std::vector<std::string> TextsOf(unsigned seed)
{
    std::mt19937 random(seed);
    std::vector<std::string> texts;
    for (int i = 0; i < kTexts; ++i) {
        std::string text = "\xEF\xBB\xBF-- text " + std::to_string(i) + "\n";
        const std::size_t size = random() % 4 == 0 ? random() % 200 : random() % 200000;
        while (text.size() < size)
            text +=
                "select " + std::to_string(random()) + " as \"\xC3\xA9\xE2\x82\xAC\" from t;\r\n";
        texts.push_back(text);
    }
    return texts;
}

void Enter(CZNCoreEditorControl& control, const std::string& text)
{
    const std::u16string units = QString::fromUtf8(text.c_str() + 3).toStdU16String();
    control.ClearAll(1);
    control.AddTextNoProcess(static_cast<int>(units.size()), units.c_str(), 1);
}

// A process that edits until it is killed. It says so before each write.
class Victim
{
public:
    Victim(const std::u16string& path, const std::vector<std::string>& texts, bool careful)
    {
        int ends[2] = {-1, -1};
        EXPECT_EQ(pipe(ends), 0);
        m_process = fork();
        if (m_process == 0)
            Live(path, texts, careful, ends[1]);
        close(ends[1]);
        m_news = ends[0];
    }
    ~Victim()
    {
        Kill();
        close(m_news);
    }
    Victim(const Victim&) = delete;
    Victim& operator=(const Victim&) = delete;

    // False if it has died by itself.
    bool WaitForWrite() const
    {
        char byte = 0;
        return read(m_news, &byte, 1) == 1;
    }

    void Kill()
    {
        if (m_process <= 0)
            return;
        kill(m_process, SIGKILL);
        int status = 0;
        EXPECT_EQ(waitpid(m_process, &status, 0), m_process);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << status;
        m_process = -1;
    }

private:
    [[noreturn]] static void Live(const std::u16string& path, const std::vector<std::string>& texts,
                                  bool careful, int news)
    {
        Editor editor;
        editor.control->SetCarefulFiles(careful);
        if (!editor.control->OpenFile(path.c_str(), kDetect))
            _exit(2);
        for (std::size_t i = 1; i < texts.size(); ++i) {
            Enter(*editor.control, texts[i]);
            if (write(news, "t", 1) != 1)
                _exit(3);
            editor.Tick();
            // Without care a save that is cut short costs the file itself.
            if (careful && i % 3 == 0)
                editor.control->SaveFile(path.c_str(), true);
        }
        pause();
        _exit(4);
    }

    pid_t m_process = -1;
    int m_news = -1;
};

struct Tally
{
    int none = 0;
    int whole = 0;
    int cutShort = 0;
};

class AutosaveCrash : public testing::Test
{
protected:
    static constexpr int kRuns = 220;

    AutosaveCrash() : m_seed(RandomSeed()), m_random(m_seed)
    {
        std::cout << "seed " << m_seed << '\n';
    }

    Tally KillAgainAndAgain(bool careful)
    {
        Tally tally;
        for (int i = 0; i < kRuns && !HasFailure(); ++i)
            RunOnce(careful, i % 10 == 0, tally);
        std::cout << kRuns << " kills: " << tally.whole << " copies offered whole, "
                  << tally.cutShort << " cut short, " << tally.none << " none\n";
        return tally;
    }

private:
    void RunOnce(bool careful, bool looksWhileAlive, Tally& tally)
    {
        const QTemporaryDir folder(kMemory + QStringLiteral("/autosave-XXXXXX"));
        ASSERT_TRUE(folder.isValid());
        const FoldersIn folders(folder.path());
        AutosaveQuestions questions;
        const std::vector<std::string> texts = TextsOf(static_cast<unsigned>(m_random()));
        const QString path = folder.filePath(QStringLiteral("doc.sql"));
        Put(path, texts[0]);

        Victim victim(path.toStdU16String(), texts, careful);
        ASSERT_TRUE(WaitAround(victim));
        if (careful && looksWhileAlive) {
            ExpectNoOffer(path, questions);
            ASSERT_TRUE(victim.WaitForWrite());
        }
        victim.Kill();

        ExpectDocument(path, texts, careful);
        Recover(path, texts, careful, questions, tally);
        if (careful)
            ExpectNothingIn(folder.filePath(QStringLiteral("data/bench/Backup")));
    }

    // What a kill leaves is offered or taken away, parts of a write included.
    static void ExpectNothingIn(const QString& backups)
    {
        QStringList names = QDir(backups).entryList(QDir::Files | QDir::Hidden);
        names.removeOne(QStringLiteral(".claims"));
        EXPECT_EQ(names, QStringList());
    }

    // Returns at a random moment of some write, or shortly before or after it.
    bool WaitAround(const Victim& victim)
    {
        if (!victim.WaitForWrite())
            return false;
        for (auto more = m_random() % 4; more > 0; --more) {
            const Clock::time_point before = Clock::now();
            if (!victim.WaitForWrite())
                return false;
            const auto took = std::chrono::duration_cast<microseconds>(Clock::now() - before);
            m_writeTakes = (m_writeTakes * 3 + took) / 4;
        }
        const auto delay =
            microseconds(m_random() % static_cast<std::uint64_t>(m_writeTakes.count() * 5 / 4 + 1));
        const Clock::time_point until = Clock::now() + delay;
        while (Clock::now() < until) {}
        return true;
    }

    static void Put(const QString& path, const std::string& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes.data(), qint64(bytes.size())), qint64(bytes.size()));
    }

    static std::string Get(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(no file)";
    }

    static bool IsOneOf(const std::string& bytes, const std::vector<std::string>& texts)
    {
        return std::ranges::find(texts, bytes) != texts.end();
    }

    static void ExpectDocument(const QString& path, const std::vector<std::string>& texts,
                               bool careful)
    {
        const std::string document = Get(path);
        EXPECT_TRUE(careful ? IsOneOf(document, texts) : document == texts[0])
            << document.size() << " bytes";
    }

    // The other process lives, so its copy is nobody else's.
    static void ExpectNoOffer(const QString& path, const AutosaveQuestions& questions)
    {
        Editor other;
        other.control->SetCarefulFiles(true);
        EXPECT_TRUE(other.control->OpenFile(path.toStdU16String().c_str(), kDetect));
        EXPECT_EQ(questions.asked.join(u'\n').toStdString(), "");
    }

    static void Recover(const QString& path, const std::vector<std::string>& texts, bool careful,
                        AutosaveQuestions& questions, Tally& tally)
    {
        Editor editor;
        editor.control->SetCarefulFiles(careful);
        std::string copy;
        questions.answer = Answer::Yes;
        bool offered = false;
        questions.whileAsked = [&] {
            // Without care the file itself may be said to be cut short.
            offered = !editor.control->m_strAutoSaveFile.isEmpty();
            if (offered)
                copy = Get(editor.control->m_strAutoSaveFile);
        };
        ASSERT_TRUE(editor.control->OpenFile(path.toStdU16String().c_str(), kDetect));
        if (!offered) {
            ++tally.none;
            return;
        }
        if (IsOneOf(copy, texts)) {
            ++tally.whole;
            // Without care a load drops characters at the seams of its blocks.
            const QString text = QString::fromUtf8(copy.c_str() + 3);
            EXPECT_TRUE(!careful || editor.Text() == text.toStdU16String());
            return;
        }
        ++tally.cutShort;
        EXPECT_TRUE(std::ranges::any_of(
            texts, [&copy](const std::string& text) { return text.starts_with(copy); }))
            << "neither a text nor the beginning of one: " << copy.size() << " bytes";
    }

    unsigned m_seed;
    std::mt19937_64 m_random;
    microseconds m_writeTakes{5000};
};

} // namespace

TEST_F(AutosaveCrash, WithCareLeavesAWholeTextOrNone)
{
    const Tally tally = KillAgainAndAgain(true);
    EXPECT_EQ(tally.cutShort, 0);
    EXPECT_EQ(tally.whole + tally.none, kRuns);
    EXPECT_GE(tally.whole, kRuns / 10);
}

TEST_F(AutosaveCrash, WithoutCareMayCutTheCopyShort)
{
    const Tally tally = KillAgainAndAgain(false);
    RecordProperty("cut_short", tally.cutShort);
    EXPECT_EQ(tally.whole + tally.none + tally.cutShort, kRuns);
    EXPECT_GE(tally.whole, kRuns / 10);
}
