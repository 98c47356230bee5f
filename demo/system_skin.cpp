#include "system_skin.h"

#include <windows.h>

std::wstring PreferredSkin() {
    DWORD isLight = 1;
    DWORD size = sizeof(isLight);
    const LSTATUS status =
        ::RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                       L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &isLight, &size);
    return status == ERROR_SUCCESS && isLight == 0 ? L"black" : L"silver";
}
