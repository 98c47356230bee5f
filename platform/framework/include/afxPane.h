#pragma once

#include "afxbasepane.h"
#include "afxrecentDockSiteInfo.h"

namespace panes {
struct RowPlace;
}

/// A pane that can lie beside others in a row: it has borders, a smallest size, and remembers where it was docked.
class FRAMEWORK_API CPane : public CBasePane {
    DECLARE_DYNCREATE(CPane)

public:
    CPane();
    ~CPane() override;

    virtual BOOL Create(LPCTSTR lpszClassName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                        DWORD dwControlBarStyle = AFX_DEFAULT_PANE_STYLE, CCreateContext* pContext = NULL);
    virtual BOOL CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID, DWORD dwControlBarStyle = AFX_DEFAULT_PANE_STYLE, CCreateContext* pContext = NULL);
    using CBasePane::CreateEx;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    virtual CSize CalcSize(BOOL bVertDock);
    virtual CSize CalcAvailableSize(CRect rectRequired);
    /// Takes the borders off `rect`.
    void CalcInsideRect(CRect& rect, BOOL bHorz) const;
    CRect GetBorders() const { return m_rectBorders; }
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
    void SetBorders(LPCRECT lpRect);
    virtual void GetMinSize(CSize& size) const { size = m_sizeMin; }
    void SetMinSize(const CSize& size) { m_sizeMin = size; }
    virtual int GetAvailableExpandSize() const;
    virtual int GetAvailableStretchSize() const;
    virtual void AdjustSizeImmediate(BOOL bRecalcLayout = TRUE);
    void RecalcLayout() override;

    /// A pane alone in its row gets the whole length of it.
    virtual BOOL GetExclusiveRowMode() const { return m_bExclusiveRow; }
    virtual void SetExclusiveRowMode(BOOL bExclusive = TRUE) { m_bExclusiveRow = bExclusive; }
    virtual BOOL DoesAllowSiblingBars() const { return TRUE; }
    virtual BOOL AllowShowOnPaneMenu() const { return TRUE; }
    virtual void GetPaneName(CString& strName) const;
    /// Its user is dragging it.
    virtual BOOL IsDragMode() const;
    BOOL IsTabbed() const override { return FALSE; }
    BOOL IsResizable() const override { return FALSE; }
    CDockingPanesRow* GetDockSiteRow() const;

    /// pDockBar: a dock site, NULL for that of the pane's alignment. lpRect: where, screen pixels; DM_DBL_CLICK takes
    /// the pane back to where it was docked before.
    BOOL DockPane(CBasePane* pDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod) override;
    /// Out of its site or mini frame: the pane is a plain child of the frame again and keeps to its edge.
    void UndockPane(BOOL bDelay = FALSE) override;
    /// Into a mini frame at rectFloat (screen; its size is a wish). An empty one: where the pane floated before, else
    /// beside where it lies. FALSE: the pane may not float, or OnBeforeFloat refused.
    BOOL FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod = DM_UNKNOWN, bool bShow = true) override;
    CPaneFrameWnd* CreateDefaultMiniframe(CRect rectInitial) override;
    /// A class derived from CPaneFrameWnd for the pane's mini frames.
    void SetMiniFrameRTC(CRuntimeClass* pClass) { m_pMiniFrameRTC = pClass; }
    void ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) override;
    /// What a double click on the gripper or the caption does: float, or back to where it was docked.
    virtual void OnProcessDblClk();
    /// Where the mouse took the pane, window pixels.
    CPoint GetClientHotSpot() const { return m_ptClientHotSpot; }
    void SetClientHotSpot(const CPoint& ptNew) { m_ptClientHotSpot = ptNew; }
    /// The pane's middle lies before that of the rectangle, along its row.
    bool IsLeftOf(CRect rect, bool bWindowRect = true) const;
    /// Along its row by so many pixels.
    BOOL MoveByAlignment(DWORD dwAlignment, int nOffset);
    /// Into a row of a site, by the mouse. FALSE: OnBeforeDock refused to change the site.
    BOOL DockByDrag(CDockSite& site, const panes::RowPlace& place, int offset);
    /// Remembers side, row and offset of a docked pane, or the place of its mini frame.
    void RememberPlace();
    /// Where the pane floats when its user takes it off, or by a double click; screen pixels of the mini frame.
    CRect CalcFloatingRect(CPoint topLeft);
    void CalcRecentDockedRect();
    BOOL LoadState(LPCTSTR lpszProfileName = NULL, int nIndex = -1, UINT uiID = (UINT)-1) override;
    BOOL SaveState(LPCTSTR lpszProfileName = NULL, int nIndex = -1, UINT uiID = (UINT)-1) override;
    using CBasePane::CopyState;
    virtual void CopyState(CPane* pOrgBar);

    virtual void OnPressCloseButton();
    /// Shows the frame's menu of panes at `point` (screen). FALSE when the frame has none.
    virtual BOOL OnShowControlBarMenu(CPoint point);

    CRecentDockSiteInfo m_recentDockInfo{this};

protected:
    virtual BOOL OnBeforeDock(CBasePane** ppDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod);
    virtual void OnAfterDock(CBasePane* pBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod);
    /// FALSE: the pane stays where it is.
    virtual BOOL OnBeforeFloat(CRect& rectFloat, AFX_DOCK_METHOD dockMethod);
    virtual void OnAfterFloat() {}
    /// The part of the pane (client) by which it is dragged.
    virtual CRect GetGripperRect() const;
    /// The background, and the gripper of a docked pane.
    void DoPaint(CDC* pDC) override;
    /// Starts a drag at a point (client) when the pane may be docked elsewhere or may float.
    BOOL BeginDrag(CPoint point);

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    DECLARE_MESSAGE_MAP()

    CRect m_rectBorders{0, 0, 0, 0};
    CSize m_sizeMin{0, 0};
    BOOL m_bExclusiveRow = FALSE;
    CPoint m_ptClientHotSpot{0, 0};
    CRuntimeClass* m_pMiniFrameRTC = NULL;

    friend class CDockSite;
};
