// SPDX-License-Identifier: GPL-3.0-or-later
// The face's text, caret, selection and files.
#include "control/LossCheck.h"
#include "editing/face/Private.h"

#include <QFileInfo>

#include <algorithm>

using face::Clamped;
using face::Units;

namespace {

// The folder that a relative path is meant in is the one of now: a copy for a crash is found by the
// path, in whatever folder a program runs then.
QString Absolute(const QString& path)
{
    return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
}

} // namespace

// The control takes a NUL for the end of what is entered.
void face::Enter(CZNCoreEditorControlEx& control, const QString& text)
{
    control.ReplaceSel(u"", 1);
    const QStringList pieces = text.split(QChar(0));
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (i > 0)
            control.AddTextNoProcess(1, u"", 1);
        control.AddText(static_cast<int>(pieces[i].size()), Units(pieces[i]), 1);
    }
    control.ScrollCaret(1);
}

QString ZNCoreEditorWidget::text() const
{
    return d->IsInItsThread() ? d->m_control->GetText() : QString();
}

void ZNCoreEditorWidget::setText(const QString& text)
{
    d->Write([&](CZNCoreEditorControlEx& control) {
        control.BeginUndoAction(1);
        control.ClearAll(1);
        control.AddTextNoProcess(static_cast<int>(text.size()), Units(text), 1);
        control.SetSel(0, 0, 1);
        control.EndUndoAction(1);
        control.SetScrollWidth(1, 1);
    });
}

void ZNCoreEditorWidget::setPlainText(const QString& text)
{
    d->Write([&](CZNCoreEditorControlEx& control) {
        d->ForgetProblems();
        control.SetUndoCollection(0, 1);
        setText(text);
        control.SetUndoCollection(1, 1);
        control.EmptyUndoBuffer(1);
        control.SetSavePoint(1);
    });
}

QString ZNCoreEditorWidget::textOf(Range range) const
{
    CZNCoreEditorControlEx& control = *d->m_control;
    const long start = Clamped(control, range.position);
    const long end = Clamped(control, long{range.position} + std::max(range.length, 0));
    std::u16string buffer(static_cast<std::size_t>(end - start) + 1, u'\0');
    control.GetRange(start, end, buffer.data());
    return QString(reinterpret_cast<const QChar*>(buffer.data()),
                   static_cast<qsizetype>(end - start));
}

int ZNCoreEditorWidget::length() const
{
    return static_cast<int>(d->m_control->GetLength(1));
}

int ZNCoreEditorWidget::lineCount() const
{
    return static_cast<int>(d->m_control->GetLineCount(1));
}

QString ZNCoreEditorWidget::lineText(int line) const
{
    if (line < 0 || line >= lineCount())
        return QString();
    const auto start = static_cast<int>(d->m_control->PositionFromLine(line, 1));
    const auto end = static_cast<int>(d->m_control->GetLineEndPosition(line, 1));
    return textOf({start, end - start});
}

bool ZNCoreEditorWidget::isModified() const
{
    return d->m_modified;
}

void ZNCoreEditorWidget::setModified(bool modified)
{
    d->Act([&](CZNCoreEditorControlEx& control) {
        if (!modified && d->m_modified)
            control.SetSavePoint(1);
    });
}

bool ZNCoreEditorWidget::isReadOnly() const
{
    return d->m_control->GetReadOnly(1) != 0;
}

void ZNCoreEditorWidget::setReadOnly(bool readOnly)
{
    d->Run([=](CZNCoreEditorControlEx& control) {
        control.SetReadOnly(readOnly, 1);
        return 0;
    });
}

bool ZNCoreEditorWidget::overwriteMode() const
{
    return d->m_control->GetOvertype(1) != 0;
}

void ZNCoreEditorWidget::setOverwriteMode(bool overwrite)
{
    d->Run([=](CZNCoreEditorControlEx& control) {
        control.SetOvertype(overwrite, 1);
        return 0;
    });
}

bool ZNCoreEditorWidget::isUndoAvailable() const
{
    return d->m_control->CanUndo(1) != 0;
}

bool ZNCoreEditorWidget::isRedoAvailable() const
{
    return d->m_control->CanRedo(1) != 0;
}

int ZNCoreEditorWidget::cursorPosition() const
{
    return static_cast<int>(d->m_control->GetCurrentPos(1));
}

