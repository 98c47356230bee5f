#pragma once

#include "varnhold/strings.h"

#include <afx.h>

#include <string>

// Text conversions that need the framework's CString; Windows only. A CString holds UTF-16, so that the wide ones are
// exact (embedded NULs included) and the narrow ones follow the rules of varnhold/strings.h.

inline std::wstring CString2wstring(const CString& text) {
    return std::wstring(text.GetString(), static_cast<std::size_t>(text.GetLength()));
}

inline CString wstring2CString(const std::wstring& text) { return CString(text.data(), static_cast<int>(text.size())); }

/// UTF-8.
inline std::string CString2string(const CString& text) { return wstring2String(CString2wstring(text)); }

/// From UTF-8.
inline CString string2CString(const std::string& text) { return wstring2CString(string2wstring(text)); }
