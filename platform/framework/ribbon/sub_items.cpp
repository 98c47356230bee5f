// The sub-items of a ribbon button: ownership, parents and searches.
#include <afxribbonbutton.h>

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

void CMFCRibbonButton::AddSubItem(CMFCRibbonBaseElement* pSubItem, int nIndex) {
    if (pSubItem == nullptr)
        return;
    if (nIndex < 0 || nIndex >= m_arSubItems.GetSize())
        m_arSubItems.Add(pSubItem);
    else
        m_arSubItems.InsertAt(nIndex, pSubItem);
    pSubItem->SetParentCategory(m_pParentCategory);
    pSubItem->SetParentPanel(m_pParentPanel);
    if (m_pRibbonBar != nullptr)
        pSubItem->SetParentRibbonBar(m_pRibbonBar);
    CleanUpSizes();
}

int CMFCRibbonButton::FindSubItemIndexByID(UINT uiID) const {
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (m_arSubItems[i]->GetID() == uiID)
            return i;
    }
    return -1;
}

BOOL CMFCRibbonButton::RemoveSubItem(int nIndex) {
    if (nIndex < 0 || nIndex >= m_arSubItems.GetSize())
        return FALSE;
    CMFCRibbonBaseElement* item = m_arSubItems[nIndex];
    m_arSubItems.RemoveAt(nIndex);
    delete item;
    CleanUpSizes();
    return TRUE;
}

void CMFCRibbonButton::RemoveAllSubItems() {
    for (int i = 0; i < m_arSubItems.GetSize(); ++i)
        delete m_arSubItems[i];
    m_arSubItems.RemoveAll();
    CMFCRibbonButton::CleanUpSizes();
}

// Each copy is of its item's class and has it as its original. An item whose class cannot be created is left out.
void CMFCRibbonButton::CopySubItems(const CMFCRibbonButton& src) {
    RemoveAllSubItems();
    for (int i = 0; i < src.m_arSubItems.GetSize(); ++i) {
        CMFCRibbonBaseElement* item = src.m_arSubItems[i];
        auto* copy = static_cast<CMFCRibbonBaseElement*>(item->GetRuntimeClass()->CreateObject());
        if (copy == nullptr)
            continue;
        copy->CopyFrom(*item);
        copy->CopyStateFrom(item);
        AddSubItem(copy);
    }
}

void CMFCRibbonButton::SetParentCategory(CMFCRibbonCategory* pParent) {
    CMFCRibbonBaseElement::SetParentCategory(pParent);
    for (int i = 0; i < m_arSubItems.GetSize(); ++i)
        m_arSubItems[i]->SetParentCategory(pParent);
}

void CMFCRibbonButton::SetParentPanel(CMFCRibbonPanel* pPanel) {
    CMFCRibbonBaseElement::SetParentPanel(pPanel);
    for (int i = 0; i < m_arSubItems.GetSize(); ++i)
        m_arSubItems[i]->SetParentPanel(pPanel);
}

void CMFCRibbonButton::SetParentRibbonBar(CMFCRibbonBar* pRibbonBar) {
    CMFCRibbonBaseElement::SetParentRibbonBar(pRibbonBar);
    for (int i = 0; i < m_arSubItems.GetSize(); ++i)
        m_arSubItems[i]->SetParentRibbonBar(pRibbonBar);
}

// Sub-items follow when both buttons have the same ones.
void CMFCRibbonButton::SetOriginal(CMFCRibbonBaseElement* pOriginal) {
    CMFCRibbonBaseElement::SetOriginal(pOriginal);
    auto* button = dynamic_cast<CMFCRibbonButton*>(pOriginal);
    if (button == nullptr || button->m_arSubItems.GetSize() != m_arSubItems.GetSize())
        return;
    for (int i = 0; i < m_arSubItems.GetSize(); ++i)
        m_arSubItems[i]->SetOriginal(button->m_arSubItems[i]);
}

CMFCRibbonBaseElement* CMFCRibbonButton::Find(const CMFCRibbonBaseElement* pElement) {
    if (CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::Find(pElement); found != nullptr)
        return found;
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* found = m_arSubItems[i]->Find(pElement); found != nullptr)
            return found;
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonButton::FindByID(UINT uiCmdID) {
    if (CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::FindByID(uiCmdID); found != nullptr)
        return found;
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* found = m_arSubItems[i]->FindByID(uiCmdID); found != nullptr)
            return found;
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonButton::FindByData(DWORD_PTR dwData) {
    if (CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::FindByData(dwData); found != nullptr)
        return found;
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* found = m_arSubItems[i]->FindByData(dwData); found != nullptr)
            return found;
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonButton::FindByOriginal(CMFCRibbonBaseElement* pOriginal) {
    if (CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::FindByOriginal(pOriginal); found != nullptr)
        return found;
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* found = m_arSubItems[i]->FindByOriginal(pOriginal); found != nullptr)
            return found;
    }
    return nullptr;
}

void CMFCRibbonButton::GetElementsByID(UINT uiCmdID, ElementArray& arElements) {
    CMFCRibbonBaseElement::GetElementsByID(uiCmdID, arElements);
    for (int i = 0; i < m_arSubItems.GetSize(); ++i)
        m_arSubItems[i]->GetElementsByID(uiCmdID, arElements);
}
