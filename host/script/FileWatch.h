// SPDX-License-Identifier: GPL-3.0-or-later
// FileWatch: looks at a script's file every few seconds while its editor is in front of the person,
// and nobody is typing: a question would take the keys.
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

class FileWatch final : public QObject
{
public:
    FileWatch(QWidget& editor, std::function<void()> look); // goes with the editor's window

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();

    QWidget& m_editor;
    std::function<void()> m_look;
    QTimer m_timer;
};
