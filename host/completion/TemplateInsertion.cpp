// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/completion/TemplateInsertion.h"

#include "docview/ZNCoreEditorView.h"
#include "editing/language/EditorCompletion.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/completion/TemplateForm.h"
#include "host/completion/TemplateStore.h"
#include "platform/windows/Disposal.h"
#include "settings/SyntaxFile.h"

#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <string>

using completion::CodeTemplate;
using completion::Proposal;
using completion::ProposalKind;

namespace {

constexpr int kTab = 0; // AutoCompKey
constexpr long kLongestName = 64;

bool IsNameUnit(QChar unit)
{
    return unit.isLetterOrNumber() || unit == u'_' || unit == u'-';
}

} // namespace

QString NameBeforeCaret(CZNCoreEditorControlEx& editor)
{
    const long caret = editor.GetCurrentPos(1);
    const long from = std::max(
        {0L, caret - kLongestName,
         static_cast<long>(editor.PositionFromLine(editor.LineFromPosition(caret, 1), 1))});
    std::u16string units(static_cast<std::size_t>(caret - from) + 1, u'\0');
    units.resize(static_cast<std::size_t>(std::max(editor.GetRange(from, caret, units.data()), 0)));
    const QString text(reinterpret_cast<const QChar*>(units.data()),
                       static_cast<qsizetype>(units.size()));
    qsizetype start = text.size();
    while (start > 0 && IsNameUnit(text[start - 1]))
        --start;
    return text.mid(start);
}

void InsertTemplate(CZNCoreEditorView& view, const CodeTemplate& made, long start)
{
    const FrameworkCall call; // the form may outlive what it was asked for
    QStringList lines = made.lines;
    CZNCoreEditorControlEx& editor = view.GetCoreEditorControlRef();
    if (const QStringList names = TemplateForm::NamesIn(lines); !names.isEmpty()) {
        const QPointer<QWidget> window(editor.GetSafeHwnd());
        const QPointer<TemplateForm> form(new TemplateForm(made, names, window));
        const bool isWanted = form->exec() == QDialog::Accepted;
        if (!window) // and the form with it
            return;
        lines = form->Filled(lines);
        delete form;
        if (!isWanted)
            return;
    }
    editor.BeginUndoAction(1);
    if (start < editor.GetCurrentPos(1)) {
        editor.SetSel(start, editor.GetCurrentPos(1), 1);
        editor.ReplaceSel(u"", 1);
    }
    view.InsertStringArray(lines);
    editor.EndUndoAction(1);
}

TemplateKeys::TemplateKeys(CZNCoreEditorView& view, EditorCompletion& completion)
    : QObject(view.GetCoreEditorControl()->GetSafeHwnd()), m_view(view), m_completion(completion)
{
    view.GetCoreEditorControl()->GetSafeHwnd()->installEventFilter(this);
    completion->AddSource(*this);
}

bool TemplateKeys::IsWanted(int key) const
{
    CSyntaxFile* syntax = zncoreeditor::GetFileTypeManager()->GetSyntaxFile(
        m_view.GetCoreEditorControl()->GetCurrentLanguage());
    if (!syntax || !syntax->GetCodeCompletion())
        return false;
    return key == (syntax->GetACKey() == kTab ? Qt::Key_Tab : Qt::Key_Space);
}

bool TemplateKeys::eventFilter(QObject* watched, QEvent* event)
{
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isKey = event->type() == QEvent::KeyPress && key->modifiers() == Qt::NoModifier &&
                       (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Space);
    if (isKey && m_completion && !m_completion->IsOpen() && IsWanted(key->key()) && Expand())
        return true;
    return QObject::eventFilter(watched, event);
}

bool TemplateKeys::Expand()
{
    CZNCoreEditorControlEx& editor = m_view.GetCoreEditorControlRef();
    if (editor.GetReadOnly(1) || editor.IsSelection())
        return false;
    const QString name = NameBeforeCaret(editor);
    const CodeTemplate* made =
        name.isEmpty() ? nullptr : TemplateStore::Global().Find(editor.GetCurrentLanguage(), name);
    if (!made)
        return false;
    InsertTemplate(m_view, CodeTemplate(*made),
                   editor.GetCurrentPos(1) - static_cast<long>(name.size()));
    return true;
}

// A short name is proposed once it is typed: in a list that opens by itself it would be in the way.
void TemplateKeys::Propose(const completion::ProposalQuery& query, std::vector<Proposal>& proposals)
{
    constexpr int kBehindNames = 45000;
    if (!query.isAsked || query.typed.isEmpty() || !query.qualifier.isEmpty() ||
        query.place != completion::ProposalQuery::Place::Anywhere)
        return;
    const auto& templates =
        TemplateStore::Global().Of(m_view.GetCoreEditorControl()->GetCurrentLanguage());
    for (std::size_t i = 0; i < templates.size(); ++i) {
        if (templates[i].shortName.startsWith(query.typed, Qt::CaseInsensitive))
            proposals.push_back({ProposalKind::Template,
                                 templates[i].shortName,
                                 templates[i].title,
                                 {},
                                 kBehindNames,
                                 static_cast<int>(i)});
    }
}

bool TemplateKeys::Chosen(const Proposal& proposal, long start)
{
    if (proposal.kind != ProposalKind::Template)
        return false;
    const CodeTemplate* made = TemplateStore::Global().Find(
        m_view.GetCoreEditorControl()->GetCurrentLanguage(), proposal.text);
    if (made)
        InsertTemplate(m_view, CodeTemplate(*made), start);
    return made != nullptr;
}
