#pragma once

#include <string>
#include <string_view>

/// Texts with a mark before the letter that calls them: "&Save && close" shows "Save & close", and S calls it.
namespace fx {

/// The text as it is shown.
std::wstring WithoutMnemonic(std::wstring_view text);

/// The marked character, as a capital; 0 when none is marked.
wchar_t MnemonicOf(std::wstring_view text);

} // namespace fx
