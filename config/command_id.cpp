#include "config/command_id.h"

#include "menu_id_mgr.h"

int ObtainCommandId(const RibbonInfo& info, HelpOffer offer) {
    CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    int id = 0;
    if (registry.GetMenuId(info.keyword, id)) {
        if (offer == HelpOffer::Yes && !info.help.empty()) {
            registry.SetHelpFile(id, info.help);
        }
        return id;
    }
    id = static_cast<int>(CMenuIdMgr::s_AddBeginID++);
    registry.Add(info.keyword, id, info.name, info.cmd, info.tooltip, info.param, info.help);
    return id;
}
