// SPDX-License-Identifier: GPL-3.0-or-later
// TemplateForm: asks for all values of a template at once, each name once.
#pragma once

#include "completion/TemplateFile.h"

#include <QDialog>

#include <utility>
#include <vector>

class QLineEdit;

class TemplateForm final : public QDialog
{
    Q_OBJECT

public:
    TemplateForm(const completion::CodeTemplate& made, const QStringList& names, QWidget* parent);

    // What the template asks for, in its order.
    static QStringList NamesIn(const QStringList& lines);
    // The lines with what was entered. What is left has marks of another kind.
    QStringList Filled(QStringList lines) const;

protected:
    // Enter goes through the fields, and behind the last one it inserts.
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::vector<std::pair<QString, QLineEdit*>> m_values;
};
