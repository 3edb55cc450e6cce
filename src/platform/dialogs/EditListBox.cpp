// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dialogs/EditListBox.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QStyle>
#include <QToolButton>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(EditListBox)
};

} // namespace

CZNBaseEditListBox::CZNBaseEditListBox(QWidget* parent)
    : QWidget(parent), m_list(new QListWidget(this))
{
    auto* rows = new QHBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(m_list, 1);
    auto* buttons = new QVBoxLayout;
    rows->addLayout(buttons);
    const auto add = [&](const char* text, const char* name, std::function<void()> run) {
        buttons->addWidget(AddButton(text, Texts::tr(name), std::move(run)));
    };
    add("+", QT_TRANSLATE_NOOP("EditListBox", "Add"), [this] { NewItem(); });
    add("\u2212", QT_TRANSLATE_NOOP("EditListBox", "Remove"), [this] { DeleteItem(); });
    add("\u2191", QT_TRANSLATE_NOOP("EditListBox", "Move up"), [this] { MoveItem(-1); });
    add("\u2193", QT_TRANSLATE_NOOP("EditListBox", "Move down"), [this] { MoveItem(1); });
    m_browseButton = AddButton("...", Texts::tr("Browse"), [this] { Browse(); });
    m_browseButton->hide();
    buttons->addWidget(m_browseButton);
    buttons->addStretch();

    setFocusProxy(m_list);
    m_list->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_list->installEventFilter(this);
    connect(m_list, &QListWidget::itemChanged, this, &CZNBaseEditListBox::Changed);
    connect(m_list->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            &CZNBaseEditListBox::DropEmpty, Qt::QueuedConnection);
}

QToolButton* CZNBaseEditListBox::AddButton(const char* icon, const QString& name,
                                           std::function<void()> run)
{
    auto* button = new QToolButton(this);
    button->setText(QString::fromUtf8(icon));
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(button, &QToolButton::clicked, this, std::move(run));
    return button;
}

void CZNBaseEditListBox::SetBrowse(std::function<QString(const QString&)> browse)
{
    m_browse = std::move(browse);
    m_browseButton->setVisible(m_browse != nullptr);
}

void CZNBaseEditListBox::AddItem(const QString& text)
{
    auto* item = new QListWidgetItem(text);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    m_list->addItem(item);
    Q_EMIT Changed();
}

void CZNBaseEditListBox::SetItems(const QStringList& items)
{
    m_list->clear();
    for (const QString& item : items)
        AddItem(item);
    Q_EMIT Changed();
}

QStringList CZNBaseEditListBox::GetItems() const
{
    QStringList items;
    for (int row = 0; row < m_list->count(); ++row) {
        if (const QString text = m_list->item(row)->text(); !text.isEmpty())
            items += text;
    }
    return items;
}

int CZNBaseEditListBox::GetCurSel() const
{
    return m_list->currentRow();
}

void CZNBaseEditListBox::SetCurSel(int row)
{
    m_list->setCurrentRow(row);
}

void CZNBaseEditListBox::NewItem()
{
    AddItem(QString());
    m_list->setCurrentRow(m_list->count() - 1);
    m_list->editItem(m_list->currentItem());
}

void CZNBaseEditListBox::DeleteItem()
{
    delete m_list->takeItem(m_list->currentRow());
    Q_EMIT Changed();
}

void CZNBaseEditListBox::MoveItem(int by)
{
    const int row = m_list->currentRow();
    const int target = row + by;
    if (row < 0 || target < 0 || target >= m_list->count())
        return;
    m_list->insertItem(target, m_list->takeItem(row));
    m_list->setCurrentRow(target);
    Q_EMIT Changed();
}

void CZNBaseEditListBox::Browse()
{
    QListWidgetItem* current = m_list->currentItem();
    const QString text = m_browse(current ? current->text() : QString());
    if (text.isEmpty())
        return;
    if (current)
        current->setText(text);
    else
        AddItem(text);
}

// The item that is being written is empty for as long as nothing has been typed.
void CZNBaseEditListBox::DropEmpty()
{
    const QWidget* focused = QApplication::focusWidget();
    const bool isWriting = focused && focused != m_list && m_list->isAncestorOf(focused);
    for (int row = m_list->count() - 1; row >= 0; --row) {
        if (m_list->item(row)->text().isEmpty() && !(isWriting && row == m_list->currentRow()))
            delete m_list->takeItem(row);
    }
}

bool CZNBaseEditListBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_list || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isAlt = key->modifiers() == Qt::AltModifier;
    if (key->key() == Qt::Key_Insert)
        NewItem();
    else if (key->key() == Qt::Key_Delete)
        DeleteItem();
    else if (isAlt && key->key() == Qt::Key_Up)
        MoveItem(-1);
    else if (isAlt && key->key() == Qt::Key_Down)
        MoveItem(1);
    else
        return false;
    return true;
}
