// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: export, as far as it goes.
//
// There is no exporter behind these operations and none is to be put there: hosts have come to rely
// on what they do, which is nothing for RTF and HTML, the head of a PDF, and a clipboard left
// alone. The workbench has HTML and RTF of its own, and a PDF of the text comes out of printing.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/export/PdfWriter.h"
#include "editing/export/RtfClipboard.h"
#include "platform/windows/Questions.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QUuid>

#include <algorithm>
#include <cstring>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorControlEx)
};

constexpr int kControls = 6;               // of a style
constexpr std::size_t kControlBytes = 128; // with the terminator

void Assign(char* to, std::size_t size, const std::string& text)
{
    if (size == 0)
        return;
    const std::size_t count = std::min(text.size(), size - 1);
    std::memcpy(to, text.data(), count);
    to[count] = '\0';
}

} // namespace

void CZNCoreEditorControlEx::SaveToRTF(const char16_t* /*path*/, int /*start*/, int /*end*/) {}

void CZNCoreEditorControlEx::SaveToHTML(const char16_t* /*path*/) {}

// The file stays open until the process ends, which writes what is still buffered.
void CZNCoreEditorControlEx::SaveToPDF(const char16_t* path)
{
    PdfWriter writer;
    Colorize(0, -1, 1);
    writer.SetFont(u"Courier");
    writer.styles.resize(PdfWriter::kStyles);
    const QString name(reinterpret_cast<const QChar*>(path));
    std::FILE* file = std::fopen(QFile::encodeName(name).constData(), "wb");
    if (!file) {
        ShowMessage(GetSafeHwnd(), Texts::tr("Could not save as PDF"));
        return;
    }
    PdfObjectTracker tracker(file);
    writer.tracker = &tracker;
    writer.WriteHeader();
}

// Nothing writes the file, so the clipboard keeps what it has unless somebody else has put one
// there.
void CZNCoreEditorControlEx::CopyAsRTF()
{
    GetSelectionStart(1);
    GetSelectionEnd(1);
    MoveRtfToClipboard(QDir::temp().filePath(QUuid::createUuid().toString(QUuid::Id128)));
}

void CZNCoreEditorControlEx::GetRTFNextControl(char** style, char* control)
{
    control[0] = '\0';
    if (**style == '\0')
        return;
    const char* stop = *style + 1;
    while (*stop != '\0' && *stop != '\\')
        ++stop;
    Assign(control, kControlBytes, std::string(const_cast<const char*>(*style), stop));
    *style += stop - *style;
}

void CZNCoreEditorControlEx::GetRTFStyleChange(char* delta, unsigned int deltaSize, char* last,
                                               unsigned int lastSize, char* current)
{
    char lastControl[kControlBytes];
    char currentControl[kControlBytes];
    char* lastAt = last;
    char* currentAt = current;
    std::string changes;
    for (int i = 0; i < kControls; ++i) {
        GetRTFNextControl(&lastAt, lastControl);
        GetRTFNextControl(&currentAt, currentControl);
        if (std::strcmp(lastControl, currentControl) != 0)
            changes += currentControl;
    }
    if (!changes.empty())
        changes += ' ';
    Assign(delta, deltaSize, changes);
    Assign(last, lastSize, current);
}
