#include "interface.h"

#include "afxbasepane.h"
#include "afxcaptionbutton.h"
#include "afxDockingManager.h"
#include "afxDockingPanesRow.h"
#include "afxDockSite.h"
#include "afxglobalutils.h"
#include "afxPane.h"
#include "afxPaneFrameWnd.h"
#include "afxrecentDockSiteInfo.h"

INTERFACE_OF(CBasePane) {
    BASE(CWnd);
    MEMBER(void, AddPane, (CBasePane*));
    VIRTUAL(void, AdjustDockingLayout, (HDWP));
    CALL(AdjustDockingLayout);
    VIRTUAL(void, AdjustLayout, ());
    VIRTUAL(CSize, CalcFixedLayout, (BOOL, BOOL));
    VIRTUAL(BOOL, CanAcceptPane, (const CBasePane*) const);
    VIRTUAL(BOOL, CanAutoHide, () const);
    VIRTUAL(BOOL, CanBeAttached, () const);
    VIRTUAL(BOOL, CanBeClosed, () const);
    VIRTUAL(BOOL, CanBeDocked, (CBasePane*) const);
    VIRTUAL(BOOL, CanBeResized, () const);
    VIRTUAL(BOOL, CanBeTabbedDocument, () const);
    VIRTUAL(BOOL, CanFloat, () const);
    VIRTUAL(BOOL, CanFocus, () const);
    VIRTUAL(void, CopyState, (CBasePane*));
    VIRTUAL(CPaneFrameWnd*, CreateDefaultMiniframe, (CRect));
    VIRTUAL(BOOL, CreateEx, (DWORD, LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT, DWORD, CCreateContext*));
    CALL(CreateEx, DWORD, LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT);
    VIRTUAL(BOOL, DockPane, (CBasePane*, LPCRECT, AFX_DOCK_METHOD));
    VIRTUAL(BOOL, DockToFrameWindow, (DWORD, LPCRECT, DWORD, CBasePane*, int, BOOL));
    CALL(DockToFrameWindow, DWORD);
    VIRTUAL(BOOL, DoesAllowDynInsertBefore, () const);
    VIRTUAL(void, EnableDocking, (DWORD));
    VIRTUAL(void, EnableGripper, (BOOL));
    VIRTUAL(BOOL, FloatPane, (CRect, AFX_DOCK_METHOD, bool));
    CALL(FloatPane, CRect);
    NAMED(get_accName);
    VIRTUAL(int, GetCaptionHeight, () const);
    VIRTUAL(DWORD, GetControlBarStyle, () const);
    VIRTUAL(DWORD, GetCurrentAlignment, () const);
    VIRTUAL(AFX_DOCK_TYPE, GetDockingMode, () const);
    VIRTUAL(CWnd*, GetDockSiteFrameWnd, () const);
    VIRTUAL(DWORD, GetEnabledAlignment, () const);
    VIRTUAL(DWORD, GetMFCStyle, () const);
    VIRTUAL(HICON, GetPaneIcon, (BOOL));
    MEMBER(CDockingPanesRow*, GetPaneRow, ());
    VIRTUAL(DWORD, GetPaneStyle, () const);
    VIRTUAL(CDockSite*, GetParentDockSite, () const);
    VIRTUAL(CPaneFrameWnd*, GetParentMiniFrame, (BOOL) const);
    CALL(GetParentMiniFrame);
    VIRTUAL(BOOL, GetRecentVisibleState, () const);
    VIRTUAL(BOOL, HideInPrintPreviewMode, () const);
    MEMBER(BOOL, InsertPane, (CBasePane*, CBasePane*, BOOL));
    CALL(InsertPane, CBasePane*, CBasePane*);
    VIRTUAL(BOOL, IsAccessibilityCompatible, ());
    VIRTUAL(BOOL, IsAutoHideMode, () const);
    MEMBER(BOOL, IsDialogControl, () const);
    VIRTUAL(BOOL, IsDocked, () const);
    VIRTUAL(BOOL, IsFloating, () const);
    VIRTUAL(BOOL, IsHorizontal, () const);
    VIRTUAL(BOOL, IsInFloatingMultiPaneFrameWnd, () const);
    VIRTUAL(BOOL, IsMDITabbed, () const);
    MEMBER(BOOL, IsPaneVisible, () const);
    MEMBER(BOOL, IsPointNearDockSite, (CPoint, DWORD&, BOOL&) const);
    VIRTUAL(BOOL, IsResizable, () const);
    VIRTUAL(BOOL, IsRestoredFromRegistry, () const);
    VIRTUAL(BOOL, IsTabbed, () const);
    VIRTUAL(BOOL, IsVisible, () const);
    VIRTUAL(BOOL, LoadState, (LPCTSTR, int, UINT));
    CALL(LoadState);
    VIRTUAL(HDWP, MoveWindow, (CRect&, BOOL, HDWP));
    CALL(MoveWindow, CRect&);
    VIRTUAL(void, OnAfterChangeParent, (CWnd*));
    VIRTUAL(void, OnBeforeChangeParent, (CWnd*, BOOL));
    CALL(OnBeforeChangeParent, CWnd*);
    VIRTUAL(void, OnPaneContextMenu, (CWnd*, CPoint));
    VIRTUAL(void, OnRemoveFromMiniFrame, (CPaneFrameWnd*));
    VIRTUAL(BOOL, OnSetAccData, (long));
    NAMED(OnUpdateCmdUI);
    NAMED(PreTranslateMessage);
    VIRTUAL(void, RecalcLayout, ());
    MEMBER(void, RemovePaneFromDockManager, (CBasePane*, BOOL, BOOL, BOOL, CBasePane*));
    CALL(RemovePaneFromDockManager, CBasePane*);
    VIRTUAL(BOOL, SaveState, (LPCTSTR, int, UINT));
    CALL(SaveState);
    MEMBER(CFont*, SelectDefaultFont, (CDC*));
    NAMED(Serialize);
    VIRTUAL(void, SetControlBarStyle, (DWORD));
    MEMBER(void, SetDockingMode, (AFX_DOCK_TYPE));
    VIRTUAL(void, SetPaneAlignment, (DWORD));
    VIRTUAL(void, SetPaneStyle, (DWORD));
    VIRTUAL(HDWP, SetWindowPos, (const CWnd*, int, int, int, int, UINT, HDWP));
    CALL(SetWindowPos, const CWnd*, int, int, int, int, UINT);
    VIRTUAL(void, ShowPane, (BOOL, BOOL, BOOL));
    VIRTUAL(CSize, StretchPane, (int, BOOL));
    VIRTUAL(void, UndockPane, (BOOL));
    CALL(UndockPane);
}

