// SPDX-License-Identifier: GPL-3.0-or-later
// The path of the script in front in the status bar, in as much room as there is.
#pragma once

#include <QWidget>

class PathField final : public QWidget
{
    Q_OBJECT

public:
    explicit PathField(QWidget* parent);

    void Show(const QString& path); // of a file; empty: none
    const QString& Path() const { return m_path; }

Q_SIGNALS:
    void Chosen();

protected:
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString m_path;
    QString m_text; // with "~" for the person's own folder
};
