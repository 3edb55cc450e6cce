// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/Leftovers.h"

#include "common/Globals.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "preprocess/ScriptText.h"
#include "preprocess/language/Directives.h"
#include "preprocess/language/SourceMap.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Leftovers)
};

constexpr UINT kDefineWord = 28168;
const QString kSigil = QStringLiteral("&&");

class Search
{
public:
    explicit Search(CZNCoreEditorControlEx& control)
        : m_script(control, m_map), m_text(control.GetText()),
          m_word(zncoreeditor::GetResourceLoader().LoadString(kDefineWord)),
          m_marker(m_script.CommentMarker())
    {}

    std::vector<Leftover> Run();

private:
    void LookAtDefinitions();
    void LookAtDefinition(qsizetype at, const QString& line);
    void LookAtUses();
    void LookAtUse(qsizetype at, const QString& name);
    QString WhyWaiting(const directive::Definition& definition) const;
    QString WordAt(qsizetype at) const;
    void Add(qsizetype start, qsizetype length, const QString& text);

    SourceMap m_map; // of no run
    ScriptText m_script;
    QString m_text;
    QString m_word;
    QString m_marker;
    std::vector<Leftover> m_found;
    QHash<QString, qsizetype> m_defined; // where first, whether it was taken in or not
    QHash<QString, qsizetype> m_used;    // where first
    QSet<int> m_standing;                // lines of definitions that were not taken in
    qsizetype m_end = 0;                 // no variable is replaced from here on
};

std::vector<Leftover> Search::Run()
{
    m_end = m_text.size();
    LookAtDefinitions();
    LookAtUses();
    std::ranges::stable_sort(m_found, {}, &Leftover::start);
    return std::move(m_found);
}

// One that was taken in stands behind the marker of a comment.
void Search::LookAtDefinitions()
{
    if (m_word.isEmpty())
        return;
    for (qsizetype at = m_text.indexOf(m_word); at >= 0; at = m_text.indexOf(m_word, at + 1)) {
        const int line = m_script.LineOf(static_cast<long>(at));
        const long start = m_script.LineStart(line);
        const QString front = m_text.sliced(start, at - start).trimmed();
        const QString rest = m_text.sliced(at, m_script.LineEnd(line) - at);
        if (front.isEmpty() && directive::IsDefinition(rest, m_word) &&
            m_script.PlaceOf(static_cast<long>(at)) == ScriptText::Place::Code) {
            m_standing.insert(line);
            LookAtDefinition(at, rest);
        } else if (!front.isEmpty() && front == m_marker) {
            if (const auto taken = directive::ReadDefinition(rest, m_word))
                m_defined.insert(taken->name, m_defined.value(taken->name, at));
        }
    }
}

void Search::LookAtDefinition(qsizetype at, const QString& line)
{
    const qsizetype comment = m_marker.isEmpty() ? -1 : line.indexOf(m_marker);
    const QString shown = line.left(comment < 0 ? line.size() : comment).trimmed();
    if (!shown.contains(kSigil)) {
        Add(at, shown.size(),
            Texts::tr("This defines nothing: the name of a variable begins with &&."));
        return;
    }
    const auto definition =
        directive::ReadDefinition(line.left(comment < 0 ? line.size() : comment), m_word);
    if (!definition) {
        Add(at, shown.size(),
            Texts::tr("This is not of the form %1 &&NAME VALUE, and nothing below is replaced.")
                .arg(m_word));
        m_end = std::min(m_end, at);
        return;
    }
    m_defined.insert(definition->name, m_defined.value(definition->name, at));
    if (at < m_end && definition->value.contains(kSigil))
        Add(at, shown.size(), WhyWaiting(*definition));
}

QString Search::WhyWaiting(const directive::Definition& definition) const
{
    const auto reference = directive::FirstReference(definition.value);
    const auto isPlain = [](QChar unit) { return directive::IsNameCharacter(unit.unicode()); };
    if (reference && std::ranges::all_of(reference->name.mid(kSigil.size()), isPlain))
        return Texts::tr("%1 is not defined: its value needs %2, which has none.")
            .arg(definition.name, reference->name);
    return Texts::tr("%1 is not defined: in its value nothing may follow a variable.")
        .arg(definition.name);
}

void Search::LookAtUses()
{
    for (qsizetype at = m_text.indexOf(kSigil); at >= 0 && at < m_end;
         at = m_text.indexOf(kSigil, at + kSigil.size())) {
        const QString name = WordAt(at);
        if (name.size() > kSigil.size() &&
            !m_standing.contains(m_script.LineOf(static_cast<long>(at))) &&
            m_script.PlaceOf(static_cast<long>(at)) != ScriptText::Place::Comment)
            LookAtUse(at, name);
    }
}

void Search::LookAtUse(qsizetype at, const QString& name)
{
    const qsizetype first = m_used.value(name, at);
    m_used.insert(name, first);
    const qsizetype defined = m_defined.value(name, -1);
    Add(at, name.size(),
        first < defined
            ? Texts::tr("%1 is used above its definition, which then does not count.").arg(name)
            : Texts::tr("Nothing defines %1.").arg(name));
}

QString Search::WordAt(qsizetype at) const
{
    qsizetype end = at + kSigil.size();
    while (end < m_text.size() && directive::IsNameCharacter(m_text[end].unicode()))
        ++end;
    return m_text.sliced(at, end - at);
}

void Search::Add(qsizetype start, qsizetype length, const QString& text)
{
    m_found.push_back({static_cast<long>(start), static_cast<long>(start + length), text});
}

} // namespace

std::vector<Leftover> FindLeftovers(CZNCoreEditorControlEx& control)
{
    return Search(control).Run();
}
