// SPDX-License-Identifier: GPL-3.0-or-later
// What the face tells of files, and what goes with the text before.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace {

using Editor = ZNCoreEditorWidget;

class FaceFiles : public testing::Test
{
protected:
    QString Write(const char* name, const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QString Path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    bool OpenByControl(const QString& path)
    {
        return editor.control().OpenFile(reinterpret_cast<const char16_t*>(path.utf16()),
                                         FileEncodeConverter::encUTF16LE);
    }

    QTemporaryDir m_folder;
    Editor editor;
};

class FaceProblems : public FaceFiles
{
protected:
    void Begin()
    {
        editor.setReadOnly(false);
        editor.setText(QStringLiteral("select alpha;\nselect beta;\n"));
        editor.setProblems(
            {{7, 5, QStringLiteral("no such column")}, {21, 4, QStringLiteral("?")}});
        ASSERT_EQ(editor.problems().size(), 2);
    }
};

TEST_F(FaceProblems, GoWithTheTextThatTheyAreOf)
{
    const QString path = Write("a.sql", "select gamma from delta;\n");
    const QString utf16 = Write("w.sql", QByteArray("s\0e\0l\0e\0c\0t\0", 12));
    const struct
    {
        const char* name;
        std::function<void()> act;
    } cases[] = {
        {"setPlainText", [&] { editor.setPlainText(QStringLiteral("select gamma from delta")); }},
        {"property", [&] { editor.setProperty("text", QStringLiteral("select gamma")); }},
        {"open", [&] { EXPECT_TRUE(editor.open(path)); }},
        {"openFile", [&] { EXPECT_TRUE(editor.openFile(path)); }},
        {"control", [&] { EXPECT_TRUE(OpenByControl(utf16)); }},
        {"read-only",
         [&] {
             editor.setReadOnly(true);
             EXPECT_TRUE(editor.open(path));
         }},
    };
    for (const auto& each : cases) {
        Begin();
        QSignalSpy changed(&editor, &Editor::problemsChanged);
        each.act();
        EXPECT_EQ(editor.problems().size(), 0) << each.name;
        EXPECT_EQ(changed.count(), 1) << each.name;
        EXPECT_FALSE(editor.goToNextProblem()) << each.name;
        each.act();
        EXPECT_EQ(changed.count(), 1) << each.name << ", again";
    }
}

TEST_F(FaceProblems, StayWithATextThatStays)
{
    Begin();
    QSignalSpy changed(&editor, &Editor::problemsChanged);
    EXPECT_EQ(editor.open(Path("missing.sql")).problem, FileProblem::Missing);
    EXPECT_TRUE(editor.save(Path("saved.sql")));
    EXPECT_EQ(editor.problems().size(), 2);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(FaceProblems, AreGoneBeforeAnyoneHearsOfTheNewText)
{
    Begin();
    qsizetype seen = -1;
    QObject::connect(&editor, &Editor::textChanged, &editor,
                     [&] { seen = editor.problems().size(); });
    editor.setPlainText(QStringLiteral("select 1"));
    EXPECT_EQ(seen, 0);
}

TEST_F(FaceFiles, AreNamedFirst)
{
    editor.setText(QStringLiteral("select 1"));
    ASSERT_TRUE(editor.fileName().isEmpty());
    for (const FileResult& result : {editor.save(editor.fileName()), editor.open(QString())}) {
        EXPECT_EQ(result.problem, FileProblem::NoName);
        EXPECT_EQ(result.Reason(), QStringLiteral("No file was named. Choose one first."));
    }
    EXPECT_FALSE(editor.saveFile(QString()));
    EXPECT_FALSE(editor.openFile(QString()));
    EXPECT_TRUE(editor.isModified());
    EXPECT_EQ(editor.text(), QStringLiteral("select 1"));
}

TEST_F(FaceFiles, AreToldByNameWhoeverOpensOrSavesThem)
{
    const QString utf16 = Write("w.sql", QByteArray("s\0e\0l\0e\0c\0t\0", 12));
    QSignalSpy names(&editor, &Editor::fileNameChanged);
    QSignalSpy texts(&editor, &Editor::textChanged);
    QString seen;
    QObject::connect(&editor, &Editor::textChanged, &editor, [&] { seen = editor.fileName(); });
    ASSERT_TRUE(OpenByControl(utf16));
    EXPECT_EQ(editor.text(), QStringLiteral("select"));
    ASSERT_EQ(names.count(), 1);
    EXPECT_EQ(names.takeFirst().at(0).toString(), utf16);
    EXPECT_EQ(texts.count(), 1);
    EXPECT_EQ(seen, utf16);

    const QString other = Path("other.sql");
    ASSERT_TRUE(editor.control().SaveFile(reinterpret_cast<const char16_t*>(other.utf16()), true));
    ASSERT_EQ(names.count(), 1);
    EXPECT_EQ(names.takeFirst().at(0).toString(), other);

    EXPECT_FALSE(OpenByControl(Path("missing.sql")));
    EXPECT_EQ(names.count(), 0);
}

} // namespace
