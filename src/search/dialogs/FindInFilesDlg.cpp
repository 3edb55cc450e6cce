// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/dialogs/FindInFilesDlg.h"

#include "platform/dialogs/EditListBox.h"
#include "platform/dialogs/MenuButton.h"
#include "platform/dialogs/MyComboBox.h"
#include "platform/windows/Questions.h"
#include "prefs/controls/FileEditCtrl.h"
#include "search/FindReplaceManager.h"
#include "search/dialogs/FaultLine.h"
#include "search/dialogs/FindControls.h"
#include "search/dialogs/PatternMenus.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>

#include <algorithm>

#include <unistd.h>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FindInFiles)
};

constexpr int kAdvancedHeight = 190; // of the pane that opens below, where the screen has it

CFindReplaceManager& Manager()
{
    return *zncoreeditor::GetFindReplaceManager();
}

bool Exists(const QString& path)
{
    return access(QByteArray(path.toLocal8Bit()).constData(), F_OK) == 0;
}

} // namespace

CMyComboBox& CFindInFilesDlg::Box(UINT id) const
{
    return *GetDlgItem<CMyComboBox>(id);
}

bool CFindInFilesDlg::IsChecked(UINT id) const
{
    return GetDlgItem<QAbstractButton>(id)->isChecked();
}

CMyComboBox* CFindInFilesDlg::BuildBox(UINT id, const QString& label, const QString& description,
                                       QGridLayout& grid)
{
    auto* box = AddControl(id, new CMyComboBox);
    box->setAccessibleDescription(description);
    const int row = grid.rowCount();
    if (!label.isEmpty()) {
        auto* text = new QLabel(label);
        text->setBuddy(box);
        grid.addWidget(text, row, 0);
    }
    grid.addWidget(box, row, 1);
    return box;
}

void CFindInFilesDlg::OnBuild(QWidget* window)
{
    window->setWindowTitle(Texts::tr("Find In Files"));
    auto* rows = new QVBoxLayout(window);
    auto* columns = new QHBoxLayout;
    rows->addLayout(columns);
    auto* left = new QVBoxLayout;
    columns->addLayout(left, 1);
    auto* grid = new QGridLayout;
    left->addLayout(grid);

    BuildBox(findcontrol::FindBox, Texts::tr("Find &what"), Texts::tr("Text to look for"), *grid);
    auto* menu = AddControl(findcontrol::FindMenu, new CMenuButton(QStringLiteral(">")));
    menu->setAccessibleName(Texts::tr("Insert into \"Find what\""));
    menu->setToolTip(Texts::tr("Insert part of an expression"));
    menu->SetItems(ExpressionItems());
    QObject::connect(menu, &CMenuButton::Chosen, window,
                     [this](const QString& row) { OnInsert(row); });
    grid->addWidget(menu, grid->rowCount() - 1, 2);
    m_fault = new FaultLine;
    grid->addWidget(m_fault, grid->rowCount(), 1, 1, 2);
    QObject::connect(&Box(findcontrol::FindBox), &QComboBox::editTextChanged, m_fault,
                     [this] { ShowFault(); });

    auto* inFiles =
        AddControl(findcontrol::InFiles, new QRadioButton(Texts::tr("In files/file t&ypes")));
    grid->addWidget(inFiles, grid->rowCount(), 0);
    CMyComboBox* types = AddControl(findcontrol::TypeBox, new CMyComboBox);
    types->setAccessibleName(Texts::tr("File types"));
    types->setAccessibleDescription(Texts::tr("Patterns of names, as *.sql;*.txt"));
    types->setToolTip(types->accessibleDescription());
    grid->addWidget(types, grid->rowCount() - 1, 1);
    BuildBox(findcontrol::FolderBox, Texts::tr("In f&older"),
             Texts::tr("Folder whose files are searched"), *grid);
    auto* picker =
        AddControl(findcontrol::FolderPicker,
                   new CFileEditCtrl(CFileEditCtrl::Folders | CFileEditCtrl::ButtonAlone));
    QObject::connect(picker, &CFileEditCtrl::Changed, window, [this] { OnFolderPicked(); });
    grid->addWidget(picker, grid->rowCount() - 1, 2);
    grid->addWidget(
        AddControl(findcontrol::InOpenFiles, new QRadioButton(Texts::tr("In all open f&iles"))),
        grid->rowCount(), 0, 1, 2);

    auto* checks = new QGridLayout;
    left->addLayout(checks);
    const auto add = [&](UINT id, const char* label, int row, int column) {
        checks->addWidget(AddControl(id, new QCheckBox(Texts::tr(label))), row, column);
    };
    add(findcontrol::WholeWord, QT_TRANSLATE_NOOP("FindInFiles", "&Match whole word only"), 0, 0);
    add(findcontrol::MatchCase, QT_TRANSLATE_NOOP("FindInFiles", "M&atch case"), 1, 0);
    add(findcontrol::RegExp, QT_TRANSLATE_NOOP("FindInFiles", "Regular e&xpression"), 2, 0);
    add(findcontrol::SubFolders, QT_TRANSLATE_NOOP("FindInFiles", "&Look in subfolders"), 0, 1);
    add(findcontrol::OutputPane2, QT_TRANSLATE_NOOP("FindInFiles", "Output to pane &2"), 1, 1);
    add(findcontrol::CountOnly, QT_TRANSLATE_NOOP("FindInFiles", "&Just output matching count"), 2,
        1);
    left->addStretch();

    auto* buttons = new QVBoxLayout;
    columns->addLayout(buttons);
    const auto button = [&](UINT id, const QString& label) {
        auto* made = AddControl(id, new QPushButton(label));
        buttons->addWidget(made);
        return made;
    };
    button(IDOK, Texts::tr("&Find"))->setDefault(true);
    button(IDCANCEL, Texts::tr("&Cancel"));
    button(findcontrol::Advanced, Texts::tr("Ad&vanced >>"))->setAutoDefault(false);
    buttons->addStretch();
    BuildAdvanced(window);
    rows->addWidget(m_advanced);
    rows->addStretch();
}

