// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/CompileManager.h"

#include "common/Globals.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/operations/ScriptPreprocessor.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/SpecialFolders.h"
#include "preprocess/DefinePasses.h"
#include "preprocess/ScriptText.h"
#include "preprocess/language/Directives.h"
#include "preprocess/language/SearchPath.h"
#include "preprocess/language/VariableTable.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <vector>

#include <unistd.h>

namespace {

enum TextId : UINT
{
    kIncludeWord = 28167,
    kDefineWord = 28168,
    kCannotOpen = 28169, // %1 the name, %2 one of those below
    kMissing = 28170,
    kNotPermitted = 28171,
    kDenied = 28172,
    kTooLarge = 28173,
};

constexpr qsizetype kMostInMemory = 1024 * 1024; // units

struct ReasonRow
{
    int error;
    UINT text;
};

constexpr ReasonRow kReasons[] = {
    {EPERM, kNotPermitted},
    {ENOENT, kMissing},
    {EACCES, kDenied},
    {EFBIG, kTooLarge},
};

QString TextOf(UINT id)
{
    return zncoreeditor::GetResourceLoader().LoadString(id);
}

// Without a reason that has a text the message ends behind the colon.
QString CannotOpen(const QString& name, int error)
{
    QString reason;
    for (const ReasonRow& row : kReasons) {
        if (row.error == error)
            reason = TextOf(row.text);
    }
    return zncoreeditor::GetResourceLoader().FormatString(kCannotOpen, {name, reason});
}

} // namespace

struct CZNCompileManager::Run
{
    Run(CZNCompileManager& manager, CZNCoreEditorControlEx& control)
        : text(control, manager.m_map),
          passes(text, table, TextOf(kDefineWord), manager.m_directivesFound),
          includeWord(TextOf(kIncludeWord))
    {
        for (const auto& [name, value] : manager.m_predefined)
            table.Insert(name, value);
    }

    ScriptText text;
    VariableTable table;
    DefinePasses passes;
    QString includeWord;
    long next = 0;          // where the search for includes goes on
    long expandedLine = -1; // the start of the line that was expanded last
};

CZNCompileManager::CZNCompileManager() = default;

CZNCompileManager::~CZNCompileManager()
{
    if (!m_backupFile.isEmpty())
        QFile::remove(m_backupFile);
}

void CZNCompileManager::PreProcess(CZNCoreEditorControlEx* control, QString script)
{
    m_control = control;
    if (script.isEmpty())
        return;
    control->SetPreprocessorErrors(false);
    m_directivesFound = false;
    SaveOriginalScript(script);
    script = QString(); // a long one is held by the file alone
    m_map.Clear();
    m_cutFiles.clear();
    Run run(*this, *control);
    m_run = &run;
    ExpandDefines(0, run.text.Length());
    ExpandIncludes();
    m_run = nullptr;
}

void CZNCompileManager::ExpandDefines(long start, long freshEnd)
{
    m_run->passes.Run(start, freshEnd);
}

// True if an include directive was seen, if only in a comment.
bool CZNCompileManager::ExpandIncludes()
{
    ScriptText& text = m_run->text;
    text.SearchFor(m_run->includeWord, false, true);
    m_run->next = 0;
    long position = text.Find(0, text.Length());
    if (position < 0)
        return false;
    while (position >= 0) {
        ExpandIncludeAt(position);
        position = text.Find(m_run->next, text.Length());
    }
    m_doneIncludes.clear();
    return true;
}

// A line whose text was met before is only commented out, which ends every cycle of files.
void CZNCompileManager::ExpandIncludeAt(long position)
{
    ScriptText& text = m_run->text;
    const int lineNumber = text.LineOf(position);
    const long start = text.LineStart(lineNumber);
    const long end = text.LineEnd(lineNumber);
    m_run->next = end;
    if (start == m_run->expandedLine) { // a long marker has pushed the word behind the line's end
        m_run->next = std::max<long>(end, position + m_run->includeWord.size());
        return;
    }
    if (text.PlaceOf(position) != ScriptText::Place::Code)
        return;
    const QString line = text.Text(start, end).trimmed();
    m_directivesFound = true;
    if (m_doneIncludes.contains(line)) {
        m_run->expandedLine = start;
        text.Insert(start, text.CommentMarker());
        return;
    }
    if (const long inserted = ExpandInclude(line, end); inserted >= 0) {
        m_run->expandedLine = start;
        ExpandDefines(end, end + inserted);
        text.SearchFor(m_run->includeWord, false, true);
    } else {
        m_control->SetPreprocessorErrors(true);
        m_control->SetIncludeDirectiveErrorMessageAndLine(m_errorMessage, lineNumber);
        m_errorMessage.clear();
    }
    m_doneIncludes.insert(line);
}

