// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/ResultsPane.h"

#include "host/finding/ResultsModel.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QTreeView>

#include <deque>
#include <mutex>

// Between the threads of the search and the window.
class ResultsInbox final : public IFileSearchListener
{
public:
    void OnFound(FoundFile&& file) override
    {
        const std::lock_guard lock(m_lock);
        m_found.push_back(std::move(file));
    }
    void OnNote(FileNote note, const QString& /*path*/) override
    {
        const std::lock_guard lock(m_lock);
        m_ranAway = m_ranAway || note == FileNote::RanAway;
    }
    void OnDone(const FileSearchTotals& /*totals*/) override
    {
        const std::lock_guard lock(m_lock);
        m_isDone = true;
    }

    bool Take(FoundFile& file)
    {
        const std::lock_guard lock(m_lock);
        if (m_found.empty())
            return false;
        file = std::move(m_found.front());
        m_found.pop_front();
        return true;
    }
    bool IsDone() const
    {
        const std::lock_guard lock(m_lock);
        return m_isDone && m_found.empty();
    }
    bool RanAway() const
    {
        const std::lock_guard lock(m_lock);
        return m_ranAway;
    }

private:
    mutable std::mutex m_lock;
    std::deque<FoundFile> m_found;
    bool m_isDone = false;
    bool m_ranAway = false;
};

namespace {

constexpr int kPortionEvery = 30; // milliseconds
constexpr int kPortion = 2000;    // matches, so that the window never stands still for long

// Lights the match in its line.
class MatchDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const int start = index.data(ResultsModel::MatchStart).toInt();
        const QString text = index.data(Qt::DisplayRole).toString();
        if (start >= 0 && !(option.state & QStyle::State_Selected)) {
            const int margin = QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
            const int from = option.fontMetrics.horizontalAdvance(text.left(start));
            const int width = option.fontMetrics.horizontalAdvance(
                text.mid(start, index.data(ResultsModel::MatchLength).toInt()));
            QColor light = option.palette.color(QPalette::Highlight);
            light.setAlpha(90);
            const QRect place(option.rect.left() + margin + from, option.rect.top(), width,
                              option.rect.height());
            painter->fillRect(place.intersected(option.rect), light);
        }
        QStyledItemDelegate::paint(painter, option, index);
    }
};

} // namespace

ResultsPane::ResultsPane(const QString& title, QWidget* parent)
    : QDockWidget(title, parent), m_model(new ResultsModel(this)), m_tree(new QTreeView(this)),
      m_state(new QLabel(this)), m_stop(new QPushButton(tr("&Stop"), this)),
      m_timer(new QTimer(this))
{
    setObjectName(title.simplified().remove(u' '));
    auto* inside = new QWidget(this);
    auto* rows = new QVBoxLayout(inside);
    rows->setContentsMargins({});
    auto* top = new QHBoxLayout;
    top->addWidget(m_state, 1);
    top->addWidget(m_stop);
    rows->addLayout(top);
    rows->addWidget(m_tree);
    setWidget(inside);
    m_state->setTextFormat(Qt::PlainText);
    m_tree->setAccessibleName(title);
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setModel(m_model);
    m_tree->setItemDelegate(new MatchDelegate(m_tree));
    m_stop->setEnabled(false);
    connect(m_stop, &QPushButton::clicked, this, &ResultsPane::Stop);
    connect(m_tree, &QTreeView::activated, this, &ResultsPane::Choose);
    connect(m_timer, &QTimer::timeout, this, &ResultsPane::TakePortion);
    ShowState();
}

ResultsPane::~ResultsPane()
{
    m_search.reset();
}

void ResultsPane::Search(FileSearchRequest request)
{
    m_search.reset();
    m_model->Clear();
    m_sought = request.text;
    m_inbox = std::make_unique<ResultsInbox>();
    m_search = std::make_unique<CFileSearch>(std::move(request), *m_inbox);
    m_search->Start();
    m_timer->start(kPortionEvery);
    m_stop->setEnabled(true);
    ShowState();
}

void ResultsPane::Stop()
{
    if (m_search)
        m_search->Stop();
}

void ResultsPane::TakePortion()
{
    FoundFile file;
    for (long taken = 0; taken < kPortion && m_inbox->Take(file);) {
        taken += 1 + static_cast<long>(file.matches.size());
        const bool isFirst = !HasResults();
        m_model->Add(std::move(file));
        if (isFirst)
            m_tree->expand(m_model->index(0, 0, {}));
    }
    ShowState();
    if (!m_inbox->IsDone())
        return;
    m_timer->stop();
    m_search.reset();
    m_stop->setEnabled(false);
}

void ResultsPane::ShowState()
{
    if (!m_search) {
        m_state->setText(tr("No search"));
        return;
    }
    const FileSearchTotals totals = m_search->Totals();
    QString text = tr("'%1': %2 matches in %3 of %4 files")
                       .arg(m_sought, QString::number(totals.matches),
                            QString::number(totals.found), QString::number(totals.files));
    if (totals.failures > 0)
        text += tr(", %1 not read").arg(totals.failures);
    if (totals.skipped > 0)
        text += tr(", %1 skipped").arg(totals.skipped);
    if (m_inbox->RanAway())
        text += tr(". The expression went on for too long in some of them");
    if (totals.isStopped)
        text += tr(". Stopped");
    m_state->setText(m_inbox->IsDone() ? text : tr("Searching: ") + text);
}

bool ResultsPane::HasResults() const
{
    return m_model->rowCount({}) > 0;
}

void ResultsPane::Choose(const QModelIndex& index)
{
    const FoundFile* file = m_model->FileAt(index);
    const FileMatch* match = m_model->MatchAt(index);
    if (match)
        Q_EMIT Chosen(file->path, match->line, match->column, match->length);
    else if (file)
        m_tree->setExpanded(index, true);
}

void ResultsPane::GoOn(bool forward)
{
    const int files = m_model->rowCount({});
    const QModelIndex current = m_tree->currentIndex();
    const bool isMatch = m_model->MatchAt(current) != nullptr;
    int file = isMatch ? current.parent().row() : current.isValid() ? current.row() : 0;
    int match = isMatch ? current.row() : -1;
    for (int passed = 0; passed <= files; ++passed) {
        const QModelIndex top = m_model->index(file, 0, {});
        const int count = files > 0 ? m_model->rowCount(top) : 0;
        match = forward ? match + 1 : (match < 0 ? -1 : match - 1);
        if (match >= 0 && match < count) {
            const QModelIndex next = m_model->index(match, 0, top);
            m_tree->setCurrentIndex(next);
            m_tree->scrollTo(next);
            Choose(next);
            return;
        }
        if (files == 0)
            return;
        file = (file + (forward ? 1 : files - 1)) % files;
        match = forward ? -1 : m_model->rowCount(m_model->index(file, 0, {}));
    }
}
