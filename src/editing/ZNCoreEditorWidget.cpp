// SPDX-License-Identifier: GPL-3.0-or-later
// The face itself: its window, and what it tells. The operations stand in editing/face/.
#include "editing/ZNCoreEditorWidget.h"

#include "control/EngineRecords.h"
#include "control/LongLine.h"
#include "editing/face/Private.h"
#include "editing/looks/DesktopWatch.h"
#include "editing/operations/Macro.h"
#include "editing/operations/ScrollRange.h"
#include "looks/Schemes.h"
#include "platform/windows/ActionUI.h"
#include "platform/windows/Disposal.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QMetaMethod>
#include <QThread>
#include <QVBoxLayout>

#include <utility>

class ZNCoreEditorWidget::Private::NotificationWindow final : public CWnd
{
public:
    explicit NotificationWindow(Private& owner) : m_owner(owner) { Attach(&owner.q); }
    ~NotificationWindow() override { Detach(); } // the widget is not this object's to destroy

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NOTIFY && m_owner.m_control->IsBaseEditorNotify(lParam))
            return m_owner.Notify(lParam);    // behind it this object may be gone
        if (message == ZNBASEM_ON_EDITCHANGE) // comes with each change; its signal is textChanged
            return 0;
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    Private& m_owner;
};

namespace {

// A caret that is set before the window has its size is scrolled to in a view of few pixels, and
// the start of the lines away.
class FirstShow final : public QObject
{
public:
    FirstShow(CZNCoreEditorControlEx& control, QWidget& window)
        : QObject(&window), m_control(control)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Show)
            return false;
        m_place = Place();
        QMetaObject::invokeMethod(
            this, [this] { Scroll(); }, Qt::QueuedConnection);
        parent()->removeEventFilter(this);
        return false;
    }

private:
    std::pair<int, int> Place() const
    {
        return {m_control.GetFirstVisibleLine(1), m_control.GetXOffset(1)};
    }

    // Not once somebody has scrolled it since.
    void Scroll()
    {
        if (m_control.GetSafeHwnd() == parent() && Place() == m_place) {
            m_control.SetXOffset(0, 1);
            m_control.ScrollCaret(1);
        }
        deleteLater();
    }

    CZNCoreEditorControlEx& m_control;
    std::pair<int, int> m_place; // as it was shown
};

} // namespace

ZNCoreEditorWidget::Private::Private(ZNCoreEditorWidget& widget)
    : q(widget), m_control(std::make_unique<Control>(*this)),
      m_window(std::make_unique<NotificationWindow>(*this))
{
    m_control->SetCarefulFiles(true);
    m_control->SetUserSettingsFirst(true);
}

// The engine's window goes first, while there is still somebody to hear its last notifications. If
// it is what has led here, or the control is, both are taken out and stay until that is over.
ZNCoreEditorWidget::Private::~Private()
{
    if (m_records)
        SetMacroRecording(0);
    m_completion.reset();
    delete std::exchange(m_index, nullptr);
    m_control->Leave();
    if (m_lifetime) {
        const HWND editor = m_control->Detach();
        if (editor)
            editor->setParent(nullptr);
        Disposal::Later(m_control.release(), editor);
        m_lifetime->End();
    } else {
        m_control->DestroyWindow();
    }
    m_window.reset();
}

ZNCoreEditorWidget::ZNCoreEditorWidget(QWidget* parent) : QWidget(parent)
{
    d = std::make_unique<Private>(*this); // which connects to this widget: null until it is made
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (!d->IsInItsThread())
        return;
    const HWND editor = CreateWindowOfClass(
        engine::kWindowClass, WS_CHILD | WS_CLIPCHILDREN | WS_HSCROLL | WS_VSCROLL | WS_VISIBLE,
        RECT{0, 0, 100, 100}, this);
    if (!editor) {
        auto* problem = new QLabel(tr("The editor cannot be shown, since its engine could not be "
                                      "loaded.\n%1")
                                       .arg(CZNCoreEditorControl::LoadEngine()),
                                   this);
        problem->setWordWrap(true);
        problem->setAlignment(Qt::AlignCenter);
        problem->setTextInteractionFlags(Qt::TextSelectableByMouse);
        layout->addWidget(problem);
        return;
    }
    layout->addWidget(editor);
    setFocusProxy(editor);
    editor->setAccessibleName(tr("Text editor"));
    d->m_control->SubclassWindow(editor);
    new FirstShow(*d->m_control, *editor);
    new DesktopWatch(*editor, [self = QPointer(this)] { // behind that of the scheme
        if (self && self->d)
            self->d->FollowDesktop();
    });
    d->m_control->SetScrollWidth(1, 1);
    d->m_control->SetScheme(zncoreeditor::kDesktopScheme);
    d->m_colours = d->m_control->Scheme();
    d->m_told = d->CurrentSettings();
    d->m_index = new completion::LiveIndex(this);
    d->m_index->SetEditor(d->m_control.get());
    d->m_completion = std::make_unique<EditorCompletion>(*d->m_control, *d->m_index);
}

