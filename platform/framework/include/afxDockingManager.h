#pragma once

#include "afxwin.h"
#include "fx/bar_styles.h"

#include <afxcoll.h>

#include <array>
#include <memory>
#include <vector>

class CBasePane;
class CDockSite;
class CPane;
class CPaneFrameWnd;

namespace panes {
class PaneDrag;
struct SavedPane;
} // namespace panes

/// Owns the order and the layout of one frame's panes. Not the panes themselves: each registers itself when it is
/// created and takes itself out when it is destroyed. Panes at top and bottom reach over the whole width, those at left
/// and right share what is left, the window with id AFX_IDW_PANE_FIRST gets the rest.
class FRAMEWORK_API CDockingManager : public CObject {
public:
    CDockingManager();
    ~CDockingManager() override;

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
    /// Sides where panes may hide by themselves, of those kinds that can.
    BOOL EnableAutoHidePanes(DWORD dwStyle);
    DWORD GetEnabledAutoHideAlignment() const { return m_dwEnabledAutoHideAlignment; }
    /// nDockBarID: AFX_IDW_DOCKBAR_ of a side, 0 keeps the pane's alignment. Refused (nothing happens) unless both the
    /// pane and the frame allow the side.
    void DockPane(CBasePane* pBar, UINT nDockBarID = 0, LPCRECT lpRect = NULL);
    BOOL DockPaneLeftOf(CPane* pBarToDock, CPane* pTargetBar);

    // Sides and mini frames
    /// The site of a side (CBRS_ALIGN_); NULL while there is none.
    virtual CDockSite* FindDockSite(DWORD dwAlignment, BOOL bOuter);
    virtual CDockSite* FindDockSiteByPane(CPane* pTargetBar);
    /// The same, made when it is missing; NULL when its window cannot be made.
    CDockSite* SiteFor(DWORD dwAlignment);
    /// The side whose site lies within m_nDockSensitivity of a point of the screen.
    BOOL IsPointNearDockSite(CPoint point, DWORD& dwBarAlignment, BOOL& bOuterEdge) const;
    /// Screen rectangle of a side: its site's, or the line where that would begin.
    CRect GetSiteRect(DWORD dwAlignment) const;
    virtual BOOL AddMiniFrame(CPaneFrameWnd* pWnd);
    virtual BOOL RemoveMiniFrame(CPaneFrameWnd* pWnd);
    /// CPaneFrameWnd, the last that was touched first.
    const CObList& GetMiniFrames() const { return m_lstMiniFrames; }
    virtual CPaneFrameWnd* FrameFromPoint(CPoint pt, CPaneFrameWnd* pFrameToExclude, BOOL bFloatMultiOnly) const;
    BOOL SendMessageToMiniFrames(UINT uMessage, WPARAM wParam = 0, LPARAM lParam = 0);
    /// The mini frame comes to lie above the others.
    void BringToFront(CPaneFrameWnd& miniFrame);
    /// The drag of a pane by its user, with the mouse at a point of the screen; ended by the mouse, Esc or CancelDrag.
    BOOL StartDrag(CPane& pane, CPoint screen);
    /// The pane goes back to where it was.
    void CancelDrag();
    BOOL IsDragging(const CPane* pane) const;

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

    /// Where the panes are docked or float, below the application's base section. FALSE: nothing there, or it is
    /// damaged; the panes then stay where they are.
    virtual BOOL LoadState(LPCTSTR lpszProfileName = NULL, UINT uiID = (UINT)-1);
    virtual BOOL SaveState(LPCTSTR lpszProfileName = NULL, UINT uiID = (UINT)-1);

    /// LoadState leaves the panes where they are and restores only what they keep themselves.
    void DisableRestoreDockState(BOOL bDisable = TRUE) { m_isRestoreDisabled = bDisable != FALSE; }

    static AFX_DOCK_TYPE GetDockingMode() { return m_dockModeGlobal; }
    static void SetDockingMode(AFX_DOCK_TYPE dockMode, AFX_SMARTDOCK_THEME theme = AFX_SDT_DEFAULT);

    static AFX_DOCK_TYPE m_dockModeGlobal;
    static int m_nDockSensitivity; ///< pixels at 96 DPI

protected:
    CObList m_lstControlBars; ///< CBasePane, outermost first, not owned
    CFrameWnd* m_pParentWnd = NULL;

private:
    void PlacePanes(HDWP deferred);
    HDWP PlaceSites(HDWP deferred, CRect& rest);
    void PlacePanesOfSites();
    void LeavePlace(CPane& pane);
    std::vector<CBasePane*> PanesToPlace() const;
    BOOL LoadPlaces(LPCTSTR profile, UINT id);
    BOOL SavePlaces(LPCTSTR profile, UINT id);
    void TakePlaces(const std::vector<panes::SavedPane>& state);
    HWND DocumentFocus() const;

    DWORD m_dwEnabledAlignment = 0;
    DWORD m_dwEnabledAutoHideAlignment = 0;
    BOOL m_bIsInAdjustLayout = FALSE;
    int m_nLockCount = 0;
    bool m_isLayoutPending = false;
    CRect m_rectClientArea{0, 0, 0, 0};
    CRect m_rectOuter{0, 0, 0, 0};
    CRect m_rectMargins{0, 0, 0, 0};
    CObList m_hiddenPanes; ///< by ShowPanes(FALSE)
    HWND m_documentFocus = NULL;
    bool m_hasPaneMenu = false;
    bool m_isRestoreDisabled = false;
    bool m_paneMenuOfToolbarsOnly = false;
    UINT m_customizeCommand = 0;
    CString m_customizeText;
    std::array<std::unique_ptr<CDockSite>, 4> m_sites; ///< in the order in which they take room
    CObList m_lstMiniFrames;                           ///< CPaneFrameWnd, not owned
    std::unique_ptr<panes::PaneDrag> m_drag;
};
