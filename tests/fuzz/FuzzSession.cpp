// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a session's file has in it, what is read of it is within its bounds and is read the same
// once it has been written. The bytes are read as they are, and as choices of what stands where a
// session has its members, since nothing else gets past the reader of the format.
#include "host/files/Places.h"
#include "host/session/Session.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds)
{
    if (!holds)
        std::abort();
}

class Choices
{
public:
    explicit Choices(const QByteArray& bytes) : m_bytes(bytes) {}

    QJsonObject SessionObject()
    {
        QJsonObject session;
        QJsonArray files;
        for (int count = Next() % 8; count > 0; --count)
            files.append(Next() % 8 ? QJsonValue(FileObject()) : Value());
        session.insert("files", Next() % 8 ? QJsonValue(files) : Value());
        session.insert("front", Value());
        session.insert("geometry", Value());
        session.insert("state", Value());
        return session;
    }

private:
    int Next() { return m_at < m_bytes.size() ? static_cast<unsigned char>(m_bytes[m_at++]) : 0; }

    QJsonObject FileObject()
    {
        QJsonObject file;
        file.insert("path", Next() % 8 ? QJsonValue(Path()) : Value());
        for (const char* name : {"encoding", "caretLine", "firstVisible", "readOnly", "panes"}) {
            if (Next() % 2)
                file.insert(QLatin1String(name), Value());
        }
        return file;
    }

    QString Path()
    {
        QString path = Next() % 8 ? QStringLiteral("/") : QString();
        for (int count = Next() % 4; count > 0; --count)
            path += Unit();
        return Next() % 32 ? path : path.repeated(6000);
    }

    QChar Unit()
    {
        static constexpr char16_t kUnits[] = {u'a', u'b', u'/', u'.', 0, 0xD83D, 0xDE00, 0xFFFD};
        return kUnits[Next() % 8];
    }

    QJsonValue Value()
    {
        switch (Next() % 8) {
        case 0:
            return Next() % 16 - 3;
        case 1:
            return Next() * 16777216.0;
        case 2:
            return Next() / 4.0 - 8;
        case 3:
            return Path();
        case 4:
            return Next() % 2 == 0;
        case 5:
            return QString(Next() * 1024, u'A'); // base64, too
        case 6:
            return QJsonArray{1, QStringLiteral("/a")};
        default:
            return QJsonValue::Null;
        }
    }

    const QByteArray& m_bytes;
    qsizetype m_at = 0;
};

void Check(const QByteArray& bytes)
{
    const Session session = Session::FromBytes(bytes);
    Demand(session.files.size() <= Session::kMostFiles);
    Demand(session.front >= 0 && session.front <= std::max<qsizetype>(0, session.files.size() - 1));
    for (const SessionFile& file : session.files) {
        Demand(places::CanBeFile(file.path));
        Demand(file.encoding >= -1 && file.encoding <= 11);
        Demand(file.caretLine >= 0 && file.firstVisible >= 0);
        Demand(file.panes >= SessionPanes::One && file.panes <= SessionPanes::Beside);
    }
    Demand(Session::FromBytes(session.ToBytes()) == session);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    Check(bytes);
    Check(QJsonDocument(Choices(bytes).SessionObject()).toJson());
    return 0;
}
