#include "fx/string_support.h"

#include "fx/exceptions.h"
#include "fx/module_state.h"

#include <cstdio>
#include <cwctype>

namespace fx {
namespace {

std::size_t LengthOf(const char* text, int length) {
    return text == nullptr ? 0 : length < 0 ? std::strlen(text) : static_cast<std::size_t>(length);
}
std::size_t LengthOf(const wchar_t* text, int length) {
    return text == nullptr ? 0 : length < 0 ? std::wcslen(text) : static_cast<std::size_t>(length);
}

const wchar_t* OrEmpty(const wchar_t* text) { return text == nullptr ? L"" : text; }

template <typename Char>
void ChangeCase(Char* text, int length, DWORD (*change)(Char*, DWORD)) {
    if (length > 0) {
        change(text, static_cast<DWORD>(length));
    }
}
DWORD Upper(wchar_t* text, DWORD length) { return ::CharUpperBuffW(text, length); }
DWORD Upper(char* text, DWORD length) { return ::CharUpperBuffA(text, length); }
DWORD Lower(wchar_t* text, DWORD length) { return ::CharLowerBuffW(text, length); }
DWORD Lower(char* text, DWORD length) { return ::CharLowerBuffA(text, length); }

// String resources come in blocks of 16: a length and that many characters each.
constexpr UINT stringsPerBlock = 16;
LPCTSTR BlockName(UINT id) { return MAKEINTRESOURCE(id / stringsPerBlock + 1); }

bool ReadStringBlock(HMODULE module, HRSRC resource, UINT id, std::wstring& text) {
    const HGLOBAL loaded = resource == nullptr ? nullptr : ::LoadResource(module, resource);
    const WORD* place = loaded == nullptr ? nullptr : static_cast<const WORD*>(::LockResource(loaded));
    if (place == nullptr) {
        return false;
    }
    const WORD* const end = place + ::SizeofResource(module, resource) / sizeof(WORD);
    for (UINT skip = id % stringsPerBlock; skip > 0 && place < end; --skip) {
        place += 1 + *place;
    }
    if (place >= end || *place == 0 || place + 1 + *place > end) {
        return false;
    }
    text.assign(reinterpret_cast<const wchar_t*>(place + 1), *place);
    return true;
}

template <typename Load>
bool LoadNarrow(std::string& text, Load load) {
    std::wstring wide;
    const bool found = load(wide);
    if (found) {
        text = NarrowText(wide);
    }
    return found;
}

// FormatMessage allocates the text.
template <typename Char>
std::basic_string<Char> TakeLocal(Char* text, DWORD length) {
    if (text == nullptr) {
        return {};
    }
    std::basic_string<Char> result(text, length);
    ::LocalFree(text);
    return result;
}

} // namespace

std::wstring WidenText(const char* text, int length) {
    const int count = static_cast<int>(LengthOf(text, length));
    std::wstring result;
    if (count > 0) {
        result.resize(static_cast<std::size_t>(::MultiByteToWideChar(CP_ACP, 0, text, count, nullptr, 0)));
        ::MultiByteToWideChar(CP_ACP, 0, text, count, result.data(), static_cast<int>(result.size()));
    }
    return result;
}

std::string NarrowText(const wchar_t* text, int length) {
    const int count = static_cast<int>(LengthOf(text, length));
    std::string result;
    if (count > 0) {
        result.resize(
            static_cast<std::size_t>(::WideCharToMultiByte(CP_ACP, 0, text, count, nullptr, 0, nullptr, nullptr)));
        ::WideCharToMultiByte(CP_ACP, 0, text, count, result.data(), static_cast<int>(result.size()), nullptr, nullptr);
    }
    return result;
}

int CompareIgnoringCase(const wchar_t* first, const wchar_t* second) noexcept {
    return ::CompareStringOrdinal(OrEmpty(first), -1, OrEmpty(second), -1, TRUE) - CSTR_EQUAL;
}
int CompareIgnoringCase(const char* first, const char* second) noexcept {
    return CompareIgnoringCase(WidenText(first).c_str(), WidenText(second).c_str());
}
int CompareByLanguage(const wchar_t* first, const wchar_t* second, bool ignoreCase) noexcept {
    const DWORD flags = ignoreCase ? NORM_IGNORECASE : 0;
    return ::CompareString(LOCALE_USER_DEFAULT, flags, OrEmpty(first), -1, OrEmpty(second), -1) - CSTR_EQUAL;
}
int CompareByLanguage(const char* first, const char* second, bool ignoreCase) noexcept {
    return CompareByLanguage(WidenText(first).c_str(), WidenText(second).c_str(), ignoreCase);
}

void MakeUpperCase(wchar_t* text, int length) noexcept { ChangeCase<wchar_t>(text, length, &Upper); }
void MakeUpperCase(char* text, int length) noexcept { ChangeCase<char>(text, length, &Upper); }
void MakeLowerCase(wchar_t* text, int length) noexcept { ChangeCase<wchar_t>(text, length, &Lower); }
void MakeLowerCase(char* text, int length) noexcept { ChangeCase<char>(text, length, &Lower); }
bool IsSpace(wchar_t character) noexcept { return std::iswspace(character) != 0; }
bool IsSpace(char character) noexcept { return std::isspace(static_cast<unsigned char>(character)) != 0; }

bool LoadStringResource(HINSTANCE module, UINT id, const WORD* language, std::wstring& text) {
    const HRSRC resource = language == nullptr ? ::FindResource(module, BlockName(id), RT_STRING)
                                               : ::FindResourceEx(module, RT_STRING, BlockName(id), *language);
    return ReadStringBlock(module, resource, id, text);
}
bool LoadStringResource(HINSTANCE module, UINT id, const WORD* language, std::string& text) {
    return LoadNarrow(text, [&](std::wstring& wide) { return LoadStringResource(module, id, language, wide); });
}
bool LoadStringResource(UINT id, std::wstring& text) {
    return LoadStringResource(AfxFindResourceHandle(BlockName(id), RT_STRING), id, nullptr, text);
}
bool LoadStringResource(UINT id, std::string& text) {
    return LoadNarrow(text, [&](std::wstring& wide) { return LoadStringResource(id, wide); });
}

bool ReadEnvironment(const wchar_t* name, std::wstring& text) {
    text.clear();
    ::SetLastError(ERROR_SUCCESS);
    // The size is asked for again until it fits: another thread may lengthen the variable in between.
    for (DWORD size = ::GetEnvironmentVariableW(name, nullptr, 0); size > text.size();) {
        text.resize(size);
        size = ::GetEnvironmentVariableW(name, text.data(), static_cast<DWORD>(text.size()));
        if (size < text.size()) {
            text.resize(size);
            return size > 0 || ::GetLastError() != ERROR_ENVVAR_NOT_FOUND;
        }
    }
    return false;
}
bool ReadEnvironment(const char* name, std::string& text) {
    text.clear();
    return LoadNarrow(text, [&](std::wstring& wide) { return ReadEnvironment(WidenText(name).c_str(), wide); });
}

std::wstring FormatByList(const wchar_t* format, va_list arguments) {
    va_list again;
    va_copy(again, arguments);
    const int length = ::_vscwprintf(format, again);
    va_end(again);
    std::wstring text(length > 0 ? static_cast<std::size_t>(length) : 0, L'\0');
    if (length > 0) {
        ::_vsnwprintf(text.data(), text.size() + 1, format, arguments);
    }
    return text;
}
std::string FormatByList(const char* format, va_list arguments) {
    va_list again;
    va_copy(again, arguments);
    const int length = ::_vscprintf(format, again);
    va_end(again);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    if (length > 0) {
        ::_vsnprintf(text.data(), text.size() + 1, format, arguments);
    }
    return text;
}

std::wstring MessageByList(const wchar_t* format, va_list* arguments) {
    wchar_t* text = nullptr;
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                                          reinterpret_cast<LPWSTR>(&text), 0, arguments);
    return TakeLocal(text, length);
}
std::string MessageByList(const char* format, va_list* arguments) {
    char* text = nullptr;
    const DWORD length = ::FormatMessageA(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                                          reinterpret_cast<LPSTR>(&text), 0, arguments);
    return TakeLocal(text, length);
}

