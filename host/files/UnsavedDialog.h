// SPDX-License-Identifier: GPL-3.0-or-later
// Several scripts with changes, before all of them are closed: which are to be saved.
#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>

class QListWidget;
class QPushButton;

class UnsavedDialog final : public QDialog
{
    Q_OBJECT

public:
    UnsavedDialog(QWidget* parent, const QStringList& names);

    // Whether each of the names is to be saved. Means something once the dialog is accepted.
    QList<bool> Choices() const;

private:
    void SayWhat();

    QListWidget* m_list;
    QPushButton* m_save;
    bool m_discardsAll = false;
};
