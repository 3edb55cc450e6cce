// SPDX-License-Identifier: GPL-3.0-or-later
// A check of a script's statements by the parser of the database that they are for.
#pragma once

#include <QString>

#include <memory>
#include <vector>

// A statement and where it begins in the script, in UTF-16 units.
struct ScriptStatement
{
    long start = 0;
    QString text;
};

struct ScriptProblem
{
    long start = 0;       // in the script, in UTF-16 units
    long end = 0;         // behind the last unit
    bool isSyntax = true; // false: it may be right where the names that it uses exist
    QString text;

    bool operator==(const ScriptProblem&) const = default;
};

class SyntaxCheck
{
public:
    virtual ~SyntaxCheck() = default;

    // In their order, at most one for each statement, and for each that stands behind a parenthesis
    // of it that is not closed. Nothing of the script is run against
    // a database that exists.
    virtual std::vector<ScriptProblem> Check(const std::vector<ScriptStatement>& statements) = 0;
};

// Null for a language without a parser here. The name is the one that the registry has.
std::unique_ptr<SyntaxCheck> SyntaxCheckFor(const QString& language);
