// SPDX-License-Identifier: GPL-3.0-or-later
// What might complete the word at the caret, and who proposes it. A host adds sources of its own:
// the tables of a connection, the procedures of a server.
#pragma once

#include "common/Export.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace completion {

enum class ProposalKind : std::uint8_t
{
    Column,
    Variable,
    Parameter,
    Alias,
    Cte,
    Table,
    View,
    Procedure,
    Function,
    Type,
    Keyword,
    System, // what the server brings: its views, its variables
    Object, // any other thing that has a name
    Template,
    Word, // of the text
};

// What a list calls it, for a person: "column", "keyword".
ZN_API QString KindName(ProposalKind kind);

struct Proposal
{
    ProposalKind kind = ProposalKind::Word;
    QString text;        // what takes the place of the typed word
    QString description; // one line, or empty
    // What the typed word is compared with, if it is not the text: a name without its quotes.
    QString name;
    int rank = 0; // the smaller comes first among those that fit equally well
    int data = 0; // the source's own, handed back to Chosen

    const QString& Compared() const { return name.isEmpty() ? text : name; }
};

// Where somebody types.
struct ProposalQuery
{
    // What the word may be, by what stands before it.
    enum class Place : std::uint8_t
    {
        Anywhere,
        Table,   // behind FROM and its like
        Routine, // behind EXEC and CALL
        OwnName, // a name that is given here: nobody needs proposals, unless he asks
        Comment,
        String,
    };

    QString typed;         // the word up to the caret; may be empty
    QStringList qualifier; // the names before it that points follow, without quotes
    Place place = Place::Anywhere;
    long start = 0; // of the word, in units of the text
    long caret = 0;
    bool isAsked = false; // by a person, not by typing
};

// Asked on the GUI thread at each letter, and has to answer within a few milliseconds. One that has
// to wait for its answer gives what it has, and calls Completer::Refresh once it knows more. What
// does not fit what was typed is left out of the list afterwards.
class ZN_API ProposalSource
{
public:
    virtual ~ProposalSource();
    virtual void Propose(const ProposalQuery& query, std::vector<Proposal>& proposals) = 0;
    // One of its proposals was chosen. True if the source has put it in by itself: `start` is where
    // the typed word begins, up to the caret.
    virtual bool Chosen(const Proposal& proposal, long start);
};

// What fits, the best first, each text once for a kind of its own; `most` of them at most.
ZN_API std::vector<Proposal> BestOf(std::vector<Proposal> proposals, const QString& typed,
                                    std::size_t most);

} // namespace completion
