// SPDX-License-Identifier: GPL-3.0-or-later
// Names of files and addresses that stand in a script, and what they lead to.
#pragma once

#include "host/files/FilePlace.h"

#include <QObject>
#include <QString>

class CZNCoreEditorControlEx;
class ScriptView;

bool IsAddress(const QString& name); // of the web or of a mail box

// The file that a script at the path names: as it stands, or beside the script, with a line behind
// it or without. Empty if there is none.
FilePlace FindNamed(const QString& name, const QString& script);

// The name around a position of the text, in UTF-16 units; empty if there is none.
QString NameAround(CZNCoreEditorControlEx& editor, long position);

// A click with Control on what can be opened opens it; any other one is the editor's. A child of
// the editor's window.
class NameClicks final : public QObject
{
    Q_OBJECT

public:
    explicit NameClicks(ScriptView& view);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ScriptView& m_view;
    bool m_isTaken = false; // the press; so the release is nobody's
};
