#pragma once

#include "fx/frame.h"

class CMDIChildWnd;
class CMenu;

/// A frame whose client area is the system's MDI client window. Commands go to the active child first.
class FRAMEWORK_API CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)

public:
    CMDIFrameWnd();

    /// Makes the MDI client; called from OnCreateClient with the frame's menu. pWindowMenu (may be null) lists the
    /// children.
    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);
    /// A new child of the given class, made from the resources with nResource; NULL on failure.
    CMDIChildWnd* CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu = NULL, HACCEL hAccel = NULL);
    /// The popup that lists the children: the first that holds an item of the window-command range. NULL when none.
    virtual HMENU GetWindowMenuPopup(HMENU hMenuBar);

    void MDIActivate(CWnd* pWndActivate);
    /// NULL when no child is active.
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = NULL) const;
    void MDICascade();
    void MDICascade(int nType);
    void MDITile();
    void MDITile(int nType);
    void MDIIconArrange();
    void MDIMaximize(CWnd* pWnd);
    void MDIRestore(CWnd* pWnd);
    void MDINext();
    void MDIPrev();
    CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);

    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL) override;
    CFrameWnd* GetActiveFrame() override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnUpdateFrameMenu(HMENU hMenuAlt) override;
    void DelayUpdateFrameMenu(HMENU hMenuAlt) override;
    HWND GetMDIClient() const override { return m_hWndMDIClient; }

    HWND m_hWndMDIClient = NULL; ///< a child of the frame

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override;
    LRESULT DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnDestroy();
    afx_msg void OnUpdateMDIWindowCmd(CCmdUI* pCmdUI);
    afx_msg BOOL OnMDIWindowCmd(UINT nID);
    /// Another frame for the active child's document. Nothing without one.
    afx_msg void OnWindowNew();
    DECLARE_MESSAGE_MAP()

    friend class CMDIChildWnd; // shows the frame's own menu while it has none
};

/// A child window of an MDI client. Created with new; deletes itself.
class FRAMEWORK_API CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)

public:
    CMDIChildWnd();

    /// pParentWnd null means the application's main window, which must then be an MDI frame.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CMDIFrameWnd* pParentWnd = NULL, CCreateContext* pContext = NULL);
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                   CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL) override;

    CMDIFrameWnd* GetMDIFrame();
    void MDIActivate();
    void MDIDestroy();
    void MDIMaximize();
    void MDIRestore();
    /// Menu and table of this child's kind, shared with others and not owned.
    void SetHandles(HMENU hMenu, HACCEL hAccel);

    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    CWnd* GetMessageBar() override;
    /// Puts this child's menu (or `hMenuAlt`) into the MDI frame.
    void OnUpdateFrameMenu(HMENU hMenuAlt) override;
    /// Shows the document's title, here and in the MDI frame.
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    void ActivateFrame(int nCmdShow = -1) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    LRESULT DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()

    HMENU m_hMenuShared = NULL;
};
