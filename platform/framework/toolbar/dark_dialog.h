#pragma once

#include <windows.h>

namespace toolbar {

/// Whether the current look's windows are light on dark.
bool IsLookDark();

/// Gives a dialog of the framework's, or a page of one, the colours of the current look where that is dark: caption,
/// ground, texts, push buttons, boxes, tabs, fields and the rows and borders of lists. Under a light look it stays as
/// the system draws it, but for the ticks in one that runs from the right, which the system would mirror. When the
/// window and its controls are there, once; it follows every change of the look from then on
/// (AFX_WM_CHANGEVISUALMANAGER, which a top-level window hears and hands on to its pages), and what it needs goes with
/// the windows.
void DressDialog(HWND dialog);

} // namespace toolbar
