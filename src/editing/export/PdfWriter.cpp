// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/export/PdfWriter.h"

#include <algorithm>
#include <cstring>

namespace {

struct FontFamily
{
    const char16_t* name;
    const char* faces[4]; // normal, bold, italic, both
    int descent;          // thousandths of the size
};

constexpr FontFamily kFamilies[] = {
    {u"Courier", {"Courier", "Courier-Bold", "Courier-Oblique", "Courier-BoldOblique"}, 157},
    {u"Helvetica",
     {"Helvetica", "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique"},
     207},
    {u"Times", {"Times-Roman", "Times-Bold", "Times-Italic", "Times-BoldItalic"}, 217},
};

const FontFamily& Family(int fontSet)
{
    return kFamilies[static_cast<std::size_t>(fontSet)];
}

} // namespace

void PdfWriter::SetFont(const std::u16string& name)
{
    for (std::size_t i = 0; i < std::size(kFamilies); ++i) {
        if (name == kFamilies[i].name)
            fontSet = static_cast<int>(i);
    }
}

void PdfWriter::WriteHeader()
{
    constexpr int kDefaultSize = 10;
    constexpr double kLinesApart = 1.2; // sizes
    constexpr char kHeader[] = "%PDF-1.3\n%\xC7\xEC\x8F\xA2\n";
    if (fontSize <= 0)
        fontSize = kDefaultSize;
    leading = fontSize * kLinesApart;
    pageWidth = std::max(pageWidth, marginLeft + marginRight + static_cast<int>(leading));
    pageHeight = std::max(pageHeight, marginTop + marginBottom + static_cast<int>(leading));
    std::fwrite(kHeader, 1, sizeof(kHeader) - 1, tracker->file);
    styleCurrent = kDefaultStyle;
    for (int face = 1; face <= 4; ++face) {
        tracker->WriteObject("<</Type/Font/Subtype/Type1/Name/F" + std::to_string(face) +
                             "/BaseFont/" + Family(fontSet).faces[face - 1] +
                             "/Encoding/WinAnsiEncoding>>\n");
    }
    pageObjectStart = tracker->next;
}

double PdfWriter::FontToPoints(int thousandths) const
{
    return fontSize * thousandths / 1000.0;
}

void PdfWriter::StyleChange(char* buffer, int length, int style) const
{
    const bool isForced = style == -1;
    if (isForced)
        style = styleCurrent;
    if (length <= 0)
        return;
    buffer[0] = '\0';
    if (!isForced && style == styleCurrent)
        return;
    const PdfStyle& wanted = styles[static_cast<std::size_t>(style)];
    const PdfStyle& inForce = styles[static_cast<std::size_t>(styleCurrent)];
    const auto room = static_cast<std::size_t>(length);
    if (isForced || wanted.font != inForce.font)
        std::snprintf(buffer, room, "/F%d %d Tf ", wanted.font + 1, fontSize);
    if (isForced || std::strcmp(wanted.fore.data(), inForce.fore.data()) != 0) {
        const std::size_t used = std::strlen(buffer);
        std::snprintf(buffer + used, room - used, "%srg ", wanted.fore.data());
    }
}

void PdfWriter::NextLine()
{
    xPos = marginLeft;
    yPos -= leading;
    const int descent = Family(fontSet).descent * fontSize / 1000; // in whole points
    if (descent + marginBottom > yPos)
        return;
    if (!firstLine) {
        pageData += u"T*\n";
        return;
    }
    char advance[40];
    const int count = std::snprintf(advance, sizeof(advance), "0 -%.1f TD\n", leading);
    pageData.append(advance, advance + count);
    firstLine = false;
}

int PdfWriter::IntFromHexDigit(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return 0;
}

int PdfWriter::IntFromHexByte(const char* digits)
{
    return IntFromHexDigit(digits[0]) * 16 + IntFromHexDigit(digits[1]);
}
