#pragma once

#include <compare>
#include <map>
#include <vector>

#include <oleacc.h>

#include "fx/accessibility_data.h"

class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonCategory;
class CMFCRibbonPanel;
class RibbonAccessible;

/// One object of the tree that assistive programs see. A category or panel is known by an element that lives as long as
/// it does: its tab, its default button.
struct RibbonAccessNode {
    enum class Kind { Bar, QuickAccess, TabList, Category, Panel, Element };
    Kind kind = Kind::Bar;
    CMFCRibbonBaseElement* anchor = nullptr; // null for the first three

    auto operator<=>(const RibbonAccessNode&) const = default;
};

/// The accessible tree of a ribbon bar, owned by the bar: application button, quick access toolbar, tabs, what stands
/// beside them, and the active category with its panels and their elements. Hands out one object a node; objects whose
/// element is gone, or whose bar is, answer CO_E_OBJNOTCONNECTED.
class RibbonAccess {
public:
    using Node = RibbonAccessNode;

    explicit RibbonAccess(CMFCRibbonBar& bar);
    ~RibbonAccess();
    RibbonAccess(const RibbonAccess&) = delete;
    RibbonAccess& operator=(const RibbonAccess&) = delete;

    LRESULT OnGetObject(WPARAM wParam);
    /// Tells listeners of an event (EVENT_OBJECT_) of the element; costs nothing when nobody listens.
    void Notify(DWORD event, CMFCRibbonBaseElement& element);
    /// The element's objects end.
    void Forget(const CMFCRibbonBaseElement& element);
    /// All objects end.
    void Disconnect();
    /// A default action that an assistive program asked for; nothing follows it, because a command may end the bar.
    void RunPendingAction();

    // The tree.
    std::vector<Node> ChildrenOf(const Node& node) const;
    Node ParentOf(const Node& node) const;
    /// The innermost node at a point in the bar's client pixels; false when it lies outside of the node.
    bool FindAt(const Node& node, CPoint point, Node& found) const;
    CRect RectOf(const Node& node) const;
    void Describe(const Node& node, CAccessibilityData& data) const;
    bool GetFocused(Node& node) const;
    /// The action runs when the bar next handles messages: it may open a menu, for which the caller must not wait.
    bool StartDefaultAction(const Node& node);
    bool TakeFocus(const Node& node);
    CMFCRibbonBar& Bar() const { return m_bar; }

    /// A new reference.
    IAccessible* ObjectOf(const Node& node);
    void ObjectGone(const Node& node) { m_objects.erase(node); }
    /// The id by which events name an element, and back; false for an id that names none.
    LONG IdOf(const CMFCRibbonBaseElement& element);
    bool FindById(LONG id, Node& node) const;

    static CMFCRibbonCategory& CategoryOf(const Node& node);
    static CMFCRibbonPanel& PanelOf(const Node& node);

private:
    CMFCRibbonBar& m_bar;
    std::map<Node, RibbonAccessible*> m_objects; // not owned: each says when it goes
    std::map<LONG, CMFCRibbonBaseElement*> m_byId;
    std::map<const CMFCRibbonBaseElement*, LONG> m_ids;
    LONG m_nextId;
    CMFCRibbonBaseElement* m_pending = nullptr;
};

/// The bar's own message for RunPendingAction.
inline constexpr UINT kRibbonAccessAction = WM_USER + 0x171;
