// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/changes/ChangeReporter.h"

#include "control/EngineMessages.h"
#include "engine/changes/AssistiveTechnology.h"
#include "platform/windows/Window.h"

#include <QMetaObject>
#include <QPointer>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kBefore = modification::BeforeInsert | modification::BeforeDelete;
constexpr int kOrigin = modification::User | modification::Undo | modification::Redo;

// The bits of a host's mask that the stock engine may see: style, fold, marker, indicator, line
// state, margin, annotation. None of them ever stands beside a change of the text.
constexpr int kHarmless = 0x2fc20c;

std::vector<ChangeReporter*>& Reporters()
{
    static std::vector<ChangeReporter*> reporters;
    return reporters;
}

struct Waiting
{
    QPointer<QObject> context;
    std::function<void()> act;
};

std::vector<Waiting>& AllWaiting()
{
    static std::vector<Waiting> waiting;
    return waiting;
}

} // namespace

int ChangeReporter::s_pending = 0;
int ChangeReporter::s_depth = 0;
int ChangeReporter::s_noting = 0;
int ChangeReporter::s_inside = 0;
int ChangeReporter::s_telling = 0;

ChangeReporter::ChangeReporter(QsciScintillaBase& window, const Raw& raw, TextIndex& text)
    : m_window(window), m_raw(raw), m_text(text)
{
    Reporters().push_back(this);
    m_raw.Send(Sci::SCI_SETCOMMANDEVENTS, 0); // one more signal for each change, heard by nobody
    SetModEventMask(m_mask);
    Connect();
    ConnectLists();
    ConnectMouse();
}

ChangeReporter::~ChangeReporter()
{
    std::erase(Reporters(), this);
    if (m_change.type)
        --s_pending;
    if (m_asksOver)
        --s_pending;
}

void ChangeReporter::SetModEventMask(int mask)
{
    m_mask = mask;
    m_raw.Send(Sci::SCI_SETMODEVENTMASK,
               static_cast<std::uintptr_t>((mask & kHarmless) | kBefore | m_heard));
}

void ChangeReporter::HearStyles(bool hear)
{
    m_heard = hear ? modification::ChangeStyle : 0;
    SetModEventMask(m_mask);
}

// A change that is noted while another is may be told behind the message that makes it, when its
// text is gone. Short texts are read as quickly.
ChangeReporter::Source::Source(ChangeReporter& reporter, std::u16string_view text,
                               std::size_t bytes)
    : m_reporter(reporter)
{
    constexpr std::size_t kWorthwhile = 64;
    if (s_noting == 0 && text.size() >= kWorthwhile && !HasSurrogates(text))
        reporter.m_offered = {text, static_cast<long>(bytes)};
}

void ChangeReporter::FlushAll()
{
    if (s_noting > 0)
        return; // a change that is noted in one window may not stand in the text yet
    // A handler may close windows, or open some.
    for (std::size_t i = 0; s_pending > 0 && i < Reporters().size(); ++i)
        Reporters()[i]->Flush();
    if (s_inside > 0)
        return;
    for (const Waiting& each : std::exchange(AllWaiting(), {})) {
        --s_pending;
        if (each.context)
            each.act();
    }
    for (std::size_t i = 0; s_depth + s_telling == 0 && s_pending > 0 && i < Reporters().size();
         ++i)
        Reporters()[i]->TellOver();
}

void ChangeReporter::TellOver()
{
    if (!m_asksOver)
        return;
    m_asksOver = false;
    --s_pending;
    SCNotification record;
    Send(notify::Over, record);
}

void ChangeReporter::WhenSettled(QObject* context, std::function<void()> act)
{
    if (s_inside == 0) {
        act();
        return;
    }
    AllWaiting().push_back({context, std::move(act)});
    ++s_pending;
}

// It is asked until there is one: what is sent to none does no harm.
bool ChangeReporter::HasListener()
{
    m_hasListener = m_hasListener || AttachedWnd(m_window.parentWidget());
    return m_hasListener;
}

