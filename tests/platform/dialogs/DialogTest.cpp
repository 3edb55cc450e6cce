// SPDX-License-Identifier: GPL-3.0-or-later
// Dialogs: numbered controls, values in and out, and how they end.
#include "platform/dialogs/Dialog.h"
#include "platform/dialogs/EditListBox.h"
#include "platform/dialogs/MenuButton.h"
#include "platform/dialogs/MyComboBox.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr UINT kNameId = 101;
constexpr UINT kCountId = 102;
constexpr UINT kFlagId = 103;
constexpr UINT kBoxId = 104;
constexpr UINT kExtraId = 105;

class Form : public CDialog
{
public:
    using CDialog::CDialog;

    QString name;
    int count = 0;
    bool flag = false;
    int extraClicks = 0;
    std::vector<UINT> told;

protected:
    void OnBuild(QWidget* window) override
    {
        auto* rows = new QVBoxLayout(window);
        rows->addWidget(AddControl(kNameId, new QLineEdit));
        rows->addWidget(AddControl(kCountId, new QLineEdit));
        rows->addWidget(AddControl(kFlagId, new QCheckBox));
        rows->addWidget(AddControl(kBoxId, new CMyComboBox));
        rows->addWidget(AddControl(kExtraId, new QPushButton));
        auto* ok = AddControl(IDOK, new QPushButton(QStringLiteral("OK")));
        ok->setDefault(true);
        rows->addWidget(ok);
        rows->addWidget(AddControl(IDCANCEL, new QPushButton(QStringLiteral("Cancel"))));
    }
    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Text(exchange, kNameId, name);
        DDX_Text(exchange, kCountId, count);
        DDX_Check(exchange, kFlagId, flag);
    }
    void OnControl(UINT id, UINT code) override
    {
        if (id == kBoxId)
            told.push_back(code);
    }
    const CommandMap& GetCommandMap() const override
    {
        static constexpr CommandEntry kCommands[] = {
            {kExtraId, [](CCmdTarget& target) { ++static_cast<Form&>(target).extraClicks; }}};
        static const CommandMap kMap{&CDialog::GetCommandMap(), kCommands, {}};
        return kMap;
    }
};

// Runs once the dialog stands.
template <class Action>
std::intptr_t RunModal(Form& form, Action action)
{
    QTimer::singleShot(0, QApplication::instance(), action);
    return form.DoModal();
}

} // namespace

