// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/dialogs/FindDialog.h"

#include "common/Globals.h"
#include "editing/FindDialogs.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/dialogs/MenuButton.h"
#include "platform/dialogs/MyComboBox.h"
#include "platform/docview/WinApp.h"
#include "platform/services/ResourceLoader.h"
#include "platform/windows/Disposal.h"
#include "platform/windows/Questions.h"
#include "search/FindReplaceManager.h"
#include "search/dialogs/FindControls.h"
#include "search/dialogs/PatternMenus.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QSet>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FindDialogs)
};

constexpr long kBookmark = 1; // the marker's bit
constexpr UINT kNoFindDialog = 28174;
constexpr UINT kNoReplaceDialog = 28175;

template <class Dialog>
Dialog*& TheDialog()
{
    static Dialog* dialog = nullptr;
    return dialog;
}

template <class Dialog>
void Destroy()
{
    if (TheDialog<Dialog>())
        TheDialog<Dialog>()->DestroyWindow();
}

// What is on the screen goes before the application does.
void AtEnd()
{
    Destroy<CFindDialog>();
    Destroy<CFindReplace>();
    Disposal::Run();
}

template <class Dialog>
Dialog* Get(bool create, bool force)
{
    Dialog*& dialog = TheDialog<Dialog>();
    if (dialog && !force)
        return dialog;
    if (!create && !force)
        return nullptr;
    Destroy<Dialog>();
    static const bool ends = (qAddPostRoutine(AtEnd), true);
    static_cast<void>(ends);
    CWnd* owner = nullptr;
    if (const CWinApp* app = GetApp())
        owner = app->GetMainWnd();
    auto* made = new Dialog;
    dialog = made;
    if (!made->Create(owner)) {
        dialog = nullptr;
        delete made;
    }
    return dialog;
}

template <class Dialog, class Other>
bool Show(const QString& text, CZNCoreEditorControlEx& control, bool forceNew)
{
    Dialog* dialog = Get<Dialog>(true, forceNew);
    if (dialog)
        dialog->Open(text, control, TheDialog<Other>());
    return dialog != nullptr;
}

// The dialogs as the editors know them.
class Dialogs final : public IFindDialogs
{
public:
    Dialogs() { SetFindDialogs(this); }
    ~Dialogs() override { SetFindDialogs(nullptr); }

    void Serve(CZNCoreEditorControlEx& control) override
    {
        Get<CFindDialog>(true, false)->SetControl(&control, true);
        Get<CFindReplace>(true, false)->SetControl(&control, true);
    }
    void Forget(CZNCoreEditorControlEx& control) override
    {
        if (CFindDialog* dialog = TheDialog<CFindDialog>())
            dialog->SetControl(&control, false);
        if (CFindReplace* dialog = TheDialog<CFindReplace>())
            dialog->SetControl(&control, false);
    }
    bool ShowFind(CZNCoreEditorControlEx& control, const QString& text, bool forceNew) override
    {
        return Show<CFindDialog, CFindReplace>(text, control, forceNew);
    }
    bool ShowReplace(CZNCoreEditorControlEx& control, const QString& text, bool forceNew) override
    {
        return Show<CFindReplace, CFindDialog>(text, control, forceNew);
    }
};

Dialogs dialogs; // from the library's loading on

void SayNoDialog(CZNCoreEditorControlEx* control, UINT text)
{
    ShowMessage(control ? control->GetSafeHwnd() : nullptr,
                zncoreeditor::GetResourceLoader().LoadString(text), MessageKind::Stop);
}

} // namespace

void CFindDialog::OnBuild(QWidget* window)
{
    window->setWindowTitle(Texts::tr("Find"));
    auto* columns = new QHBoxLayout(window);
    auto* left = new QVBoxLayout;
    columns->addLayout(left, 1);
    auto* grid = new QGridLayout;
    left->addLayout(grid);
    BuildFindRow(*grid);
    left->addWidget(BuildOptions());
    left->addStretch();

    auto* buttons = new QVBoxLayout;
    columns->addLayout(buttons);
    const auto add = [&](UINT id, const char* label) {
        auto* button = AddControl(id, new QPushButton(Texts::tr(label)));
        buttons->addWidget(button);
        return button;
    };
    add(findcontrol::Find, QT_TRANSLATE_NOOP("FindDialogs", "&Find"))->setDefault(true);
    add(findcontrol::BookmarkAll, QT_TRANSLATE_NOOP("FindDialogs", "Bookmark &All"));
    add(IDCANCEL, QT_TRANSLATE_NOOP("FindDialogs", "&Cancel"));
    buttons->addStretch();
}

