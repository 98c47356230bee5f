#include "open_dialogs.h"

#include "dialog_window.h"

#include <array>
#include <iterator>
#include <string_view>

namespace {

struct DialogSearch {
    HWND frame;
    std::vector<HWND> found;
};

bool IsOwnedBy(HWND window, HWND owner) {
    for (; window != nullptr && window != owner; window = ::GetWindow(window, GW_OWNER)) {
    }
    return window != nullptr;
}

/// One of the viewer's own, or one of the system's.
bool IsDialog(HWND window) {
    constexpr wchar_t systemClass[] = L"#32770";
    std::array<wchar_t, std::size(systemClass) + 1> name = {};
    ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return std::wstring_view(name.data()) == systemClass ||
           dynamic_cast<CDialogWindow*>(CWnd::FromHandlePermanent(window)) != nullptr;
}

} // namespace

std::vector<HWND> DialogsOver(HWND frame) {
    DialogSearch search{frame, {}};
    const auto add = [](HWND window, LPARAM target) -> BOOL {
        auto& asked = *reinterpret_cast<DialogSearch*>(target);
        if (window != asked.frame && ::IsWindowVisible(window) && IsOwnedBy(window, asked.frame) && IsDialog(window)) {
            asked.found.push_back(window);
        }
        return TRUE;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&search));
    return search.found;
}
