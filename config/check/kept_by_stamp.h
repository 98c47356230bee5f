#pragma once

#include <map>
#include <optional>
#include <string>

/// What was worked out from files, as long as they are as they were then.
template <class Value, class Stamp>
class KeptByStamp {
public:
    /// What `make()` gives, or gave when the stamp was the same. Without a stamp it is made each time. Good until the
    /// next call for the same key.
    template <class Make>
    const Value& Get(const std::wstring& key, const std::optional<Stamp>& stamp, Make make) {
        Entry& entry = m_entries[key];
        if (!stamp || entry.stamp != stamp) {
            entry = {make(), stamp};
        }
        return entry.value;
    }

private:
    struct Entry {
        Value value{};
        std::optional<Stamp> stamp;
    };
    std::map<std::wstring, Entry> m_entries;
};
