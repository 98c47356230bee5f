#pragma once

#include "afxpopupmenu.h"
#include "popups/menu_shadow.h"

/// What a pop-up needs beside its bar.
struct CMFCPopupMenu::Parts {
    toolbar::MenuShadow shadow;
    CScrollBar scrollBar;
    /// Strips in client co-ordinates; empty when there are none.
    CRect upArrow{0, 0, 0, 0};
    CRect downArrow{0, 0, 0, 0};
    CRect resizeBar{0, 0, 0, 0};
    int hotArrow = 0; ///< -1: up, 1: down, 0: none
    bool isResizing = false;
    CPoint resizeStart{0, 0};
    CSize resizeFrom{0, 0};
};
