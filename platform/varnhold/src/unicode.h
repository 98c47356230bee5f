#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varnhold {

constexpr char32_t kReplacement = 0xFFFD;

/// True for a code point that a text may hold: not above U+10FFFF and not a surrogate.
constexpr bool IsScalarValue(char32_t c) { return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF); }

/// How many bytes from `at` on are ASCII, counted up to the first that is not.
std::size_t CountAscii(std::string_view text, std::size_t at);

/// Where the first NUL stands; the text's length when there is none.
std::size_t FindNul(std::string_view text);

/// Copies bytes to letters up to the first that is not ASCII and returns how many they were. `letters` has room for all
/// of the text.
std::size_t WidenAscii(std::string_view text, wchar_t* letters);

/// Takes one code point off `text` at `at` and moves `at` behind it; `at` must be inside. A broken sequence yields
/// U+FFFD and is skipped as far as it could have been the start of a valid one, at least one byte.
char32_t NextFromUtf8(std::string_view text, std::size_t& at);

/// Appends `c`, or U+FFFD when it is not a scalar value.
void AppendUtf8(std::string& text, char32_t c);

/// Writes `c`, or U+FFFD when it is not a scalar value, as one or two letters; returns the place behind them.
wchar_t* PutWide(wchar_t* at, char32_t c);

} // namespace varnhold
