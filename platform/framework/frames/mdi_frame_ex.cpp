#include "afxMDIFrameWndEx.h"

#include "afxext.h"
#include "afxPane.h"
#include "core/scoped_change.h"
#include "fx/registered_messages.h"

#include <utility>

IMPLEMENT_DYNCREATE(CMDIFrameWndEx, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWndEx, CMDIFrameWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_REGISTERED_MESSAGE(AFX_WM_CHANGEVISUALMANAGER, &CMDIFrameWndEx::OnChangeVisualManager)
END_MESSAGE_MAP()

CMDIFrameWndEx::CMDIFrameWndEx() = default;

CMDIFrameWndEx::~CMDIFrameWndEx() {
    // The panes take themselves out of the docking manager, so it must still be there.
    EndWindow();
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
    const fx::ScopedChange<bool> layout(m_Impl.m_isInLayout, true);
    m_nIdleFlags &= ~(idleLayout | idleNotify);
    m_Impl.DockingManager().RecalcLayout(bNotify);
    AdjustClientArea();
}

LRESULT CMDIFrameWndEx::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // The system would spread the MDI client over the panes, for the layout to take it back at once.
    if (message == WM_SIZE) {
        return 0;
    }
    return m_Impl.OnDefault(message, wParam, lParam, [](CFrameWnd& frame, UINT number, WPARAM first, LPARAM second) {
        return static_cast<CMDIFrameWndEx&>(frame).CMDIFrameWnd::DefWindowProc(number, first, second);
    });
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
    m_Impl.OnChangeVisualManager();
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
