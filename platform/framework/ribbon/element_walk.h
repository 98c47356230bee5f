#pragma once

#include "afxribbonbutton.h"
#include "afxribbonbuttonsgroup.h"

namespace ribbon {

/// The first that fits of an element and what it holds: the buttons of a group, the sub-items of a button, and what
/// those hold. Null when none does.
template <typename Question>
CMFCRibbonBaseElement* FirstWithin(CMFCRibbonBaseElement& element, const Question& fits) {
    if (fits(element)) {
        return &element;
    }
    if (const auto* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, &element)) {
        const auto& items = button->GetSubItems();
        for (INT_PTR index = 0; index < items.GetSize(); ++index) {
            if (CMFCRibbonBaseElement* found = FirstWithin(*items[index], fits)) {
                return found;
            }
        }
    } else if (const auto* group = DYNAMIC_DOWNCAST(CMFCRibbonButtonsGroup, &element)) {
        for (int index = 0; index < group->GetCount(); ++index) {
            if (CMFCRibbonBaseElement* found = FirstWithin(*group->GetButton(index), fits)) {
                return found;
            }
        }
    }
    return nullptr;
}

/// The element or the first in it that has the id; with visibleOnly the first visible one. Null when there is none.
inline CMFCRibbonBaseElement* FindByID(CMFCRibbonBaseElement& element, UINT id, BOOL visibleOnly) {
    CMFCRibbonBaseElement* first = element.FindByID(id);
    if (first == nullptr || !visibleOnly || first->IsVisible()) {
        return first;
    }
    return FirstWithin(element,
                       [id](const CMFCRibbonBaseElement& one) { return one.GetID() == id && one.IsVisible(); });
}

/// The same for the data.
inline CMFCRibbonBaseElement* FindByData(CMFCRibbonBaseElement& element, DWORD_PTR data, BOOL visibleOnly) {
    CMFCRibbonBaseElement* first = element.FindByData(data);
    if (first == nullptr || !visibleOnly || first->IsVisible()) {
        return first;
    }
    return FirstWithin(element,
                       [data](const CMFCRibbonBaseElement& one) { return one.GetData() == data && one.IsVisible(); });
}

} // namespace ribbon
