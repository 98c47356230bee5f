// The accessible tree of a ribbon bar: which nodes there are, where, and what they say of themselves.
#include "ribbon/access.h"

#include <algorithm>
#include <utility>

#include "afxRibbonEdit.h"
#include "afxribbonbar.h"
#include "afxribbonslider.h"
#include "core/module.h"
#include "ribbon/access_object.h"
#include "ribbon/access_texts.h"
#include "ribbon/bar_parts.h"

namespace {

using Node = RibbonAccessNode;
using Kind = Node::Kind;

// Below are the positions of children.
constexpr LONG kFirstId = 0x10000;

Node ElementNode(CMFCRibbonBaseElement* element) { return {Kind::Element, element}; }

void AppendShown(CMFCRibbonBaseElement* element, std::vector<Node>& nodes) {
    if (element != nullptr && element->IsVisible()) {
        nodes.push_back(ElementNode(element));
    }
}

void AppendButtons(const CMFCRibbonButtonsGroup& group, std::vector<Node>& nodes) {
    for (int place = 0; place < group.GetCount(); ++place) {
        AppendShown(group.GetButton(place), nodes);
    }
}

} // namespace

CString RibbonAccessText(RibbonAccessTextId id) {
    LPCWSTR text = nullptr;
    const int length = ::LoadStringW(FrameworkInstance(), static_cast<UINT>(id), reinterpret_cast<LPWSTR>(&text), 0);
    return length > 0 ? CString(text, length) : CString();
}

RibbonAccess::RibbonAccess(CMFCRibbonBar& bar) : m_bar(bar), m_nextId(kFirstId) {}

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
    if (m_bar.GetSafeHwnd() != nullptr && ::IsWinEventHookInstalled(event)) {
        ::NotifyWinEvent(event, m_bar.GetSafeHwnd(), OBJID_CLIENT, IdOf(element));
    }
}

// ---- the tree

CMFCRibbonCategory& RibbonAccess::CategoryOf(const Node& node) { return *node.anchor->GetParentCategory(); }

CMFCRibbonPanel& RibbonAccess::PanelOf(const Node& node) { return *node.anchor->GetParentPanel(); }

