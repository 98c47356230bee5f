#include "command_model.h"

#include <varnhold/strings.h>

std::uint32_t CommandModel::Obtain(const std::wstring& name, const CommandRecord& record, bool offersHelp) {
    if (const std::uint32_t* const known = Find(record.keyword)) {
        const auto found = m_records.find(*known);
        if (offersHelp && found != m_records.end() && found->second.help.empty()) {
            found->second.help = record.help;
        }
        return *known;
    }
    const std::uint32_t id = nextId++;
    Add(id, name, record);
    return id;
}

void CommandModel::Add(std::uint32_t id, const std::wstring& name, const CommandRecord& record) {
    if (!record.keyword.empty()) {
        m_ids[record.keyword] = id;
        m_names[record.keyword] = name;
        m_records[id] = record;
    }
}

const std::uint32_t* CommandModel::Find(const std::wstring& keyword) const {
    const auto found = m_ids.find(keyword);
    return found == m_ids.end() ? nullptr : &found->second;
}

nlohmann::ordered_json CommandModel::Dump() const {
    nlohmann::ordered_json entries = nlohmann::ordered_json::array();
    for (const auto& [id, record] : m_records) {
        entries.push_back({{"id", id},
                           {"keyword", wstring2String(record.keyword)},
                           {"name", wstring2String(m_names.at(record.keyword))},
                           {"tooltip", wstring2String(record.toolTip)},
                           {"cmd", wstring2String(record.cmd)},
                           {"param", wstring2String(record.param)},
                           {"help", wstring2String(record.help)}});
    }
    return entries;
}
