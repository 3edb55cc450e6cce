// SPDX-License-Identifier: GPL-3.0-or-later
// Style: what the plain style of Qt draws too faintly on a dark ground or as a bitmap: check boxes,
// radio buttons, the frames of edit fields, what has the focus, panes among it, and the marks
// that close and float tabs and panes. A desktop's own style stays as it is.
#pragma once

#include <QProxyStyle>
#include <QStyleOptionMenuItem>

class Style final : public QProxyStyle
{
    Q_OBJECT

public:
    static void Install(); // where the application has no desktop's style

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;

private:
    Style();

    void DrawChosenEntry(QStyleOptionMenuItem entry, QPainter& painter,
                         const QWidget* widget) const;
};
