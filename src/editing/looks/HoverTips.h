// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What the mouse rests on, in words: a problem under its squiggle or beside its line, the text
/// that a fold hides.
#pragma once

#include "common/Export.h"

#include <QObject>

class CZNCoreEditorControlEx;
class QPoint;

/// Shows tool tips over an editor.
class ZN_API HoverTips final : public QObject
{
public:
    /// Over the control's window, which it has. The control outlives this.
    HoverTips(CZNCoreEditorControlEx& control, QObject* parent);

    /// At a place of the window, in its pixels, ready for a tool tip; empty: nothing to say.
    static QString TextAt(CZNCoreEditorControlEx& control, const QPoint& place);

protected:
    /// Shows a tip when the mouse rests.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CZNCoreEditorControlEx& m_control;
};
