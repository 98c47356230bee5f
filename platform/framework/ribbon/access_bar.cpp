// The accessible tree of a ribbon bar: what stands at its root, and how it takes the focus.
#include "ribbon/access.h"

#include "afxribbonbar.h"
#include "ribbon/access_texts.h"
#include "ribbon/bar_parts.h"

namespace {

using Node = RibbonAccessNode;
using Kind = Node::Kind;

} // namespace

RibbonBarAccess::RibbonBarAccess(CMFCRibbonBar& bar) : RibbonAccess(bar), m_bar(bar) {}

void RibbonBarAccess::EnsureLayout() const { m_bar.EnsureLayout(); }

void RibbonBarAccess::AppendOwn(std::vector<Node>& nodes) const {
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> own;
    m_bar.GetBarElements(own);
    for (INT_PTR index = 0; index < own.GetSize(); ++index) {
        AppendShown(own[index], nodes);
    }
}

std::vector<Node> RibbonBarAccess::ChildrenOf(const Node& node) const {
    RibbonBarParts& parts = PartsOf(m_bar);
    std::vector<Node> nodes;
    switch (node.kind) {
    case Kind::Root:
        if (!m_bar.IsMainRibbonBar()) {
            AppendOwn(nodes);
            return nodes;
        }
        AppendShown(parts.applicationButton, nodes);
        nodes.push_back({Kind::QuickAccess});
        for (const auto& context : parts.contexts) {
            AppendPlaced(context.caption.get(), nodes);
        }
        for (const auto* buttons : {&parts.captionButtons, &parts.childButtons}) {
            for (const auto& button : *buttons) {
                AppendPlaced(button.get(), nodes);
            }
        }
        AppendOwn(nodes);
        nodes.push_back({Kind::TabList});
        if (parts.active != nullptr) {
            nodes.push_back({Kind::Category, TabOf(*parts.active)});
        }
        return nodes;
    case Kind::QuickAccess:
        AppendButtons(parts.quickAccess, nodes);
        AppendPlaced(&parts.quickAccess.GetMoreButton(), nodes);
        AppendShown(&parts.quickAccess.GetCustomizeButton(), nodes);
        return nodes;
    case Kind::TabList:
        AppendPlaced(&parts.tabScrollLeft, nodes);
        for (const auto& category : parts.categories) {
            if (category->IsVisible()) {
                AppendShown(TabOf(*category), nodes);
            }
        }
        AppendPlaced(&parts.tabScrollRight, nodes);
        return nodes;
    default:
        return RibbonAccess::ChildrenOf(node);
    }
}

RibbonAccessNode RibbonBarAccess::ParentOf(const Node& node) const {
    if (node.kind == Kind::Element) {
        RibbonBarParts& parts = PartsOf(m_bar);
        const CMFCRibbonBaseElement& element = *node.anchor;
        if (element.IsKindOf(RUNTIME_CLASS(CMFCRibbonTab)) || &element == &parts.tabScrollLeft ||
            &element == &parts.tabScrollRight) {
            return {Kind::TabList};
        }
        if (element.IsQATMode() || &element == &parts.quickAccess.GetCustomizeButton() ||
            &element == &parts.quickAccess.GetMoreButton()) {
            return {Kind::QuickAccess};
        }
    }
    return RibbonAccess::ParentOf(node);
}

CRect RibbonBarAccess::RectOf(const Node& node) const {
    if (node.kind == Kind::QuickAccess) {
        return PartsOf(m_bar).quickAccess.GetRect();
    }
    if (node.kind != Kind::TabList) {
        return RibbonAccess::RectOf(node);
    }
    CRect rect(0, 0, 0, 0);
    for (const Node& tab : ChildrenOf(node)) {
        rect.UnionRect(rect, tab.anchor->GetRect());
    }
    return rect;
}

void RibbonBarAccess::Describe(const Node& node, CAccessibilityData& data) const {
    RibbonAccess::Describe(node, data);
    switch (node.kind) {
    case Kind::Root:
        data.m_strName =
            RibbonAccessText(m_bar.IsMainRibbonBar() ? RibbonAccessTextId::Ribbon : RibbonAccessTextId::StatusBar);
        data.m_nRole = m_bar.IsMainRibbonBar() ? ROLE_SYSTEM_TOOLBAR : ROLE_SYSTEM_STATUSBAR;
        data.m_nState |= STATE_SYSTEM_FOCUSABLE;
        break;
    case Kind::QuickAccess:
        data.m_strName = RibbonAccessText(RibbonAccessTextId::QuickAccess);
        data.m_nRole = ROLE_SYSTEM_TOOLBAR;
        break;
    case Kind::TabList:
        data.m_strName = RibbonAccessText(RibbonAccessTextId::Tabs);
        data.m_nRole = ROLE_SYSTEM_PAGETABLIST;
        break;
    default:
        break;
    }
}

bool RibbonBarAccess::GetFocused(Node& node) const {
    CMFCRibbonBaseElement* focused = m_bar.GetFocused();
    node = ElementNode(focused);
    return focused != nullptr;
}

bool RibbonBarAccess::TakeFocus(const Node& node) {
    if (node.kind != Kind::Element || !node.anchor->IsTabStop() || node.anchor->GetRect().IsRectEmpty()) {
        return false;
    }
    m_bar.GetKeyboard().Activate();
    m_bar.GetKeyboard().SetFocusTo(node.anchor);
    return true;
}

void RibbonBarAccess::Invoke(CMFCRibbonBaseElement& element) { m_bar.GetKeyboard().Invoke(element); }

// ---- the bar

RibbonAccess& CMFCRibbonBar::GetAccess() { return *m_parts->access; }

LRESULT CMFCRibbonBar::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return static_cast<LONG>(lParam) == OBJID_CLIENT ? m_parts->access->OnGetObject(wParam) : Default();
}

LRESULT CMFCRibbonBar::OnAccessAction(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    m_parts->access->RunPendingAction();
    return 0;
}

BOOL CMFCRibbonBar::OnSetAccData(long lVal) {
    EnsureLayout();
    const std::vector<RibbonAccessNode> children = m_parts->access->ChildrenOf({});
    if (lVal < 0 || lVal > static_cast<long>(children.size())) {
        return FALSE;
    }
    m_parts->access->Describe(lVal == 0 ? RibbonAccessNode{} : children[static_cast<std::size_t>(lVal) - 1], m_AccData);
    return TRUE;
}

void CMFCRibbonBar::NotifyElementEvent(DWORD event, CMFCRibbonBaseElement& element) {
    if (m_parts != nullptr) {
        m_parts->access->Notify(event, element);
    }
}

void CMFCRibbonBar::ForgetElement(CMFCRibbonBaseElement& element) {
    if (m_parts != nullptr) {
        m_parts->keyboard->OnElementDestroyed(element);
        m_parts->access->Forget(element);
        ForgetQuickAccessOriginal(element);
    }
}
