// SPDX-License-Identifier: GPL-3.0-or-later
// What an incremental search has to say, for a host that shows it. Nobody listens by default.
#pragma once

#include "common/Export.h"

#include <QString>

class CZNCoreEditorView;

struct SearchStatus
{
    QString text; // for a status bar, as "Incremental search: abc"; empty once the search has ended
    bool isFound = false;
};

class ZN_API ISearchStatus
{
public:
    virtual ~ISearchStatus();

    virtual void Show(CZNCoreEditorView& view, const SearchStatus& status) = 0;
};

ZN_API void SetSearchStatus(ISearchStatus* listener); // stays the caller's; null: nobody listens
ZN_API ISearchStatus* GetSearchStatus();
