// The expansion of a script beside reading and writing its text.
#include "bench/ExpandScripts.h"
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "editing/FileTypeManager.h"
#include "editing/Library.h"
#include "editing/ZNCoreEditorWidget.h"
#include "platform/Units.h"

namespace bench {
namespace {

constexpr double kGrowthLimit = 1.3; // of the time for each megabyte, from 16 MB to 64 MB

void BindSql(ZNCoreEditorWidget& editor)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    for (int i = 0; i < languages.GetLanguageCount(); ++i) {
        if (languages.GetLanguageName(i) == QLatin1String("Transact-SQL"))
            editor.setLanguage(i);
    }
}

class Expansion
{
public:
    explicit Expansion(std::size_t megabytes)
        : m_script(QString::fromStdString(MakeExpandable(m_folder, megabytes)))
    {
        BindSql(m_editor);
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

    void ReadAndWrite()
    {
        QString text = m_editor.control().GetText();
        m_editor.control().SetText(Units(text), 1);
        m_editor.control().EmptyUndoBuffer(1);
    }

private:
    QTemporaryDir m_folder;
    ZNCoreEditorWidget m_editor;
    QString m_script;
    QString m_expanded;
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

void ExpandGrowth(benchmark::State& state)
{
    double perMegabyte[2] = {};
    for (auto _ : state) {
        for (const std::size_t i : {0, 1}) {
            const std::size_t megabytes = i == 0 ? 16 : 64;
            Expansion expansion(megabytes);
            expansion.Fill();
            perMegabyte[i] =
                CpuSeconds([&] { expansion.Expand(); }) / static_cast<double>(megabytes);
        }
    }
    ReportFigure(state, perMegabyte[1] / perMegabyte[0], kGrowthLimit,
                 "times the time for a megabyte at 16 MB");
}

BENCHMARK(ExpandScript)
    ->Arg(2)
    ->Arg(16)
    ->Arg(64)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ExpandGrowth)->Iterations(1);

} // namespace
} // namespace bench
