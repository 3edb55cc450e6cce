// SPDX-License-Identifier: GPL-3.0-or-later
// What the script was before a run: kept, and put back.
#include "platform/system/SpecialFolders.h"
#include "tests/preprocess/PreprocessFixture.h"

#include <QDir>

namespace {

constexpr int kMostInMemory = 1024 * 1024;

class TestFolders final : public ISpecialFolders
{
public:
    explicit TestFolders(const QString& folder) : m_folder(folder) { SetSpecialFolders(this); }
    ~TestFolders() override { SetSpecialFolders(nullptr); }
    QString AppTemp() const override { return m_folder; }

private:
    QString m_folder;
};

class OriginalScript : public PreprocessTest
{
protected:
    QStringList Backups() const { return QDir(temp.path()).entryList(QDir::Files); }

    QString LongScript(int units) const
    {
        const QString front = "#define &&A 1\n";
        return front + QString(units - front.size() - 1, 'x') + "y";
    }

    CZNCompileManager& manager = *zncoreeditor::GetCompileManager();
    QTemporaryDir temp;
    TestFolders folders{temp.path()};
};

TEST_F(OriginalScript, ComesBackWithTheModifiedFlag)
{
    for (const bool modified : {false, true}) {
        SetScript("#define &&A 1\n&&A");
        control.SetModified(modified);
        Expand();
        control.SetModified(modified);
        control.SetOriginalScript();
        EXPECT_EQ(control.GetText(), "#define &&A 1\n&&A");
        EXPECT_EQ(control.GetModified(), modified);
    }
}

TEST_F(OriginalScript, IsNotThereAfterARunWithoutDirectives)
{
    Expand("select 1");
    SetScript("something else");
    control.SetOriginalScript();
    EXPECT_EQ(control.GetText(), "something else");
}

TEST_F(OriginalScript, StaysInMemoryUpToAMegabyteOfUnits)
{
    const QString script = LongScript(kMostInMemory);
    Expand(script);
    EXPECT_TRUE(Backups().isEmpty());
    control.SetOriginalScript();
    EXPECT_TRUE(control.GetText() == script);
}

TEST_F(OriginalScript, GoesToAFileBeyond)
{
    const QString script = LongScript(kMostInMemory + 1);
    Expand(script);
    ASSERT_EQ(Backups().size(), 1);
    EXPECT_TRUE(Backups()[0].startsWith("Bck"));
    QFile file(temp.filePath(Backups()[0]));
    EXPECT_EQ(file.size(), 2 * script.size()); // no mark in front
    control.SetOriginalScript();
    EXPECT_TRUE(control.GetText() == script);
    EXPECT_TRUE(Backups().isEmpty());
}

TEST_F(OriginalScript, IsReadFromTheFileOnce)
{
    Expand(LongScript(kMostInMemory + 1));
    control.SetOriginalScript();
    SetScript("typed since");
    control.SetOriginalScript();
    EXPECT_EQ(control.GetText(), "typed since");
}

TEST_F(OriginalScript, LeavesTheTextAloneIfTheFileVanished)
{
    Expand(LongScript(kMostInMemory + 1));
    ASSERT_EQ(Backups().size(), 1);
    QFile::remove(temp.filePath(Backups()[0]));
    const QString expanded = control.GetText();
    control.SetModified(true);
    control.SetOriginalScript();
    EXPECT_TRUE(control.GetText() == expanded);
    EXPECT_TRUE(control.GetModified());
}

TEST_F(OriginalScript, TakesItsFileAlongWhenTheNextIsSaved)
{
    manager.SaveOriginalScript(LongScript(kMostInMemory + 1));
    EXPECT_EQ(Backups().size(), 1);
    manager.SaveOriginalScript(LongScript(kMostInMemory + 2));
    EXPECT_EQ(Backups().size(), 1);
    manager.SaveOriginalScript("short");
    EXPECT_TRUE(Backups().isEmpty());
    QString script;
    manager.GetOriginalScript(script);
    EXPECT_EQ(script, "short");
}

TEST_F(OriginalScript, StaysInMemoryWhereNoFileCanBeMade)
{
    const TestFolders nowhere("/proc/nowhere");
    const QString script = LongScript(kMostInMemory + 1);
    Expand(script);
    control.SetOriginalScript();
    EXPECT_TRUE(control.GetText() == script);
}

TEST_F(OriginalScript, KeepsWhatStandsBehindANul)
{
    for (const int size : {100, kMostInMemory + 100}) {
        QString script = LongScript(size);
        script[50] = QChar(u'\0');
        control.SetText(u"", 1);
        control.AppendText(static_cast<int>(script.size()),
                           reinterpret_cast<const char16_t*>(script.utf16()), 1);
        Expand();
        EXPECT_TRUE(control.GetIncludeOrDefineDirectivesFound());
        control.SetOriginalScript();
        EXPECT_TRUE(control.GetText() == script) << size;
    }
}

} // namespace
