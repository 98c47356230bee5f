#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <map>
#include <string>

/// What CMenuIdMgr holds of a command.
struct CommandRecord {
    std::wstring keyword;
    std::wstring toolTip;
    std::wstring cmd;
    std::wstring param;
    std::wstring help;
};

/// The registry as the builders fill it, without its lock and for one installation alone.
class CommandModel {
public:
    /// The keyword's id. A new one takes the next; an element that offers a help file gives it to a command that has
    /// none.
    std::uint32_t Obtain(const std::wstring& name, const CommandRecord& record, bool offersHelp);
    void Add(std::uint32_t id, const std::wstring& name, const CommandRecord& record);
    /// Null when there is none.
    const std::uint32_t* Find(const std::wstring& keyword) const;
    nlohmann::ordered_json Dump() const;

    std::uint32_t nextId = 41000;

private:
    std::map<std::wstring, std::uint32_t> m_ids;
    std::map<std::wstring, std::wstring> m_names;
    std::map<std::uint32_t, CommandRecord> m_records;
};
