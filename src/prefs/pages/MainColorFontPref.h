// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CMainColorFontPref: the colours that hold for every language: caret, selection, current line,
/// right edge.
#pragma once

#include "prefs/pages/EditorPrefsSubDlg.h"

#include <array>

class CConfigFile;

/// The colours that hold for every language: caret, selection, current line, right edge.
class ZN_API CMainColorFontPref final : public CEditorPrefsSubDlg
{
public:
    static constexpr std::size_t kColors = 5; ///< rows of colours

    void SetConfigFile(CConfigFile* file) { m_config = file; } ///< it has to outlive the page
    void Apply() override;

protected:
    void OnBuild(QWidget* window) override;
    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnControl(UINT id, UINT code) override;
    int OnCommand(WPARAM wParam, LPARAM lParam) override;
    const MessageMap& GetMessageMap() const override;

private:
    CConfigFile* Config() const; // null if it cannot be read
    void ShowButton(std::size_t row);
    void EnableButtons();
    void OnColorChosen(UINT id, unsigned color);

    CConfigFile* m_config = nullptr;
    std::array<bool, kColors> m_uses{}; // of each row, where it has a box
    std::array<unsigned long, kColors> m_colors{};
    int m_edgeColumn = 0;
    bool m_isFilled = false;
};