PROTECTED_INTERFACE_OF(CBasePane) { VIRTUAL(void, DoPaint, (CDC*)); }

INTERFACE_OF(CPane) {
    BASE(CBasePane);
    VIRTUAL(void, AdjustSizeImmediate, (BOOL));
    CALL(AdjustSizeImmediate);
    VIRTUAL(BOOL, AllowShowOnPaneMenu, () const);
    VIRTUAL(CSize, CalcAvailableSize, (CRect));
    MEMBER(void, CalcInsideRect, (CRect&, BOOL) const);
    MEMBER(void, CalcRecentDockedRect, ());
    VIRTUAL(CSize, CalcSize, (BOOL));
    VIRTUAL(BOOL, CanBeDocked, (CBasePane*) const);
    VIRTUAL(BOOL, CanBeTabbedDocument, () const);
    VIRTUAL(void, CopyState, (CPane*));
    VIRTUAL(BOOL, Create, (LPCTSTR, DWORD, const RECT&, CWnd*, UINT, DWORD, CCreateContext*));
    CALL(Create, LPCTSTR, DWORD, const RECT&, CWnd*, UINT);
    VIRTUAL(BOOL, CreateEx, (DWORD, LPCTSTR, DWORD, const RECT&, CWnd*, UINT, DWORD, CCreateContext*));
    CALL(CreateEx, DWORD, LPCTSTR, DWORD, const RECT&, CWnd*, UINT);
    VIRTUAL(CPaneFrameWnd*, CreateDefaultMiniframe, (CRect));
    NAMED(CreateObject);
    VIRTUAL(BOOL, DockPane, (CBasePane*, LPCRECT, AFX_DOCK_METHOD));
    VIRTUAL(BOOL, DockToFrameWindow, (DWORD, LPCRECT, DWORD, CBasePane*, int, BOOL));
    CALL(DockToFrameWindow, DWORD);
    VIRTUAL(BOOL, DoesAllowSiblingBars, () const);
    VIRTUAL(BOOL, FloatPane, (CRect, AFX_DOCK_METHOD, bool));
    CALL(FloatPane, CRect);
    VIRTUAL(int, GetAvailableExpandSize, () const);
    VIRTUAL(int, GetAvailableStretchSize, () const);
    MEMBER(CRect, GetBorders, () const);
    MEMBER(CPoint, GetClientHotSpot, () const);
    MEMBER(CDockingPanesRow*, GetDockSiteRow, () const);
    VIRTUAL(BOOL, GetExclusiveRowMode, () const);
    VIRTUAL(void, GetMinSize, (CSize&) const);
    VIRTUAL(void, GetPaneName, (CString&) const);
    NAMED(GetThisClass);
    VIRTUAL(BOOL, IsDragMode, () const);
    VIRTUAL(BOOL, IsInFloatingMultiPaneFrameWnd, () const);
    MEMBER(bool, IsLeftOf, (CRect, bool) const);
    CALL(IsLeftOf, CRect);
    VIRTUAL(BOOL, IsResizable, () const);
    VIRTUAL(BOOL, IsTabbed, () const);
    VIRTUAL(BOOL, LoadState, (LPCTSTR, int, UINT));
    CALL(LoadState);
    MEMBER(BOOL, MoveByAlignment, (DWORD, int));
    VIRTUAL(void, OnAfterChangeParent, (CWnd*));
    VIRTUAL(void, OnBeforeChangeParent, (CWnd*, BOOL));
    CALL(OnBeforeChangeParent, CWnd*);
    VIRTUAL(void, OnPressCloseButton, ());
    NAMED(OnProcessDblClk);
    VIRTUAL(BOOL, OnShowControlBarMenu, (CPoint));
    VIRTUAL(void, RecalcLayout, ());
    VIRTUAL(BOOL, SaveState, (LPCTSTR, int, UINT));
    CALL(SaveState);
    MEMBER(void, SetBorders, (int, int, int, int));
    CALL(SetBorders);
    MEMBER(void, SetBorders, (LPCRECT));
    MEMBER(void, SetClientHotSpot, (const CPoint&));
    VIRTUAL(void, SetExclusiveRowMode, (BOOL));
    CALL(SetExclusiveRowMode);
    MEMBER(void, SetMiniFrameRTC, (CRuntimeClass*));
    MEMBER(void, SetMinSize, (const CSize&));
    VIRTUAL(void, UndockPane, (BOOL));
    CALL(UndockPane);
    DATA(CRecentDockSiteInfo, m_recentDockInfo);
}

