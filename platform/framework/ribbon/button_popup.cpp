// What a button opens: its sub-items, among them the items of its menu, in a ribbon pop-up.
#include <afxribbonbutton.h>

#include <memory>

#include "fx/ribbon_host.h"
#include "fx/window_guard.h"
#include "ribbon/menu_items.h"

namespace {

using Side = RibbonPopups::Side;

// A menu's submenus and a row's sub-items open beside the row.
Side SideFor(const CMFCRibbonButton& button) {
    if (button.IsMenuMode()) {
        return Side::Beside;
    }
    return button.IsRightAlignMenu() ? Side::BelowAtRight : Side::Below;
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
    if (m_hMenu != nullptr) {
        AskHostForMenu(GetCommandTarget(), m_hMenu);
        RefreshMenuItems();
    }
    const auto look = IsPopupDefaultMenuLook() ? RibbonPopups::Look::PlainMenu : RibbonPopups::Look::Ribbon;
    RibbonPopups::Get().OpenItems(*this, m_arSubItems, SideFor(*this), look);
}

// ---- the menu

void CMFCRibbonButton::SetMenu(HMENU hMenu, BOOL bIsDefaultCommand, BOOL bRightAlign) {
    TakeMenu(hMenu, nullptr, bIsDefaultCommand, bRightAlign);
}

void CMFCRibbonButton::SetMenu(UINT uiMenuResID, BOOL bIsDefaultCommand, BOOL bRightAlign) {
    auto menu = std::make_shared<CMenu>();
    HMENU shown = nullptr;
    if (menu->LoadMenu(uiMenuResID)) {
        // A menu of the resources is a bar; what opens is the popup in it.
        const CMenu* const popup = menu->GetMenuItemCount() == 1 ? menu->GetSubMenu(0) : nullptr;
        shown = popup != nullptr ? popup->m_hMenu : menu->m_hMenu;
    }
    TakeMenu(shown, shown != nullptr ? menu : nullptr, bIsDefaultCommand, bRightAlign);
}

// Copies that follow get the same menu; its items come to them as every sub-item does.
void CMFCRibbonButton::TakeMenu(HMENU menu, const std::shared_ptr<CMenu>& loaded, BOOL isDefaultCommand,
                                BOOL rightAlign) {
    std::vector<CMFCRibbonButton*> changed = CollectFollowers();
    changed.push_back(this);
    for (CMFCRibbonButton* button : changed) {
        button->m_hMenu = menu;
        button->m_pLoadedMenu = loaded;
        button->m_bIsDefaultCommand = isDefaultCommand;
        button->m_bRightAlignMenu = rightAlign;
    }
    MakeMenuItems();
    for (CMFCRibbonButton* button : changed) {
        button->OnMenuChanged();
    }
}

void CMFCRibbonButton::MakeMenuItems() {
    int place = -1; // of the first of the former items; new ones come there
    for (int index = static_cast<int>(m_arSubItems.GetSize()); index-- > 0;) {
        if (IsMenuItem(*m_arSubItems[index])) {
            RemoveSubItem(index);
            place = index;
        }
    }
    m_strMenuContent = ContentOf(m_hMenu);
    for (auto& item : ::MakeMenuItems(m_hMenu)) {
        AddSubItem(item.release(), place); // the button owns it from here
        place += place >= 0 ? 1 : 0;
    }
}

// What was removed from among the items stays away, and what was added stays, until the menu itself changes.
void CMFCRibbonButton::RefreshMenuItems() {
    auto* original = m_bFollowsOriginal ? DYNAMIC_DOWNCAST(CMFCRibbonButton, GetOriginal()) : nullptr;
    if (original != nullptr) {
        original->RefreshMenuItems();
    } else if (ContentOf(m_hMenu) != m_strMenuContent) {
        MakeMenuItems();
    }
    for (int index = 0; index < m_arSubItems.GetSize(); ++index) {
        TakeMenuState(*m_arSubItems[index], m_hMenu);
    }
}
