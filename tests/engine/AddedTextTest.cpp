// SPDX-License-Identifier: GPL-3.0-or-later
// What is told of text that a message brings in.
#include "tests/engine/EngineFixture.h"

#include <gtest/gtest.h>

namespace {

namespace msg = engine::message;
using namespace engine;

class AddedText : public testing::TestWithParam<std::u16string>
{
protected:
    std::u16string Told(UINT number)
    {
        const std::u16string& text = GetParam();
        editor.SetText(u"\u00e9 before\n");
        editor.Parent().heard.clear();
        editor.Send(number, text.size(), text.data());
        std::u16string told;
        for (const Heard& heard : editor.Parent().Of(notify::Modified)) {
            if (heard.record.modificationType & modification::InsertText)
                told += heard.text.substr(0, static_cast<std::size_t>(heard.record.length));
        }
        return told;
    }

    EngineUnderTest editor;
};

TEST_P(AddedText, IsToldAsItStandsInTheText)
{
    for (const UINT number : {msg::AddTextNoProcess, msg::AppendText}) {
        const std::u16string told = Told(number);
        ASSERT_EQ(told.size(), GetParam().size());
        const std::u16string text = editor.Text();
        EXPECT_NE(text.find(told), std::u16string::npos);
    }
}

// Long ones are told from the caller's own text, but for halves of pairs, which the text lacks.
INSTANTIATE_TEST_SUITE_P(Texts, AddedText,
                         testing::Values(std::u16string(u"short \u00e9"),
                                         std::u16string(100, u'\u0431'),
                                         std::u16string(100, u'x') + u"\n\u4e2d\r\n",
                                         std::u16string(100, char16_t(0xD800)),
                                         std::u16string(99, u'\u00e9') + u"\U0001F600",
                                         std::u16string(80, u'\0') + u"\u00e9"));

} // namespace
