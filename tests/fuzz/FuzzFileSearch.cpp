// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a file, and any text or expression sought in it: the search through files finds what
// the find manager finds in an editor that has opened the file with care. The first byte chooses
// how, the second how long the pattern is that follows.
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/windows/Questions.h"
#include "search/FindReplaceManager.h"
#include "search/files/FileSearch.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using Places = std::vector<std::array<long, 3>>; // line, column, length

class Silence final : public IUserQuestions
{
public:
    Answer Ask(HWND /*owner*/, const QString& /*text*/, Buttons /*buttons*/) override
    {
        return Answer::Ok;
    }
};

class Collector final : public IFileSearchListener
{
public:
    void OnFound(FoundFile&& file) override
    {
        for (const FileMatch& match : file.matches) {
            places.push_back({match.line, match.column, match.length});
            if (match.textColumn > match.column || match.text.contains(u'\n'))
                std::abort();
        }
    }
    void OnNote(FileNote /*note*/, const QString& /*path*/) override { isNoted = true; }
    void OnDone(const FileSearchTotals& totals) override
    {
        if (totals.matches != static_cast<long long>(places.size()))
            std::abort();
    }

    Places places;
    bool isNoted = false; // the file is no text, the expression is none or runs away
};

struct Program
{
    Program() : application(count, arguments)
    {
        SetUserQuestions(&questions);
        control.SubclassWindow(
            CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 100, 100}, nullptr));
        if (!control.GetSafeHwnd())
            std::abort();
        control.SetCarefulFiles(true);
        path = folder.filePath(QStringLiteral("a.sql"));
        widePath = path.toStdU16String();
    }

    void Write(const char* bytes, std::size_t size) const
    {
        QFile file(path);
        if (!file.open(QFile::WriteOnly) ||
            file.write(bytes, static_cast<qint64>(size)) != static_cast<qint64>(size))
            std::abort();
    }

    Places InEditor()
    {
        Places places;
        control.EmptyUndoBuffer(1); // a load keeps the text that it clears
        if (!control.OpenFile(widePath.c_str(), FileEncodeConverter::encUnknown))
            std::abort();
        const int length = static_cast<int>(control.GetLength(1));
        for (int from = 0; from <= length;) {
            const int at = manager.FindInRange(&control, from, length, true);
            if (at == -1)
                break;
            const long end = control.GetTargetEnd(1);
            const int line = static_cast<int>(control.LineFromPosition(at, 1));
            places.push_back({line, at - control.PositionFromLine(line, 1), end - at});
            from = static_cast<int>(end);
            if (end == at)
                from = std::max(from + 1, static_cast<int>(control.PositionAfter(from, 1)));
        }
        return places;
    }

    int count = 1;
    char name[5] = "fuzz";
    char* arguments[2] = {name, nullptr};
    QApplication application;
    Silence questions;
    CZNCoreEditorControlEx control;
    CFindReplaceManager manager;
    QTemporaryDir folder;
    QString path;
    std::u16string widePath;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static auto* program = new Program;
    if (size < 3)
        return 0;
    const std::size_t sought = std::min<std::size_t>(data[1] % 16 + 1, size - 2);
    const auto* bytes = reinterpret_cast<const char*>(data) + 2;
    FileSearchRequest request;
    request.text = QString::fromUtf8(bytes, static_cast<qsizetype>(sought)).remove(QChar(0));
    request.regExp = data[0] & 1;
    request.matchCase = data[0] & 2;
    request.wholeWord = data[0] & 4;
    request.folders = {program->folder.path()};
    request.threads = 1;
    if (request.text.isEmpty())
        return 0;
    program->Write(bytes + sought, size - 2 - sought);
    Collector found;
    CFileSearch search(request, found);
    search.Start();
    search.Wait();
    if (found.isNoted)
        return 0;

    program->manager.SetRegExp(request.regExp);
    program->manager.SetMatchCase(request.matchCase);
    program->manager.SetWholeWord(request.wholeWord);
    program->manager.SetFind(request.text);
    const Places expected = program->InEditor();
    if (found.places != expected) {
        std::fprintf(stderr, "%zu places in the file, %zu in the editor\n", found.places.size(),
                     expected.size());
        std::abort();
    }
    return 0;
}
