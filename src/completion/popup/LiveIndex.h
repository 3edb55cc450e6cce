// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// LiveIndex: the index of an editor's text, kept up to date by what the engine tells and built in
/// idle time. Nothing is read before somebody asks.
#pragma once

#include "common/Export.h"
#include "completion/ScriptNames.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

class CZNCoreEditorControl;
struct SCNotification;

/// The analysis of scripts, which the library keeps to itself.
namespace engine::analysis {
struct SqlDialect;
}

namespace completion {

class ScriptIndex;

/// For one text, whatever the number of editors that show it; a host hands on the notifications of
/// one of them. Created and used on the GUI thread.
class ZN_API LiveIndex final : public QObject
{
    Q_OBJECT

public:
    /// Puts a part of the editor's text, in units, into the given one.
    using Read = std::function<void(long start, long end, std::u16string& text)>;

    explicit LiveIndex(QObject* parent = nullptr); ///< without an editor, and empty
    ~LiveIndex() override;

    /// The editor through which the text is read; null: none. It outlives the index, or is taken
    /// back here before it goes.
    void SetEditor(CZNCoreEditorControl* editor);
    CZNCoreEditorControl* Editor() const { return m_editor; } ///< null: none

    bool IsFollowing() const { return m_isFollowing; } ///< has been asked, and hears of changes
    void OnModified(const SCNotification& record);     ///< each Modified of the editor

    /// Up to date around the caret. Good until the control comes back to the event loop.
    ScriptIndex& Around(long caret);
    Read Reader() const; ///< what an index reads the editor's text with
    /// What the script creates, in order, with the places of the names: as far as it has been read
    /// by now, or all of it at once.
    std::vector<ScriptName> Created();
    std::vector<ScriptName> CreatedInAll(); ///< the same, all of it at once

    /// As far as it has been read by now, without reading; null before somebody asks. Good until
    /// the control comes back to the event loop.
    const ScriptIndex* Known();

    bool IsDone() const;             ///< nothing is left to be read, of what has been asked for
    std::size_t MemoryBytes() const; ///< that it takes

    void Start(); ///< to follow and to read, before anybody asks
    void Defer(); ///< what is read goes on when keys have rested for a moment

Q_SIGNALS:
    void Finished(); ///< nothing is left to be read

private:
    void Ensure();
    std::vector<ScriptName> Listed() const;
    void WorkAhead();

    CZNCoreEditorControl* m_editor = nullptr;
    std::unique_ptr<ScriptIndex> m_index;
    QTimer m_idle;
    bool m_isFollowing = false;
};

/// How the editor's language reads; null for one that is none of SQL's.
ZN_API const engine::analysis::SqlDialect* DialectOf(CZNCoreEditorControl& editor);

} // namespace completion