void ZNCoreEditorWidget::setCursorPosition(int position)
{
    if (!d->IsInItsThread())
        return;
    CZNCoreEditorControlEx& control = *d->m_control;
    const long place = Clamped(control, position);
    control.EnsureVisibleEnforcePolicy(control.LineFromPosition(place, 1), 1);
    control.GotoPos(place, 1);
}

int ZNCoreEditorWidget::cursorLine() const
{
    return lineAt(cursorPosition());
}

int ZNCoreEditorWidget::cursorColumn() const
{
    return columnAt(cursorPosition());
}

void ZNCoreEditorWidget::setCursorPosition(int line, int column)
{
    setCursorPosition(positionAt(line, column));
}

bool ZNCoreEditorWidget::hasSelectedText() const
{
    return d->m_control->IsSelection();
}

QString ZNCoreEditorWidget::selectedText() const
{
    return d->m_control->GetSelText();
}

ZNCoreEditorWidget::Range ZNCoreEditorWidget::selection() const
{
    const auto start = static_cast<int>(d->m_control->GetSelectionStart(1));
    return {start, static_cast<int>(d->m_control->GetSelectionEnd(1)) - start};
}

void ZNCoreEditorWidget::setSelection(Range range)
{
    if (!d->IsInItsThread())
        return;
    CZNCoreEditorControlEx& control = *d->m_control;
    const long start = Clamped(control, range.position);
    const long end = Clamped(control, long{range.position} + std::max(range.length, 0));
    control.EnsureRangeVisible(start, end);
    control.SetSel(start, end, 1);
}

void ZNCoreEditorWidget::setSelection(int line, int column, int caretLine, int caretColumn)
{
    if (!d->IsInItsThread())
        return;
    CZNCoreEditorControlEx& control = *d->m_control;
    const long anchor = positionAt(line, column);
    const long caret = positionAt(caretLine, caretColumn);
    control.EnsureRangeVisible(std::min(anchor, caret), std::max(anchor, caret));
    control.SetSel(anchor, caret, 1);
}

void ZNCoreEditorWidget::ensureCursorVisible()
{
    d->Act([this](CZNCoreEditorControlEx& control) {
        control.EnsureVisible(cursorLine(), 1);
        control.ScrollCaret(1);
    });
}

void ZNCoreEditorWidget::centerCursor()
{
    if (!d->IsInItsThread())
        return;
    CZNCoreEditorControlEx& control = *d->m_control;
    ensureCursorVisible();
    const int height = control.TextHeight(0, 1);
    if (height <= 0) // there is no window
        return;
    // In the window: a line that is wrapped may have more rows than that.
    const auto row = control.PointYFromPosition(cursorPosition(), 1) / height;
    control.LineScroll(0, static_cast<int>(row - control.LinesOnScreen(1) / 2), 1);
}

int ZNCoreEditorWidget::lineAt(int position) const
{
    return static_cast<int>(d->m_control->LineFromPosition(Clamped(*d->m_control, position), 1));
}

int ZNCoreEditorWidget::columnAt(int position) const
{
    const long place = Clamped(*d->m_control, position);
    const auto line = d->m_control->LineFromPosition(place, 1);
    return static_cast<int>(place - d->m_control->PositionFromLine(line, 1));
}

int ZNCoreEditorWidget::positionAt(int line, int column) const
{
    if (line < 0)
        return 0;
    if (line >= lineCount())
        return length();
    const long start = d->m_control->PositionFromLine(line, 1);
    const long end = d->m_control->GetLineEndPosition(line, 1);
    return static_cast<int>(std::min(start + std::max(column, 0), end));
}

QString ZNCoreEditorWidget::wordUnderCursor() const
{
    QString word;
    d->m_control->GetWordFromPos(d->m_control->GetCurrentPos(1), word, 1);
    return word;
}

FileResult ZNCoreEditorWidget::open(const QString& path)
{
    if (!d->IsInItsThread())
        return {FileProblem::WrongThread, path};
    return d->Run([&](CZNCoreEditorControlEx& control) {
        control.OpenFile(Units(Absolute(path)), FileEncodeConverter::encUnknown);
        control.SetScrollWidth(1, 1);
        return control.GetFileResult();
    });
}

FileResult ZNCoreEditorWidget::save(const QString& path)
{
    if (!d->IsInItsThread())
        return {FileProblem::WrongThread, path};
    return d->Run([&](CZNCoreEditorControlEx& control) {
        control.SaveFile(Units(Absolute(path)), true);
        return control.GetFileResult();
    });
}

