// SPDX-License-Identifier: GPL-3.0-or-later
// Text on what is lit beneath it: the ground is taken from the painted window, the text's colour
// from the scheme.
#include "control/EngineLooks.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "looks/Schemes.h"
#include "tests/looks/ShippedStyles.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <Qsci/qsciscintillabase.h>

#include <gtest/gtest.h>

#include <bitset>

namespace {

using Sci = QsciScintillaBase;

constexpr int kStatement = 27; // indicators
constexpr int kOccurrence = 28;
constexpr int kMatch = 29;
constexpr int kIndicators[] = {kStatement, kOccurrence, kMatch};
constexpr long kBlanks = 20; // on a line each

class Grounds : public testing::TestWithParam<const char*> // a scheme
{
protected:
    Grounds()
    {
        face.setScheme(QLatin1String(GetParam()));
        face.resize(500, 200);
        face.setText(QString(kBlanks, u' ') + u'\n' + QString(kBlanks, u' ') + u'\n');
        face.show();
        QApplication::setActiveWindow(&face);
        QApplication::processEvents();
    }

    Sci& Window() { return *static_cast<Sci*>(face.control().GetSafeHwnd()); }

    // In the middle of the second line.
    COLORREF Ground(unsigned lit, bool isCurrentLine, bool isSelected)
    {
        const long start = kBlanks + 1;
        for (int i = 0; i < static_cast<int>(std::size(kIndicators)); ++i) {
            Window().SendScintilla(Sci::SCI_SETINDICATORCURRENT, kIndicators[i]);
            const bool isLit = lit >> i & 1;
            Window().SendScintilla(isLit ? Sci::SCI_INDICATORFILLRANGE
                                         : Sci::SCI_INDICATORCLEARRANGE,
                                   static_cast<unsigned long>(start), kBlanks);
        }
        const long caret = isCurrentLine || isSelected ? start : 0;
        face.control().SetSel(isSelected ? start + kBlanks : caret, caret, 1);
        const auto x =
            Window().SendScintilla(Sci::SCI_POINTXFROMPOSITION, 0UL, start + kBlanks / 2);
        const auto y =
            Window().SendScintilla(Sci::SCI_POINTYFROMPOSITION, 0UL, start + kBlanks / 2);
        const QImage picture = Window().viewport()->grab().toImage();
        const QRgb pixel = picture.pixel(static_cast<int>(x) + 1, static_cast<int>(y) + 3);
        return static_cast<COLORREF>(qBlue(pixel) << 16 | qGreen(pixel) << 8 | qRed(pixel));
    }

    ZNCoreEditorWidget face;
};

TEST_P(Grounds, AreLitByWhatIsAskedFor)
{
    const COLORREF plain = Ground(0, false, false);
    EXPECT_EQ(plain, zncoreeditor::FindScheme(QLatin1String(GetParam()))->Of(Drawn::Ground));
    for (const unsigned lit : {1U, 2U, 4U})
        EXPECT_NE(Ground(lit, false, false), plain) << lit;
    EXPECT_NE(Ground(0, true, false), plain);
    EXPECT_NE(Ground(0, true, true), Ground(0, true, false));
}

TEST_P(Grounds, LeaveEveryStyleReadable)
{
    const ColourScheme& scheme = *zncoreeditor::FindScheme(QLatin1String(GetParam()));
    const std::vector<Style> styles = StylesOfAllLanguages();
    ASSERT_GT(styles.size(), 800U);
    for (unsigned lit = 0; lit < 8; ++lit) {
        for (const bool isCurrentLine : {false, true}) {
            for (const bool isSelected : {false, true}) {
                const COLORREF ground = Ground(lit, isCurrentLine, isSelected);
                double least = 21;
                std::string worst;
                for (const Style& style : styles) {
                    const QString role =
                        zncoreeditor::GetStyleRoles().RoleOf(style.language, style.name);
                    // Not of the text; braces have a ground of their own.
                    if (role == "lineNumber" || role == "guide" || role == "callTip" ||
                        role == "matchingBrace" || role == "unmatchedBrace")
                        continue;
                    const auto pair = scheme.OfRole(role).value_or(ColourScheme::Pair{});
                    const double contrast = Contrast(pair.fore, ground);
                    if (contrast < least)
                        worst = role.toStdString();
                    least = std::min(least, contrast);
                }
                EXPECT_GE(least, 4.5)
                    << worst << " on statement, occurrence, match " << std::bitset<3>(lit)
                    << (isCurrentLine ? " current" : "") << (isSelected ? " selected" : "")
                    << " ground " << std::hex << ground;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Grounds, testing::Values("Light", "Dark", "High Contrast"),
                         [](const auto& scheme) {
                             return QString::fromLatin1(scheme.param).remove(u' ').toStdString();
                         });

} // namespace
