// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CColorStatic: a sample of text in given colours and in the widget's font; a QFrame.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QFrame>
#include <QString>

/// A sample of text in given colours and in the widget's font; a QFrame.
class ZN_API CColorStatic : public QFrame
{
    Q_OBJECT

public:
    explicit CColorStatic(const QString& text, QWidget* parent = nullptr); ///< black on white

    const QString& Text() const { return m_text; }         ///< what is shown
    COLORREF TextColor() const { return m_textColor; }     ///< 0x00BBGGRR
    COLORREF GroundColor() const { return m_groundColor; } ///< 0x00BBGGRR
    void SetText(const QString& text);                     ///< shows another one
    void SetColors(COLORREF text, COLORREF ground);        ///< both, 0x00BBGGRR

    QSize sizeHint() const override; ///< of the text in its font

protected:
    void paintEvent(QPaintEvent* event) override; ///< the text in its colours

private:
    QString m_text;
    COLORREF m_textColor = 0x000000;
    COLORREF m_groundColor = 0xFFFFFF;
};
