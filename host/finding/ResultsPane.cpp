// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/ResultsPane.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "host/finding/FileReplacer.h"
#include "host/finding/FoundTexts.h"
#include "host/finding/MatchDelegate.h"
#include "host/finding/ResultsInbox.h"
#include "host/finding/ResultsModel.h"

#include <QBoxLayout>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int kPortionEvery = 30; // milliseconds
constexpr int kPortionTakes = 15; // milliseconds, so that the window never stands still for long
constexpr int kNotesAtOnce = 1000;
constexpr int kMostExpanded = 1000;      // matches that are shown unasked
constexpr int kAir = 8;                  // pixels between the rim and what is written
constexpr int kRest = 300;               // milliseconds without a change
constexpr long kShortText = 1024 * 1024; // units that are searched in no time

} // namespace

ResultsPane::ResultsPane(const QString& title, IFoundTexts& texts, QWidget* parent)
    : QDockWidget(title, parent),
      m_model(new ResultsModel(this, [this](const QString& path) { return PlaceOf(path); })),
      m_tree(new QTreeView(this)), m_state(new QLabel(this)),
      m_stop(new QPushButton(tr("St&op"), this)), m_timer(new QTimer(this)),
      m_replaces(new QPushButton(tr("Re&place..."), this)), m_texts(texts), m_rest(new QTimer(this))
{
    auto* inside = new QWidget(this);
    auto* rows = new QVBoxLayout(inside);
    rows->setContentsMargins({});
    rows->setSpacing(0);
    auto* top = new QHBoxLayout;
    top->setContentsMargins(kAir, kAir / 2, kAir, kAir / 2);
    top->addWidget(m_state, 1);
    top->addWidget(m_replaces);
    top->addWidget(m_stop);
    rows->addLayout(top);
    rows->addWidget(BuildReplaceRow());
    rows->addWidget(m_tree);
    setWidget(inside);
    setFocusProxy(m_tree);
    m_state->setTextFormat(Qt::PlainText);
    m_state->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_tree->setAccessibleName(title);
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setModel(m_model);
    m_tree->setItemDelegate(new MatchDelegate(m_tree));
    m_stop->setEnabled(false);
    m_rest->setSingleShot(true);
    m_rest->setInterval(kRest);
    connect(m_stop, &QPushButton::clicked, this, &ResultsPane::Stop);
    connect(m_tree, &QTreeView::activated, this, &ResultsPane::Choose);
    connect(m_timer, &QTimer::timeout, this, &ResultsPane::TakePortion);
    connect(m_rest, &QTimer::timeout, this, &ResultsPane::RefreshShort);
    ShowState();
}

QWidget* ResultsPane::BuildReplaceRow()
{
    m_replaceRow = new QWidget(this);
    auto* row = new QHBoxLayout(m_replaceRow);
    row->setContentsMargins(kAir, 0, kAir, kAir / 2);
    m_replacement = new QLineEdit(m_replaceRow);
    auto* label = new QLabel(tr("Replace &with"), m_replaceRow);
    label->setBuddy(m_replacement);
    m_replacement->setObjectName(QStringLiteral("replacement"));
    m_replacement->setAccessibleDescription(
        tr("What the matches are to become. Enter shows it for each of them"));
    auto* preview = new QPushButton(tr("Prev&iew"), m_replaceRow);
    m_replace = new QPushButton(tr("&Replace Checked"), m_replaceRow);
    row->addWidget(label);
    row->addWidget(m_replacement, 1);
    row->addWidget(preview);
    row->addWidget(m_replace);
    m_replaceRow->hide();
    m_replace->setEnabled(false);
    m_replaces->setCheckable(true);
    // By its letter at once: a button's own waits a tenth of a second, in which one types on.
    auto* letter = new QShortcut(m_replaces->shortcut(), m_replaces);
    m_replaces->setShortcut({});
    // A click leaves the keyboard where it is, which tells what is meant.
    m_replaces->setFocusPolicy(Qt::TabFocus);
    connect(letter, &QShortcut::activated, m_replaces, &QPushButton::click);
    const auto show = [this] { Preview(m_replacement->text()); };
    connect(m_replacement, &QLineEdit::returnPressed, this, show);
    connect(preview, &QPushButton::clicked, this, show);
    connect(m_replacement, &QLineEdit::textEdited, m_replace,
            [this] { m_replace->setEnabled(false); });
    connect(m_replace, &QPushButton::clicked, this, &ResultsPane::ReplaceChosen);
    connect(m_replaces, &QPushButton::clicked, this, &ResultsPane::ShowReplaceRow);
    m_chain = {m_replaces, m_stop, m_replacement, preview, m_replace, m_tree};
    return m_replaceRow;
}

