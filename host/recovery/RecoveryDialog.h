// SPDX-License-Identifier: GPL-3.0-or-later
// The list of what crashes have left: each copy with its age and that of its file, how the two
// differ, and what is to become of it. It changes nothing itself.
#pragma once

#include "host/recovery/RecoverableCopy.h"

#include <QDialog>
#include <QList>

#include <vector>

class ComparisonView;
class QComboBox;
class QTreeWidget;

class RecoveryDialog final : public QDialog
{
    Q_OBJECT

public:
    RecoveryDialog(QWidget* parent, const QList<RecoverableCopy>& copies);
    ~RecoveryDialog() override;

    // One for each copy. A dialog that was not accepted leaves all for later.
    QList<RecoveryChoice> Choices() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddCopy(const RecoverableCopy& copy);
    void ChooseForAll(RecoveryChoice choice);
    void Compare(int row);

    QList<RecoverableCopy> m_copies;
    QTreeWidget* m_list;
    std::vector<QComboBox*> m_choices;
    ComparisonView* m_comparison;
};
