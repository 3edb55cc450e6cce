// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CEditorPrefsStatic: the bar over a page that says which it is; a QWidget.
#pragma once

#include "common/Export.h"

#include <QString>
#include <QWidget>

/// The bar over a page that says which it is; a QWidget.
class ZN_API CEditorPrefsStatic final : public QWidget
{
    Q_OBJECT

public:
    explicit CEditorPrefsStatic(QWidget* parent = nullptr); ///< without a title

    const QString& Title() const { return m_title; } ///< what it says
    void SetTitle(const QString& title);             ///< what it says, to a screen reader as well

    QSize sizeHint() const override; ///< of the title

protected:
    void paintEvent(QPaintEvent* event) override; ///< the bar with the title

private:
    QString m_title;
};
