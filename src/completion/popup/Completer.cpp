// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/popup/Completer.h"

#include "completion/CallAt.h"
#include "completion/Definitions.h"
#include "completion/ScriptSource.h"
#include "completion/popup/CallTip.h"
#include "completion/popup/LiveIndex.h"
#include "completion/popup/ProposalList.h"
#include "control/EngineRecords.h"
#include "control/ZNCoreEditorControl.h"

#include <QAbstractScrollArea>
#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace completion {
namespace {

using Place = ProposalQuery::Place;

constexpr std::size_t kMost = 300;

constexpr std::array kKeys = {Qt::Key_Up,  Qt::Key_Down,  Qt::Key_PageUp, Qt::Key_PageDown,
                              Qt::Key_Tab, Qt::Key_Enter, Qt::Key_Return, Qt::Key_Escape};

} // namespace

bool Completer::IsWordUnit(QChar unit)
{
    return unit.isLetterOrNumber() || unit == u'_' || unit == u'$' || unit == u'#' || unit == u'@';
}

Completer::Completer(CZNCoreEditorControl& control, LiveIndex& index)
    : QObject(control.GetSafeHwnd()), m_control(control), m_index(index),
      m_window(control.GetSafeHwnd())
{
    if (m_window)
        m_window->installEventFilter(this);
}

Completer::~Completer()
{
    delete m_list;
    delete m_tip;
}

void Completer::AddSource(ProposalSource& source)
{
    m_sources.push_back(&source);
}

void Completer::RemoveSource(ProposalSource& source)
{
    std::erase(m_sources, &source);
    Close();
}

void Completer::SetLanguage(std::vector<LanguageWord> words, Signatures signatures)
{
    m_words = std::move(words);
    m_signatures = std::move(signatures);
}

void Completer::SetOtherScripts(std::function<std::vector<OtherScript>()> others)
{
    m_others = std::move(others);
}

void Completer::SetPrepare(std::function<void()> prepare)
{
    m_prepare = std::move(prepare);
}

void Completer::SetScheme(std::function<const ColourScheme*()> scheme)
{
    m_scheme = std::move(scheme);
}

ProposalList& Completer::List()
{
    if (!m_list) {
        m_list = new ProposalList(m_window);
        connect(m_list, &ProposalList::Clicked, this, &Completer::Choose);
    }
    return *m_list;
}

CallTip& Completer::Tip()
{
    if (!m_tip)
        m_tip = new CallTip(m_window);
    return *m_tip;
}

bool Completer::IsOpen() const
{
    return m_list && m_list->isVisible();
}

bool Completer::IsShowingCall() const
{
    return m_tip && m_tip->isVisible();
}

// Not while there is no text to read.
bool Completer::MayOpen() const
{
    return m_window && m_control.GetSafeHwnd() && m_index.Editor();
}

CaretContext Completer::ContextAtCaret()
{
    const long caret = m_control.GetCurrentPos(1);
    return ContextAt(m_index.Around(caret), m_index.Reader(), caret);
}

std::vector<Proposal> Completer::Ask(const CaretContext& context)
{
    if (m_prepare)
        m_prepare();
    ScriptSource script(m_index.Around(context.query.caret), m_index.Reader());
    script.SetLanguage(m_words);
    script.SetContext(context);
    script.SetOthers(OtherTexts());
    std::vector<Proposal> proposals;
    for (ProposalSource* source : m_sources)
        source->Propose(context.query, proposals);
    script.Propose(context.query, proposals);
    return BestOf(std::move(proposals), context.query.typed, kMost);
}

std::vector<OtherScript> Completer::OtherScripts() const
{
    return m_others ? m_others() : std::vector<OtherScript>();
}

std::vector<OtherText> Completer::OtherTexts()
{
    std::vector<OtherScript> others = OtherScripts();
    if (!IsReading())
        ReadNextOf(others);
    std::vector<OtherText> texts;
    for (OtherScript& other : others) {
        const ScriptIndex* known = other.index->Known();
        if (known && known->Dialect())
            texts.push_back({known, other.index->Reader(), std::move(other.name)});
    }
    return texts;
}

