// SPDX-License-Identifier: GPL-3.0-or-later
// Languages made for a test: settings files in a folder of their own, and a registry over them.
#pragma once

#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// One language whose every setting differs from its neighbours', so that a mix-up shows.
class LanguageFiles
{
public:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    void Write(const QString& name, const QString& text) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toLatin1());
    }

    // A style with a colour of its own: background 0x000100 * number + number.
    static QString Style(int number)
    {
        return QStringLiteral("<Style number=\"%1\"><Name>s%1</Name><Font><Name>F%1</Name>"
                              "<Size>%2</Size><Bold>1</Bold><Italic>0</Italic>"
                              "<Underline>1</Underline></Font><Color>"
                              "<Foreground>%3</Foreground><Background>FFFF%4</Background>"
                              "</Color></Style>\n")
            .arg(number)
            .arg(number + 5)
            .arg(number, 6, 16, QChar(u'0'))
            .arg(number, 2, 16, QChar(u'0'));
    }

    void WriteSyntax(const QString& name, bool highlight, const QString& styles,
                     const QString& more = QString()) const
    {
        Write(
            name,
            QStringLiteral(
                "<Syntax>\n<Lexer><Name>ZNEDITLEX_MSSQL</Name><Property name=\"fold\">1</Property>"
                "</Lexer>\n<Keywords set=\"0\"><Word>select</Word><Word>from</Word></Keywords>\n"
                "<Keywords set=\"3\"><Word>int</Word></Keywords>\n"
                "<View><WhiteSpace>1</WhiteSpace><EOL>1</EOL><WordWrap>1</WordWrap>"
                "<TabWidth>7</TabWidth><TabsToSpaces>1</TabsToSpaces></View>\n"
                "<CodeHighlight><SyntaxHighlighting>%1</SyntaxHighlighting></CodeHighlight>\n"
                "<OnSave><EnsureFinalNewLine>1</EnsureFinalNewLine>"
                "<ConvertTabsToSpaces>0</ConvertTabsToSpaces>"
                "<TrimTrailingSpaces>1</TrimTrailingSpaces></OnSave>\n"
                "<Indent><Indent>1</Indent><IndentSize>3</IndentSize><AutoIndent>2</AutoIndent>"
                "<IndentGuides>0</IndentGuides></Indent>\n"
                "<Margins><LineNumbers>1</LineNumbers><BookMark>1</BookMark><Fold>0</Fold>"
                "</Margins>\n"
                "<LanguageDefines><Braces><![CDATA[()]]></Braces>"
                "<WordCharacters>abc</WordCharacters>"
                "<SingleLineComment><![CDATA[--]]></SingleLineComment>"
                "<BlockComment><![CDATA[/*|*/]]></BlockComment></LanguageDefines>\n%2"
                "<StyleInformation><StyleBits>7</StyleBits><StyleMax>127</StyleMax>\n%3"
                "</StyleInformation>\n</Syntax>\n")
                .arg(highlight ? 1 : 0)
                .arg(more, styles));
    }

    void WriteConfig(const QString& name) const
    {
        Write(name, QStringLiteral("<ZNCoreEditor><Editor><CaretColor>99</CaretColor>"
                                   "<SelectionForeColor use=\"0\">17</SelectionForeColor>"
                                   "<SelectionBackColor use=\"1\">18</SelectionBackColor>"
                                   "<HighlightCurrentLine>1</HighlightCurrentLine>"
                                   "<HighlightCurrentLineColor>19</HighlightCurrentLineColor>"
                                   "<RightEdge>1</RightEdge><RightEdgeColumn>80</RightEdgeColumn>"
                                   "<RightEdgeColor>20</RightEdgeColor></Editor>\n"
                                   "<Languages count=\"0\"></Languages></ZNCoreEditor>\n"));
    }

    void Open(CSyntaxFile& syntax, const QString& name) const
    {
        syntax.SetFilename(Path(name));
        syntax.SetCustomFilename(Path(QStringLiteral("none.xml")));
    }

private:
    QTemporaryDir m_folder;
};
