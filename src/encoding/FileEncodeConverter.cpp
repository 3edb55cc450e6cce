// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoding/FileEncodeConverter.h"

#include "encoding/ContentDetection.h"
#include "platform/text/CodePage.h"
#include "platform/text/VectorState.h"

#include <algorithm>
#include <iterator>

namespace {

using Converter = FileEncodeConverter;

constexpr int kAnsi = 0;
constexpr int kUtf8 = 65001;

constexpr unsigned char kMarks[7][4] = {
    {0x00, 0x00, 0x00, 0x00}, {0xFE, 0xFF, 0x00, 0x00}, {0xFF, 0xFE, 0x00, 0x00},
    {0xEF, 0xBB, 0xBF, 0x00}, {0x00, 0x00, 0x00, 0x00}, {0x00, 0x00, 0xFE, 0xFF},
    {0xFF, 0xFE, 0x00, 0x00},
};

struct MarkRow
{
    Converter::encodingType type;
    int entry; // in kMarks
    unsigned int size;
};

// In the order in which a block is compared with them: the long mark of UTF-32 little-endian begins
// with the short one of UTF-16.
constexpr MarkRow kMarkRows[] = {
    {Converter::encUTF32BE, 5, 4}, {Converter::encUTF32LE, 6, 4}, {Converter::encUTF16BE, 1, 2},
    {Converter::encUTF16LE, 2, 2}, {Converter::encUTF8, 3, 3},
};

struct TextTypeRow
{
    Converter::encodingType type;
    znutils::TextType withMark;
    znutils::TextType without;
};

constexpr TextTypeRow kTextTypes[] = {
    {Converter::encANSI, znutils::ttANSI, znutils::ttANSI},
    {Converter::encUTF16LE, znutils::ttUTF16LEMark, znutils::ttUTF16LE},
    {Converter::encUTF16BE, znutils::ttUTF16BEMark, znutils::ttUTF16BE},
    {Converter::encUTF8, znutils::ttUTF8Mark, znutils::ttUTF8},
    {Converter::encUTF32LE, znutils::ttUTF32LEMark, znutils::ttUTF32LE},
    {Converter::encUTF32BE, znutils::ttUTF32BEMark, znutils::ttUTF32BE},
};

// What an encoding is to the conversions: the form of its text and the order of its bytes.
enum Form
{
    formAnsi,
    formWide,
    formUtf8,
    formUtf32
};

struct FormRow
{
    Converter::encodingType type;
    Form form;
    void (*swap)(unsigned char* buffer, unsigned int length); // null for the machine's own order
};

using Routine = void (*)(Converter& converter, const unsigned char* buffer, unsigned int length,
                         unsigned int& remaining);

template <auto Member, int... codePages>
void Run(Converter& converter, const unsigned char* buffer, unsigned int length,
         unsigned int& remaining)
{
    (converter.*Member)(buffer, length, remaining,
                        (codePages == kAnsi ? converter.GetCodePage() : codePages)...);
}

} // namespace

FileEncodeConverter::FileEncodeConverter() = default;
FileEncodeConverter::FileEncodeConverter(const FileEncodeConverter& other) = default;
FileEncodeConverter& FileEncodeConverter::operator=(const FileEncodeConverter& other) = default;
FileEncodeConverter::~FileEncodeConverter() = default;

void FileEncodeConverter::SetInputType(encodingType type)
{
    m_inputType = type;
    m_bHadMark = false;
}

znutils::TextType FileEncodeConverter::GetInputTextType() const
{
    return ConvertToTextType(m_inputType, m_bHadMark);
}

znutils::TextType FileEncodeConverter::ConvertToTextType(encodingType type, bool hasMark)
{
    for (const TextTypeRow& row : kTextTypes) {
        if (row.type == type)
            return hasMark ? row.withMark : row.without;
    }
    return znutils::ttNone;
}

FileEncodeConverter::encodingType FileEncodeConverter::ConvertToEncodingType(znutils::TextType type,
                                                                             bool& hasMark)
{
    hasMark = false;
    for (const TextTypeRow& row : kTextTypes) {
        if (row.withMark == type || row.without == type) {
            hasMark = row.without != type;
            return row.type;
        }
    }
    return encUnknown;
}

// Takes the first mark that the block begins with, and with it its encoding.
bool FileEncodeConverter::TakeMark(unsigned char*& buffer, unsigned int& length)
{
    for (const MarkRow& row : kMarkRows) {
        if (length < row.size || !std::equal(buffer, buffer + row.size, kMarks[row.entry]))
            continue;
        m_inputType = row.type;
        buffer += row.size;
        length -= row.size;
        return true;
    }
    return false;
}

void FileEncodeConverter::ResolveEncoding(encodingType requested, unsigned char*& buffer,
                                          unsigned int& length, bool& hadMark)
{
    hadMark = m_bHadMark = false;
    if (requested == encUnknown) {
        DetermineEncoding(buffer, length, hadMark);
        return;
    }
    m_inputType = requested;
    hadMark = m_bHadMark = TakeMark(buffer, length);
    if (m_inputType == encANSI)
        m_inputType = content::FindCookie(buffer, length);
}

