#include "window/bar_place.h"

#include "afxwin.h"
#include "window/bar_strip.h"
#include "window/moving_flags.h"

namespace frame_bars {

CFrameWnd* CommandTargetOf(const CWnd& bar) {
    auto* const owner = DYNAMIC_DOWNCAST(CFrameWnd, bar.GetOwner());
    return owner != nullptr ? owner : bar.GetParentFrame();
}

void TakePlaceInFrame(const CWnd& bar, DWORD style, CSize size, AFX_SIZEPARENTPARAMS& place) {
    const bool isHorizontal = (style & CBRS_ORIENT_HORZ) != 0;
    const LONG thickness = isHorizontal ? size.cy : size.cx;
    const RECT strip = TakeStrip(place.rect, SideOfAlignment(style), thickness);
    (isHorizontal ? place.sizeTotal.cy : place.sizeTotal.cx) += thickness;
    if (place.hDWP != nullptr) {
        place.hDWP = ::DeferWindowPos(place.hDWP, bar.m_hWnd, nullptr, strip.left, strip.top, strip.right - strip.left,
                                      strip.bottom - strip.top, fx::MovingFlags(bar.m_hWnd));
    }
}

} // namespace frame_bars
