// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/FileReplacer.h"

#include "control/LossCheck.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FileReplacer)
};

} // namespace

FileReplacer::Outcome FileReplacer::Replace(const FoundFile& file, const std::vector<bool>& left,
                                            CZNCoreEditorControlEx* editor) const
{
    return editor ? ReplaceIn(*editor, file, left) : ReplaceInFile(file, left);
}

FileReplacer::Outcome FileReplacer::ReplaceInFile(const FoundFile& file,
                                                  const std::vector<bool>& left) const
{
    if (!QFileInfo(file.path).isWritable())
        return {0, Texts::tr("it may not be written")};
    ZNCoreEditorWidget editor;
    editor.control().SetFileCodePage(m_request.codePage);
    if (const FileResult read = editor.open(file.path); !read)
        return {0, read.Reason()};
    Outcome outcome = ReplaceIn(editor.control(), file, left);
    if (!outcome.reason.isEmpty() || outcome.replaced == 0)
        return outcome;
    if (const auto lost = editor.lostBySaving())
        return {0,
                Texts::tr("its encoding does not have %1").arg(DescribeCharacter(lost->character))};
    if (const FileResult written = editor.save(file.path); !written)
        return {0, written.Reason()};
    return outcome;
}

// From the last match to the first, so that the places of the others stay.
FileReplacer::Outcome FileReplacer::ReplaceIn(CZNCoreEditorControlEx& editor, const FoundFile& file,
                                              const std::vector<bool>& left) const
{
    if (editor.GetReadOnly(1))
        return {0, Texts::tr("it is read-only")};
    if (MatchesIn(editor.GetText(), m_request) != file.matches)
        return {0, Texts::tr("its text is another one by now")};
    Outcome outcome;
    editor.SetDoingReplaceAll(true, 1);
    editor.BeginUndoAction(1);
    for (std::size_t row = file.matches.size(); row-- > 0;) {
        if (left[row])
            continue;
        const FileMatch& match = file.matches[row];
        const long start = editor.PositionFromLine(static_cast<int>(match.line), 1) + match.column;
        editor.SetTargetStart(start, 1);
        editor.SetTargetEnd(start + match.length, 1);
        editor.ReplaceTarget(static_cast<int>(match.replacement.size()),
                             reinterpret_cast<const char16_t*>(match.replacement.constData()), 1);
        ++outcome.replaced;
    }
    editor.EndUndoAction(1);
    editor.SetDoingReplaceAll(false, 1);
    FileSearchRequest again = m_request;
    again.replaces = false;
    outcome.matches = MatchesIn(editor.GetText(), again);
    return outcome;
}
