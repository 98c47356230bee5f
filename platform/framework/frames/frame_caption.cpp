// A frame whose caption is the first row of its ribbon. The frame keeps its sizing borders, which it draws itself, and
// tells the system which points of the ribbon are caption: moving, maximising and snapping stay the system's work.
#include "fx/frame_impl.h"

#include <algorithm>

#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxvisualmanager.h"
#include "frames/frame_border.h"
#include "frames/maximized_place.h"
#include "fx/window_guard.h"

namespace {

constexpr int kCornerReach = 12; // at 96 DPI

bool HasStyle(HWND window, DWORD style) {
    return (static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE)) & style) == style;
}

bool IsShownRibbonThatReplacesCaption(const CMFCRibbonBar* ribbon) {
    return ribbon != nullptr && ribbon->IsReplaceFrameCaption() && ribbon->IsVisible();
}

/// The shell tells of the primary monitor's hidden bars and, asked by rectangle, of every other's.
UINT HiddenBars(const MONITORINFO& monitor) {
    if ((monitor.dwFlags & MONITORINFOF_PRIMARY) != 0) {
        return static_cast<UINT>(afxGlobalData.GetShellAutohideBars());
    }
    UINT edges = 0;
    for (const UINT edge : {ABE_LEFT, ABE_TOP, ABE_RIGHT, ABE_BOTTOM}) {
        APPBARDATA bar{};
        bar.cbSize = sizeof(bar);
        bar.uEdge = edge;
        bar.rc = monitor.rcMonitor;
        if (::SHAppBarMessage(ABM_GETAUTOHIDEBAREX, &bar) != 0) {
            edges |= 1U << edge;
        }
    }
    return edges;
}

bool ReadSurroundings(HMONITOR shown, MaximizedSurroundings& around) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    MONITORINFO primary{};
    primary.cbSize = sizeof(primary);
    if (!::GetMonitorInfoW(shown, &monitor) ||
        !::GetMonitorInfoW(::MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &primary)) {
        return false;
    }
    around = {monitor.rcMonitor, monitor.rcWork, primary.rcMonitor, HiddenBars(monitor)};
    return true;
}

} // namespace

void CFrameImpl::UpdateCaptionStyle() {
    const bool replaces = IsShownRibbonThatReplacesCaption(RibbonBar()) && (m_frame->GetStyle() & WS_CHILD) == 0;
    if (replaces == m_replacesCaption) {
        return;
    }
    m_replacesCaption = replaces;
    m_frame->ModifyStyle(replaces ? WS_CAPTION : 0, replaces ? 0 : WS_CAPTION, SWP_FRAMECHANGED);
    UpdateRegion();
}

int CFrameImpl::BorderWidth() const {
    if (!HasStyle(m_frame->m_hWnd, WS_THICKFRAME)) {
        return ::GetSystemMetrics(SM_CXFIXEDFRAME);
    }
    return ::GetSystemMetrics(SM_CXSIZEFRAME) + ::GetSystemMetrics(SM_CXPADDEDBORDER);
}

void CFrameImpl::OnNcCalcSize(RECT& rect) const {
    if (!m_frame->IsZoomed()) {
        ::InflateRect(&rect, -BorderWidth(), -BorderWidth());
    }
    rect.right = std::max(rect.right, rect.left);
    rect.bottom = std::max(rect.bottom, rect.top);
}

LRESULT CFrameImpl::OnNcHitTest(CPoint point) {
    CRect window;
    m_frame->GetWindowRect(&window);
    CRect client;
    m_frame->GetClientRect(&client);
    m_frame->ClientToScreen(&client);
    const bool isSizable = HasStyle(m_frame->m_hWnd, WS_THICKFRAME);
    const LRESULT border = HitFrameBorder(
        window, client, std::max(afxGlobalData.ScalePixels(kCornerReach), BorderWidth()), isSizable, point);
    CMFCRibbonBar* ribbon = RibbonBar();
    if (border != HTCLIENT || ribbon == nullptr) {
        return border;
    }
    CPoint inRibbon = point;
    ribbon->ScreenToClient(&inRibbon);
    return ribbon->HitTestCaption(inRibbon);
}

