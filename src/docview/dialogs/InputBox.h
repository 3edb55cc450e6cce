// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CInputBox: asks for one value.
#pragma once

#include "platform/dialogs/Dialog.h"

#include <QString>

/// Asks for one value.
class ZN_API CInputBox final : public CDialog
{
public:
    static constexpr UINT kPrompt = 28141; ///< the number of the prompt
    static constexpr UINT kValue = 28143;  ///< the number of the edit

    /// The parent may be null. With allowEmpty 0 the dialog does not close over an empty value.
    CInputBox(const QString& prompt, const QString& value, int allowEmpty, const QString& title,
              CWnd* parent);

    QString m_value;  ///< what was entered, once DoModal has given IDOK
    QString m_prompt; ///< what is asked
    int m_allowEmpty; ///< 0: an empty value is none
    QString m_title;  ///< empty: "Input"

protected:
    void OnBuild(QWidget* window) override;
    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
};
