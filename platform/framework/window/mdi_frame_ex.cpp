#include "afxMDIFrameWndEx.h"

#include "afxPane.h"
#include "afxext.h"
#include "fx/registered_messages.h"

#include <utility>

IMPLEMENT_DYNCREATE(CMDIFrameWndEx, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWndEx, CMDIFrameWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_ERASEBKGND()
ON_WM_NCCALCSIZE()
ON_WM_NCHITTEST()
ON_WM_NCPAINT()
ON_WM_NCACTIVATE()
ON_WM_GETMINMAXINFO()
ON_WM_WINDOWPOSCHANGED()
ON_WM_NCLBUTTONDOWN()
ON_WM_NCLBUTTONDBLCLK()
ON_WM_NCRBUTTONDOWN()
ON_WM_NCRBUTTONUP()
ON_WM_SYSCOMMAND()
ON_WM_SYSCOLORCHANGE()
ON_WM_SETTINGCHANGE()
ON_MESSAGE(WM_SETTEXT, &CMDIFrameWndEx::OnSetText)
ON_MESSAGE(WM_DPICHANGED, &CMDIFrameWndEx::OnDpiChanged)
ON_REGISTERED_MESSAGE(AFX_WM_CHANGEVISUALMANAGER, &CMDIFrameWndEx::OnChangeVisualManager)
END_MESSAGE_MAP()

CMDIFrameWndEx::CMDIFrameWndEx() = default;

CMDIFrameWndEx::~CMDIFrameWndEx() {
    // The panes take themselves out of the docking manager, so it must still be there.
    DestroyWindow();
}

BOOL CMDIFrameWndEx::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    m_Impl.m_defaultResourceId = nIDResource;
    return CMDIFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext);
}

BOOL CMDIFrameWndEx::PreCreateWindow(CREATESTRUCT& cs) {
    // The panes cover the client area: painting under them would only flicker.
    cs.style |= WS_CLIPCHILDREN;
    return CMDIFrameWnd::PreCreateWindow(cs);
}

int CMDIFrameWndEx::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (!m_Impl.Create()) {
        return -1;
    }
    return CMDIFrameWnd::OnCreate(lpCreateStruct);
}

void CMDIFrameWndEx::OnSize(UINT nType, int cx, int cy) { CMDIFrameWnd::OnSize(nType, cx, cy); }

void CMDIFrameWndEx::RecalcLayout(BOOL bNotify) {
    if (m_Impl.m_isInLayout || !m_hWnd) {
        return;
    }
    m_Impl.UpdateCaptionStyle();
    m_Impl.m_isInLayout = true;
    m_nIdleFlags &= ~(idleLayout | idleNotify);
    m_Impl.DockingManager().RecalcLayout(bNotify);
    AdjustClientArea();
    m_Impl.m_isInLayout = false;
}

// ---- the ribbon as caption

void CMDIFrameWndEx::OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp) {
    if (m_Impl.ReplacesCaption() && !IsIconic()) {
        m_Impl.OnNcCalcSize(lpncsp->rgrc[0]);
        return;
    }
    CMDIFrameWnd::OnNcCalcSize(bCalcValidRects, lpncsp);
}

LRESULT CMDIFrameWndEx::OnNcHitTest(CPoint point) {
    return m_Impl.ReplacesCaption() && !IsIconic() ? m_Impl.OnNcHitTest(point) : CMDIFrameWnd::OnNcHitTest(point);
}

void CMDIFrameWndEx::OnNcPaint() {
    if (m_Impl.ReplacesCaption() && !IsIconic()) {
        m_Impl.OnNcPaint();
        return;
    }
    CMDIFrameWnd::OnNcPaint();
}

BOOL CMDIFrameWndEx::OnNcActivate(BOOL bActive) {
    if (!m_Impl.ReplacesCaption() || IsIconic()) {
        return CMDIFrameWnd::OnNcActivate(bActive);
    }
    // -1: the system notes the activation but draws nothing.
    DefWindowProc(WM_NCACTIVATE, static_cast<WPARAM>(bActive), -1);
    m_Impl.OnNcActivate(bActive != FALSE);
    return TRUE;
}

