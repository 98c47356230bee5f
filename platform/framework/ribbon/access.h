#pragma once

#include <compare>
#include <map>
#include <vector>

#include <oleacc.h>

#include "fx/accessibility_data.h"

class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonButtonsGroup;
class CMFCRibbonCategory;
class CMFCRibbonPanel;
class CMFCRibbonPanelMenuBar;
class RibbonAccessible;
struct RibbonBarParts;

/// One object of the tree that assistive programs see. A category or panel is known by an element that lives as long as
/// it does: its tab, its default button.
struct RibbonAccessNode {
    enum class Kind { Root, QuickAccess, TabList, Category, Panel, Element };
    Kind kind = Kind::Root;
    CMFCRibbonBaseElement* anchor = nullptr; // null for the first three

    auto operator<=>(const RibbonAccessNode&) const = default;
};

/// The accessible tree of a window that shows ribbon elements; part of what the window keeps. Hands out one object a
/// node; objects whose element is gone, or whose window is, answer CO_E_OBJNOTCONNECTED. What stands at the root is its
/// window's; categories, panels and groups hold the same everywhere.
class RibbonAccess {
public:
    using Node = RibbonAccessNode;

    explicit RibbonAccess(CWnd& window);
    virtual ~RibbonAccess();
    RibbonAccess(const RibbonAccess&) = delete;
    RibbonAccess& operator=(const RibbonAccess&) = delete;

    LRESULT OnGetObject(WPARAM wParam);
    /// Tells listeners of an event (EVENT_OBJECT_) of the element; costs nothing when nobody listens.
    void Notify(DWORD event, CMFCRibbonBaseElement& element);
    /// The element's objects end.
    void Forget(const CMFCRibbonBaseElement& element);
    /// All objects end.
    void Disconnect();
    /// A default action that an assistive program asked for; nothing follows it, because a command may end the window.
    void RunPendingAction();

    // The tree.
    virtual void EnsureLayout() const = 0;
    virtual std::vector<Node> ChildrenOf(const Node& node) const;
    virtual Node ParentOf(const Node& node) const;
    virtual CRect RectOf(const Node& node) const;
    virtual void Describe(const Node& node, CAccessibilityData& data) const;
    virtual bool GetFocused(Node& node) const = 0;
    virtual bool TakeFocus(const Node& node) = 0;
    /// The innermost node at a point in the window's client pixels; false when it lies outside of the node.
    bool FindAt(const Node& node, CPoint point, Node& found) const;
    /// The action runs when the window next handles messages: it may open a menu, for which the caller must not wait.
    bool StartDefaultAction(const Node& node);
    CWnd& Window() const { return m_window; }

    /// A new reference.
    IAccessible* ObjectOf(const Node& node);
    void ObjectGone(const Node& node) { m_objects.erase(node); }
    /// The id by which events name an element, and back; false for an id that names none.
    LONG IdOf(const CMFCRibbonBaseElement& element);
    bool FindById(LONG id, Node& node) const;

    static CMFCRibbonCategory& CategoryOf(const Node& node);
    static CMFCRibbonPanel& PanelOf(const Node& node);

protected:
    /// Does what Enter on the element does; it comes last.
    virtual void Invoke(CMFCRibbonBaseElement& element) = 0;
    static Node ElementNode(CMFCRibbonBaseElement* element) { return {Node::Kind::Element, element}; }
    static void AppendShown(CMFCRibbonBaseElement* element, std::vector<Node>& nodes);
    /// What the layout gives a place only while it is needed.
    static void AppendPlaced(CMFCRibbonBaseElement* element, std::vector<Node>& nodes);
    static void AppendButtons(const CMFCRibbonButtonsGroup& group, std::vector<Node>& nodes);
    static RibbonBarParts& PartsOf(CMFCRibbonBar& bar);
    static CMFCRibbonBaseElement* TabOf(CMFCRibbonCategory& category);

private:
    CWnd& m_window;
    std::map<Node, RibbonAccessible*> m_objects; // not owned: each says when it goes
    std::map<LONG, CMFCRibbonBaseElement*> m_byId;
    std::map<const CMFCRibbonBaseElement*, LONG> m_ids;
    LONG m_nextId;
    CMFCRibbonBaseElement* m_pending = nullptr;
};

/// The tree of a ribbon bar: application button, quick access toolbar, tabs, what stands beside them, and the active
/// category with its panels and their elements.
class RibbonBarAccess final : public RibbonAccess {
public:
    explicit RibbonBarAccess(CMFCRibbonBar& bar);

    void EnsureLayout() const override;
    std::vector<Node> ChildrenOf(const Node& node) const override;
    Node ParentOf(const Node& node) const override;
    CRect RectOf(const Node& node) const override;
    void Describe(const Node& node, CAccessibilityData& data) const override;
    bool GetFocused(Node& node) const override;
    bool TakeFocus(const Node& node) override;

private:
    void AppendOwn(std::vector<Node>& nodes) const;
    void Invoke(CMFCRibbonBaseElement& element) override;

    CMFCRibbonBar& m_bar;
};

/// The tree of a ribbon pop-up: its rows or elements, or the panels of a category. What is hot has the focus.
class RibbonPopupAccess final : public RibbonAccess {
public:
    explicit RibbonPopupAccess(CMFCRibbonPanelMenuBar& popup);

    void EnsureLayout() const override;
    std::vector<Node> ChildrenOf(const Node& node) const override;
    Node ParentOf(const Node& node) const override;
    void Describe(const Node& node, CAccessibilityData& data) const override;
    bool GetFocused(Node& node) const override;
    bool TakeFocus(const Node& node) override;

private:
    void Invoke(CMFCRibbonBaseElement& element) override;

    CMFCRibbonPanelMenuBar& m_popup;
};

/// The windows' own message for RunPendingAction.
inline constexpr UINT kRibbonAccessAction = WM_USER + 0x171;
