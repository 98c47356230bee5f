// What a button opens: its menu or its sub-items, in a ribbon pop-up.
#include <afxribbonbutton.h>

#include <afxribbonpanelmenu.h>

#include "ribbon/menu_items.h"

namespace {

// A menu's submenus and a row's sub-items open beside the row.
CMFCRibbonPanelMenu::Side SideFor(const CMFCRibbonButton& button) {
    if (button.IsMenuMode()) {
        return CMFCRibbonPanelMenu::Side::Beside;
    }
    return button.IsRightAlignMenu() ? CMFCRibbonPanelMenu::Side::BelowAtRight : CMFCRibbonPanelMenu::Side::Below;
}

} // namespace

void CMFCRibbonButton::OnShowPopupMenu() {
    if (IsDroppedDown()) {
        // A row's menu stays open, as in every menu.
        if (!ShowsMenuRow()) {
            ClosePopupMenu();
        }
        return;
    }
    CMFCRibbonBaseElement::OnShowPopupMenu();
    if (IsDisabled() || (m_hMenu == nullptr && m_arSubItems.IsEmpty())) {
        return;
    }
    CMFCRibbonPanelMenu* menu = nullptr;
    if (m_hMenu == nullptr) {
        menu = new CMFCRibbonPanelMenu(m_arSubItems);
    } else {
        menu = new CMFCRibbonPanelMenu;
        AskHostForMenu(GetCommandTarget(), m_hMenu);
        for (auto& item : MakeMenuItems(m_hMenu, *this)) {
            menu->GetRibbonMenuBar().AddOwnElement(std::move(item));
        }
    }
    menu->GetRibbonMenuBar().SetDefaultMenuLook(IsPopupDefaultMenuLook());
    menu->OpenFor(this, SideFor(*this));
}
