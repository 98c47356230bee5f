// The start of a program with nothing but a window; the floor of every start-up.   bench_empty_window [COMMANDS]
#include "start_clock.h"

#include <windows.h>

#include <cstdlib>

int main(int count, char** words) {
    StartClock clock;
    WNDCLASSW kind = {};
    kind.lpfnWndProc = &::DefWindowProcW;
    kind.hInstance = ::GetModuleHandleW(nullptr);
    kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    kind.lpszClassName = L"bench_empty_window";
    ::RegisterClassW(&kind);
    const HWND window = ::CreateWindowW(kind.lpszClassName, L"start", WS_OVERLAPPEDWINDOW, 0, 0, 1600, 900, nullptr,
                                        nullptr, kind.hInstance, nullptr);
    if (window == nullptr) {
        return 1;
    }
    clock.End("frame");
    ::ShowWindow(window, SW_SHOW);
    ::UpdateWindow(window);
    clock.End("shown");
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::DispatchMessageW(&message);
    }
    clock.End("idle");
    clock.Print("empty", count > 1 ? std::atoi(words[1]) : 0);
    ::DestroyWindow(window);
    return 0;
}
