// The window's own message map: what a parent passes back to the control that asked, and what goes on to children.
#include "afxmsg_.h"
#include "fx/app.h"
#include "fx/dc.h"
#include "window/thread_state.h"

#include <vector>

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_COMPAREITEM()
ON_WM_DELETEITEM()
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
ON_WM_CHARTOITEM()
ON_WM_VKEYTOITEM()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_PARENTNOTIFY()
ON_WM_CTLCOLOR()
ON_WM_NCDESTROY()
ON_WM_SYSCOLORCHANGE()
ON_WM_DEVMODECHANGE()
ON_WM_SETTINGCHANGE()
ON_MESSAGE(WM_TOUCH, &CWnd::OnTouchMessage)
END_MESSAGE_MAP()

namespace fx {
CDC* TemporaryDC(HDC dc) { return CDC::FromHandle(dc); }
} // namespace fx

namespace {

/// The menu, at any depth, that holds an item with the command.
HMENU FindMenuOf(HMENU menu, UINT command) {
    const int count = menu != nullptr ? ::GetMenuItemCount(menu) : 0;
    for (int position = 0; position < count; ++position) {
        if (HMENU popup = ::GetSubMenu(menu, position)) {
            if (HMENU found = FindMenuOf(popup, command)) {
                return found;
            }
        } else if (::GetMenuItemID(menu, position) == command) {
            return menu;
        }
    }
    return nullptr;
}

} // namespace

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(lpCompareItemStruct->hwndItem, &result) ? result : Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem)) {
        Default();
    }
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        if (CMenu* menu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem))) {
            menu->DrawItem(lpDrawItemStruct);
            return;
        }
    } else if (ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        return;
    }
    Default();
}

void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType == ODT_MENU) {
        // The message does not name the menu: the popup being tracked or the window's own holds the item.
        const UINT command = lpMeasureItemStruct->itemID;
        HMENU owner = FindMenuOf(fx::CurrentThread().trackedMenu, command);
        if (owner == nullptr) {
            owner = FindMenuOf(::GetMenu(m_hWnd), command);
        }
        if (CMenu* menu = CMenu::FromHandlePermanent(owner)) {
            menu->MeasureItem(lpMeasureItemStruct);
            return;
        }
    } else if (ReflectLastMsg(::GetDlgItem(m_hWnd, nIDCtl))) {
        return;
    }
    Default();
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT result = -1;
    CWnd* list = reinterpret_cast<CWnd*>(pListBox);
    return static_cast<int>(ReflectLastMsg(list->GetSafeHwnd(), &result) ? result : Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT result = -1;
    CWnd* list = reinterpret_cast<CWnd*>(pListBox);
    return static_cast<int>(ReflectLastMsg(list->GetSafeHwnd(), &result) ? result : Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !ReflectLastMsg(reinterpret_cast<CWnd*>(pScrollBar)->m_hWnd)) {
        Default();
    }
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !ReflectLastMsg(reinterpret_cast<CWnd*>(pScrollBar)->m_hWnd)) {
        Default();
    }
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const bool isAboutChild = message == WM_CREATE || message == WM_DESTROY;
    if (!isAboutChild || !ReflectLastMsg(reinterpret_cast<HWND>(lParam))) {
        Default();
    }
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT result = 0;
    if (pWnd != nullptr && ReflectLastMsg(pWnd->m_hWnd, &result)) {
        return reinterpret_cast<HBRUSH>(result);
    }
    return reinterpret_cast<HBRUSH>(Default());
}

// The system tells top-level windows only; their children draw with the same colours and settings.
void CWnd::OnSysColorChange() {
    if ((GetStyle() & WS_CHILD) == 0) {
        SendMessageToDescendants(WM_SYSCOLORCHANGE, 0, 0, TRUE, TRUE);
    }
    Default();
}

void CWnd::OnDevModeChange(LPTSTR lpDeviceName) {
    if ((GetStyle() & WS_CHILD) == 0) {
        SendMessageToDescendants(WM_DEVMODECHANGE, 0, reinterpret_cast<LPARAM>(lpDeviceName), TRUE, TRUE);
    }
    Default();
}

void CWnd::OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
    if ((GetStyle() & WS_CHILD) == 0) {
        SendMessageToDescendants(WM_SETTINGCHANGE, uFlags, reinterpret_cast<LPARAM>(lpszSection), TRUE, TRUE);
    }
    Default();
}

LRESULT CWnd::OnTouchMessage(WPARAM wParam, LPARAM lParam) {
    const auto handle = reinterpret_cast<HTOUCHINPUT>(lParam);
    std::vector<TOUCHINPUT> inputs(LOWORD(wParam));
    if (!inputs.empty() &&
        ::GetTouchInputInfo(handle, static_cast<UINT>(inputs.size()), inputs.data(), sizeof(TOUCHINPUT)) &&
        OnTouchInputs(static_cast<UINT>(inputs.size()), inputs.data())) {
        ::CloseTouchInputHandle(handle);
        return 0;
    }
    return Default();
}

BOOL CWnd::OnTouchInputs(UINT nInputsCount, PTOUCHINPUT pInputs) {
    BOOL isHandled = FALSE;
    for (UINT index = 0; index < nInputsCount; ++index) {
        // Touch positions are hundredths of a pixel.
        CPoint point(TOUCH_COORD_TO_PIXEL(pInputs[index].x), TOUCH_COORD_TO_PIXEL(pInputs[index].y));
        ScreenToClient(&point);
        isHandled |= OnTouchInput(point, static_cast<int>(index), static_cast<int>(nInputsCount), &pInputs[index]);
    }
    return isHandled;
}

BOOL CWnd::OnTouchInput(CPoint, int, int, PTOUCHINPUT) { return FALSE; }
