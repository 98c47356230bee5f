#include "fx/scroll_view.h"

#include "afxext.h"
#include "fx/frame.h"
#include "fx/window_dc.h"

#include <algorithm>
#include <cstdlib>

IMPLEMENT_DYNAMIC(CScrollView, CView)

BEGIN_MESSAGE_MAP(CScrollView, CView)
ON_WM_SIZE()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

namespace {

constexpr int kStepPart = 10; // of the whole for a page, of a page for a line

/// A point of the map mode in pixels or back, from an origin of 0, 0.
enum class Direction { ToPixels, ToLogical };
CPoint Convert(int mapMode, CPoint point, Direction direction) {
    CWindowDC screen(nullptr);
    const int before = ::SetMapMode(screen.m_hDC, mapMode);
    if (direction == Direction::ToPixels) {
        ::LPtoDP(screen.m_hDC, &point, 1);
    } else {
        ::DPtoLP(screen.m_hDC, &point, 1);
    }
    ::SetMapMode(screen.m_hDC, before);
    return point;
}

int StepOr(int given, int whole) { return given > 0 ? given : std::max(whole / kStepPart, 1); }

} // namespace

const SIZE CScrollView::sizeDefault = {0, 0};

CScrollView::CScrollView() = default;
CScrollView::~CScrollView() = default;

CSize CScrollView::ToPixels(SIZE logical) const {
    const CPoint point = Convert(m_mapMode, CPoint(logical.cx, logical.cy), Direction::ToPixels);
    return CSize(std::abs(point.x), std::abs(point.y));
}

void CScrollView::SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage, const SIZE& sizeLine) {
    ASSERT(sizeTotal.cx >= 0 && sizeTotal.cy >= 0);
    ASSERT(nMapMode > 0 && nMapMode != MM_ISOTROPIC && nMapMode != MM_ANISOTROPIC);
    const bool isOtherMode = m_mapMode != nMapMode;
    m_mapMode = nMapMode;
    m_total = sizeTotal;
    m_totalPixels = ToPixels(sizeTotal);
    const CSize page = ToPixels(sizePage);
    const CSize line = ToPixels(sizeLine);
    m_pagePixels = CSize(StepOr(page.cx, m_totalPixels.cx), StepOr(page.cy, m_totalPixels.cy));
    m_linePixels = CSize(StepOr(line.cx, m_pagePixels.cx), StepOr(line.cy, m_pagePixels.cy));
    if (m_hWnd != nullptr) {
        UpdateBars();
        if (isOtherMode) {
            Invalidate();
        }
    }
}

void CScrollView::SetScaleToFitSize(SIZE sizeTotal) {
    m_mapMode = 0;
    m_total = sizeTotal;
    m_position = CPoint(0, 0);
    if (m_hWnd != nullptr) {
        ShowScrollBar(SB_BOTH, FALSE);
        Invalidate();
    }
}

CPoint CScrollView::GetScrollPosition() const {
    return IsScaling() ? CPoint(0, 0) : Convert(m_mapMode, m_position, Direction::ToLogical);
}

void CScrollView::GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const {
    nMapMode = m_mapMode;
    sizeTotal = m_totalPixels;
    sizePage = m_pagePixels;
    sizeLine = m_linePixels;
}

void CScrollView::ScrollToPosition(POINT pt) {
    if (!IsScaling()) {
        MoveTo(Convert(m_mapMode, pt, Direction::ToPixels));
    }
}

CSize CScrollView::OuterSize() const {
    CRect client;
    GetClientRect(&client);
    const DWORD style = GetStyle();
    return CSize(client.Width() + ((style & WS_VSCROLL) != 0 ? ::GetSystemMetrics(SM_CXVSCROLL) : 0),
                 client.Height() + ((style & WS_HSCROLL) != 0 ? ::GetSystemMetrics(SM_CYHSCROLL) : 0));
}

// A bar takes room from the other direction, which may then need one as well.
void CScrollView::UpdateBars() {
    if (IsScaling() || m_updatesBars) {
        return;
    }
    m_updatesBars = true;
    const CSize outer = OuterSize();
    bool needsHorizontal = m_totalPixels.cx > outer.cx;
    const bool needsVertical = m_totalPixels.cy > outer.cy - (needsHorizontal ? ::GetSystemMetrics(SM_CYHSCROLL) : 0);
    needsHorizontal = m_totalPixels.cx > outer.cx - (needsVertical ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);
    const CSize inner(outer.cx - (needsVertical ? ::GetSystemMetrics(SM_CXVSCROLL) : 0),
                      outer.cy - (needsHorizontal ? ::GetSystemMetrics(SM_CYHSCROLL) : 0));
    const auto set = [this](int bar, bool isNeeded, int total, int page) {
        SCROLLINFO info{};
        info.fMask = SIF_RANGE | SIF_PAGE;
        info.nMax = isNeeded ? total - 1 : 0;
        info.nPage = isNeeded ? static_cast<UINT>(std::max(page, 0)) : 0;
        SetScrollInfo(bar, &info);
    };
    set(SB_HORZ, needsHorizontal, m_totalPixels.cx, inner.cx);
    set(SB_VERT, needsVertical, m_totalPixels.cy, inner.cy);
    m_updatesBars = false;
    MoveTo(m_position);
}

