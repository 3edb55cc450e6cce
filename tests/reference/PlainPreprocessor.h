// SPDX-License-Identifier: GPL-3.0-or-later
// The pre-processor in its plainest form, over a string: every pass from its start to the text's
// end, every prefix a key of its own, the styles of the whole text anew for each question.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace reference {

struct Origin // of a unit: the file (0: the script) and its line; -1: a marker that was put in
{
    int file = 0;
    int line = 0;
};

class PlainPreprocessor
{
public:
    using Styles = std::function<std::vector<int>(const std::u16string& text)>;
    using Files = std::map<std::u16string, std::u16string>; // by the name that lines use

    PlainPreprocessor(int lexer, std::u16string marker, std::u16string wordCharacters,
                      Styles styles, Files files)
        : m_lexer(lexer), m_marker(std::move(marker)), m_wordCharacters(std::move(wordCharacters)),
          m_stylesOf(std::move(styles)), m_files(std::move(files))
    {}

    void Run(const std::u16string& script);

    std::u16string text;
    std::vector<Origin> origins;               // of each unit of the text
    std::vector<std::u16string> fileOf{u""};   // by number
    std::map<int, std::u16string> failedNames; // by line
    bool found = false;

private:
    using Table = std::map<std::u16string, std::u16string>;

    void ExpandDefines(Table& table, std::size_t start);
    void ExpandIncludes(Table& table);
    bool ExpandInclude(const std::u16string& line, std::size_t start, std::size_t end);
    bool VisitDefinition(Table& table, std::size_t hit, std::u16string& previous,
                         std::size_t& commentLength);
    void VisitUse(Table& table, std::size_t hit);
    void Replace(std::size_t at, const std::u16string& what, const std::u16string& with);
    void Insert(std::size_t at, const std::u16string& what, Origin origin);
    std::size_t Find(const std::u16string& what, std::size_t from, std::size_t to) const;
    std::size_t FindWord(const std::u16string& what, std::size_t from) const;
    int ClassOf(char16_t unit) const;
    std::size_t LineStart(std::size_t at) const;
    std::size_t LineEnd(std::size_t at) const;
    int LineOf(std::size_t at) const;
    std::u16string LineAt(std::size_t at) const;
    int StyleAt(std::size_t at);
    bool IsDialect() const;
    bool InComment(std::size_t at);
    bool InString(std::size_t at);

    int m_lexer;
    std::u16string m_marker;
    std::u16string m_wordCharacters;
    Styles m_stylesOf;
    Files m_files;
    std::set<std::u16string> m_done;
    std::u16string m_styledText;
    std::vector<int> m_styles;
};

} // namespace reference
