// How a pane gets into rows and mini frames and out of them, and finds its way back.
#include "afxPane.h"

#include "afxDockingManager.h"
#include "afxDockSite.h"
#include "afxglobals.h"
#include "afxPaneFrameWnd.h"
#include "afxvisualmanager.h"
#include "panes/dock_rows.h"
#include "panes/mini_frame_place.h"
#include "panes/row_place.h"

#include <algorithm>

namespace {

constexpr int kGripper = 7; // at 96 DPI

} // namespace

BOOL CPane::OnBeforeDock(CBasePane**, LPCRECT, AFX_DOCK_METHOD) { return TRUE; }

void CPane::OnAfterDock(CBasePane*, LPCRECT, AFX_DOCK_METHOD) {}

BOOL CPane::OnBeforeFloat(CRect&, AFX_DOCK_METHOD) { return TRUE; }

CDockingPanesRow* CPane::GetDockSiteRow() const {
    const CDockSite* const site = GetParentDockSite();
    return site != nullptr ? site->RowOfPane(this) : nullptr;
}

BOOL CPane::IsDragMode() const {
    const CDockingManager* const manager = FindDockingManager();
    return manager != nullptr && manager->IsDragging(this);
}

BOOL CPane::DockPane(CBasePane* pDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod) {
    CDockingManager* const manager = FindDockingManager();
    if (manager == nullptr || !OnBeforeDock(&pDockBar, lpRect, dockMethod)) {
        return FALSE;
    }
    const CRecentDockSiteInfo& recent = m_recentDockInfo;
    const bool goesBack = dockMethod == DM_DBL_CLICK && recent.m_dwRecentAlignment != 0;
    const DWORD alignment = goesBack || GetCurrentAlignment() == 0 ? recent.m_dwRecentAlignment : GetCurrentAlignment();
    auto* site = DYNAMIC_DOWNCAST(CDockSite, pDockBar);
    site = site != nullptr ? site : manager->SiteFor(alignment != 0 ? alignment : CBRS_ALIGN_TOP);
    if (site == nullptr) {
        return FALSE;
    }
    if (goesBack) {
        site->DockBack(*this, recent.m_nRecentRowID, recent.m_nRecentRowIndex, recent.m_nRecentOffset);
    } else {
        site->DockPane(this, dockMethod, lpRect);
    }
    manager->AdjustDockingLayout();
    RememberPlace();
    OnAfterDock(site, lpRect, dockMethod);
    return TRUE;
}

BOOL CPane::DockByDrag(CDockSite& site, const panes::RowPlace& place, int offset) {
    if (GetParentDockSite() == &site) {
        site.DockAt(*this, place, offset);
        return TRUE;
    }
    CBasePane* target = &site;
    if (!OnBeforeDock(&target, nullptr, DM_MOUSE)) {
        return FALSE;
    }
    site.DockAt(*this, place, offset);
    OnAfterDock(&site, nullptr, DM_MOUSE);
    return TRUE;
}

void CPane::UndockPane(BOOL bDelay) {
    RememberPlace();
    if (CDockSite* const site = GetParentDockSite()) {
        site->RemovePane(this, DM_UNKNOWN);
    } else if (CPaneFrameWnd* const miniFrame = GetParentMiniFrame(TRUE)) {
        miniFrame->RemovePane(this);
        SetPaneAlignment(m_recentDockInfo.m_dwRecentAlignment != 0 ? m_recentDockInfo.m_dwRecentAlignment
                                                                   : CBRS_ALIGN_TOP);
    }
    if (m_pDockSiteFrame != nullptr && m_hWnd != nullptr) {
        panes::ChangeParent(*this, *m_pDockSiteFrame);
    }
    CBasePane::UndockPane(bDelay);
}

void CPane::RememberPlace() {
    if (const CDockSite* const site = GetParentDockSite()) {
        const panes::DockRows& rows = site->Rows();
        const auto key = reinterpret_cast<panes::PaneKey>(this);
        const panes::DockedPane* const docked = rows.Find(key);
        if (docked == nullptr) {
            return;
        }
        const std::size_t row = rows.RowOf(key);
        m_recentDockInfo.m_dwRecentAlignment = site->GetCurrentAlignment();
        m_recentDockInfo.m_nRecentRowID = rows.Rows()[row].id;
        m_recentDockInfo.m_nRecentRowIndex = static_cast<int>(row);
        m_recentDockInfo.m_nRecentOffset = docked->offset;
        CalcRecentDockedRect();
    } else if (const CPaneFrameWnd* const miniFrame = GetParentMiniFrame(TRUE)) {
        miniFrame->GetWindowRect(&m_recentDockInfo.m_rectRecentFloatingRect);
    }
}

void CPane::CalcRecentDockedRect() {
    CWnd* frame = GetDockSiteFrameWnd();
    if (frame && IsDocked()) {
        CRect window;
        GetWindowRect(&window);
        frame->ScreenToClient(&window);
        m_recentDockInfo.GetRecentDockedRect(FALSE) = window;
    }
}

