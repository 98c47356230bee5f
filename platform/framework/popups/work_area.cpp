#include "popups/popup_place.h"

CRect toolbar::WorkAreaAround(const CRect& area) {
    CRect place = area;
    if (place.IsRectEmpty()) {
        place.right = place.left + 1; // an empty area lies on no monitor
        place.bottom = place.top + 1;
    }
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    if (::GetMonitorInfoW(::MonitorFromRect(place, MONITOR_DEFAULTTONEAREST), &monitor)) {
        return monitor.rcWork;
    }
    CRect work(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return work;
}
