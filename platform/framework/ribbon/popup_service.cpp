// How elements, panels and bars reach the pop-ups that are open, or open new ones.
#include "afxribbonbar.h"
#include "afxribbonpanelmenu.h"

namespace {

class Popups final : public RibbonPopups {
public:
    Popups() { Provide(*this); }

    void OpenItems(CMFCRibbonBaseElement& opener, const ElementArray& items, Side side, Look look) override {
        auto* menu = new CMFCRibbonPanelMenu(items);
        menu->GetRibbonMenuBar().SetDefaultMenuLook(look == Look::PlainMenu);
        menu->OpenFor(&opener, ToMenuSide(side));
    }

    CMFCRibbonPanelMenu* OpenPanel(CMFCRibbonPanel& panel, CMFCRibbonBaseElement& opener) override {
        auto* menu = new CMFCRibbonPanelMenu(&panel);
        return menu->OpenFor(&opener, CMFCRibbonPanelMenu::Side::Below) ? menu : nullptr;
    }

    void DismissAll() override { CMFCRibbonPanelMenu::DismissAll(); }

private:
    static CMFCRibbonPanelMenu::Side ToMenuSide(Side side) {
        switch (side) {
        case Side::BelowAtRight:
            return CMFCRibbonPanelMenu::Side::BelowAtRight;
        case Side::Beside:
            return CMFCRibbonPanelMenu::Side::Beside;
        default:
            return CMFCRibbonPanelMenu::Side::Below;
        }
    }
};

const Popups g_popups;

bool BelongsTo(const CMFCPopupMenu& menu, const CMFCRibbonBar& bar) {
    const CMFCRibbonBaseElement* opener = menu.GetParentRibbonElement();
    const auto* ribbonMenu = DYNAMIC_DOWNCAST(CMFCRibbonPanelMenu, &menu);
    return (opener != nullptr && opener->GetTopLevelRibbonBar() == &bar) ||
           (ribbonMenu != nullptr && ribbonMenu->GetRibbonBar() == &bar);
}

bool ShowsOf(CMFCRibbonPanelMenu& menu, const CMFCRibbonCategory& category) {
    const CMFCRibbonBaseElement* opener = menu.GetOpener();
    return menu.GetRibbonMenuBar().GetCategory() == &category ||
           (opener != nullptr && opener->GetParentCategory() == &category);
}

} // namespace

BOOL CMFCRibbonPanelMenu::IsAnyOpenOf(const CMFCRibbonBar& bar) {
    for (const CMFCPopupMenu* menu = GetActiveMenu(); menu != nullptr; menu = menu->GetParentPopupMenu()) {
        if (BelongsTo(*menu, bar)) {
            return TRUE;
        }
    }
    return FALSE;
}

CMFCRibbonPanelMenu* CMFCRibbonPanelMenu::GetOutermostOf(const CMFCRibbonCategory& category) {
    CMFCRibbonPanelMenu* outermost = nullptr;
    for (CMFCRibbonPanelMenu* menu = GetDeepest(); menu != nullptr; menu = menu->GetParentMenu()) {
        outermost = ShowsOf(*menu, category) ? menu : outermost;
    }
    return outermost;
}
