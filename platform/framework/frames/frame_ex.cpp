#include "afxframewndex.h"

#include "afxext.h"
#include "afxPane.h"
#include "core/scoped_change.h"
#include "fx/registered_messages.h"

IMPLEMENT_DYNCREATE(CFrameWndEx, CFrameWnd)

BEGIN_MESSAGE_MAP(CFrameWndEx, CFrameWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_MESSAGE(WM_SETTEXT, &CFrameWndEx::OnSetText)
ON_REGISTERED_MESSAGE(AFX_WM_CHANGEVISUALMANAGER, &CFrameWndEx::OnChangeVisualManager)
END_MESSAGE_MAP()

CFrameWndEx::CFrameWndEx() = default;

CFrameWndEx::~CFrameWndEx() {
    // The panes take themselves out of the docking manager, so it must still be there.
    EndWindow();
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
    const fx::ScopedChange<bool> layout(m_Impl.m_isInLayout, true);
    m_nIdleFlags &= ~(idleLayout | idleNotify);
    m_Impl.DockingManager().RecalcLayout(bNotify);
}

LRESULT CFrameWndEx::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_Impl.OnDefault(message, wParam, lParam, [](CFrameWnd& frame, UINT number, WPARAM first, LPARAM second) {
        return static_cast<CFrameWndEx&>(frame).CFrameWnd::DefWindowProc(number, first, second);
    });
}

void CFrameWndEx::AdjustDockingLayout(HDWP hdwp) { m_Impl.DockingManager().AdjustDockingLayout(hdwp); }

LRESULT CFrameWndEx::OnSetText(WPARAM, LPARAM) { return Default(); }

LRESULT CFrameWndEx::OnChangeVisualManager(WPARAM, LPARAM) {
    m_Impl.OnChangeVisualManager();
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
