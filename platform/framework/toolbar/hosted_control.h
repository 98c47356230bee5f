#pragma once

#include "afxtoolbar.h"

// Windows that a toolbar's buttons bring along (combo boxes, edits): children of the toolbar, whose notifications go to
// the button first and then to the toolbar's owner.
namespace toolbar {

/// Who hears a control's notifications: the button, or the control itself by reflection.
enum class Hears { Button, Control };

/// From now on the control's colours, and its notifications as well, are the button's that owns it
/// (CMFCToolBarButton::IsOwnerOf).
void HostControl(CWnd& bar, HWND control, Hears hears = Hears::Button);
void ReleaseControl(HWND control);

/// Without giving it the focus; nothing happens to one that is shown, or hidden, already.
void ShowControl(CWnd& control, bool isShown);

/// The bar's button that the control belongs to; null when there is none any more.
CMFCToolBarButton* ButtonWith(const CMFCToolBar& bar, HWND control);

/// Tells the button (NotifyCommand), then the bar's owner by WM_COMMAND, and sends the button's command when the button
/// asks for it. Bar and button may be gone afterwards.
void RouteNotification(CMFCToolBar& bar, HWND control, WPARAM wParam);

/// What the keyboard types into an edit, and what edits do with Ctrl: no accelerator of the frame may take it.
bool IsKeyOfEdit(const MSG& message);
/// Lets the edit have the key at once; the window may be gone afterwards.
void GiveKeyToEdit(const MSG& message);

/// The pop-up of a resource that a right click in a button's edit shows. FALSE: there is none.
BOOL ShowEditMenu(UINT uiMenuResID, CWnd& edit, CPoint screen);

} // namespace toolbar