void CFindDialog::OnFind()
{
    const QString text = Box(findcontrol::FindBox).currentText();
    if (m_control && !text.isEmpty())
        FindText(text);
}

// Goes from match to match, by the length of what is sought, until it comes to where it has been.
void CFindDialog::OnBookmarkAll()
{
    const QString text = Box(findcontrol::FindBox).currentText();
    if (!m_control || text.isEmpty())
        return;
    WriteOptions();
    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    manager.AddFindHistory(text);
    const long caret = m_control->GetCurrentPos(1);
    int pos = manager.FindNext(m_control);
    const bool isFound = pos != -1;
    for (QSet<int> seen; pos != -1 && !seen.contains(pos); pos = manager.FindNext(m_control)) {
        seen.insert(pos);
        const int line = static_cast<int>(m_control->LineFromPosition(pos, 1));
        if (!(m_control->MarkerGet(line, 1) & kBookmark))
            m_control->ToggleBookmark(line);
        m_control->SetCurrentPos(
            manager.GetDown() ? pos + static_cast<long>(text.size()) : std::max(pos - 1, 0), 1);
    }
    m_control->SetCurrentPos(caret, 1);
    if (!isFound)
        SayNotFound(text);
}

const CommandMap& CFindDialog::GetCommandMap() const
{
    static constexpr CommandEntry kCommands[] = {
        {findcontrol::BookmarkAll,
         [](CCmdTarget& t) { static_cast<CFindDialog&>(t).OnBookmarkAll(); }},
    };
    static const CommandMap kMap{&CFindBase::GetCommandMap(), kCommands, {}};
    return kMap;
}

void CFindReplace::OnBuild(QWidget* window)
{
    window->setWindowTitle(Texts::tr("Find & Replace"));
    auto* columns = new QHBoxLayout(window);
    auto* left = new QVBoxLayout;
    columns->addLayout(left, 1);
    auto* grid = new QGridLayout;
    left->addLayout(grid);
    BuildFindRow(*grid);
    BuildBox(findcontrol::ReplaceBox, Texts::tr("Re&place with"),
             Texts::tr("Text to put in the place of a match"), findcontrol::ReplaceMenu, *grid);
    GetDlgItem<CMenuButton>(findcontrol::ReplaceMenu)->SetItems(ReplacementItems());
    left->addWidget(BuildOptions());
    left->addStretch();

    auto* buttons = new QVBoxLayout;
    columns->addLayout(buttons);
    const auto add = [&](UINT id, const char* label) {
        auto* button = AddControl(id, new QPushButton(Texts::tr(label)));
        buttons->addWidget(button);
        return button;
    };
    add(findcontrol::Find, QT_TRANSLATE_NOOP("FindDialogs", "&Find"))->setDefault(true);
    add(findcontrol::Replace, QT_TRANSLATE_NOOP("FindDialogs", "&Replace"));
    add(findcontrol::ReplaceAll, QT_TRANSLATE_NOOP("FindDialogs", "Replace &All"));
    add(findcontrol::InSelection, QT_TRANSLATE_NOOP("FindDialogs", "In &Selection"));
    add(IDCANCEL, QT_TRANSLATE_NOOP("FindDialogs", "&Cancel"));
    buttons->addStretch();
}

void CFindReplace::ShowOptions()
{
    CMyComboBox& box = Box(findcontrol::ReplaceBox);
    zncoreeditor::GetFindReplaceManager()->FillReplaceCombo(box);
    box.setCurrentIndex(box.count() ? 0 : -1);
    GetDlgItem(findcontrol::InSelection)->setEnabled(!m_control || m_control->IsSelection());
    CFindBase::ShowOptions();
}

