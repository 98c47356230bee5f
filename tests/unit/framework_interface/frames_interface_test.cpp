#include "interface.h"

#include "afxdialogex.h"
#include "afxext.h"
#include "afxframewndex.h"
#include "afxMDIChildWndEx.h"
#include "afxMDIFrameWndEx.h"
#include "afxwin.h"

INTERFACE_OF(CDialog) {
    BASE(CWnd);
    MADE_FROM(LPCTSTR, CWnd*);
    MADE_FROM(UINT, CWnd*);
    MADE_FROM();
    VIRTUAL(BOOL, Create, (LPCTSTR, CWnd*));
    CALL(Create, LPCTSTR);
    VIRTUAL(void, OnSetFont, (CFont*));
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
    MEMBER(void, SetBackgroundImage, (HBITMAP, CDialogEx::BackgroundLocation, BOOL, BOOL));
    CALL(SetBackgroundImage, HBITMAP);
    MEMBER(BOOL, SetBackgroundImage, (UINT, CDialogEx::BackgroundLocation, BOOL));
    CALL(SetBackgroundImage, UINT);
}

INTERFACE_OF(CFrameWnd) {
    BASE(CWnd);
    MADE_FROM();
    VIRTUAL(void, ActivateFrame, (int));
    CALL(ActivateFrame);
    VIRTUAL(CDocument*, GetActiveDocument, ());
    VIRTUAL(void, BeginModalState, ());
    VIRTUAL(BOOL, Create, (LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, LPCTSTR, DWORD, CCreateContext*));
    CALL(Create, LPCTSTR, LPCTSTR);
    MEMBER(CWnd*, CreateView, (CCreateContext*, UINT));
    CALL(CreateView, CCreateContext*);
    VIRTUAL(void, EndModalState, ());
    VIRTUAL(CFrameWnd*, GetActiveFrame, ());
    MEMBER(CView*, GetActiveView, () const);
    MEMBER(CControlBar*, GetControlBar, (UINT));
    VIRTUAL(DWORD, GetMenuBarState, ());
    VIRTUAL(DWORD, GetMenuBarVisibility, ());
    VIRTUAL(CWnd*, GetMessageBar, ());
    VIRTUAL(void, GetMessageString, (UINT, CString&) const);
    MEMBER(CString, GetTitle, () const);
    MEMBER(void, InitialUpdateFrame, (CDocument*, BOOL));
    MEMBER(BOOL, InModalState, () const);
    MEMBER(BOOL, IsTracking, () const);
    MEMBER(BOOL, LoadAccelTable, (LPCTSTR));
    VIRTUAL(BOOL, LoadFrame, (UINT, DWORD, CWnd*, CCreateContext*));
    CALL(LoadFrame, UINT);
    MEMBER(BOOL, OnBarCheck, (UINT));
    MEMBER(void, LoadBarState, (LPCTSTR));
    MEMBER(void, SaveBarState, (LPCTSTR) const);
    MEMBER(void, OnUpdateControlBarMenu, (CCmdUI*));
    VIRTUAL(void, RecalcLayout, (BOOL));
    CALL(RecalcLayout);
    MEMBER(void, SetActiveView, (CView*, BOOL));
    CALL(SetActiveView, CView*);
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

// What frames with docked panes document alike: all three of them, and the two main frames among them.
#define FRAME_WITH_PANES                                                                                               \
    MEMBER(BOOL, AddPane, (CBasePane*, BOOL));                                                                         \
    CALL(AddPane, CBasePane*);                                                                                         \
    VIRTUAL(void, AdjustDockingLayout, (HDWP));                                                                        \
    CALL(AdjustDockingLayout);                                                                                         \
    MEMBER(void, DockPane, (CBasePane*, UINT, LPCRECT));                                                               \
    CALL(DockPane, CBasePane*);                                                                                        \
    MEMBER(BOOL, DockPaneLeftOf, (CPane*, CPane*));                                                                    \
    MEMBER(BOOL, EnableDocking, (DWORD));                                                                              \
    MEMBER(CBasePane*, GetPane, (UINT));                                                                               \
    MEMBER(BOOL, InsertPane, (CBasePane*, CBasePane*, BOOL));                                                          \
    CALL(InsertPane, CBasePane*, CBasePane*);                                                                          \
    MEMBER(BOOL, IsPointNearDockSite, (CPoint, DWORD&, BOOL&) const);                                                  \
    VIRTUAL(BOOL, OnMoveMiniFrame, (CWnd*));                                                                           \
    MEMBER(CBasePane*, PaneFromPoint, (CPoint, int, bool, CRuntimeClass*) const);                                      \
    VIRTUAL(void, RecalcLayout, (BOOL));                                                                               \
    CALL(RecalcLayout);                                                                                                \
    MEMBER(void, RemovePaneFromDockManager, (CBasePane*, BOOL, BOOL, BOOL, CBasePane*));                               \
    MEMBER(void, ShowPane, (CBasePane*, BOOL, BOOL, BOOL))

#define MAIN_FRAME_WITH_PANES                                                                                          \
    FRAME_WITH_PANES;                                                                                                  \
    MEMBER(void, EnableLoadDockState, (BOOL));                                                                         \
    CALL(EnableLoadDockState);                                                                                         \
    VIRTUAL(BOOL, OnCloseMiniFrame, (CPaneFrameWnd*));                                                                 \
    MEMBER(void, EnablePaneMenu, (BOOL, UINT, const CString&, UINT, BOOL, BOOL));                                      \
    CALL(EnablePaneMenu, BOOL, UINT, const CString&, UINT);                                                            \
    MEMBER(CMFCPopupMenu*, GetActivePopup, () const);                                                                  \
    MEMBER(UINT, GetDefaultResId, () const);                                                                           \
    MEMBER(const CMFCMenuBar*, GetMenuBar, () const);                                                                  \
    MEMBER(CMFCRibbonBar*, GetRibbonBar, ());                                                                          \
    VIRTUAL(BOOL, GetToolbarButtonToolTipText, (CMFCToolBarButton*, CString&));                                        \
    MEMBER(BOOL, IsMenuBarAvailable, () const);                                                                        \
    VIRTUAL(BOOL, LoadFrame, (UINT, DWORD, CWnd*, CCreateContext*));                                                   \
    CALL(LoadFrame, UINT);                                                                                             \
    VIRTUAL(void, OnClosePopupMenu, (CMFCPopupMenu*));                                                                 \
    VIRTUAL(BOOL, OnCmdMsg, (UINT, int, void*, AFX_CMDHANDLERINFO*));                                                  \
    VIRTUAL(BOOL, OnDrawMenuImage, (CDC*, const CMFCToolBarMenuButton*, const CRect&));                                \
    VIRTUAL(BOOL, OnShowPanes, (BOOL));                                                                                \
    VIRTUAL(BOOL, OnShowPopupMenu, (CMFCPopupMenu*));                                                                  \
    VIRTUAL(void, OnUpdateFrameMenu, (HMENU));                                                                         \
    CALL(WinHelp, DWORD)

INTERFACE_OF(CFrameWndEx) {
    BASE(CFrameWnd);
    MAIN_FRAME_WITH_PANES;
    VIRTUAL(void, DelayUpdateFrameMenu, (HMENU));
    MEMBER(LRESULT, OnToolbarCreateNew, (WPARAM, LPARAM));
    MEMBER(LRESULT, OnToolbarDelete, (WPARAM, LPARAM));
    MEMBER(CDockingManager*, GetDockingManager, ());
    MEMBER(LRESULT, OnChangeVisualManager, (WPARAM, LPARAM));
    MEMBER(void, OnClose, ());
    MEMBER(int, OnCreate, (LPCREATESTRUCT));
    MEMBER(void, OnGetMinMaxInfo, (MINMAXINFO FAR*));
    MEMBER(BOOL, OnNcActivate, (BOOL));
    MEMBER(void, OnNcCalcSize, (BOOL, NCCALCSIZE_PARAMS FAR*));
    MEMBER(LRESULT, OnNcHitTest, (CPoint));
    MEMBER(void, OnNcPaint, ());
    MEMBER(BOOL, OnPaneCheck, (UINT));
    MEMBER(LRESULT, OnSetText, (WPARAM, LPARAM));
    MEMBER(void, OnSize, (UINT, int, int));
    MEMBER(void, OnSysColorChange, ());
    VIRTUAL(void, OnUpdateFrameTitle, (BOOL));
    MEMBER(void, OnUpdatePaneMenu, (CCmdUI*));
    MEMBER(void, OnWindowPosChanged, (WINDOWPOS FAR*));
    VIRTUAL(BOOL, PreTranslateMessage, (MSG*));
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
    MAIN_FRAME_WITH_PANES;
    VIRTUAL(void, AdjustClientArea, ());
    NAMED(CreateObject);
    NAMED(GetThisClass);
    VIRTUAL(void, OnSizeMDIClient, (const CRect&, const CRect&));
    NAMED(PreTranslateMessage);
}

INTERFACE_OF(CMDIChildWndEx) {
    BASE(CMDIChildWnd);
    FRAME_WITH_PANES;
    VIRTUAL(void, ActivateTopLevelFrame, ());
    VIRTUAL(BOOL, CanShowOnWindowsList, ());
    NAMED(CreateObject);
    MEMBER(CDockingManager*, GetDockingManager, ());
    VIRTUAL(HICON, GetFrameIcon, () const);
    VIRTUAL(CString, GetFrameText, () const);
    NAMED(GetThisClass);
    VIRTUAL(BOOL, IsReadOnly, ());
    VIRTUAL(void, OnUpdateFrameTitle, (BOOL));
    NAMED(PreTranslateMessage);
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

INTERFACE_OF(CMiniFrameWnd) {
    BASE(CFrameWnd);
    MADE_FROM();
    VIRTUAL(BOOL, Create, (LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT));
    CALL(Create, LPCTSTR, LPCTSTR, DWORD, const RECT&);
    VIRTUAL(BOOL, CreateEx, (DWORD, LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT));
    CALL(CreateEx, DWORD, LPCTSTR, LPCTSTR, DWORD, const RECT&);
}
