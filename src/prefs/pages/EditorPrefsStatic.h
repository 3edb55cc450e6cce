// SPDX-License-Identifier: GPL-3.0-or-later
// CEditorPrefsStatic: the bar over a page that says which it is; a QWidget.
#pragma once

#include "common/Export.h"

#include <QString>
#include <QWidget>

class ZN_API CEditorPrefsStatic final : public QWidget
{
    Q_OBJECT

public:
    explicit CEditorPrefsStatic(QWidget* parent = nullptr);

    const QString& Title() const { return m_title; }
    void SetTitle(const QString& title);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
};
