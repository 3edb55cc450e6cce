// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CEditorPrefsSubDlg: a page of the preferences. It reads its settings when its window is made,
/// and writes into them nothing but what differs, and only when it is told to.
#pragma once

#include "platform/dialogs/Dialog.h"
#include "prefs/pages/PrefsControls.h"

class CSyntaxFile;

/// A page of the preferences.
class ZN_API CEditorPrefsSubDlg : public CDialog
{
public:
    /// The language that the page is about; it has to outlive the page. The page of all languages
    /// has none.
    virtual void SetSyntaxFile(CSyntaxFile* file) { m_pSyntaxFile = file; }
    /// What the controls held at the last UpdateData goes into the settings, in memory. Without a
    /// window there is nothing to write.
    virtual void Apply() = 0;
    /// The page has changes, of which its dialog comes to hear.
    virtual void OnChanged();

    bool HasChanges() const { return m_hasChanges; } ///< since the last SetUnchanged
    void SetUnchanged() { m_hasChanges = false; }    ///< what it holds is written

    int PreTranslateMessage(MSG* message) override;

protected:
    /// The file, parsed; null if there is none or it cannot be read.
    CSyntaxFile* Syntax() const;

    bool m_hasChanges = false;            ///< a person has changed something
    CSyntaxFile* m_pSyntaxFile = nullptr; ///< null: the page of all languages
};
