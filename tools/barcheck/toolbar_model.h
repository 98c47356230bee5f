#pragma once

#include "command_model.h"
#include "config/check/installation_files.h"

/// What toolbar files build, see ModelOf.
class ToolBarModel {
public:
    ToolBarModel(CommandModel& commands, const InstallationFiles& files) : m_commands(commands), m_files(files) {}

    void Load(const std::wstring& fullPath);
    nlohmann::ordered_json Dump() const;

private:
    class Reading;

    /// The place of the next picture in the list; -1 when the file cannot be loaded.
    int TakeImage(const std::wstring& picPath);

    CommandModel& m_commands;
    const InstallationFiles& m_files;
    std::uint32_t m_nextBar = 45000;
    int m_nextImage = 0;
    std::map<std::wstring, std::vector<nlohmann::ordered_json>> m_groups;
};
