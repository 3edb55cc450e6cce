// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the #include lines of the tree and compares them with the rooms of docs/architecture.md.
#include "tests/SourceTree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>

namespace {

using Rooms = std::map<QString, QStringList>; // a room, and what it may include

QString ReadText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

Rooms RoomsOfThePage()
{
    static const QRegularExpression row(QStringLiteral("^ {4}([A-Za-z/]+) +\\(([^)]*)\\)"),
                                        QRegularExpression::MultilineOption);
    Rooms rooms;
    const QString page = ReadText(QString::fromStdString(InSourceTree("docs/architecture.md")));
    for (auto at = row.globalMatch(page); at.hasNext();) {
        const QRegularExpressionMatch match = at.next();
        rooms[match.captured(1)] =
            match.captured(2).split(QStringLiteral(", "), Qt::SkipEmptyParts);
    }
    return rooms;
}

// Every source file, by the path that others include it with.
std::map<QString, QString> Sources()
{
    std::map<QString, QString> sources;
    const auto collect = [&](const QString& folder, const QString& prefix) {
        QDirIterator files(
            folder, {QStringLiteral("*.h"), QStringLiteral("*.cpp"), QStringLiteral("*.def")},
            QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            sources[prefix + QDir(folder).relativeFilePath(path)] = path;
        }
    };
    const QString root = QString::fromStdString(InSourceTree(""));
    collect(root + "src", {});
    collect(root + "engine", QStringLiteral("engine/"));
    collect(root + "host", QStringLiteral("host/"));
    collect(root + "script", QStringLiteral("script/"));
    return sources;
}

// The innermost room that a file stands in, or is; empty for what stands in none.
QString RoomOf(const QString& file, const Rooms& rooms)
{
    QString best;
    for (const auto& [room, allowed] : rooms) {
        const bool inside = file.startsWith(room + '/') || file.section('.', 0, 0) == room;
        if (inside && room.size() > best.size())
            best = room;
    }
    return best;
}

QStringList IncludesOf(const QString& path)
{
    static const QRegularExpression line(QStringLiteral("^\\s*#include \"([^\"]+)\""),
                                         QRegularExpression::MultilineOption);
    QStringList includes;
    const QString text = ReadText(path);
    for (auto at = line.globalMatch(text); at.hasNext();)
        includes << at.next().captured(1);
    return includes;
}

bool MayInclude(const QString& room, const QString& included, const Rooms& rooms)
{
    const QString target = RoomOf(included, rooms);
    if (target == room)
        return true;
    const QStringList& allowed = rooms.at(room);
    return std::any_of(allowed.begin(), allowed.end(), [&](const QString& entry) {
        // An entry is a room, or one header of a room without its ending.
        return entry == target || included.section('.', 0, 0) == entry;
    });
}

} // namespace

TEST(Architecture, EveryIncludeIsOneThatThePageAllows)
{
    const Rooms rooms = RoomsOfThePage();
    ASSERT_GE(rooms.size(), 7U) << "the page's list is not found";
    int checked = 0;
    for (const auto& [file, path] : Sources()) {
        const QString room = RoomOf(file, rooms);
        if (room.isEmpty())
            continue;
        for (const QString& included : IncludesOf(path)) {
            if (included.endsWith(QStringLiteral(".moc")))
                continue;
            EXPECT_TRUE(MayInclude(room, included, rooms))
                << file.toStdString() << " includes " << included.toStdString();
            ++checked;
        }
    }
    EXPECT_GT(checked, 50);
}

TEST(Architecture, EverySourceStandsInARoomOfThePage)
{
    const Rooms rooms = RoomsOfThePage();
    for (const auto& [file, path] : Sources()) {
        // Directly below src/ stands what makes the rooms one library.
        EXPECT_EQ(RoomOf(file, rooms).isEmpty(), !file.contains('/')) << file.toStdString();
    }
}

TEST(Architecture, EveryRoomIncludesOnlyRoomsAboveItOnThePage)
{
    // Lowest first: what a room includes has been listed before it.
    const QString page = ReadText(QString::fromStdString(InSourceTree("docs/architecture.md")));
    for (const auto& [room, allowed] : RoomsOfThePage()) {
        const auto place = page.indexOf(QStringLiteral("\n    ") + room + ' ');
        for (const QString& entry : allowed) {
            const QString needed = RoomOf(entry, RoomsOfThePage());
            const auto before = page.indexOf(QStringLiteral("\n    ") + needed + ' ');
            EXPECT_GE(before, 0) << room.toStdString() << " names " << entry.toStdString();
            EXPECT_LT(before, place) << room.toStdString() << " names " << entry.toStdString();
        }
    }
}
