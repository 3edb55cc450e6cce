// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a file: loaded through the real engine with and without care, written and loaded
// again. The first byte chooses the encoding that is asked for and whether the text is written too,
// the second how far the others are moved towards the seam of two blocks.
#include "control/ZNCoreEditorControl.h"
#include "platform/windows/Questions.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

namespace {

class Silence final : public IUserQuestions
{
public:
    Answer Ask(HWND /*owner*/, const QString& text, Buttons /*buttons*/) override
    {
        if (text.isEmpty())
            abort();
        ++asked;
        return Answer::Ok;
    }

    int asked = 0;
};

// A file in memory that has a path.
class MemoryFile
{
public:
    explicit MemoryFile(const char* name) : m_descriptor(memfd_create(name, 0)) {}

    std::u16string Path() const
    {
        return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor).toStdU16String();
    }

    void Fill(const std::string& bytes) const
    {
        if (ftruncate(m_descriptor, 0) != 0 || pwrite(m_descriptor, bytes.data(), bytes.size(),
                                                      0) != static_cast<ssize_t>(bytes.size()))
            abort();
    }

private:
    int m_descriptor;
};

void Check(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    abort();
}

// The engine keeps the half of a pair that stands alone as U+FFFD. Behind a last such half care
// finds the other one, and the two are a pair.
bool CompletesLastPair(const std::u16string& careful, const std::u16string& plain)
{
    if (plain.empty() || plain.back() != 0xFFFD || careful.size() != plain.size() + 1)
        return false;
    const std::size_t last = plain.size() - 1;
    return careful.compare(0, last, plain, 0, last) == 0 && (careful[last] & 0xFC00) == 0xD800 &&
           (careful.back() & 0xFC00) == 0xDC00;
}

struct Program
{
    Program() : application(count, arguments)
    {
        SetUserQuestions(&questions);
        control.SubclassWindow(
            CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 100, 100}, nullptr));
        Check(control.GetSafeHwnd() != nullptr, "there is an engine");
    }

    std::u16string Text()
    {
        std::u16string text(static_cast<std::size_t>(control.GetLength(1)), u'\0');
        control.GetText(static_cast<int>(text.size()) + 1, text.data(), 1);
        return text;
    }

    std::u16string Load(const MemoryFile& file, bool careful,
                        FileEncodeConverter::encodingType encoding)
    {
        control.SetCarefulFiles(careful);
        const int asked = questions.asked;
        Check(control.OpenFile(file.Path().c_str(), encoding), "a file that is there opens");
        Check(control.GetModify(1) == 0, "a loaded text is unmodified");
        Check(control.GetCurrentPos(1) == 0, "the caret stands in front");
        Check(control.WasCutShort() == (questions.asked > asked), "a cut is told");
        return Text();
    }

    int count = 1;
    char name[5] = "fuzz";
    char* arguments[2] = {name, nullptr};
    QApplication application;
    Silence questions;
    CZNCoreEditorControl control;
    MemoryFile source{"source"};
    MemoryFile target{"target"};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static auto* program = new Program;
    if (size < 2)
        return 0;
    constexpr int kEncodings[] = {-1, 0, 2, 4, 6, 8, 10, 11};
    const auto encoding =
        static_cast<FileEncodeConverter::encodingType>(kEncodings[data[0] % std::size(kEncodings)]);
    const std::size_t padding = data[1] < 128 ? 0 : 8192 - (data[1] - 128u);
    std::string bytes(padding, 'a');
    for (std::size_t at = 0; at < padding; at += 512)
        bytes[at] = '\n'; // the first line is laid out for the caret, so it is kept short
    bytes.append(reinterpret_cast<const char*>(data + 2), size - 2);
    program->source.Fill(bytes);
    program->control.EmptyUndoBuffer(1); // a load keeps the text that it clears

    const std::u16string plain = program->Load(program->source, false, encoding);
    Check(plain.size() <= bytes.size(), "no unit without a byte");
    const std::u16string careful = program->Load(program->source, true, encoding);
    const bool oneBlock = bytes.size() <= 8192;
    Check(!oneBlock || careful.starts_with(plain) || CompletesLastPair(careful, plain),
          "a seam is the only difference");
    Check(!oneBlock || careful.size() <= plain.size() + 2, "but for a last pair");

    if (data[0] >= 64)
        return 0;
    // What was loaded can be written as UTF-8 and comes back the same.
    program->control.SetCarefulFiles(false);
    Check(program->control.SaveFile(program->target.Path().c_str(), FileEncodeConverter::encUTF8,
                                    false, false),
          "a text can be written");
    const std::u16string again = program->Load(program->target, true, FileEncodeConverter::encUTF8);
    const bool loneTail = !careful.empty() && careful.back() == 0xE000;     // left out without care
    const bool markInFront = !careful.empty() && careful.front() == 0xFEFF; // read as a mark
    Check(loneTail || markInFront || again == careful, "a text comes back");
    return 0;
}
