// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/SqlUnderTest.h"

#include "engine/window/EngineWindow.h"
#include "tests/reference/StyleLetters.h"

#include <QString>

#include <cstdio>

namespace msg = engine::message;

SqlUnderTest::SqlUnderTest(int lexer, const std::u16string& text) : m_lexer(lexer)
{
    Send(msg::SetLexer, static_cast<WPARAM>(lexer));
    if (!text.empty())
        SetText(text);
}

void SqlUnderTest::SetProperty(const char16_t* key, const char16_t* value) const
{
    Send(msg::SetProperty, reinterpret_cast<WPARAM>(key), value);
}

void SqlUnderTest::SetWords(int set, const char16_t* words) const
{
    Send(msg::SetKeyWords, static_cast<WPARAM>(set), words);
}

void SqlUnderTest::FoldAlso() const
{
    SetProperty(u"fold", u"1");
    SetProperty(u"fold.comment", u"1");
}

// The stock engine asks for all styles before it expands all folds.
void SqlUnderTest::StyleRest() const
{
    using Sci = QsciScintillaBase;
    static_cast<engine::EngineWindow*>(Window())->SendScintilla(Sci::SCI_FOLDALL,
                                                                Sci::SC_FOLDACTION_EXPAND);
}

int SqlUnderTest::StyleAt(long position) const
{
    return static_cast<int>(Send(msg::GetStyleAt, static_cast<WPARAM>(position)));
}

std::vector<int> SqlUnderTest::Styles() const
{
    std::vector<int> styles;
    const long length = Send(msg::GetLength);
    for (long i = 0; i < length; ++i)
        styles.push_back(StyleAt(i));
    return styles;
}

std::string SqlUnderTest::Letters() const
{
    const std::u16string text = Text();
    std::string letters;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool lineEnd = text[i] == u'\n' || text[i] == u'\r';
        letters += lineEnd ? static_cast<char>(text[i])
                           : reference::LetterOf(m_lexer, StyleAt(static_cast<long>(i)));
    }
    return letters;
}

std::vector<int> SqlUnderTest::Levels() const
{
    std::vector<int> levels;
    const long lines = Send(msg::GetLineCount);
    for (long i = 0; i < lines; ++i)
        levels.push_back(static_cast<int>(Send(msg::GetFoldLevel, static_cast<WPARAM>(i))));
    return levels;
}

std::string FoldsOf(int lexer, const std::string& picture, const char16_t* dialect)
{
    QStringList lines;
    for (const QString& line : QString::fromStdString(picture).split(u'\n'))
        lines += line.mid(line.indexOf(u'|') + 1);
    lines.removeLast();
    const SqlUnderTest sql(lexer, lines.join(u'\n').toStdU16String());
    sql.SetProperty(u"sql.dialect", dialect);
    sql.FoldAlso();
    sql.Style();
    return sql.Folds();
}

std::string SqlUnderTest::Folds() const
{
    std::string picture;
    const QStringList lines = QString::fromStdU16String(Text()).split(u'\n');
    const std::vector<int> levels = Levels();
    for (std::size_t i = 0; i < levels.size(); ++i) {
        char front[32];
        std::snprintf(front, sizeof front, "%d%c%c|", (levels[i] & 0xFFF) - 0x400,
                      levels[i] & 0x2000 ? 'H' : ' ', levels[i] & 0x1000 ? 'B' : ' ');
        picture += front + lines[static_cast<qsizetype>(i)].toStdString() + "\n";
    }
    return picture;
}