void ChangeReporter::Connect()
{
    QObject::connect(&m_window, &Sci::SCN_SAVEPOINTREACHED, &m_window,
                     [this] { OnSavePoint(notify::SavePointReached); });
    QObject::connect(&m_window, &Sci::SCN_SAVEPOINTLEFT, &m_window,
                     [this] { OnSavePoint(notify::SavePointLeft); });
    QObject::connect(&m_window, &Sci::SCN_CHARADDED, &m_window, [this](int ch) {
        if (m_tellsTyped)
            Tell(notify::CharAdded, {.ch = ch});
    });
    QObject::connect(&m_window, &Sci::SCN_STYLENEEDED, &m_window,
                     [this](int position) { OnStyleNeeded(position); });
    QObject::connect(&m_window, &Sci::SCN_UPDATEUI, &m_window,
                     [this](int updated) { Tell(notify::UpdateUi, {.updated = updated}); });
    QObject::connect(&m_window, &Sci::SCN_MODIFYATTEMPTRO, &m_window,
                     [this] { Tell(notify::ModifyAttemptReadOnly); });
    // Of what is about to change: another window may have noted that change by now.
    QObject::connect(&m_window, &Sci::SCN_NEEDSHOWN, &m_window, [this](int position, int length) {
        ++s_noting;
        ++s_inside;
        Flush();
        Tell(notify::NeedShown,
             {.position = Units(position), .length = Units(position + length) - Units(position)});
        --s_inside;
        --s_noting;
    });
    QObject::connect(&m_window, &Sci::SCN_PAINTED, &m_window, [this] { Tell(notify::Painted); });
    QObject::connect(&m_window, &Sci::SCN_ZOOM, &m_window, [this] { Tell(notify::Zoom); });
    QObject::connect(&m_window, &Sci::SCN_FOCUSIN, &m_window, [this] { Tell(notify::FocusIn); });
    QObject::connect(&m_window, &Sci::SCN_FOCUSOUT, &m_window, [this] { Tell(notify::FocusOut); });
    QObject::connect(&m_window, &Sci::SCN_MACRORECORD, &m_window,
                     [this](unsigned number, unsigned long wParam, void* lParam) {
                         OnMacroRecord(number, wParam, lParam);
                     });
    QObject::connect(&m_window, &Sci::SCN_URIDROPPED, &m_window, [this](const QUrl& url) {
        const std::u16string text = url.toString().toStdU16String();
        Tell(notify::UriDropped, {.text = text.c_str()});
    });
}

void ChangeReporter::ConnectLists()
{
    const auto tellChoice = [this](UINT code, const char* chosen, int listType, int position,
                                   int ch, int method) {
        const std::u16string text = chosen ? ToUtf16(chosen) : std::u16string();
        Tell(code, {.position = Units(position),
                    .ch = ch,
                    .text = text.c_str(),
                    .listType = listType,
                    .listCompletionMethod = method});
    };
    QObject::connect(&m_window, qOverload<const char*, int, int, int>(&Sci::SCN_AUTOCSELECTION),
                     &m_window, [tellChoice](const char* text, int position, int ch, int method) {
                         tellChoice(notify::AutoCSelection, text, 0, position, ch, method);
                     });
    QObject::connect(&m_window, &Sci::SCN_AUTOCCOMPLETED, &m_window,
                     [tellChoice](const char* text, int position, int ch, int method) {
                         tellChoice(notify::AutoCCompleted, text, 0, position, ch, method);
                     });
    QObject::connect(&m_window, &Sci::SCN_AUTOCSELECTIONCHANGE, &m_window,
                     [tellChoice](const char* text, int id, int position) {
                         tellChoice(notify::AutoCSelectionChange, text, id, position, 0, 0);
                     });
    QObject::connect(
        &m_window, qOverload<const char*, int, int, int, int>(&Sci::SCN_USERLISTSELECTION),
        &m_window, [tellChoice](const char* text, int id, int ch, int method, int position) {
            tellChoice(notify::UserListSelection, text, id, position, ch, method);
        });
    QObject::connect(&m_window, &Sci::SCN_AUTOCCANCELLED, &m_window,
                     [this] { Tell(notify::AutoCCancelled); });
    QObject::connect(&m_window, &Sci::SCN_AUTOCCHARDELETED, &m_window,
                     [this] { Tell(notify::AutoCCharDeleted); });
}

