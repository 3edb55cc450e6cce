// SPDX-License-Identifier: GPL-3.0-or-later
// The variables of one run: names, with their ampersands, and values. A lookup enters what it asks
// for with an empty value, and nothing that is entered is ever replaced; a name that was used
// before its definition can therefore not be defined any more. Names differ by case.
//
// A use tries every prefix of a word. These are not kept one by one, which would take the square
// of the word's length, but as the longest word of which each is a prefix.
//
// Names are in order for the sake of words that go on behind a name. A word that is a name is found
// by its hash: in order, 10,000 names cost a use nearly 3 us, most of it for memory that is not at
// hand.
#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <set>

class VariableTable
{
public:
    VariableTable() = default;
    VariableTable(const VariableTable&) = delete; // the hash points at the values
    VariableTable& operator=(const VariableTable&) = delete;

    struct Variable
    {
        QString name;
        QString value;
    };

    bool IsEmpty() const { return m_values.empty() && m_empty.empty() && m_tried.empty(); }
    bool Contains(const QString& name) const;

    // What is there stays.
    void Insert(const QString& name, const QString& value);

    // Empty for a name without a value, which is entered.
    QString Lookup(const QString& name);

    // The longest prefix of the word, itself included, that has a value. Every prefix of three
    // units or more is entered.
    std::optional<Variable> LongestDefined(const QString& word);

private:
    struct Value
    {
        QString text; // never empty
        bool wasTried = false;
    };

    std::optional<Variable> LongestValue(QString word) const;
    bool WasTried(const QString& name) const;
    void EnterTried(const QString& word);

    std::map<QString, Value> m_values;
    QHash<QString, Value*> m_byName; // all of them
    std::set<QString> m_empty;       // asked for, or defined as nothing
    std::set<QString> m_tried;       // words whose prefixes were tried
};
