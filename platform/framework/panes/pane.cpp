#include "afxPane.h"

#include "afxDockingManager.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CPane, CBasePane)

BEGIN_MESSAGE_MAP(CPane, CBasePane)
ON_WM_SIZE()
END_MESSAGE_MAP()

CPane::CPane() = default;

CPane::~CPane() { DestroyWindow(); }

BOOL CPane::Create(LPCTSTR lpszClassName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                   DWORD dwControlBarStyle, CCreateContext* pContext) {
    return CreateEx(0, lpszClassName, dwStyle, rect, pParentWnd, nID, dwControlBarStyle, pContext);
}

BOOL CPane::CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID, DWORD dwControlBarStyle, CCreateContext* pContext) {
    return CBasePane::CreateEx(dwStyleEx, lpszClassName, nullptr, dwStyle, rect, pParentWnd, nID, dwControlBarStyle,
                               pContext);
}

CSize CPane::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    CSize size = CBasePane::CalcFixedLayout(bStretch, bHorz);
    CSize smallest(0, 0);
    GetMinSize(smallest);
    return CSize(std::max(size.cx, smallest.cx), std::max(size.cy, smallest.cy));
}

CSize CPane::CalcSize(BOOL bVertDock) { return CalcFixedLayout(FALSE, !bVertDock); }

CSize CPane::CalcAvailableSize(CRect rectRequired) {
    CRect window;
    GetWindowRect(&window);
    return CSize(rectRequired.Width() - window.Width(), rectRequired.Height() - window.Height());
}

int CPane::GetAvailableExpandSize() const {
    const CWnd* frame = GetDockSiteFrameWnd();
    if (!frame) {
        return 0;
    }
    CRect room;
    frame->GetClientRect(&room);
    CRect window;
    GetWindowRect(&window);
    return IsHorizontal() ? room.Width() - window.Width() : room.Height() - window.Height();
}

int CPane::GetAvailableStretchSize() const {
    CSize smallest(0, 0);
    GetMinSize(smallest);
    CRect window;
    GetWindowRect(&window);
    return IsHorizontal() ? window.Width() - smallest.cx : window.Height() - smallest.cy;
}

void CPane::CalcInsideRect(CRect& rect, BOOL) const {
    rect.left += m_rectBorders.left;
    rect.top += m_rectBorders.top;
    rect.right -= m_rectBorders.right;
    rect.bottom -= m_rectBorders.bottom;
}

void CPane::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom) {
    m_rectBorders = CRect(cxLeft, cyTop, cxRight, cyBottom);
}

void CPane::SetBorders(LPCRECT lpRect) { m_rectBorders = *lpRect; }

void CPane::RecalcLayout() { CalcRecentDockedRect(); }

void CPane::OnSize(UINT nType, int cx, int cy) {
    CBasePane::OnSize(nType, cx, cy);
    RecalcLayout();
}

void CPane::AdjustSizeImmediate(BOOL bRecalcLayout) {
    const CSize size = CalcFixedLayout(FALSE, IsHorizontal());
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE, nullptr);
    if (bRecalcLayout) {
        AdjustDockingLayout();
    }
}

void CPane::GetPaneName(CString& strName) const { GetWindowText(strName); }

BOOL CPane::DockPane(CBasePane* pDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod) {
    if (!OnBeforeDock(&pDockBar, lpRect, dockMethod) || !CBasePane::DockPane(pDockBar, lpRect, dockMethod)) {
        return FALSE;
    }
    CalcRecentDockedRect();
    OnAfterDock(pDockBar, lpRect, dockMethod);
    return TRUE;
}

void CPane::UndockPane(BOOL bDelay) { CBasePane::UndockPane(bDelay); }

void CPane::CalcRecentDockedRect() {
    CWnd* frame = GetDockSiteFrameWnd();
    if (frame && IsDocked()) {
        CRect window;
        GetWindowRect(&window);
        frame->ScreenToClient(&window);
        m_recentDockInfo.GetRecentDockedRect(FALSE) = window;
    }
}

void CPane::CopyState(CPane* pOrgBar) {
    CBasePane::CopyState(pOrgBar);
    m_rectBorders = pOrgBar->m_rectBorders;
    m_sizeMin = pOrgBar->m_sizeMin;
    m_bExclusiveRow = pOrgBar->m_bExclusiveRow;
    m_recentDockInfo = pOrgBar->m_recentDockInfo;
}

void CPane::OnPressCloseButton() { ShowPane(FALSE, FALSE, FALSE); }

BOOL CPane::OnShowControlBarMenu(CPoint point) {
    CDockingManager* manager = FindDockingManager();
    if (!manager || !manager->HasPaneContextMenu()) {
        return FALSE;
    }
    manager->OnPaneContextMenu(point);
    return TRUE;
}

BOOL CPane::OnBeforeDock(CBasePane**, LPCRECT, AFX_DOCK_METHOD) { return TRUE; }

void CPane::OnAfterDock(CBasePane*, LPCRECT, AFX_DOCK_METHOD) {}

void CRecentDockSiteInfo::Init() {
    m_rectRecentFloatingRect.SetRectEmpty();
    for (CRect& rect : m_dockedRects) {
        rect.SetRectEmpty();
    }
}

CRect& CRecentDockSiteInfo::GetRecentDockedRect(BOOL bForSlider) { return m_dockedRects[bForSlider ? 1 : 0]; }

CRecentDockSiteInfo& CRecentDockSiteInfo::operator=(CRecentDockSiteInfo& src) {
    if (this != &src) {
        SetInfo(FALSE, src);
        SetInfo(TRUE, src);
        m_rectRecentFloatingRect = src.m_rectRecentFloatingRect;
    }
    return *this;
}

void CRecentDockSiteInfo::SetInfo(BOOL bForSlider, CRecentDockSiteInfo& srcInfo) {
    GetRecentDockedRect(bForSlider) = srcInfo.GetRecentDockedRect(bForSlider);
}
