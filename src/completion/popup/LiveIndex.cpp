// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/popup/LiveIndex.h"

#include "completion/ScriptIndex.h"
#include "control/EngineRecords.h"
#include "control/SqlStyles.h"
#include "control/ZNCoreEditorControl.h"

#include <QString>

#include <array>
#include <chrono>

namespace completion {
namespace {

constexpr std::chrono::milliseconds kRest(150); // behind the last change
constexpr std::chrono::milliseconds kBetweenKeys(40);
constexpr long kSlice = 65536; // units that are read between two events

} // namespace

const engine::analysis::SqlDialect* DialectOf(CZNCoreEditorControl& editor)
{
    const auto* dialect = engine::analysis::DialectOfLexer(editor.GetLexer(1));
    if (!dialect || dialect != engine::analysis::DialectByNumber(0))
        return dialect;
    const QString key = QString::fromLatin1(engine::sqlstyle::kDialectProperty);
    std::array<char16_t, 64> value = {};
    const auto* name = reinterpret_cast<const char16_t*>(key.utf16());
    if (editor.GetProperty(name, nullptr, 1) < static_cast<int>(value.size()))
        editor.GetProperty(name, value.data(), 1);
    const std::string text = QStringView(value.data()).toLatin1().toStdString();
    const auto* named = engine::analysis::DialectByName(text);
    return named ? named : dialect;
}

LiveIndex::LiveIndex(QObject* parent) : QObject(parent)
{
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &LiveIndex::WorkAhead);
}

LiveIndex::~LiveIndex() = default;

void LiveIndex::SetEditor(CZNCoreEditorControl* editor)
{
    m_editor = editor;
    if (!editor)
        m_idle.stop();
    else if (m_isFollowing)
        m_idle.start(kRest);
}

void LiveIndex::OnModified(const SCNotification& record)
{
    if (!m_index)
        return;
    if (record.modificationType & modification::InsertText)
        m_index->Inserted(record.position, record.length);
    else if (record.modificationType & modification::DeleteText)
        m_index->Deleted(record.position, record.length);
    else
        return;
    if (!m_idle.isActive() || m_idle.intervalAsDuration() != kRest)
        m_idle.start(kRest);
}

LiveIndex::Read LiveIndex::Reader() const
{
    return [editor = m_editor](long start, long end, std::u16string& text) {
        text.assign(static_cast<std::size_t>(std::max(end - start, 0L)) + 1, u'\0');
        TextRange range{.chrg = {static_cast<int>(start), static_cast<int>(end)},
                        .lpstrText = text.data()};
        const int count = editor && end > start ? editor->GetTextRange(&range, 1) : 0;
        text.resize(
            static_cast<std::size_t>(std::clamp<long>(count, 0, std::max(end - start, 0L))));
    };
}

// A language that was changed, or a text of which nothing was told, begins afresh.
void LiveIndex::Ensure()
{
    m_isFollowing = true;
    const auto* dialect = m_editor ? DialectOf(*m_editor) : nullptr;
    const long size = m_editor ? m_editor->GetLength(1) : 0;
    if (!m_index || m_index->Dialect() != dialect)
        m_index = std::make_unique<ScriptIndex>(dialect);
    if (m_index->Size() != size)
        m_index->Reset(size);
}

ScriptIndex& LiveIndex::Around(long caret)
{
    Ensure();
    m_index->Freshen(Reader(), caret);
    if (!m_index->IsDone() && !m_idle.isActive())
        m_idle.start(kRest);
    return *m_index;
}

std::vector<ScriptName> LiveIndex::Listed() const
{
    std::vector<ScriptName> names;
    m_index->ForEachObject([&](const ScriptIndex::Object& object) {
        const std::string_view text = m_index->Words().Text(object.name);
        if (object.kind <= NameKind::Schema)
            names.push_back({object.kind,
                             QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
                             {},
                             object.position,
                             object.position});
        return true;
    });
    return names;
}

std::vector<ScriptName> LiveIndex::Created()
{
    Ensure();
    if (!m_index->IsDone() && !m_idle.isActive())
        m_idle.start(kRest);
    return Listed();
}

std::vector<ScriptName> LiveIndex::CreatedInAll()
{
    Ensure();
    while (m_index->Work(Reader(), kSlice)) {}
    return Listed();
}

const ScriptIndex* LiveIndex::Known()
{
    if (!m_index || !m_editor || !m_editor->GetSafeHwnd())
        return nullptr;
    Ensure();
    if (!m_index->IsDone() && !m_idle.isActive())
        m_idle.start(kRest);
    return m_index.get();
}

bool LiveIndex::IsDone() const
{
    return m_index && m_index->IsDone();
}

std::size_t LiveIndex::MemoryBytes() const
{
    return m_index ? m_index->MemoryBytes() : 0;
}

void LiveIndex::Start()
{
    m_isFollowing = true;
    m_idle.start(std::chrono::milliseconds(0));
}

void LiveIndex::Defer()
{
    if (m_idle.isActive())
        m_idle.start(kBetweenKeys);
}

void LiveIndex::WorkAhead()
{
    if (!m_editor || !m_editor->GetSafeHwnd())
        return;
    Ensure();
    if (m_index->Work(Reader(), kSlice))
        m_idle.start(std::chrono::milliseconds(0));
    else
        Q_EMIT Finished();
}

} // namespace completion
