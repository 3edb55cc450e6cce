// SPDX-License-Identifier: GPL-3.0-or-later
// The extended control over the engine itself.
#include "editing/FindDialogs.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/base/Units.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/SystemColors.h"
#include "platform/windows/DataExchange.h"
#include "platform/windows/DeviceContext.h"
#include "platform/windows/WindowEvents.h"
#include "tests/editing/Languages.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QTest>

#include <gmock/gmock.h>

#include <map>

namespace {

constexpr int kSql = 2;

// Opens what the control keeps to itself.
class OpenControlEx : public CZNCoreEditorControlEx
{
public:
    using CZNCoreEditorControlEx::COLORREFFromString;
    using CZNCoreEditorControlEx::DoSave;
    using CZNCoreEditorControlEx::m_blockComments;
    using CZNCoreEditorControlEx::m_hAccelerators;
    using CZNCoreEditorControlEx::m_singleLineComments;
};

// Options in memory, those that nobody sets as if the store were empty.
class Options final : public CZNOptionsServer
{
public:
    Options() { SetOptionsServer(this); }
    ~Options() override { SetOptionsServer(nullptr); }

    int GetInt(int key) override { return numbers[key]; }
    QString GetString(int key) override { return texts[key]; }
    bool GetLOGFONT(int key, LOGFONT* font) override
    {
        if (!fonts.count(key))
            return false;
        *font = fonts[key];
        return true;
    }
    void SetLOGFONT(int key, const LOGFONT* font) override { fonts[key] = *font; }

    std::map<int, int> numbers;
    std::map<int, QString> texts;
    std::map<int, LOGFONT> fonts;
};

class ControlEx : public testing::Test
{
protected:
    ControlEx() { Subclass(m_control); }
    // What the options wrote into the settings in memory is not for the tests behind.
    ~ControlEx() override
    {
        zncoreeditor::GetConfigFile()->Revert();
        zncoreeditor::GetFileTypeManager()->ReParseAllSyntaxFiles();
    }

