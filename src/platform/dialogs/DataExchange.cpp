// SPDX-License-Identifier: GPL-3.0-or-later
// The exchange of single values between a dialog's controls and its members.
#include "platform/dialogs/Dialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

namespace {

template <class Control>
Control* ControlOf(const CDataExchange& exchange, UINT id)
{
    return qobject_cast<Control*>(GetDlgItem(exchange.m_dialog, id));
}

} // namespace

void DDX_Text(CDataExchange* exchange, UINT id, QString& value)
{
    if (auto* edit = ControlOf<QLineEdit>(*exchange, id)) {
        if (exchange->m_bSaveAndValidate)
            value = edit->text();
        else
            edit->setText(value);
    } else if (auto* combo = ControlOf<QComboBox>(*exchange, id)) {
        if (exchange->m_bSaveAndValidate)
            value = combo->currentText();
        else if (combo->isEditable())
            combo->setEditText(value);
        else
            combo->setCurrentText(value);
    }
}

void DDX_Text(CDataExchange* exchange, UINT id, int& value)
{
    if (auto* spin = ControlOf<QSpinBox>(*exchange, id)) {
        if (exchange->m_bSaveAndValidate)
            value = spin->value();
        else
            spin->setValue(value);
        return;
    }
    QString text = QString::number(value);
    DDX_Text(exchange, id, text);
    if (!exchange->m_bSaveAndValidate)
        return;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber)
        value = number;
    else
        exchange->Fail(id);
}

void DDX_Check(CDataExchange* exchange, UINT id, bool& value)
{
    auto* button = ControlOf<QAbstractButton>(*exchange, id);
    if (!button)
        return;
    if (exchange->m_bSaveAndValidate)
        value = button->isChecked();
    else
        button->setChecked(value);
}

void DDX_CBIndex(CDataExchange* exchange, UINT id, int& value)
{
    auto* combo = ControlOf<QComboBox>(*exchange, id);
    if (!combo)
        return;
    if (exchange->m_bSaveAndValidate)
        value = combo->currentIndex();
    else
        combo->setCurrentIndex(value);
}
