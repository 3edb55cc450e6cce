// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/operations/PrintStyle.h"

#include "control/EngineRecords.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "looks/Schemes.h"
#include "platform/services/OptionsServer.h"
#include "platform/windows/DeviceContext.h"

#include <cstdlib>
#include <string_view>

void ApplyPrintColours(CZNCoreEditorControlEx& control)
{
    constexpr int kAsOnScreen = 0;
    constexpr int kBlackOnWhite = 2;
    constexpr int kColoursOnWhite = 3;
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    const bool inColours = options.GetBool(option::PrintColours);
    const bool withGrounds = options.GetBool(option::PrintGround);
    if (inColours)
        control.SetPrintColorMode(withGrounds ? kAsOnScreen : kColoursOnWhite, 1);
    else if (!withGrounds)
        control.SetPrintColorMode(kBlackOnWhite, 1);
}

long PrintPage(CZNCoreEditorControlEx& control, RangeToFormat& record)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    const bool needsPaper = control.Scheme() && options.GetBool(option::PrintColours) &&
                            !options.GetBool(option::PrintGround);
    const ColourScheme* paper =
        needsPaper ? zncoreeditor::FindScheme(zncoreeditor::kPrintScheme) : nullptr;
    if (paper)
        control.ApplySchemeToStyles(*paper);
    const long next = control.FormatRange(1, &record, 1);
    if (paper)
        control.ApplySchemeToStyles(*control.Scheme());
    return next;
}

bool ApplyPrintFont(CZNCoreEditorControlEx& control)
{
    constexpr long kDefaultHeight = -13;
    constexpr std::uint8_t kDefaultCharSet = 1;
    constexpr std::u16string_view kDefaultFace = u"Tahoma";
    constexpr double kPixelsPerInch = 96.0;
    constexpr double kPointsPerInch = 72.0;
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    if (!options.GetBool(option::PrintOwnFont))
        return false;
    LOGFONT font;
    if (!options.GetLOGFONT(option::PrintFont, &font)) {
        kDefaultFace.copy(font.lfFaceName, kDefaultFace.size());
        font.lfHeight = kDefaultHeight;
        font.lfCharSet = kDefaultCharSet;
        options.SetLOGFONT(option::PrintFont, &font);
    }
    control.PrintStyleSetFont(font.lfFaceName, 1);
    control.PrintStyleSetBold(font.lfWeight == FW_BOLD, 1);
    control.PrintStyleSetItalic(font.lfItalic == 1, 1);
    const double points =
        static_cast<double>(std::labs(font.lfHeight)) / kPixelsPerInch * kPointsPerInch;
    control.PrintStyleSetSize(static_cast<int>(points), 1);
    return true;
}

RangeToFormat PrintRecord(CDC* dc, const RECT& rect)
{
    RangeToFormat record;
    record.hdc = record.hdcTarget = dc ? dc->GetSafeHdc() : nullptr;
    record.rc = record.rcPage = rect;
    return record;
}

RECT PrintableArea(const CDC& dc)
{
    return {0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES)};
}
