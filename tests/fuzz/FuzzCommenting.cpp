// SPDX-License-Identifier: GPL-3.0-or-later
// Any text with any selection, commented and uncommented by any marker: an undo brings the text
// back, and what is selected lies in the text. The first bytes choose the line ends, the markers,
// the operation and the selection; the rest is the text, a unit for each byte or two.
#include "editing/ZNCoreEditorControlEx.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

void Check(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    abort();
}

struct Markers
{
    const char* line;
    const char* start;
    const char* end;
};

constexpr Markers kMarkers[] = {
    {"--", "/*", "*/"}, {"#", "{", "}"},  {"REM", "<!--", "-->"},
    {"//", "(*", "*)"}, {";", "a", "ab"},
};

struct Program
{
    Program() : application(count, arguments)
    {
        control.SubclassWindow(
            CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 100, 100}, nullptr));
        Check(control.GetSafeHwnd() != nullptr, "there is an engine");
        control.SetWordChars(u"abcdefghijklmnopqrstuvwxyz0123456789_");
    }

    void Put(const std::u16string& text)
    {
        control.SetUndoCollection(0, 1);
        control.ClearAll(1);
        control.AddTextNoProcess(static_cast<int>(text.size()), text.data(), 1);
        control.SetUndoCollection(1, 1);
        control.EmptyUndoBuffer(1);
    }

    std::u16string Text()
    {
        std::u16string text(static_cast<std::size_t>(control.GetLength(1)), u'\0');
        control.GetText(static_cast<int>(text.size()) + 1, text.data(), 1);
        return text;
    }

    void Use(const Markers& markers)
    {
        control.Reset();
        control.AddSingleLineComment(QLatin1String(markers.line));
        control.AddBlockComment(QLatin1String(markers.start), QLatin1String(markers.end));
    }

    int count = 1;
    char name[5] = "fuzz";
    char* arguments[2] = {name, nullptr};
    QApplication application;
    CZNCoreEditorControlEx control;
};

// Bytes of ASCII as they are; above that two bytes make a unit of any kind.
std::u16string UnitsOf(const uint8_t* data, std::size_t size)
{
    std::u16string text;
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] < 0x80 || i + 1 == size) {
            text.push_back(data[i] & 0x7F);
        } else {
            text.push_back(static_cast<char16_t>(data[i] << 8 | data[i + 1]));
            ++i;
        }
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static auto* program = new Program;
    constexpr std::size_t kHead = 4;
    if (size < kHead)
        return 0;
    CZNCoreEditorControlEx& control = program->control;
    program->Put(UnitsOf(data + kHead, size - kHead));
    const std::u16string before = program->Text();
    program->Use(kMarkers[data[0] / 4 % std::size(kMarkers)]);
    control.SetEOLMode(data[0] % 4, 1);
    const auto place = [&](uint8_t byte) {
        return static_cast<long>(byte % 2 ? byte * before.size() / 255
                                          : std::min<std::size_t>(byte, before.size()));
    };
    control.SetSel(place(data[2]), place(data[3]), 1);
    if (data[1] & 1)
        control.CommentSelection(0, data[1] & 2);
    else
        control.UnCommentSelection(0, data[1] & 2);
    const long length = control.GetLength(1);
    Check(control.GetCurrentPos(1) <= length && control.GetAnchor(1) <= length,
          "the selection lies in the text");
    if (program->Text() == before)
        return 0;
    control.Undo(1);
    Check(program->Text() == before, "an undo brings the text back");
    Check(!control.CanUndo(1), "it is one undo");
    return 0;
}