PROTECTED_INTERFACE_OF(CPane) {
    VIRTUAL(void, OnAfterDock, (CBasePane*, LPCRECT, AFX_DOCK_METHOD));
    VIRTUAL(void, OnAfterFloat, ());
    VIRTUAL(BOOL, OnBeforeDock, (CBasePane**, LPCRECT, AFX_DOCK_METHOD));
    VIRTUAL(BOOL, OnBeforeFloat, (CRect&, AFX_DOCK_METHOD));
}

INTERFACE_OF(CDockingManager) {
    BASE(CObject);
    VIRTUAL(BOOL, AddMiniFrame, (CPaneFrameWnd*));
    MEMBER(BOOL, AddPane, (CBasePane*, BOOL, BOOL, BOOL));
    CALL(AddPane, CBasePane*);
    VIRTUAL(void, AdjustDockingLayout, (HDWP));
    CALL(AdjustDockingLayout);
    MEMBER(BOOL, Create, (CFrameWnd*));
    MEMBER(void, DisableRestoreDockState, (BOOL));
    CALL(DisableRestoreDockState);
    MEMBER(void, DockPane, (CBasePane*, UINT, LPCRECT));
    CALL(DockPane, CBasePane*);
    MEMBER(BOOL, DockPaneLeftOf, (CPane*, CPane*));
    MEMBER(BOOL, EnableDocking, (DWORD));
    MEMBER(void, EnablePaneContextMenu, (BOOL, UINT, const CString&, BOOL));
    CALL(EnablePaneContextMenu, BOOL, UINT, const CString&);
    VIRTUAL(CDockSite*, FindDockSite, (DWORD, BOOL));
    VIRTUAL(CDockSite*, FindDockSiteByPane, (CPane*));
    VIRTUAL(CBasePane*, FindPaneByID, (UINT, BOOL));
    CALL(FindPaneByID, UINT);
    VIRTUAL(CPaneFrameWnd*, FrameFromPoint, (CPoint, CPaneFrameWnd*, BOOL) const);
    MEMBER(CRect, GetClientAreaBounds, () const);
    MEMBER(void, GetClientAreaBounds, (CRect&));
    STATIC(AFX_DOCK_TYPE, GetDockingMode, ());
    MEMBER(CFrameWnd*, GetDockSiteFrameWnd, () const);
    MEMBER(const CObList&, GetMiniFrames, () const);
    MEMBER(CRect, GetOuterEdgeBounds, () const);
    MEMBER(void, GetPaneList, (CObList&, BOOL, CRuntimeClass*, BOOL));
    CALL(GetPaneList, CObList&);
    MEMBER(BOOL, InsertPane, (CBasePane*, CBasePane*, BOOL));
    CALL(InsertPane, CBasePane*, CBasePane*);
    MEMBER(BOOL, IsInAdjustLayout, () const);
    MEMBER(BOOL, IsPointNearDockSite, (CPoint, DWORD&, BOOL&) const);
    VIRTUAL(BOOL, LoadState, (LPCTSTR, UINT));
    CALL(LoadState);
    MEMBER(void, LockUpdate, (BOOL));
    MEMBER(void, OnPaneContextMenu, (CPoint));
    VIRTUAL(CBasePane*, PaneFromPoint, (CPoint, int, bool, CRuntimeClass*, BOOL, const CBasePane*) const);
    CALL(PaneFromPoint, CPoint, int);
    CALL(PaneFromPoint, CPoint, int, DWORD&);
    VIRTUAL(void, RecalcLayout, (BOOL));
    CALL(RecalcLayout);
    VIRTUAL(BOOL, RemoveMiniFrame, (CPaneFrameWnd*));
    MEMBER(void, RemovePaneFromDockManager, (CBasePane*, BOOL, BOOL, BOOL, CBasePane*));
    CALL(RemovePaneFromDockManager, CBasePane*, BOOL, BOOL);
    VIRTUAL(BOOL, SaveState, (LPCTSTR, UINT));
    CALL(SaveState);
    MEMBER(BOOL, SendMessageToMiniFrames, (UINT, WPARAM, LPARAM));
    CALL(SendMessageToMiniFrames, UINT);
    MEMBER(void, Serialize, (CArchive&));
    STATIC(void, SetDockingMode, (AFX_DOCK_TYPE, AFX_SMARTDOCK_THEME));
    CALL(SetDockingMode, AFX_DOCK_TYPE);
    VIRTUAL(BOOL, ShowPanes, (BOOL));
    STATIC_DATA(AFX_DOCK_TYPE, m_dockModeGlobal);
    STATIC_DATA(int, m_nDockSensitivity);
}

