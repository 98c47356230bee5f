#pragma once

#include <nlohmann/json.hpp>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

/// What kind of value differs between two models of what is built: the key that it stands under, such as "cmd"; for
/// what one of them has more than the other, "+" or "-" and the list's key, such as "-elements".
inline std::set<std::string> ChangedKinds(const nlohmann::ordered_json& before, const nlohmann::ordered_json& after,
                                          const std::string& key = "model") {
    std::set<std::string> kinds;
    if (before == after) {
        return kinds;
    }
    const auto join = [&kinds](const std::set<std::string>& more) { kinds.insert(more.begin(), more.end()); };
    if (before.is_object() && after.is_object()) {
        for (const auto& [name, value] : before.items()) {
            if (after.contains(name)) {
                join(ChangedKinds(value, after.at(name), name));
            } else {
                kinds.insert("-" + name);
            }
        }
        for (const auto& [name, value] : after.items()) {
            if (!before.contains(name)) {
                kinds.insert("+" + name);
            }
        }
    } else if (before.is_array() && after.is_array()) {
        if (before.size() != after.size()) {
            // Where they are not alike any more says nothing of each.
            kinds.insert((before.size() < after.size() ? "+" : "-") + key);
            return kinds;
        }
        for (std::size_t i = 0; i < before.size(); ++i) {
            join(ChangedKinds(before[i], after[i], key));
        }
    } else {
        kinds.insert(key);
    }
    return kinds;
}
