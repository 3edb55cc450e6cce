// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/CommandPalette.h"

#include "common/Translations.h"
#include "host/lists/ListFrame.h"
#include "host/lists/ListKeys.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace {

constexpr int kEntry = Qt::UserRole; // its place among the entries

QString Plain(const QString& text)
{
    // What an update rule has given a name brings a key along behind a tab.
    return zncoreeditor::WithoutMnemonic(text.section(u'\t', 0, 0)).remove(QStringLiteral("..."));
}

} // namespace

CommandPalette::CommandPalette(const QMenuBar& menus, QWidget* parent)
    : QDialog(parent, Qt::Popup), m_words(new QLineEdit(this)), m_list(new QListWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("commandPalette"));
    setAccessibleName(tr("Commands"));
    m_words->setPlaceholderText(tr("Type what a command is called"));
    m_words->setAccessibleName(tr("Command"));
    m_list->setAccessibleName(tr("Commands"));
    m_list->setUniformItemSizes(true);
    FrameList(*this, *m_words, *m_list);
    Collect(menus.actions(), {});
    connect(m_words, &QLineEdit::textChanged, this, &CommandPalette::Filter);
    connect(m_list, &QListWidget::itemClicked, this, &CommandPalette::Choose);
    new ListKeys(*m_words, *m_list, [this] { Choose(); }); // goes with the line
    Filter({});
    constexpr QSize kSize(560, 360);
    resize(kSize);
    m_words->setFocus();
}

void CommandPalette::Collect(const QList<QAction*>& actions, const QString& path)
{
    for (QAction* action : actions) {
        const QString name = path + Plain(action->text());
        if (action->menu())
            Collect(action->menu()->actions(), name + QStringLiteral(" \u203A "));
        else if (!action->isSeparator())
            m_entries.push_back({name, action});
    }
}

// Each word has to stand somewhere in the name. What cannot be done comes in grey.
void CommandPalette::Filter(const QString& words)
{
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    m_list->clear();
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const Entry& entry = m_entries[i];
        const bool fits =
            entry.action && std::all_of(wanted.begin(), wanted.end(), [&](auto& word) {
                return entry.name.contains(word, Qt::CaseInsensitive);
            });
        if (!fits)
            continue;
        const QString keys = entry.action->shortcut().toString(QKeySequence::NativeText);
        auto* item = new QListWidgetItem(
            keys.isEmpty() ? entry.name : entry.name + QStringLiteral("    ") + keys, m_list);
        item->setData(kEntry, static_cast<int>(i));
        if (!entry.action->isEnabled())
            item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
    }
    EndList(*m_list, tr("No command has these words in its name"));
}

// The palette is gone before the command runs, so that it finds the focus where it was.
void CommandPalette::Choose()
{
    const QListWidgetItem* item = m_list->currentItem();
    if (!item || !item->data(kEntry).isValid())
        return;
    const QPointer<QAction> action =
        m_entries[static_cast<std::size_t>(item->data(kEntry).toInt())].action;
    close();
    if (action && action->isEnabled())
        QMetaObject::invokeMethod(action.data(), &QAction::trigger, Qt::QueuedConnection);
}
