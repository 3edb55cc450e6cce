// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/instance/RunningInstance.h"

#include "host/files/Places.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>
#include <QThread>

#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qsizetype kMostBytes = 4 * 1024 * 1024;
const QString kWords = QStringLiteral("words");
const QString kToken = QStringLiteral("token");
const QByteArray kTaken = QByteArrayLiteral("taken\n");

using Milliseconds = std::chrono::milliseconds;

int Count(Milliseconds time)
{
    return static_cast<int>(time.count());
}

// A folder where another person could put a socket of the same name is none.
bool IsOwn(const QString& folder)
{
    struct stat status = {};
    return stat(QFile::encodeName(folder).constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

// False if nobody took it.
bool HandOver(QLocalSocket& socket, const QByteArray& bytes, Milliseconds patience)
{
    socket.write(bytes);
    QByteArray answer;
    while (answer.size() < kTaken.size() && socket.waitForReadyRead(Count(patience)))
        answer += socket.readAll();
    return answer == kTaken;
}

} // namespace

// One line of JSON.
QByteArray RunningInstance::Request::ToBytes() const
{
    const QJsonObject object = {{kWords, QJsonArray::fromStringList(words)},
                                {kToken, QString::fromLatin1(token)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<RunningInstance::Request> RunningInstance::Request::FromBytes(const QByteArray& bytes)
{
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (bytes.size() > kMostBytes || !document.isObject())
        return std::nullopt;
    Request request;
    request.token = document[kToken].toString().toLatin1();
    for (const QJsonValue& word : document[kWords].toArray()) {
        if (places::CanBeFile(word.toString()))
            request.words << word.toString();
    }
    return request;
}

RunningInstance::RunningInstance(const QString& address, QObject* parent)
    : QObject(parent), m_address(address), m_server(new QLocalServer(this))
{
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = m_server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] { Read(*socket); });
            Read(*socket);
        }
    });
}

RunningInstance::~RunningInstance() = default;

// Two that start at once come one after the other; one that was killed leaves its socket behind,
// and one may end while it is asked: its place is free then, or there is a third one.
RunningInstance::Role RunningInstance::Meet(const Request& request, Milliseconds patience)
{
    if (m_address.isEmpty())
        return Role::Alone;
    QLockFile lock(m_address + QLatin1String(".lock"));
    if (!lock.tryLock(Count(patience)))
        return Role::Alone;
    constexpr int kTries = 20;           // an end has its stages
    constexpr unsigned long kPause = 10; // milliseconds
    for (int tries = 0; tries < kTries; ++tries) {
        QLocalSocket socket;
        socket.connectToServer(m_address);
        if (!socket.waitForConnected(Count(patience))) {
            QLocalServer::removeServer(m_address);
            return m_server->listen(m_address) ? Role::First : Role::Alone;
        }
        if (HandOver(socket, request.ToBytes(), patience))
            return Role::Later;
        if (socket.state() == QLocalSocket::ConnectedState)
            break;
        QThread::msleep(kPause);
    }
    return Role::Unheard;
}

void RunningInstance::Read(QLocalSocket& socket)
{
    if (!socket.canReadLine()) {
        if (socket.bytesAvailable() > kMostBytes)
            socket.abort();
        return; // the rest is still to come
    }
    const std::optional<Request> request = Request::FromBytes(socket.readLine());
    if (!request) {
        socket.abort();
        return;
    }
    socket.write(kTaken);
    socket.flush();
    // Behind the socket's own signal: what is opened may ask, and the other side has gone by then.
    m_waiting << *request;
    QMetaObject::invokeMethod(this, &RunningInstance::Tell, Qt::QueuedConnection);
}

void RunningInstance::Serve()
{
    m_isServing = true;
    Tell();
}

void RunningInstance::Tell()
{
    while (m_isServing && !m_waiting.isEmpty())
        Q_EMIT Requested(m_waiting.takeFirst());
}

QString RunningInstance::DefaultAddress()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QString data = places::DataPath(QStringLiteral("."));
    if (folder.isEmpty() || data.isEmpty() || !IsOwn(folder))
        return QString();
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(QFileInfo(data).canonicalFilePath().toUtf8());
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY"})
        hash.addData(qgetenv(variable) + '\n');
    return folder + QStringLiteral("/znworkbench-") +
           QString::fromLatin1(hash.result().toHex().left(16));
}

QString RunningInstance::Absolute(const QString& word)
{
    return word.isEmpty() ? word : QDir::current().absoluteFilePath(word);
}
