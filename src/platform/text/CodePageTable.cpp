// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/CodePageTable.h"

#include "platform/text/AsciiRun.h"

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdint>
#include <cstring>
#include <iterator>

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>

namespace platform {
namespace {

struct PageRow
{
    int number;
    PageKind kind;
    const char* icuName;
    const char* leads = ""; // pairs of first and last lead byte
};

constexpr PageKind kOne = PageKind::SingleByte;
constexpr PageKind kTwo = PageKind::DoubleByte;

// clang-format off
const PageRow kPages[] = {
    {   437, kOne, "ibm-437_P100-1995"   },  {   720, kOne, "ibm-720_P100-1997"   },
    {   737, kOne, "ibm-737_P100-1997"   },  {   775, kOne, "ibm-775_P100-1996"   },
    {   850, kOne, "ibm-850_P100-1995"   },  {   852, kOne, "ibm-852_P100-1995"   },
    {   855, kOne, "ibm-855_P100-1995"   },  {   857, kOne, "ibm-857_P100-1995"   },
    {   858, kOne, "ibm-858_P100-1997"   },  {   860, kOne, "ibm-860_P100-1995"   },
    {   861, kOne, "ibm-861_P100-1995"   },  {   862, kOne, "ibm-862_P100-1995"   },
    {   863, kOne, "ibm-863_P100-1995"   },  {   864, kOne, "ibm-864_X110-1999"   },
    {   865, kOne, "ibm-865_P100-1995"   },  {   866, kOne, "ibm-866_P100-1995"   },
    {   869, kOne, "ibm-869_P100-1995"   },  {   874, kOne, "windows-874-2000"    },
    {  1250, kOne, "windows-1250"        },  {  1251, kOne, "windows-1251"        },
    {  1252, kOne, "windows-1252"        },  {  1253, kOne, "windows-1253"        },
    {  1254, kOne, "windows-1254"        },  {  1255, kOne, "windows-1255"        },
    {  1256, kOne, "windows-1256"        },  {  1257, kOne, "windows-1257"        },
    {  1258, kOne, "windows-1258"        },  { 10000, kOne, "macintosh"           },
    { 10006, kOne, "x-mac-greek"         },  { 10007, kOne, "x-mac-cyrillic"      },
    { 10029, kOne, "x-mac-ce"            },  { 10081, kOne, "x-mac-turkish"       },
    { 20127, kOne, "US-ASCII"            },  { 20866, kOne, "KOI8-R"              },
    { 21866, kOne, "KOI8-U"              },  { 28591, kOne, "ISO-8859-1"          },
    { 28592, kOne, "ISO-8859-2"          },  { 28593, kOne, "ISO-8859-3"          },
    { 28594, kOne, "ISO-8859-4"          },  { 28595, kOne, "ISO-8859-5"          },
    { 28596, kOne, "ISO-8859-6"          },  { 28597, kOne, "ISO-8859-7"          },
    { 28598, kOne, "ISO-8859-8"          },  { 28599, kOne, "ISO-8859-9"          },
    { 28600, kOne, "ISO-8859-10"         },  { 28601, kOne, "ISO-8859-11"         },
    { 28603, kOne, "ISO-8859-13"         },  { 28604, kOne, "ISO-8859-14"         },
    { 28605, kOne, "ISO-8859-15"         },  { 38598, kOne, "ISO-8859-8-I"        },
    {   932, kTwo, "ibm-943_P15A-2003", "\x81\x9F\xE0\xFC" },
    {   936, kTwo, "windows-936-2000", "\x81\xFE" },
    {   949, kTwo, "windows-949-2000", "\x81\xFE" },
    {   950, kTwo, "windows-950-2000", "\x81\xFE" },
    { 20936, kTwo, "EUC-CN", "\xA1\xFE" },
    { 51936, kTwo, "EUC-CN", "\xA1\xFE" },
    { 51949, kTwo, "EUC-KR", "\xA1\xFE" },
    { 51932, PageKind::EucJp, "euc-jp-2007" },
    { 54936, PageKind::Gb18030, "gb18030" },
};
// clang-format on

constexpr char16_t kUndefined = 0xFFFD;
constexpr std::size_t kUnits = 0x10000;

bool IsSurrogate(unsigned int unit)
{
    return (unit & 0xF800) == 0xD800;
}

// One "?" for each unit of what the page lacks.
void OnLacking(const void*, UConverterFromUnicodeArgs* args, const UChar*, int32_t length, UChar32,
               UConverterCallbackReason reason, UErrorCode* error)
{
    if (reason > UCNV_IRREGULAR)
        return;
    *error = U_ZERO_ERROR;
    ucnv_cbFromUWriteBytes(args, "??", std::min(length, 2), 0, error);
}

UConverter* OpenConverter(const char* name)
{
    UErrorCode error = U_ZERO_ERROR;
    UConverter* converter = ucnv_open(name, &error);
    if (U_FAILURE(error))
        return nullptr;
    ucnv_setFallback(converter, 0);
    ucnv_setFromUCallBack(converter, OnLacking, nullptr, nullptr, nullptr, &error);
    return converter;
}

// The one unit that ICU makes of the bytes, or kUndefined.
char16_t UnitOf(UConverter* converter, const char* bytes, int byteCount)
{
    UErrorCode error = U_ZERO_ERROR;
    UChar units[4];
    const int count = ucnv_toUChars(converter, units, 4, bytes, byteCount, &error);
    return U_SUCCESS(error) && count == 1 ? units[0] : kUndefined;
}

std::size_t MaxBytesOfUnit(PageKind kind)
{
    switch (kind) {
    case PageKind::SingleByte:
        return 1;
    case PageKind::DoubleByte:
        return 2;
    case PageKind::EucJp:
        return 3;
    default:
        return 4;
    }
}

} // namespace

void Page::Close::operator()(UConverter* converter) const
{
    ucnv_close(converter);
}

Page::Page(PageKind kind, const char* leads, UConverter* converter)
    : m_kind(kind), m_maxBytes(MaxBytesOfUnit(kind)), m_converter(converter)
{
    MarkLeads(leads);
    if (kind == PageKind::SingleByte)
        FillSingleByte();
    else if (kind == PageKind::DoubleByte)
        FillDoubleByte();
    if (kind == PageKind::SingleByte || kind == PageKind::DoubleByte)
        m_converter.reset();
}

Page::~Page() = default;

void Page::MarkLeads(const char* leads)
{
    for (; leads[0] != 0; leads += 2) {
        for (int byte = static_cast<unsigned char>(leads[0]);
             byte <= static_cast<unsigned char>(leads[1]); ++byte)
            m_isLead[byte] = true;
    }
}

// The PC pages rotate 1A, 1C and 7F in ICU's tables; here ASCII is itself in every page.
void Page::FillSingleByte()
{
    m_singleBytes.assign(kUnits, '?');
    for (int byte = 255; byte >= 0; --byte) {
        const char text = static_cast<char>(byte);
        m_single[byte] =
            byte < 0x80 ? static_cast<char16_t>(byte) : UnitOf(m_converter.get(), &text, 1);
        if (m_single[byte] != kUndefined)
            m_singleBytes[m_single[byte]] = static_cast<unsigned char>(byte);
    }
}

// Several codes of a double-byte page may mean one character, so the way back is asked of ICU too.
void Page::FillDoubleByte()
{
    m_double.assign(kUnits, kUndefined);
    for (int lead = 0; lead < 256; ++lead) {
        const char text = static_cast<char>(lead);
        if (!m_isLead[lead])
            m_single[lead] =
                lead < 0x80 ? static_cast<char16_t>(lead) : UnitOf(m_converter.get(), &text, 1);
        for (int trail = 0; m_isLead[lead] && trail < 256; ++trail) {
            const char both[] = {text, static_cast<char>(trail)};
            m_double[static_cast<std::size_t>(lead << 8 | trail)] =
                UnitOf(m_converter.get(), both, 2);
        }
    }
    m_doubleBytes.assign(kUnits, '?');
    for (unsigned int unit = 0; unit < kUnits; ++unit) {
        if (unit < 0x80)
            m_doubleBytes[unit] = static_cast<unsigned short>(unit);
        if (unit < 0x80 || IsSurrogate(unit))
            continue;
        const UChar text = static_cast<UChar>(unit);
        char bytes[8] = {};
        UErrorCode error = U_ZERO_ERROR;
        const int count = ucnv_fromUChars(m_converter.get(), bytes, sizeof bytes, &text, 1, &error);
        const auto first = static_cast<unsigned char>(bytes[0]);
        const auto second = static_cast<unsigned char>(bytes[1]);
        if (U_SUCCESS(error) && count == 1 && !m_isLead[first])
            m_doubleBytes[unit] = first;
        else if (U_SUCCESS(error) && count == 2 && m_isLead[first])
            m_doubleBytes[unit] = static_cast<unsigned short>(first << 8 | second);
    }
}

std::size_t Page::Step(const unsigned char* at, std::size_t left) const
{
    if (left == 0)
        return 0;
    std::size_t size = 1;
    if (m_kind == PageKind::DoubleByte) {
        size = m_isLead[*at] ? 2 : 1;
    } else if (m_kind == PageKind::EucJp) {
        size = *at == 0x8F ? 3 : *at == 0x8E || (*at >= 0xA1 && *at <= 0xFE) ? 2 : 1;
    } else if (m_kind == PageKind::Gb18030 && *at >= 0x81 && *at <= 0xFE) {
        size = left > 1 && at[1] >= 0x30 && at[1] <= 0x39 ? 4 : 2;
    }
    return size <= left ? size : 0;
}

std::size_t Page::ToUnits(const unsigned char* bytes, std::size_t byteCount, char16_t* units)
{
    if (m_kind == PageKind::DoubleByte)
        return DoubleByteToUnits(bytes, byteCount, units);
    if (m_kind == PageKind::SingleByte) {
        std::size_t i = 0;
        for (; i + ascii::kChunk <= byteCount; i += ascii::kChunk) {
            if (ascii::WidenChunk(bytes + i, units + i) == ascii::kChunk)
                continue;
            for (std::size_t j = i; j < i + ascii::kChunk; ++j)
                units[j] = m_single[bytes[j]];
        }
        for (; i < byteCount; ++i)
            units[i] = m_single[bytes[i]];
        return byteCount;
    }
    const std::lock_guard lock(m_lock);
    UErrorCode error = U_ZERO_ERROR;
    const int written = ucnv_toUChars(m_converter.get(), units, static_cast<int32_t>(byteCount),
                                      reinterpret_cast<const char*>(bytes),
                                      static_cast<int32_t>(byteCount), &error);
    return U_SUCCESS(error) ? static_cast<std::size_t>(written) : 0;
}

std::size_t Page::DoubleByteToUnits(const unsigned char* bytes, std::size_t byteCount,
                                    char16_t* units) const
{
    std::size_t in = 0;
    std::size_t out = 0;
    while (in < byteCount) {
        while (byteCount - in >= ascii::kChunk) {
            const std::size_t taken = ascii::WidenChunk(bytes + in, units + out);
            in += taken;
            out += taken;
            if (taken < ascii::kChunk)
                break;
        }
        if (in == byteCount)
            break;
        do {
            const std::size_t step = m_isLead[bytes[in]] ? 2 : 1;
            if (step > byteCount - in)
                units[out++] = kUndefined;
            else if (step == 2)
                units[out++] = m_double[static_cast<std::size_t>(bytes[in] << 8 | bytes[in + 1])];
            else
                units[out++] = m_single[bytes[in]];
            in += std::min(step, byteCount - in);
        } while (in < byteCount && bytes[in] >= 0x80);
    }
    return out;
}

std::size_t Page::ToBytes(const char16_t* units, std::size_t unitCount, unsigned char* bytes)
{
    if (m_kind == PageKind::DoubleByte)
        return DoubleByteToBytes(units, unitCount, bytes);
    if (m_kind == PageKind::SingleByte) {
        std::size_t i = 0;
        for (; i + ascii::kChunk <= unitCount; i += ascii::kChunk) {
            if (ascii::NarrowChunk(units + i, bytes + i))
                continue;
            for (std::size_t j = i; j < i + ascii::kChunk; ++j)
                bytes[j] = m_singleBytes[units[j]];
        }
        for (; i < unitCount; ++i)
            bytes[i] = m_singleBytes[units[i]];
        return unitCount;
    }
    const std::lock_guard lock(m_lock);
    UErrorCode error = U_ZERO_ERROR;
    const int written =
        ucnv_fromUChars(m_converter.get(), reinterpret_cast<char*>(bytes),
                        static_cast<int32_t>(std::min<std::size_t>(MaxBytes(unitCount), INT_MAX)),
                        units, static_cast<int32_t>(unitCount), &error);
    return U_SUCCESS(error) ? static_cast<std::size_t>(written) : 0;
}

std::size_t Page::DoubleByteToBytes(const char16_t* units, std::size_t unitCount,
                                    unsigned char* bytes) const
{
    std::size_t in = 0;
    unsigned char* out = bytes;
    while (in < unitCount) {
        if (unitCount - in >= ascii::kChunk && ascii::NarrowChunk(units + in, out)) {
            in += ascii::kChunk;
            out += ascii::kChunk;
            continue;
        }
        const std::size_t stop = std::min(unitCount, in + ascii::kChunk);
        for (; in < stop; ++in) {
            const unsigned short code = m_doubleBytes[units[in]];
            if (code > 0xFF)
                *out++ = static_cast<unsigned char>(code >> 8);
            *out++ = static_cast<unsigned char>(code);
        }
    }
    return static_cast<std::size_t>(out - bytes);
}

// The pages are never freed: settings are saved while the statics of the process go away.
Page* FindPage(int codePage)
{
    static std::atomic<Page*> made[std::size(kPages)];
    static auto& making = *new std::mutex;
    const auto row = std::find_if(std::begin(kPages), std::end(kPages),
                                  [&](const PageRow& page) { return page.number == codePage; });
    if (row == std::end(kPages))
        return nullptr;
    std::atomic<Page*>& page = made[row - std::begin(kPages)];
    if (Page* const there = page)
        return there;
    const std::lock_guard lock(making);
    if (!page) {
        if (UConverter* const converter = OpenConverter(row->icuName))
            page = new Page(row->kind, row->leads, converter);
    }
    return page;
}

std::vector<int> KnownCodePages()
{
    std::vector<int> numbers;
    for (const PageRow& page : kPages)
        numbers.push_back(page.number);
    return numbers;
}

} // namespace platform
