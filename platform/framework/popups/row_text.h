#pragma once

#include "fx/string.h"

#include <string_view>

// The text of a list's row.
namespace toolbar {

/// As much of the text as can be seen, without line breaks.
CString ShownText(const CString& text);
/// In any case of letters.
bool StartsWith(const CString& text, std::wstring_view beginning);

} // namespace toolbar
