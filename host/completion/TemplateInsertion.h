// SPDX-License-Identifier: GPL-3.0-or-later
// Templates put into a view: by their short name and a key, or chosen from its list of proposals.
#pragma once

#include "completion/Proposals.h"
#include "completion/TemplateFile.h"

#include <QObject>

class CZNCoreEditorControlEx;
class CZNCoreEditorView;
class EditorCompletion;

// What may be the beginning of a template's short name: the word up to the caret.
QString NameBeforeCaret(CZNCoreEditorControlEx& editor);

// In place of the units from start to the caret, in one undo step. The person is asked for values
// first, and may decide that nothing is inserted; the view may be gone afterwards.
void InsertTemplate(CZNCoreEditorView& view, const completion::CodeTemplate& made, long start);

// Takes Tab, or the space bar if the language's settings say so (AutoCompKey), behind the short
// name of a template, unless they say that templates stay away (CodeCompletion). Any other key is
// the editor's. A child of the editor's window.
class TemplateKeys final : public QObject, public completion::ProposalSource
{
    Q_OBJECT

public:
    // The view and its completion outlive the keys.
    TemplateKeys(CZNCoreEditorView& view, EditorCompletion& completion);

    bool eventFilter(QObject* watched, QEvent* event) override;

    void Propose(const completion::ProposalQuery& query,
                 std::vector<completion::Proposal>& proposals) override;
    bool Chosen(const completion::Proposal& proposal, long start) override;

private:
    bool IsWanted(int key) const;
    bool Expand();

    CZNCoreEditorView& m_view;
    EditorCompletion& m_completion;
};