void CFindInFilesDlg::BuildAdvanced(QWidget* window)
{
    // What a low screen has no room for is scrolled to.
    auto* area = new QScrollArea(window);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    auto* inside = new QWidget;
    area->setWidget(inside);
    m_advanced = area;
    auto* columns = new QHBoxLayout(inside);
    columns->setContentsMargins({});
    auto* rows = new QVBoxLayout;
    columns->addLayout(rows, 1);
    auto* label =
        AddControl(findcontrol::FoldersLabel, new QLabel(Texts::tr("Look in additional folders:")));
    auto* list = AddControl(findcontrol::Folders, new CZNBaseEditListBox);
    list->SetBrowse([this](const QString& start) {
        return BrowseForFolder(GetSafeHwnd(), Texts::tr("Browse for Folder"), start);
    });
    label->setBuddy(list);
    rows->addWidget(label);
    rows->addWidget(list);
    auto* add = AddControl(findcontrol::AddFolder, new QPushButton(Texts::tr("A&dd Folder")));
    add->setAutoDefault(false);
    columns->addWidget(add, 0, Qt::AlignTop);
    // The window is laid out to its last pixel at once, so that it grows by the pane alone.
    m_advanced->setMaximumHeight(kAdvancedHeight);
    m_advanced->hide();
}

bool CFindInFilesDlg::OnInitDialog()
{
    for (const UINT id : {findcontrol::FindBox, findcontrol::FolderBox, findcontrol::TypeBox})
        Refill(id);
    const CFindReplaceManager& manager = Manager();
    const auto check = [this](UINT id, bool on) {
        GetDlgItem<QAbstractButton>(id)->setChecked(on);
    };
    check(findcontrol::WholeWord, manager.GetWholeWord());
    check(findcontrol::MatchCase, manager.GetMatchCase());
    check(findcontrol::RegExp, manager.GetRegExp());
    check(findcontrol::SubFolders, manager.GetSubFolders());
    check(findcontrol::OutputPane2, manager.GetOutputPane2());
    check(findcontrol::CountOnly, manager.GetCountOnly());
    check(findcontrol::InFiles, true); // wherever the last search was
    OnWhere();
    OnRegExp();
    if (!m_text.isEmpty())
        Box(findcontrol::FindBox).setEditText(m_text);
    FocusBox(Box(findcontrol::FindBox));
    return false;
}

void CFindInFilesDlg::Refill(UINT id)
{
    CMyComboBox& box = Box(id);
    if (id == findcontrol::FindBox)
        Manager().FillFindCombo(box);
    else if (id == findcontrol::FolderBox)
        Manager().FillLocationCombo(box);
    else
        Manager().FillTypeCombo(box);
    box.setCurrentIndex(box.count() ? 0 : -1);
}

void CFindInFilesDlg::OnControl(UINT id, UINT code)
{
    if (code == CBN_DROPDOWN)
        Refill(id);
}

void CFindInFilesDlg::OnWhere()
{
    const bool inFiles = IsChecked(findcontrol::InFiles);
    if (!inFiles && m_bAdvancedOpen)
        OnAdvanced();
    for (const UINT id : {findcontrol::TypeBox, findcontrol::FolderBox, findcontrol::SubFolders,
                          findcontrol::Advanced, findcontrol::FolderPicker})
        GetDlgItem(id)->setEnabled(inFiles);
}

void CFindInFilesDlg::OnRegExp()
{
    GetDlgItem(findcontrol::FindMenu)->setEnabled(IsChecked(findcontrol::RegExp));
    ShowFault();
}

void CFindInFilesDlg::ShowFault()
{
    m_fault->Show(Box(findcontrol::FindBox).currentText(), IsChecked(findcontrol::RegExp));
}

