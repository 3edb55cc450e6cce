// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/session/Session.h"

#include "host/files/EncodingChoices.h"
#include "host/files/Places.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <cerrno>
#include <climits>
#include <cstdio>

#include <sys/stat.h>

namespace {

constexpr qint64 kMostBytes = 4 * 1024 * 1024;
constexpr qsizetype kLongestName = 100;         // of a language
constexpr qsizetype kLongestLayout = 64 * 1024; // bytes

const QString kFiles = QStringLiteral("files");
const QString kFront = QStringLiteral("front");
const QString kGeometry = QStringLiteral("geometry");
const QString kMaximised = QStringLiteral("maximised");
const QString kState = QStringLiteral("state");
const QString kDocumentMap = QStringLiteral("documentMap");
const QString kFolder = QStringLiteral("folder");
const QString kPath = QStringLiteral("path");
const QString kEncoding = QStringLiteral("encoding");
const QString kCaretLine = QStringLiteral("caretLine");
const QString kCaretColumn = QStringLiteral("caretColumn");
const QString kFirstVisible = QStringLiteral("firstVisible");
const QString kReadOnly = QStringLiteral("readOnly");
const QString kPanes = QStringLiteral("panes");
const QString kLanguage = QStringLiteral("language");
const QString kZoom = QStringLiteral("zoom");
const QString kFolds = QStringLiteral("folds");
const QString kBookmarks = QStringLiteral("bookmarks");

// Numbers that are no whole numbers in the range are 0.
long LineOf(const QJsonValue& value)
{
    const int line = value.toInt(0);
    return line < 0 ? 0 : line;
}

SessionPanes PanesOf(const QJsonValue& value)
{
    const auto panes = static_cast<SessionPanes>(value.toInt(0));
    const bool isKnown = panes >= SessionPanes::One && panes <= SessionPanes::Four;
    return isKnown ? panes : SessionPanes::One;
}

int ZoomOf(const QJsonValue& value)
{
    constexpr int kSmallest = -10;
    constexpr int kLargest = 60;
    const int zoom = value.toInt(0);
    return zoom >= kSmallest && zoom <= kLargest ? zoom : 0;
}

// What is no line is left out.
QList<int> LinesOf(const QJsonValue& value)
{
    QList<int> lines;
    for (const QJsonValue& line : value.toArray()) {
        if (lines.size() < SessionFile::kMostLines && line.toInt(-1) >= 0)
            lines << line.toInt();
    }
    return lines;
}

QJsonArray ArrayOf(const QList<int>& lines)
{
    QJsonArray array;
    for (const int line : lines)
        array.append(line);
    return array;
}

QByteArray LayoutOf(const QJsonValue& value)
{
    const QByteArray text = value.toString().left(2 * kLongestLayout).toLatin1();
    const QByteArray layout = QByteArray::fromBase64(text);
    return layout.size() <= kLongestLayout ? layout : QByteArray();
}

SessionFile FileOf(const QJsonObject& entry)
{
    SessionFile file;
    file.path = entry[kPath].toString();
    const int encoding = entry[kEncoding].toInt(-1);
    file.encoding = IsEncoding(encoding) ? encoding : -1;
    file.caretLine = LineOf(entry[kCaretLine]);
    file.caretColumn = LineOf(entry[kCaretColumn]);
    file.firstVisible = LineOf(entry[kFirstVisible]);
    file.readOnly = entry[kReadOnly].toBool();
    file.panes = PanesOf(entry[kPanes]);
    file.language = entry[kLanguage].toString().left(kLongestName);
    file.zoom = ZoomOf(entry[kZoom]);
    file.folds = LinesOf(entry[kFolds]);
    file.bookmarks = LinesOf(entry[kBookmarks]);
    return file;
}

QJsonObject EntryOf(const SessionFile& file)
{
    return {{kPath, file.path},
            {kEncoding, file.encoding},
            {kCaretLine, static_cast<int>(file.caretLine)},
            {kCaretColumn, static_cast<int>(file.caretColumn)},
            {kFirstVisible, static_cast<int>(file.firstVisible)},
            {kReadOnly, file.readOnly},
            {kPanes, static_cast<int>(file.panes)},
            {kLanguage, file.language},
            {kZoom, file.zoom},
            {kFolds, ArrayOf(file.folds)},
            {kBookmarks, ArrayOf(file.bookmarks)}};
}

} // namespace

QByteArray Session::ToBytes() const
{
    QJsonArray entries;
    for (const SessionFile& file : files)
        entries.append(EntryOf(file));
    const QJsonObject object = {{kFiles, entries},
                                {kFront, front},
                                {kGeometry, QString::fromLatin1(geometry.toBase64())},
                                {kMaximised, maximised},
                                {kState, QString::fromLatin1(state.toBase64())},
                                {kDocumentMap, documentMap},
                                {kFolder, folder}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// The tab in front is that of its file, whatever was left out before it.
Session Session::FromBytes(const QByteArray& bytes)
{
    Session session;
    if (bytes.size() > kMostBytes)
        return session;
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    const QJsonArray entries = object[kFiles].toArray();
    const int front = object[kFront].toInt(0);
    for (qsizetype i = 0; i < entries.size() && session.files.size() < kMostFiles; ++i) {
        const SessionFile file = FileOf(entries[i].toObject());
        if (!places::CanBeFile(file.path))
            continue;
        if (i == front)
            session.front = static_cast<int>(session.files.size());
        session.files.append(file);
    }
    session.geometry = LayoutOf(object[kGeometry]);
    session.maximised = object[kMaximised].toBool();
    session.state = LayoutOf(object[kState]);
    session.documentMap = object[kDocumentMap].toBool();
    const QString folder = object[kFolder].toString();
    if (places::CanBeFile(folder))
        session.folder = folder;
    return session;
}

bool Session::Store(const QString& path) const
{
    QSaveFile file(path);
    const QByteArray bytes = ToBytes();
    // A commit forgets what went wrong when it wrote the last bytes.
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
           file.commit();
}

// A pipe or a device under that name would never end.
std::optional<Session> Session::Load(const QString& path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? std::optional(Session()) : std::nullopt;
    QFile file(path);
    if (!S_ISREG(status.st_mode) || !file.open(QFile::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(kMostBytes + 1);
    if (file.error() != QFile::NoError || bytes.size() != status.st_size ||
        !QJsonDocument::fromJson(bytes).isObject())
        return std::nullopt;
    return FromBytes(bytes);
}

QString Session::PutAside(const QString& path)
{
    const QString aside = path + QLatin1String(".unreadable");
    const bool isAside =
        rename(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData()) == 0;
    return isAside ? aside : QString();
}

QString Session::DefaultPath()
{
    return places::DataPath(QStringLiteral("session.json"));
}