INTERFACE_OF(CRecentDockSiteInfo) {
    BASE(CObject);
    MADE_FROM(CPane*);
    MEMBER(void, CleanUp, ());
    MEMBER(CRect&, GetRecentDockedRect, (BOOL));
    MEMBER(void, Init, ());
    MEMBER(CRecentDockSiteInfo&, operator=, (CRecentDockSiteInfo&));
    VIRTUAL(void, SetInfo, (BOOL, CRecentDockSiteInfo&));
}

INTERFACE_OF(CMFCCaptionButton) {
    BASE(CObject);
    MADE_FROM();
    MADE_FROM(UINT);
    MADE_FROM(UINT, BOOL);
    MEMBER(UINT, GetHit, () const);
    VIRTUAL(CRect, GetRect, () const);
    STATIC(CSize, GetSize, ());
    MEMBER(BOOL, IsMiniFrameButton, () const);
    MEMBER(void, Move, (const CPoint&, BOOL));
    CALL(Move, const CPoint&);
    VIRTUAL(void, OnDraw, (CDC*, BOOL, BOOL, BOOL, BOOL));
    CALL(OnDraw, CDC*, BOOL);
    MEMBER(void, SetMiniFramebutton, (BOOL));
    CALL(SetMiniFramebutton);
}

INTERFACE_OF(CDockSite) {
    BASE(CBasePane);
    VIRTUAL(CSize, CalcFixedLayout, (BOOL, BOOL));
    VIRTUAL(BOOL, CanAcceptPane, (const CBasePane*) const);
    VIRTUAL(BOOL, CreateEx, (DWORD, DWORD, const RECT&, CWnd*, DWORD, CCreateContext*));
    VIRTUAL(void, DockPane, (CPane*, AFX_DOCK_METHOD, LPCRECT));
    CALL(DockPane, CPane*, AFX_DOCK_METHOD);
    VIRTUAL(BOOL, DockPaneLeftOf, (CPane*, CPane*));
    VIRTUAL(BOOL, DoesAllowDynInsertBefore, () const);
    MEMBER(CPane*, FindPaneByID, (UINT));
    MEMBER(int, FindRowIndex, (CDockingPanesRow*));
    VIRTUAL(UINT, GetDockSiteID, () const);
    MEMBER(const CObList&, GetDockSiteRowsList, () const);
    MEMBER(const CObList&, GetPaneList, () const);
    VIRTUAL(BOOL, IsDragMode, () const);
    MEMBER(bool, IsLastRow, (CDockingPanesRow*) const);
    VIRTUAL(BOOL, IsResizable, () const);
    VIRTUAL(BOOL, MovePane, (CPane*, UINT, CPoint));
    VIRTUAL(CPane*, PaneFromPoint, (CPoint));
    STATIC(int, RectSideFromPoint, (const CRect&, const CPoint&));
    VIRTUAL(void, RemovePane, (CPane*, AFX_DOCK_METHOD));
    MEMBER(BOOL, ReplacePane, (CPane*, CPane*));
    VIRTUAL(void, RepositionPanes, (CRect&));
    VIRTUAL(BOOL, ShowPane, (CBasePane*, BOOL, BOOL, BOOL));
}

