// What a ribbon element tells assistive programs, whatever its kind.
#include <afxribboncategory.h>

#include <oleacc.h>

#include "core/framework_text.h"
#include "ribbon/access_texts.h"

CString RibbonAccessText(RibbonAccessTextId id) { return FrameworkText(static_cast<UINT>(id)); }

namespace {

using TextId = RibbonAccessTextId;

// "Alt, H, FP": what is pressed one after the other, from the document.
CString KeysOf(const CMFCRibbonBaseElement& element) {
    CString keys = element.GetKeyTipText(FALSE);
    if (keys.IsEmpty()) {
        return keys;
    }
    CString path = RibbonAccessText(TextId::Alt) + L", ";
    if (element.GetParentPanel() != nullptr && element.GetParentCategory() != nullptr) {
        path += element.GetParentCategory()->GetTab().GetKeyTipText(FALSE) + L", ";
    }
    return path + keys;
}

LONG StateOf(const CMFCRibbonBaseElement& element) {
    const struct {
        BOOL isOn;
        LONG state;
    } states[] = {
        {element.IsDisabled(), STATE_SYSTEM_UNAVAILABLE},
        {element.IsHighlighted(), STATE_SYSTEM_HOTTRACKED},
        {element.IsPressed(), STATE_SYSTEM_PRESSED},
        {element.IsChecked(), STATE_SYSTEM_CHECKED},
        {element.IsTabStop() && !element.IsDisabled(), STATE_SYSTEM_FOCUSABLE},
        {element.IsFocused(), STATE_SYSTEM_FOCUSED},
        {element.HasDropDown(), STATE_SYSTEM_HASPOPUP},
        {element.HasDropDown(), element.IsDroppedDown() ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED},
        {!element.IsVisible(), STATE_SYSTEM_INVISIBLE},
        {element.GetRect().IsRectEmpty(), STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN},
    };
    LONG state = 0;
    for (const auto& one : states) {
        state |= one.isOn ? one.state : 0;
    }
    return state;
}

} // namespace

BOOL CMFCRibbonBaseElement::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    data = {};
    const CString text = ribbon::PlainTextOf(*this);
    data.m_strName = text.IsEmpty() ? GetToolTipText() : text;
    data.m_strDescription = GetDescription();
    if (IsTabStop()) {
        data.m_strKeys = KeysOf(*this);
    }
    data.m_nRole = ROLE_SYSTEM_CLIENT;
    data.m_nState = StateOf(*this);
    data.m_rect = m_rect;
    if (pParent != nullptr && pParent->GetSafeHwnd() != nullptr && !m_rect.IsRectEmpty()) {
        pParent->ClientToScreen(data.m_rect);
    }
    return TRUE;
}
