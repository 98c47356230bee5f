#pragma once

#include <string>
#include <string_view>

/// Letters of every script, the same in every locale. What std::towupper knows depends on the C locale, and without one
/// that is ASCII alone.
namespace fx {

/// The capital of a letter; anything else as it is. Two letters are the same in any case when their capitals are equal.
wchar_t UpperCase(wchar_t character);
std::wstring UpperCase(std::wstring_view text);

/// A letter that a keyboard writes: Latin, Greek, Cyrillic, Hebrew, ..., with marks or without. What an
/// input method writes, as ideographs, is none.
bool IsLetter(wchar_t character);
bool IsLetterOrDigit(wchar_t character);

} // namespace fx
