#include "fx/docking_frame.h"

#include "afxPane.h"

namespace fx {

template <class Base>
DockingFrameOf<Base>::DockingFrameOf() = default;

template <class Base>
DockingFrameOf<Base>::~DockingFrameOf() = default;

template <class Base>
CDockingManager* DockingFrameOf<Base>::GetDockingManager() {
    return &m_dockManager;
}

template <class Base>
CDockingManager* DockingFrameOf<Base>::FindDockingManager() {
    return &m_dockManager;
}

template <class Base>
BOOL DockingFrameOf<Base>::AddPane(CBasePane* pControlBar, BOOL bTail) {
    return m_dockManager.AddPane(pControlBar, bTail);
}

template <class Base>
BOOL DockingFrameOf<Base>::InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter) {
    return m_dockManager.InsertPane(pControlBar, pTarget, bAfter);
}

template <class Base>
void DockingFrameOf<Base>::RemovePaneFromDockManager(CBasePane* pControlBar, BOOL bDestroy, BOOL bAdjustLayout,
                                                     BOOL bAutoHide, CBasePane* pBarReplacement) {
    m_dockManager.RemovePaneFromDockManager(pControlBar, bDestroy, bAdjustLayout, bAutoHide, pBarReplacement);
}

template <class Base>
CBasePane* DockingFrameOf<Base>::GetPane(UINT nID) {
    return m_dockManager.FindPaneByID(nID, TRUE);
}

template <class Base>
BOOL DockingFrameOf<Base>::EnableDocking(DWORD dwDockStyle) {
    return m_dockManager.EnableDocking(dwDockStyle);
}

template <class Base>
BOOL DockingFrameOf<Base>::EnableAutoHidePanes(DWORD dwDockStyle) {
    return m_dockManager.EnableAutoHidePanes(dwDockStyle);
}

template <class Base>
void DockingFrameOf<Base>::DockPane(CBasePane* pBar, UINT nDockBarID, LPCRECT lpRect) {
    m_dockManager.DockPane(pBar, nDockBarID, lpRect);
}

template <class Base>
BOOL DockingFrameOf<Base>::DockPaneLeftOf(CPane* pBar, CPane* pLeftOf) {
    return m_dockManager.DockPaneLeftOf(pBar, pLeftOf);
}

template <class Base>
void DockingFrameOf<Base>::ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate) {
    pBar->ShowPane(bShow, bDelay, bActivate);
}

template <class Base>
void DockingFrameOf<Base>::AdjustDockingLayout(HDWP hdwp) {
    m_dockManager.AdjustDockingLayout(hdwp);
}

template <class Base>
CBasePane* DockingFrameOf<Base>::PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar,
                                               CRuntimeClass* pRTCBarType) const {
    return m_dockManager.PaneFromPoint(point, nSensitivity, bExactBar, pRTCBarType);
}

template <class Base>
void DockingFrameOf<Base>::EnableLoadDockState(BOOL bEnable) {
    m_dockManager.DisableRestoreDockState(!bEnable);
}

template <class Base>
BOOL DockingFrameOf<Base>::IsPointNearDockSite(CPoint point, DWORD& dwBarAlignment, BOOL& bOuterEdge) const {
    return m_dockManager.IsPointNearDockSite(point, dwBarAlignment, bOuterEdge);
}

template <class Base>
LRESULT DockingFrameOf<Base>::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = Base::WindowProc(message, wParam, lParam);
    if (message == WM_IDLEUPDATECMDUI) {
        m_dockManager.SendMessageToMiniFrames(message, wParam, lParam);
    }
    return result;
}

template class DockingFrameOf<CFrameWnd>;
template class DockingFrameOf<CMDIFrameWnd>;
template class DockingFrameOf<CMDIChildWnd>;

} // namespace fx
