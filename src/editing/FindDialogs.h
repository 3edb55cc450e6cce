// What an editor has to do with the dialogs for finding: they work on the editor that had the focus
// last. The room that has the dialogs sets them here.
#pragma once

#include "common/Export.h"

class CZNCoreEditorControlEx;

class ZN_API IFindDialogs
{
public:
    virtual ~IFindDialogs();

    virtual void Serve(CZNCoreEditorControlEx& control) = 0;  // makes the dialogs if need be
    virtual void Forget(CZNCoreEditorControlEx& control) = 0; // makes none
};

IFindDialogs* GetFindDialogs();                    // null: there are none
ZN_API void SetFindDialogs(IFindDialogs* dialogs); // stays the caller's
