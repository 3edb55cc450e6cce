// SPDX-License-Identifier: GPL-3.0-or-later
// Who is told of changes and caret moves besides the parent. Qt's own, which is there only where a
// desktop runs; a test puts its own in place.
#pragma once

#include <QAccessible>

namespace engine {

struct AssistiveTechnology
{
    bool (*listens)() = QAccessible::isActive;
    void (*tell)(QAccessibleEvent* event) = QAccessible::updateAccessibility;
};

inline AssistiveTechnology g_assistiveTechnology;

} // namespace engine
