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
    void Expand(ScriptDoc& doc, CZNCoreEditorControlEx& editor);
    // Whether a further expansion would show the same, but for what other files say. A script that
    // was changed is expanded again, even if it is what it was.
    bool Shows(const ScriptDoc& script, CZNCoreEditorControlEx& editor) const;

    // The script that is shown, null once it is closed.
    ScriptDoc* Script() const;

    // What can have the focus; the errors are shown if there are any.
    QWidget* TextArea() const;
    QWidget* ErrorArea() const;

    void PutOriginalBack();
    void GoToSource(); // of the caret's line, unless the script was changed since

Q_SIGNALS:
    // The line from 0, in the file or, if the path is empty, in the script.
    void SourceChosen(const QString& path, long line);

protected:
    void changeEvent(QEvent* event) override;

private:
    void OnNotified(const SCNotification& record);
    void ListErrors();
    void ListLeftovers();
    void ListLine(long line, const QString& message, QStyle::StandardPixmap icon);
    void ShowHint(const QString& hint);
    void Caption(const QString& what);
    void GrowStale();
    void GoToSourceOf(long line);

    ZNCoreEditorWidget* m_editor;
    QTreeWidget* m_errors;
    QLabel* m_hint; // what to do about the errors, or why nothing is another
    QAction* m_goToSource = nullptr;
    QAction* m_putBack = nullptr;
    QPointer<ScriptDoc> m_script;
    std::size_t m_text = 0; // of the script, when it was expanded
    bool m_isStale = false; // the script was changed since
    QMetaObject::Connection m_changes;
    SourceMap m_map;
};
