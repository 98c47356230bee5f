#include "interface.h"

#include "afxDockingManager.h"
#include "afxMDIChildWndEx.h"
#include "afxMDIFrameWndEx.h"
#include "afxPane.h"
#include "afxbasepane.h"
#include "afxdialogex.h"
#include "afxext.h"
#include "afxframewndex.h"
#include "afxrecentDockSiteInfo.h"
#include "afxwin.h"

INTERFACE_OF(CDialog) {
    BASE(CWnd);
    MADE_FROM(LPCTSTR, CWnd*);
    MADE_FROM(UINT, CWnd*);
    MADE_FROM();
    VIRTUAL(BOOL, Create, (LPCTSTR, CWnd*));
    CALL(Create, LPCTSTR);
    VIRTUAL(BOOL, Create, (UINT, CWnd*));
    CALL(Create, UINT);
    VIRTUAL(BOOL, CreateIndirect, (LPCDLGTEMPLATE, CWnd*, void*));
    CALL(CreateIndirect, LPCDLGTEMPLATE);
    VIRTUAL(BOOL, CreateIndirect, (HGLOBAL, CWnd*));
    CALL(CreateIndirect, HGLOBAL);
    VIRTUAL(INT_PTR, DoModal, ());
    MEMBER(void, EndDialog, (int));
    MEMBER(DWORD, GetDefID, () const);
    MEMBER(void, GotoDlgCtrl, (CWnd*));
    MEMBER(BOOL, InitModalIndirect, (LPCDLGTEMPLATE, CWnd*, void*));
    CALL(InitModalIndirect, LPCDLGTEMPLATE);
    MEMBER(BOOL, InitModalIndirect, (HGLOBAL, CWnd*));
    CALL(InitModalIndirect, HGLOBAL);
    MEMBER(void, MapDialogRect, (LPRECT) const);
    MEMBER(void, NextDlgCtrl, () const);
    VIRTUAL(BOOL, OnInitDialog, ());
    MEMBER(void, PrevDlgCtrl, () const);
    MEMBER(void, SetDefID, (UINT));
    MEMBER(void, SetHelpID, (UINT));
}

PROTECTED_INTERFACE_OF(CDialog) {
    VIRTUAL(void, OnCancel, ());
    VIRTUAL(void, OnOK, ());
}

INTERFACE_OF(CDialogEx) {
    BASE(CDialog);
    MADE_FROM(UINT, CWnd*);
    MADE_FROM(LPCTSTR, CWnd*);
    MEMBER(void, SetBackgroundColor, (COLORREF, BOOL));
    CALL(SetBackgroundColor, COLORREF);
    CALL(SetBackgroundImage, HBITMAP);
    CALL(SetBackgroundImage, UINT);
}

INTERFACE_OF(CFrameWnd) {
    BASE(CWnd);
    MADE_FROM();
    VIRTUAL(void, ActivateFrame, (int));
    CALL(ActivateFrame);
    VIRTUAL(void, BeginModalState, ());
    VIRTUAL(BOOL, Create, (LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, LPCTSTR, DWORD, CCreateContext*));
    CALL(Create, LPCTSTR, LPCTSTR);
    VIRTUAL(void, EndModalState, ());
    VIRTUAL(CFrameWnd*, GetActiveFrame, ());
    MEMBER(CControlBar*, GetControlBar, (UINT));
    VIRTUAL(DWORD, GetMenuBarState, ());
    VIRTUAL(DWORD, GetMenuBarVisibility, ());
    VIRTUAL(CWnd*, GetMessageBar, ());
    VIRTUAL(void, GetMessageString, (UINT, CString&) const);
    MEMBER(CString, GetTitle, () const);
    MEMBER(BOOL, InModalState, () const);
    MEMBER(BOOL, IsTracking, () const);
    MEMBER(BOOL, LoadAccelTable, (LPCTSTR));
    VIRTUAL(BOOL, LoadFrame, (UINT, DWORD, CWnd*, CCreateContext*));
    CALL(LoadFrame, UINT);
    MEMBER(BOOL, OnBarCheck, (UINT));
    MEMBER(void, OnUpdateControlBarMenu, (CCmdUI*));
    VIRTUAL(void, RecalcLayout, (BOOL));
    CALL(RecalcLayout);
    VIRTUAL(BOOL, SetMenuBarState, (DWORD));
    VIRTUAL(void, SetMenuBarVisibility, (DWORD));
    MEMBER(void, SetMessageText, (LPCTSTR));
    MEMBER(void, SetMessageText, (UINT));
    MEMBER(void, SetTitle, (LPCTSTR));
    MEMBER(void, ShowControlBar, (CControlBar*, BOOL, BOOL));
    MEMBER(void, ShowOwnedWindows, (BOOL));
    DATA(BOOL, m_bAutoMenuEnable);
    STATIC_DATA(const CRect, rectDefault);
}

