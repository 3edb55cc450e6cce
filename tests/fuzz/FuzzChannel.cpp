// SPDX-License-Identifier: GPL-3.0-or-later
// Messages with any parameters, keys and the mouse: the bytes choose what the walk of the engine's
// tests draws at random. A choice among up to 256 takes one byte, any other one takes two.
#include "tests/engine/ChannelWalk.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

class Choices
{
public:
    Choices(const std::uint8_t* data, std::size_t size) : m_next(data), m_end(data + size) {}

    bool AreOver() const { return m_next == m_end; }

    long Draw(long low, long high)
    {
        const unsigned long span = static_cast<unsigned long>(high - low) + 1;
        unsigned long value = Byte();
        if (span > 256)
            value = value << 8 | Byte();
        return low + static_cast<long>(value % span);
    }

private:
    unsigned long Byte() { return AreOver() ? 0 : *m_next++; }

    const std::uint8_t* m_next;
    const std::uint8_t* m_end;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static auto* application = new QApplication(count, arguments);
    Choices choices(data, size);
    {
        ChannelWalk walk([&choices](long low, long high) { return choices.Draw(low, high); });
        while (!choices.AreOver()) {
            if (walk.Step())
                continue;
            std::fprintf(stderr, "does not hold: %s\n", walk.Fault().c_str());
            std::abort();
        }
    }
    application->processEvents();
    return 0;
}