// The window grows as far as its screen has room, and moves up for it.
void CFindInFilesDlg::OnAdvanced()
{
    constexpr int kLeast = 60; // of the pane, wherever the window ends
    m_bAdvancedOpen = !m_bAdvancedOpen;
    const HWND window = GetSafeHwnd();
    const QSize size = window->size();
    const QRect screen = window->screen()->availableGeometry();
    if (m_bAdvancedOpen)
        m_advancedHeight =
            std::clamp(screen.height() - window->frameGeometry().height(), kLeast, kAdvancedHeight);
    const int by = m_bAdvancedOpen ? m_advancedHeight : -m_advancedHeight;
    const int below = window->frameGeometry().bottom() + by - screen.bottom();
    m_advanced->setVisible(m_bAdvancedOpen);
    m_advanced->setFixedHeight(m_bAdvancedOpen ? by - window->layout()->spacing() : 0);
    window->layout()->activate();
    if (m_bAdvancedOpen && below > 0)
        window->move(window->x(), std::max(window->y() - below, screen.top()));
    window->resize(size.width(), size.height() + by);
    GetDlgItem<QPushButton>(findcontrol::Advanced)
        ->setText(m_bAdvancedOpen ? Texts::tr("Ad&vanced <<") : Texts::tr("Ad&vanced >>"));
}

void CFindInFilesDlg::OnAddFolder()
{
    CMyComboBox& box = Box(findcontrol::FolderBox);
    if (box.currentText().isEmpty())
        return;
    GetDlgItem<CZNBaseEditListBox>(findcontrol::Folders)->AddItem(box.currentText());
    box.clearEditText();
}

void CFindInFilesDlg::OnFolderPicked()
{
    const QString folder = GetDlgItem<CFileEditCtrl>(findcontrol::FolderPicker)->GetText();
    CMyComboBox& box = Box(findcontrol::FolderBox);
    box.addItem(folder);
    box.setEditText(folder);
}

void CFindInFilesDlg::OnInsert(const QString& row)
{
    if (!InsertItem(Box(findcontrol::FindBox), row))
        return;
    GetDlgItem<QAbstractButton>(findcontrol::RegExp)->setChecked(true);
    OnRegExp();
}

bool CFindInFilesDlg::Refuse(const QString& message, UINT id)
{
    ShowMessage(GetSafeHwnd(), message, MessageKind::Plain);
    if (GetSafeHwnd())
        FocusBox(Box(id));
    return false;
}

// What is in order enters its history, whatever comes behind it.
bool CFindInFilesDlg::TakePlaces()
{
    const QString types = Box(findcontrol::TypeBox).currentText();
    if (types.isEmpty())
        return Refuse(Texts::tr("Enter Type!"), findcontrol::TypeBox);
    Manager().AddTypeHistory(types);
    const QString folder = Box(findcontrol::FolderBox).currentText();
    if (folder.isEmpty())
        return Refuse(Texts::tr("Enter Path!"), findcontrol::FolderBox);
    if (!Exists(folder))
        return Refuse(Texts::tr("Path '%1' does not exists").arg(folder), findcontrol::FolderBox);
    Manager().AddLocationHistory(folder);
    return true;
}

void CFindInFilesDlg::OnOK()
{
    const QString text = Box(findcontrol::FindBox).currentText();
    if (text.isEmpty()) {
        Refuse(Texts::tr("Enter Find String!"), findcontrol::FindBox);
        return;
    }
    CFindReplaceManager& manager = Manager();
    manager.AddFindHistory(text);
    if (IsChecked(findcontrol::InFiles) && !TakePlaces())
        return;
    manager.SetWholeWord(IsChecked(findcontrol::WholeWord));
    manager.SetMatchCase(IsChecked(findcontrol::MatchCase));
    manager.SetRegExp(IsChecked(findcontrol::RegExp));
    manager.SetSubFolders(IsChecked(findcontrol::SubFolders));
    manager.SetOutputPane2(IsChecked(findcontrol::OutputPane2));
    manager.SetCountOnly(IsChecked(findcontrol::CountOnly));
    manager.SetFindIn(IsChecked(findcontrol::InFiles) ? 1 : 2);
    m_aFolders = {Box(findcontrol::FolderBox).currentText()};
    m_aFolders += GetDlgItem<CZNBaseEditListBox>(findcontrol::Folders)->GetItems();
    EndDialog(IDOK);
}

const CommandMap& CFindInFilesDlg::GetCommandMap() const
{
    using Self = CFindInFilesDlg;
    static constexpr CommandEntry kCommands[] = {
        {findcontrol::InFiles, [](CCmdTarget& t) { static_cast<Self&>(t).OnWhere(); }},
        {findcontrol::InOpenFiles, [](CCmdTarget& t) { static_cast<Self&>(t).OnWhere(); }},
        {findcontrol::RegExp, [](CCmdTarget& t) { static_cast<Self&>(t).OnRegExp(); }},
        {findcontrol::Advanced, [](CCmdTarget& t) { static_cast<Self&>(t).OnAdvanced(); }},
        {findcontrol::AddFolder, [](CCmdTarget& t) { static_cast<Self&>(t).OnAddFolder(); }},
    };
    static const CommandMap kMap{&CDialog::GetCommandMap(), kCommands, {}};
    return kMap;
}
