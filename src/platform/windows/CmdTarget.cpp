// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/CmdTarget.h"

CCmdUI::~CCmdUI() = default;

int CCmdTarget::OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info)
{
    for (const CommandMap* map = &GetCommandMap(); map; map = map->base) {
        if (code == CN_COMMAND) {
            for (const CommandEntry& entry : map->commands) {
                if (entry.id != id)
                    continue;
                if (info)
                    info->target = this;
                else
                    entry.run(*this);
                return 1;
            }
        } else if (code == CN_UPDATE_COMMAND_UI && extra && !info) {
            for (const UpdateEntry& entry : map->updates) {
                if (entry.id != id)
                    continue;
                entry.update(*this, *static_cast<CCmdUI*>(extra));
                return 1;
            }
        }
    }
    return 0;
}

const CommandMap& CCmdTarget::GetCommandMap() const
{
    static constexpr CommandMap kNone{};
    return kNone;
}
