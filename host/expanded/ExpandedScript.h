// SPDX-License-Identifier: GPL-3.0-or-later
// A script as it is handed to a server, beside the script itself: its directives and variables
// expanded, what could not be included by line, and the way from each line to where it was written.
#pragma once

#include "preprocess/language/SourceMap.h"

#include <QDockWidget>
#include <QPointer>
#include <QStyle>

class CZNCoreEditorControlEx;
class QAction;
class QLabel;
class QTreeWidget;
class ScriptDoc;
class ZNCoreEditorWidget;
struct SCNotification;

class ExpandedScript final : public QDockWidget
{
    Q_OBJECT

public:
    explicit ExpandedScript(QWidget* parent);
    ~ExpandedScript() override;

    // Works on a copy, so the script, its caret and its undo stay as they are.
    void Expand(ScriptDoc& script, CZNCoreEditorControlEx& editor);

    // The script that is shown, null once it is closed.
    ScriptDoc* Script() const;

    // What can have the focus; the errors are shown if there are any.
    QWidget* TextArea() const;
    QWidget* ErrorArea() const;

    void PutOriginalBack();
    void GoToSource(); // of the caret's line

Q_SIGNALS:
    // The line from 0, in the file or, if the path is empty, in the script.
    void SourceChosen(const QString& path, long line);

private:
    void OnNotified(const SCNotification& record);
    void ListErrors();
    void ListLeftovers();
    void ListLine(long line, const QString& message, QStyle::StandardPixmap icon);
    void Caption(const QString& what);
    void GoToSourceOf(long line);

    ZNCoreEditorWidget* m_editor;
    QTreeWidget* m_errors;
    QLabel* m_hint; // what to do about the errors
    QAction* m_goToSource = nullptr;
    QAction* m_putBack = nullptr;
    QPointer<ScriptDoc> m_script;
    SourceMap m_map;
};
