// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFindDialog and CFindReplace: the modeless dialogs "Find" and "Find & Replace", at most one of
/// each in the process.
#pragma once

#include "common/Export.h"
#include "search/dialogs/FindBase.h"

/// The dialog "Find".
class ZN_API CFindDialog final : public CFindBase
{
public:
    using CFindBase::CFindBase;

    /// The dialog, made if there is none and create says so; with force always made, in place of
    /// one that exists. Null: there is none.
    static CFindDialog* GetFindDialog(bool create, bool force);

protected:
    void OnBuild(QWidget* window) override;
    void OnFind() override;
    void OnBookmarkAll(); ///< the button was clicked
    void Gone() override;
    const CommandMap& GetCommandMap() const override;
};

/// The dialog "Find & Replace".
class ZN_API CFindReplace final : public CFindBase
{
public:
    using CFindBase::CFindBase;

    static CFindReplace* GetReplaceDialog(bool create, bool force); ///< as GetFindDialog

protected:
    void OnBuild(QWidget* window) override;
    void ShowOptions() override;
    void OnRegExp() override;
    void OnFind() override;
    void OnReplace();                    ///< the button was clicked
    void OnReplaceAll(bool inSelection); ///< the button was clicked
    void Gone() override;
    const CommandMap& GetCommandMap() const override;
};

/// Opens the dialog for the control. A text that is not empty becomes the one to look for. A dialog
/// that cannot be made is told to the user.
ZN_API void ShowFindDialog(const QString& text, CZNCoreEditorControlEx* control);
/// The same for the dialog that replaces.
ZN_API void ShowReplaceDialog(const QString& text, CZNCoreEditorControlEx* control);
