// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/popup/CallTip.h"

#include "completion/popup/PopupColours.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace completion {

CallTip::CallTip(QWidget* editor)
    : QLabel(editor, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus)
{
    constexpr int kMargin = 4;
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::Box);
    setMargin(kMargin);
    setTextFormat(Qt::RichText);
    setAutoFillBackground(true);
    setObjectName(QStringLiteral("callTip"));
}

void CallTip::ShowCall(const Signature& signature, int argument, const QRect& line,
                       const ColourScheme* scheme)
{
    constexpr int kWidest = 640;
    QString rich = signature.text.toHtmlEscaped();
    QString told = signature.text;
    if (argument < static_cast<int>(signature.arguments.size())) {
        const auto [start, end] = signature.arguments[static_cast<std::size_t>(argument)];
        const QString current = signature.text.mid(start, end - start);
        rich = signature.text.left(start).toHtmlEscaped() + QStringLiteral("<b>") +
               current.toHtmlEscaped() + QStringLiteral("</b>") +
               signature.text.mid(end).toHtmlEscaped();
        told += QStringLiteral(". ") + current;
    }
    if (!signature.description.isEmpty()) {
        rich += QStringLiteral("<br>") + signature.description.toHtmlEscaped();
        told += QStringLiteral(". ") + signature.description;
    }
    setPalette(PopupPalette(scheme, QStringLiteral("callTip")));
    setWordWrap(false);
    setText(rich);
    if (sizeHint().width() > kWidest) {
        setWordWrap(true);
        setFixedWidth(kWidest);
    } else {
        setMinimumWidth(0);
        setMaximumWidth(QWIDGETSIZE_MAX);
    }
    adjustSize();
    const bool changed = accessibleName() != told;
    setAccessibleName(told);
    const QScreen* screen = QGuiApplication::screenAt(line.center());
    const QRect room = screen ? screen->availableGeometry()
                              : QGuiApplication::primaryScreen()->availableGeometry();
    const int above = line.top() - height() - 1;
    move(std::clamp(line.left(), room.left(), std::max(room.left(), room.right() - width())),
         above >= room.top() ? above : line.bottom() + 1);
    show();
    if (changed && QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace completion
