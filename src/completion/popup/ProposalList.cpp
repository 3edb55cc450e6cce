// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/popup/ProposalList.h"

#include "completion/popup/PopupColours.h"

#include <QAbstractListModel>
#include <QAccessible>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace completion {
namespace {

constexpr int kMostRows = 10;
constexpr int kMargin = 6; // pixels beside the text of a row, and between its parts
constexpr int kNarrowest = 180;
constexpr int kWidest = 640;

constexpr int kKindRole = Qt::UserRole;
constexpr int kMoreRole = Qt::UserRole + 1; // what stands at the right

QString More(const Proposal& proposal)
{
    const QString kind = KindName(proposal.kind);
    return proposal.description.isEmpty() ? kind
                                          : proposal.description + QStringLiteral("  ") + kind;
}

// A row: the text, and at the right what it is, in a weaker colour.
class RowPainter final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QFontMetrics metrics(option.font);
        return {metrics.horizontalAdvance(index.data().toString()) +
                    metrics.horizontalAdvance(index.data(kMoreRole).toString()) + 5 * kMargin,
                metrics.height() + kMargin};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const bool isCurrent = option.state & QStyle::State_Selected;
        painter->fillRect(option.rect,
                          option.palette.brush(isCurrent ? QPalette::Highlight : QPalette::Base));
        const QColor fore =
            option.palette.color(isCurrent ? QPalette::HighlightedText : QPalette::Text);
        const QColor weak = isCurrent ? fore : option.palette.color(QPalette::PlaceholderText);
        const QRect room = option.rect.adjusted(kMargin, 0, -kMargin, 0);
        const QFontMetrics metrics(option.font);
        const QString text = index.data().toString();
        const int width = std::min(metrics.horizontalAdvance(text), room.width() * 3 / 4);
        painter->setFont(option.font);
        painter->setPen(fore);
        painter->drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                          metrics.elidedText(text, Qt::ElideRight, width + 1));
        painter->setPen(weak);
        const QRect right = room.adjusted(width + 2 * kMargin, 0, 0, 0);
        painter->drawText(
            right, Qt::AlignVCenter | Qt::AlignRight,
            metrics.elidedText(index.data(kMoreRole).toString(), Qt::ElideLeft, right.width()));
    }
};

} // namespace

class ProposalModel final : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    void Set(std::vector<Proposal> proposals)
    {
        beginResetModel();
        m_proposals = std::move(proposals);
        endResetModel();
    }
    const Proposal& At(int row) const { return m_proposals[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_proposals.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid() || index.row() >= rowCount())
            return {};
        const Proposal& proposal = At(index.row());
        switch (role) {
        case Qt::DisplayRole:
            return proposal.text;
        case Qt::AccessibleTextRole: {
            const QString told = proposal.text + QStringLiteral(", ") + KindName(proposal.kind);
            return proposal.description.isEmpty()
                       ? told
                       : told + QStringLiteral(", ") + proposal.description;
        }
        case kKindRole:
            return static_cast<int>(proposal.kind);
        case kMoreRole:
            return More(proposal);
        default:
            return {};
        }
    }

private:
    std::vector<Proposal> m_proposals;
};

ProposalList::ProposalList(QWidget* editor)
    : QFrame(editor, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      m_view(new QListView(this)), m_edge(new QFrame(this)), m_keys(new QLabel(this)),
      m_model(new ProposalModel(this))
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::Box);
    setFrameShadow(QFrame::Plain);
    setObjectName(QStringLiteral("proposals"));
    setAccessibleName(QCoreApplication::translate("ProposalList", "Completion"));
    m_view->setAccessibleName(QCoreApplication::translate("ProposalList", "Proposals"));
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setUniformItemSizes(true);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setModel(m_model);
    m_view->setItemDelegate(new RowPainter(m_view));
    m_edge->setFrameStyle(QFrame::HLine | QFrame::Plain);
    m_edge->setForegroundRole(QPalette::PlaceholderText);
    m_edge->setFixedHeight(1);
    m_keys->setMargin(kMargin / 2);
    m_keys->setIndent(kMargin / 2);
    m_keys->setForegroundRole(QPalette::PlaceholderText);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSizeConstraint(QLayout::SetNoConstraint); // a view would have room for three rows
    layout->setSpacing(0);
    layout->addWidget(m_view);
    layout->addWidget(m_edge);
    layout->addWidget(m_keys);
    connect(m_view, &QListView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT Clicked(index.row()); });
}