std::wstring TextOfVariant(const VARIANT& value) {
    VARIANT text;
    ::VariantInit(&text);
    if (FAILED(::VariantChangeType(&text, const_cast<VARIANT*>(&value), 0, VT_BSTR))) {
        AfxThrowNotSupportedException();
    }
    std::wstring result(text.bstrVal == nullptr ? L"" : text.bstrVal, ::SysStringLen(text.bstrVal));
    ::VariantClear(&text);
    return result;
}

} // namespace fx

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep) {
    if (lpszFullString == nullptr) {
        return FALSE;
    }
    LPCTSTR first = lpszFullString;
    for (; iSubString > 0; --iSubString) {
        first = std::wcschr(first, chSep);
        if (first == nullptr) {
            rString.Empty();
            return FALSE;
        }
        ++first;
    }
    const LPCTSTR end = std::wcschr(first, chSep);
    rString.SetString(first, end == nullptr ? static_cast<int>(std::wcslen(first)) : static_cast<int>(end - first));
    return TRUE;
}

void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1) { AfxFormatString2(rString, nIDS, lpsz1, nullptr); }

void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2) {
    std::wstring text;
    fx::LoadStringResource(nIDS, text);
    const LPCTSTR inserts[] = {lpsz1, lpsz2};
    std::wstring result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const bool isInsert =
            text[index] == L'%' && index + 1 < text.size() && (text[index + 1] == L'1' || text[index + 1] == L'2');
        if (!isInsert) {
            result += text[index];
            continue;
        }
        ++index;
        const LPCTSTR insert = inserts[text[index] - L'1'];
        result += insert == nullptr ? L"" : insert;
    }
    rString.SetString(result.data(), static_cast<int>(result.size()));
}
