// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/FileSearch.h"

#include "search/files/ExpressionFault.h"
#include "search/files/FileText.h"
#include "search/files/Screen.h"
#include "search/files/TextSearch.h"

#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <set>
#include <string>
#include <thread>

#include <dirent.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <unistd.h>

IFileSearchListener::~IFileSearchListener() = default;

namespace {

using Identity = std::pair<dev_t, ino_t>;

std::vector<std::string> PatternsOf(const QString& types)
{
    std::vector<std::string> patterns;
    QString parted = types;
    parted.replace(u',', u';');
    for (const QString& part : parted.split(u';')) {
        const QString pattern = part.trimmed();
        // Names without a dot are files like others.
        if (pattern == QLatin1String("*.*"))
            patterns.emplace_back("*");
        else if (!pattern.isEmpty())
            patterns.push_back(QFile::encodeName(pattern).toStdString());
    }
    return patterns;
}

QString Decoded(const std::string& name)
{
    return QFile::decodeName(QByteArray::fromStdString(name));
}

} // namespace

class CFileSearch::Job
{
public:
    Job(FileSearchRequest request, IFileSearchListener& listener)
        : m_request(std::move(request)), m_listener(listener),
          m_patterns(PatternsOf(m_request.types))
    {}
    ~Job()
    {
        Stop();
        Wait();
    }

    void Start();
    void Stop()
    {
        m_stop = true;
        const std::lock_guard lock(m_queueLock);
        m_wake.notify_all();
    }
    void Wait()
    {
        for (std::thread& thread : m_threads) {
            if (thread.joinable())
                thread.join();
        }
    }
    FileSearchTotals Totals() const
    {
        const std::lock_guard lock(m_listenerLock);
        return m_totals;
    }

private:
    struct Task
    {
        enum Kind
        {
            Folder,
            File,
            Open,
        } kind;
        std::string name;
        std::size_t open = 0;
    };

    void Run();
    bool Take(Task& task);
    void Add(std::vector<Task>& tasks);
    void Finish();
    void WalkFolder(const std::string& name);
    // What one thread searches with.
    struct Tools
    {
        TextSearch search;
        FileText file;
    };

    void SearchFile(const std::string& name, Tools& tools);
    void SearchOpen(const OpenText& open, TextSearch& search);
    bool Fits(const char* name) const;
    bool IsNew(const struct stat& folder);

    void Tell(FoundFile&& file);
    void Note(FileNote note, const std::string& name);
    void NoteRunAway(const QString& path);
    template <class Change>
    void Count(Change change)
    {
        const std::lock_guard lock(m_listenerLock);
        change(m_totals);
    }

    const FileSearchRequest m_request;
    const Screen m_screen{m_request};
    IFileSearchListener& m_listener;
    const std::vector<std::string> m_patterns;
    std::atomic<bool> m_stop = false;
    std::vector<std::thread> m_threads;

    std::mutex m_queueLock;
    std::condition_variable m_wake;
    std::vector<Task> m_tasks; // the last one is next, so that few folders are open at a time
    long m_unfinished = 0;
    int m_running = 0;
    std::set<Identity> m_folders; // that have been looked into

    std::set<Identity> m_openFiles;
    mutable std::mutex m_listenerLock;
    FileSearchTotals m_totals;
    bool m_saidRunAway = false;
    QString m_fault; // of the expression
};

void CFileSearch::Job::Start()
{
    std::vector<Task> tasks;
    m_fault = m_request.regExp ? ExpressionFault(m_request.text, m_request.perlSyntax) : QString();
    for (const QString& folder : m_request.openOnly ? QStringList() : m_request.folders)
        tasks.push_back({Task::Folder, QFile::encodeName(folder).toStdString()});
    for (std::size_t i = m_request.open.size(); i-- > 0;) {
        struct stat status = {};
        const QByteArray name = QFile::encodeName(m_request.open[i].path);
        const bool isThere = !name.isEmpty() && stat(name.constData(), &status) == 0;
        if (isThere)
            m_openFiles.insert({status.st_dev, status.st_ino});
        if (m_request.openOnly)
            tasks.push_back({Task::Open, {}, i});
    }
    if (!m_fault.isEmpty())
        tasks.clear();
    Add(tasks);
    const int threads = m_request.threads > 0
                            ? m_request.threads
                            : std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    m_running = threads;
    for (int i = 0; i < threads; ++i)
        m_threads.emplace_back([this] { Run(); });
}

