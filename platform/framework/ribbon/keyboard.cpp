// The keyboard's state: tips that are shown, the focus that it has taken, pop-ups and lists that open by it.
#include "ribbon/keyboard.h"

#include <utility>

#include <imm.h>

#include "afxribbonbar.h"
#include "afxRibbonEdit.h"
#include "afxribbonpanelmenu.h"
#include "fx/window_guard.h"
#include "visual/manager_instance.h"
#include "visual/paint_ribbon.h"
#include "window/focus.h"

using ribbon::KeyEvent;

RibbonKeyboard::RibbonKeyboard(CMFCRibbonBar& bar, RibbonBarParts& parts)
    : m_bar(bar), m_stops(bar, parts), m_levels(bar, parts) {}

RibbonKeyboard::~RibbonKeyboard() = default;

void RibbonKeyboard::EnableTips(bool enable) {
    m_areTipsEnabled = enable;
    if (!enable && AreTipsShown()) {
        HideTips();
        Deactivate(Focus::GiveBack);
    }
}

int RibbonKeyboard::GetLevel() const { return AreTipsShown() ? static_cast<int>(m_levels.GetCount()) - 1 : -1; }

CObject* RibbonKeyboard::GetCurrent() const { return AreTipsShown() ? m_levels.GetObject(0) : nullptr; }

CObject* RibbonKeyboard::GetParent() const { return AreTipsShown() ? m_levels.GetObject(1) : nullptr; }

// ---- tips

void RibbonKeyboard::ShowLevel(CObject* object) {
    if (m_bar.GetSafeHwnd() == nullptr || !m_areTipsEnabled) {
        return;
    }
    m_bar.EnsureLayout();
    m_levels.Clear();
    m_levels.Push(&m_bar);
    if (object != &m_bar && object != nullptr) {
        m_levels.Push(object);
    }
    Handle(KeyEvent::TipsShown);
    ShowMatchingTips();
}

void RibbonKeyboard::ShowTips() {
    if (m_levels.IsEmpty()) {
        ShowLevel(&m_bar);
    } else if (m_areTipsEnabled) {
        Handle(KeyEvent::TipsShown);
        ShowMatchingTips();
    }
}

void RibbonKeyboard::HideTips() {
    const bool wereShown = AreTipsShown();
    Handle(KeyEvent::TipsHidden);
    if (wereShown) {
        m_levels.ForgetTyped();
        m_levels.Hide();
        m_bar.Invalidate(FALSE);
    }
}

void RibbonKeyboard::ShowMatchingTips() {
    if (AreTipsShown()) {
        m_levels.Show();
    }
}

void RibbonKeyboard::OnElementDestroyed(const CMFCRibbonBaseElement& element) {
    if (m_target == &element) {
        m_target = nullptr;
    }
    m_levels.OnElementDestroyed(element);
    if (AreTipsShown() && m_levels.IsEmpty()) {
        Handle(KeyEvent::TipsHidden);
    }
}

// ---- the system's focus

bool RibbonKeyboard::HoldsFocus() const {
    const HWND focus = ::GetFocus();
    return focus != nullptr && (focus == m_bar.GetSafeHwnd() || ::IsChild(m_bar.GetSafeHwnd(), focus));
}

bool RibbonKeyboard::IsEditing() const { return HoldsFocus() && ::GetFocus() != m_bar.GetSafeHwnd(); }

// On its way from a pop-up back to the bar the focus passes through the frame, which is activated.
void RibbonKeyboard::OnFocusCame(HWND former) {
    const bool isOwn = former == m_bar.GetSafeHwnd() || ::IsChild(m_bar.GetSafeHwnd(), former);
    if (former != nullptr && !isOwn && !m_isMovingFocus) {
        m_formerFocus = former;
    }
}

void RibbonKeyboard::OnEditFocusCame(HWND former) {
    OnFocusCame(former);
    if (HoldsFocus()) {
        Handle(KeyEvent::FocusTaken);
    }
}

void RibbonKeyboard::OnFocusWent(HWND next) {
    const bool stays = next != nullptr && (next == m_bar.GetSafeHwnd() || ::IsChild(m_bar.GetSafeHwnd(), next));
    const HWND popup = m_levels.GetPopup()->GetSafeHwnd();
    const bool goesToPopup = next != nullptr && popup != nullptr && (next == popup || ::IsChild(popup, next));
    if (IsActive() && !m_isMovingFocus && !stays && !goesToPopup) {
        Deactivate(Focus::Leave);
    }
}

