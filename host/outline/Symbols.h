// SPDX-License-Identifier: GPL-3.0-or-later
// What a script defines, for an outline: tables with their columns, routines with their parameters,
// steps that it announces. Knows text alone.
#pragma once

#include "completion/ScriptNames.h"

#include <QString>

#include <vector>

struct Symbol
{
    QString name;
    const char* kind = ""; // "Table"; KindText has it in the words of people
    long start = 0;        // of the name in the text, in UTF-16 units
    long end = 0;          // the start where it is not known
    bool isInside = false; // of the last one that is not
};

// In their order. The language by its name in the registry; none of one that is no SQL.
std::vector<Symbol> SymbolsOf(const QString& text, const QString& language);
bool HasSymbols(const QString& language);
// Those among the names, in their order.
std::vector<Symbol> SymbolsOf(std::vector<completion::ScriptName> names);

QString KindText(const Symbol& symbol);
