// SPDX-License-Identifier: GPL-3.0-or-later
// An SQL text in an engine window, its styles as letters and its folds as a picture.
#pragma once

#include "tests/engine/EngineFixture.h"

#include <string>

class SqlUnderTest : public EngineUnderTest
{
public:
    explicit SqlUnderTest(int lexer, const std::u16string& text = {});

    void SetProperty(const char16_t* key, const char16_t* value) const;
    void SetWords(int set, const char16_t* words) const;

    // All of it from the start, whatever stands there.
    void Style() const { Send(engine::message::Colorize, 0, LPARAM{-1}); }
    // What is not styled yet.
    void StyleRest() const;
    void FoldAlso() const; // sets the properties that switch folding

    int StyleAt(long position) const;
    std::string Letters() const; // one for each unit, line ends as they are

    // A line for each of the text's: its depth, H for a header, B for a blank line, | and the text.
    std::string Folds() const;
    std::vector<int> Levels() const;
    std::vector<int> Styles() const;

private:
    int m_lexer;
};

// Cuts the fronts off a picture of folds, styles what is left and gives the picture of that.
std::string FoldsOf(int lexer, const std::string& picture, const char16_t* dialect = u"sql");
