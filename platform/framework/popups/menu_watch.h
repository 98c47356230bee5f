#pragma once

#include <windows.h>

class CMFCPopupMenu;

// What happens outside of the open pop-ups: input for other windows, activation, the end of windows.
namespace toolbar {

/// A message from the queue, before any window sees it. TRUE: the pop-ups have used it.
BOOL FilterMenuMessage(MSG* message);

/// The innermost open pop-up; NULL when none is open. Whatever is sent meanwhile is watched.
CMFCPopupMenu* ActivePopup();
void SetActivePopup(CMFCPopupMenu* active);

/// Asks the pop-up to close, as WM_CLOSE does; what was opened from it closes first.
void ClosePopup(const CMFCPopupMenu& popup);
/// The whole chain, the first one's WM_CLOSE. One that refuses ends the attempt.
void CloseAllPopups();

/// Whether the window is one of the open pop-ups or lies in one.
bool IsInOpenPopups(HWND window);

} // namespace toolbar
