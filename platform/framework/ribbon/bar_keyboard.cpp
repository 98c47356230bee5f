// The keyboard of a ribbon bar as hosts and frames see it.
#include "afxribbonbar.h"

#include "ribbon/bar_parts.h"

RibbonKeyboard& CMFCRibbonBar::GetKeyboard() { return *m_parts->keyboard; }

void CMFCRibbonBar::EnableKeyTips(BOOL bEnable) { m_parts->keyboard->EnableTips(bEnable != FALSE); }

BOOL CMFCRibbonBar::IsKeyTipEnabled() const { return m_parts->keyboard->AreTipsEnabled(); }

void CMFCRibbonBar::ShowKeyTips() { m_parts->keyboard->ShowTips(); }

void CMFCRibbonBar::HideKeyTips() { m_parts->keyboard->HideTips(); }

int CMFCRibbonBar::GetKeyboardNavigationLevel() const { return m_parts->keyboard->GetLevel(); }

CObject* CMFCRibbonBar::GetKeyboardNavLevelCurrent() const { return m_parts->keyboard->GetCurrent(); }

CObject* CMFCRibbonBar::GetKeyboardNavLevelParent() const { return m_parts->keyboard->GetParent(); }

void CMFCRibbonBar::SetKeyboardNavigationLevel(CObject* pLevel, BOOL bSetFocus) {
    if (pLevel == nullptr) {
        DeactivateKeyboardFocus(bSetFocus);
        return;
    }
    if (bSetFocus) {
        m_parts->keyboard->Activate();
    }
    m_parts->keyboard->ShowLevel(pLevel);
}

void CMFCRibbonBar::DeactivateKeyboardFocus(BOOL bSetFocus) {
    m_parts->keyboard->HideTips();
    m_parts->keyboard->Deactivate(bSetFocus ? RibbonKeyboard::Focus::GiveBack : RibbonKeyboard::Focus::Leave);
}

BOOL CMFCRibbonBar::OnSysKeyDown(CFrameWnd* /*pFrameWnd*/, WPARAM wParam, LPARAM lParam) {
    return m_parts->keyboard->OnSysKeyDown(static_cast<UINT>(wParam), lParam);
}

BOOL CMFCRibbonBar::OnSysKeyUp(CFrameWnd* /*pFrameWnd*/, WPARAM wParam, LPARAM /*lParam*/) {
    return m_parts->keyboard->OnSysKeyUp(static_cast<UINT>(wParam));
}

BOOL CMFCRibbonBar::TranslateChar(UINT nChar) { return m_parts->keyboard->OnCharacter(static_cast<wchar_t>(nChar)); }

void CMFCRibbonBar::OnSetFocus(CWnd* pOldWnd) {
    CPane::OnSetFocus(pOldWnd);
    m_parts->keyboard->OnFocusCame(pOldWnd->GetSafeHwnd());
}

void CMFCRibbonBar::OnKillFocus(CWnd* pNewWnd) {
    CPane::OnKillFocus(pNewWnd);
    m_parts->keyboard->OnFocusWent(pNewWnd->GetSafeHwnd());
}

CMFCRibbonBaseElement* CMFCRibbonBar::GetFocused() {
    if (m_parts->applicationButton != nullptr && m_parts->applicationButton->IsFocused()) {
        return m_parts->applicationButton;
    }
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    m_parts->quickAccess.GetElements(elements);
    elements.Add(&m_parts->quickAccess.GetMoreButton());
    elements.Add(&m_parts->quickAccess.GetCustomizeButton());
    for (const auto& context : m_parts->contexts) {
        elements.Add(context.caption.get());
    }
    for (const auto* buttons : {&m_parts->captionButtons, &m_parts->childButtons}) {
        for (const auto& button : *buttons) {
            elements.Add(button.get());
        }
    }
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> own;
    GetBarElements(own);
    for (INT_PTR index = 0; index < own.GetSize(); ++index) {
        own[index]->GetElements(elements);
    }
    elements.Add(&m_parts->tabScrollLeft);
    elements.Add(&m_parts->tabScrollRight);
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        if (elements[index]->IsFocused()) {
            return elements[index];
        }
    }
    if (CMFCRibbonBaseElement* focused = m_parts->active != nullptr ? m_parts->active->GetFocused() : nullptr) {
        return focused;
    }
    // What a step to another tab leaves behind.
    for (const auto& category : m_parts->categories) {
        if (CMFCRibbonBaseElement* focused = category->GetFocused()) {
            return focused;
        }
    }
    return nullptr;
}
