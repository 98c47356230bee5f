// What a panel holds: searches, state, and the keys of the element that has the keyboard.
#include "afxRibbonPanel.h"

#include "afxribboncategory.h"
#include "afxribbonpanelmenu.h"

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

// The elements, then the launch button when there is one.
std::vector<CMFCRibbonBaseElement*> CMFCRibbonPanel::CollectParts() const {
    std::vector<CMFCRibbonBaseElement*> parts(m_arElements.GetData(), m_arElements.GetData() + m_arElements.GetSize());
    if (HasLaunchButton()) {
        parts.push_back(const_cast<CMFCRibbonLaunchButton*>(&LaunchButton()));
    }
    return parts;
}

BOOL CMFCRibbonPanel::HasElement(const CMFCRibbonBaseElement* pElem) const {
    for (CMFCRibbonBaseElement* part : CollectParts()) {
        if (part->Find(pElem) != nullptr) {
            return TRUE;
        }
    }
    return FALSE;
}

CMFCRibbonBaseElement* CMFCRibbonPanel::FindByID(UINT uiCmdID) const {
    for (CMFCRibbonBaseElement* part : CollectParts()) {
        if (CMFCRibbonBaseElement* found = part->FindByID(uiCmdID)) {
            return found;
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonPanel::FindByData(DWORD_PTR dwData) const {
    for (int index = 0; index < GetCount(); ++index) {
        if (CMFCRibbonBaseElement* found = m_arElements[index]->FindByData(dwData)) {
            return found;
        }
    }
    return nullptr;
}

void CMFCRibbonPanel::GetElements(ElementArray& arElements) {
    for (CMFCRibbonBaseElement* part : CollectParts()) {
        part->GetElements(arElements);
    }
}

void CMFCRibbonPanel::GetElementsByID(UINT uiCmdID, ElementArray& arElements) {
    for (CMFCRibbonBaseElement* part : CollectParts()) {
        part->GetElementsByID(uiCmdID, arElements);
    }
}

void CMFCRibbonPanel::GetVisibleElements(ElementArray& arElements) {
    if (m_bCollapsed) {
        arElements.Add(&m_btnDefault);
        return;
    }
    for (CMFCRibbonBaseElement* part : CollectParts()) {
        if (!part->GetRect().IsRectEmpty()) {
            part->GetElements(arElements);
        }
    }
}

void CMFCRibbonPanel::GetItemIDsList(CList<UINT, UINT>& lstItems) const {
    ElementArray elements;
    const_cast<CMFCRibbonPanel*>(this)->GetElements(elements);
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        if (elements[index]->GetID() != 0 && elements[index]->GetID() != static_cast<UINT>(-1)) {
            lstItems.AddTail(elements[index]->GetID());
        }
    }
}

CMFCRibbonBaseElement* CMFCRibbonPanel::GetDroppedDown() const {
    if (m_btnDefault.IsDroppedDown()) {
        return const_cast<CMFCRibbonDefaultPanelButton*>(&m_btnDefault);
    }
    for (int index = 0; index < GetCount(); ++index) {
        if (CMFCRibbonBaseElement* dropped = m_arElements[index]->GetDroppedDown()) {
            return dropped;
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonPanel::GetFocused() const {
    if (m_btnDefault.IsFocused()) {
        return const_cast<CMFCRibbonDefaultPanelButton*>(&m_btnDefault);
    }
    ElementArray elements;
    const_cast<CMFCRibbonPanel*>(this)->GetElements(elements);
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        if (elements[index]->IsFocused()) {
            return elements[index];
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonPanel::GetHighlighted() const {
    if (m_btnDefault.IsHighlighted()) {
        return const_cast<CMFCRibbonDefaultPanelButton*>(&m_btnDefault);
    }
    for (CMFCRibbonBaseElement* part : CollectParts()) {
        if (CMFCRibbonBaseElement* highlighted = part->GetHighlighted()) {
            return highlighted;
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonPanel::GetPressed() const {
    if (m_btnDefault.IsPressed()) {
        return const_cast<CMFCRibbonDefaultPanelButton*>(&m_btnDefault);
    }
    for (CMFCRibbonBaseElement* part : CollectParts()) {
        if (CMFCRibbonBaseElement* pressed = part->GetPressed()) {
            return pressed;
        }
    }
    return nullptr;
}

void CMFCRibbonPanel::SetFocused(CMFCRibbonBaseElement* pNewFocus) {
    CMFCRibbonBaseElement* former = GetFocused();
    if (former == pNewFocus) {
        return;
    }
    if (former != nullptr) {
        former->SetFocused(FALSE);
    }
    if (pNewFocus != nullptr) {
        pNewFocus->SetFocused(TRUE);
    }
}

// A button knows only keys that press it, which the walk gives to it itself; what is no button moves by its own.
BOOL CMFCRibbonPanel::OnKey(UINT nChar) {
    const CMFCRibbonPanelMenuBar* popup = m_pParentMenuBar;
    if (popup == nullptr && m_pParent != nullptr) {
        popup = m_pParent->GetParentMenuBar();
    }
    CMFCRibbonBaseElement* element = popup != nullptr ? popup->GetHighlighted() : GetFocused();
    const bool ownsKeys = element != nullptr && !element->IsKindOf(RUNTIME_CLASS(CMFCRibbonButton));
    return ownsKeys && element->ProcessKey(nChar);
}
