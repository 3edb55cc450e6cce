// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of comment markers share: one operation on a marked text.
#pragma once

#include "tests/editing/EditingFixture.h"

// With the operation's two forms: markers around the text, or in front of its lines.
template <bool (CZNCoreEditorControlEx::*Change)(int index, bool useBlock)>
class CommentTest : public EditingTest
{
protected:
    std::u16string Block(const std::u16string& marked) { return After(marked, true); }
    std::u16string Lines(const std::u16string& marked) { return After(marked, false); }

    // Where only the text counts.
    std::u16string BlockText(const std::u16string& marked)
    {
        Block(marked);
        return Text();
    }

private:
    std::u16string After(const std::u16string& marked, bool useBlock)
    {
        Put(marked);
        EXPECT_TRUE((control.*Change)(0, useBlock));
        return Marked();
    }
};
