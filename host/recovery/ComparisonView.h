// SPDX-License-Identifier: GPL-3.0-or-later
// Two texts, line by line, in an editor that is only read: what each of them has alone, with some
// lines around it.
#pragma once

#include <QWidget>

class QLabel;
class ZNCoreEditorWidget;

class ComparisonView final : public QWidget
{
    Q_OBJECT

public:
    static constexpr qint64 kMostBytes = 8 * 1024 * 1024; // longer files are not compared

    explicit ComparisonView(QWidget* parent);

    void ShowText(const QString& heading, const QString& text); // as it is
    // Lines of the first text alone have a -, those of the other one a +. False if there are none.
    bool ShowDifferences(const QString& heading, const QString& first, const QString& other);
    void SetHeading(const QString& heading);

private:
    void Settle();

    QLabel* m_heading;
    ZNCoreEditorWidget* m_text;
};