PROTECTED_INTERFACE_OF(CFrameWnd) {
    VIRTUAL(BOOL, OnCreateClient, (LPCREATESTRUCT, CCreateContext*));
    VIRTUAL(void, OnHideMenuBar, ());
    VIRTUAL(void, OnShowMenuBar, ());
}

INTERFACE_OF(CFrameWndEx) {
    BASE(CFrameWnd);
    MEMBER(BOOL, AddPane, (CBasePane*, BOOL));
    CALL(AddPane, CBasePane*);
    VIRTUAL(void, AdjustDockingLayout, (HDWP));
    CALL(AdjustDockingLayout);
    VIRTUAL(void, DelayUpdateFrameMenu, (HMENU));
    MEMBER(void, DockPane, (CBasePane*, UINT, LPCRECT));
    CALL(DockPane, CBasePane*);
    MEMBER(BOOL, DockPaneLeftOf, (CPane*, CPane*));
    MEMBER(BOOL, EnableDocking, (DWORD));
    MEMBER(void, EnablePaneMenu, (BOOL, UINT, const CString&, UINT, BOOL, BOOL));
    CALL(EnablePaneMenu, BOOL, UINT, const CString&, UINT);
    MEMBER(CMFCPopupMenu*, GetActivePopup, () const);
    MEMBER(UINT, GetDefaultResId, () const);
    MEMBER(CDockingManager*, GetDockingManager, ());
    MEMBER(const CMFCMenuBar*, GetMenuBar, () const);
    MEMBER(CBasePane*, GetPane, (UINT));
    MEMBER(CMFCRibbonBar*, GetRibbonBar, ());
    VIRTUAL(BOOL, GetToolbarButtonToolTipText, (CMFCToolBarButton*, CString&));
    MEMBER(BOOL, InsertPane, (CBasePane*, CBasePane*, BOOL));
    CALL(InsertPane, CBasePane*, CBasePane*);
    MEMBER(BOOL, IsMenuBarAvailable, () const);
    VIRTUAL(BOOL, LoadFrame, (UINT, DWORD, CWnd*, CCreateContext*));
    CALL(LoadFrame, UINT);
    MEMBER(LRESULT, OnChangeVisualManager, (WPARAM, LPARAM));
    VIRTUAL(void, OnClosePopupMenu, (CMFCPopupMenu*));
    VIRTUAL(BOOL, OnCmdMsg, (UINT, int, void*, AFX_CMDHANDLERINFO*));
    MEMBER(int, OnCreate, (LPCREATESTRUCT));
    VIRTUAL(BOOL, OnDrawMenuImage, (CDC*, const CMFCToolBarMenuButton*, const CRect&));
    MEMBER(BOOL, OnPaneCheck, (UINT));
    VIRTUAL(BOOL, OnShowPanes, (BOOL));
    VIRTUAL(BOOL, OnShowPopupMenu, (CMFCPopupMenu*));
    MEMBER(void, OnSize, (UINT, int, int));
    VIRTUAL(void, OnUpdateFrameMenu, (HMENU));
    VIRTUAL(void, OnUpdateFrameTitle, (BOOL));
    MEMBER(void, OnUpdatePaneMenu, (CCmdUI*));
    VIRTUAL(BOOL, PreTranslateMessage, (MSG*));
    VIRTUAL(void, RecalcLayout, (BOOL));
    CALL(RecalcLayout);
    MEMBER(void, RemovePaneFromDockManager, (CBasePane*, BOOL, BOOL, BOOL, CBasePane*));
    MEMBER(void, ShowPane, (CBasePane*, BOOL, BOOL, BOOL));
    CALL(WinHelp, DWORD);
}