void ChangeReporter::ConnectMouse()
{
    const auto tellPlace = [this](UINT code, int position, int modifiers) {
        Tell(code, {.position = Units(position), .modifiers = modifiers});
    };
    const auto connectPlace = [&](auto signal, UINT code) {
        QObject::connect(&m_window, signal, &m_window,
                         [tellPlace, code](int position, int modifiers) {
                             tellPlace(code, position, modifiers);
                         });
    };
    connectPlace(&Sci::SCN_HOTSPOTCLICK, notify::HotSpotClick);
    connectPlace(&Sci::SCN_HOTSPOTDOUBLECLICK, notify::HotSpotDoubleClick);
    connectPlace(&Sci::SCN_HOTSPOTRELEASECLICK, notify::HotSpotReleaseClick);
    connectPlace(&Sci::SCN_INDICATORCLICK, notify::IndicatorClick);
    connectPlace(&Sci::SCN_INDICATORRELEASE, notify::IndicatorRelease);

    const auto connectMargin = [&](auto signal, UINT code) {
        QObject::connect(
            &m_window, signal, &m_window, [this, code](int position, int modifiers, int margin) {
                Tell(code, {.position = Units(position), .modifiers = modifiers, .margin = margin});
            });
    };
    connectMargin(&Sci::SCN_MARGINCLICK, notify::MarginClick);
    connectMargin(&Sci::SCN_MARGINRIGHTCLICK, notify::MarginRightClick);

    const auto connectDwell = [&](auto signal, UINT code) {
        QObject::connect(&m_window, signal, &m_window, [this, code](int position, int x, int y) {
            Tell(code, {.position = position < 0 ? position : Units(position), .x = x, .y = y});
        });
    };
    connectDwell(&Sci::SCN_DWELLSTART, notify::DwellStart);
    connectDwell(&Sci::SCN_DWELLEND, notify::DwellEnd);

    QObject::connect(&m_window, &Sci::SCN_DOUBLECLICK, &m_window,
                     [this](int position, int line, int modifiers) {
                         Tell(notify::DoubleClick,
                              {.position = Units(position), .modifiers = modifiers, .line = line});
                     });
    QObject::connect(&m_window, &Sci::SCN_CALLTIPCLICK, &m_window, [this](int direction) {
        Tell(notify::CallTipClick, {.position = direction});
    });
}

void ChangeReporter::OnModified(int position, int type, int length, int line, int foldNow,
                                int foldPrev, int token, int annotationLinesAdded)
{
    if (type & kBefore) {
        ++s_noting;
        ++s_inside;
        Flush();
        // It may move marks, of which a host can be told: before there is a change that waits.
        if (m_follow)
            m_follow({.inserts = (type & modification::BeforeInsert) != 0,
                      .position = position,
                      .bytes = length,
                      .origin = type & modification::Undo   ? EditOrigin::Undo
                                : type & modification::Redo ? EditOrigin::Redo
                                                            : EditOrigin::Person});
        Note(type, {position}, length);
        --s_inside;
        --s_noting;
        return;
    }
    if (!(type & m_mask))
        return;
    SCNotification record;
    record.modificationType = type;
    if (type & modification::ChangeStyle || type & modification::ChangeIndicator) {
        record.position = Units(position);
        record.length = Units(position + length) - record.position;
    }
    record.line = line;
    record.foldLevelNow = foldNow;
    record.foldLevelPrev = foldPrev;
    record.token = token;
    record.annotationLinesAdded = annotationLinesAdded;
    ++s_inside;
    Tell(notify::Modified, record);
    --s_inside;
}

