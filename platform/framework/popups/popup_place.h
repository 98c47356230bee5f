#pragma once

#include "afxpopupmenu.h"

// Where a pop-up opens; pure functions.
namespace toolbar {

struct PopupRequest {
    CPoint wanted;  ///< corner, screen
    CSize size;     ///< of the whole window
    CRect avoid;    ///< what opened it, screen; empty: nothing
    CRect workArea; ///< the monitor's
    bool isRightAligned = false;
};

struct PopupPlacement {
    CRect rect; ///< never larger than the work area, and inside it
    CMFCPopupMenu::DROP_DIRECTION direction = CMFCPopupMenu::DROP_DIRECTION_NONE;
};

/// Below or beside what opened it; above or on the left when there is no room there. Where there is room on neither
/// side it takes the larger one and is cut to it.
PopupPlacement PlacePopup(const PopupRequest& request);

} // namespace toolbar
