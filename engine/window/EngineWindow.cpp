// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/EngineWindow.h"

#include "engine/changes/AssistiveTechnology.h"
#include "engine/core/CaretSteps.h"
#include "engine/core/Documents.h"
#include "engine/looks/DocumentMap.h"
#include "engine/window/Accessible.h"
#include "engine/window/StyleLooks.h"
#include "platform/text/VectorState.h"
#include "platform/windows/ScrollBars.h"
#include "platform/windows/Window.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>

#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

// Tells what an event of the user's has changed, once the event is over.
template <typename Handle>
bool TellAfter(Engine& engine, Handle handle)
{
    bool handled = false;
    const QPointer<QObject> window(&engine.window);
    {
        const ChangeReporter::Scope scope;
        const CaretSteps::Acting acting(engine);
        engine.columns.Settle();
        if (engine.text.MayHaveNoncharacters()) {
            engine.wholeCharacters.Begin();
            handled = handle();
            if (window)
                engine.wholeCharacters.End();
        } else {
            handled = handle();
        }
    }
    if (window)
        engine.Settle();
    if (ChangeReporter::AnyPending())
        ChangeReporter::FlushAll();
    return handled;
}

// What the menu offers, and when it can be done.
struct MenuRow
{
    const char* text; // empty: a line between groups
    UINT message;
    UINT canDo; // asks whether; 0: always
    bool needsSelection;
    bool changesText;
};

constexpr MenuRow kMenu[] = {
    {QT_TRANSLATE_NOOP("EngineWindow", "Undo"), message::Undo, message::CanUndo, false, true},
    {QT_TRANSLATE_NOOP("EngineWindow", "Redo"), message::Redo, message::CanRedo, false, true},
    {"", 0, 0, false, false},
    {QT_TRANSLATE_NOOP("EngineWindow", "Cut"), message::Cut, 0, true, true},
    {QT_TRANSLATE_NOOP("EngineWindow", "Copy"), message::Copy, 0, true, false},
    {QT_TRANSLATE_NOOP("EngineWindow", "Paste"), message::Paste, message::CanPaste, false, true},
    {QT_TRANSLATE_NOOP("EngineWindow", "Delete"), message::Clear, 0, true, true},
    {"", 0, 0, false, false},
    {QT_TRANSLATE_NOOP("EngineWindow", "Select All"), message::SelectAll, 0, false, false},
};

bool CanDo(Engine& engine, const MenuRow& row)
{
    if (row.changesText && engine.raw.Send(Sci::SCI_GETREADONLY))
        return false;
    if (row.needsSelection && engine.raw.Send(Sci::SCI_GETSELECTIONEMPTY))
        return false;
    return row.canDo == 0 || engine.Perform(row.canDo, 0, 0) != 0;
}

