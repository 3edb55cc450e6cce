#include "platform/SystemColours.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <iterator>

namespace {

struct ColourRow
{
    int index;
    QPalette::ColorRole role;
};

constexpr ColourRow kColours[] = {
    {COLOR_HIGHLIGHT, QPalette::Highlight},
    {COLOR_HIGHLIGHTTEXT, QPalette::HighlightedText},
    {COLOR_HOTLIGHT, QPalette::Link},
};

} // namespace

unsigned long GetSysColor(int index)
{
    const auto* row = std::find_if(std::begin(kColours), std::end(kColours),
                                   [index](const ColourRow& each) { return each.index == index; });
    if (row == std::end(kColours) || !qGuiApp)
        return 0;
    const QColor colour = QGuiApplication::palette().color(QPalette::Active, row->role);
    return static_cast<unsigned long>(colour.red() | colour.green() << 8 | colour.blue() << 16);
}
