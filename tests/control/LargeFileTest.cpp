// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are too large for the engine, which counts positions in ints.
#include "tests/control/ControlFixture.h"

#include <QFile>

#include <climits>

namespace {

class LargeFiles : public ControlTest
{
protected:
    // A file without storage behind it.
    std::u16string Sparse(qint64 size) const
    {
        const QString path = folder.filePath(QStringLiteral("large.sql"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
        return path.toStdU16String();
    }
    std::u16string Text()
    {
        std::u16string text(static_cast<std::size_t>(control.GetLength(1)), u'\0');
        control.GetText(static_cast<int>(text.size()) + 1, text.data(), 1);
        return text;
    }
};

// The most memory that the process has had, in KB.
long PeakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmHWM:") + 6, 20).simplified().split(' ').value(0).toLong();
}

TEST_F(LargeFiles, AreRefusedBeforeMemoryIsSpent)
{
    const std::u16string path = Sparse(qint64{INT_MAX} + 1);
    control.SetText(u"as it was", 1);
    for (const bool careful : {false, true}) {
        control.SetCarefulFiles(careful);
        const long before = PeakMemory();
        ASSERT_GT(before, 0);
        EXPECT_FALSE(control.OpenFile(path.c_str(), kDetect));
        EXPECT_LT(PeakMemory() - before, 64 * 1024);
        EXPECT_EQ(control.GetFileResult().problem, FileProblem::TooLarge);
        EXPECT_FALSE(control.GetFileResult().Reason().isEmpty());
        EXPECT_EQ(Text(), u"as it was");
    }
}

TEST_F(LargeFiles, DoNotReplaceATextEither)
{
    const std::u16string path = Sparse(qint64{INT_MAX} + 1);
    control.SetText(u"as it was", 1);
    control.ReplaceTextWithFile(path.c_str(), kDetect);
    EXPECT_EQ(Text(), u"as it was");
}

} // namespace
