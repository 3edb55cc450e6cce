// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: the table of its commands, and the handlers that only hand on.
#include "docview/ZNCoreEditorView.h"

#include "common/Globals.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "settings/SyntaxFile.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorView)
};

using View = CZNCoreEditorView;
using Control = CZNCoreEditorControlEx;

bool CanCut(Control& control)
{
    return control.CanCut();
}

bool CanCopy(Control& control)
{
    return control.CanCopy();
}

bool CanPaste(Control& control)
{
    return control.CanPaste(1);
}

bool CanUndo(Control& control)
{
    return control.CanUndo(1);
}

bool CanRedo(Control& control)
{
    return control.CanRedo(1);
}

bool HasText(Control& control)
{
    return control.GetLength(1) > 0;
}

bool Writable(Control& control)
{
    return !control.GetReadOnly(1);
}

bool Selected(Control& control)
{
    return control.IsSelection();
}

bool WritableSelection(Control& control)
{
    return Selected(control) && Writable(control);
}

bool Bookmarked(Control& control)
{
    return control.HasBookmarks();
}

bool Matched(Control& control)
{
    return control.HasMatchingBrace();
}

CSyntaxFile* SyntaxOf(const Control& control)
{
    return zncoreeditor::GetFileTypeManager()->GetSyntaxFile(control.GetCurrentLanguage());
}

template <void (View::*Handler)()>
void Run(CCmdTarget& target)
{
    (static_cast<View&>(target).*Handler)();
}

template <void (View::*Handler)(CCmdUI&)>
void Update(CCmdTarget& target, CCmdUI& ui)
{
    (static_cast<View&>(target).*Handler)(ui);
}

constexpr CommandEntry kCommands[] = {
#define ZN_COMMAND(id, handler, action, update, rule) {id, Run<&View::handler>},
#define ZN_PLAIN(id, handler, action) {id, Run<&View::handler>},
#define ZN_RULE(id, update, rule)
#define ZN_OWN(id, handler, update) {id, Run<&View::handler>},
#define ZN_OWN_PLAIN(id, handler) {id, Run<&View::handler>},
#define ZN_OWN_RULED(id, handler, update, rule) {id, Run<&View::handler>},
#define ZN_AGAIN(id, handler) {id, Run<&View::handler>},
#define ZN_INDICATOR(id, update)
#include "docview/ViewCommands.def"
};

constexpr UpdateEntry kUpdates[] = {
#define ZN_COMMAND(id, handler, action, update, rule) {id, Update<&View::update>},
#define ZN_PLAIN(id, handler, action)
#define ZN_RULE(id, update, rule) {id, Update<&View::update>},
#define ZN_OWN(id, handler, update) {id, Update<&View::update>},
#define ZN_OWN_PLAIN(id, handler)
#define ZN_OWN_RULED(id, handler, update, rule) {id, Update<&View::update>},
#define ZN_AGAIN(id, handler)
#define ZN_INDICATOR(id, update) {id, Update<&View::update>},
#include "docview/ViewCommands.def"
};

} // namespace

#define ZN_COMMAND(id, handler, action, update, rule)                                              \
    void CZNCoreEditorView::handler()                                                              \
    {                                                                                              \
        m_coreEditor.action;                                                                       \
    }                                                                                              \
    void CZNCoreEditorView::update(CCmdUI& ui)                                                     \
    {                                                                                              \
        ui.Enable(rule(m_coreEditor));                                                             \
    }
#define ZN_PLAIN(id, handler, action)                                                              \
    void CZNCoreEditorView::handler()                                                              \
    {                                                                                              \
        m_coreEditor.action;                                                                       \
    }
#define ZN_RULE(id, update, rule)                                                                  \
    void CZNCoreEditorView::update(CCmdUI& ui)                                                     \
    {                                                                                              \
        ui.Enable(rule(m_coreEditor));                                                             \
    }
#define ZN_OWN(id, handler, update)
#define ZN_OWN_PLAIN(id, handler)
#define ZN_OWN_RULED(id, handler, update, rule) ZN_RULE(id, update, rule)
#define ZN_AGAIN(id, handler)
#define ZN_INDICATOR(id, update)
#include "docview/ViewCommands.def"

const CommandMap& CZNCoreEditorView::GetCommandMap() const
{
    static const CommandMap map = {&CView::GetCommandMap(), kCommands, kUpdates};
    return map;
}

// These are known and do nothing.
void CZNCoreEditorView::OnEditCodecompletelist() {}
void CZNCoreEditorView::OnEditAdvancedInsertfile() {}
void CZNCoreEditorView::OnEditAdvancedSaveSelection() {}

void CZNCoreEditorView::OnEditClear()
{
    m_coreEditor.Clear(1);
}

void CZNCoreEditorView::OnEditComments()
{
    CSyntaxFile* syntax = SyntaxOf(m_coreEditor);
    if (syntax && !m_coreEditor.CommentSelection(syntax->GetDefaultBlockComment(), true))
        m_coreEditor.CommentSelection(syntax->GetDefaultSingleLineComment(), false);
}

void CZNCoreEditorView::OnEditSingleLineComment()
{
    if (CSyntaxFile* syntax = SyntaxOf(m_coreEditor))
        m_coreEditor.CommentSelection(syntax->GetDefaultSingleLineComment(), false);
}

// Takes the block comment away, whatever its name says.
void CZNCoreEditorView::OnEditSingleLineUncomment()
{
    if (CSyntaxFile* syntax = SyntaxOf(m_coreEditor))
        m_coreEditor.UnCommentSelection(syntax->GetDefaultBlockComment(), true);
}

// Empty for a language that is not in the list.
void CZNCoreEditorView::OnUpdateFType(CCmdUI& ui)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    const int language = m_coreEditor.GetCurrentLanguage();
    const bool isKnown = language >= 0 && language < languages.GetLanguageCount();
    ui.SetText(isKnown ? languages.GetLanguageName(language) : QString());
}

void CZNCoreEditorView::OnUpdateEOLMode(CCmdUI& ui)
{
    switch (m_coreEditor.GetEOLMode(1)) {
    case 1:
        return ui.SetText(Texts::tr("CR + LF (Windows)"));
    case 2:
        return ui.SetText(Texts::tr("CR (Macintosh)"));
    case 3:
        return ui.SetText(Texts::tr("LF (Unix)"));
    default:
        return ui.SetText(Texts::tr("Unknown"));
    }
}

// A search makes the text read-only for its own time, which is not told.
void CZNCoreEditorView::OnUpdateReadOnly(CCmdUI& ui)
{
    constexpr UINT kReadOnlyText = 53893;
    const bool isReadOnly = IsSearching() ? m_savedReadOnly : m_coreEditor.GetReadOnly(1);
    ui.SetText(isReadOnly ? zncoreeditor::GetResourceLoader().LoadString(kReadOnlyText)
                          : QString());
}

void CZNCoreEditorView::OnUpdateLineCol(CCmdUI& ui)
{
    const int line = m_coreEditor.GetCurLineNumber() + 1;
    const int column = m_coreEditor.GetColumn(m_coreEditor.GetCurrentPos(1), 1) + 1;
    ui.SetText(Texts::tr("Ln %1, Col %2").arg(line).arg(column));
    ui.Enable(true);
}
