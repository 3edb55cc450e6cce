// SPDX-License-Identifier: GPL-3.0-or-later
// What a message hands over is the caller's.
#pragma once

#include "control/EngineMessages.h"
#include "control/PartitionInfo.h"

inline void Release(const engine::MessageRow& row, LRESULT answer)
{
    if (row.result == engine::Kind::TextGiven)
        delete[] reinterpret_cast<char16_t*>(answer);
    if (row.result != engine::Kind::Partitions)
        return;
    for (auto* record = reinterpret_cast<PartitionInfo*>(answer); record;) {
        PartitionInfo* next = record->pNext;
        delete record;
        record = next;
    }
}