void CFileSearch::Job::Add(std::vector<Task>& tasks)
{
    const std::lock_guard lock(m_queueLock);
    m_unfinished += static_cast<long>(tasks.size());
    m_tasks.insert(m_tasks.end(), tasks.rbegin(), tasks.rend());
    m_wake.notify_all();
}

bool CFileSearch::Job::Take(Task& task)
{
    std::unique_lock lock(m_queueLock);
    m_wake.wait(lock, [this] { return m_stop || !m_tasks.empty() || m_unfinished == 0; });
    if (m_stop || m_tasks.empty())
        return false;
    task = std::move(m_tasks.back());
    m_tasks.pop_back();
    return true;
}

void CFileSearch::Job::Finish()
{
    const std::lock_guard lock(m_queueLock);
    if (--m_unfinished == 0)
        m_wake.notify_all();
}

void CFileSearch::Job::Run()
{
    Tools tools{TextSearch(m_request, m_stop), FileText(m_request.codePage)};
    for (Task task; Take(task); Finish()) {
        if (task.kind == Task::Folder)
            WalkFolder(task.name);
        else if (task.kind == Task::File)
            SearchFile(task.name, tools);
        else
            SearchOpen(m_request.open[task.open], tools.search);
    }
    bool isLast = false;
    {
        const std::lock_guard lock(m_queueLock);
        isLast = --m_running == 0;
    }
    if (!isLast)
        return;
    const std::lock_guard lock(m_listenerLock);
    m_totals.isStopped = m_stop;
    if (!m_fault.isEmpty())
        m_listener.OnNote(FileNote::NoExpression, m_fault);
    m_listener.OnDone(m_totals);
}

bool CFileSearch::Job::Fits(const char* name) const
{
    if (m_patterns.empty())
        return true;
    for (const std::string& pattern : m_patterns) {
        if (fnmatch(pattern.c_str(), name, FNM_CASEFOLD) == 0)
            return true;
    }
    return false;
}

bool CFileSearch::Job::IsNew(const struct stat& folder)
{
    const std::lock_guard lock(m_queueLock);
    return m_folders.insert({folder.st_dev, folder.st_ino}).second;
}

