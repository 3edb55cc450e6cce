// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench that runs already: a later start gives it the files that it was asked to open, and
// ends. Knows no window. One for each person, display and folder of data.
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

class QLocalServer;
class QLocalSocket;

class RunningInstance final : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds kPatience{5000};

    enum class Role
    {
        First,   // nobody else runs; this one is told of later starts
        Later,   // another one has taken the files
        Unheard, // another one runs and does not answer
        Alone    // there is no place where others could be met
    };

    // What is asked of the instance that runs.
    struct Request
    {
        QStringList words; // as a command line names files, with absolute paths
        QByteArray token;  // with which a desktop lets a window come to the front; may be empty

        bool operator==(const Request&) const = default;
        QByteArray ToBytes() const;
        // Nothing if these are no request, or more than a command line holds. A word that cannot
        // be a file is left out.
        static std::optional<Request> FromBytes(const QByteArray& bytes);
    };

    // address: of a socket in a folder that nobody else can write to.
    explicit RunningInstance(const QString& address, QObject* parent = nullptr);
    ~RunningInstance() override;

    // Blocks for kPatience at most, without an event loop.
    Role Meet(const Request& request, std::chrono::milliseconds patience = kPatience);

    // From here on, and what has come before: Requested is emitted.
    void Serve();
    // What comes waits until the next call of Serve.
    void Pause() { m_isServing = false; }
    bool HasWaiting() const { return !m_waiting.isEmpty(); }

    // Empty if there is no such folder.
    static QString DefaultAddress();
    // The word with the folder that it was said in.
    static QString Absolute(const QString& word);

Q_SIGNALS:
    void Requested(const Request& request);

private:
    void Read(QLocalSocket& socket);
    void Tell();

    QString m_address;
    QLocalServer* m_server;
    QList<Request> m_waiting;
    bool m_isServing = false;
};
