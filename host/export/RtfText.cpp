// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/export/RtfText.h"

#include "host/export/StyledText.h"

#include <QList>
#include <QString>

namespace {

constexpr std::size_t kPlain = 32; // the style that a text begins with

// The entries of a table of the head, each once.
class Table
{
public:
    qsizetype NumberOf(const QByteArray& entry)
    {
        if (!m_entries.contains(entry))
            m_entries << entry;
        return m_entries.indexOf(entry);
    }
    const QList<QByteArray>& Entries() const { return m_entries; }

private:
    QList<QByteArray> m_entries;
};

void Append(char16_t unit, QByteArray& out)
{
    const bool isPlain = unit >= u' ' && unit < 0x7F;
    if (unit == u'\t') {
        out += "\\tab ";
    } else if (isPlain) {
        if (unit == u'\\' || unit == u'{' || unit == u'}')
            out += '\\';
        out += static_cast<char>(unit);
    } else { // a signed number, with what a reader without Unicode shows
        out += "\\u";
        out += QByteArray::number(static_cast<qint16>(unit));
        out += '?';
    }
}

QByteArray ColourEntry(COLORREF colour)
{
    return "\\red" + QByteArray::number(colour & 0xFF) + "\\green" +
           QByteArray::number(colour >> 8 & 0xFF) + "\\blue" +
           QByteArray::number(colour >> 16 & 0xFF);
}

QByteArray FaceEntry(const StyleLook& look)
{
    QByteArray face;
    for (const char16_t* unit = look.face; *unit; ++unit) {
        if (*unit != u';')
            Append(*unit, face);
    }
    return face;
}

// Colours count from 1; 0 is the reader's own.
QByteArray Controls(const StyleLook& look, Table& fonts, Table& colours)
{
    const QByteArray ground = QByteArray::number(colours.NumberOf(ColourEntry(look.back)) + 1);
    return "\\f" + QByteArray::number(fonts.NumberOf(FaceEntry(look))) + "\\fs" +
           QByteArray::number(qRound(look.points * 2)) + "\\cf" +
           QByteArray::number(colours.NumberOf(ColourEntry(look.fore)) + 1) +
           "\\chshdng0\\chcbpat" + ground + "\\cb" + ground + (look.bold ? "\\b" : "\\b0") +
           (look.italic ? "\\i" : "\\i0") + (look.underline ? "\\ul" : "\\ulnone") + ' ';
}

} // namespace

QByteArray RtfOf(CZNCoreEditorControl& editor, long start, long end)
{
    const StyleLooks looks = LooksOf(editor);
    Table fonts;
    Table colours;
    Controls(looks[kPlain], fonts, colours);
    QByteArray body;
    int inForce = -1;
    bool isBehindCr = false;
    ForEachRun(editor, start, end, [&](std::u16string_view text, int style) {
        if (style != inForce)
            body += Controls(looks[static_cast<std::size_t>(style)], fonts, colours);
        inForce = style;
        for (const char16_t unit : text) {
            if (unit == u'\r' || (unit == u'\n' && !isBehindCr))
                body += "\\par\n";
            else if (unit != u'\n')
                Append(unit, body);
            isBehindCr = unit == u'\r';
        }
        return true;
    });
    QByteArray head = "{\\rtf1\\ansi\\uc1\\deff0{\\fonttbl";
    for (qsizetype i = 0; i < fonts.Entries().size(); ++i)
        head += "{\\f" + QByteArray::number(i) + "\\fmodern " + fonts.Entries()[i] + ";}";
    head += "}{\\colortbl;";
    for (const QByteArray& colour : colours.Entries())
        head += colour + ';';
    return head + "}\n" + body + "}\n";
}