    void Subclass(CZNCoreEditorControlEx& control)
    {
        control.SubclassWindow(
            CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 300, 200}, &m_parent));
    }

    std::u16string Path(const char* name) const
    {
        return m_files.Path(QLatin1String(name)).toStdU16String();
    }

    QByteArray Read(const char* name) const
    {
        QFile file(m_files.Path(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    void SetText(const QString& text) { m_control.SetWindowTextW(text); }

    // Syntax files of the test's own, bound to the control.
    void Bind(const QString& languageDefines)
    {
        m_files.Write(QStringLiteral("language.xml"),
                      QStringLiteral("<Syntax><CodeHighlight><SyntaxHighlighting>1"
                                     "</SyntaxHighlighting></CodeHighlight><Indent><IndentGuides>0"
                                     "</IndentGuides></Indent><LanguageDefines>%1"
                                     "</LanguageDefines></Syntax>")
                          .arg(languageDefines));
        CSyntaxFile syntax;
        m_files.Open(syntax, QStringLiteral("language.xml"));
        m_control.Reset();
        zncoreeditor::GetFileTypeManager()->SetCoreEditorProperties(zncoreeditor::GetConfigFile(),
                                                                    &syntax, &m_control);
    }

    LanguageFiles m_files;
    Options m_options;
    QWidget m_parent;
    OpenControlEx m_control;
};

std::vector<QString> Texts(std::initializer_list<const char*> texts)
{
    return {texts.begin(), texts.end()};
}

// ----- What the language says

TEST_F(ControlEx, KnowsOneSingleLineComment)
{
    Bind(QStringLiteral("<SingleLineComment><![CDATA[--]]></SingleLineComment>"));
    EXPECT_EQ(m_control.m_singleLineComments, Texts({"--"}));
}

TEST_F(ControlEx, KnowsTwoSingleLineComments)
{
    Bind(QStringLiteral("<SingleLineComment><![CDATA[--|//]]></SingleLineComment>"));
    EXPECT_EQ(m_control.m_singleLineComments, Texts({"--", "//"}));
}

TEST_F(ControlEx, LetsTheSecondOfThreeSingleLineCommentsRunOver)
{
    Bind(QStringLiteral("<SingleLineComment><![CDATA[--|//|#]]></SingleLineComment>"));
    EXPECT_EQ(m_control.m_singleLineComments, Texts({"--", "//|#", "#"}));
}

TEST_F(ControlEx, KnowsAPairOfBlockComments)
{
    Bind(QStringLiteral("<BlockComment><![CDATA[/*|*/]]></BlockComment>"));
    EXPECT_EQ(m_control.m_blockComments, Texts({"/*", "*/"}));
}

TEST_F(ControlEx, LetsTheSecondPairOfBlockCommentsRunOver)
{
    Bind(QStringLiteral("<BlockComment><![CDATA[/*|*/|{|}]]></BlockComment>"));
    EXPECT_EQ(m_control.m_blockComments, Texts({"/*", "*/|{|", "{|}", "}"}));
}

TEST_F(ControlEx, IgnoresABlockCommentThatNeverEnds)
{
    for (const char* markers : {"/*", "/*|", "|"}) {
        Bind(QStringLiteral("<BlockComment><![CDATA[%1]]></BlockComment>").arg(markers));
        EXPECT_TRUE(m_control.m_blockComments.empty()) << markers;
    }
}

TEST_F(ControlEx, ForgetsTheCommentsOfTheLanguageBefore)
{
    m_control.AddSingleLineComment(QStringLiteral("REM"));
    m_control.InitializeLanguage(kSql, 1);
    EXPECT_THAT(m_control.m_singleLineComments, testing::Contains(QStringLiteral("--")));
    EXPECT_THAT(m_control.m_singleLineComments,
                testing::Not(testing::Contains(QStringLiteral("REM"))));
}

TEST_F(ControlEx, HasIndentationGuidesWhateverTheLanguageSays)
{
    Bind(QString());
    EXPECT_EQ(m_control.GetIndentationGuides(1), 1);
}

TEST_F(ControlEx, ColoursTheTextOfItsLanguage)
{
    m_control.InitializeLanguage(kSql, 1);
    SetText(QStringLiteral("select 'a' -- b"));
    m_control.Colorize(0, -1, 1);
    EXPECT_EQ(m_control.GetLexer(1), 9);
    EXPECT_EQ(m_control.GetStyleAt(0, 1), 5);
    EXPECT_EQ(m_control.GetStyleAt(8, 1), 7);
    EXPECT_EQ(m_control.GetStyleAt(12, 1), 2);
}

TEST_F(ControlEx, KeepsTheColoursOfAnOpenTextWhenTheirLargestSizeChanges)
{
    const auto picture = [this] { return m_control.GetSafeHwnd()->grab().toImage(); };
    m_control.InitializeLanguage(kSql, 1);
    SetText(QStringLiteral("select 'a' -- b"));
    const QImage coloured = picture();
    ASSERT_EQ(m_control.GetStyleAt(12, 1), 2);
    for (const int size : {4711, 0}) {
        m_options.numbers[option::ColorMaxSize] = size;
        m_control.InitializeLanguage(kSql, 1);
        EXPECT_EQ(m_control.GetPropertyInt(u"colorMaxSize", 1), size);
        EXPECT_EQ(picture(), coloured);
        EXPECT_EQ(m_control.GetStyleAt(12, 1), 2);
    }
}

TEST_F(ControlEx, StaysAsItIsForALanguageWithoutItsFile)
{
    m_control.InitializeLanguage(kSql, 1);
    const int lexer = m_control.GetLexer(1);
    const int width = m_control.GetTabWidth(1);
    zncoreeditor::GetFileTypeManager()->SetCoreEditorProperties(9999, &m_control);
    EXPECT_EQ(m_control.GetLexer(1), lexer);
    EXPECT_EQ(m_control.GetTabWidth(1), width);
    EXPECT_EQ(zncoreeditor::GetFileTypeManager()->GetCurrentLanguageNumber(), 9999);
}

// ----- What the options say

TEST_F(ControlEx, ReadsColoursAsThreeNumbers)
{
    const std::pair<const char*, COLORREF> kColours[] = {
        {"10,20,30", 0x001E140A},
        {"300,0,0", 0x0000002C},
        {"255,255,255", 0xFFFFFF},
        {"1,2", 0x0201},
        {"7", 7},
        {"", 0},
        {",,9", 0x090000},
        {"1,2,3,4", 0x030201},
        {" 5 ,x,-1", 0xFF0005},
    };
    for (const auto& [text, colour] : kColours)
        EXPECT_EQ(m_control.COLORREFFromString(QLatin1String(text)), colour) << text;
}

TEST_F(ControlEx, TakesFourColumnsForATabWidthOfZero)
{
    m_options.numbers[option::TabWidth] = 0;
    m_control.SetEditorOptions();
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    for (int i = 0; i < languages.GetLanguageCount(); ++i) {
        EXPECT_EQ(languages.GetSyntaxFile(i)->GetTabWidth(), 4) << i;
        EXPECT_EQ(languages.GetSyntaxFile(i)->GetIndentSize(), 4) << i;
    }
    EXPECT_EQ(m_control.GetTabWidth(1), 4);
    EXPECT_EQ(m_control.GetIndent(1), 4);
}

TEST_F(ControlEx, LeavesTheSizesForAFontSizeOfZero)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    m_control.UpdateXmlSettingsFromOptionServerData(QStringLiteral("A"), 17, false, false, false);
    m_control.UpdateXmlSettingsFromOptionServerData(QStringLiteral("B"), 0, true, true, true);
    for (int i = 0; i < languages.GetLanguageCount(); ++i) {
        CSyntaxFile& syntax = *languages.GetSyntaxFile(i);
        for (int style = 0; style <= 127; ++style) {
            ASSERT_EQ(syntax.GetStyleFontName(style), QStringLiteral("B")) << i << ' ' << style;
            ASSERT_EQ(syntax.GetStyleFontSize(style), 17) << i << ' ' << style;
            ASSERT_TRUE(syntax.GetStyleFontBold(style) && syntax.GetStyleFontItalic(style) &&
                        syntax.GetStyleFontUnderline(style))
                << i << ' ' << style;
        }
    }
}

TEST_F(ControlEx, TakesAFontForAnOptionWithoutOne)
{
    m_options.fonts.clear();
    m_control.SetEditorOptions();
    ASSERT_EQ(m_options.fonts.count(option::EditorFont), 1u);
    const LOGFONT& font = m_options.fonts[option::EditorFont];
    EXPECT_EQ(font.lfHeight, -15);
    EXPECT_EQ(std::u16string(font.lfFaceName), u"Tahoma");
    EXPECT_EQ(zncoreeditor::GetFileTypeManager()->GetSyntaxFile(kSql)->GetStyleFontName(5),
              QStringLiteral("Tahoma"));
}

TEST_F(ControlEx, TakesCourierForAFontWithoutAName)
{
    m_control.UpdateXmlSettingsFromOptionServerData(QString(), 10, false, false, false);
    EXPECT_EQ(zncoreeditor::GetFileTypeManager()->GetSyntaxFile(kSql)->GetStyleFontName(0),
              QStringLiteral("Courier New"));
}

TEST_F(ControlEx, TakesOnlyTheBoldWeightForBold)
{
    CSyntaxFile& syntax = *zncoreeditor::GetFileTypeManager()->GetSyntaxFile(kSql);
    LOGFONT font;
    font.lfHeight = -20;
    for (const auto& [weight, bold] : {std::pair{700, true}, {400, false}, {800, false}}) {
        font.lfWeight = weight;
        m_control.SetLogFont(&font);
        EXPECT_EQ(syntax.GetStyleFontBold(1), bold) << weight;
    }
    EXPECT_EQ(syntax.GetStyleFontSize(1), MulDiv(20, 72, ScreenPixelsPerInch()));
}

TEST_F(ControlEx, LeavesEverythingForNoFont)
{
    CSyntaxFile& syntax = *zncoreeditor::GetFileTypeManager()->GetSyntaxFile(kSql);
    const QString before = syntax.GetStyleFontName(1);
    m_control.SetLogFont(nullptr);
    EXPECT_EQ(syntax.GetStyleFontName(1), before);
}

TEST_F(ControlEx, HasThePaperOfTheLastLanguage)
{
    m_options.texts[option::BackgroundColor] = QStringLiteral("1,2,3");
    m_control.SetEditorOptions();
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    CSyntaxFile& last = *languages.GetSyntaxFile(languages.GetLanguageCount() - 1);
    EXPECT_EQ(m_control.GetBackgroundColor(),
              static_cast<COLORREF>(last.GetStyleColorBackground(32)));
    EXPECT_NE(m_control.GetBackgroundColor(), 0x030201u);
}

TEST_F(ControlEx, FollowsTheOptionsWhenItIsTold)
{
    m_control.InitializeLanguage(kSql, 1);
    m_options.numbers = {{option::TabWidth, 3},    {option::TabsToSpaces, 1},
                         {option::LineNumbers, 0}, {option::FoldMargin, 1},
                         {option::AutoIndent, 2},  {option::WordWrap, 1},
                         {option::FileTracking, 2}};
    EXPECT_EQ(SendMessage(m_control.GetSafeHwnd(), 0x8404, 0, 0), 0);
    EXPECT_EQ(m_control.GetTabWidth(1), 3);
    EXPECT_EQ(m_control.GetUseTabs(1), 0);
    EXPECT_FALSE(m_control.IsVisibleLineNumber());
    EXPECT_EQ(m_control.GetMarginWidthN(1, 1), 0);
    EXPECT_EQ(m_control.GetMarginWidthN(3, 1), 16);
    EXPECT_EQ(m_control.GetAutoIndent(), 2);
    EXPECT_EQ(m_control.GetWrapMode(1), 1);
    EXPECT_EQ(zncoreeditor::GetConfigFile()->GetFileTracking(), 2);
    EXPECT_EQ(m_control.GetCurrentLanguage(), kSql);
}

// ----- The window

TEST_F(ControlEx, BeginsInTheEncodingOfTheOptions)
{
    const std::pair<int, std::pair<int, bool>> kTypes[] = {
        {0, {0, false}}, {1, {2, true}}, {2, {2, false}}, {5, {6, true}}, {6, {6, false}}};
    for (const auto& [type, expected] : kTypes) {
        m_options.numbers[option::DefaultTextType] = type;
        OpenControlEx subclassed;
        Subclass(subclassed);
        EXPECT_EQ(subclassed.GetEncoding(), expected.first) << type;
        EXPECT_EQ(subclassed.GetWriteEncodingSig(), expected.second) << type;
        OpenControlEx created;
        ASSERT_TRUE(created.Create(WS_CHILD, RECT{0, 0, 10, 10}, nullptr, 1, nullptr));
        EXPECT_EQ(created.GetEncoding(), expected.first) << type;
        EXPECT_EQ(created.GetWriteEncodingSig(), expected.second) << type;
    }
}

TEST_F(ControlEx, HasKeysOfItsOwnOnlyWhereItTookOverAWindow)
{
    OpenControlEx created;
    ASSERT_TRUE(created.Create(WS_CHILD, RECT{0, 0, 10, 10}, nullptr, 1, nullptr));
    MSG key{nullptr, WM_KEYDOWN, Qt::Key_A, static_cast<LPARAM>(Qt::ControlModifier)};
    SetText(QStringLiteral("text"));
    created.SetWindowTextW(QStringLiteral("text"));
    EXPECT_EQ(created.PreTranslateMessage(&key), 0);
    EXPECT_FALSE(created.IsSelection());
    EXPECT_EQ(m_control.PreTranslateMessage(&key), 1);
    EXPECT_EQ(m_control.GetWindowTextW(), QStringLiteral("text"));
    EXPECT_EQ(m_control.GetSelectionEnd(1), 4);
}

TEST_F(ControlEx, TakesItsKeysFromTheWindow)
{
    m_parent.show();
    SetText(QStringLiteral("ab"));
    QTest::keyClick(m_control.GetSafeHwnd(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(m_control.GetSafeHwnd(), Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_control.GetText(), QStringLiteral("AB"));
    QTest::keyClick(m_control.GetSafeHwnd(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_control.GetText(), QStringLiteral("ab"));
}

TEST_F(ControlEx, UsesUpAKeyWhoseCommandItDoesNotKnow)
{
    MSG key{nullptr, WM_KEYDOWN, Qt::Key_F4, static_cast<LPARAM>(Qt::ControlModifier)};
    EXPECT_EQ(m_control.PreTranslateMessage(&key), 1);
    key.wParam = Qt::Key_Q;
    EXPECT_EQ(m_control.PreTranslateMessage(&key), 0);
}

TEST_F(ControlEx, TakesANotificationOfItsOwnEngineOnly)
{
    SCNotification record;
    record.nmhdr.code = notify::Zoom;
    record.nmhdr.hwndFrom = m_control.GetSafeHwnd();
    LRESULT result = 0;
    EXPECT_EQ(m_control.OnNotify(0, reinterpret_cast<LPARAM>(&record), &result), 1);
    record.nmhdr.hwndFrom = &m_parent;
    EXPECT_EQ(m_control.OnNotify(0, reinterpret_cast<LPARAM>(&record), &result), 0);
}

// The list of completions while the user looks elsewhere.
class CompletionList : public ControlEx
{
protected:
    bool StaysFor(HWND focus)
    {
        m_parent.show();
        SetText(QStringLiteral("a"));
        m_control.GotoPos(1, 1);
        m_control.Call(2117, 1, reinterpret_cast<LPARAM>(u"alpha beta"), 1); // a user list
        EXPECT_EQ(m_control.AutoCActive(1), 1);
        SendMessage(m_control.GetSafeHwnd(), WM_KILLFOCUS, reinterpret_cast<WPARAM>(focus), 0);
        const bool active = m_control.AutoCActive(1) != 0;
        m_control.AutoCCancel(1);
        return active;
    }
};

TEST_F(CompletionList, GoesWhenTheFocusGoesElsewhere)
{
    QLineEdit other;
    EXPECT_FALSE(StaysFor(nullptr));
    EXPECT_FALSE(StaysFor(&other));
}

TEST_F(CompletionList, StaysWhileTheFocusIsNear)
{
    QWidget child(m_control.GetSafeHwnd());
    EXPECT_TRUE(StaysFor(m_control.GetSafeHwnd()));
    EXPECT_TRUE(StaysFor(&child));
    EXPECT_TRUE(StaysFor(&m_parent));
}

class DialogsForFinding final : public IFindDialogs
{
public:
    DialogsForFinding() { SetFindDialogs(this); }
    ~DialogsForFinding() override { SetFindDialogs(nullptr); }

    void Serve(CZNCoreEditorControlEx& control) override { served.push_back(&control); }
    void Forget(CZNCoreEditorControlEx& control) override { forgotten.push_back(&control); }
    bool ShowFind(CZNCoreEditorControlEx&, const QString&, bool) override { return false; }
    bool ShowReplace(CZNCoreEditorControlEx&, const QString&, bool) override { return false; }

    std::vector<CZNCoreEditorControlEx*> served;
    std::vector<CZNCoreEditorControlEx*> forgotten;
};

TEST_F(ControlEx, TurnsTheFindDialogsToItselfWhileItIsVisible)
{
    DialogsForFinding dialogs;
    m_control.SetFocus();
    EXPECT_TRUE(dialogs.served.empty());
    m_parent.show();
    m_control.SetFocus();
    EXPECT_THAT(dialogs.served, testing::ElementsAre(&m_control));
}

TEST_F(ControlEx, IsForgottenByTheFindDialogsWhenItsWindowGoes)
{
    DialogsForFinding dialogs;
    m_control.DestroyWindow();
    EXPECT_THAT(dialogs.forgotten, testing::ElementsAre(&m_control));
    EXPECT_TRUE(dialogs.served.empty());
}

TEST_F(ControlEx, FillsItsBackground)
{
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    CDC dc(painter);
    m_control.OnFillBackground(&dc);
    const COLORREF colour = m_control.GetBackgroundColor();
    const QRgb expected = qRgb(int(colour & 0xFF), int(colour >> 8 & 0xFF), int(colour >> 16));
    EXPECT_EQ(image.pixel(0, 0), expected);
    EXPECT_EQ(image.pixel(m_control.GetSafeHwnd()->width() - 1, 0), expected);
}

// ----- Line numbers

TEST_F(ControlEx, MakesRoomForTheDigitsOfTheLastLine)
{
    const auto roomFor = [this](int lines) {
        SetText(QString(lines - 1, u'\n'));
        m_control.SetVisibleLineNumber(true);
        return (m_control.GetMarginWidthN(1, 1) - 4) / m_control.TextWidth(33, u"9", 1);
    };
    EXPECT_EQ(roomFor(3), 4);
    EXPECT_EQ(roomFor(9999), 4);
    EXPECT_EQ(roomFor(10000), 5);
    EXPECT_EQ(roomFor(99999), 5);
    EXPECT_EQ(roomFor(100000), 6);
}

TEST_F(ControlEx, HidesTheLineNumbers)
{
    m_control.SetVisibleLineNumber(false);
    EXPECT_EQ(m_control.GetMarginWidthN(1, 1), 0);
    EXPECT_FALSE(m_control.IsVisibleLineNumber());
}

TEST_F(ControlEx, SizesTheExtendedMarginForEightDigits)
{
    m_control.SetExtendedMargin(true);
    EXPECT_EQ(m_control.GetMarginWidthN(0, 1), m_control.TextWidth(33, u"9", 1) * 8 + 4);
    m_control.SetExtendedMargin(false);
    EXPECT_EQ(m_control.GetMarginWidthN(0, 1), 0);
}

// ----- Text

TEST_F(ControlEx, GivesItsTextWhole)
{
    EXPECT_EQ(m_control.GetText(), QString());
    const QString text = QStringLiteral("a\u00e9\U0001F600\r\n");
    SetText(text);
    EXPECT_EQ(m_control.GetText(), text);
}

TEST_F(ControlEx, GivesTheSelectedTextWhereThereIsOne)
{
    SetText(QStringLiteral("one two"));
    EXPECT_EQ(m_control.GetWindowTextW(), QStringLiteral("one two"));
    m_control.SetSel(4, 7, 1);
    EXPECT_EQ(m_control.GetWindowTextW(), QStringLiteral("two"));
}

TEST_F(ControlEx, TakesItsTextFromAMessage)
{
    EXPECT_EQ(
        SendMessage(m_control.GetSafeHwnd(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(u"sent")), 0);
    EXPECT_EQ(m_control.GetText(), QStringLiteral("sent"));
}

TEST_F(ControlEx, ExchangesItsTextWithADialogsValue)
{
    QString value = QStringLiteral("into");
    CDataExchange exchange;
    ZNDDX_Text(&exchange, m_control, value);
    EXPECT_EQ(m_control.GetText(), QStringLiteral("into"));
    SetText(QStringLiteral("out of"));
    exchange.m_bSaveAndValidate = true;
    ZNDDX_Text(&exchange, m_control, value);
    EXPECT_EQ(value, QStringLiteral("out of"));
    CZNCoreEditorControlEx without;
    ZNDDX_Text(&exchange, without, value);
    EXPECT_EQ(value, QStringLiteral("out of"));
}

// ----- Files

TEST_F(ControlEx, SavesNothingAsAnEmptyFile)
{
    SetText(QStringLiteral("text"));
    EXPECT_TRUE(m_control.SaveSelection(Path("nothing").c_str()));
    EXPECT_EQ(Read("nothing"), QByteArray());
}

TEST_F(ControlEx, SavesTheSelectionInTheSystemsCodePage)
{
    SetText(QStringLiteral("x\u20ac\u00e9\u0436y"));
    m_control.SetSel(1, 4, 1);
    EXPECT_TRUE(m_control.SaveSelection(Path("some").c_str()));
    EXPECT_EQ(Read("some"), QByteArray("\x80\xe9?"));
}

TEST_F(ControlEx, SavesALongSelectionInPieces)
{
    QString text = QString(102399, u'a') + QStringLiteral("\U0001F600") + QString(102401, u'b');
    SetText(text);
    m_control.SelectAll(1);
    EXPECT_TRUE(m_control.SaveSelection(Path("long").c_str()));
    EXPECT_EQ(Read("long"), QByteArray(102399, 'a') + "??" + QByteArray(102401, 'b'));
}

TEST_F(ControlEx, TellsThatASelectionCannotBeSaved)
{
    SetText(QStringLiteral("text"));
    m_control.SelectAll(1);
    EXPECT_FALSE(m_control.SaveSelection(Path("no/such/folder").c_str()));
}

TEST_F(ControlEx, ReloadsAndGoesBackToItsLine)
{
    m_files.Write(QStringLiteral("a.txt"), QStringLiteral("1\n2\n3\n4\n"));
    ASSERT_TRUE(m_control.OpenFile(Path("a.txt").c_str(), FileEncodeConverter::encUnknown));
    m_control.GotoLine(2, 1);
    m_files.Write(QStringLiteral("a.txt"), QStringLiteral("one\ntwo\nthree\nfour\n"));
    EXPECT_TRUE(m_control.ReloadFile(Path("a.txt").c_str()));
    EXPECT_EQ(m_control.LineFromPosition(m_control.GetCurrentPos(1), 1), 2);
    m_files.Write(QStringLiteral("a.txt"), QStringLiteral("end"));
    EXPECT_TRUE(m_control.ReloadFile(Path("a.txt").c_str()));
    EXPECT_EQ(m_control.GetCurrentPos(1), 3);
    EXPECT_FALSE(m_control.ReloadFile(Path("missing").c_str()));
}

TEST_F(ControlEx, SetsTheSavePointOnlyWhenItIsAsked)
{
    SetText(QStringLiteral("text"));
    m_control.ReplaceSel(u"more ", 1);
    EXPECT_TRUE(m_control.SaveFile(Path("a.txt").c_str(), false));
    EXPECT_EQ(m_control.GetModify(1), 1);
    EXPECT_TRUE(m_control.SaveFile(Path("a.txt").c_str(), true));
    EXPECT_EQ(m_control.GetModify(1), 0);
}

TEST_F(ControlEx, KeepsTheSelectionOverASave)
{
    SetText(QStringLiteral("one\ntwo\nthree\n"));
    m_control.SetSel(5, 10, 1);
    EXPECT_TRUE(m_control.SaveFile(Path("a.txt").c_str(), true));
    EXPECT_EQ(m_control.GetSelectionStart(1), 5);
    EXPECT_EQ(m_control.GetSelectionEnd(1), 10);
}

TEST_F(ControlEx, PullsTheSelectionsEndBackToItsLineThatASaveHasTrimmed)
{
    SetText(QStringLiteral("one   \ntwo   \nthree"));
    m_control.SetSel(2, 12, 1); // the blanks behind "two" are inside
    m_control.SetSaveTrimTrailingSpaces(true);
    EXPECT_TRUE(m_control.SaveFile(Path("a.txt").c_str(), true));
    EXPECT_EQ(Read("a.txt"), QByteArray("one\ntwo\nthree"));
    EXPECT_EQ(m_control.GetSelectionStart(1), 2);
    EXPECT_EQ(m_control.GetSelectionEnd(1), 7);
    EXPECT_EQ(m_control.GetModify(1), 0);
    m_control.Undo(1);
    EXPECT_EQ(m_control.GetText(), QStringLiteral("one   \ntwo   \nthree"));
}

TEST_F(ControlEx, CleansUpInItsOrderBeforeASave)
{
    SetText(QStringLiteral("a\t\nb"));
    m_control.SetTabWidth(4, 1);
    m_control.SetSaveConvertTabToSpaces(true);
    m_control.SetSaveTrimTrailingSpaces(true);
    m_control.SetEnsureFinalNewLine(true);
    EXPECT_TRUE(m_control.SaveFile(Path("a.txt").c_str(), true));
    EXPECT_EQ(Read("a.txt"), QByteArray("a\nb\n"));
}

TEST_F(ControlEx, DoesNothingForABraceWhileIndentationIsKeptOnly)
{
    for (const int mode : {1, 2}) {
        SetText(QStringLiteral("    if\n"));
        m_control.GotoPos(7, 1);
        m_control.SetAutoIndent(mode);
        m_control.SetUseTabs(0, 1);
        m_control.AddText(1, u"{", 1);
        SCNotification typed;
        typed.nmhdr.code = notify::CharAdded;
        typed.nmhdr.hwndFrom = m_control.GetSafeHwnd();
        typed.ch = '{';
        m_control.HandleNotify(reinterpret_cast<LPARAM>(&typed));
        EXPECT_EQ(m_control.GetText(),
                  mode == 1 ? QStringLiteral("    if\n{") : QStringLiteral("    if\n    {"));
    }
}

} // namespace
