// SPDX-License-Identifier: GPL-3.0-or-later
// What a PDF begins with, and the small operations of its writer.
#include "editing/export/PdfWriter.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace {

class PdfWriting : public testing::Test
{
protected:
    ~PdfWriting() override { std::fclose(m_file); }

    std::string Written()
    {
        std::string bytes(static_cast<std::size_t>(std::ftell(m_file)), '\0');
        std::rewind(m_file);
        EXPECT_EQ(std::fread(bytes.data(), 1, bytes.size(), m_file), bytes.size());
        return bytes;
    }

    std::string Change(int style)
    {
        char buffer[60] = "before";
        m_writer.StyleChange(buffer, sizeof(buffer), style);
        return buffer;
    }

    std::FILE* m_file = std::tmpfile();
    PdfObjectTracker m_tracker{m_file};
    PdfWriter m_writer;
};

} // namespace

TEST_F(PdfWriting, NumbersObjectsFromOne)
{
    EXPECT_EQ(m_tracker.WriteObject("first\n"), 1);
    EXPECT_EQ(m_tracker.WriteObject("second\n"), 2);
    EXPECT_EQ(Written(), "1 0 obj\nfirst\nendobj\n2 0 obj\nsecond\nendobj\n");
}

TEST_F(PdfWriting, DoublesTheTableBeyondAHundredObjects)
{
    for (int i = 0; i < 100; ++i)
        m_tracker.WriteObject("x");
    EXPECT_EQ(m_tracker.capacity, 100);
    const std::vector<int> before = m_tracker.offsets;
    EXPECT_EQ(m_tracker.WriteObject("x"), 101);
    EXPECT_EQ(m_tracker.capacity, 200);
    ASSERT_EQ(m_tracker.offsets.size(), 200u);
    EXPECT_TRUE(std::equal(before.begin(), before.end(), m_tracker.offsets.begin()));
    EXPECT_EQ(m_tracker.offsets[1], 16); // "1 0 obj\n", "x", "endobj\n"
    EXPECT_EQ(m_tracker.next, 102);
}

TEST_F(PdfWriting, WritesTheTableOfOffsets)
{
    m_tracker.WriteObject("abc\n");
    m_tracker.WriteObject("de\n");
    EXPECT_EQ(m_tracker.WriteOffsets(), 37);
    EXPECT_EQ(Written().substr(37), "xref\n0 3\n0000000000 65535 f \n"
                                    "0000000000 00000 n \n0000000019 00000 n \n");
}

TEST_F(PdfWriting, BeginsWithTheHeaderAndTheFonts)
{
    m_writer.tracker = &m_tracker;
    m_writer.fontSize = 0;
    m_writer.pageWidth = m_writer.pageHeight = 20;
    m_writer.styleCurrent = 5;
    m_writer.SetFont(u"Times");
    m_writer.WriteHeader();
    EXPECT_EQ(m_writer.fontSize, 10);
    EXPECT_DOUBLE_EQ(m_writer.leading, 12);
    EXPECT_EQ(m_writer.pageWidth, 156);
    EXPECT_EQ(m_writer.pageHeight, 156);
    EXPECT_EQ(m_writer.styleCurrent, 32);
    EXPECT_EQ(m_writer.pageObjectStart, 5);
    const std::string bytes = Written();
    EXPECT_EQ(bytes.substr(0, 15), "%PDF-1.3\n%\xC7\xEC\x8F\xA2\n");
    EXPECT_NE(bytes.find("4 0 obj\n<</Type/Font/Subtype/Type1/Name/F4/BaseFont/Times-BoldItalic"
                         "/Encoding/WinAnsiEncoding>>\nendobj\n"),
              std::string::npos);
}

TEST_F(PdfWriting, LeavesTheFamilyForANameThatItDoesNotKnow)
{
    m_writer.SetFont(u"courier");
    EXPECT_EQ(m_writer.fontSet, 1);
    m_writer.SetFont(u"Courier");
    EXPECT_EQ(m_writer.fontSet, 0);
}

TEST_F(PdfWriting, TellsWhatChangesFromTheStyleInForce)
{
    m_writer.styles.resize(PdfWriter::kStyles);
    m_writer.styles[7].font = 2;
    m_writer.styles[8].fore = {"1 0 0 "};
    EXPECT_EQ(Change(32), "");
    EXPECT_EQ(Change(7), "/F3 10 Tf ");
    EXPECT_EQ(Change(8), "1 0 0 rg ");
    EXPECT_EQ(Change(9), "");
    EXPECT_EQ(Change(-1), "/F1 10 Tf rg ");
    EXPECT_EQ(m_writer.styleCurrent, 32);
}

TEST_F(PdfWriting, AdvancesALineAboveTheMargin)
{
    m_writer.leading = 12;
    m_writer.firstLine = true;
    m_writer.yPos = 73 + 2 * 12; // Helvetica goes 2 points below its line
    m_writer.marginBottom = 71;
    m_writer.NextLine();
    EXPECT_EQ(m_writer.pageData, u"0 -12.0 TD\n");
    EXPECT_EQ(m_writer.xPos, 72);
    EXPECT_FALSE(m_writer.firstLine);
    m_writer.NextLine();
    EXPECT_EQ(m_writer.pageData, u"0 -12.0 TD\nT*\n");
    m_writer.NextLine();
    EXPECT_EQ(m_writer.pageData, u"0 -12.0 TD\nT*\n");
}

TEST_F(PdfWriting, ReadsBytesInHexadecimal)
{
    EXPECT_EQ(PdfWriter::IntFromHexByte("ff"), 255);
    EXPECT_EQ(PdfWriter::IntFromHexByte("FF"), 255);
    EXPECT_EQ(PdfWriter::IntFromHexByte("1g"), 16);
    EXPECT_EQ(PdfWriter::IntFromHexDigit('b'), 11);
    EXPECT_EQ(PdfWriter::IntFromHexDigit(' '), 0);
}

TEST_F(PdfWriting, CountsThousandthsOfTheSize)
{
    EXPECT_DOUBLE_EQ(m_writer.FontToPoints(157), 1.57);
}
