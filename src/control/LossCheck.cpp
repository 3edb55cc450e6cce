// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/LossCheck.h"

#include "control/TextPieces.h"
#include "control/ZNCoreEditorControl.h"
#include "encoding/FileEncodeConverter.h"

#include <QChar>
#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(LossCheck)
};

constexpr char16_t kSubstitute = u'?';

// One pass without a branch, which the compiler turns into wide instructions.
bool IsAscii(std::u16string_view text)
{
    unsigned int all = 0;
    for (const char16_t unit : text)
        all |= unit;
    return all < 0x80;
}

bool IsLowHalf(char16_t unit)
{
    return (unit & 0xFC00) == 0xDC00;
}

bool HasForm(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
        return false;
    default:
        return true;
    }
}

} // namespace

struct LossFinder::Conversion
{
    FileEncodeConverter converter;
    std::vector<char16_t> units; // what is converted, since a conversion may write into it
};

LossFinder::LossFinder(int encoding, int codePage)
{
    if (encoding != FileEncodeConverter::encANSI)
        return;
    m_conversion = std::make_unique<Conversion>();
    m_conversion->converter.SetInputType(FileEncodeConverter::encUTF16LE);
    m_conversion->converter.SetOutputType(FileEncodeConverter::encANSI);
    m_conversion->converter.SetCodePage(codePage);
}

LossFinder::~LossFinder() = default;

// No code page has the question mark as the second byte of a character, so each one that comes out
// and did not go in is a character lost. The unit behind the text keeps the converter from holding
// back a last one that it takes for half a pair.
bool LossFinder::LosesAny(std::u16string_view text)
{
    if (IsAscii(text))
        return false;
    std::vector<char16_t>& units = m_conversion->units;
    units.assign(text.begin(), text.end());
    units.push_back(u'.');
    auto length = static_cast<unsigned int>(units.size() * sizeof(char16_t));
    unsigned int remaining = 0;
    m_conversion->converter.Convert(reinterpret_cast<unsigned char*>(units.data()), length,
                                    remaining);
    unsigned char* bytes = nullptr;
    unsigned int size = 0;
    m_conversion->converter.GetConverted(&bytes, size);
    return std::count(bytes, bytes + size, kSubstitute) !=
           std::count(text.begin(), text.end(), kSubstitute);
}

// Halves the text until one character is left.
long LossFinder::FindIn(std::u16string_view text)
{
    if (!m_conversion || !LosesAny(text))
        return -1;
    std::size_t from = 0;
    std::size_t count = text.size();
    while (count > 1) {
        std::size_t half = count / 2;
        if (IsLowHalf(text[from + half]))
            half = half > 1 ? half - 1 : half + 1;
        if (half == count)
            break;
        if (LosesAny(text.substr(from, half))) {
            count = half;
        } else {
            from += half;
            count -= half;
        }
    }
    return static_cast<long>(from);
}

std::optional<LostCharacter> FindLostCharacter(CZNCoreEditorControl& editor, int encoding)
{
    return FindLostCharacter(editor, encoding, editor.GetFileCodePage());
}

std::optional<LostCharacter> FindLostCharacter(CZNCoreEditorControl& editor, int encoding,
                                               int codePage)
{
    LossFinder finder(encoding, codePage);
    TextPieces pieces(editor);
    long start = 0;
    for (std::u16string_view piece = pieces.Next(); !piece.empty(); piece = pieces.Next()) {
        if (const long at = finder.FindIn(piece); at >= 0) {
            const char16_t* const unit = piece.data() + at;
            const bool isPair = unit + 1 < piece.data() + piece.size() && IsLowHalf(unit[1]);
            const long position = start + at;
            return LostCharacter{isPair ? QChar::surrogateToUcs4(unit[0], unit[1]) : unit[0],
                                 position, editor.LineFromPosition(position, 1) + 1,
                                 editor.GetColumn(position, 1) + 1};
        }
        start = pieces.Position();
    }
    return std::nullopt;
}

QString DescribeCharacter(char32_t character)
{
    const QString number = QStringLiteral("U+%1").arg(
        QString::number(character, 16).toUpper().rightJustified(4, u'0'));
    if (!HasForm(character))
        return number;
    return QStringLiteral("“%1” (%2)").arg(QString::fromUcs4(&character, 1), number);
}

QString LossQuestion(const QString& fileName, const QString& encodingName,
                     const LostCharacter& lost)
{
    return Texts::tr("“%1” has characters that %2 does not have. The first is %3 in line %4, "
                     "column %5. In the file they would become question marks. UTF-8 keeps "
                     "every character.")
        .arg(fileName, encodingName, DescribeCharacter(lost.character), QString::number(lost.line),
             QString::number(lost.column));
}
