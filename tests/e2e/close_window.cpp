// Asks the window of that title which nobody owns to close, as another program or the system does: by a message to it,
// whatever stands over it.
//
// usage: close_window TITLE
#include <windows.h>

#include <string>

namespace {

struct Search {
    std::wstring title;
    HWND found = nullptr;
};

BOOL CALLBACK Look(HWND window, LPARAM target) {
    auto& search = *reinterpret_cast<Search*>(target);
    std::wstring title(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    title.resize(static_cast<std::size_t>(::GetWindowTextW(window, title.data(), static_cast<int>(title.size()))));
    if (::GetWindow(window, GW_OWNER) == nullptr && title == search.title) {
        search.found = window;
    }
    return TRUE;
}

} // namespace

int wmain(int count, wchar_t** words) {
    if (count != 2) {
        return 2;
    }
    Search search{words[1]};
    ::EnumWindows(&Look, reinterpret_cast<LPARAM>(&search));
    return search.found != nullptr && ::PostMessageW(search.found, WM_CLOSE, 0, 0) ? 0 : 1;
}
