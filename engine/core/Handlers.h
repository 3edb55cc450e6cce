// SPDX-License-Identifier: GPL-3.0-or-later
// The messages that are not answered by translating their row: text in and out, records, and what
// means something else here than in the stock engine.
#pragma once

#include "control/EngineMessages.h"

#include <span>

namespace engine {

class Engine;

using Handler = LRESULT (*)(Engine& engine, WPARAM wParam, LPARAM lParam);

struct HandlerRow
{
    UINT number;
    Handler run;
};

std::span<const HandlerRow> AnalysisHandlers();   // AnalysisHandlers.cpp
std::span<const HandlerRow> TextHandlers();       // TextHandlers.cpp
std::span<const HandlerRow> CaseHandlers();       // CaseHandlers.cpp
std::span<const HandlerRow> DocumentHandlers();   // DocumentHandlers.cpp
std::span<const HandlerRow> ErrorHandlers();      // ErrorHandlers.cpp
std::span<const HandlerRow> ImageHandlers();      // Images.cpp
std::span<const HandlerRow> LineHandlers();       // LineHandlers.cpp
std::span<const HandlerRow> ListHandlers();       // ListHandlers.cpp
std::span<const HandlerRow> MarginTextHandlers(); // MarginTexts.cpp
std::span<const HandlerRow> PositionHandlers();   // PositionHandlers.cpp
std::span<const HandlerRow> SearchHandlers();     // SearchHandlers.cpp
std::span<const HandlerRow> SelectionHandlers();  // SelectionHandlers.cpp
std::span<const HandlerRow> SettingHandlers();    // SettingHandlers.cpp
std::span<const HandlerRow> PrintHandlers();      // Printing.cpp
std::span<const HandlerRow> LookHandlers();       // LookHandlers.cpp

} // namespace engine
