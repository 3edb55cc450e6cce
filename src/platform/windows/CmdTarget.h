// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CCmdTarget: an object that answers commands by number. CCmdUI: what stands for a command on the
/// screen, a menu item for one, while it is brought up to date.
#pragma once

#include "platform/base/Object.h"
#include "platform/base/Types.h"

#include <QString>

#include <span>

class CCmdTarget;

/// What an update handler is given; it calls what it has to say.
class ZN_API CCmdUI
{
public:
    explicit CCmdUI(UINT id) : m_nID(id) {} ///< for the command of that number
    virtual ~CCmdUI();                      ///< what it stands for on the screen stays

    virtual void Enable(bool on = true) = 0;       ///< whether the command is possible
    virtual void SetCheck(int state = 1) = 0;      ///< 0 off, 1 on
    virtual void SetRadio(bool on = true) = 0;     ///< as SetCheck, as one of several
    virtual void SetText(const QString& text) = 0; ///< what the item says

    const UINT m_nID; ///< the command's
};

/// A command and what runs it.
struct CommandEntry
{
    UINT id = 0;                               ///< the command's number
    void (*run)(CCmdTarget& target) = nullptr; ///< the target is of the class whose map this is
};

/// A command and what brings its items up to date.
struct UpdateEntry
{
    UINT id = 0; ///< the command's number
    /// The target is of the class whose map this is.
    void (*update)(CCmdTarget& target, CCmdUI& ui) = nullptr;
};

/// The commands that a class answers, and how each is brought up to date; then those of its base.
/// The first entry of a number wins.
struct CommandMap
{
    const CommandMap* base = nullptr;       ///< null at the root
    std::span<const CommandEntry> commands; ///< of this class alone
    std::span<const UpdateEntry> updates;   ///< of this class alone
};

/// What becomes of a command on its way along the targets.
inline constexpr int CN_COMMAND = 0;
inline constexpr int CN_UPDATE_COMMAND_UI = -1; ///< extra: the CCmdUI

/// Who would run a command.
struct CommandHandlerInfo
{
    CCmdTarget* target = nullptr; ///< null: nobody
};

/// What commands are sent to.
class ZN_API CCmdTarget : public CObject
{
public:
    /// Runs the command, or brings the object that stands for it up to date; with info, only tells
    /// who would run it. 0 if nobody on the way knows it. A target that hands commands on overrides
    /// this one.
    virtual int OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info);

    /// Runs the command, or with a ui brings that up to date. False if nobody knows it.
    bool OnCmdMsg(UINT id, CCmdUI* ui)
    {
        return OnCmdMsg(id, ui ? CN_UPDATE_COMMAND_UI : CN_COMMAND, ui, nullptr) != 0;
    }

    /// Whether somebody on the way would run the command.
    bool HasCommand(UINT id)
    {
        CommandHandlerInfo info;
        return OnCmdMsg(id, CN_COMMAND, &info, &info) != 0;
    }

protected:
    /// An override names the base's map as its base.
    virtual const CommandMap& GetCommandMap() const;
};
