// One script in a tab: the editor, the file behind it, and what the window shows of both.
#pragma once

#include "host/Prompts.h"

#include <QWidget>

class CZNCoreEditorControlEx;
class ScriptChecker;
class ZNCoreEditorWidget;
struct SCNotification;

class EditorTab final : public QWidget
{
    Q_OBJECT

public:
    // The name stands for the script until it is saved.
    EditorTab(const QString& untitledName, QWidget* parent);
    ~EditorTab() override;

    CZNCoreEditorControlEx& Editor() const;

    // Empty if the script is open, else a sentence that tells why it is not.
    QString Load(const QString& path);

    // Writes the text; empty if it did, else a sentence that tells why it did not. The text and the
    // file behind it then stay as they were.
    QString Save(const SaveTarget& target);

    // Where a plain save goes: the file behind the text, the path empty if there is none yet.
    SaveTarget CurrentTarget() const;

    // A load takes the language from the file's name.
    int Language() const;
    void SetLanguage(int language);
    void FollowOptions(); // those of the options server, which have changed

    QString Name() const; // the file's, or the one given
    QString Path() const { return m_path; }
    bool IsModified() const;
    bool IsReadOnly() const;
    bool IsUntouched() const; // no file, no text, no change
    bool HasSelection() const;
    QString CaretText() const; // line and column, from 1
    QString Catalog() const;   // the database in force at the caret, empty if none is known

    ScriptChecker& Checker() const { return *m_checker; }
    void SelectRange(long start, long end); // and shows it

    // Whether the encoding has every character of the text.
    bool CanHold(int encoding) const;

Q_SIGNALS:
    void LanguageChanged(); // the looks are those of the language again
    void StateChanged();    // text, caret, modified flag, zoom: anything that the window shows

private:
    void OnNotified(const SCNotification& record);
    void AnnounceSoon();
    void Announce();
    void HighlightBraces();
    void FitScrollRange();

    ZNCoreEditorWidget* m_widget;
    ScriptChecker* m_checker;
    QString m_untitledName;
    QString m_path;
    bool m_announcing = false;
    int m_measuredFrom = -1; // the first line on screen when lines were last measured
};
