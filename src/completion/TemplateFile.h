// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// TemplateFile: templates as people write them, in a text file of UTF-8:
///
///     templates 1
///     What stands before the first template is a remark.
///
///     include SQL.txt
///
///     == sel: Select from a table
///     SELECT ^!
///     FROM ^#Table#^
///
/// A template begins with a line of two equals signs: its short name, a colon, and what it is. What
/// follows up to the next one is its text. Empty lines at its end are left out, and a backslash in
/// front of an equals sign that begins a line is taken off. In the text ^# and #^ enclose what a
/// person is asked for, and ^! is where the caret goes. A line "include NAME" before the first
/// template names another file of the same folder, whose templates come behind these.
#pragma once

#include "common/Export.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace completion {

/// One template.
struct CodeTemplate
{
    QString shortName; ///< no blanks in it
    QString title;     ///< what it is, behind the colon
    QStringList lines; ///< without line ends
};

/// What a text of templates has.
struct TemplateFile
{
    bool isOne = false;                  ///< the first line says so
    std::vector<CodeTemplate> templates; ///< in their order
    QStringList includes;                ///< names of files, in their order
    int badLine =
        -1; ///< the first line, from 0, of a template that has no short name; it is left out
};

/// Of a text; a byte-order mark in front is no part of it.
ZN_API TemplateFile ParseTemplates(const QString& text);

/// Of a file, with what it includes, each file once; what its folder lacks is looked for in the
/// other one. Not one: the file is missing, too long (16 MB)
/// or none of templates. Of two templates of one short name the first one stays.
ZN_API TemplateFile ReadTemplates(const QString& path, const QString& otherFolder = {});

/// Those that fit what was typed of the short name or the title, the best first, by their place.
ZN_API std::vector<int> FindTemplates(const std::vector<CodeTemplate>& templates,
                                      const QString& typed, std::size_t most);

} // namespace completion
