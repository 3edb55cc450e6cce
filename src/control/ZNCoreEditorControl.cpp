// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/ZNCoreEditorControl.h"

#include "control/CopyClaim.h"
#include "control/LineEnds.h"
#include "platform/base/Units.h"
#include "platform/system/Module.h"
#include "platform/text/CodePage.h"
#include "platform/windows/Timer.h"

#include <QWidget>

#include <algorithm>
#include <string>

unsigned int ZNBASEM_ON_EDITCHANGE = RegisterWindowMessage(u"ZNBASEM_ON_EDITCHANGE");

HINSTANCE CZNCoreEditorControl::m_hEditorDllHandle = nullptr;
int CZNCoreEditorControl::refs = 0;

namespace {

constexpr UINT kGetSel = 0x00B0;     // EM_GETSEL
constexpr UINT kLineLength = 0x00C1; // EM_LINELENGTH
constexpr int kFoldMargin = 3;
constexpr int kUserEdit = modification::InsertText | modification::DeleteText | modification::User;

template <class T>
LPARAM Address(T* pointer)
{
    return reinterpret_cast<LPARAM>(pointer);
}

// A text that goes into the engine: its own, or a copy in the line ends of the engine's mode.
struct EnteredText
{
    EnteredText(int mode, const char16_t* given, long givenLength)
        : text(given), length(givenLength)
    {
        const int selector = lineends::SelectorOf(mode);
        if (selector == lineends::kAsItIs || !text)
            return;
        long measured = static_cast<long>(std::char_traits<char16_t>::length(text));
        if (measured == 0)
            return;
        lineends::Normalise(copy, text, measured, selector);
        copy.push_back(u'\0');
        text = copy.data();
        length = measured;
    }

    std::vector<char16_t> copy;
    const char16_t* text;
    long length;
};

} // namespace

// Each control tries again; the log has room for one reason.
const QString& CZNCoreEditorControl::LoadEngine()
{
    static QString problem;
    if (m_hEditorDllHandle)
        return problem;
    const bool isTold = !problem.isEmpty();
    m_hEditorDllHandle = LoadModule(engine::kModule, &problem);
    if (!m_hEditorDllHandle && !isTold)
        qWarning("ZNCoreEditor: the editing engine cannot be loaded: %s", qUtf8Printable(problem));
    return problem;
}

CZNCoreEditorControl::CZNCoreEditorControl() : m_copyClaim(std::make_unique<CopyClaim>())
{
    LoadEngine();
    m_bFirstInstance = refs == 0 ? 1 : 0;
    ++refs;
}

CZNCoreEditorControl::~CZNCoreEditorControl()
{
    --refs;
    CZNCoreEditorControl::CleanUpAutoSave();
}

int CZNCoreEditorControl::Create(unsigned long style, const RECT& rect, CWnd* parent,
                                 unsigned int id, CCreateContext* context)
{
    m_bCreated = 1;
    return CWnd::Create(engine::kWindowClass, u"", style, rect, parent, id, context);
}

HWND CZNCoreEditorControl::Create(HWND parent, HINSTANCE /*instance*/)
{
    constexpr unsigned long kStyle = WS_CHILD | WS_CLIPCHILDREN | WS_HSCROLL | WS_VSCROLL;
    m_hEditorWnd = CreateWindowOfClass(engine::kWindowClass, kStyle, RECT{0, 0, 100, 100}, parent);
    SetupDirectAccess();
    m_bCreated = 1;
    return m_hEditorWnd;
}

void CZNCoreEditorControl::PreSubclassWindow()
{
    if (m_bCreated)
        return;
    CWnd::PreSubclassWindow();
    m_hEditorWnd = GetSafeHwnd();
    SetupDirectAccess();
}

void CZNCoreEditorControl::SetupDirectAccess()
{
    m_pDirectFunction = reinterpret_cast<engine::DirectFunction>(GetDirectFunction());
    m_pDirectPointer = GetDirectPointer();
}

LRESULT CZNCoreEditorControl::GetDirectFunction()
{
    return SendMessage(GetSafeHwnd(), engine::message::GetDirectFunction, 0, 0);
}

LRESULT CZNCoreEditorControl::GetDirectPointer()
{
    return SendMessage(GetSafeHwnd(), engine::message::GetDirectPointer, 0, 0);
}

bool CZNCoreEditorControl::IsBaseEditorNotify(LPARAM lParam) const
{
    return reinterpret_cast<const NotifyHeader*>(lParam)->hwndFrom == m_hEditorWnd.data();
}

int CZNCoreEditorControl::HandleNotify(LPARAM lParam)
{
    const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
    // Handlers may change the text, which notifies again; the code is kept for the answer.
    const UINT code = record.nmhdr.code;
    switch (code) {
    case notify::CharAdded:
    case notify::SavePointLeft:
        m_bModified = true;
        break;
    case notify::SavePointReached:
        m_bModified = false;
        break;
    case notify::UpdateUi:
        m_nSelLength = static_cast<int>(GetSelectionEnd(1) - GetSelectionStart(1));
        break;
    case notify::Modified:
        OnModified(record);
        break;
    case notify::MarginClick:
        if (record.margin == kFoldMargin)
            MarginClick(record.position, record.modifiers);
        break;
    default:
        break;
    }
    return static_cast<int>(code);
}

