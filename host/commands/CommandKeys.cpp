// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/commands/CommandKeys.h"

#include "host/files/Places.h"
#include "platform/system/SettingsFile.h"

#include <QAction>
#include <QSet>

namespace {

const QString kGroup = QStringLiteral("Keys");
constexpr QChar kBetween = u'\t'; // of two keys; a comma is a key

QString PlaceOf(const QString& name)
{
    return kGroup + u'/' + settingsfile::Segment(name);
}

QString Written(const QList<QKeySequence>& keys)
{
    QStringList names;
    for (const QKeySequence& key : keys)
        names << key.toString(QKeySequence::PortableText);
    return names.join(kBetween);
}

QList<QKeySequence> KeysOf(const QString& written)
{
    QList<QKeySequence> keys;
    for (const QString& name : written.split(kBetween, Qt::SkipEmptyParts)) {
        const QKeySequence key(name, QKeySequence::PortableText);
        if (CommandKeys::IsForCommands(key) && !keys.contains(key))
            keys << key;
    }
    return keys;
}

QSet<int>& SpokenFor()
{
    static QSet<int> keys;
    return keys;
}

} // namespace

CommandKeys::CommandKeys(const QList<QAction*>& commands)
{
    for (QAction* command : commands) {
        if (!command->objectName().isEmpty())
            m_rows.insert(command->objectName(), {command, command->shortcuts()});
    }
    Load();
    Speak();
}

void CommandKeys::Load()
{
    const auto settings = settingsfile::Read(places::SettingsPath());
    if (!settings)
        return;
    for (auto row = m_rows.begin(); row != m_rows.end(); ++row) {
        const auto kept = settings->Value(PlaceOf(row.key()));
        if (!kept)
            continue;
        // A delivered key may be one that nobody could give.
        QList<QKeySequence> keys = KeysOf(*kept);
        for (const QKeySequence& key : row->delivered) {
            if (!IsForCommands(key) && kept->split(kBetween).contains(key.toString()))
                keys << key;
        }
        Take(keys, *row->action);
        row->action->setShortcuts(keys);
    }
}

bool CommandKeys::Save() const
{
    const auto change = [this](SettingsText& settings) {
        for (auto row = m_rows.begin(); row != m_rows.end(); ++row) {
            const QAction* action = row->action;
            if (!action)
                continue;
            if (action->shortcuts() != row->delivered)
                settings.SetValue(PlaceOf(row.key()), Written(action->shortcuts()));
            else
                settings.RemoveValue(PlaceOf(row.key()));
        }
        return true;
    };
    return settingsfile::Change(places::SettingsPath(), change) != settingsfile::Outcome::Failed;
}

bool CommandKeys::Has(const QAction& command) const
{
    const auto row = m_rows.find(command.objectName());
    return row != m_rows.end() && row->action == &command;
}

bool CommandKeys::IsChanged(const QAction& command) const
{
    return Has(command) && command.shortcuts() != Delivered(command);
}

QList<QKeySequence> CommandKeys::Delivered(const QAction& command) const
{
    return m_rows.value(command.objectName()).delivered;
}

QAction* CommandKeys::OwnerOf(const QKeySequence& key) const
{
    for (const Row& row : m_rows) {
        if (row.action && row.action->shortcuts().contains(key))
            return row.action;
    }
    return nullptr;
}

void CommandKeys::Take(const QList<QKeySequence>& keys, const QAction& keeper)
{
    for (const QKeySequence& key : keys) {
        for (const Row& row : std::as_const(m_rows)) {
            if (!row.action || row.action == &keeper || !row.action->shortcuts().contains(key))
                continue;
            QList<QKeySequence> left = row.action->shortcuts();
            left.removeAll(key);
            row.action->setShortcuts(left);
        }
    }
}

bool CommandKeys::Set(QAction& command, const QList<QKeySequence>& keys)
{
    Take(keys, command);
    command.setShortcuts(keys);
    Speak();
    return Save();
}

bool CommandKeys::Give(QAction& command, const QKeySequence& key)
{
    QList<QKeySequence> keys = command.shortcuts();
    if (!keys.isEmpty())
        keys.removeFirst();
    keys.removeAll(key);
    keys.prepend(key);
    return Set(command, keys);
}

bool CommandKeys::ResetAll()
{
    for (const Row& row : std::as_const(m_rows)) {
        if (row.action)
            row.action->setShortcuts(row.delivered);
    }
    Speak();
    return settingsfile::RemoveGroup(places::SettingsPath(), kGroup) !=
           settingsfile::Outcome::Failed;
}

QKeySequence CommandKeys::Plain(const QKeySequence& keys)
{
    if (keys.isEmpty())
        return {};
    const Qt::Key key = keys[0].key() == Qt::Key_Backtab ? Qt::Key_Tab : keys[0].key();
    return QKeyCombination(keys[0].keyboardModifiers() & ~Qt::KeypadModifier, key);
}

bool CommandKeys::IsForCommands(const QKeySequence& key)
{
    if (key.count() != 1 || key[0].key() == Qt::Key_unknown)
        return false;
    if (key[0].keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return true;
    const int code = key[0].key();
    return code >= Qt::Key_F1 && code <= Qt::Key_F35;
}

bool CommandKeys::IsSpokenFor(QKeyCombination key)
{
    return SpokenFor().contains(key.toCombined());
}

// A key table below the menus may have it still, and so would have it again whenever the menu's
// command is not possible.
void CommandKeys::Speak() const
{
    SpokenFor().clear();
    for (const Row& row : m_rows) {
        if (!row.action || row.action->shortcuts() == row.delivered)
            continue;
        for (const QKeySequence& key : row.delivered + row.action->shortcuts()) {
            if (IsForCommands(key))
                SpokenFor().insert(key[0].toCombined());
        }
    }
}
