#pragma once

#include "afxDockingManager.h"
#include "fx/frame.h"

class CMFCMenuBar;
class CMFCPopupMenu;
class CMFCRibbonBar;
class CMFCToolBarButton;

/// What CFrameWndEx and CMDIFrameWndEx share: docking manager, special panes, the open popup. Part of the frame.
class FRAMEWORK_API CFrameImpl {
public:
    explicit CFrameImpl(CFrameWnd* frame) : m_frame(frame) {}
    CFrameImpl(const CFrameImpl&) = delete;
    CFrameImpl& operator=(const CFrameImpl&) = delete;

    CDockingManager& DockingManager() { return m_dockingManager; }
    /// Before the frame's first pane is made.
    bool Create();
    /// The first ribbon among the panes, else null.
    CMFCRibbonBar* RibbonBar();
    /// The menu bar tells of itself; null when it goes away.
    void SetMenuBar(CMFCMenuBar* bar) { m_menuBar = bar; }
    CMFCMenuBar* MenuBar() const { return m_menuBar; }
    /// Hands a turn of the wheel above the ribbon to the ribbon, whoever has the focus. TRUE: the message is done.
    BOOL HandWheelToRibbon(const MSG& message);
    /// A key while the ribbon's keyboard is active comes before the accelerators, one that would start it (Alt, F10,
    /// Alt with a letter, Ctrl+F1) after them. A click ends the keyboard. TRUE: the message is done.
    BOOL HandActiveKeyToRibbon(const MSG& message);
    BOOL HandKeyToRibbon(const MSG& message);
    void OnShowPopupMenu(CMFCPopupMenu* popup);
    void OnClosePopupMenu(CMFCPopupMenu* popup);
    CMFCPopupMenu* ActivePopup() const { return m_activePopup; }

    UINT m_defaultResourceId = 0;
    bool m_isInLayout = false;

private:
    /// The ribbon, when the message is for the frame and what lies in it: a dialog's keys are its own.
    CMFCRibbonBar* RibbonForKeys(const MSG& message);

    CFrameWnd* m_frame;
    CDockingManager m_dockingManager;
    CMFCMenuBar* m_menuBar = nullptr;
    CMFCPopupMenu* m_activePopup = nullptr;
};
