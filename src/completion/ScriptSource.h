// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptSource: proposes what a script and its language know: columns, variables, aliases, tables,
// routines, keywords, words of the text.
#pragma once

#include "completion/CaretContext.h"
#include "completion/LanguageWords.h"

namespace completion {

struct Column;

// The index and what reads its text outlive the source.
class ScriptSource final : public ProposalSource
{
public:
    ScriptSource(const ScriptIndex& index, ScriptIndex::Read read);

    void SetLanguage(std::vector<LanguageWord> words);
    // The context that the next query is asked in; the one that ContextAt gives for its caret.
    void SetContext(CaretContext context) { m_context = std::move(context); }
    const CaretContext& Context() const { return m_context; }

    void Propose(const ProposalQuery& query, std::vector<Proposal>& proposals) override;

private:
    void ProposeColumns(std::vector<Proposal>& proposals) const;
    bool ProposeQualified(const ProposalQuery& query, std::vector<Proposal>& proposals) const;
    void ProposeLocals(const ProposalQuery& query, std::vector<Proposal>& proposals) const;
    void ProposeObjects(const ProposalQuery& query, std::vector<Proposal>& proposals) const;
    void ProposeLanguage(const ProposalQuery& query, bool takesKeywords,
                         std::vector<Proposal>& proposals) const;
    void ProposeWords(const ProposalQuery& query, bool takesKeywords,
                      std::vector<Proposal>& proposals) const;
    static bool FitsTable(const ProposalQuery& query, const std::vector<Proposal>& proposals);
    void AddColumns(const std::vector<Column>& columns, int& rank,
                    std::vector<Proposal>& proposals) const;
    bool IsKeyword(const QString& name) const;
    bool IsQuotedAt(long position) const;
    Proposal Named(ProposalKind kind, const QString& name, int rank,
                   const QString& description = {}, bool wasQuoted = false) const;

    const ScriptIndex& m_index;
    ScriptIndex::Read m_read;
    std::vector<LanguageWord> m_words;
    CaretContext m_context;
};

} // namespace completion
