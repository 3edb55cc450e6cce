// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Signatures: what the functions of a language take, read from a text of one line for each:
///
///     [Transact-SQL, Azure SQL]
///     substring(text, start, length) -- part of a text
///
/// A line in brackets names the languages that those behind it belong to; * is all of SQL. What
/// begins with # is a remark.
#pragma once

#include "common/Export.h"

#include <QHash>
#include <QString>

#include <utility>
#include <vector>

namespace completion {

/// A routine as a person reads it.
struct Signature
{
    QString text;                               ///< name(parameters); empty: it is unknown
    std::vector<std::pair<int, int>> arguments; ///< where each stands in the text, and behind it
    QString description;                        ///< behind the two dashes of its line; may be empty
};
/// Finds the arguments in "name(first, second)", each with its place.
ZN_API Signature ParseSignature(const QString& text, const QString& description);

/// What the functions of one language take.
class ZN_API Signatures
{
public:
    Signatures() = default; ///< no function is known
    /// Of the languages' names in the text those are taken that are `language`'s.
    Signatures(const QString& text, const QString& language, bool isSql);

    /// Empty for a function that is unknown. In any case.
    Signature Of(const QString& name) const;
    qsizetype Count() const { return m_lines.size(); } ///< how many functions are known

private:
    QHash<QString, QString> m_lines; // by the name in lower case
};

} // namespace completion
