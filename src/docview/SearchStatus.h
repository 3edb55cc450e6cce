// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What an incremental search has to say, for a host that shows it. Nobody listens by default.
#pragma once

#include "common/Export.h"

#include <QString>

class CZNCoreEditorView;

/// The line of status of an incremental search.
struct SearchStatus
{
    QString
        text; ///< for a status bar, as "Incremental search: abc"; empty once the search has ended
    bool isFound = false; ///< whether the last step has found something
};

/// Who hears of it.
class ZN_API ISearchStatus
{
public:
    virtual ~ISearchStatus(); ///< to be taken back by SetSearchStatus before

    /// At each step of the search in that view, and at its end.
    virtual void Show(CZNCoreEditorView& view, const SearchStatus& status) = 0;
};

ZN_API void SetSearchStatus(ISearchStatus* listener); ///< stays the caller's; null: nobody listens
ZN_API ISearchStatus* GetSearchStatus();              ///< null: nobody listens