bool CScrollView::MoveTo(CPoint pixels) {
    CRect client;
    GetClientRect(&client);
    pixels.x = std::clamp(static_cast<int>(pixels.x), 0, std::max<int>(m_totalPixels.cx - client.Width(), 0));
    pixels.y = std::clamp(static_cast<int>(pixels.y), 0, std::max<int>(m_totalPixels.cy - client.Height(), 0));
    SetScrollPos(SB_HORZ, pixels.x);
    SetScrollPos(SB_VERT, pixels.y);
    if (pixels == m_position) {
        return false;
    }
    const CPoint moved = m_position - pixels;
    m_position = pixels;
    ScrollWindow(moved.x, moved.y);
    return true;
}

bool CScrollView::ScrollByBar(int bar, UINT code) {
    const bool isHorizontal = bar == SB_HORZ;
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    ::GetScrollInfo(m_hWnd, bar, &info);
    const int line = static_cast<int>(isHorizontal ? m_linePixels.cx : m_linePixels.cy);
    const int page = static_cast<int>(isHorizontal ? m_pagePixels.cx : m_pagePixels.cy);
    int next = static_cast<int>(isHorizontal ? m_position.x : m_position.y);
    switch (code) {
    case SB_LINEUP:
        next -= line;
        break;
    case SB_LINEDOWN:
        next += line;
        break;
    case SB_PAGEUP:
        next -= page;
        break;
    case SB_PAGEDOWN:
        next += page;
        break;
    case SB_TOP:
        next = 0;
        break;
    case SB_BOTTOM:
        next = info.nMax;
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        next = info.nTrackPos;
        break;
    default:
        return false;
    }
    return MoveTo(isHorizontal ? CPoint(next, m_position.y) : CPoint(m_position.x, next));
}

void CScrollView::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar != nullptr || IsScaling()) {
        CView::OnHScroll(nSBCode, nPos, pScrollBar);
    } else if (ScrollByBar(SB_HORZ, nSBCode)) {
        UpdateWindow();
    }
}

void CScrollView::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar != nullptr || IsScaling()) {
        CView::OnVScroll(nSBCode, nPos, pScrollBar);
    } else if (ScrollByBar(SB_VERT, nSBCode)) {
        UpdateWindow();
    }
}

BOOL CScrollView::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    if (IsScaling() || (GetStyle() & WS_VSCROLL) == 0) {
        return CView::OnMouseWheel(nFlags, zDelta, pt);
    }
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int notch =
        static_cast<int>(lines == WHEEL_PAGESCROLL ? m_pagePixels.cy : m_linePixels.cy * static_cast<int>(lines));
    if (MoveTo(CPoint(m_position.x, m_position.y - m_wheel.Add(zDelta, notch)))) {
        UpdateWindow();
    }
    return TRUE;
}

void CScrollView::OnSize(UINT nType, int cx, int cy) {
    CView::OnSize(nType, cx, cy);
    if (IsScaling()) {
        Invalidate();
    } else {
        UpdateBars();
    }
}

void CScrollView::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) {
    if (IsScaling()) {
        CRect client;
        GetClientRect(&client);
        pDC->SetMapMode(MM_ANISOTROPIC);
        pDC->SetWindowExt(m_total);
        pDC->SetViewportExt(client.Width(), client.Height());
    } else {
        pDC->SetMapMode(m_mapMode);
    }
    if (pInfo == nullptr) {
        pDC->SetViewportOrg(-m_position.x, -m_position.y);
    }
    CView::OnPrepareDC(pDC, pInfo);
}

void CScrollView::ResizeParentToFit(BOOL bShrinkOnly) {
    CFrameWnd* const frame = GetParentFrame();
    if (frame == nullptr || IsScaling()) {
        return;
    }
    const CSize outer = OuterSize();
    CSize change = m_totalPixels - outer;
    if (bShrinkOnly) {
        change = CSize(std::min<int>(change.cx, 0), std::min<int>(change.cy, 0));
    }
    CRect place;
    frame->GetWindowRect(&place);
    frame->SetWindowPos(nullptr, 0, 0, place.Width() + change.cx, place.Height() + change.cy,
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CScrollView::FillOutsideRect(CDC* pDC, CBrush* pBrush) {
    CRect client;
    GetClientRect(&client);
    if (IsScaling()) {
        return;
    }
    CRect right(static_cast<int>(m_totalPixels.cx), 0, client.right, client.bottom);
    CRect below(0, static_cast<int>(m_totalPixels.cy), std::min<int>(client.right, m_totalPixels.cx), client.bottom);
    for (const CRect& rest : {right, below}) {
        if (rest.right > rest.left && rest.bottom > rest.top) {
            pDC->FillRect(rest, pBrush);
        }
    }
}

void CScrollView::CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const {
    const DWORD style = GetStyle();
    bHasHorzBar = (style & WS_HSCROLL) != 0;
    bHasVertBar = (style & WS_VSCROLL) != 0;
}
