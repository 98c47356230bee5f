#pragma once

#include "afxbasepane.h"
#include "fx/docking_frame.h"
#include "fx/frame_impl.h"

class CMFCToolBarMenuButton;

namespace fx {

/// What the main frames CFrameWndEx and CMDIFrameWndEx share beyond their panes: ribbon or menu bar, keys and wheel for
/// it, a caption that the ribbon draws, pop-ups. Like DockingFrameOf a step without a run-time class or a message map.
template <class Base>
class BarFrameOf : public DockingFrameOf<Base> {
public:
    BarFrameOf();
    ~BarFrameOf() override;

    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL) override;

    virtual BOOL OnShowPanes(BOOL bShow);
    void EnablePaneMenu(BOOL bEnable, UINT uiCustomizeCmd, const CString& strCustomizeLabel,
                        UINT uiViewToolbarsMenuEntryID, BOOL bContextMenuShowsToolbarsOnly = FALSE,
                        BOOL bViewMenuShowsToolbarsOnly = FALSE);

    void RecalcLayout(BOOL bNotify = TRUE) override;
    void AdjustDockingLayout(HDWP hdwp = NULL) override;

    CMFCRibbonBar* GetRibbonBar();
    const CMFCMenuBar* GetMenuBar() const;
    BOOL IsMenuBarAvailable() const;
    CMFCPopupMenu* GetActivePopup() const;
    UINT GetDefaultResId() const;

    BOOL OnShowPopupMenu(CMFCPopupMenu* pMenu) override;
    void OnClosePopupMenu(CMFCPopupMenu* pMenuPopup) override;
    BOOL OnDrawMenuImage(CDC* pDC, const CMFCToolBarMenuButton* pMenuButton, const CRect& rectImage) override;
    BOOL GetToolbarButtonToolTipText(CMFCToolBarButton* pButton, CString& strTTText) override;

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL ShowInMenuBar(HMENU hMenu) override;
    CFrameImpl& GetFrameImpl();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    /// CWinAppEx::OnClosingMainFrame is told of the main frame, once it may close.
    afx_msg void OnClose();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnChangeVisualManager(WPARAM wParam, LPARAM lParam);
    /// AFX_WM_CREATETOOLBAR: the user wants a toolbar with the name in lp (LPCTSTR). A new CMFCToolBar, docked at the
    /// top, which the frame owns and keeps in its state; NULL when there are too many.
    afx_msg LRESULT OnToolbarCreateNew(WPARAM wp, LPARAM lp);
    /// AFX_WM_DELETETOOLBAR: the user deletes the toolbar lp (CMFCToolBar*). TRUE: it was one of those and is gone.
    afx_msg LRESULT OnToolbarDelete(WPARAM wp, LPARAM lp);
    afx_msg BOOL OnPaneCheck(UINT nID);
    afx_msg void OnUpdatePaneMenu(CCmdUI* pCmdUI);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    /// The panes have their places; what fills the rest may take its own.
    virtual void OnPanesPlaced();

    CFrameImpl m_Impl{this, this->m_dockManager};
};

extern template class FRAMEWORK_API BarFrameOf<CFrameWnd>;
extern template class FRAMEWORK_API BarFrameOf<CMDIFrameWnd>;

} // namespace fx