INTERFACE_OF(CDockingPanesRow) {
    BASE(CObject);
    MADE_FROM(CDockSite*, int, int);
    VIRTUAL(BOOL, Create, ());
    VIRTUAL(int, GetAvailableLength, (BOOL) const);
    CALL(GetAvailableLength);
    MEMBER(void, GetClientRect, (CRect&) const);
    MEMBER(CDockSite*, GetDockSite, () const);
    MEMBER(int, GetExtraSpace, () const);
    MEMBER(int, GetID, () const);
    MEMBER(int, GetMaxPaneSize, (BOOL) const);
    CALL(GetMaxPaneSize);
    MEMBER(int, GetPaneCount, () const);
    MEMBER(const CObList&, GetPaneList, () const);
    MEMBER(DWORD, GetRowAlignment, () const);
    MEMBER(int, GetRowHeight, () const);
    MEMBER(int, GetRowOffset, () const);
    VIRTUAL(int, GetVisibleCount, ());
    MEMBER(void, GetWindowRect, (CRect&) const);
    MEMBER(BOOL, HasPane, (CBasePane*));
    VIRTUAL(BOOL, IsEmpty, () const);
    VIRTUAL(BOOL, IsExclusiveRow, () const);
    MEMBER(bool, IsHorizontal, () const);
    VIRTUAL(BOOL, IsVisible, () const);
    MEMBER(void, RedrawAll, ());
    MEMBER(void, ScreenToClient, (CRect&) const);
    VIRTUAL(BOOL, ShowPane, (CPane*, BOOL, BOOL));
    CALL(ShowPane, CPane*, BOOL);
}

