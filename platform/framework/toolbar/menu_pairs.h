#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace toolbar {

/// What a row of an open menu and the item that it was made from have in common.
struct MenuKey {
    enum class Kind : std::uint8_t { Command, Popup, Line };

    Kind kind = Kind::Command;
    std::uint32_t command = 0; ///< of a command: its text may have changed since
    std::wstring label;        ///< of a pop-up, without the keys behind it
};

/// For each row the index of its item, -1 where it has none: lines, and what was put into the open menu alone, such as
/// recent files. Items stand in the order of their rows; those that the menu does not show are passed over.
std::vector<int> PairRows(const std::vector<MenuKey>& rows, const std::vector<MenuKey>& items);

/// The index among the items at which something has to come in to be shown before the row; the number of rows stands
/// for the end.
int PlaceBeforeRow(const std::vector<MenuKey>& rows, const std::vector<MenuKey>& items, int row);

} // namespace toolbar