BOOL CMDIFrameWndEx::OnEraseBkgnd(CDC* pDC) {
    const int saved = pDC->SaveDC();
    m_Impl.KeepRibbonFromErasing(*pDC);
    const BOOL isErased = CMDIFrameWnd::OnEraseBkgnd(pDC);
    pDC->RestoreDC(saved);
    return isErased;
}

void CMDIFrameWndEx::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    CMDIFrameWnd::OnGetMinMaxInfo(lpMMI);
    if (m_Impl.ReplacesCaption()) {
        m_Impl.OnGetMinMaxInfo(*lpMMI);
    }
}

void CMDIFrameWndEx::OnWindowPosChanged(WINDOWPOS* lpwndpos) {
    CMDIFrameWnd::OnWindowPosChanged(lpwndpos);
    if (m_Impl.ReplacesCaption()) {
        m_Impl.OnWindowPosChanged(*lpwndpos);
    }
}

void CMDIFrameWndEx::OnNcLButtonDown(UINT nHitTest, CPoint point) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnNcButton(WM_NCLBUTTONDOWN, nHitTest, point)) {
        CMDIFrameWnd::OnNcLButtonDown(nHitTest, point);
    }
}

void CMDIFrameWndEx::OnNcLButtonDblClk(UINT nHitTest, CPoint point) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnNcButton(WM_NCLBUTTONDBLCLK, nHitTest, point)) {
        CMDIFrameWnd::OnNcLButtonDblClk(nHitTest, point);
    }
}

void CMDIFrameWndEx::OnNcRButtonDown(UINT nHitTest, CPoint point) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnNcButton(WM_NCRBUTTONDOWN, nHitTest, point)) {
        CMDIFrameWnd::OnNcRButtonDown(nHitTest, point);
    }
}

void CMDIFrameWndEx::OnNcRButtonUp(UINT nHitTest, CPoint point) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnNcButton(WM_NCRBUTTONUP, nHitTest, point)) {
        CMDIFrameWnd::OnNcRButtonUp(nHitTest, point);
    }
}

void CMDIFrameWndEx::OnSysCommand(UINT nID, LPARAM lParam) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnSysCommand(nID, lParam)) {
        CMDIFrameWnd::OnSysCommand(nID, lParam);
    }
}

LRESULT CMDIFrameWndEx::OnSetText(WPARAM, LPARAM) {
    const LRESULT result = Default();
    if (m_Impl.ReplacesCaption()) {
        m_Impl.RedrawCaption();
    }
    return result;
}

void CMDIFrameWndEx::OnSysColorChange() {
    CMDIFrameWnd::OnSysColorChange();
    m_Impl.OnSystemChange();
}

void CMDIFrameWndEx::OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
    CMDIFrameWnd::OnSettingChange(uFlags, lpszSection);
    m_Impl.OnSystemChange();
}

