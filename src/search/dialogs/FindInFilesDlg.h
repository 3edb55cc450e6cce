// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFindInFilesDlg: the modal dialog "Find In Files". It gathers what to search for and where: the
/// options go to the manager, the folders are its own. The search is the caller's.
#pragma once

#include "common/Export.h"
#include "platform/dialogs/Dialog.h"

#include <QStringList>

class CMyComboBox;
class FaultLine;
class QGridLayout;

/// The modal dialog "Find In Files".
class ZN_API CFindInFilesDlg final : public CDialog
{
public:
    using CDialog::CDialog;

    QString m_text;         ///< to look for, to begin with
    QStringList m_aFolders; ///< behind OK: the folder, then the additional ones

protected:
    void OnBuild(QWidget* window) override;
    bool OnInitDialog() override;
    void OnOK() override;
    void OnControl(UINT id, UINT code) override;
    const CommandMap& GetCommandMap() const override;

private:
    CMyComboBox* BuildBox(UINT id, const QString& label, const QString& description,
                          QGridLayout& grid);
    void BuildAdvanced(QWidget* window);
    CMyComboBox& Box(UINT id) const;
    bool IsChecked(UINT id) const;
    void Refill(UINT id);

    void OnWhere(); // which controls take part
    void OnRegExp();
    void ShowFault(); // of the expression that is typed
    void OnAdvanced();
    void OnAddFolder();
    void OnFolderPicked();
    void OnInsert(const QString& row);
    bool TakePlaces(); // false, and the user told, if one is missing
    bool Refuse(const QString& message, UINT id);

    bool m_bAdvancedOpen = false;
    QWidget* m_advanced = nullptr;
    int m_advancedHeight = 0; // pixels, while it is open
    FaultLine* m_fault = nullptr;
};
