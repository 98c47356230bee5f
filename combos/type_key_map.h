#pragma once

#include <map>
#include <string>

/// The host's own names of items: from a type key name to an item's index. Set as a whole; indexes are taken as they
/// are, whether there is such an item or not.
class TypeKeyMap {
public:
    void Set(const std::map<std::wstring, int>& indexes);
    /// -1 for an empty or unknown key.
    int FindIndex(const std::wstring& key) const;
    /// The smallest key with that index; empty when there is none, and for -1.
    std::wstring FindKey(int index) const;
    const std::map<std::wstring, int>& Get() const { return m_indexes; }

private:
    std::map<std::wstring, int> m_indexes;
    std::map<int, std::wstring> m_keys; // the smallest key of each index
};
