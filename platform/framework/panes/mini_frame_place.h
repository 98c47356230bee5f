#pragma once

#include "afxwin.h"

/// Borders, sizes and places of mini frames as functions without state. Pixels of one co-ordinate system.
namespace panes {

/// HTLEFT to HTBOTTOMRIGHT when the point lies on the border (widths in `border`), near the window's corners both; 0.
int BorderAt(const CRect& window, const CRect& border, int corner, CPoint point);

/// The window with the border or corner `hit` at a point; never below nothing.
CRect Resized(const CRect& window, int hit, CPoint point);

/// A window of another size whose edges opposite to `hit` stay where they are.
CRect Anchored(const CRect& window, int hit, CSize size);

/// The rectangle, moved so far that its caption can be reached on the screen that is nearest.
CRect BroughtOnScreen(CRect rect);

} // namespace panes
