// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/ZNCoreEditorControlEx.h"

#include "control/EngineLooks.h"
#include "editing/FindDialogs.h"
#include "editing/hands/Hands.h"
#include "editing/language/KeyTable.h"
#include "platform/base/Units.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/SystemColors.h"
#include "platform/windows/DataExchange.h"
#include "platform/windows/DeviceContext.h"
#include "platform/windows/WindowEvents.h"

#include <QCursor>

namespace {

// A line that is broken in front of a blank has that blank in its indentation, and the caret stays
// in front of all of it: who types on would do so in column 0.
void PutCaretBehindIndent(CZNCoreEditorControlEx& control)
{
    const long caret = control.GetCurrentPos(1);
    const int line = control.LineFromPosition(caret, 1);
    if (caret == control.PositionFromLine(line, 1) && !control.IsSelection())
        control.GotoPos(control.GetLineIndentPosition(line, 1), 1);
}

} // namespace

CZNCoreEditorControlExCallback::~CZNCoreEditorControlExCallback() = default;

int CZNCoreEditorControlExCallback::OnBeforeContextMenu(CWnd* /*window*/, CPoint /*point*/)
{
    return 0;
}

CZNCoreEditorControlEx::CZNCoreEditorControlEx(CZNCoreEditorControlExCallback* callback)
    : m_pCallback(callback), m_backgroundColor(GetSysColor(COLOR_WINDOW))
{}

CZNCoreEditorControlEx::~CZNCoreEditorControlEx()
{
    // Its window can take the focus once more while it goes, behind WM_DESTROY.
    if (IFindDialogs* dialogs = GetFindDialogs())
        dialogs->Forget(*this);
    delete m_desktopWatch.data(); // the window may stay
}

int CZNCoreEditorControlEx::OnCreate(CCreateContext* /*context*/)
{
    if (!GetSafeHwnd())
        return -1;
    m_hEditorWnd = GetSafeHwnd();
    SetupDirectAccess();
    SetEditorOptions();
    ApplyDefaultEncoding();
    return 0;
}

// Only a window that is taken over gets a key table; one that Create made stands in a view, which
// has its own.
void CZNCoreEditorControlEx::PreSubclassWindow()
{
    CZNCoreEditorControl::PreSubclassWindow();
    if (m_bCreated)
        return;
    m_hAccelerators = EditorKeyTable();
    GetSafeHwnd()->show();
    SetEditorOptions();
    ApplyDefaultEncoding();
}

void CZNCoreEditorControlEx::ApplyDefaultEncoding()
{
    const int type = CZNOptionsServer::GetObjectW()->GetInt(option::DefaultTextType);
    bool hasMark = false;
    SetEncoding(
        FileEncodeConverter::ConvertToEncodingType(static_cast<znutils::TextType>(type), hasMark));
    SetWriteEncodingSig(hasMark);
}

int CZNCoreEditorControlEx::PreTranslateMessage(MSG* message)
{
    if (m_hAccelerators && message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST &&
        (TranslateAccelerator(GetSafeHwnd(), m_hAccelerators, *message) ||
         TranslateAccelerator(GetSafeHwnd(), HandKeyTable(), *message)))
        return 1;
    return CZNCoreEditorControl::PreTranslateMessage(message);
}

int CZNCoreEditorControlEx::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (!IsBaseEditorNotify(lParam))
        return CZNCoreEditorControl::OnNotify(wParam, lParam, result);
    HandleNotify(lParam);
    return 1;
}

int CZNCoreEditorControlEx::HandleNotify(LPARAM lParam)
{
    const int code = CZNCoreEditorControl::HandleNotify(lParam);
    const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
    switch (static_cast<UINT>(code)) {
    case notify::CharAdded: {
        const auto character = static_cast<char16_t>(record.ch);
        if (character == u'\r' || character == u'\n') {
            AutoIndentIn(character);
            if (m_autoIndent >= 1 && !m_scheme.isEmpty())
                PutCaretBehindIndent(*this);
        } else if ((character == u'{' || character == u'}') && m_autoIndent >= 2)
            AutoIndentOut(character);
        break;
    }
    case notify::Modified:
        if (record.linesAdded != 0 && m_visibleLineNumber)
            SetLineNumberWidth();
        break;
    case notify::SavePointReached:
        if (m_isSaving)
            MarkChangedAsSaved();
        else if (!m_scheme.isEmpty())
            MarkerDeleteAll(engine::lookmarker::kLineChanged, 1);
        break;
    case notify::Zoom:
        SetLineNumberWidth();
        break;
    default:
        break;
    }
    return code;
}

