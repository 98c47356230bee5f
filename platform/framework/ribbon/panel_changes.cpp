#include "afxribbonbutton.h"
#include "afxRibbonPanel.h"

#include <memory>

// Elements that are changed after their panel was filled.

CMFCRibbonBaseElement* CMFCRibbonPanel::SetElementRTC(int nIndex, CRuntimeClass* pRTC) {
    CMFCRibbonBaseElement* const former = GetElement(nIndex);
    if (former == nullptr || pRTC == nullptr) {
        return nullptr;
    }
    std::unique_ptr<CObject> object(pRTC->CreateObject());
    auto* const element = DYNAMIC_DOWNCAST(CMFCRibbonBaseElement, object.get());
    if (element == nullptr) {
        return nullptr;
    }
    element->SetID(former->GetID());
    element->SetText(former->GetText());
    element->SetKeys(former->GetKeys());
    element->SetToolTipText(former->GetToolTipText());
    element->SetDescription(former->GetDescription());
    const auto* const formerButton = DYNAMIC_DOWNCAST(CMFCRibbonButton, former);
    auto* const button = DYNAMIC_DOWNCAST(CMFCRibbonButton, element);
    if (formerButton != nullptr && button != nullptr) {
        button->SetImageIndex(formerButton->GetImageIndex(FALSE), FALSE);
        button->SetImageIndex(formerButton->GetImageIndex(TRUE), TRUE);
    }
    static_cast<void>(object.release()); // the panel owns it from here
    Replace(nIndex, element);
    return element;
}

CMFCRibbonBaseElement* CMFCRibbonPanel::SetElementRTCByID(UINT uiCmdID, CRuntimeClass* pRTC) {
    for (int index = 0; index < GetCount(); ++index) {
        if (GetElement(index)->GetID() == uiCmdID) {
            return SetElementRTC(index, pRTC);
        }
    }
    return nullptr;
}

BOOL CMFCRibbonPanel::SetElementMenu(UINT uiCmdID, HMENU hMenu, BOOL bIsDefautCommand, BOOL bRightAlign) {
    auto* const button = DYNAMIC_DOWNCAST(CMFCRibbonButton, FindByID(uiCmdID));
    if (button == nullptr) {
        return FALSE;
    }
    button->SetMenu(hMenu, bIsDefautCommand, bRightAlign);
    MarkLayoutDirty();
    return TRUE;
}

BOOL CMFCRibbonPanel::SetElementMenu(UINT uiCmdID, UINT uiMenuResID, BOOL bIsDefautCommand, BOOL bRightAlign) {
    auto* const button = DYNAMIC_DOWNCAST(CMFCRibbonButton, FindByID(uiCmdID));
    if (button == nullptr) {
        return FALSE;
    }
    button->SetMenu(uiMenuResID, bIsDefautCommand, bRightAlign);
    MarkLayoutDirty();
    return button->HasMenu();
}