bool IsEraseKey(const QKeyEvent& event)
{
    return (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete) &&
           (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool IsLineKey(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool MovesCaret(const QKeyEvent& event)
{
    return event.key() >= Qt::Key_Home && event.key() <= Qt::Key_PageDown;
}

bool MovesByLines(const QKeyEvent& event)
{
    const int key = event.key();
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

bool MovesAlongLine(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers();
    const bool isArrow = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
    const bool isEnd = event.key() == Qt::Key_Home || event.key() == Qt::Key_End;
    return !(held & (Qt::AltModifier | Qt::MetaModifier)) &&
           (isArrow || (isEnd && !held.testFlag(Qt::ControlModifier)));
}

// A key that changes no text: the caret's, or a modifier alone.
bool OnlyMoves(const QKeyEvent& event)
{
    const bool isCommand =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return (MovesCaret(event) && !isCommand) ||
           (event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_Alt);
}

CaretSteps::Key KeyOf(const QKeyEvent& event)
{
    using Key = CaretSteps::Key;
    if (IsEraseKey(event))
        return Key::Erases;
    const bool isCommand =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QString text = event.text();
    return !isCommand && !text.isEmpty() && text.front().isPrint() ? Key::Types : Key::Other;
}

bool MakesColumns(const QKeyEvent& event)
{
    return event.modifiers().testFlags(Qt::AltModifier | Qt::ShiftModifier);
}

} // namespace

EngineWindow::EngineWindow(QWidget* parent) : QsciScintillaBase(parent), m_engine(*this)
{
    // By name, which spares two atomic steps for each change: a quarter of what the signal takes.
    connect(this, SIGNAL(SCN_MODIFIED(int, int, const char*, int, int, int, int, int, int, int)),
            this, SLOT(OnModified(int, int, const char*, int, int, int, int, int, int, int)));
    setFrameShape(QFrame::NoFrame);
    m_engine.raw.Send(Sci::SCI_USEPOPUP, 0);
    // A style that was never set has no font at all, which cannot be put back after printing.
    m_engine.raw.Send(Sci::SCI_STYLECLEARALL);
    // Line numbers stand in margin 1 here, behind the one for a host's own texts.
    m_engine.raw.Send(Sci::SCI_SETMARGINTYPEN, 0, long{Sci::SC_MARGIN_TEXT});
    m_engine.raw.Send(Sci::SCI_SETMARGINTYPEN, 1, long{Sci::SC_MARGIN_NUMBER});
    m_engine.raw.Send(Sci::SCI_SETMARGINMASKN, 1, 0L);
    m_engine.raw.Send(Sci::SCI_SETMARGINWIDTHN, 1, 0L);
    m_engine.raw.Send(Sci::SCI_SETFOLDFLAGS, Sci::SC_FOLDFLAG_LINEAFTER_CONTRACTED);
    m_engine.setMapRoom = [this](int width) {
        m_place.End();
        QMargins margins = viewportMargins();
        margins.setRight(width);
        setViewportMargins(margins);
    };
    m_engine.type = [this](std::u16string_view text) {
        TypeText(QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())));
    };
    setAccessibleName(QCoreApplication::translate("EngineWindow", "Text editor"));
    connect(this, &Sci::SCN_UPDATEUI, this, [this](int updated) {
        m_engine.looks.Updated(updated);
        if (updated & Sci::SC_UPDATE_SELECTION && hasFocus())
            updateMicroFocus(); // the method's list of candidates follows the caret
        if (updated & (Sci::SC_UPDATE_SELECTION | Sci::SC_UPDATE_CONTENT))
            TellCaret();
    });
}

// To assistive technology, where the caret is and what is selected, if that is news.
void EngineWindow::TellCaret()
{
    if (!g_assistiveTechnology.listens())
        return;
    const auto units = [this](unsigned message) {
        return static_cast<int>(m_engine.Units(static_cast<long>(m_engine.raw.Send(message))));
    };
    const Told now{units(SCI_GETCURRENTPOS), units(SCI_GETSELECTIONSTART),
                   units(SCI_GETSELECTIONEND)};
    const Told before = std::exchange(m_told, now);
    if (now.caret != before.caret) {
        QAccessibleTextCursorEvent moved(this, now.caret);
        g_assistiveTechnology.tell(&moved);
    }
    const bool isSelection = now.start != now.end || before.start != before.end;
    if (isSelection && (now.start != before.start || now.end != before.end)) {
        QAccessibleTextSelectionEvent selected(this, now.start, now.end);
        selected.setCursorPosition(now.caret);
        g_assistiveTechnology.tell(&selected);
    }
}

// The stock engine tells of a list that it takes down with it.
EngineWindow::~EngineWindow()
{
    disconnect(this, nullptr, this, nullptr);
}

void EngineWindow::OnModified(int position, int type, const char* /*text*/, int length,
                              int /*linesAdded*/, int line, int foldNow, int foldPrev, int token,
                              int annotationLinesAdded)
{
    if (type & (SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE))
        m_place.EndSoon();
    else if (m_engine.map && type & SC_MOD_CHANGESTYLE)
        m_engine.map->StylesChanged(position, length);
    m_engine.reporter.OnModified(position, type, length, line, foldNow, foldPrev, token,
                                 annotationLinesAdded);
}

LRESULT EngineWindow::Direct(LRESULT instance, UINT message, WPARAM wParam, LPARAM lParam)
{
    return reinterpret_cast<EngineWindow*>(instance)->Answer(message, wParam, lParam);
}

// Between two lines the stock engine has one more of them.
LRESULT EngineWindow::Answer(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!m_place.IsBetweenLines())
        return m_engine.Perform(message, wParam, lParam);
    if (PixelPlace::IsEndedBy(message))
        m_place.End();
    const bool isOneMore = message == message::LinesOnScreen && m_place.IsBetweenLines();
    return m_engine.Perform(message, wParam, lParam) - (isOneMore ? 1 : 0);
}

