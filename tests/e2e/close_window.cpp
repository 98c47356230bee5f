// Asks the window of that title which nobody owns to close, as another program does it: by a message to it, whatever
// stands over it; or tells it that the session ends, as the system does.
//
// usage: close_window TITLE [session]
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
    if (count != 2 && !(count == 3 && std::wstring(words[2]) == L"session")) {
        return 2;
    }
    Search search{words[1]};
    ::EnumWindows(&Look, reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr) {
        return 1;
    }
    if (count == 2) {
        return ::PostMessageW(search.found, WM_CLOSE, 0, 0) ? 0 : 1;
    }
    if (!::SendMessageW(search.found, WM_QUERYENDSESSION, 0, 0)) {
        return 1;
    }
    ::SendMessageW(search.found, WM_ENDSESSION, TRUE, 0);
    return 0;
}