void CFindReplace::OnRegExp()
{
    CFindBase::OnRegExp();
    GetDlgItem(findcontrol::ReplaceMenu)
        ->setEnabled(GetDlgItem(findcontrol::FindMenu)->isEnabled());
}

void CFindReplace::OnFind()
{
    if (!m_control)
        return;
    const QString text = Box(findcontrol::FindBox).currentText();
    if (text.isEmpty())
        ShowMessage(GetSafeHwnd(), Texts::tr("Enter find string"), MessageKind::Plain);
    else
        FindText(text);
}

// Goes to the next match first. What was selected is replaced if it is this match, so that the
// first press finds and the next one replaces; without a match it stays selected.
void CFindReplace::OnReplace()
{
    if (!m_control)
        return;
    if (!m_control->IsSelection()) {
        OnFind();
        return;
    }
    const auto [start, end] = m_control->GetSelection();
    const long origin = IsDown() ? start : end;
    m_control->SetSel(origin, origin, 1);
    m_control->SetCurrentPos(origin, 1);
    OnFind();
    if (!m_control || !GetSafeHwnd())
        return;
    const auto [foundStart, foundEnd] = m_control->GetSelection();
    if (!m_control->IsSelection() || foundStart != start || foundEnd != end) {
        if (!m_control->IsSelection())
            m_control->SetSel(start, end, 1);
        return;
    }
    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    const QString text = Box(findcontrol::ReplaceBox).currentText();
    manager.AddReplaceHistory(text);
    m_control->SetTargetStart(start, 1);
    m_control->SetTargetEnd(end, 1);
    manager.ReplaceOne(m_control);
    m_control->SetCurrentPos(IsDown() ? start + static_cast<long>(text.size()) : start, 1);
    OnFind();
}

void CFindReplace::OnReplaceAll(bool inSelection)
{
    if (!m_control)
        return;
    const QString text = Box(findcontrol::FindBox).currentText();
    if (text.isEmpty()) {
        ShowMessage(GetSafeHwnd(), Texts::tr("Enter find string"), MessageKind::Plain);
        return;
    }
    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    const QString replacement = Box(findcontrol::ReplaceBox).currentText();
    WriteOptions();
    manager.AddFindHistory(text);
    manager.AddReplaceHistory(replacement);
    const int count = manager.ReplaceAll(m_control, inSelection);
    if (count == 0)
        SayNotFound(text);
    else
        ShowMessage(GetSafeHwnd(),
                    Texts::tr("Replaced %1 occurrences of '%2'").arg(QString::number(count), text),
                    MessageKind::Plain);
}

const CommandMap& CFindReplace::GetCommandMap() const
{
    using Self = CFindReplace;
    static constexpr CommandEntry kCommands[] = {
        {findcontrol::Replace, [](CCmdTarget& t) { static_cast<Self&>(t).OnReplace(); }},
        {findcontrol::ReplaceAll, [](CCmdTarget& t) { static_cast<Self&>(t).OnReplaceAll(false); }},
        {findcontrol::InSelection, [](CCmdTarget& t) { static_cast<Self&>(t).OnReplaceAll(true); }},
    };
    static const CommandMap kMap{&CFindBase::GetCommandMap(), kCommands, {}};
    return kMap;
}

CFindDialog* CFindDialog::GetFindDialog(bool create, bool force)
{
    return Get<CFindDialog>(create, force);
}

CFindReplace* CFindReplace::GetReplaceDialog(bool create, bool force)
{
    return Get<CFindReplace>(create, force);
}

void CFindDialog::Gone()
{
    if (TheDialog<CFindDialog>() == this)
        TheDialog<CFindDialog>() = nullptr;
}

void CFindReplace::Gone()
{
    if (TheDialog<CFindReplace>() == this)
        TheDialog<CFindReplace>() = nullptr;
}

void ShowFindDialog(const QString& text, CZNCoreEditorControlEx* control)
{
    if (!control || !dialogs.ShowFind(*control, text, false))
        SayNoDialog(control, kNoFindDialog);
}

void ShowReplaceDialog(const QString& text, CZNCoreEditorControlEx* control)
{
    if (!control || !dialogs.ShowReplace(*control, text, false))
        SayNoDialog(control, kNoReplaceDialog);
}
