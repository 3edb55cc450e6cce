// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/ScriptNames.h"

#include "completion/NameText.h"
#include "completion/ScriptReader.h"
#include "completion/Utf8Text.h"

namespace completion {
namespace {

using engine::analysis::TextSpans;

QString NameAt(const TextSpans& text, const NameEvent& event)
{
    const std::string name = PlainName(text, event.start, event.end);
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

// What a column, a parameter or an alias belongs to: the last name of the right kind.
class Parents
{
public:
    QString Of(const ScriptName& name)
    {
        switch (name.kind) {
        case NameKind::Column:
        case NameKind::DroppedColumn:
        case NameKind::RenamedColumn:
            return m_table;
        case NameKind::Parameter:
            return m_routine;
        case NameKind::Alias:
            return m_used;
        case NameKind::Procedure:
        case NameKind::Function:
            m_routine = name.name;
            return {};
        case NameKind::TableUse:
        case NameKind::InsertUse:
        case NameKind::AlterUse:
            m_used = name.name;
            m_table = name.name;
            return {};
        case NameKind::Table:
        case NameKind::View:
        case NameKind::Cte:
        case NameKind::Variable:
        case NameKind::Type:
        case NameKind::DerivedAlias:
            m_table = name.name;
            return {};
        default:
            return {};
        }
    }

private:
    QString m_table;
    QString m_routine;
    QString m_used;
};

bool IsMember(NameKind kind)
{
    return kind == NameKind::Column || kind == NameKind::Parameter ||
           kind == NameKind::DroppedColumn || kind == NameKind::RenamedColumn;
}

// All of them, or the first one and its members.
std::vector<ScriptName> Read(std::u16string_view text, const engine::analysis::SqlDialect& dialect,
                             bool isAll)
{
    const std::string utf8 = ToUtf8(text);
    UnitCounter units(utf8);
    ScriptReader reader(dialect, TextSpans(utf8));
    Parents parents;
    std::vector<ScriptName> names;
    while (reader.Next()) {
        for (const NameEvent& event : reader.Names()) {
            ScriptName name{event.kind, NameAt(reader.Text(), event), {}, units.At(event.start), 0};
            name.end = units.At(event.end);
            name.isQuoted = IsQuotedName(reader.Text(), event.start);
            name.parent = parents.Of(name);
            if (!isAll && !names.empty() && !IsMember(name.kind))
                return names;
            names.push_back(std::move(name));
        }
        if (!isAll && reader.Last().kind == engine::analysis::TokenKind::Terminator)
            break;
    }
    return names;
}

} // namespace

std::vector<ScriptName> NamesIn(std::u16string_view text, int dialect)
{
    const auto* row = engine::analysis::DialectByNumber(dialect);
    if (!row)
        return {};
    return Read(text, *row, true);
}

std::vector<ScriptName> MembersIn(std::u16string_view text,
                                  const engine::analysis::SqlDialect& dialect)
{
    return Read(text, dialect, false);
}

} // namespace completion
