// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/session/AutosaveDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>

AutosaveDialog::AutosaveDialog(QWidget* parent, const AutosaveSettings& settings)
    : QDialog(parent), m_on(new QCheckBox(tr("&Keep copies of unsaved changes"), this)),
      m_minutes(new QSpinBox(this))
{
    setWindowTitle(tr("Autosave"));
    m_on->setObjectName(QStringLiteral("autosaveOn"));
    m_on->setChecked(settings.on);
    m_minutes->setObjectName(QStringLiteral("autosaveMinutes"));
    m_minutes->setRange(1, AutosaveSettings::kMostMinutes);
    m_minutes->setValue(settings.minutes);
    m_minutes->setEnabled(settings.on);
    connect(m_on, &QCheckBox::toggled, m_minutes, &QWidget::setEnabled);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QFormLayout(this);
    layout->addRow(m_on);
    layout->addRow(tr("&Minutes between copies"), m_minutes);
    layout->addRow(buttons);
}

AutosaveSettings AutosaveDialog::Settings() const
{
    return {m_on->isChecked(), m_minutes->value()};
}
