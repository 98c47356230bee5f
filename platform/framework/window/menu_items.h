#pragma once

#include "fx/menu.h"

namespace fx {

/// The number of a menu's items for loops over them: 0 where the system answers -1, because the handle names no menu (a
/// handler may have destroyed it).
inline UINT ItemCountOf(const CMenu& menu) {
    const int count = ::GetMenuItemCount(menu.m_hMenu);
    return count > 0 ? static_cast<UINT>(count) : 0;
}

} // namespace fx