// Goes again once one is in it, as the find bar's does.
void ResultsPane::ShowReplaceRow()
{
    const bool goes = m_replaceRow->isVisible() && window()->focusWidget() == m_replacement;
    m_replaceRow->setVisible(!goes);
    m_replaces->setChecked(!goes);
    if (goes) {
        m_tree->setFocus();
    } else {
        m_replacement->setFocus();
        m_replacement->selectAll();
    }
}

// Round within the pane: outside of it is the text, where a further Tab would be written.
bool ResultsPane::focusNextPrevChild(bool next)
{
    const auto count = m_chain.size();
    const auto from = std::max<qsizetype>(m_chain.indexOf(window()->focusWidget()), 0);
    for (qsizetype step = 1; step <= count; ++step) {
        QWidget* part = m_chain[(from + (next ? step : count - step)) % count];
        if (!part->isVisible() || !part->isEnabled())
            continue;
        part->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        break;
    }
    return true;
}

ResultsPane::~ResultsPane()
{
    m_search.reset();
}

void ResultsPane::Search(FileSearchRequest request)
{
    m_search.reset();
    EndReplacing();
    m_model->Clear(request.replaces);
    m_changed.clear();
    m_unasked = 0;
    m_outcome.clear();
    m_request = request;
    m_request.open.clear();
    m_inbox = std::make_unique<ResultsInbox>();
    m_search = std::make_unique<CFileSearch>(std::move(request), *m_inbox);
    m_search->Start();
    m_timer->start(kPortionEvery);
    m_stop->setEnabled(true);
    m_replace->setEnabled(false);
    m_replaces->setEnabled(false);
    ShowState();
}

void ResultsPane::Preview(const QString& replacement)
{
    if (m_request.text.isEmpty() || m_search)
        return;
    FileSearchRequest request = m_request;
    request.countOnly = false;
    request.replaces = true;
    request.replacement = replacement;
    request.open = m_texts.All();
    Search(std::move(request));
}

void ResultsPane::Stop()
{
    if (m_search)
        m_search->Stop();
    if (m_replacer)
        m_nextFile = m_model->FileCount();
}

void ResultsPane::TakePortion()
{
    TakeFound();
    ShowState();
    if (!m_inbox->IsDone())
        return;
    m_timer->stop();
    m_search.reset();
    Disable(*m_stop);
    m_replaces->setEnabled(true);
    m_replace->setEnabled(m_request.replaces && HasResults());
}

void ResultsPane::TakeFound()
{
    QElapsedTimer clock;
    clock.start();
    m_model->AddNotes(m_inbox->TakeNotes(kNotesAtOnce));
    FoundFile file;
    while (clock.elapsed() < kPortionTakes && m_inbox->Take(file)) {
        const bool isKnown = m_model->RowOf(file.path) >= 0;
        m_unasked += static_cast<long>(file.matches.size());
        const QModelIndex top = m_model->index(m_model->Add(std::move(file)), 0, {});
        // A tree lays all open rows out again for each that comes.
        if (isKnown && m_unasked > kMostExpanded && m_model->rowCount(top) > kMostExpanded)
            m_tree->collapse(top);
        else if (!isKnown && m_unasked <= kMostExpanded)
            m_tree->expand(top);
    }
}

void ResultsPane::ShowState()
{
    if (m_search)
        m_state->setText(StateOf(m_search->Totals()));
    else if (m_request.text.isEmpty())
        m_state->setText(tr("No search"));
    m_state->setToolTip(m_state->text());
}