void CFrameImpl::OnNcPaint() {
    CRect window;
    m_frame->GetWindowRect(&window);
    CObList systemButtons; // the ribbon draws them
    CMFCVisualManager::GetInstance()->OnNcPaint(m_frame, systemButtons, window);
}

void CFrameImpl::OnNcActivate(bool isActive) {
    if (CMFCRibbonBar* ribbon = RibbonBar()) {
        ribbon->SetCaptionActive(isActive);
    }
    CMFCVisualManager::GetInstance()->OnNcActivate(m_frame, isActive);
    OnNcPaint();
}

void CFrameImpl::OnGetMinMaxInfo(MINMAXINFO& info) const {
    MaximizedSurroundings around{};
    if (!ReadSurroundings(::MonitorFromWindow(m_frame->m_hWnd, MONITOR_DEFAULTTONEAREST), around)) {
        return;
    }
    const MaximizedRequest request = RequestMaximized(around);
    const CRect frame = MaximizedFrameRect(around);
    info.ptMaxPosition = request.position;
    info.ptMaxSize = {request.size.cx, request.size.cy};
    info.ptMaxTrackSize.x = std::max<LONG>(info.ptMaxTrackSize.x, frame.Width());
    info.ptMaxTrackSize.y = std::max<LONG>(info.ptMaxTrackSize.y, frame.Height());
}

void CFrameImpl::OnWindowPosChanging(WINDOWPOS& place) const {
    const bool moves = (place.flags & SWP_NOMOVE) == 0;
    const bool sizes = (place.flags & SWP_NOSIZE) == 0;
    if ((!moves && !sizes) || !m_frame->IsZoomed() || m_frame->IsIconic()) {
        return;
    }
    CRect proposed;
    m_frame->GetWindowRect(&proposed);
    if (moves) {
        proposed.MoveToXY(place.x, place.y);
    }
    if (sizes) {
        proposed.right = proposed.left + place.cx;
        proposed.bottom = proposed.top + place.cy;
    }
    MaximizedSurroundings around{};
    if (!ReadSurroundings(::MonitorFromRect(&proposed, MONITOR_DEFAULTTONEAREST), around)) {
        return;
    }
    const CRect frame = MaximizedFrameRect(around);
    place.x = frame.left;
    place.y = frame.top;
    place.cx = frame.Width();
    place.cy = frame.Height();
}

// The ribbon paints itself anew when its width changes; the buttons in its caption tell whether the frame is maximised.
void CFrameImpl::OnWindowPosChanged(const WINDOWPOS& place) {
    if ((place.flags & SWP_NOSIZE) == 0 || (place.flags & SWP_FRAMECHANGED) != 0) {
        const bool isZoomed = m_frame->IsZoomed() != FALSE;
        if (std::exchange(m_wasZoomed, isZoomed) != isZoomed) {
            RedrawCaption();
        }
    }
}

// The visual manager shapes the window; where it does not, and maximised, the window is a plain rectangle again.
void CFrameImpl::UpdateRegion() {
    CRect window;
    m_frame->GetWindowRect(&window);
    const bool wantsRegion = m_replacesCaption && !m_frame->IsZoomed() && !m_frame->IsIconic();
    const CSize size = wantsRegion ? window.Size() : CSize(0, 0);
    if (size == m_regionSize) {
        return;
    }
    m_regionSize = size;
    if (wantsRegion && CMFCVisualManager::GetInstance()->OnSetWindowRegion(m_frame, size)) {
        m_hasRegion = true;
    } else if (std::exchange(m_hasRegion, false)) {
        ::SetWindowRgn(m_frame->m_hWnd, nullptr, TRUE);
    }
}

void CFrameImpl::RedrawCaption() {
    if (CMFCRibbonBar* ribbon = RibbonBar()) {
        ribbon->RedrawCaption();
    }
}

// ---- pointer and system menu

