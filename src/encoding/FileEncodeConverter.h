// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// FileEncodeConverter: the bytes of a file to UTF-16 and back, block by block.
/// Knows encodings and byte-order marks; knows no window, no path and no setting. All lengths count
/// bytes.
#pragma once

#include "common/Export.h"
#include "encoding/ByteVector.h"
#include "encoding/TextType.h"

/// Decides on the first block what a file is, and converts that block and those behind it. One
/// object serves one stream, on one thread. A block may end within a character: what was not taken
/// is reported as remaining, and the caller puts it in front of the next block.
class ZN_API FileEncodeConverter
{
public:
    /// TextType has the odd numbers up to 9 for the same encodings with a mark.
    enum encodingType : int
    {
        encUnknown = -1,    ///< to be found in the first block
        encANSI = 0,        ///< a code page, the system's if no other was set
        encUTF16LE = 2,     ///< low byte first
        encUTF16BE = 4,     ///< high byte first
        encUTF8 = 6,        ///< with a mark or without
        encUTF32LE = 8,     ///< low byte first
        encUTF32BE = 10,    ///< high byte first
        encUTF8Cookie = 11, ///< UTF-8 that a word in the first line tells; never has a mark
    };

    FileEncodeConverter();                                 ///< both encodings unknown
    FileEncodeConverter(const FileEncodeConverter& other); ///< encodings and converted bytes alike
    FileEncodeConverter& operator=(const FileEncodeConverter& other); ///< the same
    ~FileEncodeConverter();                                           ///< the converted bytes go

    /// Setting the input encoding forgets about a mark.
    void SetInputType(encodingType type);
    encodingType GetInputType() const { return m_inputType; } ///< what the file is, or encUnknown
    void SetOutputType(encodingType type) { m_outputType = type; } ///< what the bytes are to become

    /// The code page that encANSI stands for; 0, as at first: the system's.
    void SetCodePage(int codePage) { m_codePage = codePage; }
    int GetCodePage() const { return m_codePage; } ///< as it was set

    /// The input encoding with its mark; ttNone while it is unknown, and for encUTF8Cookie.
    znutils::TextType GetInputTextType() const;

    /// The same encoding as a TextType; one of those without a mark for encUTF8Cookie.
    static znutils::TextType ConvertToTextType(encodingType type, bool hasMark);
    /// The reverse, and whether the type has a mark.
    static encodingType ConvertToEncodingType(znutils::TextType type, bool& hasMark);

    /// Converts the first block. requested may be encUnknown; a mark beats it. length loses the
    /// size of the mark while buffer stays the caller's, and hadMark tells whether there was one.
    /// Big-endian input is swapped in place, all but what remains. False for an encoding that
    /// cannot be written, and for encUTF32BE from any input but encANSI, though the bytes are
    /// there.
    bool Convert(encodingType requested, unsigned char* buffer, unsigned int& length,
                 unsigned int& remaining, bool& hadMark);

    /// Converts a later block. A length of 0 gives no bytes and leaves remaining alone.
    bool Convert(unsigned char* buffer, unsigned int& length, unsigned int& remaining);

    /// Lends the bytes of the last conversion, which are good until the next one. False, a null
    /// pointer and 0 if there are none.
    bool GetConverted(unsigned char** data, unsigned int& size);

    /// Makes the byte-order mark of the output encoding the converted bytes; none for encANSI and
    /// encUTF8Cookie.
    void WriteHeader();

protected:
    /// Both move buffer and length past a mark. An input encoding that is known stays, and then
    /// DetermineEncoding touches nothing.
    void DetermineEncoding(unsigned char*& buffer, unsigned int& length, bool& hadMark);
    /// Takes what was asked for, unless a mark says other.
    void ResolveEncoding(encodingType requested, unsigned char*& buffer, unsigned int& length,
                         bool& hadMark);

    /// Converts from the input to the output encoding, both known.
    bool ConvertBlock(unsigned char* buffer, unsigned int length, unsigned int& remaining);

    /// From one code page to another.
    void InternalConvertCharToChar(const unsigned char* buffer, unsigned int length,
                                   unsigned int& remaining, int codePageIn, int codePageOut);
    /// From a code page to UTF-16 LE.
    void InternalConvertCharToWideChar(const unsigned char* buffer, unsigned int length,
                                       unsigned int& remaining, int codePage);
    /// From a code page to UTF-32 LE.
    void InternalConvertCharToUTF32(const unsigned char* buffer, unsigned int length,
                                    unsigned int& remaining, int codePage);
    /// From UTF-16 LE to a code page; what it lacks becomes a question mark.
    void InternalConvertWideCharToChar(const unsigned char* buffer, unsigned int length,
                                       unsigned int& remaining, int codePage);
    /// UTF-16 LE as it is, but for a half byte at the end.
    void InternalConvertWideCharToWideChar(const unsigned char* buffer, unsigned int length,
                                           unsigned int& remaining);
    /// From UTF-16 LE to UTF-32 LE.
    void InternalConvertWideCharToUTF32(const unsigned char* buffer, unsigned int length,
                                        unsigned int& remaining);
    /// From UTF-32 LE to a code page; what it lacks becomes a question mark.
    void InternalConvertUTF32ToChar(const unsigned char* buffer, unsigned int length,
                                    unsigned int& remaining, int codePage);
    /// From UTF-32 LE to UTF-8.
    void InternalConvertUTF32ToUTF8(const unsigned char* buffer, unsigned int length,
                                    unsigned int& remaining);
    /// From UTF-32 LE to UTF-16 LE.
    void InternalConvertUTF32ToWideChar(const unsigned char* buffer, unsigned int length,
                                        unsigned int& remaining);
    /// UTF-32 LE as it is, but for a part of a word at the end.
    void InternalConvertUTF32ToUTF32(const unsigned char* buffer, unsigned int length,
                                     unsigned int& remaining);

    /// Exchanges the two bytes of each unit, in place.
    static void InternalSwapBuffer(unsigned char* buffer, unsigned int length);
    /// Turns the four bytes of each word round, in place.
    static void InternalSwapUTF32CharBuffer(unsigned char* buffer, unsigned int length);

private:
    bool TakeMark(unsigned char*& buffer, unsigned int& length);
    bool FillFromUnits(const char16_t* units, unsigned int count, int codePage);

    encodingType m_inputType = encUnknown;
    encodingType m_outputType = encUnknown;
    bool m_bHadMark = false;
    int m_codePage = 0;
    ByteVector m_converted;
};
