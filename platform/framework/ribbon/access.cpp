// What all accessible trees of the ribbon have in common: objects, events, and what categories, panels and groups hold.
#include "ribbon/access.h"

#include <algorithm>
#include <utility>

#include "afxribbonbar.h"
#include "afxRibbonEdit.h"
#include "afxribbonslider.h"
#include "ribbon/access_object.h"
#include "ribbon/access_texts.h"
#include "ribbon/bar_parts.h"

namespace {

using Node = RibbonAccessNode;
using Kind = Node::Kind;

// Below are the positions of children.
constexpr LONG kFirstId = 0x10000;

} // namespace

RibbonAccess::RibbonAccess(CWnd& window) : m_window(window), m_nextId(kFirstId) {}

RibbonAccess::~RibbonAccess() { Disconnect(); }

// ---- objects and ids

LRESULT RibbonAccess::OnGetObject(WPARAM wParam) {
    IAccessible* root = ObjectOf({});
    const LRESULT result = ::LresultFromObject(__uuidof(IAccessible), wParam, root);
    root->Release();
    return result;
}

IAccessible* RibbonAccess::ObjectOf(const Node& node) {
    RibbonAccessible*& object = m_objects[node];
    if (object == nullptr) {
        object = new RibbonAccessible(*this, node);
    } else {
        object->AddRef();
    }
    return object;
}

void RibbonAccess::Disconnect() {
    for (const auto& [node, object] : std::exchange(m_objects, {})) {
        object->Disconnect();
    }
    m_byId.clear();
    m_ids.clear();
    m_pending = nullptr;
}

void RibbonAccess::Forget(const CMFCRibbonBaseElement& element) {
    for (const Kind kind : {Kind::Category, Kind::Panel, Kind::Element}) {
        const auto known = m_objects.find({kind, const_cast<CMFCRibbonBaseElement*>(&element)});
        if (known != m_objects.end()) {
            known->second->Disconnect();
            m_objects.erase(known);
        }
    }
    if (const auto id = m_ids.find(&element); id != m_ids.end()) {
        m_byId.erase(id->second);
        m_ids.erase(id);
    }
    if (m_pending == &element) {
        m_pending = nullptr;
    }
}

LONG RibbonAccess::IdOf(const CMFCRibbonBaseElement& element) {
    const auto [known, isNew] = m_ids.emplace(&element, m_nextId);
    if (isNew) {
        m_byId[m_nextId++] = const_cast<CMFCRibbonBaseElement*>(&element);
    }
    return known->second;
}

bool RibbonAccess::FindById(LONG id, Node& node) const {
    const auto known = m_byId.find(id);
    if (known != m_byId.end()) {
        node = ElementNode(known->second);
    }
    return known != m_byId.end();
}

void RibbonAccess::Notify(DWORD event, CMFCRibbonBaseElement& element) {
    if (m_window.GetSafeHwnd() != nullptr && ::IsWinEventHookInstalled(event)) {
        ::NotifyWinEvent(event, m_window.GetSafeHwnd(), OBJID_CLIENT, IdOf(element));
    }
}

// ---- the tree

CMFCRibbonCategory& RibbonAccess::CategoryOf(const Node& node) { return *node.anchor->GetParentCategory(); }

CMFCRibbonPanel& RibbonAccess::PanelOf(const Node& node) { return *node.anchor->GetParentPanel(); }

void RibbonAccess::AppendShown(CMFCRibbonBaseElement* element, std::vector<Node>& nodes) {
    if (element != nullptr && element->IsVisible()) {
        nodes.push_back(ElementNode(element));
    }
}

void RibbonAccess::AppendPlaced(CMFCRibbonBaseElement* element, std::vector<Node>& nodes) {
    if (!element->GetRect().IsRectEmpty()) {
        AppendShown(element, nodes);
    }
}

void RibbonAccess::AppendButtons(const CMFCRibbonButtonsGroup& group, std::vector<Node>& nodes) {
    for (int place = 0; place < group.GetCount(); ++place) {
        AppendShown(group.GetButton(place), nodes);
    }
}

RibbonBarParts& RibbonAccess::PartsOf(CMFCRibbonBar& bar) { return bar.GetParts(); }

CMFCRibbonBaseElement* RibbonAccess::TabOf(CMFCRibbonCategory& category) { return &category.GetTabElement(); }

