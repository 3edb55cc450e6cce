#include "editing/ZNCoreEditorWidget.h"

#include "looks/Schemes.h"

#include <QLabel>
#include <QMetaMethod>
#include <QVBoxLayout>

#include <utility>

// The parent's side of the channel: this widget as a window that takes messages.
class ZNCoreEditorWidget::NotificationWindow final : public CWnd
{
public:
    explicit NotificationWindow(ZNCoreEditorWidget& owner) : m_owner(owner) { Attach(&owner); }
    ~NotificationWindow() override { Detach(); } // the widget is not this object's to destroy

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NOTIFY && m_owner.m_control->IsBaseEditorNotify(lParam)) {
            m_owner.Notify(lParam); // behind it this object may be gone
            return 0;
        }
        if (message == ZNBASEM_ON_EDITCHANGE) // comes with each change; its signal is textChanged
            return 0;
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    ZNCoreEditorWidget& m_owner;
};

// A text may change a million times in one undo: this is a tenth of what a QPointer costs.
class ZNCoreEditorWidget::Lifetime
{
public:
    explicit Lifetime(ZNCoreEditorWidget& widget)
        : m_widget(&widget), m_outer(std::exchange(widget.m_lifetime, this))
    {}
    ~Lifetime()
    {
        if (m_widget)
            m_widget->m_lifetime = m_outer;
    }
    Lifetime(const Lifetime&) = delete;
    Lifetime& operator=(const Lifetime&) = delete;

    void End()
    {
        m_widget = nullptr;
        if (m_outer)
            m_outer->End();
    }
    explicit operator bool() const { return m_widget != nullptr; }

private:
    ZNCoreEditorWidget* m_widget;
    Lifetime* m_outer;
};

ZNCoreEditorWidget::ZNCoreEditorWidget(QWidget* parent)
    : QWidget(parent), m_control(std::make_unique<CZNCoreEditorControlEx>()),
      m_window(std::make_unique<NotificationWindow>(*this))
{
    m_control->SetCarefulFiles(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
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
    m_control->SubclassWindow(editor);
    m_control->SetScheme(zncoreeditor::kDesktopScheme);
}

// The engine's window goes first, while there is still somebody to hear its last notifications.
ZNCoreEditorWidget::~ZNCoreEditorWidget()
{
    m_control->DestroyWindow();
    m_window.reset();
    if (m_lifetime)
        m_lifetime->End();
}

FileResult ZNCoreEditorWidget::open(const QString& path)
{
    openFile(path);
    return m_control->GetFileResult();
}

FileResult ZNCoreEditorWidget::save(const QString& path)
{
    saveFile(path);
    return m_control->GetFileResult();
}

std::optional<LostCharacter> ZNCoreEditorWidget::lostBySaving()
{
    return FindLostCharacter(*m_control, m_control->GetEncoding());
}

bool ZNCoreEditorWidget::openFile(const QString& path)
{
    const std::u16string name = path.toStdU16String();
    return m_control->OpenFile(name.c_str(), FileEncodeConverter::encUnknown);
}

bool ZNCoreEditorWidget::saveFile(const QString& path)
{
    const std::u16string name = path.toStdU16String();
    return m_control->SaveFile(name.c_str(), true);
}

int ZNCoreEditorWidget::language() const
{
    return m_control->GetCurrentLanguage();
}

void ZNCoreEditorWidget::setLanguage(int language)
{
    m_control->InitializeLanguage(language, 1);
}

QString ZNCoreEditorWidget::scheme() const
{
    return m_control->SchemeName();
}

void ZNCoreEditorWidget::setScheme(const QString& name)
{
    m_control->SetScheme(name);
}

QString ZNCoreEditorWidget::text()
{
    return m_control->GetText();
}

void ZNCoreEditorWidget::setText(const QString& text)
{
    const std::u16string units = text.toStdU16String();
    m_control->BeginUndoAction(1);
    m_control->ClearAll(1);
    m_control->AddTextNoProcess(static_cast<int>(units.size()), units.c_str(), 1);
    m_control->SetSel(0, 0, 1);
    m_control->EndUndoAction(1);
}

// Slots may change the text or delete this widget: the control has its turn before the first
// signal, and nothing is touched behind the last one.
void ZNCoreEditorWidget::Notify(LPARAM lParam)
{
    const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
    if (record.nmhdr.code == notify::Modified && !m_tellsChanges) {
        m_control->HandleNotify(lParam);
        return;
    }
    const Lifetime alive(*this);
    m_control->HandleNotify(lParam);
    Q_EMIT notified(record);
    if (alive)
        Announce(record);
}

// Two signals that nobody hears would be a tenth of what an undo of many changes takes.
void ZNCoreEditorWidget::connectNotify(const QMetaMethod& signal)
{
    m_tellsChanges |= signal == QMetaMethod::fromSignal(&ZNCoreEditorWidget::notified) ||
                      signal == QMetaMethod::fromSignal(&ZNCoreEditorWidget::textChanged);
}

void ZNCoreEditorWidget::Announce(const SCNotification& record)
{
    constexpr int kTextChange = modification::InsertText | modification::DeleteText;
    switch (record.nmhdr.code) {
    case notify::Modified:
        if (record.modificationType & kTextChange)
            Q_EMIT textChanged();
        break;
    case notify::SavePointLeft:
    case notify::SavePointReached:
        m_modified = record.nmhdr.code == notify::SavePointLeft;
        Q_EMIT modificationChanged(m_modified);
        break;
    case notify::CharAdded:
        Q_EMIT charAdded(static_cast<char32_t>(record.ch));
        break;
    case notify::UpdateUi: {
        const Lifetime alive(*this);
        const long caret = m_control->GetCurrentPos(1);
        if (caret != std::exchange(m_caret, caret))
            Q_EMIT cursorPositionChanged(caret);
        if (alive)
            Q_EMIT updateUi();
        break;
    }
    default:
        break;
    }
}
