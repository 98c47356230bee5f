#include "ribbon/bar_menus.h"

#include "afxRibbonLabel.h"
#include "afxribbonpanelmenu.h"
#include "ribbon/menu_items.h"

namespace {

/// A row that does something of the bar's own instead of sending a command.
class ActionButton : public CMFCRibbonButton {
public:
    ActionButton(const CString& text, RibbonMenu::Action action)
        : CMFCRibbonButton(0, text), m_action(std::move(action)) {}

protected:
    // The pop-up, and this row with it, is on its way out when the action runs.
    void OnClick(CPoint /*point*/) override {
        const RibbonMenu::Action action = m_action;
        CloseParentMenus();
        action();
    }

private:
    RibbonMenu::Action m_action;
};

} // namespace

CMFCRibbonButton& RibbonMenu::Append(const CString& text, Action action) {
    auto item = std::make_unique<ActionButton>(text, std::move(action));
    item->SetKeys(nullptr, MnemonicOf(text));
    CMFCRibbonButton& added = *item;
    m_items.push_back(std::move(item));
    return added;
}

void RibbonMenu::AddHeading(const CString& text) { m_items.push_back(std::make_unique<CMFCRibbonLabel>(text)); }

void RibbonMenu::AddCommand(const CString& text, bool enabled, Action action) {
    Append(text, std::move(action)).SetDisabled(!enabled);
}

void RibbonMenu::AddCheck(const CString& text, bool checked, Action action) {
    Append(text, std::move(action)).SetChecked(checked);
}

void RibbonMenu::AddSeparator() {
    if (!m_items.empty()) {
        m_items.push_back(std::make_unique<CMFCRibbonSeparator>(TRUE));
    }
}

BOOL RibbonMenu::Track(CPoint screen, CWnd* owner, CMFCRibbonBaseElement* opener) {
    if (m_items.empty() || owner == nullptr) {
        return FALSE;
    }
    auto* menu = new CMFCRibbonPanelMenu;
    for (auto& item : m_items) {
        menu->GetRibbonMenuBar().AddOwnElement(std::move(item));
    }
    m_items.clear();
    CPoint corner = screen;
    owner->ScreenToClient(&corner);
    return menu->OpenAt(owner, CRect(corner, CSize(0, 0)), CMFCRibbonPanelMenu::Side::Below, opener);
}
