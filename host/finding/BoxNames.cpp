// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/BoxNames.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>

namespace {

class NamedBox final : public QAccessibleWidget
{
public:
    explicit NamedBox(QComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), m_box(box)
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_box.currentText() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = m_box.view()->isVisible();
        state.editable = m_box.isEditable();
        return state;
    }

    // Its list, and the line where one types.
    int childCount() const override { return m_box.isEditable() ? 2 : 1; }

    QAccessibleInterface* child(int index) const override
    {
        if (index == 0)
            return QAccessible::queryAccessibleInterface(m_box.view());
        return index == 1 && m_box.isEditable()
                   ? QAccessible::queryAccessibleInterface(m_box.lineEdit())
                   : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* part) const override
    {
        if (part->object() == m_box.view())
            return 0;
        return m_box.isEditable() && part->object() == m_box.lineEdit() ? 1 : -1;
    }

    QStringList actionNames() const override
    {
        return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        if (name != showMenuAction())
            QAccessibleWidget::doAction(name);
        else if (m_box.view()->isVisible())
            m_box.hidePopup();
        else
            m_box.showPopup();
    }

    QStringList keyBindingsForAction(const QString& name) const override
    {
        return name == showMenuAction()
                   ? QStringList(QKeySequence(Qt::ALT | Qt::Key_Down).toString())
                   : QAccessibleWidget::keyBindingsForAction(name);
    }

private:
    QComboBox& m_box; // which the interface goes with
};

QAccessibleInterface* MakeNamedBox(const QString& className, QObject* object)
{
    if (className != QLatin1String(QComboBox::staticMetaObject.className()))
        return nullptr;
    auto* box = qobject_cast<QComboBox*>(object);
    return box && box->isEditable() && !box->accessibleName().isEmpty() ? new NamedBox(*box)
                                                                        : nullptr;
}

} // namespace

void KeepBoxNames()
{
    QAccessible::installFactory(MakeNamedBox); // which Qt asks before its own
}
