// SPDX-License-Identifier: GPL-3.0-or-later
// Save As with a choice of encoding and byte-order mark below the file's name.
#pragma once

#include "host/files/Prompts.h"

#include <QFileDialog>

class QComboBox;

class SaveAsDialog final : public QFileDialog
{
    Q_OBJECT

public:
    SaveAsDialog(QWidget* parent, const SaveTarget& proposal);

    SaveTarget Target() const;

private:
    QComboBox* m_encoding = nullptr;
};
