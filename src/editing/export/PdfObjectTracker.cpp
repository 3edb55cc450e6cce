// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/export/PdfObjectTracker.h"

int PdfObjectTracker::WriteObject(const std::string& text)
{
    if (next > capacity) {
        capacity *= 2;
        offsets.resize(static_cast<std::size_t>(capacity));
    }
    offsets[static_cast<std::size_t>(next - 1)] = static_cast<int>(std::ftell(file));
    std::fprintf(file, "%d 0 obj\n", next);
    std::fwrite(text.data(), 1, text.size(), file);
    std::fputs("endobj\n", file);
    return next++;
}

int PdfObjectTracker::WriteOffsets()
{
    const int start = static_cast<int>(std::ftell(file));
    std::fprintf(file, "xref\n0 %d\n0000000000 65535 f \n", next);
    for (int object = 1; object < next; ++object)
        std::fprintf(file, "%010d 00000 n \n", offsets[static_cast<std::size_t>(object - 1)]);
    return start;
}
