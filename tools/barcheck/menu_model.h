#pragma once

#include "command_model.h"

/// What menu files build, see ModelOf.
class MenuModel {
public:
    explicit MenuModel(CommandModel& commands) : m_commands(commands) {}

    void Load(const std::wstring& fullPath);
    const nlohmann::ordered_json& DumpMenu() const { return m_menu; }
    const nlohmann::ordered_json& DumpAccelerators() const { return m_accelerators; }

private:
    class Reading;

    CommandModel& m_commands;
    nlohmann::ordered_json m_menu = nlohmann::ordered_json::array();
    nlohmann::ordered_json m_accelerators = nlohmann::ordered_json::array();
};
