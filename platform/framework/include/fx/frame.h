#pragma once

#include "fx/bar_styles.h"
#include "fx/wnd.h"

#include <afxcoll.h>

#include <vector>

class CControlBar;
class CDockingManager;
class CDocument;
class CMFCPopupMenu;
class CMFCToolBarButton;
class CMFCToolBarMenuButton;
class CPaneFrameWnd;
class CView;
struct CCreateContext;

/// A frame whose title takes the document's name in front of its own.
#define FWS_ADDTOTITLE 0x00008000L
/// The title is "document - frame" instead of "frame - document".
#define FWS_PREFIXTITLE 0x00004000L
#define FWS_SNAPTOBARS 0x00002000L

/// Values of GetMenuBarState / SetMenuBarState and of the visibility.
#define AFX_MBS_VISIBLE 0x01L
#define AFX_MBS_HIDDEN 0x02L
#define AFX_MBV_KEEPVISIBLE 0x01L
#define AFX_MBV_DISPLAYONFOCUS 0x02L
#define AFX_MBV_DISPLAYONF10 0x04L

/// Bits that say what a frame does at its next idle time (m_nIdleFlags).
enum FrameIdleFlags { idleMenu = 1, idleTitle = 2, idleNotify = 4, idleLayout = 8 };

/// A top-level or MDI child frame window: it holds menu, accelerator table, title, bars around its client area and
/// routes commands (active view, itself, then the application; derived frames put their active child in front). Create
/// it with new: the object deletes itself after WM_NCDESTROY.
class FRAMEWORK_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)

public:
    static const CRect rectDefault;

    CFrameWnd();
    ~CFrameWnd() override;

    /// Both return FALSE when the window could not be made; the object is then deleted unless it was never attached.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = NULL, LPCTSTR lpszMenuName = NULL,
                        DWORD dwExStyle = 0, CCreateContext* pContext = NULL);
    /// Takes menu, accelerator table, icon and title (first part of the string) from the resources with one id. Missing
    /// menu, table or string leave the frame without it.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL);

    /// Loads the table from the resources; FALSE when there is none. The frame must not have a table yet.
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    /// Replaces the table and destroys the former one, unless it is the same or came from the resources.
    void ReplaceAccelTable(HACCEL newTable);

    /// A view of pContext->m_pNewViewClass, child of the frame. NULL when it cannot be made.
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);
    /// The view that commands go to first; NULL when there is none.
    CView* GetActiveView() const { return m_pViewActive; }
    /// That of the active view; NULL when there is none.
    virtual CDocument* GetActiveDocument();
    /// NULL leaves the frame without an active view. bNotify: the new view is told.
    void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);
    /// After Create: makes the view with id AFX_IDW_PANE_FIRST active when none is, lets all views update and, with
    /// bMakeVisible, shows the frame. pDoc may be NULL.
    void InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible);

    virtual void ActivateFrame(int nCmdShow = -1);
    virtual CFrameWnd* GetActiveFrame();
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    /// Lays out at the next idle time.
    void DelayRecalcLayout(BOOL bNotify = TRUE);
    /// Lets the control bars take their strips; `place` as in WM_SIZEPARENT.
    void PlaceControlBars(AFX_SIZEPARENTPARAMS& place);

    void BeginModalState() override;
    void EndModalState() override;
    BOOL InModalState() const { return m_modalDepth > 0; }
    void ShowOwnedWindows(BOOL bShow);

    /// The bar that shows messages: the child with the status bar's id. NULL when there is none.
    virtual CWnd* GetMessageBar();
    /// The prompt of a command: the first line of the string resource with that id, empty when there is none.
    virtual void GetMessageString(UINT nID, CString& rMessage) const;
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);

    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }
    /// Shows the frame's title and, with bAddToTitle, that of the active frame's document.
    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);
    /// Among the frames that show its document, from 1; 0 for the only one. The next update of the title shows it.
    void SetWindowNumber(int number) { m_windowNumber = number; }
    virtual void OnUpdateFrameMenu(HMENU hMenuAlt);
    /// Sets the title at the next idle time.
    void DelayUpdateTitle() { m_nIdleFlags |= idleTitle; }
    /// Sets the menu at the next idle time.
    virtual void DelayUpdateFrameMenu(HMENU hMenuAlt);

    virtual DWORD GetMenuBarState();
    virtual BOOL SetMenuBarState(DWORD nState);
    virtual DWORD GetMenuBarVisibility();
    virtual void SetMenuBarVisibility(DWORD nStyle);

    CControlBar* GetControlBar(UINT nID);
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
    /// Which control bars are shown, in the application's settings. lpszProfileName: how the names of the sections
    /// begin. Bars of which nothing was kept stay as they are.
    void LoadBarState(LPCTSTR lpszProfileName);
    void SaveBarState(LPCTSTR lpszProfileName) const;
    BOOL IsTracking() const { return m_nIDTracking != 0; }
    afx_msg BOOL OnBarCheck(UINT nID);
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);

    /// A control bar says where it belongs; the frame does not own it.
    void AddControlBar(CControlBar* bar);
    void RemoveControlBar(CControlBar* bar);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    /// TRUE: the menu is shown by a bar of the frame's, so that the system's menu stays away. NULL: nothing new to
    /// show.
    virtual BOOL ShowInMenuBar(HMENU) { return FALSE; }
    /// NULL unless the frame docks panes.
    virtual CDockingManager* FindDockingManager() { return NULL; }
    /// What menus and toolbars ask the frame that they belong to; only the extended frames have answers.
    /// FALSE: the menu is not shown.
    virtual BOOL OnShowPopupMenu(CMFCPopupMenu*) { return TRUE; }
    virtual void OnClosePopupMenu(CMFCPopupMenu*) {}
    /// The user closes a mini frame, or has moved it. FALSE from the first: it stays open.
    virtual BOOL OnCloseMiniFrame(CPaneFrameWnd*) { return TRUE; }
    virtual BOOL OnMoveMiniFrame(CWnd*) { return TRUE; }
    /// TRUE: the image is drawn.
    virtual BOOL OnDrawMenuImage(CDC*, const CMFCToolBarMenuButton*, const CRect&) { return FALSE; }
    /// TRUE: the text is the button's tooltip.
    virtual BOOL GetToolbarButtonToolTipText(CMFCToolBarButton*, CString&) { return FALSE; }
    /// The system's window around the MDI children. NULL unless this is an MDI frame.
    virtual HWND GetMDIClient() const { return NULL; }

    BOOL m_bAutoMenuEnable = TRUE; ///< items without a handler are disabled when their menu opens
    HACCEL m_hAccelTable = NULL;   ///< current table, NULL when none; replace it with ReplaceAccelTable

