// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dialogs/Dialog.h"

#include "platform/dialogs/MyComboBox.h"
#include "platform/windows/Accelerators.h"
#include "platform/windows/Disposal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <array>

namespace {

constexpr UINT kCodeShift = 16;
constexpr WPARAM kNumber = 0xFFFF;

// Escape, and whatever else closes a QDialog, is the command Cancel.
class DialogWindow final : public QDialog
{
public:
    using QDialog::QDialog;

    void reject() override { SendMessage(this, WM_COMMAND, IDCANCEL, 0); }
    void accept() override { SendMessage(this, WM_COMMAND, IDOK, 0); }
};

// Null for a page, whose window is no dialog of its own.
QDialog* WindowOf(const CDialog& dialog)
{
    return qobject_cast<QDialog*>(dialog.GetSafeHwnd());
}

} // namespace

CDialog::~CDialog()
{
    CDialog::DestroyWindow();
}

bool CDialog::MakeWindow(QWidget* parent)
{
    if (GetSafeHwnd())
        return false;
    auto* window = new DialogWindow(parent);
    window->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    return TakeWindow(window);
}

bool CDialog::TakeWindow(QWidget* window)
{
    SubclassWindow(window);
    OnBuild(window);
    return true;
}

bool CDialog::CreateInside(QWidget* parent)
{
    if (GetSafeHwnd())
        return false;
    auto* window = new QWidget(parent);
    window->hide();
    TakeWindow(window);
    OnInitDialog();
    return true;
}