QString ResultsPane::StateOf(const FileSearchTotals& totals) const
{
    if (const QString fault = m_inbox->Fault(); !fault.isEmpty())
        return tr("'%1': %2").arg(m_request.text, fault);
    const QLocale locale;
    QString text =
        tr("'%1': %Ln matches in %2 of %3 files", nullptr, totals.matches)
            .arg(m_request.text, locale.toString(totals.found), locale.toString(totals.files));
    if (totals.failures > 0)
        text += tr(", %1 not read").arg(locale.toString(totals.failures));
    if (totals.skipped > 0)
        text += tr(", %1 skipped").arg(locale.toString(totals.skipped));
    if (m_inbox->RanAway())
        text += tr(". The expression went on for too long in some of them");
    if (totals.isStopped)
        text += tr(". Stopped");
    return m_inbox->IsDone() ? text : tr("Searching: %1").arg(text);
}

// A file at a time, so that the window goes on.
void ResultsPane::ReplaceChosen()
{
    if (m_search || m_replacer || !m_request.replaces)
        return;
    m_replacer = std::make_unique<FileReplacer>(m_request);
    m_nextFile = m_filesSaved = m_scriptsChanged = 0;
    m_replaced = 0;
    m_notReplaced.clear();
    Disable(*m_replace);
    m_stop->setEnabled(true);
    QTimer::singleShot(0, this, &ResultsPane::ReplaceInNext);
}

// The keys of one that is disabled would go to whatever is next, which may be outside.
void ResultsPane::Disable(QPushButton& button)
{
    if (button.hasFocus())
        m_tree->setFocus();
    button.setEnabled(false);
}

void ResultsPane::ReplaceInNext()
{
    if (!m_replacer)
        return;
    if (m_nextFile >= m_model->FileCount()) {
        EndReplacing();
        return;
    }
    const int row = m_nextFile++;
    const FoundFile& file = m_model->File(row);
    const std::vector<bool>& left = m_model->Left(row);
    if (std::ranges::find(left, false) != left.end()) {
        CZNCoreEditorControlEx* editor = m_texts.EditorOf(file.path);
        if (editor)
            Refresh(file.path);
        const FileReplacer::Outcome outcome = m_replacer->Replace(file, left, editor);
        m_replaced += outcome.replaced;
        (editor ? m_scriptsChanged : m_filesSaved) += outcome.replaced > 0;
        if (!outcome.reason.isEmpty())
            m_notReplaced += tr("%1: %2").arg(file.path, outcome.reason);
        else
            m_model->SetMatches(row, outcome.matches);
        if (outcome.replaced > 0)
            m_model->SetReplaced(row,
                                 editor ? ResultsModel::Place::Script : ResultsModel::Place::Disk);
    }
    m_state->setText(
        tr("Replacing: %1 of %2 files")
            .arg(QLocale().toString(m_nextFile), QLocale().toString(m_model->FileCount())));
    QTimer::singleShot(0, this, &ResultsPane::ReplaceInNext);
}

void ResultsPane::EndReplacing()
{
    if (!m_replacer)
        return;
    m_replacer.reset();
    m_request.replaces = false;
    m_model->EndPreview();
    Disable(*m_stop);
    m_model->AddNotes(m_notReplaced);
    m_outcome = OutcomeOfReplacing();
    if (!m_notReplaced.isEmpty())
        m_outcome += tr(". %Ln files were left as they are, see the end of the list", nullptr,
                        static_cast<int>(m_notReplaced.size()));
    m_state->setText(m_outcome);
    m_state->setToolTip(m_outcome);
}

// What stands on the disk by now is told from what can be undone.
QString ResultsPane::OutcomeOfReplacing() const
{
    QStringList parts;
    if (m_filesSaved > 0)
        parts +=
            m_filesSaved == 1 ? tr("1 file saved") : tr("%Ln files saved", nullptr, m_filesSaved);
    if (m_scriptsChanged > 0)
        parts += m_scriptsChanged == 1
                     ? tr("1 open script changed, not saved")
                     : tr("%Ln open scripts changed, not saved", nullptr, m_scriptsChanged);
    const QString all =
        m_replaced == 1 ? tr("1 match replaced") : tr("%Ln matches replaced", nullptr, m_replaced);
    return parts.isEmpty() ? all : tr("%1: %2").arg(all, parts.join(QStringLiteral(", ")));
}

