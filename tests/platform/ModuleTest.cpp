// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Module.h"

#include <gtest/gtest.h>

namespace {

TEST(Modules, OneThatIsNotThereIsNull)
{
    EXPECT_EQ(LoadModule(u"NoSuchModuleAnywhere"), nullptr);
}

TEST(Modules, AreFoundByTheirBareName)
{
    const HINSTANCE module = LoadModule(u"ZNPlatform");
    EXPECT_NE(module, nullptr);
    EXPECT_EQ(LoadModule(u"ZNPlatform"), module);
}

} // namespace
