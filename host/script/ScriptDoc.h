// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptDoc: one script, the file behind it, and what is known of its text. It asks before
// anything is lost, and tells whoever shows it of each change.
#pragma once

#include "completion/popup/LiveIndex.h"
#include "docview/ZNCoreEditorDoc.h"
#include "host/files/Prompts.h"
#include "host/script/ReadLoss.h"

#include <QObject>
#include <QTimer>

#include <memory>

class FileMemory;
class LineEndWatch;
class QMenu;
class ScriptChecker;
class ScriptView;

class ScriptDoc final : public QObject, public CZNCoreEditorDoc
{
    Q_OBJECT

public:
    // Documents that are opened while this exists are read in the encoding; -1 detects it.
    class OpenAs
    {
    public:
        explicit OpenAs(int encoding);
        ~OpenAs();
        OpenAs(const OpenAs&) = delete;
        OpenAs& operator=(const OpenAs&) = delete;
    };

    ScriptDoc();
    ~ScriptDoc() override;

    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass();
    static CObject* CreateObject() { return new ScriptDoc; }

    int OnNewDocument() override;
    int OnOpenDocument(const QString& path) override;
    int OnOpenDocumentEx(const QString& path, FileEncodeConverter::encodingType encoding) override;
    int OnSaveDocument(const QString& path) override;
    int SaveModified() override;
    int DoFileSave() override; // asks for a name where there is none, or one that is read-only
    void ReportSaveLoadException(const QString& path, const CFileException* exception, bool saving,
                                 UINT prompt) override;
    void SetModifiedFlag(int modified = 1) override;

    int SaveAs(); // 0 if the person, or a failure, kept things as they were
    // Reads the file again, in another encoding. 0 if it was not read.
    int Reopen(int encoding);

    // Puts the copy that a crash has left in the place of the text. A script without a file gets
    // the one that the copy stands for, which need not be there. False if it was not loaded, of
    // which the person knows.
    bool Recover(const RecoverableCopy& copy);

    QString Name() const;                                        // the file's, or the one given
    void SetFolder(const QString& folder) { m_folder = folder; } // for a first file
    // Where a plain save goes: the file behind the text, the path empty if there is none yet.
    SaveTarget CurrentTarget() const;
    int ChosenEncoding() const { return m_chosenEncoding; } // by a person; -1: detected
    bool IsReadOnly() const;
    void TellReadOnly(); // and what to do about it
    bool IsUntouched();  // no file, no text, no change

    // A load takes the language from the file's name. All views have the same.
    int Language() const;
    void SetLanguage(int language);
    void FollowOptions(); // those of the options server, which have changed

    // Of the script's text. Null once the last view is gone.
    ScriptChecker* Checker() const { return m_checker.get(); }
    LineEndWatch* LineEnds() const { return m_lineEnds.get(); }
    ScriptView* FirstView() const;
    // The words and names of the text, through one of the views.
    completion::LiveIndex& Names() { return m_names; }
    std::vector<ScriptDoc*> OpenBeside() const; // the other scripts of the application

    // From the views
    void OnViewMade(ScriptView& view);
    void OnViewGoes(ScriptView& view); // while its editor still stands
    void OnViewShown();                // its editor has the looks of its language
    void OnTextChanged();
    void OnFocus(); // asks about what others did to the file, tells what a load could not show

Q_SIGNALS:
    void StateChanged(); // text, caret, modified flag, zoom: anything that a window shows
    void TextChanged();
    void LinesMoved(int first, int added); // from there on; below 0: that many went
    void LanguageChanged(); // the looks are those of the language again, in all views
    void ProblemsChanged();
    void MenuOpened(QMenu* menu);   // one of a view's own, filled
    void Told(const QString& text); // what a person should know, and need not answer

protected:
    const CommandMap& GetCommandMap() const override;

private:
    int SaveTo(const SaveTarget& target);
    bool MayReplaceUnread(const SaveTarget& target);
    bool MayReplaceChangedFile(const SaveTarget& target);
    Comparison WithFile() const;
    bool MayLoseCharacters(SaveTarget& target); // the person may choose another encoding
    int WriteTo(const SaveTarget& target);
    void OnReload();
    void OnReadOnly();
    void LookForUnread();
    void TellUnread();
    int LanguageToOpenWith(const QString& path);
    int CodePageToOpenWith(const QString& path) const;
    void TellCodePage();
    void TellOfFolder(const FileMemory& told, const QString& path, const QString& choice);
    void CopyNow();
    void ServeView(ScriptView& view);
    void NameCopies(CZNCoreEditorControlEx& editor) const;
    QString FreeTitle() const; // of a script without a file
    QWidget* Window() const;

    completion::LiveIndex m_names;
    std::unique_ptr<ScriptChecker> m_checker;
    std::unique_ptr<LineEndWatch> m_lineEnds;
    QString m_folder;        // empty: the current one
    QTimer m_copySoon{this}; // to the copy that a crash would leave
    int m_chosenEncoding = -1;
    void AskBeforeLosingToFile();
    void KeepAsOnlyHere();

    bool m_onlyHere = false;  // the file has another text by now, or is gone, and this one is kept
    bool m_isOfOther = false; // the text was read from what the file was once, and is no more
    ReadLoss m_loss;          // of the file that the text was read from
    bool m_tellsLoss = false;
    bool m_asking = false;
    bool m_told = false; // why the file was not read
};
