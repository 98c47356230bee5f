#include "afxbasepane.h"

#include "afxDockingManager.h"
#include "afxDockSite.h"
#include "afxPane.h"
#include "afxPaneFrameWnd.h"
#include "afxvisualmanager.h"
#include "fx/window_dc.h"
#include "panes/dock_rows.h"
#include "panes/pane_menu.h"
#include "window/bar_place.h"
#include "window/moving_flags.h"

#include <utility>

IMPLEMENT_DYNAMIC(CBasePane, CWnd)

BEGIN_MESSAGE_MAP(CBasePane, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_CONTEXTMENU()
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CBasePane::OnIdleUpdateCmdUI)
ON_MESSAGE(WM_SIZEPARENT, &CBasePane::OnSizeParent)
END_MESSAGE_MAP()

CBasePane::CBasePane() = default;

CBasePane::~CBasePane() { DestroyWindow(); }

BOOL CBasePane::CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                         const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwControlBarStyle,
                         CCreateContext* pContext) {
    m_dwStyle = dwStyle & CBRS_ALL;
    m_dwControlBarStyle = dwControlBarStyle;
    return CWnd::CreateEx(dwStyleEx, lpszClassName, lpszWindowName, dwStyle & ~static_cast<DWORD>(CBRS_ALL), rect,
                          pParentWnd, nID, pContext);
}

BOOL CBasePane::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass) {
        // No background brush: the pane paints all of itself.
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW));
    }
    cs.style |= WS_CHILD | WS_CLIPSIBLINGS;
    return CWnd::PreCreateWindow(cs);
}

int CBasePane::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    // The window itself becomes visible when it is complete.
    m_bRecentVisibleState = (lpCreateStruct->style & WS_VISIBLE) != 0;
    auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(::GetParent(m_hWnd)));
    m_bIsDialogControl = frame == nullptr;
    if (frame) {
        m_pDockSiteFrame = frame;
        if (CDockingManager* manager = frame->FindDockingManager()) {
            manager->AddPane(this);
        }
        frame->DelayRecalcLayout();
    }
    return 0;
}

void CBasePane::OnDestroy() {
    if (CDockingManager* manager = FindDockingManager()) {
        manager->RemovePaneFromDockManager(this, FALSE, FALSE);
    }
    if (auto* frame = static_cast<CFrameWnd*>(std::exchange(m_pDockSiteFrame, nullptr))) {
        frame->DelayRecalcLayout();
    }
    CWnd::OnDestroy();
}

CDockingManager* CBasePane::FindDockingManager() const {
    auto* frame = static_cast<CFrameWnd*>(m_pDockSiteFrame);
    return frame ? frame->FindDockingManager() : nullptr;
}

CSize CBasePane::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    constexpr int asLongAsThereIs = 32767;
    CRect window(0, 0, 0, 0);
    if (m_hWnd) {
        GetWindowRect(&window);
    }
    CSize size(window.Width(), window.Height());
    if (bStretch) {
        (bHorz ? size.cx : size.cy) = asLongAsThereIs;
    }
    return size;
}

CSize CBasePane::StretchPane(int nLength, BOOL bVert) {
    CSize size = CalcFixedLayout(FALSE, !bVert);
    (bVert ? size.cy : size.cx) = nLength;
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE, nullptr);
    return size;
}

void CBasePane::AdjustDockingLayout(HDWP hdwp) {
    if (CDockingManager* manager = FindDockingManager()) {
        manager->AdjustDockingLayout(hdwp);
    } else if (m_pDockSiteFrame) {
        static_cast<CFrameWnd*>(m_pDockSiteFrame)->RecalcLayout();
    }
}

void CBasePane::SetPaneStyle(DWORD dwNewStyle) {
    const DWORD former = std::exchange(m_dwStyle, dwNewStyle);
    if (m_hWnd && ((former ^ dwNewStyle) & CBRS_ALIGN_ANY) != 0 && m_pDockSiteFrame) {
        static_cast<CFrameWnd*>(m_pDockSiteFrame)->DelayRecalcLayout();
    }
}

void CBasePane::SetPaneAlignment(DWORD dwAlignment) {
    SetPaneStyle((GetPaneStyle() & ~static_cast<DWORD>(CBRS_ALIGN_ANY)) | (dwAlignment & CBRS_ALIGN_ANY));
}

