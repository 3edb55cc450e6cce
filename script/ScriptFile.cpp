// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/ScriptFile.h"

#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "encoding/FileEncodeConverter.h"
#include "platform/base/Units.h"
#include "script/Arguments.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

constexpr qint64 kBlock = 64 * 1024;

constexpr const char* kNames[] = {"none", "lf", "cr", "mixed", "crlf", "mixed", "mixed", "mixed"};

// What the code page lacks becomes a question mark.
bool FitsSystemCodePage(std::u16string text)
{
    const auto asked = std::count(text.begin(), text.end(), u'?');
    FileEncodeConverter converter;
    converter.SetInputType(FileEncodeConverter::encUTF16LE);
    converter.SetOutputType(FileEncodeConverter::encANSI);
    auto length = static_cast<unsigned>(text.size() * sizeof(char16_t));
    unsigned remaining = 0;
    unsigned char* bytes = nullptr;
    unsigned size = 0;
    if (text.empty() ||
        !converter.Convert(reinterpret_cast<unsigned char*>(text.data()), length, remaining) ||
        !converter.GetConverted(&bytes, size))
        return text.empty();
    return std::count(bytes, bytes + size, '?') == asked;
}

// What is not UTF-8 in a name has become this.
bool IsNameForeign(const QString& path)
{
    return path.contains(QChar::ReplacementCharacter);
}

QString WhyNotRead(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() && IsNameForeign(path))
        return QStringLiteral("a name that is not UTF-8 cannot be opened");
    if (!info.exists())
        return QStringLiteral("the file does not exist");
    if (info.isDir())
        return QStringLiteral("this is a folder");
    if (!info.isFile())
        return QStringLiteral("this is no file that can be read");
    if (!info.isReadable())
        return QStringLiteral("you may not read this file");
    return QStringLiteral("the file cannot be read");
}

QString WhyNotWritten(const QString& path)
{
    const QFileInfo info(path);
    const QFileInfo folder(info.absolutePath());
    if (info.isDir())
        return QStringLiteral("the file cannot be written: this is a folder");
    if (!folder.isDir())
        return QStringLiteral("the file cannot be written: its folder does not exist");
    if (!folder.isWritable() || (info.exists() && !info.isWritable()))
        return QStringLiteral("the file cannot be written: you may not write there");
    return QStringLiteral("the file cannot be written: the disk may be full");
}

} // namespace

ScriptFile::ScriptFile() : m_control(std::make_unique<CZNCoreEditorControlEx>())
{
    m_control->SubclassWindow(
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 100, 100}, &m_parent));
    m_control->SetCarefulFiles(true);
}

ScriptFile::~ScriptFile() = default;

void ScriptFile::SetLanguage(int number)
{
    m_control->InitializeLanguage(number, 1);
}

bool ScriptFile::SetLanguage(const QString& name)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    for (int language = 0; language < languages.GetLanguageCount(); ++language) {
        if (languages.GetLanguageName(language).compare(name, Qt::CaseInsensitive) == 0) {
            SetLanguage(language);
            return true;
        }
    }
    return false;
}

QString ScriptFile::Read(const QString& path)
{
    m_path = path;
    if (path == kStandardInput) {
        if (QString problem = TakeStandardInput(); !problem.isEmpty())
            return problem;
    }
    return ReadFile(m_path);
}

// Encodings are told from a file's first block, which the editor reads itself.
QString ScriptFile::TakeStandardInput()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile input;
    QFile copy(m_folder->filePath(QStringLiteral("input")));
    if (!m_folder->isValid() || !copy.open(QIODevice::WriteOnly))
        return QStringLiteral("no file can be made in the folder for temporary files");
    bool isRead = input.open(stdin, QIODevice::ReadOnly);
    while (isRead) {
        const QByteArray block = input.read(kBlock);
        if (block.isEmpty())
            break;
        isRead = copy.write(block) == block.size();
    }
    if (!isRead || input.error() != QFileDevice::NoError || !copy.flush())
        return QStringLiteral("the standard input cannot be read");
    m_path = copy.fileName();
    return {};
}