// The parent hears of an edit only if the text differed from the save point before it: the first
// change after a save sets the flag and tells nobody.
void CZNCoreEditorControl::OnModified(const SCNotification& record)
{
    if (m_bModified && (record.modificationType & kUserEdit)) {
        const HWND window = GetSafeHwnd();
        const HWND parent = window ? window->parentWidget() : nullptr;
        if (parent && GetReadOnly(1) == 0)
            SendMessage(parent, ZNBASEM_ON_EDITCHANGE, reinterpret_cast<WPARAM>(window), 1);
    }
    if (record.modificationType & modification::ChangeFold)
        FoldChanged(static_cast<int>(record.line), record.foldLevelNow, record.foldLevelPrev);
    m_bModified = true;
}

QString CZNCoreEditorControl::GetSelText()
{
    const long start = GetSelectionStart(1);
    const long end = GetSelectionEnd(1);
    LRESULT room = std::max(0L, end - start) + 1;
    // The text of a rectangle has a line end of its own for each line, the last one too.
    WPARAM told = 0;
    if (SelectionIsRectangle(1)) {
        room = std::max(room, Call(engine::message::GetSelText, 0, 0, 1));
        told = static_cast<WPARAM>(room);
    }
    std::u16string buffer(static_cast<std::size_t>(room), u'\0');
    const LRESULT written = Call(engine::message::GetSelText, told, Address(buffer.data()), 1) - 1;
    if (m_bCarefulFiles && written > 0) // a NUL is a character as any other
        return FromUnits({buffer.data(), static_cast<std::size_t>(std::min(written, room - 1))});
    return FromUnits(buffer.c_str());
}

void CZNCoreEditorControl::AddText(int length, const char16_t* text, int direct)
{
    const EnteredText entered(GetEOLMode(1), text, length);
    AddTextNoProcess(static_cast<int>(entered.length), entered.text, direct);
}

void CZNCoreEditorControl::ReplaceSel(const char16_t* text, int direct)
{
    const EnteredText entered(GetEOLMode(1), text, 0);
    Call(engine::message::ReplaceSel, 0, Address(entered.text), direct);
}

int CZNCoreEditorControl::ReplaceTarget(int length, const char16_t* text, int direct)
{
    const EnteredText entered(GetEOLMode(1), text, length);
    return ReplaceTargetNoProcess(static_cast<int>(entered.length), entered.text, direct);
}

void CZNCoreEditorControl::Copy(int direct)
{
    Call(engine::message::Copy, 0, m_nLineEndingStyle, direct);
}

void CZNCoreEditorControl::SetText(const char16_t* text, int direct)
{
    Call(engine::message::SetText, 0, Address(text), direct);
    m_bModified = false;
    UpdateWindow(GetSafeHwnd());
}

int CZNCoreEditorControl::GetRange(int start, int end, char16_t* buffer)
{
    TextRange range{{start, end}, buffer};
    return GetTextRange(&range, 1);
}

void CZNCoreEditorControl::GetSel(CharacterRange& range)
{
    range.cpMin = static_cast<int>(GetSelectionStart(1));
    range.cpMax = static_cast<int>(GetSelectionEnd(1));
}

void CZNCoreEditorControl::SetTarget(int start, int end)
{
    SetTargetStart(start, 1);
    SetTargetEnd(end, 1);
}

void CZNCoreEditorControl::SetTarget(CharacterRange* range)
{
    SetTarget(range->cpMin, range->cpMax);
}

int CZNCoreEditorControl::GetFileByteLength()
{
    const long units = GetLength(1);
    return static_cast<int>(m_nEncoding == FileEncodeConverter::encUTF16LE ? units * 2 : units);
}

int CZNCoreEditorControl::ConvertTCharToUtf8(const char16_t* text, std::vector<char>& out) const
{
    const int count = platform::WideCharToMultiByte(65001, text, -1, nullptr, 0);
    out.resize(static_cast<std::size_t>(count));
    return platform::WideCharToMultiByte(65001, text, -1, out.data(), count);
}

// Both parameters point at ints, either may be null. The answer combines the low half of the start
// with the high half of the end, which is not the customary pair of words.
LRESULT CZNCoreEditorControl::OnGetSel(WPARAM wParam, LPARAM lParam)
{
    const int start = static_cast<int>(GetSelectionStart(1));
    const int end = static_cast<int>(GetSelectionEnd(1));
    if (wParam)
        *reinterpret_cast<int*>(wParam) = start;
    if (lParam)
        *reinterpret_cast<int*>(lParam) = end;
    return (start & 0xFFFF) | ((end >> 16) & 0xFFFF);
}

// The length of the whole text, whichever line is asked.
LRESULT CZNCoreEditorControl::OnLineLength(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    return GetLength(1);
}

const MessageMap& CZNCoreEditorControl::GetMessageMap() const
{
    using Self = CZNCoreEditorControl;
    static constexpr MessageEntry kEntries[] = {
        {WM_TIMER,
         [](CWnd& target, WPARAM wParam, LPARAM) -> LRESULT {
             static_cast<Self&>(target).OnTimer(static_cast<UINT>(wParam));
             return 0;
         }},
        {kGetSel,
         [](CWnd& target, WPARAM wParam, LPARAM lParam) {
             return static_cast<Self&>(target).OnGetSel(wParam, lParam);
         }},
        {kLineLength,
         [](CWnd& target, WPARAM wParam, LPARAM lParam) {
             return static_cast<Self&>(target).OnLineLength(wParam, lParam);
         }},
    };
    static const MessageMap kMap{&CWnd::GetMessageMap(), kEntries};
    return kMap;
}
