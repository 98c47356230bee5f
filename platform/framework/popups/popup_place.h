#pragma once

#include "afxpopupmenu.h"

// Where a pop-up opens; pure functions.
namespace toolbar {

/// What happens to a pop-up that has room on neither side of what opened it.
enum class NoRoom {
    Cut,   ///< it takes the larger side and scrolls
    Cover, ///< it keeps its size and lies over what opened it
};

struct PopupRequest {
    CPoint wanted;               ///< corner, screen
    CSize size;                  ///< of the whole window
    CRect avoid;                 ///< what opened it, screen; empty: nothing
    CRect workArea;              ///< the monitor's
    bool isRightAligned = false; ///< wanted is the upper right corner
    bool isMirrored = false;     ///< all of it the other way round: wanted is a right corner, beside is to the left
    NoRoom noRoom = NoRoom::Cut;
};

struct PopupPlacement {
    CRect rect; ///< never larger than the work area, and inside it
    CMFCPopupMenu::DROP_DIRECTION direction = CMFCPopupMenu::DROP_DIRECTION_NONE;
};

/// The work area of the monitor that has most of the area (screen), which may be a point; else of the nearest one.
CRect WorkAreaAround(const CRect& area);

/// Below or beside what opened it; above or on the left when there is no room there. Where there is room on neither
/// side it takes the larger one and is cut to it, or covers what opened it. At a point it opens towards the side that
/// has room.
PopupPlacement PlacePopup(const PopupRequest& request);

} // namespace toolbar
