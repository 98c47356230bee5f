#include "settings/kept_commands.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace {

using KeywordSet = std::unordered_set<std::wstring>;

KeywordSet SetOf(const Keywords& keywords) { return {keywords.begin(), keywords.end()}; }

Keywords Distinct(const Keywords& keywords) {
    Keywords result;
    KeywordSet met;
    std::copy_if(keywords.begin(), keywords.end(), std::back_inserter(result),
                 [&met](const std::wstring& keyword) { return met.insert(keyword).second; });
    return result;
}

/// Puts keywords into a list, each behind the nearest one before it in `order` that the list has, or first. Takes time
/// in proportion to both lists.
Keywords Interleave(const Keywords& list, const Keywords& order, const KeywordSet& inserted) {
    const KeywordSet present = SetOf(list);
    Keywords atFront;
    std::unordered_map<std::wstring, Keywords> followers;
    Keywords* place = &atFront;
    KeywordSet done;
    for (const std::wstring& keyword : order) {
        if (present.contains(keyword)) {
            place = &followers[keyword];
        } else if (inserted.contains(keyword) && done.insert(keyword).second) {
            place->push_back(keyword);
        }
    }
    Keywords result = std::move(atFront);
    KeywordSet placed;
    for (const std::wstring& keyword : list) {
        result.push_back(keyword);
        if (const auto found = followers.find(keyword); found != followers.end() && placed.insert(keyword).second) {
            result.insert(result.end(), found->second.begin(), found->second.end());
        }
    }
    return result;
}

} // namespace

Keywords MergeCommands(const KeptCommands& kept, const Keywords& configured) {
    const KeywordSet seen = SetOf(kept.seen), had = SetOf(kept.commands);
    KeywordSet added;
    std::copy_if(configured.begin(), configured.end(), std::inserter(added, added.end()),
                 [&](const std::wstring& keyword) { return !seen.contains(keyword) && !had.contains(keyword); });
    return Interleave(Distinct(kept.commands), configured, added);
}

std::optional<KeptCommands> KeepCommands(const KeptCommands& before, const Keywords& shown, const Keywords& configured,
                                         const IsShowable& isShowable) {
    const KeywordSet present = SetOf(shown);
    // What should be there and cannot be shown has not been taken away by the user.
    const Keywords merged = MergeCommands(before, configured);
    KeywordSet hidden;
    std::copy_if(merged.begin(), merged.end(), std::inserter(hidden, hidden.end()),
                 [&](const std::wstring& keyword) { return !present.contains(keyword) && !isShowable(keyword); });
    KeptCommands after{before.path, Interleave(shown, merged, hidden), before.seen};

    KeywordSet seen = SetOf(after.seen);
    std::copy_if(configured.begin(), configured.end(), std::back_inserter(after.seen),
                 [&](const std::wstring& keyword) { return seen.insert(keyword).second; });
    const KeywordSet kept = SetOf(after.commands);
    const bool hasAll = std::all_of(after.seen.begin(), after.seen.end(),
                                    [&](const std::wstring& keyword) { return kept.contains(keyword); });
    if (hasAll && after.commands == Distinct(configured)) {
        return std::nullopt;
    }
    return after;
}
