// What a category holds: elements by id, data and state.
#include "afxribboncategory.h"

#include "ribbon/bar_parts.h"
#include "ribbon/element_walk.h"

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

CMFCRibbonBaseElement* CMFCRibbonCategory::FindByID(UINT uiCmdID, BOOL bVisibleOnly) const {
    for (const auto& panel : m_parts->panels) {
        for (CMFCRibbonBaseElement* part : panel->CollectParts()) {
            if (CMFCRibbonBaseElement* found = ribbon::FindByID(*part, uiCmdID, bVisibleOnly)) {
                return found;
            }
        }
    }
    if (!bVisibleOnly) {
        for (const auto& element : m_parts->hidden) {
            if (CMFCRibbonBaseElement* found = element->FindByID(uiCmdID)) {
                return found;
            }
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonCategory::FindByData(DWORD_PTR dwData, BOOL bVisibleOnly) const {
    for (const auto& panel : m_parts->panels) {
        for (int index = 0; index < panel->GetCount(); ++index) {
            if (CMFCRibbonBaseElement* found = ribbon::FindByData(*panel->GetElement(index), dwData, bVisibleOnly)) {
                return found;
            }
        }
    }
    if (!bVisibleOnly) {
        for (const auto& element : m_parts->hidden) {
            if (CMFCRibbonBaseElement* found = element->FindByData(dwData)) {
                return found;
            }
        }
    }
    return nullptr;
}

void CMFCRibbonCategory::GetElements(ElementArray& arElements) {
    arElements.RemoveAll();
    for (const auto& panel : m_parts->panels) {
        panel->GetElements(arElements);
    }
    for (const auto& element : m_parts->hidden) {
        element->GetElements(arElements);
    }
}

void CMFCRibbonCategory::GetElementsByID(UINT uiCmdID, ElementArray& arElements) {
    for (const auto& panel : m_parts->panels) {
        panel->GetElementsByID(uiCmdID, arElements);
    }
    for (const auto& element : m_parts->hidden) {
        element->GetElementsByID(uiCmdID, arElements);
    }
}

void CMFCRibbonCategory::GetVisibleElements(ElementArray& arElements) {
    if (!m_ScrollLeft.GetRect().IsRectEmpty()) {
        arElements.Add(&m_ScrollLeft);
    }
    for (const auto& panel : m_parts->panels) {
        if (!panel->GetRect().IsRectEmpty()) {
            panel->GetVisibleElements(arElements);
        }
    }
    if (!m_ScrollRight.GetRect().IsRectEmpty()) {
        arElements.Add(&m_ScrollRight);
    }
}

void CMFCRibbonCategory::GetItemIDsList(CList<UINT, UINT>& lstItems, BOOL bHiddenOnly) const {
    if (!bHiddenOnly) {
        for (const auto& panel : m_parts->panels) {
            panel->GetItemIDsList(lstItems);
        }
    }
    for (const auto& element : m_parts->hidden) {
        if (element->GetID() != 0) {
            lstItems.AddTail(element->GetID());
        }
    }
}

CMFCRibbonBaseElement* CMFCRibbonCategory::GetFirstVisibleElement() const {
    ElementArray elements;
    const_cast<CMFCRibbonCategory*>(this)->GetVisibleElements(elements);
    return elements.IsEmpty() ? nullptr : elements[0];
}

CMFCRibbonBaseElement* CMFCRibbonCategory::GetLastVisibleElement() const {
    ElementArray elements;
    const_cast<CMFCRibbonCategory*>(this)->GetVisibleElements(elements);
    return elements.IsEmpty() ? nullptr : elements[elements.GetUpperBound()];
}

CMFCRibbonBaseElement* CMFCRibbonCategory::GetDroppedDown() {
    for (const auto& panel : m_parts->panels) {
        if (CMFCRibbonBaseElement* dropped = panel->GetDroppedDown()) {
            return dropped;
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonCategory::GetFocused() {
    if (m_Tab.IsFocused()) {
        return &m_Tab;
    }
    for (const auto& panel : m_parts->panels) {
        if (CMFCRibbonBaseElement* focused = panel->GetFocused()) {
            return focused;
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonCategory::GetHighlighted() {
    if (m_Tab.IsHighlighted()) {
        return &m_Tab;
    }
    for (const auto& panel : m_parts->panels) {
        if (CMFCRibbonBaseElement* highlighted = panel->GetHighlighted()) {
            return highlighted;
        }
    }
    return nullptr;
}
