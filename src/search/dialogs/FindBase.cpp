// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/dialogs/FindBase.h"

#include "common/Translations.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/dialogs/MenuButton.h"
#include "platform/dialogs/MyComboBox.h"
#include "platform/windows/Disposal.h"
#include "platform/windows/Questions.h"
#include "search/FindReplaceManager.h"
#include "search/dialogs/FaultLine.h"
#include "search/dialogs/FindControls.h"
#include "search/dialogs/PatternMenus.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FindDialogs)
};

CFindReplaceManager& Manager()
{
    return *zncoreeditor::GetFindReplaceManager();
}

template <void (CFindBase::*Handler)()>
void Run(CCmdTarget& target)
{
    (static_cast<CFindBase&>(target).*Handler)();
}

QRect ScreenPlace(CZNCoreEditorControlEx& control, long start, long end)
{
    const QPoint from(control.PointXFromPosition(start, 1), control.PointYFromPosition(start, 1));
    const QPoint to(control.PointXFromPosition(end, 1), control.PointYFromPosition(end, 1));
    const int height = control.TextHeight(static_cast<int>(control.LineFromPosition(start, 1)), 1);
    QRect place = QRect(from, QSize(1, height)).united(QRect(to, QSize(1, height)));
    place &= control.GetSafeHwnd()->rect();
    return place.translated(control.GetSafeHwnd()->mapToGlobal(QPoint()));
}

} // namespace

void FocusBox(CMyComboBox& box)
{
    box.setFocus();
    box.lineEdit()->selectAll();
}

CFindBase::~CFindBase()
{
    Disposal::Forget(this);
}

void CFindBase::SetControl(CZNCoreEditorControlEx* control, bool attach)
{
    if (attach)
        m_control = control;
    else if (m_control == control)
        m_control = nullptr;
}

CMyComboBox& CFindBase::Box(UINT id) const
{
    return *GetDlgItem<CMyComboBox>(id);
}

CMyComboBox* CFindBase::BuildBox(UINT id, const QString& label, const QString& description,
                                 UINT menuId, QGridLayout& grid)
{
    auto* box = AddControl(id, new CMyComboBox);
    box->setAccessibleDescription(description);
    auto* text = new QLabel(label);
    text->setBuddy(box);
    auto* menu = AddControl(menuId, new CMenuButton(QStringLiteral(">")));
    menu->setAccessibleName(
        Texts::tr("Insert into \"%1\"").arg(zncoreeditor::WithoutMnemonic(label)));
    menu->setToolTip(Texts::tr("Insert part of an expression"));
    QObject::connect(menu, &CMenuButton::Chosen, box,
                     [this, id](const QString& row) { OnInsert(id, row); });
    const int row = grid.rowCount();
    grid.addWidget(text, row, 0);
    grid.addWidget(box, row, 1);
    grid.addWidget(menu, row, 2);
    return box;
}

void CFindBase::BuildFindRow(QGridLayout& grid)
{
    BuildBox(findcontrol::FindBox, Texts::tr("Find &what"), Texts::tr("Text to look for"),
             findcontrol::FindMenu, grid);
    GetDlgItem<CMenuButton>(findcontrol::FindMenu)->SetItems(ExpressionItems());
    m_fault = new FaultLine;
    grid.addWidget(m_fault, grid.rowCount(), 1, 1, 2);
    QObject::connect(&Box(findcontrol::FindBox), &QComboBox::editTextChanged, m_fault,
                     [this] { ShowFault(); });
}

void CFindBase::ShowFault()
{
    m_fault->Show(Box(findcontrol::FindBox).currentText(),
                  GetDlgItem<QAbstractButton>(findcontrol::RegExp)->isChecked());
}

QWidget* CFindBase::BuildOptions()
{
    auto* options = new QWidget;
    auto* columns = new QHBoxLayout(options);
    columns->setContentsMargins({});
    auto* checks = new QVBoxLayout;
    const auto add = [&](UINT id, const char* label) {
        checks->addWidget(AddControl(id, new QCheckBox(Texts::tr(label))));
    };
    add(findcontrol::WholeWord, QT_TRANSLATE_NOOP("FindDialogs", "&Match whole word only"));
    add(findcontrol::MatchCase, QT_TRANSLATE_NOOP("FindDialogs", "Matc&h case"));
    add(findcontrol::RegExp, QT_TRANSLATE_NOOP("FindDialogs", "Regular e&xpression"));
    add(findcontrol::Wrap, QT_TRANSLATE_NOOP("FindDialogs", "&Wrap around search"));
    columns->addLayout(checks);
    auto* group = new QGroupBox(Texts::tr("Direction"));
    auto* radios = new QVBoxLayout(group);
    radios->addWidget(AddControl(findcontrol::Up, new QRadioButton(Texts::tr("&Up"))));
    radios->addWidget(AddControl(findcontrol::Down, new QRadioButton(Texts::tr("&Down"))));
    radios->addStretch();
    columns->addWidget(group);
    columns->addStretch();
    return options;
}

bool CFindBase::OnInitDialog()
{
    ShowOptions();
    return false;
}

void CFindBase::ShowOptions()
{
    CFindReplaceManager& manager = Manager();
    CMyComboBox& box = Box(findcontrol::FindBox);
    manager.FillFindCombo(box);
    box.setCurrentIndex(box.count() ? 0 : -1);
    const auto check = [this](UINT id, bool on) {
        GetDlgItem<QAbstractButton>(id)->setChecked(on);
    };
    check(findcontrol::WholeWord, manager.GetWholeWord());
    check(findcontrol::MatchCase, manager.GetMatchCase());
    check(findcontrol::RegExp, manager.GetRegExp());
    check(findcontrol::Wrap, manager.GetWrap());
    check(findcontrol::Down, manager.GetDown());
    check(findcontrol::Up, !manager.GetDown());
    OnRegExp();
    if (!m_text.isEmpty())
        box.setEditText(m_text);
    FocusBox(box);
}

