// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CSettingsPref: a page of plain settings, by rows of a table; CEditorPref and CCodingPref are
/// two.
#pragma once

#include "prefs/pages/EditorPrefsSubDlg.h"

#include <span>
#include <vector>

class QVBoxLayout;

/// One setting and its control: a check box, an edit with a number, or a group of radio buttons.
struct SettingRow
{
    /// What the control is.
    enum class Kind
    {
        Check,  ///< a box: 0 or 1
        Number, ///< an edit
        Choice  ///< radio buttons: from 0 up
    };
    Kind kind;                                 ///< of the control
    std::span<const UINT> ids;                 ///< of a choice one for each value from 0 up
    int (*get)(CSyntaxFile& file);             ///< reads the setting
    void (*set)(CSyntaxFile& file, int value); ///< writes it, in memory
};

/// The page of a table of settings.
class ZN_API CSettingsPref : public CEditorPrefsSubDlg
{
public:
    void Apply() override; ///< in the order of the rows

protected:
    /// The rows outlive the page.
    explicit CSettingsPref(std::span<const SettingRow> rows) : m_rows(rows), m_values(rows.size())
    {}

    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnControl(UINT id, UINT code) override;
    int OnCommand(WPARAM wParam, LPARAM lParam) override;

    /// Makes the box, with its label.
    void AddCheck(QVBoxLayout& column, UINT id, const char* label);
    /// Makes the edit, with its label.
    void AddNumber(QVBoxLayout& column, UINT id, const char* label);
    void AddRadio(QVBoxLayout& column, UINT id, const char* label); ///< makes one button of a group

private:
    void Exchange(CDataExchange& exchange, const SettingRow& row, int& value);

    std::span<const SettingRow> m_rows;
    std::vector<int> m_values; // one for each row
    bool m_isFilled = false;   // what changes from here on, a person changes
};

/// The page "Editor" of a language.
class ZN_API CEditorPref final : public CSettingsPref
{
public:
    CEditorPref(); ///< without a window

protected:
    void OnBuild(QWidget* window) override;
};

/// The page "Code" of a language.
class ZN_API CCodingPref final : public CSettingsPref
{
public:
    CCodingPref(); ///< without a window

protected:
    void OnBuild(QWidget* window) override;
};
