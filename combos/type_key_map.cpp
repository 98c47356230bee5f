#include "combos/type_key_map.h"

void TypeKeyMap::Set(const std::map<std::wstring, int>& indexes) {
    if (&indexes == &m_indexes) {
        return;
    }
    m_indexes = indexes;
    m_keys.clear();
    // In key order, so that the first key of an index stays.
    for (const auto& [key, index] : m_indexes) {
        m_keys.try_emplace(index, key);
    }
}

int TypeKeyMap::FindIndex(const std::wstring& key) const {
    const auto found = key.empty() ? m_indexes.end() : m_indexes.find(key);
    return found != m_indexes.end() ? found->second : -1;
}

std::wstring TypeKeyMap::FindKey(int index) const {
    const auto found = index == -1 ? m_keys.end() : m_keys.find(index);
    return found != m_keys.end() ? found->second : std::wstring();
}
