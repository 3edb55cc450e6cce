// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader says of the workbench: everything that takes keys has a name.
#include "host/files/OpenAsDialog.h"
#include "host/files/SaveAsDialog.h"
#include "host/options/OptionsDialog.h"
#include "host/recovery/RecoveryDialog.h"
#include "host/session/AutosaveDialog.h"
#include "tests/host/WorkbenchTest.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QTreeWidget>

namespace {

class AccessibleNames : public WorkbenchTest
{
protected:
    static bool TakesKeys(const QWidget* widget)
    {
        const bool isPart = qobject_cast<QComboBox*>(widget->parentWidget()) ||
                            qobject_cast<QAbstractSpinBox*>(widget->parentWidget());
        return !isPart && widget->focusPolicy() != Qt::NoFocus &&
               (qobject_cast<const QAbstractButton*>(widget) ||
                qobject_cast<const QComboBox*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
                qobject_cast<const QAbstractSpinBox*>(widget) ||
                qobject_cast<const QTreeWidget*>(widget));
    }

    static void ExpectNames(const QWidget& window)
    {
        int named = 0;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!TakesKeys(widget))
                continue;
            const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
            ASSERT_TRUE(spoken);
            EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty())
                << widget->metaObject()->className() << " " << widget->objectName().toStdString();
            ++named;
        }
        EXPECT_GT(named, 0);
    }
};

} // namespace

TEST_F(AccessibleNames, AreThereForTheWindow)
{
    Open("a.sql", "select 1;\n");
    Trigger("expand");
    Trigger("find");
    ExpectNames(m_window);
}

TEST_F(AccessibleNames, AreThereForTheTexts)
{
    Open("a.sql", "#define &&A 1\n");
    Trigger("expand");
    Trigger("nextArea");
    for (QWidget* text : {Editor().GetSafeHwnd(), m_window.focusWidget()}) {
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(text);
        ASSERT_TRUE(spoken);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty());
    }
}

TEST_F(AccessibleNames, AreThereForTheDialogs)
{
    ExpectNames(OptionsDialog(&m_window));
    ExpectNames(AutosaveDialog(&m_window, AutosaveSettings()));
    ExpectNames(OpenAsDialog(&m_window, m_folder.path()));
    ExpectNames(RecoveryDialog(&m_window, {RecoverableCopy(), RecoverableCopy()}));
    ExpectNames(SaveAsDialog(&m_window, SaveTarget{PathOf("a.sql"), 6, false}));
}
