#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tooltip {

/// How many characters of the text fit, from its start; at least 1 for a text that is not empty.
using FitText = std::function<std::size_t(std::wstring_view text)>;

/// TRUE when a line may end before the character at index: after spaces, and between ideographs except before closing
/// and after opening punctuation.
bool CanBreakBefore(std::wstring_view text, std::size_t index);

/// The lines of a text: at its own line breaks, and where a line is full. A word that fits on no line is cut.
std::vector<std::wstring> WrapText(std::wstring_view text, const FitText& fit);

/// "&" marks the key of the next character and goes; "&&" is one "&".
std::wstring WithoutKeyMarks(std::wstring_view text);

} // namespace tooltip
