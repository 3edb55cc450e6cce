// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What might complete the word at the caret, and who proposes it. A host adds sources of its own:
/// the tables of a connection, the procedures of a server.
#pragma once

#include "common/Export.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

/// Names and words that may complete what somebody types.
namespace completion {

/// What a proposal is; a list shows it by a letter and by its name.
enum class ProposalKind : std::uint8_t
{
    Column,    ///< of a table
    Variable,  ///< of a script or a routine
    Parameter, ///< of a routine
    Alias,     ///< another name of a table, in one statement
    Cte,       ///< a query with a name, in one statement
    Table,     ///< of the script or of a host's source
    View,      ///< the same
    Procedure, ///< the same
    Function,  ///< the same, or one of the language
    Type,      ///< of data
    Keyword,   ///< of the language
    System,    ///< what the server brings: its views, its variables
    Object,    ///< any other thing that has a name
    Template,  ///< text with fields
    Word,      ///< of the text
};

/// What a list calls it, for a person: "column", "keyword".
ZN_API QString KindName(ProposalKind kind);

/// One row of the list.
struct Proposal
{
    ProposalKind kind = ProposalKind::Word; ///< what the row is
    QString text;                           ///< what takes the place of the typed word
    QString description{};                  ///< one line, or empty
    /// What the typed word is compared with, if it is not the text: a name without its quotes.
    QString name{};
    int rank = 0; ///< the smaller comes first among those that fit equally well
    int data = 0; ///< the source's own, handed back to Chosen

    /// What the typed word is compared with.
    const QString& Compared() const { return name.isEmpty() ? text : name; }
};

/// Where somebody types.
struct ProposalQuery
{
    /// What the word may be, by what stands before it.
    enum class Place : std::uint8_t
    {
        Anywhere, ///< nothing is known of it
        Table,    ///< behind FROM and its like
        Routine,  ///< behind EXEC and CALL
        OwnName,  ///< a name that is given here: nobody needs proposals, unless he asks
        Comment,  ///< inside of a comment
        String,   ///< inside of a string
    };

    QString typed;                 ///< the word up to the caret; may be empty
    QStringList qualifier;         ///< the names before it that points follow, without quotes
    Place place = Place::Anywhere; ///< what may stand there
    long start = 0;                ///< of the word, in units of the text
    long caret = 0;                ///< where somebody types, in units of the text
    bool isAsked = false;          ///< by a person, not by typing
    /// The tables that the queries around the caret name, the innermost query's first, each once;
    /// without quotes and schema.
    QStringList tables;
    /// The one of them that the last name of the qualifier means, by an alias or by its own name;
    /// empty: none.
    QString table;
};

/// Asked on the GUI thread at each letter, and has to answer within a few milliseconds. One that
/// has to wait for its answer gives what it has, and calls Completer::Refresh once it knows more.
/// What does not fit what was typed is left out of the list afterwards.
class ZN_API ProposalSource
{
public:
    virtual ~ProposalSource(); ///< to be taken out of the completer before
    /// Appends what it has for the query; nothing is taken away.
    virtual void Propose(const ProposalQuery& query, std::vector<Proposal>& proposals) = 0;
    /// One of its proposals was chosen. True if the source has put it in by itself: `start` is
    /// where the typed word begins, up to the caret.
    virtual bool Chosen(const Proposal& proposal, long start);
};

/// What fits, the best first, each text once for a kind of its own; `most` of them at most.
ZN_API std::vector<Proposal> BestOf(std::vector<Proposal> proposals, const QString& typed,
                                    std::size_t most);

} // namespace completion