CPaneFrameWnd* CPane::CreateDefaultMiniframe(CRect rectInitial) {
    CDockingManager* const manager = FindDockingManager();
    CRuntimeClass* const wanted = m_pMiniFrameRTC != nullptr ? m_pMiniFrameRTC : RUNTIME_CLASS(CPaneFrameWnd);
    auto* const miniFrame = manager != nullptr ? DYNAMIC_DOWNCAST(CPaneFrameWnd, wanted->CreateObject()) : nullptr;
    if (miniFrame == nullptr) {
        return nullptr;
    }
    miniFrame->SetDockingManager(manager);
    // When its window cannot be made it deletes itself.
    const BOOL isMade = miniFrame->Create(nullptr, WS_POPUP, rectInitial, manager->GetDockSiteFrameWnd());
    return isMade ? miniFrame : nullptr;
}

CRect CPane::CalcFloatingRect(CPoint topLeft) {
    const CPaneFrameWnd measure;
    const CSize recent = m_recentDockInfo.m_rectRecentFloatingRect.Size();
    return {topLeft, recent.cx > 0 ? recent : measure.SizeAround(CalcFixedLayout(FALSE, TRUE))};
}

BOOL CPane::FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod, bool bShow) {
    if (!CanFloat() || FindDockingManager() == nullptr || !OnBeforeFloat(rectFloat, dockMethod)) {
        return FALSE;
    }
    RememberPlace();
    if (rectFloat.IsRectNull()) {
        CRect window;
        GetWindowRect(&window);
        const CRect recent = m_recentDockInfo.m_rectRecentFloatingRect;
        rectFloat = panes::BroughtOnScreen(
            recent.IsRectEmpty() ? CalcFloatingRect(window.TopLeft() + CSize(0, window.Height())) : recent);
    } else if (rectFloat.IsRectEmpty()) {
        rectFloat = CalcFloatingRect(rectFloat.TopLeft());
    }
    CPaneFrameWnd* miniFrame = GetParentMiniFrame(TRUE);
    if (miniFrame == nullptr) {
        miniFrame = CreateDefaultMiniframe(rectFloat);
        if (miniFrame == nullptr) {
            return FALSE;
        }
        miniFrame->AddPane(this);
    } else {
        panes::DeferMove(nullptr, miniFrame->m_hWnd, rectFloat);
    }
    miniFrame->SizeToContent();
    RememberPlace();
    if (bShow && !IsVisible()) {
        ShowPane(TRUE, TRUE, FALSE);
    }
    miniFrame->UpdateVisibility();
    AdjustDockingLayout();
    OnAfterFloat();
    return TRUE;
}

void CPane::ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) {
    CBasePane::ShowPane(bShow, bDelay, bActivate);
    if (CPaneFrameWnd* const miniFrame = GetParentMiniFrame(TRUE)) {
        miniFrame->UpdateVisibility();
    }
}

void CPane::OnProcessDblClk() {
    if (IsFloating()) {
        DockPane(nullptr, nullptr, DM_DBL_CLICK);
    } else if (IsDocked()) {
        FloatPane(CRect(0, 0, 0, 0), DM_DBL_CLICK);
    }
}

bool CPane::IsLeftOf(CRect rect, bool bWindowRect) const {
    if (!bWindowRect && GetParent() != nullptr) {
        GetParent()->ClientToScreen(&rect);
    }
    CRect window;
    GetWindowRect(&window);
    return IsHorizontal() ? window.CenterPoint().x < rect.CenterPoint().x
                          : window.CenterPoint().y < rect.CenterPoint().y;
}

BOOL CPane::MoveByAlignment(DWORD dwAlignment, int nOffset) {
    CDockSite* const site = GetParentDockSite();
    if (site == nullptr) {
        return FALSE;
    }
    const CPoint offset = (dwAlignment & CBRS_ORIENT_HORZ) != 0 ? CPoint(nOffset, 0) : CPoint(0, nOffset);
    return site->MovePane(this, 0, offset);
}

CRect CPane::GetGripperRect() const {
    CRect rect(0, 0, 0, 0);
    if (m_hWnd != nullptr && IsDocked() && (GetPaneStyle() & CBRS_GRIPPER) != 0) {
        GetClientRect(&rect);
        (IsHorizontal() ? rect.right : rect.bottom) =
            (IsHorizontal() ? rect.left : rect.top) + afxGlobalData.ScalePixels(kGripper);
    }
    return rect;
}

void CPane::DoPaint(CDC* pDC) {
    CBasePane::DoPaint(pDC);
    const CRect gripper = GetGripperRect();
    if (!gripper.IsRectEmpty()) {
        CMFCVisualManager::GetInstance()->OnDrawBarGripper(pDC, gripper, IsHorizontal(), this);
    }
}

BOOL CPane::BeginDrag(CPoint point) {
    CDockingManager* const manager = FindDockingManager();
    if (manager == nullptr || (!IsDocked() && !IsFloating()) || manager->IsDragging(this)) {
        return FALSE;
    }
    ClientToScreen(&point);
    return manager->StartDrag(*this, point);
}

void CPane::OnLButtonDown(UINT nFlags, CPoint point) {
    CBasePane::OnLButtonDown(nFlags, point);
    if (GetGripperRect().PtInRect(point)) {
        BeginDrag(point);
    }
}

void CPane::OnLButtonDblClk(UINT nFlags, CPoint point) {
    if (GetGripperRect().PtInRect(point)) {
        OnProcessDblClk();
        return;
    }
    CBasePane::OnLButtonDblClk(nFlags, point);
}

BOOL CPane::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ScreenToClient(&cursor);
    if (pWnd == this && nHitTest == HTCLIENT && GetGripperRect().PtInRect(cursor)) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_SIZEALL));
        return TRUE;
    }
    return CBasePane::OnSetCursor(pWnd, nHitTest, message);
}
