// SPDX-License-Identifier: GPL-3.0-or-later
// How a script and the file behind it differ, for somebody who has to choose between them.
#pragma once

#include <QDialog>
#include <QString>

#include <functional>

// What may be compared.
struct Comparison
{
    QString name;                  // of the script
    QString path;                  // of the file
    std::function<QString()> text; // of the script; asked for when it is wanted
    int codePage = 0;              // of the file, if it is no Unicode; 0: the system's
};

class ComparisonDialog final : public QDialog
{
    Q_OBJECT

public:
    ComparisonDialog(QWidget* parent, const Comparison& comparison);
};
