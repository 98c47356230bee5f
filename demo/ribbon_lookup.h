#pragma once

#include <afxcontrolbars.h>

#include "menu_id_mgr.h"

/// The command's element of that class in the bar's categories; null when there is none.
template <class Element>
Element* FindElement(const CMFCRibbonBar& ribbon, const wchar_t* keyword) {
    int id = 0;
    if (!CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
        return nullptr;
    }
    return DYNAMIC_DOWNCAST(Element, ribbon.FindByID(static_cast<UINT>(id), FALSE, TRUE));
}
