#include "toolbar/menu_pairs.h"

#include <algorithm>
#include <cstddef>

namespace toolbar {

namespace {

bool IsPair(const MenuKey& row, const MenuKey& item) {
    if (row.kind != item.kind || row.kind == MenuKey::Kind::Line) {
        return false;
    }
    return row.kind == MenuKey::Kind::Command ? row.command == item.command : row.label == item.label;
}

} // namespace

std::vector<int> PairRows(const std::vector<MenuKey>& rows, const std::vector<MenuKey>& items) {
    std::vector<int> pairs;
    pairs.reserve(rows.size());
    auto next = items.begin();
    for (const MenuKey& row : rows) {
        const auto found = std::find_if(next, items.end(), [&row](const MenuKey& item) { return IsPair(row, item); });
        if (found == items.end()) {
            pairs.push_back(-1);
        } else {
            pairs.push_back(static_cast<int>(found - items.begin()));
            next = found + 1;
        }
    }
    return pairs;
}

int PlaceBeforeRow(const std::vector<MenuKey>& rows, const std::vector<MenuKey>& items, int row) {
    const std::vector<int> pairs = PairRows(rows, items);
    const auto index = static_cast<std::size_t>(std::max(row, 0));
    if (index < pairs.size() && pairs[index] >= 0) {
        return pairs[index];
    }
    // Behind the nearest row before it that has an item, and behind the lines between them.
    int lines = 0;
    for (std::size_t before = std::min(index, pairs.size()); before > 0; --before) {
        if (pairs[before - 1] >= 0) {
            return std::min(pairs[before - 1] + 1 + lines, static_cast<int>(items.size()));
        }
        lines += rows[before - 1].kind == MenuKey::Kind::Line ? 1 : 0;
    }
    return 0;
}

} // namespace toolbar
