// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/FileWatch.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::seconds kPause(3);

} // namespace

FileWatch::FileWatch(QWidget& editor, std::function<void()> look)
    : QObject(&editor), m_editor(editor), m_look(std::move(look)), m_timer(this)
{
    m_timer.setObjectName(QStringLiteral("fileWatch"));
    m_timer.setInterval(kPause);
    connect(&m_timer, &QTimer::timeout, this, &FileWatch::Look);
    editor.installEventFilter(this);
}

// Hidden editors cost nothing; their files are looked at when they are shown.
bool FileWatch::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Hide:
        m_timer.stop();
        break;
    case QEvent::Show:
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        m_timer.start();
        break;
    default:
        break;
    }
    return false;
}

void FileWatch::Look()
{
    if (m_editor.isVisible() && m_editor.isActiveWindow() && !QApplication::activeModalWidget() &&
        !QApplication::activePopupWidget())
        m_look();
}
