// SPDX-License-Identifier: GPL-3.0-or-later
// The expansion of a script beside reading and writing its text.
#include "bench/ExpandScripts.h"
#include "bench/Pair.h"
#include "bench/RawExpansion.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "platform/base/Units.h"
#include "preprocess/CompileManager.h"

namespace bench {
namespace {

constexpr double kGrowthLimit = 1.3; // of the time for each megabyte, from 16 MB to 64 MB
constexpr int kGrowthRounds = 3;

class Expansion
{
public:
    explicit Expansion(std::size_t megabytes)
        : m_bytes(MakeExpandable(m_folder, megabytes)), m_script(QString::fromStdString(m_bytes)),
          m_rawExpansion(m_raw, m_folder.path().toStdString())
    {
        Bind(m_editor, "Transact-SQL");
        m_editor.control().SetDatasourceSearchPath(m_folder.path());
    }

    void Fill()
    {
        m_editor.control().SetText(Units(m_script), 1);
        m_editor.control().EmptyUndoBuffer(1);
    }

    void Expand()
    {
        m_editor.control().GetWindowTextW(m_expanded);
        if (m_expanded.contains(QLatin1String("&&NAME_1 from")) ||
            m_editor.control().HasPreprocessorErrors())
            std::abort();
    }

    // The same by the stock engine.
    void FillRaw() { m_raw.Load(m_bytes); }

    void ExpandRaw()
    {
        m_rawExpansion.Expand();
        const auto length = static_cast<std::size_t>(m_raw.Send(QsciScintillaBase::SCI_GETLENGTH));
        m_rawExpanded.resize(length);
        m_raw.Send(QsciScintillaBase::SCI_GETTEXT, length + 1, m_rawExpanded.data());
    }

    bool AreSame() const { return m_expanded == QString::fromLatin1(m_rawExpanded); }

    void ReadAndWrite()
    {
        QString text = m_editor.control().GetText();
        m_editor.control().SetText(Units(text), 1);
        m_editor.control().EmptyUndoBuffer(1);
    }

private:
    QTemporaryDir m_folder;
    ZNCoreEditorWidget m_editor;
    std::string m_bytes;
    QString m_script;
    QString m_expanded;
    RawEngine m_raw;
    RawExpansion m_rawExpansion;
    std::string m_rawExpanded;
};

void ExpandScript(benchmark::State& state)
{
    Expansion expansion(static_cast<std::size_t>(state.range(0)));
    MeasurePair(
        state,
        [&] {
            expansion.Fill();
            expansion.Expand();
        },
        [&] { expansion.ReadAndWrite(); }, 0);
}

// The stock engine grows by what its memory costs once the caches do not hold it.
void ExpandBesideRaw(benchmark::State& state)
{
    Expansion expansion(static_cast<std::size_t>(state.range(0)));
    MeasurePair(
        state,
        [&] {
            expansion.Fill();
            expansion.Expand();
        },
        [&] {
            expansion.FillRaw();
            expansion.ExpandRaw();
        },
        0);
    if (!expansion.AreSame())
        state.SkipWithError("the two results differ");
    state.SetLabel("times the stock engine's time for the same edits");
}

// The least of a few rounds, each in a fresh editor.
void ExpandGrowth(benchmark::State& state)
{
    double ours[2] = {1e9, 1e9};
    double raw[2] = {1e9, 1e9};
    for (auto _ : state) {
        for (int round = 0; round < 2 * kGrowthRounds; ++round) {
            const int i = round % 2;
            const std::size_t megabytes = i == 0 ? 16 : 64;
            Expansion expansion(megabytes);
            expansion.Fill();
            ours[i] = std::min(ours[i], CpuSeconds([&] { expansion.Expand(); }) /
                                            static_cast<double>(megabytes));
            expansion.FillRaw();
            raw[i] = std::min(raw[i], CpuSeconds([&] { expansion.ExpandRaw(); }) /
                                          static_cast<double>(megabytes));
        }
    }
    state.counters["reference_growth"] = raw[1] / raw[0];
    ReportFigure(state, ours[1] / ours[0], kGrowthLimit, "times the time for a megabyte at 16 MB");
}

// The time for twice the uses in a line of twice the length, in fresh editors.
void ExpandLongLine(benchmark::State& state, const char* language, const char* value,
                    bool hasBlankLines)
{
    constexpr double kLimit = 2.6;
    constexpr std::size_t kUses[] = {8000, 16000};
    CZNCompileManager& manager = *zncoreeditor::GetCompileManager();
    manager.SetPredefined({{QStringLiteral("&&NAME"), QLatin1String(value)}});
    double least[2] = {1e9, 1e9};
    for (auto _ : state) {
        for (int round = 0; round < 2 * kGrowthRounds; ++round) {
            const int i = round % 2;
            ZNCoreEditorWidget editor;
            Bind(editor, language);
            const QString script = QString::fromStdString(MakeLongLine(kUses[i], hasBlankLines));
            editor.control().SetText(Units(script), 1);
            QString expanded;
            least[i] =
                std::min(least[i], CpuSeconds([&] { editor.control().GetWindowTextW(expanded); }));
            if (expanded.contains(QLatin1String("&&")))
                std::abort();
        }
    }
    manager.SetPredefined({});
    state.counters["ours_ms"] = least[1] * 1e3;
    ReportFigure(state, least[1] / least[0], kLimit, "times the time for half of 16,000 uses");
}

struct LongLine
{
    const char* name;
    const char* value;
    bool hasBlankLines;
};

constexpr LongLine kLongLines[] = {
    {"Words", "value", false},
    {"Quotes", "it's", false}, // each changes the styles of the rest
    {"AboveBlankLines", "value", true},
};

const bool kRegistered = [] {
    for (const char* language : {"MySQL", "PL/SQL"}) {
        for (const LongLine& line : kLongLines)
            benchmark::RegisterBenchmark(std::string("ExpandLongLine/")
                                             .append(line.name)
                                             .append("/")
                                             .append(language)
                                             .c_str(),
                                         ExpandLongLine, language, line.value, line.hasBlankLines)
                ->Iterations(1);
    }
    return true;
}();

BENCHMARK(ExpandScript)
    ->Arg(2)
    ->Arg(16)
    ->Arg(64)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ExpandBesideRaw)
    ->Arg(16)
    ->Arg(64)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ExpandGrowth)->Iterations(1);

} // namespace
} // namespace bench