ResultsModel::Place ResultsPane::PlaceOf(const QString& path) const
{
    CZNCoreEditorControlEx* editor = m_texts.EditorOf(path);
    if (!editor)
        return ResultsModel::Place::Disk;
    return editor->GetModify(1) ? ResultsModel::Place::UnsavedScript : ResultsModel::Place::Script;
}

void ResultsPane::OnScriptsChanged()
{
    m_tree->viewport()->update();
}

// Buttons beside an editor take no Enter by themselves.
void ResultsPane::keyPressEvent(QKeyEvent* event)
{
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        QDockWidget::keyPressEvent(event);
}

void ResultsPane::OnTextChanged(const QString& path)
{
    if (m_model->RowOf(path) < 0 || m_request.countOnly)
        return;
    m_changed.insert(path);
    m_rest->start();
}

// A long text is looked at when somebody wants to see a match of it.
void ResultsPane::RefreshShort()
{
    const QSet<QString> changed = m_changed;
    for (const QString& path : changed) {
        CZNCoreEditorControlEx* editor = m_texts.EditorOf(path);
        if (!editor || editor->GetLength(1) <= kShortText)
            Refresh(path);
    }
}

void ResultsPane::Refresh(const QString& path)
{
    if (!m_changed.remove(path) || m_search)
        return;
    if (const int row = m_model->RowOf(path); row >= 0)
        CheckFile(row);
}

// Finds the matches of a text that is open again. Where the current one has gone, the way on is
// from the one before it.
void ResultsPane::CheckFile(int row)
{
    CZNCoreEditorControlEx* editor = m_texts.EditorOf(m_model->File(row).path);
    if (!editor)
        return;
    const QPersistentModelIndex current = m_tree->currentIndex();
    const QModelIndex top = m_model->index(row, 0, {});
    const bool wasHere = current.isValid() && current.parent() == top;
    const int first = m_model->SetMatches(row, MatchesIn(editor->GetText(), m_request));
    if (wasHere && !current.isValid())
        m_tree->setCurrentIndex(first > 0 ? m_model->index(first - 1, 0, top) : top);
}

bool ResultsPane::HasResults() const
{
    return m_model->FileCount() > 0;
}

// What the file held when it was searched may be elsewhere in what is opened.
void ResultsPane::Choose(const QModelIndex& index)
{
    const FoundFile* file = m_model->FileAt(index);
    const FileMatch* match = m_model->MatchAt(index);
    if (!file)
        return;
    if (!match) {
        m_tree->setExpanded(index, true);
        return;
    }
    const QString path = file->path;
    const FileMatch found = *match;
    const int row = index.row();
    QPersistentModelIndex place = index;
    const bool wasOpen = m_texts.EditorOf(path) != nullptr;
    if (!m_texts.Open(path))
        return;
    const bool isListed = !m_search && !m_request.countOnly;
    if (wasOpen)
        Refresh(path);
    else if (isListed)
        CheckFile(m_model->RowOf(path));
    if (!place.isValid()) { // it is another by now, or none
        const QModelIndex top = m_model->index(m_model->RowOf(path), 0, {});
        const int count = m_model->rowCount(top);
        if (count > 0)
            place = m_model->index(std::min(row, count - 1), 0, top);
        m_tree->setCurrentIndex(count > 0 ? QModelIndex(place) : top);
    }
    const FileMatch* now = m_model->MatchAt(place);
    const FileMatch& shown = now ? *now : found;
    Q_EMIT Chosen(shown.line, shown.column, now ? shown.length : 0);
}

void ResultsPane::GoOn(bool forward)
{
    const QSet<QString> changed = m_changed;
    for (const QString& path : changed)
        Refresh(path);
    const int files = m_model->FileCount();
    const QModelIndex current = m_tree->currentIndex();
    const bool isMatch = m_model->MatchAt(current) != nullptr;
    int file = isMatch ? current.parent().row() : current.isValid() ? current.row() : 0;
    file = std::min(file, files - 1);
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
