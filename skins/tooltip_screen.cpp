#include "skins/tooltip_screen.h"

#include <afxglobals.h>
#include <afxwin.h>
#include <fx/geometry.h>

namespace {

const TooltipScreen* g_screen = nullptr;

} // namespace

int ScaledForDisplay(int length) { return fx::Scaled(length, afxGlobalData.GetRibbonImageScale()); }

CRect TooltipScreen::WorkAreaAt(CPoint point) const {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    if (::GetMonitorInfo(::MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST), &info)) {
        return info.rcWork;
    }
    CRect desktop(0, 0, 0, 0);
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &desktop, 0);
    return desktop;
}

CPoint TooltipScreen::Pointer() const {
    CPoint pointer(0, 0);
    ::GetCursorPos(&pointer);
    return pointer;
}

int TooltipScreen::PointerHeight() const { return ::GetSystemMetrics(SM_CYCURSOR); }

const TooltipScreen& TooltipScreen::Get() {
    static const TooltipScreen system;
    return g_screen ? *g_screen : system;
}

void TooltipScreen::Use(const TooltipScreen* screen) { g_screen = screen; }
