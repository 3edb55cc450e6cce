// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CZNCompileManager: expands "#include", "#define" and "&&" variables in the text of an editor,
/// before a script is handed to its consumer, and keeps what the script was. One run at a time, on
/// the GUI thread; a run moves the caret, the selection and the settings of the search.
#pragma once

#include "common/Export.h"
#include "control/FilePointer.h"
#include "preprocess/language/SourceMap.h"

#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <set>

class CZNCoreEditorControlEx;
class DefinePasses;
class ScriptText;
class VariableTable;

/// Expands "#include", "#define" and "&&" variables in the text of an editor, before a script is
/// handed to its consumer, and keeps what the script was.
class ZN_API CZNCompileManager
{
public:
    CZNCompileManager(); ///< no run yet
    CZNCompileManager(const CZNCompileManager&) = delete;
    CZNCompileManager& operator=(const CZNCompileManager&) = delete;
    virtual ~CZNCompileManager(); ///< the file of a long script goes

    /// Folders for included files, separated by ";", looked through before the default ones.
    void SetSearchPath(const QString& path) { m_searchPath = path; }

    /// Variables, with their ampersands, that a run knows from its start; a script cannot define
    /// them otherwise.
    void SetPredefined(std::map<QString, QString> variables)
    {
        m_predefined = std::move(variables);
    }

    /// Expands the script in place; it is the control's text. Nothing happens to an empty one, and
    /// what is known of the run before stays. A read-only one stays as it is: its directives count
    /// as found, and files that it cannot include are told.
    void PreProcess(CZNCoreEditorControlEx* control, QString script);

    /// Whether the last run found a directive outside comments and strings.
    bool GetDirectivesFound() const { return m_directivesFound; }

    /// Kept in memory, or in a file of its own when it is long. A file can be read once.
    void SaveOriginalScript(const QString& script);
    /// The script that was saved last, into the given text.
    void GetOriginalScript(QString& script);

    /// The first file of that name in the folders; empty, with the message at hand, if none can be
    /// read. The script's own folder is not looked in.
    QString FindIncludeFile(QString name);
    /// False, with the message at hand, if it cannot be read; the name is the one the message
    /// tells. The file stays open until the next one, for the include that reads it.
    bool CanOpenFile(const QString& path, const QString& name);
    QString GetDefaultSearchPath() const; ///< of the options

    /// The files of the last run that are in its result only up to a place that could not be read.
    const QStringList& GetCutFiles() const { return m_cutFiles; }

    /// Where the lines of the last run's result came from.
    const SourceMap& GetSourceMap() const { return m_map; }

private:
    struct Run; // what stands for the time of one

    void ExpandDefines(long start, long freshEnd);
    bool ExpandIncludes();
    void ExpandIncludeAt(long position);
    long ExpandInclude(const QString& line, long lineEnd);
    QString FindInFolders(const QString& folders, const QString& name);
    bool WriteBackup(const QString& script);

    CZNCoreEditorControlEx* m_control = nullptr;
    bool m_directivesFound = false;
    QString m_searchPath;
    QString m_originalScript;
    QString m_backupFile;
    QString m_errorMessage;
    FilePointer m_opened; // what CanOpenFile has opened
    QStringList m_cutFiles;
    std::set<QString> m_doneIncludes;
    std::map<QString, QString> m_predefined;
    SourceMap m_map;
    Run* m_run = nullptr;
};

namespace zncoreeditor {
ZN_API CZNCompileManager* GetCompileManager(); ///< made on first use, and gone with the process
}
