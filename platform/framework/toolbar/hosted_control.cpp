#include "toolbar/hosted_control.h"

#include "afxcontextmenumanager.h"
#include "fx/window_guard.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

namespace toolbar {

namespace {

bool AsksForColor(UINT message) {
    return message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX || message == WM_CTLCOLORSTATIC;
}

/// Stands before the window of a toolbar with controls, once for each of them; `id` is the control's window.
LRESULT CALLBACK BarProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                         DWORD_PTR data) noexcept {
    const auto control = reinterpret_cast<HWND>(id);
    const bool isFromControl = reinterpret_cast<HWND>(lParam) == control;
    if (message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(window, &BarProc, id);
    } else if (message == WM_COMMAND && isFromControl && data == static_cast<DWORD_PTR>(Hears::Button)) {
        const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam); // the control itself, and the bar
        if (CMFCToolBar* const bar = CMFCToolBar::FromHandlePermanent(window); bar && ::IsWindow(control)) {
            RouteNotification(*bar, control, wParam);
        }
        return result;
    } else if (AsksForColor(message) && isFromControl) {
        const CMFCToolBar* const bar = CMFCToolBar::FromHandlePermanent(window);
        CMFCToolBarButton* const button = bar ? ButtonWith(*bar, control) : nullptr;
        CDC* const context = CDC::FromHandle(reinterpret_cast<HDC>(wParam));
        if (const HBRUSH brush = button ? button->OnCtlColor(context, message - WM_CTLCOLORMSGBOX) : nullptr) {
            return reinterpret_cast<LRESULT>(brush);
        }
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace

void HostControl(CWnd& bar, HWND control, Hears hears) {
    ::SetWindowSubclass(bar.GetSafeHwnd(), &BarProc, reinterpret_cast<UINT_PTR>(control),
                        static_cast<DWORD_PTR>(hears));
}

void ReleaseControl(HWND control) {
    ::RemoveWindowSubclass(::GetParent(control), &BarProc, reinterpret_cast<UINT_PTR>(control));
}

void ShowControl(CWnd& control, bool isShown) {
    if (isShown != ((control.GetStyle() & WS_VISIBLE) != 0)) {
        control.ShowWindow(isShown ? SW_SHOWNOACTIVATE : SW_HIDE);
    }
}

void RouteNotification(CMFCToolBar& bar, HWND control, WPARAM wParam) {
    const fx::WindowGuard guard(&bar);
    CMFCToolBarButton* const button = ButtonWith(bar, control);
    const BOOL isCommand = button && button->NotifyCommand(HIWORD(wParam));
    const CWnd* const target = bar.GetRouteCommandsViaFrame() ? bar.GetTopLevelFrame() : bar.GetOwner();
    // Of a larger id the message has the low 16 bits alone, which are another command's.
    const bool isWhole = static_cast<UINT>(::GetDlgCtrlID(control)) == LOWORD(wParam);
    if (target && isWhole) {
        ::SendMessageW(target->m_hWnd, WM_COMMAND, wParam, reinterpret_cast<LPARAM>(control));
    }
    if (isCommand && guard.IsAlive()) {
        bar.ProcessCommand(ButtonWith(bar, control));
    }
    if (guard.IsAlive()) {
        bar.InvalidateButton(bar.ButtonToIndex(ButtonWith(bar, control)));
    }
}

bool IsKeyOfEdit(const MSG& message) {
    if (message.message == WM_CHAR) {
        return true;
    }
    if (message.message != WM_KEYDOWN) {
        return false;
    }
    const auto key = static_cast<UINT>(message.wParam);
    const bool isControlHeld = ::GetKeyState(VK_CONTROL) < 0;
    if (isControlHeld) {
        constexpr std::array<int, 11> keys{'A',      'C',     'V',    'X',       'Z',      VK_LEFT,
                                           VK_RIGHT, VK_HOME, VK_END, VK_INSERT, VK_DELETE};
        return std::ranges::find(keys, static_cast<int>(key)) != keys.end();
    }
    const bool isFunctionKey = key >= VK_F1 && key <= VK_F24;
    return !isFunctionKey && key != VK_RETURN && key != VK_ESCAPE && key != VK_TAB;
}

void GiveKeyToEdit(const MSG& message) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
}

BOOL ShowEditMenu(UINT uiMenuResID, CWnd& edit, CPoint screen) {
    if (uiMenuResID == 0 || !afxContextMenuManager) {
        return FALSE;
    }
    if (screen == CPoint(-1, -1)) { // asked for by a key
        CRect window;
        edit.GetWindowRect(&window);
        screen = CPoint(window.left, window.bottom);
    }
    return afxContextMenuManager->ShowPopupMenu(uiMenuResID, screen.x, screen.y, &edit);
}

} // namespace toolbar
