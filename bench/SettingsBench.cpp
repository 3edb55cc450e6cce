// SPDX-License-Identifier: GPL-3.0-or-later
// What the settings of the languages cost, beside a bar in CPU milliseconds: no engine is in it.
#include "bench/Pair.h"

#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace bench {
namespace {

constexpr int kStyles = 128;

QDir SyntaxFolder()
{
    return QDir(QStringLiteral(ZN_SOURCE_DIR "/data/Syntax"));
}

QString LargestFile()
{
    return SyntaxFolder().entryList({"*.xml"}, QDir::Files, QDir::Size).value(0);
}

// One language: its base file, and the custom file in the user's folder.
struct Language
{
    Language(const QString& name, const QTemporaryDir& user)
    {
        file.SetFilename(SyntaxFolder().filePath(name));
        file.SetCustomFilename(user.filePath(name));
    }

    CSyntaxFile file;
};

using Languages = std::vector<std::unique_ptr<Language>>;

Languages AllLanguages(const QTemporaryDir& user)
{
    Languages all;
    for (const QString& name : SyntaxFolder().entryList({"*.xml"}, QDir::Files))
        all.push_back(std::make_unique<Language>(name, user));
    return all;
}

void ReadStyle(CSyntaxFile& file, int style)
{
    benchmark::DoNotOptimize(file.GetStyleFontName(style).size());
    benchmark::DoNotOptimize(file.GetStyleFontSize(style));
    benchmark::DoNotOptimize(file.GetStyleFontBold(style));
    benchmark::DoNotOptimize(file.GetStyleFontItalic(style));
    benchmark::DoNotOptimize(file.GetStyleFontUnderline(style));
    benchmark::DoNotOptimize(file.GetStyleColorForeground(style));
    benchmark::DoNotOptimize(file.GetStyleColorBackground(style));
}

void ReadSettings(CSyntaxFile& file)
{
    const bool flags[] = {file.GetSyntaxHighlighting(),
                          file.GetIndent(),
                          file.GetIndent(),
                          file.GetIndentGuides(),
                          file.GetWhiteSpace(),
                          file.GetEOL(),
                          file.GetTabsToSpaces(),
                          file.GetMarginLineNumber(),
                          file.GetMarginBookmark(),
                          file.GetMarginFold(),
                          file.GetEnsureFinalNewLine(),
                          file.GetConvertTabsToSpaces(),
                          file.GetTrimTrailingSpaces(),
                          file.GetWordWrap(),
                          file.GetMarginLineNumber(),
                          file.GetBraceMatch(),
                          file.GetAutoCompletion(),
                          file.GetCodeCompletion()};
    const int numbers[] = {file.GetStyleBits(),
                           file.GetLexerNumber(),
                           file.GetIndentSize(),
                           file.GetAutoIndent(),
                           file.GetTabWidth(),
                           file.GetACKey(),
                           file.GetStyleColorForeground(0)};
    const qsizetype lengths[] = {file.GetSingleLineComment().size(), file.GetBlockComment().size(),
                                 file.GetBraces().size(), file.GetWordCharacters().size()};
    benchmark::DoNotOptimize(flags);
    benchmark::DoNotOptimize(numbers);
    benchmark::DoNotOptimize(lengths);
}

// Everything that binding a language reads of its file, in that order.
void ReadForBinding(CSyntaxFile& file)
{
    if (!file.Parse())
        std::abort();
    ReadStyle(file, 32);
    CMapStringToString properties;
    benchmark::DoNotOptimize(file.GetLexerProperties(properties));
    for (int style = 0; style < kStyles; ++style)
        ReadStyle(file, style);
    for (int set = 0; set <= 8; ++set)
        benchmark::DoNotOptimize(file.GetDelimitedKeywordSet(set, ' ').size());
    ReadSettings(file);
}

// Of a style without a font nothing can be set.
void WriteStyles(CSyntaxFile& file, int size)
{
    for (int style = 0; style < kStyles; ++style) {
        benchmark::DoNotOptimize(file.SetStyleFontName(style, QStringLiteral("Courier New")));
        benchmark::DoNotOptimize(file.SetStyleFontSize(style, size));
        benchmark::DoNotOptimize(file.SetStyleFontBold(style, size % 2));
        benchmark::DoNotOptimize(file.SetStyleFontItalic(style, size % 2));
        benchmark::DoNotOptimize(file.SetStyleFontUnderline(style, size % 2));
    }
}

void ReadAllAndWriteStyles(Languages& languages, int size)
{
    for (const auto& language : languages) {
        ReadForBinding(language->file);
        WriteStyles(language->file, size);
    }
}

// Custom files in which every style has all that a style can have.
void WriteCustomFiles(const QTemporaryDir& user)
{
    QByteArray text = "<Syntax><StyleInformation><StyleBits>7</StyleBits><StyleMax>127</StyleMax>";
    for (int style = 0; style < kStyles; ++style) {
        text += "<Style number=\"" + QByteArray::number(style) +
                "\"><Name>Any</Name><Font><Name>Mono</Name><Size>9</Size><Bold>0</Bold>"
                "<Italic>0</Italic><Underline>0</Underline></Font><Color>"
                "<Foreground>1F242B</Foreground><Background>FFFFFF</Background></Color></Style>";
    }
    for (const QString& name : SyntaxFolder().entryList({"*.xml"}, QDir::Files)) {
        QFile file(user.filePath(name));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(text + "</StyleInformation></Syntax>") < 0)
            std::abort();
    }
}

