#include "config/text_case.h"

#include <algorithm>

namespace {

template <class Char>
constexpr Char Folded(Char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<Char>(c + ('a' - 'A')) : c;
}

template <class Char>
bool AreEqual(std::basic_string_view<Char> a, std::basic_string_view<Char> b) noexcept {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](Char x, Char y) { return Folded(x) == Folded(y); });
}

} // namespace

bool EqualsIgnoringCase(std::wstring_view a, std::wstring_view b) noexcept { return AreEqual(a, b); }

bool EqualsIgnoringCase(std::string_view a, std::string_view b) noexcept { return AreEqual(a, b); }
