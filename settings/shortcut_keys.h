#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A key with its modifiers, as an accelerator table has it.
struct ShortcutKey {
    std::uint8_t modifiers = 0; ///< ShortcutFlag values without ShortcutVirtualKey
    std::uint16_t key = 0;      ///< virtual-key code

    bool operator==(const ShortcutKey&) const = default;
};

/// Text that people can read and that ReadShortcutKey turns into the same key: "Ctrl+Shift+S", "F5", "Alt+Del",
/// "Ctrl+#223" for a key without a name.
std::wstring ShortcutKeyText(ShortcutKey key);

/// Letter case does not count. Nothing for a text that names no key, or more than one.
std::optional<ShortcutKey> ReadShortcutKey(std::wstring_view text);

/// One row of an accelerator table.
struct ShortcutRow {
    ShortcutKey key;
    bool isVirtualKey = true; ///< false: `key.key` is a character
    std::uint16_t id = 0;

    bool operator==(const ShortcutRow&) const = default;
};

/// The keys that a user gave a command, none to take its keys away.
struct UserKeys {
    std::uint16_t id = 0;
    std::vector<ShortcutKey> keys;
};

/// The table with the users' keys: their commands lose the keys that they have in it, and other commands those that
/// users gave away. A key that was given twice goes to the last command.
std::vector<ShortcutRow> MergeShortcuts(const std::vector<ShortcutRow>& configured, const std::vector<UserKeys>& users);
