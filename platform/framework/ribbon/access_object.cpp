// The IAccessible side of a node: arguments to nodes, descriptions to results.
#include "ribbon/access_object.h"

#include <algorithm>
#include <optional>

#include "afxribbonbar.h"
#include "fx/to_rect.h"
#include "ribbon/focus_walk.h"
#include "ribbon/keyboard.h"

namespace {

using Kind = RibbonAccessNode::Kind;

std::optional<ribbon::FocusStep> StepOf(long direction) {
    switch (direction) {
    case NAVDIR_LEFT:
        return ribbon::FocusStep::Left;
    case NAVDIR_RIGHT:
        return ribbon::FocusStep::Right;
    case NAVDIR_UP:
        return ribbon::FocusStep::Up;
    case NAVDIR_DOWN:
        return ribbon::FocusStep::Down;
    default:
        return std::nullopt;
    }
}

void PutNumber(VARIANT& variant, LONG number) {
    variant.vt = VT_I4;
    variant.lVal = number;
}

} // namespace

// ---- identity

STDMETHODIMP RibbonAccessible::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch && iid != __uuidof(IAccessible)) {
        return E_NOINTERFACE;
    }
    *object = static_cast<IAccessible*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) RibbonAccessible::AddRef() { return static_cast<ULONG>(::InterlockedIncrement(&m_references)); }

STDMETHODIMP_(ULONG) RibbonAccessible::Release() {
    const LONG left = ::InterlockedDecrement(&m_references);
    if (left == 0) {
        if (m_tree != nullptr) {
            m_tree->ObjectGone(m_node);
        }
        delete this;
    }
    return static_cast<ULONG>(left);
}

STDMETHODIMP RibbonAccessible::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

STDMETHODIMP RibbonAccessible::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info != nullptr) {
        *info = nullptr;
    }
    return DISP_E_BADINDEX;
}

STDMETHODIMP RibbonAccessible::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) { return DISP_E_UNKNOWNNAME; }

STDMETHODIMP RibbonAccessible::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    return DISP_E_MEMBERNOTFOUND;
}

// ---- arguments

int RibbonAccessible::CountRows() const { return m_node.kind == Kind::Element ? m_node.anchor->GetACCRowCount() : 0; }