BOOL CFrameImpl::OnNcButton(UINT message, UINT hit, CPoint point) {
    const bool isIcon = hit == HTSYSMENU;
    if (!isIcon && hit != HTCAPTION) {
        return FALSE;
    }
    switch (message) {
    case WM_NCLBUTTONDOWN: {
        CMFCRibbonBar* ribbon = isIcon ? RibbonBar() : nullptr;
        if (ribbon == nullptr) {
            return FALSE;
        }
        CRect icon = ribbon->GetCaptionIconRect();
        ribbon->ClientToScreen(&icon);
        ShowSystemMenu(CPoint(icon.left, icon.bottom));
        return TRUE;
    }
    case WM_NCLBUTTONDBLCLK:
        if (isIcon) {
            m_frame->PostMessage(WM_SYSCOMMAND, SC_CLOSE);
        } else if (HasStyle(m_frame->m_hWnd, WS_MAXIMIZEBOX)) {
            m_frame->PostMessage(WM_SYSCOMMAND, m_frame->IsZoomed() ? SC_RESTORE : SC_MAXIMIZE);
        }
        return TRUE;
    case WM_NCRBUTTONDOWN:
        return TRUE;
    case WM_NCRBUTTONUP:
        ShowSystemMenu(point);
        return TRUE;
    default:
        return FALSE;
    }
}

BOOL CFrameImpl::OnSysCommand(UINT command, LPARAM key) {
    CMFCRibbonBar* ribbon = RibbonBar();
    if ((command & 0xFFF0) != SC_KEYMENU || key != ' ' || ribbon == nullptr) {
        return FALSE;
    }
    CRect caption = ribbon->GetCaptionRect();
    ribbon->ClientToScreen(&caption);
    ShowSystemMenu(CPoint(caption.left, caption.bottom));
    return TRUE;
}

void CFrameImpl::ShowSystemMenu(CPoint point) {
    const HWND window = m_frame->m_hWnd;
    const HMENU menu = HasStyle(window, WS_SYSMENU) ? ::GetSystemMenu(window, FALSE) : nullptr;
    if (menu == nullptr) {
        return;
    }
    const bool isZoomed = m_frame->IsZoomed() != FALSE;
    const bool isIconic = m_frame->IsIconic() != FALSE;
    const bool isSizable = HasStyle(window, WS_THICKFRAME);
    const struct {
        UINT command;
        bool isEnabled;
    } items[] = {
        {SC_RESTORE, isZoomed || isIconic},
        {SC_MOVE, !isZoomed && !isIconic},
        {SC_SIZE, isSizable && !isZoomed && !isIconic},
        {SC_MINIMIZE, !isIconic && HasStyle(window, WS_MINIMIZEBOX)},
        {SC_MAXIMIZE, !isZoomed && HasStyle(window, WS_MAXIMIZEBOX)},
    };
    for (const auto& item : items) {
        ::EnableMenuItem(menu, item.command, MF_BYCOMMAND | (item.isEnabled ? MF_ENABLED : MF_GRAYED));
    }
    ::SetMenuDefaultItem(menu, SC_CLOSE, FALSE);
    const fx::WindowGuard guard(window);
    const BOOL command = CMenu::FromHandle(menu)->TrackPopupMenu(TPM_RETURNCMD | TPM_LEFTALIGN | TPM_RIGHTBUTTON,
                                                                 point.x, point.y, m_frame);
    if (command != 0 && guard.IsAlive()) {
        ::PostMessageW(window, WM_SYSCOMMAND, static_cast<WPARAM>(command), 0);
    }
}

// ---- the system's settings

void CFrameImpl::OnSystemChange(UINT dpi) {
    if (dpi != 0) {
        afxGlobalData.SetScreenDpi(dpi);
    }
    afxGlobalData.UpdateSysColors();
    afxGlobalData.UpdateFonts();
    CMFCVisualManager::GetInstance()->OnUpdateSystemColors();
    if (CMFCRibbonBar* ribbon = RibbonBar()) {
        ribbon->ForceRecalcLayout();
    }
    m_frame->RecalcLayout();
    m_frame->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE | RDW_ALLCHILDREN);
}
