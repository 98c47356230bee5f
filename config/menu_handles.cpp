#include "config/menu_handles.h"

#include <vector>

void DestroyMenuTree(HMENU menu) {
    if (!::IsMenu(menu)) {
        return;
    }
    // The system would go into the popups by recursion, one level of stack for each of theirs.
    std::vector<HMENU> menus{menu};
    for (std::size_t next = 0; next < menus.size(); ++next) {
        const HMENU current = menus[next];
        for (int item = ::GetMenuItemCount(current) - 1; item >= 0; --item) {
            if (const HMENU popup = ::GetSubMenu(current, item)) {
                ::RemoveMenu(current, static_cast<UINT>(item), MF_BYPOSITION);
                menus.push_back(popup);
            }
        }
    }
    for (const HMENU each : menus) {
        ::DestroyMenu(each);
    }
}
