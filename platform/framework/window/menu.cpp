#include "fx/menu.h"

#include "fx/app.h"
#include "fx/gdi_objects.h"
#include "window/thread_state.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

fx::PopupMenuRunner g_popupMenuRunner;

LPCTSTR BitmapItem(const CBitmap* bitmap) { return reinterpret_cast<LPCTSTR>(bitmap->GetSafeHandle()); }

} // namespace

CMenu::~CMenu() { DestroyMenu(); }

BOOL CMenu::CreateMenu() { return Attach(::CreateMenu()); }
BOOL CMenu::CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}
BOOL CMenu::LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }
BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate) { return Attach(::LoadMenuIndirect(lpMenuTemplate)); }

BOOL CMenu::DestroyMenu() {
    if (m_hMenu == nullptr) {
        return FALSE;
    }
    return ::DestroyMenu(Detach());
}

BOOL CMenu::Attach(HMENU hMenu) {
    ASSERT(m_hMenu == nullptr);
    if (hMenu == nullptr) {
        return FALSE;
    }
    m_hMenu = hMenu;
    fx::CurrentThread().menus.SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach() {
    fx::CurrentThread().menus.RemovePermanent(m_hMenu, this);
    return std::exchange(m_hMenu, nullptr);
}

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu) { return fx::CurrentThread().menus.LookupPermanent(hMenu); }
CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) {
    return fx::CurrentThread().menus.FromHandle(hMenu, RUNTIME_CLASS(CMenu), fx::HandlerDepth());
}
void PASCAL CMenu::DeleteTempMap() { fx::CurrentThread().menus.DeleteTemp(); }

HMENU CMenu::GetSafeHmenu() const { return this == nullptr ? nullptr : m_hMenu; }

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem) {
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}
BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}
BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem) {
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}
BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}
BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}
BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}
BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) {
    return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}
BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) {
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}
BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) {
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}
BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked, const CBitmap* pBmpChecked) {
    const auto handle = [](const CBitmap* bitmap) {
        return bitmap != nullptr ? static_cast<HBITMAP>(bitmap->GetSafeHandle()) : nullptr;
    };
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, handle(pBmpUnchecked), handle(pBmpChecked));
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck) { return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck); }
BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}
UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
}
BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos) {
    return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
}
UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos) {
    return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
}

UINT CMenu::GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
UINT CMenu::GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const {
    return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}
int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length <= 0) {
        rString.Empty();
        return 0;
    }
    ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length + 1), length + 1, nFlags);
    rString.ReleaseBuffer();
    return rString.GetLength();
}
CMenu* CMenu::GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
BOOL CMenu::GetMenuInfo(LPMENUINFO lpcmi) const { return ::GetMenuInfo(m_hMenu, lpcmi); }
BOOL CMenu::SetMenuInfo(LPCMENUINFO lpcmi) { return ::SetMenuInfo(m_hMenu, lpcmi); }
DWORD CMenu::GetMenuContextHelpId() const { return ::GetMenuContextHelpId(m_hMenu); }
BOOL CMenu::SetMenuContextHelpId(DWORD dwContextHelpId) { return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId); }

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    if (lpRect == nullptr) {
        return TrackPopupMenuEx(nFlags, x, y, pWnd, nullptr);
    }
    TPMPARAMS parameters = {sizeof(parameters), *lpRect};
    return TrackPopupMenuEx(nFlags, x, y, pWnd, &parameters);
}
BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    return fx::RunPopupMenu(m_hMenu, fuFlags, x, y, pWnd->GetSafeHwnd(), lptpm);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}
void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}

namespace fx {

PopupMenuRunner SetPopupMenuRunner(PopupMenuRunner runner) {
    return std::exchange(g_popupMenuRunner, std::move(runner));
}

BOOL RunPopupMenu(HMENU menu, UINT flags, int x, int y, HWND window, LPTPMPARAMS parameters) {
    const HMENU outer = std::exchange(CurrentThread().trackedMenu, menu);
    BOOL result = FALSE;
    if (g_popupMenuRunner) {
        // A copy: the runner may install another one.
        const PopupMenuRunner runner = g_popupMenuRunner;
        result = runner(menu, flags, x, y, window, parameters);
    } else {
        result = ::TrackPopupMenuEx(menu, flags, x, y, window, parameters);
    }
    CurrentThread().trackedMenu = outer;
    return result;
}

} // namespace fx