void CFindBase::Open(const QString& text, CZNCoreEditorControlEx& control, CDialog* other)
{
    const HWND window = GetSafeHwnd();
    m_control = &control;
    m_text = text;
    const bool takesPlace = other && IsWindowVisible(other->GetSafeHwnd());
    const QPoint place = takesPlace ? other->GetSafeHwnd()->pos() : QPoint();
    if (takesPlace)
        other->GetSafeHwnd()->hide();
    // The dialog stands above the window of its editor, and can be used beside a modal one.
    QWidget* owner = control.GetSafeHwnd() ? control.GetSafeHwnd()->window() : nullptr;
    if (owner && window->parentWidget() != owner) {
        const bool wasVisible = window->isVisible();
        window->setParent(owner, window->windowFlags());
        if (wasVisible)
            window->show();
    }
    if (!window->isVisible())
        ShowOptions();
    else if (!text.isEmpty())
        Box(findcontrol::FindBox).setEditText(text);
    if (takesPlace)
        window->move(place);
    window->show();
    window->raise();
    window->activateWindow();
    FocusBox(Box(findcontrol::FindBox));
    if (control.IsSelection())
        ShowMatch();
}

void CFindBase::WriteOptions()
{
    const auto checked = [this](UINT id) { return GetDlgItem<QAbstractButton>(id)->isChecked(); };
    CFindReplaceManager& manager = Manager();
    manager.SetDown(checked(findcontrol::Down));
    manager.SetMatchCase(checked(findcontrol::MatchCase));
    manager.SetRegExp(checked(findcontrol::RegExp));
    manager.SetWholeWord(checked(findcontrol::WholeWord));
    manager.SetWrap(checked(findcontrol::Wrap));
}

bool CFindBase::IsDown() const
{
    return GetDlgItem<QRadioButton>(findcontrol::Down)->isChecked();
}

void CFindBase::OnRegExp()
{
    const bool on = GetDlgItem<QCheckBox>(findcontrol::RegExp)->isChecked();
    GetDlgItem(findcontrol::FindMenu)->setEnabled(on);
    ShowFault();
}

void CFindBase::OnInsert(UINT box, const QString& row)
{
    if (!InsertItem(Box(box), row))
        return;
    GetDlgItem<QCheckBox>(findcontrol::RegExp)->setChecked(true);
    OnRegExp();
}

// The lists are as the other dialog left them.
void CFindBase::OnControl(UINT id, UINT code)
{
    if (code != CBN_DROPDOWN)
        return;
    CMyComboBox& box = Box(id);
    if (id == findcontrol::FindBox)
        Manager().FillFindCombo(box);
    else
        Manager().FillReplaceCombo(box);
    box.setCurrentIndex(box.count() ? 0 : -1);
}

void CFindBase::SayNotFound(const QString& text)
{
    ShowMessage(GetSafeHwnd(), Texts::tr("Could not find the string '%1'.").arg(text),
                MessageKind::Plain);
}

// With a selection the next one has the length of what is sought: of an expression it may show
// more than the match, or less.
void CFindBase::FindText(const QString& text)
{
    WriteOptions();
    CFindReplaceManager& manager = Manager();
    manager.AddFindHistory(text);
    bool isFound = false;
    if (!m_control->IsSelection()) {
        isFound = manager.FindNext(m_control) != -1;
        if (isFound)
            m_control->SelectionFromTarget();
    } else {
        m_control->SetCurrentPos(
            IsDown() ? m_control->GetSelectionEnd(1) : m_control->GetSelectionStart(1), 1);
        const int pos = manager.FindNext(m_control);
        isFound = pos != -1;
        if (isFound)
            m_control->SetSel(pos, pos + static_cast<long>(text.size()), 1);
    }
    if (isFound)
        ShowMatch();
    else
        SayNotFound(text);
    if (GetSafeHwnd()) // the message may have outlived the dialog
        FocusBox(Box(findcontrol::FindBox));
}

void CFindBase::ShowMatch()
{
    const auto [start, end] = m_control->GetSelection();
    KeepOff(ScreenPlace(*m_control, start, end));
}

// Hidden, to be shown again by the next command.
void CFindBase::OnCancel()
{
    GetDlgItem(findcontrol::Find)->setFocus();
    GetSafeHwnd()->hide();
    if (m_control)
        m_control->CWnd::SetFocus();
}

void CFindBase::PostNcDestroy()
{
    Manager().Save();
    Gone();
    Disposal::Later(this, nullptr);
}

const CommandMap& CFindBase::GetCommandMap() const
{
    static constexpr CommandEntry kCommands[] = {
        {findcontrol::RegExp, [](CCmdTarget& t) { static_cast<CFindBase&>(t).OnRegExp(); }},
        {findcontrol::Find, [](CCmdTarget& t) { static_cast<CFindBase&>(t).OnFind(); }},
    };
    static const CommandMap kMap{&CDialog::GetCommandMap(), kCommands, {}};
    return kMap;
}

const MessageMap& CFindBase::GetMessageMap() const
{
    static constexpr MessageEntry kEntries[] = {
        {WM_DESTROY,
         [](CWnd& target, WPARAM, LPARAM) -> LRESULT {
             if (CZNCoreEditorControlEx* control = static_cast<CFindBase&>(target).m_control)
                 control->CWnd::SetFocus();
             return 0;
         }},
    };
    static const MessageMap kMap{&CDialog::GetMessageMap(), kEntries};
    return kMap;
}
