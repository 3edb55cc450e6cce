// Open with a choice of encoding below the file's name.
#pragma once

#include "host/Prompts.h"

#include <QFileDialog>

class QComboBox;

class OpenAsDialog final : public QFileDialog
{
    Q_OBJECT

public:
    OpenAsDialog(QWidget* parent, const QString& folder);

    OpenChoice Choice() const;

private:
    QComboBox* m_encoding;
};
