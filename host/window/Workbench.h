// SPDX-License-Identifier: GPL-3.0-or-later
// Workbench: the application's end of the framework. It opens scripts, with the questions that come
// before, and keeps the list of recent files.
#pragma once

#include "host/files/OpenGuard.h"
#include "host/files/RecentFiles.h"
#include "host/options/WorkbenchOptions.h"
#include "host/preferences/WorkbenchPreferences.h"
#include "host/printing/WorkbenchPrinter.h"
#include "host/recovery/RecoverableCopy.h"
#include "host/window/WorkProgress.h"
#include "platform/docview/WinApp.h"

#include <QList>

#include <functional>
#include <utility>

class ScriptDoc;
class ScriptFrame;

class Workbench final : public CWinApp
{
public:
    enum class Keeps
    {
        Nothing, // a run that leaves no traces
        Places   // recent files, and what was being opened
    };
    explicit Workbench(Keeps keeps);
    ~Workbench() override; // closes everything, asking nobody

    // Opens the script, or shows it if it is open. Null if that failed, of which the user knows, or
    // was not wanted.
    CDocument* OpenDocumentFile(const QString& path) override;
    CDocument* OpenScript(const QString& path, int encoding = -1); // -1: detect it
    // What was open in the last run: it is recent already, and its copies were asked about.
    CDocument* OpenResumed(const QString& path, int encoding);
    // Who knows of scripts that are still to be resumed may do so with one that is asked for.
    void BeforeOpening(std::function<void(const QString& path)> call)
    {
        m_beforeOpening = std::move(call);
    }
    void NewScript() { OnFileNew(); }
    void AddToRecentFileList(const QString& path) override;

    // At the start of a run: shows what crashes have left. What the person chooses is brought back
    // by the second call, when the scripts of the session stand; files that are opened in between
    // are not asked about.
    void ChooseWhatToRecover();
    void Recover();

    // Several with changes are asked about at once.
    int SaveAllModified() override;
    int SaveAll(); // without a word about what has a name; 0 as soon as one is not saved
    bool CanSaveAll() const;

    std::vector<ScriptDoc*> Scripts() const;
    ScriptDoc* ActiveScript() const;                // null if there is none
    ScriptDoc* FindOpen(const QString& path) const; // null if it is not open
    // Of all scripts and of what is around them, from here on and in the next run.
    void ChooseScheme(const QString& name);
    void OpenPreferences();
    RecentFiles& Recent() { return m_recent; }
    // What later starts have asked for, one list of words for each, until a window opens it.
    QList<QStringList>& Asked() { return m_asked; }

protected:
    const CommandMap& GetCommandMap() const override;

private:
    void OnOpen();
    void OnOpenAs();
    void TellBeforeOpening(const QString& path) const;
    bool MayOpen(const QString& path);
    CDocument* OpenGuarded(const QString& absolute);
    QList<RecoverableCopy> AskAbout(LeftCopies& copies);
    void RecoverFor(ScriptDoc& script);
    void RecoverScript(const RecoverableCopy& copy);

    Keeps m_keeps;
    WorkbenchOptions m_options;
    OpenGuard m_guard;
    WorkbenchPrinter m_printer;
    WorkProgress m_progress;
    RecentFiles m_recent;
    WorkbenchPreferences m_preferences;
    QList<RecoverableCopy> m_toRecover;
    QList<QStringList> m_asked;
    std::function<void(const QString& path)> m_beforeOpening;
    bool m_isStarting = false; // between the choice and the recovery
    bool m_isResuming = false;
};
