// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: commands that switch something, and show how it stands.
#include "docview/ZNCoreEditorView.h"

#include "docview/ZNCoreEditorDoc.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorView)
};

constexpr int kCrLf = 1;
constexpr int kCr = 2;
constexpr int kLf = 3;

constexpr int kBookmarkMargin = 2;
constexpr int kBookmarkMarginWidth = 20;
constexpr int kFoldMargin = 3;
constexpr int kFoldMarginWidth = 16;

// The item says what choosing it does.
void ShowOrHide(CCmdUI& ui, bool isShown, const char* what)
{
    ui.SetText((isShown ? Texts::tr("Hide %1") : Texts::tr("Show %1")).arg(Texts::tr(what)));
    ui.SetCheck(isShown ? 1 : 0);
}

} // namespace

void CZNCoreEditorView::OnConfigureLineendcharactersCrlf()
{
    m_coreEditor.SetEOLCRLF();
}

void CZNCoreEditorView::OnConfigureLineendcharactersCr()
{
    m_coreEditor.SetEOLCR();
}

void CZNCoreEditorView::OnConfigureLineendcharactersLf()
{
    m_coreEditor.SetEOLLF();
}

void CZNCoreEditorView::UpdateLineEnd(CCmdUI& ui, int mode)
{
    ui.SetRadio(m_coreEditor.GetEOLMode(1) == mode);
    ui.Enable(!m_coreEditor.GetReadOnly(1));
}

void CZNCoreEditorView::OnUpdateConfigureLineendcharactersCrlf(CCmdUI& ui)
{
    UpdateLineEnd(ui, kCrLf);
}

void CZNCoreEditorView::OnUpdateConfigureLineendcharactersCr(CCmdUI& ui)
{
    UpdateLineEnd(ui, kCr);
}

void CZNCoreEditorView::OnUpdateConfigureLineendcharactersLf(CCmdUI& ui)
{
    UpdateLineEnd(ui, kLf);
}

void CZNCoreEditorView::OnHighlightCurrentLine()
{
    m_coreEditor.SetCaretLineVisible(!m_coreEditor.GetCaretLineVisible(1), 1);
}

void CZNCoreEditorView::OnUpdateHighlightCurrentLine(CCmdUI& ui)
{
    ui.SetCheck(m_coreEditor.GetCaretLineVisible(1) ? 1 : 0);
}

void CZNCoreEditorView::OnSyntaxHighlighting()
{
    if (CZNCoreEditorDoc* document = EditDocument())
        document->ToggleSyntaxHighlighting();
}

void CZNCoreEditorView::OnUpdateSyntaxHighlighting(CCmdUI& ui)
{
    if (const CZNCoreEditorDoc* document = EditDocument())
        ui.SetCheck(document->GetSyntaxHighlighting());
}

void CZNCoreEditorView::OnBraceMatching()
{
    CZNCoreEditorDoc* document = EditDocument();
    if (!document)
        return;
    document->ToggleBraceMatching();
    if (document->GetBraceMatching())
        RefreshBraces();
    else
        m_coreEditor.BraceHighlight(-1, -1, 1);
}

void CZNCoreEditorView::OnUpdateBraceMatching(CCmdUI& ui)
{
    if (const CZNCoreEditorDoc* document = EditDocument())
        ui.SetCheck(document->GetBraceMatching());
}

void CZNCoreEditorView::OnWordwrap()
{
    m_coreEditor.SetWrapMode(m_coreEditor.GetWrapMode(1) == 0 ? 1 : 0, 1);
}

void CZNCoreEditorView::OnUpdateWordwrap(CCmdUI& ui)
{
    ui.SetCheck(m_coreEditor.GetWrapMode(1) ? 1 : 0);
}

void CZNCoreEditorView::OnLineNumbers()
{
    m_coreEditor.SetVisibleLineNumber(!m_coreEditor.IsVisibleLineNumber());
}

void CZNCoreEditorView::OnUpdateLineNumbers(CCmdUI& ui)
{
    ShowOrHide(ui, m_coreEditor.IsVisibleLineNumber(),
               QT_TRANSLATE_NOOP("CZNCoreEditorView", "LineNumbers"));
}

void CZNCoreEditorView::ToggleMargin(int margin, int width)
{
    m_coreEditor.SetMarginWidthN(margin, m_coreEditor.GetMarginWidthN(margin, 1) == 0 ? width : 0,
                                 1);
}

void CZNCoreEditorView::OnBookmarkMargin()
{
    ToggleMargin(kBookmarkMargin, kBookmarkMarginWidth);
}

void CZNCoreEditorView::OnUpdateBookmarkMargin(CCmdUI& ui)
{
    ShowOrHide(ui, m_coreEditor.GetMarginWidthN(kBookmarkMargin, 1) != 0,
               QT_TRANSLATE_NOOP("CZNCoreEditorView", "Bookmark Margin"));
}

void CZNCoreEditorView::OnFoldMargin()
{
    ToggleMargin(kFoldMargin, kFoldMarginWidth);
}

void CZNCoreEditorView::OnUpdateFoldMargin(CCmdUI& ui)
{
    ShowOrHide(ui, m_coreEditor.GetMarginWidthN(kFoldMargin, 1) != 0,
               QT_TRANSLATE_NOOP("CZNCoreEditorView", "Fold Margin"));
}

void CZNCoreEditorView::OnViewWhitespace()
{
    m_coreEditor.SetViewWS(m_coreEditor.GetViewWS(1) == 0 ? 1 : 0, 1);
}

void CZNCoreEditorView::OnUpdateViewWhitespace(CCmdUI& ui)
{
    ShowOrHide(ui, m_coreEditor.GetViewWS(1) != 0,
               QT_TRANSLATE_NOOP("CZNCoreEditorView", "Whitespace"));
}

void CZNCoreEditorView::OnViewEOL()
{
    m_coreEditor.SetViewEOL(!m_coreEditor.GetViewEOL(1), 1);
}

void CZNCoreEditorView::OnUpdateViewEOL(CCmdUI& ui)
{
    ShowOrHide(ui, m_coreEditor.GetViewEOL(1), QT_TRANSLATE_NOOP("CZNCoreEditorView", "EOL"));
}
