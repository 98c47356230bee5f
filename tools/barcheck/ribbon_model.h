#pragma once

#include "command_model.h"
#include "config/ribbon_record.h"

#include <set>
#include <vector>

/// What ribbon files build, see ModelOf.
class RibbonModel {
public:
    explicit RibbonModel(CommandModel& commands) : m_commands(commands) {}

    /// `path`: as a host gives it, relative to the installation directory.
    void Load(const std::wstring& path, const std::wstring& fullPath);
    nlohmann::ordered_json Dump() const;
    nlohmann::ordered_json DumpStatusExtras() const;

private:
    using Json = nlohmann::ordered_json;

    Json Category(const RibbonRecord& category);
    Json Panel(const RibbonRecord& panel);
    /// Adds the element to those of its panel, a separator before it where it asks for one.
    void AddElement(const RibbonRecord& element, Json& elements);
    /// Both are null for an element that is not built.
    Json Control(const RibbonTexts& info, std::uint32_t id);
    Json Element(const RibbonRecord& element, std::uint32_t id);
    std::uint32_t Obtain(const RibbonTexts& info, bool offersHelp);
    void ShowQuickAccess(const std::vector<std::wstring>& keywords);

    CommandModel& m_commands;
    Json m_categories = Json::array();
    Json m_quickAccess = Json::array();
    /// The commands of elements that can be copied to the quick access toolbar.
    std::set<std::uint32_t> m_forQuickAccess;
    /// Of each file.
    Json m_lists = Json::array();
    std::map<std::wstring, Json> m_statusExtras;
};
