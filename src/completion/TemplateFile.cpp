// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/TemplateFile.h"

#include "completion/Matching.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace completion {
namespace {

constexpr qint64 kLongest = 16 << 20; // bytes
constexpr std::size_t kMostFiles = 64;
constexpr QLatin1String kFirstLine("templates 1");
constexpr QLatin1String kHead("==");
constexpr QLatin1String kInclude("include ");

bool ReadHead(const QString& line, CodeTemplate& made)
{
    const QString head = line.mid(kHead.size()).trimmed();
    const auto colon = head.indexOf(u':');
    made.shortName = head.left(colon < 0 ? head.size() : colon).trimmed();
    made.title = colon < 0 ? QString() : head.mid(colon + 1).trimmed();
    if (made.title.isEmpty())
        made.title = made.shortName;
    return !made.shortName.isEmpty() && std::none_of(made.shortName.begin(), made.shortName.end(),
                                                     [](QChar unit) { return unit.isSpace(); });
}

void EndTemplate(TemplateFile& file, CodeTemplate& made, bool isGood)
{
    while (!made.lines.isEmpty() && made.lines.back().trimmed().isEmpty())
        made.lines.pop_back();
    if (isGood && !made.lines.isEmpty())
        file.templates.push_back(std::move(made));
    made = {};
}

TemplateFile ReadOne(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > kLongest || !file.open(QIODevice::ReadOnly))
        return {};
    return ParseTemplates(QString::fromUtf8(file.read(kLongest)));
}

Match MatchOf(const Typed& typed, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return typed.Of({bytes.data(), static_cast<std::size_t>(bytes.size())});
}

} // namespace

TemplateFile ParseTemplates(const QString& text)
{
    TemplateFile file;
    CodeTemplate made;
    bool isInside = false;
    bool isGood = false;
    qsizetype start = text.startsWith(QChar(0xFEFF)) ? 1 : 0;
    for (int number = 0; start <= text.size(); ++number) {
        auto end = text.indexOf(u'\n', start);
        if (end < 0)
            end = text.size();
        QString line = text.mid(start, end - start);
        start = end + 1;
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (number == 0) {
            file.isOne = line.trimmed() == kFirstLine;
            if (!file.isOne)
                return file;
        } else if (line.startsWith(kHead)) {
            EndTemplate(file, made, isGood);
            isInside = true;
            isGood = ReadHead(line, made);
            if (!isGood && file.badLine < 0)
                file.badLine = number;
        } else if (isInside) {
            made.lines << (line.startsWith(QLatin1String("\\=")) ? line.mid(1) : line);
        } else if (line.startsWith(kInclude)) {
            file.includes << line.mid(kInclude.size()).trimmed();
        }
    }
    EndTemplate(file, made, isGood);
    return file;
}

TemplateFile ReadTemplates(const QString& path, const QString& otherFolder)
{
    TemplateFile all = ReadOne(path);
    const QDir folder = QFileInfo(path).dir();
    QSet<QString> read = {QFileInfo(path).fileName()};
    QStringList waiting = all.includes;
    while (!waiting.isEmpty() && static_cast<std::size_t>(read.size()) < kMostFiles) {
        // Of the same folder alone.
        const QString name = QFileInfo(waiting.takeFirst()).fileName();
        if (read.contains(name))
            continue;
        read.insert(name);
        const bool isElsewhere = !folder.exists(name) && !otherFolder.isEmpty();
        TemplateFile more = ReadOne((isElsewhere ? QDir(otherFolder) : folder).filePath(name));
        std::move(more.templates.begin(), more.templates.end(), std::back_inserter(all.templates));
        waiting += more.includes;
    }
    QSet<QString> known;
    std::erase_if(all.templates, [&](const CodeTemplate& each) {
        const auto before = known.size();
        known.insert(each.shortName);
        return known.size() == before;
    });
    return all;
}

std::vector<int> FindTemplates(const std::vector<CodeTemplate>& templates, const QString& typed,
                               std::size_t most)
{
    struct Fitting
    {
        Match match;
        int place;
    };
    const QByteArray bytes = typed.trimmed().toUtf8();
    const Typed wanted(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
    std::vector<Fitting> fitting;
    for (std::size_t i = 0; i < templates.size(); ++i) {
        const Match match =
            std::min(MatchOf(wanted, templates[i].shortName), MatchOf(wanted, templates[i].title));
        if (match != Match::None)
            fitting.push_back({match, static_cast<int>(i)});
    }
    std::stable_sort(fitting.begin(), fitting.end(), [](const Fitting& one, const Fitting& other) {
        return one.match < other.match;
    });
    std::vector<int> places;
    for (std::size_t i = 0; i < std::min(fitting.size(), most); ++i)
        places.push_back(fitting[i].place);
    return places;
}

} // namespace completion
