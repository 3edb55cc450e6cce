// SPDX-License-Identifier: GPL-3.0-or-later
// Any script, with files to include: expanded through the real engine, and put back. NUL characters
// of the input part it into the script and its files, "a" to "d". The first byte chooses the
// language.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/windows/Questions.h"
#include "preprocess/CompileManager.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

void Check(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    abort();
}

class Silence final : public IUserQuestions
{
public:
    Answer Ask(HWND /*owner*/, const QString& /*text*/, Buttons /*buttons*/) override
    {
        return Answer::Ok;
    }
};

struct Program
{
    Program() : application(count, arguments)
    {
        SetUserQuestions(&questions);
        for (const char* language : {"Transact-SQL", "SQL", "C++"}) {
            auto* control = new CZNCoreEditorControlEx;
            control->SubclassWindow(
                CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 100, 100}, &parent));
            Check(control->GetSafeHwnd() != nullptr, "there is an engine");
            control->SetDatasourceSearchPath(folder.path());
            control->SetCarefulFiles(true);
            const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
            for (int i = 0; i < languages.GetLanguageCount(); ++i) {
                if (languages.GetLanguageName(i) == QLatin1String(language))
                    control->InitializeLanguage(i, 1);
            }
            controls.push_back(control);
        }
    }

    void WriteFile(std::size_t number, const std::string& bytes) const
    {
        QFile file(folder.filePath(QString(QChar(u"abcd"[number]))));
        Check(file.open(QIODevice::WriteOnly) &&
                  file.write(bytes.data(), qint64(bytes.size())) == qint64(bytes.size()),
              "a file is written");
    }

    int count = 1;
    char name[5] = "fuzz";
    char* arguments[2] = {name, nullptr};
    QApplication application;
    Silence questions;
    QTemporaryDir folder;
    QWidget parent;
    std::vector<CZNCoreEditorControlEx*> controls; // live as long as the program
};

std::vector<std::string> Parts(const uint8_t* data, size_t size)
{
    std::vector<std::string> parts(1);
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == 0 && parts.size() < 5)
            parts.emplace_back();
        else
            parts.back() += static_cast<char>(data[i]);
    }
    parts.resize(5);
    return parts;
}

void CheckMap(CZNCoreEditorControlEx& control)
{
    const SourceMap& map = zncoreeditor::GetCompileManager()->GetSourceMap();
    for (int line = 0; line < control.GetLineCount(1); ++line) {
        const SourceLine place = map.Locate(line);
        Check(place.line >= 0 && place.line <= line, "a line came from none further down");
        Check(place.path.isEmpty() == map.IncludedFrom(line).empty(), "only files are included");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static auto* program = new Program;
    if (size < 1)
        return 0;
    CZNCoreEditorControlEx& control = *program->controls[data[0] % 3];
    const std::vector<std::string> parts = Parts(data + 1, size - 1);
    for (std::size_t i = 1; i < parts.size(); ++i)
        program->WriteFile(i - 1, parts[i]);
    const QString script = QString::fromUtf8(parts[0].data(), qsizetype(parts[0].size()));
    const bool modified = data[0] >= 128;

    control.SetText(reinterpret_cast<const char16_t*>(script.utf16()), 1);
    const QString original = control.GetText();
    if (original.isEmpty())
        return 0;
    QString expanded;
    control.GetWindowTextW(expanded);
    Check(expanded == control.GetText(), "the result is the text");
    const bool found = control.GetIncludeOrDefineDirectivesFound();
    Check(found || expanded == original, "without directives nothing changes");
    Check(control.HasPreprocessorErrors() ==
              !control.GetIncludeDirectiveErrorMessageAndLine().empty(),
          "every error has its line");
    CheckMap(control);
    control.SetModified(modified);
    control.SetOriginalScript();
    Check(control.GetText() == original, "the original comes back");
    Check(control.GetModified() == modified, "with the modified flag");
    control.EmptyUndoBuffer(1);
    return 0;
}
