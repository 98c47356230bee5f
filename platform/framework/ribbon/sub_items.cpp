// The sub-items of a ribbon button: ownership, parents, copies and searches.
#include <afxribbonbutton.h>

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

namespace {

// Of the item's class, with the item as its original; null when the class cannot be created.
CMFCRibbonBaseElement* MakeCopy(CMFCRibbonBaseElement& item) {
    auto* copy = static_cast<CMFCRibbonBaseElement*>(item.GetRuntimeClass()->CreateObject());
    if (copy == nullptr) {
        return nullptr;
    }
    copy->CopyFrom(item);
    copy->CopyStateFrom(&item);
    return copy;
}

} // namespace

void CMFCRibbonButton::AddSubItem(CMFCRibbonBaseElement* pSubItem, int nIndex) {
    if (pSubItem == nullptr) {
        return;
    }
    const BOOL hadMenu = HasMenu();
    if (nIndex < 0 || nIndex >= m_arSubItems.GetSize()) {
        m_arSubItems.Add(pSubItem);
    } else {
        m_arSubItems.InsertAt(nIndex, pSubItem);
    }
    pSubItem->SetParentCategory(m_pParentCategory);
    pSubItem->SetParentPanel(m_pParentPanel);
    if (m_pRibbonBar != nullptr) {
        pSubItem->SetParentRibbonBar(m_pRibbonBar);
    }
    OnSubItemsChanged(hadMenu);
    for (CMFCRibbonButton* follower : CollectFollowers()) {
        if (CMFCRibbonBaseElement* copy = MakeCopy(*pSubItem); copy != nullptr) {
            follower->AddSubItem(copy, nIndex);
            if (auto* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, copy)) {
                button->FollowOriginal();
            }
        }
    }
}

int CMFCRibbonButton::FindSubItemIndexByID(UINT uiID) const {
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (m_arSubItems[i]->GetID() == uiID) {
            return i;
        }
    }
    return -1;
}

BOOL CMFCRibbonButton::RemoveSubItem(int nIndex) {
    if (nIndex < 0 || nIndex >= m_arSubItems.GetSize()) {
        return FALSE;
    }
    CMFCRibbonBaseElement* item = m_arSubItems[nIndex];
    for (CMFCRibbonButton* follower : CollectFollowers()) {
        follower->RemoveCopyOf(*item, nIndex);
    }
    const BOOL hadMenu = HasMenu();
    m_arSubItems.RemoveAt(nIndex);
    delete item;
    OnSubItemsChanged(hadMenu);
    return TRUE;
}

// Mostly it has its item's place; not behind one that could not be copied.
void CMFCRibbonButton::RemoveCopyOf(const CMFCRibbonBaseElement& item, int place) {
    const int count = static_cast<int>(m_arSubItems.GetSize());
    for (int step = 0; step < count; ++step) {
        const int index = (place + step) % count;
        if (m_arSubItems[index]->GetOriginal() == &item) {
            RemoveSubItem(index);
            return;
        }
    }
}

void CMFCRibbonButton::RemoveAllSubItems() {
    for (CMFCRibbonButton* follower : CollectFollowers()) {
        follower->RemoveAllSubItems();
    }
    const BOOL hadMenu = HasMenu();
    DeleteSubItems();
    OnSubItemsChanged(hadMenu);
}

void CMFCRibbonButton::DeleteSubItems() {
    ElementArray items;
    items.Copy(m_arSubItems);
    m_arSubItems.RemoveAll();
    for (int i = 0; i < items.GetSize(); ++i) {
        delete items[i];
    }
}

// The first sub-item brings the arrow, the last one takes it away.
void CMFCRibbonButton::OnSubItemsChanged(BOOL hadMenu) {
    if (!hadMenu == !HasMenu()) {
        CleanUpSizes();
    } else {
        OnMenuChanged();
    }
}

void CMFCRibbonButton::CopySubItems(const CMFCRibbonButton& src) {
    RemoveAllSubItems();
    for (int i = 0; i < src.m_arSubItems.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* copy = MakeCopy(*src.m_arSubItems[i]); copy != nullptr) {
            AddSubItem(copy);
        }
    }
}

void CMFCRibbonButton::FollowOriginal() {
    m_bFollowsOriginal = TRUE;
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (auto* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, m_arSubItems[i])) {
            button->FollowOriginal();
        }
    }
}

std::vector<CMFCRibbonButton*> CMFCRibbonButton::CollectFollowers() const {
    std::vector<CMFCRibbonButton*> followers;
    for (CMFCRibbonBaseElement* copy : CollectCopies()) {
        auto* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, copy);
        if (button != nullptr && button->m_bFollowsOriginal) {
            followers.push_back(button);
        }
    }
    return followers;
}

void CMFCRibbonButton::SetParentCategory(CMFCRibbonCategory* pParent) {
    CMFCRibbonBaseElement::SetParentCategory(pParent);
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        m_arSubItems[i]->SetParentCategory(pParent);
    }
}

void CMFCRibbonButton::SetParentPanel(CMFCRibbonPanel* pPanel) {
    CMFCRibbonBaseElement::SetParentPanel(pPanel);
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        m_arSubItems[i]->SetParentPanel(pPanel);
    }
}

void CMFCRibbonButton::SetParentRibbonBar(CMFCRibbonBar* pRibbonBar) {
    CMFCRibbonBaseElement::SetParentRibbonBar(pRibbonBar);
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        m_arSubItems[i]->SetParentRibbonBar(pRibbonBar);
    }
}

// Sub-items follow when both buttons have the same ones.
void CMFCRibbonButton::SetOriginal(CMFCRibbonBaseElement* pOriginal) {
    CMFCRibbonBaseElement::SetOriginal(pOriginal);
    auto* button = dynamic_cast<CMFCRibbonButton*>(pOriginal);
    if (button == nullptr || button->m_arSubItems.GetSize() != m_arSubItems.GetSize()) {
        return;
    }
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        m_arSubItems[i]->SetOriginal(button->m_arSubItems[i]);
    }
}

CMFCRibbonBaseElement* CMFCRibbonButton::Find(const CMFCRibbonBaseElement* pElement) {
    if (CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::Find(pElement); found != nullptr) {
        return found;
    }
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* found = m_arSubItems[i]->Find(pElement); found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonButton::FindByID(UINT uiCmdID) {
    if (CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::FindByID(uiCmdID); found != nullptr) {
        return found;
    }
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* found = m_arSubItems[i]->FindByID(uiCmdID); found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonButton::FindByData(DWORD_PTR dwData) {
    if (CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::FindByData(dwData); found != nullptr) {
        return found;
    }
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* found = m_arSubItems[i]->FindByData(dwData); found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonButton::FindByOriginal(CMFCRibbonBaseElement* pOriginal) {
    if (CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::FindByOriginal(pOriginal); found != nullptr) {
        return found;
    }
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* found = m_arSubItems[i]->FindByOriginal(pOriginal); found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

void CMFCRibbonButton::GetElementsByID(UINT uiCmdID, ElementArray& arElements) {
    CMFCRibbonBaseElement::GetElementsByID(uiCmdID, arElements);
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        m_arSubItems[i]->GetElementsByID(uiCmdID, arElements);
    }
}