AFX_DOCK_TYPE CBasePane::GetDockingMode() const {
    return m_dockMode == DT_UNDEFINED ? CDockingManager::GetDockingMode() : m_dockMode;
}

BOOL CBasePane::IsVisible() const { return m_hWnd && (GetStyle() & WS_VISIBLE) != 0; }

void CBasePane::ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) {
    m_bRecentVisibleState = bShow;
    if (!m_hWnd) {
        return;
    }
    const BOOL wasVisible = IsVisible();
    UINT flags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | (bShow ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
    if (!bActivate) {
        flags |= SWP_NOACTIVATE;
    }
    SetWindowPos(nullptr, 0, 0, 0, 0, flags, nullptr);
    if (wasVisible == bShow || !m_pDockSiteFrame) {
        return;
    }
    if (bDelay) {
        static_cast<CFrameWnd*>(m_pDockSiteFrame)->DelayRecalcLayout();
    } else {
        AdjustDockingLayout();
    }
}

BOOL CBasePane::CanBeDocked(CBasePane*) const {
    const CDockingManager* manager = FindDockingManager();
    return manager && (manager->GetEnabledAlignment() & m_dwEnabledAlignment) != 0;
}

void CBasePane::EnableGripper(BOOL bEnable) {
    SetPaneStyle(bEnable ? GetPaneStyle() | CBRS_GRIPPER : GetPaneStyle() & ~static_cast<DWORD>(CBRS_GRIPPER));
}

HICON CBasePane::GetPaneIcon(BOOL bBigIcon) { return m_hWnd ? GetIcon(bBigIcon) : nullptr; }

CDockSite* CBasePane::GetParentDockSite() const {
    return m_hWnd ? DYNAMIC_DOWNCAST(CDockSite, CWnd::FromHandlePermanent(::GetParent(m_hWnd))) : nullptr;
}

CPaneFrameWnd* CBasePane::GetParentMiniFrame(BOOL) const {
    return m_hWnd ? DYNAMIC_DOWNCAST(CPaneFrameWnd, CWnd::FromHandlePermanent(::GetParent(m_hWnd))) : nullptr;
}

CDockingPanesRow* CBasePane::GetPaneRow() {
    const CDockSite* const site = GetParentDockSite();
    auto* const pane = DYNAMIC_DOWNCAST(CPane, this);
    return site && pane ? site->RowOfPane(pane) : nullptr;
}

BOOL CBasePane::IsFloating() const { return GetParentMiniFrame(TRUE) != nullptr; }

BOOL CBasePane::FloatPane(CRect, AFX_DOCK_METHOD, bool) { return FALSE; }

CPaneFrameWnd* CBasePane::CreateDefaultMiniframe(CRect) { return nullptr; }

BOOL CBasePane::IsPointNearDockSite(CPoint point, DWORD& dwBarAlignment, BOOL& bOuterEdge) const {
    const CDockingManager* const manager = FindDockingManager();
    return manager && manager->IsPointNearDockSite(point, dwBarAlignment, bOuterEdge);
}

BOOL CBasePane::DockPane(CBasePane*, LPCRECT, AFX_DOCK_METHOD) {
    CDockingManager* manager = FindDockingManager();
    if (!manager) {
        return FALSE;
    }
    m_bIsDocked = TRUE;
    manager->MoveToEndOfSide(this);
    manager->AdjustDockingLayout();
    return TRUE;
}

BOOL CBasePane::DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect, DWORD dwDockFlags, CBasePane* pRelativeBar, int,
                                  BOOL) {
    CDockingManager* manager = FindDockingManager();
    if (!manager) {
        return FALSE;
    }
    SetPaneAlignment(dwAlignment);
    if (!DockPane(nullptr, lpRect, lpRect ? DM_RECT : DM_STANDARD)) {
        return FALSE;
    }
    CDockSite* const site = GetParentDockSite();
    if (pRelativeBar) {
        manager->InsertPane(this, pRelativeBar);
    } else if (dwDockFlags == DT_DOCK_FIRST && site) {
        site->DockAt(static_cast<CPane&>(*this), {0, true}, 0);
    } else if (dwDockFlags == DT_DOCK_FIRST) {
        manager->MoveToStartOfSide(this);
    }
    manager->AdjustDockingLayout();
    return TRUE;
}

void CBasePane::UndockPane(BOOL bDelay) {
    m_bIsDocked = FALSE;
    if (bDelay && m_pDockSiteFrame) {
        static_cast<CFrameWnd*>(m_pDockSiteFrame)->DelayRecalcLayout();
    } else {
        AdjustDockingLayout();
    }
}

