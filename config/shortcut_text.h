#pragma once

#include <cstdint>
#include <string_view>

/// The flags of an accelerator, with the values that the system gives them.
enum ShortcutFlag : std::uint8_t {
    ShortcutVirtualKey = 0x01,
    ShortcutShift = 0x04,
    ShortcutControl = 0x08,
    ShortcutAlt = 0x10,
};

/// A shortcut as it is written in a menu file, taken apart.
struct ShortcutText {
    /// ShortcutFlag values; 0 for a lone letter, which stands for the character and not for its key.
    std::uint8_t flags = 0;
    /// The letter or sign that is pressed; 0: there is none.
    wchar_t character = 0;
};

/// Takes "Ctrl+Shift+S" apart at each "+", blanks included. "Ctrl", "Shift" and "Alt" in any letter case count as
/// modifiers; the first piece that is none of them gives the key by its first character alone, so that "F5" is the key
/// of F. Nothing behind it is read. A text without "+" is a single character, whatever it says. Throws
/// std::out_of_range where an empty piece stands for the key ("Ctrl+", "").
ShortcutText ReadShortcutText(std::wstring_view text);