// In place, as in TextIndex: to copy a record of what has just been written one by one, the machine
// waits for all of it, and an undo of many changes comes this way for each.
void ChangeReporter::Note(int type, BytePos position, long bytes)
{
    const bool inserts = type & modification::BeforeInsert;
    const int reported = inserts ? modification::InsertText : modification::DeleteText;
    m_change.position = position;
    m_change.bytes = bytes;
    m_change.source = {};
    if (inserts && m_offered.bytes == bytes)
        m_change.source = std::exchange(m_offered, {}).text;
    m_change.told = (m_mask & (reported | (type & kOrigin))) && HasListener();
    m_change.spoken = g_assistiveTechnology.listens();
    if (m_change.told || m_change.spoken) {
        m_change.unit = m_text.ToUnits(position);
        if (m_lines < 0)
            m_lines = m_raw.LineCount();
        if (!inserts)
            ReadChange(m_changed);
    }
    const long length = m_text.LengthInBytes();
    if (inserts) {
        m_text.InsertionBegins(position, bytes);
        m_colouring->InsertionBegins(m_raw, length, position.value, bytes);
    } else {
        m_text.DeletionBegins(position, bytes);
        m_colouring->DeletionBegins(m_raw, length, position.value, bytes);
    }
    m_change.type = type;
    ++s_pending;
    if (s_depth == 0)
        QMetaObject::invokeMethod(
            &m_window, [] { FlushAll(); }, Qt::QueuedConnection);
}

void ChangeReporter::Flush()
{
    if (!m_change.type)
        return;
    const int type = std::exchange(m_change.type, 0);
    --s_pending;
    if (m_change.told || m_change.spoken) {
        TellChange(type);
    } else {
        m_text.ChangeDone();
        m_lines = -1;
        MarkChange(type & modification::BeforeInsert);
    }
    if (m_savePoints.empty())
        return;
    for (const UINT code : std::exchange(m_savePoints, {})) {
        SCNotification record;
        Send(code, record);
    }
}

// While it stands in the text. Gives its bytes.
std::string_view ChangeReporter::ReadChange(Utf16Text& text)
{
    const long start = m_change.position.value;
    const long front = start > 0;
    std::string_view bytes = m_raw.Bytes(start - front, start + m_change.bytes);
    m_change.isBehindCr = front && bytes.front() == '\r';
    bytes.remove_prefix(static_cast<std::size_t>(front));
    text.Assign(bytes);
    return bytes;
}

// Asks the stock engine, except where it is plain to see that there are none.
long ChangeReporter::LinesAdded(bool isPlain)
{
    if (isPlain && !m_change.isBehindCr)
        return 0;
    const long before = std::exchange(m_lines, m_raw.LineCount());
    return m_lines - before;
}

void ChangeReporter::TellChange(int type)
{
    const bool isTold = m_change.told;
    SCNotification record = m_blank;
    record.position = m_change.unit.value;
    // A handler may make the next change, whose text is not this one.
    Utf16Text text = std::exchange(m_changed, {});
    const std::u16string_view source = std::exchange(m_change.source, {});
    if (!source.empty()) {
        record.modificationType = modification::InsertText;
        m_text.InsertionDone(static_cast<long>(source.size()));
    } else if (type & modification::BeforeInsert) {
        record.modificationType = modification::InsertText;
        const std::string_view bytes = ReadChange(text);
        // Of half a character that is not what the text has.
        const long units = text.IsPlain() ? m_change.bytes : CountUnits(bytes);
        m_text.InsertionDone(units);
    } else {
        record.modificationType = modification::DeleteText;
        m_text.ChangeDone();
    }
    record.linesAdded = LinesAdded(source.empty() && text.IsPlain());
    MarkChange(record.linesAdded > 0);
    record.modificationType |= type & kOrigin;
    record.text = source.empty() ? text.Data() : source.data();
    record.length = static_cast<long>(source.empty() ? text.Size() : source.size());
    if (m_change.spoken)
        Speak(record);
    if (isTold)
        Send(notify::Modified, record);
    if (m_changed.Size() == 0)
        m_changed = std::move(text); // for its storage
}

