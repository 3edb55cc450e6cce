// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog for autosave: its switch and its minutes.
#pragma once

#include "host/session/AutosaveSettings.h"

#include <QDialog>

class QCheckBox;
class QSpinBox;

class AutosaveDialog final : public QDialog
{
    Q_OBJECT

public:
    AutosaveDialog(QWidget* parent, const AutosaveSettings& settings);

    AutosaveSettings Settings() const; // as they are chosen

private:
    QCheckBox* m_on;
    QSpinBox* m_minutes;
};
