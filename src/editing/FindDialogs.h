// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What an editor has to do with dialogs that it does not know: the rooms that have them set them
/// here.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QString>

class CZNCoreEditorControlEx;

/// The dialogs for finding work on the editor that had the focus last.
class ZN_API IFindDialogs
{
public:
    virtual ~IFindDialogs(); ///< to be taken back by SetFindDialogs before

    virtual void Serve(CZNCoreEditorControlEx& control) = 0;  ///< makes the dialogs if need be
    virtual void Forget(CZNCoreEditorControlEx& control) = 0; ///< makes none

    /// Shows the dialog for the control, with the text to look for. A new one replaces one that
    /// exists if the control stands in a modal dialog, which would keep the user from it. False if
    /// there is no dialog.
    virtual bool ShowFind(CZNCoreEditorControlEx& control, const QString& text, bool forceNew) = 0;
    /// The same for the dialog that replaces.
    virtual bool ShowReplace(CZNCoreEditorControlEx& control, const QString& text,
                             bool forceNew) = 0;
};

ZN_API IFindDialogs* GetFindDialogs();             ///< null: there are none
ZN_API void SetFindDialogs(IFindDialogs* dialogs); ///< stays the caller's

/// Asks for a line of so many, the current one proposed, lines counted from 0; moves the editor of
/// the parent if that is a view. Null: there is no such dialog.
using GotoDialog = void (*)(HWND parent, int line, int lineCount);
ZN_API GotoDialog GetGotoDialog();            ///< null: there is none
ZN_API void SetGotoDialog(GotoDialog dialog); ///< null takes it away
