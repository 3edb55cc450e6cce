// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are dragged onto a widget are opened, instead of their names being put into a text.
#pragma once

#include <QObject>

class QDropEvent;
class QWidget;

class FileDrops final : public QObject
{
public:
    // From the event on, for the widget and, of a scroll area, what it scrolls. The application's
    // documents take the files.
    static void Take(QWidget& onto);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
    static void Open(const QDropEvent& drop);
};
