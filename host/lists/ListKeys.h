// SPDX-License-Identifier: GPL-3.0-or-later
// ListKeys: the keys that walk through a list and choose from it, pressed in the line above it.
#pragma once

#include <QObject>

#include <functional>

class QLineEdit;
class QListWidget;

// A child of the line.
class ListKeys final : public QObject
{
    Q_OBJECT

public:
    ListKeys(QLineEdit& line, QListWidget& list, std::function<void()> choose);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QListWidget& m_list;
    std::function<void()> m_choose; // may delete all three
};
