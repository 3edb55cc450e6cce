// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Font.h"

#include <QGuiApplication>
#include <QScreen>
#include <QString>

#include <cmath>
#include <cstdlib>

bool CFont::CreateFontIndirect(const LOGFONT& font)
{
    QFont made(QString::fromUtf16(font.lfFaceName));
    if (font.lfHeight != 0)
        made.setPixelSize(static_cast<int>(std::labs(font.lfHeight)));
    if (font.lfWeight > 0 && font.lfWeight <= 1000)
        made.setWeight(static_cast<QFont::Weight>(font.lfWeight));
    made.setItalic(font.lfItalic != 0);
    made.setUnderline(font.lfUnderline != 0);
    made.setStrikeOut(font.lfStrikeOut != 0);
    m_font = made;
    return true;
}

int ScreenPixelsPerInch()
{
    constexpr int kUsual = 96;
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? static_cast<int>(std::lround(screen->logicalDotsPerInchY())) : kUsual;
}

int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    const double exact = static_cast<double>(number) * numerator / denominator;
    return static_cast<int>(std::lround(exact));
}
