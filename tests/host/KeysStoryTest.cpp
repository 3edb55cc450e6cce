// SPDX-License-Identifier: GPL-3.0-or-later
// A key that a person gives to a command, with real keys.
#include "tests/host/WindowStory.h"

namespace {

class KeysStory : public WindowStory
{};

} // namespace

// The engine deletes the caret's line on this key where nobody above it takes the key.
TEST_F(KeysStory, AKeyThatAPersonGivesIsTheCommandsAndNoLineGoes)
{
    Keys({"F1"});
    ASSERT_TRUE(Eventually([] { return !Visible("^Keys$").isEmpty(); }));
    XDoTool({"windowfocus", "--sync", Visible("^Keys$")});
    Type("all occurrences");
    Keys({"Return", "Return", "ctrl+shift+l"});
    ASSERT_NO_FATAL_FAILURE(Answer("alt+m")); // the text gives it up
    XDoTool({"windowfocus", "--sync", Visible("^Keys$")});
    Keys({"Escape"});
    ASSERT_TRUE(Eventually([] { return Visible("^Keys$").isEmpty(); }));
    Focus();
    Keys({"ctrl+Home", "ctrl+shift+l"});
    Type("x");
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([&] { return Read() == "x 1;\nx 2;\n"; })) << Read().toStdString();
}
