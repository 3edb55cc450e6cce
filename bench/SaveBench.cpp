// SPDX-License-Identifier: GPL-3.0-or-later
// SaveFile beside reading every line out of the raw engine and writing it with one fwrite each.
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <cstdio>
#include <vector>

namespace bench {
namespace {

using Sci = QsciScintillaBase;

constexpr double kSaveLimit = 1.1;
constexpr double kCarefulLimit = 1.1;

void WriteLines(const RawEngine& raw, const std::string& path)
{
    std::FILE* file = std::fopen(path.c_str(), "wb");
    std::vector<char> line(8192);
    const auto lines = raw.Send(Sci::SCI_GETLINECOUNT);
    for (std::intptr_t i = 0; i < lines; ++i) {
        const auto length =
            static_cast<std::size_t>(raw.Send(Sci::SCI_LINELENGTH, static_cast<std::uintptr_t>(i)));
        if (line.size() < length + 1)
            line.resize(length + 1);
        raw.Send(Sci::SCI_GETLINE, static_cast<std::uintptr_t>(i), line.data());
        if (length > 0)
            std::fwrite(line.data(), 1, length, file);
    }
    std::fclose(file);
}

bool Save(ZNCoreEditorWidget& editor, const std::string& path,
          FileEncodeConverter::encodingType encoding, bool careful)
{
    editor.control().SetCarefulFiles(careful);
    const std::u16string wide(path.begin(), path.end());
    return editor.control().SaveFile(wide.c_str(), encoding, false, false);
}

void SaveText(benchmark::State& state, Script script, FileEncodeConverter::encodingType encoding)
{
    ZNCoreEditorWidget editor;
    const std::string source = WriteFile("save-source.sql", Sql64(script));
    editor.control().SetCarefulFiles(true);
    editor.control().OpenFile(std::u16string(source.begin(), source.end()).c_str(),
                              FileEncodeConverter::encUTF8);
    RawEngine raw;
    raw.Load(Sql64(script));
    const std::string ours = WriteFile("ours.sql", "");
    const std::string reference = WriteFile("reference.sql", "");
    MeasurePair(
        state,
        [&] {
            if (!Save(editor, ours, encoding, false))
                state.SkipWithError("the save failed");
        },
        [&] { WriteLines(raw, reference); }, kSaveLimit);
}

void SaveCarefully(benchmark::State& state, Script script)
{
    ZNCoreEditorWidget editor;
    const std::string source = WriteFile("save-source.sql", Sql64(script));
    editor.control().SetCarefulFiles(true);
    editor.control().OpenFile(std::u16string(source.begin(), source.end()).c_str(),
                              FileEncodeConverter::encUTF8);
    const std::string path = WriteFile("careful.sql", "");
    // CPU time: the wait for the disk at the flush does not count.
    MeasurePair(
        state, [&] { Save(editor, path, FileEncodeConverter::encUTF8, true); },
        [&] { Save(editor, path, FileEncodeConverter::encUTF8, false); }, kCarefulLimit);
}

const bool kRegistered = [] {
    for (const Script script : {Script::Ascii, Script::Mixed}) {
        const std::string name = NameOf(script);
        const auto add = [&](const char* encoding, FileEncodeConverter::encodingType type) {
            benchmark::RegisterBenchmark(("SaveFile/" + name + "/" + encoding).c_str(), SaveText,
                                         script, type)
                ->Iterations(7)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        };
        add("utf8", FileEncodeConverter::encUTF8);
        add("utf16", FileEncodeConverter::encUTF16LE);
        add("windows1252", FileEncodeConverter::encANSI);
        benchmark::RegisterBenchmark(("SaveFileCareful/" + name + "/utf8").c_str(), SaveCarefully,
                                     script)
            ->Iterations(7)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
    return true;
}();

} // namespace
} // namespace bench
