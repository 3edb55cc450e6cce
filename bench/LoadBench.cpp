// SPDX-License-Identifier: GPL-3.0-or-later
// OpenFile beside the raw engine taking the same text in blocks of 8 KB.
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <memory>

namespace bench {
namespace {

struct EncodingRow
{
    const char* name;
    FileEncodeConverter::encodingType encoding;
};

constexpr EncodingRow kEncodings[] = {
    {"utf8", FileEncodeConverter::encUTF8},
    {"utf16", FileEncodeConverter::encUTF16LE},
    {"windows1252", FileEncodeConverter::encANSI},
};

constexpr double kLoadLimit = 1.4;
constexpr double kGrowthLimit = 2.0; // the making of the editor counts too
constexpr double kCarefulLimit = 1.1;

void Open(const std::string& path, FileEncodeConverter::encodingType encoding, bool careful,
          std::unique_ptr<ZNCoreEditorWidget>& editor)
{
    editor->control().SetCarefulFiles(careful);
    const std::u16string wide(path.begin(), path.end());
    if (!editor->control().OpenFile(wide.c_str(), encoding) || editor->control().GetLength(1) == 0)
        std::abort(); // without an engine it opens too
}

void LoadFile(benchmark::State& state, Script script, const EncodingRow& row)
{
    const std::string& text = Sql64(script);
    const std::string path = WriteFile("load.sql", Encode(text, row.encoding));
    // Without care a character over the seam of two blocks ends the load of UTF-8.
    const bool careful = script == Script::Mixed && row.encoding == FileEncodeConverter::encUTF8;
    std::unique_ptr<ZNCoreEditorWidget> editor;
    std::unique_ptr<RawEngine> raw;
    MeasurePair(
        state,
        [&] {
            editor = std::make_unique<ZNCoreEditorWidget>();
            Open(path, row.encoding, careful, editor);
            editor.reset();
        },
        [&] {
            raw = std::make_unique<RawEngine>();
            raw->Load(text);
            raw.reset();
        },
        kLoadLimit);
}

// The same with care, beside without.
void LoadFileCarefully(benchmark::State& state, Script script, const EncodingRow& row)
{
    const std::string path = WriteFile("load.sql", Encode(Sql64(script), row.encoding));
    const auto load = [&](bool careful) {
        auto editor = std::make_unique<ZNCoreEditorWidget>();
        Open(path, row.encoding, careful, editor);
    };
    MeasurePair(
        state, [&] { load(true); }, [&] { load(false); }, kCarefulLimit);
}

// Growth: the ratio to the raw engine stays as the text grows.
void LoadGrowth(benchmark::State& state)
{
    const std::string text =
        MakeSql(Script::Ascii, static_cast<std::size_t>(state.range(0)) * kMegabyte);
    const std::string path = WriteFile("growth.sql", text);
    MeasurePair(
        state,
        [&] {
            auto editor = std::make_unique<ZNCoreEditorWidget>();
            Open(path, FileEncodeConverter::encUTF8, false, editor);
        },
        [&] {
            RawEngine raw;
            raw.Load(text);
        },
        kGrowthLimit);
}

const bool kRegistered = [] {
    for (const Script script : {Script::Ascii, Script::Mixed}) {
        for (const EncodingRow& row : kEncodings) {
            const std::string name = std::string(NameOf(script)) + "/" + row.name;
            benchmark::RegisterBenchmark(("OpenFile/" + name).c_str(), LoadFile, script, row)
                ->Iterations(7)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
            if (script == Script::Mixed && row.encoding == FileEncodeConverter::encUTF8)
                continue; // there is no load without care to compare with
            benchmark::RegisterBenchmark(("OpenFileCareful/" + name).c_str(), LoadFileCarefully,
                                         script, row)
                ->Iterations(7)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        }
    }
    for (const int megabytes : {1, 4, 16, 64, 256})
        benchmark::RegisterBenchmark("OpenFileGrowth", LoadGrowth)
            ->Arg(megabytes)
            ->Iterations(megabytes < 64 ? 15 : 3)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace
} // namespace bench
