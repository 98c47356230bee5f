#include "menu_id_mgr.h"

std::uint32_t CMenuIdMgr::s_AddBeginID = 41000;
CMenuIdMgr* CMenuIdMgr::s_pMenuMgr = nullptr;
xrecursive_mutex CMenuIdMgr::m_mutex("CMenuIdMgr::m_mutex");

void CMenuIdMgr::MenuIdRecord::Set(const Texts& texts) {
    std::size_t length = 0;
    for (const std::wstring_view text : texts) {
        length += text.size();
    }
    std::wstring joined;
    joined.reserve(length);
    for (std::size_t field = 0; field < texts.size(); ++field) {
        joined += texts[field];
        m_ends[field] = static_cast<std::uint32_t>(joined.size());
    }
    m_texts.swap(joined);
}

std::wstring_view CMenuIdMgr::MenuIdRecord::Get(Field field) const {
    const auto place = static_cast<std::size_t>(field);
    const std::size_t begin = place == 0 ? 0 : m_ends[place - 1];
    return std::wstring_view(m_texts).substr(begin, m_ends[place] - begin);
}

CMenuIdMgr* CMenuIdMgr::Ins() {
    if (!s_pMenuMgr) {
        s_pMenuMgr = new CMenuIdMgr;
    }
    xrecursive_mutex::scoped_lock lock(m_mutex);
    return s_pMenuMgr;
}

void CMenuIdMgr::Destroy() {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    delete s_pMenuMgr;
    s_pMenuMgr = nullptr;
}

void CMenuIdMgr::Add(const std::wstring& keyword, int id, const std::wstring& name, const std::wstring& cmd,
                     const std::wstring& toolTip, const std::wstring& param, const std::wstring& helpFile) {
    if (keyword.empty()) {
        return;
    }
    xrecursive_mutex::scoped_lock lock(m_mutex);
    KeywordEntry& entry = m_byKeyword[keyword];
    entry.id = id;
    entry.name = name;
    m_recordById[id].Set({keyword, toolTip, cmd, param, helpFile});
}

bool CMenuIdMgr::GetMenuId(const std::wstring& keyword, int& id) const {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    const auto found = m_byKeyword.find(keyword);
    if (found == m_byKeyword.end()) {
        return false;
    }
    id = found->second.id;
    return true;
}

bool CMenuIdMgr::GetMenuName(const std::wstring& keyword, std::wstring& name) const {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    const auto found = m_byKeyword.find(keyword);
    if (found == m_byKeyword.end()) {
        return false;
    }
    name = found->second.name;
    return true;
}

bool CMenuIdMgr::GetMenuMark(const int& id, std::wstring& keyword) const {
    // No record has an empty keyword: Add enters none.
    return GetFilledText(id, Field::Keyword, keyword);
}

bool CMenuIdMgr::GetToolTip(const int& id, std::wstring& toolTip) const {
    return GetFilledText(id, Field::ToolTip, toolTip);
}

bool CMenuIdMgr::GetCmd(int id, std::wstring& cmd) const { return GetFilledText(id, Field::Command, cmd); }

bool CMenuIdMgr::GetCmdParam(int id, std::wstring& param) const { return GetFilledText(id, Field::Parameter, param); }

bool CMenuIdMgr::GetHelpFile(const int& id, std::wstring& helpFile) const {
    return GetFilledText(id, Field::HelpFile, helpFile);
}

void CMenuIdMgr::SetHelpFile(int id, const std::wstring& helpFile) {
    const auto found = m_recordById.find(id);
    if (found == m_recordById.end() || !found->second.Get(Field::HelpFile).empty()) {
        return;
    }
    MenuIdRecord& record = found->second;
    record.Set({record.Get(Field::Keyword), record.Get(Field::ToolTip), record.Get(Field::Command),
                record.Get(Field::Parameter), helpFile});
}

bool CMenuIdMgr::GetFilledText(int id, Field field, std::wstring& text) const {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    const auto found = m_recordById.find(id);
    const std::wstring_view stored = found == m_recordById.end() ? std::wstring_view() : found->second.Get(field);
    if (stored.empty()) {
        return false;
    }
    text = stored;
    return true;
}
