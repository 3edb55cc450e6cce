// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/EngineWindow.h"

#include "engine/changes/AssistiveTechnology.h"
#include "engine/core/RectanglePaste.h"
#include "engine/text/Characters.h"
#include "engine/window/Accessible.h"
#include "engine/window/StyleLooks.h"
#include "platform/text/VectorState.h"
#include "platform/windows/ScrollBars.h"
#include "platform/windows/Window.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QWheelEvent>

#include <cmath>
#include <cstdlib>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

// Tells what an event of the user's has changed, once the event is over.
template <typename Handle>
bool TellAfter(Engine& engine, Handle handle)
{
    bool handled = false;
    {
        const ChangeReporter::Scope scope;
        engine.columns.Settle();
        if (engine.text.MayHaveNoncharacters()) {
            const QPointer<QObject> alive(&engine.window);
            engine.wholeCharacters.Begin();
            handled = handle();
            if (alive)
                engine.wholeCharacters.End();
        } else {
            handled = handle();
        }
    }
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

// A key that changes no text: the caret's, or a modifier alone.
bool OnlyMoves(const QKeyEvent& event)
{
    const bool isCommand =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool moves = event.key() >= Qt::Key_Home && event.key() <= Qt::Key_PageDown;
    return (moves && !isCommand) || (event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_Alt);
}

bool MakesColumns(const QKeyEvent& event)
{
    return event.modifiers().testFlags(Qt::AltModifier | Qt::ShiftModifier);
}

QByteArray WithLineEnds(const QByteArray& text, int mode)
{
    const char* eol = mode == 1 ? "\r\n" : mode == 2 ? "\r" : "\n";
    QByteArray result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char byte = text[i];
        if (byte != '\r' && byte != '\n') {
            result.append(byte);
            continue;
        }
        if (byte == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
        result.append(eol);
    }
    return result;
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
    setAccessibleName(QCoreApplication::translate("EngineWindow", "Text editor"));
    connect(this, &Sci::SCN_UPDATEUI, this, [this](int updated) {
        m_engine.looks.Updated(updated);
        if (!(updated & Sci::SC_UPDATE_SELECTION))
            return;
        if (hasFocus()) // the method's list of candidates follows the caret
            updateMicroFocus();
        if (!g_assistiveTechnology.listens())
            return;
        QAccessibleTextCursorEvent moved(
            this, static_cast<int>(m_engine.Units(SendScintilla(SCI_GETCURRENTPOS))));
        g_assistiveTechnology.tell(&moved);
    });
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
        m_engine.EndEraseRun();
    if (event->type() == QEvent::Leave)
        m_engine.looks.MouseLeft();
    m_place.SeeInside(*event);
    return TellAfter(m_engine, [&] {
        return m_fineScroll.Touch(*event) || QsciScintillaBase::viewportEvent(event);
    });
}

QMimeData* EngineWindow::toMimeData(const QByteArray& text, bool rectangular) const
{
    return QsciScintillaBase::toMimeData(
        m_engine.copyEol > 0 ? WithLineEnds(text, m_engine.copyEol) : text, rectangular);
}

// What is put in here leaves nothing for the stock engine. A macro has the command alone, not what
// it is made of.
QByteArray EngineWindow::fromMimeData(const QMimeData* source, bool& rectangular) const
{
    QByteArray text = QsciScintillaBase::fromMimeData(source, rectangular);
    const Raw& raw = m_engine.raw;
    if (!rectangular || raw.Send(Sci::SCI_GETREADONLY) ||
        !NeedsOwnRectanglePaste(raw, m_engine.text.MayHaveNoncharacters()))
        return text;
    rectangular = false;
    if (m_isDropping)
        return text;
    raw.Send(Sci::SCI_STOPRECORD);
    PasteRectangle(raw, {text.constData(), static_cast<std::size_t>(text.size())});
    if (m_engine.wholeCharacters.Listens())
        raw.Send(Sci::SCI_STARTRECORD);
    return {};
}

// The stock engine drops within a character that it takes byte by byte.
QPointF EngineWindow::BesideCharacter(QPointF point) const
{
    const Raw& raw = m_engine.raw;
    const auto ask = [&raw](UINT message, long first, long second = 0) {
        return static_cast<long>(
            raw.Send(message, static_cast<std::uintptr_t>(first), std::intptr_t{second}));
    };
    const long place =
        ask(Sci::SCI_POSITIONFROMPOINT, std::lround(point.x()), std::lround(point.y()));
    const long whole = CharacterStart(raw, place);
    if (whole != place)
        point.setX(double(ask(Sci::SCI_POINTXFROMPOSITION, 0, whole)));
    return point;
}

// Text goes to where it was dragged last. A rectangle beside such characters goes in as text.
void EngineWindow::dropEvent(QDropEvent* event)
{
    if (m_engine.text.MayHaveNoncharacters()) {
        QDragMoveEvent beside(BesideCharacter(event->position()).toPoint(),
                              event->possibleActions(), event->mimeData(), event->buttons(),
                              event->modifiers());
        dragMoveEvent(&beside);
    }
    m_isDropping = true;
    QsciScintillaBase::dropEvent(event);
    m_isDropping = false;
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
    m_engine.EndEraseRun();
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

// The stock handler takes Control for columns, where Alt is the window manager's. Here Alt makes
// columns, and Control sets one more caret.
void EngineWindow::mousePressEvent(QMouseEvent* event)
{
    m_engine.EndEraseRun();
    m_engine.longLines.Prepare();
    EndComposition();
    if (m_engine.looks.MousePressed(*event))
        return;
    const Qt::KeyboardModifiers held = event->modifiers();
    const bool isLeft = event->button() == Qt::LeftButton;
    m_addsCaret = isLeft && held == Qt::ControlModifier && m_carets.Add(event->pos());
    if (m_addsCaret)
        return;
    const bool isColumn = isLeft && held.testFlag(Qt::AltModifier);
    if (IsFar(event->pos(), isColumn || held.testFlag(Qt::ControlModifier))) {
        PressFar(*event);
        return;
    }
    if (!isColumn && !held.testFlag(Qt::ControlModifier)) {
        QsciScintillaBase::mousePressEvent(event);
        return;
    }
    Qt::KeyboardModifiers told = held & ~(Qt::AltModifier | Qt::ControlModifier);
    told.setFlag(Qt::ControlModifier, isColumn || !m_carets.IsInText(event->pos()));
    QMouseEvent press(event->type(), event->position(), event->globalPosition(), event->button(),
                      event->buttons(), told);
    QsciScintillaBase::mousePressEvent(&press);
    event->setAccepted(press.isAccepted());
}

// So far to the right the stock engine aborts, whether a button is pressed or not; for columns in
// the margins too.
bool EngineWindow::IsFar(QPoint point, bool makesColumns) const
{
    return !m_engine.columns.HaveRoomAt(point.x()) && (makesColumns || m_carets.IsInText(point));
}

void EngineWindow::PressFar(const QMouseEvent& event)
{
    setFocus();
    if (event.button() != Qt::LeftButton)
        return;
    m_engine.columns.Dissolve();
    if (!event.modifiers().testFlag(Qt::ShiftModifier))
        m_carets.Place(event.pos());
    else
        m_carets.Extend(event.pos());
}

void EngineWindow::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (IsFar(event->pos(), m_engine.columns.AreSelected()))
        PressFar(*event);
    else
        QsciScintillaBase::mouseDoubleClickEvent(event);
}

void EngineWindow::mouseMoveEvent(QMouseEvent* event)
{
    const bool isFar = IsFar(event->pos(), m_engine.columns.AreSelected());
    if ((m_addsCaret || isFar) && event->buttons().testFlag(Qt::LeftButton))
        m_carets.Extend(event->pos());
    else if (!isFar)
        QsciScintillaBase::mouseMoveEvent(event);
    m_engine.looks.MouseMoved(event->position().toPoint());
}

void EngineWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (std::exchange(m_addsCaret, false))
        return;
    if (IsFar(event->pos(), m_engine.columns.AreSelected()))
        m_engine.columns.Dissolve();
    QsciScintillaBase::mouseReleaseEvent(event);
}

