// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/WrittenName.h"

#include <algorithm>
#include <iterator>

namespace completion {
namespace {

using engine::analysis::SqlDialect;

// What a server makes of a name without quotes. The others find it in any case.
struct Folding
{
    std::string_view dialect;
    bool toUpper;
};
constexpr Folding kFoldings[] = {
    {"postgresql", false}, {"oracle", true}, {"db2", true}, {"db2-zos", true}, {"interbase", true},
};

bool IsFolded(const SqlDialect& dialect, const QString& name)
{
    const auto* row =
        std::find_if(std::begin(kFoldings), std::end(kFoldings),
                     [&](const Folding& each) { return each.dialect == dialect.name; });
    return row == std::end(kFoldings) || name == (row->toUpper ? name.toUpper() : name.toLower());
}

// Could stand without quotes, as far as its letters go.
bool IsPlain(const SqlDialect& dialect, const QString& name)
{
    const auto& bytes = engine::analysis::BytesOf(dialect);
    const QByteArray utf8 = name.toUtf8();
    return !utf8.isEmpty() && !(utf8[0] >= '0' && utf8[0] <= '9') &&
           std::all_of(utf8.begin(), utf8.end(),
                       [&](char byte) { return bytes.inWord[static_cast<unsigned char>(byte)]; });
}

} // namespace

QChar QuoteOf(const SqlDialect& dialect)
{
    return dialect.brackets ? QChar(u'[') : dialect.backticks ? QChar(u'`') : QChar(u'"');
}

QString WrittenName(const SqlDialect& dialect, const QString& name, QChar begun, bool wasQuoted)
{
    const bool isVariable =
        !name.isEmpty() && name[0].unicode() < 0x80 &&
        dialect.variableLeads.find(static_cast<char>(name[0].unicode())) != std::string_view::npos;
    const bool isPlain =
        begun.isNull() && IsPlain(dialect, name) && (!wasQuoted || IsFolded(dialect, name));
    if (isPlain || isVariable)
        return name;
    const QChar open = begun.isNull() ? QuoteOf(dialect) : begun;
    const QChar close = open == u'[' ? QChar(u']') : open;
    return open + QString(name).replace(close, QString(2, close)) + close;
}

} // namespace completion