std::optional<LostCharacter> ZNCoreEditorWidget::lostBySaving() const
{
    return FindLostCharacter(*d->m_control, d->m_control->GetEncoding());
}

bool ZNCoreEditorWidget::openFile(const QString& path)
{
    return d->Run([&](CZNCoreEditorControlEx& control) {
        const bool isOpen =
            control.OpenFile(Units(Absolute(path)), FileEncodeConverter::encUnknown);
        control.SetScrollWidth(1, 1);
        return isOpen;
    });
}

bool ZNCoreEditorWidget::saveFile(const QString& path)
{
    return d->Run([&](CZNCoreEditorControlEx& control) {
        return control.SaveFile(Units(Absolute(path)), true);
    });
}

QString ZNCoreEditorWidget::fileName() const
{
    return d->m_control->GetFileName();
}

ZNCoreEditorWidget::Encoding ZNCoreEditorWidget::encoding() const
{
    return static_cast<Encoding>(d->m_control->GetEncoding());
}

bool ZNCoreEditorWidget::setEncoding(Encoding encoding)
{
    constexpr Encoding kKnown[] = {Encoding::Ansi,      Encoding::Utf16LE, Encoding::Utf16BE,
                                   Encoding::Utf8,      Encoding::Utf32LE, Encoding::Utf32BE,
                                   Encoding::Utf8Cookie};
    if (std::ranges::find(kKnown, encoding) == std::end(kKnown))
        return false;
    return d->Run([=](CZNCoreEditorControlEx& control) {
        control.SetEncoding(static_cast<int>(encoding));
        return true;
    });
}

bool ZNCoreEditorWidget::hasByteOrderMark() const
{
    return d->m_control->GetWriteEncodingSig();
}

void ZNCoreEditorWidget::setByteOrderMark(bool mark)
{
    d->Run([=](CZNCoreEditorControlEx& control) {
        control.SetWriteEncodingSig(mark);
        return 0;
    });
}

ZNCoreEditorWidget::LineEnd ZNCoreEditorWidget::lineEnd() const
{
    return static_cast<LineEnd>(d->m_control->GetEOLMode(1));
}

bool ZNCoreEditorWidget::setLineEnd(LineEnd end)
{
    return d->Run([=](CZNCoreEditorControlEx& control) {
        switch (end) {
        case LineEnd::CrLf:
            control.SetEOLCRLF();
            return true;
        case LineEnd::Cr:
            control.SetEOLCR();
            return true;
        case LineEnd::Lf:
            control.SetEOLLF();
            return true;
        }
        return false;
    });
}

void ZNCoreEditorWidget::undo()
{
    d->Act([](CZNCoreEditorControlEx& control) { control.Undo(1); });
}

void ZNCoreEditorWidget::redo()
{
    d->Act([](CZNCoreEditorControlEx& control) { control.Redo(1); });
}

void ZNCoreEditorWidget::cut()
{
    d->Act([](CZNCoreEditorControlEx& control) { control.Cut(1); });
}

void ZNCoreEditorWidget::copy()
{
    d->Act([](CZNCoreEditorControlEx& control) { control.Copy(1); });
}

void ZNCoreEditorWidget::paste()
{
    d->Act([](CZNCoreEditorControlEx& control) { control.Paste(1); });
}

void ZNCoreEditorWidget::clear()
{
    d->Write([](CZNCoreEditorControlEx& control) { control.ClearAll(1); });
}

void ZNCoreEditorWidget::selectAll()
{
    d->Act([](CZNCoreEditorControlEx& control) { control.SelectAll(1); });
}

void ZNCoreEditorWidget::insertPlainText(const QString& text)
{
    d->Write([&](CZNCoreEditorControlEx& control) {
        control.BeginUndoAction(1);
        face::Enter(control, text);
        control.EndUndoAction(1);
    });
}

void ZNCoreEditorWidget::appendPlainText(const QString& text)
{
    d->Write([&](CZNCoreEditorControlEx& control) {
        constexpr const char16_t* kEnds[] = {u"\n", u"\r\n", u"\r", u"\n"}; // by the mode
        const QString end = QString(reinterpret_cast<const QChar*>(kEnds[control.GetEOLMode(1)]));
        QString lines = text;
        lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        lines.replace(u'\n', end);
        if (control.GetLength(1) > 0)
            lines.prepend(end);
        control.BeginUndoAction(1);
        control.AppendText(static_cast<int>(lines.size()), Units(lines), 1);
        control.EndUndoAction(1);
    });
}
