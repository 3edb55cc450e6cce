// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/text/RightToLeft.h"

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

struct Turn
{
    char16_t character;
    const char* name; // as the Unicode Bidirectional Algorithm has it
};

constexpr Turn kTurns[] = {
    {0x061C, "ALM"}, {0x200E, "LRM"}, {0x200F, "RLM"}, {0x202A, "LRE"},
    {0x202B, "RLE"}, {0x202C, "PDF"}, {0x202D, "LRO"}, {0x202E, "RLO"},
    {0x2066, "LRI"}, {0x2067, "RLI"}, {0x2068, "FSI"}, {0x2069, "PDI"},
};

struct Shown
{
    QByteArray character; // UTF-8
    QByteArray text;
};

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
    for (const Turn& turn : kTurns)
        all.push_back({QString(QChar(turn.character)).toUtf8(), turn.name});
    return all;
}

} // namespace

void ShowRightToLeft(const Raw& raw)
{
    static const std::vector<Shown> all = AllShown();
    for (const Shown& each : all)
        raw.Send(QsciScintillaBase::SCI_SETREPRESENTATION,
                 reinterpret_cast<std::uintptr_t>(each.character.constData()),
                 reinterpret_cast<std::intptr_t>(each.text.constData()));
}

} // namespace engine
