#pragma once

#include "afxpopupmenu.h"
#include "popups/menu_shadow.h"
#include "popups/scroll_strips.h"

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
