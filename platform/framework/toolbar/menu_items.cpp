#include "toolbar/menu_items.h"

#include "afxtoolbarbutton.h"

BOOL toolbar::ReadMenuItem(HMENU menu, int position, MenuItem& item) {
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING;
    if (!::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info)) {
        return FALSE;
    }
    if (info.cch > 0) {
        ++info.cch;
        info.dwTypeData = item.text.GetBuffer(static_cast<int>(info.cch));
        ::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
        item.text.ReleaseBuffer();
    }
    if (info.fType & MFT_SEPARATOR) {
        item.style = TBBS_SEPARATOR;
        return TRUE;
    }
    item.submenu = info.hSubMenu;
    item.id = info.hSubMenu ? static_cast<UINT>(-1) : info.wID;
    item.style = (info.fState & MFS_CHECKED ? TBBS_CHECKED : 0u) | (info.fState & MFS_DISABLED ? TBBS_DISABLED : 0u);
    item.isRadio = (info.fType & MFT_RADIOCHECK) != 0;
    item.isDefault = (info.fState & MFS_DEFAULT) != 0;
    item.breaksColumn = (info.fType & (MFT_MENUBREAK | MFT_MENUBARBREAK)) != 0;
    return TRUE;
}

void toolbar::AppendMenuItem(HMENU menu, const NewMenuItem& item) {
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING;
    if (item.style & TBBS_SEPARATOR) {
        info.fMask = MIIM_FTYPE;
        info.fType = MFT_SEPARATOR;
    } else {
        info.wID = item.id;
        info.dwTypeData = const_cast<LPWSTR>(static_cast<LPCWSTR>(item.text));
        info.fState = (item.style & TBBS_CHECKED ? MFS_CHECKED : 0) | (item.style & TBBS_DISABLED ? MFS_DISABLED : 0);
        info.fType = item.isRadio ? MFT_RADIOCHECK : 0;
        if (item.submenu) {
            info.fMask |= MIIM_SUBMENU;
            info.hSubMenu = item.submenu;
        }
    }
    ::InsertMenuItemW(menu, static_cast<UINT>(::GetMenuItemCount(menu)), TRUE, &info);
}