TEST(Dialogs, ShowTheirValuesAndTakeThemBackWithOk)
{
    Form form;
    form.name = QStringLiteral("one");
    form.count = 7;
    const auto result = RunModal(form, [&] {
        EXPECT_EQ(form.GetDlgItem<QLineEdit>(kNameId)->text(), QStringLiteral("one"));
        EXPECT_EQ(form.GetDlgItem<QLineEdit>(kCountId)->text(), QStringLiteral("7"));
        form.GetDlgItem<QLineEdit>(kNameId)->setText(QStringLiteral("two"));
        form.GetDlgItem<QCheckBox>(kFlagId)->setChecked(true);
        form.GetDlgItem<QPushButton>(IDOK)->click();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(form.name, QStringLiteral("two"));
    EXPECT_TRUE(form.flag);
    EXPECT_FALSE(form.GetSafeHwnd());
}

TEST(Dialogs, LeaveTheirValuesAloneWithEscapeAndWithTheWindowsClosing)
{
    Form form;
    form.name = QStringLiteral("one");
    const auto type = [&] { form.GetDlgItem<QLineEdit>(kNameId)->setText(QStringLiteral("two")); };
    EXPECT_EQ(RunModal(form,
                       [&] {
                           type();
                           QTest::keyClick(form.GetSafeHwnd(), Qt::Key_Escape);
                       }),
              IDCANCEL);
    EXPECT_EQ(RunModal(form,
                       [&] {
                           type();
                           form.GetSafeHwnd()->close();
                       }),
              IDCANCEL);
    EXPECT_EQ(form.name, QStringLiteral("one"));
}

TEST(Dialogs, EndWithOkByEnterInAnEdit)
{
    Form form;
    const auto result = RunModal(
        form, [&] { QTest::keyClick(form.GetDlgItem<QLineEdit>(kNameId), Qt::Key_Return); });
    EXPECT_EQ(result, IDOK);
}

TEST(Dialogs, StayOpenWithTheFocusOnATextThatIsNoNumber)
{
    Form form;
    RunModal(form, [&] {
        form.GetDlgItem<QLineEdit>(kCountId)->setText(QStringLiteral("many"));
        form.GetDlgItem<QPushButton>(IDOK)->click();
        EXPECT_EQ(form.GetSafeHwnd()->focusWidget(), form.GetDlgItem(kCountId));
        form.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(form.count, 0);
}

TEST(Dialogs, GiveTheNumberThatTheyAreEndedWith)
{
    Form form;
    EXPECT_EQ(RunModal(form, [&] { form.EndDialog(77); }), 77);
}

TEST(Dialogs, SurviveTheEndOfTheirOwnersWindow)
{
    auto* owner = new QWidget;
    CWnd wnd;
    wnd.Attach(owner);
    Form form(&wnd);
    EXPECT_EQ(RunModal(form, [owner] { delete owner; }), IDCANCEL);
}

TEST(Dialogs, RunTheCommandsOfTheirButtons)
{
    Form form;
    ASSERT_TRUE(form.Create(nullptr));
    form.GetDlgItem<QPushButton>(kExtraId)->click();
    EXPECT_EQ(form.extraClicks, 1);
}

TEST(Dialogs, StayWithTheirContentsWhenAModelessOneIsCancelled)
{
    Form form;
    ASSERT_TRUE(form.Create(nullptr));
    EXPECT_FALSE(form.Create(nullptr));
    form.GetSafeHwnd()->show();
    form.GetDlgItem<QLineEdit>(kNameId)->setText(QStringLiteral("kept"));
    form.GetDlgItem<QPushButton>(IDCANCEL)->click();
    EXPECT_FALSE(IsWindowVisible(form.GetSafeHwnd()));
    EXPECT_EQ(form.GetDlgItem<QLineEdit>(kNameId)->text(), QStringLiteral("kept"));
}

TEST(Dialogs, MoveBesideAPlaceThatTheyCover)
{
    Form form;
    form.Create(nullptr);
    form.GetSafeHwnd()->show();
    form.GetSafeHwnd()->move(100, 100);
    const QRect place(form.GetSafeHwnd()->frameGeometry().center(), QSize(10, 10));
    form.KeepOff(place);
    EXPECT_FALSE(form.GetSafeHwnd()->frameGeometry().intersects(place));
    EXPECT_TRUE(
        form.GetSafeHwnd()->screen()->geometry().contains(form.GetSafeHwnd()->frameGeometry()));
}

TEST(Dialogs, HearOfAListBeforeItDropsDown)
{
    Form form;
    form.Create(nullptr);
    form.GetSafeHwnd()->show();
    auto* box = form.GetDlgItem<CMyComboBox>(kBoxId);
    box->showPopup();
    EXPECT_EQ(form.told, (std::vector<UINT>{CBN_DROPDOWN}));
    box->hidePopup();
}

TEST(HistoryBoxes, PutTheCaretBackWhereTheUserLeftIt)
{
    Form form;
    form.Create(nullptr);
    form.GetSafeHwnd()->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.GetSafeHwnd()));
    auto* box = form.GetDlgItem<CMyComboBox>(kBoxId);
    box->setEditText(QStringLiteral("abcdef"));
    box->setFocus();
    box->lineEdit()->setSelection(2, 3);
    form.GetDlgItem<QLineEdit>(kNameId)->setFocus();
    box->lineEdit()->setCursorPosition(0);
    box->RestoreEditSelection();
    EXPECT_EQ(box->lineEdit()->selectedText(), QStringLiteral("cde"));
}

TEST(HistoryBoxes, ShowListsAsWideAsTheirWidestItem)
{
    CMyComboBox box;
    box.addItem(QString(60, u'W'));
    box.resize(80, box.sizeHint().height());
    box.show();
    box.showPopup();
    EXPECT_GE(box.view()->width(), box.fontMetrics().horizontalAdvance(QString(60, u'W')));
    box.hidePopup();
}

TEST(MenuButtons, TellTheWholeRowOfTheChosenItem)
{
    CMenuButton button(QStringLiteral(">"));
    button.SetItems({QStringLiteral("Any character\t."), QStringLiteral("Left & right")});
    QString chosen;
    QObject::connect(&button, &CMenuButton::Chosen, [&](const QString& row) { chosen = row; });
    button.menu()->actions()[0]->trigger();
    EXPECT_EQ(chosen, QStringLiteral("Any character\t."));
    EXPECT_EQ(button.menu()->actions()[1]->text(), QStringLiteral("Left && right"));
}

TEST(EditLists, AddMoveAndRemoveItemsByKeys)
{
    CZNBaseEditListBox box;
    box.SetItems({QStringLiteral("a"), QStringLiteral("b")});
    auto* list = box.findChild<QListWidget*>();
    box.SetCurSel(1);
    QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(box.GetItems(), (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(box.GetItems(), QStringList{QStringLiteral("a")});
}

TEST(EditLists, TakeTheTextOfAnItemThatIsBrowsedFor)
{
    CZNBaseEditListBox box;
    box.SetItems({QStringLiteral("old")});
    box.SetCurSel(0);
    box.SetBrowse([](const QString& text) { return text + QStringLiteral("/new"); });
    box.findChildren<QToolButton*>().last()->click();
    EXPECT_EQ(box.GetItems(), QStringList{QStringLiteral("old/new")});
}
