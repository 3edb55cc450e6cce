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

} // namespace

std::vector<ScriptName> NamesIn(std::u16string_view text, int dialect)
{
    const auto* row = engine::analysis::DialectByNumber(dialect);
    if (!row)
        return {};
    const std::string utf8 = ToUtf8(text);
    const TextSpans spans(utf8);
    UnitCounter units(utf8);
    ScriptReader reader(*row, spans);
    Parents parents;
    std::vector<ScriptName> names;
    while (reader.Next()) {
        for (const NameEvent& event : reader.Names()) {
            ScriptName name{event.kind, NameAt(spans, event), {}, units.At(event.start), 0};
            name.end = units.At(event.end);
            name.parent = parents.Of(name);
            names.push_back(std::move(name));
        }
    }
    return names;
}

} // namespace completion
