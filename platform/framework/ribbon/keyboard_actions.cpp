// What keys and assistive programs do with an element of a ribbon bar.
#include <utility>

#include "afxribbonbar.h"
#include "afxRibbonEdit.h"
#include "afxribbonpanelmenu.h"
#include "afxribbonslider.h"
#include "fx/window_guard.h"
#include "ribbon/keyboard.h"

namespace {

// These do nothing by a key of their own: they take the focus.
bool TakesFocus(CMFCRibbonBaseElement& element) {
    const auto* edit = DYNAMIC_DOWNCAST(CMFCRibbonEdit, &element);
    return (edit != nullptr && edit->TakesTyping()) || element.IsKindOf(RUNTIME_CLASS(CMFCRibbonSlider));
}

bool OpensMenu(CMFCRibbonBaseElement& element, bool isMenu) {
    const auto* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, &element);
    return button != nullptr && button->HasDropDown() && (isMenu || !button->IsDefaultCommand());
}

} // namespace

CMFCRibbonBaseElement* RibbonKeyboard::SurvivorOf(CMFCRibbonBaseElement& element, const std::function<void()>& act) {
    const fx::WindowGuard guard(&m_bar);
    m_target = &element;
    act();
    if (guard.IsGone()) {
        return nullptr;
    }
    CMFCRibbonBaseElement* survivor = std::exchange(m_target, nullptr);
    return IsActive() ? survivor : nullptr;
}

void RibbonKeyboard::ExecuteFocused() {
    if (CMFCRibbonBaseElement* focused = m_bar.GetFocused()) {
        Execute(*focused, false);
    }
}

void RibbonKeyboard::Execute(CMFCRibbonBaseElement& element, bool isMenu) {
    if (element.IsDisabled()) {
        ::MessageBeep(MB_OK);
    } else if (auto* tab = DYNAMIC_DOWNCAST(CMFCRibbonTab, &element)) {
        ExecuteTab(*tab);
    } else if (TakesFocus(element)) {
        HideTips();
        TakeFocusTo(element);
    } else if (OpensMenu(element, isMenu)) {
        OpenMenu(element, isMenu);
    } else {
        SendCommand(element, isMenu);
    }
}

// After the focus has returned, as if the element had been clicked.
void RibbonKeyboard::SendCommand(CMFCRibbonBaseElement& element, bool isMenu) {
    const fx::WindowGuard guard(&m_bar);
    m_target = &element;
    Deactivate(Focus::GiveBack);
    if (guard.IsGone()) {
        return;
    }
    if (CMFCRibbonBaseElement* target = std::exchange(m_target, nullptr)) {
        target->OnKey(isMenu);
    }
}

// In a pop-up the element is the one that its keys go to; the focus stays in the bar unless an edit takes the caret.
void RibbonKeyboard::TakeFocusTo(CMFCRibbonBaseElement& element) {
    CMFCRibbonPanelMenuBar* popup = element.GetParentMenu();
    if (popup != nullptr) {
        popup->Highlight(&element);
    }
    if (popup == nullptr || element.IsKindOf(RUNTIME_CLASS(CMFCRibbonEdit))) {
        SetFocusTo(&element);
    }
}

// A tab opens its category, an edit or slider takes the focus; the others act as on a click.
void RibbonKeyboard::Invoke(CMFCRibbonBaseElement& element) {
    if (auto* tab = DYNAMIC_DOWNCAST(CMFCRibbonTab, &element)) {
        ChooseTab(*tab);
    } else if (TakesFocus(element)) {
        Activate();
        TakeFocusTo(element);
    } else if (IsActive()) {
        Execute(element, false);
    } else if (!element.IsDisabled()) {
        element.OnKey(FALSE);
    }
}

// With tips the next letters are those of the category; without, its first element gets the focus.
void RibbonKeyboard::ExecuteTab(CMFCRibbonTab& tab) {
    if (!AreTipsShown()) {
        EnterCategory(tab);
        return;
    }
    if (SurvivorOf(tab, [this, &tab] { ChooseTab(tab); }) == nullptr) {
        return;
    }
    SetFocusTo(&tab);
    m_bar.EnsureLayout();
    CMFCRibbonCategory* category = tab.GetParentCategory();
    // Minimised: a press shows the panels, in a pop-up that brings a level of its own.
    if (category->GetRect().IsRectEmpty() &&
        SurvivorOf(tab, [&tab] { tab.OnLButtonDown(tab.GetRect().CenterPoint()); }) == nullptr) {
        return;
    }
    if (m_levels.GetPopup() == nullptr) {
        m_levels.Push(category);
    }
    ShowMatchingTips();
}

void RibbonKeyboard::DropDownFocused() {
    CMFCRibbonBaseElement* focused = m_bar.GetFocused();
    if (focused != nullptr && focused->HasDropDown()) {
        HideTips();
        OpenMenu(*focused, true);
    }
}

// A menu that runs its own loop is over when the call returns; a pop-up has brought its level; a list has dropped down.
void RibbonKeyboard::OpenMenu(CMFCRibbonBaseElement& element, bool isMenu) {
    const fx::WindowGuard guard(&m_bar);
    const std::size_t levels = m_levels.GetCount();
    m_levels.Hide();
    m_target = &element;
    element.OnKey(isMenu);
    if (guard.IsGone() || !IsActive()) {
        return;
    }
    const CMFCRibbonBaseElement* target = std::exchange(m_target, nullptr);
    const bool isOpen = target != nullptr && target->IsDroppedDown();
    if (isOpen && m_levels.GetCount() == levels && AreTipsShown()) {
        // Not by HideTips, after which nobody would know that they come back.
        Handle(ribbon::KeyEvent::ListOpened);
        m_levels.ForgetTyped();
        m_bar.Invalidate(FALSE);
    } else if (m_levels.GetPopup() == nullptr && !isOpen) {
        Deactivate(Focus::GiveBack);
    }
}

// The category is asked first; what is in none is asked itself. A handler may end the bar: then the key is taken.
bool RibbonKeyboard::OfferToFocused(UINT key) {
    CMFCRibbonBaseElement* focused = m_bar.GetFocused();
    if (focused == nullptr) {
        return false;
    }
    const fx::WindowGuard guard(&m_bar);
    CMFCRibbonCategory* category = focused->GetParentPanel() != nullptr ? m_bar.GetActiveCategory() : nullptr;
    const bool isUsed = category != nullptr
                            ? category->OnKey(key) != FALSE
                            : !focused->IsKindOf(RUNTIME_CLASS(CMFCRibbonButton)) && focused->ProcessKey(key);
    return isUsed || guard.IsGone();
}
