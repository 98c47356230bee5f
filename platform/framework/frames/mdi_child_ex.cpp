#include "afxMDIChildWndEx.h"

#include "afxext.h"
#include "afxPane.h"

IMPLEMENT_DYNCREATE(CMDIChildWndEx, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CMDIChildWndEx, CMDIChildWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

CMDIChildWndEx::CMDIChildWndEx() = default;

CMDIChildWndEx::~CMDIChildWndEx() {
    // The panes take themselves out of the docking manager, so it must still be there.
    EndWindow();
}

int CMDIChildWndEx::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (!m_dockManager.Create(this)) {
        return -1;
    }
    return CMDIChildWnd::OnCreate(lpCreateStruct);
}

void CMDIChildWndEx::RecalcLayout(BOOL bNotify) {
    if (m_hWnd) {
        m_nIdleFlags &= ~(idleLayout | idleNotify);
        m_dockManager.RecalcLayout(bNotify);
    }
}

void CMDIChildWndEx::AdjustDockingLayout(HDWP hdwp) { m_dockManager.AdjustDockingLayout(hdwp); }

BOOL CMDIChildWndEx::AddPane(CBasePane* pControlBar, BOOL bTail) { return m_dockManager.AddPane(pControlBar, bTail); }

BOOL CMDIChildWndEx::InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter) {
    return m_dockManager.InsertPane(pControlBar, pTarget, bAfter);
}

void CMDIChildWndEx::RemovePaneFromDockManager(CBasePane* pControlBar, BOOL bDestroy, BOOL bAdjustLayout,
                                               BOOL bAutoHide, CBasePane* pBarReplacement) {
    m_dockManager.RemovePaneFromDockManager(pControlBar, bDestroy, bAdjustLayout, bAutoHide, pBarReplacement);
}

CBasePane* CMDIChildWndEx::GetPane(UINT nID) { return m_dockManager.FindPaneByID(nID, TRUE); }

BOOL CMDIChildWndEx::EnableDocking(DWORD dwDockStyle) { return m_dockManager.EnableDocking(dwDockStyle); }

void CMDIChildWndEx::DockPane(CBasePane* pBar, UINT nDockBarID, LPCRECT lpRect) {
    m_dockManager.DockPane(pBar, nDockBarID, lpRect);
}

BOOL CMDIChildWndEx::DockPaneLeftOf(CPane* pBar, CPane* pLeftOf) { return m_dockManager.DockPaneLeftOf(pBar, pLeftOf); }

void CMDIChildWndEx::ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate) {
    pBar->ShowPane(bShow, bDelay, bActivate);
}

CString CMDIChildWndEx::GetFrameText() const {
    CString text;
    GetWindowText(text);
    return text;
}

HICON CMDIChildWndEx::GetFrameIcon() const {
    const HICON icon = GetIcon(FALSE);
    return icon ? icon : reinterpret_cast<HICON>(::GetClassLongPtrW(m_hWnd, GCLP_HICON));
}

void CMDIChildWndEx::ActivateTopLevelFrame() {
    if (CFrameWnd* frame = GetTopLevelFrame()) {
        frame->ActivateFrame();
    }
}
