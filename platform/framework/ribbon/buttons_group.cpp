#include <afxribbonbuttonsgroup.h>

#include <afxribbonbar.h>
#include <afxribboncategory.h>
#include <afxvisualmanager.h>

#include "ribbon/element_metrics.h"
#include <oleacc.h>

IMPLEMENT_DYNCREATE(CMFCRibbonButtonsGroup, CMFCRibbonBaseElement)

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

CMFCRibbonButtonsGroup::CMFCRibbonButtonsGroup() { m_bShowGroupBorder = TRUE; }

CMFCRibbonButtonsGroup::CMFCRibbonButtonsGroup(CMFCRibbonBaseElement* pButton) : CMFCRibbonButtonsGroup() {
    AddButton(pButton);
}

CMFCRibbonButtonsGroup::~CMFCRibbonButtonsGroup() { RemoveAll(); }

void CMFCRibbonButtonsGroup::AddButton(CMFCRibbonBaseElement* pButton) {
    if (pButton == nullptr) {
        return;
    }
    m_arButtons.Add(pButton);
    pButton->SetParentGroup(this);
    pButton->SetParentCategory(m_pParentCategory);
    pButton->SetParentPanel(m_pParentPanel);
    pButton->SetParentWnd(m_pParentWnd);
    if (m_pRibbonBar != nullptr) {
        pButton->SetParentRibbonBar(m_pRibbonBar);
    }
    pButton->SetCompactMode(TRUE);
}

void CMFCRibbonButtonsGroup::AddButtons(const CList<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& lstButtons) {
    for (POSITION position = lstButtons.GetHeadPosition(); position != nullptr;) {
        AddButton(lstButtons.GetNext(position));
    }
}

CMFCRibbonBaseElement* CMFCRibbonButtonsGroup::GetButton(int i) const {
    return i >= 0 && i < GetCount() ? m_arButtons[i] : nullptr;
}

void CMFCRibbonButtonsGroup::RemoveAll() {
    // Out of the list before they go: whoever hears of their end may walk through those that are there.
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> gone;
    gone.Copy(m_arButtons);
    m_arButtons.RemoveAll();
    for (INT_PTR index = 0; index < gone.GetSize(); ++index) {
        delete gone[index];
    }
}

// ---- images

void CMFCRibbonButtonsGroup::SetImages(CMFCToolBarImages* pImages, CMFCToolBarImages* pHotImages,
                                       CMFCToolBarImages* pDisabledImages) {
    const auto copy = [](CMFCToolBarImages* from, CMFCToolBarImages& to) {
        to.Clear();
        if (from != nullptr) {
            from->CopyTo(to);
        }
    };
    copy(pImages, m_Images);
    copy(pHotImages, m_HotImages);
    copy(pDisabledImages, m_DisabledImages);
}

const CSize CMFCRibbonButtonsGroup::GetImageSize() const {
    if (!HasImages()) {
        return m_pParentCategory != nullptr ? m_pParentCategory->GetElementImageSize(FALSE) : CSize(0, 0);
    }
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    const CSize size = m_Images.GetImageSize();
    return {metrics.Scaled(size.cx), metrics.Scaled(size.cy)};
}

void CMFCRibbonButtonsGroup::OnDrawImage(CDC* pDC, CRect rectImage, CMFCRibbonBaseElement* pButton, int nImageIndex) {
    const BOOL isDisabled = pButton != nullptr && pButton->IsDisabled();
    const BOOL isHot = pButton != nullptr && !isDisabled && pButton->IsHighlighted();
    const bool hasDisabled = nImageIndex < m_DisabledImages.GetCount();
    CMFCToolBarImages& images = isDisabled && hasDisabled                       ? m_DisabledImages
                                : isHot && nImageIndex < m_HotImages.GetCount() ? m_HotImages
                                                                                : m_Images;
    CAfxDrawState state;
    if (!images.PrepareDrawImage(state, rectImage.Size())) {
        return;
    }
    images.Draw(pDC, rectImage.left, rectImage.top, nImageIndex, FALSE, isDisabled && !hasDisabled);
    images.EndDrawImage(state);
}

// ---- size and place

CSize CMFCRibbonButtonsGroup::GetRegularSize(CDC* pDC) {
    CSize size(0, 0);
    for (int i = 0; i < GetCount(); ++i) {
        if (!m_arButtons[i]->IsVisible()) {
            continue;
        }
        // An image list of the group can give a button the small image that it had not when it was added.
        m_arButtons[i]->SetCompactMode(TRUE);
        const CSize button = m_arButtons[i]->GetSize(pDC);
        size.cx += button.cx;
        size.cy = std::max(size.cy, button.cy);
    }
    return size;
}