void CDialog::Initialise()
{
    if (!OnInitDialog())
        return;
    QDialog* window = WindowOf(*this);
    for (QWidget* at = window->nextInFocusChain(); at && at != window;
         at = at->nextInFocusChain()) {
        if (window->isAncestorOf(at) && at->focusPolicy() & Qt::TabFocus && at->isEnabled()) {
            at->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

// The object may be closed, and its window deleted, by code that runs while the dialog stands.
std::intptr_t CDialog::DoModal()
{
    QWidget* owner = m_parent ? m_parent->GetSafeHwnd() : QApplication::activeWindow();
    // A dialog that has just ended may still be the active window, and takes what it owns with it.
    if (!m_parent && owner && !owner->isVisible())
        owner = nullptr;
    if (!MakeWindow(owner ? owner->window() : nullptr))
        return IDCANCEL;
    m_result = IDCANCEL;
    Initialise();
    const QPointer<QDialog> window = WindowOf(*this);
    window->exec();
    if (window)
        DestroyWindow();
    return m_result;
}

bool CDialog::Create(CWnd* parent)
{
    QWidget* owner = parent ? parent->GetSafeHwnd() : nullptr;
    if (!MakeWindow(owner ? owner->window() : nullptr))
        return false;
    Initialise();
    return true;
}

void CDialog::EndDialog(std::intptr_t result)
{
    if (!GetSafeHwnd())
        return;
    m_result = result;
    if (QDialog* window = WindowOf(*this))
        window->done(static_cast<int>(result));
    else
        GetSafeHwnd()->hide();
}

// As a button of the window may be what ends it, the window waits until no call is in progress.
void CDialog::DestroyWindow()
{
    if (!GetSafeHwnd())
        return;
    {
        const FrameworkCall call;
        SendMessage(GetSafeHwnd(), WM_DESTROY, 0, 0);
    }
    const HWND window = Detach();
    if (!window)
        return;
    window->hide();
    Disposal::Later(nullptr, window);
    PostNcDestroy();
}

bool CDialog::UpdateData(bool saveAndValidate)
{
    CDataExchange exchange{saveAndValidate, GetSafeHwnd()};
    DoDataExchange(&exchange);
    if (exchange.m_failed == 0)
        return true;
    if (QWidget* control = GetDlgItem(exchange.m_failed))
        control->setFocus();
    return false;
}

// Above, below, left or right of the place, where the way is shortest and the screen has room. A
// screen too small for both keeps the dialog where it is.
void CDialog::KeepOff(const QRect& place)
{
    const HWND window = GetSafeHwnd();
    if (!window || !window->isVisible())
        return;
    const QRect frame = window->frameGeometry();
    if (!frame.intersects(place))
        return;
    const QRect screen = window->screen()->availableGeometry();
    std::array<QPoint, 4> ways = {
        QPoint(0, place.top() - frame.height() - frame.top()),
        QPoint(0, place.bottom() + 1 - frame.top()),
        QPoint(place.left() - frame.width() - frame.left(), 0),
        QPoint(place.right() + 1 - frame.left(), 0),
    };
    std::ranges::sort(ways, {}, [](QPoint way) { return way.manhattanLength(); });
    for (const QPoint way : ways) {
        if (!screen.contains(frame.translated(way)))
            continue;
        window->move(window->pos() + way);
        return;
    }
}

// A click is a command, which goes by the command table.
int CDialog::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT code = static_cast<UINT>(wParam >> kCodeShift);
    if (code == BN_CLICKED || lParam == 0)
        return CWnd::OnCommand(wParam & kNumber, lParam);
    OnControl(static_cast<UINT>(wParam & kNumber), code);
    return 1;
}

bool CDialog::OnInitDialog()
{
    UpdateData(false);
    return true;
}

void CDialog::DoDataExchange(CDataExchange* /*exchange*/) {}

void CDialog::OnOK()
{
    if (UpdateData())
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

void CDialog::OnControl(UINT /*id*/, UINT /*code*/) {}

void CDialog::Tell(UINT id, UINT code, QWidget* control) const
{
    SendMessage(GetSafeHwnd(), WM_COMMAND, id | code << kCodeShift,
                reinterpret_cast<LPARAM>(control));
}

void CDialog::Connect(UINT id, QWidget* control)
{
    SetDlgCtrlID(control, id);
    const auto tell = [this, id, control](UINT code) {
        return [this, id, control, code] { Tell(id, code, control); };
    };
    if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        QObject::connect(button, &QAbstractButton::clicked, GetSafeHwnd(), tell(BN_CLICKED));
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        QObject::connect(combo, &QComboBox::activated, GetSafeHwnd(), tell(CBN_SELCHANGE));
        QObject::connect(combo, &QComboBox::editTextChanged, GetSafeHwnd(), tell(CBN_EDITCHANGE));
        if (auto* history = qobject_cast<CMyComboBox*>(combo))
            QObject::connect(history, &CMyComboBox::DropsDown, GetSafeHwnd(), tell(CBN_DROPDOWN));
    } else if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        QObject::connect(edit, &QLineEdit::textChanged, GetSafeHwnd(), tell(EN_CHANGE));
    } else if (auto* list = qobject_cast<QListWidget*>(control)) {
        QObject::connect(list, &QListWidget::currentRowChanged, GetSafeHwnd(), tell(LBN_SELCHANGE));
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(control)) {
        QObject::connect(text, &QPlainTextEdit::textChanged, GetSafeHwnd(), tell(EN_CHANGE));
    }
}

const MessageMap& CDialog::GetMessageMap() const
{
    static constexpr MessageEntry kEntries[] = {
        {WM_CLOSE,
         [](CWnd& target, WPARAM, LPARAM) -> LRESULT {
             static_cast<CDialog&>(target).OnCancel();
             return 1;
         }},
    };
    static const MessageMap kMap{&CWnd::GetMessageMap(), kEntries};
    return kMap;
}

const CommandMap& CDialog::GetCommandMap() const
{
    static constexpr CommandEntry kCommands[] = {
        {IDOK, [](CCmdTarget& target) { static_cast<CDialog&>(target).OnOK(); }},
        {IDCANCEL, [](CCmdTarget& target) { static_cast<CDialog&>(target).OnCancel(); }},
    };
    static const CommandMap kMap{&CWnd::GetCommandMap(), kCommands, {}};
    return kMap;
}
