// SPDX-License-Identifier: GPL-3.0-or-later
// Asks for a line, or for line:column as tools print them. What is neither stays in the field, and
// the line below says what is expected.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;

class GoToDialog final : public QDialog
{
    Q_OBJECT

public:
    // With the line, from 1, to write over.
    GoToDialog(QWidget* parent, long line, long lineCount);

    // Once it was accepted.
    long Line() const { return m_line; }     // from 1 to the number of lines
    long Column() const { return m_column; } // from 1; 0: none was given

    void accept() override;

private:
    bool Read(); // false: it is no place
    void Tell(const QString& text, bool isWrong);

    QLineEdit* m_place;
    QLabel* m_expected;
    long m_lineCount;
    long m_line = 0;
    long m_column = 0;
};
