#pragma once

#include <string_view>

/// Equal without regard to the letter case of A to Z, in which the names and words of the configuration files are
/// written. Other letters must be the same: the answer does not depend on the user's language.
bool EqualsIgnoringCase(std::wstring_view a, std::wstring_view b) noexcept;
bool EqualsIgnoringCase(std::string_view a, std::string_view b) noexcept;
