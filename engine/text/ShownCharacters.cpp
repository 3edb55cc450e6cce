// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/text/ShownCharacters.h"

#include <Qsci/qsciscintillabase.h>

#include <QByteArray>
#include <QChar>
#include <QString>

#include <vector>

namespace engine {
namespace {

struct Blocks
{
    char16_t first;
    char16_t last;
};

// Of the Unicode Standard; a mark over a letter would lie over its box.
constexpr Blocks kBlocks[] = {
    {0x0590, 0x08FF}, // Hebrew, Arabic, Syriac, Thaana, N'Ko, Samaritan, Mandaic
    {0xFB1D, 0xFDFF}, // presentation forms
    {0xFE70, 0xFEFC},
};

struct Named
{
    char32_t character;
    const char* name; // as the code charts of the Unicode Standard abbreviate it
};

// U+3000 is not among them: texts in Chinese and Japanese are full of it, and it is as wide as a
// letter.
constexpr Named kNamed[] = {
    // What turns the order around.
    {0x061C, "ALM"},
    {0x200E, "LRM"},
    {0x200F, "RLM"},
    {0x202A, "LRE"},
    {0x202B, "RLE"},
    {0x202C, "PDF"},
    {0x202D, "LRO"},
    {0x202E, "RLO"},
    {0x2066, "LRI"},
    {0x2067, "RLI"},
    {0x2068, "FSI"},
    {0x2069, "PDI"},
    // What looks like a blank.
    {0x00A0, "NBSP"},
    {0x2000, "NQSP"},
    {0x2001, "MQSP"},
    {0x2002, "ENSP"},
    {0x2003, "EMSP"},
    {0x2004, "3/MSP"},
    {0x2005, "4/MSP"},
    {0x2006, "6/MSP"},
    {0x2007, "FSP"},
    {0x2008, "PSP"},
    {0x2009, "THSP"},
    {0x200A, "HSP"},
    {0x202F, "NNBSP"},
    {0x205F, "MMSP"},
    {0x3164, "HF"},
    {0xFFA0, "HWHF"},
    // What is not seen.
    {0x00AD, "SHY"},
    {0x200B, "ZWSP"},
    {0x200C, "ZWNJ"},
    {0x200D, "ZWJ"},
    {0x2060, "WJ"},
    {0xFEFF, "BOM"},
    {0x034F, "CGJ"},
    {0x115F, "HC"},
    {0x1160, "HJ"},
    {0x180E, "MVS"},
    {0x2061, "f()"},
    {0x2062, "x"},
    {0x2063, ","},
    {0x2064, "+"},
};

struct Shown
{
    QByteArray character; // UTF-8
    QByteArray text;
};

// Letters that once told a language, of which nothing is seen.
constexpr char32_t kFirstTag = 0xE0001;
constexpr char32_t kLastTag = 0xE007F;

QByteArray Utf8(char32_t character)
{
    return QStringView(QChar::fromUcs4(character)).toUtf8();
}

// An override has a letter measured and drawn from the left.
std::vector<Shown> AllShown()
{
    const QByteArray override = QString(QChar(u'\u202D')).toUtf8();
    std::vector<Shown> all;
    for (const Blocks& block : kBlocks) {
        for (char16_t c = block.first; c <= block.last; ++c) {
            const QChar::Direction direction = QChar::direction(c);
            if (direction == QChar::DirR || direction == QChar::DirAL ||
                direction == QChar::DirNSM) {
                const QByteArray utf8 = QString(QChar(c)).toUtf8();
                all.push_back({utf8, override + utf8});
            }
        }
    }
    for (const Named& named : kNamed)
        all.push_back({Utf8(named.character), named.name});
    for (char32_t c = kFirstTag; c <= kLastTag; ++c)
        all.push_back({Utf8(c), "TAG"});
    return all;
}

} // namespace

void ShowCharacters(const Raw& raw)
{
    static const std::vector<Shown> all = AllShown();
    for (const Shown& each : all)
        raw.Send(QsciScintillaBase::SCI_SETREPRESENTATION,
                 reinterpret_cast<std::uintptr_t>(each.character.constData()),
                 reinterpret_cast<std::intptr_t>(each.text.constData()));
}

} // namespace engine
