// SPDX-License-Identifier: GPL-3.0-or-later
// Messages of the error list.
#include "engine/core/Engine.h"
#include "engine/core/ErrorList.h"
#include "engine/core/Handlers.h"

namespace engine {
namespace {

constexpr int kMarks = 32; // indicators, and markers

int Number(LPARAM value)
{
    return static_cast<int>(value);
}

int MarkNumber(WPARAM value)
{
    return value < kMarks ? static_cast<int>(value) : kNoMark;
}

template <class T>
LRESULT Address(T* object)
{
    return reinterpret_cast<LRESULT>(object);
}

LRESULT ErrorAdd(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* record = reinterpret_cast<const ErrorInfo*>(lParam);
    return record ? engine.errors->Add(engine, Number(static_cast<LPARAM>(wParam)), *record) : 0;
}

// A message about what two numbers choose.
template <auto Operation>
LRESULT ForNumbers(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    (engine.errors->*Operation)(engine, Number(static_cast<LPARAM>(wParam)), Number(lParam));
    return 0;
}

LRESULT ErrorGetFirst(Engine& engine, WPARAM wParam, LPARAM)
{
    return Address(engine.errors->GetFirst(engine, Number(static_cast<LPARAM>(wParam))));
}

LRESULT ErrorGetNext(Engine& engine, WPARAM wParam, LPARAM)
{
    return Address(engine.errors->GetNext(engine, Number(static_cast<LPARAM>(wParam))));
}

LRESULT ErrorGetOverPos(Engine& engine, WPARAM wParam, LPARAM)
{
    return Address(engine.errors->GetOver(engine, static_cast<long>(wParam)));
}

LRESULT ErrorsGetAll(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    return Address(
        engine.errors->GetAll(engine, Number(static_cast<LPARAM>(wParam)), Number(lParam)));
}

LRESULT ErrorsShow(Engine& engine, WPARAM, LPARAM)
{
    engine.errors->Show(engine);
    return 0;
}

// The window keeps what it has set, for texts that it shows later.
template <auto Setting, std::size_t Which>
LRESULT SetLook(Engine& engine, WPARAM wParam, LPARAM)
{
    const int value = Setting == &ErrorLook::severities ? Number(static_cast<LPARAM>(wParam))
                                                        : MarkNumber(wParam);
    (engine.errorLook.*Setting)[Which] = value;
    ErrorLook look = engine.errors->Look();
    (look.*Setting)[Which] = value;
    engine.errors->SetLook(engine, look);
    return 0;
}

constexpr HandlerRow kRows[] = {
    {message::ErrorAdd, ErrorAdd},
    {message::ErrorDelete, ForNumbers<&ErrorList::Delete>},
    {message::ErrorDeleteAll, ForNumbers<&ErrorList::DeleteAll>},
    {message::ErrorMarkerDeleteAll, ForNumbers<&ErrorList::Unmark>},
    {message::ErrorGetFirst, ErrorGetFirst},
    {message::ErrorGetNext, ErrorGetNext},
    {message::ErrorGetOverPos, ErrorGetOverPos},
    {message::ErrorsGetAll, ErrorsGetAll},
    {message::ErrorsShow, ErrorsShow},
    {message::ErrorsSetIndic, SetLook<&ErrorLook::indicators, 0>},
    {message::WarningsSetIndic, SetLook<&ErrorLook::indicators, 1>},
    {message::ErrorsSetMarkNum, SetLook<&ErrorLook::markers, 0>},
    {message::WarningsSetMarkNum, SetLook<&ErrorLook::markers, 1>},
    {message::SetSyntaxSeverity, SetLook<&ErrorLook::severities, problem::Syntax>},
    {message::SetSemanticSeverity, SetLook<&ErrorLook::severities, problem::Semantic>},
};

} // namespace

std::span<const HandlerRow> ErrorHandlers()
{
    return kRows;
}

} // namespace engine
