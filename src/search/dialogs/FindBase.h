// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFindBase: what the dialogs Find and Find & Replace have in common. They work on one editor at a
/// time, and know no document.
#pragma once

#include "common/Export.h"
#include "platform/dialogs/Dialog.h"

class CMyComboBox;
class FaultLine;
class CMenuButton;
class CZNCoreEditorControlEx;
class QGridLayout;
class QVBoxLayout;

/// What the dialogs Find and Find & Replace have in common.
class ZN_API CFindBase : public CDialog
{
public:
    ~CFindBase() override;

    /// With attach the dialog works on the control; without, no longer if it has worked on it.
    void SetControl(CZNCoreEditorControlEx* control, bool attach);
    /// The editor that it works on; null: none.
    CZNCoreEditorControlEx* GetControl() const { return m_control; }

    /// Puts the dialog on the screen for the control; a text goes into the box. Where the other
    /// dialog stands it is hidden, and this one takes its place.
    void Open(const QString& text, CZNCoreEditorControlEx& control, CDialog* other);

    void PostNcDestroy() override;

protected:
    using CDialog::CDialog;

    /// Rows of the box for the search text, and the checks; the button of the menu beside it.
    void BuildFindRow(QGridLayout& grid);
    QWidget* BuildOptions(); ///< the checks below the box
    /// A box with its label, and the button of a menu beside it.
    CMyComboBox* BuildBox(UINT id, const QString& label, const QString& description, UINT menuId,
                          QGridLayout& grid);

    bool OnInitDialog() override;
    void OnCancel() override;
    void OnControl(UINT id, UINT code) override;

    virtual void ShowOptions();                  ///< from the manager
    void WriteOptions();                         ///< to the manager
    virtual void OnRegExp();                     ///< the check was switched
    void ShowFault();                            ///< of the expression that is typed
    void OnInsert(UINT box, const QString& row); ///< a row of the menu was chosen

    virtual void OnFind() = 0; ///< the button was clicked
    /// From the caret, or from the selection's end that lies ahead.
    void FindText(const QString& text);
    void SayNotFound(const QString& text); ///< tells the user
    void ShowMatch();                      ///< the dialog goes off it
    bool IsDown() const;                   ///< the direction that is chosen
    CMyComboBox& Box(UINT id) const;       ///< the box with that number

    virtual void Gone() = 0; ///< the window is; nobody is to have the object any more

    const CommandMap& GetCommandMap() const override;
    const MessageMap& GetMessageMap() const override;

    CZNCoreEditorControlEx* m_control = nullptr; ///< null: none
    QString m_text;                              ///< to begin with

private:
    FaultLine* m_fault = nullptr;
};
