// SPDX-License-Identifier: GPL-3.0-or-later
// Carets: several of them in one window, set with the mouse. Typing, pasting and deleting act on
// each; columns are the stock engine's.
#pragma once

#include "engine/core/Engine.h"

#include <QPoint>

namespace engine {

class Carets
{
public:
    explicit Carets(const Raw& raw);

    // Points are the viewport's. In the text they are not in the margins.
    bool IsInText(QPoint point) const;

    // One more caret, which is the main one then; a caret that stands there goes. False: the point
    // is none of the text's.
    bool Add(QPoint point);

    // One caret, at the point.
    void Place(QPoint point);

    // The same, where a menu is opened: what is selected there stays, as all does for a margin.
    void PlaceForMenu(QPoint point);

    // The selection of the main caret goes to the point.
    void Extend(QPoint point);

    // Of several the main one stays.
    void Drop();

    // Those of a column become carets like any others, unless they are too many to be followed.
    void DissolveColumn();

private:
    long PositionAt(QPoint point) const;
    bool Remove(long position);

    const Raw& m_raw;
};

} // namespace engine