INTERFACE_OF(CMDIFrameWnd) {
    BASE(CFrameWnd);
    MADE_FROM();
    VIRTUAL(BOOL, CreateClient, (LPCREATESTRUCT, CMenu*));
    MEMBER(CMDIChildWnd*, CreateNewChild, (CRuntimeClass*, UINT, HMENU, HACCEL));
    CALL(CreateNewChild, CRuntimeClass*, UINT);
    VIRTUAL(HMENU, GetWindowMenuPopup, (HMENU));
    MEMBER(void, MDIActivate, (CWnd*));
    MEMBER(void, MDICascade, ());
    MEMBER(void, MDICascade, (int));
    MEMBER(CMDIChildWnd*, MDIGetActive, (BOOL*) const);
    CALL(MDIGetActive);
    MEMBER(void, MDIIconArrange, ());
    MEMBER(void, MDIMaximize, (CWnd*));
    MEMBER(void, MDINext, ());
    MEMBER(void, MDIPrev, ());
    MEMBER(void, MDIRestore, (CWnd*));
    MEMBER(CMenu*, MDISetMenu, (CMenu*, CMenu*));
    MEMBER(void, MDITile, ());
    MEMBER(void, MDITile, (int));
}

INTERFACE_OF(CMDIChildWnd) {
    BASE(CFrameWnd);
    MADE_FROM();
    VIRTUAL(BOOL, Create, (LPCTSTR, LPCTSTR, DWORD, const RECT&, CMDIFrameWnd*, CCreateContext*));
    CALL(Create, LPCTSTR, LPCTSTR);
    MEMBER(CMDIFrameWnd*, GetMDIFrame, ());
    MEMBER(void, MDIActivate, ());
    MEMBER(void, MDIDestroy, ());
    MEMBER(void, MDIMaximize, ());
    MEMBER(void, MDIRestore, ());
    MEMBER(void, SetHandles, (HMENU, HACCEL));
}

INTERFACE_OF(CMDIFrameWndEx) {
    BASE(CMDIFrameWnd);
    MEMBER(BOOL, AddPane, (CBasePane*, BOOL));
    CALL(AddPane, CBasePane*);
    VIRTUAL(void, AdjustClientArea, ());
    VIRTUAL(void, AdjustDockingLayout, (HDWP));
    CALL(AdjustDockingLayout);
    NAMED(CreateObject);
    MEMBER(void, DockPane, (CBasePane*, UINT, LPCRECT));
    CALL(DockPane, CBasePane*);
    MEMBER(BOOL, DockPaneLeftOf, (CPane*, CPane*));
    MEMBER(BOOL, EnableDocking, (DWORD));
    MEMBER(void, EnablePaneMenu, (BOOL, UINT, const CString&, UINT, BOOL, BOOL));
    CALL(EnablePaneMenu, BOOL, UINT, const CString&, UINT);
    MEMBER(CMFCPopupMenu*, GetActivePopup, () const);
    MEMBER(CBasePane*, GetPane, (UINT));
    MEMBER(UINT, GetDefaultResId, () const);
    MEMBER(const CMFCMenuBar*, GetMenuBar, () const);
    MEMBER(CMFCRibbonBar*, GetRibbonBar, ());
    NAMED(GetThisClass);
    VIRTUAL(BOOL, GetToolbarButtonToolTipText, (CMFCToolBarButton*, CString&));
    MEMBER(BOOL, InsertPane, (CBasePane*, CBasePane*, BOOL));
    CALL(InsertPane, CBasePane*, CBasePane*);
    MEMBER(BOOL, IsMenuBarAvailable, () const);
    VIRTUAL(BOOL, LoadFrame, (UINT, DWORD, CWnd*, CCreateContext*));
    CALL(LoadFrame, UINT);
    VIRTUAL(void, OnClosePopupMenu, (CMFCPopupMenu*));
    VIRTUAL(BOOL, OnCmdMsg, (UINT, int, void*, AFX_CMDHANDLERINFO*));
    VIRTUAL(BOOL, OnDrawMenuImage, (CDC*, const CMFCToolBarMenuButton*, const CRect&));
    VIRTUAL(BOOL, OnShowPanes, (BOOL));
    VIRTUAL(BOOL, OnShowPopupMenu, (CMFCPopupMenu*));
    VIRTUAL(void, OnSizeMDIClient, (const CRect&, const CRect&));
    VIRTUAL(void, OnUpdateFrameMenu, (HMENU));
    NAMED(PreTranslateMessage);
    VIRTUAL(void, RecalcLayout, (BOOL));
    CALL(RecalcLayout);
    MEMBER(void, RemovePaneFromDockManager, (CBasePane*, BOOL, BOOL, BOOL, CBasePane*));
    MEMBER(void, ShowPane, (CBasePane*, BOOL, BOOL, BOOL));
    CALL(WinHelp, DWORD);
}

