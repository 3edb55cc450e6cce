// SPDX-License-Identifier: GPL-3.0-or-later
// CSettingsPref: a page of plain settings, by rows of a table; CEditorPref and CCodingPref are two.
#pragma once

#include "prefs/pages/EditorPrefsSubDlg.h"

#include <span>
#include <vector>

class QVBoxLayout;

// One setting and its control: a check box, an edit with a number, or a group of radio buttons.
struct SettingRow
{
    enum class Kind
    {
        Check,
        Number,
        Choice
    };
    Kind kind;
    std::span<const UINT> ids; // of a choice one for each value from 0 up
    int (*get)(CSyntaxFile& file);
    void (*set)(CSyntaxFile& file, int value);
};

class ZN_API CSettingsPref : public CEditorPrefsSubDlg
{
public:
    void Apply() override; // in the order of the rows

protected:
    explicit CSettingsPref(std::span<const SettingRow> rows) : m_rows(rows), m_values(rows.size())
    {}

    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnControl(UINT id, UINT code) override;
    int OnCommand(WPARAM wParam, LPARAM lParam) override;

    void AddCheck(QVBoxLayout& column, UINT id, const char* label);
    void AddNumber(QVBoxLayout& column, UINT id, const char* label);
    void AddRadio(QVBoxLayout& column, UINT id, const char* label);

private:
    void Exchange(CDataExchange& exchange, const SettingRow& row, int& value);

    std::span<const SettingRow> m_rows;
    std::vector<int> m_values; // one for each row
    bool m_isFilled = false;   // what changes from here on, a person changes
};

class ZN_API CEditorPref final : public CSettingsPref
{
public:
    CEditorPref();

protected:
    void OnBuild(QWidget* window) override;
};

class ZN_API CCodingPref final : public CSettingsPref
{
public:
    CCodingPref();

protected:
    void OnBuild(QWidget* window) override;
};
