#pragma once

#include "afxDockingManager.h"
#include "fx/frame.h"

class CMFCMenuBar;
class CMFCPopupMenu;
class CMFCRibbonBar;
class CMFCToolBarButton;

/// What CFrameWndEx, CMDIFrameWndEx share: docking manager, special panes, active popup, keys. Part of the frame.
class FRAMEWORK_API CFrameImpl {
public:
    explicit CFrameImpl(CFrameWnd* frame) : m_frame(frame) {}

    CDockingManager& DockingManager() { return m_dockingManager; }
    bool Create();
    /// Places the panes; `notify` as in CFrameWnd::RecalcLayout.
    void RecalcLayout(BOOL notify);
    /// Keys that open a menu or belong to the ribbon. TRUE when the message is used up.
    bool PreTranslateMessage(MSG* message);
    /// A command that belongs to an open popup or the pane menu.
    bool OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);
    bool OnShowPopupMenu(CMFCPopupMenu* popup);
    void OnClosePopupMenu(CMFCPopupMenu* popup);
    bool OnMenuChar(UINT character);
    /// Hears of a bar that is the frame's menu or ribbon bar; null when it goes away.
    void SetMenuBar(CMFCMenuBar* bar) { m_menuBar = bar; }
    CMFCMenuBar* MenuBar() const { return m_menuBar; }
    CMFCRibbonBar* RibbonBar();
    CMFCPopupMenu* ActivePopup() const { return m_activePopup; }

    UINT m_defaultResourceId = 0;

private:
    CFrameWnd* m_frame;
    CDockingManager m_dockingManager;
    CMFCMenuBar* m_menuBar = nullptr;
    CMFCPopupMenu* m_activePopup = nullptr;
};
