// SPDX-License-Identifier: GPL-3.0-or-later
// Whole scripts beside what comes of them: golden/NAME/in.sql and out.sql, with the files that
// in.sql includes in the same folder. A carriage return that the expansion puts in stands as "\r"
// and a line's end. A difference is written to out.new beside them.
#include "tests/SourceTree.h"
#include "tests/preprocess/PreprocessFixture.h"

#include <QDir>

namespace {

QString ReadText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The errors follow, since a host shows them with the text.
QString Readable(QString text, const std::map<int, QString>& errors)
{
    text.replace('\r', "\\r\n");
    for (const auto& [line, message] : errors)
        text += QString("-- error in line %1: %2\n").arg(line + 1).arg(message);
    return text;
}

class GoldenScripts : public PreprocessTest
{};

TEST_F(GoldenScripts, ExpandToWhatStandsBesideThem)
{
    const QDir golden(QString::fromStdString(InSourceTree("tests/preprocess/golden")));
    const QStringList names = golden.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    ASSERT_GE(names.size(), 5);
    for (const QString& name : names) {
        const QDir script(golden.filePath(name));
        control.SetDatasourceSearchPath(script.path());
        const QString original = ReadText(script.filePath("in.sql"));
        SetScript(original);
        const QString text = Expand();
        const QString expected = ReadText(script.filePath("out.sql"));
        const QString result = Readable(text, Errors());
        EXPECT_EQ(result.toStdString(), expected.toStdString()) << name.toStdString();
        if (result != expected) {
            QFile file(script.filePath("out.new"));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(result.toUtf8()) > 0);
        }
        control.SetOriginalScript();
        EXPECT_EQ(control.GetText(), original);
    }
}

} // namespace