void ProposalList::SetColours(const ColourScheme* scheme)
{
    const QPalette colours = PopupPalette(scheme, QStringLiteral("text"));
    setPalette(colours);
    m_view->setPalette(colours);
    m_edge->setPalette(colours);
    m_keys->setPalette(colours);
}

void ProposalList::SetProposals(std::vector<Proposal> proposals, bool tellsKeys)
{
    m_model->Set(std::move(proposals));
    m_view->scrollToTop();
    m_edge->setVisible(tellsKeys);
    m_keys->setVisible(tellsKeys);
    TellKeys();
    if (isVisible())
        Fit();
}

void ProposalList::TellKeys()
{
    m_keys->setText(
        Current() < 0 ? QCoreApplication::translate("ProposalList", "Tab takes the first row")
                      : QCoreApplication::translate("ProposalList", "Tab or Enter takes the row"));
}

int ProposalList::Count() const
{
    return m_model->rowCount();
}

int ProposalList::Current() const
{
    return m_view->currentIndex().row();
}

const Proposal& ProposalList::At(int row) const
{
    return m_model->At(row);
}

int ProposalList::RowsShown() const
{
    return std::min(Count(), kMostRows);
}

void ProposalList::SetCurrent(int row)
{
    m_view->setCurrentIndex(m_model->index(row));
    m_view->scrollTo(m_view->currentIndex());
    TellKeys();
    Tell(row);
}

void ProposalList::Step(int rows)
{
    const int last = Count() - 1;
    const int from = Current();
    int to = from + rows;
    if (from < 0)
        to = rows > 0 ? 0 : last;
    else if (to < 0 || to > last)
        to = std::abs(rows) == 1 ? (to < 0 ? last : 0) : std::clamp(to, 0, last);
    SetCurrent(to);
}

// The view says nothing by itself while it has no focus.
void ProposalList::Tell(int row)
{
    if (!QAccessible::isActive() || !isVisible())
        return;
    QAccessibleEvent event(m_view, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

void ProposalList::ShowAt(const QRect& line)
{
    m_line = line;
    Fit();
    show();
    if (Current() >= 0)
        Tell(Current());
}

void ProposalList::Fit()
{
    const int rowHeight = std::max(m_view->sizeHintForRow(0), 1);
    const int frame = 2 * (frameWidth() + 1);
    const int bar = Count() > kMostRows ? m_view->verticalScrollBar()->sizeHint().width() : 0;
    const int keys = m_keys->isHidden() ? 0 : m_keys->sizeHint().height() + m_edge->height();
    int width = std::max(kNarrowest, keys > 0 ? m_keys->sizeHint().width() : 0);
    for (int row = 0; row < std::min(Count(), 10 * kMostRows); ++row)
        width = std::max(width, m_view->sizeHintForIndex(m_model->index(row)).width());
    const QScreen* screen = QGuiApplication::screenAt(m_line.center());
    const QRect room = screen ? screen->availableGeometry()
                              : QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size(std::min({width + bar + frame, kWidest, room.width()}),
                     std::max(RowsShown(), 1) * rowHeight + keys + frame);
    const bool isBelow = m_line.bottom() + size.height() <= room.bottom() ||
                         room.bottom() - m_line.bottom() >= m_line.top() - room.top();
    const int top = isBelow ? m_line.bottom() + 1 : m_line.top() - size.height();
    const int left = std::clamp(m_line.left() - kMargin, room.left(),
                                std::max(room.left(), room.right() - size.width()));
    setGeometry(QRect(QPoint(left, top), size));
}

} // namespace completion