void FileEncodeConverter::DetermineEncoding(unsigned char*& buffer, unsigned int& length,
                                            bool& hadMark)
{
    if (m_inputType != encUnknown)
        return;
    m_inputType = encANSI;
    hadMark = m_bHadMark = length > 1 && TakeMark(buffer, length);
    if (hadMark || length < 2)
        return;
    // Two or three bytes are too few to judge by.
    const bool judged = length >= 4;
    if (judged && length % 4 == 0)
        m_inputType = content::DetectUtf32(buffer, length);
    if (judged && length % 2 == 0 && m_inputType == encANSI)
        m_inputType = content::DetectUtf16(buffer, length);
    if (judged && m_inputType == encANSI)
        m_inputType = content::DetectUtf8(buffer, length);
    if (m_inputType == encANSI)
        m_inputType = content::FindCookie(buffer, length);
}

bool FileEncodeConverter::Convert(encodingType requested, unsigned char* buffer,
                                  unsigned int& length, unsigned int& remaining, bool& hadMark)
{
    ResolveEncoding(requested, buffer, length, hadMark);
    return Convert(buffer, length, remaining);
}

bool FileEncodeConverter::Convert(unsigned char* buffer, unsigned int& length,
                                  unsigned int& remaining)
{
    bool hadMark = false;
    DetermineEncoding(buffer, length, hadMark);
    if (length == 0) {
        m_converted.clear();
        return true;
    }
    remaining = 0;
    return ConvertBlock(buffer, length, remaining);
}

bool FileEncodeConverter::ConvertBlock(unsigned char* buffer, unsigned int length,
                                       unsigned int& remaining)
{
    platform::ClearUpperHalves();
    using Self = FileEncodeConverter;
    static constexpr FormRow kForms[] = {
        {encANSI, formAnsi, nullptr},
        {encUTF16LE, formWide, nullptr},
        {encUTF16BE, formWide, &Self::InternalSwapBuffer},
        {encUTF8, formUtf8, nullptr},
        {encUTF8Cookie, formUtf8, nullptr},
        {encUTF32LE, formUtf32, nullptr},
        {encUTF32BE, formUtf32, &Self::InternalSwapUTF32CharBuffer},
    };
    // From the form of the row to the form of the column: ANSI, UTF-16, UTF-8, UTF-32.
    static constexpr Routine kRoutines[4][4] = {
        {Run<&Self::InternalConvertCharToChar, kAnsi, kAnsi>,
         Run<&Self::InternalConvertCharToWideChar, kAnsi>,
         Run<&Self::InternalConvertCharToChar, kAnsi, kUtf8>,
         Run<&Self::InternalConvertCharToUTF32, kAnsi>},
        {Run<&Self::InternalConvertWideCharToChar, kAnsi>,
         Run<&Self::InternalConvertWideCharToWideChar>,
         Run<&Self::InternalConvertWideCharToChar, kUtf8>,
         Run<&Self::InternalConvertWideCharToUTF32>},
        {Run<&Self::InternalConvertCharToChar, kUtf8, kAnsi>,
         Run<&Self::InternalConvertCharToWideChar, kUtf8>,
         Run<&Self::InternalConvertCharToChar, kUtf8, kUtf8>,
         Run<&Self::InternalConvertCharToUTF32, kUtf8>},
        {Run<&Self::InternalConvertUTF32ToChar, kAnsi>, Run<&Self::InternalConvertUTF32ToWideChar>,
         Run<&Self::InternalConvertUTF32ToUTF8>, Run<&Self::InternalConvertUTF32ToUTF32>},
    };
    const auto formOf = [](encodingType type) {
        return std::find_if(std::begin(kForms), std::end(kForms),
                            [&](const FormRow& row) { return row.type == type; });
    };

    const FormRow* const in = formOf(m_inputType);
    const FormRow* const out = formOf(m_outputType);
    if (in == std::end(kForms))
        return m_inputType != encUnknown;
    if (out == std::end(kForms))
        return false;

    // Between two texts of one byte order nothing is swapped, the walk over units included.
    const bool swaps = m_inputType != m_outputType;
    if (swaps && in->swap != nullptr)
        in->swap(buffer, length);
    kRoutines[in->form][out->form](*this, buffer, length, remaining);
    if (swaps && in->swap != nullptr)
        in->swap(buffer + length - remaining, remaining);
    if (swaps && out->swap != nullptr)
        out->swap(m_converted.data(), static_cast<unsigned int>(m_converted.size()));

    // The bytes are there for UTF-32 big-endian too; only from ANSI does it report so.
    return m_outputType != encUTF32BE || m_inputType == encANSI;
}

bool FileEncodeConverter::GetConverted(unsigned char** data, unsigned int& size)
{
    size = static_cast<unsigned int>(m_converted.size());
    *data = size == 0 ? nullptr : m_converted.data();
    return size != 0;
}

void FileEncodeConverter::WriteHeader()
{
    m_converted.clear();
    for (const MarkRow& row : kMarkRows) {
        if (row.type == m_outputType)
            m_converted.assign(kMarks[row.entry], kMarks[row.entry] + row.size);
    }
}
