// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are dragged onto a widget are opened, instead of their names being put into a text; a
// folder is shown.
#pragma once

#include <QObject>

class QDropEvent;
class QString;
class QWidget;

// A window that shows the files of a folder.
class FolderShower
{
public:
    virtual void ShowFolder(const QString& path) = 0;

protected:
    ~FolderShower() = default;
};

class FileDrops final : public QObject
{
public:
    // From the event on, for the widget and, of a scroll area, what it scrolls. The application's
    // documents take the files; the widget's window the first of the folders, if it shows any.
    static void Take(QWidget& onto);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
    void Open(const QDropEvent& drop);
};
