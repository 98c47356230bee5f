#include "config/shortcut_text.h"

#include "varnhold/letter_case.h"

#include <algorithm>
#include <stdexcept>

namespace {

struct Modifier {
    std::wstring_view name;
    ShortcutFlag flag;
};

constexpr Modifier kModifiers[] = {
    {L"Ctrl", ShortcutControl},
    {L"Shift", ShortcutShift},
    {L"Alt", ShortcutAlt},
};

/// 0 for a piece that is no modifier.
std::uint8_t FlagOf(std::wstring_view piece) {
    for (const Modifier& modifier : kModifiers) {
        if (varnhold::EqualsIgnoringCase(piece, modifier.name)) {
            return modifier.flag;
        }
    }
    return 0;
}

} // namespace

ShortcutText ReadShortcutText(std::wstring_view text) {
    if (!text.empty() && text.find(L'+') == text.npos) {
        return {0, text.front()};
    }
    ShortcutText shortcut{ShortcutVirtualKey, 0};
    for (;;) {
        const std::size_t end = std::min(text.find(L'+'), text.size());
        const std::wstring_view piece = text.substr(0, end);
        const std::uint8_t flag = FlagOf(piece);
        if (flag == 0) {
            if (piece.empty()) {
                throw std::out_of_range("invalid string position");
            }
            shortcut.character = piece.front();
            return shortcut;
        }
        shortcut.flags |= flag;
        if (end == text.size()) {
            return shortcut;
        }
        text.remove_prefix(end + 1);
    }
}