void Completer::ReadOthers()
{
    if (!IsReading())
        ReadNextOf(OtherScripts());
}

// A key asks nothing of a hundred scripts while one of them is being read.
bool Completer::IsReading() const
{
    const CZNCoreEditorControl* editor = m_reading ? m_reading->Editor() : nullptr;
    return editor && editor->GetSafeHwnd() && m_reading->IsFollowing() && !m_reading->IsDone();
}

// The shortest first, so that a dump keeps nobody waiting, and the next one when it is done: a
// hundred at a time would hold up keys.
void Completer::ReadNextOf(const std::vector<OtherScript>& others)
{
    LiveIndex* next = nullptr;
    long shortest = 0;
    for (const OtherScript& other : others) {
        if (other.index->IsDone())
            continue;
        CZNCoreEditorControl* editor = other.index->Editor();
        if (!editor || !editor->GetSafeHwnd() || !DialectOf(*editor))
            continue;
        const long length = editor->GetLength(1);
        if (!next || length < shortest) {
            next = other.index;
            shortest = length;
        }
    }
    m_reading = next;
    if (!next)
        return;
    connect(next, &LiveIndex::Finished, this, &Completer::OnOtherRead, Qt::UniqueConnection);
    if (!next->IsFollowing())
        next->Start();
}

void Completer::OnOtherRead()
{
    ReadOthers();
    Refresh();
}

void Completer::Open()
{
    if (!MayOpen() || m_control.GetReadOnly(1))
        return;
    Close();
    CaretContext context = ContextAtCaret();
    context.query.isAsked = true;
    Fill(context);
}

void Completer::Refresh()
{
    if (!IsOpen() && !IsWaiting())
        return;
    CaretContext context = ContextAtCaret();
    const ProposalQuery& before = IsOpen() ? m_query : *m_unanswered;
    if (!IsOpen() && (context.query.start != before.start || context.query.typed != before.typed))
        return;
    context.query.isAsked = before.isAsked;
    Fill(context);
}

// For proposals, where there were none when they were wanted.
bool Completer::IsWaiting() const
{
    return m_unanswered && MayOpen() && m_window->hasFocus() && !m_control.GetReadOnly(1) &&
           m_control.GetCurrentPos(1) == m_unanswered->caret &&
           m_control.GetAnchor(1) == m_unanswered->caret;
}

// A list keeps the row that somebody walked to.
void Completer::Fill(const CaretContext& context)
{
    const ProposalQuery& query = context.query;
    const bool wasOpen = IsOpen();
    const QString kept = wasOpen && m_isWalked && m_list->Current() >= 0
                             ? m_list->At(m_list->Current()).text
                             : QString();
    m_unanswered.reset(); // a source that refreshes at once has been asked
    std::vector<Proposal> proposals = Ask(context);
    // Behind a point typing shows only what is known to belong there.
    if (!wasOpen && !query.isAsked && query.typed.isEmpty() && !proposals.empty() &&
        proposals.front().kind != ProposalKind::Column)
        proposals.clear();
    // What is there in full needs no list that typing has opened.
    const bool isComplete =
        !query.isAsked &&
        std::any_of(proposals.begin(), proposals.end(), [&](const Proposal& each) {
            return each.Compared().compare(query.typed, Qt::CaseInsensitive) == 0;
        });
    if (proposals.empty() || isComplete) {
        Close();
        if (proposals.empty())
            m_unanswered = query;
        return;
    }
    m_query = query;
    if (!wasOpen)
        m_isWalked = false;
    ProposalList& list = List();
    int row = m_query.isAsked || m_isWalked ? 0 : -1;
    for (std::size_t i = 0; i < proposals.size() && !kept.isEmpty(); ++i) {
        if (proposals[i].text == kept)
            row = static_cast<int>(i);
    }
    list.SetColours(m_scheme ? m_scheme() : nullptr);
    list.SetProposals(std::move(proposals), !m_query.isAsked);
    list.ShowAt(LineAt(m_query.start));
    if (row >= 0)
        list.SetCurrent(row);
}

