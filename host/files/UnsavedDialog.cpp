// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/UnsavedDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

UnsavedDialog::UnsavedDialog(QWidget* parent, const QStringList& names)
    : QDialog(parent), m_list(new QListWidget(this))
{
    setWindowTitle(tr("Unsaved changes"));
    auto* text =
        new QLabel(tr("These scripts have changes that are not saved. Those without a tick "
                      "lose them."),
                   this);
    text->setWordWrap(true);
    text->setBuddy(m_list);
    m_list->setObjectName(QStringLiteral("unsaved"));
    m_list->setAccessibleName(tr("Scripts to save"));
    for (const QString& name : names) {
        auto* item = new QListWidgetItem(name, m_list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    m_list->setCurrentRow(0);

    auto* buttons = new QDialogButtonBox(this);
    m_save = buttons->addButton(tr("&Save"), QDialogButtonBox::AcceptRole);
    auto* discard = buttons->addButton(tr("&Discard All"), QDialogButtonBox::DestructiveRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    m_save->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(discard, &QPushButton::clicked, this, [this] {
        m_discardsAll = true;
        accept();
    });
    connect(m_list, &QListWidget::itemChanged, this, &UnsavedDialog::SayWhat);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    m_save->setFocus();
}

// Nothing is saved without a tick: that is what the other button is for.
void UnsavedDialog::SayWhat()
{
    bool any = false;
    for (int i = 0; i < m_list->count(); ++i)
        any = any || m_list->item(i)->checkState() == Qt::Checked;
    m_save->setEnabled(any);
}

QList<bool> UnsavedDialog::Choices() const
{
    QList<bool> choices;
    for (int i = 0; i < m_list->count(); ++i)
        choices << (!m_discardsAll && m_list->item(i)->checkState() == Qt::Checked);
    return choices;
}
