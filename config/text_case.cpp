#include "config/text_case.h"

#include <algorithm>

namespace {

constexpr wchar_t Folded(wchar_t c) noexcept { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c; }

} // namespace

bool EqualsIgnoringCase(std::wstring_view a, std::wstring_view b) noexcept {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](wchar_t x, wchar_t y) { return Folded(x) == Folded(y); });
}
