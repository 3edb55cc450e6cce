// SPDX-License-Identifier: GPL-3.0-or-later
// CommandKeys: the keys of the menus' commands, the delivered ones and those that people give,
// which the user's settings keep by the names of the commands.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QString>

class QAction;

class CommandKeys final
{
public:
    // The commands stay the caller's. Those without a name are left alone; the keys that the others
    // have are the delivered ones, and each gets those that a person has given it.
    explicit CommandKeys(const QList<QAction*>& commands);

    bool Has(const QAction& command) const;
    bool IsChanged(const QAction& command) const;
    QList<QKeySequence> Delivered(const QAction& command) const;
    QAction* OwnerOf(const QKeySequence& key) const; // null: nobody

    // These and no others. Whoever has had one of them loses it. False if it cannot be kept for the
    // next start.
    bool Set(QAction& command, const QList<QKeySequence>& keys);
    // In place of the first one.
    bool Give(QAction& command, const QKeySequence& key);
    bool ResetAll();

    // One chord as it is compared and written, whatever the keyboard tells with it.
    static QKeySequence Plain(const QKeySequence& keys);
    // Neither what types, nor what moves the caret or leaves a field.
    static bool IsForCommands(const QKeySequence& key);
    // Whether a person has said of a key what it does, or that it does nothing. Nobody below the
    // menus acts upon it then.
    static bool IsSpokenFor(QKeyCombination key);

private:
    struct Row
    {
        QPointer<QAction> action;
        QList<QKeySequence> delivered;
    };

    void Load();
    bool Save() const;
    void Take(const QList<QKeySequence>& keys, const QAction& keeper);
    void Speak() const;

    QMap<QString, Row> m_rows; // by the names
};
