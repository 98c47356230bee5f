#pragma once

#include "afxMDIFrameWndEx.h"

/// An MDI child with panes of its own.
class FRAMEWORK_API CMDIChildWndEx : public CMDIChildWnd {
    DECLARE_DYNCREATE(CMDIChildWndEx)

public:
    CMDIChildWndEx();
    ~CMDIChildWndEx() override;

    CDockingManager* GetDockingManager() { return &m_dockManager; }
    CDockingManager* FindDockingManager() override { return &m_dockManager; }
    BOOL AddPane(CBasePane* pControlBar, BOOL bTail = TRUE);
    BOOL InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter = TRUE);
    void RemovePaneFromDockManager(CBasePane* pControlBar, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                   CBasePane* pBarReplacement);
    CBasePane* GetPane(UINT nID);
    BOOL EnableDocking(DWORD dwDockStyle);
    void DockPane(CBasePane* pBar, UINT nDockBarID = 0, LPCRECT lpRect = NULL);
    BOOL DockPaneLeftOf(CPane* pBar, CPane* pLeftOf);
    void ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate);
    void RecalcLayout(BOOL bNotify = TRUE) override;
    virtual void AdjustDockingLayout(HDWP hdwp = NULL);

    virtual CString GetFrameText() const;
    virtual HICON GetFrameIcon() const;
    virtual BOOL IsReadOnly() { return FALSE; }
    virtual BOOL CanShowOnWindowsList() { return TRUE; }
    virtual void ActivateTopLevelFrame();

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()

    CDockingManager m_dockManager;
};
