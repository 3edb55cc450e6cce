// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/FieldMenus.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/Font.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

#include <algorithm>
#include <cmath>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FieldMenus)
};

constexpr int kWhole = 100; // per cent

// Points, of every editor.
int FontSize()
{
    constexpr int kPointsPerInch = 72;
    constexpr int kOtherwise = 10;
    LOGFONT font;
    if (!CZNOptionsServer::GetObjectW()->GetLOGFONT(option::EditorFont, &font))
        return kOtherwise;
    return std::max(
        1, -MulDiv(static_cast<int>(font.lfHeight), kPointsPerInch, ScreenPixelsPerInch()));
}

QString Percent(int percent)
{
    return QStringLiteral("%1 %").arg(percent);
}

QMenu* NewMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    return menu;
}

} // namespace

// The engine zooms by points.
QString ZoomText(CZNCoreEditorControlEx& editor)
{
    const int size = FontSize();
    return Percent(kWhole * (size + static_cast<int>(editor.GetZoom(1))) / size);
}

QString IndentationText(CZNCoreEditorControlEx& editor)
{
    const auto width = static_cast<int>(editor.GetTabWidth(1));
    return editor.GetUseTabs(1) ? Texts::tr("Tabs: %1").arg(width)
                                : Texts::tr("Spaces: %1").arg(width);
}

QMenu* ZoomMenu(CZNCoreEditorControlEx& editor, QWidget* parent)
{
    constexpr int kZooms[] = {50, 75, 100, 125, 150, 200, 300};
    QMenu* menu = NewMenu(parent);
    auto* group = new QActionGroup(menu);
    const int size = FontSize();
    for (const int percent : kZooms) {
        const int points = static_cast<int>(std::lround(size * percent / double{kWhole})) - size;
        QAction* action = menu->addAction(Percent(percent));
        action->setCheckable(true);
        action->setChecked(points == editor.GetZoom(1));
        group->addAction(action);
        QObject::connect(action, &QAction::triggered,
                         [&editor, points] { editor.SetZoom(points, 1); });
    }
    return menu;
}

// Of what is typed from here on; the text stays as it is.
QMenu* IndentationMenu(CZNCoreEditorControlEx& editor, QWidget* parent)
{
    constexpr int kWidths[] = {2, 3, 4, 8};
    QMenu* menu = NewMenu(parent);
    auto* kinds = new QActionGroup(menu);
    for (const bool tabs : {false, true}) {
        QAction* action = menu->addAction(tabs ? Texts::tr("Indent with &Tabs")
                                               : Texts::tr("Indent with &Spaces"));
        action->setCheckable(true);
        action->setChecked((editor.GetUseTabs(1) != 0) == tabs);
        kinds->addAction(action);
        QObject::connect(action, &QAction::triggered,
                         [&editor, tabs] { editor.SetUseTabs(tabs, 1); });
    }
    menu->addSeparator();
    auto* widths = new QActionGroup(menu);
    for (const int width : kWidths) {
        QAction* action = menu->addAction(Texts::tr("&%1 Columns").arg(width));
        action->setCheckable(true);
        action->setChecked(editor.GetTabWidth(1) == width);
        widths->addAction(action);
        QObject::connect(action, &QAction::triggered, [&editor, width] {
            editor.SetTabWidth(width, 1);
            editor.SetIndent(width, 1);
        });
    }
    return menu;
}
