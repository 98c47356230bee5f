#pragma once

#include "fx/image_list.h"
#include "fx/wnd.h"

#include <commctrl.h>

#include <type_traits>
#include <vector>

/// Typed sending of control messages: any integer, pointer or handle as a parameter, any of them as the result.
namespace control {

template <class T>
LPARAM Parameter(T value) {
    if constexpr (std::is_pointer_v<T>) {
        return reinterpret_cast<LPARAM>(value);
    } else if constexpr (std::is_null_pointer_v<T>) {
        return 0;
    } else {
        return static_cast<LPARAM>(value);
    }
}

template <class Result = void, class First = int, class Second = int>
Result Send(const CWnd& window, UINT message, First wParam = First(), Second lParam = Second()) {
    const LRESULT result =
        ::SendMessageW(window.m_hWnd, message, static_cast<WPARAM>(Parameter(wParam)), Parameter(lParam));
    if constexpr (std::is_pointer_v<Result>) {
        return reinterpret_cast<Result>(result);
    } else if constexpr (!std::is_void_v<Result>) {
        return static_cast<Result>(result);
    }
}

/// For messages that answer a window: its object, else a temporary one; NULL for no window.
template <class Window, class First = int, class Second = int>
Window* SendForWindow(const CWnd& window, UINT message, First wParam = First(), Second lParam = Second()) {
    return static_cast<Window*>(CWnd::FromHandle(Send<HWND>(window, message, wParam, lParam)));
}

inline HWND HandleOf(const CWnd* window) { return window ? window->m_hWnd : nullptr; }

inline HIMAGELIST HandleOf(const CImageList* images) { return images ? images->m_hImageList : nullptr; }

/// Registers the common controls' classes once.
void EnsureCommonControls();

} // namespace control
