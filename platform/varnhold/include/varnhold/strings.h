#pragma once

#include "varnhold/varnhold_api.h"

#include <cstddef>
#include <string>
#include <string_view>

// Text conversions. A wide text is UTF-16 where wchar_t has two bytes (Windows) and UTF-32 elsewhere; a narrow text is
// always UTF-8, never the machine's code page, so that a round trip loses nothing. What is not valid (a lone surrogate,
// a broken or overlong UTF-8 sequence, a value above U+10FFFF) becomes U+FFFD, one for each maximal broken piece.
// Embedded NULs are kept. The conversions that need CString are in varnhold/strings_mfc.h.

/// UTF-8 of a wide text.
VARNHOLD_API std::string wstring2String(std::wstring_view text);

/// Wide text of UTF-8.
VARNHOLD_API std::wstring string2wstring(std::string_view text);

/// The same into a text that is there already, without another one in between.
VARNHOLD_API void string2wstring(std::string_view text, std::wstring& wide);

/// The same into memory that has room for as many letters as `text` has bytes. Returns how many were written; no NUL
/// follows them.
VARNHOLD_API std::size_t string2wstring(std::string_view text, wchar_t* letters);
