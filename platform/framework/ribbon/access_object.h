#pragma once

#include "ribbon/access.h"

/// One node as assistive programs hold it. Lives by its references; the tree tells it when its node is gone.
class RibbonAccessible final : public IAccessible {
public:
    /// With one reference.
    RibbonAccessible(RibbonAccess& tree, const RibbonAccessNode& node) : m_tree(&tree), m_node(node) {}
    void Disconnect() { m_tree = nullptr; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    // The names of the interface are its type information; by number nothing is called.
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID member, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* argument) override;

    STDMETHODIMP get_accParent(IDispatch** parent) override;
    STDMETHODIMP get_accChildCount(long* count) override;
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override;
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override;
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override;
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* keys) override;
    STDMETHODIMP get_accFocus(VARIANT* child) override;
    STDMETHODIMP get_accSelection(VARIANT* children) override;
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
    STDMETHODIMP accSelect(long flags, VARIANT child) override;
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override;
    STDMETHODIMP accHitTest(long left, long top, VARIANT* child) override;
    STDMETHODIMP accDoDefaultAction(VARIANT child) override;
    STDMETHODIMP put_accName(VARIANT child, BSTR name) override;
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override;

private:
    ~RibbonAccessible() = default;

    /// A node, or a row inside it.
    struct Target {
        RibbonAccessNode node;
        int row = 0; // from 1; 0: the node itself
    };
    HRESULT Resolve(const VARIANT& child, Target& target) const;
    HRESULT Describe(const VARIANT& child, CAccessibilityData& data) const;
    HRESULT GetText(const VARIANT& child, CString CAccessibilityData::*text, BSTR* result) const;
    HRESULT AnswerWith(const RibbonAccessNode& node, VARIANT* result) const;
    int CountRows() const;
    HRESULT NavigateTo(const std::vector<RibbonAccessNode>& siblings, const RibbonAccessNode& from, long direction,
                       VARIANT* end) const;

    LONG m_references = 1;
    RibbonAccess* m_tree;
    RibbonAccessNode m_node;
};
