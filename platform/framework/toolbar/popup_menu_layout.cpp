// A pop-up's size and place, and how the user resizes it.
#include "afxpopupmenu.h"

#include "afxglobals.h"
#include "afxmenubar.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/to_rect.h"
#include "fx/window_dc.h"
#include "fx/window_guard.h"
#include "popups/popup_place.h"
#include "popups/strip_draw.h"
#include "toolbar/metrics.h"
#include "toolbar/popup_parts.h"

#include <algorithm>

using toolbar::Scaled;

namespace {

constexpr int resizeBarHeight = 9;
constexpr int screenMargin = 0;

} // namespace

int CMFCPopupMenu::GetBorderSize() const {
    const double scale = afxGlobalData.GetRibbonImageScale();
    return CMFCVisualManager::GetInstance()->GetPopupMenuBorderSize() * (scale >= 2.0 ? static_cast<int>(scale) : 1);
}

void CMFCPopupMenu::EnableScrolling(BOOL bEnable) {
    m_bScrollable = bEnable;
    if (IsShown()) {
        RecalcLayout();
    }
}

void CMFCPopupMenu::EnableResize(CSize sizeMinResize) {
    m_sizeMinResize = sizeMinResize;
    m_bIsResizeable = sizeMinResize != CSize(0, 0);
    m_bVertResizeOnly = FALSE;
}

void CMFCPopupMenu::EnableVertResize(int nMinResize) {
    m_sizeMinResize = CSize(0, nMinResize);
    m_bIsResizeable = m_bVertResizeOnly = nMinResize > 0;
}

CSize CMFCPopupMenu::CalcWindowSize(int nMaxHeight) {
    CMFCPopupMenuBar* bar = GetMenuBar();
    const int border = GetBorderSize();
    CSize size = bar->CalcSize(TRUE);
    size.cy += 2 * border + (m_bIsResizeable ? Scaled(resizeBarHeight) : 0);
    const int limit = m_nMaxHeight > 0 ? std::min(nMaxHeight, m_nMaxHeight) : nMaxHeight;
    if (size.cy > limit) {
        size.cy = limit;
        size.cx += m_bScrollBar ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    }
    size.cx += 2 * border;
    if (m_iMaxWidth > 0) {
        size.cx = std::min<int>(size.cx, m_iMaxWidth);
    }
    size.cx = std::max<int>(size.cx, m_nMinWidth);
    return size;
}

CRect CMFCPopupMenu::GetAvoidedArea() {
    CRect area;
    CWnd* window = GetParentArea(area);
    if (!window || !window->GetSafeHwnd() || area.IsRectEmpty()) {
        return CRect(0, 0, 0, 0);
    }
    window->ClientToScreen(&area);
    return area;
}

void CMFCPopupMenu::Place() {
    if (m_bHasBeenResized) {
        return;
    }
    toolbar::PopupRequest request;
    request.wanted = m_ptWanted;
    request.workArea = toolbar::WorkAreaAround(CRect(m_ptWanted, CSize(0, 0)));
    request.avoid = GetAvoidedArea();
    request.isRightAligned = m_bRightAlign != FALSE;
    request.isMirrored = toolbar::IsOpenedMirrored(m_pParentBtn, m_hMenu, m_hParentWnd);
    request.size = CalcWindowSize(request.workArea.Height() - screenMargin);
    const toolbar::PopupPlacement placement = toolbar::PlacePopup(request);
    m_DropDirection = placement.direction;
    ::SetWindowPos(m_hWnd, nullptr, placement.rect.left, placement.rect.top, placement.rect.Width(),
                   placement.rect.Height(), SWP_NOACTIVATE | SWP_NOZORDER | SWP_NOOWNERZORDER);
}

