// What each kind of ribbon element tells assistive programs.
#include <afxribbonbar.h>
#include <afxribboncheckbox.h>
#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonpanelmenu.h>
#include <afxribbonslider.h>

#include <oleacc.h>

#include <algorithm>

#include "ribbon/access_texts.h"
#include "ribbon/bar_parts.h"

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
    const CString text = GetShownText();
    data.m_strName = WithoutMnemonic(text.IsEmpty() ? GetToolTipText() : text);
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

BOOL CMFCRibbonSeparator::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_SEPARATOR;
    return TRUE;
}

BOOL CMFCRibbonButton::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    const BOOL opens = HasMenu() && !IsSplit();
    data.m_nRole = IsSplit() ? ROLE_SYSTEM_SPLITBUTTON : opens ? ROLE_SYSTEM_BUTTONMENU : ROLE_SYSTEM_PUSHBUTTON;
    data.m_strDefaultAction = RibbonAccessText(opens ? TextId::Open : TextId::Press);
    return TRUE;
}

BOOL CMFCRibbonCheckBox::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonButton::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_CHECKBUTTON;
    data.m_strDefaultAction = RibbonAccessText(IsChecked() ? TextId::Uncheck : TextId::Check);
    return TRUE;
}

BOOL CMFCRibbonLabel::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonButton::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_STATICTEXT;
    data.m_strDefaultAction.Empty();
    return TRUE;
}

BOOL CMFCRibbonEdit::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonButton::SetACCData(pParent, data);
    data.m_nRole = GetDropButtonWidth() > 0 ? ROLE_SYSTEM_COMBOBOX : ROLE_SYSTEM_TEXT;
    data.m_strValue = m_strEdit;
    data.m_strDefaultAction = RibbonAccessText(TextId::Edit);
    return TRUE;
}

// As if the text had been typed and left: the command follows.
BOOL CMFCRibbonEdit::PutACCValue(LPCTSTR lpszValue) {
    if (IsDisabled()) {
        return FALSE;
    }
    m_strEdit = lpszValue;
    ShowTextInWindow();
    Redraw();
    NotifyAccessibility(EVENT_OBJECT_VALUECHANGE);
    CommitText();
    return TRUE;
}

BOOL CMFCRibbonSlider::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_SLIDER;
    data.m_strValue.Format(L"%d", m_nPos);
    return TRUE;
}

BOOL CMFCRibbonSlider::PutACCValue(LPCTSTR lpszValue) {
    LPTSTR end = nullptr;
    const long position = lpszValue != nullptr ? wcstol(lpszValue, &end, 10) : 0;
    if (IsDisabled() || end == lpszValue || end == nullptr || *end != L'\0') {
        return FALSE;
    }
    ChangePos(static_cast<int>(std::clamp<long>(position, m_nMin, m_nMax)));
    return TRUE;
}

BOOL CMFCRibbonButtonsGroup::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_TOOLBAR;
    return TRUE;
}

BOOL CMFCRibbonTab::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_strName = GetParentCategory() != nullptr ? WithoutMnemonic(GetParentCategory()->GetName()) : CString();
    data.m_nRole = ROLE_SYSTEM_PAGETAB;
    data.m_nState |= STATE_SYSTEM_SELECTABLE | (IsSelected() ? STATE_SYSTEM_SELECTED : 0);
    data.m_strDefaultAction = RibbonAccessText(TextId::Switch);
    return TRUE;
}

BOOL CRibbonCategoryScroll::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonButton::SetACCData(pParent, data);
    data.m_strName = RibbonAccessText(m_bIsLeft ? TextId::ScrollLeft : TextId::ScrollRight);
    return TRUE;
}

void CMFCRibbonBaseElement::NotifyAccessibility(DWORD dwEvent) {
    if (m_pParentMenu != nullptr) {
        m_pParentMenu->NotifyElementEvent(dwEvent, *this);
    } else if (m_pRibbonBar != nullptr) {
        m_pRibbonBar->NotifyElementEvent(dwEvent, *this);
    }
}

// ---- the bar

RibbonAccess& CMFCRibbonBar::GetAccess() { return *m_parts->access; }

LRESULT CMFCRibbonBar::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return static_cast<LONG>(lParam) == OBJID_CLIENT ? m_parts->access->OnGetObject(wParam) : Default();
}

LRESULT CMFCRibbonBar::OnAccessAction(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    m_parts->access->RunPendingAction();
    return 0;
}

BOOL CMFCRibbonBar::OnSetAccData(long lVal) {
    EnsureLayout();
    const std::vector<RibbonAccessNode> children = m_parts->access->ChildrenOf({});
    if (lVal < 0 || lVal > static_cast<long>(children.size())) {
        return FALSE;
    }
    m_parts->access->Describe(lVal == 0 ? RibbonAccessNode{} : children[static_cast<std::size_t>(lVal) - 1], m_AccData);
    return TRUE;
}

void CMFCRibbonBar::NotifyElementEvent(DWORD event, CMFCRibbonBaseElement& element) {
    if (m_parts != nullptr) {
        m_parts->access->Notify(event, element);
    }
}

void CMFCRibbonBar::ForgetElement(CMFCRibbonBaseElement& element) {
    if (m_parts != nullptr) {
        m_parts->keyboard->OnElementDestroyed(element);
        m_parts->access->Forget(element);
        ForgetQuickAccessOriginal(element);
    }
}