// A link is followed; a folder that is reached twice, by a loop of them, is looked into once.
void CFileSearch::Job::WalkFolder(const std::string& name)
{
    const int handle = open(name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    struct stat status = {};
    if (handle == -1 || fstat(handle, &status) != 0) {
        if (handle != -1)
            close(handle);
        Note(FileNote::Unreadable, name);
        return;
    }
    if (!IsNew(status)) {
        close(handle);
        Note(FileNote::Loop, name);
        return;
    }
    DIR* folder = fdopendir(handle);
    if (!folder) {
        close(handle);
        Note(FileNote::Unreadable, name);
        return;
    }
    std::vector<Task> tasks;
    const std::string prefix = name.empty() || name.back() == '/' ? name : name + '/';
    while (!m_stop) {
        const dirent* entry = readdir(folder);
        if (!entry)
            break;
        const std::string_view own = entry->d_name;
        if (own == "." || own == "..")
            continue;
        auto kind = entry->d_type;
        if (kind == DT_LNK || kind == DT_UNKNOWN) {
            if (fstatat(dirfd(folder), entry->d_name, &status, 0) != 0) {
                if (Fits(entry->d_name))
                    Note(FileNote::Unreadable, prefix + entry->d_name);
                continue;
            }
            kind = S_ISDIR(status.st_mode) ? DT_DIR : S_ISREG(status.st_mode) ? DT_REG : DT_CHR;
        }
        if (kind == DT_DIR) {
            if (m_request.subFolders)
                tasks.push_back({Task::Folder, prefix + entry->d_name});
        } else if (Fits(entry->d_name)) {
            if (kind == DT_REG)
                tasks.push_back({Task::File, prefix + entry->d_name});
            else
                Note(FileNote::NotAFile, prefix + entry->d_name);
        }
    }
    closedir(folder);
    Add(tasks);
}

void CFileSearch::Job::SearchFile(const std::string& name, Tools& tools)
{
    TextSearch& search = tools.search;
    FileText& file = tools.file;
    if (!m_openFiles.empty()) {
        struct stat status = {};
        if (stat(name.c_str(), &status) == 0 &&
            m_openFiles.contains({status.st_dev, status.st_ino})) {
            const QString path = QFileInfo(Decoded(name)).canonicalFilePath();
            for (const OpenText& open : m_request.open) {
                if (QFileInfo(open.path).canonicalFilePath() == path) {
                    SearchOpen(open, search);
                    return;
                }
            }
        }
    }
    long told = 0;
    for (const bool converts : {false, true}) {
        const FileText::Kind kind = file.Open(name, converts, search.Piece());
        if (kind != FileText::Kind::Text) {
            Note(kind == FileText::Kind::Binary       ? FileNote::Binary
                 : kind == FileText::Kind::Unreadable ? FileNote::Unreadable
                                                      : FileNote::NotAFile,
                 name);
            return;
        }
        search.Begin();
        bool isLast = !file.MayMatch(m_screen, m_stop);
        while (!isLast && !m_stop && !search.RanAway()) {
            isLast = !file.Read(search.Buffer(), search.Piece());
            if (file.NeedsConversion())
                break;
            FoundFile found;
            const long before = std::max(search.Count(), told);
            search.Search(isLast, told, found.matches);
            found.count = search.Count() - before;
            if (found.count > 0) {
                told = search.Count();
                found.path = Decoded(name);
                found.name = QByteArray::fromStdString(name);
                Tell(std::move(found));
            }
        }
        if (file.NeedsConversion())
            continue;
        Count([&](FileSearchTotals& totals) {
            totals.bytes += file.BytesRead();
            totals.files += isLast && !file.Failed();
            totals.found += told > 0;
        });
        if (file.Failed())
            Note(FileNote::Unreadable, name);
        if (search.RanAway())
            NoteRunAway(Decoded(name));
        return;
    }
}

void CFileSearch::Job::SearchOpen(const OpenText& open, TextSearch& search)
{
    search.Begin();
    const QByteArray bytes = open.text.toUtf8();
    search.Buffer().assign({bytes.data(), static_cast<std::size_t>(bytes.size())});
    FoundFile found;
    found.count = search.Search(true, 0, found.matches);
    found.path = open.path;
    found.name = QFile::encodeName(open.path);
    found.isOpen = true;
    const long count = found.count;
    if (count > 0)
        Tell(std::move(found));
    Count([&](FileSearchTotals& totals) {
        ++totals.files;
        totals.bytes += bytes.size();
        totals.found += count > 0;
    });
    if (search.RanAway())
        NoteRunAway(open.path);
}

void CFileSearch::Job::Tell(FoundFile&& file)
{
    const std::lock_guard lock(m_listenerLock);
    m_totals.matches += file.count;
    m_listener.OnFound(std::move(file));
}

void CFileSearch::Job::Note(FileNote note, const std::string& name)
{
    const std::lock_guard lock(m_listenerLock);
    ++(note == FileNote::Unreadable ? m_totals.failures : m_totals.skipped);
    m_listener.OnNote(note, Decoded(name));
}

void CFileSearch::Job::NoteRunAway(const QString& path)
{
    const std::lock_guard lock(m_listenerLock);
    // A search that is stopped has run out of time, too.
    if (m_saidRunAway || m_stop)
        return;
    m_saidRunAway = true;
    m_listener.OnNote(FileNote::RanAway, path);
}

std::vector<FileMatch> MatchesIn(const QString& text, const FileSearchRequest& request)
{
    const std::atomic<bool> stop = false;
    TextSearch search(request, stop);
    search.Begin();
    const QByteArray bytes = text.toUtf8();
    search.Buffer().assign({bytes.data(), static_cast<std::size_t>(bytes.size())});
    std::vector<FileMatch> matches;
    search.Search(true, 0, matches);
    return matches;
}

CFileSearch::CFileSearch(FileSearchRequest request, IFileSearchListener& listener)
    : m_job(std::make_unique<Job>(std::move(request), listener))
{}

CFileSearch::~CFileSearch() = default;

void CFileSearch::Start()
{
    m_job->Start();
}

void CFileSearch::Stop()
{
    m_job->Stop();
}

void CFileSearch::Wait()
{
    m_job->Wait();
}

FileSearchTotals CFileSearch::Totals() const
{
    return m_job->Totals();
}
