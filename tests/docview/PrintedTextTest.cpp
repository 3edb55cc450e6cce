// SPDX-License-Identifier: GPL-3.0-or-later
// The text of what was printed, read back from the PDF, and the picture of its pages.
#include "ViewFixture.h"

#include "platform/printing/PrintInfo.h"
#include "platform/printing/PrintJob.h"
#include "platform/printing/PrintService.h"
#include "platform/windows/DeviceContext.h"
#include "tests/RandomSeed.h"
#include "tests/platform/file/FullDisk.h"

#include <QBuffer>
#include <QPageSize>
#include <QPrinter>
#include <QProcess>

#include <algorithm>
#include <random>

namespace {

class Pdf final : public IPrintService
{
public:
    Pdf() { SetPrintService(this); }
    ~Pdf() override { SetPrintService(nullptr); }
    std::unique_ptr<QPrinter> ChoosePrinter(HWND /*owner*/, PRINTDLG& record) override
    {
        if (!selection)
            record.Flags &= ~PD_SELECTION;
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(path);
        printer->setPageSize(QPageSize(millimetres, QPageSize::Millimeter));
        printer->setPageMargins({5, 5, 5, 5}, QPageLayout::Millimeter);
        return printer;
    }
    bool OnPage(HWND, UINT /*page*/, UINT lastPage) override
    {
        pages = lastPage;
        return true;
    }
    void OnDone(HWND owner, bool succeeded, const QString& file) override
    {
        done = succeeded;
        IPrintService::OnDone(owner, succeeded, file);
    }
    QString path;
    QSizeF millimetres{210, 297};
    bool selection = false;
    UINT pages = 0;
    bool done = false;
};

class PrintedText : public ViewTest
{
protected:
    PrintedText() { pdf.path = Path("printed.pdf"); }

    QString Printed()
    {
        Control().SetMarginWidthN(1, 0, 1); // numbers of lines would be printed too
        view->OnFilePrint();
        QProcess reader;
        reader.start("pdftotext", {"-raw", "-enc", "UTF-8", pdf.path, "-"});
        EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is in poppler-utils";
        return QString::fromUtf8(reader.readAllStandardOutput());
    }
    // Where lines are wrapped, and what blanks there are, is the reader's guess.
    static QString Solid(QString text)
    {
        text.removeIf(
            [](QChar unit) { return unit.isSpace() || unit.category() == QChar::Other_Control; });
        return text.normalized(QString::NormalizationForm_KC);
    }

    Pdf pdf;
};

} // namespace

TEST_F(PrintedText, IsEveryCharacterOnceOverRandomTextsAndPapers)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto number = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    static const QString kLetters =
        QString::fromUtf8("abcxyzABCXYZ0123456789+-*/(),.;=<>_äöüéñßαβγδжщюя");
    for (int round = 0; round < 6; ++round) {
        QString text;
        for (int line = number(1, 120); line > 0; --line) {
            for (int word = number(0, round == 0 ? 60 : 8); word > 0; --word) {
                for (int letter = number(1, 9); letter > 0; --letter)
                    text += kLetters[number(0, int(kLetters.size()) - 1)];
                text += number(0, 9) ? u' ' : u'\t';
            }
            text += u'\n';
        }
        pdf.millimetres = QSizeF(number(60, 220), number(60, 300));
        Control().PrintStyleSetSize(number(4, 20), 1);
        Put(text, 0, 0);
        EXPECT_EQ(Solid(Printed()), Solid(text)) << "round " << round;
        EXPECT_TRUE(pdf.done);
    }
}

TEST_F(PrintedText, OfASelectionIsNoMoreAndNoLess)
{
    pdf.selection = true;
    Put("before\nselected;\nbehind\n", 9, 19);
    EXPECT_EQ(Solid(Printed()), "lected;be");
    EXPECT_EQ(pdf.pages, 1u);
}

TEST_F(PrintedText, OfASelectionOfOneCharacterIsThatCharacter)
{
    pdf.selection = true;
    Put("before\nselected;\nbehind\n", 9, 10);
    EXPECT_EQ(Solid(Printed()), "l");
    EXPECT_EQ(pdf.pages, 1u);
}

TEST_F(PrintedText, OfRandomSelectionsIsThatText)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto number = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    pdf.selection = true;
    pdf.millimetres = QSizeF(80, 60);
    for (int round = 0; round < 6; ++round) {
        QString text;
        while (text.size() < 3000)
            text += QString::number(random()) + (number(0, number(1, 99)) == 0 ? u'\n' : u' ');
        const int start = number(0, 2000);
        const int end = start + number(2, round % 2 ? 900 : 40);
        Put(text, start, end);
        EXPECT_EQ(Solid(Printed()), Solid(text.mid(start, end - start))) << start << ' ' << end;
    }
}

TEST_F(PrintedText, OfALineOfManyPagesIsAllOfIt)
{
    Put(QString("long_line ").repeated(5000), 0, 0);
    EXPECT_EQ(Solid(Printed()).size(), 45000);
    EXPECT_GT(pdf.pages, 5u);
}

TEST_F(PrintedText, OfALongLineAmongOthersIsAllOfIt)
{
    QString text("first\n");
    for (int word = 0; word < 12000; ++word)
        text += QString::number(word) + u' ';
    text += "\nlast";
    Put(text, 0, 0);
    EXPECT_EQ(Solid(Printed()), Solid(text));
}