// The length that it adds to the text; -1, with the message at hand, if there is no such file.
long CZNCompileManager::ExpandInclude(const QString& line, long lineEnd)
{
    ScriptText& text = m_run->text;
    const QString marker = text.CommentMarker();
    const QString path =
        FindIncludeFile(directive::IncludedName(line, m_run->includeWord.size(), marker));
    if (path.isEmpty())
        return -1;
    bool isWhole = true;
    const long inserted = text.InsertFileBehind(lineEnd, marker, path, m_opened.release(), isWhole);
    if (!isWhole)
        m_cutFiles << path;
    return inserted;
}

// A message that a search left behind, found or not, stays for the next one.
QString CZNCompileManager::FindIncludeFile(QString name)
{
    QString path = FindInFolders(m_searchPath, name);
    if (path.isEmpty())
        path = FindInFolders(GetDefaultSearchPath(), name);
    if (path.isEmpty() && m_errorMessage.isEmpty())
        m_errorMessage = CannotOpen(name, ENOENT);
    return path;
}

QString CZNCompileManager::FindInFolders(const QString& folders, const QString& name)
{
    for (const QString& folder : FoldersOf(folders)) {
        const QString path = FileIn(folder, name);
        if (CanOpenFile(path, name))
            return path;
    }
    return QString();
}

bool CZNCompileManager::CanOpenFile(const QString& path, const QString& name)
{
    int error = 0;
    const int file = OpenScript(path, error);
    m_opened.reset(file < 0 ? nullptr : fdopen(file, "rb"));
    if (m_opened)
        return true;
    if (file >= 0) {
        error = errno;
        close(file);
    }
    // That a file is missing tells least, so it gives way to every other reason.
    if (error != ENOENT || m_errorMessage.isEmpty())
        m_errorMessage = CannotOpen(name, error);
    return false;
}

QString CZNCompileManager::GetDefaultSearchPath() const
{
    const bool isOwn = znutils::CSpecialFolders::GetSimpleAppName().compare(
                           QLatin1String("DBGlazier"), Qt::CaseInsensitive) == 0;
    return CZNOptionsServer::GetObjectW()->GetString(isOwn ? option::OwnIncludePath
                                                           : option::IncludePath);
}

void CZNCompileManager::SaveOriginalScript(const QString& script)
{
    m_originalScript.clear();
    if (!m_backupFile.isEmpty()) {
        QFile::remove(m_backupFile);
        m_backupFile.clear();
    }
    // The file is read up to a NUL, so a script that has one is not kept there.
    if (script.size() > kMostInMemory && !script.contains(QChar(u'\0')) && WriteBackup(script))
        return;
    m_originalScript = script;
}

bool CZNCompileManager::WriteBackup(const QString& script)
{
    const QString path = znutils::CSpecialFolders::GetAppTempFile(u"Bck", nullptr);
    QFile file(path);
    const qint64 bytes = script.size() * static_cast<qint64>(sizeof(QChar));
    const bool isWritten =
        !path.isEmpty() && file.open(QIODevice::WriteOnly) &&
        file.write(reinterpret_cast<const char*>(script.constData()), bytes) == bytes &&
        file.flush();
    if (isWritten)
        m_backupFile = path;
    else if (!path.isEmpty())
        file.remove();
    return isWritten;
}

// The name of a file that was read stays until the next script is saved; nothing is read twice.
void CZNCompileManager::GetOriginalScript(QString& script)
{
    script = m_originalScript;
    QFile file(m_backupFile);
    if (!m_originalScript.isEmpty() || m_backupFile.isEmpty() || !file.open(QIODevice::ReadOnly))
        return;
    script.resize(file.size() / static_cast<qint64>(sizeof(QChar)));
    const qint64 bytes = script.size() * static_cast<qint64>(sizeof(QChar));
    const qint64 taken = file.read(reinterpret_cast<char*>(script.data()), bytes);
    script.truncate(std::max<qint64>(taken, 0) / static_cast<qint64>(sizeof(QChar)));
    if (const qsizetype end = script.indexOf(QChar(u'\0')); end >= 0)
        script.truncate(end);
    file.close();
    file.remove();
}

namespace {

// The editors' way to the manager.
class Preprocessor final : public IScriptPreprocessor
{
public:
    Preprocessor() { SetScriptPreprocessor(this); }
    Preprocessor(const Preprocessor&) = delete;
    Preprocessor& operator=(const Preprocessor&) = delete;
    ~Preprocessor() override { SetScriptPreprocessor(nullptr); }

    void SetSearchPath(const QString& path) override { manager.SetSearchPath(path); }
    void PreProcess(CZNCoreEditorControlEx* control, QString script) override
    {
        manager.PreProcess(control, std::move(script));
    }
    bool GetDirectivesFound() const override { return manager.GetDirectivesFound(); }
    void SaveOriginalScript(const QString& script) override { manager.SaveOriginalScript(script); }
    void GetOriginalScript(QString& script) override { manager.GetOriginalScript(script); }

    CZNCompileManager manager;
};

Preprocessor g_preprocessor; // attached with the library

} // namespace

namespace zncoreeditor {

CZNCompileManager* GetCompileManager()
{
    return &g_preprocessor.manager;
}

} // namespace zncoreeditor
