// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a file of a colour scheme: what is taken for one has all its colours, and each is
// one. Half of the inputs are pieces put into a scheme that ships, which the reader goes through to
// the end.
#include "looks/ColourScheme.h"

#include <QFile>

#include <cstdint>
#include <cstdlib>

namespace {

constexpr COLORREF kMost = 0xFFFFFF;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

const QByteArray& Shipped()
{
    static const QByteArray bytes = [] {
        QFile file(QStringLiteral(ZN_SCHEME));
        Require(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }();
    return bytes;
}

QByteArray Bytes(const char* data, qsizetype size)
{
    constexpr qsizetype kHead = 4;
    if (size <= kHead || data[0] % 2 == 0)
        return QByteArray(data, size);
    const auto byte = [data](int i) { return static_cast<unsigned char>(data[i]); };
    const qsizetype place = (byte(1) << 8 | byte(2)) % Shipped().size();
    return QByteArray(Shipped()).replace(place, byte(3) % 40,
                                         QByteArray(data + kHead, size - kHead));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto scheme = ColourScheme::Parse(
        Bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!scheme)
        return 0;
    for (int drawn = 0; drawn < static_cast<int>(Drawn::Count); ++drawn)
        Require(scheme->Of(static_cast<Drawn>(drawn)) <= kMost);
    if (const auto text = scheme->OfRole(QStringLiteral("text")))
        Require(text->fore <= kMost && text->back <= kMost);
    return 0;
}
