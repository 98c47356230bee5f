#pragma once

#include <windows.h>

class CMFCPopupMenu;

// What happens outside of the open pop-ups: input for other windows, activation, the end of windows.
namespace toolbar {

/// A message from the queue, before any window sees it. TRUE: the pop-ups have used it.
BOOL FilterMenuMessage(MSG* message);

/// Watches messages that are sent, as long as a pop-up is open. Called with each pop-up that opens and closes.
void WatchPopups(bool areOpen);

/// Whether the window is one of the open pop-ups or lies in one.
bool IsInOpenPopups(HWND window);

} // namespace toolbar
