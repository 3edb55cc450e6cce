// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/ExpandScripts.h"

#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"

#include <fstream>

namespace bench {
namespace {

constexpr std::size_t kFullMegabytes = 64;
constexpr std::size_t kDefinitions = 10'000;
constexpr std::size_t kUses = 100'000;
constexpr std::size_t kIncludes = 1'000;

void WriteInclude(const QTemporaryDir& folder, std::size_t number, std::size_t definitions)
{
    const QString path = folder.filePath(QStringLiteral("include%1.sql").arg(number));
    std::ofstream(path.toStdString())
        << "-- part " << number << "\nselect '&&NAME_" << number % definitions
        << "' as name\nfrom part_" << number << "\nwhere id > 0;\n";
}

} // namespace

std::string MakeExpandable(const QTemporaryDir& folder, std::size_t megabytes)
{
    const auto scaled = [megabytes](std::size_t count) {
        return count * megabytes / kFullMegabytes;
    };
    std::string script;
    script.reserve(megabytes * kMegabyte + kMegabyte);
    const std::size_t definitions = scaled(kDefinitions);
    for (std::size_t i = 0; i < definitions; ++i)
        script += "#define &&NAME_" + std::to_string(i) + " value_" + std::to_string(i) + "\n";
    const std::size_t uses = scaled(kUses);
    const std::size_t perInclude = uses / scaled(kIncludes);
    const std::string filler = MakeSql(Script::Ascii, megabytes * kMegabyte / uses - 64);
    for (std::size_t use = 0; use < uses; ++use) {
        script += "select &&NAME_" + std::to_string(use * 7919 % definitions) + " from t;\n";
        script += filler;
        if (use % perInclude == 0) {
            const std::size_t number = use / perInclude;
            WriteInclude(folder, number, definitions);
            script += "#include include" + std::to_string(number) + ".sql\n";
        }
    }
    return script;
}

std::string MakeLongLine(std::size_t uses, bool hasBlankLines)
{
    std::string script = "select 0";
    for (std::size_t use = 0; use < uses; ++use) {
        std::string column = ", &&NAME as column_" + std::to_string(use);
        column.resize(48, ' ');
        script += column;
    }
    return hasBlankLines ? script + std::string(uses, '\n') : script;
}

void Bind(ZNCoreEditorWidget& editor, const char* language)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    for (int i = 0; i < languages.GetLanguageCount(); ++i) {
        if (languages.GetLanguageName(i) == QLatin1String(language))
            editor.setLanguage(i);
    }
}

} // namespace bench
