#pragma once

#include "afx.h"
#include "framework_api.h"

#include <functional>

class CBitmap;
class CWnd;

/// A menu handle. An object made by the program owns its handle and destroys it; an object from FromHandle or
/// GetSubMenu may be a temporary one that lives until the next idle time and owns nothing.
class FRAMEWORK_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)
public:
    CMenu() = default;
    ~CMenu() override;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);
    BOOL DestroyMenu();

    /// The object takes the handle over. FALSE: hMenu is null.
    BOOL Attach(HMENU hMenu);
    /// Gives the handle up without destroying it.
    HMENU Detach();
    /// The object attached to the handle, else a temporary one; null for null.
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static CMenu* PASCAL FromHandlePermanent(HMENU hMenu);
    static void PASCAL DeleteTempMap();
    /// Null also for a null object.
    HMENU GetSafeHmenu() const;
    operator HMENU() const { return m_hMenu; }
    BOOL operator==(const CMenu& menu) const { return m_hMenu == menu.m_hMenu; }
    BOOL operator!=(const CMenu& menu) const { return m_hMenu != menu.m_hMenu; }

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL);
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);
    BOOL DeleteMenu(UINT nPosition, UINT nFlags);
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked, const CBitmap* pBmpChecked);

    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE);

    UINT GetMenuItemCount() const;
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    /// May be a temporary object; null when the item opens no submenu.
    CMenu* GetSubMenu(int nPos) const;
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const;
    BOOL SetMenuInfo(LPCMENUINFO lpcmi);
    DWORD GetMenuContextHelpId() const;
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId);

    /// Modal. Screen co-ordinates. With TPM_RETURNCMD the chosen command or 0. Goes through fx::SetPopupMenuRunner.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = 0);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);

    /// Owner-drawn items; the framework calls them for a menu whose object is permanent.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

    HMENU m_hMenu = nullptr;
};

namespace fx {

/// Runs a popup menu instead of the system, so that a test or a tool can answer it. Same meaning as TrackPopupMenuEx.
using PopupMenuRunner = std::function<BOOL(HMENU menu, UINT flags, int x, int y, HWND window, LPTPMPARAMS parameters)>;
/// Installs a runner and returns the one that was there; an empty one restores the system's.
FRAMEWORK_API PopupMenuRunner SetPopupMenuRunner(PopupMenuRunner runner);
FRAMEWORK_API BOOL RunPopupMenu(HMENU menu, UINT flags, int x, int y, HWND window, LPTPMPARAMS parameters);

} // namespace fx
