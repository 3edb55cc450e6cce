// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Texts.h"

#include "encoding/FileEncodeConverter.h"

#include <QString>
#include <QStringConverter>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <map>
#include <random>

namespace bench {
namespace {

constexpr std::array<const char*, 8> kAsciiLines = {
    "select o.order_id, o.ordered_at, sum(l.quantity * l.price) as total",
    "from sales_order o join sales_order_line l on l.order_id = o.order_id",
    "where o.status in ('open', 'picked') and o.region = 'north' -- checked",
    "insert into article (article_id, name, price) values (4711, 'bolt M8', 0.35);",
    "    update stock set quantity = quantity - 1 where article_id = 4711;",
    "/* nightly run */ execute refresh_prices @region = 'south', @force = 1;",
    "create index ix_line_article on sales_order_line (article_id, order_id);",
    "",
};

constexpr std::array<const char*, 4> kAccents = {"\u00e9", "\u00fc", "\u00f1", "\u00e5"};

} // namespace

const char* NameOf(Script script)
{
    return script == Script::Ascii ? "ascii" : "mixed";
}

std::string MakeSql(Script script, std::size_t bytes)
{
    std::mt19937 random(7);
    std::string text;
    text.reserve(bytes + 256);
    for (std::size_t line = 0; text.size() < bytes; ++line) {
        const char* words = kAsciiLines[line % kAsciiLines.size()];
        if (script == Script::Ascii) {
            text += words;
        } else {
            for (const char* at = words; *at; ++at) {
                if (random() % 100 < 15)
                    text += kAccents[random() % kAccents.size()];
                else
                    text += *at;
            }
        }
        text += '\n';
    }
    return text;
}

std::u16string MakeMixedLine(std::size_t units)
{
    static constexpr std::u16string_view kPieces[] = {
        u"select ", u"\u00e9t\u00e9 ", u"\u4e2d\u6587", u"\xD83D\xDE00", u"\u0416\u0416 "};
    std::u16string text;
    text.reserve(units + 16);
    for (std::size_t i = 0; text.size() < units; ++i)
        text += kPieces[i % std::size(kPieces)];
    return text;
}

const std::string& Sql64(Script script)
{
    static std::map<Script, std::string> scripts;
    std::string& text = scripts[script];
    if (text.empty())
        text = MakeSql(script, 64 * kMegabyte);
    return text;
}

std::string Encode(const std::string& utf8, int encoding)
{
    if (encoding == FileEncodeConverter::encUTF8)
        return utf8;
    const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    if (encoding == FileEncodeConverter::encANSI) {
        const QByteArray latin = text.toLatin1(); // the accents have the same bytes in both
        return latin.toStdString();
    }
    return {reinterpret_cast<const char*>(text.utf16()),
            static_cast<std::size_t>(text.size()) * sizeof(char16_t)};
}

std::string WriteFile(const std::string& name, const std::string& bytes)
{
    static QTemporaryDir folder;
    const std::string path = folder.filePath(QString::fromStdString(name)).toStdString();
    std::FILE* file = std::fopen(path.c_str(), "wb");
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
    return path;
}

} // namespace bench
