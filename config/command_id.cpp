#include "config/command_id.h"

#include "kept_command_ids.h"
#include "menu_id_mgr.h"

#include <algorithm>
#include <map>
#include <vector>

namespace {

/// The ids that CKeptCommandIds keeps; empty when there is none.
std::map<std::wstring, std::uint32_t>& KeptIds() {
    static std::map<std::wstring, std::uint32_t> s_ids;
    return s_ids;
}

/// Whether an element without a keyword has taken an id since bars are built anew: nobody knows of it.
bool& HasUnknownId() {
    static bool s_has = false;
    return s_has;
}

constexpr std::uint32_t kIdsOfMessages = 0x10000;

/// A registered command, with its texts.
struct Command {
    std::uint32_t id = 0;
    std::wstring keyword;
    std::wstring name;
    std::wstring toolTip;
    std::wstring cmd;
    std::wstring param;
    std::wstring help;
};

std::vector<Command> RegisteredCommands() {
    const CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    std::vector<Command> commands;
    const std::uint32_t end = std::max(kIdsOfMessages, CMenuIdMgr::s_AddBeginID);
    for (std::uint32_t id = 1; id < end; ++id) { // popups have no id of their own
        Command command;
        command.id = id;
        const int number = static_cast<int>(id);
        if (!registry.GetMenuMark(number, command.keyword)) {
            continue;
        }
        registry.GetMenuName(command.keyword, command.name);
        registry.GetToolTip(number, command.toolTip);
        registry.GetCmd(number, command.cmd);
        registry.GetCmdParam(number, command.param);
        registry.GetHelpFile(number, command.help);
        commands.push_back(std::move(command));
    }
    return commands;
}

} // namespace

std::optional<std::uint32_t> KeptCommandId(const std::wstring& keyword) {
    const auto found = KeptIds().find(keyword);
    return found == KeptIds().end() ? std::nullopt : std::optional(found->second);
}

std::uint32_t TakeCommandId(const std::wstring& keyword) {
    const auto kept = KeptCommandId(keyword);
    HasUnknownId() = HasUnknownId() || keyword.empty();
    return kept ? *kept : CMenuIdMgr::s_AddBeginID++;
}

int ObtainCommandId(const RibbonInfo& info, HelpOffer offer) {
    CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    int id = 0;
    if (registry.GetMenuId(info.keyword, id)) {
        if (offer == HelpOffer::Yes && !info.help.empty()) {
            registry.SetHelpFile(id, info.help);
        }
        return id;
    }
    id = static_cast<int>(TakeCommandId(info.keyword));
    registry.Add(info.keyword, id, info.name, info.cmd, info.tooltip, info.param, info.help);
    return id;
}

CKeptCommandIds::CKeptCommandIds(const std::set<std::wstring>& forgotten) : m_nextId(CMenuIdMgr::s_AddBeginID) {
    HasUnknownId() = false;
    const std::vector<Command> commands = RegisteredCommands();
    CMenuIdMgr::Destroy();
    CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    for (const Command& command : commands) {
        if (forgotten.contains(command.keyword)) {
            KeptIds().emplace(command.keyword, command.id);
        } else {
            registry.Add(command.keyword, static_cast<int>(command.id), command.name, command.cmd, command.toolTip,
                         command.param, command.help);
        }
    }
}

CKeptCommandIds::~CKeptCommandIds() {
    KeptIds().clear();
    if (HasUnknownId()) {
        return;
    }
    // A menu leaves ids out, even where none was taken.
    const CMenuIdMgr& registry = *CMenuIdMgr::Ins();
    std::wstring keyword;
    std::uint32_t end = CMenuIdMgr::s_AddBeginID;
    while (end > m_nextId && !registry.GetMenuMark(static_cast<int>(end - 1), keyword)) {
        --end;
    }
    CMenuIdMgr::s_AddBeginID = end > m_nextId ? CMenuIdMgr::s_AddBeginID : m_nextId;
}

std::set<std::wstring> CKeptCommandIds::RegisteredKeywords() {
    std::set<std::wstring> keywords;
    for (const Command& command : RegisteredCommands()) {
        keywords.insert(command.keyword);
    }
    return keywords;
}
