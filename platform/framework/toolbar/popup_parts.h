#pragma once

#include "afxpopupmenu.h"
#include "popups/menu_shadow.h"
#include "popups/scroll_strips.h"

namespace toolbar {

/// Whether a pop-up runs from the right: the way of what its button lies in; without a button that of the toolbar, or,
/// of a context menu (`menu`), that of the window or of the frame around it.
bool IsOpenedMirrored(const CMFCToolBarMenuButton* button, HMENU menu, HWND parent);

} // namespace toolbar

/// What a pop-up needs beside its bar.
struct CMFCPopupMenu::Parts {
    toolbar::MenuShadow shadow;
    CScrollBar scrollBar;
    toolbar::ScrollStrips strips; ///< client co-ordinates
    CRect resizeBar{0, 0, 0, 0};
    bool isResizing = false;
    CPoint resizeStart{0, 0};
    CSize resizeFrom{0, 0};
};
