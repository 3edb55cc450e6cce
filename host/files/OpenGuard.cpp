// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/OpenGuard.h"

#include "host/files/Places.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OpenGuard)
};

constexpr qint64 kMostBytes = 1024 * 1024;
constexpr int kMostPaths = 1000;
const QString kEnding = QStringLiteral(".opening");

QString FileBehind(const QString& path)
{
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    const QString file = QFileInfo(absolute).canonicalFilePath();
    return file.isEmpty() ? absolute : file;
}

// Whether nobody has the file: its workbench is dead. Where the file system has no locks nobody can
// tell; then a question too many is better than to die on a file at every start.
bool Lock(int file)
{
    return flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool IsLinked(int file)
{
    struct stat status;
    return fstat(file, &status) == 0 && status.st_nlink > 0;
}

QByteArray ReadAll(int descriptor)
{
    QFile file;
    return file.open(descriptor, QFile::ReadOnly) ? file.read(kMostBytes) : QByteArray();
}

// A file that keeps its size and place is on disk sooner: nothing about it changes but its bytes.
// Blanks behind a list mean nothing.
QByteArray Padded(QByteArray bytes)
{
    constexpr qsizetype kBlock = 4096;
    bytes.append((kBlock - bytes.size() % kBlock) % kBlock, ' ');
    return bytes;
}

bool WriteAll(int file, const QByteArray& bytes)
{
    struct stat status;
    if (fstat(file, &status) != 0 ||
        (status.st_size > bytes.size() && ftruncate(file, bytes.size()) != 0))
        return false;
    for (qsizetype at = 0; at < bytes.size();) {
        const ssize_t count =
            pwrite(file, bytes.constData() + at, static_cast<size_t>(bytes.size() - at), at);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        at += count;
    }
    return true;
}

} // namespace

OpenGuard::OpenGuard(const QString& folder) : m_folder(folder)
{
    if (m_folder.isEmpty() || !QDir().mkpath(m_folder))
        m_folder.clear();
    else
        TakeOverMarks();
}

OpenGuard::~OpenGuard()
{
    if (m_file < 0)
        return;
    unlink(QFile::encodeName(m_name).constData());
    close(m_file);
}

QString OpenGuard::DefaultFolder()
{
    return places::DataPath(QStringLiteral("opening"));
}

// The marks of the dead are written under this guard's name before their files go.
void OpenGuard::TakeOverMarks()
{
    QStringList files;
    QList<int> descriptors;
    QDirIterator entries(m_folder, {u'*' + kEnding}, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (entries.hasNext() && files.size() < kMostPaths) {
        const QString name = entries.next();
        const int file = open(QFile::encodeName(name).constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
        if (file < 0)
            continue;
        if (!Lock(file)) {
            close(file);
            continue;
        }
        for (const QJsonValue path : QJsonDocument::fromJson(ReadAll(file)).array()) {
            const QString text = path.toString();
            if (places::CanBeFile(text) && !m_suspects.contains(text) &&
                m_suspects.size() < kMostPaths)
                m_suspects << text;
        }
        files << name;
        descriptors << file;
    }
    if (!m_suspects.isEmpty())
        Write(true);
    for (const QString& name : std::as_const(files))
        unlink(QFile::encodeName(name).constData());
    for (const int file : std::as_const(descriptors))
        close(file);
}

// Between creation and lock another workbench may take the file for a dead one's and delete it.
bool OpenGuard::MakeFile()
{
    constexpr int kAttempts = 20;
    for (int i = 0; i < kAttempts && m_file < 0; ++i) {
        m_name = m_folder + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces) + kEnding;
        const int file = open(QFile::encodeName(m_name).constData(),
                              O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (file < 0)
            break;
        if (Lock(file) && IsLinked(file))
            m_file = file;
        else
            close(file);
    }
    return m_file >= 0;
}

// A mark that cannot be written is none; the file is opened all the same.
void OpenGuard::Write(bool durably)
{
    if (m_folder.isEmpty())
        return;
    const bool isFresh = m_file < 0;
    if (isFresh && !MakeFile())
        return;
    WriteAll(m_file,
             Padded(QJsonDocument(QJsonArray::fromStringList(m_suspects + m_opening)).toJson()));
    if (durably)
        fdatasync(m_file);
    if (!durably || !isFresh)
        return;
    const int folder =
        open(QFile::encodeName(m_folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        fsync(folder);
        close(folder);
    }
}

OpenGuard::Mark OpenGuard::Open(const QString& path)
{
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    m_opening << absolute;
    Write(true);
    return {this, absolute};
}

void OpenGuard::Release(const QString& path)
{
    m_opening.removeOne(path);
    Forget(path);
    Write(false);
}

bool OpenGuard::IsSuspect(const QString& path) const
{
    if (m_suspects.isEmpty())
        return false;
    const QString file = FileBehind(path);
    return std::ranges::any_of(
        m_suspects, [&file](const QString& suspect) { return FileBehind(suspect) == file; });
}

void OpenGuard::Acquit(const QString& path)
{
    if (Forget(path))
        Write(false);
}

bool OpenGuard::Forget(const QString& path)
{
    if (m_suspects.isEmpty())
        return false;
    const QString file = FileBehind(path);
    return m_suspects.removeIf(
               [&file](const QString& suspect) { return FileBehind(suspect) == file; }) > 0;
}

OpenGuard::Mark::Mark(Mark&& other) noexcept
    : m_guard(std::exchange(other.m_guard, nullptr)), m_path(std::move(other.m_path))
{}

OpenGuard::Mark& OpenGuard::Mark::operator=(Mark&& other) noexcept
{
    std::swap(m_guard, other.m_guard);
    std::swap(m_path, other.m_path);
    return *this;
}

OpenGuard::Mark::~Mark()
{
    if (m_guard)
        m_guard->Release(m_path);
}

QString OpenAgainQuestion(const QString& path)
{
    return Texts::tr("The workbench ended unexpectedly while it was opening “%1”. Open the "
                     "file again?")
        .arg(QDir::toNativeSeparators(path));
}
