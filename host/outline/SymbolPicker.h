// SPDX-License-Identifier: GPL-3.0-or-later
// A list of a script's symbols to go to one of them by part of its name.
#pragma once

#include "host/outline/Symbols.h"

#include <QDialog>

class QLineEdit;
class QListWidget;

// Deletes itself when it is closed.
class SymbolPicker final : public QDialog
{
    Q_OBJECT

public:
    SymbolPicker(std::vector<Symbol> symbols, QWidget* parent);

Q_SIGNALS:
    void Chosen(long start, long end); // positions in the script

private:
    void Filter(const QString& words);
    void Choose();

    std::vector<Symbol> m_symbols;
    QLineEdit* m_words;
    QListWidget* m_list;
};
