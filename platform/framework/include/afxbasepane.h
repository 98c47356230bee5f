#pragma once

#include "afxwin.h"
#include "fx/bar_styles.h"

class CBaseTabbedPane;
class CDockingManager;
class CDockingPanesRow;
class CDockSite;
class CPaneDivider;
class CPaneFrameWnd;

/// Base of every window that sits along the edges of a frame's client area: bars, toolbars, status bars, the ribbon. A
/// pane whose parent is a docking frame enters that frame's docking manager when it is created and leaves it when
/// destroyed. The frame places it: CalcFixedLayout says how much room it wants (pixels).
class FRAMEWORK_API CBasePane : public CWnd {
    DECLARE_DYNAMIC(CBasePane)

public:
    CBasePane();
    ~CBasePane() override;

    /// dwControlBarStyle: AFX_CBRS_ bits. dwStyle: window style with CBRS_ bits mixed in.
    virtual BOOL CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwControlBarStyle = 0,
                          CCreateContext* pContext = NULL);

    /// Size in pixels; a stretched pane may answer more than there is along its run and gets what there is.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    /// Lays out what is inside the pane.
    virtual void RecalcLayout() {}
    virtual void AdjustLayout() {}
    /// Lays out the frame's panes anew.
    virtual void AdjustDockingLayout(HDWP hdwp = NULL);
    virtual CSize StretchPane(int nLength, BOOL bVert);

    virtual DWORD GetPaneStyle() const { return m_dwStyle; }
    virtual void SetPaneStyle(DWORD dwNewStyle);
    /// CBRS_ALIGN_ bit of the side where the pane lies; 0 while it has none.
    virtual DWORD GetCurrentAlignment() const { return m_dwStyle & CBRS_ALIGN_ANY; }
    virtual void SetPaneAlignment(DWORD dwAlignment);
    virtual DWORD GetEnabledAlignment() const { return m_dwEnabledAlignment; }
    virtual void EnableDocking(DWORD dwAlignment) { m_dwEnabledAlignment = dwAlignment & CBRS_ALIGN_ANY; }
    virtual DWORD GetControlBarStyle() const { return m_dwControlBarStyle; }
    virtual void SetControlBarStyle(DWORD dwNewStyle) { m_dwControlBarStyle = dwNewStyle; }
    virtual DWORD GetMFCStyle() const { return m_dwControlBarStyle; }
    virtual AFX_DOCK_TYPE GetDockingMode() const;
    void SetDockingMode(AFX_DOCK_TYPE dockModeNew) { m_dockMode = dockModeNew; }

    /// Shown as far as the frame is concerned, even while the frame itself is hidden.
    virtual BOOL IsVisible() const;
    BOOL IsPaneVisible() const { return IsVisible(); }
    virtual BOOL GetRecentVisibleState() const { return m_bRecentVisibleState; }
    /// bDelay: the caller will recalculate the frame's layout. Otherwise it is done at once.
    virtual void ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate);

    virtual BOOL IsHorizontal() const { return (m_dwStyle & CBRS_ORIENT_VERT) == 0; }
    virtual BOOL IsDocked() const { return m_bIsDocked; }
    /// It lies in a mini frame.
    virtual BOOL IsFloating() const;
    /// The frame's ribbon: it lies above every other pane, comes first on F6's way and takes the focus itself.
    virtual BOOL IsFrameRibbon() const { return FALSE; }
    /// The pane's own window takes the focus and leads it among what it shows, rather than a control in it.
    virtual BOOL LeadsFocusItself() const { return IsFrameRibbon(); }
    virtual BOOL IsTabbed() const { return FALSE; }
    virtual BOOL IsMDITabbed() const { return FALSE; }
    virtual BOOL IsAutoHideMode() const { return FALSE; }
    virtual BOOL IsResizable() const { return (m_dwControlBarStyle & AFX_CBRS_RESIZE) != 0; }
    virtual BOOL IsInFloatingMultiPaneFrameWnd() const { return FALSE; }
    virtual BOOL IsRestoredFromRegistry() const { return FALSE; }
    virtual BOOL CanAcceptPane(const CBasePane*) const { return FALSE; }
    virtual BOOL CanAutoHide() const { return (m_dwControlBarStyle & AFX_CBRS_AUTOHIDE) != 0; }
    virtual BOOL CanBeAttached() const { return FALSE; }
    virtual BOOL CanBeClosed() const { return (m_dwControlBarStyle & AFX_CBRS_CLOSE) != 0; }
    virtual BOOL CanBeDocked(CBasePane* pDockBar) const;
    virtual BOOL CanBeResized() const { return IsResizable(); }
    virtual BOOL CanBeTabbedDocument() const { return FALSE; }
    virtual BOOL CanFloat() const { return (m_dwControlBarStyle & AFX_CBRS_FLOAT) != 0; }
    virtual BOOL CanFocus() const { return TRUE; }
    virtual BOOL DoesAllowDynInsertBefore() const { return FALSE; }
    virtual BOOL HideInPrintPreviewMode() const { return TRUE; }
    BOOL IsDialogControl() const { return m_bIsDialogControl; }
    virtual void EnableGripper(BOOL bEnable);
    virtual int GetCaptionHeight() const { return 0; }
    virtual HICON GetPaneIcon(BOOL bBigIcon);

    /// The frame whose edges the pane keeps to; NULL when the pane is a control of some other window.
    virtual CWnd* GetDockSiteFrameWnd() const { return m_pDockSiteFrame; }
    /// NULL unless the pane lies in a dock site window or in a mini frame.
    virtual CDockSite* GetParentDockSite() const;
    virtual CPaneFrameWnd* GetParentMiniFrame(BOOL bNoAssert = FALSE) const;
    /// Good until panes are docked, moved or removed.
    CDockingPanesRow* GetPaneRow();
    /// Near which side of its frame a point of the screen lies where panes may be docked; FALSE: near none.
    BOOL IsPointNearDockSite(CPoint point, DWORD& dwBarAlignment, BOOL& bOuterEdge) const;
    /// FALSE unless the pane can float.
    virtual BOOL FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod = DM_UNKNOWN, bool bShow = true);
    virtual CPaneFrameWnd* CreateDefaultMiniframe(CRect rectInitial);
    /// The pane is taken out of the mini frame.
    virtual void OnRemoveFromMiniFrame(CPaneFrameWnd*) {}
    /// Puts the pane into the row of its side; the same as the frame's DockPane when pDockBar is null.
    virtual BOOL DockPane(CBasePane* pDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod);
    virtual BOOL DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect = NULL, DWORD dwDockFlags = DT_DOCK_LAST,
                                   CBasePane* pRelativeBar = NULL, int nRelativeIndex = -1, BOOL bOuterEdge = FALSE);
    virtual void UndockPane(BOOL bDelay = FALSE);

    /// Registers another pane with this pane's frame.
    void AddPane(CBasePane* pBar);
    BOOL InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter = TRUE);
    void RemovePaneFromDockManager(CBasePane* pBar, BOOL bDestroy = TRUE, BOOL bAdjustLayout = FALSE,
                                   BOOL bAutoHide = FALSE, CBasePane* pBarReplacement = NULL);

    virtual HDWP SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags, HDWP hdwp = NULL);
    virtual HDWP MoveWindow(CRect& rect, BOOL bRepaint = TRUE, HDWP hdwp = NULL);
    using CWnd::MoveWindow;

    /// Position and state under the application's registry section; FALSE when nothing could be read or written.
    virtual BOOL LoadState(LPCTSTR lpszProfileName = NULL, int nIndex = -1, UINT uiID = (UINT)-1);
    virtual BOOL SaveState(LPCTSTR lpszProfileName = NULL, int nIndex = -1, UINT uiID = (UINT)-1);
    virtual void CopyState(CBasePane* pOrgBar);

    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler);
    virtual void OnPaneContextMenu(CWnd* pParentFrame, CPoint point);
    virtual void OnBeforeChangeParent(CWnd* pWndNewParent, BOOL bDelay = FALSE);
    virtual void OnAfterChangeParent(CWnd* pWndOldParent);
    virtual BOOL IsAccessibilityCompatible() { return FALSE; }
    virtual BOOL OnSetAccData(long lVal);
    /// The window's text. E_INVALIDARG for anything but the pane itself.
    virtual HRESULT get_accName(VARIANT varChild, BSTR* pszName);

    CFont* SelectDefaultFont(CDC* pDC);

protected:
    virtual void DoPaint(CDC* pDC);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CDockingManager* FindDockingManager() const;

    DWORD m_dwStyle = 0;            ///< CBRS_ bits
    DWORD m_dwControlBarStyle = 0;  ///< AFX_CBRS_ bits
    DWORD m_dwEnabledAlignment = 0; ///< CBRS_ALIGN_ bits allowed by EnableDocking
    BOOL m_bRecentVisibleState = FALSE;
    BOOL m_bIsDocked = FALSE; ///< lies in a row of its side, beside others
    BOOL m_bIsDialogControl = FALSE;
    AFX_DOCK_TYPE m_dockMode = DT_UNDEFINED; ///< DT_UNDEFINED: the application's
    CWnd* m_pDockSiteFrame = NULL;

    friend class CDockingManager;
    friend class CDockSite;
    friend class CPaneFrameWnd;
};