QString ScriptFile::ReadFile(const QString& path)
{
    if (QFileInfo(path).isDir() ||
        !m_control->OpenFile(Units(path), FileEncodeConverter::encUnknown))
        return WhyNotRead(path);
    m_control->EmptyUndoBuffer(1);
    return m_control->WasCutShort()
               ? QStringLiteral("not all of it can be read as %1")
                     .arg(QLatin1String(NameOfEncoding(Control().GetEncoding())))
               : QString();
}

int ScriptFile::FirstLineChanged()
{
    const qsizetype place = m_control->GetText().indexOf(QChar::ReplacementCharacter);
    return place < 0 || WritesWhatItRead() ? -1 : m_control->LineFromPosition(place, 1);
}

// The character that stands for what a text cannot hold may also stand in the file itself.
bool ScriptFile::WritesWhatItRead()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy"));
    if (!folder.isValid() ||
        !Write(copy, Control().GetEncoding(), Control().GetWriteEncodingSig()).isEmpty())
        return false;
    QFile before(m_path);
    QFile after(copy);
    if (!before.open(QIODevice::ReadOnly) || !after.open(QIODevice::ReadOnly))
        return false;
    while (!before.atEnd()) {
        const QByteArray block = before.read(kBlock);
        if (block.isEmpty() || block != after.read(kBlock))
            return false;
    }
    return after.atEnd();
}

QString ScriptFile::Write(const QString& path, int encoding, bool mark)
{
    if (path.isEmpty())
        return WriteToOutput(encoding, mark);
    const bool isWritten = m_control->SaveFile(
        Units(path), static_cast<FileEncodeConverter::encodingType>(encoding), false, mark);
    return isWritten ? QString() : WhyNotWritten(path);
}

QString ScriptFile::WriteToOutput(int encoding, bool mark)
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        return QStringLiteral("no file can be made in the folder for temporary files");
    QFile file(folder.filePath(QStringLiteral("output")));
    if (QString problem = Write(file.fileName(), encoding, mark); !problem.isEmpty())
        return problem;
    bool isWritten = file.open(QIODevice::ReadOnly);
    while (isWritten && !file.atEnd()) {
        const QByteArray block = file.read(kBlock);
        const auto size = static_cast<std::size_t>(block.size());
        isWritten = size > 0 && std::fwrite(block.constData(), 1, size, stdout) == size;
    }
    isWritten = std::fflush(stdout) == 0 && isWritten;
    return isWritten ? QString() : QStringLiteral("the result cannot be written");
}

int ScriptFile::FirstLineBeyond(int encoding)
{
    if (encoding != FileEncodeConverter::encANSI)
        return -1;
    const int lines = m_control->GetLineCount(1);
    for (int line = 0; line < lines; ++line) {
        const long start = m_control->PositionFromLine(line, 1);
        const long end = m_control->GetLineEndPosition(line, 1);
        std::u16string text(static_cast<std::size_t>(end - start), u'\0');
        m_control->GetRange(static_cast<int>(start), static_cast<int>(end), text.data());
        if (!FitsSystemCodePage(text))
            return line;
    }
    return -1;
}

ScriptFile::LineEndCounts ScriptFile::CountLineEnds()
{
    const QString text = m_control->GetText();
    LineEndCounts counts;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\n') {
            ++counts.lf;
        } else if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
            ++counts.crlf;
            ++i;
        } else if (text[i] == u'\r') {
            ++counts.cr;
        }
    }
    return counts;
}

QString ScriptFile::LineEnds()
{
    const LineEndCounts counts = CountLineEnds();
    return QLatin1String(kNames[(counts.lf > 0) | (counts.cr > 0) << 1 | (counts.crlf > 0) << 2]);
}

int ScriptFile::LineEndMode()
{
    const LineEndCounts counts = CountLineEnds();
    if (counts.lf == 0 && counts.cr == 0 && counts.crlf == 0)
        return m_control->GetEOLMode(1);
    if (counts.crlf >= counts.lf && counts.crlf >= counts.cr)
        return 1;
    return counts.lf >= counts.cr ? 3 : 2;
}
