#include "popups/menu_watch.h"

#include "afxpopupmenu.h"
#include "afxpriv.h"
#include "fx/handle_bits.h"
#include "window/drag_window.h"
#include "window/input_filter.h"

#include <vector>

namespace {

HHOOK g_hook = nullptr;
CMFCPopupMenu* g_active = nullptr;

CMFCPopupMenu* RootOf(CMFCPopupMenu* menu) {
    while (menu && menu->GetParentPopupMenu()) {
        menu = menu->GetParentPopupMenu();
    }
    return menu;
}

bool IsButtonDown(UINT message) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
        return true;
    default:
        return false;
    }
}

CPoint ScreenPoint(const MSG& message) {
    CPoint point(static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam)));
    const bool isClient = message.message >= WM_MOUSEFIRST;
    if (isClient) {
        ::ClientToScreen(message.hwnd, &point);
    }
    return point;
}

/// The area that opened the chain: a click there closes it and must not open it again.
bool IsOnParentArea(CMFCPopupMenu* root, const MSG& message) {
    CRect area;
    CWnd* window = root->GetParentArea(area);
    if (!window || area.IsRectEmpty() || window->GetSafeHwnd() != message.hwnd) {
        return false;
    }
    window->ClientToScreen(&area);
    return area.PtInRect(ScreenPoint(message)) != FALSE;
}

BOOL OnOutsideClick(CMFCPopupMenu* active, const MSG& message) {
    CMFCPopupMenu* root = RootOf(active);
    const bool isOnOpener = IsOnParentArea(root, message);
    if (isOnOpener && root->IsClosedByOpener(message)) {
        return FALSE;
    }
    const bool isSwallowed = isOnOpener || !active->DefaultMouseClickOnClose();
    toolbar::CloseAllPopups();
    return isSwallowed;
}

bool IsOwnerOfChain(HWND window) {
    const HWND root = RootOf(g_active)->GetSafeHwnd();
    return root && fx::IsSameHandle(::GetWindow(root, GW_OWNER), window);
}

/// Whether a sent message ends the chain.
bool EndsChain(const CWPSTRUCT& sent) {
    switch (sent.message) {
    case WM_ACTIVATEAPP:
        return sent.wParam == FALSE;
    case WM_ACTIVATE:
        return LOWORD(sent.wParam) == WA_INACTIVE && IsOwnerOfChain(sent.hwnd) &&
               !toolbar::IsInOpenPopups(reinterpret_cast<HWND>(sent.lParam));
    case WM_MOVE:
    case WM_SIZE:
    case WM_CANCELMODE:
    case WM_ENTERSIZEMOVE:
    case WM_ENTERMENULOOP:
        return IsOwnerOfChain(sent.hwnd);
    case WM_ENABLE:
        return sent.wParam == FALSE && IsOwnerOfChain(sent.hwnd);
    default:
        return false;
    }
}

/// Pop-ups that belong to a window which is being destroyed must not outlive it.
void CloseOrphans(HWND destroyed) {
    for (CMFCPopupMenu* menu = g_active; menu; menu = menu->GetParentPopupMenu()) {
        if (menu->IsOpenedFor(destroyed)) {
            toolbar::ClosePopup(*menu);
            return;
        }
    }
}

/// Items and elements of the open pop-ups are brought up to date, as the main loop does when it has nothing else to do.
void UpdateOpenPopups() {
    std::vector<HWND> windows;
    for (const CMFCPopupMenu* menu = g_active; menu; menu = menu->GetParentPopupMenu()) {
        windows.push_back(menu->m_hWnd);
    }
    for (const HWND window : windows) {
        if (::IsWindow(window)) {
            ::SendMessageW(window, WM_IDLEUPDATECMDUI, TRUE, 0);
            CWnd::SendMessageToDescendants(window, WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
        }
    }
}

LRESULT CALLBACK OnSentMessage(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && g_active) {
        const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (sent.message == WM_DESTROY) {
            CloseOrphans(sent.hwnd);
        } else if (sent.message == WM_KICKIDLE && sent.lParam == 0) {
            UpdateOpenPopups(); // a modal loop, where the thread's own idle time does not come
        } else if (EndsChain(sent)) {
            toolbar::CloseAllPopups();
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace

CMFCPopupMenu* toolbar::ActivePopup() { return g_active; }

void toolbar::SetActivePopup(CMFCPopupMenu* active) {
    g_active = active;
    if (active && !g_hook) {
        g_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, OnSentMessage, nullptr, ::GetCurrentThreadId());
    } else if (!active && g_hook) {
        ::UnhookWindowsHookEx(g_hook);
        g_hook = nullptr;
    }
}

void toolbar::ClosePopup(const CMFCPopupMenu& popup) {
    if (popup.m_hWnd && !popup.IsClosing()) {
        ::SendMessageW(popup.m_hWnd, WM_CLOSE, 0, 0);
    }
}

void toolbar::CloseAllPopups() {
    while (g_active) {
        const CMFCPopupMenu* root = RootOf(g_active);
        ClosePopup(*root);
        // One that does not close itself now (it is closing already, or refuses) ends the loop.
        if (RootOf(g_active) == root) {
            return;
        }
    }
}

bool toolbar::IsInOpenPopups(HWND window) {
    for (CMFCPopupMenu* menu = g_active; window && menu; menu = menu->GetParentPopupMenu()) {
        if (menu->m_hWnd == window || ::IsChild(menu->m_hWnd, window)) {
            return true;
        }
    }
    return false;
}

BOOL toolbar::FilterMenuMessage(MSG* message) {
    CMFCPopupMenu* const active = g_active;
    if (fx::DragWindow::HasMouse()) {
        return FALSE; // Alt may be held, and Esc ends the drag; menus close at its end
    }
    if (!active || ::GetWindowThreadProcessId(active->m_hWnd, nullptr) != ::GetCurrentThreadId()) {
        return FALSE;
    }
    switch (message->message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP:
    case WM_CHAR:
    case WM_SYSCHAR:
    case WM_MOUSEWHEEL: {
        const CMFCPopupMenu::ChainInput input = active->OnChainMessage(*message);
        // What no key of the menu is may be a mnemonic once it has become a character.
        const bool isKey = message->message == WM_KEYDOWN || message->message == WM_SYSKEYDOWN;
        if (isKey && input == CMFCPopupMenu::ChainInput::Unused) {
            ::TranslateMessage(message);
        }
        return input != CMFCPopupMenu::ChainInput::ForWindow;
    }
    default:
        return IsButtonDown(message->message) && !IsInOpenPopups(message->hwnd) && OnOutsideClick(active, *message);
    }
}

// As the library is loaded, before a message is pumped.
[[maybe_unused]] static const bool g_isFilterSet = (fx::AddInputFilter(&toolbar::FilterMenuMessage), true);
