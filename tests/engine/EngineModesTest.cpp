// SPDX-License-Identifier: GPL-3.0-or-later
// The names of modes, held to the numbers of the engine that answers to them.
#include "control/EngineModes.h"

#include "engine/colours/Lexers.h"

#include <Qsci/qsciscintillabase.h>

#include <gtest/gtest.h>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

struct Named
{
    const char* name;
    int number;
    int stock;
};

#define ZN_MODE(mode, stock)                                                                       \
    {                                                                                              \
#mode, static_cast < int>(mode), static_cast < int>(Sci::stock)                            \
    }

// clang-format off
constexpr Named kModes[] = {
    ZN_MODE(whitespace::Hidden, SCWS_INVISIBLE),
    ZN_MODE(whitespace::Always, SCWS_VISIBLEALWAYS),
    ZN_MODE(whitespace::BehindIndent, SCWS_VISIBLEAFTERINDENT),
    ZN_MODE(whitespace::OnlyInIndent, SCWS_VISIBLEONLYININDENT),
    ZN_MODE(guides::None, SC_IV_NONE),
    ZN_MODE(guides::Real, SC_IV_REAL),
    ZN_MODE(guides::LookForward, SC_IV_LOOKFORWARD),
    ZN_MODE(guides::LookBoth, SC_IV_LOOKBOTH),
    ZN_MODE(edge::None, EDGE_NONE),
    ZN_MODE(edge::Line, EDGE_LINE),
    ZN_MODE(edge::Background, EDGE_BACKGROUND),
    ZN_MODE(cursor::Normal, SC_CURSORNORMAL),
    ZN_MODE(cursor::Arrow, SC_CURSORARROW),
    ZN_MODE(cursor::Wait, SC_CURSORWAIT),
    ZN_MODE(cursor::ReverseArrow, SC_CURSORREVERSEARROW),
    ZN_MODE(letters::AsTheyAre, SC_CASE_MIXED),
    ZN_MODE(letters::Upper, SC_CASE_UPPER),
    ZN_MODE(letters::Lower, SC_CASE_LOWER),
    ZN_MODE(letters::Capitalised, SC_CASE_CAMEL),
    ZN_MODE(caretcolumn::Moves, SC_CARETSTICKY_OFF),
    ZN_MODE(caretcolumn::Stays, SC_CARETSTICKY_ON),
    ZN_MODE(caretcolumn::StaysBehindBlanks, SC_CARETSTICKY_WHITESPACE),
    ZN_MODE(wrap::None, SC_WRAP_NONE),
    ZN_MODE(wrap::Word, SC_WRAP_WORD),
    ZN_MODE(wrap::Character, SC_WRAP_CHAR),
    ZN_MODE(wrap::Blank, SC_WRAP_WHITESPACE),
    ZN_MODE(wrapsign::None, SC_WRAPVISUALFLAG_NONE),
    ZN_MODE(wrapsign::End, SC_WRAPVISUALFLAG_END),
    ZN_MODE(wrapsign::Start, SC_WRAPVISUALFLAG_START),
    ZN_MODE(wrapsign::Margin, SC_WRAPVISUALFLAG_MARGIN),
    ZN_MODE(wrapsignplace::Border, SC_WRAPVISUALFLAGLOC_DEFAULT),
    ZN_MODE(wrapsignplace::EndByText, SC_WRAPVISUALFLAGLOC_END_BY_TEXT),
    ZN_MODE(wrapsignplace::StartByText, SC_WRAPVISUALFLAGLOC_START_BY_TEXT),
    ZN_MODE(layout::Nothing, SC_CACHE_NONE),
    ZN_MODE(layout::CaretLine, SC_CACHE_CARET),
    ZN_MODE(layout::Page, SC_CACHE_PAGE),
    ZN_MODE(layout::WholeDocument, SC_CACHE_DOCUMENT),
    ZN_MODE(caretpolicy::Slop, CARET_SLOP),
    ZN_MODE(caretpolicy::Strict, CARET_STRICT),
    ZN_MODE(caretpolicy::Even, CARET_EVEN),
    ZN_MODE(caretpolicy::Jumps, CARET_JUMPS),
    ZN_MODE(visiblepolicy::Slop, VISIBLE_SLOP),
    ZN_MODE(visiblepolicy::Strict, VISIBLE_STRICT),
    ZN_MODE(selection::Stream, SC_SEL_STREAM),
    ZN_MODE(selection::Rectangle, SC_SEL_RECTANGLE),
    ZN_MODE(selection::Lines, SC_SEL_LINES),
    ZN_MODE(selection::Thin, SC_SEL_THIN),
    ZN_MODE(printcolours::AsOnScreen, SC_PRINT_NORMAL),
    ZN_MODE(printcolours::InvertLight, SC_PRINT_INVERTLIGHT),
    ZN_MODE(printcolours::BlackOnWhite, SC_PRINT_BLACKONWHITE),
    ZN_MODE(printcolours::ColoursOnWhite, SC_PRINT_COLOURONWHITE),
    ZN_MODE(printcolours::ColoursOnTheirGround, SC_PRINT_COLOURONWHITEDEFAULTBG),
    ZN_MODE(printcolours::AllAsOnScreen, SC_PRINT_SCREENCOLOURS),
    ZN_MODE(find::WholeWord, SCFIND_WHOLEWORD),
    ZN_MODE(find::MatchCase, SCFIND_MATCHCASE),
    ZN_MODE(find::WordStart, SCFIND_WORDSTART),
    ZN_MODE(find::Expression, SCFIND_REGEXP),
    ZN_MODE(find::Posix, SCFIND_POSIX),
    ZN_MODE(find::Perl, SCFIND_CXX11REGEX),
    ZN_MODE(marker::Circle, SC_MARK_CIRCLE),
    ZN_MODE(marker::RoundRectangle, SC_MARK_ROUNDRECT),
    ZN_MODE(marker::Arrow, SC_MARK_ARROW),
    ZN_MODE(marker::SmallRectangle, SC_MARK_SMALLRECT),
    ZN_MODE(marker::ShortArrow, SC_MARK_SHORTARROW),
    ZN_MODE(marker::Empty, SC_MARK_EMPTY),
    ZN_MODE(marker::ArrowDown, SC_MARK_ARROWDOWN),
    ZN_MODE(marker::Minus, SC_MARK_MINUS),
    ZN_MODE(marker::Plus, SC_MARK_PLUS),
    ZN_MODE(marker::VerticalLine, SC_MARK_VLINE),
    ZN_MODE(marker::Corner, SC_MARK_LCORNER),
    ZN_MODE(marker::Tee, SC_MARK_TCORNER),
    ZN_MODE(marker::BoxPlus, SC_MARK_BOXPLUS),
    ZN_MODE(marker::BoxPlusConnected, SC_MARK_BOXPLUSCONNECTED),
    ZN_MODE(marker::BoxMinus, SC_MARK_BOXMINUS),
    ZN_MODE(marker::BoxMinusConnected, SC_MARK_BOXMINUSCONNECTED),
    ZN_MODE(marker::RoundCorner, SC_MARK_LCORNERCURVE),
    ZN_MODE(marker::RoundTee, SC_MARK_TCORNERCURVE),
    ZN_MODE(marker::CirclePlus, SC_MARK_CIRCLEPLUS),
    ZN_MODE(marker::CirclePlusConnected, SC_MARK_CIRCLEPLUSCONNECTED),
    ZN_MODE(marker::CircleMinus, SC_MARK_CIRCLEMINUS),
    ZN_MODE(marker::CircleMinusConnected, SC_MARK_CIRCLEMINUSCONNECTED),
    ZN_MODE(marker::Background, SC_MARK_BACKGROUND),
    ZN_MODE(marker::Dots, SC_MARK_DOTDOTDOT),
    ZN_MODE(marker::Arrows, SC_MARK_ARROWS),
    ZN_MODE(marker::Pixmap, SC_MARK_PIXMAP),
    ZN_MODE(marker::FullRectangle, SC_MARK_FULLRECT),
    ZN_MODE(marker::LeftRectangle, SC_MARK_LEFTRECT),
    ZN_MODE(marker::Available, SC_MARK_AVAILABLE),
    ZN_MODE(marker::Underline, SC_MARK_UNDERLINE),
    ZN_MODE(marker::Bookmark, SC_MARK_BOOKMARK),
    ZN_MODE(marker::Character, SC_MARK_CHARACTER),
    ZN_MODE(foldmarker::HeaderClosedInside, SC_MARKNUM_FOLDEREND),
    ZN_MODE(foldmarker::HeaderOpenInside, SC_MARKNUM_FOLDEROPENMID),
    ZN_MODE(foldmarker::EndInside, SC_MARKNUM_FOLDERMIDTAIL),
    ZN_MODE(foldmarker::End, SC_MARKNUM_FOLDERTAIL),
    ZN_MODE(foldmarker::Inside, SC_MARKNUM_FOLDERSUB),
    ZN_MODE(foldmarker::HeaderClosed, SC_MARKNUM_FOLDER),
    ZN_MODE(foldmarker::HeaderOpen, SC_MARKNUM_FOLDEROPEN),
    ZN_MODE(margin::Symbols, SC_MARGIN_SYMBOL),
    ZN_MODE(margin::Numbers, SC_MARGIN_NUMBER),
    ZN_MODE(margin::SymbolsOnGround, SC_MARGIN_BACK),
    ZN_MODE(margin::SymbolsOnText, SC_MARGIN_FORE),
    ZN_MODE(margin::Text, SC_MARGIN_TEXT),
    ZN_MODE(margin::RightText, SC_MARGIN_RTEXT),
    ZN_MODE(style::Default, STYLE_DEFAULT),
    ZN_MODE(style::LineNumber, STYLE_LINENUMBER),
    ZN_MODE(style::BraceLight, STYLE_BRACELIGHT),
    ZN_MODE(style::BraceBad, STYLE_BRACEBAD),
    ZN_MODE(style::ControlChar, STYLE_CONTROLCHAR),
    ZN_MODE(style::IndentGuide, STYLE_INDENTGUIDE),
    ZN_MODE(style::CallTip, STYLE_CALLTIP),
    ZN_MODE(indicator::Plain, INDIC_PLAIN),
    ZN_MODE(indicator::Squiggle, INDIC_SQUIGGLE),
    ZN_MODE(indicator::Teeth, INDIC_TT),
    ZN_MODE(indicator::Diagonal, INDIC_DIAGONAL),
    ZN_MODE(indicator::Strike, INDIC_STRIKE),
    ZN_MODE(indicator::Hidden, INDIC_HIDDEN),
    ZN_MODE(indicator::Box, INDIC_BOX),
    ZN_MODE(indicator::RoundBox, INDIC_ROUNDBOX),
    ZN_MODE(indicator::StraightBox, INDIC_STRAIGHTBOX),
    ZN_MODE(indicator::Dash, INDIC_DASH),
    ZN_MODE(indicator::Dots, INDIC_DOTS),
    ZN_MODE(indicator::LowSquiggle, INDIC_SQUIGGLELOW),
    ZN_MODE(indicator::DottedBox, INDIC_DOTBOX),
    ZN_MODE(indicator::SquiggleImage, INDIC_SQUIGGLEPIXMAP),
    ZN_MODE(indicator::ThickLine, INDIC_COMPOSITIONTHICK),
    ZN_MODE(indicator::ThinLine, INDIC_COMPOSITIONTHIN),
    ZN_MODE(indicator::FullBox, INDIC_FULLBOX),
    ZN_MODE(indicator::TextColour, INDIC_TEXTFORE),
    ZN_MODE(indicator::Point, INDIC_POINT),
    ZN_MODE(indicator::PointCharacter, INDIC_POINTCHARACTER),
    ZN_MODE(indicator::Gradient, INDIC_GRADIENT),
    ZN_MODE(indicator::GradientCentre, INDIC_GRADIENTCENTRE),
    ZN_MODE(foldline::AboveExpanded, SC_FOLDFLAG_LINEBEFORE_EXPANDED),
    ZN_MODE(foldline::AboveContracted, SC_FOLDFLAG_LINEBEFORE_CONTRACTED),
    ZN_MODE(foldline::BelowExpanded, SC_FOLDFLAG_LINEAFTER_EXPANDED),
    ZN_MODE(foldline::BelowContracted, SC_FOLDFLAG_LINEAFTER_CONTRACTED),
    ZN_MODE(foldline::LevelNumbers, SC_FOLDFLAG_LEVELNUMBERS),
    ZN_MODE(foldline::LineStates, SC_FOLDFLAG_LINESTATE),
    ZN_MODE(status::Ok, SC_STATUS_OK),
    ZN_MODE(status::Failure, SC_STATUS_FAILURE),
    ZN_MODE(status::OutOfMemory, SC_STATUS_BADALLOC),
    ZN_MODE(dwell::kNever, SC_TIME_FOREVER),
    ZN_MODE(key::Escape, SCK_ESCAPE),
    ZN_MODE(key::Backspace, SCK_BACK),
    ZN_MODE(key::Tab, SCK_TAB),
    ZN_MODE(key::Return, SCK_RETURN),
    ZN_MODE(key::Down, SCK_DOWN),
    ZN_MODE(key::Up, SCK_UP),
    ZN_MODE(key::Left, SCK_LEFT),
    ZN_MODE(key::Right, SCK_RIGHT),
    ZN_MODE(key::Home, SCK_HOME),
    ZN_MODE(key::End, SCK_END),
    ZN_MODE(key::PageUp, SCK_PRIOR),
    ZN_MODE(key::PageDown, SCK_NEXT),
    ZN_MODE(key::Delete, SCK_DELETE),
    ZN_MODE(key::Insert, SCK_INSERT),
    ZN_MODE(key::Add, SCK_ADD),
    ZN_MODE(key::Subtract, SCK_SUBTRACT),
    ZN_MODE(key::Divide, SCK_DIVIDE),
    ZN_MODE(key::Shift, SCMOD_SHIFT),
    ZN_MODE(key::Ctrl, SCMOD_CTRL),
    ZN_MODE(key::Alt, SCMOD_ALT),
    ZN_MODE(key::Meta, SCMOD_META),
    ZN_MODE(update::Content, SC_UPDATE_CONTENT),
    ZN_MODE(update::Selection, SC_UPDATE_SELECTION),
    ZN_MODE(update::Vertical, SC_UPDATE_V_SCROLL),
    ZN_MODE(update::Horizontal, SC_UPDATE_H_SCROLL),
};