bool RibbonKeyboard::TakeFocusBack() {
    if (!IsActive()) {
        return false;
    }
    const fx::WindowGuard guard(&m_bar);
    m_isMovingFocus = true;
    m_bar.SetFocus();
    if (guard.IsAlive()) {
        m_isMovingFocus = false;
    }
    return true;
}

void RibbonKeyboard::GiveFocusBack() {
    Deactivate(Focus::Leave);
    ReturnFocus();
}

void RibbonKeyboard::Activate() {
    if (IsActive() || m_bar.GetSafeHwnd() == nullptr) {
        return;
    }
    m_bar.EnsureLayout();
    m_bar.PopTooltip();
    Handle(KeyEvent::FocusTaken);
    // Letters are for the tips, not for an input method.
    ::ImmAssociateContext(m_bar.GetSafeHwnd(), nullptr);
    if (::GetFocus() != m_bar.GetSafeHwnd()) {
        // The system tells the former focus to the window that gets it; an edit in the bar is none to return to.
        m_bar.SetFocus();
    }
    if (CMFCRibbonTab* tab = m_stops.ActiveTab()) {
        SetFocusTo(tab);
    } else if (const Elements stops = m_stops.InOrder(); !stops.empty()) {
        SetFocusTo(stops.front()); // a bar without tabs
    }
}

void RibbonKeyboard::Deactivate(Focus focus) {
    if (!IsActive()) {
        return;
    }
    Handle(KeyEvent::FocusGiven);
    m_levels.Clear();
    if (CMFCRibbonBaseElement* focused = m_bar.GetFocused()) {
        focused->SetFocused(FALSE);
    }
    m_bar.Invalidate(FALSE);
    if (focus == Focus::GiveBack) {
        ReturnFocus();
    }
}

// The loss of the focus may send an edit's command, which may end the bar.
void RibbonKeyboard::ReturnFocus() {
    if (!HoldsFocus() && !CMFCRibbonPanelMenu::IsPopupWindow(::GetFocus())) {
        return;
    }
    const HWND former = std::exchange(m_formerFocus, nullptr);
    const CWnd* frame = m_bar.GetTopLevelFrame();
    if (fx::CanTakeFocus(former) && frame != nullptr && ::GetAncestor(former, GA_ROOT) == frame->GetSafeHwnd()) {
        ::SetFocus(former);
    } else if (frame != nullptr) {
        ::SetFocus(frame->GetSafeHwnd());
    }
}

void RibbonKeyboard::SetFocusTo(CMFCRibbonBaseElement* element) {
    CMFCRibbonBaseElement* former = m_bar.GetFocused();
    if (element == nullptr || former == element) {
        return;
    }
    const fx::WindowGuard guard(&m_bar);
    m_target = element;
    m_isMovingFocus = true;
    if (former != nullptr) {
        former->SetFocused(FALSE);
    }
    if (::GetFocus() != guard.Handle()) {
        m_bar.SetFocus();
    }
    if (guard.IsGone()) {
        return;
    }
    if (CMFCRibbonBaseElement* target = std::exchange(m_target, nullptr)) {
        target->SetFocused(TRUE);
    }
    m_isMovingFocus = false;
    m_bar.Invalidate(FALSE);
}

void RibbonKeyboard::DrawFocus(CDC& dc) const {
    CMFCRibbonBaseElement* focused = IsActive() && !AreTipsShown() ? m_bar.GetFocused() : nullptr;
    const auto* edit = DYNAMIC_DOWNCAST(CMFCRibbonEdit, focused);
    if (focused == nullptr || focused->GetRect().IsRectEmpty() || (edit != nullptr && edit->TakesTyping())) {
        return;
    }
    const CRect rect = focused->GetRect();
    const COLORREF ground = dc.GetPixel(rect.TopLeft()); // beside the round corner of its plate
    visual::PaintFocus(dc, rect, visual::FromColorRef(ground != CLR_INVALID ? ground : 0), visual::CurrentLook());
}

// ---- pop-ups and lists

void RibbonKeyboard::EnterPopup(CWnd& popup, CObject* object, const std::vector<CMFCRibbonBaseElement*>& elements) {
    if (IsActive()) {
        m_levels.PushPopup(popup, object, elements);
        ShowMatchingTips();
    }
}

void RibbonKeyboard::LeavePopup(const CWnd& popup, bool goesBack) {
    if (!m_levels.RemovePopup(popup)) {
        return;
    }
    if (goesBack) {
        ShowMatchingTips();
    } else {
        Deactivate(Focus::GiveBack);
    }
}

void RibbonKeyboard::LeaveList() {
    if (m_state == ribbon::KeyState::List) {
        Handle(KeyEvent::TipsHidden);
        ShowTips();
    }
}
