// Menus that hide what is seldom used, and the row that shows it.
#include "afxmenubar.h"
#include "afxpopupmenu.h"
#include "afxvisualmanager.h"
#include "core/framework_text.h"
#include "toolbar/chevron.h"
#include "toolbar/metrics.h"

#include <memory>

namespace {

/// "Show all commands", for those who hear the row instead of seeing its chevron.
constexpr UINT kShowAllText = 17200;

/// The last row of a menu that hides something. It has no command: choosing it, or staying on it, opens the menu wide.
class ShowAllRow : public CMFCToolBarMenuButton {
    DECLARE_DYNCREATE(ShowAllRow)

public:
    ShowAllRow() { m_strText = FrameworkText(kShowAllText); }

    SIZE OnCalculateSize(CDC*, const CSize&, BOOL) override { return CSize(0, toolbar::Scaled(kHeight)); }
    // As an item with a menu of its own: a click, a key or a stay of the pointer opens it.
    BOOL IsEmptyMenuAllowed() const override { return TRUE; }
    BOOL OpenPopupMenu(CWnd* = nullptr) override {
        const auto* const bar = DYNAMIC_DOWNCAST(CMFCPopupMenuBar, GetParentWnd());
        if (CMFCPopupMenu* const menu = bar != nullptr ? bar->GetParentPopup() : nullptr) {
            menu->ShowAllCommands(); // this row is gone
        }
        return TRUE;
    }
    void OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages*, BOOL, BOOL, BOOL bHighlight, BOOL, BOOL) override {
        CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
        const auto state = bHighlight ? CMFCVisualManager::ButtonsIsHighlighted : CMFCVisualManager::ButtonsIsRegular;
        if (bHighlight) {
            manager->OnFillButtonInterior(pDC, this, rect, state);
            manager->OnDrawButtonBorder(pDC, this, rect, state);
        }
        toolbar::DrawChevron(*pDC, rect.CenterPoint(), toolbar::Scaled(2), toolbar::ChevronTo::Bottom,
                             manager->GetToolbarButtonTextColor(this, state));
    }

private:
    static constexpr int kHeight = 16;
};

IMPLEMENT_DYNCREATE(ShowAllRow, CMFCToolBarMenuButton)

/// The user would find nothing in it: the item, and everything below it.
bool IsRare(const CMFCToolBarMenuButton& item) {
    if (item.GetCommands().IsEmpty()) {
        return CMFCToolBar::IsCommandRarelyUsed(item.m_nID) != FALSE;
    }
    for (POSITION position = item.GetCommands().GetHeadPosition(); position != nullptr;) {
        const auto* const below = static_cast<const CMFCToolBarMenuButton*>(item.GetCommands().GetNext(position));
        if ((below->m_nStyle & TBBS_SEPARATOR) == 0 && !IsRare(*below)) {
            return false;
        }
    }
    return true;
}

} // namespace

BOOL CMFCPopupMenu::HideRarelyUsedCommands() const {
    if (!CMFCMenuBar::IsRecentlyUsedMenus() || CMFCMenuBar::IsShowAllCommands()) {
        return FALSE;
    }
    const CMFCPopupMenu* root = this;
    for (; root->m_pParentPopup != nullptr; root = root->m_pParentPopup) {
        if (root->m_bAskedForAll) {
            return FALSE;
        }
    }
    return !root->m_bAskedForAll && DYNAMIC_DOWNCAST(CMFCMenuBar, root->GetParentToolBar()) != nullptr;
}

void CMFCPopupMenu::ShowAllCommands() {
    m_bAskedForAll = TRUE;
    if (!m_bHidesSome) {
        return;
    }
    m_bHidesSome = FALSE;
    GetMenuBar()->ShowRareItems();
    RecalcLayout();
    if (m_bOpenedByKey) {
        GetMenuBar()->SelectFirstItem();
    }
}

void CMFCPopupMenuBar::HideRareItems() {
    CMFCPopupMenu* const menu = GetParentPopup();
    bool hidesSome = false;
    CMFCToolBarButton* separator = nullptr; // the last one, while nothing shows behind it
    bool showsSome = false;
    for (POSITION position = m_Buttons.GetHeadPosition(); position != nullptr;) {
        auto* const button = static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        if ((button->m_nStyle & TBBS_SEPARATOR) != 0) {
            button->m_bIsHidden = !showsSome || separator != nullptr;
            separator = button->m_bIsHidden ? separator : button;
            continue;
        }
        const auto* const item = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
        button->m_bIsHidden = item != nullptr && IsRare(*item);
        hidesSome = hidesSome || button->m_bIsHidden;
        if (!button->m_bIsHidden) {
            showsSome = true;
            separator = nullptr;
        }
    }
    if (!hidesSome || menu == nullptr) {
        ShowRareItems();
        return;
    }
    if (separator != nullptr) {
        separator->m_bIsHidden = TRUE;
    }
    menu->m_bHidesSome = TRUE;
    InsertButton(std::make_unique<ShowAllRow>().release());
}

void CMFCPopupMenuBar::ShowRareItems() {
    m_bAcceptsRelease = FALSE; // a press that opened the menu wide ends above another row
    for (int index = GetCount() - 1; index >= 0; --index) {
        CMFCToolBarButton* const button = GetButton(index);
        button->m_bIsHidden = FALSE;
        if (button->IsKindOf(RUNTIME_CLASS(ShowAllRow))) {
            RemoveButton(index);
        }
    }
}
