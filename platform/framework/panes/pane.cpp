#include "afxPane.h"

#include "afxDockingManager.h"
#include "afxDockSite.h"
#include "afxglobals.h"
#include "afxPaneFrameWnd.h"
#include "afxvisualmanager.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CPane, CBasePane)

BEGIN_MESSAGE_MAP(CPane, CBasePane)
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_SETCURSOR()
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
    if (CPaneFrameWnd* const miniFrame = GetParentMiniFrame(TRUE)) {
        miniFrame->OnPaneRecalcLayout();
        return;
    }
    const CSize size = CalcFixedLayout(FALSE, IsHorizontal());
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE, nullptr);
    if (bRecalcLayout) {
        AdjustDockingLayout();
    }
}

void CPane::GetPaneName(CString& strName) const { GetWindowText(strName); }

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
