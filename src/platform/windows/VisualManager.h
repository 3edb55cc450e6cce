// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CBCGPVisualManager: how the parts of windows look that the framework draws itself. By default as
/// the palette of the window; a host that has a look of its own derives from it and sets that.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

class CDC;
class CWnd;

/// How the parts of windows look that the framework draws itself.
class ZN_API CBCGPVisualManager
{
public:
    virtual ~CBCGPVisualManager(); ///< to be taken back by SetInstance before

    static CBCGPVisualManager* GetInstance(); ///< never null
    /// Takes effect with the next paint and stays the caller's; null brings back the default.
    static void SetInstance(CBCGPVisualManager* manager);

    virtual void OnDrawSplitterBorder(CDC& dc, CWnd& splitter, const RECT& rect); ///< around a pane
    /// Draws the box's edge, and leaves in the rectangle what is inside of it.
    virtual void OnDrawSplitterBox(CDC& dc, CWnd& splitter, RECT& rect);
    /// A bar, or where two cross.
    virtual void OnFillSplitterBackground(CDC& dc, CWnd& splitter, const RECT& rect);
};
