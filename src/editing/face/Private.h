// SPDX-License-Identifier: GPL-3.0-or-later
// What stands behind the QWidget face: its control, and what of it has been told.
#pragma once

#include "completion/popup/LiveIndex.h"
#include "control/Selections.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/language/EditorCompletion.h"

#include <QList>
#include <QPointer>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class ZNCoreEditorWidget::Private final : public CZNCoreEditorControlExCallback
{
public:
    explicit Private(ZNCoreEditorWidget& widget);
    ~Private() override;
    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;

    class Control;

    // The parent's side of the channel: the widget as a window that takes messages.
    class NotificationWindow;

    // Whether the widget was deleted while this one stood on the stack. A text may change a million
    // times in one undo: this is a tenth of what a QPointer costs.
    class Lifetime
    {
    public:
        explicit Lifetime(Private& face)
            : m_face(&face), m_outer(std::exchange(face.m_lifetime, this))
        {}
        ~Lifetime()
        {
            if (m_face)
                m_face->m_lifetime = m_outer;
        }
        Lifetime(const Lifetime&) = delete;
        Lifetime& operator=(const Lifetime&) = delete;

        void End()
        {
            m_face = nullptr;
            if (m_outer)
                m_outer->End();
        }
        explicit operator bool() const { return m_face != nullptr; }

    private:
        Private* m_face;
        Lifetime* m_outer;
    };

    // A call of the face's, behind which it tells what has changed.
    template <typename Operate>
    auto Run(Operate operate)
    {
        if (!IsInItsThread())
            return decltype(operate(*m_control)){};
        const Lifetime alive(*this);
        ++m_operations;
        const auto result = operate(*m_control);
        if (alive) {
            --m_operations;
            TellChanges();
        }
        return result;
    }

    // A call of the face's that tells nothing of itself.
    template <typename Operate>
    void Act(Operate operate)
    {
        if (IsInItsThread())
            operate(*m_control);
    }

    // A text that a host changes, while nobody else may.
    template <typename Operate>
    void Write(Operate operate)
    {
        Run([&](CZNCoreEditorControlEx& control) {
            const bool isReadOnly = control.GetReadOnly(1) != 0;
            if (isReadOnly)
                control.SetReadOnly(0, 1);
            operate(control);
            if (isReadOnly)
                control.SetReadOnly(1, 1);
            return 0;
        });
    }

    bool IsInItsThread() const; // tells where it is not
    int OnBeforeContextMenu(CWnd* window, CPoint point) override;

    LRESULT Notify(LPARAM lParam);
    LRESULT Note(const SCNotification& record);
    void TellChanges();
    void FollowDesktop();
    void UpdateSoon();
    void TellUpdate();
    void TellSettings(const Lifetime& alive);
    void KeepOwn();
    void ApplyOwn();
    void ForgetProblems();
    void FitScrollRange();
    void MakeCommands();
    void AskForLine();
    void UpdateCommands();

    std::vector<engine::SelectionEnds> Selections() const; // that of the main caret last
    void SetSelections(const std::vector<engine::SelectionEnds>& ends);
    void Record(bool records);

    // What has a signal of its own when it changes, whoever changed it.
    struct Settings
    {
        bool isReadOnly = false;
        bool canUndo = false;
        bool canRedo = false;
        int lines = 1;
        int language = 0;
        int encoding = 0;
        bool hasMark = false;
        int lineEnd = 0;
        int zoom = 0;
        bool overwrites = false;
        int tabWidth = 0;
        bool wraps = false;
        bool hasNumbers = false;
        bool hasMap = false;
        QString scheme;
        const ColourScheme* colours = nullptr;
        QString file;
    };
    Settings CurrentSettings();

    ZNCoreEditorWidget& q;
    bool m_tellsChanges = false; // somebody listens to each
    std::unique_ptr<Control> m_control;
    completion::LiveIndex* m_index = nullptr;       // a child of the widget
    std::unique_ptr<EditorCompletion> m_completion; // null without an engine
    std::unique_ptr<NotificationWindow> m_window;   // hears what the engine tells its parent
    Lifetime* m_lifetime = nullptr;
    bool m_modified = false;
    bool m_records = false;      // a macro, unless the process has ended that
    std::optional<QFont> m_font; // that the host has set
    int m_tabWidth = 0;          // the same; 0: the language's
    std::optional<bool> m_wraps; // the same, or as a command has left it
    std::optional<bool> m_hasNumbers;
    std::array<int, 4> m_measured = {}; // what the range of the scroll bar was measured for
    QList<QAction*> m_commands;         // made when they are asked for

    const ColourScheme* m_colours = nullptr; // in force, once they are applied

    // What has been told.
    Settings m_told;
    bool m_toldModified = false;
    long m_caret = 0;
    long m_anchor = 0;
    std::vector<engine::SelectionEnds> m_selections; // if there are several

    // What is to be told.
    int m_operations = 0; // under way
    bool m_textChanged = false;
    bool m_problemsChanged = false;
    bool m_isUpdated = false;
    std::u32string m_added;
};

// The control of the face, whose files the face tells whoever opens and saves them. It may outlive
// the face, while it stands on the stack.
class ZNCoreEditorWidget::Private::Control final : public CZNCoreEditorControlEx
{
public:
    explicit Control(Private& face) : CZNCoreEditorControlEx(&face), m_face(&face) {}
    void Leave() { m_face = nullptr; }

    bool OpenFile(const char16_t* path, FileEncodeConverter::encodingType encoding) override;
    bool SaveFile(const char16_t* path, FileEncodeConverter::encodingType encoding, bool commit,
                  bool writeMark) override;
    bool SaveFile(const char16_t* path, bool commit) override;

private:
    template <typename Operate>
    bool Run(Operate operate);

    Private* m_face;
};

namespace face {

inline const char16_t* Units(const QString& text)
{
    return reinterpret_cast<const char16_t*>(text.utf16());
}

inline long Clamped(CZNCoreEditorControlEx& control, long position)
{
    return std::clamp(position, 0L, static_cast<long>(control.GetLength(1)));
}

// Puts a text, NULs included, in the selection's place, in the line ends of the mode.
void Enter(CZNCoreEditorControlEx& control, const QString& text);

} // namespace face