INTERFACE_OF(CPaneFrameWnd) {
    BASE(CWnd);
    VIRTUAL(void, AddPane, (CBasePane*));
    VIRTUAL(void, AdjustLayout, ());
    VIRTUAL(void, CalcBorderSize, (CRect&) const);
    VIRTUAL(BOOL, Create, (LPCTSTR, DWORD, const RECT&, CWnd*, CCreateContext*));
    CALL(Create, LPCTSTR, DWORD, const RECT&, CWnd*);
    VIRTUAL(BOOL, CreateEx, (DWORD, LPCTSTR, DWORD, const RECT&, CWnd*, CCreateContext*));
    CALL(CreateEx, DWORD, LPCTSTR, DWORD, const RECT&, CWnd*);
    STATIC(CBasePane*, FindFloatingPaneByID, (UINT));
    STATIC(CPaneFrameWnd*, FrameFromPoint, (CPoint, int, CPaneFrameWnd*, BOOL));
    CALL(FrameFromPoint, CPoint, int);
    VIRTUAL(int, GetCaptionHeight, () const);
    VIRTUAL(void, GetCaptionRect, (CRect&) const);
    VIRTUAL(CString, GetCaptionText, ());
    MEMBER(CDockingManager*, GetDockingManager, () const);
    VIRTUAL(AFX_DOCK_TYPE, GetDockingMode, () const);
    VIRTUAL(CWnd*, GetFirstVisiblePane, () const);
    MEMBER(CPoint, GetHotPoint, () const);
    VIRTUAL(CWnd*, GetPane, () const);
    VIRTUAL(int, GetPaneCount, () const);
    MEMBER(CRect, GetRecentFloatingRect, () const);
    VIRTUAL(int, GetVisiblePaneCount, () const);
    VIRTUAL(LRESULT, HitTest, (CPoint, BOOL));
    MEMBER(BOOL, IsCaptured, () const);
    MEMBER(BOOL, IsDelayShow, () const);
    VIRTUAL(BOOL, OnBeforeDock, ());
    VIRTUAL(void, OnDockToRecentPos, ());
    VIRTUAL(void, OnPaneRecalcLayout, ());
    VIRTUAL(CBasePane*, PaneFromPoint, (CPoint, int, BOOL));
    STATIC(void, RedrawAll, ());
    VIRTUAL(void, RemovePane, (CBasePane*, BOOL, BOOL));
    CALL(RemovePane, CBasePane*);
    VIRTUAL(void, ReplacePane, (CBasePane*, CBasePane*));
    VIRTUAL(void, SetCaptionButtons, (DWORD));
    MEMBER(void, SetDelayShow, (BOOL));
    MEMBER(void, SetDockingManager, (CDockingManager*));
    MEMBER(void, SetHotPoint, (CPoint&));
    VIRTUAL(void, SizeToContent, ());
    VIRTUAL(void, StoreRecentDockSiteInfo, (CPane*));
}

PROTECTED_INTERFACE_OF(CPaneFrameWnd) { VIRTUAL(void, OnDrawBorder, (CDC*)); }

INTERFACE_OF(CGlobalUtils) { MEMBER(CDockingManager*, GetDockingManager, (CWnd*)); }