void CZNCoreEditorControlEx::OnDestroy()
{
    if (IFindDialogs* dialogs = GetFindDialogs())
        dialogs->Forget(*this);
    DefWindowProc(WM_DESTROY, 0, 0);
}

CWnd* CZNCoreEditorControlEx::SetFocus()
{
    IFindDialogs* dialogs = GetFindDialogs();
    if (dialogs && IsWindowVisible(GetSafeHwnd()))
        dialogs->Serve(*this);
    return CWnd::SetFocus();
}

// A list of completions goes once the user turns to something else than the editor, what is around
// it, or the list itself.
void CZNCoreEditorControlEx::OnKillFocus(HWND newFocus)
{
    DefWindowProc(WM_KILLFOCUS, reinterpret_cast<WPARAM>(newFocus), 0);
    const HWND own = GetSafeHwnd();
    if (newFocus && (newFocus == own || own->isAncestorOf(newFocus) ||
                     newFocus == own->parentWidget() || IsAutoCHwnd(newFocus, 1)))
        return;
    AutoCCancel(1);
}

LRESULT CZNCoreEditorControlEx::OnAppRegistryChange(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    SetEditorOptions();
    return 0;
}

LRESULT CZNCoreEditorControlEx::OnSetText(WPARAM /*wParam*/, LPARAM lParam)
{
    SetText(reinterpret_cast<const char16_t*>(lParam), 1);
    return 0;
}

void CZNCoreEditorControlEx::OnFillBackground(CDC* dc)
{
    const bool isSystem = m_backgroundColor == kSystemWindow;
    dc->FillSolidRect(GetClientRect(GetSafeHwnd()),
                      isSystem ? GetSysColor(COLOR_WINDOW) : m_backgroundColor);
}

int CZNCoreEditorControlEx::GetText(int length, char16_t* buffer, int direct)
{
    return CZNCoreEditorControl::GetText(length, buffer, direct);
}

QString CZNCoreEditorControlEx::GetText()
{
    const long units = GetTextLength(1);
    if (units <= 0)
        return QString();
    QString text(units, Qt::Uninitialized); // a QString has room for the terminator
    GetText(static_cast<int>(units) + 1, reinterpret_cast<char16_t*>(text.data()), 1);
    return text;
}

QString CZNCoreEditorControlEx::GetSelText()
{
    return CZNCoreEditorControl::GetSelText();
}

void CZNCoreEditorControlEx::SetWindowTextW(const QString& text)
{
    SetText(Units(text), 1);
}

QString CZNCoreEditorControlEx::GetWindowTextW()
{
    return IsSelection() ? GetSelText() : GetText();
}

void ZNDDX_Text(CDataExchange* exchange, CZNCoreEditorControlEx& control, QString& value)
{
    if (!control.GetSafeHwnd())
        return;
    if (exchange->m_bSaveAndValidate)
        value = control.GetText();
    else
        control.SetText(Units(value), 1);
}

const MessageMap& CZNCoreEditorControlEx::GetMessageMap() const
{
    using Self = CZNCoreEditorControlEx;
    static constexpr MessageEntry kEntries[] = {
        {WM_CREATE,
         [](CWnd& target, WPARAM, LPARAM lParam) -> LRESULT {
             return static_cast<Self&>(target).OnCreate(reinterpret_cast<CCreateContext*>(lParam));
         }},
        {WM_DESTROY,
         [](CWnd& target, WPARAM, LPARAM) -> LRESULT {
             static_cast<Self&>(target).OnDestroy();
             return 0;
         }},
        {WM_KILLFOCUS,
         [](CWnd& target, WPARAM wParam, LPARAM) -> LRESULT {
             static_cast<Self&>(target).OnKillFocus(reinterpret_cast<HWND>(wParam));
             return 0;
         }},
        {WM_CONTEXTMENU,
         [](CWnd& target, WPARAM, LPARAM lParam) {
             return static_cast<Self&>(target).OnContextMenu(&target, PointOf(lParam));
         }},
        {WM_SETTEXT,
         [](CWnd& target, WPARAM wParam, LPARAM lParam) {
             return static_cast<Self&>(target).OnSetText(wParam, lParam);
         }},
        {kOptionsChanged,
         [](CWnd& target, WPARAM wParam, LPARAM lParam) {
             return static_cast<Self&>(target).OnAppRegistryChange(wParam, lParam);
         }},
    };
    static const MessageMap kMap{&CZNCoreEditorControl::GetMessageMap(), kEntries};
    return kMap;
}
