#include "platform/CmdTarget.h"

CCmdUI::~CCmdUI() = default;

bool CCmdTarget::OnCmdMsg(UINT id, CCmdUI* ui)
{
    for (const CommandMap* map = &GetCommandMap(); map; map = map->base) {
        if (!ui) {
            for (const CommandEntry& entry : map->commands) {
                if (entry.id == id) {
                    entry.run(*this);
                    return true;
                }
            }
            continue;
        }
        for (const UpdateEntry& entry : map->updates) {
            if (entry.id == id) {
                entry.update(*this, *ui);
                return true;
            }
        }
    }
    return false;
}

const CommandMap& CCmdTarget::GetCommandMap() const
{
    static constexpr CommandMap kNone{};
    return kNone;
}