LRESULT CMDIFrameWndEx::OnDpiChanged(WPARAM wParam, LPARAM lParam) {
    m_Impl.OnSystemChange(LOWORD(wParam));
    if (const auto* place = reinterpret_cast<const RECT*>(lParam)) {
        SetWindowPos(nullptr, place->left, place->top, place->right - place->left, place->bottom - place->top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return 0;
}

void CMDIFrameWndEx::AdjustDockingLayout(HDWP hdwp) {
    m_Impl.DockingManager().AdjustDockingLayout(hdwp);
    AdjustClientArea();
}

void CMDIFrameWndEx::AdjustClientArea() {
    if (!m_hWndMDIClient) {
        return;
    }
    CRect former;
    ::GetWindowRect(m_hWndMDIClient, &former);
    ScreenToClient(&former);
    const CRect place = m_Impl.DockingManager().GetClientAreaBounds();
    if (former != place) {
        ::SetWindowPos(m_hWndMDIClient, nullptr, place.left, place.top, place.Width(), place.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (m_clientPlace != place) {
        OnSizeMDIClient(std::exchange(m_clientPlace, place), place);
    }
}

void CMDIFrameWndEx::OnSizeMDIClient(const CRect&, const CRect&) {}

LRESULT CMDIFrameWndEx::OnChangeVisualManager(WPARAM, LPARAM) {
    if (m_Impl.ReplacesCaption()) {
        m_Impl.OnChangeVisualManager();
    }
    RecalcLayout();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME | RDW_ERASE);
    return 0;
}

BOOL CMDIFrameWndEx::AddPane(CBasePane* pControlBar, BOOL bTail) {
    return m_Impl.DockingManager().AddPane(pControlBar, bTail);
}

BOOL CMDIFrameWndEx::InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter) {
    return m_Impl.DockingManager().InsertPane(pControlBar, pTarget, bAfter);
}

void CMDIFrameWndEx::RemovePaneFromDockManager(CBasePane* pControlBar, BOOL bDestroy, BOOL bAdjustLayout,
                                               BOOL bAutoHide, CBasePane* pBarReplacement) {
    m_Impl.DockingManager().RemovePaneFromDockManager(pControlBar, bDestroy, bAdjustLayout, bAutoHide, pBarReplacement);
}

CBasePane* CMDIFrameWndEx::GetPane(UINT nID) { return m_Impl.DockingManager().FindPaneByID(nID, TRUE); }

BOOL CMDIFrameWndEx::EnableDocking(DWORD dwDockStyle) { return m_Impl.DockingManager().EnableDocking(dwDockStyle); }

void CMDIFrameWndEx::DockPane(CBasePane* pBar, UINT nDockBarID, LPCRECT lpRect) {
    m_Impl.DockingManager().DockPane(pBar, nDockBarID, lpRect);
}

BOOL CMDIFrameWndEx::DockPaneLeftOf(CPane* pBar, CPane* pLeftOf) {
    return m_Impl.DockingManager().DockPaneLeftOf(pBar, pLeftOf);
}

void CMDIFrameWndEx::ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate) {
    pBar->ShowPane(bShow, bDelay, bActivate);
}

BOOL CMDIFrameWndEx::OnShowPanes(BOOL bShow) { return m_Impl.DockingManager().ShowPanes(bShow); }

void CMDIFrameWndEx::EnablePaneMenu(BOOL bEnable, UINT uiCustomizeCmd, const CString& strCustomizeLabel, UINT,
                                    BOOL bContextMenuShowsToolbarsOnly, BOOL) {
    m_Impl.DockingManager().EnablePaneContextMenu(bEnable, uiCustomizeCmd, strCustomizeLabel,
                                                  bContextMenuShowsToolbarsOnly);
}

CMFCRibbonBar* CMDIFrameWndEx::GetRibbonBar() { return m_Impl.RibbonBar(); }

const CMFCMenuBar* CMDIFrameWndEx::GetMenuBar() const { return m_Impl.MenuBar(); }

BOOL CMDIFrameWndEx::OnShowPopupMenu(CMFCPopupMenu* pMenu) {
    m_Impl.OnShowPopupMenu(pMenu);
    return TRUE;
}

void CMDIFrameWndEx::OnClosePopupMenu(CMFCPopupMenu* pMenuPopup) { m_Impl.OnClosePopupMenu(pMenuPopup); }

BOOL CMDIFrameWndEx::OnDrawMenuImage(CDC*, const CMFCToolBarMenuButton*, const CRect&) { return FALSE; }

BOOL CMDIFrameWndEx::GetToolbarButtonToolTipText(CMFCToolBarButton*, CString&) { return FALSE; }

BOOL CMDIFrameWndEx::PreTranslateMessage(MSG* pMsg) {
    return m_Impl.HandWheelToRibbon(*pMsg) || m_Impl.HandActiveKeyToRibbon(*pMsg) ||
           CMDIFrameWnd::PreTranslateMessage(pMsg) || m_Impl.HandKeyToRibbon(*pMsg);
}

BOOL CMDIFrameWndEx::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CMDIFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWndEx::OnPaneCheck(UINT nID) {
    CBasePane* pane = GetPane(nID);
    if (!pane) {
        return FALSE;
    }
    ShowPane(pane, !pane->IsVisible(), FALSE, FALSE);
    return TRUE;
}

void CMDIFrameWndEx::OnUpdatePaneMenu(CCmdUI* pCmdUI) {
    if (CBasePane* pane = GetPane(pCmdUI->m_nID)) {
        pCmdUI->SetCheck(pane->IsVisible());
    } else {
        pCmdUI->ContinueRouting();
    }
}
