// SPDX-License-Identifier: GPL-3.0-or-later
// The bodies of the wrappers: each hands its parameters to Call and answers in its row's type.
#include "control/ZNCoreEditorControl.h"

#include <type_traits>

namespace {

// A parameter as Call takes it: pointers as they are, numbers with their sign.
template <class T>
LPARAM Word(T value)
{
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<LPARAM>(value);
    else
        return static_cast<LPARAM>(value);
}

template <class T>
T Answer(LRESULT answer)
{
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<T>(answer);
    else
        return static_cast<T>(answer);
}

} // namespace

// clang-format off
#define ZN_WRAPPER(name, result, parameters, wParam, lParam)                                       \
    engine::CppType<engine::Kind::result> CZNCoreEditorControl::name parameters                    \
    {                                                                                              \
        return Answer<engine::CppType<engine::Kind::result>>(                                      \
            Call(engine::message::name, static_cast<WPARAM>(wParam), lParam, direct));             \
    }
#define ZN_A(name, number, result) ZN_WRAPPER(name, result, (int direct), 0, 0)
#define ZN_B(name, number, result, kind, arg)                                                      \
    ZN_WRAPPER(name, result, (engine::CppType<engine::Kind::kind> arg, int direct), Word(arg), 0)
#define ZN_C(name, number, result, kind, arg, kind2, arg2)                                         \
    ZN_WRAPPER(name, result,                                                                       \
               (engine::CppType<engine::Kind::kind> arg,                                           \
                engine::CppType<engine::Kind::kind2> arg2, int direct),                            \
               Word(arg), Word(arg2))
#define ZN_D(name, number, result, kind, arg)                                                      \
    ZN_WRAPPER(name, result, (engine::CppType<engine::Kind::kind> arg, int direct), 0, Word(arg))
#define ZN_OWN(...)
// clang-format on
#include "control/EngineMessages.def"
#undef ZN_WRAPPER
