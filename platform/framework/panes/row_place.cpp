#include "panes/row_place.h"

#include "afxbasepane.h"
#include "afxPaneFrameWnd.h"
#include "window/moving_flags.h"

namespace panes {

namespace {

struct SideId {
    DWORD alignment;
    UINT dockBar;
};

constexpr SideId kSides[] = {
    {CBRS_ALIGN_TOP, AFX_IDW_DOCKBAR_TOP},
    {CBRS_ALIGN_BOTTOM, AFX_IDW_DOCKBAR_BOTTOM},
    {CBRS_ALIGN_LEFT, AFX_IDW_DOCKBAR_LEFT},
    {CBRS_ALIGN_RIGHT, AFX_IDW_DOCKBAR_RIGHT},
};

} // namespace

UINT DockBarOf(DWORD alignment) {
    for (const SideId& side : kSides) {
        if (side.alignment == alignment) {
            return side.dockBar;
        }
    }
    return 0;
}

DWORD AlignmentOfDockBar(UINT dockBar) {
    for (const SideId& side : kSides) {
        if (side.dockBar == dockBar) {
            return side.alignment;
        }
    }
    return 0;
}

CRect RectInSite(const CRect& site, frame_bars::Side side, Span row, Span pane) {
    switch (side) {
    case frame_bars::Side::Bottom:
        return {site.left + pane.offset, site.bottom - row.End(), site.left + pane.End(), site.bottom - row.offset};
    case frame_bars::Side::Left:
        return {site.left + row.offset, site.top + pane.offset, site.left + row.End(), site.top + pane.End()};
    case frame_bars::Side::Right:
        return {site.right - row.End(), site.top + pane.offset, site.right - row.offset, site.top + pane.End()};
    default:
        return {site.left + pane.offset, site.top + row.offset, site.left + pane.End(), site.top + row.End()};
    }
}

HDWP DeferMove(HDWP deferred, HWND window, const RECT& place) {
    RECT now;
    ::GetWindowRect(window, &now);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<LPPOINT>(&now), 2);
    if (::EqualRect(&now, &place)) {
        return deferred;
    }
    const CSize size(place.right - place.left, place.bottom - place.top);
    const UINT flags = fx::MovingFlags(window);
    const HDWP next = deferred
                          ? ::DeferWindowPos(deferred, window, nullptr, place.left, place.top, size.cx, size.cy, flags)
                          : nullptr;
    if (!next) {
        ::SetWindowPos(window, nullptr, place.left, place.top, size.cx, size.cy, flags);
    }
    return next;
}

void ChangeParent(CBasePane& pane, CWnd& parent) {
    CWnd* const former = pane.GetParent();
    if (former == &parent) {
        return;
    }
    if (former != nullptr && pane.GetOwner() == former && former == pane.GetDockSiteFrameWnd()) {
        pane.SetOwner(former);
    }
    pane.OnBeforeChangeParent(&parent);
    ::SetParent(pane.m_hWnd, parent.m_hWnd);
    pane.OnAfterChangeParent(former);
    auto* const miniFrame = DYNAMIC_DOWNCAST(CPaneFrameWnd, former);
    if (miniFrame != nullptr && miniFrame->GetPaneCount() == 0) {
        miniFrame->DestroyWindow();
    }
}

} // namespace panes
