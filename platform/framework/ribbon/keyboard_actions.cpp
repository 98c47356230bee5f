// What keys and assistive programs do with an element of a ribbon bar, and the pop-ups and lists that open by it.
#include <utility>

#include "afxribbonbar.h"
#include "afxRibbonEdit.h"
#include "afxribbonpanelmenu.h"
#include "afxribbonslider.h"
#include "ribbon/keyboard.h"

namespace {

// These do nothing by a key of their own: they take the focus.
bool TakesFocus(CMFCRibbonBaseElement& element) {
    const auto* edit = DYNAMIC_DOWNCAST(CMFCRibbonEdit, &element);
    return (edit != nullptr && edit->TakesTyping()) || element.IsKindOf(RUNTIME_CLASS(CMFCRibbonSlider));
}

} // namespace

// A command comes after the focus has returned, as if it had been clicked.
void RibbonKeyboard::Execute(CMFCRibbonBaseElement& element, bool isMenu) {
    if (element.IsDisabled()) {
        ::MessageBeep(MB_OK);
        return;
    }
    if (auto* tab = DYNAMIC_DOWNCAST(CMFCRibbonTab, &element)) {
        ExecuteTab(*tab);
        return;
    }
    const auto* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, &element);
    if (TakesFocus(element)) {
        HideTips();
        TakeFocusTo(element);
        return;
    }
    if (button != nullptr && button->HasDropDown() && (isMenu || !button->IsDefaultCommand())) {
        OpenMenu(element, isMenu);
        return;
    }
    const HWND window = m_bar.GetSafeHwnd();
    m_target = &element;
    Deactivate(Focus::GiveBack);
    if (!::IsWindow(window)) {
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
    } else if (m_isActive) {
        Execute(element, false);
    } else if (!element.IsDisabled()) {
        element.OnKey(FALSE);
    }
}

// With tips the next letters are those of the category; without, its first element gets the focus.
void RibbonKeyboard::ExecuteTab(CMFCRibbonTab& tab) {
    if (!m_areTipsShown) {
        EnterCategory(tab);
        return;
    }
    const HWND window = m_bar.GetSafeHwnd();
    m_target = &tab;
    ChooseTab(tab);
    if (!::IsWindow(window) || !m_isActive || m_target == nullptr) {
        return;
    }
    m_target = nullptr;
    SetFocusTo(&tab);
    m_bar.EnsureLayout();
    CMFCRibbonCategory* category = tab.GetParentCategory();
    if (category->GetRect().IsRectEmpty()) {
        // Minimised: a press shows the panels, in a pop-up that brings a level of its own.
        m_target = &tab;
        tab.OnLButtonDown(tab.GetRect().CenterPoint());
        if (!::IsWindow(window) || !m_isActive || std::exchange(m_target, nullptr) == nullptr) {
            return;
        }
    }
    if (!IsPopupOnTop()) {
        PushLevel(category);
    }
    ShowMatchingTips();
}

// A menu that runs its own loop is over when the call returns; a pop-up has brought its level; a list has dropped down.
void RibbonKeyboard::OpenMenu(CMFCRibbonBaseElement& element, bool isMenu) {
    const HWND window = m_bar.GetSafeHwnd();
    for (const Level& level : m_levels) {
        for (const auto& tip : level.tips) {
            tip->Hide();
        }
    }
    const std::size_t depth = m_levels.size();
    m_target = &element;
    element.OnKey(isMenu);
    if (!::IsWindow(window) || !m_isActive) {
        return;
    }
    const CMFCRibbonBaseElement* target = std::exchange(m_target, nullptr);
    const bool isOpen = target != nullptr && target->IsDroppedDown();
    if (isOpen && m_levels.size() == depth && m_areTipsShown) {
        HideTips();
        m_isInList = true;
    } else if (!IsPopupOnTop() && !isOpen) {
        Deactivate(Focus::GiveBack);
    }
}

// ---- pop-ups

void RibbonKeyboard::EnterPopup(CWnd& popup, CObject* object, const std::vector<CMFCRibbonBaseElement*>& elements) {
    if (!m_isActive) {
        return;
    }
    Level level{object, &popup, nullptr, {}};
    for (CMFCRibbonBaseElement* element : elements) {
        Append(*element, level.tips);
    }
    Assign(level.tips, 0);
    if (!m_levels.empty()) {
        for (const auto& tip : m_levels.back().tips) {
            tip->Hide();
        }
    }
    m_typed.clear();
    m_levels.push_back(std::move(level));
    ShowMatchingTips();
}

void RibbonKeyboard::LeavePopup(const CWnd& popup, bool goesBack) {
    for (std::size_t place = 0; place < m_levels.size(); ++place) {
        if (m_levels[place].window != &popup) {
            continue;
        }
        m_levels.resize(place);
        m_typed.clear();
        if (goesBack) {
            ShowMatchingTips();
        } else {
            Deactivate(Focus::GiveBack);
        }
        return;
    }
}

void RibbonKeyboard::LeaveList() {
    if (std::exchange(m_isInList, false) && m_isActive) {
        ShowTips();
    }
}
