#pragma once

#include <windows.h>

#include "fx/wnd.h"

/// An edit window that has just become visible is not painted before its element is: a bar that is being built is laid
/// out with other categories than the one that it will show, and the screen still has what was there before.
inline constexpr wchar_t kUnseenProperty[] = L"Barwright.Unseen";

inline void MarkUnseen(const CWnd& window) { ::SetPropW(window.GetSafeHwnd(), kUnseenProperty, window.GetSafeHwnd()); }

/// Whether it was marked; it is no longer.
inline bool TakeUnseen(const CWnd& window) { return ::RemovePropW(window.GetSafeHwnd(), kUnseenProperty) != nullptr; }