LRESULT EngineWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* self = static_cast<EngineWindow*>(window);
    if (message == message::GetDirectFunction)
        return reinterpret_cast<LRESULT>(&EngineWindow::Direct);
    if (message == message::GetDirectPointer)
        return reinterpret_cast<LRESULT>(self);
    if (message == kGetStyleLook)
        return GetStyleLook(self->m_engine, wParam, reinterpret_cast<StyleLook*>(lParam));
    if (message == WM_HSCROLL || message == WM_VSCROLL) {
        self->m_scrollReports.Scroll(message, wParam);
        return 0;
    }
    return self->Answer(message, wParam, lParam);
}

bool EngineWindow::event(QEvent* event)
{
    platform::ClearUpperHalves();
    m_place.See(*event);
    return TellAfter(m_engine, [&] { return QsciScintillaBase::event(event); });
}

bool EngineWindow::viewportEvent(QEvent* event)
{
    platform::ClearUpperHalves();
    if (event->type() == QEvent::Drop)
        m_engine.EndRuns();
    if (event->type() == QEvent::Leave)
        m_engine.looks.MouseLeft();
    m_place.SeeInside(*event);
    return TellAfter(m_engine, [&] {
        return m_fineScroll.Touch(*event) || QsciScintillaBase::viewportEvent(event);
    });
}

// Types the text as one undo step. The stock handler of a commit, which types character by
// character, is used for that alone: its compositions stand in the text.
void EngineWindow::TypeText(const QString& text)
{
    if (m_engine.raw.Send(Sci::SCI_GETREADONLY)) {
        m_engine.reporter.Tell(notify::ModifyAttemptReadOnly);
        return;
    }
    m_engine.wholeCharacters.BeforeTyping();
    QInputMethodEvent commit;
    commit.setCommitString(text);
    QsciScintillaBase::inputMethodEvent(&commit);
}

void EngineWindow::inputMethodEvent(QInputMethodEvent* event)
{
    m_engine.EndRuns();
    const bool changesText = !event->commitString().isEmpty() || event->replacementLength() > 0;
    if (changesText)
        m_engine.Perform(message::BeginUndoAction, 0, 0);
    m_inputMethod.Begin(*event);
    if (!event->commitString().isEmpty())
        TypeText(event->commitString());
    if (changesText)
        m_engine.Perform(message::EndUndoAction, 0, 0);
    event->accept();
    viewport()->update();
    updateMicroFocus();
}

QVariant EngineWindow::inputMethodQuery(Qt::InputMethodQuery query) const
{
    if (query == Qt::ImHints)
        return static_cast<int>(inputMethodHints() | Qt::ImhMultiLine);
    QVariant answer = m_inputMethod.Answer(query);
    if (query == Qt::ImCursorRectangle)
        return answer.toRect().translated(viewport()->pos());
    if (answer.isValid())
        return answer;
    // The stock widget in between would answer by bytes and paragraphs.
    return QAbstractScrollArea::inputMethodQuery(query); // NOLINT(bugprone-parent-virtual-call)
}

// Asks the input method to commit, and gives up what it then still composes.
void EngineWindow::EndComposition()
{
    if (!m_inputMethod.IsComposing())
        return;
    QGuiApplication::inputMethod()->commit();
    m_inputMethod.Discard();
    viewport()->update();
}

// Whoever the window belongs to may have a menu of its own.
void EngineWindow::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const CPoint point =
        byKey ? CPoint{-1, -1} : CPoint{event->globalPos().x(), event->globalPos().y()};
    const QPointer<EngineWindow> alive(this);
    const bool isDone =
        SendMessage(this, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(this), PointParam(point)) != 0;
    if (isDone || !alive) {
        event->accept();
        return;
    }
    if (!m_engine.usePopUp) {
        event->ignore();
        return;
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const MenuRow& row : kMenu) {
        if (!*row.text) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(QCoreApplication::translate("EngineWindow", row.text));
        action->setEnabled(CanDo(m_engine, row));
        connect(action, &QAction::triggered, this,
                [this, number = row.message] { m_engine.Perform(number, 0, 0); });
    }
    const QRect caret = inputMethodQuery(Qt::ImCursorRectangle).toRect();
    menu->popup(event->reason() == QContextMenuEvent::Mouse ? event->globalPos()
                                                            : mapToGlobal(caret.bottomLeft()));
    event->accept();
}