void CMFCRibbonButtonsGroup::OnCalcTextSize(CDC* pDC) {
    CMFCRibbonBaseElement::OnCalcTextSize(pDC);
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->OnCalcTextSize(pDC);
    }
}

void CMFCRibbonButtonsGroup::CleanUpSizes() {
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->CleanUpSizes();
    }
}

void CMFCRibbonButtonsGroup::OnAfterChangeRect(CDC* pDC) {
    CMFCRibbonBaseElement::OnAfterChangeRect(pDC);
    if (m_pRibbonBar != nullptr) {
        m_bShowGroupBorder = m_pRibbonBar->IsShowGroupBorder(this);
    }
    PlaceButtons(pDC);
}

void CMFCRibbonButtonsGroup::PlaceButtons(CDC* pDC) {
    CMFCRibbonBaseElement* last = nullptr;
    int x = m_rect.left;
    for (int i = 0; i < GetCount(); ++i) {
        CMFCRibbonBaseElement* button = m_arButtons[i];
        button->SetShowGroupBorder(m_bShowGroupBorder);
        if (!button->IsVisible() || m_rect.IsRectEmpty()) {
            button->SetRect(CRect(0, 0, 0, 0));
            button->SetLocationInGroup(RibbonElementNotInGroup);
        } else {
            const int width = button->GetSize(pDC).cx;
            button->SetRect(CRect(x, m_rect.top, x + width, m_rect.bottom));
            button->SetLocationInGroup(last == nullptr ? RibbonElementFirstInGroup : RibbonElementMiddleInGroup);
            last = button;
            x += width;
        }
        button->OnAfterChangeRect(pDC);
    }
    if (last != nullptr) {
        last->SetLocationInGroup(last->GetLocationInGroup() == RibbonElementFirstInGroup ? RibbonElementSingleInGroup
                                                                                         : RibbonElementLastInGroup);
    }
}

void CMFCRibbonButtonsGroup::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    const COLORREF color = CMFCVisualManager::GetInstance()->OnDrawRibbonButtonsGroup(pDC, this, m_rect);
    const COLORREF old = pDC->SetTextColor(ribbon::TextColor(pDC, color, FALSE));
    for (int i = 0; i < GetCount(); ++i) {
        if (m_arButtons[i]->IsVisible()) {
            m_arButtons[i]->OnDraw(pDC);
        }
    }
    pDC->SetTextColor(old);
}

void CMFCRibbonButtonsGroup::OnShow(BOOL bShow) {
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->OnShow(bShow && m_arButtons[i]->IsVisible());
    }
}

void CMFCRibbonButtonsGroup::DestroyCtrl() {
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->DestroyCtrl();
    }
}

void CMFCRibbonButtonsGroup::OnHighlight(BOOL bHighlight) {
    for (int i = 0; !bHighlight && i < GetCount(); ++i) {
        m_arButtons[i]->SetHighlighted(FALSE);
    }
}

void CMFCRibbonButtonsGroup::OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->OnUpdateCmdUI(pCmdUI, pTarget, bDisableIfNoHndler);
    }
}

// ---- parents and copies

void CMFCRibbonButtonsGroup::SetParentCategory(CMFCRibbonCategory* pCategory) {
    CMFCRibbonBaseElement::SetParentCategory(pCategory);
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->SetParentCategory(pCategory);
    }
}

void CMFCRibbonButtonsGroup::SetParentPanel(CMFCRibbonPanel* pPanel) {
    CMFCRibbonBaseElement::SetParentPanel(pPanel);
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->SetParentPanel(pPanel);
    }
}

void CMFCRibbonButtonsGroup::SetParentRibbonBar(CMFCRibbonBar* pRibbonBar) {
    CMFCRibbonBaseElement::SetParentRibbonBar(pRibbonBar);
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->SetParentRibbonBar(pRibbonBar);
    }
}

void CMFCRibbonButtonsGroup::SetParentWnd(CWnd* pParentWnd) {
    CMFCRibbonBaseElement::SetParentWnd(pParentWnd);
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->SetParentWnd(pParentWnd);
    }
}

void CMFCRibbonButtonsGroup::SetParentMenu(CMFCRibbonPanelMenuBar* pMenuBar) {
    CMFCRibbonBaseElement::SetParentMenu(pMenuBar);
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->SetParentMenu(pMenuBar);
    }
}

// Buttons follow when both groups have the same ones.
void CMFCRibbonButtonsGroup::SetOriginal(CMFCRibbonBaseElement* pOriginal) {
    CMFCRibbonBaseElement::SetOriginal(pOriginal);
    auto* group = dynamic_cast<CMFCRibbonButtonsGroup*>(pOriginal);
    if (group == nullptr || group->GetCount() != GetCount()) {
        return;
    }
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->SetOriginal(group->m_arButtons[i]);
    }
}

