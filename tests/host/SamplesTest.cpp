// SPDX-License-Identifier: GPL-3.0-or-later
// The sample scripts have the bytes that samples/README.md claims: a checkout or an editor that
// "repairs" line ends or encodings shows here.
#include "tests/SourceTree.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>

#include <gtest/gtest.h>

#include <array>

namespace {

enum class Ends
{
    Lf,
    Cr,
    CrLf,
    Mixed
};

struct Sample
{
    const char* name;
    const char* encoding; // null: windows-1252
    const char* mark;
    bool ascii;
    Ends ends;
};

constexpr std::array kSamples{
    Sample{"hotfix.sql", nullptr, "", true, Ends::Mixed},
    Sample{"load.sql", nullptr, "", false, Ends::CrLf},
    Sample{"migration.sql", "UTF-16LE", "\xFF\xFE", false, Ends::CrLf},
    Sample{"notes.sql", "UTF-8", "", false, Ends::Lf},
    Sample{"package.sql", nullptr, "", true, Ends::Cr},
    Sample{"procedures.sql", "UTF-8", "\xEF\xBB\xBF", false, Ends::CrLf},
    Sample{"report.sql", "UTF-16BE", "\xFE\xFF", false, Ends::Lf},
    Sample{"schema.sql", "UTF-8", "", false, Ends::Lf},
};

QDir Folder()
{
    return QDir(QString::fromStdString(InSourceTree("samples")));
}

struct EndCounts
{
    int lf = 0;
    int cr = 0;
    int crLf = 0;
};

EndCounts CountEnds(const QString& text)
{
    EndCounts counts;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\n')
            ++counts.lf;
        else if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            ++counts.crLf, ++i;
        else if (text[i] == u'\r')
            ++counts.cr;
    }
    return counts;
}

class EverySample : public testing::TestWithParam<Sample>
{
protected:
    void SetUp() override
    {
        QFile file(Folder().filePath(QLatin1String(GetParam().name)));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.errorString().toStdString();
        m_bytes = file.readAll();
    }

    QByteArray BytesBehindTheMark() const
    {
        return m_bytes.mid(qsizetype(strlen(GetParam().mark)));
    }

    // The text; Latin-1 stands in for windows-1252, which has the same line ends.
    QString Text() const
    {
        if (!GetParam().encoding)
            return QString::fromLatin1(m_bytes);
        QStringDecoder decoder(GetParam().encoding, QStringConverter::Flag::Stateless);
        return decoder.decode(BytesBehindTheMark());
    }

    QByteArray m_bytes;
};

bool IsValid(const char* encoding, const QByteArray& bytes)
{
    QStringDecoder decoder(encoding, QStringConverter::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return !decoder.hasError() && !text.isEmpty();
}

bool IsAscii(const QByteArray& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c > 0; });
}

} // namespace

TEST_P(EverySample, BeginsWithItsMarkAndNoOther)
{
    EXPECT_TRUE(m_bytes.startsWith(GetParam().mark));
    for (const char* mark : {"\xFF\xFE", "\xFE\xFF", "\xEF\xBB\xBF"})
        EXPECT_FALSE(BytesBehindTheMark().startsWith(mark));
}

TEST_P(EverySample, IsWellFormedInItsEncoding)
{
    if (GetParam().encoding) {
        EXPECT_TRUE(IsValid(GetParam().encoding, BytesBehindTheMark()));
        return;
    }
    EXPECT_EQ(IsAscii(m_bytes), GetParam().ascii);
    EXPECT_EQ(IsValid("UTF-8", m_bytes), GetParam().ascii);
    for (const char hole : {'\x81', '\x8D', '\x8F', '\x90', '\x9D'})
        EXPECT_FALSE(m_bytes.contains(hole)) << "windows-1252 has no character here";
}

TEST_P(EverySample, SaysSomethingThatAsciiCannot)
{
    const QString text = Text();
    const bool ascii =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    EXPECT_EQ(ascii, GetParam().ascii);
}

TEST_P(EverySample, HasTheLineEndsOfItsRow)
{
    const EndCounts counts = CountEnds(Text());
    const Ends ends = GetParam().ends;
    EXPECT_EQ(counts.lf > 0, ends == Ends::Lf || ends == Ends::Mixed);
    EXPECT_EQ(counts.cr > 0, ends == Ends::Cr || ends == Ends::Mixed);
    EXPECT_EQ(counts.crLf > 0, ends == Ends::CrLf || ends == Ends::Mixed);
}

TEST_P(EverySample, IsAsLongAsARealScript)
{
    const EndCounts counts = CountEnds(Text());
    const int lines = counts.lf + counts.cr + counts.crLf;
    EXPECT_GE(lines, 40);
    EXPECT_LE(lines, 200);
}

INSTANTIATE_TEST_SUITE_P(Samples, EverySample, testing::ValuesIn(kSamples), [](const auto& row) {
    return QString::fromLatin1(row.param.name).section('.', 0, 0).toStdString();
});

TEST(Samples, AreAllListedHereAndOnTheirPage)
{
    QStringList names;
    for (const Sample& sample : kSamples)
        names << QString::fromLatin1(sample.name);
    EXPECT_EQ(Folder().entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name), names);

    QFile page(Folder().filePath(QStringLiteral("README.md")));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QByteArray text = page.readAll();
    for (const QString& name : names)
        EXPECT_TRUE(text.contains("| `" + name.toLatin1() + "` |")) << name.toStdString();
}

TEST(Samples, CoverEveryEncodingAndEveryLineEnd)
{
    QStringList encodings;
    std::array<int, 4> ends{};
    for (const Sample& sample : kSamples) {
        encodings << QString::fromLatin1(sample.encoding ? sample.encoding : "windows-1252") +
                         (*sample.mark ? "+mark" : "");
        ++ends[size_t(sample.ends)];
    }
    for (const char* wanted :
         {"windows-1252", "UTF-8", "UTF-8+mark", "UTF-16LE+mark", "UTF-16BE+mark"})
        EXPECT_TRUE(encodings.contains(QLatin1String(wanted))) << wanted;
    for (const int count : ends)
        EXPECT_GT(count, 0);
}
