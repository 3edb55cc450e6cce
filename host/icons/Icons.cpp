// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/icons/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <algorithm>
#include <iterator>

// The drawings stand in a library that is linked statically, so nothing else asks for them. Outside
// of any namespace, as the macro has it.
static void LoadDrawings()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

struct Row
{
    const char* command;
    const char* theme;   // null: none of the desktop's means the same
    const char* drawing; // null: named as the command
};

// clang-format off
constexpr Row kRows[] = {
    {"new",         "document-new",       nullptr},
    {"open",        "document-open",      nullptr},
    {"save",        "document-save",      nullptr},
    {"saveAs",      "document-save-as",   "save"},
    {"saveAll",     "document-save-all",  nullptr},
    {"reload",      "view-refresh",       nullptr},
    {"print",       "document-print",     nullptr},
    {"close",       "window-close",       nullptr},
    {"quit",        "application-exit",   nullptr},
    {"undo",        "edit-undo",          nullptr},
    {"redo",        "edit-redo",          nullptr},
    {"cut",         "edit-cut",           nullptr},
    {"copy",        "edit-copy",          nullptr},
    {"paste",       "edit-paste",         nullptr},
    {"delete",      "edit-delete",        nullptr},
    {"find",        "edit-find",          nullptr},
    {"replace",     "edit-find-replace",  nullptr},
    {"findInFiles", nullptr,              nullptr},
    {"findNext",    "go-down",            nullptr},
    {"findPrevious", "go-up",             nullptr},
    {"float",       nullptr,              nullptr},
    {"goToLine",    "go-jump",            nullptr},
    {"goToSymbol",  nullptr,              "symbol"},
    {"zoomIn",      "zoom-in",            nullptr},
    {"zoomOut",     "zoom-out",           nullptr},
    {"splitBelow",  "view-split-top-bottom", nullptr},
    {"splitBeside", "view-split-left-right", nullptr},
    {"nextProblem", nullptr,              nullptr},
    {"expand",      nullptr,              nullptr},
    {"commands",    nullptr,              nullptr},
    {"options",     "preferences-system", nullptr},
    {"modified",    nullptr,              nullptr},
    {"filePlain",   nullptr,              nullptr},
    {"fileFolder",  nullptr,              nullptr},
    {"fileScript",  nullptr,              nullptr},
    {"openFolder",  "folder-open",        nullptr},
    {"showScript",  nullptr,              nullptr},
    {"upFolder",    "go-up",              nullptr},
    {"keys",        "help-contents",      "help"},
};
// clang-format on

// One colour for lines and one to set apart, whatever the palette: the drawing names them only.
class Drawing final : public QIconEngine
{
public:
    explicit Drawing(const QString& name)
    {
        QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
        if (file.open(QIODevice::ReadOnly))
            m_svg = file.readAll();
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        QSvgRenderer(Coloured(mode)).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect({}, size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new Drawing(*this); }

private:
    QByteArray Coloured(QIcon::Mode mode) const
    {
        constexpr int kHalf = 128; // of a lightness
        const QPalette palette = QGuiApplication::palette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        const QColor line = palette.color(group, role);
        QColor accent = line;
        if (mode == QIcon::Normal || mode == QIcon::Active)
            accent = palette.color(QPalette::Button).lightness() < kHalf ? QColor(0x6C, 0xB2, 0xFF)
                                                                         : QColor(0x1F, 0x6F, 0xC4);
        QByteArray svg = m_svg;
        svg.replace("currentColor", line.name().toLatin1());
        svg.replace("accentColor", accent.name().toLatin1());
        return svg;
    }

    QByteArray m_svg;
};

} // namespace

QIcon CommandIcon(const QString& command)
{
    const auto* row = std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& candidate) {
        return command == QLatin1String(candidate.command);
    });
    if (row == std::end(kRows))
        return {};
    LoadDrawings();
    const QIcon drawing(new Drawing(QLatin1String(row->drawing ? row->drawing : row->command)));
    return row->theme ? QIcon::fromTheme(QLatin1String(row->theme), drawing) : drawing;
}

QIcon ApplicationIcon()
{
    LoadDrawings();
    return QIcon(new Drawing(QStringLiteral("znworkbench")));
}
