// SPDX-License-Identifier: GPL-3.0-or-later
// A walk over the message table: every wrapper by both paths.
#include "tests/control/ControlFixture.h"
#include "tests/control/RecordingEngine.h"

#include <type_traits>

namespace {

using engine::CppType;
using engine::Kind;

struct Words
{
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

struct WrapperCase
{
    const char* name;
    UINT number;
    LRESULT answer; // 0 where the wrapper gives none
    Words words;
    LRESULT (*call)(CZNCoreEditorControl& control, int direct);
};

char16_t buffers[2][64];

// A value of a parameter that no other parameter of the row has. The second of two is negative.
template <Kind K, int Which>
CppType<K> Sample()
{
    using T = CppType<K>;
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<T>(buffers[Which]);
    else if constexpr (K == Kind::Colour)
        return 0x00C0FFEE + Which;
    else
        return Which == 0 ? 1234567 : -7654321;
}

template <class T>
LPARAM WordOf(T value)
{
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<LPARAM>(value);
    else
        return static_cast<LPARAM>(value);
}

template <Kind Result, class Run>
LRESULT Result1(Run run)
{
    if constexpr (Result == Kind::None) {
        run();
        return 0;
    } else {
        return WordOf(run());
    }
}

constexpr LRESULT kAnswer = 24681357;
constexpr LRESULT AnswerOf(Kind result)
{
    return result == Kind::None ? 0 : kAnswer;
}

// The lengths of texts are ruled by the engine's table, so the walk gives lengths that fit.
template <>
int Sample<Kind::Count, 0>()
{
    return 3;
}

// clang-format off
const WrapperCase kCases[] = {
#define ZN_A(name, number, result)                                                                 \
    {#name, number, AnswerOf(Kind::result), {}, [](CZNCoreEditorControl& control, int direct) {    \
         return Result1<Kind::result>([&] { return control.name(direct); });                       \
     }},
#define ZN_B(name, number, result, kind, arg)                                                      \
    {#name, number, AnswerOf(Kind::result),                                                        \
     {static_cast<WPARAM>(WordOf(Sample<Kind::kind, 0>())), 0},                                    \
     [](CZNCoreEditorControl& control, int direct) {                                               \
         return Result1<Kind::result>(                                                             \
             [&] { return control.name(Sample<Kind::kind, 0>(), direct); });                       \
     }},
#define ZN_C(name, number, result, kind, arg, kind2, arg2)                                         \
    {#name, number, AnswerOf(Kind::result),                                                        \
     {static_cast<WPARAM>(WordOf(Sample<Kind::kind, 0>())), WordOf(Sample<Kind::kind2, 1>())},     \
     [](CZNCoreEditorControl& control, int direct) {                                               \
         return Result1<Kind::result>([&] {                                                        \
             return control.name(Sample<Kind::kind, 0>(), Sample<Kind::kind2, 1>(), direct);       \
         });                                                                                       \
     }},
#define ZN_D(name, number, result, kind, arg)                                                      \
    {#name, number, AnswerOf(Kind::result), {0, WordOf(Sample<Kind::kind, 1>())},                  \
     [](CZNCoreEditorControl& control, int direct) {                                               \
         return Result1<Kind::result>(                                                             \
             [&] { return control.name(Sample<Kind::kind, 1>(), direct); });                       \
     }},
#define ZN_OWN(...)
#include "control/EngineMessages.def"
};
// clang-format on

class EveryWrapper : public ControlTest, public testing::WithParamInterface<WrapperCase>
{
protected:
    void Expect(int direct)
    {
        recording::Forget();
        recording::AnswerTo(GetParam().number, [](WPARAM, LPARAM) { return kAnswer; });
        EXPECT_EQ(GetParam().call(control, direct), GetParam().answer);
        ASSERT_EQ(recording::Messages().size(), 1u);
        const recording::Message& message = recording::Messages().front();
        EXPECT_EQ(message.number, GetParam().number);
        EXPECT_EQ(message.direct, direct != 0);
        EXPECT_EQ(message.wParam, GetParam().words.wParam);
        EXPECT_EQ(message.lParam, GetParam().words.lParam);
        EXPECT_EQ(message.window, control.GetSafeHwnd());
    }
};

TEST_P(EveryWrapper, SendsItsNumberInItsShapeByTheDirectFunction)
{
    Expect(1);
}

TEST_P(EveryWrapper, SendsItsNumberInItsShapeAsAWindowMessage)
{
    Expect(0);
}

TEST_P(EveryWrapper, AnswersNothingWithoutALiveWindow)
{
    delete control.GetSafeHwnd();
    recording::Forget();
    recording::AnswerTo(GetParam().number, [](WPARAM, LPARAM) { return kAnswer; });
    EXPECT_EQ(GetParam().call(control, 1), 0);
    EXPECT_EQ(GetParam().call(control, 0), 0);
    EXPECT_TRUE(recording::Messages().empty());
}

INSTANTIATE_TEST_SUITE_P(Table, EveryWrapper, testing::ValuesIn(kCases),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST(MessageTable, HoldsEveryFamilyOfTheSurface)
{
    EXPECT_EQ(std::size(kCases) + 15, std::size(engine::kMessageRows));
    EXPECT_GT(std::size(kCases), 420u);
}

} // namespace
