#include "fx/frame_impl.h"

#include "afxbasepane.h"
#include "afxpopupmenu.h"
#include "afxribbonbar.h"
#include "afxwinappex.h"
#include "frames/pane_entry.h"
#include "frames/window_list.h"
#include "fx/mdi.h"
#include "ribbon/keyboard.h"
#include "toolbar/user_tool_items.h"
#include "window/mouse_messages.h"

#include <windowsx.h>

void CFrameImpl::OnLoadFrame() {
    auto* const application = DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp());
    if (application && application->m_pszRegistryKey) {
        application->LoadState(nullptr, this);
    }
}

bool CFrameImpl::Create() { return m_dockingManager.Create(m_frame) != FALSE; }

CMFCRibbonBar* CFrameImpl::RibbonBar() {
    CObList panes;
    m_dockingManager.GetPaneList(panes);
    for (POSITION position = panes.GetHeadPosition(); position;) {
        auto* const pane = static_cast<CBasePane*>(panes.GetNext(position));
        if (pane->IsFrameRibbon()) {
            return DYNAMIC_DOWNCAST(CMFCRibbonBar, pane);
        }
    }
    return nullptr;
}

// The system sends the wheel to the focus. A window inside the ribbon that has both focus and pointer keeps it.
BOOL CFrameImpl::HandWheelToRibbon(const MSG& message) {
    if (message.message != WM_MOUSEWHEEL || ::GetCapture() || !m_frame->IsWindowEnabled()) {
        return FALSE;
    }
    const CMFCRibbonBar* const bar = RibbonBar();
    const HWND ribbon = bar ? bar->GetSafeHwnd() : nullptr;
    const HWND below = ::WindowFromPoint({GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)});
    const bool isOverRibbon = ribbon && (below == ribbon || ::IsChild(ribbon, below));
    if (!isOverRibbon || message.hwnd == below) {
        return FALSE;
    }
    ::SendMessageW(ribbon, message.message, message.wParam, message.lParam);
    return TRUE;
}

bool CFrameImpl::IsInputForFrame(const MSG& message) const {
    const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    const bool isMouse = (message.message > WM_MOUSEMOVE && message.message <= WM_MOUSELAST) ||
                         (message.message > WM_NCMOUSEMOVE && message.message <= WM_NCXBUTTONDBLCLK);
    return (isKey || isMouse) && m_frame->IsWindowEnabled() &&
           ::GetAncestor(message.hwnd, GA_ROOT) == m_frame->GetSafeHwnd();
}

CMFCRibbonBar* CFrameImpl::RibbonForKeys(const MSG& message) {
    if (!IsInputForFrame(message)) {
        return nullptr;
    }
    CMFCRibbonBar* bar = RibbonBar();
    return bar && bar->GetSafeHwnd() ? bar : nullptr;
}

BOOL CFrameImpl::HandActiveKeyToRibbon(const MSG& message) {
    CMFCRibbonBar* bar = RibbonForKeys(message);
    if (!bar) {
        return FALSE;
    }
    RibbonKeyboard& keyboard = bar->GetKeyboard();
    switch (message.message) {
    case WM_KEYDOWN:
        return keyboard.OnKeyDown(message);
    case WM_SYSKEYDOWN:
        // An accelerator may take the key: Alt was not pressed alone all the same.
        if (message.wParam != VK_MENU) {
            keyboard.OnOtherKey();
        }
        return keyboard.IsActive() && bar->OnSysKeyDown(m_frame, message.wParam, message.lParam);
    default:
        if (fx::IsMouseButtonDown(message.message)) {
            keyboard.OnMouseButton(message.hwnd);
        }
        return FALSE;
    }
}

BOOL CFrameImpl::HandKeyToRibbon(const MSG& message) {
    CMFCRibbonBar* bar = RibbonForKeys(message);
    if (!bar) {
        return FALSE;
    }
    switch (message.message) {
    case WM_KEYDOWN:
        if (message.wParam == VK_F1 && ::GetKeyState(VK_CONTROL) < 0 && bar->IsWindowVisible()) {
            bar->ToggleMimimizeState();
            return TRUE;
        }
        if (message.wParam == VK_F6 && ::GetKeyState(VK_CONTROL) >= 0) {
            return MoveFocusToNextPane(::GetKeyState(VK_SHIFT) >= 0);
        }
        return FALSE;
    case WM_SYSKEYDOWN:
        return !bar->GetKeyboard().IsActive() && bar->OnSysKeyDown(m_frame, message.wParam, message.lParam);
    case WM_KEYUP:
    case WM_SYSKEYUP:
        return bar->OnSysKeyUp(m_frame, message.wParam, message.lParam);
    default:
        return FALSE;
    }
}

BOOL CFrameImpl::MoveFocusToNextPane(BOOL forward) {
    const HWND next = m_dockingManager.FindNextFocus(::GetFocus(), forward);
    if (next == nullptr) {
        return FALSE;
    }
    CMFCRibbonBar* bar = RibbonBar();
    if (bar != nullptr && next == bar->GetSafeHwnd()) {
        bar->GetKeyboard().Activate();
    } else {
        ::SetFocus(next);
    }
    return TRUE;
}

void CFrameImpl::SetPaneEntry(UINT entry, bool showsToolbarsOnly) {
    m_paneEntry = entry;
    m_paneEntryShowsToolbarsOnly = showsToolbarsOnly;
}

void CFrameImpl::OnShowPopupMenu(CMFCPopupMenu* popup) {
    m_activePopup = popup;
    if (popup != nullptr) {
        toolbar::ShowUserTools(*popup);
    }
    auto* const mdiFrame = DYNAMIC_DOWNCAST(CMDIFrameWnd, m_frame);
    if (mdiFrame != nullptr && popup != nullptr) {
        ListChildWindows(*popup, *mdiFrame);
    }
    if (m_paneEntry != 0 && popup != nullptr) {
        CObList panes;
        m_dockingManager.GetPaneList(panes);
        ShowPanesInMenu(*popup, m_paneEntry, panes, m_paneEntryShowsToolbarsOnly);
    }
}

void CFrameImpl::OnClosePopupMenu(CMFCPopupMenu* popup) {
    if (m_activePopup == popup) {
        m_activePopup = popup->GetParentPopupMenu();
    }
}