std::vector<Node> RibbonAccess::ChildrenOf(const Node& node) const {
    std::vector<Node> nodes;
    switch (node.kind) {
    case Kind::Category: {
        CMFCRibbonCategory& category = CategoryOf(node);
        for (int place = 0; place < category.GetPanelCount(); ++place) {
            nodes.push_back({Kind::Panel, &category.GetPanel(place)->GetDefaultButton()});
        }
        for (CMFCRibbonBaseElement* scroll : {static_cast<CMFCRibbonBaseElement*>(&category.GetScrollLeft()),
                                              static_cast<CMFCRibbonBaseElement*>(&category.GetScrollRight())}) {
            if (!scroll->GetRect().IsRectEmpty()) {
                nodes.push_back(ElementNode(scroll));
            }
        }
        break;
    }
    case Kind::Panel: {
        CMFCRibbonPanel& panel = PanelOf(node);
        if (panel.IsCollapsed()) {
            nodes.push_back(ElementNode(node.anchor));
            break;
        }
        for (int place = 0; place < panel.GetCount(); ++place) {
            AppendShown(panel.GetElement(place), nodes);
        }
        if (panel.HasLaunchButton()) {
            AppendShown(&panel.GetLaunchButton(), nodes);
        }
        break;
    }
    case Kind::Element:
        if (const auto* group = DYNAMIC_DOWNCAST(CMFCRibbonButtonsGroup, node.anchor)) {
            AppendButtons(*group, nodes);
        }
        break;
    default:
        break;
    }
    return nodes;
}

RibbonAccessNode RibbonAccess::ParentOf(const Node& node) const {
    if (node.kind == Kind::Panel) {
        return {Kind::Category, TabOf(CategoryOf(node))};
    }
    if (node.kind != Kind::Element) {
        return {};
    }
    const CMFCRibbonBaseElement& element = *node.anchor;
    if (element.GetParentGroup() != nullptr) {
        return ElementNode(element.GetParentGroup());
    }
    if (CMFCRibbonPanel* panel = element.GetParentPanel()) {
        return {Kind::Panel, &panel->GetDefaultButton()};
    }
    if (CMFCRibbonCategory* category = element.GetParentCategory()) {
        return {Kind::Category, TabOf(*category)}; // a scroll button
    }
    return {};
}

CRect RibbonAccess::RectOf(const Node& node) const {
    CRect rect(0, 0, 0, 0);
    switch (node.kind) {
    case Kind::Category:
        return CategoryOf(node).GetRect();
    case Kind::Panel:
        return PanelOf(node).GetRect();
    case Kind::Element:
        return node.anchor->GetRect();
    default:
        m_window.GetClientRect(rect);
        return rect;
    }
}

bool RibbonAccess::FindAt(const Node& node, CPoint point, Node& found) const {
    if (!RectOf(node).PtInRect(point)) {
        return false;
    }
    for (const Node& child : ChildrenOf(node)) {
        if (FindAt(child, point, found)) {
            return true;
        }
    }
    found = node;
    return true;
}

// ---- what a node says

void RibbonAccess::Describe(const Node& node, CAccessibilityData& data) const {
    data = {};
    if (node.kind == Kind::Element) {
        // A pop-up may show it for a while.
        CWnd* window = node.anchor->GetParentWnd();
        node.anchor->SetACCData(window != nullptr ? window : &m_window, data);
        return;
    }
    if (node.kind == Kind::Category) {
        data.m_strName = ribbon::PlainText(CategoryOf(node).GetName());
        data.m_nRole = ROLE_SYSTEM_PROPERTYPAGE;
    } else if (node.kind == Kind::Panel) {
        data.m_strName = ribbon::PlainText(PanelOf(node).GetName());
        data.m_nRole = ROLE_SYSTEM_GROUPING;
    }
    data.m_rect = RectOf(node);
    if (data.m_rect.IsRectEmpty()) {
        data.m_nState |= STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN;
    }
    m_window.ClientToScreen(data.m_rect);
}

// ---- what a node does

bool RibbonAccess::StartDefaultAction(const Node& node) {
    CAccessibilityData data;
    Describe(node, data);
    if (node.kind != Kind::Element || data.m_strDefaultAction.IsEmpty() || node.anchor->IsDisabled()) {
        return false;
    }
    m_pending = node.anchor;
    return ::PostMessageW(m_window.GetSafeHwnd(), kRibbonAccessAction, 0, 0) != FALSE;
}

void RibbonAccess::RunPendingAction() {
    if (CMFCRibbonBaseElement* element = std::exchange(m_pending, nullptr)) {
        Invoke(*element);
    }
}
