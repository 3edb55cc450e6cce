// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/outline/OutlinePane.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kName = 0;
constexpr int kKind = 1;
constexpr int kStartRole = Qt::UserRole;
constexpr int kEndRole = Qt::UserRole + 1;

long StartOf(const QTreeWidgetItem* item)
{
    return item->data(kName, kStartRole).value<long>();
}

} // namespace

OutlinePane::OutlinePane(QWidget* parent)
    : QDockWidget(tr("Outline"), parent), m_words(new QLineEdit(this)),
      m_list(new QTreeWidget(this)), m_why(new QLabel(this))
{
    constexpr int kMargin = 8; // pixels
    m_why->setObjectName(QStringLiteral("outlineWhy"));
    m_why->setWordWrap(true);
    m_why->setMargin(kMargin);
    m_why->setAlignment(Qt::AlignTop);
    m_why->hide();
    setObjectName(QStringLiteral("outlinePane"));
    m_words->setPlaceholderText(tr("Part of a name"));
    m_words->setAccessibleName(tr("Filter"));
    m_words->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("outlineList"));
    m_list->setAccessibleName(tr("Outline of the script"));
    m_list->setHeaderLabels({tr("Name"), tr("Kind")});
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(kKind, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_words);
    layout->addWidget(m_list);
    layout->addWidget(m_why, 1);
    setWidget(content);
    connect(m_words, &QLineEdit::textChanged, this, &OutlinePane::Filter);
    const auto choose = [this](const QTreeWidgetItem* item) {
        Q_EMIT Chosen(StartOf(item), item->data(kName, kEndRole).value<long>());
    };
    connect(m_list, &QTreeWidget::itemActivated, this, choose);
}

void OutlinePane::ShowNothing(const QString& why)
{
    Show({});
    m_why->setText(why);
    m_why->show();
    m_list->hide();
}

void OutlinePane::Show(const std::vector<Symbol>& symbols)
{
    m_why->hide();
    m_list->show();
    m_list->clear();
    m_items.clear();
    QTreeWidgetItem* outer = nullptr;
    for (const Symbol& symbol : symbols) {
        auto* item =
            symbol.isInside && outer ? new QTreeWidgetItem(outer) : new QTreeWidgetItem(m_list);
        if (!symbol.isInside)
            outer = item;
        item->setText(kName, symbol.name);
        item->setToolTip(kName, symbol.name);
        item->setText(kKind, symbol.kind);
        item->setForeground(kKind, palette().brush(QPalette::PlaceholderText));
        item->setData(kName, kStartRole, QVariant::fromValue(symbol.start));
        item->setData(kName, kEndRole, QVariant::fromValue(symbol.end));
        m_items.push_back(item);
    }
    Filter();
}

void OutlinePane::ShowPlace(long position)
{
    const auto behind = std::upper_bound(
        m_items.begin(), m_items.end(), position,
        [](long place, const QTreeWidgetItem* item) { return place < StartOf(item); });
    QTreeWidgetItem* item = behind == m_items.begin() ? nullptr : *std::prev(behind);
    if (item && item->parent() && !item->parent()->isExpanded())
        item = item->parent();
    m_list->setCurrentItem(item);
}

// One that is left keeps what it stands in.
void OutlinePane::Filter()
{
    const QString words = m_words->text();
    for (QTreeWidgetItem* item : m_items) {
        const bool fits = item->text(kName).contains(words, Qt::CaseInsensitive);
        item->setHidden(!fits);
        if (fits && item->parent() && !words.isEmpty()) {
            item->parent()->setHidden(false);
            item->parent()->setExpanded(true);
        }
    }
}