// A child is a position from 1; the root also knows the ids that events carry.
HRESULT RibbonAccessible::Resolve(const VARIANT& child, Target& target) const {
    if (m_tree == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    if (child.vt != VT_I4) {
        return E_INVALIDARG;
    }
    target = {m_node, 0};
    if (child.lVal == CHILDID_SELF) {
        return S_OK;
    }
    m_tree->EnsureLayout();
    const std::vector<RibbonAccessNode> children = m_tree->ChildrenOf(m_node);
    if (child.lVal > 0 && child.lVal <= static_cast<LONG>(children.size())) {
        target.node = children[static_cast<std::size_t>(child.lVal) - 1];
        return S_OK;
    }
    if (child.lVal > 0 && child.lVal <= CountRows()) {
        target.row = child.lVal;
        return S_OK;
    }
    return m_node.kind == Kind::Root && m_tree->FindById(child.lVal, target.node) ? S_OK : E_INVALIDARG;
}

HRESULT RibbonAccessible::Describe(const VARIANT& child, CAccessibilityData& data) const {
    Target target;
    const HRESULT result = Resolve(child, target);
    if (FAILED(result)) {
        return result;
    }
    m_tree->EnsureLayout();
    if (target.row > 0) {
        return target.node.anchor->SetACCRowData(target.row - 1, data) ? S_OK : E_INVALIDARG;
    }
    m_tree->Describe(target.node, data);
    return S_OK;
}

HRESULT RibbonAccessible::GetText(const VARIANT& child, CString CAccessibilityData::*text, BSTR* result) const {
    if (result == nullptr) {
        return E_POINTER;
    }
    *result = nullptr;
    CAccessibilityData data;
    const HRESULT described = Describe(child, data);
    if (FAILED(described)) {
        return described;
    }
    if ((data.*text).IsEmpty()) {
        return S_FALSE;
    }
    *result = ::SysAllocString(data.*text);
    return *result != nullptr ? S_OK : E_OUTOFMEMORY;
}

HRESULT RibbonAccessible::AnswerWith(const RibbonAccessNode& node, VARIANT* result) const {
    if (node == m_node) {
        PutNumber(*result, CHILDID_SELF);
    } else {
        result->vt = VT_DISPATCH;
        result->pdispVal = m_tree->ObjectOf(node);
    }
    return S_OK;
}

// ---- the tree

STDMETHODIMP RibbonAccessible::get_accParent(IDispatch** parent) {
    if (parent == nullptr) {
        return E_POINTER;
    }
    *parent = nullptr;
    if (m_tree == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    if (m_node.kind == Kind::Root) {
        return ::AccessibleObjectFromWindow(m_tree->Window().GetSafeHwnd(), static_cast<DWORD>(OBJID_WINDOW),
                                            IID_IDispatch, reinterpret_cast<void**>(parent));
    }
    *parent = m_tree->ObjectOf(m_tree->ParentOf(m_node));
    return S_OK;
}

STDMETHODIMP RibbonAccessible::get_accChildCount(long* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    if (m_tree == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    m_tree->EnsureLayout();
    *count = std::max(static_cast<long>(m_tree->ChildrenOf(m_node).size()), static_cast<long>(CountRows()));
    return S_OK;
}

STDMETHODIMP RibbonAccessible::get_accChild(VARIANT child, IDispatch** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    Target target;
    const HRESULT result = Resolve(child, target);
    if (FAILED(result)) {
        return result;
    }
    if (target.row > 0) {
        return S_FALSE; // rows have no objects: they are asked for by their numbers
    }
    *object = m_tree->ObjectOf(target.node);
    return S_OK;
}

STDMETHODIMP RibbonAccessible::get_accFocus(VARIANT* child) {
    if (child == nullptr) {
        return E_POINTER;
    }
    child->vt = VT_EMPTY;
    if (m_tree == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    RibbonAccessNode focused;
    if (!m_tree->GetFocused(focused)) {
        return S_FALSE;
    }
    for (RibbonAccessNode inside = focused; inside != m_node; inside = m_tree->ParentOf(inside)) {
        if (inside.kind == Kind::Root) {
            return S_FALSE; // elsewhere in the bar
        }
    }
    return AnswerWith(focused, child);
}

STDMETHODIMP RibbonAccessible::get_accSelection(VARIANT* children) {
    if (children == nullptr) {
        return E_POINTER;
    }
    children->vt = VT_EMPTY;
    if (m_tree == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    if (m_node.kind != Kind::TabList) {
        return DISP_E_MEMBERNOTFOUND;
    }
    for (const RibbonAccessNode& tab : m_tree->ChildrenOf(m_node)) {
        if (tab.anchor->GetParentCategory()->IsActive()) {
            return AnswerWith(tab, children);
        }
    }
    return S_FALSE;
}

STDMETHODIMP RibbonAccessible::accNavigate(long direction, VARIANT start, VARIANT* end) {
    if (end == nullptr) {
        return E_POINTER;
    }
    end->vt = VT_EMPTY;
    Target target;
    const HRESULT result = Resolve(start, target);
    if (FAILED(result)) {
        return result;
    }
    if (target.row > 0) {
        return S_FALSE;
    }
    m_tree->EnsureLayout();
    if (direction == NAVDIR_FIRSTCHILD || direction == NAVDIR_LASTCHILD) {
        const std::vector<RibbonAccessNode> children = m_tree->ChildrenOf(target.node);
        if (children.empty()) {
            return S_FALSE;
        }
        return AnswerWith(direction == NAVDIR_FIRSTCHILD ? children.front() : children.back(), end);
    }
    if (target.node.kind == Kind::Root) {
        return S_FALSE;
    }
    return NavigateTo(m_tree->ChildrenOf(m_tree->ParentOf(target.node)), target.node, direction, end);
}

HRESULT RibbonAccessible::NavigateTo(const std::vector<RibbonAccessNode>& siblings, const RibbonAccessNode& from,
                                     long direction, VARIANT* end) const {
    const auto place = static_cast<std::size_t>(std::find(siblings.begin(), siblings.end(), from) - siblings.begin());
    std::optional<std::size_t> next;
    if (const auto step = StepOf(direction)) {
        std::vector<fx::Rect> rects;
        rects.reserve(siblings.size());
        for (const RibbonAccessNode& sibling : siblings) {
            rects.push_back(fx::FromRect(m_tree->RectOf(sibling)));
        }
        next = ribbon::FocusNeighbour(rects, place, *step);
    } else if (direction == NAVDIR_NEXT) {
        next = place + 1;
    } else if (direction == NAVDIR_PREVIOUS) {
        next = place - 1;
    } else {
        return E_INVALIDARG;
    }
    return next && *next < siblings.size() ? AnswerWith(siblings[*next], end) : S_FALSE;
}

// ---- places

STDMETHODIMP RibbonAccessible::accLocation(long* left, long* top, long* width, long* height, VARIANT child) {
    if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) {
        return E_POINTER;
    }
    *left = *top = *width = *height = 0;
    CAccessibilityData data;
    const HRESULT result = Describe(child, data);
    if (SUCCEEDED(result) && !data.m_rect.IsRectEmpty()) {
        *left = data.m_rect.left;
        *top = data.m_rect.top;
        *width = data.m_rect.Width();
        *height = data.m_rect.Height();
    }
    return result;
}

STDMETHODIMP RibbonAccessible::accHitTest(long left, long top, VARIANT* child) {
    if (child == nullptr) {
        return E_POINTER;
    }
    child->vt = VT_EMPTY;
    if (m_tree == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    m_tree->EnsureLayout();
    CPoint point(left, top);
    m_tree->Window().ScreenToClient(&point);
    RibbonAccessNode found;
    return m_tree->FindAt(m_node, point, found) ? AnswerWith(found, child) : S_FALSE;
}

// ---- what it says

STDMETHODIMP RibbonAccessible::get_accName(VARIANT child, BSTR* name) {
    return GetText(child, &CAccessibilityData::m_strName, name);
}

STDMETHODIMP RibbonAccessible::get_accValue(VARIANT child, BSTR* value) {
    return GetText(child, &CAccessibilityData::m_strValue, value);
}

STDMETHODIMP RibbonAccessible::get_accDescription(VARIANT child, BSTR* description) {
    return GetText(child, &CAccessibilityData::m_strDescription, description);
}

STDMETHODIMP RibbonAccessible::get_accKeyboardShortcut(VARIANT child, BSTR* keys) {
    return GetText(child, &CAccessibilityData::m_strKeys, keys);
}

STDMETHODIMP RibbonAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
    return GetText(child, &CAccessibilityData::m_strDefaultAction, action);
}

STDMETHODIMP RibbonAccessible::get_accHelp(VARIANT child, BSTR* help) {
    return GetText(child, &CAccessibilityData::m_strDescription, help);
}

STDMETHODIMP RibbonAccessible::get_accHelpTopic(BSTR* file, VARIANT, long* topic) {
    if (file != nullptr) {
        *file = nullptr;
    }
    if (topic != nullptr) {
        *topic = 0;
    }
    return m_tree == nullptr ? CO_E_OBJNOTCONNECTED : DISP_E_MEMBERNOTFOUND;
}

STDMETHODIMP RibbonAccessible::get_accRole(VARIANT child, VARIANT* role) {
    if (role == nullptr) {
        return E_POINTER;
    }
    role->vt = VT_EMPTY;
    CAccessibilityData data;
    const HRESULT result = Describe(child, data);
    if (SUCCEEDED(result)) {
        PutNumber(*role, data.m_nRole);
    }
    return result;
}

STDMETHODIMP RibbonAccessible::get_accState(VARIANT child, VARIANT* state) {
    if (state == nullptr) {
        return E_POINTER;
    }
    state->vt = VT_EMPTY;
    CAccessibilityData data;
    const HRESULT result = Describe(child, data);
    if (SUCCEEDED(result)) {
        PutNumber(*state, data.m_nState);
    }
    return result;
}

// ---- what it does

STDMETHODIMP RibbonAccessible::accDoDefaultAction(VARIANT child) {
    Target target;
    const HRESULT result = Resolve(child, target);
    if (FAILED(result)) {
        return result;
    }
    if (target.row > 0) {
        return target.node.anchor->OnACCRowDefaultAction(target.row - 1) ? S_OK : DISP_E_MEMBERNOTFOUND;
    }
    return m_tree->StartDefaultAction(target.node) ? S_OK : DISP_E_MEMBERNOTFOUND;
}

STDMETHODIMP RibbonAccessible::accSelect(long flags, VARIANT child) {
    Target target;
    const HRESULT result = Resolve(child, target);
    if (FAILED(result)) {
        return result;
    }
    const bool isTab = target.node.kind == Kind::Element && target.node.anchor->IsKindOf(RUNTIME_CLASS(CMFCRibbonTab));
    if (target.row > 0 || (flags & ~(SELFLAG_TAKEFOCUS | (isTab ? SELFLAG_TAKESELECTION : 0))) != 0 || flags == 0) {
        return E_INVALIDARG;
    }
    if ((flags & SELFLAG_TAKESELECTION) != 0 && !m_tree->StartDefaultAction(target.node)) {
        return DISP_E_MEMBERNOTFOUND;
    }
    // The loss of the focus elsewhere may send a command that ends the bar: nothing follows.
    return (flags & SELFLAG_TAKEFOCUS) == 0 || m_tree->TakeFocus(target.node) ? S_OK : DISP_E_MEMBERNOTFOUND;
}

STDMETHODIMP RibbonAccessible::put_accName(VARIANT, BSTR) {
    return m_tree == nullptr ? CO_E_OBJNOTCONNECTED : DISP_E_MEMBERNOTFOUND;
}

STDMETHODIMP RibbonAccessible::put_accValue(VARIANT child, BSTR value) {
    Target target;
    const HRESULT result = Resolve(child, target);
    if (FAILED(result)) {
        return result;
    }
    const bool isElement = target.node.kind == Kind::Element && target.row == 0;
    return isElement && target.node.anchor->PutACCValue(value) ? S_OK : DISP_E_MEMBERNOTFOUND;
}
