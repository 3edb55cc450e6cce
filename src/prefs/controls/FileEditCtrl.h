// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CFileEditCtrl: an edit for paths with a button that browses for one; CFECFileDialog, what the
/// button opens for files. Behind them stand a QLineEdit and the service that browses.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QString>
#include <QStringList>
#include <QWidget>

class QLineEdit;
class QToolButton;

/// Asks for a file that exists.
class ZN_API CFECFileDialog
{
public:
    /// The folder is where it begins.
    CFECFileDialog(HWND owner, QString folder) : m_owner(owner), m_folder(std::move(folder)) {}

    bool DoModal(); ///< false if the user thought better of it
    const QString& GetPathName() const { return m_path; } ///< what was chosen; empty: nothing

private:
    HWND m_owner;
    QString m_folder;
    QString m_path;
};

/// An edit for paths with a button that browses.
class ZN_API CFileEditCtrl : public QWidget
{
    Q_OBJECT

public:
    /// What it is for; put together with |.
    enum Flag : unsigned
    {
        Files = 0,            ///< files that exist
        Folders = 1,          ///< folders in place of files
        TrailingSlash = 2,    ///< a folder that is browsed for ends with a separator
        ResolveShortcuts = 4, ///< paths that end in ".lnk" or ".pif" give what they lead to
        ButtonAlone = 8,      ///< the edit is not shown
    };

    explicit CFileEditCtrl(unsigned flags = Files, QWidget* parent = nullptr); ///< of Flag

    void SetFolder(const QString& folder) { m_folder = folder; } ///< of relative names
    QString GetText() const;                                     ///< as it was typed
    void SetText(const QString& text);                           ///< in the place of what was typed

    /// The paths of the text, which ';' parts, absolute. A name with * or ? stands for the entries
    /// that fit it, for itself if there are none.
    QStringList GetPaths() const;

    /// Whether every path exists and is what the control is for; tells the user which is not.
    bool Validate();

    void Browse(); ///< as the button does

Q_SIGNALS:
    void Changed(); ///< the text, by the user or by browsing

private:
    QString Absolute(const QString& name) const;
    QString Fault() const; // empty: none
    bool Has(Flag flag) const { return (m_flags & flag) != 0; }

    unsigned m_flags;
    QString m_folder;
    QLineEdit* m_edit;
    QToolButton* m_button;
};
