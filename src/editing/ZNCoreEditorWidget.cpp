// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/ZNCoreEditorWidget.h"

#include "looks/Schemes.h"

#include "platform/windows/Disposal.h"

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
        if (message == WM_NOTIFY && m_owner.m_control->IsBaseEditorNotify(lParam))
            return m_owner.Notify(lParam);    // behind it this object may be gone
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
    m_control->SetUserSettingsFirst(true);
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

// The engine's window goes first, while there is still somebody to hear its last notifications. If
// it is what has led here, or the control is, both are taken out and stay until that is over.
ZNCoreEditorWidget::~ZNCoreEditorWidget()
{
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

template <typename Operate>
auto ZNCoreEditorWidget::Run(Operate operate)
{
    const Lifetime alive(*this);
    ++m_operations;
    const auto result = operate(*m_control);
    if (alive) {
        --m_operations;
        TellChanges();
    }
    return result;
}

FileResult ZNCoreEditorWidget::open(const QString& path)
{
    const std::u16string name = path.toStdU16String();
    return Run([&](CZNCoreEditorControlEx& control) {
        control.OpenFile(name.c_str(), FileEncodeConverter::encUnknown);
        return control.GetFileResult();
    });
}

FileResult ZNCoreEditorWidget::save(const QString& path)
{
    const std::u16string name = path.toStdU16String();
    return Run([&](CZNCoreEditorControlEx& control) {
        control.SaveFile(name.c_str(), true);
        return control.GetFileResult();
    });
}

std::optional<LostCharacter> ZNCoreEditorWidget::lostBySaving()
{
    return FindLostCharacter(*m_control, m_control->GetEncoding());
}

bool ZNCoreEditorWidget::openFile(const QString& path)
{
    const std::u16string name = path.toStdU16String();
    return Run([&](CZNCoreEditorControlEx& control) {
        return control.OpenFile(name.c_str(), FileEncodeConverter::encUnknown);
    });
}

bool ZNCoreEditorWidget::saveFile(const QString& path)
{
    const std::u16string name = path.toStdU16String();
    return Run(
        [&](CZNCoreEditorControlEx& control) { return control.SaveFile(name.c_str(), true); });
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
    Run([&](CZNCoreEditorControlEx& control) {
        control.BeginUndoAction(1);
        control.ClearAll(1);
        control.AddTextNoProcess(static_cast<int>(units.size()), units.c_str(), 1);
        control.SetSel(0, 0, 1);
        control.EndUndoAction(1);
        return 0;
    });
}

LRESULT ZNCoreEditorWidget::Notify(LPARAM lParam)
{
    const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
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
    Q_EMIT notified(record);
    return alive ? Note(record) : 0;
}

// Two signals that nobody hears would be a tenth of what an undo of many changes takes.
void ZNCoreEditorWidget::connectNotify(const QMetaMethod& signal)
{
    m_tellsChanges |= signal == QMetaMethod::fromSignal(&ZNCoreEditorWidget::notified) ||
                      signal == QMetaMethod::fromSignal(&ZNCoreEditorWidget::textChanged);
}

LRESULT ZNCoreEditorWidget::Note(const SCNotification& record)
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
    case notify::UpdateUi:
        if (!std::exchange(m_isUpdated, true))
            QMetaObject::invokeMethod(
                this, [this] { TellUpdate(); }, Qt::QueuedConnection);
        return 0;
    default:
        return 0;
    }
}

// Slots may change the text or delete this widget: nothing is touched behind the last signal, and
// what is told is taken before.
void ZNCoreEditorWidget::TellChanges()
{
    if (m_operations > 0)
        return;
    const Lifetime alive(*this);
    const std::u32string added = std::exchange(m_added, {});
    if (std::exchange(m_textChanged, false))
        Q_EMIT textChanged();
    if (alive && m_modified != std::exchange(m_toldModified, m_modified))
        Q_EMIT modificationChanged(m_modified);
    for (std::size_t i = 0; alive && i < added.size(); ++i)
        Q_EMIT charAdded(added[i]);
}

void ZNCoreEditorWidget::TellUpdate()
{
    const Lifetime alive(*this);
    m_isUpdated = false;
    const long caret = m_control->GetCurrentPos(1);
    if (caret != std::exchange(m_caret, caret))
        Q_EMIT cursorPositionChanged(caret);
    if (alive)
        Q_EMIT updateUi();
}