INTERFACE_OF(CMDIChildWndEx) {
    BASE(CMDIChildWnd);
    VIRTUAL(void, ActivateTopLevelFrame, ());
    MEMBER(BOOL, AddPane, (CBasePane*, BOOL));
    CALL(AddPane, CBasePane*);
    VIRTUAL(void, AdjustDockingLayout, (HDWP));
    CALL(AdjustDockingLayout);
    VIRTUAL(BOOL, CanShowOnWindowsList, ());
    NAMED(CreateObject);
    MEMBER(void, DockPane, (CBasePane*, UINT, LPCRECT));
    CALL(DockPane, CBasePane*);
    MEMBER(BOOL, DockPaneLeftOf, (CPane*, CPane*));
    MEMBER(BOOL, EnableDocking, (DWORD));
    MEMBER(CDockingManager*, GetDockingManager, ());
    VIRTUAL(HICON, GetFrameIcon, () const);
    VIRTUAL(CString, GetFrameText, () const);
    MEMBER(CBasePane*, GetPane, (UINT));
    NAMED(GetThisClass);
    MEMBER(BOOL, InsertPane, (CBasePane*, CBasePane*, BOOL));
    CALL(InsertPane, CBasePane*, CBasePane*);
    VIRTUAL(BOOL, IsReadOnly, ());
    VIRTUAL(void, OnUpdateFrameTitle, (BOOL));
    NAMED(PreTranslateMessage);
    VIRTUAL(void, RecalcLayout, (BOOL));
    CALL(RecalcLayout);
    MEMBER(void, RemovePaneFromDockManager, (CBasePane*, BOOL, BOOL, BOOL, CBasePane*));
    MEMBER(void, ShowPane, (CBasePane*, BOOL, BOOL, BOOL));
}

INTERFACE_OF(CControlBar) {
    BASE(CWnd);
    VIRTUAL(CSize, CalcDynamicLayout, (int, DWORD));
    VIRTUAL(CSize, CalcFixedLayout, (BOOL, BOOL));
    VIRTUAL(void, CalcInsideRect, (CRect&, BOOL) const);
    VIRTUAL(void, DoPaint, (CDC*));
    VIRTUAL(void, DrawBorders, (CDC*, CRect&));
    MEMBER(DWORD, GetBarStyle, ());
    MEMBER(CRect, GetBorders, () const);
    MEMBER(int, GetCount, () const);
    MEMBER(CFrameWnd*, GetDockingFrame, () const);
    MEMBER(BOOL, IsFloating, () const);
    VIRTUAL(void, OnUpdateCmdUI, (CFrameWnd*, BOOL));
    MEMBER(void, SetBarStyle, (DWORD));
    MEMBER(void, SetBorders, (int, int, int, int));
    CALL(SetBorders);
    MEMBER(void, SetBorders, (LPCRECT));
    MEMBER(void, SetInPlaceOwner, (CWnd*));
    DATA(BOOL, m_bAutoDelete);
    DATA(CWnd*, m_pInPlaceOwner);
}

