#include "toolbar/menu_items.h"

#include "afxtoolbarbutton.h"

namespace {

UINT ColumnStyle(UINT type) {
    return (type & MFT_MENUBARBREAK) != 0 ? TBBS_BREAK | toolbar::kColumnLine
           : (type & MFT_MENUBREAK) != 0  ? static_cast<UINT>(TBBS_BREAK)
                                          : 0u;
}

UINT ColumnType(UINT style) {
    return (style & TBBS_BREAK) == 0 ? 0u : (style & toolbar::kColumnLine) != 0 ? MFT_MENUBARBREAK : MFT_MENUBREAK;
}

} // namespace

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
        item.style = TBBS_SEPARATOR | ColumnStyle(info.fType);
        return TRUE;
    }
    item.submenu = info.hSubMenu;
    item.id = info.hSubMenu ? static_cast<UINT>(-1) : info.wID;
    item.style = (info.fState & MFS_CHECKED ? TBBS_CHECKED : 0u) | (info.fState & MFS_DISABLED ? TBBS_DISABLED : 0u) |
                 ColumnStyle(info.fType);
    item.isRadio = (info.fType & MFT_RADIOCHECK) != 0;
    item.isDefault = (info.fState & MFS_DEFAULT) != 0;
    return TRUE;
}

void toolbar::AppendMenuItem(HMENU menu, const NewMenuItem& item) {
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING;
    if (item.style & TBBS_SEPARATOR) {
        info.fMask = MIIM_FTYPE;
        info.fType = MFT_SEPARATOR | ColumnType(item.style);
    } else {
        info.wID = item.id;
        info.dwTypeData = const_cast<LPWSTR>(static_cast<LPCWSTR>(item.text));
        info.fState = (item.style & TBBS_CHECKED ? MFS_CHECKED : 0) | (item.style & TBBS_DISABLED ? MFS_DISABLED : 0);
        info.fType = (item.isRadio ? MFT_RADIOCHECK : 0u) | ColumnType(item.style);
        if (item.submenu) {
            info.fMask |= MIIM_SUBMENU;
            info.hSubMenu = item.submenu;
        }
    }
    ::InsertMenuItemW(menu, static_cast<UINT>(::GetMenuItemCount(menu)), TRUE, &info);
}
