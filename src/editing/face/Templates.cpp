// SPDX-License-Identifier: GPL-3.0-or-later
// The face's templates: text with questions, and a place for the caret.
#include "editing/face/Private.h"

#include <QHash>
#include <QInputDialog>

namespace {

constexpr QLatin1String kQuestion("^#");
constexpr QLatin1String kBehindQuestion("#^");
constexpr QLatin1String kCaret("^!");

struct Filled
{
    QString text;
    qsizetype caret = -1; // where its mark stood; -1: there was none
};

// The text with the answers; what an answer holds is not looked at. Nothing if a question is not
// closed or not answered.
std::optional<Filled> Answered(const QString& text, const ZNCoreEditorWidget::Ask& ask)
{
    QHash<QString, QString> answers;
    Filled done;
    const auto add = [&done](QString piece) {
        const qsizetype mark = done.caret < 0 ? piece.indexOf(kCaret) : -1;
        if (mark >= 0) {
            done.caret = done.text.size() + mark;
            piece.remove(mark, kCaret.size());
        }
        done.text += piece;
    };
    qsizetype at = 0;
    for (;;) {
        const qsizetype start = text.indexOf(kQuestion, at);
        if (start < 0) {
            add(text.mid(at));
            return done;
        }
        const qsizetype end = text.indexOf(kBehindQuestion, start + kQuestion.size());
        if (end < 0)
            return std::nullopt;
        const QString question = text.mid(start + kQuestion.size(), end - start - kQuestion.size());
        if (!answers.contains(question)) {
            const std::optional<QString> answer = ask(question);
            if (!answer)
                return std::nullopt;
            answers.insert(question, *answer);
        }
        add(text.mid(at, start - at));
        done.text += answers.value(question);
        at = end + kBehindQuestion.size();
    }
}

// The blanks and tabs that the line of the caret begins with, as far as the caret.
QString IndentAtCaret(const ZNCoreEditorWidget& editor)
{
    const int line = editor.lineAt(editor.selection().position);
    const QString front = editor.lineText(line).left(editor.columnAt(editor.selection().position));
    qsizetype blanks = 0;
    while (blanks < front.size() && (front[blanks] == u' ' || front[blanks] == u'\t'))
        ++blanks;
    return front.left(blanks);
}

} // namespace

bool ZNCoreEditorWidget::insertTemplate(const QString& text, const Ask& ask)
{
    if (!d->IsInItsThread() || isReadOnly())
        return false;
    const QPointer<ZNCoreEditorWidget> isThere(this);
    const auto byDialog = [&](const QString& question) -> std::optional<QString> {
        bool isAnswered = false;
        const QString answer = QInputDialog::getText(this, tr("Insert Template"), question,
                                                     QLineEdit::Normal, QString(), &isAnswered);
        return isAnswered ? std::optional(answer) : std::nullopt;
    };
    const std::optional<Filled> filled = Answered(text, ask ? ask : Ask(byDialog));
    if (!filled || !isThere || isReadOnly())
        return false;
    const bool hasCaret = filled->caret >= 0;
    QString front = hasCaret ? filled->text.left(filled->caret) : filled->text;
    QString behind = filled->text.mid(front.size());
    const QString lineStart = u'\n' + IndentAtCaret(*this);
    front.replace(u'\n', lineStart);
    behind.replace(u'\n', lineStart);
    if (hasCaret)
        front += selectedText();
    return d->Run([&](CZNCoreEditorControlEx& control) {
        control.BeginUndoAction(1);
        face::Enter(control, front);
        const long place = control.GetCurrentPos(1);
        face::Enter(control, behind);
        control.EndUndoAction(1);
        control.SetSel(place, place, 1);
        return true;
    });
}
