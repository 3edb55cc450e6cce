// SPDX-License-Identifier: GPL-3.0-or-later
// The directive language of scripts, a line at a time: "#include" with a file's name, "#define"
// with a variable and its value. The words come from the table of texts, so a translation may
// change them. Knows text alone. A blank is what QChar calls a space.
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace directive {

// The file that an include line names. The directive is taken to stand in front, whatever stands
// there: that many characters are dropped. An empty marker cuts nothing.
QString IncludedName(const QString& trimmedLine, qsizetype wordLength, const QString& marker);

struct Definition
{
    QString name; // with its ampersands
    QString value;
};

// A line that begins with the word and a blank.
bool IsDefinition(QStringView line, QStringView word);

// Its parts, trimmed; nothing for a line of another form. A value may be empty: it is, if two
// blanks or more follow the name.
std::optional<Definition> ReadDefinition(QStringView line, QStringView word);

// The first variable in a definition's value, and what stands around it. The name runs up to the
// next ampersand or the end, blanks and all: "&&A more" is one name.
struct Reference
{
    QString name;       // with its ampersands; these alone if nothing follows
    QString prefix;     // what stands before it
    int pieces = 0;     // of the value, between ampersands
    bool leads = false; // the value begins with it
};

// Nothing if the value holds no variable.
std::optional<Reference> FirstReference(const QString& value);

// A character of a variable's name by its low eight bits, so that U+0141 counts as "A".
bool IsNameCharacter(char16_t unit);

QStringView TrimmedLeft(QStringView text);

} // namespace directive