INTERFACE_OF(CStatusBar) {
    BASE(CControlBar);
    MADE_FROM();
    MEMBER(int, CommandToIndex, (UINT) const);
    VIRTUAL(BOOL, Create, (CWnd*, DWORD, UINT));
    CALL(Create, CWnd*);
    VIRTUAL(BOOL, CreateEx, (CWnd*, DWORD, DWORD, UINT));
    CALL(CreateEx, CWnd*);
    VIRTUAL(void, DrawItem, (LPDRAWITEMSTRUCT));
    MEMBER(UINT, GetItemID, (int) const);
    MEMBER(void, GetItemRect, (int, LPRECT) const);
    MEMBER(void, GetPaneInfo, (int, UINT&, UINT&, int&) const);
    MEMBER(UINT, GetPaneStyle, (int) const);
    MEMBER(CString, GetPaneText, (int) const);
    MEMBER(void, GetPaneText, (int, CString&) const);
    MEMBER(CStatusBarCtrl&, GetStatusBarCtrl, () const);
    MEMBER(BOOL, SetIndicators, (const UINT*, int));
    MEMBER(void, SetPaneInfo, (int, UINT, UINT, int));
    MEMBER(void, SetPaneStyle, (int, UINT));
    MEMBER(BOOL, SetPaneText, (int, LPCTSTR, BOOL));
    CALL(SetPaneText, int, LPCTSTR);
}

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
    VIRTUAL(BOOL, CreateEx, (DWORD, LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT, DWORD, CCreateContext*));
    CALL(CreateEx, DWORD, LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT);
    VIRTUAL(BOOL, DockPane, (CBasePane*, LPCRECT, AFX_DOCK_METHOD));
    VIRTUAL(BOOL, DockToFrameWindow, (DWORD, LPCRECT, DWORD, CBasePane*, int, BOOL));
    CALL(DockToFrameWindow, DWORD);
    VIRTUAL(BOOL, DoesAllowDynInsertBefore, () const);
    VIRTUAL(void, EnableDocking, (DWORD));
    VIRTUAL(void, EnableGripper, (BOOL));
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
    NAMED(CreateObject);
    VIRTUAL(BOOL, DockPane, (CBasePane*, LPCRECT, AFX_DOCK_METHOD));
    VIRTUAL(BOOL, DockToFrameWindow, (DWORD, LPCRECT, DWORD, CBasePane*, int, BOOL));
    CALL(DockToFrameWindow, DWORD);
    VIRTUAL(BOOL, DoesAllowSiblingBars, () const);
    VIRTUAL(int, GetAvailableExpandSize, () const);
    VIRTUAL(int, GetAvailableStretchSize, () const);
    MEMBER(CRect, GetBorders, () const);
    MEMBER(CDockingPanesRow*, GetDockSiteRow, () const);
    VIRTUAL(BOOL, GetExclusiveRowMode, () const);
    VIRTUAL(void, GetMinSize, (CSize&) const);
    VIRTUAL(void, GetPaneName, (CString&) const);
    NAMED(GetThisClass);
    VIRTUAL(BOOL, IsDragMode, () const);
    VIRTUAL(BOOL, IsInFloatingMultiPaneFrameWnd, () const);
    VIRTUAL(BOOL, IsResizable, () const);
    VIRTUAL(BOOL, IsTabbed, () const);
    VIRTUAL(BOOL, LoadState, (LPCTSTR, int, UINT));
    CALL(LoadState);
    VIRTUAL(void, OnAfterChangeParent, (CWnd*));
    VIRTUAL(void, OnBeforeChangeParent, (CWnd*, BOOL));
    CALL(OnBeforeChangeParent, CWnd*);
    VIRTUAL(void, OnPressCloseButton, ());
    VIRTUAL(BOOL, OnShowControlBarMenu, (CPoint));
    VIRTUAL(void, RecalcLayout, ());
    VIRTUAL(BOOL, SaveState, (LPCTSTR, int, UINT));
    CALL(SaveState);
    MEMBER(void, SetBorders, (int, int, int, int));
    CALL(SetBorders);
    MEMBER(void, SetBorders, (LPCRECT));
    VIRTUAL(void, SetExclusiveRowMode, (BOOL));
    CALL(SetExclusiveRowMode);
    MEMBER(void, SetMinSize, (const CSize&));
    VIRTUAL(void, UndockPane, (BOOL));
    CALL(UndockPane);
    DATA(CRecentDockSiteInfo, m_recentDockInfo);
}

