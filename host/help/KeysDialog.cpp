// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/help/KeysDialog.h"

#include "common/Translations.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kCommand = 0;
constexpr int kKeys = 1;

QString Plain(const QString& text)
{
    // What an update rule has given a name brings a key along behind a tab.
    return zncoreeditor::WithoutMnemonic(text.section(u'\t', 0, 0)).remove(QStringLiteral("..."));
}

} // namespace

KeysDialog::KeysDialog(const QMenuBar& menus, QWidget* parent)
    : QDialog(parent), m_words(new QLineEdit(this)), m_list(new QTreeWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("keysDialog"));
    setWindowTitle(tr("Keys"));
    m_words->setPlaceholderText(tr("Part of a command or of a key"));
    m_words->setAccessibleName(tr("Filter"));
    m_words->setClearButtonEnabled(true);
    m_list->setAccessibleName(tr("Commands and keys"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setHeaderLabels({tr("Command"), tr("Keys")});
    for (const QAction* menu : menus.actions()) {
        if (menu->menu())
            Collect(menu->menu()->actions(), Plain(menu->text()) + QStringLiteral(" \u203A "));
    }
    m_list->header()->setSectionResizeMode(kKeys, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_words);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(m_words, &QLineEdit::textChanged, this, &KeysDialog::Filter);
    // Keys have long names in some languages, which must not leave commands without room.
    constexpr QSize kSize(620, 480);
    constexpr int kRim = 60; // pixels, of the frame and a scroll bar
    m_list->header()->setSectionResizeMode(kCommand, QHeaderView::ResizeToContents);
    const int columns = m_list->columnWidth(kCommand) + m_list->columnWidth(kKeys);
    m_list->header()->setSectionResizeMode(kCommand, QHeaderView::Stretch);
    resize(kSize.expandedTo({columns + kRim, 0}));
}

void KeysDialog::Collect(const QList<QAction*>& actions, const QString& path)
{
    for (const QAction* action : actions) {
        const QString name = path + Plain(action->text());
        if (action->menu()) {
            Collect(action->menu()->actions(), name + QStringLiteral(" \u203A "));
            continue;
        }
        QStringList keys;
        for (const QKeySequence& key : action->shortcuts())
            keys << key.toString(QKeySequence::NativeText);
        if (!action->isSeparator() && !keys.isEmpty())
            new QTreeWidgetItem(m_list, {name, keys.join(QStringLiteral(", "))});
    }
}

// Each word has to stand in the command or in its keys.
void KeysDialog::Filter(const QString& words)
{
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = m_list->topLevelItem(i);
        item->setHidden(!std::all_of(wanted.begin(), wanted.end(), [item](const QString& word) {
            return item->text(kCommand).contains(word, Qt::CaseInsensitive) ||
                   item->text(kKeys).contains(word, Qt::CaseInsensitive);
        }));
    }
}