void EngineWindow::focusInEvent(QFocusEvent* event)
{
    QsciScintillaBase::focusInEvent(event);
    m_engine.looks.FocusChanged(true);
}

void EngineWindow::focusOutEvent(QFocusEvent* event)
{
    EndComposition();
    QsciScintillaBase::focusOutEvent(event);
    m_engine.looks.FocusChanged(false);
}

void EngineWindow::keyPressEvent(QKeyEvent* event)
{
    const QPointer<EngineWindow> alive(this);
    const bool erases = IsEraseKey(*event);
    if (erases)
        m_engine.EraseKeyBegins(event->key() == Qt::Key_Backspace);
    else if (!OnlyMoves(*event))
        m_engine.EndEraseRun();
    if (!OnlyMoves(*event))
        documents::CaretStepsOf(m_engine.Document()).KeyBegins(m_engine, KeyOf(*event));
    if (IsLineKey(*event) || (m_hasMoved && KeyOf(*event) != CaretSteps::Key::Other)) {
        m_engine.EndTypedStep();
        m_hasMoved = false;
    }
    m_hasMoved |= MovesCaret(*event);
    if (MovesCaret(*event))
        documents::CaretStepsOf(m_engine.Document()).LineEnds(m_engine.raw);
    if (MovesByLines(*event))
        m_engine.AimAtCaret();
    if (MovesAlongLine(*event) && m_engine.looks.IsOn())
        m_carets.DissolveColumn();
    PressKey(event);
    if (!alive)
        return;
    if (erases)
        m_engine.EraseKeyEnds();
    documents::CaretStepsOf(m_engine.Document()).KeyEnds();
}

// The stock handler types the character of a key that no command took, whatever is held with it,
// and takes a pair of surrogates for something that cannot be printed. AltGr counts as none of the
// modifiers that make a command.
void EngineWindow::PressKey(QKeyEvent* event)
{
    const QString text = event->text();
    const bool isCommand =
        event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (event->key() == Qt::Key_Escape)
        m_carets.Drop();
    if (TypeInLongLine(*event)) {
        event->accept();
        return;
    }
    m_engine.longLines.Prepare();
    if (MakesColumns(*event)) {
        if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)
            m_engine.columns.Begin();
        if (!m_engine.columns.HaveRoom()) {
            event->accept();
            return;
        }
    }
    if (isCommand && !text.isEmpty()) {
        QKeyEvent command(event->type(), event->key(), event->modifiers(), event->nativeScanCode(),
                          event->nativeVirtualKey(), event->nativeModifiers(), {},
                          event->isAutoRepeat());
        QsciScintillaBase::keyPressEvent(&command);
        event->setAccepted(command.isAccepted());
        return;
    }
    if (!text.isEmpty() && text.front().isHighSurrogate()) {
        TypeText(text);
        event->accept();
        return;
    }
    if (!text.isEmpty() && text.front().isPrint() && !isCommand)
        m_engine.wholeCharacters.BeforeTyping();
    QsciScintillaBase::keyPressEvent(event);
}

bool EngineWindow::TypeInLongLine(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete)
        return held == Qt::NoModifier && m_engine.longLines.Erase(event.key() == Qt::Key_Backspace);
    const QList<uint> characters = event.text().toUcs4();
    return !(held & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
           characters.size() == 1 && QChar::isPrint(characters.front()) &&
           m_engine.longLines.Type(event.text().toUtf8().toStdString(), characters.front());
}

void EngineWindow::paintEvent(QPaintEvent* event)
{
    m_engine.PrepareToPaint();
    m_engine.longLines.Prepare();
    QsciScintillaBase::paintEvent(event);
    if (m_engine.looks.IsOn()) {
        QPainter painter(viewport());
        painter.setClipRegion(event->region());
        m_engine.looks.Paint(painter, *event);
    }
    if (m_inputMethod.IsComposing()) {
        QPainter painter(viewport());
        m_inputMethod.Draw(painter);
    }
}

void RegisterEngineWindow()
{
    Accessible::InstallFactory();
    RegisterWindowClass({kWindowClass,
                         [](QWidget* parent) -> QWidget* { return new EngineWindow(parent); },
                         &EngineWindow::Procedure});
}

} // namespace engine
