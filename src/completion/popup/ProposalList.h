// SPDX-License-Identifier: GPL-3.0-or-later
// ProposalList: the list below the caret. It never has the focus: whoever shows it hands it the
// keys. Assistive technology hears which row is the current one.
#pragma once

#include "completion/Proposals.h"

#include <QFrame>

class ColourScheme;
class QLabel;
class QListView;

namespace completion {

class ProposalModel;

class ProposalList final : public QFrame
{
    Q_OBJECT

public:
    explicit ProposalList(QWidget* editor);

    void SetColours(const ColourScheme* scheme); // null: the application's
    // None is current. The list may tell which key takes a row: with none current Enter is the
    // editor's.
    void SetProposals(std::vector<Proposal> proposals, bool tellsKeys);
    // Below the place, or above it if there is more room: a line of text on the screen.
    void ShowAt(const QRect& line);

    int Count() const;
    int Current() const; // -1: none
    void SetCurrent(int row);
    void Step(int rows); // from the end to the start for a step of one
    int RowsShown() const;
    const Proposal& At(int row) const;
    QListView& View() const { return *m_view; }

Q_SIGNALS:
    void Clicked(int row);

private:
    void Fit();
    void Tell(int row);
    void TellKeys();

    QListView* m_view;
    QFrame* m_edge; // between the rows and the keys
    QLabel* m_keys;
    ProposalModel* m_model;
    QRect m_line;
};

} // namespace completion
