// SPDX-License-Identifier: GPL-3.0-or-later
// The save side of CZNCoreEditorControl: lines go from the engine through the converter into the
// target, so that no more than a block, or the longest line, is held beside the engine's text.
#include "control/ZNCoreEditorControl.h"

#include "control/FileAccess.h"
#include "control/FilePolicy.h"
#include "platform/file/TargetFile.h"

#include <QFile>

#include <algorithm>

namespace {

using Encoding = FileEncodeConverter::encodingType;

constexpr std::size_t kBufferUnits = 8193;
constexpr char16_t kGuard = u'.';

std::size_t GuardSize(Encoding encoding)
{
    switch (encoding) {
    case FileEncodeConverter::encUTF16LE:
    case FileEncodeConverter::encUTF16BE:
        return 2;
    case FileEncodeConverter::encUTF32LE:
    case FileEncodeConverter::encUTF32BE:
        return 4;
    default:
        return 1;
    }
}

bool IsFileEncoding(int encoding)
{
    return encoding == FileEncodeConverter::encUTF8Cookie ||
           (encoding >= FileEncodeConverter::encANSI &&
            encoding <= FileEncodeConverter::encUTF32BE && encoding % 2 == 0);
}

// Units on their way into a file.
class ConvertedText
{
public:
    ConvertedText(TargetFile& target, Encoding encoding, int codePage, bool demandsAll)
        : m_target(target), m_guardSize(GuardSize(encoding)), m_demandsAll(demandsAll)
    {
        m_converter.SetInputType(FileEncodeConverter::encUTF16LE);
        m_converter.SetOutputType(encoding);
        m_converter.SetCodePage(codePage);
    }

    void WriteMark()
    {
        m_converter.WriteHeader();
        WriteConverted(0);
    }

    // False if the text ends here. The unit behind the last one is overwritten.
    bool Write(char16_t* text, std::size_t units)
    {
        // A last unit that the converter takes for half a pair is left out unless one more follows.
        const bool guarded = m_demandsAll && text[units - 1] >= 0xD800 && text[units - 1] <= 0xE000;
        if (guarded)
            text[units++] = kGuard;
        auto length = static_cast<unsigned int>(units * sizeof(char16_t));
        unsigned int remaining = 0;
        m_converter.Convert(reinterpret_cast<unsigned char*>(text), length, remaining);
        if (m_demandsAll && remaining > 0)
            m_good = false;
        const bool written = WriteConverted(guarded ? m_guardSize : 0);
        m_good = m_good && (written || !m_demandsAll);
        return written && m_good;
    }

    bool IsGood() const { return m_good; }

private:
    bool WriteConverted(std::size_t withoutLast)
    {
        unsigned char* bytes = nullptr;
        unsigned int size = 0;
        if (!m_converter.GetConverted(&bytes, size))
            return false;
        if (!m_target.Write(bytes, size - withoutLast))
            m_good = false;
        return m_good;
    }

    TargetFile& m_target;
    FileEncodeConverter m_converter;
    std::size_t m_guardSize;
    bool m_demandsAll;
    bool m_good = true;
};

} // namespace

bool CZNCoreEditorControl::SaveFile(const char16_t* path, Encoding encoding, bool commit,
                                    bool writeMark)
{
    m_fileResult = {};
    if (!CanHoldText())
        return Fails(FileProblem::NoEngine, path);
    const bool writesFirst = Policy().writesFirst;
    if (commit && !writesFirst)
        CleanUpAutoSave();
    const bool written = WriteToFile(path, encoding, writeMark);
    if (!commit || (writesFirst && !written))
        return written;
    if (writesFirst)
        CleanUpAutoSave();
    if (written) {
        SetSavePoint(1);
        m_strFileName = QString::fromUtf16(path);
        m_fileStamp = StampOf(path);
        if (IsFileEncoding(encoding))
            m_nEncoding = encoding;
        m_bWriteEncodingSig = writeMark;
        m_bCutShort = false;
    }
    SetAutoSave(m_bAutoSaveOn, m_nAutoSaveMinutes);
    return written;
}

bool CZNCoreEditorControl::SaveFile(const char16_t* path, bool commit)
{
    return SaveFile(path, EncodingForSave(), commit, m_bWriteEncodingSig);
}

Encoding CZNCoreEditorControl::EncodingForSave() const
{
    return IsFileEncoding(m_nEncoding) ? static_cast<Encoding>(m_nEncoding)
                                       : FileEncodeConverter::encUnknown;
}

bool CZNCoreEditorControl::WriteToFile(const char16_t* path)
{
    return WriteToFile(path, EncodingForSave(), m_bWriteEncodingSig);
}

// A target that cannot be opened counts as written, unless files are handled with care: callers
// learn only of a write that failed later. A write that the system puts off until the file is
// closed is one of those.
bool CZNCoreEditorControl::WriteToFile(const char16_t* path, Encoding encoding, bool writeMark)
{
    if (encoding == FileEncodeConverter::encUnknown)
        encoding = EncodingForSave();
    const QByteArray name = NativePath(path);
    TargetFile target;
    if (!(Policy().replacesTarget ? target.OpenBeside(name) : target.OpenInPlace(name))) {
        Fails(name.isEmpty() ? FileProblem::NoName : FileResult::OfWrite(target.Error()), path);
        return !Policy().reportsUnopened;
    }
    const bool isConverted = WriteText(target, encoding, writeMark);
    // A process that dies while it writes over a file leaves the text in a copy that is offered.
    if (isConverted && target.WritesOver() && name != QFile::encodeName(m_strAutoSaveFile))
        WriteAutoSaveCopy(QString::fromUtf16(path));
    if (isConverted && target.Close())
        return true;
    return Fails(target.Error() ? FileResult::OfWrite(target.Error()) : FileProblem::NotConverted,
                 path);
}

// Lines are gathered up to a buffer's length and converted together: a line end never stands within
// a pair, so that the bytes are those of the lines one by one.
bool CZNCoreEditorControl::WriteText(TargetFile& target, Encoding encoding, bool writeMark)
{
    ConvertedText converted(target, encoding, m_nFileCodePage, Policy().demandsAllText);
    if (writeMark)
        converted.WriteMark();
    std::vector<char16_t> buffer(kBufferUnits);
    std::size_t used = 0;
    const int lines = GetLineCount(1);
    for (int line = 0; line < lines; ++line) {
        const auto length = static_cast<std::size_t>(std::max(0L, LineLength(line, 1)));
        if (used + length + 1 > buffer.size()) {
            if (used > 0 && !converted.Write(buffer.data(), used))
                return converted.IsGood();
            used = 0;
            if (length + 1 > buffer.size())
                buffer.resize(length + 1);
        }
        used += static_cast<std::size_t>(std::max(0, GetLine(line, buffer.data() + used, 1)));
    }
    if (used > 0)
        converted.Write(buffer.data(), used);
    return converted.IsGood();
}