void Completer::Close()
{
    m_unanswered.reset();
    m_isWalked = false;
    if (m_list)
        m_list->hide();
}

void Completer::CloseCall()
{
    if (m_tip)
        m_tip->hide();
}

QRect Completer::LineAt(long position) const
{
    const auto* area = qobject_cast<QAbstractScrollArea*>(m_window);
    const QWidget* text = area ? area->viewport() : m_window.data();
    const QPoint place(m_control.PointXFromPosition(position, 1),
                       m_control.PointYFromPosition(position, 1));
    return {text->mapToGlobal(place), QSize(1, m_control.TextHeight(0, 1))};
}

void Completer::OnNotify(const SCNotification& record)
{
    constexpr int kText = modification::InsertText | modification::DeleteText;
    switch (record.nmhdr.code) {
    case notify::CharAdded:
        m_added = static_cast<char32_t>(record.ch);
        if (IsOpen() || IsShowingCall() || m_opensAfter > 0 || m_showsCalls)
            FollowSoon();
        return;
    case notify::Modified:
        if ((record.modificationType & kText) && (IsOpen() || IsShowingCall()))
            FollowSoon();
        return;
    case notify::UpdateUi:
        if (IsOpen() || IsShowingCall())
            FollowSoon();
        return;
    case notify::FocusOut:
        Close();
        CloseCall();
        return;
    default:
        return;
    }
}

// Once what is going on is over: notifications come in the midst of a change.
void Completer::FollowSoon()
{
    if (m_isInserting || std::exchange(m_isFollowing, true))
        return;
    QMetaObject::invokeMethod(
        this, [this] { Follow(); }, Qt::QueuedConnection);
}

bool Completer::OpensHere(const ProposalQuery& query) const
{
    if (query.place == Place::OwnName || query.place == Place::Comment ||
        query.place == Place::String)
        return false;
    if (query.typed.isEmpty())
        return !query.qualifier.isEmpty();
    return query.typed.size() >= m_opensAfter;
}

void Completer::Follow()
{
    m_isFollowing = false;
    const char32_t added = std::exchange(m_added, 0);
    if (!MayOpen())
        return;
    if (added != 0 && m_opensAfter > 0) {
        ReadOthers();
        if (m_reading)
            m_reading->Defer();
    }
    FollowCall();
    if (m_showsCalls && (added == U'(' || added == U','))
        ShowCall();
    const long caret = m_control.GetCurrentPos(1);
    const bool selects = caret != m_control.GetAnchor(1);
    if (selects || m_control.GetReadOnly(1)) {
        Close();
        return;
    }
    if (!IsOpen() && (added == 0 || m_opensAfter == 0 || !m_window->hasFocus()))
        return;
    CaretContext context = ContextAtCaret();
    ProposalQuery& query = context.query;
    if (IsOpen()) {
        query.isAsked = m_query.isAsked;
        const bool isLeft =
            query.start != m_query.start || query.qualifier != m_query.qualifier ||
            (query.typed.isEmpty() && query.qualifier.isEmpty() && !m_query.typed.isEmpty());
        if (isLeft)
            Close();
        else if (query.typed != m_query.typed) {
            Fill(context);
            return;
        } else {
            FollowScroll();
            return;
        }
    }
    const bool isTyped =
        added == U'.' || (added < 0x10000 && IsWordUnit(QChar(static_cast<char16_t>(added))));
    if (added == 0 || m_opensAfter == 0 || !isTyped || !OpensHere(query))
        return;
    const long end = m_control.GetLength(1);
    if (caret < end && IsWordUnit(QChar(static_cast<char16_t>(m_control.GetCharAt(caret, 1)))))
        return; // in the midst of a word
    query.isAsked = false;
    Fill(context);
}

// The list stays at its word, as long as that can be seen.
void Completer::FollowScroll()
{
    const QRect line = LineAt(m_query.start);
    const auto* area = qobject_cast<QAbstractScrollArea*>(m_window);
    const QWidget* text = area ? area->viewport() : m_window.data();
    const QRect seen(text->mapToGlobal(QPoint(0, 0)), text->size());
    if (seen.contains(line.center()))
        m_list->ShowAt(line);
    else
        Close();
}