void CBasePane::AddPane(CBasePane* pBar) {
    if (CDockingManager* manager = FindDockingManager()) {
        manager->AddPane(pBar);
    }
}

BOOL CBasePane::InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter) {
    CDockingManager* manager = FindDockingManager();
    return manager && manager->InsertPane(pControlBar, pTarget, bAfter);
}

void CBasePane::RemovePaneFromDockManager(CBasePane* pBar, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                          CBasePane* pBarReplacement) {
    if (CDockingManager* manager = FindDockingManager()) {
        manager->RemovePaneFromDockManager(pBar, bDestroy, bAdjustLayout, bAutoHide, pBarReplacement);
    }
}

HDWP CBasePane::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags, HDWP hdwp) {
    const HWND insertAfter = pWndInsertAfter ? pWndInsertAfter->m_hWnd : nullptr;
    if (hdwp) {
        return ::DeferWindowPos(hdwp, m_hWnd, insertAfter, x, y, cx, cy, nFlags);
    }
    ::SetWindowPos(m_hWnd, insertAfter, x, y, cx, cy, nFlags);
    return nullptr;
}

HDWP CBasePane::MoveWindow(CRect& rect, BOOL bRepaint, HDWP hdwp) {
    const UINT flags = fx::MovingFlags(m_hWnd) | (bRepaint ? 0u : SWP_NOREDRAW);
    return SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(), flags, hdwp);
}

void CBasePane::CopyState(CBasePane* pOrgBar) {
    m_dwStyle = pOrgBar->m_dwStyle;
    m_dwControlBarStyle = pOrgBar->m_dwControlBarStyle;
    m_dwEnabledAlignment = pOrgBar->m_dwEnabledAlignment;
    m_dockMode = pOrgBar->m_dockMode;
    m_bIsDocked = pOrgBar->m_bIsDocked;
}

LRESULT CBasePane::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    CFrameWnd* const target = IsVisible() ? frame_bars::CommandTargetOf(*this) : nullptr;
    if (target != nullptr) {
        OnUpdateCmdUI(target, static_cast<BOOL>(wParam));
    }
    return 0;
}

void CBasePane::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

LRESULT CBasePane::OnSizeParent(WPARAM, LPARAM lParam) {
    // In a docking frame the docking manager places the panes.
    if (FindDockingManager() || GetCurrentAlignment() == 0 || !IsVisible()) {
        return 0;
    }
    auto& place = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    frame_bars::TakePlaceInFrame(*this, GetCurrentAlignment(), CalcFixedLayout(place.bStretch, IsHorizontal()), place);
    return 0;
}

void CBasePane::OnPaint() {
    CPaintDC dc(this);
    DoPaint(&dc);
}

void CBasePane::DoPaint(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CRect clip;
    pDC->GetClipBox(&clip);
    CMFCVisualManager::GetInstance()->OnFillBarBackground(pDC, this, client, clip);
}

BOOL CBasePane::OnEraseBkgnd(CDC*) { return TRUE; }

void CBasePane::OnContextMenu(CWnd*, CPoint point) {
    if (CFrameWnd* frame = GetParentFrame()) {
        OnPaneContextMenu(frame, point);
    }
}

void CBasePane::OnPaneContextMenu(CWnd* pParentFrame, CPoint point) {
    if (FilterPaneMenu(*this, point)) {
        return;
    }
    auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, pParentFrame);
    if (CDockingManager* manager = frame ? frame->FindDockingManager() : nullptr) {
        manager->OnPaneContextMenu(point);
    }
}

void CBasePane::OnBeforeChangeParent(CWnd*, BOOL) {}

void CBasePane::OnAfterChangeParent(CWnd*) {}

BOOL CBasePane::OnSetAccData(long) { return FALSE; }

HRESULT CBasePane::get_accName(VARIANT varChild, BSTR* pszName) {
    if (!pszName || varChild.vt != VT_I4 || varChild.lVal != CHILDID_SELF) {
        return E_INVALIDARG;
    }
    CString text;
    GetWindowText(text);
    *pszName = ::SysAllocString(text);
    return *pszName ? S_OK : E_OUTOFMEMORY;
}

CFont* CBasePane::SelectDefaultFont(CDC* pDC) { return static_cast<CFont*>(pDC->SelectStockObject(DEFAULT_GUI_FONT)); }