// The order of what is read from the right is the reader's guess, too.
TEST_F(PrintedText, IsWholeFromTheRightAndWithCombiningMarks)
{
    QString text = QString::fromUtf8("abc \u05e9\u05dc\u05d5\u05dd def\n"
                                     "\u0645\u0631\u062d\u0628\u0627 123\n"
                                     "e\u0301 o\u0308 n\u0303 x\u0323\u0302\n");
    Put(text, 0, 0);
    QString printed = Printed();
    printed.removeIf([](QChar unit) { return unit.category() == QChar::Other_Format; });
    printed = Solid(printed);
    text = Solid(text);
    std::ranges::sort(printed);
    std::ranges::sort(text);
    EXPECT_EQ(printed, text);
}

TEST_F(PrintedText, OfAnEmptyTextIsAPageWithoutAWord)
{
    Put("", 0, 0);
    EXPECT_EQ(Solid(Printed()), "");
    EXPECT_EQ(pdf.pages, 1u);
    EXPECT_TRUE(Read(pdf.path).startsWith("%PDF"));
}

TEST_F(PrintedText, OnPaperSmallerThanACharacterComesToAnEnd)
{
    pdf.millimetres = QSizeF(11, 11);
    Control().PrintStyleSetSize(72, 1);
    Put("abc def", 0, 0);
    Printed();
    EXPECT_TRUE(pdf.done);
}

TEST_F(PrintedText, OfPagesThatTheTextHasLostSinceIsNone)
{
    Put(QString("some text\n").repeated(1000), 0, 0);
    QImage paper(1000, 500, QImage::Format_RGB32);
    paper.fill(Qt::white);
    const QImage blank = paper.copy();
    QPainter painter(&paper);
    CDC dc(painter);
    CPrintInfo info;
    info.m_rectDraw = {0, 0, 1000, 500};
    view->OnBeginPrinting(&dc, &info);
    ASSERT_GT(info.GetMaxPage(), 5u);
    Put("short", 0, 0);
    info.m_nCurPage = info.GetMaxPage();
    view->OnPrint(&dc, &info);
    EXPECT_EQ(paper, blank);
    info.m_nCurPage = 1;
    view->OnPrint(&dc, &info);
    EXPECT_NE(paper, blank);
}

TEST_F(PrintedText, IsNotThereWhereTheDiskIsFull)
{
    QString text;
    for (int line = 0; line < 2000; ++line)
        text += QString::number(line * 7919) + u'\n';
    Put(text, 0, 0);
    {
        const FullDisk full(20000);
        view->OnFilePrint();
    }
    EXPECT_FALSE(pdf.done);
    EXPECT_FALSE(QFile::exists(pdf.path));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
    EXPECT_EQ(user.asked, QStringList{pdf.path + " could not be written."});
}

// So few of them that they are written when the file is closed.
TEST_F(PrintedText, IsNotThereWhereItsLastBytesFindNoRoom)
{
    Put("text", 0, 0);
    view->OnFilePrint();
    ASSERT_TRUE(pdf.done);
    const qint64 size = QFileInfo(pdf.path).size();
    ASSERT_TRUE(QFile::remove(pdf.path));
    {
        const FullDisk full(static_cast<rlim_t>(size) - 1);
        view->OnFilePrint();
    }
    EXPECT_FALSE(pdf.done);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
    EXPECT_EQ(user.asked, QStringList{pdf.path + " could not be written."});
}

TEST_F(PrintedText, LeavesTheFileThatWasThereWhereItFails)
{
    Write("printed.pdf", "before");
    Put(QString("some text\n").repeated(3000), 0, 0);
    {
        const FullDisk full(2000);
        view->OnFilePrint();
    }
    EXPECT_FALSE(pdf.done);
    EXPECT_EQ(Read(pdf.path), "before");
}

TEST_F(PrintedText, IntoAFolderThatIsNotThereIsTold)
{
    pdf.path = Path("no/such.pdf");
    Put("text", 0, 0);
    view->OnFilePrint();
    EXPECT_EQ(user.asked, QStringList{pdf.path + " could not be written."});
}

TEST(PrintJobs, WriteNothingBeforeTheirFirstPage)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPrinter layout(QPrinter::HighResolution);
    const auto job = MakePdfJob(buffer, layout);
    EXPECT_GT(job->StartDoc("x"), 0);
    QPainter* measuring = job->Painter();
    EXPECT_GT(measuring->device()->width(), 1000);
    EXPECT_EQ(measuring->device()->logicalDpiX(), layout.resolution());
    measuring->drawText(100, 100, "no ink");
    EXPECT_EQ(buffer.size(), 0);
    EXPECT_GT(job->StartPage(), 0);
    EXPECT_EQ(job->Painter()->device()->logicalDpiX(), layout.resolution());
    EXPECT_GT(job->EndPage(), 0);
    EXPECT_GT(job->EndDoc(), 0);
    EXPECT_TRUE(buffer.data().endsWith("%%EOF\n"));
}

TEST(PrintJobs, WithoutAPageLeaveNoFile)
{
    const QTemporaryDir folder;
    auto printer = std::make_unique<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(folder.filePath("a.pdf"));
    const auto job = MakePrintJob(std::move(printer));
    EXPECT_EQ(job->File(), folder.filePath("a.pdf"));
    EXPECT_GT(job->StartDoc("x"), 0);
    EXPECT_GT(job->EndDoc(), 0);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_EQ(MakePrintJob(nullptr), nullptr);
}

TEST(PrintInfos, KeepPagesInSixteenBits)
{
    CPrintInfo info;
    EXPECT_EQ(info.GetMinPage(), 1u);
    info.SetMaxPage(0x12345);
    EXPECT_EQ(info.GetMaxPage(), 0x2345u);
    EXPECT_EQ(info.GetToPage(), 0x2345u);
}
