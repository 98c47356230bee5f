// What a button's menu area opens: its menu, or its sub-items as the items of a system menu.
#include <afxribbonbutton.h>

#include "ribbon/element_metrics.h"

namespace {

// The button whose menu is open; its destructor clears it, because a command may delete the button.
CMFCRibbonButton* g_open = nullptr;

// Items carry their positions from 1 in ids; a button with sub-items of its own becomes a submenu.
void AppendItems(CMenu& menu, const CMFCRibbonButton& button, std::vector<UINT>& ids) {
    const auto& items = button.GetSubItems();
    for (int i = 0; i < items.GetSize(); ++i) {
        const CMFCRibbonBaseElement& item = *items[i];
        if (!item.IsVisible())
            continue;
        if (item.IsSeparator()) {
            menu.AppendMenu(MF_SEPARATOR);
            continue;
        }
        const UINT state = (item.IsDisabled() ? MF_GRAYED : MF_ENABLED) | (item.IsChecked() ? MF_CHECKED : 0);
        const auto* inner = dynamic_cast<const CMFCRibbonButton*>(&item);
        if (inner != nullptr && !inner->GetSubItems().IsEmpty()) {
            CMenu popup;
            popup.CreatePopupMenu();
            AppendItems(popup, *inner, ids);
            menu.AppendMenu(MF_POPUP | state, reinterpret_cast<UINT_PTR>(popup.Detach()), item.GetText());
            continue;
        }
        ids.push_back(item.GetID());
        menu.AppendMenu(MF_STRING | state, ids.size(), item.GetText());
    }
}

} // namespace

void CMFCRibbonButton::ForgetPopup() {
    if (g_open == this)
        g_open = nullptr;
}

// Modal. A menu handle sends its command itself, with the updates that a frame gives its menus; of sub-items the
// chosen one's command is sent here.
void CMFCRibbonButton::OnShowPopupMenu() {
    CMFCRibbonBaseElement::OnShowPopupMenu();
    const CWnd* parent = GetParentWnd();
    const CWnd* target = GetCommandTarget();
    if (IsDisabled() || parent == nullptr || target == nullptr || (m_hMenu == nullptr && m_arSubItems.IsEmpty()))
        return;
    const HWND owner = target->GetSafeHwnd();
    CRect area = m_rect;
    parent->ClientToScreen(area);
    CMenu menu;
    std::vector<UINT> ids;
    HMENU shown = m_hMenu;
    if (shown == nullptr) {
        menu.CreatePopupMenu();
        AppendItems(menu, *this, ids);
        shown = menu.GetSafeHmenu();
    }

    g_open = this;
    m_bIsDroppedDown = TRUE;
    Redraw();
    TPMPARAMS parameters{sizeof(parameters), area};
    const UINT align = m_bRightAlignMenu ? TPM_RIGHTALIGN : TPM_LEFTALIGN;
    const UINT result = ids.empty() ? 0 : TPM_RETURNCMD | TPM_NONOTIFY;
    const auto chosen = static_cast<size_t>(fx::RunPopupMenu(shown, align | TPM_TOPALIGN | TPM_VERTICAL | result,
                                                             m_bRightAlignMenu ? area.right : area.left, area.bottom,
                                                             owner, &parameters));
    if (g_open == this) {
        g_open = nullptr;
        m_bIsDroppedDown = FALSE;
        Redraw();
    }
    if (chosen > 0 && chosen <= ids.size() && ::IsWindow(owner))
        ::SendMessageW(owner, WM_COMMAND, ids[chosen - 1], 0);
}