void ChangeReporter::MarkChange(bool addsLines) const
{
    const long start = m_change.position.value;
    if (m_markChange)
        m_markChange(start, addsLines ? start + m_change.bytes : start);
}

void ChangeReporter::Speak(const SCNotification& record) const
{
    const auto position = static_cast<int>(record.position);
    const QString spoken = QStringView(record.text, record.length).toString();
    if (record.modificationType & modification::InsertText) {
        QAccessibleTextInsertEvent event(&m_window, position, spoken);
        g_assistiveTechnology.tell(&event);
    } else {
        QAccessibleTextRemoveEvent event(&m_window, position, spoken);
        g_assistiveTechnology.tell(&event);
    }
}

void ChangeReporter::OnSavePoint(UINT code)
{
    if (m_change.type) {
        m_savePoints.push_back(code);
        return;
    }
    Tell(code);
}

// SQL is styled here; a language that is the host's own is styled by the host.
void ChangeReporter::OnStyleNeeded(int position)
{
    const std::shared_ptr<Colouring> colouring = m_colouring; // a handler may change documents
    if (colouring->IsSql()) {
        colouring->StyleTo(m_raw, position);
        return;
    }
    const std::intptr_t styled = m_raw.Send(Sci::SCI_GETENDSTYLED);
    Tell(notify::StyleNeeded, {.position = Units(position)});
    // The stock engine asks before each paint until somebody has styled, and compares all of the
    // caret's line with what it has laid out whenever it has asked: where that is long, it takes no
    // for an answer.
    const auto caret = static_cast<std::uintptr_t>(m_raw.Send(Sci::SCI_GETCURRENTPOS));
    const auto line = static_cast<std::uintptr_t>(m_raw.Send(Sci::SCI_LINEFROMPOSITION, caret));
    if (m_raw.Send(Sci::SCI_LINELENGTH, line) >= AlikeStyles::kLongLine &&
        m_raw.Send(Sci::SCI_GETENDSTYLED) == styled)
        m_raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(position));
}

void ChangeReporter::OnMacroRecord(UINT number, unsigned long wParam, void* lParam)
{
    if (m_listen && !m_listen(number))
        return;
    const auto* row = std::find_if(std::begin(kMessageRows), std::end(kMessageRows),
                                   [number](const MessageRow& r) { return r.number == number; });
    if (row == std::end(kMessageRows))
        return;
    SCNotification record;
    record.message = static_cast<int>(number);
    record.wParam = wParam;
    record.lParam = reinterpret_cast<LPARAM>(lParam);
    std::u16string text;
    if (row->wParam == Kind::Pos)
        record.wParam = static_cast<WPARAM>(Units(static_cast<long>(wParam)));
    if (row->lParam == Kind::TextIn && lParam) {
        const char* bytes = static_cast<const char*>(lParam);
        text = row->wParam == Kind::Count ? ToUtf16({bytes, wParam}) : ToUtf16(bytes);
        record.lParam = reinterpret_cast<LPARAM>(text.c_str());
        if (row->wParam == Kind::Count)
            record.wParam = text.size();
    }
    Tell(notify::MacroRecord, record);
}

void ChangeReporter::Tell(UINT code, SCNotification record)
{
    Flush();
    Send(code, record);
}

void ChangeReporter::Send(UINT code, SCNotification& record)
{
    if (m_id == 0)
        m_id = GetDlgCtrlID(&m_window);
    record.nmhdr = {&m_window, m_id, code};
    const bool isNews = code != notify::Over;
    s_telling += isNews;
    const LRESULT answer =
        SendMessage(m_window.parentWidget(), WM_NOTIFY, m_id, reinterpret_cast<LPARAM>(&record));
    s_telling -= isNews;
    if (answer != notify::kTellWhenOver || m_asksOver)
        return;
    m_asksOver = true;
    ++s_pending;
}

} // namespace engine
