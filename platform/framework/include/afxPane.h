#pragma once

#include "afxbasepane.h"
#include "afxrecentDockSiteInfo.h"

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
    virtual BOOL IsDragMode() const { return FALSE; }
    BOOL IsTabbed() const override { return FALSE; }
    BOOL IsResizable() const override { return FALSE; }
    CDockingPanesRow* GetDockSiteRow() const { return NULL; }

    BOOL DockPane(CBasePane* pDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod) override;
    void UndockPane(BOOL bDelay = FALSE) override;
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

    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

    CRect m_rectBorders{0, 0, 0, 0};
    CSize m_sizeMin{0, 0};
    BOOL m_bExclusiveRow = FALSE;
};