bool Completer::IsOurKey(const QEvent& event) const
{
    const auto& key = static_cast<const QKeyEvent&>(event);
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (key.key() == Qt::Key_Space && (modifiers == Qt::ControlModifier ||
                                       modifiers == (Qt::ControlModifier | Qt::ShiftModifier)))
        return !m_control.GetReadOnly(1);
    if (modifiers != Qt::NoModifier)
        return false;
    if (key.key() == Qt::Key_Escape)
        return IsOpen() || IsShowingCall();
    if (!IsOpen() || std::find(kKeys.begin(), kKeys.end(), key.key()) == kKeys.end())
        return false;
    const bool isEnter = key.key() == Qt::Key_Enter || key.key() == Qt::Key_Return;
    return !isEnter || m_list->Current() >= 0;
}

bool Completer::TakeKey(int key, bool isAsked)
{
    switch (key) {
    case Qt::Key_Space:
        Open();
        return isAsked;
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_isWalked = true;
        m_list->Step(key == Qt::Key_Up ? -1 : 1);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        m_isWalked = true;
        m_list->Step(key == Qt::Key_PageUp ? -m_list->RowsShown() : m_list->RowsShown());
        return true;
    case Qt::Key_Escape:
        if (IsOpen())
            Close();
        else
            CloseCall();
        return true;
    default:
        Choose(std::max(m_list->Current(), 0));
        return true;
    }
}

// A menu's shortcut for one of the keys has to wait until the list is gone.
bool Completer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_window)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (MayOpen() && IsOurKey(*event)) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (MayOpen() && IsOurKey(*event))
            return TakeKey(static_cast<QKeyEvent*>(event)->key(), true);
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
            m_unanswered.reset();
        break;
    case QEvent::Move:
    case QEvent::Resize: // a host that tells what it waits for may need room for that
        if (!IsOpen() && !IsShowingCall())
            break;
        [[fallthrough]];
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::MouseButtonPress:
        Close();
        CloseCall();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void Completer::Choose(int row)
{
    if (!IsOpen() || row < 0 || row >= m_list->Count())
        return;
    const Proposal proposal = m_list->At(row);
    // The text may have changed since the list was filled.
    const long caret = m_control.GetCurrentPos(1);
    const bool isThere =
        m_query.start <= caret && caret <= m_control.GetLength(1) && !m_control.GetReadOnly(1);
    Close();
    if (!isThere)
        return;
    const QPointer<Completer> alive(this);
    m_isInserting = true;
    const bool isDone =
        std::any_of(m_sources.begin(), m_sources.end(), [&](ProposalSource* source) {
            return source->Chosen(proposal, m_query.start);
        });
    if (!alive)
        return;
    if (!isDone)
        Insert(proposal);
    if (alive)
        m_isInserting = false;
}

QString Completer::TextOf(long start, long end) const
{
    std::u16string units;
    m_index.Reader()(start, end, units);
    return QString(reinterpret_cast<const QChar*>(units.data()),
                   static_cast<qsizetype>(units.size()));
}

// Of the script first, which may know better.
void Completer::ShowCall()
{
    if (!MayOpen())
        return;
    if (m_prepare)
        m_prepare();
    const long caret = m_control.GetCurrentPos(1);
    ScriptIndex& index = m_index.Around(caret);
    const Call call = CallAt(index, m_index.Reader(), caret);
    Signature signature;
    if (call.IsOne())
        signature = SignatureIn(index, m_index.Reader(), call.name);
    if (signature.text.isEmpty() && call.IsOne())
        signature = m_signatures.Of(call.name);
    if (signature.text.isEmpty())
        CloseCall();
    else
        Tip().ShowCall(signature, call.argument, LineAt(call.position),
                       m_scheme ? m_scheme() : nullptr);
}

void Completer::FollowCall()
{
    if (IsShowingCall())
        ShowCall();
}

} // namespace completion