void CMFCRibbonButtonsGroup::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonBaseElement::CopyFrom(src);
    const auto* group = dynamic_cast<const CMFCRibbonButtonsGroup*>(&src);
    if (group == nullptr || group == this) {
        return;
    }
    m_bShowGroupBorder = group->m_bShowGroupBorder;
    const auto copyImages = [](const CMFCToolBarImages& from, CMFCToolBarImages& to) {
        to.Clear();
        if (from.GetCount() > 0) {
            const_cast<CMFCToolBarImages&>(from).CopyTo(to); // CopyTo is documented without const; it only reads
        }
    };
    copyImages(group->m_Images, m_Images);
    copyImages(group->m_HotImages, m_HotImages);
    copyImages(group->m_DisabledImages, m_DisabledImages);
    RemoveAll();
    for (int i = 0; i < group->GetCount(); ++i) {
        CMFCRibbonBaseElement* button = group->m_arButtons[i];
        auto* copy = static_cast<CMFCRibbonBaseElement*>(button->GetRuntimeClass()->CreateObject());
        if (copy == nullptr) {
            continue;
        }
        copy->CopyFrom(*button);
        copy->CopyStateFrom(button);
        AddButton(copy);
    }
}

// ---- search

CMFCRibbonBaseElement* CMFCRibbonButtonsGroup::HitTest(CPoint point) {
    for (int i = 0; m_bIsVisible && i < GetCount(); ++i) {
        if (CMFCRibbonBaseElement* hit = m_arButtons[i]->HitTest(point); hit != nullptr) {
            return hit;
        }
    }
    return CMFCRibbonBaseElement::HitTest(point);
}

namespace {

template <typename Search>
CMFCRibbonBaseElement* FirstOf(const ElementArray& buttons, Search search) {
    for (int i = 0; i < buttons.GetSize(); ++i) {
        if (CMFCRibbonBaseElement* found = search(*buttons[i]); found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

CMFCRibbonBaseElement* CMFCRibbonButtonsGroup::Find(const CMFCRibbonBaseElement* pElement) {
    CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::Find(pElement);
    return found != nullptr ? found : FirstOf(m_arButtons, [&](CMFCRibbonBaseElement& b) { return b.Find(pElement); });
}

CMFCRibbonBaseElement* CMFCRibbonButtonsGroup::FindByID(UINT uiCmdID) {
    CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::FindByID(uiCmdID);
    return found != nullptr ? found
                            : FirstOf(m_arButtons, [&](CMFCRibbonBaseElement& b) { return b.FindByID(uiCmdID); });
}

CMFCRibbonBaseElement* CMFCRibbonButtonsGroup::FindByData(DWORD_PTR dwData) {
    CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::FindByData(dwData);
    return found != nullptr ? found
                            : FirstOf(m_arButtons, [&](CMFCRibbonBaseElement& b) { return b.FindByData(dwData); });
}

CMFCRibbonBaseElement* CMFCRibbonButtonsGroup::FindByOriginal(CMFCRibbonBaseElement* pOriginal) {
    CMFCRibbonBaseElement* found = CMFCRibbonBaseElement::FindByOriginal(pOriginal);
    return found != nullptr
               ? found
               : FirstOf(m_arButtons, [&](CMFCRibbonBaseElement& b) { return b.FindByOriginal(pOriginal); });
}

CMFCRibbonBaseElement* CMFCRibbonButtonsGroup::GetDroppedDown() {
    return FirstOf(m_arButtons, [](CMFCRibbonBaseElement& b) { return b.GetDroppedDown(); });
}

CMFCRibbonBaseElement* CMFCRibbonButtonsGroup::GetHighlighted() {
    return FirstOf(m_arButtons, [](CMFCRibbonBaseElement& b) { return b.GetHighlighted(); });
}

CMFCRibbonBaseElement* CMFCRibbonButtonsGroup::GetPressed() {
    return FirstOf(m_arButtons, [](CMFCRibbonBaseElement& b) { return b.GetPressed(); });
}

// The buttons, not the group itself: it is no element that a user sees or customises.
void CMFCRibbonButtonsGroup::GetElements(ElementArray& arElements) {
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->GetElements(arElements);
    }
}

void CMFCRibbonButtonsGroup::GetElementsByID(UINT uiCmdID, ElementArray& arElements) {
    CMFCRibbonBaseElement::GetElementsByID(uiCmdID, arElements);
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->GetElementsByID(uiCmdID, arElements);
    }
}

// ---- for assistive programs

BOOL CMFCRibbonButtonsGroup::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_TOOLBAR;
    return TRUE;
}
