// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/export/HtmlText.h"

#include "control/ZNCoreEditorControl.h"
#include "host/export/StyledText.h"

#include <QIODevice>

#include <string_view>

namespace {

constexpr std::size_t kPlain = 32; // the style that a text begins with

QString Colour(COLORREF colour)
{
    return QStringLiteral("#%1%2%3")
        .arg(colour & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(colour >> 8 & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(colour >> 16 & 0xFF, 2, 16, QLatin1Char('0'));
}

QString FaceOf(const StyleLook& look)
{
    return QString::fromUtf16(look.face).remove(u'\'').remove(u'"').remove(u'<');
}

// In the element itself: what takes a paste drops a style sheet.
QString StyleOf(const StyleLook& look, const StyleLook& plain)
{
    QString style;
    if (look.fore != plain.fore)
        style += QStringLiteral("color:%1;").arg(Colour(look.fore));
    if (look.back != plain.back)
        style += QStringLiteral("background:%1;").arg(Colour(look.back));
    if (look.bold != plain.bold)
        style +=
            look.bold ? QLatin1String("font-weight:bold;") : QLatin1String("font-weight:normal;");
    if (look.italic != plain.italic)
        style +=
            look.italic ? QLatin1String("font-style:italic;") : QLatin1String("font-style:normal;");
    if (look.underline)
        style += QLatin1String("text-decoration:underline;");
    if (FaceOf(look) != FaceOf(plain))
        style += QStringLiteral("font-family:'%1',monospace;").arg(FaceOf(look));
    if (look.points != plain.points)
        style += QStringLiteral("font-size:%1pt;").arg(look.points);
    return style;
}

// A line feed for each line end; what HTML cannot hold becomes the sign for that.
void Append(std::u16string_view text, bool& isBehindCr, std::u16string& out)
{
    for (const char16_t unit : text) {
        if (!(unit == u'\n' && isBehindCr)) {
            switch (unit) {
            case u'&':
                out += u"&amp;";
                break;
            case u'<':
                out += u"&lt;";
                break;
            case u'>':
                out += u"&gt;";
                break;
            case u'\r':
                out += u'\n';
                break;
            default:
                out += unit >= u' ' || unit == u'\t' || unit == u'\n' ? unit : u'\uFFFD';
            }
        }
        isBehindCr = unit == u'\r';
    }
}

} // namespace

bool WriteHtml(CZNCoreEditorControl& editor, long start, long end, const QString& title,
               QIODevice& to)
{
    constexpr std::size_t kBlock = 64 * 1024;
    const StyleLooks looks = LooksOf(editor);
    const StyleLook& plain = looks[kPlain];
    std::array<QByteArray, std::tuple_size_v<StyleLooks>> opening;
    for (std::size_t i = 0; i < looks.size(); ++i) {
        const QString style = StyleOf(looks[i], plain);
        if (!style.isEmpty())
            opening[i] = "<span style=\"" + style.toUtf8() + "\">";
    }
    const auto write = [&to](const QByteArray& bytes) { return to.write(bytes) == bytes.size(); };
    const QString head =
        QStringLiteral(
            "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
            "</head>\n<body style=\"background:%2\">\n<pre style=\"color:%3;background:%2;"
            "font-family:'%4',monospace;font-size:%5pt;tab-size:%6;-moz-tab-size:%6\">\n")
            .arg(title.toHtmlEscaped(), Colour(plain.back), Colour(plain.fore), FaceOf(plain),
                 QString::number(plain.points), QString::number(editor.GetTabWidth(1)));
    if (!write(head.toUtf8()))
        return false;
    std::u16string escaped;
    QByteArray block;
    bool isBehindCr = false;
    int inForce = -1;
    const auto close = [&] {
        if (inForce >= 0 && !opening[static_cast<std::size_t>(inForce)].isEmpty())
            block += "</span>";
    };
    const bool isDone = ForEachRun(editor, start, end, [&](std::u16string_view text, int style) {
        if (style != inForce) {
            close();
            block += opening[static_cast<std::size_t>(style)];
            inForce = style;
        }
        escaped.clear();
        Append(text, isBehindCr, escaped);
        block += QStringView(escaped).toUtf8();
        if (static_cast<std::size_t>(block.size()) < kBlock)
            return true;
        const bool isWritten = write(block);
        block.clear();
        return isWritten;
    });
    close();
    block += "</pre>\n</body>\n</html>\n";
    return isDone && write(block);
}
