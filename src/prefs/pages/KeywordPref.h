// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CKeywordPref: the words of a language, by sets.
#pragma once

#include "prefs/pages/EditorPrefsSubDlg.h"

#include <QString>

#include <array>

class QLabel;

/// The words of a language, by sets.
class ZN_API CKeywordPref final : public CEditorPrefsSubDlg
{
public:
    void Apply() override;

protected:
    void OnBuild(QWidget* window) override;
    bool OnInitDialog() override;
    void OnControl(UINT id, UINT code) override;

private:
    static constexpr int kSets = 8;

    int CurrentSet() const; // -1 if there is none
    void ShowSet();
    void OnTyped();
    void ShowHint();

    std::array<QString, kSets> m_words; // of each set, with blanks between them
    bool m_isFilling = true;
    QLabel* m_hint = nullptr;
};
