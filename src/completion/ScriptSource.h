// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptSource: proposes what a script and its language know: columns, variables, aliases, tables,
// routines, keywords, words of the text; and what other scripts create.
#pragma once

#include "completion/CaretContext.h"
#include "completion/Definitions.h"
#include "completion/LanguageWords.h"

namespace completion {

// The index and what reads its text outlive the source.
class ScriptSource final : public ProposalSource
{
public:
    ScriptSource(const ScriptIndex& index, ScriptIndex::Read read);

    void SetLanguage(std::vector<LanguageWord> words);
    // They outlive the source.
    void SetOthers(std::vector<OtherText> others) { m_others = std::move(others); }
    // The context that the next query is asked in; the one that ContextAt gives for its caret.
    void SetContext(CaretContext context) { m_context = std::move(context); }
    const CaretContext& Context() const { return m_context; }

    // The last that is asked: whether keywords are wanted depends on what is proposed by then.
    void Propose(const ProposalQuery& query, std::vector<Proposal>& proposals) override;

private:
    void ProposeColumns(std::vector<Proposal>& proposals) const;
    bool ProposeQualified(const ProposalQuery& query, std::vector<Proposal>& proposals) const;
    void ProposeLocals(const ProposalQuery& query, std::vector<Proposal>& proposals) const;
    void ProposeObjects(const ProposalQuery& query, std::vector<Proposal>& proposals) const;
    void ProposeOthers(const ProposalQuery& query, std::vector<Proposal>& proposals) const;
    void ProposeLanguage(const ProposalQuery& query, bool takesKeywords,
                         std::vector<Proposal>& proposals) const;
    void ProposeWords(const ProposalQuery& query, bool takesKeywords,
                      std::vector<Proposal>& proposals) const;
    static bool TakesKeywords(const ProposalQuery& query, const std::vector<Proposal>& proposals);
    void AddColumns(const std::vector<Column>& columns, int& rank,
                    std::vector<Proposal>& proposals) const;
    bool IsKeyword(const QString& name) const;
    Proposal Named(ProposalKind kind, const QString& name, int rank,
                   const QString& description = {}, bool wasQuoted = false) const;

    const ScriptIndex& m_index;
    ScriptIndex::Read m_read;
    std::vector<LanguageWord> m_words;
    std::vector<OtherText> m_others;
    CaretContext m_context;
};

} // namespace completion
