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
