// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptAnalysis: the partitioner of one window, in units of the channel. It hears of the text's
// changes from the first question on, and reads what nobody has asked about yet in idle time.
#pragma once

#include "control/Analysis.h"
#include "engine/analysis/Partitioner.h"

#include <QMetaObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace engine {

class Engine;

class ScriptAnalysis
{
public:
    using Span = analysis::Span; // units here

    explicit ScriptAnalysis(Engine& engine);
    ScriptAnalysis(const ScriptAnalysis&) = delete;
    ScriptAnalysis& operator=(const ScriptAnalysis&) = delete;

    // Nothing, and 0 of what there is to say, while there is no analysis.
    std::optional<Span> StatementAt(long position);
    std::optional<Span> BatchAround(long first, long second);
    std::optional<std::u16string> CatalogAt(long position);
    std::vector<Span> Statements(long from, long to); // to below 0: the text's end
    std::optional<std::u16string> Separator();

    bool Initialize(const partitioner::ServerIdentifier* server, bool worksAhead);
    bool Attach(int dialect);
    bool Detach();
    bool Reset(int scope, long start, long end);

    void SetServer(int dialect);
    void SetSeparator(const char16_t* text, int flags);
    void SetCatalog(std::u16string text, bool fixed);
    void SetEnabled(bool enabled);
    void SetReconciling(bool reconciling);
    void SetBulkChange(bool bulk);
    void SetMostUnits(int units);
    int MostUnits() const { return m_settings.mostUnits; }

    void RulesChanged(); // lexer or property
    void Forget();       // another text

private:
    // What PartitionerReset sets back.
    struct Settings
    {
        int dialect = partitioner::DialectOfLexer;
        std::optional<analysis::BatchSeparator> separator; // empty: the dialect's
        std::u16string catalog;
        bool catalogIsFixed = false;
        int mostUnits = 0; // 0: any
    };

    // Announced, and not known to be in the text.
    struct Change
    {
        bool insertion = false;
        long position = 0;
        long bytes = 0;
        long lengthBefore = 0;
    };

    const analysis::SqlDialect* Dialect() const;
    analysis::ScriptRules Rules() const;
    void FoldBySeparator();
    std::unique_ptr<analysis::Partitioner> ReadElsewhere(const analysis::ScriptRules& rules) const;
    bool Begin();
    void Follow();
    void ChangeBegins(const Change& change);
    void Settle();
    void WorkAhead();
    void ContinueAhead();
    analysis::TextSpans Text() const; // good until the engine is asked something else
    long Bytes(long position) const;
    Span Units(const Span& span) const;

    Engine& m_engine;
    std::unique_ptr<analysis::Partitioner> m_partitioner; // null: nothing is followed
    Settings m_settings;
    std::optional<Change> m_change;
    QMetaObject::Connection m_following;
    QTimer m_idle;
    bool m_worksAhead = true;
    bool m_enabled = true;
    bool m_detached = false;
    bool m_attached = false;
    bool m_reconciling = true;
    bool m_bulkChange = false;
};

} // namespace engine
