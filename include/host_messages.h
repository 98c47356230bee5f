#pragma once

#include <windows.h>

/// Every window message with which the library tells the host what a user did. They go to the owner of the window that
/// holds the control (its parent when it has no owner), on the user-interface thread. Where wParam is a text it is the
/// address of a CString that is valid during the call only; all but WM_COMBO_COLOR_PICK are sent.

/// A check changed. wParam: the item's text; lParam: 1 checked, 0 unchecked; 3 checked or 4 unchecked together with
/// the others.
inline constexpr UINT WM_COMBO_CHECK_CHANGED = WM_USER + 0x70;

/// The user asks for another colour. wParam: the item's index; lParam: its present COLORREF. Posted by the ribbon
/// combo, sent by the window combo.
inline constexpr UINT WM_COMBO_COLOR_PICK = WM_USER + 0x71;

/// The user asks for a light to be switched. wParam: the item's text; lParam: 1 on, 0 off. A result other than 0 lets
/// it happen.
inline constexpr UINT WM_COMBO_LIGHT_CHANGED = WM_USER + 0x72;

/// The third mark of a multi combo's item. wParam: the item's text; lParam: 1.
inline constexpr UINT WM_COMBO_ITEM_ACTION = WM_USER + 0x73;

/// A light of a light-only combo has changed. wParam: the item's text; lParam: 1 on, 0 off.
inline constexpr UINT WM_VESCOMBO_LIGHT_CHANGED = WM_USER + 0x64;

/// A ribbon label was pressed. wParam: the CMFCRibbonLabelEx*; lParam: 0.
inline constexpr UINT WM_RIBBON_LABEL_CLICKED = WM_USER + 111;
