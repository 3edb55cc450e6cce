// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/TabWalk.h"

#include "host/script/ScriptTabs.h"
#include "host/script/TabList.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QStyleOption>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// Of a key that is pressed once: nobody wants to see a list come and go.
constexpr int kGlimpse = 150; // milliseconds
constexpr int kMargin = 4;    // pixels around the list

} // namespace

TabWalk::TabWalk(ScriptTabs& tabs)
    : QFrame(&tabs), m_tabs(tabs), m_list(new QListWidget(this)), m_wait(new QTimer(this))
{
    setObjectName(QStringLiteral("tabWalk"));
    setAutoFillBackground(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setAccessibleName(tr("Scripts by last use"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_list);
    m_wait->setSingleShot(true);
    m_wait->setInterval(kGlimpse);
    connect(m_wait, &QTimer::timeout, this, &TabWalk::Unfold);
    connect(m_list, &QListWidget::itemClicked, this, &TabWalk::Take);
    hide();
}

// Set off against the text that it lies over, as a menu is.
void TabWalk::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameMenu, &option, &painter, this);
}

void TabWalk::Step(int by)
{
    if (!m_isWalking)
        Begin();
    const int count = m_list->count();
    if (count == 0) {
        End();
        return;
    }
    m_list->setCurrentRow((m_list->currentRow() + by + count) % count);
    if (!(QGuiApplication::keyboardModifiers() & Qt::ControlModifier))
        Take();
}

void TabWalk::Begin()
{
    m_isWalking = true;
    m_list->clear();
    for (QWidget* page : m_tabs.ByLastUse())
        TabList::Add(*m_list, m_tabs, page);
    m_list->setCurrentRow(0);
    QCoreApplication::instance()->installEventFilter(this);
    m_wait->start();
}

// In the middle of the tabs, as large as what it lists.
void TabWalk::Unfold()
{
    constexpr int kRim = 48; // pixels, of the frame and a scroll bar
    constexpr int kNarrow = 260;
    const int rows = m_list->sizeHintForRow(0) * m_list->count();
    QSize size(std::max(m_list->sizeHintForColumn(0) + kRim, kNarrow), rows + 2 * kMargin + 2);
    size = size.boundedTo(m_tabs.size() - QSize(kRim, kRim));
    setGeometry(QRect(
        QPoint((m_tabs.width() - size.width()) / 2, (m_tabs.height() - size.height()) / 2), size));
    raise();
    show();
    m_list->scrollToItem(m_list->currentItem());
}

void TabWalk::End()
{
    QCoreApplication::instance()->removeEventFilter(this);
    m_isWalking = false;
    m_wait->stop();
    hide();
}

void TabWalk::Take()
{
    End();
    TabList::Choose(*m_list, m_tabs);
}

void TabWalk::OnKey(int key, bool withShift)
{
    switch (key) {
    case Qt::Key_Tab:
        Step(withShift ? -1 : 1);
        break;
    case Qt::Key_Backtab:
    case Qt::Key_Up:
        Step(-1);
        break;
    case Qt::Key_Down:
        Step(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Take();
        break;
    case Qt::Key_Escape:
        End();
        break;
    default:
        break;
    }
}

// The keys belong to the walk, whatever has the focus: no command of a menu may come in between.
bool TabWalk::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::KeyPress: {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        OnKey(key.key(), key.modifiers() & Qt::ShiftModifier);
        return true;
    }
    case QEvent::KeyRelease:
        if (static_cast<const QKeyEvent&>(*event).key() == Qt::Key_Control)
            Take();
        return false;
    case QEvent::MouseButtonPress:
        if (const auto* widget = qobject_cast<QWidget*>(watched);
            widget && widget != this && !isAncestorOf(widget))
            End();
        return false;
    case QEvent::ApplicationStateChange:
    case QEvent::WindowDeactivate: // the end of Ctrl would come elsewhere
        End();
        return false;
    default:
        return false;
    }
}
