// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/options/OptionsDialog.h"
#include "host/options/WorkbenchOptions.h"
#include "tests/host/ScriptedPrompts.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QTest>

#include <gtest/gtest.h>

TEST(TheOptions, OfTheWorkbenchHelpTypingUnlessSomebodyHasChosen)
{
    for (const int key : {option::ClosePairs, option::SurroundSelection}) {
        const QString kept = CZNOptionsServer::GetObjectW()->GetString(key);
        WorkbenchOptions options;
        ASSERT_EQ(CZNOptionsServer::GetObjectW(), &options);
        options.SetString(key, QString());
        EXPECT_TRUE(options.GetBool(key));
        EXPECT_FALSE(CZNOptionsServer().GetBool(key));
        options.SetInt(key, 0);
        EXPECT_FALSE(options.GetBool(key));
        options.SetString(key, kept);
    }
}

TEST(TheOptions, HaveTheirButtonsOnAScreenThatIsTooLowForAllRows)
{
    OptionsDialog dialog(nullptr);
    dialog.show();
    constexpr int kLow = 240; // pixels
    dialog.resize(dialog.width(), kLow);
    QApplication::processEvents();
    EXPECT_EQ(dialog.height(), kLow);
    const auto* buttons = dialog.findChild<QDialogButtonBox*>();
    EXPECT_TRUE(dialog.rect().contains(buttons->geometry()));
    for (QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
         dialog.focusWidget()->objectName() != QLatin1String("printPoints");
         QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab)) {
        const QWidget* field = dialog.focusWidget();
        EXPECT_FALSE(field->visibleRegion().isEmpty()) << field->objectName().toStdString();
    }
}

// From the top, as it is read.
TEST(TheOptions, AreWalkedThroughRowByRow)
{
    OptionsDialog dialog(nullptr);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const auto top = [&dialog](const QWidget* field) {
        return field->mapTo(&dialog, QPoint()).y();
    };
    QWidget* const first = dialog.focusWidget();
    ASSERT_NE(first, nullptr);
    int rows = 1;
    int reached = top(first);
    for (QTest::keyClick(first, Qt::Key_Tab); dialog.focusWidget() != first && rows < 100; ++rows) {
        EXPECT_GE(top(dialog.focusWidget()), reached);
        reached = top(dialog.focusWidget());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_GT(rows, 10);
    EXPECT_LT(rows, 100);
}

TEST(TheOptions, KeepTheFontWhereOneIsTypedThatIsNotThere)
{
    ScriptedPrompts prompts;
    OptionsDialog dialog(nullptr);
    dialog.show();
    for (const char* name : {"font", "printFont"}) {
        auto* box = dialog.findChild<QFontComboBox*>(QLatin1String(name));
        const QString set = box->currentText();
        box->setEditText(QStringLiteral("Zzz Nofont"));
        dialog.accept();
        EXPECT_EQ(dialog.result(), 0);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(box->currentText(), set);
    }
    EXPECT_EQ(prompts.told, QStringList(2, "There is no font “Zzz Nofont”."));
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

// Settings may come from another machine.
TEST(TheOptions, ShowTheFontThatIsSetAndKeepItUnlessAnotherIsTyped)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    const auto face = [&options] {
        LOGFONT font;
        EXPECT_TRUE(options.GetLOGFONT(option::EditorFont, &font));
        return QString::fromUtf16(font.lfFaceName);
    };
    LOGFONT kept;
    options.GetLOGFONT(option::EditorFont, &kept);
    LOGFONT elsewhere;
    std::u16string(u"Font Of Elsewhere").copy(elsewhere.lfFaceName, 31);
    elsewhere.lfHeight = -13;
    options.SetLOGFONT(option::EditorFont, &elsewhere);
    OptionsDialog dialog(nullptr);
    auto* box = dialog.findChild<QFontComboBox*>(QStringLiteral("font"));
    EXPECT_EQ(box->currentText(), "Font Of Elsewhere");
    dialog.accept();
    dialog.Store();
    EXPECT_EQ(face(), "Font Of Elsewhere");
    const QString own = QFontDatabase::families().value(0);
    box->setEditText(own.toUpper());
    dialog.accept();
    dialog.Store();
    EXPECT_EQ(face(), own);
    options.SetLOGFONT(option::EditorFont, &kept);
}
