#pragma once

#include "afxbasepane.h"
#include "fx/frame_impl.h"
#include "fx/mdi.h"

class CMFCToolBarMenuButton;
class CPane;

/// An MDI frame with docked panes, ribbon or menu bar.
class FRAMEWORK_API CMDIFrameWndEx : public CMDIFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWndEx)

public:
    CMDIFrameWndEx();
    ~CMDIFrameWndEx() override;

    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL) override;

    CDockingManager* GetDockingManager() { return &m_Impl.DockingManager(); }
    CDockingManager* FindDockingManager() override { return &m_Impl.DockingManager(); }
    BOOL AddPane(CBasePane* pControlBar, BOOL bTail = TRUE);
    BOOL InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter = TRUE);
    void RemovePaneFromDockManager(CBasePane* pControlBar, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                   CBasePane* pBarReplacement);
    CBasePane* GetPane(UINT nID);
    BOOL EnableDocking(DWORD dwDockStyle);
    void DockPane(CBasePane* pBar, UINT nDockBarID = 0, LPCRECT lpRect = NULL);
    BOOL DockPaneLeftOf(CPane* pBar, CPane* pLeftOf);
    void ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate);
    virtual BOOL OnShowPanes(BOOL bShow);
    void EnablePaneMenu(BOOL bEnable, UINT uiCustomizeCmd, const CString& strCustomizeLabel,
                        UINT uiViewToolbarsMenuEntryID, BOOL bContextMenuShowsToolbarsOnly = FALSE,
                        BOOL bViewMenuShowsToolbarsOnly = FALSE);

    void RecalcLayout(BOOL bNotify = TRUE) override;
    virtual void AdjustDockingLayout(HDWP hdwp = NULL);
    /// Gives the MDI client what the panes leave over.
    virtual void AdjustClientArea();
    virtual void OnSizeMDIClient(const CRect& rectOld, const CRect& rectNew);

    CMFCRibbonBar* GetRibbonBar();
    const CMFCMenuBar* GetMenuBar() const;
    BOOL IsMenuBarAvailable() const { return GetMenuBar() != NULL; }
    CMFCPopupMenu* GetActivePopup() const { return m_Impl.ActivePopup(); }
    UINT GetDefaultResId() const { return m_Impl.m_defaultResourceId; }
    void SetMenuBar(CMFCMenuBar* bar) { m_Impl.SetMenuBar(bar); }

    BOOL OnShowPopupMenu(CMFCPopupMenu* pMenu) override;
    void OnClosePopupMenu(CMFCPopupMenu* pMenuPopup) override;
    BOOL OnDrawMenuImage(CDC* pDC, const CMFCToolBarMenuButton* pMenuButton, const CRect& rectImage) override;
    BOOL GetToolbarButtonToolTipText(CMFCToolBarButton* pButton, CString& strTTText) override;

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnChangeVisualManager(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnPaneCheck(UINT nID);
    afx_msg void OnUpdatePaneMenu(CCmdUI* pCmdUI);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    CFrameImpl m_Impl{this};
    CRect m_clientPlace{0, 0, 0, 0}; ///< of the MDI client when OnSizeMDIClient was called last
    DECLARE_MESSAGE_MAP()
};
