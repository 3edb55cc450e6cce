// SPDX-License-Identifier: GPL-3.0-or-later
// What the export operations leave behind, which is little.
#include "editing/export/RtfClipboard.h"
#include "platform/windows/Questions.h"
#include "tests/editing/EditingFixture.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class Told final : public IUserQuestions
{
public:
    Told() { SetUserQuestions(this); }
    ~Told() override { SetUserQuestions(nullptr); }
    Answer Ask(HWND /*owner*/, const QString& text, Buttons /*buttons*/) override
    {
        texts << text;
        return Answer::Ok;
    }
    QStringList texts;
};

class OpenExport : public CZNCoreEditorControlEx
{
public:
    using CZNCoreEditorControlEx::GetRTFNextControl;
    using CZNCoreEditorControlEx::GetRTFStyleChange;
};

class Export : public EditingTest
{
protected:
    QByteArray Pdf(const QString& name)
    {
        control.SaveToPDF(Path(name).toStdU16String().c_str());
        std::fflush(nullptr); // the end of the process would do it
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    std::string Changes(std::string& last, std::string current)
    {
        OpenExport exporting;
        char delta[80];
        last.resize(80);
        exporting.GetRTFStyleChange(delta, sizeof(delta), last.data(), 80, current.data());
        last.resize(std::char_traits<char>::length(last.data()));
        return delta;
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Export, OfRtfAndHtmlTouchesNoFile)
{
    Put(u"some [text]");
    for (const QString& name : {Path("a"), Path("no/such/b"), QString()}) {
        control.SaveToRTF(name.toStdU16String().c_str(), 0, 4);
        control.SaveToHTML(name.toStdU16String().c_str());
    }
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
}

TEST_F(Export, OfAPdfIsTheSameForEveryText)
{
    const QByteArray expected("%PDF-1.3\n%\xC7\xEC\x8F\xA2\n"
                              "1 0 obj\n<</Type/Font/Subtype/Type1/Name/F1/BaseFont/Courier"
                              "/Encoding/WinAnsiEncoding>>\nendobj\n"
                              "2 0 obj\n<</Type/Font/Subtype/Type1/Name/F2/BaseFont/Courier-Bold"
                              "/Encoding/WinAnsiEncoding>>\nendobj\n"
                              "3 0 obj\n<</Type/Font/Subtype/Type1/Name/F3/BaseFont/Courier-Oblique"
                              "/Encoding/WinAnsiEncoding>>\nendobj\n"
                              "4 0 obj\n<</Type/Font/Subtype/Type1/Name/F4/BaseFont/"
                              "Courier-BoldOblique/Encoding/WinAnsiEncoding>>\nendobj\n");
    PutPlain(u"");
    EXPECT_EQ(Pdf("empty.pdf"), expected);
    PutPlain(std::u16string(300000, u'x') + u"\n\u00e9");
    EXPECT_EQ(Pdf("large.pdf"), expected);
}

TEST_F(Export, OfAPdfIntoAFolderThatIsNotThereIsTold)
{
    const Told told;
    Pdf("no/such/a.pdf");
    EXPECT_EQ(told.texts, QStringList{"Could not save as PDF"});
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
}

TEST_F(Export, AsRtfLeavesTheClipboardAlone)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    Put(u"some [text]");
    const QStringList before = QDir::temp().entryList();
    control.CopyAsRTF();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "kept");
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasFormat("text/rtf"));
    EXPECT_EQ(QDir::temp().entryList(), before);
}

TEST_F(Export, MovesAFileOfRtfToTheClipboard)
{
    QFile file(Path("a.rtf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\\rtf1 x}");
    file.close();
    MoveRtfToClipboard(file.fileName());
    EXPECT_EQ(QGuiApplication::clipboard()->mimeData()->data("text/rtf"),
              QByteArray("{\\rtf1 x}\0", 10));
    EXPECT_FALSE(file.exists());
}

TEST_F(Export, SplitsControlWords)
{
    OpenExport exporting;
    std::string words = "\\b\\fs20";
    char* at = words.data();
    char word[128] = "before";
    exporting.GetRTFNextControl(&at, word);
    EXPECT_STREQ(word, "\\b");
    exporting.GetRTFNextControl(&at, word);
    EXPECT_STREQ(word, "\\fs20");
    exporting.GetRTFNextControl(&at, word);
    EXPECT_STREQ(word, "");
    EXPECT_EQ(*at, '\0');
}

TEST_F(Export, TellsTheControlWordsThatDiffer)
{
    std::string last = "\\f0\\fs20\\cf1\\cb2\\b0\\i0";
    const std::string current = "\\f0\\fs24\\cf1\\cb2\\b0\\i0";
    EXPECT_EQ(Changes(last, current), "\\fs24 ");
    EXPECT_EQ(last, current);
    EXPECT_EQ(Changes(last, current), "");
}

TEST_F(Export, CutsControlWordsThatHaveNoRoom)
{
    std::string last;
    const std::string current = '\\' + std::string(300, 'x') + "\\b";
    EXPECT_EQ(Changes(last, current).size(), 79u);
    EXPECT_EQ(last.size(), 79u);
}
