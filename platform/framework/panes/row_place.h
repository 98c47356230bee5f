#pragma once

#include "afxwin.h"
#include "panes/row_layout.h"
#include "window/bar_strip.h"

class CBasePane;

/// From rows to windows: sides, rectangles, parents.
namespace panes {

/// AFX_IDW_DOCKBAR_ of a CBRS_ALIGN_ bit and back; 0 for anything else.
UINT DockBarOf(DWORD alignment);
DWORD AlignmentOfDockBar(UINT dockBar);

/// The rectangle of a pane in its site's client area: `row` across the site (offset from the outer edge and thickness),
/// `pane` along the row.
CRect RectInSite(const CRect& site, frame_bars::Side side, Span row, Span pane);

/// Moves a child window (its parent's client pixels) unless it lies there already; a needless move would repaint it.
/// With a batch the move is part of it, without one it is done at once.
HDWP DeferMove(HDWP deferred, HWND window, const RECT& place);

/// Makes `parent` the parent of the pane's window and tells the pane before and after. Its commands keep going to the
/// frame. A mini frame that it leaves empty is destroyed.
void ChangeParent(CBasePane& pane, CWnd& parent);

} // namespace panes