void EngineWindow::keyPressEvent(QKeyEvent* event)
{
    const QPointer<EngineWindow> alive(this);
    const bool erases = IsEraseKey(*event);
    if (erases)
        m_engine.EraseKeyBegins(event->key() == Qt::Key_Backspace);
    else if (!OnlyMoves(*event))
        m_engine.EndEraseRun();
    PressKey(event);
    if (erases && alive)
        m_engine.EraseKeyEnds();
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

// With Control or Shift a turn is first the parent's. Fine wheels turn by less than a step at a
// time.
void EngineWindow::wheelEvent(QWheelEvent* event)
{
    const bool zooms = event->modifiers().testFlag(Qt::ControlModifier);
    if (!zooms && !event->modifiers().testFlag(Qt::ShiftModifier)) {
        if (!m_fineScroll.Turn(*event))
            QsciScintillaBase::wheelEvent(event);
        return;
    }
    m_place.End();
    const QPointer<EngineWindow> alive(this);
    bool isTaken = zooms;
    m_turn += event->angleDelta().y();
    while (alive && std::abs(m_turn) >= WHEEL_DELTA) {
        const int step = m_turn > 0 ? WHEEL_DELTA : -WHEEL_DELTA;
        m_turn -= step;
        if (IsTurnTaken(*event, step))
            isTaken = true;
        else if (zooms && alive)
            m_engine.Perform(step > 0 ? message::ZoomIn : message::ZoomOut, 0, 0);
    }
    if (isTaken || !alive)
        event->accept();
    else
        QsciScintillaBase::wheelEvent(event);
}

bool EngineWindow::IsTurnTaken(const QWheelEvent& event, int step)
{
    const UINT flags = (event.modifiers().testFlag(Qt::ControlModifier) ? MK_CONTROL : 0) |
                       (event.modifiers().testFlag(Qt::ShiftModifier) ? MK_SHIFT : 0);
    const QPoint at = event.globalPosition().toPoint();
    return SendMessage(parentWidget(), WM_MOUSEWHEEL, WheelParam(flags, step),
                       PointParam({at.x(), at.y()})) != 0;
}

void EngineWindow::paintEvent(QPaintEvent* event)
{
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
