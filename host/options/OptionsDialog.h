// SPDX-License-Identifier: GPL-3.0-or-later
// The options of all editors: font, indentation, margins. They are kept by the options server.
#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFontComboBox;
class QLineEdit;
class QSpinBox;

class OptionsDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit OptionsDialog(QWidget* parent);

    // Writes what is chosen into the options server.
    void Store() const;

private:
    void ReadFont();
    void ReadPrintFont();
    void StorePrintFont() const;
    QCheckBox* AddSwitch(const char* name, const QString& text, int key);

    QFontComboBox* m_font;
    QSpinBox* m_points;
    QFontComboBox* m_printFont;
    QSpinBox* m_printPoints;
    QSpinBox* m_tabWidth;
    QComboBox* m_autoIndent;
    QComboBox* m_encoding;
    QLineEdit* m_includePath;
    QList<std::pair<QCheckBox*, int>> m_switches; // with the key of each
};
