#pragma once

#include "afxwin.h"
#include "fx/bar_styles.h"

#include <afxcoll.h>

#include <vector>

class CBasePane;
class CPane;

/// Owns the order and the layout of one frame's panes. Not the panes themselves: each registers itself when it is
/// created and takes itself out when it is destroyed. Panes at top and bottom reach over the whole width, those at left
/// and right share what is left, the window with id AFX_IDW_PANE_FIRST gets the rest.
class FRAMEWORK_API CDockingManager : public CObject {
public:
    CDockingManager() = default;

    /// The frame whose client area is laid out; FALSE for null.
    BOOL Create(CFrameWnd* pParentWnd);

    /// FALSE when the pane is already there. bTail: behind the others of its side, nearer to the client area.
    BOOL AddPane(CBasePane* pWnd, BOOL bTail = TRUE, BOOL bAutoHide = FALSE, BOOL bInsertForOuterEdge = FALSE);
    BOOL InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter = TRUE);
    void RemovePaneFromDockManager(CBasePane* pWnd, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide = FALSE,
                                   CBasePane* pBarReplacement = NULL);
    /// The pane becomes the innermost (outermost) of its side.
    void MoveToEndOfSide(CBasePane* pane);
    void MoveToStartOfSide(CBasePane* pane);
    virtual CBasePane* FindPaneByID(UINT uBarID, BOOL bSearchMiniFrames = FALSE);
    /// Appends the panes (of a class when pRTCFilter is given) to lstBars.
    void GetPaneList(CObList& lstBars, BOOL bIncludeAutohide = FALSE, CRuntimeClass* pRTCFilter = NULL,
                     BOOL bIncludeTabs = FALSE);
    /// The pane under a point (screen), widened by nSensitivity pixels.
    virtual CBasePane* PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar = false,
                                     CRuntimeClass* pRTCBarType = NULL, BOOL bCheckVisibility = FALSE,
                                     const CBasePane* pBarToIgnore = NULL) const;

    /// Sides where DockPane may put panes.
    BOOL EnableDocking(DWORD dwStyle);
    DWORD GetEnabledAlignment() const { return m_dwEnabledAlignment; }
    /// nDockBarID: AFX_IDW_DOCKBAR_ of a side, 0 keeps the pane's alignment. Refused (nothing happens) unless both the
    /// pane and the frame allow the side.
    void DockPane(CBasePane* pBar, UINT nDockBarID = 0, LPCRECT lpRect = NULL);
    BOOL DockPaneLeftOf(CPane* pBarToDock, CPane* pTargetBar);

    virtual void RecalcLayout(BOOL bNotify = TRUE);
    virtual void AdjustDockingLayout(HDWP hdwp = NULL);
    BOOL IsInAdjustLayout() const { return m_bIsInAdjustLayout; }
    /// While locked, layouts are remembered and done once at the unlock.
    void LockUpdate(BOOL bLock);
    /// What the panes leave over, in client pixels of the frame, after the last layout.
    CRect GetClientAreaBounds() const { return m_rectClientArea; }
    void GetClientAreaBounds(CRect& rcClient) { rcClient = m_rectClientArea; }
    CRect GetOuterEdgeBounds() const { return m_rectOuter; }
    CFrameWnd* GetDockSiteFrameWnd() const { return m_pParentWnd; }
    /// Room to leave free at the frame's edges, client pixels (a ribbon that draws the caption, an in-place client).
    void SetOuterEdges(const CRect& margins) { m_rectMargins = margins; }

    /// Hides all panes, or shows again those that the former call hid.
    virtual BOOL ShowPanes(BOOL bShow);
    /// Menu of panes at `point` (screen), filled from the panes' names.
    void OnPaneContextMenu(CPoint point);
    void EnablePaneContextMenu(BOOL bEnable, UINT uiCustomizeCmd, const CString& strCustomizeText,
                               BOOL bToolbarsOnly = FALSE);

    /// Where F6 leads from the window with the focus, Shift+F6 when bForward is FALSE: ribbon, the panes in which
    /// something can have the focus, the document, and round. The ribbon is answered as its own window. NULL: nowhere.
    HWND FindNextFocus(HWND hFrom, BOOL bForward);
    /// The window to which F6 comes back in the document; one inside a pane is none.
    void RememberDocumentFocus(HWND hWnd);

    BOOL HasPaneContextMenu() const { return m_hasPaneMenu; }

    virtual BOOL LoadState(LPCTSTR lpszProfileName = NULL, UINT uiID = (UINT)-1);
    virtual BOOL SaveState(LPCTSTR lpszProfileName = NULL, UINT uiID = (UINT)-1);

    static AFX_DOCK_TYPE GetDockingMode() { return m_dockModeGlobal; }
    static void SetDockingMode(AFX_DOCK_TYPE dockMode, AFX_SMARTDOCK_THEME theme = AFX_SDT_DEFAULT);

    static AFX_DOCK_TYPE m_dockModeGlobal;
    static int m_nDockSensitivity; ///< pixels

protected:
    CObList m_lstControlBars; ///< CBasePane, outermost first, not owned
    CFrameWnd* m_pParentWnd = NULL;

private:
    void PlacePanes(HDWP deferred);
    std::vector<CBasePane*> PanesToPlace() const;
    HWND DocumentFocus() const;

    DWORD m_dwEnabledAlignment = 0;
    BOOL m_bIsInAdjustLayout = FALSE;
    int m_nLockCount = 0;
    bool m_isLayoutPending = false;
    CRect m_rectClientArea{0, 0, 0, 0};
    CRect m_rectOuter{0, 0, 0, 0};
    CRect m_rectMargins{0, 0, 0, 0};
    CObList m_hiddenPanes; ///< by ShowPanes(FALSE)
    HWND m_documentFocus = NULL;
    bool m_hasPaneMenu = false;
    bool m_paneMenuOfToolbarsOnly = false;
    UINT m_customizeCommand = 0;
    CString m_customizeText;
};