// Strips first, then the scroll bar, the rest is the bar's.
void CMFCPopupMenu::PlaceBar() {
    CMFCPopupMenuBar* bar = GetMenuBar();
    if (!m_hWnd || !bar || !bar->GetSafeHwnd()) {
        return;
    }
    CRect inside;
    GetClientRect(&inside);
    inside.DeflateRect(GetBorderSize(), GetBorderSize());
    Parts& parts = *m_parts;
    parts.resizeBar.SetRectEmpty();
    if (m_bIsResizeable) {
        const bool isOnTop = m_DropDirection == DROP_DIRECTION_TOP;
        parts.resizeBar = inside;
        (isOnTop ? parts.resizeBar.bottom : parts.resizeBar.top) =
            isOnTop ? inside.top + Scaled(resizeBarHeight) : inside.bottom - Scaled(resizeBarHeight);
        (isOnTop ? inside.top : inside.bottom) = isOnTop ? parts.resizeBar.bottom : parts.resizeBar.top;
    }
    const int content = bar->CalcSize(TRUE).cy;
    const bool overflows = content > inside.Height();
    m_bScrollable = overflows;
    CRect up(0, 0, 0, 0), down(0, 0, 0, 0);
    if (overflows && !m_bScrollBar) {
        up = down = inside;
        up.bottom = inside.top += Scaled(toolbar::ScrollStrips::kHeight);
        down.top = inside.bottom -= Scaled(toolbar::ScrollStrips::kHeight);
    }
    parts.strips.Place(fx::FromRect(up), fx::FromRect(down));
    const int lowest = bar->GetLowestOffset(inside.Height());
    if (overflows && m_bScrollBar) {
        const int width = ::GetSystemMetrics(SM_CXVSCROLL);
        if (!parts.scrollBar.GetSafeHwnd()) {
            parts.scrollBar.Create(WS_CHILD | SBS_VERT, CRect(0, 0, 0, 0), this, 1);
        }
        parts.scrollBar.SetWindowPos(nullptr, inside.right - width, inside.top, width, inside.Height(),
                                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
        inside.right -= width;
        UpdateScrollRange(inside.Height());
    } else if (parts.scrollBar.GetSafeHwnd()) {
        parts.scrollBar.ShowWindow(SW_HIDE);
    }
    m_rectBar = inside;
    ::SetWindowPos(bar->m_hWnd, nullptr, inside.left, inside.top, inside.Width(), inside.Height(),
                   SWP_NOACTIVATE | SWP_NOZORDER);
    bar->SetOffset(std::clamp(bar->GetOffset(), 0, lowest));
}

CRect CMFCPopupMenu::GetBarRect() const { return m_rectBar; }

void CMFCPopupMenu::RecalcLayout(BOOL) {
    if (!m_hWnd || IsOver() || m_isInLayout) {
        return;
    }
    CRect before, after;
    GetWindowRect(&before);
    m_isInLayout = true;
    Place();
    PlaceBar();
    m_isInLayout = false;
    GetWindowRect(&after);
    if (IsShown()) {
        if (before != after) {
            UpdateShadow();
        }
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
}

void CMFCPopupMenu::OnSize(UINT nType, int cx, int cy) {
    // A frame's own layout of control bars has no place here.
    CWnd::OnSize(nType, cx, cy);
    if (!m_isInLayout) {
        PlaceBar();
        Invalidate();
    }
}

// Whoever moves the window: the shadow lies beside it.
void CMFCPopupMenu::OnWindowPosChanged(WINDOWPOS* lpwndpos) {
    CMiniFrameWnd::OnWindowPosChanged(lpwndpos);
    const UINT unchanged = SWP_NOMOVE | SWP_NOSIZE;
    if (!m_isInLayout && !m_parts->isResizing && (lpwndpos->flags & unchanged) != unchanged) {
        UpdateShadow();
    }
}

void CMFCPopupMenu::MoveTo(const CPoint& pt) {
    m_ptWanted = pt;
    ::SetWindowPos(m_hWnd, nullptr, pt.x, pt.y, 0, 0, SWP_NOACTIVATE | SWP_NOZORDER | SWP_NOSIZE | SWP_NOOWNERZORDER);
}

CMFCPopupMenu::MENUAREA_TYPE CMFCPopupMenu::CheckArea(const CPoint& ptScreen) const {
    CRect window;
    GetWindowRect(&window);
    if (window.PtInRect(ptScreen)) {
        return MENU;
    }
    const CRect shadow = m_parts->shadow.Rect();
    if (shadow.IsRectEmpty() || !shadow.PtInRect(ptScreen)) {
        return OUTSIDE;
    }
    return ptScreen.y >= window.bottom ? SHADOW_BOTTOM : SHADOW_RIGHT;
}

void CMFCPopupMenu::UpdateShadow(LPRECT) {
    const HWND window = m_hWnd;
    if (!CMFCMenuBar::IsMenuShadows() || !IsShown() || !window || !::IsWindowVisible(window)) {
        return;
    }
    const fx::WindowGuard guard(this);
    const HWND owner = ::GetWindow(window, GW_OWNER);
    if (owner && toolbar::MenuShadow::CopiesWindows()) {
        ::RedrawWindow(owner, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); // and whoever paints may end this
    }
    if (guard.IsAlive()) {
        CRect rect;
        ::GetWindowRect(window, rect);
        m_parts->shadow.Show(window, rect, Scaled(CMFCVisualManager::GetInstance()->GetMenuShadowDepth()));
    }
}

void CMFCPopupMenu::UpdateAllShadows(LPRECT lprectScreen) {
    for (CMFCPopupMenu* menu = GetActiveMenu(); menu; menu = menu->m_pParentPopup) {
        menu->UpdateShadow(lprectScreen);
    }
}

void CMFCPopupMenu::ShowAnimated() {
    const HWND handle = m_hWnd;
    m_life = Life::Shown;
    m_hasBeenShown = true;
    const ANIMATION_TYPE animation = GetAnimationType();
    if (animation != NO_ANIMATION && m_nAnimationSpeed > 0) {
        const bool isUpwards = m_DropDirection == DROP_DIRECTION_TOP;
        const DWORD flags = animation == FADE ? AW_BLEND : AW_SLIDE | (isUpwards ? AW_VER_NEGATIVE : AW_VER_POSITIVE);
        ::AnimateWindow(m_hWnd, m_nAnimationSpeed, flags);
    }
    if (!::IsWindow(handle)) {
        return;
    }
    ::SetWindowPos(handle, HWND_TOP, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    ::UpdateWindow(handle);
    if (::IsWindow(handle)) {
        UpdateShadow();
    }
    if (::IsWindow(handle) && m_bOpenedByKey) {
        GetMenuBar()->SelectFirstItem();
    }
}

void CMFCPopupMenu::OnMouseMove(UINT nFlags, CPoint point) {
    CMiniFrameWnd::OnMouseMove(nFlags, point);
    Parts& parts = *m_parts;
    if (parts.isResizing) {
        DragResize(point);
        return;
    }
    LightStripAt(point);
}

void CMFCPopupMenu::OnLButtonDown(UINT, CPoint point) {
    Parts& parts = *m_parts;
    if (parts.resizeBar.PtInRect(point)) {
        CRect window;
        GetWindowRect(&window);
        parts.isResizing = true;
        parts.resizeStart = point;
        ClientToScreen(&parts.resizeStart);
        parts.resizeFrom = window.Size();
        parts.shadow.Hide();
        SetCapture();
    } else {
        ScrollRows(parts.strips.RowsAt(fx::FromPoint(point)));
    }
}

void CMFCPopupMenu::DragResize(CPoint point) {
    Parts& parts = *m_parts;
    CPoint screen = point;
    ClientToScreen(&screen);
    const bool isOnTop = m_DropDirection == DROP_DIRECTION_TOP;
    CRect window;
    GetWindowRect(&window);
    const CRect work = toolbar::WorkAreaAround(CRect(window.TopLeft(), CSize(0, 0)));
    const int moved = isOnTop ? parts.resizeStart.y - screen.y : screen.y - parts.resizeStart.y;
    const int room = isOnTop ? window.bottom - work.top : work.bottom - window.top;
    const int tallest = static_cast<int>(CalcWindowSize(std::max(room, 1)).cy);
    const int cy = std::clamp(static_cast<int>(parts.resizeFrom.cy) + moved,
                              std::min(static_cast<int>(m_sizeMinResize.cy), room), m_nMaxHeight > 0 ? room : tallest);
    int cx = window.Width();
    if (!m_bVertResizeOnly) {
        cx = std::clamp(static_cast<int>(parts.resizeFrom.cx + screen.x - parts.resizeStart.x),
                        static_cast<int>(m_sizeMinResize.cx), static_cast<int>(work.right - window.left));
    }
    if (cy == window.Height() && cx == window.Width()) {
        return;
    }
    m_bHasBeenResized = TRUE;
    const int top = isOnTop ? window.bottom - cy : window.top;
    ::SetWindowPos(m_hWnd, nullptr, window.left, top, cx, cy, SWP_NOACTIVATE | SWP_NOZORDER | SWP_NOOWNERZORDER);
    UpdateWindow();
}

void CMFCPopupMenu::OnLButtonUp(UINT nFlags, CPoint point) {
    CMiniFrameWnd::OnLButtonUp(nFlags, point);
    if (m_parts->isResizing) {
        ::ReleaseCapture();
    }
}

void CMFCPopupMenu::OnCaptureChanged(CWnd*) {
    if (std::exchange(m_parts->isResizing, false)) {
        UpdateShadow();
    }
}

BOOL CMFCPopupMenu::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ScreenToClient(&cursor);
    if (m_parts->resizeBar.PtInRect(cursor)) {
        ::SetCursor(::LoadCursorW(nullptr, m_bVertResizeOnly ? IDC_SIZENS : IDC_SIZENWSE));
        return TRUE;
    }
    return CMiniFrameWnd::OnSetCursor(pWnd, nHitTest, message);
}

int CMFCPopupMenu::OnMouseActivate(CWnd*, UINT, UINT) { return MA_NOACTIVATE; }

BOOL CMFCPopupMenu::OnEraseBkgnd(CDC*) { return TRUE; }

void CMFCPopupMenu::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    fx::MemoryDc memory(dc, client);
    DrawFrame(&memory.GetDC());
}

void CMFCPopupMenu::DrawFrame(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    manager->OnFillBarBackground(pDC, GetMenuBar(), client, client);
    const Parts& parts = *m_parts;
    CMFCPopupMenuBar* bar = GetMenuBar();
    toolbar::DrawStrips(*pDC, parts.strips,
                        {bar->GetOffset() > 0, bar->GetOffset() + m_rectBar.Height() < bar->GetContentHeight()});
    if (!parts.resizeBar.IsRectEmpty()) {
        manager->OnDrawMenuResizeBar(pDC, parts.resizeBar, m_bVertResizeOnly ? 1 : 0);
    }
    manager->OnDrawMenuBorder(pDC, this, client);
}
