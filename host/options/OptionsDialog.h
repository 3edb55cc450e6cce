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

    void accept() override; // not with a font that is not there

private:
    bool TakeFont(QFontComboBox& box, const QString& set); // false: back to what is set
    void ReadFont();
    void ReadPrintFont();
    void StorePrintFont() const;
    QCheckBox* AddSwitch(const char* name, const QString& text, int key);

    QFontComboBox* m_font;
    QSpinBox* m_points;
    QString m_fontSet;
    QFontComboBox* m_printFont;
    QString m_printFontSet;
    QSpinBox* m_printPoints;
    QSpinBox* m_tabWidth;
    QComboBox* m_autoIndent;
    QComboBox* m_encoding;
    QComboBox* m_codePage;
    QLineEdit* m_includePath;
    QList<std::pair<QCheckBox*, int>> m_switches; // with the key of each
};
