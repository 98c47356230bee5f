#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ribbon {

/// One thing that a key tip leads to.
struct KeyTipWish {
    std::wstring keys; // given by the host; empty: chosen from the text
    std::wstring text; // as shown; a letter behind '&' is preferred
};

/// The keys of one level, in the order of the wishes. Keys that were given stay as they are, in capitals. The others
/// are unique, no prefix of another key and have none as a prefix; they depend on the wishes alone. Where the given
/// keys leave no room at all, or one was given twice, a key may be empty.
std::vector<std::wstring> AssignKeyTips(const std::vector<KeyTipWish>& wishes);

/// Key of the command at a place (from 0) in the quick access toolbar: 1 to 9, then 09 down to 01, then 0A and so on.
std::wstring QuickAccessKeyTip(std::size_t place);

} // namespace ribbon
