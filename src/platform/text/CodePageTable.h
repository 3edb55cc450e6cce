// SPDX-License-Identifier: GPL-3.0-or-later
// The code pages other than UTF-8, by number, and what one of them maps.
// ICU knows the mappings. It is asked once for each page that is used; the tables made then answer
// every conversion, so that text never goes through a converter call by call. Any thread may ask
// any page.
#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <vector>

struct UConverter;

namespace platform {

constexpr int kUtf8CodePage = 65001;

enum class PageKind
{
    SingleByte, // one byte, one unit
    DoubleByte, // a lead byte and the byte behind it, one unit
    Gb18030,    // one, two or four bytes; goes through ICU
    EucJp,      // one, two or three bytes; goes through ICU
};

class Page
{
public:
    Page(PageKind kind, const char* leads, UConverter* converter);
    ~Page();
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    // The bytes of the character at a byte, judged by its lead byte (and, for four-byte
    // characters, the byte behind it). 0 when the bytes end within the character.
    std::size_t Step(const unsigned char* at, std::size_t left) const;

    // The most units or bytes that one byte or unit can become.
    std::size_t MaxUnits(std::size_t byteCount) const { return byteCount; }
    std::size_t MaxBytes(std::size_t unitCount) const { return unitCount * m_maxBytes; }

    // Converts everything and gives the count written; units and bytes have the room that MaxUnits
    // and MaxBytes tell.
    std::size_t ToUnits(const unsigned char* bytes, std::size_t byteCount, char16_t* units);
    std::size_t ToBytes(const char16_t* units, std::size_t unitCount, unsigned char* bytes);

    bool IsSingleByte() const { return m_kind == PageKind::SingleByte; }

private:
    void MarkLeads(const char* leads);
    void FillSingleByte();
    void FillDoubleByte();
    std::size_t DoubleByteToUnits(const unsigned char* bytes, std::size_t byteCount,
                                  char16_t* units) const;
    std::size_t DoubleByteToBytes(const char16_t* units, std::size_t unitCount,
                                  unsigned char* bytes) const;

    struct Close
    {
        void operator()(UConverter* converter) const;
    };

    PageKind m_kind;
    std::size_t m_maxBytes;
    std::unique_ptr<UConverter, Close> m_converter;
    std::mutex m_lock; // of the converter, where text goes through it
    bool m_isLead[256] = {};
    char16_t m_single[256] = {};               // byte to unit; for double-byte pages the lone bytes
    std::vector<char16_t> m_double;            // lead and trail byte to unit
    std::vector<unsigned char> m_singleBytes;  // unit to byte, "?" where there is none
    std::vector<unsigned short> m_doubleBytes; // unit to one or two bytes, "?" where there is none
};

// The page of a number, made at its first use and kept; null for a number that is not in the table,
// UTF-8 among them.
Page* FindPage(int codePage);

// The numbers in the table.
std::vector<int> KnownCodePages();

} // namespace platform
