#pragma once

#include <string>
#include <string_view>

/// What is wrong with a shortcut as it is written in a menu file, and how to write it. Both empty: nothing.
struct ShortcutFault {
    std::wstring text;
    std::wstring fix;
};

ShortcutFault FindShortcutFault(std::wstring_view shortcut);

/// The same shortcuts give the same words: modifiers in one order and letter case, then the key as it is read. Empty
/// when no key is read. A lone letter is another shortcut than the key with a modifier.
std::wstring CanonicalShortcut(std::wstring_view shortcut);