completion::Completer* ZNCoreEditorWidget::completer()
{
    return d->m_completion ? d->m_completion->operator->() : nullptr;
}

bool ZNCoreEditorWidget::completesWhileTyping() const
{
    return d->m_completion && d->m_completion->OpensWhileTyping();
}

void ZNCoreEditorWidget::setCompletesWhileTyping(bool completes)
{
    if (!d->IsInItsThread() || !d->m_completion || completes == completesWhileTyping())
        return;
    d->m_completion->SetOpensWhileTyping(completes);
    Q_EMIT completesWhileTypingChanged(completes);
}

// While slots of QWidget's own end are called, there is no editor any more.
ZNCoreEditorWidget::~ZNCoreEditorWidget() = default;

CZNCoreEditorControlEx& ZNCoreEditorWidget::control()
{
    return *d->m_control;
}

LRESULT ZNCoreEditorWidget::Private::Notify(LPARAM lParam)
{
    const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
    if (record.nmhdr.code == notify::Modified && m_index && m_index->IsFollowing()) {
        m_index->OnModified(record);
        m_completion->OnNotify(record);
    }
    if (record.nmhdr.code == notify::Modified && !m_tellsChanges) {
        m_control->HandleNotify(lParam);
        return 0;
    }
    const Lifetime alive(*this);
    if (record.nmhdr.code == notify::Over) {
        TellChanges();
        return 0;
    }
    m_control->HandleNotify(lParam);
    if (m_completion && record.nmhdr.code != notify::Modified)
        m_completion->OnNotify(record);
    Q_EMIT q.notified(record);
    return alive ? Note(record) : 0;
}

// Signals that nobody hears would be a tenth of what an undo of many changes takes.
void ZNCoreEditorWidget::connectNotify(const QMetaMethod& signal)
{
    if (!d) // its own window, while it is made
        return;
    using Self = ZNCoreEditorWidget;
    for (const QMetaMethod& change :
         {QMetaMethod::fromSignal(&Self::notified), QMetaMethod::fromSignal(&Self::textChanged),
          QMetaMethod::fromSignal(&Self::undoAvailable),
          QMetaMethod::fromSignal(&Self::redoAvailable),
          QMetaMethod::fromSignal(&Self::lineCountChanged)})
        d->m_tellsChanges |= signal == change;
}

LRESULT ZNCoreEditorWidget::Private::Note(const SCNotification& record)
{
    constexpr int kTextChange = modification::InsertText | modification::DeleteText;
    switch (record.nmhdr.code) {
    case notify::Modified:
        m_textChanged |= (record.modificationType & kTextChange) != 0;
        return notify::kTellWhenOver;
    case notify::SavePointLeft:
    case notify::SavePointReached:
        m_modified = record.nmhdr.code == notify::SavePointLeft;
        return notify::kTellWhenOver;
    case notify::CharAdded:
        m_added.push_back(static_cast<char32_t>(record.ch));
        return notify::kTellWhenOver;
    case notify::MacroRecord:
        if (m_records && IsMacroRecording())
            AppendToMacro(record.message, record.wParam, record.lParam);
        return 0;
    case engine::kLongLineShown:
        Q_EMIT q.longLineShown(record.line, record.length);
        return 0;
    case notify::UpdateUi:
    case notify::Zoom:
        UpdateSoon();
        return 0;
    default:
        return 0;
    }
}

// Slots may change the text or delete the widget: nothing is touched behind the last signal, and
// what is told is taken before.
void ZNCoreEditorWidget::Private::TellChanges()
{
    if (m_operations > 0)
        return;
    const Lifetime alive(*this);
    const std::u32string added = std::exchange(m_added, {});
    if (std::exchange(m_textChanged, false))
        Q_EMIT q.textChanged();
    if (alive && m_modified != std::exchange(m_toldModified, m_modified))
        Q_EMIT q.modificationChanged(m_modified);
    if (alive)
        TellSettings(alive);
    if (alive && std::exchange(m_problemsChanged, false))
        Q_EMIT q.problemsChanged();
    for (std::size_t i = 0; alive && i < added.size(); ++i)
        Q_EMIT q.charAdded(added[i]);
}

// Without an application there is no widget, and no thread of its windows.
bool ZNCoreEditorWidget::Private::IsInItsThread() const
{
    const QCoreApplication* application = QCoreApplication::instance();
    if (!application || QThread::currentThread() == application->thread())
        return true;
    qCritical("ZNCoreEditorWidget: an editor belongs to the GUI thread, and was used in another");
    return false;
}

// The whole screen if it shows other lines, else the line that is typed in.
void ZNCoreEditorWidget::Private::FitScrollRange()
{
    CZNCoreEditorControlEx& control = *m_control;
    if (control.GetWrapMode(1) != 0)
        return;
    const std::array shown = {
        static_cast<int>(control.GetFirstVisibleLine(1)), static_cast<int>(control.GetLineCount(1)),
        static_cast<int>(control.LinesOnScreen(1)), static_cast<int>(control.TextHeight(0, 1))};
    if (control.GetScrollWidth(1) == 1 || std::exchange(m_measured, shown) != shown) {
        m_measured = shown;
        const int first = static_cast<int>(control.DocLineFromVisible(shown[0], 1));
        FitScrollWidth(control, first, first + shown[2]);
    } else {
        const int line = q.cursorLine();
        FitScrollWidth(control, line, line);
    }
}

