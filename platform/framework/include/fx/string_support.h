#pragma once

// The parts of the string classes that ask Windows: case, order, resources, code pages.

#include "fx/format.h"

#include <cstdarg>
#include <oleauto.h>

namespace fx {

/// Below, equal, above as -1, 0, 1. Null counts as empty.
FRAMEWORK_API int CompareIgnoringCase(const wchar_t* first, const wchar_t* second) noexcept;
FRAMEWORK_API int CompareIgnoringCase(const char* first, const char* second) noexcept;
/// Order of the user's language.
FRAMEWORK_API int CompareByLanguage(const wchar_t* first, const wchar_t* second, bool ignoreCase) noexcept;
FRAMEWORK_API int CompareByLanguage(const char* first, const char* second, bool ignoreCase) noexcept;

FRAMEWORK_API void MakeUpperCase(wchar_t* text, int length) noexcept;
FRAMEWORK_API void MakeUpperCase(char* text, int length) noexcept;
FRAMEWORK_API void MakeLowerCase(wchar_t* text, int length) noexcept;
FRAMEWORK_API void MakeLowerCase(char* text, int length) noexcept;
FRAMEWORK_API bool IsSpace(wchar_t character) noexcept;
FRAMEWORK_API bool IsSpace(char character) noexcept;

/// The text of a string resource, found in the module or, without one, by AfxFindResourceHandle. False: no such string.
FRAMEWORK_API bool LoadStringResource(HINSTANCE module, UINT id, const WORD* language, std::wstring& text);
FRAMEWORK_API bool LoadStringResource(HINSTANCE module, UINT id, const WORD* language, std::string& text);
FRAMEWORK_API bool LoadStringResource(UINT id, std::wstring& text);
FRAMEWORK_API bool LoadStringResource(UINT id, std::string& text);

/// False: no such variable.
FRAMEWORK_API bool ReadEnvironment(const wchar_t* name, std::wstring& text);
FRAMEWORK_API bool ReadEnvironment(const char* name, std::string& text);

FRAMEWORK_API std::wstring FormatByList(const wchar_t* format, va_list arguments);
FRAMEWORK_API std::string FormatByList(const char* format, va_list arguments);
FRAMEWORK_API std::wstring MessageByList(const wchar_t* format, va_list* arguments);
FRAMEWORK_API std::string MessageByList(const char* format, va_list* arguments);

/// Throws CNotSupportedException when the value has no text form.
FRAMEWORK_API std::wstring TextOfVariant(const VARIANT& value);

/// One character or text in the other width.
inline std::wstring ToWidth(const char* text, int length, const wchar_t*) { return WidenText(text, length); }
inline std::string ToWidth(const wchar_t* text, int length, const char*) { return NarrowText(text, length); }
inline std::wstring ToWidth(const wchar_t* text, int length, const wchar_t*) {
    return text == nullptr ? std::wstring() : length < 0 ? std::wstring(text) : std::wstring(text, length);
}
inline std::string ToWidth(const char* text, int length, const char*) {
    return text == nullptr ? std::string() : length < 0 ? std::string(text) : std::string(text, length);
}

} // namespace fx
