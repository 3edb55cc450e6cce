#include "host/SqlColours.h"

#include "control/ZNCoreEditorControl.h"
#include "platform/Units.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <limits>

namespace {

constexpr int kSqlLexer = 9;
constexpr int kDefaultStyle = 32;
constexpr int kLineNumberStyle = 33;
constexpr int kNumberMargin = 0;
constexpr int kSymbolMargin = 1;
constexpr int kNumberMarginType = 1;
constexpr int kPoints = 11;

constexpr unsigned long Rgb(unsigned long red, unsigned long green, unsigned long blue)
{
    return red | green << 8 | blue << 16;
}

constexpr unsigned long kText = Rgb(0x1F, 0x24, 0x2B);
constexpr unsigned long kPaper = Rgb(0xFF, 0xFF, 0xFF);
constexpr unsigned long kMarginText = Rgb(0x6A, 0x73, 0x7D);
constexpr unsigned long kMarginPaper = Rgb(0xF4, 0xF5, 0xF7);
constexpr unsigned long kCurrentLine = Rgb(0xEE, 0xF4, 0xFC);
constexpr unsigned long kSelection = Rgb(0xBB, 0xD6, 0xFB);
constexpr unsigned long kComment = Rgb(0x4B, 0x7A, 0x47);
constexpr unsigned long kNumber = Rgb(0x9A, 0x4A, 0x00);
constexpr unsigned long kKeyword = Rgb(0x0B, 0x4F, 0xA8);
constexpr unsigned long kString = Rgb(0xA3, 0x1D, 0x2A);
constexpr unsigned long kName = Rgb(0x6B, 0x3A, 0x8C);
constexpr unsigned long kOperator = Rgb(0x4A, 0x52, 0x5C);

struct StyleRow
{
    int style;
    unsigned long colour;
    bool bold;
    bool italic;
};

// The styles of the SQL lexer.
// clang-format off
constexpr StyleRow kStyles[] = {
    {  0, kText,     false, false },
    {  1, kComment,  false, true  }, // block
    {  2, kComment,  false, true  }, // line
    {  3, kComment,  false, true  }, // documentation
    {  4, kNumber,   false, false },
    {  5, kKeyword,  true,  false },
    {  6, kName,     false, false }, // in double quotes: a quoted name
    {  7, kString,   false, false },
    { 10, kOperator, false, false },
    { 11, kText,     false, false },
};
// clang-format on

constexpr char16_t kKeywords[] =
    u"add after all alter always and ansi_nulls any as asc authorization avg before begin between "
    u"bigint bit "
    u"body boolean both break by byte call cascade case cast catch char character check close "
    u"clustered coalesce collate column comment commit constant constraint continue count create "
    u"cross current current_date current_time current_timestamp cursor date datetime datetime2 "
    u"deallocate decimal declare default delete deny desc describe distinct do double drop each "
    u"else elsif end errors escape except exception exec execute exists exit explain extract false "
    u"fetch first float for foreign from full function generated go goto grant group having "
    u"identity if immediate in index inner inout insert instead int integer intersect interval "
    u"into is join key language last leading left like limit local lock loop lower ltrim max merge "
    u"min money month natural next no nocount not nowait null nullif number numeric nvarchar "
    u"nvarchar2 nvl object of off offset on only open option or order out outer over package "
    u"partition pls_integer pragma precision primary print prior procedure public raise raiserror "
    u"quoted_identifier range real record ref references replace return returning returns revoke "
    u"right rollback "
    u"round row row_number rowcount rowlock rows rowtype rtrim savepoint schema search_path select "
    u"sequence session set show smallint some start subtype sum sysdate synonym table temporary "
    u"then throw time timestamp tinyint to top trailing tran transaction trigger trim true "
    u"truncate try type union unique uniqueidentifier update updlock upper use user using values "
    u"varchar varchar2 varying view when where while with without work xact_abort year zone";

QString FixedPitchFamily()
{
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // Without a desktop the system's fixed font may be none.
    return QFontInfo(font).fixedPitch() ? QFontInfo(font).family()
                                        : QStringLiteral("DejaVu Sans Mono");
}

void SetStyles(CZNCoreEditorControl& editor)
{
    const QString family = FixedPitchFamily();
    editor.StyleSetFont(kDefaultStyle, Units(family), 1);
    editor.StyleSetSize(kDefaultStyle, kPoints, 1);
    editor.StyleSetFore(kDefaultStyle, kText, 1);
    editor.StyleSetBack(kDefaultStyle, kPaper, 1);
    editor.StyleClearAll(1); // every style takes after the default
    for (const StyleRow& row : kStyles) {
        editor.StyleSetFore(row.style, row.colour, 1);
        editor.StyleSetBold(row.style, row.bold, 1);
        editor.StyleSetItalic(row.style, row.italic, 1);
    }
    editor.StyleSetFore(kLineNumberStyle, kMarginText, 1);
    editor.StyleSetBack(kLineNumberStyle, kMarginPaper, 1);
}

// In pixels, with room for the caret behind the line's end.
int WidthOfLine(CZNCoreEditorControl& editor, int line)
{
    constexpr long kRoomForTheCaret = 12;
    constexpr long kLayoutLimit = 10000; // laying out a longer line costs more than a paint may
    const long units = editor.LineLength(line, 1);
    if (units > kLayoutLimit) {
        const long unit = editor.TextWidth(0, u"n", 1);
        return int(std::min<long>(units * unit, std::numeric_limits<int>::max()));
    }
    const long start = editor.PositionFromLine(line, 1);
    const long end = editor.GetLineEndPosition(line, 1);
    return int(editor.PointXFromPosition(end, 1) - editor.PointXFromPosition(start, 1) +
               kRoomForTheCaret);
}

} // namespace

void DressForSql(CZNCoreEditorControl& editor)
{
    SetStyles(editor);
    editor.SetLexer(kSqlLexer, 1);
    editor.SetKeyWords(0, kKeywords, 1);

    editor.SetCaretLineVisible(1, 1);
    editor.SetCaretLineBack(kCurrentLine, 1);
    editor.SetCaretFore(kText, 1);
    editor.SetSelBack(1, kSelection, 1);
    editor.SetMarginTypeN(kNumberMargin, kNumberMarginType, 1);
    editor.SetMarginWidthN(kSymbolMargin, 0, 1);
    editor.SetMarginLeft(6, 1);
    editor.SetTabWidth(4, 1);
    editor.SetUseTabs(0, 1);
    editor.SetScrollWidth(1, 1);
    FitLineNumberMargin(editor);
}

void FitLineNumberMargin(CZNCoreEditorControl& editor)
{
    // Never below three digits, so that the text stays put while a short script grows.
    const int digits = std::max<int>(3, int(QString::number(editor.GetLineCount(1)).size()));
    const QString widest(digits + 2, u'9'); // a digit's room on either side
    const int width = int(editor.TextWidth(kLineNumberStyle, Units(widest), 1));
    if (editor.GetMarginWidthN(kNumberMargin, 1) != width)
        editor.SetMarginWidthN(kNumberMargin, width, 1);
}

void FitScrollWidth(CZNCoreEditorControl& editor, int firstLine, int lastLine)
{
    const int last = std::min(lastLine, editor.GetLineCount(1) - 1);
    const int before = editor.GetScrollWidth(1);
    int widest = before;
    for (int line = firstLine; line <= last; ++line)
        widest = std::max(widest, WidthOfLine(editor, line));
    if (widest > before)
        editor.SetScrollWidth(widest, 1);
}
