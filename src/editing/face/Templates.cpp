// SPDX-License-Identifier: GPL-3.0-or-later
// The face's templates: text with questions, and a place for the caret.
#include "editing/face/Private.h"

#include <QHash>
#include <QInputDialog>

namespace {

constexpr QLatin1String kQuestion("^#");
constexpr QLatin1String kBehindQuestion("#^");
constexpr QLatin1String kCaret("^!");

// The text with the answers; what an answer holds is not looked at. Nothing if a question is not
// closed or not answered.
std::optional<QString> Answered(const QString& text, const ZNCoreEditorWidget::Ask& ask)
{
    QHash<QString, QString> answers;
    QString done;
    qsizetype at = 0;
    for (;;) {
        const qsizetype start = text.indexOf(kQuestion, at);
        if (start < 0)
            return done + text.mid(at);
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
        done += text.mid(at, start - at) + answers.value(question);
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
    if (isReadOnly())
        return false;
    const QPointer<ZNCoreEditorWidget> isThere(this);
    const auto byDialog = [&](const QString& question) -> std::optional<QString> {
        bool isAnswered = false;
        const QString answer = QInputDialog::getText(this, tr("Insert Template"), question,
                                                     QLineEdit::Normal, QString(), &isAnswered);
        return isAnswered ? std::optional(answer) : std::nullopt;
    };
    std::optional<QString> answered = Answered(text, ask ? ask : Ask(byDialog));
    if (!answered || !isThere || isReadOnly())
        return false;
    answered->replace(u'\n', u'\n' + IndentAtCaret(*this));
    const qsizetype caret = answered->indexOf(kCaret);
    const QString selected = selectedText();
    return d->Run([&](CZNCoreEditorControlEx& control) {
        control.BeginUndoAction(1);
        const QString front = caret < 0 ? *answered : answered->left(caret) + selected;
        control.ReplaceSel(face::Units(front), 1);
        const long place = control.GetCurrentPos(1);
        if (caret >= 0)
            control.ReplaceSel(face::Units(answered->mid(caret + kCaret.size())), 1);
        control.EndUndoAction(1);
        control.SetSel(place, place, 1);
        return true;
    });
}
