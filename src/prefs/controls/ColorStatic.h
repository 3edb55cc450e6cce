// SPDX-License-Identifier: GPL-3.0-or-later
// CColorStatic: a sample of text in given colours and in the widget's font; a QFrame.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QFrame>
#include <QString>

class ZN_API CColorStatic : public QFrame
{
    Q_OBJECT

public:
    explicit CColorStatic(const QString& text, QWidget* parent = nullptr);

    const QString& Text() const { return m_text; }
    COLORREF TextColor() const { return m_textColor; }
    COLORREF GroundColor() const { return m_groundColor; }
    void SetText(const QString& text);
    void SetColors(COLORREF text, COLORREF ground);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    COLORREF m_textColor = 0x000000;
    COLORREF m_groundColor = 0xFFFFFF;
};
