// SPDX-License-Identifier: GPL-3.0-or-later
// What languages cost a running editor, beside a bar in CPU milliseconds: the files, their settings
// and the engine's part of it.
#include "bench/Pair.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QFileInfo>
#include <QWidget>

#include <cstdlib>
#include <memory>

namespace bench {
namespace {

CFileTypeManager& Registry()
{
    return *zncoreeditor::GetFileTypeManager();
}

struct Editor
{
    Editor() { control.Create(&window, nullptr); }
    // What the options wrote is not the product data's.
    ~Editor()
    {
        zncoreeditor::GetConfigFile()->SetModified(false);
        Registry().ReParseAllSyntaxFiles();
    }

    QWidget window;
    CZNCoreEditorControlEx control;
};

int LargestLanguage()
{
    int largest = 0;
    const auto sizeOf = [](int language) {
        return QFileInfo(Registry().GetSyntaxFile(language)->GetFilename()).size();
    };
    for (int language = 0; language < Registry().GetLanguageCount(); ++language) {
        if (sizeOf(language) > sizeOf(largest))
            largest = language;
    }
    return largest;
}

void Bind(benchmark::State& state)
{
    Editor editor;
    const int language = LargestLanguage();
    MeasureBar(
        state, 5, "CPU ms over 5: InitializeLanguage, the largest language, parse included",
        [&] {
            Registry().ReParseAllSyntaxFiles();
            editor.control.InitializeLanguage(0, 1);
        },
        [&] { editor.control.InitializeLanguage(language, 1); });
    if (!Registry().GetSyntaxHighlighting(language))
        std::abort();
}

void Register(benchmark::State& state)
{
    std::unique_ptr<CConfigFile> config;
    std::unique_ptr<CFileTypeManager> registry;
    MeasureBar(
        state, 10, "CPU ms over 10: parse the list, register all languages; parses none of them",
        [&] {
            config = std::make_unique<CConfigFile>();
            registry = std::make_unique<CFileTypeManager>();
        },
        [&] {
            config->SetFilename(zncoreeditor::GetConfigFile()->GetFilename());
            config->Parse();
            registry->Init(config.get());
        });
    if (registry->GetLanguageCount() < 20)
        std::abort();
}

void WriteOptions(benchmark::State& state, bool parseIncluded)
{
    Editor editor;
    int size = 9;
    const auto write = [&] {
        editor.control.UpdateXmlSettingsFromOptionServerData("Courier New", size, size % 2,
                                                             size % 2, size % 2);
    };
    write();
    MeasureBar(
        state, 60,
        parseIncluded ? "CPU ms over 60: UpdateXmlSettingsFromOptionServerData, parse included"
                      : "CPU ms over 60: UpdateXmlSettingsFromOptionServerData, parsed before",
        [&] {
            ++size;
            if (parseIncluded)
                Registry().ReParseAllSyntaxFiles();
        },
        write);
}

// Under the options that the editor before it was made under.
void MakeEditor(benchmark::State& state)
{
    const Editor tidiesUp;
    const ZNCoreEditorWidget first;
    std::unique_ptr<ZNCoreEditorWidget> further;
    const auto make = [&] { further = std::make_unique<ZNCoreEditorWidget>(); };
    make();
    MeasureBar(
        state, 1, "CPU ms over 1: make a further editor, its options and language included",
        [&] { further = nullptr; }, make);
}

BENCHMARK(Bind)->Name("Language/bind")->Iterations(1);
BENCHMARK(Register)->Name("Language/register")->Iterations(1);
BENCHMARK(MakeEditor)->Name("Language/makeEditor")->Iterations(1);
BENCHMARK_CAPTURE(WriteOptions, parsed, false)->Name("Language/writeOptions")->Iterations(1);
BENCHMARK_CAPTURE(WriteOptions, parse, true)->Name("Language/parseAndWriteOptions")->Iterations(1);

} // namespace
} // namespace bench
