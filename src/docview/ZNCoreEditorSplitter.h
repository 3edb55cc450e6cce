// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CZNCoreEditorSplitter: panes of editors, with the bars between them as the host's look has them.
#pragma once

#include "platform/docview/SplitterWnd.h"

/// Panes of editors, with the bars between them as the host's look has them.
class ZN_API CZNCoreEditorSplitter : public CSplitterWnd
{
public:
    void OnDrawSplitter(CDC* dc, ESplitType type, const RECT& rect) override;
};
