#include "system_language.h"

#include <windows.h>

#include <array>

std::wstring SystemLanguage() {
    std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name = {};
    const LCID locale = MAKELCID(::GetUserDefaultUILanguage(), SORT_DEFAULT);
    return ::LCIDToLocaleName(locale, name.data(), static_cast<int>(name.size()), 0) > 0 ? name.data() : L"";
}
