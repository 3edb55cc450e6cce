// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/lists/ListFrame.h"

#include <QFrame>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

void FrameList(QWidget& popup, QLineEdit& line, QListWidget& list)
{
    auto* frame = new QFrame(&popup);
    frame->setFrameShape(QFrame::StyledPanel);
    auto* whole = new QVBoxLayout(&popup);
    whole->setContentsMargins({});
    whole->addWidget(frame);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(&line);
    layout->addWidget(&list);
}

void EndList(QListWidget& list, const QString& none)
{
    if (list.count() > 0) {
        list.setCurrentRow(0);
        return;
    }
    auto* row = new QListWidgetItem(none, &list);
    row->setFlags(Qt::NoItemFlags);
    row->setForeground(list.palette().text()); // it is to be read
}
