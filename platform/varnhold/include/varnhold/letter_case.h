#pragma once

#include <algorithm>
#include <string_view>

/// The letter case of A to Z, in which the words of files are written that people edit. Other letters must be the same:
/// no answer depends on the user's language.
namespace varnhold {

template <class Char>
constexpr Char LowerAscii(Char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<Char>(c + ('a' - 'A')) : c;
}

template <class Char>
constexpr bool EqualsFolded(std::basic_string_view<Char> a, std::basic_string_view<Char> b) noexcept {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](Char x, Char y) { return LowerAscii(x) == LowerAscii(y); });
}

/// Equal without regard to the letter case of A to Z.
constexpr bool EqualsIgnoringCase(std::wstring_view a, std::wstring_view b) noexcept { return EqualsFolded(a, b); }
constexpr bool EqualsIgnoringCase(std::string_view a, std::string_view b) noexcept { return EqualsFolded(a, b); }

} // namespace varnhold
