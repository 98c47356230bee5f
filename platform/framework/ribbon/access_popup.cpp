// The accessible tree of a ribbon pop-up.
#include "ribbon/access.h"

#include "afxribbonbar.h"
#include "afxribbonpanelmenu.h"
#include "ribbon/access_texts.h"
#include "ribbon/panel_menu_parts.h"

namespace {

using Node = RibbonAccessNode;
using Kind = Node::Kind;

LONG RoleOf(RibbonPopupLook look) {
    switch (look) {
    case RibbonPopupLook::Lines:
        return ROLE_SYSTEM_TOOLBAR;
    case RibbonPopupLook::Panel:
        return ROLE_SYSTEM_GROUPING;
    case RibbonPopupLook::Category:
        return ROLE_SYSTEM_PROPERTYPAGE;
    default:
        return ROLE_SYSTEM_MENUPOPUP;
    }
}

/// What opened the pop-up names it, unless what it shows has a name.
CString NameOf(const CMFCRibbonPanelMenuBar& popup) {
    if (const CMFCRibbonCategory* category = popup.GetCategory()) {
        return ribbon::PlainText(category->GetName());
    }
    if (popup.GetLook() == RibbonPopupLook::Panel && popup.GetPanel() != nullptr) {
        return ribbon::PlainText(popup.GetPanel()->GetName());
    }
    const CMFCRibbonPanelMenu* menu = popup.GetMenu();
    CMFCRibbonBaseElement* opener = menu != nullptr ? menu->GetOpener() : nullptr;
    if (opener == nullptr) {
        return {};
    }
    CAccessibilityData data;
    opener->SetACCData(opener->GetParentWnd(), data);
    return data.m_strName;
}

} // namespace

RibbonPopupAccess::RibbonPopupAccess(CMFCRibbonPanelMenuBar& popup) : RibbonAccess(popup), m_popup(popup) {}

void RibbonPopupAccess::EnsureLayout() const { m_popup.EnsureLayout(); }

std::vector<Node> RibbonPopupAccess::ChildrenOf(const Node& node) const {
    if (node.kind != Kind::Root) {
        return RibbonAccess::ChildrenOf(node);
    }
    if (CMFCRibbonCategory* category = m_popup.GetCategory()) {
        return RibbonAccess::ChildrenOf({Kind::Category, TabOf(*category)});
    }
    std::vector<Node> nodes;
    for (CMFCRibbonBaseElement* element : m_popup.GetShown()) {
        AppendShown(element, nodes);
    }
    return nodes;
}

// Only a category's pop-up has panels.
RibbonAccessNode RibbonPopupAccess::ParentOf(const Node& node) const {
    const Node parent = RibbonAccess::ParentOf(node);
    const bool isPanel = parent.kind == Kind::Panel && m_popup.GetCategory() != nullptr;
    return parent.kind == Kind::Element || isPanel ? parent : Node{};
}

void RibbonPopupAccess::Describe(const Node& node, CAccessibilityData& data) const {
    RibbonAccess::Describe(node, data);
    if (node.kind == Kind::Root) {
        data.m_strName = NameOf(m_popup);
        data.m_nRole = RoleOf(m_popup.GetLook());
        return;
    }
    if (node.kind != Kind::Element) {
        return;
    }
    const bool isRow = data.m_nRole == ROLE_SYSTEM_PUSHBUTTON || data.m_nRole == ROLE_SYSTEM_BUTTONMENU;
    if (isRow && m_popup.IsMenuMode()) {
        data.m_nRole = ROLE_SYSTEM_MENUITEM;
    }
    if (node.anchor == m_popup.GetHighlighted()) {
        data.m_nState |= STATE_SYSTEM_FOCUSED;
    }
}

bool RibbonPopupAccess::GetFocused(Node& node) const {
    CMFCRibbonBaseElement* hot = m_popup.GetHighlighted();
    node = ElementNode(hot);
    return hot != nullptr;
}

bool RibbonPopupAccess::TakeFocus(const Node& node) {
    if (node.kind != Kind::Element || !node.anchor->IsTabStop() || node.anchor->IsSeparator()) {
        return false;
    }
    m_popup.Highlight(node.anchor);
    return true;
}

void RibbonPopupAccess::Invoke(CMFCRibbonBaseElement& element) {
    m_popup.Highlight(&element);
    m_popup.OnKey(VK_RETURN);
}

// ---- the pop-up

RibbonAccess& CMFCRibbonPanelMenuBar::GetAccess() {
    if (m_parts->access == nullptr) {
        m_parts->access = std::make_unique<RibbonPopupAccess>(*this);
    }
    return *m_parts->access;
}

LRESULT CMFCRibbonPanelMenuBar::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const bool isClient = static_cast<LONG>(lParam) == OBJID_CLIENT && m_parts->isLent;
    return isClient ? GetAccess().OnGetObject(wParam) : Default();
}

LRESULT CMFCRibbonPanelMenuBar::OnAccessAction(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    const std::shared_ptr<RibbonPanelMenuParts> parts = m_parts;
    if (parts->access != nullptr) {
        parts->access->RunPendingAction();
    }
    return 0;
}

void CMFCRibbonPanelMenuBar::NotifyElementEvent(DWORD event, CMFCRibbonBaseElement& element) {
    if (m_parts->isLent && ::IsWinEventHookInstalled(event)) {
        GetAccess().Notify(event, element);
    }
}