std::vector<Node> RibbonAccess::ChildrenOf(const Node& node) const {
    const RibbonBarParts& parts = *m_bar.m_parts;
    std::vector<Node> nodes;
    switch (node.kind) {
    case Kind::Bar:
        AppendShown(parts.applicationButton, nodes);
        nodes.push_back({Kind::QuickAccess});
        for (const auto& element : parts.tabElements) {
            AppendShown(element.get(), nodes);
        }
        nodes.push_back({Kind::TabList});
        if (parts.active != nullptr) {
            nodes.push_back({Kind::Category, &parts.active->m_Tab});
        }
        break;
    case Kind::QuickAccess:
        AppendButtons(parts.quickAccess, nodes);
        AppendShown(&m_bar.m_parts->quickAccess.GetCustomizeButton(), nodes);
        break;
    case Kind::TabList:
        for (const auto& category : parts.categories) {
            if (category->IsVisible()) {
                AppendShown(&category->m_Tab, nodes);
            }
        }
        break;
    case Kind::Category: {
        CMFCRibbonCategory& category = CategoryOf(node);
        for (int place = 0; place < category.GetPanelCount(); ++place) {
            nodes.push_back({Kind::Panel, &category.GetPanel(place)->GetDefaultButton()});
        }
        for (CMFCRibbonBaseElement* scroll : {static_cast<CMFCRibbonBaseElement*>(&category.m_ScrollLeft),
                                              static_cast<CMFCRibbonBaseElement*>(&category.m_ScrollRight)}) {
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
        break;
    }
    case Kind::Element:
        if (const auto* group = DYNAMIC_DOWNCAST(CMFCRibbonButtonsGroup, node.anchor)) {
            AppendButtons(*group, nodes);
        }
        break;
    }
    return nodes;
}

RibbonAccessNode RibbonAccess::ParentOf(const Node& node) const {
    if (node.kind == Kind::Panel) {
        return {Kind::Category, &CategoryOf(node).m_Tab};
    }
    if (node.kind != Kind::Element) {
        return {};
    }
    const CMFCRibbonBaseElement& element = *node.anchor;
    if (element.IsKindOf(RUNTIME_CLASS(CMFCRibbonTab))) {
        return {Kind::TabList};
    }
    if (element.IsQATMode() || &element == &m_bar.m_parts->quickAccess.GetCustomizeButton()) {
        return {Kind::QuickAccess};
    }
    if (element.GetParentGroup() != nullptr) {
        return ElementNode(element.GetParentGroup());
    }
    if (CMFCRibbonPanel* panel = element.GetParentPanel()) {
        return {Kind::Panel, &panel->GetDefaultButton()};
    }
    if (CMFCRibbonCategory* category = element.GetParentCategory()) {
        return {Kind::Category, &category->m_Tab}; // a scroll button
    }
    return {};
}

CRect RibbonAccess::RectOf(const Node& node) const {
    CRect rect(0, 0, 0, 0);
    switch (node.kind) {
    case Kind::Bar:
        m_bar.GetClientRect(rect);
        return rect;
    case Kind::QuickAccess:
        return m_bar.m_parts->quickAccess.GetRect();
    case Kind::TabList:
        for (const Node& tab : ChildrenOf(node)) {
            rect.UnionRect(rect, tab.anchor->GetRect());
        }
        return rect;
    case Kind::Category:
        return CategoryOf(node).GetRect();
    case Kind::Panel:
        return PanelOf(node).GetRect();
    case Kind::Element:
        break;
    }
    return node.anchor->GetRect();
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

bool RibbonAccess::GetFocused(Node& node) const {
    CMFCRibbonBaseElement* focused = m_bar.GetFocused();
    node = ElementNode(focused);
    return focused != nullptr;
}

// ---- what a node says

void RibbonAccess::Describe(const Node& node, CAccessibilityData& data) const {
    data = {};
    switch (node.kind) {
    case Kind::Bar:
        data.m_strName = RibbonAccessText(RibbonAccessTextId::Ribbon);
        data.m_nRole = ROLE_SYSTEM_TOOLBAR;
        data.m_nState = STATE_SYSTEM_FOCUSABLE;
        break;
    case Kind::QuickAccess:
        data.m_strName = RibbonAccessText(RibbonAccessTextId::QuickAccess);
        data.m_nRole = ROLE_SYSTEM_TOOLBAR;
        break;
    case Kind::TabList:
        data.m_strName = RibbonAccessText(RibbonAccessTextId::Tabs);
        data.m_nRole = ROLE_SYSTEM_PAGETABLIST;
        break;
    case Kind::Category:
        data.m_strName = WithoutMnemonic(CategoryOf(node).GetName());
        data.m_nRole = ROLE_SYSTEM_PROPERTYPAGE;
        break;
    case Kind::Panel:
        data.m_strName = WithoutMnemonic(PanelOf(node).GetName());
        data.m_nRole = ROLE_SYSTEM_GROUPING;
        break;
    case Kind::Element: {
        // A pop-up may show it for a while.
        CWnd* window = node.anchor->GetParentWnd();
        node.anchor->SetACCData(window != nullptr ? window : &m_bar, data);
        return;
    }
    }
    data.m_rect = RectOf(node);
    if (data.m_rect.IsRectEmpty()) {
        data.m_nState |= STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN;
    }
    m_bar.ClientToScreen(data.m_rect);
}

// ---- what a node does

bool RibbonAccess::StartDefaultAction(const Node& node) {
    CAccessibilityData data;
    Describe(node, data);
    if (node.kind != Kind::Element || data.m_strDefaultAction.IsEmpty() || node.anchor->IsDisabled()) {
        return false;
    }
    m_pending = node.anchor;
    return ::PostMessageW(m_bar.GetSafeHwnd(), kRibbonAccessAction, 0, 0) != FALSE;
}

void RibbonAccess::RunPendingAction() {
    if (CMFCRibbonBaseElement* element = std::exchange(m_pending, nullptr)) {
        m_bar.GetKeyboard().Invoke(*element);
    }
}

bool RibbonAccess::TakeFocus(const Node& node) {
    if (node.kind != Kind::Element || !node.anchor->IsTabStop() || node.anchor->GetRect().IsRectEmpty()) {
        return false;
    }
    m_bar.GetKeyboard().Activate();
    m_bar.GetKeyboard().SetFocusTo(node.anchor);
    return true;
}