struct NamedLexer
{
    lexer::Number number;
    int stock;
};

constexpr NamedLexer kLexers[] = {
    {lexer::Container, Sci::SCLEX_CONTAINER},
    {lexer::PlainText, Sci::SCLEX_NULL},
    {lexer::Cpp, Sci::SCLEX_CPP},
    {lexer::Html, Sci::SCLEX_HTML},
    {lexer::Xml, Sci::SCLEX_XML},
    {lexer::VisualBasic, Sci::SCLEX_VB},
    {lexer::VbScript, Sci::SCLEX_VBSCRIPT},
    {lexer::Batch, Sci::SCLEX_BATCH},
    {lexer::Diff, Sci::SCLEX_DIFF},
    {lexer::Properties, Sci::SCLEX_PROPERTIES},
    {lexer::Makefile, Sci::SCLEX_MAKEFILE},
    {lexer::ErrorList, Sci::SCLEX_ERRORLIST},
    {lexer::Latex, Sci::SCLEX_LATEX},
    {lexer::Asp, Sci::SCLEX_HTML},
    {lexer::Php, Sci::SCLEX_HTML},
    {lexer::Perl, Sci::SCLEX_PERL},
    {lexer::Css, Sci::SCLEX_CSS},
    {lexer::CppAnyCase, Sci::SCLEX_CPPNOCASE},
    {lexer::PhpScript, Sci::SCLEX_PHPSCRIPT},
};
// clang-format on

TEST(EngineModes, AreTheNumbersOfTheEngine)
{
    for (const Named& mode : kModes)
        EXPECT_EQ(mode.number, mode.stock) << mode.name;
}

TEST(EngineModes, NameTheLexersThatTheNumbersMean)
{
    for (const NamedLexer& lexer : kLexers)
        EXPECT_EQ(StockLexer(lexer.number), lexer.stock) << lexer.number;
    for (const lexer::Number sql :
         {lexer::Ase, lexer::TransactSql, lexer::Db2, lexer::Oracle, lexer::GenericSql,
          lexer::Db2ForZOs, lexer::MySql, lexer::InterBase, lexer::AzureSql, lexer::Iq})
        EXPECT_TRUE(IsSqlLexer(sql)) << sql;
}

TEST(EngineModes, PutAKeyAndItsModifiersIntoOneNumber)
{
    EXPECT_EQ(key::With(key::Home, key::Ctrl | key::Shift), 304 | 3 << 16);
}

} // namespace
} // namespace engine
