// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFontPref: the fonts of a language's styles.
#pragma once

#include "prefs/pages/EditorPrefsSubDlg.h"

#include <QMap>
#include <QString>

class QLineEdit;
class QListWidget;
class StyleSample;

/// The fonts of a language's styles.
class ZN_API CFontPref final : public CEditorPrefsSubDlg
{
public:
    /// Every style, changed or not: a language whose fonts were looked at counts as modified.
    void Apply() override;

protected:
    void OnBuild(QWidget* window) override;
    bool OnInitDialog() override;
    void OnControl(UINT id, UINT code) override;
    const CommandMap& GetCommandMap() const override;

private:
    struct Record
    {
        QString name;
        QString size; // as it was typed
        bool bold = false;
        bool italic = false;
        bool underline = false;
    };

    Record* CurrentRecord(); // null if there is no style
    void ShowStyle();
    void Complete(QLineEdit& edit, QListWidget& list, QString& before);
    void OnTyped(UINT id);
    void OnListChoice(UINT id);
    void TakeControls();
    void ShowSample();
    void OnBoxClicked();
    void OnToAllStyles();

    QMap<int, Record> m_records; // by the style's number
    StyleSample* m_sample = nullptr;
    bool m_isFilling = true; // controls change by themselves, not by a person
    QString m_nameBefore;    // what the edit showed, completion included
    QString m_sizeBefore;
};
