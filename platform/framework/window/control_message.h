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

/// The text of an item, read with the control's two messages for its length and for itself; empty when there is none.
inline CString ItemText(const CWnd& window, UINT lengthMessage, UINT textMessage, int index) {
    const int length = Send<int>(window, lengthMessage, index);
    if (length < 0) {
        return {};
    }
    std::vector<wchar_t> text(static_cast<size_t>(length) + 1);
    Send(window, textMessage, index, text.data());
    return text.data();
}

/// Passes the messages of owner-drawn items on to the control's own virtual functions. False: it is another message.
template <class Control>
bool RouteOwnerDraw(Control& control, UINT message, LPARAM lParam, LRESULT* result) {
    switch (message) {
    case WM_COMPAREITEM:
        *result = control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return true;
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return true;
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return true;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return true;
    default:
        return false;
    }
}

/// Registers the common controls' classes once.
void EnsureCommonControls();

} // namespace control
