// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/TabList.h"

#include "host/icons/Icons.h"
#include "host/lists/ListFrame.h"
#include "host/lists/ListKeys.h"
#include "host/script/ScriptTabs.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QTabBar>

#include <algorithm>

namespace {

constexpr int kMark = 16; // pixels

// As wide as the mark of a change, so that the names stand below each other.
QIcon NoMark()
{
    QPixmap blank(kMark, kMark);
    blank.fill(Qt::transparent);
    return QIcon(blank);
}

} // namespace

TabList::TabList(ScriptTabs& tabs)
    : QDialog(&tabs, Qt::Popup), m_tabs(tabs), m_words(new QLineEdit(this)),
      m_list(new QListWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_NoMouseReplay); // the button would open it again
    setObjectName(QStringLiteral("tabListPopup"));
    setAccessibleName(tr("Scripts"));
    m_words->setPlaceholderText(tr("Type part of a name"));
    m_words->setAccessibleName(tr("Script"));
    m_list->setAccessibleName(tr("Scripts"));
    FrameList(*this, *m_words, *m_list);
    connect(m_words, &QLineEdit::textChanged, this, &TabList::Filter);
    connect(m_list, &QListWidget::itemClicked, this, qOverload<>(&TabList::Choose));
    new ListKeys(*m_words, *m_list, [this] { Choose(); }); // goes with the line
    Filter({});
    m_words->setFocus();
}

void TabList::ShowBelow(const QWidget& button)
{
    constexpr int kNarrow = 220; // pixels
    constexpr int kWide = 560;
    constexpr int kRim = 48; // of the frame and a scroll bar
    constexpr int kMostRows = 16;
    const int rows = std::clamp(m_list->count(), 3, kMostRows);
    const QSize wanted(std::clamp(m_list->sizeHintForColumn(0) + kRim, kNarrow, kWide),
                       rows * m_list->sizeHintForRow(0) + m_words->sizeHint().height() + kRim);
    resize(wanted.expandedTo(minimumSizeHint()));
    const QRect room = button.screen()->availableGeometry();
    QRect place = geometry();
    place.moveTopRight(button.mapToGlobal(button.rect().bottomRight()));
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    setGeometry(place);
    show();
}

void TabList::Add(QListWidget& list, const ScriptTabs& tabs, QWidget* page)
{
    const int index = tabs.indexOf(page);
    if (index < 0)
        return;
    list.setIconSize({kMark, kMark});
    auto* item = new QListWidgetItem(
        tabs.IsModified(index) ? CommandIcon(QStringLiteral("modified")) : NoMark(),
        tabs.tabText(index).replace(QLatin1String("&&"), QLatin1String("&")), &list);
    item->setToolTip(tabs.Path(index));
    item->setData(Qt::UserRole, QVariant::fromValue(QPointer<QWidget>(page)));
    QString spoken = tabs.tabBar()->accessibleTabName(index);
    if (index == tabs.currentIndex()) {
        QFont strong = list.font();
        strong.setBold(true);
        item->setFont(strong);
        spoken = tr("%1, in front").arg(spoken);
    }
    item->setData(Qt::AccessibleTextRole, spoken);
}

void TabList::Choose(const QListWidget& list, ScriptTabs& tabs)
{
    const QListWidgetItem* item = list.currentItem();
    const auto page = item ? item->data(Qt::UserRole).value<QPointer<QWidget>>() : nullptr;
    if (page && tabs.indexOf(page) >= 0)
        tabs.setCurrentWidget(page);
}

// In the order of the tabs. The one in front is where the keys begin until something is typed.
void TabList::Filter(const QString& words)
{
    m_list->clear();
    for (int i = 0; i < m_tabs.count(); ++i) {
        if (m_tabs.tabText(i).contains(words, Qt::CaseInsensitive))
            Add(*m_list, m_tabs, m_tabs.widget(i));
    }
    EndList(*m_list, tr("No script has this in its name"));
    if (words.isEmpty())
        m_list->setCurrentRow(m_tabs.currentIndex());
}

void TabList::Choose()
{
    if (!m_list->currentItem())
        return;
    hide(); // the script gets the focus
    Choose(*m_list, m_tabs);
    close();
}
