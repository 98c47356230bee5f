#pragma once

#include <afxwin.h>

// Items of the system's menus as buttons know them.
namespace toolbar {

struct MenuItem {
    UINT id = 0; ///< (UINT)-1: opens a submenu
    CString text;
    UINT style = 0; ///< TBBS_
    BOOL isRadio = FALSE;
    HMENU submenu = nullptr;
    bool isDefault = false;
    bool breaksColumn = false;
};

/// FALSE when there is no item at the position.
BOOL ReadMenuItem(HMENU menu, int position, MenuItem& item);

struct NewMenuItem {
    UINT id;
    CString text;
    UINT style;
    BOOL isRadio;
    HMENU submenu; ///< the menu takes it over
};
void AppendMenuItem(HMENU menu, const NewMenuItem& item);

} // namespace toolbar