protected:
    /// The base makes the view that the context names, if any.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    virtual void OnShowMenuBar();
    virtual void OnHideMenuBar();
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    /// Deletes the frame, unless its destructor is what destroys the window.
    void PostNcDestroy() override;
    /// What each frame's destructor begins with: destroys the window while the members that it needs are there.
    void EndWindow();
    /// The table that translates keys now; an MDI child's comes before the frame's own.
    virtual HACCEL GetDefaultAccelerator();
    /// Registers (once) a class with the icon of that id; NULL when there is no such icon.
    LPCTSTR GetIconWndClass(DWORD style, UINT resourceId);
    /// Whether a frame routes the next command past the application, because the caller asks that itself afterwards.
    static void LeaveApplicationOut(CFrameWnd& frame, BOOL bLeaveOut) { frame.m_leavesApplicationOut = bLeaveOut; }
    /// "Plan", or "Plan:2" in one of several frames; empty without a document.
    CString DocumentTitle();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    /// The main frame asks the application to save what was changed; any other has no objection.
    afx_msg BOOL OnQueryEndSession();
    /// The main frame is destroyed and the application exits, so that both have stored what they keep.
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnInitMenuPopup(CMenu* pMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnExitMenuLoop(BOOL bIsTrackPopupMenu);
    /// Opens each of the files, where the frame takes any (DragAcceptFiles).
    afx_msg void OnDropFiles(HDROP hDropInfo);
    /// ID_INDICATOR_CAPS, _NUM, _SCRL and _KANA are enabled while their key is on.
    afx_msg void OnUpdateKeyIndicator(CCmdUI* pCmdUI);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPopMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnToolTipText(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

    HMENU m_hMenuDefault = NULL; ///< the frame's own menu
    HMENU m_hMenuAlt = NULL;     ///< set at the next idle time when idleMenu is on
    UINT m_nIDHelp = 0;          ///< the id given to LoadFrame
    UINT m_nIDTracking = 0;      ///< menu item under the cursor
    UINT m_nIDLastMessage = 0;   ///< id of the message shown last, 0 for plain text
    UINT m_nIdleFlags = 0;       ///< FrameIdleFlags
    CString m_strTitle;          ///< the frame's own title, without a document
    CObList m_listControlBars;   ///< CControlBar, not owned
    CView* m_pViewActive = NULL; ///< not owned
    BOOL m_isAccelTableOwned = FALSE;

private:
    BOOL CreateWithMenu(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent, HMENU menu,
                        DWORD exStyle, CCreateContext* context);
    void UpdateMenuItem(CCmdUI& state, CMenu& menu);
    void ShowDelayedBars();

    void LeaveDocument();

    int m_windowNumber = 0;
    int m_modalDepth = 0;
    std::vector<HWND> m_disabledWindows; ///< by BeginModalState
    bool m_isEnding = false;             ///< the destructor runs
    bool m_isInLayout = false;
    BOOL m_leavesApplicationOut = FALSE; ///< for the next command
    bool m_isMenuBarShownForKeys = false;
    DWORD m_menuBarState = AFX_MBS_VISIBLE;
    DWORD m_menuBarVisibility = AFX_MBV_KEEPVISIBLE;
    CString m_toolTipText; ///< kept while a tooltip shows it
};
