#pragma once

#include "afxDockingManager.h"
#include "fx/mdi.h"

class CPane;

namespace fx {

/// What every frame with panes adds to the kind of frame that it is: a docking manager, and the members that hand to
/// it. Derive from CFrameWndEx, CMDIFrameWndEx or CMDIChildWndEx; this step between them and Base has no run-time class
/// and no message map of its own. The panes take themselves out of the docking manager when they are destroyed, so each
/// of the three ends its window in its destructor, before the manager goes.
///
/// Every member is defined in the library, the short ones too: users of an instance declared extern emit none.
template <class Base>
class DockingFrameOf : public Base {
public:
    DockingFrameOf();
    ~DockingFrameOf() override;

    CDockingManager* GetDockingManager();
    CDockingManager* FindDockingManager() override;
    BOOL AddPane(CBasePane* pControlBar, BOOL bTail = TRUE);
    BOOL InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter = TRUE);
    void RemovePaneFromDockManager(CBasePane* pControlBar, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                   CBasePane* pBarReplacement);
    CBasePane* GetPane(UINT nID);
    BOOL EnableDocking(DWORD dwDockStyle);
    /// Sides where panes may hide by themselves, of those kinds that can (CBasePane::CanAutoHide).
    BOOL EnableAutoHidePanes(DWORD dwDockStyle);
    void DockPane(CBasePane* pBar, UINT nDockBarID = 0, LPCRECT lpRect = NULL);
    BOOL DockPaneLeftOf(CPane* pBar, CPane* pLeftOf);
    void ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate);
    virtual void AdjustDockingLayout(HDWP hdwp = NULL);
    CBasePane* PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar, CRuntimeClass* pRTCBarType) const;
    /// Whether LoadState puts the panes back to where they were. TRUE unless this was called.
    void EnableLoadDockState(BOOL bEnable = TRUE);
    BOOL IsPointNearDockSite(CPoint point, DWORD& dwBarAlignment, BOOL& bOuterEdge) const;

protected:
    /// The idle updates of what floats are done together with the frame's.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    CDockingManager m_dockManager;
};

extern template class FRAMEWORK_API DockingFrameOf<CFrameWnd>;
extern template class FRAMEWORK_API DockingFrameOf<CMDIFrameWnd>;
extern template class FRAMEWORK_API DockingFrameOf<CMDIChildWnd>;

} // namespace fx
