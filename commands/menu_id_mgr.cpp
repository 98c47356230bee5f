#include "menu_id_mgr.h"

std::uint32_t CMenuIdMgr::s_AddBeginID = 41000;
CMenuIdMgr* CMenuIdMgr::s_pMenuMgr = nullptr;
xrecursive_mutex CMenuIdMgr::m_mutex("CMenuIdMgr::m_mutex");

namespace {

template <class Map>
bool CopyValue(const Map& map, const typename Map::key_type& key, typename Map::mapped_type& value) {
    const auto found = map.find(key);
    if (found == map.end()) {
        return false;
    }
    value = found->second;
    return true;
}

} // namespace

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
    m_idByKeyword[keyword] = id;
    m_nameByKeyword[keyword] = name;
    m_recordById[id] = {keyword, toolTip, cmd, param, helpFile};
}

bool CMenuIdMgr::GetMenuId(const std::wstring& keyword, int& id) const {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    return CopyValue(m_idByKeyword, keyword, id);
}

bool CMenuIdMgr::GetMenuName(const std::wstring& keyword, std::wstring& name) const {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    return CopyValue(m_nameByKeyword, keyword, name);
}

bool CMenuIdMgr::GetMenuMark(const int& id, std::wstring& keyword) const {
    // No record has an empty keyword: Add enters none.
    return GetFilledText(id, &MenuIdRecord::keyword, keyword);
}

bool CMenuIdMgr::GetToolTip(const int& id, std::wstring& toolTip) const {
    return GetFilledText(id, &MenuIdRecord::toolTip, toolTip);
}

bool CMenuIdMgr::GetCmd(int id, std::wstring& cmd) const { return GetFilledText(id, &MenuIdRecord::cmd, cmd); }

bool CMenuIdMgr::GetCmdParam(int id, std::wstring& param) const {
    return GetFilledText(id, &MenuIdRecord::param, param);
}

bool CMenuIdMgr::GetHelpFile(const int& id, std::wstring& helpFile) const {
    return GetFilledText(id, &MenuIdRecord::helpFile, helpFile);
}

void CMenuIdMgr::SetHelpFile(int id, const std::wstring& helpFile) {
    const auto found = m_recordById.find(id);
    if (found != m_recordById.end() && found->second.helpFile.empty()) {
        found->second.helpFile = helpFile;
    }
}

bool CMenuIdMgr::GetFilledText(int id, std::wstring MenuIdRecord::*field, std::wstring& text) const {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    const auto found = m_recordById.find(id);
    if (found == m_recordById.end()) {
        return false;
    }
    const std::wstring& stored = found->second.*field;
    if (stored.empty()) {
        return false;
    }
    text = stored;
    return true;
}
