#pragma once

#include <afxwin.h>

// Items of the system's menus as buttons know them.
namespace toolbar {

/// Style of an item that begins a column, beside TBBS_BREAK: with a line before the column.
constexpr UINT kColumnLine = MAKELONG(0, 0x4000);

struct MenuItem {
    UINT id = 0; ///< (UINT)-1: opens a submenu
    CString text;
    UINT style = 0; ///< TBBS_; of an item that begins a column TBBS_BREAK, with kColumnLine or without
    BOOL isRadio = FALSE;
    HMENU submenu = nullptr;
    bool isDefault = false;
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