void Bind(benchmark::State& state, bool withCustomFile)
{
    const QTemporaryDir user;
    if (withCustomFile)
        WriteCustomFiles(user);
    std::unique_ptr<Language> language;
    MeasureBar(
        state, 5, "CPU ms over 5: parse the largest language and read all of it",
        [&] { language = std::make_unique<Language>(LargestFile(), user); },
        [&] { ReadForBinding(language->file); });
}

void Start(benchmark::State& state)
{
    const QTemporaryDir user;
    Languages languages;
    MeasureBar(
        state, 10, "CPU ms over 10: make, name and parse the list and all languages",
        [&] { languages.clear(); },
        [&] {
            CConfigFile config;
            config.SetFilename(QStringLiteral(ZN_SOURCE_DIR "/data/ZNCoreEditor.xml"));
            if (!config.Parse())
                std::abort();
            for (int i = 0; i < config.GetLanguageCount(); ++i) {
                benchmark::DoNotOptimize(config.GetLanguageName(i).size());
                languages.push_back(
                    std::make_unique<Language>(config.GetLanguageSyntaxFileName(i), user));
                if (!languages.back()->file.Parse())
                    std::abort();
            }
        });
}

void WriteOptions(benchmark::State& state, bool withCustomFiles)
{
    const QTemporaryDir user;
    if (withCustomFiles)
        WriteCustomFiles(user);
    Languages languages = AllLanguages(user);
    ReadAllAndWriteStyles(languages, 9);
    int size = 10;
    MeasureBar(
        state, 60, "CPU ms over 60: read all, write five options of every style, parsed before",
        [&] { ++size; }, [&] { ReadAllAndWriteStyles(languages, size); });
}

void ParseAndWriteOptions(benchmark::State& state, bool withCustomFiles)
{
    const QTemporaryDir user;
    if (withCustomFiles)
        WriteCustomFiles(user);
    Languages languages;
    MeasureBar(
        state, 60, "CPU ms over 60: parse and read all, write five options of every style",
        [&] { languages = AllLanguages(user); }, [&] { ReadAllAndWriteStyles(languages, 10); });
}

#define ZN_WITH_AND_WITHOUT(function, name)                                                        \
    BENCHMARK_CAPTURE(function, shipped, false)->Name("Settings/" name)->Iterations(1);            \
    BENCHMARK_CAPTURE(function, custom, true)                                                      \
        ->Name("Settings/" name "WithCustomFiles")                                                 \
        ->Iterations(1)

ZN_WITH_AND_WITHOUT(Bind, "bind");
ZN_WITH_AND_WITHOUT(WriteOptions, "writeOptions");
ZN_WITH_AND_WITHOUT(ParseAndWriteOptions, "parseAndWriteOptions");
BENCHMARK(Start)->Name("Settings/parseAll")->Iterations(1);

} // namespace
} // namespace bench
