#include "afxframewndex.h"

#include "afxPane.h"
#include "afxext.h"
#include "fx/registered_messages.h"

IMPLEMENT_DYNCREATE(CFrameWndEx, CFrameWnd)

BEGIN_MESSAGE_MAP(CFrameWndEx, CFrameWnd)
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
ON_MESSAGE(WM_SETTEXT, &CFrameWndEx::OnSetText)
ON_MESSAGE(WM_DPICHANGED, &CFrameWndEx::OnDpiChanged)
ON_REGISTERED_MESSAGE(AFX_WM_CHANGEVISUALMANAGER, &CFrameWndEx::OnChangeVisualManager)
END_MESSAGE_MAP()

CFrameWndEx::CFrameWndEx() = default;

CFrameWndEx::~CFrameWndEx() {
    // The panes take themselves out of the docking manager, so it must still be there.
    DestroyWindow();
}

BOOL CFrameWndEx::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    m_Impl.m_defaultResourceId = nIDResource;
    return CFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext);
}

BOOL CFrameWndEx::PreCreateWindow(CREATESTRUCT& cs) {
    // The panes cover the client area: painting under them would only flicker.
    cs.style |= WS_CLIPCHILDREN;
    return CFrameWnd::PreCreateWindow(cs);
}

int CFrameWndEx::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (!m_Impl.Create()) {
        return -1;
    }
    return CFrameWnd::OnCreate(lpCreateStruct);
}

void CFrameWndEx::OnSize(UINT nType, int cx, int cy) { CFrameWnd::OnSize(nType, cx, cy); }

void CFrameWndEx::RecalcLayout(BOOL bNotify) {
    if (m_Impl.m_isInLayout || !m_hWnd) {
        return;
    }
    m_Impl.UpdateCaptionStyle();
    m_Impl.m_isInLayout = true;
    m_nIdleFlags &= ~(idleLayout | idleNotify);
    m_Impl.DockingManager().RecalcLayout(bNotify);
    m_Impl.m_isInLayout = false;
}

// ---- the ribbon as caption

void CFrameWndEx::OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp) {
    if (m_Impl.ReplacesCaption() && !IsIconic()) {
        m_Impl.OnNcCalcSize(lpncsp->rgrc[0]);
        return;
    }
    CFrameWnd::OnNcCalcSize(bCalcValidRects, lpncsp);
}

LRESULT CFrameWndEx::OnNcHitTest(CPoint point) {
    return m_Impl.ReplacesCaption() && !IsIconic() ? m_Impl.OnNcHitTest(point) : CFrameWnd::OnNcHitTest(point);
}

void CFrameWndEx::OnNcPaint() {
    if (m_Impl.ReplacesCaption() && !IsIconic()) {
        m_Impl.OnNcPaint();
        return;
    }
    CFrameWnd::OnNcPaint();
}

BOOL CFrameWndEx::OnNcActivate(BOOL bActive) {
    if (!m_Impl.ReplacesCaption() || IsIconic()) {
        return CFrameWnd::OnNcActivate(bActive);
    }
    // -1: the system notes the activation but draws nothing.
    DefWindowProc(WM_NCACTIVATE, static_cast<WPARAM>(bActive), -1);
    m_Impl.OnNcActivate(bActive != FALSE);
    return TRUE;
}

BOOL CFrameWndEx::OnEraseBkgnd(CDC* pDC) {
    const int saved = pDC->SaveDC();
    m_Impl.KeepRibbonFromErasing(*pDC);
    const BOOL isErased = CFrameWnd::OnEraseBkgnd(pDC);
    pDC->RestoreDC(saved);
    return isErased;
}

void CFrameWndEx::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    CFrameWnd::OnGetMinMaxInfo(lpMMI);
    if (m_Impl.ReplacesCaption()) {
        m_Impl.OnGetMinMaxInfo(*lpMMI);
    }
}

void CFrameWndEx::OnWindowPosChanged(WINDOWPOS* lpwndpos) {
    CFrameWnd::OnWindowPosChanged(lpwndpos);
    if (m_Impl.ReplacesCaption()) {
        m_Impl.OnWindowPosChanged(*lpwndpos);
    }
}

void CFrameWndEx::OnNcLButtonDown(UINT nHitTest, CPoint point) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnNcButton(WM_NCLBUTTONDOWN, nHitTest, point)) {
        CFrameWnd::OnNcLButtonDown(nHitTest, point);
    }
}

void CFrameWndEx::OnNcLButtonDblClk(UINT nHitTest, CPoint point) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnNcButton(WM_NCLBUTTONDBLCLK, nHitTest, point)) {
        CFrameWnd::OnNcLButtonDblClk(nHitTest, point);
    }
}

void CFrameWndEx::OnNcRButtonDown(UINT nHitTest, CPoint point) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnNcButton(WM_NCRBUTTONDOWN, nHitTest, point)) {
        CFrameWnd::OnNcRButtonDown(nHitTest, point);
    }
}

void CFrameWndEx::OnNcRButtonUp(UINT nHitTest, CPoint point) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnNcButton(WM_NCRBUTTONUP, nHitTest, point)) {
        CFrameWnd::OnNcRButtonUp(nHitTest, point);
    }
}