// Once the scheme has followed.
void ZNCoreEditorWidget::Private::FollowDesktop()
{
    m_colours = m_control->Scheme();
    UpdateSoon();
}

void ZNCoreEditorWidget::Private::UpdateSoon()
{
    if (!std::exchange(m_isUpdated, true))
        QMetaObject::invokeMethod(
            &q, [this] { TellUpdate(); }, Qt::QueuedConnection);
}

void ZNCoreEditorWidget::Private::TellUpdate()
{
    const Lifetime alive(*this);
    m_isUpdated = false;
    FitScrollRange();
    const long caret = m_control->GetCurrentPos(1);
    const long anchor = m_control->GetAnchor(1);
    const bool hasMoved = caret != m_caret;
    const bool hadSelection = m_caret != m_anchor;
    const bool hasSelection = caret != anchor;
    std::vector<engine::SelectionEnds> selections;
    if (q.cursorCount() > 1)
        selections = Selections();
    const bool hasSelected = ((hasMoved || anchor != m_anchor) && (hadSelection || hasSelection)) ||
                             selections != m_selections;
    m_caret = caret;
    m_anchor = anchor;
    m_selections = std::move(selections);
    if (hasMoved)
        Q_EMIT q.cursorPositionChanged(caret);
    if (alive && hasSelected)
        Q_EMIT q.selectionChanged();
    if (alive && hasSelection != hadSelection)
        Q_EMIT q.copyAvailable(hasSelection);
    if (alive)
        TellSettings(alive);
    if (alive)
        UpdateCommands();
    if (alive)
        Q_EMIT q.updateUi();
}

ZNCoreEditorWidget::Private::Settings ZNCoreEditorWidget::Private::CurrentSettings()
{
    CZNCoreEditorControlEx& control = *m_control;
    // What completion puts in is not typed over, which is no change of the mode.
    const bool keepsMode = m_completion && *m_completion && (*m_completion)->IsInserting();
    return {control.GetReadOnly(1) != 0,
            control.CanUndo(1) != 0,
            control.CanRedo(1) != 0,
            static_cast<int>(control.GetLineCount(1)),
            control.GetCurrentLanguage(),
            control.GetEncoding(),
            control.GetWriteEncodingSig(),
            control.GetEOLMode(1),
            control.GetZoom(1),
            keepsMode ? m_told.overwrites : control.GetOvertype(1) != 0,
            control.GetTabWidth(1),
            control.GetWrapMode(1) != 0,
            control.IsVisibleLineNumber(),
            control.IsDocumentMapVisible(),
            control.SchemeName(),
            m_colours,
            control.GetFileName()};
}

void ZNCoreEditorWidget::Private::TellSettings(const Lifetime& alive)
{
    const Settings now = CurrentSettings();
    const Settings before = std::exchange(m_told, now);
    const auto tell = [&](bool differs, auto emitSignal) {
        if (differs && alive)
            emitSignal();
    };
    tell(now.lines != before.lines, [&] { Q_EMIT q.lineCountChanged(now.lines); });
    tell(now.canUndo != before.canUndo, [&] { Q_EMIT q.undoAvailable(now.canUndo); });
    tell(now.canRedo != before.canRedo, [&] { Q_EMIT q.redoAvailable(now.canRedo); });
    tell(now.isReadOnly != before.isReadOnly, [&] { Q_EMIT q.readOnlyChanged(now.isReadOnly); });
    tell(now.file != before.file, [&] { Q_EMIT q.fileNameChanged(now.file); });
    tell(now.encoding != before.encoding || now.hasMark != before.hasMark,
         [&] { Q_EMIT q.encodingChanged(); });
    tell(now.lineEnd != before.lineEnd, [&] { Q_EMIT q.lineEndChanged(); });
    tell(now.language != before.language, [&] { Q_EMIT q.languageChanged(now.language); });
    const bool isRecoloured =
        now.scheme == zncoreeditor::kDesktopScheme && now.colours != before.colours;
    tell(now.scheme != before.scheme || isRecoloured, [&] { Q_EMIT q.schemeChanged(now.scheme); });
    tell(now.zoom != before.zoom, [&] { Q_EMIT q.zoomChanged(now.zoom); });
    tell(now.overwrites != before.overwrites,
         [&] { Q_EMIT q.overwriteModeChanged(now.overwrites); });
    tell(now.tabWidth != before.tabWidth, [&] { Q_EMIT q.tabWidthChanged(now.tabWidth); });
    tell(now.wraps != before.wraps, [&] { Q_EMIT q.lineWrapModeChanged(q.lineWrapMode()); });
    tell(now.hasNumbers != before.hasNumbers,
         [&] { Q_EMIT q.lineNumbersVisibleChanged(now.hasNumbers); });
    tell(now.hasMap != before.hasMap, [&] { Q_EMIT q.documentMapVisibleChanged(now.hasMap); });
}