PROTECTED_INTERFACE_OF(CPane) {
    VIRTUAL(void, OnAfterDock, (CBasePane*, LPCRECT, AFX_DOCK_METHOD));
    VIRTUAL(BOOL, OnBeforeDock, (CBasePane**, LPCRECT, AFX_DOCK_METHOD));
}

INTERFACE_OF(CDockingManager) {
    BASE(CObject);
    MEMBER(BOOL, AddPane, (CBasePane*, BOOL, BOOL, BOOL));
    CALL(AddPane, CBasePane*);
    VIRTUAL(void, AdjustDockingLayout, (HDWP));
    CALL(AdjustDockingLayout);
    MEMBER(BOOL, Create, (CFrameWnd*));
    MEMBER(void, DockPane, (CBasePane*, UINT, LPCRECT));
    CALL(DockPane, CBasePane*);
    MEMBER(BOOL, DockPaneLeftOf, (CPane*, CPane*));
    MEMBER(BOOL, EnableDocking, (DWORD));
    MEMBER(void, EnablePaneContextMenu, (BOOL, UINT, const CString&, BOOL));
    CALL(EnablePaneContextMenu, BOOL, UINT, const CString&);
    VIRTUAL(CBasePane*, FindPaneByID, (UINT, BOOL));
    CALL(FindPaneByID, UINT);
    MEMBER(CRect, GetClientAreaBounds, () const);
    MEMBER(void, GetClientAreaBounds, (CRect&));
    STATIC(AFX_DOCK_TYPE, GetDockingMode, ());
    MEMBER(CFrameWnd*, GetDockSiteFrameWnd, () const);
    MEMBER(CRect, GetOuterEdgeBounds, () const);
    MEMBER(void, GetPaneList, (CObList&, BOOL, CRuntimeClass*, BOOL));
    CALL(GetPaneList, CObList&);
    MEMBER(BOOL, InsertPane, (CBasePane*, CBasePane*, BOOL));
    CALL(InsertPane, CBasePane*, CBasePane*);
    MEMBER(BOOL, IsInAdjustLayout, () const);
    VIRTUAL(BOOL, LoadState, (LPCTSTR, UINT));
    CALL(LoadState);
    MEMBER(void, LockUpdate, (BOOL));
    MEMBER(void, OnPaneContextMenu, (CPoint));
    VIRTUAL(CBasePane*, PaneFromPoint, (CPoint, int, bool, CRuntimeClass*, BOOL, const CBasePane*) const);
    CALL(PaneFromPoint, CPoint, int);
    CALL(PaneFromPoint, CPoint, int, DWORD&);
    VIRTUAL(void, RecalcLayout, (BOOL));
    CALL(RecalcLayout);
    MEMBER(void, RemovePaneFromDockManager, (CBasePane*, BOOL, BOOL, BOOL, CBasePane*));
    CALL(RemovePaneFromDockManager, CBasePane*, BOOL, BOOL);
    VIRTUAL(BOOL, SaveState, (LPCTSTR, UINT));
    CALL(SaveState);
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