void CFrameWndEx::OnSysCommand(UINT nID, LPARAM lParam) {
    if (!m_Impl.ReplacesCaption() || !m_Impl.OnSysCommand(nID, lParam)) {
        CFrameWnd::OnSysCommand(nID, lParam);
    }
}

LRESULT CFrameWndEx::OnSetText(WPARAM, LPARAM) {
    const LRESULT result = Default();
    if (m_Impl.ReplacesCaption()) {
        m_Impl.RedrawCaption();
    }
    return result;
}

void CFrameWndEx::OnSysColorChange() {
    CFrameWnd::OnSysColorChange();
    m_Impl.OnSystemChange();
}

void CFrameWndEx::OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
    CFrameWnd::OnSettingChange(uFlags, lpszSection);
    m_Impl.OnSystemChange();
}

LRESULT CFrameWndEx::OnDpiChanged(WPARAM wParam, LPARAM lParam) {
    m_Impl.OnSystemChange(LOWORD(wParam));
    if (const auto* place = reinterpret_cast<const RECT*>(lParam)) {
        SetWindowPos(nullptr, place->left, place->top, place->right - place->left, place->bottom - place->top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return 0;
}

void CFrameWndEx::AdjustDockingLayout(HDWP hdwp) { m_Impl.DockingManager().AdjustDockingLayout(hdwp); }

LRESULT CFrameWndEx::OnChangeVisualManager(WPARAM, LPARAM) {
    if (m_Impl.ReplacesCaption()) {
        m_Impl.OnChangeVisualManager();
    }
    RecalcLayout();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME | RDW_ERASE);
    return 0;
}

BOOL CFrameWndEx::AddPane(CBasePane* pControlBar, BOOL bTail) {
    return m_Impl.DockingManager().AddPane(pControlBar, bTail);
}

BOOL CFrameWndEx::InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter) {
    return m_Impl.DockingManager().InsertPane(pControlBar, pTarget, bAfter);
}

void CFrameWndEx::RemovePaneFromDockManager(CBasePane* pControlBar, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                            CBasePane* pBarReplacement) {
    m_Impl.DockingManager().RemovePaneFromDockManager(pControlBar, bDestroy, bAdjustLayout, bAutoHide, pBarReplacement);
}

CBasePane* CFrameWndEx::GetPane(UINT nID) { return m_Impl.DockingManager().FindPaneByID(nID, TRUE); }

BOOL CFrameWndEx::EnableDocking(DWORD dwDockStyle) { return m_Impl.DockingManager().EnableDocking(dwDockStyle); }

void CFrameWndEx::DockPane(CBasePane* pBar, UINT nDockBarID, LPCRECT lpRect) {
    m_Impl.DockingManager().DockPane(pBar, nDockBarID, lpRect);
}

BOOL CFrameWndEx::DockPaneLeftOf(CPane* pBar, CPane* pLeftOf) {
    return m_Impl.DockingManager().DockPaneLeftOf(pBar, pLeftOf);
}

void CFrameWndEx::ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate) {
    pBar->ShowPane(bShow, bDelay, bActivate);
}

BOOL CFrameWndEx::OnShowPanes(BOOL bShow) { return m_Impl.DockingManager().ShowPanes(bShow); }

void CFrameWndEx::EnablePaneMenu(BOOL bEnable, UINT uiCustomizeCmd, const CString& strCustomizeLabel, UINT,
                                 BOOL bContextMenuShowsToolbarsOnly, BOOL) {
    m_Impl.DockingManager().EnablePaneContextMenu(bEnable, uiCustomizeCmd, strCustomizeLabel,
                                                  bContextMenuShowsToolbarsOnly);
}

CMFCRibbonBar* CFrameWndEx::GetRibbonBar() { return m_Impl.RibbonBar(); }

const CMFCMenuBar* CFrameWndEx::GetMenuBar() const { return m_Impl.MenuBar(); }

BOOL CFrameWndEx::OnShowPopupMenu(CMFCPopupMenu* pMenu) {
    m_Impl.OnShowPopupMenu(pMenu);
    return TRUE;
}

void CFrameWndEx::OnClosePopupMenu(CMFCPopupMenu* pMenuPopup) { m_Impl.OnClosePopupMenu(pMenuPopup); }

BOOL CFrameWndEx::OnDrawMenuImage(CDC*, const CMFCToolBarMenuButton*, const CRect&) { return FALSE; }

BOOL CFrameWndEx::GetToolbarButtonToolTipText(CMFCToolBarButton*, CString&) { return FALSE; }

BOOL CFrameWndEx::PreTranslateMessage(MSG* pMsg) {
    return m_Impl.HandWheelToRibbon(*pMsg) || m_Impl.HandActiveKeyToRibbon(*pMsg) ||
           CFrameWnd::PreTranslateMessage(pMsg) || m_Impl.HandKeyToRibbon(*pMsg);
}

BOOL CFrameWndEx::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWndEx::OnPaneCheck(UINT nID) {
    CBasePane* pane = GetPane(nID);
    if (!pane) {
        return FALSE;
    }
    ShowPane(pane, !pane->IsVisible(), FALSE, FALSE);
    return TRUE;
}

void CFrameWndEx::OnUpdatePaneMenu(CCmdUI* pCmdUI) {
    if (CBasePane* pane = GetPane(pCmdUI->m_nID)) {
        pCmdUI->SetCheck(pane->IsVisible());
    } else {
        pCmdUI->ContinueRouting();
    }
}
