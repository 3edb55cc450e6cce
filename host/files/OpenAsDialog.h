// SPDX-License-Identifier: GPL-3.0-or-later
// Open with a choice of encoding below the file's name.
#pragma once

#include "host/files/Prompts.h"

#include <QFileDialog>

class QComboBox;

class OpenAsDialog final : public QFileDialog
{
    Q_OBJECT

public:
    // Begins in the folder, or with the file.
    OpenAsDialog(QWidget* parent, const QString& place);

    OpenChoice Choice() const;

private:
    QComboBox* m_encoding;
};
